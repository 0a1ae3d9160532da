#include "ui/PreferencesWindow.h"
#include "app/AppDelegate.h"
#include "designs/DesignController.h"
#include "invoicing/DataController.h"
#include "invoicing/InvoicingControllers.h"
#include "store/Clock.h"
#include "store/ManagedObject.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"
#include "ui/LineNumberRuler.h"
#include "ui/PreferencesBuilderPane.h"
#include "ui/PreferencesDesignList.h"
#include "ui/PreferencesLivePreview.h"
#include "ui/TemplateEditor.h"
#include "ui/TemplateHighlighter.h"

#include <QAction>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPdfDocument>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTextLayout>
#include <QTimeZone>
#include <QToolBar>

#include <gtest/gtest.h>

namespace vorn::test {
namespace {

class PreferencesWindowTest : public ::testing::Test
{
public:
    PreferencesWindowTest()
        : clock(QDateTime(QDate(2026, 11, 21), QTime(9, 0), QTimeZone::utc())),
          settings(env.locations().settingsFile())
    {
        app = std::make_unique<AppDelegate>(settings, ui, clock, env.locations());
        app->setLaunchChecksEnabled(false);
        app->awakeFromNib();
        app->applicationDidFinishLaunching();
        window = std::make_unique<PreferencesWindow>(*app);
        window->show();
    }
    ~PreferencesWindowTest() override
    {
        window.reset();
        app.reset();
    }

    template <typename T> T* field(const QString& name)
    {
        for (T* w : window->findChildren<T*>())
            if (w->accessibleName() == name)
                return w;
        ADD_FAILURE() << "no field " << name.toStdString();
        return nullptr;
    }
    PreferencesBuilderPane& builder() { return *window->builderPane(); }
    TemplateEditor& css() { return *builder().editor(EditorCommands::StyleSheetEditor); }
    bool waitForPreview()
    {
        QSignalSpy shown(builder().preview(), &PreferencesLivePreview::refreshed);
        return shown.wait(60000);
    }
    // The preview has settled on a render of a text holding this.
    bool waitForPreviewOf(const QString& text)
    {
        PreferencesLivePreview& p = *builder().preview();
        return QTest::qWaitFor([&] { return !p.isPending() && p.lastHtml().contains(text); }, 60000);
    }
    // The coloured runs of every line as drawn, and as the engine has them.
    static QString shownColours(const TemplateEditor& editor)
    {
        QString out;
        for (QTextBlock b = editor.document()->begin(); b.isValid(); b = b.next())
            for (const QTextLayout::FormatRange& r : b.layout()->formats())
                out += QStringLiteral("%1+%2 %3;")
                           .arg(b.position() + r.start)
                           .arg(r.length)
                           .arg(r.format.foreground().color().name());
        return out;
    }
    static QString engineColours(const TemplateEditor& editor)
    {
        const SyntaxColorizer& engine = editor.highlighter()->colorizer();
        QString out;
        for (QTextBlock b = editor.document()->begin(); b.isValid(); b = b.next())
            for (const SyntaxRun& r : engine.runs(b.position(), b.length() - 1)) {
                const SyntaxColor c = engine.definition().modeColor(r.mode);
                out += QStringLiteral("%1+%2 %3;")
                           .arg(r.start)
                           .arg(r.length)
                           .arg(QColor::fromRgbF(float(c.red), float(c.green), float(c.blue)).name());
            }
        return out;
    }
    void selectLines(TemplateEditor& editor, int first, int count)
    {
        QTextCursor c(editor.document()->findBlockByNumber(first));
        c.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor, count - 1);
        c.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        editor.setTextCursor(c);
    }

    TestEnvironment env;
    FixedClock clock;
    Settings settings;
    ScriptedUserInterface ui;
    std::unique_ptr<AppDelegate> app;
    std::unique_ptr<PreferencesWindow> window;
};

TEST_F(PreferencesWindowTest, ToolbarPanesAndSizes)
{
    QStringList shown;
    for (QAction* a : window->toolBar()->actions())
        shown << a->objectName();
    EXPECT_EQ(shown, PreferencesWindow::toolbarDefaultItemIdentifiers());
    EXPECT_EQ(window->panes().size(), 8);
    EXPECT_EQ(window->currentTag(), 7);
    EXPECT_NE(window->minimumSize(), window->maximumSize());

    if (const QString dir = qEnvironmentVariable("VORN_SCREENSHOTS"); !dir.isEmpty()) {
        QDir().mkpath(dir);
        for (int tag : {0, 1, 2, 3, 4, 5, 6, 7}) {
            window->changePanes(tag);
            QTest::qWait(100);
            window->grab().save(QStringLiteral("%1/pane-%2.png").arg(dir).arg(tag + 1));
        }
    }

    const int top = window->geometry().top();
    for (int tag : {0, 2, 3, 4, 5, 6, 1}) {
        window->changePanes(tag);
        EXPECT_EQ(window->minimumSize(), window->maximumSize()) << tag;
        EXPECT_EQ(window->geometry().top(), top) << tag;
        EXPECT_TRUE(window->paneView(tag)->isVisible());
    }
    // The keyboard reaches every pane, those missing from the toolbar too.
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    for (int tag = 0; tag < 8; ++tag) {
        QTest::keyClick(window.get(), Qt::Key(Qt::Key_1 + tag), Qt::ControlModifier);
        EXPECT_EQ(window->currentTag(), tag);
    }
    EXPECT_NE(window->minimumSize(), window->maximumSize());
}

TEST_F(PreferencesWindowTest, EditingTheSettingsAndADesignShowsInThePreview)
{
    // The company name and the first tax, as a user types them.
    window->changePanes(0);
    QLineEdit* name = field<QLineEdit>("Name");
    name->selectAll();
    QTest::keyClicks(name, "Nordlicht Studio");
    window->changePanes(2);
    QLineEdit* taxTitle = field<QLineEdit>("Tax 1 title");
    taxTitle->selectAll();
    QTest::keyClicks(taxTitle, "Mehrwertsteuer");
    field<QDoubleSpinBox>("Tax 1 rate")->setValue(12.5);
    EXPECT_FLOAT_EQ(settings.floatValue("tax1Rate"), 0.125f);
    // The next document takes the rate, the preview the name and the title.
    ManagedObject* invoice = app->invoicing().data().addInvoice();
    ASSERT_TRUE(invoice);
    EXPECT_FLOAT_EQ(invoice->floatValue("tax1Percent"), 0.125f);
    window->previewAction()->trigger();
    ASSERT_TRUE(waitForPreview());
    EXPECT_TRUE(builder().preview()->lastHtml().contains("Nordlicht Studio"));
    EXPECT_TRUE(builder().preview()->lastHtml().contains("Mehrwertsteuer"));
    EXPECT_GE(builder().preview()->document()->pageCount(), 1);

    // Duplicate a built-in design and edit its style sheet.
    ArrayController& designs = app->state().designsController();
    designs.setSelectionIndexes({2});
    const QString original = designs.selectedObject()->stringValue("css");
    builder().designList()->button("duplicate")->click();
    ManagedObject* copy = designs.selectedObject();
    ASSERT_TRUE(copy);
    EXPECT_FALSE(copy->boolValue("isDefault"));
    builder().tabs()->setCurrentIndex(2);
    EXPECT_EQ(settings.intValue("selectedBuilderIndex"), 2);
    EXPECT_EQ(css().toPlainText(), original);
    EXPECT_GE(css().ruler()->width(), 22);
    EXPECT_NE(css().highlighter()->colorizer().runs(0, int(original.size())).size(), 0u);

    // Opening a comment recolours the lines below it on screen as the
    // engine coloured them, and undoing it brings their colours back.
    const QString before = shownColours(css());
    EXPECT_EQ(before, engineColours(css()));
    QTextCursor opened(css().document()->findBlockByNumber(4));
    opened.insertText("/*");
    EXPECT_EQ(shownColours(css()), engineColours(css()));
    EXPECT_NE(shownColours(css()), before);
    css().undo();
    EXPECT_EQ(shownColours(css()), before);

    // Indent and comment a block, each one undo step.
    selectLines(css(), 0, 3);
    css().indentAction()->trigger();
    const QStringList indented = css().toPlainText().split('\n');
    for (int line = 0; line < 3; ++line)
        EXPECT_TRUE(indented[line].startsWith('\t')) << line;
    css().commentCommand()->trigger();
    const QStringList commented = css().toPlainText().split('\n');
    for (int line = 0; line < 3; ++line)
        EXPECT_TRUE(commented[line].startsWith("//\t")) << line;
    css().undo();
    EXPECT_EQ(css().toPlainText().split('\n').mid(0, 3), indented.mid(0, 3));
    css().undo();
    EXPECT_EQ(css().toPlainText(), original);

    // Typed at the end; stored when typing pauses; shown once default.
    css().moveCursor(QTextCursor::End);
    QTest::keyClick(&css(), Qt::Key_Return);
    QTest::keyClicks(&css(), "body { color: #123456; }");
    QTest::qWait(PreferencesLivePreview::pauseMs + 100);
    EXPECT_TRUE(copy->stringValue("css").endsWith("body { color: #123456; }"));
    builder().designList()->button("makeDefault")->click();
    EXPECT_TRUE(copy->boolValue("isDefault"));
    EXPECT_TRUE(waitForPreviewOf("#123456"));
    // The live preview follows further typing.
    QTest::keyClick(&css(), Qt::Key_Return);
    QTest::keyClicks(&css(), "h1 { color: #654321; }");
    EXPECT_TRUE(waitForPreviewOf("#654321"));

    window->close();
    EXPECT_FALSE(app->state().context()->hasChanges());
    Settings saved(env.locations().settingsFile());
    ASSERT_TRUE(saved.load());
    EXPECT_EQ(saved.stringValue("prefsName"), "Nordlicht Studio");
}

} // namespace
} // namespace vorn::test
