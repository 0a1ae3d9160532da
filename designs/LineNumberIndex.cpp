#include "designs/LineNumberIndex.h"

#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace vorn {

QList<int> LineNumberIndex::calculateLines(const QString& text)
{
    QList<int> starts{0};
    const int n = int(text.size());
    for (int i = 0; i < n; ++i) {
        const QChar c = text[i];
        if (c == QLatin1Char('\r') && i + 1 < n && text[i + 1] == QLatin1Char('\n'))
            continue;
        if (c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QChar::ParagraphSeparator ||
            c == QChar::LineSeparator)
            starts.append(i + 1);
    }
    return starts;
}

const QList<int>& LineNumberIndex::lineIndices(const QString& text)
{
    if (!m_built) {
        m_lineIndices = calculateLines(text);
        m_built = true;
    }
    return m_lineIndices;
}

int LineNumberIndex::lineNumberForCharacterIndex(const QList<int>& lineIndices, int index)
{
    const auto next = std::upper_bound(lineIndices.cbegin(), lineIndices.cend(), index);
    return std::max(0, int(next - lineIndices.cbegin()) - 1);
}

int LineNumberIndex::requiredThickness(int lineCount, const std::function<qreal(const QString&)>& textWidth)
{
    const int digits = int(std::floor(std::log10(double(std::max(lineCount, 1))))) + 1;
    const qreal width = textWidth(QString(digits, QLatin1Char('8'))) + 10;
    return int(std::ceil(std::max<qreal>(22, width)));
}

QRectF LineNumberIndex::labelRect(qreal rulerWidth, const QSizeF& labelSize, qreal lineTop, qreal lineHeight)
{
    return {rulerWidth - labelSize.width() - 5, lineTop + (lineHeight - labelSize.height()) / 2,
            labelSize.width(), labelSize.height()};
}

void LineNumberIndex::setMarkers(const QList<LineMarker>& markers)
{
    m_markers.clear();
    for (const LineMarker& marker : markers)
        m_markers.insert(marker.lineNumber, marker);
}

std::optional<LineMarker> LineNumberIndex::markerAtLine(int line) const
{
    const auto it = m_markers.constFind(line);
    if (it == m_markers.cend())
        return std::nullopt;
    return *it;
}

} // namespace vorn
