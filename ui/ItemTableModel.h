#pragma once

#include "ui/ArrayControllerModel.h"

namespace vorn {

class AppDelegate;

// The lines of the current document as an editable table: title, subtitle
// (also under ItemCellView::SubtitleRole of the title, for the cell that
// shows both), quantity, unit, unit price, the three taxes and the net amount. An edited
// cell goes through the core (one undoable action, recalculated at once);
// rows are reordered by dragging with the core's drop rules.
class ItemTableModel : public ArrayControllerModel
{
    Q_OBJECT
public:
    enum Column
    {
        TitleColumn,
        SubtitleColumn,
        QuantityColumn,
        UnitColumn,
        PriceColumn,
        Tax1Column,
        Tax2Column,
        Tax3Column,
        NetColumn,
        ColumnCount
    };
    static inline const QString movedRowsMimeType = QStringLiteral("application/x-vorn-moved-rows");

    explicit ItemTableModel(AppDelegate& app, QObject* parent = nullptr);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction | Qt::CopyAction; }
    Qt::DropActions supportedDragActions() const override { return Qt::MoveAction | Qt::CopyAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

    static QString keyOfColumn(int column);

protected:
    bool showsKey(const QString& key) const override;

private:
    AppDelegate& m_app;
};

} // namespace vorn
