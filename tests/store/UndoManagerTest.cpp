#include "store/UndoManager.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace vorn::test {
namespace {

// A value whose setter registers its own inverse, as store edits do.
struct Value
{
    UndoManager& undo;
    int value = 0;
    void set(int v)
    {
        const int old = value;
        value = v;
        undo.registerUndo([this, old] { set(old); });
    }
};

class UndoManagerTest : public ::testing::Test
{
protected:
    UndoManager undo;
    Value x{undo};
    Value y{undo};
};

TEST_F(UndoManagerTest, AGroupUndoesInOneStepInReverseOrder)
{
    std::vector<int> order;
    {
        UndoGroup g(&undo, QStringLiteral("Edit"));
        x.set(1);
        y.set(2);
        x.set(3);
        undo.registerUndo([&order] { order.push_back(1); });
        undo.registerUndo([&order] { order.push_back(2); });
    }
    EXPECT_EQ(undo.undoActionName(), QStringLiteral("Edit"));
    undo.undo();
    EXPECT_EQ(order, (std::vector<int>{2, 1}));
    EXPECT_EQ(x.value, 0);
    EXPECT_EQ(y.value, 0);
    EXPECT_FALSE(undo.canUndo());
    ASSERT_TRUE(undo.canRedo());
    EXPECT_EQ(undo.redoActionName(), QStringLiteral("Edit"));
    undo.redo();
    EXPECT_EQ(x.value, 3);
    EXPECT_EQ(y.value, 2);
    EXPECT_TRUE(undo.canUndo());
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    EXPECT_EQ(x.value, 0);
}

TEST_F(UndoManagerTest, NestedGroupsFormOneStep)
{
    {
        UndoGroup outer(&undo, QStringLiteral("Outer"));
        x.set(1);
        {
            UndoGroup inner(&undo, QStringLiteral("Inner"));
            y.set(1);
            EXPECT_EQ(undo.groupingLevel(), 2);
        }
        x.set(2);
    }
    EXPECT_EQ(undo.groupingLevel(), 0);
    EXPECT_EQ(undo.undoActionName(), QStringLiteral("Outer"));
    undo.undo();
    EXPECT_EQ(x.value, 0);
    EXPECT_EQ(y.value, 0);
    EXPECT_FALSE(undo.canUndo());
}

TEST_F(UndoManagerTest, GroupsUndoOneAtATime)
{
    for (int i = 1; i <= 3; ++i) {
        UndoGroup g(&undo, QStringLiteral("Step %1").arg(i));
        x.set(i);
    }
    {
        UndoGroup empty(&undo, QStringLiteral("Nothing"));
    }
    EXPECT_EQ(undo.undoActionName(), QStringLiteral("Step 3")) << "an empty group is no undo step";
    undo.undo();
    EXPECT_EQ(x.value, 2);
    undo.undo();
    EXPECT_EQ(x.value, 1);
    undo.redo();
    EXPECT_EQ(x.value, 2);
    // A new change drops what could have been redone.
    {
        UndoGroup g(&undo, QStringLiteral("Other"));
        y.set(5);
    }
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    undo.undo();
    undo.undo();
    EXPECT_EQ(x.value, 0);
    EXPECT_EQ(y.value, 0);
    EXPECT_FALSE(undo.canUndo());
}

TEST_F(UndoManagerTest, EditsWithoutGroupCloseAtTheNextEventLoopPass)
{
    x.set(1);
    y.set(1);
    EXPECT_TRUE(undo.canUndo());
    QCoreApplication::processEvents();
    x.set(2);
    QCoreApplication::processEvents();
    undo.undo();
    EXPECT_EQ(x.value, 1);
    EXPECT_EQ(y.value, 1);
    undo.undo();
    EXPECT_EQ(x.value, 0);
    EXPECT_EQ(y.value, 0);
}

TEST_F(UndoManagerTest, AnExplicitGroupClosesThePendingImplicitOne)
{
    x.set(1);
    {
        UndoGroup g(&undo, QStringLiteral("Explicit"));
        y.set(1);
    }
    undo.undo();
    EXPECT_EQ(y.value, 0);
    EXPECT_EQ(x.value, 1);
    undo.undo();
    EXPECT_EQ(x.value, 0);
}

TEST_F(UndoManagerTest, UndoClosesThePendingImplicitGroupFirst)
{
    {
        UndoGroup g(&undo, QStringLiteral("Explicit"));
        y.set(1);
    }
    x.set(1);
    undo.undo();
    EXPECT_EQ(x.value, 0);
    EXPECT_EQ(y.value, 1);
}

TEST_F(UndoManagerTest, UndoInsideAnOpenGroupIsIgnored)
{
    {
        UndoGroup g(&undo, QStringLiteral("First"));
        x.set(1);
    }
    UndoGroup g(&undo, QStringLiteral("Open"));
    y.set(1);
    undo.undo();
    undo.redo();
    EXPECT_EQ(x.value, 1);
    EXPECT_EQ(y.value, 1);
}

TEST_F(UndoManagerTest, DisabledRecordsNothingAndRemoveAllForgets)
{
    undo.setEnabled(false);
    {
        UndoGroup g(&undo);
        x.set(1);
    }
    EXPECT_FALSE(undo.canUndo());
    undo.setEnabled(true);
    {
        UndoGroup g(&undo);
        x.set(2);
    }
    x.set(3);
    undo.removeAllActions();
    EXPECT_FALSE(undo.canUndo());
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    EXPECT_EQ(x.value, 3);
    QCoreApplication::processEvents();
    EXPECT_FALSE(undo.canUndo());
}

} // namespace
} // namespace vorn::test
