#include "app/InstanceChannel.h"

#include "app/AppLog.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>

namespace vorn {

InstanceChannel::InstanceChannel(QString name, QObject* parent) : QObject(parent), m_name(std::move(name))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &InstanceChannel::accept);
}

InstanceChannel::~InstanceChannel() = default;

QString InstanceChannel::nameFor(const QString& lockFile)
{
    const QByteArray key = QDir::cleanPath(QDir(lockFile).absolutePath()).toUtf8();
    return QStringLiteral("vorn-") +
           QString::fromLatin1(QCryptographicHash::hash(key, QCryptographicHash::Sha1).toHex().left(16));
}

bool InstanceChannel::listen()
{
    // Only the holder of the instance lock listens, so a socket that is
    // still there was left by a run that did not end normally.
    QLocalServer::removeServer(m_name);
    if (!m_server.listen(m_name)) {
        qCWarning(lcApp).noquote() << "cannot listen for later starts:" << m_server.errorString();
        return false;
    }
    return true;
}

void InstanceChannel::accept()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        auto buffer = std::make_shared<QByteArray>();
        connect(socket, &QLocalSocket::readyRead, this, [this, socket, buffer] {
            buffer->append(socket->readAll());
            if (buffer->size() > maxMessageSize) {
                qCWarning(lcApp) << "a later start sent too much; ignored";
                socket->abort();
                return;
            }
            // The message ends with an empty line.
            if (!buffer->endsWith("\n\n") && *buffer != "\n")
                return;
            QStringList paths;
            for (const QByteArray& line : buffer->split('\n'))
                if (!line.isEmpty())
                    paths << QString::fromUtf8(line);
            buffer->clear();
            socket->write("ok\n");
            socket->flush();
            socket->disconnectFromServer();
            Q_EMIT filesReceived(paths);
        });
    }
}

bool InstanceChannel::send(const QString& name, const QStringList& paths, int timeoutMs)
{
    QLocalSocket socket;
    socket.connectToServer(name);
    if (!socket.waitForConnected(timeoutMs))
        return false;
    QByteArray message;
    for (const QString& path : paths)
        message += path.toUtf8().replace('\n', ' ') + '\n';
    message += '\n';
    socket.write(message);
    if (!socket.waitForBytesWritten(timeoutMs))
        return false;
    // The answer says the paths arrived before this start goes away.
    while (!socket.canReadLine())
        if (!socket.waitForReadyRead(timeoutMs))
            return false;
    return socket.readLine().trimmed() == "ok";
}

} // namespace vorn
