#pragma once

#include <QList>
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

// The arithmetic of the line-number ruler beside a template editor: where
// lines start (built when first asked for and dropped on every change of
// the text), which line a character is on, how wide the ruler must be, the
// markers by line, and where a label goes.
class LineNumberIndex
{
public:
    // The text changed: the line starts are built anew when next needed.
    void invalidate() { m_built = false; }
    bool isBuilt() const { return m_built; }
    // The index at which each line starts; a text ending in a line break
    // has one more, empty, line.
    const QList<int>& lineIndices(const QString& text);
    static QList<int> calculateLines(const QString& text);

    // The line (from 0) of a character, by binary search in line starts.
    static int lineNumberForCharacterIndex(const QList<int>& lineIndices, int index);

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

    void setMarkers(const QList<LineMarker>& markers);
    void addMarker(const LineMarker& marker) { m_markers.insert(marker.lineNumber, marker); }
    void removeMarker(const LineMarker& marker) { m_markers.remove(marker.lineNumber); }
    std::optional<LineMarker> markerAtLine(int line) const;
    const QMap<int, LineMarker>& markers() const { return m_markers; }

private:
    QList<int> m_lineIndices;
    QMap<int, LineMarker> m_markers;
    bool m_built = false;
};

} // namespace vorn
