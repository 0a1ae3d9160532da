#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QNetworkRequest>
#include <QString>

#include <functional>

class QNetworkAccessManager;
class QNetworkReply;
class QObject;

namespace vorn {

// One HTTP exchange with the site. The network access manager does the
// transfer on its own thread; the answer arrives on the thread of the
// receiver (the GUI thread). Bodies are capped so a wrong address cannot
// fill the memory.
class HttpRequest
{
    Q_DECLARE_TR_FUNCTIONS(HttpRequest)
public:
    static constexpr qint64 maxBodySize = 1 << 20;

    struct Answer
    {
        bool received = false; // a complete HTTP answer came back (any status)
        int status = 0;        // its status code, 0 without an answer
        QByteArray body;
        QString error; // why there is no usable answer
        bool isSuccess() const { return received && status >= 200 && status <= 299; }
    };
    using Done = std::function<void(const Answer&)>;

    static QNetworkRequest request(const QUrl& url, int timeoutMs);
    static QNetworkReply* get(QNetworkAccessManager& network, const QNetworkRequest& request,
                              QObject* receiver, Done done);
    static QNetworkReply* post(QNetworkAccessManager& network, const QNetworkRequest& request,
                               const QByteArray& body, QObject* receiver, Done done);

private:
    static QNetworkReply* watch(QNetworkReply* reply, QObject* receiver, Done done);
};

} // namespace vorn
