#include "app/InstanceLock.h"
#include "store/Settings.h"
#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gtest/gtest.h>

namespace vorn::test {
namespace {

struct CliRun
{
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs vorn-cli in the scratch home of the test.
class CliTest : public ::testing::Test
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
    QJsonObject readAll()
    {
        const CliRun r = run({"defaults", "read"});
        EXPECT_EQ(r.exitCode, 0) << qPrintable(r.err);
        return QJsonDocument::fromJson(r.out.toUtf8()).object();
    }
    QString read(const QString& key)
    {
        const CliRun r = run({"defaults", "read", key});
        EXPECT_EQ(r.exitCode, 0) << qPrintable(r.err);
        return r.out.trimmed();
    }
    static void expectOneErrorLine(const CliRun& r)
    {
        EXPECT_TRUE(r.out.isEmpty()) << qPrintable(r.out);
        EXPECT_TRUE(r.err.startsWith(QLatin1String("vorn-cli: "))) << qPrintable(r.err);
        EXPECT_EQ(r.err.count(QLatin1Char('\n')), 1) << qPrintable(r.err);
        EXPECT_TRUE(r.err.endsWith(QLatin1Char('\n')));
    }

    TestEnvironment m_env;
};

TEST_F(CliTest, DefaultsReadOnAnEmptyHomeShowsTheEnglishList)
{
    const CliRun r = run({"defaults", "read"});
    ASSERT_EQ(r.exitCode, 0) << qPrintable(r.err);
    EXPECT_TRUE(r.err.isEmpty()) << qPrintable(r.err);
    EXPECT_EQ(r.out.count(QLatin1Char('\n')), 1);
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(r.out.toUtf8(), &error);
    ASSERT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
    ASSERT_TRUE(doc.isObject());
    const QJsonObject all = doc.object();
    EXPECT_EQ(all.value(QStringLiteral("locInvoice")).toString(), QStringLiteral("Invoice"));
    EXPECT_EQ(all.value(QStringLiteral("tax1Title")).toString(), QStringLiteral("Sales Tax"));
    EXPECT_EQ(all.value(QStringLiteral("invHaveNumber")), QJsonValue(true));
    EXPECT_EQ(all.value(QStringLiteral("invCount")), QJsonValue(1000));
    EXPECT_TRUE(r.out.contains(QLatin1String("\"tax1Rate\":0.07,"))) << qPrintable(r.out);
    EXPECT_TRUE(r.out.contains(QLatin1String("\"tax2Rate\":0.01,"))) << qPrintable(r.out);
    EXPECT_TRUE(QFileInfo(m_env.locations().storeFile()).isFile());
    // The run ends as the application quits.
    EXPECT_EQ(read(QStringLiteral("isTerminatedFine")), QStringLiteral("true"));
    EXPECT_EQ(read(QStringLiteral("fetchedObjectsCount")), QStringLiteral("0"));
    EXPECT_EQ(read(QStringLiteral("locInvoice")), QStringLiteral("\"Invoice\""));
    EXPECT_EQ(read(QStringLiteral("noSuchKey")), QStringLiteral("null"));
}

struct LoadCase
{
    const char* language;
    const char* locInvoice;
};

class DefaultsLoadTest : public CliTest, public ::testing::WithParamInterface<LoadCase>
{
};

TEST_P(DefaultsLoadTest, SwitchesTheTexts)
{
    const CliRun r = run({"defaults", "load", QLatin1String(GetParam().language)});
    ASSERT_EQ(r.exitCode, 0) << qPrintable(r.err);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(r.err.isEmpty()) << qPrintable(r.err);
    EXPECT_EQ(readAll().value(QStringLiteral("locInvoice")).toString(),
              QString::fromUtf8(GetParam().locInvoice));
}

INSTANTIATE_TEST_SUITE_P(Languages, DefaultsLoadTest,
                         ::testing::Values(LoadCase{"german", "Rechnung"}, LoadCase{"french", "Facture"},
                                           LoadCase{"spanish", "Factura"}, LoadCase{"English", "Invoice"}),
                         [](const auto& info) { return std::string(info.param.language); });

struct WriteCase
{
    const char* name;
    QStringList args; // after "defaults write"
    int exitCode;
    const char* readBack; // JSON of the key afterwards, or nullptr
};

const WriteCase writeCases[] = {
    {"String", {"prefsCurrency", "€ (EUR)"}, 0, "\"€ (EUR)\""},
    {"StringTyped",
     {"prefsName", "--type", "string", "Tom \"Q\" Weber\\Sons"},
     0,
     "\"Tom \\\"Q\\\" Weber\\\\Sons\""},
    {"EmptyString", {"prefsSlogan", ""}, 0, "\"\""},
    {"BoolOne", {"tempUseSKU", "1", "--type", "bool"}, 0, "true"},
    {"BoolFalse", {"tempUseSKU", "false", "--type", "bool"}, 0, "false"},
    {"BoolBad", {"tempUseSKU", "maybe", "--type", "bool"}, 2, nullptr},
    {"Int", {"invCount", "--type", "int", "42"}, 0, "42"},
    {"IntNegative", {"invCount", "-7", "--type", "int"}, 0, "-7"},
    {"IntFraction", {"invCount", "4.5", "--type", "int"}, 2, nullptr},
    {"IntText", {"invCount", "many", "--type", "int"}, 2, nullptr},
    {"IntOverflow", {"invCount", "99999999999999999999", "--type", "int"}, 2, nullptr},
    {"Float", {"tax1Rate", "0.19", "--type", "float"}, 0, "0.19"},
    {"FloatNegative", {"tax2Rate", "-0.15", "--type", "float"}, 0, "-0.15"},
    {"FloatText", {"tax1Rate", "much", "--type", "float"}, 2, nullptr},
    {"FloatNotANumber", {"tax1Rate", "nan", "--type", "float"}, 2, nullptr},
    {"FloatInfinite", {"tax1Rate", "inf", "--type", "float"}, 2, nullptr},
    {"FloatTooLarge", {"tax1Rate", "1e400", "--type", "float"}, 2, nullptr},
    {"Date",
     {"ZRUpdateChecker:LastCheckDate", "2026-11-21T09:52:00Z", "--type", "date"},
     0,
     "\"2026-11-21T09:52:00.000Z\""},
    {"DateWithOffset",
     {"ZRUpdateChecker:LastCheckDate", "2026-11-21T10:52:00+01:00", "--type", "date"},
     0,
     "\"2026-11-21T09:52:00.000Z\""},
    {"DateBad", {"ZRUpdateChecker:LastCheckDate", "next tuesday", "--type", "date"}, 2, nullptr},
    {"DateImpossible",
     {"ZRUpdateChecker:LastCheckDate", "2026-02-30T10:00:00Z", "--type", "date"},
     2,
     nullptr},
    {"DataMissingFile", {"prefsLogo", "/no/such/logo.png", "--type", "data"}, 3, nullptr},
    {"UnknownType", {"invCount", "1", "--type", "number"}, 2, nullptr},
    {"TypeWithoutName", {"invCount", "1", "--type"}, 2, nullptr},
    {"KeyOnly", {"invCount"}, 2, nullptr},
    {"TooMany", {"invCount", "1", "2"}, 2, nullptr},
};

class DefaultsWriteTest : public CliTest, public ::testing::WithParamInterface<WriteCase>
{
};

TEST_P(DefaultsWriteTest, WritesTypedValuesAndRefusesBadOnes)
{
    const WriteCase& c = GetParam();
    ASSERT_EQ(run({"defaults", "read"}).exitCode, 0);
    const QString before = run({"defaults", "read"}).out;
    const CliRun r = run(QStringList{"defaults", "write"} + c.args);
    EXPECT_EQ(r.exitCode, c.exitCode) << qPrintable(r.err);
    if (c.exitCode == 0) {
        EXPECT_TRUE(r.out.isEmpty());
        EXPECT_TRUE(r.err.isEmpty()) << qPrintable(r.err);
        EXPECT_EQ(read(c.args[0]), QString::fromUtf8(c.readBack));
    } else {
        expectOneErrorLine(r);
        EXPECT_EQ(run({"defaults", "read"}).out, before) << "a refused write changed the settings";
    }
}

INSTANTIATE_TEST_SUITE_P(Values, DefaultsWriteTest, ::testing::ValuesIn(writeCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(CliTest, DefaultsWriteDataTakesAFile)
{
    const QString logo = m_env.home() + QStringLiteral("/logo.png");
    QFile f(logo);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray("\x89PNG\r\n\x1a\n\0\0\xff", 11));
    f.close();
    ASSERT_EQ(run({"defaults", "write", "prefsLogo", logo, "--type", "data"}).exitCode, 0);
    EXPECT_EQ(read(QStringLiteral("prefsLogo")),
              QStringLiteral("\"%1\"").arg(
                  QString::fromLatin1(QByteArray("\x89PNG\r\n\x1a\n\0\0\xff", 11).toBase64())));
}

struct UsageCase
{
    const char* name;
    QStringList args;
};

class UsageTest : public CliTest, public ::testing::WithParamInterface<UsageCase>
{
};

TEST_P(UsageTest, ExitsTwoWithOneLine)
{
    const CliRun r = run(GetParam().args);
    EXPECT_EQ(r.exitCode, 2);
    expectOneErrorLine(r);
}

INSTANTIATE_TEST_SUITE_P(Commands, UsageTest,
                         ::testing::Values(UsageCase{"UnknownCommand", {"frobnicate"}},
                                           UsageCase{"UnknownSubcommand", {"defaults", "erase"}},
                                           UsageCase{"ReadTwoKeys", {"defaults", "read", "a", "b"}},
                                           UsageCase{"LoadUnknownLanguage", {"defaults", "load", "klingon"}},
                                           UsageCase{"LoadNothing", {"defaults", "load"}}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(CliTest, HelpGoesToStandardOutput)
{
    const CliRun help = run({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.out.contains(QLatin1String("defaults read")));
    const CliRun none = run({});
    EXPECT_EQ(none.exitCode, 2);
    EXPECT_TRUE(none.out.isEmpty());
}

TEST_F(CliTest, ALockedStoreRefusesChangesButReads)
{
    ASSERT_EQ(run({"defaults", "read"}).exitCode, 0);
    const QByteArray settingsBefore = [this] {
        QFile f(m_env.locations().settingsFile());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }();
    InstanceLock lock(m_env.locations().lockFile());
    ASSERT_TRUE(lock.tryLock());

    const CliRun load = run({"defaults", "load", "german"});
    EXPECT_EQ(load.exitCode, 3);
    expectOneErrorLine(load);
    EXPECT_TRUE(load.err.contains(QLatin1String("in use"))) << qPrintable(load.err);

    const CliRun r = run({"defaults", "read", "locInvoice"});
    EXPECT_EQ(r.exitCode, 0) << qPrintable(r.err);
    EXPECT_EQ(r.out, QStringLiteral("\"Invoice\"\n"));
    QFile f(m_env.locations().settingsFile());
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll(), settingsBefore) << "a run beside the application must not touch its settings";

    lock.unlock();
    EXPECT_EQ(run({"defaults", "load", "german"}).exitCode, 0);
    EXPECT_EQ(read(QStringLiteral("locInvoice")), QStringLiteral("\"Rechnung\""));
}

TEST_F(CliTest, AFileWhereTheFolderShouldBe)
{
    const QString files = m_env.locations().filesDirectory;
    QDir().mkpath(QFileInfo(files).absolutePath());
    QFile f(files);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("not a folder");
    f.close();

    const CliRun load = run({"defaults", "load", "german"});
    EXPECT_EQ(load.exitCode, 3);
    expectOneErrorLine(load);
    EXPECT_TRUE(load.err.contains(QLatin1String("Expected a folder to store application data, found a file")))
        << qPrintable(load.err);
    EXPECT_TRUE(QFileInfo(files).isFile());

    const CliRun r = run({"defaults", "read"});
    EXPECT_EQ(r.exitCode, 0) << qPrintable(r.err);
}

} // namespace
} // namespace vorn::test
