#include "designs/DesignBuilder.h"

#include "designs/DesignController.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

using namespace vorn;

namespace {

class DesignBuilderTest : public ::testing::Test
{
protected:
    QTemporaryDir dir;
    Settings settings{dir.filePath("settings.plist")};
    test::ScriptedUserInterface ui;
    FixedClock clock{QDateTime(QDate(2026, 3, 1), QTime(10, 0), QTimeZone::utc())};
    AppState state{settings, ui, clock, FileLocations{}};
    ObjectContext context{nullptr, clock};
    DesignController designs{state};
    DesignBuilder builder{state, designs};
    ArrayController& list = state.designsController();

    void SetUp() override
    {
        state.setContext(&context);
        ASSERT_TRUE(designs.loadTemplates());
    }

    QString write(const char* name, const QByteArray& data)
    {
        QFile file(dir.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(data);
        return file.fileName();
    }
};

TEST_F(DesignBuilderTest, DuplicatingGivesAnEditableCopyThatIsNotTheDefault)
{
    list.setSelectionIndexes({0});
    const ManagedObject* original = list.selectedObject();
    ManagedObject* copy = builder.duplicateDesign();
    ASSERT_TRUE(copy);
    EXPECT_EQ(list.selectedObject(), copy);
    EXPECT_EQ(copy->stringValue("title"), original->stringValue("title") + " copy");
    EXPECT_NE(copy->stringValue("uniqueID"), original->stringValue("uniqueID"));
    EXPECT_FALSE(copy->boolValue("isDefault"));
    for (const char* key : {"invoice", "item", "css"})
        EXPECT_EQ(copy->stringValue(key), original->stringValue(key));
    EXPECT_FALSE(context.hasChanges());
    EXPECT_EQ(settings.intValue("selectedDesign"), list.arrangedObjects().indexOf(copy));
}

TEST_F(DesignBuilderTest, EditsGoIntoTheSelectedDesignAndSignalOnlyForTheDefault)
{
    int changes = 0;
    QObject::connect(&builder, &DesignBuilder::designChanged, [&] { ++changes; });
    list.setSelectionIndexes({1});
    builder.setTemplateText(EditorCommands::StyleSheetEditor, "body {}");
    EXPECT_EQ(list.selectedObject()->stringValue("css"), "body {}");
    EXPECT_EQ(builder.templateText(EditorCommands::StyleSheetEditor), "body {}");
    EXPECT_EQ(changes, 0);
    list.setSelectionIndexes({0});
    builder.setTemplateText(EditorCommands::ItemEditor, "<tr></tr>");
    builder.setTemplateText(EditorCommands::ItemEditor, "<tr></tr>");
    EXPECT_EQ(list.selectedObject()->stringValue("item"), "<tr></tr>");
    EXPECT_EQ(changes, 1);
}

TEST_F(DesignBuilderTest, ALogoMustBeAnImage)
{
    const QByteArray png = QByteArray("\x89PNG\r\n\x1a\n", 8) + QByteArray(20, 'x');
    const QString text = write("notes.png", "just some words");
    ui.answerPanel(text);
    EXPECT_FALSE(builder.chooseLogo());
    ASSERT_FALSE(ui.calls().isEmpty());
    EXPECT_EQ(ui.calls().last().title, "The logo was not changed.");
    EXPECT_EQ(ui.calls().last().text, "“notes.png” is not an image.");
    EXPECT_FALSE(settings.hasValue("prefsLogo"));

    ui.answerPanel(write("logo.png", png));
    EXPECT_TRUE(builder.chooseLogo());
    EXPECT_EQ(settings.dataValue("prefsLogo"), png);
    EXPECT_FALSE(builder.setLogoFromFile(dir.filePath("missing.png")));
    EXPECT_EQ(settings.dataValue("prefsLogo"), png);
}

} // namespace
