#pragma once

#include "designs/LineNumberIndex.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QPixmap>
#include <QStaticText>
#include <QWidget>

namespace vorn {

class TemplateEditor;

// The line-number ruler beside a template editor: one label per line, a
// marker drawn behind the label of marked lines (a click on a label marks
// or unmarks its line), a faint grain over the whole ruler. It paints only
// the lines in view, follows the editor's scrolling by scrolling its own
// pixels, and widens when the line count needs another digit.
class LineNumberRuler : public QWidget
{
    Q_OBJECT
public:
    explicit LineNumberRuler(TemplateEditor* editor);

    QFont labelFont() const { return m_font; }
    void setLabelFont(const QFont& font);
    QColor textColor() const { return m_textColor; }
    void setTextColor(const QColor& color)
    {
        m_textColor = color;
        update();
    }
    QColor alternateTextColor() const { return m_alternateTextColor; }
    void setAlternateTextColor(const QColor& color)
    {
        m_alternateTextColor = color;
        update();
    }
    // No fill (and no border line) unless set.
    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor& color)
    {
        m_backgroundColor = color;
        update();
    }

    LineNumberIndex& index() { return m_index; }
    int requiredThickness() const;
    // The line (from 0) under a point of the ruler, or -1.
    int lineNumberForLocation(qreal y) const;

    QSize sizeHint() const override { return {requiredThickness(), 0}; }

Q_SIGNALS:
    void thicknessChanged(int thickness);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void updateThickness();
    const QStaticText& label(int number);
    void editorUpdated(const QRect& rect, int dy);

    TemplateEditor* m_editor;
    LineNumberIndex m_index;
    QFont m_font;
    QColor m_textColor;
    QColor m_alternateTextColor;
    QColor m_backgroundColor;
    QPixmap m_grain;
    QHash<int, QStaticText> m_labels;
    int m_thickness = 0;
};

} // namespace vorn
