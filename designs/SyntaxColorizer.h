#pragma once

#include "designs/SyntaxDefinition.h"

#include <QString>

#include <vector>

namespace vorn {

struct SyntaxMarks;

// A coloured run of text: where it starts, how long it is, its mode.
struct SyntaxRun
{
    int start = 0;
    int length = 0;
    quint8 mode = 0;
    friend bool operator==(const SyntaxRun&, const SyntaxRun&) = default;
};

// The colouring engine of the template editors, on plain text. It keeps the
// text and the mode of every character (0: uncoloured), colours the whole
// text once and afterwards only around each edit: the edited lines, widened
// to the whole run of a comment, string or tag the edit falls into, and
// further, line by line, while the state at the end of the recoloured lines
// (the mode of their last line break) differs from what it was, so that
// opening or closing a comment recolours exactly the text it changes.
//
// Each component scans the range being coloured in the order of the
// definition and marks what it finds, later components overwriting earlier
// ones; an unterminated comment, string or tag runs to the end of the range.
class SyntaxColorizer
{
public:
    explicit SyntaxColorizer(SyntaxDefinition definition = {});

    const SyntaxDefinition& definition() const { return m_definition; }
    // A new definition recolours the whole text.
    void setDefinition(SyntaxDefinition definition);

    // Recolour after each edit; on by default.
    bool autoSyntaxColoring() const { return m_autoSyntaxColoring; }
    void setAutoSyntaxColoring(bool enabled) { m_autoSyntaxColoring = enabled; }
    // Return copies the previous line's indentation; on by default.
    bool maintainIndentation() const { return m_maintainIndentation; }
    void setMaintainIndentation(bool enabled) { m_maintainIndentation = enabled; }

    struct Range
    {
        int start = 0;
        int length = 0;
        int end() const { return start + length; }
        friend bool operator==(const Range&, const Range&) = default;
    };

    // Replaces the whole text and colours it.
    void setText(const QString& text);
    // Applies an edit (removed characters at position replaced by added) and
    // recolours around it; answers the range whose modes were recomputed
    // (empty when nothing was).
    Range textChanged(int position, int removed, const QString& added);
    // Colours a range of the current text (a no-op while colouring runs).
    void recolorRange(Range range);

    const QString& text() const { return m_text; }
    quint8 modeAt(int index) const;
    // The runs of coloured text within a range.
    std::vector<SyntaxRun> runs(int start, int length) const;
    // The run of equal modes around an index.
    Range effectiveRange(int index) const;

    // The tabs and spaces that start the line before a line break inserted
    // at position, which Return repeats on the new line.
    static QString indentationBefore(const QString& text, int position);

private:
    Range rangeAfterEdit(int location, int length, int delta) const;
    // The start of the line at or before index where no comment, string or
    // tag is open (the line break before it is uncoloured): colouring can
    // begin there as if from the start of the text.
    int safeStart(int index) const;
    void colorComponent(const SyntaxComponent& component, QStringView text, SyntaxMarks& marks) const;
    // What the colouring at a line break says about the next line: its mode
    // and whether a comment, string or tag goes on across it.
    int state(int index) const { return m_modes[size_t(index)] | (m_covered[size_t(index)] << 8); }

    SyntaxDefinition m_definition;
    QString m_text;
    std::vector<quint8> m_modes;
    std::vector<quint8> m_covered;
    bool m_autoSyntaxColoring = true;
    bool m_maintainIndentation = true;
    bool m_busy = false;
    // The last colouring ended inside a comment, string or tag.
    bool m_openAtEnd = false;
};

} // namespace vorn
