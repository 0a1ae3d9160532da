#include "ui/Popover.h"

#include <QGuiApplication>
#include <QScreen>

namespace vorn {

Popover::Popover(QWidget* parent) : QFrame(parent, Qt::Popup)
{
    setFrameShape(QFrame::StyledPanel);
    setAttribute(Qt::WA_WindowPropagation);
}

void Popover::showBelow(QWidget* anchor)
{
    if (!anchor)
        anchor = m_anchor;
    adjustSize();
    QPoint at = anchor ? anchor->mapToGlobal(QPoint(0, anchor->height())) : QPoint(100, 100);
    // Kept on the screen, flipped above the button when there is no room below.
    if (QScreen* screen = anchor ? anchor->screen() : QGuiApplication::primaryScreen()) {
        const QRect area = screen->availableGeometry();
        if (at.y() + height() > area.bottom() && anchor)
            at.setY(anchor->mapToGlobal(QPoint(0, 0)).y() - height());
        at.setX(qBound(area.left(), at.x(), qMax(area.left(), area.right() - width())));
        at.setY(qMax(area.top(), at.y()));
    }
    move(at);
    show();
    raise();
    activateWindow();
}

void Popover::close()
{
    m_closing = true;
    hide();
    m_closing = false;
}

void Popover::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    if (!m_closing)
        Q_EMIT dismissed();
}

} // namespace vorn
