#include "documents/InterchangeFile.h"
#include "invoicing/Calculator.h"
#include "output/ExportController.h"
#include "output/PdfImageView.h"
#include "tests/output/OutputFixture.h"
#include "tests/output/PdfSupport.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QSignalSpy>

namespace vorn::test {
namespace {

class Exporting : public OutputFixture
{
public:
    Exporting() : calculator(state), exporter(state, preview, calculator)
    {
        exporter.setMailer([this](const ExportController::MailMessage& m) {
            mails.append(m);
            return mailWorks;
        });
        addDesign(QStringLiteral("<h1>%LETTERTITLE% %NUMBER%</h1><table>%ITEMSLIST%</table>"),
                  QStringLiteral("<tr><td>%ITEMSTITLE%</td></tr>"));
        settings.setValue(QStringLiteral("markInvoiceAsSent"), true);
    }

    ManagedObject* document(int kind)
    {
        ManagedObject* d = addDocument(kind, "emailAddress", "erin@example.test");
        addItem(d, "title", "Workshop");
        select(d);
        return d;
    }

    // Runs an action as the main window would, waits for the sheet to be
    // ready, then confirms it.
    void run(void (ExportController::*action)(bool), bool fromPreview = false)
    {
        QSignalSpy sheet(&exporter, &ExportController::exportSheetRequested);
        QSignalSpy ok(&exporter, &ExportController::okEnabledChanged);
        (exporter.*action)(fromPreview);
        ASSERT_EQ(sheet.count(), 1);
        EXPECT_EQ(sheet.first().first().toBool(), fromPreview);
        if (!exporter.isOKEnabled()) {
            ASSERT_TRUE(ok.wait(30000));
        }
        EXPECT_TRUE(exporter.isOKEnabled());
        exporter.exportCommand();
    }

    QString home(const QString& name) const { return QDir(environment.home()).filePath(name); }

    Calculator calculator;
    ExportController exporter;
    QList<ExportController::MailMessage> mails;
    bool mailWorks = true;
};

struct ActionCase
{
    const char* name;
    void (ExportController::*action)(bool);
    quint64 kind;
    const char* sheetTitle;
};

class ExportActions : public Exporting,
                      public ::testing::WithParamInterface<std::tuple<ActionCase, int, bool>>
{
};

// Every action marks an invoice (kind 1) as sent when the setting is on,
// even when its panel was cancelled; quotes never.
TEST_P(ExportActions, MarkOnlyInvoicesAsSentWhenTheSettingIsOn)
{
    const auto& [c, kind, mark] = GetParam();
    settings.setValue(QStringLiteral("markInvoiceAsSent"), mark);
    ManagedObject* d = document(kind);
    run(c.action);
    EXPECT_EQ(state.exportKind, c.kind);
    EXPECT_EQ(state.exportString, QString::fromUtf8(c.sheetTitle));
    const bool marked = kind == 1 && mark;
    EXPECT_EQ(d->intValue(QStringLiteral("status")), marked ? 1 : 0) << c.name;
    // The list totals were computed anew: a sent invoice counts.
    EXPECT_EQ(state.invoiceCount, marked ? 1u : 0u);
}

const ActionCase actions[] = {
    {"print", &ExportController::printInvoice, 0, "Print Invoice"},
    {"pdf", &ExportController::pdfInvoice, 1, "Export Invoice As PDF File"},
    {"email", &ExportController::emailInvoice, 2, "Send Invoice As Email Attachment"},
    {"export", &ExportController::exportInvoice, 3, "Export Invoice"},
};

INSTANTIATE_TEST_SUITE_P(KindsAndSettings, ExportActions,
                         ::testing::Combine(::testing::ValuesIn(actions), ::testing::Values(0, 1),
                                            ::testing::Bool()));

TEST_F(Exporting, PdfIsCopiedWhereTheUserChoseButNeverOverAFile)
{
    document(1);
    const QString target = home(QStringLiteral("out.pdf"));
    ui.answerPanel(target);
    run(&ExportController::pdfInvoice);
    const auto panels = ui.calls(QStringLiteral("save"));
    ASSERT_EQ(panels.size(), 1);
    EXPECT_EQ(panels[0].title + "|" + panels[0].text + "|" + panels[0].buttons.join(','),
              QStringLiteral("Export As PDF File|Tandrelo Studio | Invoice | INV-2025-17|pdf"));
    QFile copy(target);
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_TRUE(PdfInspector(copy.readAll()).allText().contains(QStringLiteral("Workshop")));

    QFile existing(home(QStringLiteral("keep.pdf")));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    existing.write("mine");
    existing.close();
    ui.answerPanel(existing.fileName());
    run(&ExportController::pdfInvoice);
    ASSERT_EQ(ui.errorCodes(), QList<int>{516});
    EXPECT_EQ(ui.calls(QStringLiteral("error")).last().title,
              QStringLiteral("“keep.pdf” could not be written because a file of that name already exists."));
    ASSERT_TRUE(existing.open(QIODevice::ReadOnly));
    EXPECT_EQ(existing.readAll(), QByteArray("mine"));
}

TEST_F(Exporting, EmailGoesToTheMailProgramWithThePdf)
{
    document(1);
    run(&ExportController::emailInvoice);
    ASSERT_EQ(mails.size(), 1);
    EXPECT_EQ(mails[0].subject, QStringLiteral("Tandrelo Studio | Invoice | INV-2025-17"));
    EXPECT_EQ(mails[0].body,
              QStringLiteral("\n\n\n") + QString(96, QLatin1Char('-')) + QStringLiteral("\n\n"));
    EXPECT_EQ(mails[0].recipient, QStringLiteral("erin@example.test"));
    EXPECT_EQ(mails[0].attachment, state.pdfPath);
    EXPECT_TRUE(QFile::exists(mails[0].attachment));
    EXPECT_TRUE(ui.calls(QStringLiteral("alert")).isEmpty());
}

TEST_F(Exporting, WithoutAMailProgramThePdfIsShownInTheFileManager)
{
    mailWorks = false;
    document(1);
    run(&ExportController::emailInvoice);
    EXPECT_EQ(ui.alertTitles(), QStringList{QStringLiteral("The e-mail could not be prepared")});
    const auto urls = ui.calls(QStringLiteral("url"));
    ASSERT_EQ(urls.size(), 1);
    EXPECT_EQ(QUrl(urls[0].title).toLocalFile(), QFileInfo(state.pdfPath).absolutePath());
}

TEST_F(Exporting, DocumentsExportInBothFormats)
{
    ManagedObject* d = document(1);
    for (int format : {0, 1}) {
        settings.setValue(QStringLiteral("exportFormat"), format);
        const QString target = home(format ? QStringLiteral("doc.xml") : QStringLiteral("doc.vorn"));
        ui.answerPanel(target);
        run(&ExportController::exportInvoice);
        const auto panels = ui.calls(QStringLiteral("save"));
        EXPECT_EQ(panels.last().title, format ? QStringLiteral("Export As XML Document")
                                              : QStringLiteral("Export As Vorn Document"));
        QFile file(target);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray data = file.readAll();
        if (format == 1) {
            EXPECT_TRUE(data.startsWith("<?xml"));
        } else {
            auto dictionary = InterchangeFile::readDocumentFile(target);
            ASSERT_TRUE(dictionary.ok());
            EXPECT_EQ(dictionary.value().value(QStringLiteral("number")).toString(),
                      d->stringValue(QStringLiteral("number")));
        }
    }
    EXPECT_TRUE(ui.errorCodes().isEmpty());
}

struct PrintCase
{
    int behavior;
    bool panels;
};

class Printing : public Exporting, public ::testing::WithParamInterface<PrintCase>
{
};

TEST_P(Printing, ShowsThePanelsOnlyWhenTheSettingAsks)
{
    settings.setValue(QStringLiteral("printBehavior"), GetParam().behavior);
    document(1);
    run(&ExportController::printInvoice);
    const auto prints = ui.calls(QStringLiteral("print"));
    ASSERT_EQ(prints.size(), 1);
    EXPECT_EQ(prints[0].title, QStringLiteral("Tandrelo Studio | Invoice | INV-2025-17"));
    EXPECT_EQ(prints[0].text, QStringLiteral("iso-a4"));
    EXPECT_EQ(prints[0].code, GetParam().panels ? 1 : 0);
    EXPECT_EQ(settings.stringValue(QStringLiteral("currentPrintJobTitle")), prints[0].title);
}

INSTANTIATE_TEST_SUITE_P(PrintBehavior, Printing,
                         ::testing::Values(PrintCase{0, false}, PrintCase{1, true}, PrintCase{2, false}));

// A three-page PDF with numbered pages, as the preview makes them.
QString threePagePdf(const QString& path)
{
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(72);
    QPainter painter(&writer);
    for (int page = 1; page <= 3; ++page) {
        if (page > 1)
            writer.newPage();
        painter.drawText(QPointF(100, 100), QStringLiteral("CONTENT-%1").arg(page));
    }
    painter.end();
    return path;
}

struct FooterCase
{
    bool numbers;
    bool details;
    bool borderless;
    const char* expected; // on page 2 of 3
};

class Footers : public OutputFixture, public ::testing::WithParamInterface<FooterCase>
{
};

TEST_P(Footers, PrintedPagesCarryTheFooterLine)
{
    const FooterCase& c = GetParam();
    assign(settings, "tempPrintNumbers", c.numbers, "tempPrintDetails", c.details, "printBorderless",
           c.borderless, "currentPrintJobTitle", "Tandrelo Studio | Invoice | 17");
    PdfImageView view(settings);
    ASSERT_TRUE(
        view.loadFromPath(threePagePdf(QDir(environment.home()).filePath(QStringLiteral("three.pdf")))).ok());
    EXPECT_EQ(view.pageCount(), 3);
    EXPECT_EQ(view.footerLine(2, 3), QString::fromUtf8(c.expected));

    // Print it as the shell would, into a PDF, and read the footer back.
    UserInterface::PrintJob job = view.printJob(QStringLiteral("job"), QStringLiteral("iso-a4"), false);
    ASSERT_EQ(job.pageCount, 3);
    const QString printed = QDir(environment.home()).filePath(QStringLiteral("printed.pdf"));
    {
        QPdfWriter writer(printed);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setResolution(300);
        QPainter painter(&writer);
        for (int page = 0; page < job.pageCount; ++page) {
            if (page > 0)
                writer.newPage();
            job.paintPage(painter, page, QRectF(QPointF(0, 0), QSizeF(writer.width(), writer.height())));
        }
    }
    QFile file(printed);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    PdfInspector pdf(file.readAll());
    ASSERT_EQ(pdf.pageCount(), 3);
    const QString page2 = pdf.text(1).simplified();
    if (*c.expected)
        EXPECT_TRUE(page2.contains(QString::fromUtf8(c.expected))) << page2.toStdString();
    else
        EXPECT_TRUE(page2.isEmpty()) << page2.toStdString();
    // The page image itself is there, in the upper part of the sheet.
    const QImage image = pdf.image(1);
    bool inked = false;
    for (int y = 80; y < 110 && !inked; ++y)
        for (int x = 95; x < 200 && !inked; ++x)
            inked = qAlpha(image.pixel(x, y)) > 0 && qGray(image.pixel(x, y)) < 128;
    EXPECT_TRUE(inked);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, Footers,
    ::testing::Values(FooterCase{true, false, false, "Page 2 of 3"},
                      FooterCase{true, true, false, "Tandrelo Studio | Invoice | 17 | Page 2 of 3"},
                      FooterCase{false, true, false, ""}, FooterCase{true, true, true, ""}));

} // namespace
} // namespace vorn::test
