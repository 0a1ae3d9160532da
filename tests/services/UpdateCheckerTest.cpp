#include "services/ServiceUrls.h"
#include "services/ZRUpdateChecker.h"
#include "store/Clock.h"
#include "store/PropertyList.h"
#include "store/Settings.h"
#include "tests/services/HttpStub.h"
#include "tests/support/ScriptedUserInterface.h"

#include <QNetworkProxy>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <optional>

using namespace vorn;
using namespace vorn::test;

namespace {

using CheckResult = ZRUpdateChecker::CheckResult;

const QString question = QStringLiteral("Do you want to download the update now?");
const QString errorTitle = QStringLiteral("Could not check for updates");

QByteArray xmlList(const QVariantMap& entry)
{
    return PropertyList::toXml(entry);
}

QVariantMap entry(const QString& version)
{
    return {{QStringLiteral("productVersion"), QStringLiteral("Vorn ") + version},
            {QStringLiteral("productPageURL"), QStringLiteral("https://vorn.tandrelo.com/")},
            {QStringLiteral("version"), version},
            {QStringLiteral("url"), QStringLiteral("https://vorn.tandrelo.com/downloads/Vorn.zip")}};
}

class UpdateCheckerTest : public ::testing::Test
{
protected:
    UpdateCheckerTest()
        : settings(dir.filePath(QStringLiteral("settings.plist"))),
          clock(QDateTime(QDate(2026, 11, 21), QTime(9, 52), QTimeZone::utc())), checker(settings, ui, clock)
    {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        settings.setValue(ServiceUrls::versionList,
                          stub.url(QStringLiteral("/macpad/list.plist")).toString());
        settings.setValue(ServiceUrls::releaseNotes, stub.url(QStringLiteral("/macpad/Vorn.txt")).toString());
        settings.setValue(ServiceUrls::download, stub.url(QStringLiteral("/downloads/Vorn.zip")).toString());
        checker.setApplicationVersion(QStringLiteral("1.0.0"));
        checker.setTimeout(400);
        QObject::connect(&checker, &ZRUpdateChecker::checkFinished,
                         [this](const CheckResult& r) { results.append(r); });
    }

    bool waitForResults(int n)
    {
        return waitUntil([&] { return results.size() >= n; });
    }

    QTemporaryDir dir;
    Settings settings;
    ScriptedUserInterface ui;
    FixedClock clock;
    HttpStub stub;
    ZRUpdateChecker checker;
    QList<CheckResult> results;
};

struct VersionCase
{
    const char* name;
    HttpStub::Response list;
    HttpStub::Response notes;
    bool notifyUpToDate;
    int answer;
    QStringList alerts;
    QString text; // of the last alert; empty: not checked
    bool opensDownload;
    bool isError;
    bool closedServer = false;
};

class VersionCheck : public UpdateCheckerTest, public ::testing::WithParamInterface<VersionCase>
{
};

TEST_P(VersionCheck, ShowsTheRightNotification)
{
    const VersionCase& row = GetParam();
    stub.route("/macpad/list.plist", row.list);
    stub.route("/macpad/Vorn.txt", row.notes);
    if (row.closedServer)
        settings.setValue(ServiceUrls::versionList,
                          HttpStub::closedUrl(QStringLiteral("/list.plist")).toString());
    ui.answerAlert(row.answer);

    checker.checkForUpdatesAndNotify(row.notifyUpToDate);
    EXPECT_TRUE(checker.isChecking());
    ASSERT_TRUE(waitForResults(1));

    EXPECT_FALSE(checker.isChecking());
    EXPECT_EQ(results[0].isError, row.isError);
    EXPECT_EQ(ui.alertTitles(), row.alerts);
    if (!row.text.isEmpty()) {
        ASSERT_FALSE(ui.calls(QStringLiteral("alert")).isEmpty());
        EXPECT_EQ(ui.calls(QStringLiteral("alert")).last().text, row.text);
    }
    const auto urls = ui.calls(QStringLiteral("url"));
    if (row.opensDownload) {
        ASSERT_EQ(urls.size(), 1);
        EXPECT_EQ(urls[0].title, stub.url(QStringLiteral("/downloads/Vorn.zip")).toString());
    } else {
        EXPECT_TRUE(urls.isEmpty());
    }
    // Release notes are fetched only to offer an update.
    EXPECT_EQ(stub.count("/macpad/Vorn.txt"),
              row.alerts == QStringList{QStringLiteral("Update available!")} ? 1 : 0);
}

const HttpStub::Response notes{200, "Faster PDFs.\n", false};
const QStringList upToDate{QStringLiteral("You're up to date!")};
const QStringList available{QStringLiteral("Update available!")};
const QStringList failed{errorTitle};

const VersionCase versionCases[] = {
    {"UpToDateReported",
     {200, xmlList(entry(QStringLiteral("1.0.0")))},
     notes,
     true,
     0,
     upToDate,
     QStringLiteral("Vorn 1.0.0 is the newest version available."),
     false,
     false},
    {"UpToDateInTheBackground",
     {200, xmlList(entry(QStringLiteral("1.0.0")))},
     notes,
     false,
     0,
     {},
     {},
     false,
     false},
    {"NewerVersionDownloaded",
     {200, xmlList(entry(QStringLiteral("1.1.0")))},
     notes,
     false,
     0,
     available,
     QStringLiteral("Faster PDFs.\n\n") + question,
     true,
     false},
    {"NewerVersionDeclined",
     {200, xmlList(entry(QStringLiteral("1.1.0")))},
     notes,
     true,
     1,
     available,
     {},
     false,
     false},
    {"OlderVersionIsOfferedToo",
     {200, xmlList(entry(QStringLiteral("0.9.0")))},
     notes,
     true,
     1,
     available,
     {},
     false,
     false},
    {"SameNumberOtherText",
     {200, xmlList(entry(QStringLiteral("1.0")))},
     notes,
     true,
     1,
     available,
     {},
     false,
     false},
    {"EntryUnderTheIdentifier",
     {200, xmlList({{QStringLiteral("com.tandrelo.Orvandel"), entry(QStringLiteral("1.0.0"))}})},
     notes,
     true,
     0,
     upToDate,
     {},
     false,
     false},
    {"BinaryList",
     {200, PropertyList::toBinary(entry(QStringLiteral("1.0.0")))},
     notes,
     true,
     0,
     upToDate,
     {},
     false,
     false},
    {"ReleaseNotesMissing",
     {200, xmlList(entry(QStringLiteral("2.0")))},
     {404, "gone"},
     true,
     1,
     available,
     question,
     false,
     false},
    {"ServerError",
     {500, "broken"},
     notes,
     false,
     0,
     failed,
     QStringLiteral(
         "The list of available versions could not be loaded. Please check your internet connection and "
         "try again later."),
     false,
     true},
    {"NotFound", {404, "missing"}, notes, true, 0, failed, {}, false, true},
    {"Timeout", {200, {}, true}, notes, false, 0, failed, {}, false, true},
    {"ConnectionRefused", {}, notes, false, 0, failed, {}, false, true, true},
    {"BadPropertyList",
     {200, "<?xml version=\"1.0\"?><plist><dict><key>version</key>"},
     notes,
     true,
     0,
     failed,
     {},
     false,
     true},
    {"NoVersion",
     {200, xmlList({{QStringLiteral("productVersion"), QStringLiteral("2.0")}})},
     notes,
     true,
     0,
     failed,
     {},
     false,
     true},
    {"VersionNotText",
     {200, xmlList({{QStringLiteral("version"), QVariantList{1, 0}}})},
     notes,
     true,
     0,
     failed,
     {},
     false,
     true},
    {"ArrayInsteadOfDictionary",
     {200, PropertyList::toXml(QVariantList{entry(QStringLiteral("1.0.0"))})},
     notes,
     true,
     0,
     failed,
     {},
     false,
     true},
    {"HugeAnswer", {200, QByteArray(3 * 1024 * 1024, 'v')}, notes, true, 0, failed, {}, false, true},
};

INSTANTIATE_TEST_SUITE_P(Answers, VersionCheck, ::testing::ValuesIn(versionCases),
                         [](const auto& info) { return std::string(info.param.name); });

struct StartupCase
{
    const char* name;
    bool firstRun;
    int firstAnswer;
    bool checkAtStartup;
    std::optional<qint64> secondsSinceLastCheck;
    bool checks;
};

class StartupCheck : public UpdateCheckerTest, public ::testing::WithParamInterface<StartupCase>
{
};

TEST_P(StartupCheck, RunsAtMostOnceADay)
{
    const StartupCase& row = GetParam();
    stub.route("/macpad/list.plist", {200, xmlList(entry(QStringLiteral("1.0.0")))});
    if (!row.firstRun) {
        settings.setValue(ZRUpdateChecker::firstUpdateCheckKey, true);
        settings.setValue(ZRUpdateChecker::checkAtStartupKey, row.checkAtStartup);
    }
    if (row.secondsSinceLastCheck)
        settings.setValue(
            ZRUpdateChecker::lastCheckSecondsKey,
            ZRUpdateChecker::referenceSeconds(clock.now().addSecs(-*row.secondsSinceLastCheck)));
    const QVariant lastBefore = settings.value(ZRUpdateChecker::lastCheckSecondsKey);
    ui.answerAlert(row.firstAnswer);
    bool checkbox = !row.checkAtStartup;
    QObject::connect(&checker, &ZRUpdateChecker::checkAtStartupChanged, [&](bool on) { checkbox = on; });

    checker.awakeFromNib();

    if (row.firstRun) {
        const auto alerts = ui.calls(QStringLiteral("alert"));
        ASSERT_EQ(alerts.size(), 1);
        EXPECT_EQ(alerts[0].title, QStringLiteral("Check for updates automatically?"));
        EXPECT_TRUE(alerts[0].text.contains(QStringLiteral("Vorn")));
        EXPECT_EQ(alerts[0].buttons, (QStringList{QStringLiteral("OK"), QStringLiteral("Cancel")}));
        EXPECT_TRUE(settings.boolValue(ZRUpdateChecker::firstUpdateCheckKey));
    } else {
        EXPECT_TRUE(ui.alertTitles().isEmpty());
    }
    EXPECT_EQ(checker.checkAtStartup(), row.checkAtStartup);
    EXPECT_EQ(checkbox, row.checkAtStartup);
    EXPECT_EQ(checker.isChecking(), row.checks);
    if (row.checks) {
        ASSERT_TRUE(waitForResults(1));
        EXPECT_EQ(stub.count("/macpad/list.plist"), 1);
        EXPECT_DOUBLE_EQ(settings.doubleValue(ZRUpdateChecker::lastCheckSecondsKey),
                         ZRUpdateChecker::referenceSeconds(clock.now()));
        EXPECT_EQ(settings.dateValue(ZRUpdateChecker::lastCheckDateKey), clock.now());
    } else {
        EXPECT_EQ(settings.value(ZRUpdateChecker::lastCheckSecondsKey), lastBefore);
        EXPECT_FALSE(settings.hasValue(ZRUpdateChecker::lastCheckDateKey));
    }
    // A background check that finds nothing new says nothing.
    EXPECT_EQ(ui.alertTitles().size(), row.firstRun ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Days, StartupCheck,
    ::testing::Values(StartupCase{"FirstRunAgreed", true, 0, true, std::nullopt, true},
                      StartupCase{"FirstRunDeclined", true, 1, false, std::nullopt, false},
                      StartupCase{"NeverChecked", false, 0, true, std::nullopt, true},
                      StartupCase{"CheckedAnHourAgo", false, 0, true, 3600, false},
                      StartupCase{"CheckedExactlyADayAgo", false, 0, true, 86400, false},
                      StartupCase{"CheckedADayAndASecondAgo", false, 0, true, 86401, true},
                      StartupCase{"ClockWentBack", false, 0, true, -7200, false},
                      StartupCase{"SwitchedOff", false, 0, false, std::nullopt, false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(UpdateCheckerTest, SwitchingTheCheckOnDoesNotCheckAtOnce)
{
    settings.setValue(ZRUpdateChecker::firstUpdateCheckKey, true);
    checker.setCheckAtStartup(true);
    EXPECT_DOUBLE_EQ(settings.doubleValue(ZRUpdateChecker::lastCheckSecondsKey),
                     ZRUpdateChecker::referenceSeconds(clock.now()));
    checker.awakeFromNib();
    EXPECT_FALSE(checker.isChecking());
    clock.advanceSeconds(86401);
    checker.awakeFromNib();
    EXPECT_TRUE(checker.isChecking());
    ASSERT_TRUE(waitForResults(1));
}

TEST_F(UpdateCheckerTest, TheMenuCommandJoinsABackgroundCheckAndReportsIt)
{
    stub.route("/macpad/list.plist", {200, xmlList(entry(QStringLiteral("1.0.0")))});
    checker.checkForUpdatesAndNotify(false);
    checker.checkForUpdates();
    ASSERT_TRUE(waitForResults(1));
    EXPECT_FALSE(waitUntil([&] { return results.size() > 1; }, 200));
    EXPECT_EQ(stub.count("/macpad/list.plist"), 1);
    EXPECT_EQ(ui.alertTitles(), QStringList{QStringLiteral("You're up to date!")});
    EXPECT_EQ(settings.dateValue(ZRUpdateChecker::lastCheckDateKey), clock.now());
}

TEST_F(UpdateCheckerTest, ACheckWaitingForItsReleaseNotesIsNotStartedTwice)
{
    stub.route("/macpad/list.plist", {200, xmlList(entry(QStringLiteral("2.0")))});
    stub.route("/macpad/Vorn.txt", {200, {}, true});
    ui.answerAlert(1);
    checker.checkForUpdatesAndNotify(false);
    ASSERT_TRUE(waitUntil([&] { return stub.count("/macpad/Vorn.txt") == 1; }));
    EXPECT_TRUE(checker.isChecking());
    checker.checkForUpdates();
    ASSERT_TRUE(waitForResults(1));
    EXPECT_FALSE(checker.isChecking());
    EXPECT_EQ(stub.count("/macpad/list.plist"), 1);
    EXPECT_EQ(ui.alertTitles(), QStringList{QStringLiteral("Update available!")});
}

TEST(UpdateCheckerDates, CountFromTheFirstOfJanuary2001)
{
    EXPECT_DOUBLE_EQ(
        ZRUpdateChecker::referenceSeconds(QDateTime(QDate(2001, 1, 1), QTime(0, 1, 40), QTimeZone::utc())),
        100.0);
    EXPECT_DOUBLE_EQ(ZRUpdateChecker::referenceSeconds(
                         QDateTime(QDate(2000, 12, 31), QTime(23, 59, 59, 500), QTimeZone::utc())),
                     -0.5);
}

} // namespace
