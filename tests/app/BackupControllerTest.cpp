#include "app/BackupController.h"
#include "app/StoreSnapshot.h"
#include "store/SqliteStore.h"
#include "tests/app/AppHarness.h"

#include <QRegularExpression>

#include <csignal>
#include <functional>
#include <optional>
#include <sys/resource.h>

using namespace vorn;
using namespace vorn::test;

namespace {

using CheckResult = BackupController::CheckResult;
using RestoreResult = BackupController::RestoreResult;

// Writes beyond limit bytes fail, as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_old);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{bytes, m_old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_old{};
    void (*m_handler)(int) = nullptr;
};

// Nothing half-written is left behind: no temporary copies, no replaced store.
QString leftovers(const QString& folder)
{
    QStringList found;
    for (const QString& name : filesIn(folder))
        if (name.startsWith('.') || name.contains("incoming") || name.contains("replaced"))
            found << name;
    return found.join(' ');
}

// Noise written every step bytes from the given offset to the end.
QString withNoise(const QString& path, qint64 from, qint64 step, const QByteArray& noise)
{
    QFile file(path);
    file.open(QIODevice::ReadWrite);
    for (qint64 at = from; at < file.size(); at += step) {
        file.seek(at);
        file.write(noise);
    }
    return path;
}

class BackupTest : public ::testing::Test
{
protected:
    BackupController& backup() { return h.app->backupController(); }
    QString home() const { return h.env.home(); }
    QString storeFolder() const { return QFileInfo(h.storePath()).absolutePath(); }

    AppHarness h;
};

TEST_F(BackupTest, BackupHoldsTheLastSavedStateWhileEditsArePending)
{
    h.launch(false);
    h.addDocuments(3, "A");
    h.addDocuments(1, "U", false);
    h.documentNumbered("A1")->setValue("number", "changed");
    h.context()->deleteObject(h.documentNumbered("A2"));
    ASSERT_TRUE(h.context()->hasChanges());

    const QString out = home() + "/Backup.vndb";
    h.ui.answerPanel(out);
    EXPECT_TRUE(backup().backupVornData());
    ASSERT_EQ(h.ui.calls("save").size(), 1);
    EXPECT_EQ(shown(h.ui.calls("save")[0]), (QStringList{"Backup Vorn Database", "Vorn Database", "vndb"}));
    EXPECT_EQ(numbersIn(out), sequence("A", 3));
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(out).ok());
    // One self-contained file: no log beside it that a copy could miss.
    EXPECT_EQ(queryColumn(out, "PRAGMA journal_mode").value(0), "delete");
    EXPECT_EQ(filesIn(home()).filter("Backup"), QStringList{"Backup.vndb"});
    EXPECT_TRUE(h.context()->hasChanges());

    ASSERT_TRUE(h.context()->save().ok());
    h.ui.answerPanel(out);
    EXPECT_TRUE(backup().backupVornData());
    EXPECT_EQ(numbersIn(out), words("A3 U1 changed"));
    EXPECT_TRUE(h.ui.calls("error").isEmpty());

    // A cancelled panel writes nothing.
    EXPECT_FALSE(backup().backupVornData());
    EXPECT_EQ(leftovers(home()), "");
    EXPECT_TRUE(h.ui.calls("error").isEmpty());
}

struct BadDestination
{
    const char* name;
    // Where the backup should go; "@store" stands for the live store's path.
    const char* path;
    bool existingBackup; // an older backup is already there and must survive
    bool readOnly;       // the destination folder cannot be written
    bool diskFull;
};

class BackupRefusal : public BackupTest, public ::testing::WithParamInterface<BadDestination>
{
};

TEST_P(BackupRefusal, LeavesNothingHalfWrittenAndTheStoreIntact)
{
    const BadDestination& row = GetParam();
    h.launch(false);
    h.addDocuments(3, "A");
    QString destination = QString(row.path).replace("@store", h.storePath());
    if (QFileInfo(destination).isRelative())
        destination = home() + '/' + destination;
    const QString folder = QFileInfo(destination).absolutePath();
    if (row.existingBackup)
        writeFile(destination, "an older backup");

    std::optional<ReadOnlyFolder> readOnly;
    if (row.readOnly && !readOnly.emplace(folder).holds())
        GTEST_SKIP() << "this system lets the test write to a read-only folder";
    std::optional<FileSizeLimit> full;
    if (row.diskFull)
        full.emplace(8 * 1024);
    h.ui.answerPanel(destination);
    const bool written = backup().backupVornData();
    full.reset();
    readOnly.reset();

    EXPECT_FALSE(written);
    ASSERT_EQ(h.ui.calls("error").size(), 1);
    EXPECT_FALSE(h.ui.calls("error")[0].title.isEmpty());
    if (row.existingBackup) {
        EXPECT_EQ(fileBytes(destination), "an older backup");
    } else if (!destination.startsWith(h.storePath())) {
        EXPECT_FALSE(QFileInfo::exists(destination));
    }
    if (QFileInfo(folder).isDir()) {
        EXPECT_EQ(leftovers(folder), "");
    }
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(h.storePath()).ok());
    EXPECT_EQ(numbersIn(h.storePath()), sequence("A", 3));
    EXPECT_EQ(h.listedNumbers(), sequence("A", 3));
}

const BadDestination badDestinations[] = {
    {"MissingFolder", "nowhere/Backup.vndb", false, false, false},
    {"ReadOnlyFolder", "locked/Backup.vndb", false, true, false},
    {"ReadOnlyFolderWithOlderBackup", "locked/Backup.vndb", true, true, false},
    {"DiskFull", "Backup.vndb", false, false, true},
    {"DiskFullWithOlderBackup", "Backup.vndb", true, false, true},
    {"TheStoreItself", "@store", false, false, false},
    {"TheStoreLog", "@store-wal", false, false, false},
};

INSTANTIATE_TEST_SUITE_P(Destinations, BackupRefusal, ::testing::ValuesIn(badDestinations),
                         [](const auto& info) { return std::string(info.param.name); });

// --- The safety copy and the repair question ---------------------------------

TEST_F(BackupTest, NoQuestionAfterCleanQuitsOrWithUnreadableSettings)
{
    for (int run = 1; run <= 5; ++run) {
        h.ui.clear();
        h.launch();
        EXPECT_TRUE(h.ui.alertTitles().isEmpty()) << "run " << run;
        // The copy made at launch holds what the previous run left.
        EXPECT_EQ(numbersIn(h.backupPath()), sequence("D", run - 1)) << "run " << run;
        EXPECT_EQ(backup().createBackup(), CheckResult::AlreadyDone);
        h.addDocument(QString("D%1").arg(run));
        ASSERT_TRUE(h.context()->save().ok());
        h.quit();
    }
    // Unreadable settings skip the check and leave the copy as it is. (Without
    // the launch checks the copy is left to the command: the CLI suite.)
    writeFile(h.env.locations().settingsFile(), "<?xml version=\"1.0\"?><plist><dict><key>");
    const QByteArray safetyCopy = fileBytes(h.backupPath());
    h.ui.clear();
    h.launch();
    EXPECT_FALSE(h.ui.alertTitles().contains("Warning!"));
    EXPECT_EQ(backup().createBackup(), CheckResult::AlreadyDone);
    EXPECT_EQ(fileBytes(h.backupPath()), safetyCopy);
}

// The safety copy a repair would restore from.
enum class Copy
{
    Good,
    Missing, // told as a missing copy
    Damaged  // told as an error
};

struct OutsideChange
{
    const char* name;
    std::function<void(AppHarness&)> change;
    const char* afterChange; // the documents of the store once changed
    Copy copy = Copy::Good;
};

class RepairQuestion : public BackupTest, public ::testing::WithParamInterface<std::tuple<OutsideChange, int>>
{
};

// Proceeding repairs from the safety copy, keeping the changed store beside
// it; without a good copy the repair is refused and the store stays as it is.
TEST_P(RepairQuestion, FollowsADocumentCountChangedOutsideANormalRun)
{
    const auto& [row, answer] = GetParam();
    h.launch();
    h.addDocuments(3, "A");
    h.quit();
    h.launch();
    h.quit();
    ASSERT_EQ(numbersIn(h.backupPath()), sequence("A", 3));

    row.change(h);
    const QByteArray safetyCopy = fileBytes(h.backupPath());
    h.ui.clear();
    h.ui.answerAlert(answer);
    h.launch();

    const bool repairs = answer == 0 && row.copy == Copy::Good;
    const auto alerts = h.ui.calls("alert");
    ASSERT_EQ(alerts.size(), answer == 0 && row.copy == Copy::Missing ? 2 : 1);
    EXPECT_EQ(shown(alerts[0]),
              (QStringList{"Warning!", BackupController::repairQuestionText(), "Proceed|Cancel"}));
    if (alerts.size() > 1) {
        EXPECT_EQ(shown(alerts[1]), (QStringList{"Error!",
                                                 "No valid backup file available. Please restore your Vorn "
                                                 "database from your own (Time Machine) backups.",
                                                 "OK"}));
    }
    EXPECT_EQ(h.ui.calls("error").size(), answer == 0 && row.copy == Copy::Damaged ? 1 : 0);
    // The safety copy is never refreshed from a store that failed the check.
    EXPECT_EQ(fileBytes(h.backupPath()), safetyCopy);
    const QString replaced = backup().lastReplacedPath();
    const QStringList kept = repairs ? sequence("A", 3) : words(row.afterChange);
    EXPECT_EQ(h.listedNumbers(), kept);
    EXPECT_EQ(numbersIn(h.storePath()), kept);
    if (repairs) {
        ASSERT_FALSE(replaced.isEmpty());
        EXPECT_EQ(numbersIn(replaced), words(row.afterChange));
    } else {
        EXPECT_TRUE(replaced.isEmpty());
        EXPECT_EQ(leftovers(storeFolder()), "");
    }

    // A clean quit settles it: the next launch asks nothing.
    h.quit();
    h.ui.clear();
    h.launch();
    EXPECT_TRUE(h.ui.alertTitles().isEmpty());
}

void crashAfterSaving(AppHarness& h)
{
    h.launch(false);
    h.addDocuments(1, "C");
    h.crash();
}

const OutsideChange outsideChanges[] = {
    {"CrashAfterSaving", crashAfterSaving, "A1 A2 A3 C1"},
    {"DeletedByAnotherProgram",
     [](AppHarness& h) { ASSERT_TRUE(execOn(h.storePath(), "DELETE FROM Invoice WHERE number = 'A2'")); },
     "A1 A3"},
    {"AddedByAnotherProgram",
     [](AppHarness& h) {
         ASSERT_TRUE(execOn(h.storePath(), "INSERT INTO Invoice (_id, number) VALUES (99, 'Z1')"));
     },
     "A1 A2 A3 Z1"},
    {"SettingsLost", [](AppHarness& h) { ASSERT_TRUE(QFile::remove(h.env.locations().settingsFile())); },
     "A1 A2 A3"},
    {"CopyMissing",
     [](AppHarness& h) {
         crashAfterSaving(h);
         QFile::remove(h.backupPath());
     },
     "A1 A2 A3 C1", Copy::Missing},
    {"CopyGarbage",
     [](AppHarness& h) {
         crashAfterSaving(h);
         writeFile(h.backupPath(), QByteArray(40000, 'Z'));
     },
     "A1 A2 A3 C1", Copy::Damaged},
    {"CopyTruncated",
     [](AppHarness& h) {
         crashAfterSaving(h);
         QFile::resize(h.backupPath(), QFileInfo(h.backupPath()).size() / 2);
     },
     "A1 A2 A3 C1", Copy::Damaged},
};

INSTANTIATE_TEST_SUITE_P(Changes, RepairQuestion,
                         ::testing::Combine(::testing::ValuesIn(outsideChanges), ::testing::Values(0, 1)),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) +
                                    (std::get<1>(info.param) == 0 ? "_Proceed" : "_Cancel");
                         });

// --- Restoring --------------------------------------------------------------

class RestoreTest : public BackupTest
{
protected:
    // A live store with A1..A3 and a backup (base.vndb) with S1, S2; the
    // backup is large enough to be copied in several steps.
    void SetUp() override
    {
        h.launch(false);
        h.addDocuments(2, "S");
        h.documentNumbered("S1")->setValue("notes", QString(600000, 'n'));
        ASSERT_TRUE(h.context()->save().ok());
        base = home() + "/base.vndb";
        ASSERT_TRUE(backup().backupTo(base).ok());
        for (ManagedObject* doc : h.context()->fetch(Entity::Invoice))
            h.context()->deleteObject(doc);
        h.addDocuments(3, "A");
        h.ui.clear();
    }

    RestoreResult restore(const QString& path)
    {
        h.ui.answerAlert(0);
        h.ui.answerPanel(path);
        return backup().restoreVornData();
    }

    QString base;
};

struct BadSource
{
    const char* name;
    int code; // the error presented; 0 for any
    // Spoils the copy of the good backup to restore from, or points elsewhere.
    std::function<void(QString& path, AppHarness& h)> spoil;
    // Spoils the source once the copy has begun.
    std::function<void(const QString& path)> during = {};
    bool storeFolderReadOnly = false;
};

class RestoreRefusal : public RestoreTest, public ::testing::WithParamInterface<BadSource>
{
};

TEST_P(RestoreRefusal, LeavesTheLiveStoreAndPendingEditsIntact)
{
    const BadSource& row = GetParam();
    QString source = home() + '/' + row.name + ".vndb";
    ASSERT_TRUE(QFile::copy(base, source));
    if (row.spoil)
        row.spoil(source, h);
    h.addDocuments(1, "P", false);
    int copySteps = 0;
    backup().setCopyProgress([&](int, int) {
        if (copySteps++ == 0 && row.during)
            row.during(source);
    });
    std::optional<ReadOnlyFolder> readOnly;
    if (row.storeFolderReadOnly && !readOnly.emplace(storeFolder()).holds())
        GTEST_SKIP() << "this system lets the test write to a read-only folder";
    const RestoreResult result = restore(source);
    readOnly.reset();

    EXPECT_EQ(result, RestoreResult::Failed);
    const auto errors = h.ui.calls("error");
    ASSERT_EQ(errors.size(), 1);
    if (row.code) {
        EXPECT_EQ(errors[0].code, row.code)
            << errors[0].title.toStdString() << " " << errors[0].text.toStdString();
    }
    EXPECT_TRUE(errors[0].text.endsWith("Nothing was changed: your Vorn database is as it was."));
    if (row.during) {
        EXPECT_GT(copySteps, 0) << "the copy never began";
    }

    EXPECT_EQ(h.listedNumbers(), words("A1 A2 A3 P1"));
    EXPECT_TRUE(h.context()->hasChanges());
    ASSERT_TRUE(h.context()->save().ok());
    EXPECT_EQ(numbersIn(h.storePath()), words("A1 A2 A3 P1"));
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(h.storePath()).ok());
    EXPECT_EQ(leftovers(storeFolder()), "");
}

const BadSource badSources[] = {
    {"EmptyFile", ErrorCode::StoreNotVorn, [](auto& p, auto&) { writeFile(p, {}); }},
    {"MissingFile", ErrorCode::FileNotFound, [](auto& p, auto&) { QFile::remove(p); }},
    {"TruncatedStore", ErrorCode::StoreDamaged,
     [](auto& p, auto&) { QFile::resize(p, QFileInfo(p).size() / 2); }},
    // Everything after the first page (which holds the schema) is noise.
    {"DamagedPages", ErrorCode::StoreDamaged,
     [](auto& p, auto&) { withNoise(p, 4096 + 100, 997, "\xde\xad\xbe\xef"); }},
    {"NewerSchemaVersion", ErrorCode::StoreTooNew,
     [](auto& p, auto&) { execOn(p, "PRAGMA user_version = 99"); }},
    {"AnotherSqliteDatabase", ErrorCode::StoreNotVorn,
     [](auto& p, auto&) {
         QFile::remove(p);
         execOn(p, "CREATE TABLE notes (text TEXT); INSERT INTO notes VALUES ('hello')", true);
     }},
    {"TheLiveStoreItself", 0, [](auto& p, auto& h) { p = h.storePath(); }},
    {"VanishesMidCopy", ErrorCode::FileNotFound, nullptr, [](auto& p) { QFile::remove(p); }},
    {"TruncatedMidCopy", 0, nullptr, [](auto& p) { QFile::resize(p, 8192); }},
    // Pages not copied yet get noise where their contents begin.
    {"DamagedMidCopy", ErrorCode::StoreDamaged, nullptr,
     [](auto& p) { withNoise(p, 128 * 4096, 4096, "\xde\xad\xbe\xef\xde\xad\xbe\xef"); }},
    {"ReadOnlyStoreFolder", ErrorCode::FileWriteNoPermission, nullptr, nullptr, true},
};

INSTANTIATE_TEST_SUITE_P(Sources, RestoreRefusal, ::testing::ValuesIn(badSources),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(RestoreTest, SwapsTheStoreKeepsTheOldOneAndShowsTheRestoredData)
{
    h.addDocuments(1, "P", false);
    int arrangedChanges = 0;
    QObject::connect(&h.app->state().invoicesController(), &ArrayController::arrangedObjectsChanged,
                     [&] { ++arrangedChanges; });

    EXPECT_EQ(restore(base), RestoreResult::Restored);

    ASSERT_EQ(h.ui.calls("alert").size(), 1);
    EXPECT_EQ(shown(h.ui.calls("alert")[0]),
              (QStringList{"Warning!",
                           "You are about to restore your complete Vorn database from a backup. This will "
                           "irretrievably replace any existing data. Do you really want to do that?",
                           "Restore…|Cancel"}));
    ASSERT_EQ(h.ui.calls("open").size(), 1);
    EXPECT_EQ(shown(h.ui.calls("open")[0]), (QStringList{"Restore Vorn Database", "", "vndb"}));
    EXPECT_TRUE(h.ui.calls("error").isEmpty());

    EXPECT_GT(arrangedChanges, 0);
    EXPECT_EQ(h.listedNumbers(), sequence("S", 2));
    EXPECT_FALSE(h.context()->hasChanges());
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(h.storePath()).ok());
    const QString replaced = backup().lastReplacedPath();
    EXPECT_TRUE(QRegularExpression("^Vorn\\.replaced-\\d{4}-\\d\\d-\\d\\d-\\d{6}\\.vndb$")
                    .match(QFileInfo(replaced).fileName())
                    .hasMatch())
        << replaced.toStdString();
    EXPECT_EQ(numbersIn(replaced), sequence("A", 3));
    EXPECT_FALSE(QFileInfo::exists(h.storePath() + ".incoming"));

    // The restored store takes new work, and a second restore in the same
    // second keeps both replaced stores.
    h.addDocuments(1, "N");
    EXPECT_EQ(restore(base), RestoreResult::Restored);
    EXPECT_NE(backup().lastReplacedPath(), replaced);
    EXPECT_EQ(numbersIn(backup().lastReplacedPath()), words("N1 S1 S2"));
    EXPECT_EQ(numbersIn(replaced), sequence("A", 3));

    // Quitting records the restored count: the next launch asks nothing.
    h.quit();
    h.ui.clear();
    h.launch();
    EXPECT_TRUE(h.ui.alertTitles().isEmpty());
    EXPECT_EQ(h.listedNumbers(), sequence("S", 2));
}

TEST_F(RestoreTest, ReadsWhatASourceInUseHasOnlyInItsLog)
{
    const QString source = home() + "/inuse.vndb";
    auto store = SqliteStore::open(source, ObjectModel::vorn());
    ASSERT_TRUE(store.ok());
    ObjectContext other(std::move(store.value()), h.clock);
    sqlite3_exec(other.store()->handle(), "PRAGMA wal_autocheckpoint = 0", nullptr, nullptr, nullptr);
    for (int i = 1; i <= 2; ++i)
        other.insertNewObject(Entity::Invoice)->setValue("number", QString("W%1").arg(i));
    ASSERT_TRUE(other.save().ok());
    ASSERT_GT(QFileInfo(source + "-wal").size(), 0);

    EXPECT_EQ(restore(source), RestoreResult::Restored);
    EXPECT_EQ(h.listedNumbers(), sequence("W", 2));
    EXPECT_EQ(queryColumn(h.storePath(), "PRAGMA journal_mode").value(0), "wal");
}

TEST_F(RestoreTest, ALogLeftByAnotherReaderIsNotAppliedToTheRestoredStore)
{
    // Another program (a command-line run, say) keeps the store open, so
    // closing ours leaves its log behind at the store's path.
    // Its open read transaction keeps the later saves from being folded in.
    auto reader = SqliteStore::open(h.storePath(), ObjectModel::vorn());
    ASSERT_TRUE(reader.ok());
    ASSERT_EQ(sqlite3_exec(reader.value()->handle(), "BEGIN; SELECT count(*) FROM Invoice", nullptr, nullptr,
                           nullptr),
              SQLITE_OK);
    h.addDocuments(2, "L");

    EXPECT_EQ(restore(base), RestoreResult::Restored);
    sqlite3_exec(reader.value()->handle(), "COMMIT", nullptr, nullptr, nullptr);
    reader.value().reset();

    EXPECT_EQ(h.listedNumbers(), sequence("S", 2));
    EXPECT_EQ(numbersIn(h.storePath()), sequence("S", 2));
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(h.storePath()).ok());
    EXPECT_EQ(numbersIn(backup().lastReplacedPath(), true), words("A1 A2 A3 L1 L2"));
}

TEST_F(RestoreTest, CancellingAtTheWarningOrInThePanelChangesNothing)
{
    h.addDocuments(1, "P", false);
    for (const bool atTheWarning : {false, true}) {
        SCOPED_TRACE(atTheWarning ? "at the warning" : "in the panel");
        h.ui.clear();
        h.ui.answerAlert(atTheWarning ? 1 : 0);
        h.ui.answerPanel(atTheWarning ? std::optional<QString>(base) : std::nullopt);
        EXPECT_EQ(backup().restoreVornData(), RestoreResult::Cancelled);
        EXPECT_EQ(h.ui.calls("open").size(), atTheWarning ? 0 : 1);
        EXPECT_TRUE(h.ui.calls("error").isEmpty());
        EXPECT_TRUE(h.context()->hasChanges());
        EXPECT_EQ(numbersIn(h.storePath()), sequence("A", 3));
        EXPECT_EQ(leftovers(storeFolder()), "");
    }
}

TEST_F(RestoreTest, RescuesAStoreThatCannotBeOpened)
{
    h.quit();
    const QByteArray garbage(20000, '\x33');
    writeFile(h.storePath(), garbage);
    h.launch(false);
    ASSERT_EQ(h.context(), nullptr);
    h.ui.clear();
    EXPECT_EQ(restore(base), RestoreResult::Restored);
    EXPECT_TRUE(h.ui.calls("error").isEmpty());
    EXPECT_EQ(h.listedNumbers(), sequence("S", 2));
    EXPECT_EQ(fileBytes(backup().lastReplacedPath()), garbage);
    h.addDocuments(1, "N");
    EXPECT_EQ(numbersIn(h.storePath()), words("N1 S1 S2"));
}

} // namespace
