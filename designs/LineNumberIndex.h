#pragma once

#include <QMap>
#include <QRectF>
#include <QString>

#include <functional>
#include <optional>

namespace vorn {

// A marker of the line-number ruler: a line (from 0) drawn with the marker
// image and the label in the alternate colour.
struct LineMarker
{
    int lineNumber = 0;
    friend bool operator==(const LineMarker&, const LineMarker&) = default;
};

// The arithmetic of the line-number ruler beside a template editor: how
// wide the ruler must be, where a label goes, and the markers by line.
class LineNumberIndex
{
public:
    // The ruler's width for a number of lines: room for that many digits of
    // "8" in the label font (measured by textWidth) and 5 points each side,
    // never below 22, rounded up to a whole point.
    static int requiredThickness(int lineCount, const std::function<qreal(const QString&)>& textWidth);
    // Whether the ruler should take the new thickness (it differs by more
    // than a point; smaller changes would only make the text jump).
    static bool thicknessNeedsChange(qreal current, qreal required) { return qAbs(current - required) > 1.0; }

    // A label right-aligned 5 points from the ruler's right edge, centred on
    // its line.
    static QRectF labelRect(qreal rulerWidth, const QSizeF& labelSize, qreal lineTop, qreal lineHeight);

    void addMarker(const LineMarker& marker) { m_markers.insert(marker.lineNumber, marker); }
    void removeMarker(const LineMarker& marker) { m_markers.remove(marker.lineNumber); }
    std::optional<LineMarker> markerAtLine(int line) const;

private:
    QMap<int, LineMarker> m_markers;
};

} // namespace vorn
