#pragma once

#include "store/Result.h"
#include "store/UserInterface.h"

#include <QCoreApplication>
#include <QFont>
#include <QPdfDocument>
#include <QRectF>
#include <QSizeF>

class QPainter;

namespace vorn {

class Settings;

// A PDF shown as one tall image of its pages, one page height after the
// other from the top, and printed page by page with a small footer line
// (the page number and, when asked, the job title). The drawing lives here;
// the shell only runs the print operation.
class PdfImageView
{
    Q_DECLARE_TR_FUNCTIONS(PdfImageView)
public:
    explicit PdfImageView(const Settings& settings);

    Status loadFromPath(const QString& path);
    int pageCount() const;
    // The size of the first page, in points.
    QSizeF pageSize() const { return m_pageSize; }
    // The frame: a page wide, every page high.
    QSizeF frameSize() const { return QSizeF(m_pageSize.width(), m_pageSize.height() * pageCount()); }
    bool isFlipped() const { return true; }
    // The page range is known: pages 1 to pageCount().
    bool knowsPageRange(int* first, int* count) const;
    // Page n (from 1) in the frame, measured from the top.
    QRectF rectForPage(int page) const;

    // Draws every page that meets dirty, in frame coordinates.
    void drawRect(QPainter& painter, const QRectF& dirty);
    // Draws page (from 1) into target.
    void drawPage(QPainter& painter, int page, const QRectF& target);
    // The footer of a printed sheet (sheet in points, painter in points).
    void drawPageBorder(QPainter& painter, const QSizeF& sheet, int page, int pageCount);
    // The footer text of page of pages; empty when no footer is drawn.
    QString footerLine(int page, int pageCount) const;
    QFont footerFont() const;

    // The print job of these pages for the user interface.
    UserInterface::PrintJob printJob(const QString& title, const QString& paperName, bool showPanels);

private:
    const Settings& m_settings;
    QPdfDocument m_document;
    QSizeF m_pageSize;
};

} // namespace vorn
