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

const QString successText = QStringLiteral(
    "Thanks for subscribing. And yes, it is much more than just boring spam for Kelvo Apps. I promise.");
const QString offlineText = QStringLiteral("Please check your internet connection and try again.");

class ServicesTest : public ::testing::Test
{
protected:
    ServicesTest() : settings(dir.filePath(QStringLiteral("settings.plist")))
    {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        settings.setValue(ServiceUrls::newsletter,
                          stub.url(QStringLiteral("/api/newsletter.php")).toString());
    }

    QTemporaryDir dir;
    Settings settings;
    ScriptedUserInterface ui;
    HttpStub stub;
};

struct Encoding
{
    const char* value;
    const char* encoded;
};

class UrlEncodeValue : public ::testing::TestWithParam<Encoding>
{
};

TEST_P(UrlEncodeValue, EscapesWhatWouldBreakTheFormBody)
{
    EXPECT_EQ(NewsletterSubscription::urlEncodeValue(QString::fromUtf8(GetParam().value)),
              QString::fromLatin1(GetParam().encoded));
}

INSTANTIATE_TEST_SUITE_P(
    Values, UrlEncodeValue,
    ::testing::Values(Encoding{"", ""}, Encoding{"plain", "plain"},
                      Encoding{"me@tandrelo.com", "me@tandrelo.com"}, Encoding{"a b", "a%20b"},
                      Encoding{"x?y=z&w+v", "x%3Fy%3Dz%26w%2Bv"}, Encoding{"100%", "100%25"},
                      Encoding{"Jörg Müller", "J%C3%B6rg%20M%C3%BCller"},
                      Encoding{"line\nbreak", "line%0Abreak"}, Encoding{"#1 <b>", "%231%20%3Cb%3E"},
                      Encoding{"http://x.de/a;b", "http://x.de/a;b"}));

TEST_F(ServicesTest, TheFormIsPostedWithItsHeaders)
{
    stub.route("/api/newsletter.php", {200, "ok"});
    settings.setValue(ServiceUrls::newsletterRecipient, QStringLiteral("list@tandrelo.com"));
    NewsletterSubscription newsletter(settings, ui);
    ASSERT_TRUE(newsletter.subscribeAction(QStringLiteral("a+b@example.org"),
                                           QStringLiteral("Kim & Co\nMain St. 1")));
    ASSERT_TRUE(waitUntil([&] { return !newsletter.isBusy(); }));

    ASSERT_EQ(stub.requests().size(), 1);
    const HttpStub::Request& request = stub.requests().first();
    EXPECT_EQ(request.method, QByteArray("POST"));
    EXPECT_EQ(request.path, QByteArray("/api/newsletter.php"));
    EXPECT_EQ(request.header("content-type"), QList<QByteArray>{"application/x-www-form-urlencoded"});
    EXPECT_EQ(request.header("content-length"), QList<QByteArray>{QByteArray::number(request.body.size())});
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
        settings.setValue(ServiceUrls::newsletter,
                          HttpStub::closedUrl(QStringLiteral("/api/newsletter.php")).toString());
    NewsletterSubscription newsletter(settings, ui);
    newsletter.setTimeout(400);
    QList<bool> busy;
    QObject::connect(&newsletter, &NewsletterSubscription::busyChanged, [&](bool b) { busy << b; });
    std::optional<bool> finished;
    QObject::connect(&newsletter, &NewsletterSubscription::finished, [&](bool ok) { finished = ok; });

    ASSERT_TRUE(newsletter.subscribeAction(QStringLiteral("me@tandrelo.com"), QStringLiteral("Me")));
    // The call returns at once: the spinner runs and nothing was answered yet.
    EXPECT_TRUE(newsletter.isBusy());
    EXPECT_TRUE(ui.alertTitles().isEmpty());
    ASSERT_TRUE(waitUntil([&] { return finished.has_value(); }));

    EXPECT_EQ(*finished, row.subscribed);
    EXPECT_EQ(busy, (QList<bool>{true, false}));
    const auto alerts = ui.calls(QStringLiteral("alert"));
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts[0].title, row.subscribed ? QStringLiteral("Success!") : QStringLiteral("Error!"));
    EXPECT_EQ(alerts[0].text, row.subscribed ? successText : offlineText);
    EXPECT_EQ(alerts[0].buttons, QStringList{QStringLiteral("OK")});
    EXPECT_TRUE(ui.calls(QStringLiteral("beep")).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Statuses, SubscriptionAnswer,
    ::testing::Values(StatusCase{"Status199", {199, ""}, false}, StatusCase{"Status200", {200, "ok"}, true},
                      StatusCase{"Status204", {204, ""}, true}, StatusCase{"Status299", {299, ""}, true},
                      StatusCase{"Status300", {300, ""}, false}, StatusCase{"Status302", {302, ""}, false},
                      StatusCase{"Status404", {404, "no"}, false},
                      StatusCase{"Status500", {500, "down"}, false},
                      StatusCase{"NoAnswer", {200, {}, true}, false},
                      StatusCase{"NoServer", {200, "ok"}, false, true}),
    [](const auto& info) { return std::string(info.param.name); });

struct AddressCase
{
    const char* name;
    const char* email;
    bool sent;
};

class SubscriptionAddress : public ServicesTest, public ::testing::WithParamInterface<AddressCase>
{
};

TEST_P(SubscriptionAddress, NeedsSevenCharacters)
{
    stub.route("/api/newsletter.php", {200, "ok"});
    NewsletterSubscription newsletter(settings, ui);
    EXPECT_EQ(newsletter.subscribeAction(QString::fromUtf8(GetParam().email), QStringLiteral("Me")),
              GetParam().sent);
    if (GetParam().sent) {
        ASSERT_TRUE(waitUntil([&] { return !newsletter.isBusy(); }));
        EXPECT_EQ(stub.requests().size(), 1);
        EXPECT_TRUE(ui.calls(QStringLiteral("beep")).isEmpty());
    } else {
        EXPECT_FALSE(newsletter.isBusy());
        EXPECT_EQ(ui.calls(QStringLiteral("beep")).size(), 1);
        const auto alerts = ui.calls(QStringLiteral("alert"));
        ASSERT_EQ(alerts.size(), 1);
        EXPECT_EQ(alerts[0].title, QStringLiteral("Error!"));
        EXPECT_EQ(alerts[0].text, QStringLiteral("Please provide a valid email address."));
        EXPECT_FALSE(waitUntil([&] { return !stub.requests().isEmpty(); }, 100));
    }
}

INSTANTIATE_TEST_SUITE_P(Addresses, SubscriptionAddress,
                         ::testing::Values(AddressCase{"Empty", "", false},
                                           AddressCase{"SixCharacters", "a@b.de", false},
                                           AddressCase{"SevenCharacters", "ab@c.de", true},
                                           AddressCase{"SixWithAccent", "ä@b.de", false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(ServicesTest, ASecondSubscriptionWaitsForTheFirst)
{
    stub.route("/api/newsletter.php", {200, "ok"});
    NewsletterSubscription newsletter(settings, ui);
    EXPECT_TRUE(newsletter.subscribeAction(QStringLiteral("me@tandrelo.com"), {}));
    EXPECT_FALSE(newsletter.subscribeAction(QStringLiteral("me@tandrelo.com"), {}));
    ASSERT_TRUE(waitUntil([&] { return !newsletter.isBusy(); }));
    EXPECT_EQ(stub.requests().size(), 1);
    EXPECT_EQ(ui.alertTitles(), QStringList{QStringLiteral("Success!")});
}

struct VideoCase
{
    const char* name;
    HttpStub::Response page;
    bool online;
};

class IntroductionVideo : public ServicesTest, public ::testing::WithParamInterface<VideoCase>
{
};

TEST_P(IntroductionVideo, ShowsThePageOrTheOfflineNote)
{
    stub.route("/introduction/", GetParam().page);
    const QUrl page = stub.url(QStringLiteral("/introduction/"));
    settings.setValue(ServiceUrls::introductionVideo, page.toString());
    ScreenCastController video(settings);
    video.setTimeout(400);
    std::optional<QUrl> url;
    std::optional<QString> html;
    QObject::connect(&video, &ScreenCastController::loadUrl, [&](const QUrl& u) { url = u; });
    QObject::connect(&video, &ScreenCastController::loadHtml, [&](const QString& h) { html = h; });
    video.awakeFromNib();
    ASSERT_TRUE(waitUntil([&] { return url || html; }));
    if (GetParam().online) {
        EXPECT_EQ(url, page);
        EXPECT_FALSE(html);
    } else {
        EXPECT_FALSE(url);
        EXPECT_EQ(html, QStringLiteral("<br /><br /><br /><br /><br /><center>Please check your internet "
                                       "connection!</center>"));
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, IntroductionVideo,
                         ::testing::Values(VideoCase{"Reachable", {200, "<html>video</html>"}, true},
                                           VideoCase{"ServerError", {503, "busy"}, false},
                                           VideoCase{"NoAnswer", {200, {}, true}, false}),
                         [](const auto& info) { return std::string(info.param.name); });

struct LinkCase
{
    const char* name;
    bool (KelvoGeneralController::*open)();
    QString key;
};

class WebLinks : public ServicesTest, public ::testing::WithParamInterface<LinkCase>
{
};

TEST_P(WebLinks, OpenTheAddressOfTheirSetting)
{
    KelvoGeneralController links(settings, ui);
    const LinkCase& row = GetParam();

    EXPECT_TRUE((links.*row.open)());
    const QUrl standard = ServiceUrls::defaultUrl(row.key);
    EXPECT_EQ(standard.scheme(), QStringLiteral("https"));
    EXPECT_TRUE(standard.host().endsWith(QStringLiteral("tandrelo.com")));

    settings.setValue(row.key, QStringLiteral("http://127.0.0.1:9/mirror"));
    EXPECT_TRUE((links.*row.open)());
    // Addresses that are not web pages fall back to the standard one.
    for (const char* bad : {"javascript:alert(1)", "file:///etc/passwd", "not an address"}) {
        settings.setValue(row.key, QString::fromLatin1(bad));
        EXPECT_TRUE((links.*row.open)());
    }
    const auto urls = ui.calls(QStringLiteral("url"));
    ASSERT_EQ(urls.size(), 5);
    EXPECT_EQ(urls[0].title, standard.toString());
    EXPECT_EQ(urls[1].title, QStringLiteral("http://127.0.0.1:9/mirror"));
    for (int i = 2; i < 5; ++i)
        EXPECT_EQ(urls[i].title, standard.toString());
}

INSTANTIATE_TEST_SUITE_P(
    Commands, WebLinks,
    ::testing::Values(
        LinkCase{"Blog", &KelvoGeneralController::openBlog, ServiceUrls::blog},
        LinkCase{"Manual", &KelvoGeneralController::openManual, ServiceUrls::manual},
        LinkCase{"Manuals", &KelvoGeneralController::openManuals, ServiceUrls::manual},
        LinkCase{"Twitter", &KelvoGeneralController::openTwitter, ServiceUrls::twitter},
        LinkCase{"ADN", &KelvoGeneralController::openADN, ServiceUrls::adn},
        LinkCase{"Kelvo", &KelvoGeneralController::openKelvo, ServiceUrls::kelvo},
        LinkCase{"Support", &KelvoGeneralController::openSupport, ServiceUrls::support},
        LinkCase{"Feedback", &KelvoGeneralController::openFeedback, ServiceUrls::feedback},
        LinkCase{"AppWebsite", &KelvoGeneralController::openAppWebsite, ServiceUrls::appWebsite},
        LinkCase{"Acknowledgements", &KelvoGeneralController::openACK, ServiceUrls::acknowledgements}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
