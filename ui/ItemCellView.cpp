#include "ui/ItemCellView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QVBoxLayout>

namespace vorn {

namespace {

constexpr int verticalPadding = 3;
const char* const editorProperty = "vornItemCellEditor";

QFont subtitleFont(const QFont& font)
{
    QFont small = font;
    small.setPointSizeF(font.pointSizeF() * 0.85);
    return small;
}

QLineEdit* field(QWidget* editor, int line)
{
    const auto fields = editor->findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
    return fields.size() == 2 ? fields[line] : nullptr;
}

} // namespace

int ItemCellView::rowHeight(const QFont& font)
{
    return QFontMetrics(font).height() + QFontMetrics(subtitleFont(font)).height() + 2 * verticalPadding;
}

void ItemCellView::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const QString title = opt.text.simplified();
    const QString subtitle = index.data(SubtitleRole).toString().simplified();
    opt.text.clear();
    // The style draws the cell's background, selection and focus; the two
    // lines are drawn here.
    const QStyle* style = opt.widget ? opt.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);

    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, opt.widget) + 1;
    const QRect area = opt.rect.adjusted(margin, 0, -margin, 0);
    const QPalette::ColorGroup group = !(opt.state & QStyle::State_Enabled) ? QPalette::Disabled
                                       : (opt.state & QStyle::State_Active) ? QPalette::Active
                                                                            : QPalette::Inactive;
    const QColor text = opt.palette.color(
        group, opt.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text);
    const QFontMetrics fm(opt.font);
    painter->save();
    painter->setPen(text);
    painter->setFont(opt.font);
    if (subtitle.isEmpty()) {
        painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                          fm.elidedText(title, Qt::ElideRight, area.width()));
    } else {
        const QFont small = subtitleFont(opt.font);
        const QFontMetrics sfm(small);
        const int top = area.top() + (area.height() - fm.height() - sfm.height()) / 2;
        painter->drawText(QRect(area.left(), top, area.width(), fm.height()),
                          Qt::AlignLeft | Qt::AlignVCenter,
                          fm.elidedText(title, Qt::ElideRight, area.width()));
        QColor grey = text;
        grey.setAlphaF(0.6f);
        painter->setPen(grey);
        painter->setFont(small);
        painter->drawText(QRect(area.left(), top + fm.height(), area.width(), sfm.height()),
                          Qt::AlignLeft | Qt::AlignVCenter,
                          sfm.elidedText(subtitle, Qt::ElideRight, area.width()));
    }
    painter->restore();
}

QSize ItemCellView::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QFontMetrics fm(option.font);
    return {fm.horizontalAdvance(index.data(Qt::DisplayRole).toString()) + 12, rowHeight(option.font)};
}

QWidget* ItemCellView::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex&) const
{
    auto* editor = new QWidget(parent);
    editor->setProperty(editorProperty, true);
    editor->setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(editor);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* title = new QLineEdit(editor);
    auto* subtitle = new QLineEdit(editor);
    title->setObjectName(QStringLiteral("itemTitleEditor"));
    subtitle->setObjectName(QStringLiteral("itemSubtitleEditor"));
    title->setAccessibleName(tr("Title"));
    subtitle->setAccessibleName(tr("Subtitle"));
    subtitle->setFont(subtitleFont(option.font));
    for (QLineEdit* line : {title, subtitle}) {
        line->setFrame(false);
        line->installEventFilter(const_cast<ItemCellView*>(this));
        layout->addWidget(line);
    }
    // The view sends the key that opened the editor to the title.
    editor->setFocusProxy(title);
    return editor;
}

void ItemCellView::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    QLineEdit* title = field(editor, 0);
    if (!title)
        return QStyledItemDelegate::setEditorData(editor, index);
    title->setText(index.data(Qt::EditRole).toString());
    field(editor, 1)->setText(index.data(SubtitleRole).toString());
}

void ItemCellView::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    QLineEdit* title = field(editor, 0);
    if (!title)
        return QStyledItemDelegate::setModelData(editor, model, index);
    // One edit of the cell is one undoable change of the lines that changed.
    model->setData(index, QStringList{title->text(), field(editor, 1)->text()}, TitleAndSubtitleRole);
}

void ItemCellView::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex&) const
{
    editor->setGeometry(option.rect);
}

bool ItemCellView::eventFilter(QObject* object, QEvent* event)
{
    auto* line = qobject_cast<QLineEdit*>(object);
    QWidget* editor = line ? line->parentWidget() : nullptr;
    if (!editor || !editor->property(editorProperty).toBool())
        return QStyledItemDelegate::eventFilter(object, event);
    // The lines' keys and focus act for the whole editor; the focused line
    // stands for it, so the view sees the editor as focused.
    if (event->type() == QEvent::FocusIn)
        editor->setFocusProxy(line);
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        QLineEdit* title = field(editor, 0);
        QLineEdit* subtitle = field(editor, 1);
        if (key == Qt::Key_Tab && line == title) {
            subtitle->setFocus(Qt::TabFocusReason);
            return true;
        }
        if (key == Qt::Key_Backtab && line == subtitle) {
            title->setFocus(Qt::BacktabFocusReason);
            return true;
        }
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Q_EMIT commitData(editor);
            Q_EMIT closeEditor(editor, QAbstractItemDelegate::NoHint);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

} // namespace vorn
