#include "designs/LineNumberIndex.h"

#include <QSizeF>

#include <gtest/gtest.h>

using namespace vorn;

namespace {

TEST(LineNumberIndexTest, ThicknessFitsTheDigitsAndNeverGoesBelow22)
{
    auto width = [](const QString& digits) { return 6.5 * digits.size(); };
    const std::pair<int, int> cases[] = {{1, 22},   {9, 22},    {10, 23}, {99, 23},
                                         {100, 30}, {5000, 36}, {0, 22}};
    for (auto [lines, thickness] : cases)
        EXPECT_EQ(LineNumberIndex::requiredThickness(lines, width), thickness) << lines;
    EXPECT_FALSE(LineNumberIndex::thicknessNeedsChange(22, 23));
    EXPECT_TRUE(LineNumberIndex::thicknessNeedsChange(22, 23.5));
}

TEST(LineNumberIndexTest, LabelsAreRightAlignedAndCentred)
{
    EXPECT_EQ(LineNumberIndex::labelRect(30, QSizeF(12, 10), 100, 14), QRectF(13, 102, 12, 10));
}

} // namespace
