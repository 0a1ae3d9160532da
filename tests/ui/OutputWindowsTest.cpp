#include "invoicing/InvoicingControllers.h"
#include "output/ExportController.h"
#include "output/PreviewController.h"
#include "store/ManagedObject.h"
#include "tests/ui/UiFixture.h"
#include "ui/ExportSheet.h"
#include "ui/PreviewWindow.h"

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>

namespace vorn::test {
namespace {

// The main window over a launched application with one invoice, its output
// commands driven as the menus and toolbars drive them.
class OutputWindowsTest : public AppFixture
{
public:
    OutputWindowsTest() : invoice(app->invoicing().data().addInvoice()) {}

    void trigger(const char* command) { window->command(QLatin1String(command))->trigger(); }
    PreviewWindow& preview() { return *window->previewWindow(); }
    bool waitForPreview()
    {
        QSignalSpy ready(&app->preview(), &PreviewController::previewReady);
        return ready.wait(60000);
    }

    ManagedObject* invoice;
};

TEST_F(OutputWindowsTest, PreviewCommandOpensTheWindowWithThePagesAndClosesItAgain)
{
    trigger("showPreview");
    ASSERT_TRUE(preview().isVisible());
    ASSERT_TRUE(waitForPreview());
    EXPECT_EQ(preview().pageCount(), 1);
    EXPECT_EQ(preview().thumbnailView()->count(), 1);
    EXPECT_EQ(unnamedControls(preview()), QStringList());
    shoot(&preview(), "preview-window");

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
    QAction* reminder = window->command("openReminderSheet");
    EXPECT_FALSE(reminder->isEnabled()) << "a new invoice is not overdue";
    invoice->setValue("status", 2);
    app->invoicing().gui().delayedToolbarLabel();
    ASSERT_TRUE(reminder->isEnabled());

    reminder->trigger();
    auto* sheet = window->findChild<QDialog*>("reminderSheet");
    ASSERT_TRUE(sheet && sheet->isVisible());
    auto* title = sheet->findChild<QLineEdit*>("reminderTitleField");
    EXPECT_EQ(title->text(), settings.stringValue("locReminder"));
    EXPECT_EQ(unnamedControls(*sheet), QStringList());
    shoot(sheet, "reminder-sheet");
    title->setText("Second Notice");
    sheet->accept();

    EXPECT_FALSE(sheet->isVisible());
    EXPECT_TRUE(app->state().isReminderAction);
    EXPECT_EQ(app->preview().reminderTexts().title, "Second Notice");
    EXPECT_TRUE(preview().isVisible());
    ASSERT_TRUE(waitForPreview());
}

// The PDF sheet opens on the window its command came from and confirms only
// once its PDF is made; cancelled it changes nothing, confirmed it writes
// the file where the user chose and marks the invoice sent.
TEST_F(OutputWindowsTest, ThePdfSheetOpensOnItsWindowAndSavesTheFile)
{
    settings.setValue("markInvoiceAsSent", true);
    QSignalSpy ready(&app->exporter(), &ExportController::okEnabledChanged);
    trigger("showPreview");
    ASSERT_TRUE(waitForPreview());
    app->exporter().pdfInvoice(true);
    ExportSheet& sheet = *window->exportSheet();
    ASSERT_TRUE(sheet.isVisible());
    EXPECT_EQ(sheet.parentWidget(), &preview());
    EXPECT_EQ(sheet.windowTitle(), "Export Invoice As PDF File");
    EXPECT_FALSE(sheet.okButton()->isEnabled());
    ASSERT_TRUE(ready.wait(60000));
    EXPECT_TRUE(sheet.okButton()->isEnabled());
    EXPECT_EQ(unnamedControls(sheet), QStringList());
    shoot(&sheet, "export-sheet");
    sheet.reject();
    EXPECT_FALSE(sheet.isVisible());
    EXPECT_EQ(invoice->intValue("status"), 0);

    trigger("showPreview");
    const QString target = env.home() + "/Invoice for Acme.pdf";
    ui.answerPanel(target);
    trigger("pdfInvoice");
    ASSERT_TRUE(sheet.isVisible());
    EXPECT_EQ(sheet.parentWidget(), window.get());
    ASSERT_TRUE(ready.wait(60000));
    sheet.okButton()->click();
    EXPECT_FALSE(sheet.isVisible());
    EXPECT_TRUE(fileBytes(target).startsWith("%PDF-"));
    EXPECT_EQ(invoice->intValue("status"), 1);
}

// The File menu's e-invoice commands are there for invoices only; with the
// seller's data missing, the export says so and asks for no file.
TEST_F(OutputWindowsTest, EInvoiceCommandsSayWhatIsMissing)
{
    window->validateCommands();
    ASSERT_TRUE(window->command("exportXRechnung")->isEnabled());
    ui.clear();
    trigger("exportXRechnung");
    const auto alerts = ui.calls("alert");
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts.first().title, "The e-invoice cannot be made");
    EXPECT_TRUE(alerts.first().text.contains("The buyer's country is missing."));
    EXPECT_TRUE(ui.calls("save").isEmpty());

    app->invoicing().data().addQuote();
    window->validateCommands();
    EXPECT_FALSE(window->command("exportFacturX")->isEnabled());
}

} // namespace
} // namespace vorn::test
