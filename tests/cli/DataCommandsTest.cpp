#include "app/BackupController.h"
#include "app/InstanceLock.h"
#include "app/StoreSnapshot.h"
#include "tests/app/AppHarness.h"

#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

using namespace vorn;
using namespace vorn::test;

namespace {

struct CliRun
{
    int exitCode = -1;
    QString out;
    QString err;
};

// vorn-cli's backup, restore and check, run as a program in the scratch home
// the harness set up.
class DataCommandsTest : public ::testing::Test
{
protected:
    CliRun run(const QStringList& args)
    {
        QProcess p;
        p.setProgram(QStringLiteral(VORN_CLI_PATH));
        p.setArguments(args);
        p.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
        p.start();
        EXPECT_TRUE(p.waitForFinished(30000)) << qPrintable(args.join(QLatin1Char(' ')));
        CliRun r;
        r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
        r.out = QString::fromUtf8(p.readAllStandardOutput());
        r.err = QString::fromUtf8(p.readAllStandardError());
        return r;
    }
    void seed(int n, const QString& prefix)
    {
        h.launch(false);
        h.addDocuments(n, prefix);
        h.quit();
    }
    QString path(const char* name) const { return h.env.home() + QLatin1Char('/') + QLatin1String(name); }

    AppHarness h;
};

TEST_F(DataCommandsTest, BackupThenRestoreThenCheck)
{
    seed(2, QStringLiteral("S"));
    CliRun r = run({QStringLiteral("backup"), path("saved.vndb")});
    ASSERT_EQ(r.exitCode, 0) << qPrintable(r.err);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(r.err.isEmpty()) << qPrintable(r.err);
    EXPECT_EQ(numbersIn(path("saved.vndb")), sequence(QStringLiteral("S"), 2));
    EXPECT_TRUE(StoreSnapshot::checkIntegrity(path("saved.vndb")).ok());

    seed(3, QStringLiteral("A"));
    r = run({QStringLiteral("restore"), path("saved.vndb")});
    ASSERT_EQ(r.exitCode, 0) << qPrintable(r.err);
    EXPECT_TRUE(r.err.isEmpty()) << qPrintable(r.err);
    EXPECT_EQ(numbersIn(h.storePath()), sequence(QStringLiteral("S"), 2));
    const QStringList replaced =
        filesIn(QFileInfo(h.storePath()).absolutePath()).filter(QStringLiteral("replaced"));
    ASSERT_EQ(replaced.size(), 1);

    // The run recorded the restored count, so the check finds nothing amiss.
    r = run({QStringLiteral("check")});
    ASSERT_EQ(r.exitCode, 0) << qPrintable(r.err);
    EXPECT_EQ(r.out, QStringLiteral("copied\n"));
    EXPECT_EQ(numbersIn(h.backupPath()), sequence(QStringLiteral("S"), 2));
}

TEST_F(DataCommandsTest, CheckAsksTheRepairQuestionAndRepairs)
{
    seed(3, QStringLiteral("A"));
    ASSERT_EQ(run({QStringLiteral("check")}).out, QStringLiteral("copied\n"));
    ASSERT_TRUE(execOn(h.storePath(), "DELETE FROM Invoice WHERE number = 'A2'"));

    const CliRun r = run({QStringLiteral("check")});
    ASSERT_EQ(r.exitCode, 0) << qPrintable(r.err);
    EXPECT_EQ(r.out, BackupController::repairQuestionText() + QStringLiteral("\nrepaired\n"));
    EXPECT_EQ(numbersIn(h.storePath()), sequence(QStringLiteral("A"), 3));
    EXPECT_EQ(run({QStringLiteral("check")}).out, QStringLiteral("copied\n"));
}

TEST_F(DataCommandsTest, CheckWithoutASafetyCopyIsRefusedWithTheAlertText)
{
    seed(3, QStringLiteral("A"));
    ASSERT_TRUE(execOn(h.storePath(), "DELETE FROM Invoice WHERE number = 'A2'"));
    ASSERT_FALSE(QFileInfo::exists(h.backupPath()));
    const CliRun r = run({QStringLiteral("check")});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_EQ(r.err, QStringLiteral(
                         "vorn-cli: No valid backup file available. Please restore your Vorn database from "
                         "your own (Time Machine) backups.\n"));
    EXPECT_EQ(numbersIn(h.storePath()), (QStringList{QStringLiteral("A1"), QStringLiteral("A3")}));
}

struct Refusal
{
    const char* name;
    QStringList args; // "@" stands for the scratch home
    int exitCode;
    const char* says;
};

class DataCommandRefusal : public DataCommandsTest, public ::testing::WithParamInterface<Refusal>
{
};

TEST_P(DataCommandRefusal, EndsWithOneClearLineAndAnIntactStore)
{
    seed(3, QStringLiteral("A"));
    QFile garbage(path("garbage.vndb"));
    ASSERT_TRUE(garbage.open(QIODevice::WriteOnly));
    garbage.write(QByteArray(5000, 'g'));
    garbage.close();
    QStringList args = GetParam().args;
    for (QString& arg : args)
        arg.replace(QLatin1Char('@'), h.env.home());

    const CliRun r = run(args);

    EXPECT_EQ(r.exitCode, GetParam().exitCode);
    EXPECT_TRUE(r.out.isEmpty()) << qPrintable(r.out);
    EXPECT_TRUE(r.err.startsWith(QStringLiteral("vorn-cli: "))) << qPrintable(r.err);
    EXPECT_EQ(r.err.count(QLatin1Char('\n')), 1) << qPrintable(r.err);
    EXPECT_TRUE(r.err.contains(QLatin1String(GetParam().says))) << qPrintable(r.err);
    EXPECT_EQ(numbersIn(h.storePath()), sequence(QStringLiteral("A"), 3));
    EXPECT_TRUE(
        filesIn(QFileInfo(h.storePath()).absolutePath()).filter(QStringLiteral("replaced")).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Commands, DataCommandRefusal,
    ::testing::Values(Refusal{"RestoreGarbage",
                              {"restore", "@/garbage.vndb"},
                              3,
                              "is not a Vorn database. Nothing was changed"},
                      Refusal{"RestoreMissing", {"restore", "@/missing.vndb"}, 3, "could not be found"},
                      Refusal{"RestoreWithoutFile", {"restore"}, 2, "usage: restore FILE.vndb"},
                      Refusal{"RestoreTwoFiles", {"restore", "@/a.vndb", "@/b.vndb"}, 2, "usage"},
                      Refusal{"BackupIntoMissingFolder", {"backup", "@/nowhere/x.vndb"}, 3, "does not exist"},
                      Refusal{"BackupWithoutFile", {"backup"}, 2, "usage: backup OUT.vndb"},
                      Refusal{"CheckWithArgument", {"check", "now"}, 2, "usage: check"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(DataCommandsTest, RestoreRescuesAStoreThatCannotBeOpened)
{
    seed(2, QStringLiteral("S"));
    ASSERT_EQ(run({QStringLiteral("backup"), path("good.vndb")}).exitCode, 0);
    QFile store(h.storePath());
    ASSERT_TRUE(store.open(QIODevice::WriteOnly));
    store.write(QByteArray(20000, 'x'));
    store.close();
    ASSERT_EQ(run({QStringLiteral("check")}).exitCode, 3);

    const CliRun r = run({QStringLiteral("restore"), path("good.vndb")});
    ASSERT_EQ(r.exitCode, 0) << qPrintable(r.err);
    EXPECT_EQ(numbersIn(h.storePath()), sequence(QStringLiteral("S"), 2));
    EXPECT_EQ(run({QStringLiteral("check")}).out, QStringLiteral("copied\n"));
}

TEST_F(DataCommandsTest, WhileTheApplicationRunsOnlyTheBackupWorks)
{
    seed(2, QStringLiteral("S"));
    ASSERT_EQ(run({QStringLiteral("backup"), path("good.vndb")}).exitCode, 0);
    InstanceLock lock(h.env.locations().lockFile());
    ASSERT_TRUE(lock.tryLock().ok());

    CliRun r = run({QStringLiteral("backup"), path("while.vndb")});
    EXPECT_EQ(r.exitCode, 0) << qPrintable(r.err);
    EXPECT_EQ(numbersIn(path("while.vndb")), sequence(QStringLiteral("S"), 2));
    for (const QStringList& args :
         {QStringList{QStringLiteral("restore"), path("good.vndb")}, QStringList{QStringLiteral("check")}}) {
        r = run(args);
        EXPECT_NE(r.exitCode, 0) << qPrintable(args.join(QLatin1Char(' ')));
        EXPECT_TRUE(r.err.contains(QStringLiteral("in use"))) << qPrintable(r.err);
    }
    EXPECT_FALSE(QFileInfo::exists(h.backupPath()));
}

TEST_F(DataCommandsTest, DefaultsLoadDoesWhatTheLanguagePageDoes)
{
    const CliRun r = run({QStringLiteral("defaults"), QStringLiteral("load"), QStringLiteral("german")});
    ASSERT_EQ(r.exitCode, 0) << qPrintable(r.err);
    Settings settings(h.env.locations().settingsFile());
    ASSERT_TRUE(settings.load().ok());
    const auto german = AppDelegate::defaultList(QStringLiteral("defaultPrefsGerman"));
    ASSERT_TRUE(german.ok());
    for (auto it = german.value().cbegin(); it != german.value().cend(); ++it)
        EXPECT_EQ(settings.value(it.key()), it.value()) << it.key().toStdString();
    EXPECT_EQ(settings.intValue(QStringLiteral("languageDefaults")), 1);
    EXPECT_TRUE(settings.boolValue(QStringLiteral("isFirstStoreLoadEverDone")));
}

} // namespace
