#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QTcpServer>
#include <QUrl>

#include <functional>

class QTcpSocket;

namespace vorn::test {

// A small HTTP/1.1 server on 127.0.0.1 for the network services: each path
// answers with a fixed status and body, or not at all (to provoke a
// timeout). Every request is recorded.
class HttpStub : public QObject
{
    Q_OBJECT
public:
    struct Response
    {
        int status = 200;
        QByteArray body;
        bool silent = false; // never answer
    };
    struct Request
    {
        QByteArray method;
        QByteArray path;
        QMultiMap<QByteArray, QByteArray> headers; // names in lower case
        QByteArray body;
    };

    HttpStub();
    ~HttpStub() override;
    QUrl url(const QString& path) const;
    void route(const QByteArray& path, Response response) { m_routes.insert(path, std::move(response)); }
    const QList<Request>& requests() const { return m_requests; }
    int count(const QByteArray& path) const;
    // An address on which nothing listens.
    static QUrl closedUrl(const QString& path);

private:
    void readFrom(QTcpSocket* socket);

    QTcpServer m_server;
    QHash<QByteArray, Response> m_routes;
    QHash<QTcpSocket*, QByteArray> m_buffers;
    QList<Request> m_requests;
};

// Runs the event loop until done() holds or the time is up.
bool waitUntil(const std::function<bool()>& done, int milliseconds = 5000);

} // namespace vorn::test
