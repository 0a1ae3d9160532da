#include "services/HttpRequest.h"

#include "services/ServicesLog.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <memory>

namespace vorn {

QNetworkRequest HttpRequest::request(const QUrl& url, int timeoutMs)
{
    QNetworkRequest request(url);
    request.setTransferTimeout(timeoutMs);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    return request;
}

QNetworkReply* HttpRequest::get(QNetworkAccessManager& network, const QNetworkRequest& request,
                                QObject* receiver, Done done)
{
    return watch(network.get(request), receiver, std::move(done));
}

QNetworkReply* HttpRequest::post(QNetworkAccessManager& network, const QNetworkRequest& request,
                                 const QByteArray& body, QObject* receiver, Done done)
{
    return watch(network.post(request, body), receiver, std::move(done));
}

QNetworkReply* HttpRequest::watch(QNetworkReply* reply, QObject* receiver, Done done)
{
    auto tooLarge = std::make_shared<bool>(false);
    QObject::connect(reply, &QNetworkReply::downloadProgress, receiver,
                     [reply, tooLarge](qint64 received, qint64) {
                         if (received > maxBodySize && !*tooLarge) {
                             *tooLarge = true;
                             reply->abort();
                         }
                     });
    QObject::connect(reply, &QNetworkReply::finished, receiver, [reply, tooLarge, done = std::move(done)] {
        reply->deleteLater();
        Answer answer;
        const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        if (*tooLarge) {
            answer.error = tr("The answer of %1 is too large.").arg(reply->url().host());
        } else if (status.isValid()) {
            answer.received = true;
            answer.status = status.toInt();
            answer.body = reply->readAll();
            if (reply->error() != QNetworkReply::NoError)
                answer.error = reply->errorString();
        } else {
            answer.error = reply->error() == QNetworkReply::OperationCanceledError
                               ? tr("%1 did not answer in time.").arg(reply->url().host())
                               : reply->errorString();
        }
        qCDebug(lcServices).noquote()
            << reply->operation() << reply->url().toString() << "answered" << answer.status << answer.error;
        done(answer);
    });
    return reply;
}

} // namespace vorn
