#include "ui/VornPalette.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace vorn::VornPalette {

bool isDark(const QWidget* widget)
{
    const QPalette palette = widget ? widget->palette() : QApplication::palette();
    return palette.color(QPalette::Window).lightnessF() < 0.5;
}

QColor white(qreal level, qreal alpha)
{
    QColor c = QColor::fromRgbF(float(level), float(level), float(level));
    c.setAlphaF(float(alpha));
    return c;
}

} // namespace vorn::VornPalette
