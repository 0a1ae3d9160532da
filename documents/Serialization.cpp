#include "documents/Serialization.h"

#include "documents/DocumentsLog.h"

#include <QDateTime>
#include <QTimeZone>

#include <cmath>
#include <limits>
#include <vector>

namespace vorn {

namespace {

const QString classKey = QStringLiteral("class");
const QString dateMarker = QStringLiteral("dAtEaTtr:");

// Seconds between the Unix epoch and 2001-01-01 UTC.
constexpr qint64 referenceDateOffset = 978307200;

// One object of a dictionary tree, checked and converted, ready to insert.
struct PlannedObject
{
    const EntityDescription* entity = nullptr;
    std::vector<std::pair<int, QVariant>> attributes;
    struct Relation
    {
        QString key;
        bool toMany = false;
        std::vector<PlannedObject> objects;
    };
    std::vector<Relation> relations;
};

bool isNumber(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

bool isReal(const QVariant& v)
{
    return v.typeId() == QMetaType::Float || v.typeId() == QMetaType::Double;
}

QString typeWord(AttributeType type)
{
    switch (type) {
    case AttributeType::String:
        return Serialization::tr("text");
    case AttributeType::Integer:
    case AttributeType::Float:
        return Serialization::tr("a number");
    case AttributeType::Bool:
        return Serialization::tr("a yes/no value");
    case AttributeType::Date:
        return Serialization::tr("a date");
    case AttributeType::Data:
        return Serialization::tr("data");
    }
    return {};
}

class Planner
{
public:
    explicit Planner(const ObjectModel& model) : m_model(model) {}

    Result<PlannedObject> object(const QVariantMap& dictionary, const QString& expectedEntity, int depth)
    {
        const QVariant cls = dictionary.value(classKey);
        if (cls.typeId() != QMetaType::QString)
            return damaged(Serialization::tr("a record has no class name"));
        const QString name = cls.toString() == Serialization::genericClassName()
                                 ? Serialization::genericEntityName()
                                 : cls.toString();
        const EntityDescription* entity = m_model.entity(name);
        if (!entity)
            return damaged(Serialization::tr("it names an unknown kind of record, “%1”").arg(cls.toString()));
        if (!expectedEntity.isEmpty() && entity->name() != expectedEntity)
            return damaged(Serialization::tr("a record of kind “%1” stands where a “%2” belongs")
                               .arg(entity->name(), expectedEntity));
        PlannedObject planned;
        planned.entity = entity;
        if (Status s = fill(planned, dictionary, depth); !s)
            return s.error();
        return planned;
    }

    Status fill(PlannedObject& planned, const QVariantMap& dictionary, int depth)
    {
        if (depth > Serialization::maximumNesting)
            return damaged(Serialization::tr("its records are nested too deeply"));
        if (++m_objects > Serialization::maximumObjects)
            return damaged(Serialization::tr("it holds too many records"));
        const EntityDescription& entity = *planned.entity;
        for (auto it = dictionary.cbegin(); it != dictionary.cend(); ++it) {
            const QString& key = it.key();
            if (key == classKey)
                continue;
            const QVariant& value = it.value();
            if (const RelationshipDescription* r = entity.relationship(key)) {
                PlannedObject::Relation relation{key, r->toMany, {}};
                if (!r->toMany && value.typeId() == QMetaType::QVariantMap) {
                    auto child = object(value.toMap(), r->destination, depth + 1);
                    if (!child)
                        return child.error();
                    relation.objects.push_back(std::move(child.value()));
                } else if (r->toMany && value.typeId() == QMetaType::QVariantList) {
                    const QVariantList list = value.toList();
                    for (const QVariant& element : list) {
                        if (element.typeId() != QMetaType::QVariantMap)
                            return wrongType(key, entity.name(), Serialization::tr("a list of records"));
                        auto child = object(element.toMap(), r->destination, depth + 1);
                        if (!child)
                            return child.error();
                        relation.objects.push_back(std::move(child.value()));
                    }
                } else {
                    return wrongType(key, entity.name(),
                                     r->toMany ? Serialization::tr("a list of records")
                                               : Serialization::tr("a record"));
                }
                planned.relations.push_back(std::move(relation));
                continue;
            }
            const int index = entity.attributeIndex(key);
            if (index < 0) {
                // A newer Vorn may know more keys; what this one does not know is left out.
                qCDebug(lcDocuments) << "skipping unknown key" << key << "of" << entity.name();
                continue;
            }
            const AttributeDescription& attribute = entity.attributes()[size_t(index)];
            auto converted = convert(attribute, Serialization::decodedValueFrom(value, key));
            if (!converted)
                return wrongType(key, entity.name(), typeWord(attribute.type));
            planned.attributes.emplace_back(index, std::move(*converted));
        }
        return {};
    }

private:
    // The value as the attribute's type stores it, or nothing when it does
    // not fit. Numbers of any kind serve numeric and yes/no attributes, as
    // number objects do on the platform the files also come from.
    static std::optional<QVariant> convert(const AttributeDescription& attribute, const QVariant& value)
    {
        if (!value.isValid())
            return QVariant();
        switch (attribute.type) {
        case AttributeType::String:
            if (value.typeId() == QMetaType::QString)
                return value;
            break;
        case AttributeType::Integer:
            if (isReal(value)) {
                const double d = value.toDouble();
                if (std::isfinite(d) && std::fabs(d) < 9.2e18)
                    return QVariant(qint64(d));
            } else if (isNumber(value)) {
                return QVariant(value.toLongLong());
            }
            break;
        case AttributeType::Float:
            if (isReal(value)) {
                const double d = value.toDouble();
                // Reals read from files are doubles; a float written out comes
                // back exactly. A finite value beyond float range has no float.
                if (!std::isfinite(d) || std::fabs(d) <= double(std::numeric_limits<float>::max()))
                    return QVariant(float(d));
            } else if (isNumber(value)) {
                return QVariant(float(value.toLongLong()));
            }
            break;
        case AttributeType::Bool:
            if (isReal(value))
                return QVariant(value.toDouble() != 0);
            if (isNumber(value))
                return QVariant(value.toLongLong() != 0);
            break;
        case AttributeType::Date:
            if (value.typeId() == QMetaType::QDateTime && value.toDateTime().isValid())
                return QVariant(value.toDateTime().toUTC());
            break;
        case AttributeType::Data:
            if (value.typeId() == QMetaType::QByteArray)
                return value;
            break;
        }
        return std::nullopt;
    }

    static Error damaged(const QString& what)
    {
        return Error::make(ErrorCode::FileReadCorrupt,
                           Serialization::tr("The file is damaged: %1.").arg(what));
    }
    static Error wrongType(const QString& key, const QString& entity, const QString& expected)
    {
        return damaged(Serialization::tr("the value of “%1” (%2) is not %3").arg(key, entity, expected));
    }

    const ObjectModel& m_model;
    int m_objects = 0;
};

ManagedObject* insert(const PlannedObject& planned, ObjectContext& context);

void apply(const PlannedObject& planned, ManagedObject& object, ObjectContext& context)
{
    for (const auto& [index, value] : planned.attributes)
        object.setValue(index, value);
    for (const PlannedObject::Relation& relation : planned.relations) {
        if (!relation.toMany) {
            for (const PlannedObject& child : relation.objects)
                object.setObject(relation.key, insert(child, context));
            continue;
        }
        // The list is set once with all its new members: adding them one by
        // one would copy (and remember for undo) the growing list each time.
        QList<ManagedObject*> list = object.objects(relation.key);
        list.reserve(list.size() + qsizetype(relation.objects.size()));
        for (const PlannedObject& child : relation.objects)
            list.append(insert(child, context));
        object.setObjects(relation.key, list);
    }
}

ManagedObject* insert(const PlannedObject& planned, ObjectContext& context)
{
    ManagedObject* object = context.insertNewObject(planned.entity->name());
    apply(planned, *object, context);
    return object;
}

} // namespace

QVariantMap Serialization::toDictionary(const ManagedObject& object)
{
    return toDictionaryWithTraversalHistory(object, nullptr);
}

QVariantMap Serialization::toDictionaryWithTraversalHistory(const ManagedObject& object,
                                                            QSet<const ManagedObject*>* history)
{
    QSet<const ManagedObject*> fresh;
    if (!history)
        history = &fresh;
    history->insert(&object);

    const EntityDescription& entity = object.entity();
    QVariantMap dictionary;
    dictionary.insert(classKey, genericClassName());
    const auto& attributes = entity.attributes();
    for (int i = 0; i < int(attributes.size()); ++i) {
        const QVariant value = object.value(i);
        if (value.isValid())
            dictionary.insert(attributes[size_t(i)].name, value);
    }
    for (const RelationshipDescription& r : entity.relationships()) {
        if (r.toMany) {
            QVariantList list;
            for (const ManagedObject* related : object.objects(r.name))
                if (!history->contains(related))
                    list.append(toDictionaryWithTraversalHistory(*related, history));
            dictionary.insert(r.name, list);
        } else if (const ManagedObject* related = object.object(r.name);
                   related && !history->contains(related)) {
            dictionary.insert(r.name, toDictionaryWithTraversalHistory(*related, history));
        }
    }
    return dictionary;
}

Result<ManagedObject*> Serialization::createManagedObjectFromDictionary(const QVariantMap& dictionary,
                                                                        ObjectContext& context)
{
    auto planned = Planner(context.model()).object(dictionary, {}, 0);
    if (!planned)
        return planned.error();
    return insert(planned.value(), context);
}

Status Serialization::checkDictionary(const QVariantMap& dictionary, const ObjectModel& model)
{
    auto planned = Planner(model).object(dictionary, {}, 0);
    if (!planned)
        return planned.error();
    return {};
}

Status Serialization::populateFromDictionary(ManagedObject& object, const QVariantMap& dictionary)
{
    ObjectContext* context = object.context();
    if (!context)
        return {};
    PlannedObject planned;
    planned.entity = &object.entity();
    if (Status s = Planner(context->model()).fill(planned, dictionary, 0); !s)
        return s;
    apply(planned, object, *context);
    return {};
}

QVariant Serialization::decodedValueFrom(const QVariant& value, const QString& key)
{
    Q_UNUSED(key);
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString();
        if (text.startsWith(dateMarker)) {
            // The whole text read as a number: it begins with letters, so 0.
            const qint64 seconds = qint64(text.toDouble());
            return QDateTime::fromSecsSinceEpoch(referenceDateOffset + seconds, QTimeZone::utc());
        }
    }
    return value;
}

} // namespace vorn
