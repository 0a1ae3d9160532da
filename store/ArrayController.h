#pragma once

#include "store/ObjectContext.h"

#include <QList>
#include <QObject>

namespace vorn {

struct SortDescriptor
{
    // An attribute key, or storeOrder for creation order.
    QString key;
    bool ascending = true;

    static QString storeOrder() { return QStringLiteral("@storeOrder"); }
};

// A list of objects as a window shows it: content, filter, sort order, the
// arranged result and the selection. Either it manages the objects of an
// entity (following inserts and deletes in the context), or its content is
// set from outside (a document's items).
class ArrayController : public QObject
{
    Q_OBJECT
public:
    explicit ArrayController(QObject* parent = nullptr);

    // Manage every object of the entity in the context (null to detach).
    void setEntity(ObjectContext* context, const QString& entityName);
    const QString& entityName() const { return m_entityName; }
    ObjectContext* context() const { return m_context; }
    // Reads the entity's objects from the context anew.
    void fetch();

    void setContent(const QList<ManagedObject*>& content);
    const QList<ManagedObject*>& content() const { return m_content; }

    void setFilterPredicate(Predicate predicate);
    void setSortDescriptors(QList<SortDescriptor> descriptors);
    const QList<SortDescriptor>& sortDescriptors() const { return m_sort; }
    // Re-sorts and re-filters whenever a sorted or filtered object changes.
    void setAutomaticallyRearrangesObjects(bool enabled) { m_autoRearrange = enabled; }
    void setAvoidsEmptySelection(bool enabled) { m_avoidsEmptySelection = enabled; }
    void setSelectsInsertedObjects(bool enabled) { m_selectsInserted = enabled; }

    void rearrangeObjects();
    const QList<ManagedObject*>& arrangedObjects() const { return m_arranged; }
    int count() const { return int(m_arranged.size()); }

    QList<int> selectionIndexes() const { return m_selection; }
    void setSelectionIndexes(QList<int> indexes);
    QList<ManagedObject*> selectedObjects() const;
    void setSelectedObjects(const QList<ManagedObject*>& objects);
    ManagedObject* selectedObject() const;
    int selectionIndex() const { return m_selection.isEmpty() ? -1 : m_selection.first(); }

    // Adds to the content (and the arranged list, at its sorted place or the
    // end), selecting it when selectsInsertedObjects is on.
    void addObject(ManagedObject* object);
    void insertObject(ManagedObject* object, int arrangedIndex);
    void removeObject(ManagedObject* object);

    // Sorts objects by the descriptors (stable).
    static void sort(QList<ManagedObject*>& objects, const QList<SortDescriptor>& descriptors);

Q_SIGNALS:
    void arrangedObjectsChanged();
    void selectionChanged();

private:
    void contextInserted(const QList<ManagedObject*>& objects);
    void contextDeleted(const QList<ManagedObject*>& objects);
    void contextObjectChanged(ManagedObject* object, const QString& key);
    void arrange(const QList<ManagedObject*>& keepSelected);
    void fixSelection();

    ObjectContext* m_context = nullptr;
    QString m_entityName;
    QList<ManagedObject*> m_content;
    QList<ManagedObject*> m_arranged;
    QList<int> m_selection;
    Predicate m_filter;
    QList<SortDescriptor> m_sort;
    bool m_autoRearrange = false;
    bool m_avoidsEmptySelection = false;
    bool m_selectsInserted = true;
    QList<QMetaObject::Connection> m_connections;
};

} // namespace vorn
