#include "designs/SyntaxColorizer.h"

#include <algorithm>

namespace vorn {

// What the passes write: the mode of each character, and which characters
// a scanner passed over inside a comment, string or tag (coloured or, for a
// tag skipped because of a comment, not), which tells where scanning can
// start afresh.
struct SyntaxMarks
{
    quint8* modes;
    quint8* covered;
    // The bit of the component scanning now in covered.
    quint8 bit = 1;
    // A comment, string or tag was still open at the end of the text scanned.
    bool openAtEnd = false;
};

namespace {

using Marks = SyntaxMarks;

bool isBreak(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r');
}

void mark(quint8* modes, qsizetype from, qsizetype to, quint8 mode)
{
    std::fill(modes + from, modes + to, mode);
}

void cover(const Marks& marks, qsizetype from, qsizetype to)
{
    for (quint8* c = marks.covered + from; c != marks.covered + to; ++c)
        *c |= marks.bit;
}

void mark(const Marks& marks, qsizetype from, qsizetype to, quint8 mode)
{
    std::fill(marks.modes + from, marks.modes + to, mode);
    cover(marks, from, to);
}

// Block comment: from the start marker through the end marker, or to the
// end of the text when it is not closed.
void colorComments(QStringView text, Marks& modes, const QString& start, const QString& end, quint8 mode)
{
    const qsizetype n = text.size();
    qsizetype pos = 0;
    while (pos < n) {
        const qsizetype i = text.indexOf(start, pos);
        if (i < 0)
            return;
        const qsizetype j = end.isEmpty() ? -1 : text.indexOf(end, i + start.size());
        const qsizetype e = j < 0 ? n : j + end.size();
        mark(modes, i, e, mode);
        modes.openAtEnd |= j < 0;
        pos = e;
    }
}

// One-line comment: from the marker up to the line break.
void colorOneLineComment(QStringView text, quint8* modes, const QString& start, quint8 mode)
{
    const qsizetype n = text.size();
    qsizetype pos = 0;
    while (pos < n) {
        const qsizetype i = text.indexOf(start, pos);
        if (i < 0)
            return;
        qsizetype e = i + start.size();
        while (e < n && !isBreak(text[e]))
            ++e;
        mark(modes, i, e, mode);
        pos = std::max(e, i + 1);
    }
}

// String: both markers included; an end marker right after the escape
// character does not end it; an unterminated string runs to the end.
void colorStrings(QStringView text, Marks& modes, const QString& start, const QString& end, QChar escape,
                  quint8 mode)
{
    const qsizetype n = text.size();
    const QString& closing = end.isEmpty() ? start : end;
    qsizetype pos = 0;
    while (pos < n) {
        const qsizetype i = text.indexOf(start, pos);
        if (i < 0)
            return;
        qsizetype k = i + start.size();
        qsizetype e = n;
        for (;;) {
            const qsizetype j = text.indexOf(closing, k);
            if (j < 0)
                break;
            if (!escape.isNull() && j > 0 && text[j - 1] == escape) {
                k = j + closing.size();
                continue;
            }
            e = j + closing.size();
            break;
        }
        modes.openAtEnd |= e == n && !text.sliced(i + start.size()).endsWith(closing);
        mark(modes, i, e, mode);
        pos = e;
    }
}

// Tag: from the start marker through the end marker, unless either lies in
// the ignored mode (a tag written inside a comment).
void colorTags(QStringView text, Marks& marks, const QString& start, const QString& end, quint8 mode,
               quint8 ignored)
{
    const qsizetype n = text.size();
    qsizetype pos = 0;
    while (pos < n) {
        const qsizetype i = text.indexOf(start, pos);
        if (i < 0)
            return;
        if (ignored != 0 && marks.modes[i] == ignored) {
            pos = i + start.size();
            continue;
        }
        const qsizetype j = end.isEmpty() ? -1 : text.indexOf(end, i + start.size());
        if (j < 0) {
            mark(marks, i, n, mode);
            marks.openAtEnd = true;
            return;
        }
        pos = j + end.size();
        if (ignored != 0 && marks.modes[j] == ignored) {
            cover(marks, i, pos);
            continue;
        }
        mark(marks, i, pos, mode);
    }
}

// Words: every whole-word occurrence, that is one whose neighbours (or the
// text's ends) are not word characters.
void colorIdentifiers(QStringView text, quint8* modes, const SyntaxComponent& c, quint8 mode)
{
    const qsizetype n = text.size();
    if (!c.wordLookup.isEmpty()) {
        qsizetype i = 0;
        while (i < n) {
            if (!c.charset.contains(text[i])) {
                ++i;
                continue;
            }
            qsizetype e = i + 1;
            while (e < n && c.charset.contains(text[e]))
                ++e;
            if (c.wordLookup.contains(text.mid(i, e - i)))
                mark(modes, i, e, mode);
            i = e;
        }
    }
    for (const QString& word : c.searchedWords) {
        qsizetype pos = 0;
        while (pos < n) {
            const qsizetype i = text.indexOf(word, pos);
            if (i < 0)
                break;
            const qsizetype e = i + word.size();
            const bool before = i == 0 || !c.charset.contains(text[i - 1]);
            const bool after = e == n || !c.charset.contains(text[e]);
            if (before && after)
                mark(modes, i, e, mode);
            pos = i + 1;
        }
    }
}

} // namespace

SyntaxColorizer::SyntaxColorizer(SyntaxDefinition definition) : m_definition(std::move(definition)) {}

void SyntaxColorizer::setDefinition(SyntaxDefinition definition)
{
    m_definition = std::move(definition);
    recolorRange({0, int(m_text.size())});
}

void SyntaxColorizer::setText(const QString& text)
{
    m_text = text;
    m_modes.assign(size_t(text.size()), 0);
    m_covered.assign(size_t(text.size()), 0);
    recolorRange({0, int(text.size())});
}

quint8 SyntaxColorizer::modeAt(int index) const
{
    return index >= 0 && size_t(index) < m_modes.size() ? m_modes[size_t(index)] : 0;
}

SyntaxColorizer::Range SyntaxColorizer::effectiveRange(int index) const
{
    const int n = int(m_modes.size());
    if (index < 0 || index >= n)
        return {};
    const quint8 mode = m_modes[size_t(index)];
    int start = index;
    while (start > 0 && m_modes[size_t(start - 1)] == mode)
        --start;
    int end = index + 1;
    while (end < n && m_modes[size_t(end)] == mode)
        ++end;
    return {start, end - start};
}

std::vector<SyntaxRun> SyntaxColorizer::runs(int start, int length) const
{
    std::vector<SyntaxRun> result;
    const int end = std::min(start + length, int(m_modes.size()));
    for (int i = std::max(start, 0); i < end;) {
        const quint8 mode = m_modes[size_t(i)];
        int e = i + 1;
        while (e < end && m_modes[size_t(e)] == mode)
            ++e;
        if (mode != 0)
            result.push_back({i, e - i, mode});
        i = e;
    }
    return result;
}

SyntaxColorizer::Range SyntaxColorizer::rangeAfterEdit(int location, int length, int delta) const
{
    const int n = int(m_text.size());
    // A deletion leaves nothing to colour at its place: look at its neighbours.
    if (delta <= 0) {
        if (location > 0)
            --location;
        if (location + length + 2 < n)
            length += 2;
        else if (location + length + 1 < n)
            length += 1;
        // At the end of the text that leaves nothing; the line before the
        // deletion still needs its colours checked.
        else if (location < n)
            length = n - location;
    }
    if (length == 0 || location >= n)
        return {};
    const quint8 mode = m_modes[size_t(location)];
    int start = location;
    int end = std::min(location + length, n);
    if (mode != 0) {
        const Range run = effectiveRange(location);
        start = std::min(start, run.start);
        end = std::max(end, run.end());
    }
    // Whole lines, with their line break: its state says whether a comment,
    // string or tag goes on into the next line.
    while (end < n && !isBreak(m_text[end]))
        ++end;
    if (end < n)
        end +=
            m_text[end] == QLatin1Char('\r') && end + 1 < n && m_text[end + 1] == QLatin1Char('\n') ? 2 : 1;
    start = safeStart(start);
    return {start, end - start};
}

int SyntaxColorizer::safeStart(int index) const
{
    int start = index;
    for (;;) {
        while (start > 0 && !isBreak(m_text[start - 1]))
            --start;
        if (start == 0 || !m_covered[size_t(start - 1)])
            return start;
        start = effectiveRange(start - 1).start;
    }
}

SyntaxColorizer::Range SyntaxColorizer::textChanged(int position, int removed, const QString& added)
{
    const int oldSize = int(m_text.size());
    position = std::clamp(position, 0, oldSize);
    removed = std::clamp(removed, 0, oldSize - position);
    // Typed text takes the mode of the text before it, as typing takes the
    // attributes before the caret: typing inside a comment recolours the
    // whole comment.
    const quint8 inherited =
        position > 0 ? m_modes[size_t(position - 1)] : (removed < oldSize ? m_modes[size_t(removed)] : 0);
    m_text.replace(position, removed, added);
    m_modes.erase(m_modes.begin() + position, m_modes.begin() + position + removed);
    m_modes.insert(m_modes.begin() + position, size_t(added.size()), inherited);
    m_covered.erase(m_covered.begin() + position, m_covered.begin() + position + removed);
    const quint8 coveredBefore = position > 0 ? m_covered[size_t(position - 1)] : 0;
    m_covered.insert(m_covered.begin() + position, size_t(added.size()), coveredBefore);
    if (!m_autoSyntaxColoring)
        return {};

    const int n = int(m_text.size());
    const Range first = rangeAfterEdit(position, int(added.size()), int(added.size()) - removed);
    if (first.length == 0)
        return {};
    int start = first.start;
    int end = first.end();
    int doneStart = start;
    int lines = 1;
    for (;;) {
        const int before = end < n ? state(end - 1) : 0;
        recolorRange({start, end - start});
        doneStart = std::min(doneStart, start);
        if (end >= n)
            break;
        const int after = state(end - 1);
        if (after == before && !m_openAtEnd)
            break;
        // The state at the end of the recoloured lines changed: a comment,
        // string or tag now goes on past them (recolour from its start) or
        // no longer does (recolour what it used to cover). Growing steps
        // keep a long run to a few passes.
        start = m_covered[size_t(end - 1)] ? safeStart(end) : end;
        for (int i = 0; i < lines && end < n; ++i) {
            while (end < n && !isBreak(m_text[end]))
                ++end;
            if (end < n)
                ++end;
        }
        lines *= 2;
    }
    return {doneStart, end - doneStart};
}

void SyntaxColorizer::recolorRange(Range range)
{
    const int n = int(m_text.size());
    range.start = std::clamp(range.start, 0, n);
    range.length = std::clamp(range.length, 0, n - range.start);
    if (m_busy || range.length == 0)
        return;
    m_busy = true;
    const QStringView text = QStringView(m_text).mid(range.start, range.length);
    Marks marks{m_modes.data() + range.start, m_covered.data() + range.start};
    std::fill(marks.modes, marks.modes + range.length, 0);
    std::fill(marks.covered, marks.covered + range.length, 0);
    // Each comment, string and tag component has its own bit (the eighth
    // and later share the last), so that the state at a line break tells
    // which of them are open across it.
    int delimited = 0;
    for (const SyntaxComponent& c : m_definition.components()) {
        marks.bit = quint8(1u << std::min(delimited, 7));
        if (c.type != SyntaxComponent::Type::Keywords && c.type != SyntaxComponent::Type::UserIdentifiers &&
            c.type != SyntaxComponent::Type::OneLineComment)
            ++delimited;
        colorComponent(c, text, marks);
    }
    m_openAtEnd = marks.openAtEnd;
    m_busy = false;
}

void SyntaxColorizer::colorComponent(const SyntaxComponent& c, QStringView text, Marks& marks) const
{
    quint8* modes = marks.modes;
    const quint8 mode = m_definition.modeOf(c.name);
    using Type = SyntaxComponent::Type;
    switch (c.type) {
    case Type::BlockComment:
        colorComments(text, marks, c.start, c.end, mode);
        break;
    case Type::OneLineComment:
        colorOneLineComment(text, modes, c.start, mode);
        break;
    case Type::String:
        colorStrings(text, marks, c.start, c.end, c.escape, mode);
        break;
    case Type::Tag:
        colorTags(text, marks, c.start, c.end, mode, m_definition.modeOf(c.ignoredComponent));
        break;
    case Type::Keywords:
    case Type::UserIdentifiers:
        colorIdentifiers(text, modes, c, mode);
        break;
    }
}

QString SyntaxColorizer::indentationBefore(const QString& text, int position)
{
    position = std::clamp(position, 0, int(text.size()));
    int start = position;
    while (start > 0 && !isBreak(text[start - 1]))
        --start;
    int end = start;
    while (end < position && (text[end] == QLatin1Char('\t') || text[end] == QLatin1Char(' ')))
        ++end;
    return text.mid(start, end - start);
}

} // namespace vorn
