#include "ui/TemplateHighlighter.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace vorn {

namespace {

// The document's own paragraph separators are line feeds to the engine.
QString plainText(QString text)
{
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text;
}

} // namespace

TemplateHighlighter::TemplateHighlighter(SyntaxDefinition definition, QTextDocument* document)
    : QSyntaxHighlighter(static_cast<QObject*>(document)), m_colorizer(std::move(definition))
{
    buildFormats();
    m_colorizer.setText(document->toPlainText());
    // Connected before the highlighter's own handler, so the engine has
    // coloured the change when the blocks are asked for.
    connect(document, &QTextDocument::contentsChange, this, &TemplateHighlighter::contentsChange);
    setDocument(document);
}

void TemplateHighlighter::buildFormats()
{
    const SyntaxDefinition& d = m_colorizer.definition();
    m_formats.assign(size_t(d.modeCount()) + 1, QTextCharFormat());
    for (int mode = 1; mode <= d.modeCount(); ++mode) {
        const SyntaxColor c = d.modeColor(quint8(mode));
        if (c.isValid())
            m_formats[size_t(mode)].setForeground(
                QColor::fromRgbF(float(c.red), float(c.green), float(c.blue), float(c.alpha)));
    }
}

void TemplateHighlighter::contentsChange(int position, int removed, int added)
{
    QTextDocument* doc = document();
    // The document reports its whole text as changed when it is replaced,
    // and one character more than it holds at its end.
    const int engineSize = int(m_colorizer.text().size());
    if (position == 0 && removed >= engineSize) {
        takeWholeText();
        m_forceUntil = -1;
        return;
    }
    removed = std::min(removed, engineSize - position);
    QTextCursor cursor(doc);
    cursor.setPosition(position);
    cursor.setPosition(std::min(position + added, doc->characterCount() - 1), QTextCursor::KeepAnchor);
    const QString inserted = plainText(cursor.selectedText());
    m_lastRecolored = m_colorizer.textChanged(position, removed, inserted);
    m_forceUntil = m_lastRecolored.end();
    // Should the reports ever disagree with the document, the engine takes
    // the document's text whole rather than colour a wrong one.
    if (m_colorizer.text().size() != doc->characterCount() - 1) {
        takeWholeText();
        m_forceUntil = m_lastRecolored.end();
    }
}

void TemplateHighlighter::takeWholeText()
{
    // toPlainText already puts line feeds between the paragraphs.
    m_colorizer.setText(document()->toPlainText());
    m_lastRecolored = {0, int(m_colorizer.text().size())};
}

void TemplateHighlighter::highlightBlock(const QString& text)
{
    const QTextBlock block = currentBlock();
    const int start = block.position();
    for (const SyntaxRun& run : m_colorizer.runs(start, int(text.size())))
        if (size_t(run.mode) < m_formats.size())
            setFormat(run.start - start, run.length, m_formats[size_t(run.mode)]);
    // The block's state is the engine's state at its line break; within the
    // range the engine recoloured, a changing state makes Qt go on to the
    // next block.
    const int end = start + int(text.size());
    const int state = m_colorizer.modeAt(end);
    if (end < m_forceUntil)
        setCurrentBlockState(currentBlockState() == state ? state + 256 : state);
    else
        setCurrentBlockState(state);
}

} // namespace vorn
