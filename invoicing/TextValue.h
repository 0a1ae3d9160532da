#pragma once

#include <QString>

namespace vorn {

// Numbers typed into text fields, read the forgiving way: leading spaces are
// skipped, then the longest leading decimal number is taken ("12.5 kg" is
// 12.5, "1,5" is 1); text without a leading number reads as 0. The decimal
// point is always '.', whatever the locale.
float floatValueOfText(const QString& text);

// The shortest text that reads back as the same float ("34.65").
QString textOfFloat(float value);

} // namespace vorn
