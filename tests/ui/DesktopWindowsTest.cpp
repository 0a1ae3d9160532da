#include "app/AssiController.h"
#include "services/ServiceUrls.h"
#include "services/ZRUpdateChecker.h"
#include "store/PropertyList.h"
#include "tests/services/HttpStub.h"
#include "tests/ui/UiFixture.h"
#include "ui/AssistantSheet.h"
#include "ui/HelpMenu.h"
#include "ui/PreferencesWindow.h"
#include "ui/QVBox.h"
#include "ui/QVLinkButton.h"
#include "ui/QVRedNormalButton.h"
#include "ui/QVRoundedFields.h"
#include "ui/QVShadowTextField.h"
#include "ui/QVSplitView.h"
#include "ui/UpdateWindow.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QNetworkProxy>
#include <QPushButton>
#include <QStackedWidget>
#include <QTextBrowser>

namespace vorn::test {
namespace {

class DesktopWindowsTest : public AppFixture
{
public:
    HelpMenu* help = HelpMenu::of(window.get());
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
    shoot(&sheet, "assistant-language");

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
    shoot(&sheet, "assistant-company-de");
    EXPECT_EQ(unnamedControls(sheet), QStringList());
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
    window->show();
    EXPECT_EQ(window->fileMenu()->title(), "&Datei");
    EXPECT_EQ(HelpMenu::of(window.get())->menu()->title(), "&Hilfe");
    shoot(window.get(), "main-window-de");
    if (!qEnvironmentVariableIsEmpty("VORN_SCREENSHOTS")) {
        // The preferences panes in German, for checking that the texts fit.
        PreferencesWindow preferences(*app);
        preferences.show();
        for (const PreferencesWindow::Pane& pane : preferences.panes()) {
            preferences.changePanes(pane.tag);
            shoot(&preferences, QString("preferences-%1-de").arg(pane.tag));
        }
    }
}

// "Check for Updates…" against a server on the loopback: first the answer
// that this is the newest version, then a newer one in the update window
// (in German, where the texts are longest).
TEST_F(DesktopWindowsTest, CheckForUpdatesShowsBothAnswers)
{
    Translations::install(1);
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
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
    ASSERT_TRUE(QTest::qWaitFor([&] { return !help->updateChecker().isChecking(); }, 10000));
    EXPECT_EQ(ui.alertTitles(), QStringList{"Sie sind auf dem neuesten Stand!"});
    EXPECT_TRUE(check->isEnabled());

    stub.route("/list.plist", {200, list("1.1.0")});
    stub.route("/notes.txt", {200, "Faster PDFs.\nA German interface."});
    check->trigger();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return help->updateWindow() && help->updateWindow()->isVisible(); }, 10000));
    UpdateWindow& w = *help->updateWindow();
    EXPECT_TRUE(w.versionLabel()->text().contains("Vorn 1.1.0"));
    EXPECT_TRUE(w.versionLabel()->text().contains("1.0.0"));
    EXPECT_EQ(w.notesView()->toPlainText(), "Faster PDFs.\nA German interface.");
    shoot(&w, "update-window-de");
    w.downloadButton()->click();
    EXPECT_FALSE(w.isVisible());
    EXPECT_EQ(ui.calls("url").value(0).title, stub.url("/Vorn.zip").toString());
}

// Not a test of pixels: draws every box kind, light and dark, and the other
// custom elements, for looking at them (run with QT_SCALE_FACTOR=1, 1.5 and
// 2 and VORN_SCREENSHOTS set). The link button opens through its opener.
TEST(CustomElementsTest, DrawInBothSchemes)
{
    QWidget sheet;
    auto* grid = new QGridLayout(&sheet);
    const QMetaEnum kinds = QMetaEnum::fromType<QVBox::Kind>();
    for (int i = 0; i < kinds.keyCount(); ++i)
        for (int dark = 0; dark < 2; ++dark) {
            auto* box = new QVBox(QVBox::Kind(kinds.value(i)));
            if (dark) {
                QPalette p = box->palette();
                p.setColor(QPalette::Window, QColor(40, 40, 40));
                p.setColor(QPalette::WindowText, Qt::white);
                box->setPalette(p);
            }
            box->setFixedSize(120, 36);
            (new QLabel(QString::fromLatin1(kinds.key(i)), box))->move(6, 10);
            grid->addWidget(box, i, dark);
        }
    auto* link = new QVLinkButton("Vorn Website", QUrl("https://vorn.tandrelo.com/"));
    QUrl opened;
    link->setOpener([&](const QUrl& url) { opened = url; });
    auto* field = new QVRoundedTextField;
    field->setText("Kim Design");
    auto* split = new QVSplitView(Qt::Horizontal);
    split->addWidget(new QVBox(QVBox::Sidebar));
    split->addWidget(new QVBox(QVBox::LightBackground));
    split->setFixedHeight(40);
    const QList<QWidget*> elements{link,
                                   new QVRedNormalButton("Delete"),
                                   field,
                                   new QVRoundedDatePicker,
                                   new QVShadowTextField("Shadow text"),
                                   split};
    for (int i = 0; i < elements.size(); ++i)
        grid->addWidget(elements[i], kinds.keyCount() + i / 2, i % 2);
    sheet.show();
    link->click();
    EXPECT_EQ(opened, QUrl("https://vorn.tandrelo.com/"));
    EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor);
    AppFixture::shoot(&sheet, QString("boxes-%1").arg(sheet.devicePixelRatioF()));
}

} // namespace
} // namespace vorn::test
