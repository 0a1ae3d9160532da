#include "tests/services/HttpStub.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTcpSocket>
#include <QTimer>

namespace vorn::test {

HttpStub::HttpStub()
{
    m_server.listen(QHostAddress::LocalHost, 0);
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { readFrom(socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                m_buffers.remove(socket);
                socket->deleteLater();
            });
        }
    });
}

HttpStub::~HttpStub()
{
    // Sockets still open (a request left unanswered) go first, without
    // reporting back into members that are being destroyed.
    for (QTcpSocket* socket : m_server.findChildren<QTcpSocket*>()) {
        socket->disconnect(this);
        delete socket;
    }
}

QUrl HttpStub::url(const QString& path) const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path));
}

QUrl HttpStub::closedUrl(const QString& path)
{
    // A port that was just free: bind, note it, release it.
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    const quint16 port = probe.serverPort();
    probe.close();
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(port).arg(path));
}

int HttpStub::count(const QByteArray& path) const
{
    int n = 0;
    for (const Request& r : m_requests)
        n += r.path == path;
    return n;
}

void HttpStub::readFrom(QTcpSocket* socket)
{
    QByteArray& buffer = m_buffers[socket];
    buffer += socket->readAll();
    const qsizetype headerEnd = buffer.indexOf("\r\n\r\n");
    if (headerEnd < 0)
        return;
    const QList<QByteArray> lines = buffer.left(headerEnd).split('\n');
    Request request;
    const QList<QByteArray> start = lines.value(0).trimmed().split(' ');
    request.method = start.value(0);
    request.path = start.value(1);
    qsizetype length = 0;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const qsizetype colon = lines[i].indexOf(':');
        if (colon < 0)
            continue;
        const QByteArray name = lines[i].left(colon).trimmed().toLower();
        const QByteArray value = lines[i].mid(colon + 1).trimmed();
        request.headers.insert(name, value);
        if (name == "content-length")
            length = value.toLongLong();
    }
    if (buffer.size() < headerEnd + 4 + length)
        return;
    request.body = buffer.mid(headerEnd + 4, length);
    buffer.clear();
    m_requests.append(request);

    const Response response = m_routes.value(request.path, Response{404, "not here", false});
    if (response.silent)
        return;
    QByteArray answer = "HTTP/1.1 " + QByteArray::number(response.status) + " Status\r\n";
    answer += "Content-Length: " + QByteArray::number(response.body.size()) + "\r\n";
    answer += "Content-Type: application/octet-stream\r\nConnection: close\r\n\r\n";
    answer += response.body;
    socket->write(answer);
    socket->disconnectFromHost();
}

bool waitUntil(const std::function<bool()>& done, int milliseconds)
{
    QDeadlineTimer deadline(milliseconds);
    if (done())
        return true;
    QEventLoop loop;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &loop, [&] {
        if (done() || deadline.hasExpired())
            loop.quit();
    });
    tick.start(2);
    loop.exec();
    return done();
}

} // namespace vorn::test
