#include "store/ManagedObject.h"

#include "store/Keys.h"
#include "store/ObjectContext.h"
#include "store/StoreLog.h"

namespace vorn {

ManagedObject::ManagedObject(const EntityDescription& entity, ObjectContext* context, qint64 id,
                             std::vector<QVariant> values)
    : m_entity(&entity), m_context(context), m_id(id), m_values(std::move(values)),
      m_lists(entity.relationships().size()), m_listLoaded(entity.relationships().size(), false)
{
    m_values.resize(entity.attributes().size());
}

QVariant ManagedObject::value(const QString& key) const
{
    const int index = m_entity->attributeIndex(key);
    return index < 0 ? QVariant() : m_values[size_t(index)];
}

void ManagedObject::setValue(const QString& key, const QVariant& value)
{
    const int index = m_entity->attributeIndex(key);
    if (index < 0) {
        qCWarning(lcStore) << "no attribute" << key << "in" << entityName();
        return;
    }
    setValue(index, value);
}

void ManagedObject::setValue(int attributeIndex, const QVariant& value)
{
    QVariant coerced = coerce(m_entity->attributes()[size_t(attributeIndex)].type, value);
    if (m_context)
        m_context->changeValue(this, attributeIndex, std::move(coerced));
    else
        m_values[size_t(attributeIndex)] = std::move(coerced);
}

QVariant ManagedObject::coerce(AttributeType type, const QVariant& value)
{
    if (!value.isValid())
        return {};
    switch (type) {
    case AttributeType::String:
        return value.toString();
    case AttributeType::Integer:
        return value.toLongLong();
    case AttributeType::Float:
        return value.toFloat();
    case AttributeType::Bool:
        return value.toBool();
    case AttributeType::Date: {
        QDateTime d = value.toDateTime();
        if (!d.isValid())
            return {};
        // The UTC spec (not a UTC time zone) keeps a date free of a
        // time-zone object: a store holds hundreds of thousands of them.
        return d.toUTC();
    }
    case AttributeType::Data:
        return value.toByteArray();
    }
    return {};
}

float ManagedObject::floatValue(const QString& key) const
{
    return value(key).toFloat();
}

qint64 ManagedObject::intValue(const QString& key) const
{
    return value(key).toLongLong();
}

bool ManagedObject::boolValue(const QString& key) const
{
    return value(key).toBool();
}

QString ManagedObject::stringValue(const QString& key) const
{
    return value(key).toString();
}

QDateTime ManagedObject::dateValue(const QString& key) const
{
    return value(key).toDateTime();
}

QByteArray ManagedObject::dataValue(const QString& key) const
{
    return value(key).toByteArray();
}

QList<ManagedObject*> ManagedObject::objects(const QString& key) const
{
    const int index = m_entity->relationshipIndex(key);
    if (index < 0 || !m_entity->relationships()[size_t(index)].toMany)
        return {};
    if (!m_listLoaded[size_t(index)] && m_context)
        m_context->ensureListLoaded(const_cast<ManagedObject*>(this), index);
    return m_lists[size_t(index)];
}

ManagedObject* ManagedObject::object(const QString& key) const
{
    const RelationshipDescription* r = m_entity->relationship(key);
    if (!r || r->toMany)
        return nullptr;
    return m_owner;
}

void ManagedObject::insertObject(const QString& key, ManagedObject* object, int index)
{
    QList<ManagedObject*> list = objects(key);
    const int ri = m_entity->relationshipIndex(key);
    if (ri < 0 || !object || !m_context)
        return;
    list.removeOne(object);
    if (index < 0 || index > list.size())
        index = int(list.size());
    list.insert(index, object);
    m_context->changeList(this, ri, list);
}

void ManagedObject::removeObject(const QString& key, ManagedObject* object)
{
    QList<ManagedObject*> list = objects(key);
    const int ri = m_entity->relationshipIndex(key);
    if (ri < 0 || !m_context || !list.removeOne(object))
        return;
    m_context->changeList(this, ri, list);
}

void ManagedObject::setObjects(const QString& key, const QList<ManagedObject*>& list)
{
    const int ri = m_entity->relationshipIndex(key);
    if (ri < 0 || !m_entity->relationships()[size_t(ri)].toMany || !m_context)
        return;
    objects(key);
    m_context->changeList(this, ri, list);
}

void ManagedObject::setObject(const QString& key, ManagedObject* owner)
{
    const RelationshipDescription* r = m_entity->relationship(key);
    if (!r || r->toMany || owner == m_owner)
        return;
    if (m_owner)
        m_owner->removeObject(r->inverse, this);
    if (owner)
        owner->insertObject(r->inverse, this);
}

QList<ManagedObject*> ManagedObject::items() const
{
    return objects(key::items);
}

DocumentKind ManagedObject::kind() const
{
    return intValue(key::kind) == 0 ? DocumentKind::Quote : DocumentKind::Invoice;
}

void ManagedObject::setKind(DocumentKind kind)
{
    setValue(key::kind, qint64(kind));
}

DocumentStatus ManagedObject::status() const
{
    return DocumentStatus(intValue(key::status));
}

void ManagedObject::setStatus(DocumentStatus status)
{
    setValue(key::status, qint64(status));
}

DiscountKind ManagedObject::discountKind() const
{
    return intValue(key::discountKind) == 0 ? DiscountKind::Amount : DiscountKind::Rate;
}

void ManagedObject::setDiscountKind(DiscountKind kind)
{
    setValue(key::discountKind, qint64(kind));
}

} // namespace vorn
