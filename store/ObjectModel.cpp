#include "store/ObjectModel.h"

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

std::vector<AttributeDescription> attrs(std::initializer_list<std::pair<const char*, T>> list)
{
    std::vector<AttributeDescription> result;
    for (const auto& [name, type] : list)
        result.push_back({QString::fromLatin1(name), type});
    return result;
}

void appendSpare(std::vector<AttributeDescription>& a)
{
    a.push_back({QStringLiteral("misc1"), T::String});
    a.push_back({QStringLiteral("misc2"), T::Integer});
    a.push_back({QStringLiteral("misc3"), T::Float});
    a.push_back({QStringLiteral("misc4"), T::Bool});
    a.push_back({QStringLiteral("misc5"), T::Date});
}

} // namespace

ObjectModel::ObjectModel()
{
    auto invoice = attrs({
        {"uniqueID", T::String},
        {"kind", T::Integer},
        {"status", T::Integer},
        {"number", T::String},
        {"title", T::String},
        {"subject", T::String},
        {"address", T::String},
        {"emailAddress", T::String},
        {"clientNumber", T::String},
        {"dispatchNumber", T::String},
        {"notes", T::String},
        {"conditions", T::String},
        {"footer", T::String},
        {"currency", T::String},
        {"date", T::Date},
        {"due", T::Date},
        {"paid", T::Date},
        {"sent", T::Date},
        {"dispatched", T::Date},
        {"isDispatched", T::Bool},
        {"isPaid", T::Bool},
        {"subAmount", T::Float},
        {"amount", T::Float},
        {"paidAmount", T::Float},
        {"dueAmount", T::Float},
        {"shippingAmount", T::Float},
        {"discountAmount", T::Float},
        {"tax1Amount", T::Float},
        {"tax2Amount", T::Float},
        {"tax3Amount", T::Float},
        {"tax1Percent", T::Float},
        {"tax2Percent", T::Float},
        {"tax3Percent", T::Float},
        {"tax1Kind", T::Integer},
        {"tax2Kind", T::Integer},
        {"tax3Kind", T::Integer},
        {"discountKind", T::Integer},
        {"discountPercent", T::Float},
        {"discountTitle", T::String},
        {"discountSubtitle", T::String},
        {"hasDiscountSubtitle", T::Bool},
        {"isDiscountEnabled", T::Bool},
        {"shippingTitle", T::String},
        {"shippingSubtitle", T::String},
        {"hasShippingSubtitle", T::Bool},
        {"isShippingEnabled", T::Bool},
        {"isShippingTax1Enabled", T::Bool},
        {"isShippingTax2Enabled", T::Bool},
        {"isShippingTax3Enabled", T::Bool},
        // E-invoices: the buyer's country, VAT identifier and reference, the order.
        {"buyerCountryCode", T::String},
        {"buyerVatID", T::String},
        {"buyerReference", T::String},
        {"orderReference", T::String},
    });
    appendSpare(invoice);

    auto item = attrs({
        {"uniqueID", T::String},
        {"title", T::String},
        {"subtitle", T::String},
        {"unit", T::String},
        {"sku", T::String},
        {"note", T::String},
        {"unitCount", T::Float},
        {"baseAmount", T::Float},
        {"subAmount", T::Float},
        {"amount", T::Float},
        {"isTax1Applied", T::Bool},
        {"isTax2Applied", T::Bool},
        {"isTax3Applied", T::Bool},
        {"isTax2Compound", T::Bool},
        {"isTax3Compound", T::Bool},
        {"tax1Title", T::String},
        {"tax2Title", T::String},
        {"tax3Title", T::String},
        {"tax1Percent", T::Float},
        {"tax2Percent", T::Float},
        {"tax3Percent", T::Float},
        {"tax1Amount", T::Float},
        {"tax2Amount", T::Float},
        {"tax3Amount", T::Float},
    });
    appendSpare(item);

    auto recentItem = attrs({
        {"uniqueID", T::String},
        {"title", T::String},
        {"subtitle", T::String},
        {"unit", T::String},
        {"sku", T::String},
        {"note", T::String},
        {"isTax1Applied", T::Bool},
        {"isTax2Applied", T::Bool},
        {"isTax3Applied", T::Bool},
        {"subAmount", T::Float},
        {"baseAmount", T::Float},
    });
    appendSpare(recentItem);

    auto recentShipping = attrs({
        {"uniqueID", T::String},
        {"title", T::String},
        {"subtitle", T::String},
        {"note", T::String},
        {"hasSubtitle", T::Bool},
        {"isTax1Enabled", T::Bool},
        {"isTax2Enabled", T::Bool},
        {"isTax3Enabled", T::Bool},
        {"amount", T::Float},
    });
    appendSpare(recentShipping);

    auto address = attrs({
        {"uniqueID", T::String},
        {"address", T::String},
        {"emailAddress", T::String},
        {"clientNumber", T::String},
        {"date", T::Date},
    });
    appendSpare(address);

    auto design = attrs({
        {"uniqueID", T::String},
        {"title", T::String},
        {"invoice", T::String},
        {"item", T::String},
        {"css", T::String},
        {"isDefault", T::Bool},
    });
    appendSpare(design);

    RelationshipDescription items{QStringLiteral("items"), Entity::Item, QStringLiteral("invoice"), true, true,
                                  DeleteRule::Cascade};
    RelationshipDescription owner{QStringLiteral("invoice"), Entity::Invoice, QStringLiteral("items"), false, false,
                                  DeleteRule::Nullify};

    m_entities.push_back(std::make_unique<EntityDescription>(Entity::Invoice, std::move(invoice),
                                                             std::vector<RelationshipDescription>{items}));
    m_entities.push_back(std::make_unique<EntityDescription>(Entity::Item, std::move(item),
                                                             std::vector<RelationshipDescription>{owner}));
    m_entities.push_back(std::make_unique<EntityDescription>(Entity::Address, std::move(address)));
    m_entities.push_back(std::make_unique<EntityDescription>(Entity::RecentItem, std::move(recentItem)));
    m_entities.push_back(std::make_unique<EntityDescription>(Entity::RecentShipping, std::move(recentShipping)));
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
    if (n == QLatin1String("uniqueID"))
        return globallyUniqueString();
    if (n == QLatin1String("misc1"))
        return QString();
    if (n == QLatin1String("misc2"))
        return qint64(0);
    if (n == QLatin1String("misc3"))
        return 0.0f;
    if (n == QLatin1String("misc4"))
        return false;
    if (n == QLatin1String("misc5"))
        return now;
    return {};
}

} // namespace vorn
