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

QVariantMap entry(const QString& version)
{
    return {{"productVersion", "Vorn " + version},
            {"productPageURL", "https://vorn.tandrelo.com/"},
            {"version", version},
            {"url", "https://vorn.tandrelo.com/downloads/Vorn.zip"}};
}

// A version list holding root; listing(v) names version v.
HttpStub::Response plist(const QVariant& root)
{
    return {200, PropertyList::toXml(root)};
}
HttpStub::Response listing(const QString& version)
{
    return plist(entry(version));
}

class UpdateCheckerTest : public ::testing::Test
{
protected:
    UpdateCheckerTest()
        : settings(dir.filePath("settings.plist")),
          clock(QDateTime(QDate(2026, 11, 21), QTime(9, 52), QTimeZone::utc())), checker(settings, ui, clock)
    {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        settings.setValue(ServiceUrls::versionList, stub.url("/macpad/list.plist").toString());
        settings.setValue(ServiceUrls::releaseNotes, stub.url("/macpad/Vorn.txt").toString());
        settings.setValue(ServiceUrls::download, stub.url("/downloads/Vorn.zip").toString());
        checker.setApplicationVersion("1.0.0");
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

enum class Shown
{
    Nothing,
    UpToDate,
    Update,
    Failure,
    FailureLogged // a background check fails without a word
};

struct VersionCase
{
    const char* name;
    HttpStub::Response list;
    bool notifyUpToDate;
    int answer; // to the update offer: 0 downloads
    Shown shown;
    QString text = {}; // of the alert; empty: not checked
    HttpStub::Response notes = {200, "Faster PDFs.\n"};
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
        settings.setValue(ServiceUrls::versionList, HttpStub::closedUrl("/list.plist").toString());
    ui.answerAlert(row.answer);

    checker.checkForUpdatesAndNotify(row.notifyUpToDate);
    EXPECT_TRUE(checker.isChecking());
    ASSERT_TRUE(waitForResults(1));

    EXPECT_FALSE(checker.isChecking());
    EXPECT_EQ(results[0].isError, row.shown == Shown::Failure || row.shown == Shown::FailureLogged);
    const QStringList titles[] = {
        {}, {"You're up to date!"}, {"Update available!"}, {"Could not check for updates"}, {}};
    EXPECT_EQ(ui.alertTitles(), titles[int(row.shown)]);
    if (!row.text.isEmpty()) {
        ASSERT_FALSE(ui.calls("alert").isEmpty());
        // A failure adds its reason to the text.
        const QString shownText = ui.calls("alert").last().text;
        EXPECT_TRUE(row.shown == Shown::Failure ? shownText.startsWith(row.text + "\n\n")
                                                : shownText == row.text)
            << qPrintable(shownText);
    }
    const bool downloads = row.shown == Shown::Update && row.answer == 0;
    EXPECT_EQ(ui.calls("url").value(0).title, downloads ? stub.url("/downloads/Vorn.zip").toString() : "");
    // Release notes are fetched only to offer an update.
    EXPECT_EQ(stub.count("/macpad/Vorn.txt"), row.shown == Shown::Update ? 1 : 0);
}

const QString question = "Do you want to download the update now?";
const QString upToDateText = "Vorn 1.0.0 is the newest version available.";
const QString offerText = "Faster PDFs.\n\n" + question;
const QString failureText = "The list of available versions could not be loaded. Please check your internet "
                            "connection and try again later.";

const VersionCase versionCases[] = {
    {"UpToDateReported", listing("1.0.0"), true, 0, Shown::UpToDate, upToDateText},
    {"UpToDateInTheBackground", listing("1.0.0"), false, 0, Shown::Nothing},
    {"NewerVersionDownloaded", listing("1.1.0"), false, 0, Shown::Update, offerText},
    {"NewerVersionDeclined", listing("1.1.0"), true, 1, Shown::Update},
    {"SameNumberOtherText", listing("1.0"), true, 1, Shown::Update},
    {"EntryUnderTheIdentifier", plist(QVariantMap{{"com.tandrelo.Orvandel", entry("1.0.0")}}), true, 0,
     Shown::UpToDate},
    {"BinaryList", {200, PropertyList::toBinary(entry("1.0.0"))}, true, 0, Shown::UpToDate},
    {"ReleaseNotesMissing", listing("2.0"), true, 1, Shown::Update, question, {404, "gone"}},
    {"ServerErrorInTheBackground", {500, "broken"}, false, 0, Shown::FailureLogged},
    {"NotFound", {404, "missing"}, true, 0, Shown::Failure, failureText},
    {"Timeout", {200, {}, true}, true, 0, Shown::Failure},
    {"ConnectionRefused", {}, true, 0, Shown::Failure, {}, {}, true},
    {"BadPropertyList", {200, "<?xml version=\"1.0\"?><plist><dict><key>"}, true, 0, Shown::Failure},
    {"NoVersion", plist(QVariantMap{{"productVersion", "2.0"}}), true, 0, Shown::Failure},
    {"VersionNotText", plist(QVariantMap{{"version", QVariantList{1, 0}}}), true, 0, Shown::Failure},
    {"ArrayInsteadOfDictionary", plist(QVariantList{entry("1.0.0")}), true, 0, Shown::Failure},
    {"HugeAnswer", {200, QByteArray(3 * 1024 * 1024, 'v')}, true, 0, Shown::Failure},
};

INSTANTIATE_TEST_SUITE_P(Answers, VersionCheck, ::testing::ValuesIn(versionCases),
                         [](const auto& info) { return std::string(info.param.name); });

struct StartupCase
{
    const char* name;
    bool firstRun; // the question is asked: answered with 0 to check
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
    stub.route("/macpad/list.plist", listing("1.0.0"));
    if (!row.firstRun) {
        settings.setValue(ZRUpdateChecker::firstUpdateCheckKey, true);
        settings.setValue(ZRUpdateChecker::checkAtStartupKey, row.checkAtStartup);
    }
    if (row.secondsSinceLastCheck)
        settings.setValue(
            ZRUpdateChecker::lastCheckSecondsKey,
            ZRUpdateChecker::referenceSeconds(clock.now().addSecs(-*row.secondsSinceLastCheck)));
    const QVariant lastBefore = settings.value(ZRUpdateChecker::lastCheckSecondsKey);
    ui.answerAlert(row.checkAtStartup ? 0 : 1);
    bool checkbox = !row.checkAtStartup;
    QObject::connect(&checker, &ZRUpdateChecker::checkAtStartupChanged, [&](bool on) { checkbox = on; });

    checker.awakeFromNib();

    // A background check that finds nothing new says nothing.
    const auto alerts = ui.calls("alert");
    ASSERT_EQ(alerts.size(), row.firstRun ? 1 : 0);
    if (row.firstRun) {
        EXPECT_EQ(alerts[0].title, "Check for updates automatically?");
        EXPECT_TRUE(alerts[0].text.contains("Vorn"));
        EXPECT_EQ(alerts[0].buttons, (QStringList{"OK", "Cancel"}));
    }
    EXPECT_TRUE(settings.boolValue(ZRUpdateChecker::firstUpdateCheckKey));
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
}

INSTANTIATE_TEST_SUITE_P(Days, StartupCheck,
                         ::testing::Values(StartupCase{"FirstRunAgreed", true, true, std::nullopt, true},
                                           StartupCase{"FirstRunDeclined", true, false, std::nullopt, false},
                                           StartupCase{"NeverChecked", false, true, std::nullopt, true},
                                           StartupCase{"CheckedAnHourAgo", false, true, 3600, false},
                                           StartupCase{"CheckedExactlyADayAgo", false, true, 86400, false},
                                           StartupCase{"CheckedADayAndASecondAgo", false, true, 86401, true},
                                           StartupCase{"ClockWentBack", false, true, -7200, false},
                                           StartupCase{"SwitchedOff", false, false, std::nullopt, false}),
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

// The menu command joins a running background check, also one waiting for
// its release notes, instead of starting a second one, and reports its answer.
TEST_F(UpdateCheckerTest, TheMenuCommandJoinsARunningCheck)
{
    for (const char* version : {"1.0.0", "2.0"}) {
        SCOPED_TRACE(version);
        const bool newer = QString(version) != "1.0.0";
        stub.route("/macpad/list.plist", listing(version));
        stub.route("/macpad/Vorn.txt", {200, {}, true});
        ui.clear();
        ui.answerAlert(1);
        const int before = stub.count("/macpad/list.plist");
        checker.checkForUpdatesAndNotify(false);
        if (newer) {
            ASSERT_TRUE(waitUntil([&] { return stub.count("/macpad/Vorn.txt") == 1; }));
        }
        EXPECT_TRUE(checker.isChecking());
        checker.checkForUpdates();
        ASSERT_TRUE(waitForResults(int(results.size()) + 1));
        EXPECT_FALSE(
            waitUntil([&] { return checker.isChecking() || results.size() > (newer ? 2 : 1); }, 200));
        EXPECT_EQ(stub.count("/macpad/list.plist"), before + 1);
        EXPECT_EQ(ui.alertTitles(), QStringList{newer ? "Update available!" : "You're up to date!"});
    }
    EXPECT_EQ(settings.dateValue(ZRUpdateChecker::lastCheckDateKey), clock.now());
}

TEST_F(UpdateCheckerTest, AWindowTakesTheOfferInPlaceOfTheAlert)
{
    stub.route("/macpad/list.plist", listing("1.1.0"));
    stub.route("/macpad/Vorn.txt", {200, "Faster PDFs.\n"});
    QList<std::pair<QString, QString>> offers;
    QObject::connect(&checker, &ZRUpdateChecker::updateAvailable,
                     [&](const CheckResult& r, const QString& notes) {
                         offers.append({r.productVersion, notes});
                     });
    checker.checkForUpdates();
    ASSERT_TRUE(waitForResults(1));
    EXPECT_EQ(offers, (QList<std::pair<QString, QString>>{{"Vorn 1.1.0", "Faster PDFs."}}));
    EXPECT_TRUE(ui.alertTitles().isEmpty());
    EXPECT_TRUE(checker.download());
    EXPECT_EQ(ui.calls("url").value(0).title, stub.url("/downloads/Vorn.zip").toString());
}

TEST(UpdateCheckerDates, CountFromTheFirstOfJanuary2001)
{
    const auto utc = [](QDate d, QTime t) { return QDateTime(d, t, QTimeZone::utc()); };
    EXPECT_DOUBLE_EQ(ZRUpdateChecker::referenceSeconds(utc({2001, 1, 1}, {0, 1, 40})), 100.0);
    EXPECT_DOUBLE_EQ(ZRUpdateChecker::referenceSeconds(utc({2000, 12, 31}, {23, 59, 59, 500})), -0.5);
}

} // namespace
