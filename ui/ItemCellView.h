#pragma once

#include <QStyledItemDelegate>

namespace vorn {

// Draws an item row of a document's items list as a cell: the description
// on the first line, quantity and unit price beneath it in a smaller grey,
// the row's total at the right, on a table-cell box. The model gives the
// texts under the display role (description) and the roles below.
class ItemCellView : public QStyledItemDelegate
{
    Q_OBJECT
public:
    enum Role
    {
        DetailRole = Qt::UserRole + 40, // "2 × 45.00"
        TotalRole                       // "90.00"
    };

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace vorn
