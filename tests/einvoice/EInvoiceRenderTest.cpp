#include "documents/PaymentQrCode.h"
#include "einvoice/CiiReader.h"
#include "store/AtomicFile.h"
#include "tests/einvoice/EInvoiceFixture.h"
#include "tests/support/TestFiles.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace vorn::test {
namespace {

// Runs a program; its standard output, or nothing when it is not installed
// or failed.
std::optional<QByteArray> run(const QString& program, const QStringList& args)
{
    if (QStandardPaths::findExecutable(program).isEmpty() && !QFile::exists(program))
        return std::nullopt;
    QProcess p;
    p.start(program, args);
    if (!p.waitForFinished(60000) || p.exitCode() != 0)
        return std::nullopt;
    return p.readAllStandardOutput();
}

// The invoice in the built-in design that shows the payment QR code.
class EInvoiceRenderTest : public EInvoiceFixture
{
public:
    EInvoiceRenderTest()
    {
        const QString dir = QStringLiteral(VORN_DESIGNS_DIR "/Temp008/");
        addDesign(readText(dir + QStringLiteral("invoice.html")), readText(dir + QStringLiteral("item.html")),
                  readText(dir + QStringLiteral("style.css")));
    }

    Result<QByteArray> facturX()
    {
        std::optional<Result<QByteArray>> made;
        QEventLoop loop;
        einvoice.makeFacturX(EInvoiceProfile::En16931, [&](Result<QByteArray> r) {
            made = std::move(r);
            loop.quit();
        });
        if (!made)
            loop.exec();
        return std::move(*made);
    }

    QTemporaryDir scratch;
};

TEST_F(EInvoiceRenderTest, FacturXCarriesTheXmlTheMetadataAndTheOutputIntent)
{
    germanInvoice();
    Result<QByteArray> pdf = facturX();
    ASSERT_TRUE(pdf.ok()) << pdf.error().fullText().toStdString();
    const QString path = scratch.filePath(QStringLiteral("invoice.pdf"));
    ASSERT_TRUE(AtomicFile::writeNew(path, pdf.value()).ok());
    EXPECT_FALSE(AtomicFile::writeNew(path, pdf.value()).ok()); // never over a file

    // qpdf's command-line tool extracts the attachment; it reads back as the invoice.
    const std::optional<QByteArray> xml =
        run(QStringLiteral("qpdf"), {QStringLiteral("--show-attachment=factur-x.xml"), path});
    if (!xml)
        GTEST_SKIP() << "qpdf is not installed";
    Result<CiiSummary> summary = CiiSummary::read(*xml);
    ASSERT_TRUE(summary.ok());
    EXPECT_EQ(summary->totals.value(QStringLiteral("DuePayableAmount")), 44346);

    const std::optional<QByteArray> report =
        run(QStringLiteral("/usr/bin/python3"),
            {QStringLiteral(VORN_EINVOICE_TEST_DIR "/check_facturx.py"), path});
    if (!report)
        GTEST_SKIP() << "python3-pikepdf is not installed";
    const QJsonObject r = QJsonDocument::fromJson(*report).object();
    const QJsonValue attachment = r[u"attachments"][u"factur-x.xml"], xmp = r[u"xmp"];
    const QJsonValue intent = r[u"intents"].toArray().first();
    EXPECT_EQ(QStringList({attachment[u"relationship"].toString(), attachment[u"subtype"].toString(),
                           r[u"af"].toArray().first().toString(), intent[u"s"].toString(),
                           xmp[u"pdfaid:part"].toString(), xmp[u"pdfaid:conformance"].toString(),
                           xmp[u"fx:DocumentFileName"].toString(), xmp[u"fx:ConformanceLevel"].toString(),
                           r[u"version"].toString()}),
              QStringList({"/Alternative", "/text/xml", "factur-x.xml", "/GTS_PDFA1", "3", "B",
                           "factur-x.xml", "EN 16931", "1.7"}));
    EXPECT_EQ(attachment[u"bytes"].toInt(), xml->size());
    EXPECT_EQ(intent[u"n"].toInt(), 3);
    EXPECT_FALSE(r[u"metadataFiltered"].toBool());
    EXPECT_TRUE(r[u"fontsEmbedded"].toBool());
}

// The page shows the EPC code; a scanner reads the transfer from it.
TEST_F(EInvoiceRenderTest, ThePaymentQrCodeOnThePageDecodesToTheTransfer)
{
    ManagedObject* d = germanInvoice();
    const std::optional<PaymentQrCode::Payment> payment = PaymentQrCode::paymentForDocument(*d, settings);
    ASSERT_TRUE(payment);
    EXPECT_EQ(QString::fromUtf8(PaymentQrCode::payload(*payment)),
              QStringLiteral("BCD\n002\n1\nSCT\nCOBADEFFXXX\nTandrelo Studio GmbH\nDE89370400440532013000\n"
                             "EUR443.46\n\n\nRechnung RE-2025-17"));
    Result<QByteArray> pdf = renderer.renderNow(preview.renderJob(preview.invoiceHTMLString()));
    ASSERT_TRUE(pdf.ok());
    const QString path = scratch.filePath(QStringLiteral("page.pdf"));
    ASSERT_TRUE(AtomicFile::writeNew(path, pdf.value()).ok());
    if (!run(QStringLiteral("pdftoppm"),
             {QStringLiteral("-r"), QStringLiteral("200"), QStringLiteral("-png"), QStringLiteral("-f"),
              QStringLiteral("1"), QStringLiteral("-l"), QStringLiteral("1"), path,
              scratch.filePath(QStringLiteral("page"))}))
        GTEST_SKIP() << "pdftoppm is not installed";
    const QStringList pages = QDir(scratch.path()).entryList({QStringLiteral("page*.png")});
    ASSERT_EQ(pages.size(), 1);
    const std::optional<QByteArray> decoded =
        run(QStringLiteral("zbarimg"),
            {QStringLiteral("--raw"), QStringLiteral("-q"), scratch.filePath(pages.first())});
    if (!decoded)
        GTEST_SKIP() << "zbarimg is not installed or found no code";
    EXPECT_EQ(decoded->trimmed(), PaymentQrCode::payload(*payment));
}

// With Factur-X as the chosen PDF, the PDF export writes invoices as
// Factur-X files, refuses incomplete ones, and leaves quotes as they are.
TEST_F(EInvoiceRenderTest, ThePdfExportWritesFacturXWhenThatIsTheChoice)
{
    ManagedObject* d = germanInvoice();
    Result<QByteArray> pdf = renderer.renderNow(preview.renderJob(preview.invoiceHTMLString()));
    ASSERT_TRUE(pdf.ok());
    EXPECT_EQ(einvoice.pdfForExport(*d, pdf.value()).value(), pdf.value());

    settings.setValue(key::prefsFacturXDefault, true);
    Result<QByteArray> facturX = einvoice.pdfForExport(*d, pdf.value());
    ASSERT_TRUE(facturX.ok());
    EXPECT_TRUE(facturX->contains("<fx:DocumentFileName>factur-x.xml</fx:DocumentFileName>"));
    d->setValue(key::buyerCountryCode, QString());
    EXPECT_EQ(einvoice.pdfForExport(*d, pdf.value()).error().message,
              QStringLiteral("The buyer's country is missing."));
    d->setValue(QStringLiteral("kind"), 0);
    EXPECT_EQ(einvoice.pdfForExport(*d, pdf.value()).value(), pdf.value());
}

} // namespace
} // namespace vorn::test
