#pragma once

#include "designs/SyntaxColorizer.h"

#include <QSyntaxHighlighter>
#include <QTextCharFormat>

#include <vector>

namespace vorn {

// Draws the colouring engine's runs into an editor's document. The engine
// follows every change of the document (it keeps its own copy of the text)
// and recolours around it; Qt then asks this highlighter for the blocks
// that changed, and for the next ones while a block's end state differs,
// and each block reads its runs from the engine. Blocks beyond those that
// the engine recoloured further down (a comment opened or closed) are
// asked for too, so the document never shows stale colours.
class TemplateHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT
public:
    TemplateHighlighter(SyntaxDefinition definition, QTextDocument* document);

    const SyntaxColorizer& colorizer() const { return m_colorizer; }
    // Characters recoloured by the engine after the last edit.
    SyntaxColorizer::Range lastRecolored() const { return m_lastRecolored; }

protected:
    void highlightBlock(const QString& text) override;

private:
    void contentsChange(int position, int removed, int added);
    // The engine takes the document's text whole and recolours all of it.
    void takeWholeText();
    void buildFormats();

    SyntaxColorizer m_colorizer;
    std::vector<QTextCharFormat> m_formats;
    SyntaxColorizer::Range m_lastRecolored;
    int m_forceUntil = -1;
};

} // namespace vorn
