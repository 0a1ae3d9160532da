#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>
#include <QStringList>

namespace vorn {

// How a second start of Vorn reaches the one already running: the running
// instance listens on a local socket named after its lock file, and a later
// start hands it the files it was asked to open, then ends. The running
// instance answers for them as for any file the desktop hands it.
class InstanceChannel : public QObject
{
    Q_OBJECT
public:
    // Paths longer than this, all together, are not ours to read.
    static constexpr qint64 maxMessageSize = 256 * 1024;

    explicit InstanceChannel(QString name, QObject* parent = nullptr);
    ~InstanceChannel() override;

    // The socket name for a lock file: one per user and data folder.
    static QString nameFor(const QString& lockFile);
    // Starts listening, taking over a socket left by a crashed run.
    bool listen();
    // Hands paths (possibly none: the running instance comes to the front)
    // to the instance listening on name; false when none answers.
    static bool send(const QString& name, const QStringList& paths, int timeoutMs = 3000);

Q_SIGNALS:
    void filesReceived(const QStringList& paths);

private:
    void accept();

    QString m_name;
    QLocalServer m_server;
};

} // namespace vorn
