#include "documents/InterchangeFile.h"
#include "invoicing/Calculator.h"
#include "output/ExportController.h"
#include "output/PdfImageView.h"
#include "tests/output/OutputFixture.h"
#include "tests/output/PdfSupport.h"

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
        addDesign("<h1>%LETTERTITLE% %NUMBER%</h1><table>%ITEMSLIST%</table>",
                  "<tr><td>%ITEMSTITLE%</td></tr>");
        settings.setValue("markInvoiceAsSent", true);
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
    settings.setValue("markInvoiceAsSent", mark);
    ManagedObject* d = document(kind);
    run(c.action);
    EXPECT_EQ(state.exportKind, c.kind);
    EXPECT_EQ(state.exportString, QString::fromUtf8(c.sheetTitle));
    const bool marked = kind == 1 && mark;
    EXPECT_EQ(d->intValue("status"), marked ? 1 : 0) << c.name;
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
    const QString target = home("out.pdf");
    ui.answerPanel(target);
    run(&ExportController::pdfInvoice);
    const auto panels = ui.calls("save");
    ASSERT_EQ(panels.size(), 1);
    EXPECT_EQ(panels[0].title + "|" + panels[0].text + "|" + panels[0].buttons.join(','),
              "Export As PDF File|Tandrelo Studio | Invoice | INV-2025-17|pdf");
    EXPECT_TRUE(PdfInspector(fileBytes(target)).allText().contains("Workshop"));

    ui.answerPanel(write("keep.pdf", "mine"));
    run(&ExportController::pdfInvoice);
    ASSERT_EQ(ui.errorCodes(), QList<int>{516});
    EXPECT_EQ(ui.calls("error").last().title,
              "“keep.pdf” could not be written because a file of that name already exists.");
    EXPECT_EQ(fileBytes(home("keep.pdf")), QByteArray("mine"));
}

// The mail program gets the PDF; without one the PDF is shown in the file manager.
TEST_F(Exporting, EmailGoesToTheMailProgramWithThePdf)
{
    document(1);
    for (bool works : {true, false}) {
        mailWorks = works;
        run(&ExportController::emailInvoice);
    }
    ASSERT_EQ(mails.size(), 2);
    EXPECT_EQ(mails[0].subject, "Tandrelo Studio | Invoice | INV-2025-17");
    EXPECT_EQ(mails[0].body, "\n\n\n" + QString(96, QLatin1Char('-')) + "\n\n");
    EXPECT_EQ(mails[0].recipient, "erin@example.test");
    EXPECT_EQ(mails[0].attachment, state.pdfPath);
    EXPECT_TRUE(QFile::exists(mails[0].attachment));
    EXPECT_EQ(ui.alertTitles(), QStringList{"The e-mail could not be prepared"});
    const auto urls = ui.calls("url");
    ASSERT_EQ(urls.size(), 1);
    EXPECT_EQ(QUrl(urls[0].title).toLocalFile(), QFileInfo(state.pdfPath).absolutePath());
}

TEST_F(Exporting, DocumentsExportInBothFormats)
{
    ManagedObject* d = document(1);
    for (int format : {0, 1}) {
        settings.setValue("exportFormat", format);
        const QString target = home(format ? "doc.xml" : "doc.vorn");
        ui.answerPanel(target);
        run(&ExportController::exportInvoice);
        const auto panels = ui.calls("save");
        EXPECT_EQ(panels.last().title, format ? "Export As XML Document" : "Export As Vorn Document");
        const QByteArray data = fileBytes(target);
        ASSERT_FALSE(data.isEmpty());
        if (format == 1) {
            EXPECT_TRUE(data.startsWith("<?xml"));
        } else {
            auto dictionary = InterchangeFile::readDocumentFile(target);
            ASSERT_TRUE(dictionary.ok());
            EXPECT_EQ(dictionary.value().value("number").toString(), d->stringValue("number"));
        }
    }
    EXPECT_TRUE(ui.errorCodes().isEmpty());
}

// The print panels show only when the setting asks (1); 0 and 2 print at once.
TEST_F(Exporting, PrintingShowsThePanelsOnlyWhenTheSettingAsks)
{
    document(1);
    for (int behavior : {0, 1, 2}) {
        SCOPED_TRACE(behavior);
        settings.setValue("printBehavior", behavior);
        ui.clear();
        run(&ExportController::printInvoice);
        const auto prints = ui.calls("print");
        ASSERT_EQ(prints.size(), 1);
        EXPECT_EQ(prints[0].title, "Tandrelo Studio | Invoice | INV-2025-17");
        EXPECT_EQ(prints[0].text, "iso-a4");
        EXPECT_EQ(prints[0].code, behavior == 1 ? 1 : 0);
        EXPECT_EQ(settings.stringValue("currentPrintJobTitle"), prints[0].title);
    }
}

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
        painter.drawText(QPointF(100, 100), QString("CONTENT-%1").arg(page));
    }
    painter.end();
    return path;
}

// Printed pages carry the footer line the settings ask for (here on page 2 of 3).
using Footers = OutputFixture;

TEST_F(Footers, PrintedPagesCarryTheFooterLine)
{
    const std::tuple<bool, bool, bool, const char*> cases[] = {
        {true, false, false, "Page 2 of 3"},
        {true, true, false, "Tandrelo Studio | Invoice | 17 | Page 2 of 3"},
        {false, true, false, ""},
        {true, true, true, ""}};
    for (const auto& [numbers, details, borderless, expected] : cases) {
        SCOPED_TRACE(expected);
        assign(settings, "tempPrintNumbers", numbers, "tempPrintDetails", details, "printBorderless",
               borderless, "currentPrintJobTitle", "Tandrelo Studio | Invoice | 17");
        PdfImageView view(settings);
        ASSERT_TRUE(view.loadFromPath(threePagePdf(home("three.pdf"))).ok());
        EXPECT_EQ(view.pageCount(), 3);
        EXPECT_EQ(view.footerLine(2, 3), QString::fromUtf8(expected));

        // Print it as the shell would, into a PDF, and read the footer back.
        UserInterface::PrintJob job = view.printJob("job", "iso-a4", false);
        ASSERT_EQ(job.pageCount, 3);
        const QString printed = home("printed.pdf");
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
        PdfInspector pdf(fileBytes(printed));
        ASSERT_EQ(pdf.pageCount(), 3);
        const QString page2 = pdf.text(1).simplified();
        if (*expected)
            EXPECT_TRUE(page2.contains(QString::fromUtf8(expected))) << page2.toStdString();
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
}

} // namespace
} // namespace vorn::test
