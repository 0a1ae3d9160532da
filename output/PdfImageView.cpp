#include "output/PdfImageView.h"

#include "documents/StringFormat.h"
#include "store/Settings.h"

#include <QFontMetricsF>
#include <QPainter>

namespace vorn {

namespace {

// Pages are drawn as images; this is sharp on paper without huge pixmaps.
constexpr double maximumDotsPerPoint = 300.0 / 72.0;

} // namespace

PdfImageView::PdfImageView(const Settings& settings) : m_settings(settings) {}

Status PdfImageView::loadFromPath(const QString& path)
{
    const QPdfDocument::Error error = m_document.load(path);
    if (error != QPdfDocument::Error::None || m_document.pageCount() < 1) {
        m_pageSize = {};
        return Error::make(error == QPdfDocument::Error::FileNotFound ? ErrorCode::FileNotFound
                                                                      : ErrorCode::FileReadUnknown,
                           tr("The PDF “%1” could not be opened.").arg(path));
    }
    m_pageSize = m_document.pagePointSize(0);
    return {};
}

int PdfImageView::pageCount() const
{
    return m_pageSize.isEmpty() ? 0 : m_document.pageCount();
}

bool PdfImageView::knowsPageRange(int* first, int* count) const
{
    *first = 1;
    *count = pageCount();
    return true;
}

QRectF PdfImageView::rectForPage(int page) const
{
    return QRectF(0, (page - 1) * m_pageSize.height(), m_pageSize.width(), m_pageSize.height());
}

void PdfImageView::drawRect(QPainter& painter, const QRectF& dirty)
{
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(dirty, Qt::transparent);
    painter.restore();
    for (int page = 1; page <= pageCount(); ++page) {
        const QRectF rect = rectForPage(page);
        if (rect.intersects(dirty))
            drawPage(painter, page, rect);
    }
}

void PdfImageView::drawPage(QPainter& painter, int page, const QRectF& target)
{
    if (page < 1 || page > pageCount())
        return;
    const QRectF onDevice = painter.deviceTransform().mapRect(target);
    const QSizeF points = m_document.pagePointSize(page - 1);
    QSize pixels = onDevice.size().toSize();
    const QSize largest = (points * maximumDotsPerPoint).toSize();
    if (pixels.width() > largest.width() || pixels.height() > largest.height())
        pixels = largest;
    QPdfDocumentRenderOptions options;
    const QImage image = m_document.render(page - 1, pixels.expandedTo(QSize(1, 1)), options);
    painter.drawImage(target, image);
}

QFont PdfImageView::footerFont() const
{
    const QString name = m_settings.stringValue(QStringLiteral("tempBorderFont"));
    QFont font(name.isEmpty() ? QStringLiteral("Times") : name);
    // The painter works in points, so a pixel here is a point on paper.
    font.setPixelSize(7);
    return font;
}

QString PdfImageView::footerLine(int page, int pages) const
{
    if (m_settings.boolValue(QStringLiteral("printBorderless")) ||
        !m_settings.boolValue(QStringLiteral("tempPrintNumbers")))
        return {};
    const QString pageText = StringFormat::apply(m_settings.stringValue(QStringLiteral("locPageOf")),
                                                 {QString::number(page), QString::number(pages)});
    if (!m_settings.boolValue(QStringLiteral("tempPrintDetails")))
        return pageText;
    return StringFormat::apply(QStringLiteral("%@ | %@"),
                               {m_settings.stringValue(QStringLiteral("currentPrintJobTitle")), pageText});
}

void PdfImageView::drawPageBorder(QPainter& painter, const QSizeF& sheet, int page, int pages)
{
    const QString line = footerLine(page, pages);
    if (line.isEmpty())
        return;
    const QFont font = footerFont();
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(line);
    const double height = metrics.height();
    // Centred, its bottom (height + 13) / 2 above the bottom of the sheet.
    const double x = (sheet.width() - width) / 2;
    const double bottom = sheet.height() - (height + 13) / 2;
    painter.save();
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QRectF(x, bottom - height, width, height), Qt::AlignLeft | Qt::AlignBottom, line);
    painter.restore();
}

UserInterface::PrintJob PdfImageView::printJob(const QString& title, const QString& paperName,
                                               bool showPanels)
{
    UserInterface::PrintJob job;
    job.title = title;
    job.paperName = paperName;
    job.paperSize = m_pageSize;
    job.showPanels = showPanels;
    job.pageCount = pageCount();
    job.paintPage = [this](QPainter& painter, int page, const QRectF& sheet) {
        if (m_pageSize.isEmpty())
            return;
        // Fit the page to the width of the sheet; work in points from here.
        const double scale = sheet.width() / m_pageSize.width();
        painter.save();
        painter.translate(sheet.topLeft());
        painter.scale(scale, scale);
        const QSizeF sheetPoints(m_pageSize.width(), sheet.height() / scale);
        drawPage(painter, page + 1, QRectF(QPointF(0, 0), m_document.pagePointSize(page)));
        drawPageBorder(painter, sheetPoints, page + 1, pageCount());
        painter.restore();
    };
    return job;
}

} // namespace vorn
