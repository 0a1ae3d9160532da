#include "store/ObjectModel.h"

#include "store/Keys.h"
#include "store/UniqueId.h"

#include <QDateTime>

namespace vorn {

EntityDescription::EntityDescription(QString name, std::vector<AttributeDescription> attributes,
                                     std::vector<RelationshipDescription> relationships)
    : m_name(std::move(name)), m_attributes(std::move(attributes)), m_relationships(std::move(relationships))
{
    for (int i = 0; i < int(m_attributes.size()); ++i)
        m_attributeIndex.insert(m_attributes[size_t(i)].name, i);
    for (int i = 0; i < int(m_relationships.size()); ++i)
        m_relationshipIndex.insert(m_relationships[size_t(i)].name, i);
}

QStringList EntityDescription::attributeNames() const
{
    QStringList names;
    names.reserve(int(m_attributes.size()));
    for (const auto& a : m_attributes)
        names << a.name;
    return names;
}

const AttributeDescription* EntityDescription::attribute(const QString& key) const
{
    const int i = attributeIndex(key);
    return i < 0 ? nullptr : &m_attributes[size_t(i)];
}

const RelationshipDescription* EntityDescription::relationship(const QString& key) const
{
    const int i = relationshipIndex(key);
    return i < 0 ? nullptr : &m_relationships[size_t(i)];
}

namespace {

using T = AttributeType;

std::vector<AttributeDescription> attrs(std::initializer_list<std::pair<QString, T>> list)
{
    std::vector<AttributeDescription> result;
    for (const auto& [name, type] : list)
        result.push_back({name, type});
    return result;
}

void appendSpare(std::vector<AttributeDescription>& a)
{
    a.push_back({key::misc1, T::String});
    a.push_back({key::misc2, T::Integer});
    a.push_back({key::misc3, T::Float});
    a.push_back({key::misc4, T::Bool});
    a.push_back({key::misc5, T::Date});
}

} // namespace

ObjectModel::ObjectModel()
{
    auto invoice = attrs({
        {key::uniqueID, T::String},
        {key::kind, T::Integer},
        {key::status, T::Integer},
        {key::number, T::String},
        {key::title, T::String},
        {key::subject, T::String},
        {key::address, T::String},
        {key::emailAddress, T::String},
        {key::clientNumber, T::String},
        {key::dispatchNumber, T::String},
        {key::notes, T::String},
        {key::conditions, T::String},
        {key::footer, T::String},
        {key::currency, T::String},
        {key::date, T::Date},
        {key::due, T::Date},
        {key::paid, T::Date},
        {key::sent, T::Date},
        {key::dispatched, T::Date},
        {key::isDispatched, T::Bool},
        {key::isPaid, T::Bool},
        {key::subAmount, T::Float},
        {key::amount, T::Float},
        {key::paidAmount, T::Float},
        {key::dueAmount, T::Float},
        {key::shippingAmount, T::Float},
        {key::discountAmount, T::Float},
        {key::tax1Amount, T::Float},
        {key::tax2Amount, T::Float},
        {key::tax3Amount, T::Float},
        {key::tax1Percent, T::Float},
        {key::tax2Percent, T::Float},
        {key::tax3Percent, T::Float},
        {key::tax1Kind, T::Integer},
        {key::tax2Kind, T::Integer},
        {key::tax3Kind, T::Integer},
        {key::discountKind, T::Integer},
        {key::discountPercent, T::Float},
        {key::discountTitle, T::String},
        {key::discountSubtitle, T::String},
        {key::hasDiscountSubtitle, T::Bool},
        {key::isDiscountEnabled, T::Bool},
        {key::shippingTitle, T::String},
        {key::shippingSubtitle, T::String},
        {key::hasShippingSubtitle, T::Bool},
        {key::isShippingEnabled, T::Bool},
        {key::isShippingTax1Enabled, T::Bool},
        {key::isShippingTax2Enabled, T::Bool},
        {key::isShippingTax3Enabled, T::Bool},
    });
    appendSpare(invoice);

    auto item = attrs({
        {key::uniqueID, T::String},    {key::title, T::String},        {key::subtitle, T::String},
        {key::unit, T::String},        {key::sku, T::String},          {key::note, T::String},
        {key::unitCount, T::Float},    {key::baseAmount, T::Float},    {key::subAmount, T::Float},
        {key::amount, T::Float},       {key::isTax1Applied, T::Bool},  {key::isTax2Applied, T::Bool},
        {key::isTax3Applied, T::Bool}, {key::isTax2Compound, T::Bool}, {key::isTax3Compound, T::Bool},
        {key::tax1Title, T::String},   {key::tax2Title, T::String},    {key::tax3Title, T::String},
        {key::tax1Percent, T::Float},  {key::tax2Percent, T::Float},   {key::tax3Percent, T::Float},
        {key::tax1Amount, T::Float},   {key::tax2Amount, T::Float},    {key::tax3Amount, T::Float},
    });
    appendSpare(item);

    auto recentItem = attrs({
        {key::uniqueID, T::String},
        {key::title, T::String},
        {key::subtitle, T::String},
        {key::unit, T::String},
        {key::sku, T::String},
        {key::note, T::String},
        {key::isTax1Applied, T::Bool},
        {key::isTax2Applied, T::Bool},
        {key::isTax3Applied, T::Bool},
        {key::subAmount, T::Float},
        {key::baseAmount, T::Float},
    });
    appendSpare(recentItem);

    auto recentShipping = attrs({
        {key::uniqueID, T::String},
        {key::title, T::String},
        {key::subtitle, T::String},
        {key::note, T::String},
        {key::hasSubtitle, T::Bool},
        {key::isTax1Enabled, T::Bool},
        {key::isTax2Enabled, T::Bool},
        {key::isTax3Enabled, T::Bool},
        {key::amount, T::Float},
    });
    appendSpare(recentShipping);

    auto address = attrs({
        {key::uniqueID, T::String},
        {key::address, T::String},
        {key::emailAddress, T::String},
        {key::clientNumber, T::String},
        {key::date, T::Date},
    });
    appendSpare(address);

    auto design = attrs({
        {key::uniqueID, T::String},
        {key::title, T::String},
        {key::invoice, T::String},
        {key::item, T::String},
        {key::css, T::String},
        {key::isDefault, T::Bool},
    });
    appendSpare(design);

    RelationshipDescription items{key::items, Entity::Item, key::invoice, true, true, DeleteRule::Cascade};
    RelationshipDescription owner{key::invoice, Entity::Invoice, key::items,
                                  false,        false,           DeleteRule::Nullify};

    m_entities.push_back(std::make_unique<EntityDescription>(Entity::Invoice, std::move(invoice),
                                                             std::vector<RelationshipDescription>{items}));
    m_entities.push_back(std::make_unique<EntityDescription>(Entity::Item, std::move(item),
                                                             std::vector<RelationshipDescription>{owner}));
    m_entities.push_back(std::make_unique<EntityDescription>(Entity::Address, std::move(address)));
    m_entities.push_back(std::make_unique<EntityDescription>(Entity::RecentItem, std::move(recentItem)));
    m_entities.push_back(
        std::make_unique<EntityDescription>(Entity::RecentShipping, std::move(recentShipping)));
    m_entities.push_back(std::make_unique<EntityDescription>(Entity::Design, std::move(design)));

    auto* itemEntity = m_entities[1].get();
    itemEntity->m_owner = &itemEntity->m_relationships[0];
}

const ObjectModel& ObjectModel::vorn()
{
    static const ObjectModel model;
    return model;
}

const EntityDescription* ObjectModel::entity(const QString& name) const
{
    for (const auto& e : m_entities)
        if (e->name() == name)
            return e.get();
    return nullptr;
}

QVariant ObjectModel::defaultValue(const AttributeDescription& attribute, const QDateTime& now) const
{
    // Every object starts with a fresh identity and the five spare attributes set.
    const QString& n = attribute.name;
    if (n == key::uniqueID)
        return globallyUniqueString();
    if (n == key::misc1)
        return QString();
    if (n == key::misc2)
        return qint64(0);
    if (n == key::misc3)
        return 0.0f;
    if (n == key::misc4)
        return false;
    if (n == key::misc5)
        return now;
    return {};
}

} // namespace vorn
