#include "ui/ItemCellView.h"

#include "ui/QVBox.h"
#include "ui/VornPalette.h"

#include <QPainter>

namespace vorn {

void ItemCellView::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    painter->save();
    const bool dark = VornPalette::isDark(option.widget);
    const bool selected = option.state & QStyle::State_Selected;
    if (selected)
        painter->fillRect(option.rect, option.palette.highlight());
    else
        QVBox::paintBox(*painter, QRectF(option.rect),
                        QVBox::properties(QVBox::TableCell, dark, painter->device()->devicePixelRatioF()));
    const QRect area = option.rect.adjusted(8, 4, -8, -4);
    const QColor text = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    QFont small = option.font;
    small.setPointSizeF(option.font.pointSizeF() * 0.85);

    const QString total = index.data(TotalRole).toString();
    QFont bold = option.font;
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(text);
    const int totalWidth = QFontMetrics(bold).horizontalAdvance(total) + 8;
    painter->drawText(area, Qt::AlignRight | Qt::AlignVCenter, total);

    const QRect left = area.adjusted(0, 0, -totalWidth, 0);
    painter->setFont(option.font);
    const QFontMetrics fm(option.font);
    painter->drawText(left.adjusted(0, 0, 0, -left.height() / 2), Qt::AlignLeft | Qt::AlignBottom,
                      fm.elidedText(index.data(Qt::DisplayRole).toString(), Qt::ElideRight, left.width()));
    painter->setFont(small);
    QColor detail = text;
    detail.setAlphaF(0.65f);
    painter->setPen(detail);
    painter->drawText(left.adjusted(0, left.height() / 2, 0, 0), Qt::AlignLeft | Qt::AlignTop,
                      index.data(DetailRole).toString());
    painter->restore();
}

QSize ItemCellView::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {200, option.fontMetrics.height() * 2 + 14};
}

} // namespace vorn
