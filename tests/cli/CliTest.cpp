#include "app/AppDelegate.h"
#include "app/InstanceLock.h"
#include "store/Settings.h"
#include "tests/cli/CliProcess.h"

#include <QFileInfo>

namespace vorn::test {
namespace {

// vorn-cli's defaults commands, usage errors and the store's locks.
class CliTest : public CliFixture
{
protected:
    QString read(const QString& key) { return ok({"defaults", "read", key}).out.trimmed(); }
};

TEST_F(CliTest, DefaultsReadOnAnEmptyHomeShowsTheEnglishList)
{
    const CliRun r = ok({"defaults", "read"});
    EXPECT_TRUE(r.err.isEmpty()) << qPrintable(r.err);
    EXPECT_EQ(r.out.count(QLatin1Char('\n')), 1);
    QJsonParseError error;
    const QJsonObject all = QJsonDocument::fromJson(r.out.toUtf8(), &error).object();
    ASSERT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
    EXPECT_EQ(all.value("locInvoice").toString(), "Invoice");
    EXPECT_EQ(all.value("tax1Title").toString(), "Sales Tax");
    EXPECT_EQ(all.value("invHaveNumber"), QJsonValue(true));
    EXPECT_EQ(all.value("invCount"), QJsonValue(1000));
    // Reals that are singles print as their shortest text.
    EXPECT_TRUE(r.out.contains(QLatin1String("\"tax1Rate\":0.07,")) &&
                r.out.contains(QLatin1String("\"tax2Rate\":0.01,")))
        << qPrintable(r.out);
    EXPECT_TRUE(QFileInfo(env.locations().storeFile()).isFile());
    // The run ends as the application quits.
    EXPECT_EQ(read("isTerminatedFine"), "true");
    EXPECT_EQ(read("fetchedObjectsCount"), "0");
    EXPECT_EQ(read("locInvoice"), "\"Invoice\"");
    EXPECT_EQ(read("noSuchKey"), "null");
}

// What the setup assistant's language page does: every value of the list,
// the language, the first load; the name in any case.
TEST_F(CliTest, DefaultsLoadWritesTheLanguagesList)
{
    const CliRun r = ok({"defaults", "load", "German"});
    EXPECT_TRUE(r.out.isEmpty() && r.err.isEmpty()) << qPrintable(r.err);
    Settings settings(env.locations().settingsFile());
    ASSERT_TRUE(settings.load().ok());
    const auto list = AppDelegate::defaultList(AppDelegate::defaultListName(1));
    ASSERT_TRUE(list.ok());
    for (auto it = list.value().cbegin(); it != list.value().cend(); ++it)
        EXPECT_EQ(settings.value(it.key()), it.value()) << it.key().toStdString();
    EXPECT_EQ(settings.intValue("languageDefaults"), 1);
    EXPECT_TRUE(settings.boolValue("isFirstStoreLoadEverDone"));
}

struct WriteCase
{
    const char* name;
    QStringList args;     // after "defaults write"
    const char* readBack; // JSON of the key afterwards; nullptr: refused
    int exitCode = 2;
};

const WriteCase writeCases[] = {
    {"String", {"prefsCurrency", "€ (EUR)"}, "\"€ (EUR)\""},
    {"StringTyped",
     {"prefsName", "--type", "string", "Tom \"Q\" Weber\\Sons"},
     "\"Tom \\\"Q\\\" Weber\\\\Sons\""},
    {"EmptyString", {"prefsSlogan", ""}, "\"\""},
    {"BoolOne", {"tempUseSKU", "1", "--type", "bool"}, "true"},
    {"BoolFalse", {"tempUseSKU", "false", "--type", "bool"}, "false"},
    {"BoolBad", {"tempUseSKU", "maybe", "--type", "bool"}, nullptr},
    {"Int", {"invCount", "--type", "int", "42"}, "42"},
    {"IntFraction", {"invCount", "4.5", "--type", "int"}, nullptr},
    {"IntOverflow", {"invCount", "99999999999999999999", "--type", "int"}, nullptr},
    {"Float", {"tax1Rate", "0.19", "--type", "float"}, "0.19"},
    {"FloatNotANumber", {"tax1Rate", "nan", "--type", "float"}, nullptr},
    {"FloatInfinite", {"tax1Rate", "inf", "--type", "float"}, nullptr},
    {"FloatTooLarge", {"tax1Rate", "1e400", "--type", "float"}, nullptr},
    {"Date",
     {"ZRUpdateChecker:LastCheckDate", "2026-11-21T09:52:00Z", "--type", "date"},
     "\"2026-11-21T09:52:00.000Z\""},
    {"DateWithOffset",
     {"ZRUpdateChecker:LastCheckDate", "2026-11-21T10:52:00+01:00", "--type", "date"},
     "\"2026-11-21T09:52:00.000Z\""},
    {"DateImpossible", {"ZRUpdateChecker:LastCheckDate", "2026-02-30T10:00:00Z", "--type", "date"}, nullptr},
    {"Data", {"prefsLogo", "@/logo.png", "--type", "data"}, "\"iVBORw0KGgoAAP8=\""},
    {"DataMissingFile", {"prefsLogo", "/no/such/logo.png", "--type", "data"}, nullptr, 3},
    {"UnknownType", {"invCount", "1", "--type", "number"}, nullptr},
    {"TypeWithoutName", {"invCount", "1", "--type"}, nullptr},
    {"KeyOnly", {"invCount"}, nullptr},
    {"TooMany", {"invCount", "1", "2"}, nullptr},
};

// Each write is read back in its type; a refused one leaves every setting as it was.
TEST_F(CliTest, DefaultsWriteTakesTypedValuesAndRefusesBadOnes)
{
    writeFile("logo.png", QByteArray("\x89PNG\r\n\x1a\n\0\0\xff", 11));
    ok({"defaults", "read"}); // the first run seeds the store and the settings
    for (const WriteCase& c : writeCases) {
        SCOPED_TRACE(c.name);
        QStringList args = c.args;
        args.replaceInStrings("@", env.home());
        const QString before = ok({"defaults", "read"}).out;
        const CliRun r = run(QStringList{"defaults", "write"} + args);
        if (c.readBack) {
            EXPECT_EQ(r.code, 0) << qPrintable(r.err);
            EXPECT_TRUE(r.out.isEmpty() && r.err.isEmpty()) << qPrintable(r.err);
            EXPECT_EQ(read(c.args[0]), QString::fromUtf8(c.readBack));
        } else {
            expectRefusal(r, c.exitCode);
            EXPECT_EQ(ok({"defaults", "read"}).out.toStdString(), before.toStdString())
                << "a refused write changed the settings";
        }
    }
}

TEST_F(CliTest, UsageErrorsExitTwoWithOneLineAndHelpGoesToStandardOutput)
{
    const QStringList cases[] = {{"frobnicate"},
                                 {"defaults", "erase"},
                                 {"defaults", "read", "a", "b"},
                                 {"defaults", "load", "klingon"},
                                 {"defaults", "load"}};
    for (const QStringList& args : cases)
        expectRefusal(run(args), 2);
    EXPECT_TRUE(ok({"--help"}).out.contains(QLatin1String("defaults read")));
    const CliRun none = run({}); // the help, as the error
    EXPECT_EQ(none.code, 2);
    EXPECT_TRUE(none.out.isEmpty());
}

TEST_F(CliTest, ALockedStoreRefusesChangesButReads)
{
    ok({"defaults", "read"});
    const QByteArray settingsBefore = readFile(env.locations().settingsFile());
    InstanceLock lock(env.locations().lockFile());
    ASSERT_TRUE(lock.tryLock().ok());

    expectRefusal(run({"defaults", "load", "german"}), 3, "in use");
    EXPECT_EQ(ok({"defaults", "read", "locInvoice"}).out, "\"Invoice\"\n");
    EXPECT_EQ(readFile(env.locations().settingsFile()), settingsBefore)
        << "a run beside the application must not touch its settings";

    lock.unlock();
    ok({"defaults", "load", "german"});
    EXPECT_EQ(read("locInvoice"), "\"Rechnung\"");
}

TEST_F(CliTest, AFileWhereTheFolderShouldBe)
{
    const QString files = env.locations().filesDirectory;
    test::writeFile(files, "not a folder");

    expectRefusal(run({"defaults", "load", "german"}), 3,
                  "Expected a folder to store application data, found a file");
    EXPECT_TRUE(QFileInfo(files).isFile());
    ok({"defaults", "read"});
}

} // namespace
} // namespace vorn::test
