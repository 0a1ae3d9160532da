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

TEST(EditorCommandsTest, ChangeTheSelectedLines)
{
    const struct
    {
        const char* what;
        Command command;
        const char* before;
        const char* after;
    } cases[] = {
        {"indent every selected line", Command::Indent, "[a\nb\nc]", "[\ta\n\tb\n\tc]"},
        {"a selection ending at a line break leaves the next line", Command::Indent, "[a\nb\n]c",
         "[\ta\n\tb\n]c"},
        {"indent starts at the selection, not the line", Command::Indent, "ab[c]", "ab[\tc]"},
        {"a caret indents at the caret", Command::Indent, "a[]b", "a[\t]b"},
        {"CR LF counts as one line break", Command::Indent, "[a\r\nb]", "[\ta\r\n\tb]"},
        {"unindent removes one tab or space per line", Command::Unindent, "[\t\ta\n  b\nc]", "[\ta\n b\nc]"},
        {"unindent of a line selected in the middle", Command::Unindent, "\tab[c]", "ab[c]"},
        {"unindent leaves the line after a final break", Command::Unindent, "[\ta\n]\tb", "[a\n]\tb"},
        {"comment puts the marker at column 0 of every line", Command::CommentCss, "  [a\n  // b\nc]",
         "[//  a\n//  // b\n//c]"},
        {"uncomment removes the first marker after white space", Command::CommentCss,
         "[  // a\n//b\nc\n\t// // d]", "[   a\nb\nc\n\t // d]"},
        {"a marker at the selection decides, only a leading one goes", Command::CommentCss, "x[//a]",
         "[x//a]"},
        {"a caret comments its line", Command::CommentCss, "a\nb[]c\nd", "a\n[//bc]\nd"},
        {"the HTML editors beep and change nothing", Command::CommentHtml, "[<b>\n</b>]", "[<b>\n</b>]"}};
    for (const auto& c : cases) {
        const Marked m = parse(c.before);
        const EditorCommands::Editor editor =
            c.command == Command::CommentCss ? EditorCommands::StyleSheetEditor : EditorCommands::PageEditor;
        const EditorCommands::Outcome o =
            c.command == Command::Indent ? EditorCommands::indent(m.text, m.start, m.length)
            : c.command == Command::Unindent
                ? EditorCommands::unindent(m.text, m.start, m.length)
                : EditorCommands::comment(m.text, m.start, m.length, EditorCommands::commentMarker(editor));
        EXPECT_EQ(o.beep, c.command == Command::CommentHtml) << c.what;
        EXPECT_EQ(show(m.text, o), QString(c.after)) << c.what;
    }
}

} // namespace
