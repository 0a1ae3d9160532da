#include "tests/output/OutputFixture.h"
#include "tests/output/PdfSupport.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace vorn::test {
namespace {

const char* const tablePage = R"(<!DOCTYPE html>
<html><head><meta charset="utf-8"><style>%CSS%</style></head><body>
<h1>%LETTERTITLE% %NUMBER%</h1><p>%CLIENTADDRESS%</p>
<table><thead><tr><th>%LOCDESCRIPTION%</th><th>%LOCNET%</th></tr></thead><tbody>%ITEMSLIST%</tbody></table>
<p class="total">%LOCTOTAL% %TOTAL% %CURRENCY%</p></body></html>)";
const char* const tableRow = "<tr><td>%ITEMSTITLE%</td><td>%ITEMSAMOUNT%</td></tr>";

class Rendering : public OutputFixture
{
public:
    ManagedObject* documentWithItems(int count)
    {
        addDesign(QString::fromLatin1(tablePage), QString::fromLatin1(tableRow),
                  "body{font-family:sans-serif} td{padding:4pt}");
        ManagedObject* d = addDocument(1, "address", "Erin Holloway\n7 Quarry Lane", "amount", 1234.5f);
        for (int i = 1; i <= count; ++i)
            addItem(d, "title", QString("Item-%1-end").arg(i), "amount", float(i));
        select(d);
        return d;
    }

    QByteArray render(const QString& html, QStringList allowed = {})
    {
        PdfRenderer::Job job = preview.renderJob(html);
        job.allowedFiles += allowed;
        auto pdf = renderer.renderNow(job);
        EXPECT_TRUE(pdf.ok()) << pdf.error().fullText().toStdString();
        return pdf.ok() ? pdf.value() : QByteArray();
    }
};

// Letter, Legal, A4, B4, B5; anything else is Letter. One page is printed
// on its paper; the built-in designs print on A4 and Letter.
TEST_F(Rendering, PrintOnThePaperOfTheSettings)
{
    const std::tuple<int, double, double> papers[] = {
        {0, 612, 792},     {1, 612, 1008}, {2, 595.3, 841.9}, {3, 728.5, 1031.8},
        {4, 515.9, 728.5}, {7, 612, 792},  {-1, 612, 792}};
    for (const auto& [setting, width, height] : papers) {
        const QSizeF size = PdfRenderer::pageSize(setting).size(QPageSize::Point);
        EXPECT_NEAR(size.width(), width, 1.0) << setting;
        EXPECT_NEAR(size.height(), height, 1.0) << setting;
    }
    documentWithItems(3);
    settings.setValue("tempPaperSize", 3);
    PdfInspector pdf(render(preview.invoiceHTMLString()));
    ASSERT_TRUE(pdf.isValid());
    EXPECT_EQ(pdf.pageCount(), 1);
    EXPECT_NEAR(pdf.pageSize().width(), 728.5, 1.0);
    EXPECT_NEAR(pdf.pageSize().height(), 1031.8, 1.0);
    const QString text = pdf.allText();
    EXPECT_TRUE(text.contains("Invoice INV-2025-17")) << text.toStdString();
    EXPECT_TRUE(text.contains("Item-3-end"));
    EXPECT_TRUE(text.contains("{locTotal} 1,234.50 EUR"));
}

TEST_F(Rendering, AFiveThousandItemDocumentPrintsWhole)
{
    documentWithItems(5000);
    PdfInspector pdf(render(preview.invoiceHTMLString()));
    ASSERT_TRUE(pdf.isValid());
    EXPECT_GT(pdf.pageCount(), 50);
    static const QRegularExpression space("\\s+");
    const QString text = pdf.allText().remove(space);
    EXPECT_EQ(text.count("-end"), 5000);
    EXPECT_TRUE(text.contains("Item-5000-end"));
    EXPECT_TRUE(pdf.text(pdf.pageCount() - 1).contains("1,234.50"));
}

TEST_F(Rendering, TheMarginsAreFortyPointsAndSixtyAtTheBottom)
{
    // A page filled with black shows the printable area.
    PdfInspector pdf(render(QStringLiteral("<html><body style=\"margin:0\"><div style=\"background:#000;"
                                           "height:3000px\"></div></body></html>")));
    const QImage page = pdf.image(0);
    ASSERT_FALSE(page.isNull());
    // Unpainted parts of a page are transparent.
    auto dark = [&page](int x, int y) {
        const QRgb p = page.pixel(x, y);
        return qAlpha(p) > 200 && qGray(p) < 60;
    };
    const int w = page.width();
    const int h = page.height();
    // Just outside and just inside each margin: left, right, top, bottom.
    const std::tuple<int, int, int, int> edges[] = {{38, h / 2, 42, h / 2},
                                                    {w - 38, h / 2, w - 42, h / 2},
                                                    {w / 2, 38, w / 2, 42},
                                                    {w / 2, h - 58, w / 2, h - 62}};
    for (const auto& [outX, outY, inX, inY] : edges) {
        EXPECT_FALSE(dark(outX, outY)) << outX << "," << outY;
        EXPECT_TRUE(dark(inX, inY)) << inX << "," << inY;
    }
}

TEST_F(Rendering, NothingOfADocumentReachesTheNetwork)
{
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    int connections = 0;
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        while (QTcpSocket* socket = server.nextPendingConnection()) {
            ++connections;
            socket->close();
        }
    });
    const QString u = QString("http://127.0.0.1:%1").arg(server.serverPort());
    QString html = QStringLiteral(
        "<html><head><link rel=preconnect href='U/pc'><link rel=dns-prefetch href='U/'>"
        "<link rel=prefetch href='U/pf'><link rel=preload as=image href='U/pl.png'><link rel=stylesheet "
        "href='U/s.css'>"
        "<link rel=icon href='U/favicon.ico'><style>@import url('U/i.css'); "
        "@font-face{font-family:r;src:url('U/f.woff')}"
        " body{font-family:r;background:url('U/bg.png')}</style>"
        "<meta http-equiv=refresh content='0;url=U/refresh'><base href='U/base/'></head><body>"
        "<h1>LOCKED-DOWN</h1><img src='U/img.png'><img src='relative.png'><img srcset='U/s1.png 2x'>"
        "<iframe src='U/frame'></iframe><script src='U/s.js'></script><script>document.write('SCRIPT-RAN');"
        "new Image().src='U/js.png'</script><object data='U/obj'></object><embed src='U/embed'>"
        "<video src='U/v.mp4' autoplay poster='U/poster.png'></video><audio src='U/a.mp3' autoplay></audio>"
        "<svg><image href='U/svg.png' width=10 height=10 /></svg><a ping='U/ping' href='U/link'>link</a>"
        "<form action='U/form'><input type=image src='U/input.png'></form></body></html>");
    html.replace(QLatin1Char('U'), u);
    PdfInspector pdf(render(html));
    QTest::qWait(800);
    EXPECT_EQ(connections, 0);
    ASSERT_TRUE(pdf.isValid());
    EXPECT_TRUE(pdf.allText().contains("LOCKED-DOWN"));
    EXPECT_FALSE(pdf.allText().contains("SCRIPT-RAN"));
}

int countPixels(const QImage& image, QRgb colour)
{
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            n += (qAbs(qRed(image.pixel(x, y)) - qRed(colour)) < 30 &&
                  qAbs(qGreen(image.pixel(x, y)) - qGreen(colour)) < 30 &&
                  qAbs(qBlue(image.pixel(x, y)) - qBlue(colour)) < 30);
    return n;
}

TEST_F(Rendering, ImagesOfStylesArePrinted)
{
    // A page whose style sheet brings an image: it must be there in the PDF.
    const QByteArray png = pngData(4, 4, QColor(30, 160, 60));
    PdfInspector pdf(
        render(QStringLiteral("<html><head><style>div{width:200px;height:200px;background:url("
                              "data:image/png;base64,%1)}</style></head><body><div></div></body></html>")
                   .arg(QString::fromLatin1(png.toBase64()))));
    EXPECT_GT(countPixels(pdf.image(0), qRgb(30, 160, 60)), 1000);
}

TEST_F(Rendering, OnlyTheLogoFileLoads)
{
    const QString other = write("other.png", pngData(20, 20, QColor(30, 60, 220)));
    addDesign(
        QString("<html><body>%LOGO% <img src=\"file://%1\" width=80 height=80></body></html>").arg(other),
        {});
    settings.setValue("prefsLogo", pngData(80, 80, QColor(220, 30, 30)));
    select(addDocument(1));

    PdfInspector pdf(render(preview.invoiceHTMLString()));
    const QImage page = pdf.image(0);
    EXPECT_GT(countPixels(page, qRgb(220, 30, 30)), 1000);
    EXPECT_EQ(countPixels(page, qRgb(30, 60, 220)), 0);
}

TEST_F(Rendering, HugeDocumentsLoadFromATemporaryFile)
{
    QString html = "<html><body><div style=\"display:none\">";
    const QString filler = "<p>filler text of a very long document</p>";
    while (html.size() < PdfRenderer::inlineHtmlLimit + 200 * 1000)
        html += filler;
    html += "</div><h1>HUGE-END</h1></body></html>";
    PdfInspector pdf(render(html));
    ASSERT_TRUE(pdf.isValid());
    EXPECT_TRUE(pdf.allText().contains("HUGE-END"));
    EXPECT_TRUE(QDir(QDir::tempPath()).entryList({"vorn-render-*"}, QDir::Dirs).size() >= 1);
}

TEST_F(Rendering, GarbageStylesStillGiveAPage)
{
    addDesign("<style>%CSS%</style><p>STYLED-%NUMBER%</p>", {},
              "}}}{{{ body { color: ;;; font: 9999px/-3 \"\\\"; @media { { { </style><b>");
    select(addDocument(1));
    PdfInspector pdf(render(preview.invoiceHTMLString()));
    ASSERT_TRUE(pdf.isValid());
    EXPECT_GE(pdf.pageCount(), 1);
}

TEST_F(Rendering, ThePreviewWritesThePdfAndReportsIt)
{
    documentWithItems(2);
    QFile::remove(state.pdfPath);
    QSignalSpy ready(&preview, &PreviewController::previewReady);
    QSignalSpy generating(&preview, &PreviewController::generatingChanged);
    state.isReminderAction = true;
    preview.generatePreview();
    EXPECT_FALSE(state.isReminderAction);
    EXPECT_TRUE(preview.isGenerating());
    ASSERT_TRUE(ready.wait(30000));
    EXPECT_EQ(ready.first().first().toString(), state.pdfPath);
    EXPECT_FALSE(preview.isGenerating());
    EXPECT_EQ(generating.count(), 2);
    EXPECT_TRUE(settings.boolValue("isMainPreviewAction"));
    PdfInspector pdf(fileBytes(state.pdfPath));
    EXPECT_TRUE(pdf.allText().contains("Item-2-end"));

    preview.generateReminder({"Second Notice", {}, {}});
    EXPECT_TRUE(state.isReminderAction);
    ASSERT_TRUE(ready.wait(30000));
    PdfInspector reminder(fileBytes(state.pdfPath));
    EXPECT_TRUE(reminder.allText().contains("Second Notice INV-2025-17"));
    EXPECT_TRUE(ui.calls("alert").isEmpty());
}

TEST_F(Rendering, AFileThatCannotBeWrittenIsNotLeftHalfDone)
{
    // A file where a folder should be: no permission can make that writable.
    const QString target = write("not-a-folder", {}) + "/out.pdf";
    Status s = renderer.renderToFile(preview.renderJob("<p>x</p>"), target);
    EXPECT_FALSE(s.ok());
    EXPECT_FALSE(QFile::exists(target));
}

} // namespace
} // namespace vorn::test
