#include "ui/QVSplitView.h"

#include "ui/VornPalette.h"

#include <QPainter>

namespace vorn {

namespace {

class FlatHandle : public QSplitterHandle
{
public:
    using QSplitterHandle::QSplitterHandle;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().window());
        const QColor color = QVSplitView::dividerColor(VornPalette::isDark(this));
        // The visible line sits in the middle of the grip.
        if (orientation() == Qt::Horizontal)
            painter.fillRect(QRectF(width() / 2, 0, 1, height()), color);
        else
            painter.fillRect(QRectF(0, height() / 2, width(), 1), color);
    }
};

} // namespace

QVSplitView::QVSplitView(Qt::Orientation orientation, QWidget* parent) : QSplitter(orientation, parent)
{
    setHandleWidth(5);
    setChildrenCollapsible(false);
}

QColor QVSplitView::dividerColor(bool dark)
{
    return VornPalette::white(dark ? 0.05 : 0.62);
}

QSplitterHandle* QVSplitView::createHandle()
{
    return new FlatHandle(orientation(), this);
}

} // namespace vorn
