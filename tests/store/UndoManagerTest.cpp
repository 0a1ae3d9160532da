#include "store/UndoManager.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>

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

// Nested groups make one step, named by the outermost; its undos run in
// reverse, and the step redoes under the same name.
TEST(UndoManagerTest, AGroupUndoesInReverseOrderUnderItsName)
{
    UndoManager undo;
    Value x{undo};
    std::vector<int> order;
    {
        UndoGroup g(&undo, QStringLiteral("Edit"));
        {
            UndoGroup inner(&undo, QStringLiteral("Inner"));
            x.set(2);
            undo.registerUndo([&order] { order.push_back(1); });
        }
        undo.registerUndo([&order] { order.push_back(2); });
    }
    EXPECT_EQ(undo.groupingLevel(), 0);
    EXPECT_EQ(undo.undoActionName(), QStringLiteral("Edit"));
    undo.undo();
    EXPECT_EQ(order, (std::vector<int>{2, 1}));
    EXPECT_EQ(undo.redoActionName(), QStringLiteral("Edit"));
}

// A script of edits and commands: "x1" sets x to 1, "[" and "]" open and
// close a group, "u" undoes, "r" redoes, "p" lets the event loop pass, "-"
// and "+" switch recording off and on, "c" removes all actions.
struct Script
{
    const char* name;
    const char* steps;
    int x;
    int y;
    bool canUndo;
    bool canRedo;
};

const Script scripts[] = {
    {"NestedGroupsUndoInOneStep", "[x1 [y1] x2] u", 0, 0, false, true},
    {"GroupsUndoOneAtATime", "[x1] [x2] [x3] u u", 1, 0, true, true},
    {"RedoAfterUndo", "[x1] [x2] [x3] u u r", 2, 0, true, true},
    {"AnEmptyGroupIsNoStep", "[x1] [x2] [] u", 1, 0, true, true},
    {"ANewChangeDropsTheRedo", "[x1] [x2] u [y5]", 1, 5, true, false},
    {"EverythingUndone", "[x1] [x2] r u r u [y5] u u", 0, 0, false, true},
    {"EditsWithoutGroupJoinUntilTheEventLoop", "x1 y1 p x2 p u", 1, 1, true, true},
    {"ImplicitGroupsUndoInTurn", "x1 y1 p x2 p u u", 0, 0, false, true},
    {"AnExplicitGroupClosesTheImplicitOne", "x1 [y1] u", 1, 0, true, true},
    {"UndoClosesTheImplicitGroupFirst", "[y1] x1 u", 0, 1, true, true},
    {"UndoInsideAnOpenGroupIsIgnored", "[x1] [y1 u r", 1, 1, true, false},
    {"DisabledRecordsNothing", "- [x1] x2 +", 2, 0, false, false},
    {"RemoveAllForgets", "[x2] x3 c u p", 3, 0, false, false},
};

class UndoScriptTest : public ::testing::TestWithParam<Script>
{
};

TEST_P(UndoScriptTest, EndsWithTheValuesAndStepsExpected)
{
    UndoManager undo;
    Value values[] = {{undo}, {undo}};
    std::vector<std::unique_ptr<UndoGroup>> open;
    const std::map<char, std::function<void()>> commands{
        {'[', [&] { open.push_back(std::make_unique<UndoGroup>(&undo, QStringLiteral("Step"))); }},
        {']', [&] { open.pop_back(); }},
        {'u', [&] { undo.undo(); }},
        {'r', [&] { undo.redo(); }},
        {'p', [] { QCoreApplication::processEvents(); }},
        {'-', [&] { undo.setEnabled(false); }},
        {'+', [&] { undo.setEnabled(true); }},
        {'c', [&] { undo.removeAllActions(); }},
    };
    for (const char* s = GetParam().steps; *s; ++s) {
        if (*s == 'x' || *s == 'y') {
            values[*s - 'x'].set(s[1] - '0');
            ++s;
        } else if (*s != ' ') {
            commands.at (*s)();
        }
    }
    EXPECT_EQ(values[0].value, GetParam().x);
    EXPECT_EQ(values[1].value, GetParam().y);
    EXPECT_EQ(undo.canUndo(), GetParam().canUndo);
    EXPECT_EQ(undo.canRedo(), GetParam().canRedo);
}

INSTANTIATE_TEST_SUITE_P(Scripts, UndoScriptTest, ::testing::ValuesIn(scripts),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace vorn::test
