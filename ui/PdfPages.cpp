#include "ui/PdfPages.h"

#include "ui/UiLog.h"

#include <QFile>
#include <QPainter>

namespace vorn {

PdfPages::PdfPages(QObject* parent) : QObject(parent) {}

bool PdfPages::load(const QString& path)
{
    clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcUi) << "cannot read the PDF" << path << file.errorString();
        Q_EMIT changed();
        return false;
    }
    m_buffer.setData(file.readAll());
    m_buffer.open(QIODevice::ReadOnly);
    m_document.load(&m_buffer);
    const bool ok = m_document.status() == QPdfDocument::Status::Ready && m_document.pageCount() > 0;
    if (!ok) {
        qCWarning(lcUi) << "not a readable PDF:" << path;
        clear();
    }
    Q_EMIT changed();
    return ok;
}

void PdfPages::clear()
{
    m_document.close();
    m_buffer.close();
    m_buffer.setData(QByteArray());
}

QImage PdfPages::pageImage(int page, QSize box, qreal devicePixelRatio)
{
    const QSizeF points = m_document.pagePointSize(page);
    if (points.isEmpty() || box.isEmpty())
        return {};
    const QSize logical = points.scaled(QSizeF(box), Qt::KeepAspectRatio).toSize();
    const QSize pixels = logical * devicePixelRatio;
    QImage image = m_document.render(page, pixels);
    if (image.isNull())
        return {};
    // Pages without a background of their own are transparent.
    QImage sheet(image.size(), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.drawImage(0, 0, image);
    painter.end();
    sheet.setDevicePixelRatio(devicePixelRatio);
    return sheet;
}

} // namespace vorn
