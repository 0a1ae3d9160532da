#include "ui/QVShadowTextField.h"

#include "ui/VornPalette.h"

#include <QPainter>

namespace vorn {

QVShadowTextField::QVShadowTextField(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

void QVShadowTextField::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const bool dark = VornPalette::isDark(this);
    const QRect area = contentsRect().adjusted(margin(), margin(), -margin() - 1, -margin() - 1);
    const int flags = int(alignment()) | (wordWrap() ? Qt::TextWordWrap : 0);
    painter.setPen(dark ? VornPalette::white(0.0, 0.8) : VornPalette::white(1.0, 0.9));
    painter.drawText(area.translated(0, 1), flags, text());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(area, flags, text());
}

} // namespace vorn
