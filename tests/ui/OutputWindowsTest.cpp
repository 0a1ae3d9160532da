#include "app/AppDelegate.h"
#include "invoicing/InvoicingControllers.h"
#include "output/ExportController.h"
#include "output/PreviewController.h"
#include "store/Clock.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"
#include "ui/ExportSheet.h"
#include "ui/MainWindow.h"
#include "ui/PreviewWindow.h"

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimeZone>

#include <gtest/gtest.h>

namespace vorn::test {
namespace {

// The main window over a launched application with one invoice, its output
// commands driven as the menus and toolbars drive them.
class OutputWindowsTest : public ::testing::Test
{
public:
    OutputWindowsTest()
        : clock(QDateTime(QDate(2026, 11, 21), QTime(9, 0), QTimeZone::utc())),
          settings(env.locations().settingsFile())
    {
        app = std::make_unique<AppDelegate>(settings, ui, clock, env.locations());
        app->setLaunchChecksEnabled(false);
        app->awakeFromNib();
        app->applicationDidFinishLaunching();
        invoice = app->invoicing().data().addInvoice();
        window = std::make_unique<MainWindow>(*app);
        window->show();
    }
    ~OutputWindowsTest() override
    {
        window.reset();
        app.reset();
    }

    void trigger(const char* command) { window->command(QLatin1String(command))->trigger(); }
    PreviewWindow& preview() { return *window->previewWindow(); }
    bool waitForPreview()
    {
        QSignalSpy ready(&app->preview(), &PreviewController::previewReady);
        return ready.wait(60000);
    }

    TestEnvironment env;
    FixedClock clock;
    Settings settings;
    ScriptedUserInterface ui;
    std::unique_ptr<AppDelegate> app;
    std::unique_ptr<MainWindow> window;
    ManagedObject* invoice = nullptr;
};

TEST_F(OutputWindowsTest, PreviewCommandOpensTheWindowWithThePagesAndClosesItAgain)
{
    trigger("showPreview");
    ASSERT_TRUE(preview().isVisible());
    ASSERT_TRUE(waitForPreview());
    EXPECT_EQ(preview().pageCount(), 1);
    EXPECT_EQ(preview().thumbnailView()->count(), 1);

    trigger("showPreview");
    EXPECT_FALSE(preview().isVisible());
    EXPECT_FALSE(app->preview().isPreviewWindowVisible());

    // Closed by its own close button, the next command opens it again.
    trigger("showPreview");
    ASSERT_TRUE(waitForPreview());
    preview().close();
    EXPECT_FALSE(app->preview().isPreviewWindowVisible());
    trigger("showPreview");
    EXPECT_TRUE(preview().isVisible());
    ASSERT_TRUE(waitForPreview());

    // An edit rearranges the list: the document shown may have left it.
    app->invoicing().data().changedInvoiceCriteria();
    EXPECT_FALSE(preview().isVisible());
    EXPECT_FALSE(app->preview().isPreviewWindowVisible());
}

TEST_F(OutputWindowsTest, ReminderSheetFollowsTheInvoiceAndShowsItsTextsInThePreview)
{
    QAction* reminder = window->command(QStringLiteral("openReminderSheet"));
    EXPECT_FALSE(reminder->isEnabled()) << "a new invoice is not overdue";
    invoice->setValue(QStringLiteral("status"), 2);
    app->invoicing().gui().delayedToolbarLabel();
    ASSERT_TRUE(reminder->isEnabled());

    reminder->trigger();
    auto* sheet = window->findChild<QDialog*>(QStringLiteral("reminderSheet"));
    ASSERT_TRUE(sheet && sheet->isVisible());
    auto* title = sheet->findChild<QLineEdit*>(QStringLiteral("reminderTitleField"));
    EXPECT_EQ(title->text(), settings.stringValue(QStringLiteral("locReminder")));
    title->setText(QStringLiteral("Second Notice"));
    sheet->accept();

    EXPECT_FALSE(sheet->isVisible());
    EXPECT_TRUE(app->state().isReminderAction);
    EXPECT_EQ(app->preview().reminderTexts().title, QStringLiteral("Second Notice"));
    EXPECT_TRUE(preview().isVisible());
    ASSERT_TRUE(waitForPreview());
}

// Each output command opens the sheet on the window it came from; the
// sheet confirms only once its PDF is made.
struct SheetCase
{
    const char* command;
    bool fromPreview;
    qint64 kind;
    const char* title;
};

class ExportSheetTest : public OutputWindowsTest, public ::testing::WithParamInterface<SheetCase>
{
};

TEST_P(ExportSheetTest, OpensOnItsWindowAndConfirmsOnceThePdfIsMade)
{
    const SheetCase& c = GetParam();
    ExportController& exporter = app->exporter();
    QSignalSpy ready(&exporter, &ExportController::okEnabledChanged);
    if (c.fromPreview) {
        trigger("showPreview");
        ASSERT_TRUE(waitForPreview());
        using Command = void (ExportController::*)(bool);
        const QMap<QString, Command> commands{
            {QStringLiteral("printInvoice"), &ExportController::printInvoice},
            {QStringLiteral("pdfInvoice"), &ExportController::pdfInvoice}};
        (exporter.*commands.value(QLatin1String(c.command)))(true);
    } else {
        trigger(c.command);
    }
    ExportSheet& sheet = *window->exportSheet();
    ASSERT_TRUE(sheet.isVisible());
    EXPECT_EQ(sheet.parentWidget(), c.fromPreview ? static_cast<QWidget*>(&preview()) : window.get());
    EXPECT_EQ(app->state().exportKind, c.kind);
    EXPECT_EQ(sheet.windowTitle(), QLatin1String(c.title));
    EXPECT_FALSE(sheet.okButton()->isEnabled());
    ASSERT_TRUE(ready.wait(60000));
    EXPECT_TRUE(sheet.okButton()->isEnabled());
    EXPECT_TRUE(QFile::exists(app->state().pdfPath));

    sheet.reject();
    EXPECT_FALSE(sheet.isVisible());
    EXPECT_EQ(invoice->intValue(QStringLiteral("status")), 0) << "cancelling changes nothing";
}

INSTANTIATE_TEST_SUITE_P(
    Commands, ExportSheetTest,
    ::testing::Values(
        SheetCase{"printInvoice", false, ExportController::Print, "Print Invoice"},
        SheetCase{"pdfInvoice", false, ExportController::PdfFile, "Export Invoice As PDF File"},
        SheetCase{"emailInvoice", false, ExportController::Email, "Send Invoice As Email Attachment"},
        SheetCase{"exportInvoice", false, ExportController::DocumentExport, "Export Invoice"},
        SheetCase{"pdfInvoice", true, ExportController::PdfFile, "Export Invoice As PDF File"}));

TEST_F(OutputWindowsTest, SavingThePdfWritesTheFileMarksTheInvoiceSentAndCountsIt)
{
    settings.setValue(QStringLiteral("markInvoiceAsSent"), true);
    const QString target = env.home() + QStringLiteral("/Invoice for Acme.pdf");
    ui.answerPanel(target);
    QSignalSpy ready(&app->exporter(), &ExportController::okEnabledChanged);
    trigger("pdfInvoice");
    ASSERT_TRUE(ready.wait(60000));
    window->exportSheet()->okButton()->click();

    EXPECT_FALSE(window->exportSheet()->isVisible());
    QFile file(target);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.read(5) == "%PDF-");
    EXPECT_EQ(invoice->intValue(QStringLiteral("status")), 1);
    EXPECT_EQ(app->state().invoiceCount, 1) << "a sent invoice is counted under the list";
}

// The File menu's e-invoice commands are there for invoices only; with the
// seller's data missing, the export says so and asks for no file.
TEST_F(OutputWindowsTest, EInvoiceCommandsSayWhatIsMissing)
{
    window->validateCommands();
    ASSERT_TRUE(window->command(QStringLiteral("exportXRechnung"))->isEnabled());
    ui.clear();
    trigger("exportXRechnung");
    const auto alerts = ui.calls(QStringLiteral("alert"));
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts.first().title, QStringLiteral("The e-invoice cannot be made"));
    EXPECT_TRUE(alerts.first().text.contains(QStringLiteral("The buyer's country is missing.")));
    EXPECT_TRUE(ui.calls(QStringLiteral("save")).isEmpty());

    app->invoicing().data().addQuote();
    window->validateCommands();
    EXPECT_FALSE(window->command(QStringLiteral("exportFacturX"))->isEnabled());
}

} // namespace
} // namespace vorn::test
