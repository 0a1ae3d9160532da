#include "documents/InterchangeFile.h"
#include "invoicing/DataController.h"
#include "invoicing/InvoicingControllers.h"
#include "tests/app/AppHarness.h"

#include <sqlite3.h>

namespace vorn::test {
namespace {

// One launch after another of the application core in a scratch home, as
// the window system would drive it, counting the design seeding.
class AppDelegateTest : public ::testing::Test
{
protected:
    AppDelegateTest()
    {
        h.templateLoader = [this] { ++templateLoads; };
    }
    AppDelegate& app() { return *h.app; }

    AppHarness h;
    int templateLoads = 0;
};

const char* const refuseInserts =
    "CREATE TRIGGER refuse BEFORE INSERT ON Invoice BEGIN SELECT RAISE(ABORT, 'disk says no'); END";

TEST_F(AppDelegateTest, FirstLaunchCreatesTheStoreAndSeedsOnce)
{
    const FileLocations l = h.env.locations();
    ASSERT_FALSE(QFileInfo::exists(l.filesDirectory));
    h.launch();
    EXPECT_TRUE(h.ui.errors().isEmpty()) << qPrintable(h.ui.errors().value(0).fullText());
    EXPECT_TRUE(QFileInfo(l.storeFile()).isFile());
    EXPECT_EQ(QFileInfo(l.filesDirectory).fileName(), "com.tandrelo.Orvandel");
    // The store stack is built once and shared.
    ASSERT_NE(h.context(), nullptr);
    EXPECT_EQ(app().managedObjectContext(), h.context());
    EXPECT_EQ(templateLoads, 1);
    EXPECT_EQ(h.ui.calls("center").size(), 1);
    EXPECT_EQ(h.ui.calls("preferences").size(), 1);
    // The PDF goes to the caches, not beside the store.
    EXPECT_EQ(app().state().pdfPath, l.cachesDirectory + "/Invoice.pdf");

    // The English list is written as real settings, on disk (the whole list: below).
    EXPECT_EQ(h.storedSetting("locInvoice"), "Invoice");
    EXPECT_EQ(h.storedSetting("tax1Title"), "Sales Tax");
    EXPECT_EQ(h.storedSetting("firstStartEverDone"), true);
    EXPECT_EQ(h.storedSetting("firstCenter"), true);

    // The second launch seeds nothing and keeps what the user changed.
    h.settings->setValue("locInvoice", "Bill");
    h.settings->removeValue("tax1Title");
    ASSERT_TRUE(h.settings->synchronize());
    h.ui.clear();
    h.launch();
    EXPECT_EQ(templateLoads, 1);
    EXPECT_TRUE(h.ui.calls("center").isEmpty());
    EXPECT_EQ(h.ui.calls("preferences").size(), 1);
    EXPECT_EQ(h.settings->stringValue("locInvoice"), "Bill");
    EXPECT_FALSE(h.settings->hasValue("tax1Title"));
    EXPECT_TRUE(h.ui.errors().isEmpty());
}

// A store that cannot be built is told twice (its cause, then the store
// failure), once only; the application stays up without it and nothing
// writes to what is there, not even a log beside a damaged store.
struct StoreFailure
{
    const char* name;
    bool damagedStore; // else a file where the files folder should be
    int code;
};

class StoreFailureTest : public AppDelegateTest, public ::testing::WithParamInterface<StoreFailure>
{
};

TEST_P(StoreFailureTest, IsToldThenTheApplicationStaysUpAndWritesNothing)
{
    const StoreFailure& row = GetParam();
    const QString path = row.damagedStore ? h.storePath() : h.env.locations().filesDirectory;
    if (row.damagedStore) {
        h.launch(false);
        h.addDocuments(200, "D");
        h.quit();
        h.ui.clear();
    }
    writeFile(path, row.damagedStore ? fileBytes(path).left(QFileInfo(path).size() / 2)
                                     : "I am a file, not a folder.\n");
    const QByteArray before = fileBytes(path);
    h.launch();

    const QList<Error> errors = h.ui.errors();
    ASSERT_GE(errors.size(), 2);
    EXPECT_EQ(errors[0].code, row.code);
    if (row.damagedStore) {
        EXPECT_TRUE(errors[0].message.contains(path)) << qPrintable(errors[0].message);
    } else {
        EXPECT_EQ(errors[0].domain, "YOUR_ERROR_DOMAIN");
        EXPECT_EQ(errors[0].message,
                  QString("Expected a folder to store application data, found a file (%1).").arg(path));
    }
    EXPECT_EQ(errors[1].domain, "YOUR_ERROR_DOMAIN");
    EXPECT_EQ(errors[1].code, 9999);
    EXPECT_EQ(errors[1].message, "Failed to initialize the store");
    EXPECT_EQ(errors[1].reason, "There was an error building up the data file.");
    EXPECT_EQ(app().managedObjectContext(), nullptr);
    EXPECT_EQ(h.context(), nullptr);

    EXPECT_EQ(app().state().currentInvoice(), nullptr);
    EXPECT_FALSE(app().state().isCurrentInvoiceSent());
    app().saveAction();
    app().fadeViewIn();
    EXPECT_EQ(h.ui.errorCodes().count(9999), 1) << "the stack is not rebuilt on later use";
    EXPECT_EQ(app().applicationShouldTerminate(), AppDelegate::TerminateReply::Now);
    EXPECT_EQ(h.storedSetting("isTerminatedFine"), true);
    EXPECT_EQ(h.storedSetting("fetchedObjectsCount"), qint64(0));
    h.crash();
    EXPECT_EQ(fileBytes(path), before);
    EXPECT_FALSE(QFileInfo::exists(path + "-wal"));
}

INSTANTIATE_TEST_SUITE_P(Causes, StoreFailureTest,
                         ::testing::Values(StoreFailure{"AFileWhereTheFolderShouldBe", false, 101},
                                           StoreFailure{"ADamagedStore", true, ErrorCode::StoreDamaged}),
                         [](const auto& info) { return std::string(info.param.name); });

// ---------------------------------------------------------------- quit

enum class Setup
{
    CommitFails,
    NoChanges,
    Changes,
    SaveFails
};

struct QuitCase
{
    const char* name;
    Setup setup;
    int errorAnswer;                   // -1: none scripted
    int alertAnswer;                   // -1: none scripted
    AppDelegate::TerminateReply reply; // quitting is recorded as a fine end
    qint64 count;
};

const auto Now = AppDelegate::TerminateReply::Now;
const auto Cancel = AppDelegate::TerminateReply::Cancel;

const QuitCase quitCases[] = {
    {"CommitFails", Setup::CommitFails, -1, -1, Cancel, 4},
    {"NoChanges", Setup::NoChanges, -1, -1, Now, 3},
    {"SaveSucceeds", Setup::Changes, -1, -1, Now, 4},
    {"SaveFailsRecovered", Setup::SaveFails, 1, -1, Cancel, 4},
    // The question comes only here, and both answers quit.
    {"SaveFailsQuitAnyway", Setup::SaveFails, 0, 0, Now, 4},
    {"SaveFailsCancel", Setup::SaveFails, 0, 1, Now, 4},
};

class QuitTest : public AppDelegateTest, public ::testing::WithParamInterface<QuitCase>
{
};

TEST_P(QuitTest, QuitProtocol)
{
    const QuitCase& c = GetParam();
    h.launch();
    QObject editor;
    ASSERT_NE(h.context(), nullptr);
    h.addDocuments(3, "Q", false);
    app().saveAction();
    ASSERT_FALSE(h.context()->hasChanges());
    if (c.setup != Setup::NoChanges)
        h.addDocument("pending");
    if (c.setup == Setup::CommitFails)
        h.context()->registerEditor(&editor, [] { return false; });
    if (c.setup == Setup::SaveFails) {
        EXPECT_TRUE(execOn(h.storePath(), refuseInserts));
    }
    // The opposite of what must be written, so that writing it shows.
    const bool terminatedFine = c.reply == Now;
    h.settings->setValue("isTerminatedFine", !terminatedFine);
    h.settings->setValue("fetchedObjectsCount", qint64(-1));
    ASSERT_TRUE(h.settings->synchronize());
    if (c.errorAnswer >= 0)
        h.ui.answerErrorRecovered(c.errorAnswer == 1);
    if (c.alertAnswer >= 0)
        h.ui.answerAlert(c.alertAnswer);
    h.ui.clear();

    EXPECT_EQ(app().applicationShouldTerminate(), c.reply);
    EXPECT_EQ(h.storedSetting("isTerminatedFine"), terminatedFine);
    EXPECT_EQ(h.storedSetting("fetchedObjectsCount"), c.count);
    const auto alerts = h.ui.calls("alert");
    ASSERT_EQ(alerts.size(), c.alertAnswer >= 0 ? 1 : 0);
    if (!alerts.isEmpty()) {
        EXPECT_EQ(
            shown(alerts[0]),
            (QStringList{"Could not save changes while quitting. Quit anyway?",
                         "Quitting now will lose any changes you have made since the last successful save",
                         "Quit anyway|Cancel"}));
    }
    EXPECT_EQ(h.ui.errors().size(), c.setup == Setup::SaveFails ? 1 : 0);
    if (c.setup == Setup::Changes) {
        h.launch();
        EXPECT_EQ(h.context()->fetch(Entity::Invoice).size(), 4);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, QuitTest, ::testing::ValuesIn(quitCases),
                         [](const auto& info) { return std::string(info.param.name); });

// The save command tells its own failure (once, even when an editor cannot
// commit); saves after edits tell it once more, then not until one succeeds.
TEST_F(AppDelegateTest, AFailedSaveIsToldOnceWithItsCause)
{
    h.launch();
    DataController& data = app().invoicing().data();
    ASSERT_NE(data.addInvoice(), nullptr);
    sqlite3* db = h.context()->store()->handle();
    auto pragma = [db](const QByteArray& sql) {
        sqlite3_stmt* stmt = nullptr;
        sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr);
        sqlite3_step(stmt);
        const qint64 value = sqlite3_column_int64(stmt, 0);
        sqlite3_finalize(stmt);
        return value;
    };
    // The disk fills up: not one page more.
    pragma("PRAGMA max_page_count = " + QByteArray::number(pragma("PRAGMA page_count")));
    h.ui.clear();
    h.addDocument("big")->setValue("notes", QString(100000, 'x'));
    {
        QObject editor;
        h.context()->registerEditor(&editor, [] { return false; });
        app().saveAction();
    }
    EXPECT_EQ(h.ui.errors().size(), 1);
    data.addInvoice();
    data.addInvoice();
    ASSERT_EQ(h.ui.errors().size(), 2);
    for (const Error& error : h.ui.errors())
        EXPECT_TRUE(error.message.startsWith("The disk is full")) << qPrintable(error.message);
    EXPECT_TRUE(h.context()->hasChanges());

    // Space again: the next edit saves everything.
    pragma("PRAGMA max_page_count = 1000000");
    data.addInvoice();
    EXPECT_FALSE(h.context()->hasChanges());
    EXPECT_EQ(h.ui.errors().size(), 2);
    h.quit();
    h.launch();
    EXPECT_EQ(h.context()->fetch(Entity::Invoice).size(), 5);
}

// ---------------------------------------------------------------- state

TEST_F(AppDelegateTest, OpeningAFileFromOutsideOnlyExplainsOrRefusesADamagedOne)
{
    h.launch();
    const QString good = h.env.home() + "/Invoice.vorn";
    ASSERT_TRUE(InterchangeFile::writeDocumentFile(good, *h.addDocument("1")));
    h.context()->rollback();
    const auto write = [this](const QString& name, const QByteArray& bytes) {
        writeFile(h.env.home() + "/" + name, bytes);
        return h.env.home() + "/" + name;
    };
    const struct
    {
        QString path;
        bool refused;
    } cases[] = {
        {good, false},
        {write("Damaged.vorn", "bplist00 not really"), true},
        {write("Damaged.design", QByteArray(100, 'x')), true},
        {write("Damaged.vndb", "SQLite format 3 but not a database"), true},
        {write("Notes.txt", "anything"), false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path.toStdString());
        h.ui.clear();
        EXPECT_TRUE(app().applicationOpenFile(c.path));
        if (c.refused) {
            ASSERT_EQ(h.ui.errors().size(), 1);
            EXPECT_TRUE(h.ui.errors()[0].fullText().contains(QFileInfo(c.path).fileName()))
                << qPrintable(h.ui.errors()[0].fullText());
            EXPECT_TRUE(h.ui.calls("alert").isEmpty());
            continue;
        }
        EXPECT_TRUE(h.ui.errors().isEmpty());
        ASSERT_EQ(h.ui.calls("alert").size(), 1);
        EXPECT_EQ(
            shown(h.ui.calls("alert")[0]),
            (QStringList{"Vorn, Vorn Documents, and the Vorn Database",
                         "In order to avoid duplicate entries, hiccups, and to keep the database intact - "
                         "please use the 'File Menu' to open documents and to restore the Vorn database.",
                         "OK"}));
    }
    // Nothing comes in this way.
    EXPECT_TRUE(h.context()->fetch(Entity::Invoice).isEmpty());
    EXPECT_TRUE(app().applicationShouldHandleReopen());
}

TEST_F(AppDelegateTest, CurrentInvoiceFollowsTheSelectionAndTheToolbarTheList)
{
    h.launch();
    h.ui.clear();
    AppState& state = app().state();
    app().fadeViewIn();
    // Every status but the first counts as sent, for either kind.
    for (int status = 0; status < 5; ++status) {
        ManagedObject* doc = h.addDocument(QString::number(status));
        assign(*doc, "kind", status % 2, "status", status);
        state.invoicesController().setSelectedObjects({doc});
        EXPECT_EQ(state.currentInvoice(), doc);
        EXPECT_EQ(state.isCurrentInvoiceSent(), status > 0) << "status " << status;
    }
    app().fadeViewIn();
    state.invoicesController().setSelectionIndexes({});
    EXPECT_EQ(state.currentInvoice(), nullptr);
    EXPECT_FALSE(state.isCurrentInvoiceSent());
    // For an empty list, then one with documents.
    ASSERT_EQ(h.ui.calls("toolbar").size(), 2);
    EXPECT_EQ(h.ui.calls("toolbar")[0].title, "addressItem");
    EXPECT_EQ(h.ui.calls("toolbar")[1].title, "infoItem");
}

TEST_F(AppDelegateTest, LoadDefaultsSwitchesToTheListOfTheLanguage)
{
    h.launch();
    for (int language : {1, 0, 3, 2}) {
        SCOPED_TRACE(language);
        ASSERT_TRUE(app().loadDefaults(language));
        EXPECT_EQ(h.storedSetting("languageDefaults"), qint64(language)) << "written to the file";
        const auto list = AppDelegate::defaultList(AppDelegate::defaultListName(language));
        ASSERT_TRUE(list.ok());
        for (auto it = list.value().cbegin(); it != list.value().cend(); ++it)
            EXPECT_EQ(h.settings->value(it.key()), it.value()) << qPrintable(it.key());
    }
}

} // namespace
} // namespace vorn::test
