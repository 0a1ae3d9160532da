#include "ui/QVBox.h"

#include "ui/VornPalette.h"

#include <QEvent>
#include <QPainter>
#include <QtMath>

namespace vorn {

using VornPalette::white;

QVBox::QVBox(Kind kind, QWidget* parent) : QWidget(parent), m_kind(kind)
{
    setAttribute(Qt::WA_OpaquePaintEvent, kind != SmallLine);
}

void QVBox::setKind(Kind kind)
{
    m_kind = kind;
    update();
}

QVBox::Properties QVBox::properties(Kind kind, bool dark, qreal scale)
{
    const bool hiDpi = scale > 1.0;
    Properties p;
    p.hasTopBorder = p.hasBottomBorder = p.hasGradient = true;
    p.topInsetAlpha = dark ? 0.06 : 0.6;
    p.bottomInsetAlpha = dark ? 0.0 : 0.25;
    const auto gradient = [&](QColor top, QColor bottom, QColor topLine, QColor bottomLine) {
        p.fillStartingColor = top;
        p.fillEndingColor = bottom;
        p.topBorderColor = topLine;
        p.bottomBorderColor = bottomLine;
        p.fillColor = bottom;
    };
    switch (kind) {
    case Gray:
        if (dark)
            gradient(white(0.30), white(0.22), white(0.10, hiDpi ? 0.9 : 0.7), white(0.12));
        else
            gradient(white(0.993), white(0.741), white(0.226, hiDpi ? 0.9 : 0.7), white(0.355));
        break;
    case Blue:
        gradient(dark ? QColor(48, 78, 120) : QColor(222, 234, 250),
                 dark ? QColor(30, 52, 88) : QColor(176, 202, 238),
                 dark ? QColor(14, 26, 46) : QColor(92, 126, 176),
                 dark ? QColor(16, 30, 52) : QColor(112, 146, 194));
        break;
    case Green:
        gradient(dark ? QColor(52, 96, 58) : QColor(226, 245, 224),
                 dark ? QColor(32, 68, 38) : QColor(180, 222, 176),
                 dark ? QColor(16, 38, 20) : QColor(96, 150, 92),
                 dark ? QColor(18, 42, 22) : QColor(118, 170, 112));
        break;
    case Pink:
        gradient(dark ? QColor(110, 52, 74) : QColor(252, 230, 238),
                 dark ? QColor(80, 32, 52) : QColor(238, 186, 206),
                 dark ? QColor(44, 14, 26) : QColor(186, 106, 138),
                 dark ? QColor(48, 16, 30) : QColor(204, 130, 160));
        break;
    case Black:
        gradient(white(0.24), white(0.08), white(0.02), white(0.0));
        p.topInsetAlpha = 0.12;
        p.bottomInsetAlpha = 0.0;
        break;
    case Sheet:
        gradient(dark ? white(0.20) : white(0.96), dark ? white(0.16) : white(0.90),
                 dark ? white(0.06) : white(0.60), dark ? white(0.08) : white(0.70));
        break;
    case Welcome:
        gradient(dark ? QColor(40, 44, 52) : QColor(250, 251, 253),
                 dark ? QColor(26, 28, 34) : QColor(226, 230, 238), dark ? white(0.05) : white(0.70),
                 dark ? white(0.05) : white(0.62));
        break;
    case TableCell:
        gradient(dark ? white(0.19) : white(1.0), dark ? white(0.15) : white(0.95),
                 dark ? white(0.10) : white(0.86), dark ? white(0.09) : white(0.80));
        p.hasTopBorder = false;
        break;
    case SmallLine:
        p = Properties{};
        p.hasTopBorder = true;
        p.topBorderColor = dark ? white(0.08) : white(0.62);
        p.topInsetAlpha = dark ? 0.08 : 0.8;
        break;
    case Sidebar:
    case LightBackground:
        p = Properties{};
        p.hasFillColor = true;
        p.fillColor = kind == Sidebar ? (dark ? QColor(40, 43, 48) : QColor(225, 230, 237))
                                      : (dark ? white(0.17) : white(0.97));
        break;
    case DarkSidebar:
    case DarkMonoSidebar:
        p = Properties{};
        p.hasFillColor = true;
        p.fillColor = kind == DarkSidebar ? QColor(dark ? 24 : 52, dark ? 27 : 58, dark ? 33 : 68)
                                          : white(dark ? 0.10 : 0.22);
        break;
    case BlueGradient:
        p = Properties{};
        p.hasGradient = true;
        p.fillStartingColor = dark ? QColor(38, 64, 104) : QColor(110, 156, 222);
        p.fillEndingColor = dark ? QColor(20, 36, 64) : QColor(56, 104, 178);
        break;
    }
    return p;
}

namespace {

// A line one device pixel thick on the row-th whole device row of rect,
// counted from its top (fromTop) or upwards from its bottom. Drawn in device
// pixels, so it neither blurs nor thickens at fractional scale factors.
void pixelLine(QPainter& painter, const QRectF& rect, int row, bool fromTop, const QColor& color)
{
    const qreal scale = painter.device()->devicePixelRatioF();
    const QRectF r = painter.worldTransform().mapRect(rect);
    // Whole device rows inside the rectangle: its edges snap inwards.
    const qreal top = std::ceil(r.top() * scale - 0.001);
    const qreal bottom = std::floor(r.bottom() * scale + 0.001);
    const qreal y = fromTop ? top + row : bottom - 1 - row;
    if (y < top || y >= bottom)
        return;
    const qreal left = std::floor(r.left() * scale);
    const qreal right = std::ceil(r.right() * scale);
    painter.save();
    painter.setWorldTransform(QTransform::fromScale(1.0 / scale, 1.0 / scale));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(QRectF(left, y, right - left, 1.0), color);
    painter.restore();
}

} // namespace

void QVBox::paintBox(QPainter& painter, const QRectF& rect, const Properties& p)
{
    if (p.hasGradient) {
        // Vertical: the starting colour at the top.
        QLinearGradient g(rect.topLeft(), rect.bottomLeft());
        g.setColorAt(0, p.fillStartingColor);
        g.setColorAt(1, p.fillEndingColor);
        painter.fillRect(rect, g);
    } else if (p.hasFillColor) {
        painter.fillRect(rect, p.fillColor);
    }
    if (p.hasTopBorder) {
        pixelLine(painter, rect, 0, true, p.topBorderColor);
        pixelLine(painter, rect, 1, true, white(1.0, p.topInsetAlpha));
    }
    if (p.hasBottomBorder) {
        pixelLine(painter, rect, 0, false, p.bottomBorderColor);
        pixelLine(painter, rect, 1, false, white(1.0, p.bottomInsetAlpha));
    }
}

void QVBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintBox(painter, QRectF(rect()), properties(m_kind, VornPalette::isDark(this), devicePixelRatioF()));
}

void QVBox::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        update();
    QWidget::changeEvent(event);
}

} // namespace vorn
