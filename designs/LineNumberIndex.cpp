#include "designs/LineNumberIndex.h"

#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace vorn {

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

std::optional<LineMarker> LineNumberIndex::markerAtLine(int line) const
{
    const auto it = m_markers.constFind(line);
    if (it == m_markers.cend())
        return std::nullopt;
    return *it;
}

} // namespace vorn
