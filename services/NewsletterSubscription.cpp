#include "services/NewsletterSubscription.h"

#include "services/HttpRequest.h"
#include "services/ServiceUrls.h"
#include "services/ServicesLog.h"
#include "store/UserInterface.h"

#include <QNetworkReply>
#include <QUrl>

namespace vorn {

NewsletterSubscription::NewsletterSubscription(Settings& settings, UserInterface& ui, QObject* parent)
    : QObject(parent), m_settings(settings), m_ui(ui)
{
}

QString NewsletterSubscription::urlEncodeValue(const QString& value)
{
    // Characters that are legal in an address stay as they are, except those
    // that would break the form body apart.
    return QString::fromLatin1(QUrl::toPercentEncoding(value, QByteArrayLiteral("!$'()*,/:;@")));
}

QByteArray NewsletterSubscription::formBody(const QString& recipient, const QString& name,
                                            const QString& email)
{
    return QStringLiteral("?action=%1&to=%2&name=%3&email=%4&message=%5")
        .arg(urlEncodeValue(QStringLiteral("sendmail")), urlEncodeValue(recipient), urlEncodeValue(name),
             urlEncodeValue(email), urlEncodeValue(QStringLiteral("New Subscriber")))
        .toUtf8();
}

bool NewsletterSubscription::subscribeAction(const QString& email, const QString& name)
{
    if (m_reply)
        return false;
    if (email.size() < minimumAddressLength) {
        m_ui.beep();
        m_ui.runAlert({tr("Error!"),
                       tr("Please provide a valid email address."),
                       {tr("OK")},
                       UserInterface::AlertStyle::Warning,
                       false});
        return false;
    }
    const QByteArray body = formBody(ServiceUrls::recipient(m_settings), name, email);
    QNetworkRequest request =
        HttpRequest::request(ServiceUrls::url(m_settings, ServiceUrls::newsletter), m_timeoutMs);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QStringLiteral("application/x-www-form-urlencoded"));
    request.setRawHeader("Content-Length", QByteArray::number(body.size()));
    // A redirect is an answer outside 200-299 like any other.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    m_reply = HttpRequest::post(m_network, request, body, this, [this](const HttpRequest::Answer& answer) {
        m_reply = nullptr;
        Q_EMIT busyChanged(false);
        if (!answer.received)
            qCInfo(lcServices).noquote() << "newsletter subscription failed:" << answer.error;
        answered(answer.received && isSuccessStatus(answer.status));
    });
    Q_EMIT busyChanged(true);
    return true;
}

void NewsletterSubscription::answered(bool subscribed)
{
    if (subscribed)
        m_ui.runAlert(
            {tr("Success!"),
             tr("Thanks for subscribing. And yes, it is much more than just boring spam for Kelvo Apps. I "
                "promise."),
             {tr("OK")},
             UserInterface::AlertStyle::Informational,
             false});
    else
        m_ui.runAlert({tr("Error!"),
                       tr("Please check your internet connection and try again."),
                       {tr("OK")},
                       UserInterface::AlertStyle::Warning,
                       false});
    Q_EMIT finished(subscribed);
}

} // namespace vorn
