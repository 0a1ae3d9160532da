#include "ui/TemplateEditor.h"

#include "designs/SyntaxColorizer.h"
#include "ui/LineNumberRuler.h"
#include "ui/TemplateHighlighter.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QMenu>
#include <QTextBlock>

namespace vorn {

TemplateEditor::TemplateEditor(EditorCommands::Editor kind, SyntaxDefinition definition, QWidget* parent)
    : QPlainTextEdit(parent), m_kind(kind)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSize(fontSize);
    setFont(font);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabStopDistance(QFontMetricsF(font).horizontalAdvance(QLatin1Char(' ')) * 4);
    // Room around the text, as the editors have always had.
    document()->setDocumentMargin(8);
    m_highlighter = new TemplateHighlighter(std::move(definition), document());
    m_ruler = new LineNumberRuler(this);
    connect(m_ruler, &LineNumberRuler::thicknessChanged, this, [this](int thickness) {
        setViewportMargins(thickness, 0, 0, 0);
        placeRuler();
    });
    setViewportMargins(m_ruler->requiredThickness(), 0, 0, 0);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_settingText)
            Q_EMIT edited();
    });

    auto command = [this](const QString& text, const QKeySequence& keys, void (TemplateEditor::*run)()) {
        auto* action = new QAction(text, this);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, run);
        addAction(action);
        return action;
    };
    m_indent = command(tr("Indent"), QKeySequence(Qt::CTRL | Qt::Key_BracketRight),
                       &TemplateEditor::indentSelection);
    m_unindent = command(tr("Unindent"), QKeySequence(Qt::CTRL | Qt::Key_BracketLeft),
                         &TemplateEditor::unindentSelection);
    m_comment =
        command(tr("Comment"), QKeySequence(Qt::CTRL | Qt::Key_Slash), &TemplateEditor::commentAction);
}

void TemplateEditor::setTemplateText(const QString& text)
{
    if (text == toPlainText())
        return;
    m_settingText = true;
    setPlainText(text);
    m_settingText = false;
}

void TemplateEditor::apply(const EditorCommands::Outcome& outcome)
{
    if (outcome.beep) {
        QApplication::beep();
        return;
    }
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (const EditorCommands::Edit& edit : outcome.edits) {
        cursor.setPosition(edit.position);
        cursor.setPosition(edit.position + edit.removed, QTextCursor::KeepAnchor);
        cursor.insertText(edit.inserted);
    }
    cursor.endEditBlock();
    QTextCursor selection(document());
    selection.setPosition(outcome.selectionStart);
    selection.setPosition(outcome.selectionStart + outcome.selectionLength, QTextCursor::KeepAnchor);
    setTextCursor(selection);
}

void TemplateEditor::indentSelection()
{
    const QTextCursor c = textCursor();
    apply(EditorCommands::indent(toPlainText(), c.selectionStart(), c.selectionEnd() - c.selectionStart()));
}

void TemplateEditor::unindentSelection()
{
    const QTextCursor c = textCursor();
    apply(EditorCommands::unindent(toPlainText(), c.selectionStart(), c.selectionEnd() - c.selectionStart()));
}

void TemplateEditor::commentAction()
{
    const QTextCursor c = textCursor();
    apply(EditorCommands::comment(toPlainText(), c.selectionStart(), c.selectionEnd() - c.selectionStart(),
                                  EditorCommands::commentMarker(m_kind)));
}

void TemplateEditor::keyPressEvent(QKeyEvent* event)
{
    // Tab types a tab; Ctrl+Tab leaves the editor, so the window works
    // without a mouse.
    if (event->key() == Qt::Key_Tab && event->modifiers() == Qt::ControlModifier) {
        focusNextChild();
        return;
    }
    if (event->key() == Qt::Key_Backtab && event->modifiers() & Qt::ControlModifier) {
        focusPreviousChild();
        return;
    }
    const bool newLine = (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
                         !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (!newLine || !m_highlighter->colorizer().maintainIndentation()) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    // The new line starts with the previous line's tabs and spaces, in the
    // same undo step as the line break.
    QTextCursor cursor = textCursor();
    const QTextBlock block = cursor.block();
    const QString indentation =
        SyntaxColorizer::indentationBefore(block.text(), cursor.position() - block.position());
    cursor.beginEditBlock();
    cursor.insertBlock();
    cursor.insertText(indentation);
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void TemplateEditor::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* menu = createStandardContextMenu(event->pos());
    menu->addSeparator();
    menu->addActions({m_indent, m_unindent, m_comment});
    menu->exec(event->globalPos());
    delete menu;
}

void TemplateEditor::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    placeRuler();
}

void TemplateEditor::placeRuler()
{
    const QRect area = contentsRect();
    m_ruler->setGeometry(QRect(area.left(), area.top(), viewportMargins().left(), area.height()));
}

} // namespace vorn
