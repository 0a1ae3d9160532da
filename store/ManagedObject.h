#pragma once

#include "store/DocumentState.h"
#include "store/ObjectModel.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

namespace vorn {

class ObjectContext;

// One record of the store, read and written by attribute key. There are no
// per-entity classes: every part of the application works on these generic
// objects through the keys of the entity model.
//
// Values are typed by the model: strings as QString, integers as qint64,
// floats as float, bools as bool, dates as UTC QDateTime, data as QByteArray.
// An absent value is an invalid QVariant and reads as 0, false or empty
// through the typed helpers.
class ManagedObject
{
public:
    ManagedObject(const ManagedObject&) = delete;
    ManagedObject& operator=(const ManagedObject&) = delete;

    const EntityDescription& entity() const { return *m_entity; }
    const QString& entityName() const { return m_entity->name(); }
    ObjectContext* context() const { return m_context; }
    // The store's key for this object; stable for the object's lifetime and
    // increasing in creation order within an entity ("store order").
    qint64 objectId() const { return m_id; }

    bool isInserted() const { return m_state == State::Inserted; }
    bool isDeleted() const { return m_state == State::Deleted || m_state == State::Gone; }
    bool isUpdated() const
    {
        return m_state == State::Saved &&
               (!m_original.isEmpty() || (m_originalLists && *m_originalLists != m_lists));
    }
    // An object inserted and deleted again before a save leaves nothing to write.
    bool hasChanges() const
    {
        return m_state == State::Inserted || (m_state == State::Deleted && m_wasSavedBeforeDelete) ||
               isUpdated();
    }

    // Attributes.
    QVariant value(const QString& key) const;
    QVariant value(int attributeIndex) const { return m_values[size_t(attributeIndex)]; }
    bool hasValue(const QString& key) const { return value(key).isValid(); }
    // Converts the value to the attribute's type; an invalid variant clears it.
    // Unknown keys are ignored with a warning, as the platform would refuse them.
    void setValue(const QString& key, const QVariant& value);
    void setValue(int attributeIndex, const QVariant& value);

    float floatValue(const QString& key) const;
    qint64 intValue(const QString& key) const;
    bool boolValue(const QString& key) const;
    QString stringValue(const QString& key) const;
    QDateTime dateValue(const QString& key) const;
    QByteArray dataValue(const QString& key) const;

    // Relationships. To-many lists are ordered as stored; reading one loads it.
    QList<ManagedObject*> objects(const QString& key) const;
    ManagedObject* object(const QString& key) const;
    // Inserts into a to-many relationship (at the end when index is -1),
    // taking the object away from any previous owner; keeps the inverse.
    void insertObject(const QString& key, ManagedObject* object, int index = -1);
    void removeObject(const QString& key, ManagedObject* object);
    // Replaces the whole ordered list (for reordering); objects not in the
    // new list lose their owner.
    void setObjects(const QString& key, const QList<ManagedObject*>& objects);
    // Sets a to-one relationship, keeping the inverse to-many list.
    void setObject(const QString& key, ManagedObject* object);

    // Shorthand for the document's ordered line items.
    QList<ManagedObject*> items() const;

    // The codes of a document (an Invoice object), named (see DocumentState.h).
    DocumentKind kind() const;
    void setKind(DocumentKind kind);
    bool isQuote() const { return kind() == DocumentKind::Quote; }
    bool isInvoice() const { return kind() == DocumentKind::Invoice; }
    DocumentStatus status() const;
    void setStatus(DocumentStatus status);
    // Sent or beyond: the document is locked against edits.
    bool isSent() const { return status() >= DocumentStatus::Sent; }
    DiscountKind discountKind() const;
    void setDiscountKind(DiscountKind kind);

private:
    friend class ObjectContext;
    enum class State
    {
        Saved,
        Inserted,
        Deleted,
        Gone
    };

    // Without values every attribute starts absent.
    ManagedObject(const EntityDescription& entity, ObjectContext* context, qint64 id,
                  std::vector<QVariant> values = {});
    static QVariant coerce(AttributeType type, const QVariant& value);

    const EntityDescription* m_entity;
    ObjectContext* m_context;
    qint64 m_id;
    State m_state = State::Saved;

    std::vector<QVariant> m_values;
    // Values as last saved, for attributes changed since.
    QHash<int, QVariant> m_original;

    // To-many lists (by relationship index) and the to-one owner.
    std::vector<QList<ManagedObject*>> m_lists;
    std::vector<bool> m_listLoaded;
    ManagedObject* m_owner = nullptr;
    // As last saved: owner id (0 = none) and position in the owner's list.
    qint64 m_savedOwnerId = 0;
    int m_savedPosition = -1;
    std::optional<std::vector<QList<ManagedObject*>>> m_originalLists;
    std::optional<ManagedObject*> m_originalOwner;
    bool m_wasSavedBeforeDelete = false;
};

} // namespace vorn
