#include "output/InterchangeController.h"
#include "documents/InterchangeFile.h"
#include "documents/KeyedArchive.h"
#include "invoicing/Calculator.h"

#include "store/AppState.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/PropertyList.h"
#include "store/Settings.h"
#include "store/SqliteStore.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestFiles.h"
#include "tests/support/TestValues.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace vorn;
using vorn::test::utc;

namespace {

const QString warningText =
    "The integrity of your data is your responsibility, and yours alone. Vorn is just a stupid App and by "
    "design it "
    "can't know or care about duplicate invoices, messed up numbers, or if you're having a bad hair day. So "
    "please, do "
    "yourself a favor and check what you are doing here. Do you still want to import the invoice?";

class InterchangeControllerTest : public ::testing::Test
{
protected:
    QTemporaryDir dir;
    Settings settings{dir.filePath("settings.plist")};
    test::ScriptedUserInterface ui;
    FixedClock clock{utc(2026, 3, 1, 9)};
    AppState state{settings, ui, clock, FileLocations{}};
    ObjectContext context{nullptr, clock};
    InterchangeController interchange{state};

    void SetUp() override { state.setContext(&context); }

    ManagedObject* document(const QString& number, const QDateTime& date, int kind = 1)
    {
        ManagedObject* d = context.insertNewObject(Entity::Invoice);
        d->setValue("number", number);
        d->setValue("date", date);
        d->setValue("kind", kind);
        state.invoicesController().addObject(d);
        return d;
    }
    QString write(const QString& name, const QByteArray& data)
    {
        test::writeFile(dir.filePath(name), data);
        return dir.filePath(name);
    }
    static QStringList exportedNumbers(const QString& path)
    {
        QStringList numbers;
        for (const QVariant& d : PropertyList::read(test::fileBytes(path)).value().toList())
            numbers << d.toMap().value("number").toString();
        return numbers;
    }
};

} // namespace

TEST_F(InterchangeControllerTest, ImportAsksThenAddsTheDocumentAsItIsAndSaves)
{
    // Whatever the file calls its record, it comes in as a document.
    const QString path =
        write("doc.vorn",
              KeyedArchive::archive(QVariantMap{
                  {"vornDic", QVariantMap{{"class", "Address"},
                                          {"number", "RE-9"},
                                          {"status", qint64(3)},
                                          {"date", utc(2025, 12, 24, 9)},
                                          {"items", QVariantList{QVariantMap{{"class", "NSManagedObject"},
                                                                             {"title", "Work"}}}}}}}));
    document("RE-1", utc(2026, 1, 1, 9));
    ASSERT_TRUE(context.save());
    ui.answerAlert(0);
    ui.answerPanel(path);
    ManagedObject* imported = interchange.importInvoice();
    ASSERT_NE(imported, nullptr);
    EXPECT_EQ(imported->entityName(), Entity::Invoice);
    EXPECT_EQ(imported->stringValue("number"), "RE-9");
    EXPECT_EQ(imported->intValue("status"), 3);
    EXPECT_EQ(imported->dateValue("date"), utc(2025, 12, 24, 9));
    ASSERT_EQ(imported->items().size(), 1);
    EXPECT_EQ(imported->items().first()->stringValue("title"), "Work");

    const auto calls = ui.calls();
    ASSERT_EQ(calls.size(), 3);
    EXPECT_EQ(calls[0].kind, "alert");
    EXPECT_EQ(calls[0].title, "Warning!");
    EXPECT_EQ(calls[0].text, warningText);
    EXPECT_EQ(calls[0].buttons, (QStringList{"Import…", "Cancel"}));
    EXPECT_EQ(calls[1].kind, "open");
    EXPECT_EQ(calls[1].title, "Import Vorn Document");
    EXPECT_EQ(calls[1].buttons, QStringList{"vorn"});
    EXPECT_EQ(calls[2].kind, "toolbar");
    EXPECT_EQ(calls[2].title, "addressItem");

    // In the list at its sorted place (older date: after RE-1), and saved.
    EXPECT_EQ(state.invoicesController().arrangedObjects().last(), imported);
    EXPECT_FALSE(context.hasChanges());

    // The same file again: a second document with the same number.
    ui.answerAlert(0);
    ui.answerPanel(path);
    ASSERT_NE(interchange.importInvoice(), nullptr);
    int withNumber = 0;
    for (const ManagedObject* d : context.fetch(Entity::Invoice))
        withNumber += d->stringValue("number") == "RE-9" ? 1 : 0;
    EXPECT_EQ(withNumber, 2);
}

TEST_F(InterchangeControllerTest, ALongDocumentArrivesWhole)
{
    // Several thousand items, each different, through the file and the
    // store: all of them, in their order, adding up to the same totals.
    constexpr int items = 5000;
    ObjectContext source(nullptr, clock);
    AppState sourceState(settings, ui, clock, FileLocations{});
    sourceState.setContext(&source);
    ManagedObject* original = source.insertNewObject(Entity::Invoice);
    QList<ManagedObject*> lines;
    for (int i = 0; i < items; ++i) {
        ManagedObject* item = source.insertNewObject(Entity::Item);
        item->setValue("title", QString("Line %1").arg(i));
        item->setValue("unitCount", float(1 + i % 7));
        item->setValue("baseAmount", float(i % 90) + 0.25f);
        item->setValue("isTax1Applied", i % 3 != 0);
        item->setValue("tax1Percent", 0.19f);
        lines.append(item);
    }
    original->setObjects("items", lines);
    Calculator(sourceState).calculateInvoice(original);

    const QString storePath = dir.filePath("store.vndb");
    auto store = SqliteStore::open(storePath, ObjectModel::vorn());
    ASSERT_TRUE(store.ok());
    ObjectContext target(std::move(store.value()), clock);
    state.setContext(&target);
    ui.answerAlert(0);
    ui.answerPanel(write("long.vorn", InterchangeFile::documentFileData(*original)));
    ManagedObject* imported = interchange.importInvoice();
    ASSERT_NE(imported, nullptr);
    Calculator(state).calculateInvoice(imported);
    ASSERT_TRUE(target.save());

    auto reopened = SqliteStore::open(storePath, ObjectModel::vorn());
    ASSERT_TRUE(reopened.ok());
    ObjectContext again(std::move(reopened.value()), clock);
    const QList<ManagedObject*> documents = again.fetch(Entity::Invoice);
    ASSERT_EQ(documents.size(), 1);
    const QList<ManagedObject*> read = documents.first()->items();
    ASSERT_EQ(read.size(), items);
    for (int i = 0; i < items; ++i)
        ASSERT_EQ(read[i]->stringValue("title"), QString("Line %1").arg(i)) << "item " << i;
    for (const char* total : {"subAmount", "tax1Amount", "amount"}) {
        EXPECT_NE(original->floatValue(total), 0.0f) << total;
        EXPECT_EQ(documents.first()->floatValue(total), original->floatValue(total)) << total;
    }
}

TEST_F(InterchangeControllerTest, CancellingOrABadFileImportsNothing)
{
    const QString bad = write(
        "bad.vorn",
        KeyedArchive::archive(QVariantMap{{"vornDic", QVariantMap{{"class", "Invoice"}, {"number", 5}}}}));
    ManagedObject* pending = document("RE-1", utc(2026, 1, 1, 9));

    ui.answerAlert(1); // "Cancel"
    EXPECT_EQ(interchange.importInvoice(), nullptr);
    EXPECT_TRUE(ui.calls("open").isEmpty());

    ui.answerAlert(0);
    ui.answerPanel(std::nullopt);
    EXPECT_EQ(interchange.importInvoice(), nullptr);

    for (const QString& path : {bad, dir.filePath("missing.vorn")}) {
        ui.clear();
        ui.answerAlert(0);
        ui.answerPanel(path);
        EXPECT_EQ(interchange.importInvoice(), nullptr);
        ASSERT_EQ(ui.calls("error").size(), 1);
        EXPECT_TRUE(ui.calls("error").first().title.contains(QFileInfo(path).fileName()));
        EXPECT_TRUE(ui.calls("toolbar").isEmpty());
    }
    EXPECT_EQ(context.fetch(Entity::Invoice), QList<ManagedObject*>{pending});
    // The unrelated pending document was neither saved nor dropped.
    EXPECT_TRUE(context.hasChanges());
    EXPECT_TRUE(pending->isInserted());

    state.setContext(nullptr);
    ui.clear();
    EXPECT_EQ(interchange.importInvoice(), nullptr);
    EXPECT_TRUE(ui.calls().isEmpty());
}

TEST_F(InterchangeControllerTest, ExportsWriteTheListedOrEveryDocument)
{
    document("A", utc(2026, 1, 5, 9));
    document("B", utc(2026, 2, 5, 9), 0);
    document("C", utc(2026, 1, 20, 9));
    state.invoicesController().setFilterPredicate(
        [](const ManagedObject& d) { return d.intValue("kind") == 1; });

    const QString listed = dir.filePath("listed.xml");
    ui.answerPanel(listed);
    ASSERT_TRUE(interchange.exportItems());
    EXPECT_EQ(exportedNumbers(listed), (QStringList{"C", "A"})); // the filtered list, newest first

    const QString all = dir.filePath("all.xml");
    ui.answerPanel(all);
    ASSERT_TRUE(interchange.exportVornDataXML());
    EXPECT_EQ(exportedNumbers(all), (QStringList{"A", "B", "C"})); // store order

    const auto panels = ui.calls("save");
    ASSERT_EQ(panels.size(), 2);
    for (const auto& panel : panels) {
        EXPECT_EQ(panel.title, "Export Vorn Database As XML");
        EXPECT_EQ(panel.buttons, QStringList{"xml"});
    }
    EXPECT_EQ(panels[0].text, "");
    EXPECT_EQ(panels[1].text, "Vorn Database");

    // A cancelled panel writes nothing; a failed write leaves the old file.
    ui.answerPanel(std::nullopt);
    EXPECT_TRUE(interchange.exportVornDataXML());
    ui.answerPanel(dir.filePath("listed.xml/inside.xml"));
    EXPECT_FALSE(interchange.exportVornDataXML());
    EXPECT_EQ(exportedNumbers(listed), (QStringList{"C", "A"}));
    EXPECT_TRUE(ui.calls("error").isEmpty());
}
