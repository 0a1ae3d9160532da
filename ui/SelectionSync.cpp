#include "ui/SelectionSync.h"

#include "store/ArrayController.h"
#include "ui/ArrayControllerModel.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>

#include <algorithm>

namespace vorn {

SelectionSync::SelectionSync(ArrayControllerModel& model, QAbstractItemView& view, QObject* parent)
    : QObject(parent), m_model(model), m_view(view)
{
    Q_ASSERT(view.model() == &model);
    connect(&model.controller(), &ArrayController::selectionChanged, this, [this] {
        // While the model catches up with the list, it reports "synced" next.
        if (!m_model.isSyncing())
            controllerToView();
    });
    connect(&model, &ArrayControllerModel::synced, this, &SelectionSync::controllerToView);
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SelectionSync::viewToController);
    controllerToView();
}

void SelectionSync::controllerToView()
{
    QItemSelectionModel* selection = m_view.selectionModel();
    if (!selection)
        return;
    const int lastColumn = m_model.columnCount() - 1;
    QItemSelection wanted;
    int firstRow = -1;
    for (ManagedObject* object : m_model.controller().selectedObjects()) {
        const int row = m_model.rowOf(object);
        if (row < 0)
            continue;
        wanted.select(m_model.index(row, 0), m_model.index(row, lastColumn));
        if (firstRow < 0 || row < firstRow)
            firstRow = row;
    }
    m_applying = true;
    selection->select(wanted, QItemSelectionModel::ClearAndSelect);
    if (firstRow >= 0) {
        const QModelIndex current = selection->currentIndex();
        if (current.row() != firstRow)
            selection->setCurrentIndex(m_model.index(firstRow, std::max(current.column(), 0)),
                                       QItemSelectionModel::NoUpdate);
        m_view.scrollTo(m_model.index(firstRow, 0));
    }
    m_applying = false;
}

void SelectionSync::viewToController()
{
    if (m_applying || m_model.isSyncing())
        return;
    QModelIndexList rows = m_view.selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end(),
              [](const QModelIndex& a, const QModelIndex& b) { return a.row() < b.row(); });
    QList<ManagedObject*> objects;
    for (const QModelIndex& index : std::as_const(rows))
        if (ManagedObject* object = m_model.objectAt(index.row()))
            objects.append(object);
    m_model.controller().setSelectedObjects(objects);
}

} // namespace vorn
