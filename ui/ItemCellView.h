#pragma once

#include <QStyledItemDelegate>

namespace vorn {

// The title cell of a document's items list: the item's title on the first
// line, its subtitle (the second line of the item) beneath it in a smaller
// grey. The model gives the title under the display and edit roles and the
// subtitle under SubtitleRole, and takes both back as one edit under
// TitleAndSubtitleRole. The editor holds both lines; the title takes the
// keyboard first, Tab moves to the subtitle.
class ItemCellView : public QStyledItemDelegate
{
    Q_OBJECT
public:
    enum Role
    {
        SubtitleRole = Qt::UserRole + 40,
        // Both lines as one edit (a list of title and subtitle), one undo step.
        TitleAndSubtitleRole
    };

    using QStyledItemDelegate::QStyledItemDelegate;

    // The height of a row holding both lines in a view of this font.
    static int rowHeight(const QFont& font);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace vorn
