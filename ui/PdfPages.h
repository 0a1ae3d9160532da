#pragma once

#include <QBuffer>
#include <QImage>
#include <QObject>
#include <QPdfDocument>

namespace vorn {

// A PDF held in memory (the file on disk is replaced by every new preview),
// with its pages as pictures for thumbnails.
class PdfPages : public QObject
{
    Q_OBJECT
public:
    explicit PdfPages(QObject* parent = nullptr);

    QPdfDocument* document() { return &m_document; }
    // Reads the file whole; false (and no pages) when it is not a readable PDF.
    bool load(const QString& path);
    void clear();
    int pageCount() const { return m_document.pageCount(); }
    // A page fitted into width × height pixels, on white, for a device pixel ratio.
    QImage pageImage(int page, QSize box, qreal devicePixelRatio);

Q_SIGNALS:
    void changed();

private:
    // The document reads its pages from the buffer, also from the view's
    // rendering thread, so the buffer is made before it and outlives it.
    QBuffer m_buffer;
    QPdfDocument m_document;
};

} // namespace vorn
