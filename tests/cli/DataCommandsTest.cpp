#include "app/BackupController.h"
#include "app/InstanceLock.h"
#include "app/StoreSnapshot.h"
#include "tests/app/AppHarness.h"
#include "tests/cli/CliProcess.h"

#include <QFileInfo>

using namespace vorn;
using namespace vorn::test;

namespace {

// vorn-cli's backup, restore and check, run as a program in the scratch home
// the harness set up.
class DataCommandsTest : public ::testing::Test
{
protected:
    static CliRun ok(const QStringList& args) { return runOk(args); }
    void seed(int n, const QString& prefix)
    {
        h.launch(false);
        h.addDocuments(n, prefix);
        h.quit();
    }
    QString path(const char* name) const { return h.env.home() + QLatin1Char('/') + QLatin1String(name); }
    QStringList replaced() const
    {
        return filesIn(QFileInfo(h.storePath()).absolutePath()).filter("replaced");
    }

    AppHarness h;
};

TEST_F(DataCommandsTest, BackupThenRestoreThenCheck)
{
    seed(2, "S");
    CliRun r = ok({"backup", path("saved.vndb")});
    EXPECT_TRUE(r.out.isEmpty() && r.err.isEmpty()) << qPrintable(r.err);
    EXPECT_EQ(numbersIn(path("saved.vndb")), sequence("S", 2));
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(path("saved.vndb")).ok());

    seed(3, "A");
    r = ok({"restore", path("saved.vndb")});
    EXPECT_TRUE(r.err.isEmpty()) << qPrintable(r.err);
    EXPECT_EQ(numbersIn(h.storePath()), sequence("S", 2));
    EXPECT_EQ(replaced().size(), 1);

    // The run recorded the restored count, so the check finds nothing amiss.
    EXPECT_EQ(ok({"check"}).out, "copied\n");
    EXPECT_EQ(numbersIn(h.backupPath()), sequence("S", 2));

    // A store that cannot be opened stops every run but the restore.
    writeFile(h.storePath(), QByteArray(20000, 'x'));
    ASSERT_EQ(runCli({"check"}).code, 3);
    ok({"restore", path("saved.vndb")});
    EXPECT_EQ(numbersIn(h.storePath()), sequence("S", 2));
    EXPECT_EQ(ok({"check"}).out, "copied\n");
}

TEST_F(DataCommandsTest, CheckAsksTheRepairQuestionAndRepairsFromTheSafetyCopyOnly)
{
    seed(3, "A");
    ASSERT_TRUE(execOn(h.storePath(), "DELETE FROM Invoice WHERE number = 'A2'"));
    // Without a safety copy there is nothing to repair from: the question
    // comes first, then the missing copy is told, and nothing changes.
    ASSERT_FALSE(QFileInfo::exists(h.backupPath()));
    const CliRun refused = runCli({"check"});
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(refused.out, BackupController::repairQuestionText() + "\n");
    EXPECT_EQ(refused.err,
              QStringLiteral("vorn-cli: No valid backup file available. Please restore your Vorn "
                             "database from your own (Time Machine) backups.\n"));
    EXPECT_EQ(numbersIn(h.storePath()), (QStringList{"A1", "A3"}));

    seed(3, "B");
    ASSERT_EQ(ok({"check"}).out, "copied\n");
    ASSERT_TRUE(execOn(h.storePath(), "DELETE FROM Invoice WHERE number = 'B2'"));
    EXPECT_EQ(ok({"check"}).out, BackupController::repairQuestionText() + "\nrepaired\n");
    EXPECT_EQ(numbersIn(h.storePath()).filter("B"), sequence("B", 3));
    EXPECT_EQ(ok({"check"}).out, "copied\n");
}

// Each refusal ends with one clear line and leaves the store intact.
TEST_F(DataCommandsTest, RefusalsLeaveTheStoreIntact)
{
    seed(3, "A");
    writeFile(path("garbage.vndb"), QByteArray(5000, 'g'));
    const std::tuple<QStringList, int, const char*> cases[] = {
        {{"restore", path("garbage.vndb")}, 3, "is not a Vorn database. Nothing was changed"},
        {{"restore", path("missing.vndb")}, 3, "could not be found"},
        {{"restore"}, 2, "usage: restore FILE.vndb"},
        {{"restore", path("a.vndb"), path("b.vndb")}, 2, "usage"},
        {{"backup", path("nowhere/x.vndb")}, 3, "does not exist"},
        {{"backup"}, 2, "usage: backup OUT.vndb"},
        {{"check", "now"}, 2, "usage: check"}};
    for (const auto& [args, exitCode, says] : cases) {
        SCOPED_TRACE(args.join(' ').toStdString());
        expectRefusal(runCli(args), exitCode, QString::fromUtf8(says));
        EXPECT_EQ(numbersIn(h.storePath()), sequence("A", 3));
        EXPECT_TRUE(replaced().isEmpty());
    }
}

TEST_F(DataCommandsTest, WhileTheApplicationRunsOnlyTheBackupWorks)
{
    seed(2, "S");
    ok({"backup", path("good.vndb")});
    InstanceLock lock(h.env.locations().lockFile());
    ASSERT_TRUE(lock.tryLock().ok());

    ok({"backup", path("while.vndb")});
    EXPECT_EQ(numbersIn(path("while.vndb")), sequence("S", 2));
    for (const QStringList& args : {QStringList{"restore", path("good.vndb")}, QStringList{"check"}}) {
        const CliRun r = runCli(args);
        EXPECT_NE(r.code, 0) << qPrintable(args.join(QLatin1Char(' ')));
        EXPECT_TRUE(r.err.contains("in use")) << qPrintable(r.err);
    }
    EXPECT_FALSE(QFileInfo::exists(h.backupPath()));
}

} // namespace
