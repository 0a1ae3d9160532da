#include "store/ObjectContext.h"

#include "store/Clock.h"
#include "store/Keys.h"
#include "store/ListCompare.h"
#include "store/StoreLog.h"

#include <algorithm>
#include <bit>
#include <cstdint>

Q_LOGGING_CATEGORY(lcStore, "vorn.store", QtInfoMsg)

namespace vorn {

namespace {

// Floats are the same value only when their bits are: -0 is not 0 (it shows
// as "-0.00"), and a NaN written twice is no change.
bool sameValue(const QVariant& a, const QVariant& b)
{
    if (a.isValid() != b.isValid())
        return false;
    if (a.typeId() == QMetaType::Float && b.typeId() == QMetaType::Float)
        return std::bit_cast<std::uint32_t>(a.toFloat()) == std::bit_cast<std::uint32_t>(b.toFloat());
    return a == b;
}

} // namespace

ObjectContext::ObjectContext(std::unique_ptr<SqliteStore> store, const Clock& clock, const ObjectModel& model,
                             QObject* parent)
    : QObject(parent), m_model(model), m_clock(clock), m_store(std::move(store)), m_undo(this),
      m_entities(model.entities().size())
{
}

ObjectContext::~ObjectContext() = default;

ObjectContext::EntityObjects& ObjectContext::objectsOf(const EntityDescription& entity)
{
    for (size_t i = 0; i < m_model.entities().size(); ++i)
        if (m_model.entities()[i].get() == &entity)
            return m_entities[i];
    Q_UNREACHABLE();
}

ManagedObject* ObjectContext::insertNewObject(const QString& entityName)
{
    const EntityDescription* entity = m_model.entity(entityName);
    if (!entity)
        return nullptr;
    EntityObjects& eo = objectsOf(*entity);
    if (eo.nextId == 0)
        eo.nextId = (m_store ? m_store->maxId(*entity) : 0) + 1;
    const qint64 id = eo.nextId++;
    auto owned = std::unique_ptr<ManagedObject>(new ManagedObject(*entity, this, id));
    ManagedObject* object = owned.get();
    object->m_state = ManagedObject::State::Inserted;
    std::fill(object->m_listLoaded.begin(), object->m_listLoaded.end(), true);
    const QDateTime now = m_clock.now();
    for (size_t i = 0; i < entity->attributes().size(); ++i)
        object->m_values[i] = m_model.defaultValue(entity->attributes()[i], now);
    eo.objects.emplace(id, std::move(owned));
    markChanged(object);
    m_undo.registerUndo([this, object] { deleteObject(object); });
    Q_EMIT objectsInserted({object});
    return object;
}

void ObjectContext::deleteObject(ManagedObject* object)
{
    if (object && object->m_context == this)
        deleteObject(object, false);
}

void ObjectContext::deleteObject(ManagedObject* object, bool fromOwner)
{
    if (object->isDeleted())
        return;
    const auto& relationships = object->entity().relationships();
    for (size_t ri = 0; ri < relationships.size(); ++ri) {
        if (!relationships[ri].toMany || relationships[ri].deleteRule != DeleteRule::Cascade)
            continue;
        ensureListLoaded(object, int(ri));
        for (ManagedObject* child : std::as_const(object->m_lists[ri]))
            deleteObject(child, true);
    }
    // Leaving the owner's list is what keeps the owner's order consistent;
    // an object deleted together with its owner stays in the owner's list so
    // that undo restores both as they were.
    if (!fromOwner && object->m_owner) {
        if (const RelationshipDescription* r = object->entity().ownerRelationship())
            object->m_owner->removeObject(r->inverse, object);
    }
    object->m_wasSavedBeforeDelete = object->m_state == ManagedObject::State::Saved;
    object->m_state = ManagedObject::State::Deleted;
    markChanged(object);
    m_undo.registerUndo([this, object] { undelete(object); });
    Q_EMIT objectsDeleted({object});
}

void ObjectContext::undelete(ManagedObject* object)
{
    if (object->m_state == ManagedObject::State::Gone) {
        // Deleted and saved since: it comes back as a new row with its old key.
        const EntityDescription& entity = object->entity();
        auto it =
            std::find_if(m_gone.begin(), m_gone.end(), [object](const auto& p) { return p.get() == object; });
        if (it != m_gone.end()) {
            objectsOf(entity).objects.emplace(object->m_id, std::move(*it));
            m_gone.erase(it);
        }
        object->m_state = ManagedObject::State::Inserted;
        object->m_savedOwnerId = 0;
        object->m_savedPosition = -1;
    } else if (object->m_state == ManagedObject::State::Deleted) {
        object->m_state =
            object->m_wasSavedBeforeDelete ? ManagedObject::State::Saved : ManagedObject::State::Inserted;
    } else {
        return;
    }
    markChanged(object);
    if (object->m_owner)
        m_positionCheck.insert(object);
    m_undo.registerUndo([this, object] { deleteObject(object, true); });
    Q_EMIT objectsInserted({object});
}

void ObjectContext::changeValue(ManagedObject* object, int index, QVariant value)
{
    QVariant& slot = object->m_values[size_t(index)];
    if (sameValue(slot, value))
        return;
    QVariant old = slot;
    if (object->m_state == ManagedObject::State::Saved || object->m_state == ManagedObject::State::Deleted) {
        auto it = object->m_original.find(index);
        if (it == object->m_original.end())
            object->m_original.insert(index, old);
        else if (sameValue(*it, value))
            object->m_original.erase(it);
    }
    slot = std::move(value);
    markChanged(object);
    m_undo.registerUndo([this, object, index, old] { changeValue(object, index, old); });
    Q_EMIT objectChanged(object, object->entity().attributes()[size_t(index)].name);
}

void ObjectContext::changeList(ManagedObject* object, int ri, const QList<ManagedObject*>& list)
{
    QList<ManagedObject*>& current = object->m_lists[size_t(ri)];
    if (sameList(current, list))
        return;
    const QList<ManagedObject*> old = current;
    if (object->m_state != ManagedObject::State::Inserted && !object->m_originalLists)
        object->m_originalLists = object->m_lists;

    // Objects joining this list leave their previous owner first.
    for (ManagedObject* member : list) {
        if (member->m_owner && member->m_owner != object) {
            if (const RelationshipDescription* r = member->entity().ownerRelationship())
                member->m_owner->removeObject(r->inverse, member);
        }
    }
    const QSet<ManagedObject*> members(list.cbegin(), list.cend());
    for (ManagedObject* member : old) {
        if (!members.contains(member)) {
            member->m_owner = nullptr;
            m_positionCheck.insert(member);
        }
    }
    current = list;
    for (ManagedObject* member : list) {
        member->m_owner = object;
        m_positionCheck.insert(member);
    }
    markChanged(object);
    m_undo.registerUndo([this, object, ri, old] { changeList(object, ri, old); });
    Q_EMIT objectChanged(object, object->entity().relationships()[size_t(ri)].name);
}

ManagedObject* ObjectContext::materialize(const EntityDescription& entity, SqliteStore::Row&& row)
{
    EntityObjects& eo = objectsOf(entity);
    auto found = eo.objects.find(row.id);
    if (found != eo.objects.end())
        return nullptr;
    auto owned =
        std::unique_ptr<ManagedObject>(new ManagedObject(entity, this, row.id, std::move(row.values)));
    ManagedObject* object = owned.get();
    object->m_savedOwnerId = row.ownerId;
    object->m_savedPosition = row.position;
    eo.objects.emplace_hint(eo.objects.end(), row.id, std::move(owned));
    return object;
}

Status ObjectContext::loadAll(const EntityDescription& entity)
{
    EntityObjects& eo = objectsOf(entity);
    if (eo.allLoaded || !m_store) {
        eo.allLoaded = true;
        return {};
    }
    const RelationshipDescription* owner = entity.ownerRelationship();
    if (!owner) {
        Status s =
            m_store->loadAll(entity, [&](SqliteStore::Row&& row) { materialize(entity, std::move(row)); });
        if (s)
            eo.allLoaded = true;
        return s;
    }

    // Owned objects: load every owner, then hand each owner whose list was
    // not read yet its objects in stored order.
    const EntityDescription* ownerEntity = m_model.entity(owner->destination);
    if (Status s = loadAll(*ownerEntity); !s)
        return s;
    EntityObjects& owners = objectsOf(*ownerEntity);
    const int listIndex = ownerEntity->relationshipIndex(owner->inverse);
    QHash<qint64, QList<ManagedObject*>> lists;
    Status s = m_store->loadAll(entity, [&](SqliteStore::Row&& row) {
        const qint64 ownerId = row.ownerId;
        auto o = owners.objects.find(ownerId);
        if (o != owners.objects.end() && o->second->m_listLoaded[size_t(listIndex)])
            return;
        if (ManagedObject* object = materialize(entity, std::move(row))) {
            if (o != owners.objects.end()) {
                object->m_owner = o->second.get();
                lists[ownerId].append(object);
            }
        }
    });
    if (!s)
        return s;
    for (auto& [id, owned] : owners.objects) {
        ManagedObject* ownerObject = owned.get();
        if (ownerObject->m_listLoaded[size_t(listIndex)])
            continue;
        ownerObject->m_lists[size_t(listIndex)] = lists.value(id);
        ownerObject->m_listLoaded[size_t(listIndex)] = true;
    }
    eo.allLoaded = true;
    return {};
}

void ObjectContext::ensureListLoaded(ManagedObject* object, int ri)
{
    if (object->m_listLoaded[size_t(ri)])
        return;
    object->m_listLoaded[size_t(ri)] = true;
    if (!m_store || object->m_state == ManagedObject::State::Inserted)
        return;
    const RelationshipDescription& r = object->entity().relationships()[size_t(ri)];
    const EntityDescription* child = m_model.entity(r.destination);
    QList<ManagedObject*> list;
    Status s = m_store->loadOwned(*child, object->m_id, [&](SqliteStore::Row&& row) {
        if (ManagedObject* item = materialize(*child, std::move(row))) {
            item->m_owner = object;
            list.append(item);
        }
    });
    if (!s)
        qCWarning(lcStore) << "cannot read the items of" << object->m_id << s.error().fullText();
    object->m_lists[size_t(ri)] = list;
}

Result<QList<ManagedObject*>> ObjectContext::fetchObjects(const QString& entityName,
                                                          const Predicate& predicate)
{
    const EntityDescription* entity = m_model.entity(entityName);
    if (!entity)
        return Error::make(ErrorCode::StoreOpenFailed, tr("There is no entity named “%1”.").arg(entityName));
    if (Status s = loadAll(*entity); !s)
        return s.error();
    QList<ManagedObject*> result;
    const EntityObjects& eo = objectsOf(*entity);
    result.reserve(qsizetype(eo.objects.size()));
    for (const auto& [id, object] : eo.objects) {
        if (object->isDeleted())
            continue;
        if (!predicate || predicate(*object))
            result.append(object.get());
    }
    return result;
}

QList<ManagedObject*> ObjectContext::fetch(const QString& entityName, const Predicate& predicate)
{
    auto result = fetchObjects(entityName, predicate);
    if (!result) {
        qCWarning(lcStore) << "fetch of" << entityName << "failed:" << result.error().fullText();
        return {};
    }
    return result.value();
}

QList<ManagedObject*> ObjectContext::fetchNamed(const QString& templateName)
{
    if (templateName == QLatin1String("defaultDesign"))
        return fetch(Entity::Design, [](const ManagedObject& o) { return o.boolValue(key::isDefault); });
    qCWarning(lcStore) << "no fetch template named" << templateName;
    return {};
}

bool ObjectContext::commitEditing()
{
    bool ok = true;
    for (const auto& [owner, commit] : m_editors)
        ok = commit() && ok;
    return ok;
}

void ObjectContext::registerEditor(QObject* owner, std::function<bool()> commit)
{
    m_editors.emplace_back(owner, std::move(commit));
    connect(owner, &QObject::destroyed, this,
            [this, owner] { std::erase_if(m_editors, [owner](const auto& e) { return e.first == owner; }); });
}

bool ObjectContext::hasChanges() const
{
    if (std::any_of(m_changed.begin(), m_changed.end(), [](ManagedObject* o) { return o->hasChanges(); }))
        return true;
    PositionCache positions;
    for (ManagedObject* o : m_positionCheck) {
        int position = -1;
        const qint64 owner = ownerIdOf(o, &position, positions);
        if (!o->isDeleted() && (owner != o->m_savedOwnerId || position != o->m_savedPosition))
            return true;
    }
    return false;
}

qint64 ObjectContext::ownerIdOf(const ManagedObject* object, int* position, PositionCache& positions) const
{
    *position = -1;
    if (!object->m_owner)
        return 0;
    auto found = positions.constFind(object);
    if (found == positions.cend()) {
        const RelationshipDescription* r = object->entity().ownerRelationship();
        const int ri = object->m_owner->entity().relationshipIndex(r->inverse);
        const QList<ManagedObject*>& list = object->m_owner->m_lists[size_t(ri)];
        for (qsizetype i = 0; i < list.size(); ++i)
            positions.insert(list[i], int(i));
        found = positions.constFind(object);
    }
    if (found != positions.cend())
        *position = *found;
    return object->m_owner->m_id;
}

Status ObjectContext::save()
{
    // A deterministic order: by entity, then by key.
    std::vector<ManagedObject*> changed(m_changed.begin(), m_changed.end());
    std::sort(changed.begin(), changed.end(), [this](ManagedObject* a, ManagedObject* b) {
        if (&a->entity() != &b->entity())
            return &objectsOf(a->entity()) < &objectsOf(b->entity());
        return a->m_id < b->m_id;
    });
    PositionCache positions;
    if (m_store) {
        if (Status s = m_store->begin(); !s)
            return s;
        Status status;
        for (ManagedObject* o : changed) {
            const EntityDescription& entity = o->entity();
            Status s;
            if (o->m_state == ManagedObject::State::Inserted) {
                int position = -1;
                const qint64 owner = ownerIdOf(o, &position, positions);
                s = m_store->insert(entity, o->m_id, o->m_values, owner, position);
            } else if (o->m_state == ManagedObject::State::Deleted) {
                if (o->m_wasSavedBeforeDelete)
                    s = m_store->remove(entity, o->m_id);
            } else if (!o->m_original.isEmpty()) {
                std::vector<int> columns(o->m_original.keyBegin(), o->m_original.keyEnd());
                std::sort(columns.begin(), columns.end());
                s = m_store->update(entity, o->m_id, columns, o->m_values);
            }
            if (!s) {
                status = s;
                break;
            }
        }
        if (status) {
            for (ManagedObject* o : std::as_const(m_positionCheck)) {
                if (o->m_state != ManagedObject::State::Saved)
                    continue;
                int position = -1;
                const qint64 owner = ownerIdOf(o, &position, positions);
                if (owner == o->m_savedOwnerId && position == o->m_savedPosition)
                    continue;
                if (Status s = m_store->updateOwner(o->entity(), o->m_id, owner, position); !s) {
                    status = s;
                    break;
                }
            }
        }
        if (status)
            status = m_store->commit();
        if (!status) {
            m_store->rollback();
            qCWarning(lcStore) << "save failed:" << status.error().fullText();
            Q_EMIT saveFailed(status.error());
            return status;
        }
    }

    for (ManagedObject* o : changed) {
        if (o->m_state == ManagedObject::State::Deleted) {
            o->m_state = ManagedObject::State::Gone;
            auto& objects = objectsOf(o->entity()).objects;
            auto it = objects.find(o->m_id);
            if (it != objects.end()) {
                m_gone.push_back(std::move(it->second));
                objects.erase(it);
            }
        } else if (o->m_state == ManagedObject::State::Inserted) {
            o->m_state = ManagedObject::State::Saved;
        }
        o->m_original.clear();
        o->m_originalLists.reset();
    }
    for (ManagedObject* o : std::as_const(m_positionCheck)) {
        if (o->m_state == ManagedObject::State::Gone)
            continue;
        int position = -1;
        o->m_savedOwnerId = ownerIdOf(o, &position, positions);
        o->m_savedPosition = position;
    }
    m_changed.clear();
    m_positionCheck.clear();
    Q_EMIT didSave();
    return {};
}

void ObjectContext::rollback()
{
    for (ManagedObject* o : std::as_const(m_changed)) {
        const bool wasNew = o->m_state == ManagedObject::State::Inserted ||
                            (o->m_state == ManagedObject::State::Deleted && !o->m_wasSavedBeforeDelete);
        if (wasNew) {
            o->m_state = ManagedObject::State::Gone;
            auto& objects = objectsOf(o->entity()).objects;
            auto it = objects.find(o->m_id);
            if (it != objects.end()) {
                m_gone.push_back(std::move(it->second));
                objects.erase(it);
            }
            continue;
        }
        if (o->m_state == ManagedObject::State::Deleted)
            o->m_state = ManagedObject::State::Saved;
        for (auto it = o->m_original.cbegin(); it != o->m_original.cend(); ++it)
            o->m_values[size_t(it.key())] = it.value();
        o->m_original.clear();
        if (o->m_originalLists) {
            o->m_lists = *o->m_originalLists;
            o->m_originalLists.reset();
        }
    }
    // Owners follow the restored lists; objects in no list were saved without one.
    for (ManagedObject* o : std::as_const(m_positionCheck)) {
        if (o->m_state == ManagedObject::State::Gone)
            continue;
        o->m_owner = nullptr;
        if (o->m_savedOwnerId == 0)
            continue;
        const RelationshipDescription* r = o->entity().ownerRelationship();
        const EntityDescription* ownerEntity = m_model.entity(r->destination);
        auto& owners = objectsOf(*ownerEntity).objects;
        auto it = owners.find(o->m_savedOwnerId);
        if (it != owners.end())
            o->m_owner = it->second.get();
    }
    m_changed.clear();
    m_positionCheck.clear();
    m_undo.removeAllActions();
    Q_EMIT contextDidReset();
}

void ObjectContext::reset(std::unique_ptr<SqliteStore> store)
{
    m_undo.removeAllActions();
    m_changed.clear();
    m_positionCheck.clear();
    // Lists may still hold pointers until they refetch: keep the old objects
    // alive, but cut them off from this context.
    for (auto& eo : m_entities) {
        for (auto& [id, object] : eo.objects) {
            object->m_context = nullptr;
            m_gone.push_back(std::move(object));
        }
        eo = EntityObjects{};
    }
    if (store)
        m_store = std::move(store);
    Q_EMIT contextDidReset();
}

std::unique_ptr<SqliteStore> ObjectContext::takeStore()
{
    return std::move(m_store);
}

} // namespace vorn
