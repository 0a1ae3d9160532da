#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QString>

#include <QNetworkReply>

namespace vorn {

class Settings;
class UserInterface;

// The newsletter form of the setup assistant: posts the address to the
// site's newsletter endpoint. The request runs in the background while the
// page shows its spinner (busy), so the window stays responsive.
class NewsletterSubscription : public QObject
{
    Q_OBJECT
public:
    static constexpr int minimumAddressLength = 7;

    NewsletterSubscription(Settings& settings, UserInterface& ui, QObject* parent = nullptr);

    void setTimeout(int milliseconds) { m_timeoutMs = milliseconds; }
    QNetworkAccessManager& network() { return m_network; }

    // Sends the subscription of email for name. Answers false when nothing
    // was sent (the address is too short, or a request is still running).
    bool subscribeAction(const QString& email, const QString& name);
    bool isBusy() const { return m_reply != nullptr; }

    // Percent-escapes a form value in UTF-8, "?", "=", "&" and "+" included.
    static QString urlEncodeValue(const QString& value);
    // The form body for a subscription.
    static QByteArray formBody(const QString& recipient, const QString& name, const QString& email);
    // Whether a status code counts as a successful subscription.
    static bool isSuccessStatus(int status) { return status >= 200 && status <= 299; }

Q_SIGNALS:
    void busyChanged(bool busy);
    // After the answer was shown.
    void finished(bool subscribed);

private:
    void answered(bool subscribed);

    Settings& m_settings;
    UserInterface& m_ui;
    QNetworkAccessManager m_network;
    QPointer<QNetworkReply> m_reply;
    int m_timeoutMs = 30000;
};

} // namespace vorn
