#include "designs/EditorCommands.h"

#include "tests/support/TestValues.h"

#include <gtest/gtest.h>

using namespace vorn;

namespace {

// Selections are written into the text: '[' and ']' mark its ends.
struct Marked
{
    QString text;
    int start = 0;
    int length = 0;
};

Marked parse(QString marked)
{
    const int start = int(marked.indexOf('['));
    marked.remove(start, 1);
    const int end = int(marked.indexOf(']'));
    marked.remove(end, 1);
    return {marked, start, end - start};
}

QString show(const QString& text, const EditorCommands::Outcome& o)
{
    QString out = EditorCommands::apply(text, o);
    out.insert(o.selectionStart + o.selectionLength, ']');
    out.insert(o.selectionStart, '[');
    return out;
}

enum class Command
{
    Indent,
    Unindent,
    CommentCss,
    CommentHtml
};

struct CommandCase
{
    const char* what;
    Command command;
    const char* before;
    const char* after;
};

class CommandTest : public ::testing::TestWithParam<CommandCase>
{
};

TEST_P(CommandTest, ChangesTheSelectedLines)
{
    const CommandCase& c = GetParam();
    const Marked m = parse(c.before);
    EditorCommands::Outcome o;
    switch (c.command) {
    case Command::Indent:
        o = EditorCommands::indent(m.text, m.start, m.length);
        break;
    case Command::Unindent:
        o = EditorCommands::unindent(m.text, m.start, m.length);
        break;
    case Command::CommentCss:
    case Command::CommentHtml:
        o = EditorCommands::comment(m.text, m.start, m.length,
                                    EditorCommands::commentMarker(c.command == Command::CommentCss
                                                                      ? EditorCommands::StyleSheetEditor
                                                                      : EditorCommands::PageEditor));
        EXPECT_EQ(o.beep, c.command == Command::CommentHtml) << c.what;
        break;
    }
    EXPECT_EQ(show(m.text, o), QString(c.after)) << c.what;
}

INSTANTIATE_TEST_SUITE_P(
    Commands, CommandTest,
    ::testing::Values(
        CommandCase{"indent every selected line", Command::Indent, "[a\nb\nc]", "[\ta\n\tb\n\tc]"},
        CommandCase{"a selection ending at a line break leaves the next line", Command::Indent, "[a\nb\n]c",
                    "[\ta\n\tb\n]c"},
        CommandCase{"indent starts at the selection, not the line", Command::Indent, "ab[c]", "ab[\tc]"},
        CommandCase{"a caret indents at the caret", Command::Indent, "a[]b", "a[\t]b"},
        CommandCase{"CR LF counts as one line break", Command::Indent, "[a\r\nb]", "[\ta\r\n\tb]"},
        CommandCase{"unindent removes one tab or space per line", Command::Unindent, "[\t\ta\n  b\nc]",
                    "[\ta\n b\nc]"},
        CommandCase{"unindent of a line selected in the middle", Command::Unindent, "\tab[c]", "ab[c]"},
        CommandCase{"unindent leaves the line after a final break", Command::Unindent, "[\ta\n]\tb",
                    "[a\n]\tb"},
        CommandCase{"comment puts the marker at column 0 of every line", Command::CommentCss,
                    "  [a\n  // b\nc]", "[//  a\n//  // b\n//c]"},
        CommandCase{"uncomment removes the first marker after white space", Command::CommentCss,
                    "[  // a\n//b\nc\n\t// // d]", "[   a\nb\nc\n\t // d]"},
        CommandCase{"a marker at the selection decides, only a leading one goes", Command::CommentCss,
                    "x[//a]", "[x//a]"},
        CommandCase{"a caret comments its line", Command::CommentCss, "a\nb[]c\nd", "a\n[//bc]\nd"},
        CommandCase{"the HTML editors beep and change nothing", Command::CommentHtml, "[<b>\n</b>]",
                    "[<b>\n</b>]"}),
    [](const auto& info) { return "case" + std::to_string(info.index); });

} // namespace
