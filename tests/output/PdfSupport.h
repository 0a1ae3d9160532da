#pragma once

#include <QBuffer>
#include <QImage>
#include <QPdfDocument>
#include <QPdfSelection>
#include <QStringList>

#include <memory>

namespace vorn::test {

// A rendered PDF opened for inspection.
class PdfInspector
{
public:
    explicit PdfInspector(const QByteArray& data) : m_data(data), m_buffer(&m_data)
    {
        m_buffer.open(QIODevice::ReadOnly);
        m_document.load(&m_buffer);
    }
    bool isValid() const { return m_document.status() == QPdfDocument::Status::Ready; }
    int pageCount() const { return m_document.pageCount(); }
    QSizeF pageSize(int page = 0) const { return m_document.pagePointSize(page); }
    QString text(int page) { return m_document.getAllText(page).text(); }
    QString allText()
    {
        QStringList pages;
        for (int i = 0; i < pageCount(); ++i)
            pages << text(i);
        return pages.join(QLatin1Char('\f'));
    }
    QImage image(int page, double scale = 1.0)
    {
        return m_document.render(page, (pageSize(page) * scale).toSize());
    }

private:
    QByteArray m_data;
    QBuffer m_buffer;
    QPdfDocument m_document;
};

} // namespace vorn::test
