#include "designs/DesignController.h"
#include "designs/DesignBuilder.h"

#include "documents/InterchangeFile.h"
#include "documents/KeyedArchive.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/PropertyList.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestFiles.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

using namespace vorn;

namespace {

const QString dataDir = QStringLiteral(VORN_TEST_DATA_DIR);
const QStringList builtInTitles{"Classic",    "Modern", "Minimal",        "Elegant", "Compact",
                                "Letterhead", "Bold",   "Detailed Taxes", "Playful"};

// An alert or a panel as the user saw it: title, text and buttons.
QStringList shown(const test::ScriptedUserInterface::Call& call)
{
    return {call.title, call.text, call.buttons.join('|')};
}

class DesignTest : public ::testing::Test
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

    void SetUp() override { state.setContext(&context); }

    QString write(const char* name, const QByteArray& data)
    {
        test::writeFile(dir.filePath(name), data);
        return dir.filePath(name);
    }

    QStringList listedTitles()
    {
        QStringList titles;
        for (const ManagedObject* d : list.arrangedObjects())
            titles << d->stringValue("title");
        return titles;
    }
    int defaultCount()
    {
        int n = 0;
        for (const ManagedObject* d : context.fetch(Entity::Design))
            n += d->boolValue("isDefault") ? 1 : 0;
        return n;
    }
    void seed()
    {
        ASSERT_TRUE(designs.loadTemplates());
        ui.clear();
    }
    ManagedObject* select(const QString& title)
    {
        list.setSelectionIndexes({int(listedTitles().indexOf(title))});
        return list.selectedObject();
    }
};

TEST_F(DesignTest, FirstStartSeedsNineDesignsWithTheFirstAsDefault)
{
    seed();
    EXPECT_EQ(listedTitles(), builtInTitles);
    EXPECT_EQ(defaultCount(), 1);
    EXPECT_EQ(designs.currentDesign(), list.arrangedObjects().first());
    EXPECT_TRUE(designs.currentDesign()->boolValue("isDefault"));
    EXPECT_FALSE(context.hasChanges());
    // Seeding is where the store starts: there is nothing to undo.
    EXPECT_FALSE(context.undoManager()->canUndo());
    // Their pages are checked by printing each; here that each has an identity of its own.
    QSet<QString> ids;
    for (const ManagedObject* d : context.fetch(Entity::Design))
        ids.insert(d->stringValue("uniqueID"));
    EXPECT_EQ(ids.size(), 9);
    EXPECT_FALSE(ids.contains(QString()));
}

struct SeedCase
{
    const char* name;
    int design;          // which built-in file is altered
    QString storedClass; // its "class" (empty: the resource is missing)
    int designs;         // designs seeded
    QString otherEntity; // an object of another entity that the quirk created
};

class DesignSeedQuirk : public DesignTest, public ::testing::WithParamInterface<SeedCase>
{
};

TEST_P(DesignSeedQuirk, SixthToNinthAreCreatedFromTheirStoredClass)
{
    const SeedCase& c = GetParam();
    const QString altered = QString("Temp00%1.design").arg(c.design);
    designs.setResourceReader([&c, altered](const QString& name) -> std::optional<QByteArray> {
        auto data = DesignController::bundledResource(name);
        if (name != altered || !data)
            return data;
        if (c.storedClass.isEmpty())
            return std::nullopt;
        QVariantMap dictionary = InterchangeFile::rootEntry(*data, "designDic").value();
        dictionary.insert("class", c.storedClass);
        return InterchangeFile::designFileData(dictionary);
    });
    EXPECT_EQ(designs.loadTemplates().ok(), c.designs > 0);
    EXPECT_EQ(context.fetch(Entity::Design).size(), c.designs);
    EXPECT_EQ(list.count(), c.designs);
    for (const auto& entity : context.model().entities()) {
        if (entity->name() != Entity::Design) {
            EXPECT_EQ(context.fetch(entity->name()).size(), entity->name() == c.otherEntity ? 1 : 0)
                << entity->name().toStdString();
        }
    }
    if (!c.otherEntity.isEmpty()) {
        EXPECT_EQ(context.fetch(c.otherEntity).first()->stringValue("title"), builtInTitles[c.design - 1]);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, DesignSeedQuirk,
                         ::testing::Values(SeedCase{"thirdGenericIsCorrected", 3, "NSManagedObject", 9, {}},
                                           SeedCase{"fifthIsCorrectedFiveTimes", 5, "Address", 9, {}},
                                           SeedCase{"seventhKeepsItsClass", 7, "RecentItem", 8, "RecentItem"},
                                           SeedCase{"ninthKeepsItsClass", 9, "RecentShipping", 8,
                                                    "RecentShipping"},
                                           SeedCase{"sixthAsAnItemIsDamaged", 6, "NSManagedObject", 0, {}},
                                           SeedCase{"eighthAsDesign", 8, "Design", 9, {}},
                                           SeedCase{"missingResourceSeedsNothing", 4, {}, 0, {}}),
                         [](const auto& info) { return std::string(info.param.name); });

// A new or duplicated design: selected, not the default, with its own ID,
// saved at once, and the selection remembered.
TEST_F(DesignTest, NewAndDuplicatedDesignsAreSelectedButNotDefault)
{
    seed();
    int editedRow = -1;
    QObject::connect(&designs, &DesignController::editTitleRequested,
                     [&editedRow](int row) { editedRow = row; });
    const auto expectAdded = [this](ManagedObject* design, const ManagedObject& like) {
        ASSERT_NE(design, nullptr);
        EXPECT_FALSE(design->boolValue("isDefault"));
        EXPECT_NE(design->stringValue("uniqueID"), like.stringValue("uniqueID"));
        EXPECT_EQ(list.selectedObject(), design);
        EXPECT_EQ(settings.intValue("selectedDesign"), list.arrangedObjects().indexOf(design));
        EXPECT_FALSE(context.hasChanges());
        EXPECT_EQ(defaultCount(), 1);
    };
    ManagedObject* design = designs.addDesign();
    expectAdded(design, *list.arrangedObjects().first());
    EXPECT_EQ(design->stringValue("title"), "New Design");
    EXPECT_EQ(design->stringValue("invoice"),
              QString::fromUtf8(*DesignController::bundledResource("Invoice.htm")));
    EXPECT_EQ(editedRow, 9);
    // Two new designs are equal in every text; the second gets its own row.
    expectAdded(designs.addDesign(), *design);
    EXPECT_EQ(editedRow, 10);

    list.setSelectionIndexes({0});
    const ManagedObject* original = list.selectedObject();
    ManagedObject* copy = builder.duplicateDesign();
    expectAdded(copy, *original);
    EXPECT_EQ(copy->stringValue("title"), original->stringValue("title") + " copy");
    for (const char* key : {"invoice", "item", "css"})
        EXPECT_EQ(copy->stringValue(key), original->stringValue(key));
}

// The default design is refused; another goes only once the user confirms,
// the last row too.
TEST_F(DesignTest, DeletingRefusesTheDefaultAndAsksForOthers)
{
    seed();
    const QStringList refused{"Error!", "You can't delete the default design.", "OK"};
    const QStringList confirm{"Delete Design",
                              "Deleting designs is permanent and cannot be undone. Do you really want to "
                              "delete the selected design?",
                              "Delete|Cancel"};
    const std::tuple<const char*, int, bool> cases[] = {
        {"Classic", 0, false}, {"Elegant", 1, false}, {"Elegant", 0, true}, {"Playful", 0, true}};
    qsizetype remaining = 9;
    for (const auto& [title, answer, deleted] : cases) {
        SCOPED_TRACE(std::string(title) + (answer ? " cancelled" : " confirmed"));
        ui.clear();
        ManagedObject* target = select(title);
        ui.answerAlert(answer);
        designs.deleteDesign();
        remaining -= deleted ? 1 : 0;
        const bool isDefault = QString(title) == "Classic";
        ASSERT_EQ(ui.calls("alert").size(), 1);
        EXPECT_EQ(shown(ui.calls("alert")[0]), isDefault ? refused : confirm);
        EXPECT_EQ(ui.calls("beep").size(), isDefault ? 1 : 0);
        EXPECT_EQ(context.fetch(Entity::Design).size(), remaining);
        EXPECT_EQ(context.fetch(Entity::Design).contains(target), !deleted);
        EXPECT_EQ(listedTitles().contains(title), !deleted);
        EXPECT_FALSE(context.hasChanges());
        EXPECT_EQ(defaultCount(), 1);
        if (deleted) {
            EXPECT_EQ(settings.intValue("selectedDesign"), list.selectionIndex());
        }
    }
}

TEST_F(DesignTest, MakeDefaultMovesTheMarkAndTheRowToTheTop)
{
    seed();
    ManagedObject* bold = select("Bold");
    designs.makeDefaultDesign();
    EXPECT_EQ(defaultCount(), 1);
    EXPECT_EQ(designs.currentDesign(), bold);
    EXPECT_EQ(list.selectedObject(), bold);
    // The rest keep their order behind it.
    QStringList order = builtInTitles;
    order.move(order.indexOf("Bold"), 0);
    EXPECT_EQ(listedTitles(), order);
    // Saved by the window's next save, not here.
    EXPECT_TRUE(context.hasChanges());
    designs.save();
    EXPECT_FALSE(context.hasChanges());
    EXPECT_EQ(settings.intValue("selectedDesign"), 0);
}

TEST_F(DesignTest, ExportThenImportGivesASecondDesignThatIsNotDefault)
{
    seed();
    ManagedObject* original = select("Classic");
    const QString path = dir.filePath("classic.design");
    ui.answerPanel(path);
    ASSERT_TRUE(designs.exportDesign());
    ASSERT_EQ(ui.calls("save").size(), 1);
    EXPECT_EQ(shown(ui.calls("save")[0]), (QStringList{"Export Vorn Design", "Classic", "design"}));
    auto written = InterchangeFile::readDesignFile(path);
    ASSERT_TRUE(written.ok());
    EXPECT_EQ(written.value().value("class").toString(), "Design");

    ui.answerPanel(path);
    ManagedObject* imported = designs.importDesign();
    ASSERT_NE(imported, nullptr);
    ASSERT_EQ(ui.calls("open").size(), 1);
    EXPECT_EQ(shown(ui.calls("open")[0]), (QStringList{"Import Vorn Design", "", "design"}));
    EXPECT_NE(imported, original);
    for (const char* key : {"uniqueID", "title", "invoice", "item", "css"})
        EXPECT_EQ(imported->stringValue(key), original->stringValue(key)) << key;
    EXPECT_FALSE(imported->boolValue("isDefault"));
    EXPECT_EQ(list.count(), 10);
    EXPECT_TRUE(context.hasChanges());

    // A file whose design says it is the default still comes in as not default.
    ui.answerPanel(dataDir + "/python-design.design");
    ManagedObject* foreign = designs.importDesign();
    ASSERT_NE(foreign, nullptr);
    EXPECT_EQ(foreign->stringValue("title"), "From Python");
    EXPECT_FALSE(foreign->boolValue("isDefault"));
    EXPECT_EQ(defaultCount(), 1);
}

TEST_F(DesignTest, ADamagedDesignFileIsRefusedAndChangesNothing)
{
    seed();
    const std::pair<const char*, QByteArray> files[] = {
        {"text", "not a design at all"},
        {"document file", KeyedArchive::archive(QVariantMap{{"vornDic", QVariantMap{{"class", "Design"}}}})},
        {"design not a record", PropertyList::toXml(QVariantMap{{"designDic", "Classic"}})},
        {"title is a number", InterchangeFile::designFileData({{"class", "Design"}, {"title", qint64(5)}})}};
    for (const auto& [name, data] : files) {
        SCOPED_TRACE(name);
        ui.clear();
        ui.answerPanel(write("bad.design", data));
        EXPECT_EQ(designs.importDesign(), nullptr);
        ASSERT_EQ(ui.calls("error").size(), 1);
        EXPECT_FALSE(ui.calls("error")[0].title.isEmpty());
        EXPECT_EQ(context.fetch(Entity::Design).size(), 9);
        EXPECT_FALSE(context.hasChanges());
    }
}

TEST_F(DesignTest, WithoutDesignsOrStoreThereIsNoCurrentDesign)
{
    EXPECT_EQ(designs.currentDesign(), nullptr);
    state.setContext(nullptr);
    EXPECT_EQ(designs.currentDesign(), nullptr);
    EXPECT_EQ(designs.addDesign(), nullptr);
    designs.deleteDesign();
    designs.makeDefaultDesign();
    EXPECT_TRUE(designs.loadTemplates());
    EXPECT_TRUE(ui.calls().isEmpty());
}

TEST_F(DesignTest, SelectionIsRestoredFromTheSettings)
{
    seed();
    for (const auto& [stored, restored] : {std::pair{4, 4}, {40, 0}}) {
        settings.setValue("selectedDesign", qint64(stored));
        designs.restoreSelection();
        EXPECT_EQ(list.selectionIndex(), restored) << stored;
    }
}

TEST_F(DesignTest, EditsGoIntoTheShownDesignAndSignalOnlyForTheDefault)
{
    seed();
    int changes = 0;
    QObject::connect(&builder, &DesignBuilder::designChanged, [&] { ++changes; });
    ManagedObject* other = list.arrangedObjects()[1];
    builder.setTemplateText(*other, EditorCommands::StyleSheetEditor, "body {}");
    EXPECT_EQ(other->stringValue("css"), "body {}");
    EXPECT_EQ(changes, 0);
    ManagedObject* current = designs.currentDesign();
    builder.setTemplateText(*current, EditorCommands::ItemEditor, "<tr></tr>");
    builder.setTemplateText(*current, EditorCommands::ItemEditor, "<tr></tr>");
    EXPECT_EQ(current->stringValue("item"), "<tr></tr>");
    EXPECT_EQ(changes, 1);
}

TEST_F(DesignTest, ALogoMustBeAnImage)
{
    seed();
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
