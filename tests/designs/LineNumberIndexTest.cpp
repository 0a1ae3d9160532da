#include "designs/LineNumberIndex.h"

#include <QSizeF>

#include <gtest/gtest.h>

using namespace vorn;

namespace {

TEST(LineNumberIndexTest, LineStarts)
{
    EXPECT_EQ(LineNumberIndex::calculateLines(""), (QList<int>{0}));
    EXPECT_EQ(LineNumberIndex::calculateLines("ab"), (QList<int>{0}));
    // A text ending in a line break has one more, empty, line.
    EXPECT_EQ(LineNumberIndex::calculateLines("ab\n"), (QList<int>{0, 3}));
    EXPECT_EQ(LineNumberIndex::calculateLines("a\r\nb\rc\n\n"), (QList<int>{0, 3, 5, 7, 8}));
}

TEST(LineNumberIndexTest, LineOfACharacter)
{
    const QList<int> starts{0, 4, 9, 10, 20};
    const std::pair<int, int> cases[] = {{0, 0},  {3, 0},  {4, 1},  {8, 1}, {9, 2},
                                         {10, 3}, {19, 3}, {20, 4}, {99, 4}};
    for (auto [index, line] : cases)
        EXPECT_EQ(LineNumberIndex::lineNumberForCharacterIndex(starts, index), line) << index;
    EXPECT_EQ(LineNumberIndex::lineNumberForCharacterIndex({0}, 5), 0);
}

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
