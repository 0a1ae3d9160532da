#include "ui/LineNumberRuler.h"

#include "ui/TemplateEditor.h"

#include <QFontDatabase>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QTextBlock>

namespace vorn {

namespace {

// A tile of grey noise at 4 % opacity, laid very faintly over the ruler.
QPixmap grainTile()
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    QRandomGenerator random(7);
    constexpr double opacity = 0.04;
    const int alpha = int(255 * opacity);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const int v = int(random.bounded(256) * opacity);
            image.setPixel(x, y, qRgba(v, v, v, alpha));
        }
    return QPixmap::fromImage(image);
}

} // namespace

LineNumberRuler::LineNumberRuler(TemplateEditor* editor)
    : QWidget(editor), m_editor(editor), m_textColor(QColor::fromRgbF(0.42f, 0.42f, 0.42f)),
      m_alternateTextColor(Qt::white), m_grain(grainTile())
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSizeF(std::max(7.0, font.pointSizeF() - 2));
    m_font = font;
    setAccessibleName(tr("Line numbers"));
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    connect(editor, &QPlainTextEdit::blockCountChanged, this, &LineNumberRuler::updateThickness);
    connect(editor, &QPlainTextEdit::updateRequest, this, &LineNumberRuler::editorUpdated);
    updateThickness();
}

const QStaticText& LineNumberRuler::label(int number)
{
    auto it = m_labels.find(number);
    if (it == m_labels.end()) {
        // Labels are laid out once; scrolling only draws them.
        if (m_labels.size() > 4096)
            m_labels.clear();
        QStaticText text(QString::number(number));
        text.setTextFormat(Qt::PlainText);
        text.prepare(QTransform(), m_font);
        it = m_labels.insert(number, text);
    }
    return *it;
}

void LineNumberRuler::setLabelFont(const QFont& font)
{
    m_labels.clear();
    m_font = font;
    updateThickness();
    update();
}

int LineNumberRuler::requiredThickness() const
{
    const QFontMetricsF metrics(m_font);
    return LineNumberIndex::requiredThickness(
        m_editor->blockCount(), [&metrics](const QString& s) { return metrics.horizontalAdvance(s); });
}

void LineNumberRuler::updateThickness()
{
    const int required = requiredThickness();
    if (m_thickness != 0 && !LineNumberIndex::thicknessNeedsChange(m_thickness, required))
        return;
    m_thickness = required;
    Q_EMIT thicknessChanged(required);
}

void LineNumberRuler::editorUpdated(const QRect& rect, int dy)
{
    // Scrolling moves the painted labels with the text; only the strip
    // that came into view is painted.
    if (dy != 0)
        scroll(0, dy);
    else
        update(0, rect.y(), width(), rect.height());
}

int LineNumberRuler::lineNumberForLocation(qreal y) const
{
    QTextBlock block = m_editor->firstVisibleLine();
    const QPointF offset = m_editor->textOffset();
    while (block.isValid()) {
        const QRectF r = m_editor->lineGeometry(block).translated(offset);
        if (r.top() > height())
            break;
        if (block.isVisible() && y >= r.top() && y < r.bottom())
            return block.blockNumber();
        block = block.next();
    }
    return -1;
}

void LineNumberRuler::mousePressEvent(QMouseEvent* event)
{
    const int line = lineNumberForLocation(event->position().y());
    if (line < 0)
        return;
    if (m_index.markerAtLine(line))
        m_index.removeMarker({line});
    else
        m_index.addMarker({line});
    update();
}

void LineNumberRuler::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect bounds = rect();
    if (m_backgroundColor.isValid()) {
        painter.fillRect(event->rect(), m_backgroundColor);
        painter.setPen(QColor::fromRgbF(0.58f, 0.58f, 0.58f));
        painter.drawLine(QPointF(bounds.right() + 0.5, bounds.top()),
                         QPointF(bounds.right() + 0.5, bounds.bottom()));
    }
    painter.setFont(m_font);
    const QPointF offset = m_editor->textOffset();
    const qreal top = event->rect().top();
    const qreal bottom = event->rect().bottom();
    for (QTextBlock block = m_editor->firstVisibleLine(); block.isValid(); block = block.next()) {
        const QRectF r = m_editor->lineGeometry(block).translated(offset);
        if (r.top() > bottom)
            break;
        if (!block.isVisible() || r.bottom() < top)
            continue;
        // The first line of a wrapped block carries the label.
        const qreal lineHeight = block.layout() && block.layout()->lineCount() > 0
                                     ? block.layout()->lineAt(0).height()
                                     : r.height();
        const int line = block.blockNumber();
        const QStaticText& label = this->label(line + 1);
        const QRectF labelRect = LineNumberIndex::labelRect(width(), label.size(), r.top(), lineHeight);
        const bool marked = m_index.markerAtLine(line).has_value();
        if (marked) {
            const QRectF marker(2, r.top() + 1, width() - 3, lineHeight - 2);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(70, 120, 200));
            painter.drawRoundedRect(marker, 3, 3);
        }
        painter.setPen(marked ? m_alternateTextColor : m_textColor);
        painter.drawStaticText(labelRect.topLeft(), label);
    }
    painter.drawTiledPixmap(event->rect(), m_grain, event->rect().topLeft());
}

} // namespace vorn
