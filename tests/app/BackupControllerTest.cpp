#include "app/BackupController.h"
#include "app/StoreSnapshot.h"
#include "store/SqliteStore.h"
#include "tests/app/AppHarness.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <optional>
#include <sys/resource.h>

using namespace vorn;
using namespace vorn::test;

namespace {

using CheckResult = BackupController::CheckResult;
using RestoreResult = BackupController::RestoreResult;

const QString missingCopyText = QStringLiteral("No valid backup file available. Please restore your Vorn "
                                               "database from your own (Time Machine) backups.");

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

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& data)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(data);
}

ManagedObject* documentNumbered(AppHarness& h, const QString& number)
{
    for (ManagedObject* doc : h.app->state().invoicesController().arrangedObjects())
        if (doc->stringValue(QStringLiteral("number")) == number)
            return doc;
    return nullptr;
}

// Nothing half-written is left behind: no temporary copies, no replaced store.
QStringList leftovers(const QString& folder)
{
    QStringList found;
    for (const QString& name : filesIn(folder))
        if (name.startsWith(QLatin1Char('.')) || name.contains(QLatin1String("incoming")) ||
            name.contains(QLatin1String("replaced")))
            found << name;
    return found;
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
    h.addDocuments(3, QStringLiteral("A"));
    h.addDocuments(1, QStringLiteral("U"), false);
    documentNumbered(h, QStringLiteral("A1"))->setValue(QStringLiteral("number"), QStringLiteral("changed"));
    h.context()->deleteObject(documentNumbered(h, QStringLiteral("A2")));
    ASSERT_TRUE(h.context()->hasChanges());

    const QString out = home() + QStringLiteral("/Backup.vndb");
    h.ui.answerPanel(out);
    EXPECT_TRUE(backup().backupVornData());

    const auto panels = h.ui.calls(QStringLiteral("save"));
    ASSERT_EQ(panels.size(), 1);
    EXPECT_EQ(panels[0].title, QStringLiteral("Backup Vorn Database"));
    EXPECT_EQ(panels[0].text, QStringLiteral("Vorn Database"));
    EXPECT_EQ(panels[0].buttons, QStringList{QStringLiteral("vndb")});
    EXPECT_EQ(numbersIn(out), sequence(QStringLiteral("A"), 3));
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(out).ok());
    // One self-contained file: no log beside it that a copy could miss.
    EXPECT_EQ(StoreProbe(out).journalMode(), QStringLiteral("delete"));
    EXPECT_EQ(filesIn(home()).filter(QStringLiteral("Backup")), QStringList{QStringLiteral("Backup.vndb")});
    EXPECT_TRUE(h.context()->hasChanges());

    ASSERT_TRUE(h.context()->save().ok());
    h.ui.answerPanel(out);
    EXPECT_TRUE(backup().backupVornData());
    EXPECT_EQ(numbersIn(out),
              (QStringList{QStringLiteral("A3"), QStringLiteral("U1"), QStringLiteral("changed")}));
    EXPECT_TRUE(h.ui.calls(QStringLiteral("error")).isEmpty());
}

TEST_F(BackupTest, CancelledSavePanelWritesNothing)
{
    h.launch(false);
    h.addDocuments(1, QStringLiteral("A"));
    EXPECT_FALSE(backup().backupVornData());
    EXPECT_TRUE(leftovers(home()).isEmpty());
    EXPECT_TRUE(h.ui.calls(QStringLiteral("error")).isEmpty());
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
    h.addDocuments(3, QStringLiteral("A"));
    QString destination = QString::fromLatin1(row.path);
    if (destination.startsWith(QLatin1String("@store")))
        destination.replace(QStringLiteral("@store"), h.storePath());
    else
        destination = home() + QLatin1Char('/') + destination;
    const QString folder = QFileInfo(destination).absolutePath();
    if (row.existingBackup) {
        QDir().mkpath(folder);
        writeFile(destination, "an older backup");
    }

    std::optional<ReadOnlyFolder> readOnly;
    if (row.readOnly) {
        readOnly.emplace(folder);
        if (!readOnly->holds())
            GTEST_SKIP() << "this system lets the test write to a read-only folder";
    }
    std::optional<FileSizeLimit> full;
    if (row.diskFull)
        full.emplace(8 * 1024);
    h.ui.answerPanel(destination);
    const bool written = backup().backupVornData();
    full.reset();
    readOnly.reset();

    EXPECT_FALSE(written);
    const auto errors = h.ui.calls(QStringLiteral("error"));
    ASSERT_EQ(errors.size(), 1);
    EXPECT_FALSE(errors[0].title.isEmpty());
    if (row.existingBackup) {
        EXPECT_EQ(contents(destination), QByteArray("an older backup"));
    } else if (!destination.startsWith(h.storePath())) {
        EXPECT_FALSE(QFileInfo::exists(destination));
    }
    if (QFileInfo(folder).isDir()) {
        EXPECT_TRUE(leftovers(folder).isEmpty()) << leftovers(folder).join(QLatin1Char(' ')).toStdString();
    }
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(h.storePath()).ok());
    EXPECT_EQ(numbersIn(h.storePath()), sequence(QStringLiteral("A"), 3));
    EXPECT_EQ(h.listedNumbers(), sequence(QStringLiteral("A"), 3));
}

INSTANTIATE_TEST_SUITE_P(
    Destinations, BackupRefusal,
    ::testing::Values(BadDestination{"MissingFolder", "nowhere/Backup.vndb", false, false, false},
                      BadDestination{"ReadOnlyFolder", "locked/Backup.vndb", false, true, false},
                      BadDestination{"ReadOnlyFolderWithOlderBackup", "locked/Backup.vndb", true, true,
                                     false},
                      BadDestination{"DiskFull", "Backup.vndb", false, false, true},
                      BadDestination{"DiskFullWithOlderBackup", "Backup.vndb", true, false, true},
                      BadDestination{"TheStoreItself", "@store", false, false, false},
                      BadDestination{"TheStoreLog", "@store-wal", false, false, false}),
    [](const auto& info) { return std::string(info.param.name); });

// --- The safety copy and the repair question ---------------------------------

TEST_F(BackupTest, NoQuestionAfterARunOfCleanQuits)
{
    for (int run = 1; run <= 5; ++run) {
        h.ui.clear();
        h.launch();
        EXPECT_TRUE(h.ui.alertTitles().isEmpty()) << "run " << run;
        // The copy made at launch holds what the previous run left.
        EXPECT_EQ(numbersIn(h.backupPath()), sequence(QStringLiteral("D"), run - 1)) << "run " << run;
        EXPECT_EQ(backup().createBackup(), CheckResult::AlreadyDone);
        h.addDocument(QStringLiteral("D%1").arg(run));
        ASSERT_TRUE(h.context()->save().ok());
        h.quit();
    }
}

struct OutsideChange
{
    const char* name;
    std::function<void(AppHarness&)> change;
    QStringList afterChange; // the documents of the store once changed
};

class RepairQuestion : public BackupTest, public ::testing::WithParamInterface<std::tuple<OutsideChange, int>>
{
};

TEST_P(RepairQuestion, FollowsADocumentCountChangedOutsideANormalRun)
{
    const auto& [row, answer] = GetParam();
    h.launch();
    h.addDocuments(3, QStringLiteral("A"));
    h.quit();
    h.launch();
    h.quit();
    const QByteArray safetyCopy = contents(h.backupPath());
    ASSERT_EQ(numbersIn(h.backupPath()), sequence(QStringLiteral("A"), 3));

    row.change(h);
    h.ui.clear();
    h.ui.answerAlert(answer);
    h.launch();

    const auto alerts = h.ui.calls(QStringLiteral("alert"));
    ASSERT_GE(alerts.size(), 1);
    EXPECT_EQ(alerts[0].title, QStringLiteral("Warning!"));
    EXPECT_EQ(alerts[0].text, BackupController::repairQuestionText());
    EXPECT_EQ(alerts[0].buttons, (QStringList{QStringLiteral("Proceed"), QStringLiteral("Cancel")}));
    EXPECT_TRUE(h.ui.calls(QStringLiteral("error")).isEmpty());
    // The safety copy is never refreshed from a store that failed the check.
    EXPECT_EQ(contents(h.backupPath()), safetyCopy);
    if (answer == 0) {
        EXPECT_EQ(h.listedNumbers(), sequence(QStringLiteral("A"), 3));
        EXPECT_EQ(numbersIn(h.storePath()), sequence(QStringLiteral("A"), 3));
        const QString replaced = backup().lastReplacedPath();
        ASSERT_FALSE(replaced.isEmpty());
        EXPECT_EQ(numbersIn(replaced), row.afterChange);
    } else {
        EXPECT_EQ(h.listedNumbers(), row.afterChange);
        EXPECT_TRUE(backup().lastReplacedPath().isEmpty());
    }

    // A clean quit settles it: the next launch asks nothing.
    h.quit();
    h.ui.clear();
    h.launch();
    EXPECT_TRUE(h.ui.alertTitles().isEmpty());
}

const OutsideChange outsideChanges[] = {
    {"CrashAfterSaving",
     [](AppHarness& h) {
         h.launch(false);
         h.addDocuments(1, QStringLiteral("C"));
         h.crash();
     },
     {QStringLiteral("A1"), QStringLiteral("A2"), QStringLiteral("A3"), QStringLiteral("C1")}},
    {"DeletedByAnotherProgram",
     [](AppHarness& h) { ASSERT_TRUE(execOn(h.storePath(), "DELETE FROM Invoice WHERE number = 'A2'")); },
     {QStringLiteral("A1"), QStringLiteral("A3")}},
    {"AddedByAnotherProgram",
     [](AppHarness& h) {
         ASSERT_TRUE(execOn(h.storePath(), "INSERT INTO Invoice (_id, number) VALUES (99, 'Z1')"));
     },
     {QStringLiteral("A1"), QStringLiteral("A2"), QStringLiteral("A3"), QStringLiteral("Z1")}},
    {"SettingsLost",
     [](AppHarness& h) { ASSERT_TRUE(QFile::remove(h.env.locations().settingsFile())); },
     {QStringLiteral("A1"), QStringLiteral("A2"), QStringLiteral("A3")}},
};

INSTANTIATE_TEST_SUITE_P(Changes, RepairQuestion,
                         ::testing::Combine(::testing::ValuesIn(outsideChanges), ::testing::Values(0, 1)),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) +
                                    (std::get<1>(info.param) == 0 ? "_Proceed" : "_Cancel");
                         });

struct BadSafetyCopy
{
    const char* name;
    std::function<void(const QString& path)> spoil;
    bool expectsMissingAlert; // else an error is presented
};

class RepairWithoutAGoodCopy : public BackupTest, public ::testing::WithParamInterface<BadSafetyCopy>
{
};

TEST_P(RepairWithoutAGoodCopy, IsRefusedAndTheStoreStaysAsItIs)
{
    const BadSafetyCopy& row = GetParam();
    h.launch();
    h.addDocuments(3, QStringLiteral("A"));
    h.quit();
    h.launch();
    h.addDocuments(1, QStringLiteral("C"));
    h.crash();
    row.spoil(h.backupPath());
    h.ui.clear();
    h.launch();

    const auto alerts = h.ui.calls(QStringLiteral("alert"));
    ASSERT_GE(alerts.size(), 1);
    EXPECT_EQ(alerts[0].title, QStringLiteral("Warning!"));
    if (row.expectsMissingAlert) {
        ASSERT_EQ(alerts.size(), 2);
        EXPECT_EQ(alerts[1].title, QStringLiteral("Error!"));
        EXPECT_EQ(alerts[1].text, missingCopyText);
        EXPECT_EQ(alerts[1].buttons, QStringList{QStringLiteral("OK")});
        EXPECT_TRUE(h.ui.calls(QStringLiteral("error")).isEmpty());
    } else {
        EXPECT_EQ(alerts.size(), 1);
        EXPECT_EQ(h.ui.calls(QStringLiteral("error")).size(), 1);
    }
    const QStringList expected{QStringLiteral("A1"), QStringLiteral("A2"), QStringLiteral("A3"),
                               QStringLiteral("C1")};
    EXPECT_EQ(h.listedNumbers(), expected);
    EXPECT_EQ(numbersIn(h.storePath()), expected);
    EXPECT_TRUE(leftovers(storeFolder()).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Copies, RepairWithoutAGoodCopy,
    ::testing::Values(BadSafetyCopy{"Missing", [](const QString& p) { QFile::remove(p); }, true},
                      BadSafetyCopy{"Garbage",
                                    [](const QString& p) { writeFile(p, QByteArray(40000, '\x5a')); }, false},
                      BadSafetyCopy{"Truncated",
                                    [](const QString& p) {
                                        QFile f(p);
                                        ASSERT_TRUE(f.resize(f.size() / 2));
                                    },
                                    false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(BackupTest, UnreadableSettingsSkipTheCheck)
{
    h.launch();
    h.addDocuments(2, QStringLiteral("A"));
    h.quit();
    writeFile(h.env.locations().settingsFile(), "<?xml version=\"1.0\"?><plist><dict><key>");
    const QByteArray safetyCopy = contents(h.backupPath());
    h.ui.clear();
    h.launch();
    EXPECT_FALSE(h.ui.alertTitles().contains(QStringLiteral("Warning!")));
    EXPECT_EQ(backup().createBackup(), CheckResult::AlreadyDone);
    EXPECT_EQ(contents(h.backupPath()), safetyCopy);
}

TEST_F(BackupTest, LaunchChecksOffLeaveTheSafetyCopyToTheCommand)
{
    h.launch(false);
    EXPECT_FALSE(QFileInfo::exists(h.backupPath()));
    EXPECT_EQ(backup().createBackup(), CheckResult::Copied);
    EXPECT_TRUE(QFileInfo::exists(h.backupPath()));
}

// --- Restoring --------------------------------------------------------------

class RestoreTest : public BackupTest
{
protected:
    // A live store with A1..A3 and a backup (base.vndb) with S1, S2; the
    // backup is large enough to be copied in several steps.
    void SetUp() override
    {
        h.launch(false);
        h.addDocuments(2, QStringLiteral("S"));
        documentNumbered(h, QStringLiteral("S1"))
            ->setValue(QStringLiteral("notes"), QString(600000, QLatin1Char('n')));
        ASSERT_TRUE(h.context()->save().ok());
        base = home() + QStringLiteral("/base.vndb");
        ASSERT_TRUE(backup().backupTo(base).ok());
        for (ManagedObject* doc : h.context()->fetch(Entity::Invoice))
            h.context()->deleteObject(doc);
        h.addDocuments(3, QStringLiteral("A"));
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
    // Makes the file to restore from the good backup at base.
    std::function<QString(const QString& base, const QString& home)> make;
    int code; // the error presented; 0 for any
    bool vanishDuringCopy = false;
    bool truncateDuringCopy = false;
    bool storeFolderReadOnly = false;
    bool damageDuringCopy = false;
};

class RestoreRefusal : public RestoreTest, public ::testing::WithParamInterface<BadSource>
{
};

TEST_P(RestoreRefusal, LeavesTheLiveStoreAndPendingEditsIntact)
{
    const BadSource& row = GetParam();
    const QString source = row.make(base, home());
    h.addDocuments(1, QStringLiteral("P"), false);
    int copySteps = 0;
    backup().setCopyProgress([&](int, int) {
        if (copySteps++ > 0)
            return;
        if (row.vanishDuringCopy)
            QFile::remove(source);
        if (row.truncateDuringCopy)
            QFile::resize(source, 8192);
        if (row.damageDuringCopy) {
            // Pages not copied yet get noise where their contents begin.
            QFile file(source);
            file.open(QIODevice::ReadWrite);
            for (qint64 at = 128 * 4096; at < file.size(); at += 4096) {
                file.seek(at);
                file.write("\xde\xad\xbe\xef\xde\xad\xbe\xef", 8);
            }
        }
    });
    std::optional<ReadOnlyFolder> readOnly;
    if (row.storeFolderReadOnly) {
        readOnly.emplace(storeFolder());
        if (!readOnly->holds())
            GTEST_SKIP() << "this system lets the test write to a read-only folder";
    }
    const RestoreResult result = restore(source);
    readOnly.reset();

    EXPECT_EQ(result, RestoreResult::Failed);
    const auto errors = h.ui.calls(QStringLiteral("error"));
    ASSERT_EQ(errors.size(), 1);
    if (row.code) {
        EXPECT_EQ(errors[0].code, row.code)
            << errors[0].title.toStdString() << " " << errors[0].text.toStdString();
    }
    EXPECT_TRUE(
        errors[0].text.endsWith(QStringLiteral("Nothing was changed: your Vorn database is as it was.")));
    if (row.vanishDuringCopy || row.truncateDuringCopy || row.damageDuringCopy) {
        EXPECT_GT(copySteps, 0);
    }

    const QStringList expected{QStringLiteral("A1"), QStringLiteral("A2"), QStringLiteral("A3"),
                               QStringLiteral("P1")};
    EXPECT_EQ(h.listedNumbers(), expected);
    EXPECT_TRUE(h.context()->hasChanges());
    ASSERT_TRUE(h.context()->save().ok());
    EXPECT_EQ(numbersIn(h.storePath()), expected);
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(h.storePath()).ok());
    EXPECT_TRUE(leftovers(storeFolder()).isEmpty())
        << leftovers(storeFolder()).join(QLatin1Char(' ')).toStdString();
}

QString copyOf(const QString& base, const QString& home, const char* name)
{
    const QString path = home + QLatin1Char('/') + QLatin1String(name);
    QFile::remove(path);
    QFile::copy(base, path);
    return path;
}

const BadSource badSources[] = {
    {"RandomBytes",
     [](const QString&, const QString& home) {
         QByteArray bytes(64 * 1024, '\0');
         QRandomGenerator generator(42);
         generator.fillRange(reinterpret_cast<quint32*>(bytes.data()), bytes.size() / 4);
         const QString path = home + QStringLiteral("/random.vndb");
         writeFile(path, bytes);
         return path;
     },
     ErrorCode::StoreNotVorn},
    {"EmptyFile",
     [](const QString&, const QString& home) {
         const QString path = home + QStringLiteral("/empty.vndb");
         writeFile(path, {});
         return path;
     },
     ErrorCode::StoreNotVorn},
    {"MissingFile",
     [](const QString&, const QString& home) { return home + QStringLiteral("/missing.vndb"); },
     ErrorCode::FileNotFound},
    {"TruncatedStore",
     [](const QString& base, const QString& home) {
         const QString path = copyOf(base, home, "truncated.vndb");
         QFile::resize(path, QFileInfo(path).size() / 2);
         return path;
     },
     ErrorCode::StoreDamaged},
    {"DamagedPages",
     [](const QString& base, const QString& home) {
         const QString path = copyOf(base, home, "damaged.vndb");
         QFile file(path);
         file.open(QIODevice::ReadWrite);
         // Everything after the first page (which holds the schema) is noise.
         for (qint64 at = 4096 + 100; at < file.size(); at += 997) {
             file.seek(at);
             file.write("\xde\xad\xbe\xef", 4);
         }
         return path;
     },
     ErrorCode::StoreDamaged},
    {"NewerSchemaVersion",
     [](const QString& base, const QString& home) {
         const QString path = copyOf(base, home, "newer.vndb");
         execOn(path, "PRAGMA user_version = 99");
         return path;
     },
     ErrorCode::StoreTooNew},
    {"AnotherSqliteDatabase",
     [](const QString&, const QString& home) {
         const QString path = home + QStringLiteral("/other.vndb");
         execOn(path, "CREATE TABLE notes (text TEXT); INSERT INTO notes VALUES ('hello')", true);
         return path;
     },
     ErrorCode::StoreNotVorn},
    {"VanishesMidCopy",
     [](const QString& base, const QString& home) { return copyOf(base, home, "vanishing.vndb"); },
     ErrorCode::FileNotFound, true, false},
    {"TruncatedMidCopy",
     [](const QString& base, const QString& home) { return copyOf(base, home, "shrinking.vndb"); }, 0, false,
     true},
    {"DamagedMidCopy",
     [](const QString& base, const QString& home) { return copyOf(base, home, "decaying.vndb"); },
     ErrorCode::StoreDamaged, false, false, false, true},
    {"ReadOnlyStoreFolder", [](const QString& base, const QString&) { return base; },
     ErrorCode::FileWriteNoPermission, false, false, true},
};

INSTANTIATE_TEST_SUITE_P(Sources, RestoreRefusal, ::testing::ValuesIn(badSources),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(RestoreTest, TheLiveStoreItselfIsRefused)
{
    EXPECT_EQ(restore(h.storePath()), RestoreResult::Failed);
    EXPECT_EQ(h.ui.calls(QStringLiteral("error")).size(), 1);
    EXPECT_EQ(h.listedNumbers(), sequence(QStringLiteral("A"), 3));
    EXPECT_TRUE(leftovers(storeFolder()).isEmpty());
}

TEST_F(RestoreTest, SwapsTheStoreKeepsTheOldOneAndShowsTheRestoredData)
{
    h.addDocuments(1, QStringLiteral("P"), false);
    int arrangedChanges = 0;
    QObject::connect(&h.app->state().invoicesController(), &ArrayController::arrangedObjectsChanged,
                     [&] { ++arrangedChanges; });

    EXPECT_EQ(restore(base), RestoreResult::Restored);

    const auto alerts = h.ui.calls(QStringLiteral("alert"));
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts[0].title, QStringLiteral("Warning!"));
    EXPECT_EQ(alerts[0].text,
              QStringLiteral("You are about to restore your complete Vorn database from a backup. "
                             "This will irretrievably replace any existing data. Do you really want "
                             "to do that?"));
    EXPECT_EQ(alerts[0].buttons, (QStringList{QStringLiteral("Restore…"), QStringLiteral("Cancel")}));
    const auto panels = h.ui.calls(QStringLiteral("open"));
    ASSERT_EQ(panels.size(), 1);
    EXPECT_EQ(panels[0].title, QStringLiteral("Restore Vorn Database"));
    EXPECT_EQ(panels[0].buttons, QStringList{QStringLiteral("vndb")});
    EXPECT_TRUE(h.ui.calls(QStringLiteral("error")).isEmpty());

    EXPECT_GT(arrangedChanges, 0);
    EXPECT_EQ(h.listedNumbers(), sequence(QStringLiteral("S"), 2));
    EXPECT_FALSE(h.context()->hasChanges());
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(h.storePath()).ok());
    const QString replaced = backup().lastReplacedPath();
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^Vorn\\.replaced-\\d{4}-\\d\\d-\\d\\d-\\d{6}\\.vndb$"))
                    .match(QFileInfo(replaced).fileName())
                    .hasMatch())
        << replaced.toStdString();
    EXPECT_EQ(numbersIn(replaced), sequence(QStringLiteral("A"), 3));
    EXPECT_FALSE(QFileInfo::exists(h.storePath() + QStringLiteral(".incoming")));

    // The restored store takes new work, and a second restore in the same
    // second keeps both replaced stores.
    h.addDocuments(1, QStringLiteral("N"));
    EXPECT_EQ(restore(base), RestoreResult::Restored);
    EXPECT_NE(backup().lastReplacedPath(), replaced);
    EXPECT_EQ(numbersIn(backup().lastReplacedPath()),
              (QStringList{QStringLiteral("N1"), QStringLiteral("S1"), QStringLiteral("S2")}));
    EXPECT_EQ(numbersIn(replaced), sequence(QStringLiteral("A"), 3));

    // Quitting records the restored count: the next launch asks nothing.
    h.quit();
    h.ui.clear();
    h.launch();
    EXPECT_TRUE(h.ui.alertTitles().isEmpty());
    EXPECT_EQ(h.listedNumbers(), sequence(QStringLiteral("S"), 2));
}

TEST_F(RestoreTest, ReadsWhatASourceInUseHasOnlyInItsLog)
{
    const QString source = home() + QStringLiteral("/inuse.vndb");
    auto store = SqliteStore::open(source, ObjectModel::vorn());
    ASSERT_TRUE(store.ok());
    ObjectContext other(std::move(store.value()), h.clock);
    sqlite3_exec(other.store()->handle(), "PRAGMA wal_autocheckpoint = 0", nullptr, nullptr, nullptr);
    for (int i = 1; i <= 2; ++i)
        other.insertNewObject(Entity::Invoice)
            ->setValue(QStringLiteral("number"), QStringLiteral("W%1").arg(i));
    ASSERT_TRUE(other.save().ok());
    ASSERT_GT(QFileInfo(source + QStringLiteral("-wal")).size(), 0);

    EXPECT_EQ(restore(source), RestoreResult::Restored);
    EXPECT_EQ(h.listedNumbers(), sequence(QStringLiteral("W"), 2));
    EXPECT_EQ(StoreProbe(h.storePath()).journalMode(), QStringLiteral("wal"));
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
    h.addDocuments(2, QStringLiteral("L"));

    EXPECT_EQ(restore(base), RestoreResult::Restored);
    sqlite3_exec(reader.value()->handle(), "COMMIT", nullptr, nullptr, nullptr);
    reader.value().reset();

    EXPECT_EQ(h.listedNumbers(), sequence(QStringLiteral("S"), 2));
    EXPECT_EQ(numbersIn(h.storePath()), sequence(QStringLiteral("S"), 2));
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(h.storePath()).ok());
    const QString replaced = backup().lastReplacedPath();
    EXPECT_EQ(StoreProbe(replaced, true).numbers(),
              (QStringList{QStringLiteral("A1"), QStringLiteral("A2"), QStringLiteral("A3"),
                           QStringLiteral("L1"), QStringLiteral("L2")}));
}

struct Cancellation
{
    const char* name;
    int warningAnswer;
    bool panelCancelled;
    int panelsShown;
};

class RestoreCancelled : public RestoreTest, public ::testing::WithParamInterface<Cancellation>
{
};

TEST_P(RestoreCancelled, ChangesNothing)
{
    const Cancellation& row = GetParam();
    h.addDocuments(1, QStringLiteral("P"), false);
    h.ui.answerAlert(row.warningAnswer);
    h.ui.answerPanel(row.panelCancelled ? std::nullopt : std::optional<QString>(base));
    EXPECT_EQ(backup().restoreVornData(), RestoreResult::Cancelled);
    EXPECT_EQ(h.ui.calls(QStringLiteral("open")).size(), row.panelsShown);
    EXPECT_TRUE(h.ui.calls(QStringLiteral("error")).isEmpty());
    EXPECT_TRUE(h.context()->hasChanges());
    EXPECT_EQ(numbersIn(h.storePath()), sequence(QStringLiteral("A"), 3));
    EXPECT_TRUE(leftovers(storeFolder()).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Answers, RestoreCancelled,
                         ::testing::Values(Cancellation{"AtTheWarning", 1, false, 0},
                                           Cancellation{"InThePanel", 0, true, 1}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(BackupTest, RestoreRescuesAStoreThatCannotBeOpened)
{
    h.launch(false);
    h.addDocuments(2, QStringLiteral("S"));
    const QString good = home() + QStringLiteral("/good.vndb");
    ASSERT_TRUE(backup().backupTo(good).ok());
    h.quit();
    const QByteArray garbage(20000, '\x33');
    writeFile(h.storePath(), garbage);

    h.ui.clear();
    h.launch(false);
    ASSERT_EQ(h.context(), nullptr);
    ASSERT_FALSE(h.ui.calls(QStringLiteral("error")).isEmpty());
    h.ui.clear();
    h.ui.answerAlert(0);
    h.ui.answerPanel(good);
    EXPECT_EQ(backup().restoreVornData(), RestoreResult::Restored);
    ASSERT_NE(h.context(), nullptr);
    EXPECT_TRUE(h.ui.calls(QStringLiteral("error")).isEmpty());
    EXPECT_EQ(h.listedNumbers(), sequence(QStringLiteral("S"), 2));
    EXPECT_EQ(contents(backup().lastReplacedPath()), garbage);
    h.addDocuments(1, QStringLiteral("N"));
    EXPECT_EQ(numbersIn(h.storePath()),
              (QStringList{QStringLiteral("N1"), QStringLiteral("S1"), QStringLiteral("S2")}));
}

} // namespace
