#pragma once

#include <QColor>
#include <QWidget>

namespace vorn {

// A box with a vertical gradient (or a flat fill) and one-device-pixel
// border lines with a white highlight just inside them, the background of
// headers, bars, sheets and cells. The kinds differ only in their colours;
// each has a light and a dark set, and the lines stay one device pixel thick
// at every scale factor.
class QVBox : public QWidget
{
    Q_OBJECT
public:
    enum Kind
    {
        Gray,
        Blue,
        Green,
        Pink,
        Black,
        Sheet,
        Welcome,
        TableCell,
        SmallLine,
        Sidebar,
        DarkSidebar,
        DarkMonoSidebar,
        LightBackground,
        BlueGradient
    };
    Q_ENUM(Kind)

    struct Properties
    {
        QColor fillStartingColor;
        QColor fillEndingColor;
        QColor fillColor;
        QColor topBorderColor;
        QColor bottomBorderColor;
        qreal topInsetAlpha = 0;
        qreal bottomInsetAlpha = 0;
        bool hasTopBorder = false;
        bool hasBottomBorder = false;
        bool hasGradient = false;
        bool hasFillColor = false;
    };

    explicit QVBox(Kind kind = Gray, QWidget* parent = nullptr);

    Kind kind() const { return m_kind; }
    void setKind(Kind kind);
    // The colours of a kind for a scheme and a scale factor.
    static Properties properties(Kind kind, bool dark, qreal scale);
    // Paints a box of the given properties into rect.
    static void paintBox(QPainter& painter, const QRectF& rect, const Properties& p);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    Kind m_kind;
};

} // namespace vorn
