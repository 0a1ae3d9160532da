#include "ui/DocumentListView.h"

#include "ui/DocumentListModel.h"

#include <QApplication>
#include <QDate>
#include <QHeaderView>
#include <QLocale>
#include <QPainter>
#include <QStyledItemDelegate>

namespace vorn {

namespace {

constexpr int kCellPadding = 8;

// Cells with room on both sides of their text; rows are selected as a whole,
// so the current cell gets no focus frame of its own.
class PaddedItemDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem opt = option;
        initStyleOption(&opt, index);
        opt.state &= ~QStyle::State_HasFocus;
        const QWidget* widget = option.widget;
        QStyle* style = widget ? widget->style() : QApplication::style();
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &opt, painter, widget);
        if (index.column() == DocumentListModel::StatusColumn) {
            // The stamp: a coloured mark, filled for invoices that are sent or settled.
            const QString stamp = index.data(DocumentListModel::StampRole).toString();
            const QColor color = DocumentListModel::stampColor(stamp);
            const int d = qMin(opt.rect.height(), opt.rect.width()) - 12;
            const QRect mark(opt.rect.center().x() - d / 2, opt.rect.center().y() - d / 2, d, d);
            painter->save();
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(QPen(color, 2));
            painter->setBrush(stamp == QLatin1String("StampM0") ? Qt::NoBrush : QBrush(color));
            if (stamp == QLatin1String("StampM5"))
                painter->drawRoundedRect(mark, 2, 2);
            else
                painter->drawEllipse(mark);
            painter->restore();
            return;
        }
        // Numbers differ at their end ("INV-2026-1001"): a short cell keeps both ends.
        if (index.column() == DocumentListModel::NumberColumn)
            opt.textElideMode = Qt::ElideMiddle;
        opt.rect.adjust(kCellPadding - 3, 0, -(kCellPadding - 3), 0);
        style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, widget);
    }

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(2 * (kCellPadding - 3), 0);
    }
};

} // namespace

DocumentListView::DocumentListView(QWidget* parent) : QTableView(parent)
{
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideRight);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 12);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setMinimumSectionSize(24);
    // The list is narrow: the client column gives way rather than scrolling sideways.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    horizontalHeader()->setStyleSheet(
        QStringLiteral("QHeaderView::section { padding-left: %1px; padding-right: %1px; }")
            .arg(kCellPadding - 2));
    setItemDelegate(new PaddedItemDelegate(this));
}

void DocumentListView::setModel(QAbstractItemModel* model)
{
    QTableView::setModel(model);
    if (!model || model->columnCount() != DocumentListModel::ColumnCount)
        return;
    // The client takes what room is left; the other columns fit their text.
    QHeaderView* header = horizontalHeader();
    const QFontMetrics metrics = fontMetrics();
    const auto width = [&metrics](const QString& sample) { return metrics.horizontalAdvance(sample) + 28; };
    // The list pane is narrow: cells just fit their text, the padding and
    // the style's own text margins, with a pixel to spare for rounding.
    const auto tight = [&metrics](const QString& sample) {
        return metrics.horizontalAdvance(sample) + 2 * (kCellPadding - 3) + 8;
    };
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->resizeSection(DocumentListModel::NumberColumn, tight(QStringLiteral("INV-2026")));
    header->resizeSection(DocumentListModel::TitleColumn, width(QStringLiteral("Consulting, November 2026")));
    // The date as the model writes it, in the locale's short form, at its
    // widest month ("12/28/26", "28/12/2026", "28 Dec 2026").
    int dateWidth = 0;
    for (int month = 1; month <= 12; ++month)
        dateWidth = qMax(dateWidth, tight(QLocale().toString(QDate(2026, month, 28), QLocale::ShortFormat)));
    header->resizeSection(DocumentListModel::DateColumn, dateWidth);
    header->resizeSection(DocumentListModel::AmountColumn, tight(QStringLiteral("00,000.00 $")));
    header->setSectionResizeMode(DocumentListModel::StatusColumn, QHeaderView::Fixed);
    header->resizeSection(DocumentListModel::StatusColumn, 22);
}

void DocumentListView::setPlaceholderText(const QString& text)
{
    if (text == m_placeholder)
        return;
    m_placeholder = text;
    viewport()->update();
}

void DocumentListView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (m_placeholder.isEmpty() || (model() && model()->rowCount() > 0))
        return;
    QPainter painter(viewport());
    QFont font = painter.font();
    font.setPointSizeF(font.pointSizeF() * 1.15);
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap,
                     m_placeholder);
}

} // namespace vorn
