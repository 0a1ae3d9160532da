#include "app/InstanceLock.h"

#include <QDir>
#include <QFileInfo>

namespace vorn {

InstanceLock::InstanceLock(QString path) : m_path(std::move(path)) {}

InstanceLock::~InstanceLock()
{
    unlock();
}

Status InstanceLock::tryLock()
{
    if (isLocked())
        return {};
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    m_lock = std::make_unique<QLockFile>(m_path);
    // Only a live owner counts: a lock whose process is gone is stale at once.
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock(0))
        return {};
    const QLockFile::LockError error = m_lock->error();
    m_lock.reset();
    if (error == QLockFile::LockFailedError)
        return Error::make(
            ErrorCode::StoreLocked, tr("The Vorn database is in use by another Vorn program."),
            tr("Quit the other Vorn program (the application or a running vorn-cli) and try again."));
    return Error::make(ErrorCode::FileWriteNoPermission, tr("The Vorn database could not be locked for use."),
                       tr("The lock file “%1” cannot be created.").arg(m_path));
}

void InstanceLock::unlock()
{
    if (m_lock)
        m_lock->unlock();
    m_lock.reset();
}

bool InstanceLock::isHeldElsewhere(const QString& path)
{
    if (!QFileInfo::exists(path))
        return false;
    QLockFile probe(path);
    probe.setStaleLockTime(0);
    if (probe.tryLock(0)) {
        probe.unlock();
        return false;
    }
    return probe.error() == QLockFile::LockFailedError;
}

} // namespace vorn
