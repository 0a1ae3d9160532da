#include "designs/EditorCommands.h"

#include <algorithm>

namespace vorn {

namespace {

bool isBreak(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r');
}

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QLatin1Char('\t');
}

// Whether a new line starts after index i (a CR followed by LF counts once).
bool endsLine(const QString& text, int i)
{
    if (text[i] == QLatin1Char('\r'))
        return i + 1 >= text.size() || text[i + 1] != QLatin1Char('\n');
    return text[i] == QLatin1Char('\n');
}

int lineStart(const QString& text, int index)
{
    while (index > 0 && !isBreak(text[index - 1]))
        --index;
    return index;
}

int lineEnd(const QString& text, int index)
{
    while (index < text.size() && !isBreak(text[index]))
        ++index;
    return index;
}

int afterBlanks(const QString& text, int index)
{
    while (index < text.size() && isBlank(text[index]))
        ++index;
    return index;
}

void clampSelection(const QString& text, int& start, int& length)
{
    start = std::clamp(start, 0, int(text.size()));
    length = std::clamp(length, 0, int(text.size()) - start);
}

// The selected length that counts for the line walk: a selection ending
// right after a line break stops before the next line.
int walkedLength(const QString& text, int start, int length)
{
    if (length > 1 && isBreak(text[start + length - 1]))
        return length - 1;
    return length;
}

} // namespace

EditorCommands::Editor EditorCommands::editorForIndex(qint64 index)
{
    return index == 1 ? ItemEditor : index == 2 ? StyleSheetEditor : PageEditor;
}

QString EditorCommands::commentMarker(Editor editor)
{
    // "//" is not a comment of the style-sheet language, but the command has
    // always used it and existing style sheets carry it.
    return editor == StyleSheetEditor ? QStringLiteral("//") : QString();
}

EditorCommands::Outcome EditorCommands::indent(const QString& text, int start, int length)
{
    clampSelection(text, start, length);
    Outcome out;
    const int walked = walkedLength(text, start, length);
    for (int i = start + walked - 1; i >= start; --i)
        if (endsLine(text, i))
            out.edits.append({i + 1, 0, QStringLiteral("\t")});
    out.edits.append({start, 0, QStringLiteral("\t")});
    out.selectionStart = start;
    out.selectionLength = length + int(out.edits.size());
    return out;
}

EditorCommands::Outcome EditorCommands::unindent(const QString& text, int start, int length)
{
    clampSelection(text, start, length);
    Outcome out;
    const int walked = walkedLength(text, start, length);
    QList<int> starts;
    for (int i = start + walked - 1; i >= start; --i)
        if (endsLine(text, i) && i + 1 < text.size())
            starts.append(i + 1);
    starts.append(lineStart(text, start));
    int removedBefore = 0;
    int removedInside = 0;
    for (int s : std::as_const(starts)) {
        if (s >= text.size() || !isBlank(text[s]))
            continue;
        out.edits.append({s, 1, {}});
        if (s < start)
            ++removedBefore;
        else
            ++removedInside;
    }
    out.selectionStart = start - removedBefore;
    out.selectionLength = std::max(0, length - removedInside);
    return out;
}

EditorCommands::Outcome EditorCommands::comment(const QString& text, int start, int length,
                                                const QString& marker)
{
    clampSelection(text, start, length);
    Outcome out;
    out.selectionStart = start;
    out.selectionLength = length;
    if (marker.isEmpty()) {
        out.beep = true;
        return out;
    }
    const int first = lineStart(text, start);
    auto markerAt = [&](int at) {
        return QStringView(text).mid(at, marker.size()).compare(marker, Qt::CaseInsensitive) == 0;
    };
    const bool commented = markerAt(start) || markerAt(first) || markerAt(afterBlanks(text, first));

    // The starts of the lines the selection covers.
    QList<int> lines{first};
    const int last = start + walkedLength(text, start, length);
    for (int i = first; i < last; ++i)
        if (endsLine(text, i) && i + 1 < last)
            lines.append(i + 1);

    int offset = 0;
    for (int line : std::as_const(lines)) {
        if (!commented) {
            out.edits.append({line + offset, 0, marker});
            offset += int(marker.size());
        } else if (const int at = afterBlanks(text, line); markerAt(at)) {
            out.edits.append({at + offset, int(marker.size()), {}});
            offset -= int(marker.size());
        }
    }
    out.selectionStart = first;
    out.selectionLength = lineEnd(text, std::max(last - 1, first)) + offset - first;
    return out;
}

QString EditorCommands::apply(QString text, const Outcome& outcome)
{
    for (const Edit& e : outcome.edits)
        text.replace(e.position, e.removed, e.inserted);
    return text;
}

} // namespace vorn
