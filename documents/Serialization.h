#pragma once

#include "store/ManagedObject.h"
#include "store/ObjectContext.h"
#include "store/Result.h"

#include <QCoreApplication>
#include <QSet>
#include <QVariant>
#include <QVariantMap>

namespace vorn {

// The object dictionary: one stored object as a tree of property-list values,
// behind the document file, the design file and the XML exports.
//
// A dictionary holds "class" (the generic object class name), every attribute
// that has a value under its own key (strings, integers as qint64, floats as
// float, booleans, dates as UTC QDateTime, data as QByteArray), each to-many
// relationship as an array of the related objects' dictionaries and each
// to-one relationship as the related object's dictionary. An object already
// written in the same traversal is left out, which breaks the cycles of
// inverse relationships: a document's items do not write their document back.
class Serialization
{
    Q_DECLARE_TR_FUNCTIONS(Serialization)
public:
    // The value of "class" for every object: there are no per-entity classes.
    static QString genericClassName() { return QStringLiteral("NSManagedObject"); }
    // A "class" of the generic name stands for this entity.
    static QString genericEntityName() { return Entity::Item; }

    static QVariantMap toDictionary(const ManagedObject& object);
    // history: the objects already written in this traversal; null starts a fresh one.
    static QVariantMap toDictionaryWithTraversalHistory(const ManagedObject& object,
                                                        QSet<const ManagedObject*>* history);

    // Inserts a new object of the entity that "class" names (the generic name
    // means an item) and fills it from the dictionary. The whole tree is
    // checked before anything is inserted: a dictionary that names an unknown
    // class, holds a value of the wrong type or nests too deep yields an error
    // and leaves the context as it was. Keys that are neither attributes nor
    // relationships of the entity are skipped.
    static Result<ManagedObject*> createManagedObjectFromDictionary(const QVariantMap& dictionary,
                                                                    ObjectContext& context);
    // Checks a dictionary as createManagedObjectFromDictionary would, without
    // inserting anything (for callers that must check several first).
    static Status checkDictionary(const QVariantMap& dictionary, const ObjectModel& model);
    // Fills an existing object: attributes are set, nested dictionaries and
    // arrays become new related objects. Checked as a whole first, as above.
    static Status populateFromDictionary(ManagedObject& object, const QVariantMap& dictionary);

    // The value to store for a dictionary value. Text that begins with
    // "dAtEaTtr:" is an old date marker: it becomes the date whose seconds
    // since 2001-01-01 are the numeric value of the whole text, which is 0
    // because the text begins with letters. Anything else passes unchanged.
    static QVariant decodedValueFrom(const QVariant& value, const QString& key);

    // Limits on what a dictionary from outside may ask for.
    static constexpr int maximumNesting = 32;
    static constexpr int maximumObjects = 200000;
};

} // namespace vorn
