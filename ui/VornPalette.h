#pragma once

#include <QColor>

class QWidget;

namespace vorn {

// The colours the custom-drawn elements share, in a light and a dark set.
// Which one applies follows the desktop's colour scheme, read from the
// application palette (a dark window background means a dark scheme).
namespace VornPalette {

bool isDark(const QWidget* widget = nullptr);
// A calibrated grey level (0 black .. 1 white) at an opacity.
QColor white(qreal level, qreal alpha = 1.0);

} // namespace VornPalette

} // namespace vorn
