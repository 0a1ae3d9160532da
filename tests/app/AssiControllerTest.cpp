#include "app/AssiController.h"
#include "services/NewsletterSubscription.h"
#include "services/ServiceUrls.h"
#include "services/ZRUpdateChecker.h"
#include "tests/app/AppHarness.h"
#include "tests/services/HttpStub.h"

#include <QNetworkProxy>

#include <gtest/gtest.h>

using namespace vorn;
using namespace vorn::test;

namespace {

const QString alreadySetUp = QString("It seems that you've already setup Vorn and have run the setup "
                                     "assistant at least once before. Doing this again "
                                     "will delete all your customizations and replace them with the "
                                     "default values. Do you really want to continue?");

class AssiTest : public ::testing::Test
{
protected:
    AssiController& assi() { return h.app->assiController(); }
    Settings& settings() { return *h.settings; }

    // Launches once so the first start is behind, then again with the
    // assistant done or not.
    void launchWith(bool assiDone, bool launchChecks = true)
    {
        h.launch(false);
        settings().setValue("isAssiDone", assiDone);
        h.quit();
        h.ui.clear();
        h.launch(launchChecks);
        h.app->setTemplateLoader([this] { ++seeded; });
    }

    AppHarness h;
    int seeded = 0;
};

TEST_F(AssiTest, OpensAtLaunchUntilTheAssistantWasCompleted)
{
    const struct
    {
        const char* name;
        bool assiDone, launchChecks, opens;
    } launches[] = {{"NeverCompleted", false, true, true},
                    {"Completed", true, true, false},
                    {"CommandLine", false, false, false}};
    for (const auto& row : launches) {
        SCOPED_TRACE(row.name);
        launchWith(row.assiDone, row.launchChecks);
        EXPECT_EQ(assi().isSheetVisible(), row.opens);
        EXPECT_TRUE(h.ui.alertTitles().isEmpty());
        if (row.opens) {
            EXPECT_EQ(assi().pageIndex(), int(AssiController::LanguagePage));
        }
    }
}

struct OpenCase
{
    const char* name;
    bool assiDone;
    int answer;
    bool warns;
    bool opens;
};

class OpenAssi : public AssiTest, public ::testing::WithParamInterface<OpenCase>
{
};

TEST_P(OpenAssi, RerunsOnlyACompletedAssistantAfterTheWarning)
{
    const OpenCase& row = GetParam();
    launchWith(row.assiDone, false);
    settings().setValue("assiIndex", 3);
    assi().setSubscriptionEmail("old@example.org");
    const QVariantMap before = settings().dictionaryRepresentation();
    h.ui.answerAlert(row.answer);

    assi().openAssi();

    const auto alerts = h.ui.calls("alert");
    ASSERT_EQ(alerts.size(), row.warns ? 1 : 0);
    if (row.warns) {
        EXPECT_EQ(shown(alerts[0]), (QStringList{"Warning!", alreadySetUp, "Continue…|Cancel"}));
    }
    EXPECT_EQ(assi().isSheetVisible(), row.opens);
    if (row.opens) {
        EXPECT_EQ(assi().pageIndex(), 0);
        EXPECT_TRUE(assi().subscriptionEmail().isEmpty());
    } else {
        EXPECT_EQ(settings().dictionaryRepresentation(), before);
        EXPECT_EQ(assi().subscriptionEmail(), "old@example.org");
    }
}

INSTANTIATE_TEST_SUITE_P(Answers, OpenAssi,
                         ::testing::Values(OpenCase{"NotCompletedYet", false, 0, false, false},
                                           OpenCase{"Continue", true, 0, true, true},
                                           OpenCase{"Cancel", true, 1, true, false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(AssiTest, TheLanguagePageWritesItsListAndSeedsTheDesignsOnce)
{
    launchWith(false);
    assi().setLanguage(0);
    ASSERT_TRUE(assi().firstAssiTabAction());
    EXPECT_EQ(seeded, 1);
    EXPECT_TRUE(settings().boolValue("isFirstStoreLoadEverDone"));
    EXPECT_EQ(assi().pageIndex(), int(AssiController::CompanyPage));
    const auto focus = h.ui.calls("focus");
    ASSERT_EQ(focus.size(), 1);
    EXPECT_EQ(focus[0].title, AssiController::firstField(AssiController::CompanyPage));

    assi().openAssi(); // not completed yet: nothing happens
    assi().closeAssi();
    h.ui.answerAlert(0);
    assi().openAssi();
    assi().setLanguage(1);
    ASSERT_TRUE(assi().firstAssiTabAction());
    EXPECT_EQ(seeded, 1);
    // Written to the file, not only in memory; loading a whole list is the delegate's, tested there.
    EXPECT_EQ(h.storedSetting("locQuote"), "Angebot");
}

TEST_F(AssiTest, WithoutAStoreTheDefaultsAreWrittenAndSeedingWaits)
{
    h.launch(false);
    h.quit();
    writeFile(h.storePath(), QByteArray(10000, 'g'));
    h.launch(false);
    ASSERT_EQ(h.context(), nullptr);
    h.app->setTemplateLoader([this] { ++seeded; });
    assi().setLanguage(2);

    EXPECT_TRUE(assi().firstAssiTabAction());
    EXPECT_EQ(seeded, 0);
    EXPECT_FALSE(settings().boolValue("isFirstStoreLoadEverDone"));
    const auto french = AppDelegate::defaultList("defaultPrefsFrench");
    ASSERT_TRUE(french.ok());
    EXPECT_EQ(settings().value("locInvoice"), french.value().value("locInvoice"));
}

TEST_F(AssiTest, PagesAdvanceToTheLastAndFocusTheirFirstField)
{
    launchWith(false);
    QList<int> pages;
    QObject::connect(&assi(), &AssiController::pageChanged, [&](int page) { pages << page; });
    for (int i = 0; i < 5; ++i)
        assi().subscribeAssiTabAction();
    EXPECT_EQ(pages, (QList<int>{1, 2, 3, 3, 3}));
    EXPECT_EQ(assi().pageIndex(), AssiController::pageCount - 1);
    QStringList focused;
    for (const auto& call : h.ui.calls("focus"))
        focused << call.title;
    EXPECT_EQ(focused, (QStringList{"assiCompanyField", "assiSubscriptionField"}));
}

TEST_F(AssiTest, ClosingCompletesTheAssistantAndOffersTheVideo)
{
    for (const int answer : {0, 1}) {
        SCOPED_TRACE(answer == 0 ? "Yes" : "No");
        launchWith(false);
        assi().setCompanyName("Kim Design");
        assi().setContact("Kim Berger\nMain St. 1");
        assi().setCheckForUpdates(answer == 0);
        int videos = 0;
        QObject::connect(&assi(), &AssiController::screenCastRequested, [&] { ++videos; });
        h.ui.answerAlert(answer);

        assi().closeAssi();

        EXPECT_FALSE(assi().isSheetVisible());
        const auto alerts = h.ui.calls("alert");
        ASSERT_EQ(alerts.size(), 1);
        EXPECT_EQ(shown(alerts[0]),
                  (QStringList{"30 Second Introduction",
                               "Do you want to see the 30 second introduction video before creating your "
                               "first invoice?",
                               "Yes, please!|No, I prefer to suffer in silence."}));
        EXPECT_EQ(videos, answer == 0 ? 1 : 0);

        EXPECT_EQ(h.storedSetting("isAssiDone"), true);
        EXPECT_EQ(h.storedSetting("prefsName"), "Kim Design");
        EXPECT_EQ(h.storedSetting("prefsContact"), "Kim Berger\nMain St. 1");
        // The consent was given here: the launch asks no more and checks a day later.
        EXPECT_EQ(h.storedSetting("ZRUpdateChecker:CheckAtStartup"), answer == 0);
        EXPECT_EQ(h.storedSetting("firstUpdateCheck"), true);
        EXPECT_EQ(h.storedSetting("ZRUpdateChecker:LastCheckDate"),
                  ZRUpdateChecker::referenceSeconds(h.clock.now()));

        // The next launch leaves the assistant closed.
        h.quit();
        h.launch();
        EXPECT_FALSE(assi().isSheetVisible());
    }
}

// The windows start in the assistant's language once it was completed, the
// desktop's before; a restart is offered when the choice differs from the
// language the windows were built in.
TEST_F(AssiTest, StartupLanguageAndTheRestartOffer)
{
    const struct
    {
        const char* name;
        bool assiDone;
        int chosen;
        QLocale::Language desktop;
        int startup;
        int windows;
        bool restart;
    } cases[] = {
        {"FirstRunFollowsTheDesktop", false, 0, QLocale::German, 1, 1, true},
        {"FirstRunOtherDesktopIsEnglish", false, 3, QLocale::Japanese, 0, 0, true},
        {"CompletedKeepsTheChoice", true, 2, QLocale::German, 2, 2, false},
        {"CompletedOutOfRangeIsClamped", true, 7, QLocale::English, 3, 3, false},
        {"NegativeIsEnglish", true, -1, QLocale::Spanish, 0, 1, true},
        {"SameAsTheWindows", false, 1, QLocale::German, 1, 1, false},
    };
    h.launch(false);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        settings().setValue("isAssiDone", c.assiDone);
        assi().setLanguage(c.chosen);
        EXPECT_EQ(AssiController::startupLanguage(settings(), QLocale(c.desktop)), c.startup);
        EXPECT_EQ(assi().offersRestart(c.windows), c.restart);
    }
}

TEST_F(AssiTest, QuitEndsTheSheetThenAsksToQuit)
{
    launchWith(false);
    QStringList events;
    QObject::connect(&assi(), &AssiController::sheetVisibleChanged,
                     [&](bool visible) { events << (visible ? "shown" : "hidden"); });
    QObject::connect(&assi(), &AssiController::quitRequested, [&] { events << "quit"; });
    assi().quitAssi();
    EXPECT_EQ(events, (QStringList{"hidden", "quit"}));
    EXPECT_FALSE(settings().boolValue("isAssiDone"));
}

TEST_F(AssiTest, SubscriptionSendsTheContactAndTheAddress)
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    HttpStub stub;
    stub.route("/news", {200, "ok"});
    launchWith(false);
    settings().setValue(ServiceUrls::newsletter, stub.url("/news").toString());
    assi().setContact("Kim");
    assi().setSubscriptionEmail("kim@example.org");
    ASSERT_TRUE(assi().subscribeAction());
    ASSERT_TRUE(waitUntil([&] { return !assi().newsletter().isBusy(); }));
    ASSERT_EQ(stub.requests().size(), 1);
    EXPECT_TRUE(stub.requests()[0].body.contains("&name=Kim&email=kim@example.org&"));
    EXPECT_EQ(h.ui.alertTitles(), QStringList{"Success!"});
}

} // namespace
