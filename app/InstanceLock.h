#pragma once

#include "store/Result.h"

#include <QCoreApplication>
#include <QLockFile>
#include <QString>

#include <memory>

namespace vorn {

// The lock beside the store that keeps two Vorn processes from changing it
// at once. A lock left behind by a process that died is taken over.
class InstanceLock
{
    Q_DECLARE_TR_FUNCTIONS(InstanceLock)
public:
    explicit InstanceLock(QString path);
    ~InstanceLock();

    Status tryLock();
    bool isLocked() const { return m_lock && m_lock->isLocked(); }
    void unlock();
    // Whether another live process holds the lock (without taking it).
    static bool isHeldElsewhere(const QString& path);

private:
    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace vorn
