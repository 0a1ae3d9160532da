#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

namespace vorn {

enum class AttributeType
{
    String,
    Integer,
    Float,
    Bool,
    Date,
    Data
};

struct AttributeDescription
{
    QString name;
    AttributeType type = AttributeType::String;
};

enum class DeleteRule
{
    Nullify,
    Cascade
};

struct RelationshipDescription
{
    QString name;
    QString destination;
    QString inverse;
    bool toMany = false;
    bool ordered = false;
    DeleteRule deleteRule = DeleteRule::Nullify;
};

class EntityDescription
{
public:
    EntityDescription(QString name, std::vector<AttributeDescription> attributes,
                      std::vector<RelationshipDescription> relationships = {});

    const QString& name() const { return m_name; }
    const std::vector<AttributeDescription>& attributes() const { return m_attributes; }
    const std::vector<RelationshipDescription>& relationships() const { return m_relationships; }
    QStringList attributeNames() const;

    // -1 when the key is not an attribute (or relationship) of this entity.
    int attributeIndex(const QString& key) const { return m_attributeIndex.value(key, -1); }
    int relationshipIndex(const QString& key) const { return m_relationshipIndex.value(key, -1); }
    const AttributeDescription* attribute(const QString& key) const;
    const RelationshipDescription* relationship(const QString& key) const;

    // The to-one relationship that owns this entity's objects through an
    // ordered to-many (Item -> Invoice), or nullptr.
    const RelationshipDescription* ownerRelationship() const { return m_owner; }

private:
    QString m_name;
    std::vector<AttributeDescription> m_attributes;
    std::vector<RelationshipDescription> m_relationships;
    QHash<QString, int> m_attributeIndex;
    QHash<QString, int> m_relationshipIndex;
    const RelationshipDescription* m_owner = nullptr;
    friend class ObjectModel;
};

// The entity model of the store: six entities whose attribute keys are the
// contract between every part of the application.
class ObjectModel
{
public:
    static const ObjectModel& vorn();

    // Bumped whenever the stored layout changes; stores of a higher version are refused.
    static constexpr int schemaVersion = 1;

    const EntityDescription* entity(const QString& name) const;
    const std::vector<std::unique_ptr<EntityDescription>>& entities() const { return m_entities; }

    // A model default for an attribute of a freshly inserted object, or an
    // invalid variant when the attribute starts absent.
    QVariant defaultValue(const AttributeDescription& attribute, const QDateTime& now) const;

private:
    ObjectModel();
    std::vector<std::unique_ptr<EntityDescription>> m_entities;
};

namespace Entity {
inline const QString Invoice = QStringLiteral("Invoice");
inline const QString Item = QStringLiteral("Item");
inline const QString Address = QStringLiteral("Address");
inline const QString RecentItem = QStringLiteral("RecentItem");
inline const QString RecentShipping = QStringLiteral("RecentShipping");
inline const QString Design = QStringLiteral("Design");
} // namespace Entity

} // namespace vorn
