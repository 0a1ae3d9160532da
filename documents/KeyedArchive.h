#pragma once

#include "store/Result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QVariant>

namespace vorn {

// Keyed archives in a binary property list, the layout the macOS platform's
// keyed archiver writes, so that document and design files move between
// Vorn and that platform in both directions.
//
// The property list is a dictionary: "$archiver" = "NSKeyedArchiver",
// "$version" = 100000, "$top" = {"root": UID}, and "$objects", an array whose
// first element is "$null" and whose other elements are the archived objects,
// referring to each other by UID (an index into "$objects"). Strings,
// numbers, booleans and data are stored as themselves. A dictionary is
// {"NS.keys": [UID...], "NS.objects": [UID...], "$class": UID}, an array
// {"NS.objects": [UID...], "$class": UID}, a date {"NS.time": seconds since
// 2001-01-01 UTC, "$class": UID}; the class UID points at
// {"$classname": name, "$classes": [name, superclasses..., "NSObject"]}.
class KeyedArchive
{
    Q_DECLARE_TR_FUNCTIONS(KeyedArchive)
public:
    // Archives a tree of property-list values (maps, lists, strings, integers,
    // floats, booleans, dates, data). Maps become NSMutableDictionary, lists
    // NSArray.
    static QByteArray archive(const QVariant& root);

    // The root object of a keyed archive; a plain property list (binary or
    // XML) is answered as it is. Files from outside may be hostile: size,
    // nesting, cycles of references and unknown classes are refused with an
    // error.
    static Result<QVariant> unarchive(const QByteArray& data);
    // As unarchive, for a property list already read.
    static Result<QVariant> unarchiveObject(const QVariant& plist);

    static constexpr int maximumDepth = 256;
};

} // namespace vorn
