#include "ui/QVLinkButton.h"

#include <QDesktopServices>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace vorn {

QVLinkButton::QVLinkButton(const QString& text, const QUrl& url, QWidget* parent)
    : QAbstractButton(parent), m_url(url)
{
    setText(text);
    setAccessibleName(text);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (!m_url.isValid())
            return;
        if (m_opener)
            m_opener(m_url);
        else
            QDesktopServices::openUrl(m_url);
    });
}

QSize QVLinkButton::sizeHint() const
{
    const QSize text = fontMetrics().size(Qt::TextSingleLine, this->text());
    return text + QSize(4, 4);
}

void QVLinkButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QFont f = font();
    f.setUnderline(underMouse() || hasFocus());
    painter.setFont(f);
    const QPalette::ColorRole role = isDown() ? QPalette::LinkVisited : QPalette::Link;
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, role));
    painter.drawText(rect().adjusted(2, 2, -2, -2), Qt::AlignLeft | Qt::AlignVCenter, text());
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

} // namespace vorn
