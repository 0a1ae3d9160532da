#include "designs/DesignController.h"

#include "output/InterchangeFile.h"
#include "output/KeyedArchive.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/PropertyList.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <map>

using namespace vorn;

namespace {

const QString dataDir = QStringLiteral(VORN_TEST_DATA_DIR);
const QStringList builtInTitles{"Classic",    "Modern", "Minimal",        "Elegant",   "Compact",
                                "Letterhead", "Bold",   "Detailed Taxes", "Playful"};

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

    void SetUp() override { state.setContext(&context); }

    QStringList listedTitles()
    {
        QStringList titles;
        for (const ManagedObject* d : state.designsController().arrangedObjects())
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
    int row(const QString& title) { return int(listedTitles().indexOf(title)); }
};

} // namespace

TEST_F(DesignTest, FirstStartSeedsNineDesignsWithTheFirstAsDefault)
{
    seed();
    EXPECT_EQ(listedTitles(), builtInTitles);
    EXPECT_TRUE(state.designsController().arrangedObjects().first()->boolValue("isDefault"));
    EXPECT_EQ(defaultCount(), 1);
    EXPECT_EQ(designs.currentDesign(), state.designsController().arrangedObjects().first());
    EXPECT_FALSE(context.hasChanges());
    // Seeding is where the store starts: there is nothing to undo.
    EXPECT_FALSE(context.undoManager()->canUndo());
    QSet<QString> ids;
    for (const ManagedObject* d : context.fetch(Entity::Design)) {
        ids.insert(d->stringValue("uniqueID"));
        EXPECT_FALSE(d->stringValue("invoice").isEmpty());
        EXPECT_FALSE(d->stringValue("item").isEmpty());
        EXPECT_FALSE(d->stringValue("css").isEmpty());
    }
    EXPECT_EQ(ids.size(), 9);
    EXPECT_FALSE(ids.contains(QString()));
}

namespace {

struct SeedCase
{
    const char* name;
    int design;          // which built-in file is altered
    QString storedClass; // its "class" (empty: the resource is missing)
    int designs;         // designs seeded
    QString otherEntity; // an object of another entity that the quirk created
};

} // namespace

class DesignSeedQuirk : public DesignTest, public ::testing::WithParamInterface<SeedCase>
{
};

TEST_P(DesignSeedQuirk, SixthToNinthAreCreatedFromTheirStoredClass)
{
    const SeedCase& c = GetParam();
    const QString altered = QStringLiteral("Temp00%1.design").arg(c.design);
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
    Status seeded = designs.loadTemplates();
    EXPECT_EQ(seeded.ok(), c.designs > 0);
    EXPECT_EQ(context.fetch(Entity::Design).size(), c.designs);
    EXPECT_EQ(state.designsController().count(), c.designs);
    for (const auto& entity : context.model().entities()) {
        if (entity->name() == Entity::Design)
            continue;
        EXPECT_EQ(context.fetch(entity->name()).size(), entity->name() == c.otherEntity ? 1 : 0)
            << entity->name().toStdString();
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

TEST_F(DesignTest, BuiltInDesignsUseEveryTokenWhereItIsReplaced)
{
    // Page tokens are replaced only in the page (and the ones replaced after
    // the item list also in rows); row tokens only in rows. A token in the
    // wrong template would print literally.
    const QStringList pageOnly{"%CSS%",
                               "%COMPANY%",
                               "%SLOGAN%",
                               "%COMPANYCONTACT%",
                               "%LETTERTITLE%",
                               "%CLIENTADDRESS%",
                               "%DISPATCHED%",
                               "%DATE%",
                               "%DUEDATE%",
                               "%NUMBER%",
                               "%CLIENTNUMBER%",
                               "%LOCDATE%",
                               "%LOCDUE%",
                               "%LOCNUMBER%",
                               "%LOCCLIENTNUMBER%",
                               "%LOCDISPATCHED%",
                               "%SUBJECT%",
                               "%CONDITIONS%",
                               "%FOOTER%",
                               "%SUBTOTAL%",
                               "%TOTAL%",
                               "%LOCSUBTOTAL%",
                               "%LOCDISCOUNT%",
                               "%DISCOUNTKINDCHAR%",
                               "%DISCOUNT%",
                               "%SHIPPING%",
                               "%LOCSHIPPING%",
                               "%LOCTOTAL%",
                               "%TAX1TITLE%",
                               "%TAX1%",
                               "%TAX1RATE%",
                               "%TAX2TITLE%",
                               "%TAX2%",
                               "%TAX2RATE%",
                               "%TAX3TITLE%",
                               "%TAX3%",
                               "%TAX3RATE%",
                               "%ITEMSLIST%",
                               "%LOCINVOICE%",
                               "%LOCEXPIRATION%",
                               "%LOCQUOTENUMBER%",
                               "%LOCREMINDER%",
                               "%LOCOVERDUE%",
                               "%LOCINVOICENUMBER%",
                               "%WINDOW%",
                               "%LOGO%"};
    const QStringList rowOnly{
        "%ITEMNUMBER%",       "%ITEMSQUANTITY%",    "%ITEMSUNIT%",        "%ITEMSBASEAMOUNT%",
        "%ITEMSSKU%",         "%ITEMSSUBAMOUNT%",   "%ITEMSTITLE%",       "%ITEMSSUBTITLE%",
        "%ITEMSAMOUNT%",      "%ITEMSTAX1TITLE%",   "%ITEMSTAX1PERCENT%", "%ITEMSTAX1AMOUNT%",
        "%ITEMSTAX2TITLE%",   "%ITEMSTAX2PERCENT%", "%ITEMSTAX2AMOUNT%",  "%ITEMSTAX3TITLE%",
        "%ITEMSTAX3PERCENT%", "%ITEMSTAX3AMOUNT%",  "%LOCSHORTNUMBER%",   "%LOCUNIT%",
        "%LOCUNITPRICE%",     "%LOCNET%",           "%LOCSKUNUMBER%",     "%LOCDESCRIPTION%",
        "%LOCQUANTITY%"};
    const QStringList both{"%CURRENCY%", "%LOCTAXES%"};
    // Replaced in the page after the rows are in, so they work in rows too.
    const QStringList lateInPage{"%LOCINVOICE%",  "%LOCEXPIRATION%", "%LOCQUOTENUMBER%",
                                 "%LOCREMINDER%", "%LOCOVERDUE%",    "%LOCINVOICENUMBER%",
                                 "%LOCTAXES%",    "%WINDOW%",        "%LOGO%"};
    seed();
    QString pages, rows;
    for (const ManagedObject* d : context.fetch(Entity::Design)) {
        const QString page = d->stringValue("invoice"), row = d->stringValue("item");
        EXPECT_TRUE(page.contains("%ITEMSLIST%") && page.contains("%CSS%"))
            << d->stringValue("title").toStdString();
        static const QRegularExpression token("%[A-Z0-9]+%");
        for (auto it = token.globalMatch(page); it.hasNext();) {
            const QString t = it.next().captured();
            EXPECT_TRUE(pageOnly.contains(t) || both.contains(t)) << t.toStdString() << " in a page";
        }
        for (auto it = token.globalMatch(row); it.hasNext();) {
            const QString t = it.next().captured();
            EXPECT_TRUE(rowOnly.contains(t) || both.contains(t) || lateInPage.contains(t))
                << t.toStdString() << " in a row";
        }
        pages += page;
        rows += row;
    }
    // The labels of one kind of document ("Invoice No.", "Valid Until", "Payment
    // Reminder" ...) would be wrong on the others: the built-in designs serve
    // every kind and take their labels from the tokens that follow the kind
    // (%LETTERTITLE%, %LOCDUE%, %LOCNUMBER%), so they need not use these.
    const QStringList kindLabels{"%LOCINVOICE%",  "%LOCEXPIRATION%", "%LOCQUOTENUMBER%",
                                 "%LOCREMINDER%", "%LOCOVERDUE%",    "%LOCINVOICENUMBER%"};
    for (const QString& t : pageOnly)
        EXPECT_TRUE(pages.contains(t) || kindLabels.contains(t)) << t.toStdString();
    for (const QString& t : rowOnly + both)
        EXPECT_TRUE(rows.contains(t)) << t.toStdString();
    EXPECT_TRUE(pages.contains("%LOCTAXES%"));
}

TEST_F(DesignTest, NewDesignIsTitledNotDefaultAndItsTitleEdited)
{
    seed();
    int editedRow = -1;
    QObject::connect(&designs, &DesignController::editTitleRequested,
                     [&editedRow](int row) { editedRow = row; });
    ManagedObject* design = designs.addDesign();
    ASSERT_NE(design, nullptr);
    EXPECT_EQ(design->stringValue("title"), "New Design");
    EXPECT_FALSE(design->boolValue("isDefault"));
    EXPECT_EQ(design->stringValue("invoice"),
              QString::fromUtf8(*DesignController::bundledResource("Invoice.htm")));
    EXPECT_EQ(design->stringValue("item"), QString::fromUtf8(*DesignController::bundledResource("Item.htm")));
    EXPECT_EQ(design->stringValue("css"), QString::fromUtf8(*DesignController::bundledResource("CSS.css")));
    EXPECT_EQ(editedRow, int(state.designsController().arrangedObjects().indexOf(design)));
    EXPECT_EQ(editedRow, 9);
    EXPECT_EQ(state.designsController().selectedObject(), design);
    EXPECT_EQ(settings.intValue("selectedDesign"), 9);
    EXPECT_FALSE(context.hasChanges());
    EXPECT_EQ(defaultCount(), 1);

    // Two new designs are equal in every text; the second gets its own row.
    ManagedObject* second = designs.addDesign();
    EXPECT_EQ(editedRow, 10);
    EXPECT_NE(second->stringValue("uniqueID"), design->stringValue("uniqueID"));
}

namespace {

struct DeleteCase
{
    const char* name;
    QString selected;
    int answer; // button chosen in the confirmation
    bool deleted;
};

} // namespace

class DesignDelete : public DesignTest, public ::testing::WithParamInterface<DeleteCase>
{
};

TEST_P(DesignDelete, DefaultIsRefusedOthersGoAfterDelete)
{
    const DeleteCase& c = GetParam();
    seed();
    state.designsController().setSelectionIndexes({row(c.selected)});
    ManagedObject* target = state.designsController().selectedObject();
    ui.answerAlert(c.answer);
    designs.deleteDesign();

    const bool isDefault = c.selected == "Classic";
    ASSERT_EQ(ui.calls("alert").size(), 1);
    const auto alert = ui.calls("alert").first();
    if (isDefault) {
        EXPECT_EQ(ui.calls("beep").size(), 1);
        EXPECT_EQ(alert.title, "Error!");
        EXPECT_EQ(alert.text, "You can't delete the default design.");
        EXPECT_EQ(alert.buttons, QStringList{"OK"});
    } else {
        EXPECT_TRUE(ui.calls("beep").isEmpty());
        EXPECT_EQ(alert.title, "Delete Design");
        EXPECT_EQ(alert.text,
                  "Deleting designs is permanent and cannot be undone. Do you really want to delete the "
                  "selected design?");
        EXPECT_EQ(alert.buttons, (QStringList{"Delete", "Cancel"}));
    }
    EXPECT_EQ(context.fetch(Entity::Design).size(), c.deleted ? 8 : 9);
    EXPECT_EQ(context.fetch(Entity::Design).contains(target), !c.deleted);
    EXPECT_EQ(listedTitles().contains(c.selected), !c.deleted);
    EXPECT_FALSE(context.hasChanges());
    EXPECT_EQ(defaultCount(), 1);
    if (c.deleted) {
        EXPECT_EQ(settings.intValue("selectedDesign"), state.designsController().selectionIndex());
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, DesignDelete,
                         ::testing::Values(DeleteCase{"defaultConfirmed", "Classic", 0, false},
                                           DeleteCase{"otherConfirmed", "Elegant", 0, true},
                                           DeleteCase{"otherCancelled", "Elegant", 1, false},
                                           DeleteCase{"lastConfirmed", "Playful", 0, true}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(DesignTest, MakeDefaultMovesTheMarkAndTheRowToTheTop)
{
    seed();
    state.designsController().setSelectionIndexes({row("Bold")});
    designs.makeDefaultDesign();
    EXPECT_EQ(defaultCount(), 1);
    EXPECT_EQ(listedTitles().first(), "Bold");
    EXPECT_EQ(designs.currentDesign()->stringValue("title"), "Bold");
    // The rest keep their order behind it.
    EXPECT_EQ(listedTitles().mid(1), QStringList(builtInTitles).filter(QRegularExpression("^(?!Bold$)")));
    EXPECT_EQ(state.designsController().selectedObject()->stringValue("title"), "Bold");
    // Saved by the window's next save, not here.
    EXPECT_TRUE(context.hasChanges());
    designs.save();
    EXPECT_FALSE(context.hasChanges());
    EXPECT_EQ(settings.intValue("selectedDesign"), 0);
}

TEST_F(DesignTest, ExportThenImportGivesASecondDesignThatIsNotDefault)
{
    seed();
    state.designsController().setSelectionIndexes({0});
    ManagedObject* original = state.designsController().selectedObject();
    const QString path = dir.filePath("classic.design");
    ui.answerPanel(path);
    ASSERT_TRUE(designs.exportDesign());
    ASSERT_EQ(ui.calls("save").size(), 1);
    EXPECT_EQ(ui.calls("save").first().title, "Export Vorn Design");
    EXPECT_EQ(ui.calls("save").first().text, "Classic");
    EXPECT_EQ(ui.calls("save").first().buttons, QStringList{"design"});
    auto written = InterchangeFile::readDesignFile(path);
    ASSERT_TRUE(written.ok());
    EXPECT_EQ(written.value().value("class").toString(), "Design");

    ui.answerPanel(path);
    ManagedObject* imported = designs.importDesign();
    ASSERT_NE(imported, nullptr);
    EXPECT_EQ(ui.calls("open").first().title, "Import Vorn Design");
    EXPECT_EQ(ui.calls("open").first().buttons, QStringList{"design"});
    EXPECT_NE(imported, original);
    for (const char* key : {"uniqueID", "title", "invoice", "item", "css"})
        EXPECT_EQ(imported->stringValue(key), original->stringValue(key)) << key;
    EXPECT_FALSE(imported->boolValue("isDefault"));
    EXPECT_EQ(defaultCount(), 1);
    EXPECT_EQ(state.designsController().count(), 10);
    EXPECT_TRUE(context.hasChanges());

    // A file whose design says it is the default still comes in as not default.
    ui.answerPanel(dataDir + "/python-design.design");
    ManagedObject* foreign = designs.importDesign();
    ASSERT_NE(foreign, nullptr);
    EXPECT_EQ(foreign->stringValue("title"), "From Python");
    EXPECT_FALSE(foreign->boolValue("isDefault"));
    EXPECT_EQ(defaultCount(), 1);
}

namespace {

struct BadDesignFile
{
    const char* name;
    QByteArray data;
};

QByteArray designFileWith(const QString& key, const QVariant& value)
{
    QVariantMap design{{"class", "Design"}, {"title", "T"}};
    design.insert(key, value);
    return InterchangeFile::designFileData(design);
}

} // namespace

class DesignImportRefused : public DesignTest, public ::testing::WithParamInterface<BadDesignFile>
{
};

TEST_P(DesignImportRefused, NothingChangesAndTheErrorIsShown)
{
    seed();
    const QString path = dir.filePath("bad.design");
    {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(GetParam().data);
    }
    ui.answerPanel(path);
    EXPECT_EQ(designs.importDesign(), nullptr);
    EXPECT_EQ(ui.calls("error").size(), 1);
    EXPECT_FALSE(ui.calls("error").first().title.isEmpty());
    EXPECT_EQ(context.fetch(Entity::Design).size(), 9);
    EXPECT_FALSE(context.hasChanges());
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DesignImportRefused,
    ::testing::Values(BadDesignFile{"text", "not a design at all"},
                      BadDesignFile{"documentFile", KeyedArchive::archive(QVariantMap{
                                                        {"vornDic", QVariantMap{{"class", "Design"}}}})},
                      BadDesignFile{"designNotARecord",
                                    PropertyList::toXml(QVariantMap{{"designDic", "Classic"}})},
                      BadDesignFile{"titleIsANumber", designFileWith("title", qint64(5))}),
    [](const auto& info) { return std::string(info.param.name); });

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
    settings.setValue("selectedDesign", qint64(4));
    designs.restoreSelection();
    EXPECT_EQ(state.designsController().selectionIndex(), 4);
    settings.setValue("selectedDesign", qint64(40));
    designs.restoreSelection();
    EXPECT_EQ(state.designsController().selectionIndex(), 0);
}
