#include "ui/PreferencesWindow.h"
#include "designs/DesignController.h"
#include "invoicing/DataController.h"
#include "invoicing/InvoicingControllers.h"
#include "store/ManagedObject.h"
#include "store/ObjectContext.h"
#include "tests/ui/UiFixture.h"
#include "ui/LineNumberRuler.h"
#include "ui/PreferencesBuilderPane.h"
#include "ui/PreferencesDesignList.h"
#include "ui/PreferencesLivePreview.h"
#include "ui/TemplateEditor.h"
#include "ui/TemplateHighlighter.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QPdfDocument>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTextLayout>
#include <QToolBar>

namespace vorn::test {
namespace {

class PreferencesWindowTest : public AppFixture
{
public:
    PreferencesWindowTest() : AppFixture(false), prefs(std::make_unique<PreferencesWindow>(*app))
    {
        prefs->show();
    }
    ~PreferencesWindowTest() override { prefs.reset(); }

    template <typename T> T* field(const QString& name)
    {
        for (T* w : prefs->findChildren<T*>())
            if (w->accessibleName() == name)
                return w;
        ADD_FAILURE() << "no field " << name.toStdString();
        return nullptr;
    }
    PreferencesBuilderPane& builder() { return *prefs->builderPane(); }
    TemplateEditor& css() { return *builder().editor(EditorCommands::StyleSheetEditor); }
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
                out += QString("%1+%2 %3;")
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
                out += QString("%1+%2 %3;")
                           .arg(r.start)
                           .arg(r.length)
                           .arg(QColor::fromRgbF(float(c.red), float(c.green), float(c.blue)).name());
            }
        return out;
    }

    std::unique_ptr<PreferencesWindow> prefs;
};

// Each pane opens at its own fixed size under the same top edge, its
// controls named for screen readers; the builder pane alone can be resized.
TEST_F(PreferencesWindowTest, ToolbarPanesAndSizes)
{
    QStringList shown;
    for (QAction* a : prefs->toolBar()->actions())
        shown << a->objectName();
    EXPECT_EQ(shown, PreferencesWindow::toolbarDefaultItemIdentifiers());
    EXPECT_EQ(prefs->currentTag(), 7);
    EXPECT_NE(prefs->minimumSize(), prefs->maximumSize());
    shoot(prefs.get(), "pane-8");
    builder().tabs()->setCurrentIndex(2);
    shoot(prefs.get(), "builder-style-sheet");

    const int top = prefs->geometry().top();
    for (int tag : {0, 2, 3, 4, 5, 6, 1}) {
        SCOPED_TRACE(tag);
        prefs->changePanes(tag);
        EXPECT_EQ(prefs->minimumSize(), prefs->maximumSize());
        EXPECT_EQ(prefs->geometry().top(), top);
        EXPECT_TRUE(prefs->paneView(tag)->isVisible());
        EXPECT_EQ(unnamedControls(*prefs->paneView(tag)), QStringList());
        shoot(prefs.get(), QString("pane-%1").arg(tag + 1));
    }
    // The keyboard reaches every pane, those missing from the toolbar too.
    prefs->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(prefs.get()));
    for (int tag = 0; tag < 8; ++tag) {
        QTest::keyClick(prefs.get(), Qt::Key(Qt::Key_1 + tag), Qt::ControlModifier);
        EXPECT_EQ(prefs->currentTag(), tag);
    }
    EXPECT_NE(prefs->minimumSize(), prefs->maximumSize());
}

TEST_F(PreferencesWindowTest, EditingTheSettingsAndADesignShowsInThePreview)
{
    // The company name and the first tax, as a user types them.
    prefs->changePanes(0);
    QLineEdit* name = field<QLineEdit>("Name");
    name->selectAll();
    QTest::keyClicks(name, "Nordlicht Studio");
    prefs->changePanes(2);
    QLineEdit* taxTitle = field<QLineEdit>("Tax 1 title");
    taxTitle->selectAll();
    QTest::keyClicks(taxTitle, "Mehrwertsteuer");
    field<QDoubleSpinBox>("Tax 1 rate")->setValue(12.5);
    EXPECT_FLOAT_EQ(settings.floatValue("tax1Rate"), 0.125f);
    // The preview shows the name and the title.
    ASSERT_TRUE(app->invoicing().data().addInvoice());
    prefs->previewAction()->trigger();
    ASSERT_TRUE(waitForPreviewOf("Nordlicht Studio"));
    EXPECT_TRUE(builder().preview()->lastHtml().contains("Mehrwertsteuer"));
    EXPECT_GE(builder().preview()->document()->pageCount(), 1);

    // Duplicate a built-in design and edit its style sheet.
    ArrayController& designs = app->state().designsController();
    designs.setSelectionIndexes({2});
    const QString original = designs.selectedObject()->stringValue("css");
    builder().designList()->button("duplicate")->click();
    ManagedObject* copy = designs.selectedObject();
    ASSERT_TRUE(copy);
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

    // Indent and comment the first lines, each one undo step.
    QTextCursor lines(css().document());
    lines.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor, 2);
    css().setTextCursor(lines);
    css().indentAction()->trigger();
    const QString indented = css().toPlainText();
    css().commentCommand()->trigger();
    EXPECT_EQ(css().toPlainText().section('\n', 0, 1),
              "//\t" + original.section('\n', 0, 0) + "\n//\t" + original.section('\n', 1, 1));
    css().undo();
    EXPECT_EQ(css().toPlainText(), indented);
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

    prefs->close();
    EXPECT_FALSE(app->state().context()->hasChanges());
    Settings saved(env.locations().settingsFile());
    ASSERT_TRUE(saved.load());
    EXPECT_EQ(saved.stringValue("prefsName"), "Nordlicht Studio");
}

} // namespace
} // namespace vorn::test
