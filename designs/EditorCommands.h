#pragma once

#include <QList>
#include <QString>

namespace vorn {

// The indent, unindent and comment commands of the template editors, on
// plain text: each answers the edits to make (applied in order, each on the
// text the previous one left) and the selection afterwards, so the editor
// can apply them as one undoable step.
class EditorCommands
{
public:
    struct Edit
    {
        int position = 0;
        int removed = 0;
        QString inserted;
        friend bool operator==(const Edit&, const Edit&) = default;
    };
    struct Outcome
    {
        QList<Edit> edits;
        int selectionStart = 0;
        int selectionLength = 0;
        // Nothing to do here: the editor sounds the beep.
        bool beep = false;
    };

    // The editors of the design builder by the "selectedBuilderIndex"
    // setting: 0 the page template, 1 the item row, 2 the style sheet.
    enum Editor
    {
        PageEditor = 0,
        ItemEditor = 1,
        StyleSheetEditor = 2
    };
    // Any other value means the page template.
    static Editor editorForIndex(qint64 index);
    // The comment marker of an editor: "//" in the style sheet, none in the
    // HTML editors (whose comment command only beeps).
    static QString commentMarker(Editor editor);

    // A tab at the selection's start and after every line break inside it;
    // a selection that ends on a line break leaves the next line alone.
    static Outcome indent(const QString& text, int start, int length);
    // One leading tab or space removed from every selected line.
    static Outcome unindent(const QString& text, int start, int length);
    // Comments or uncomments the selected lines, decided by the first line.
    static Outcome comment(const QString& text, int start, int length, const QString& marker);

    // The text with the outcome's edits made.
    static QString apply(QString text, const Outcome& outcome);
};

} // namespace vorn
