#pragma once

#include "store/ManagedObject.h"
#include "store/ObjectModel.h"
#include "store/Result.h"
#include "store/SqliteStore.h"
#include "store/UndoManager.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace vorn {

class Clock;

using Predicate = std::function<bool(const ManagedObject&)>;

// The one object context of the application: the live objects of the store,
// their pending changes, undo, and saving.
//
// Objects are loaded on demand: fetching an entity loads its rows once; a
// document's items load when its "items" are first read. The context owns
// every object it hands out; pointers stay valid for its lifetime, also for
// deleted objects (so undo can bring them back), until reset().
class ObjectContext : public QObject
{
    Q_OBJECT
public:
    // store may be null for a context that lives in memory only.
    ObjectContext(std::unique_ptr<SqliteStore> store, const Clock& clock,
                  const ObjectModel& model = ObjectModel::vorn(), QObject* parent = nullptr);
    ~ObjectContext() override;

    const ObjectModel& model() const { return m_model; }
    SqliteStore* store() const { return m_store.get(); }
    UndoManager* undoManager() { return &m_undo; }
    const Clock& clock() const { return m_clock; }

    // Inserts a new object with the model defaults (fresh uniqueID, the spare
    // attributes). Returns nullptr for an unknown entity.
    ManagedObject* insertNewObject(const QString& entityName);
    // Marks the object deleted; its cascading relationships go with it and
    // it leaves the relationships of others.
    void deleteObject(ManagedObject* object);

    // Every live object of the entity in store order (creation order),
    // optionally filtered. A read failure of the store yields an error.
    Result<QList<ManagedObject*>> fetchObjects(const QString& entityName, const Predicate& predicate = {});
    // As fetchObjects, logging a failure and answering an empty list.
    QList<ManagedObject*> fetch(const QString& entityName, const Predicate& predicate = {});
    // A fetch stored in the model by name ("defaultDesign").
    QList<ManagedObject*> fetchNamed(const QString& templateName);

    // Asks every registered editor to end editing and commit its value.
    bool commitEditing();
    void registerEditor(QObject* owner, std::function<bool()> commit);

    bool hasChanges() const;
    // Writes every pending change in one transaction. On failure nothing is
    // written and the changes stay pending.
    Status save();
    // Discards all pending changes and the undo history.
    void rollback();
    // Forgets every object and the undo history; the next fetch reads the store
    // anew. With a store given, the context switches to it.
    void reset(std::unique_ptr<SqliteStore> store = {});
    // Gives up the store file (before it is replaced on disk).
    std::unique_ptr<SqliteStore> takeStore();

Q_SIGNALS:
    void objectsInserted(const QList<vorn::ManagedObject*>& objects);
    void objectsDeleted(const QList<vorn::ManagedObject*>& objects);
    void objectChanged(vorn::ManagedObject* object, const QString& key);
    void didSave();
    // A save to the store failed (nothing of it was written; the changes stay pending).
    void saveFailed(const vorn::Error& error);
    // Every object was dropped or restored: lists must fetch again.
    void contextDidReset();

private:
    friend class ManagedObject;
    struct EntityObjects
    {
        std::map<qint64, std::unique_ptr<ManagedObject>> objects;
        bool allLoaded = false;
        qint64 nextId = 0;
    };

    EntityObjects& objectsOf(const EntityDescription& entity);
    ManagedObject* materialize(const EntityDescription& entity, SqliteStore::Row&& row);
    Status loadAll(const EntityDescription& entity);
    void ensureListLoaded(ManagedObject* object, int relationshipIndex);

    void changeValue(ManagedObject* object, int index, QVariant value);
    void changeList(ManagedObject* object, int relationshipIndex, const QList<ManagedObject*>& list);
    void deleteObject(ManagedObject* object, bool fromOwner);
    void undelete(ManagedObject* object);
    void markChanged(ManagedObject* object) { m_changed.insert(object); }
    // Positions found are kept in positions, a whole list at a time, so that
    // asking for every member of a long list stays linear.
    using PositionCache = QHash<const ManagedObject*, int>;
    qint64 ownerIdOf(const ManagedObject* object, int* position, PositionCache& positions) const;

    const ObjectModel& m_model;
    const Clock& m_clock;
    std::unique_ptr<SqliteStore> m_store;
    UndoManager m_undo;
    std::vector<EntityObjects> m_entities;
    QSet<ManagedObject*> m_changed;
    QSet<ManagedObject*> m_positionCheck;
    std::vector<std::unique_ptr<ManagedObject>> m_gone;
    std::vector<std::pair<QObject*, std::function<bool()>>> m_editors;
};

} // namespace vorn
