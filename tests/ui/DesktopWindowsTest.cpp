#include "app/AppDelegate.h"
#include "app/AssiController.h"
#include "services/ServiceUrls.h"
#include "services/ZRUpdateChecker.h"
#include "store/Clock.h"
#include "store/PropertyList.h"
#include "store/Settings.h"
#include "tests/services/HttpStub.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"
#include "ui/AssistantSheet.h"
#include "ui/HelpMenu.h"
#include "ui/MainWindow.h"
#include "ui/QVBox.h"
#include "ui/QVLinkButton.h"
#include "ui/QVRedNormalButton.h"
#include "ui/QVRoundedFields.h"
#include "ui/QVShadowTextField.h"
#include "ui/QVSplitView.h"
#include "ui/Translations.h"
#include "ui/UpdateWindow.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QNetworkProxy>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QTimeZone>

#include <gtest/gtest.h>

namespace vorn::test {
namespace {

// Saves a picture of a widget when VORN_SCREENSHOT_DIR names a folder (for
// looking at the windows; the tests do not compare pictures).
void screenshot(QWidget& widget, const QString& name)
{
    const QString dir = qEnvironmentVariable("VORN_SCREENSHOT_DIR");
    if (dir.isEmpty())
        return;
    // Layouts of texts that just changed settle first.
    QCoreApplication::processEvents();
    widget.grab().save(dir + QLatin1Char('/') + name + QStringLiteral(".png"));
}

bool waitFor(const std::function<bool()>& done, int ms = 10000)
{
    QDeadlineTimer deadline(ms);
    while (!done() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return done();
}

class DesktopWindowsTest : public ::testing::Test
{
public:
    DesktopWindowsTest()
        : clock(QDateTime(QDate(2026, 11, 21), QTime(9, 0), QTimeZone::utc())),
          settings(env.locations().settingsFile())
    {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        app = std::make_unique<AppDelegate>(settings, ui, clock, env.locations());
        app->setLaunchChecksEnabled(false);
        app->awakeFromNib();
        app->applicationDidFinishLaunching();
        window = std::make_unique<MainWindow>(*app);
        window->resize(1000, 640);
        window->show();
        help = HelpMenu::of(window.get());
    }
    ~DesktopWindowsTest() override
    {
        Translations::install(0);
        window.reset();
        app.reset();
    }

    TestEnvironment env;
    FixedClock clock;
    Settings settings;
    ScriptedUserInterface ui;
    std::unique_ptr<AppDelegate> app;
    std::unique_ptr<MainWindow> window;
    HelpMenu* help = nullptr;
};

// A first run in German: the sheet opens, the language page writes the
// German defaults and turns the windows German, the consent to the update
// check is taken on the company page, and the last page ends the assistant.
TEST_F(DesktopWindowsTest, FirstRunInGermanThroughTheAssistant)
{
    ASSERT_NE(help, nullptr);
    AssistantSheet& sheet = *help->assistant();
    app->assiController().openAssiAtFirstRun();
    ASSERT_TRUE(sheet.isVisible());
    EXPECT_TRUE(sheet.isModal());
    EXPECT_EQ(sheet.pages()->currentIndex(), 0);
    screenshot(sheet, "assistant-language");

    sheet.languageChoice()->setCurrentIndex(1);
    sheet.continueButton()->click();
    EXPECT_EQ(sheet.pages()->currentIndex(), 1);
    EXPECT_EQ(settings.stringValue("locInvoice"), "Rechnung");
    EXPECT_EQ(Translations::installedLanguage(), 1);
    EXPECT_EQ(sheet.continueButton()->text(), "&Weiter");
    EXPECT_EQ(help->menu()->title(), "&Hilfe");

    auto* company = sheet.findChild<QLineEdit*>("assiCompanyField");
    ASSERT_NE(company, nullptr);
    company->setText("Kim Design");
    Q_EMIT company->textEdited("Kim Design");
    sheet.findChild<QCheckBox*>("assiUpdateCheck")->setChecked(true);
    screenshot(sheet, "assistant-company-de");
    // Every control on the page has a name for the accessibility tree.
    QStringList unnamed;
    for (QWidget* w : sheet.findChildren<QWidget*>())
        if (w->focusPolicy() != Qt::NoFocus && w->isVisibleTo(&sheet) && w->accessibleName().isEmpty())
            unnamed << QString::fromLatin1(w->metaObject()->className()) + " " + w->objectName();
    EXPECT_TRUE(unnamed.isEmpty()) << qPrintable(unnamed.join(", "));
    sheet.continueButton()->click();
    sheet.continueButton()->click();
    EXPECT_EQ(sheet.pages()->currentIndex(), 3);

    ui.answerAlert(1); // no video
    ui.answerAlert(1); // restart later
    sheet.continueButton()->click();
    EXPECT_FALSE(sheet.isVisible());
    EXPECT_TRUE(settings.boolValue("isAssiDone"));
    EXPECT_EQ(settings.stringValue("prefsName"), "Kim Design");
    EXPECT_TRUE(settings.boolValue(ZRUpdateChecker::checkAtStartupKey));
    EXPECT_EQ(ui.alertTitles(), (QStringList{"30-Sekunden-Einführung", "Vorn neu starten?"}));
    // After the restart the main window is German throughout.
    window.reset();
    window = std::make_unique<MainWindow>(*app);
    window->resize(1000, 640);
    window->show();
    EXPECT_EQ(window->fileMenu()->title(), "&Datei");
    EXPECT_EQ(HelpMenu::of(window.get())->menu()->title(), "&Hilfe");
    screenshot(*window, "main-window-de");
}

// "Check for Updates…" against a server on the loopback: first the answer
// that this is the newest version, then a newer one in the update window
// (in German, where the texts are longest).
TEST_F(DesktopWindowsTest, CheckForUpdatesShowsBothAnswers)
{
    Translations::install(1);
    HttpStub stub;
    settings.setValue(ServiceUrls::versionList, stub.url("/list.plist").toString());
    settings.setValue(ServiceUrls::releaseNotes, stub.url("/notes.txt").toString());
    settings.setValue(ServiceUrls::download, stub.url("/Vorn.zip").toString());
    const auto list = [](const QString& version) {
        return PropertyList::toXml(QVariantMap{{"version", version}, {"productVersion", "Vorn " + version}});
    };
    help->updateChecker().setApplicationVersion("1.0.0");
    QAction* check = help->command("checkForUpdates");
    ASSERT_NE(check, nullptr);

    stub.route("/list.plist", {200, list("1.0.0")});
    check->trigger();
    EXPECT_FALSE(check->isEnabled());
    ASSERT_TRUE(waitFor([&] { return !help->updateChecker().isChecking(); }));
    EXPECT_EQ(ui.alertTitles(), QStringList{"Sie sind auf dem neuesten Stand!"});
    EXPECT_TRUE(check->isEnabled());

    stub.route("/list.plist", {200, list("1.1.0")});
    stub.route("/notes.txt", {200, "Faster PDFs.\nA German interface."});
    check->trigger();
    ASSERT_TRUE(waitFor([&] { return help->updateWindow() && help->updateWindow()->isVisible(); }));
    UpdateWindow& w = *help->updateWindow();
    EXPECT_TRUE(w.versionLabel()->text().contains("Vorn 1.1.0"));
    EXPECT_TRUE(w.versionLabel()->text().contains("1.0.0"));
    EXPECT_EQ(w.notesView()->toPlainText(), "Faster PDFs.\nA German interface.");
    screenshot(w, "update-window-de");
    w.downloadButton()->click();
    EXPECT_FALSE(w.isVisible());
    EXPECT_EQ(ui.calls("url").value(0).title, stub.url("/Vorn.zip").toString());
}

// Not a test of pixels: draws every box kind, light and dark, and the other
// custom elements, for looking at them (run with QT_SCALE_FACTOR=1, 1.5 and
// 2 and VORN_SCREENSHOT_DIR set). The link button opens through its opener.
TEST_F(DesktopWindowsTest, CustomElementsDrawInBothSchemes)
{
    QWidget sheet;
    auto* grid = new QGridLayout(&sheet);
    const int elementsRow = QMetaEnum::fromType<QVBox::Kind>().keyCount();
    auto* link = new QVLinkButton("Vorn Website", QUrl("https://vorn.tandrelo.com/"));
    QUrl opened;
    link->setOpener([&](const QUrl& url) { opened = url; });
    grid->addWidget(link, elementsRow, 0);
    grid->addWidget(new QVRedNormalButton("Delete"), elementsRow, 1);
    auto* field = new QVRoundedTextField;
    field->setText("Kim Design");
    grid->addWidget(field, elementsRow + 1, 0);
    grid->addWidget(new QVRoundedDatePicker, elementsRow + 1, 1);
    grid->addWidget(new QVShadowTextField("Shadow text"), elementsRow + 2, 0);
    auto* split = new QVSplitView(Qt::Horizontal);
    split->addWidget(new QVBox(QVBox::Sidebar));
    split->addWidget(new QVBox(QVBox::LightBackground));
    split->setFixedHeight(40);
    grid->addWidget(split, elementsRow + 2, 1);
    const QMetaEnum kinds = QMetaEnum::fromType<QVBox::Kind>();
    for (int dark = 0; dark < 2; ++dark) {
        for (int i = 0; i < kinds.keyCount(); ++i) {
            auto* box = new QVBox(QVBox::Kind(kinds.value(i)));
            if (dark) {
                QPalette p = box->palette();
                p.setColor(QPalette::Window, QColor(40, 40, 40));
                p.setColor(QPalette::WindowText, Qt::white);
                box->setPalette(p);
            }
            box->setFixedSize(120, 36);
            auto* label = new QLabel(QString::fromLatin1(kinds.key(i)), box);
            label->move(6, 10);
            grid->addWidget(box, i, dark);
        }
    }
    sheet.show();
    link->click();
    EXPECT_EQ(opened, QUrl("https://vorn.tandrelo.com/"));
    EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor);
    screenshot(sheet, QStringLiteral("boxes-%1").arg(sheet.devicePixelRatioF()));
}

} // namespace
} // namespace vorn::test
