#include "services/KelvoGeneralController.h"
#include "services/NewsletterSubscription.h"
#include "services/ScreenCastController.h"
#include "services/ServiceUrls.h"
#include "store/Settings.h"
#include "tests/services/HttpStub.h"
#include "tests/support/ScriptedUserInterface.h"

#include <QNetworkProxy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace vorn;
using namespace vorn::test;

namespace {

const QString successText = QString(
    "Thanks for subscribing. And yes, it is much more than just boring spam for Kelvo Apps. I promise.");
const QString offlineText = "Please check your internet connection and try again.";

class ServicesTest : public ::testing::Test
{
protected:
    ServicesTest() : settings(dir.filePath("settings.plist"))
    {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        settings.setValue(ServiceUrls::newsletter, stub.url("/api/newsletter.php").toString());
    }

    QTemporaryDir dir;
    Settings settings;
    ScriptedUserInterface ui;
    HttpStub stub;
};

// What the posted form below does not show already.
TEST(UrlEncodeValue, EscapesWhatWouldBreakTheFormBody)
{
    const std::pair<const char*, const char*> cases[] = {{"", ""},
                                                         {"x?y=z", "x%3Fy%3Dz"},
                                                         {"100%", "100%25"},
                                                         {"Jörg", "J%C3%B6rg"},
                                                         {"#1 <b>", "%231%20%3Cb%3E"},
                                                         {"http://x.de/a;b", "http://x.de/a;b"}};
    for (const auto& [value, encoded] : cases)
        EXPECT_EQ(NewsletterSubscription::urlEncodeValue(QString::fromUtf8(value)), QLatin1String(encoded))
            << value;
}

TEST_F(ServicesTest, TheFormIsPostedWithItsHeaders)
{
    stub.route("/api/newsletter.php", {200, "ok"});
    settings.setValue(ServiceUrls::newsletterRecipient, "list@tandrelo.com");
    NewsletterSubscription newsletter(settings, ui);
    ASSERT_TRUE(newsletter.subscribeAction("a+b@example.org", "Kim & Co\nMain St. 1"));
    ASSERT_TRUE(waitUntil([&] { return !newsletter.isBusy(); }));

    ASSERT_EQ(stub.requests().size(), 1);
    const HttpStub::Request& request = stub.requests().first();
    EXPECT_EQ(request.method, QByteArray("POST"));
    EXPECT_EQ(request.path, QByteArray("/api/newsletter.php"));
    EXPECT_EQ(request.headers.values("content-type"), QList<QByteArray>{"application/x-www-form-urlencoded"});
    EXPECT_EQ(request.headers.values("content-length"),
              QList<QByteArray>{QByteArray::number(request.body.size())});
    EXPECT_EQ(request.body,
              QByteArray("?action=sendmail&to=list@tandrelo.com&name=Kim%20%26%20Co%0AMain%20St.%201"
                         "&email=a%2Bb@example.org&message=New%20Subscriber"));
}

struct StatusCase
{
    const char* name;
    HttpStub::Response response;
    bool subscribed;
    bool closedServer = false;
};

class SubscriptionAnswer : public ServicesTest, public ::testing::WithParamInterface<StatusCase>
{
};

TEST_P(SubscriptionAnswer, CountsOnlyStatus200To299AsSuccess)
{
    const StatusCase& row = GetParam();
    stub.route("/api/newsletter.php", row.response);
    if (row.closedServer)
        settings.setValue(ServiceUrls::newsletter, HttpStub::closedUrl("/api/newsletter.php").toString());
    NewsletterSubscription newsletter(settings, ui);
    newsletter.setTimeout(400);
    QList<bool> busy;
    QObject::connect(&newsletter, &NewsletterSubscription::busyChanged, [&](bool b) { busy << b; });
    std::optional<bool> finished;
    QObject::connect(&newsletter, &NewsletterSubscription::finished, [&](bool ok) { finished = ok; });

    // Seven characters: the shortest address taken.
    ASSERT_TRUE(newsletter.subscribeAction("ab@c.de", "Me"));
    // The call returns at once: the spinner runs and nothing was answered yet.
    EXPECT_TRUE(newsletter.isBusy());
    EXPECT_TRUE(ui.alertTitles().isEmpty());
    ASSERT_TRUE(waitUntil([&] { return finished.has_value(); }));

    EXPECT_EQ(*finished, row.subscribed);
    EXPECT_EQ(busy, (QList<bool>{true, false}));
    const auto alerts = ui.calls("alert");
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts[0].title, row.subscribed ? "Success!" : "Error!");
    EXPECT_EQ(alerts[0].text, row.subscribed ? successText : offlineText);
    EXPECT_EQ(alerts[0].buttons, QStringList{"OK"});
    EXPECT_TRUE(ui.calls("beep").isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Statuses, SubscriptionAnswer,
                         ::testing::Values(StatusCase{"Status199", {199, ""}, false},
                                           StatusCase{"Status200", {200, "ok"}, true},
                                           StatusCase{"Status299", {299, ""}, true},
                                           StatusCase{"Status300", {300, ""}, false},
                                           StatusCase{"Status500", {500, "down"}, false},
                                           StatusCase{"NoAnswer", {200, {}, true}, false},
                                           StatusCase{"NoServer", {200, "ok"}, false, true}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(ServicesTest, AnAddressUnderSevenCharactersIsRefusedUnsent)
{
    stub.route("/api/newsletter.php", {200, "ok"});
    NewsletterSubscription newsletter(settings, ui);
    for (const char* address : {"", "a@b.de", "ä@b.de"}) {
        SCOPED_TRACE(address);
        ui.clear();
        EXPECT_FALSE(newsletter.subscribeAction(QString::fromUtf8(address), "Me"));
        EXPECT_FALSE(newsletter.isBusy());
        EXPECT_EQ(ui.calls("beep").size(), 1);
        const auto alerts = ui.calls("alert");
        ASSERT_EQ(alerts.size(), 1);
        EXPECT_EQ(alerts[0].title, "Error!");
        EXPECT_EQ(alerts[0].text, "Please provide a valid email address.");
    }
    EXPECT_FALSE(waitUntil([&] { return !stub.requests().isEmpty(); }, 100));
}

TEST_F(ServicesTest, ASecondSubscriptionWaitsForTheFirst)
{
    stub.route("/api/newsletter.php", {200, "ok"});
    NewsletterSubscription newsletter(settings, ui);
    EXPECT_TRUE(newsletter.subscribeAction("me@tandrelo.com", {}));
    EXPECT_FALSE(newsletter.subscribeAction("me@tandrelo.com", {}));
    ASSERT_TRUE(waitUntil([&] { return !newsletter.isBusy(); }));
    EXPECT_EQ(stub.requests().size(), 1);
    EXPECT_EQ(ui.alertTitles(), QStringList{"Success!"});
}

TEST_F(ServicesTest, TheIntroductionShowsThePageOrTheOfflineNote)
{
    const QUrl page = stub.url("/introduction/");
    settings.setValue(ServiceUrls::introductionVideo, page.toString());
    const QString offline =
        "<br /><br /><br /><br /><br /><center>Please check your internet connection!</center>";
    const struct
    {
        const char* name;
        HttpStub::Response page;
        bool online;
    } cases[] = {{"Reachable", {200, "<html>video</html>"}, true},
                 {"ServerError", {503, "busy"}, false},
                 {"NoAnswer", {200, {}, true}, false}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        stub.route("/introduction/", row.page);
        ScreenCastController video(settings);
        video.setTimeout(400);
        std::optional<QUrl> url;
        std::optional<QString> html;
        QObject::connect(&video, &ScreenCastController::loadUrl, [&](const QUrl& u) { url = u; });
        QObject::connect(&video, &ScreenCastController::loadHtml, [&](const QString& h) { html = h; });
        video.awakeFromNib();
        ASSERT_TRUE(waitUntil([&] { return url || html; }));
        EXPECT_EQ(url, row.online ? std::optional(page) : std::nullopt);
        EXPECT_EQ(html, row.online ? std::nullopt : std::optional(offline));
    }
}

TEST_F(ServicesTest, WebLinksOpenTheAddressOfTheirSettingOrTheStandardOne)
{
    KelvoGeneralController links(settings, ui);
    using K = KelvoGeneralController;
    const std::pair<bool (K::*)(), QString> commands[] = {{&K::openBlog, ServiceUrls::blog},
                                                          {&K::openManual, ServiceUrls::manual},
                                                          {&K::openManuals, ServiceUrls::manual},
                                                          {&K::openTwitter, ServiceUrls::twitter},
                                                          {&K::openADN, ServiceUrls::adn},
                                                          {&K::openKelvo, ServiceUrls::kelvo},
                                                          {&K::openSupport, ServiceUrls::support},
                                                          {&K::openFeedback, ServiceUrls::feedback},
                                                          {&K::openAppWebsite, ServiceUrls::appWebsite},
                                                          {&K::openACK, ServiceUrls::acknowledgements}};
    for (const auto& [open, key] : commands) {
        SCOPED_TRACE(key.toStdString());
        ui.clear();
        const QUrl standard = ServiceUrls::defaultUrl(key);
        EXPECT_EQ(standard.scheme(), "https");
        settings.removeValue(key);
        EXPECT_TRUE((links.*open)());
        settings.setValue(key, "http://127.0.0.1:9/mirror");
        EXPECT_TRUE((links.*open)());
        // Addresses that are not web pages fall back to the standard one.
        for (const char* bad :
             {"javascript:alert(1)", "file:///etc/passwd", "file://host/etc/passwd", "not an address"}) {
            settings.setValue(key, QString::fromLatin1(bad));
            EXPECT_TRUE((links.*open)());
        }
        QStringList opened;
        for (const auto& call : ui.calls("url"))
            opened << call.title;
        const QString s = standard.toString();
        EXPECT_EQ(opened, (QStringList{s, "http://127.0.0.1:9/mirror", s, s, s, s}));
    }
}

} // namespace
