#include "ui/ArrayControllerModel.h"

#include "store/ArrayController.h"

#include <algorithm>

namespace vorn {

namespace {

bool sameObjects(QList<ManagedObject*> a, QList<ManagedObject*> b)
{
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    return a == b;
}

} // namespace

ArrayControllerModel::ArrayControllerModel(ArrayController& controller, QObject* parent)
    : QAbstractTableModel(parent), m_controller(controller), m_rows(controller.arrangedObjects())
{
    connect(&m_controller, &ArrayController::arrangedObjectsChanged, this, &ArrayControllerModel::sync);
    watchContext();
}

int ArrayControllerModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

ManagedObject* ArrayControllerModel::objectAt(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows[row] : nullptr;
}

int ArrayControllerModel::rowOf(const ManagedObject* object) const
{
    if (!object)
        return -1;
    // Edits arrive one attribute at a time, for every line a recalculation
    // touches: rows are found through an index built once per list.
    if (m_rowIndex.isEmpty() && !m_rows.isEmpty()) {
        m_rowIndex.reserve(m_rows.size());
        for (int i = 0; i < m_rows.size(); ++i)
            m_rowIndex.insert(m_rows[i], i);
    }
    return m_rowIndex.value(object, -1);
}

bool ArrayControllerModel::showsKey(const QString& key) const
{
    Q_UNUSED(key);
    return true;
}

void ArrayControllerModel::sync()
{
    watchContext();
    // Only pointers are compared here: after the context is gone the old
    // rows may point at destroyed objects.
    const QList<ManagedObject*> next = m_controller.arrangedObjects();
    if (next == m_rows) {
        Q_EMIT synced();
        return;
    }
    m_syncing = true;
    const qsizetype oldSize = m_rows.size();
    const qsizetype newSize = next.size();
    qsizetype prefix = 0;
    while (prefix < oldSize && prefix < newSize && m_rows[prefix] == next[prefix])
        ++prefix;
    qsizetype suffix = 0;
    while (suffix < oldSize - prefix && suffix < newSize - prefix &&
           m_rows[oldSize - 1 - suffix] == next[newSize - 1 - suffix])
        ++suffix;

    if (prefix + suffix == oldSize) {
        beginInsertRows({}, int(prefix), int(prefix + newSize - oldSize - 1));
        m_rows = next;
        m_rowIndex.clear();
        endInsertRows();
    } else if (prefix + suffix == newSize) {
        beginRemoveRows({}, int(prefix), int(prefix + oldSize - newSize - 1));
        m_rows = next;
        m_rowIndex.clear();
        endRemoveRows();
    } else if (oldSize == newSize && sameObjects(m_rows, next)) {
        Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
        const QModelIndexList before = persistentIndexList();
        QModelIndexList after;
        after.reserve(before.size());
        for (const QModelIndex& i : before)
            after.append(index(int(next.indexOf(m_rows[i.row()])), i.column()));
        m_rows = next;
        m_rowIndex.clear();
        changePersistentIndexList(before, after);
        Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
    } else {
        beginResetModel();
        m_rows = next;
        m_rowIndex.clear();
        endResetModel();
    }
    m_syncing = false;
    Q_EMIT synced();
}

void ArrayControllerModel::watchContext()
{
    ObjectContext* context = m_controller.context();
    if (context == m_context)
        return;
    disconnect(m_changeConnection);
    disconnect(m_destroyConnection);
    m_context = context;
    if (!context)
        return;
    m_changeConnection =
        connect(context, &ObjectContext::objectChanged, this, &ArrayControllerModel::objectChanged);
    // The controller empties its lists when the context goes, without telling.
    m_destroyConnection = connect(context, &QObject::destroyed, this, &ArrayControllerModel::sync);
}

void ArrayControllerModel::objectChanged(ManagedObject* object, const QString& key)
{
    const int row = rowOf(object);
    if (row < 0 || !showsKey(key))
        return;
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

} // namespace vorn
