#pragma once

#include "designs/EditorCommands.h"
#include "designs/SyntaxDefinition.h"

#include <QPlainTextEdit>
#include <QTextBlock>

class QAction;

namespace vorn {

class LineNumberRuler;
class TemplateHighlighter;

// One editor of the design builder: the desktop's fixed-width font, syntax
// colouring by the core engine, a line-number ruler, Return that keeps the
// line's indentation, and the indent, unindent and comment commands, each
// undone as one step.
class TemplateEditor : public QPlainTextEdit
{
    Q_OBJECT
public:
    TemplateEditor(EditorCommands::Editor kind, SyntaxDefinition definition, QWidget* parent = nullptr);

    EditorCommands::Editor kind() const { return m_kind; }
    LineNumberRuler* ruler() const { return m_ruler; }
    TemplateHighlighter* highlighter() const { return m_highlighter; }
    // The editor's font size in points.
    static constexpr int fontSize = 11;

    void indentSelection();
    void unindentSelection();
    void commentAction();

    QAction* indentAction() const { return m_indent; }
    QAction* unindentAction() const { return m_unindent; }
    QAction* commentCommand() const { return m_comment; }

    // What the ruler needs to place its labels beside the lines in view.
    QTextBlock firstVisibleLine() const { return firstVisibleBlock(); }
    QPointF textOffset() const { return contentOffset(); }
    QRectF lineGeometry(const QTextBlock& block) const { return blockBoundingGeometry(block); }

    // Replaces the text without an undo step (a design was selected).
    void setTemplateText(const QString& text);

Q_SIGNALS:
    // The user changed the text (not setTemplateText).
    void edited();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void apply(const EditorCommands::Outcome& outcome);
    void placeRuler();

    EditorCommands::Editor m_kind;
    LineNumberRuler* m_ruler = nullptr;
    TemplateHighlighter* m_highlighter = nullptr;
    QAction* m_indent = nullptr;
    QAction* m_unindent = nullptr;
    QAction* m_comment = nullptr;
    bool m_settingText = false;
};

} // namespace vorn
