#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <gtest/gtest.h>

#ifdef Q_OS_LINUX
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace vorn::test {

inline QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// A whole text file, or nothing when it cannot be read.
inline QString readText(const QString& path)
{
    return QString::fromUtf8(fileBytes(path));
}

// Replaces the file (making its folder), failing the test when it cannot.
inline void writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    EXPECT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size())
        << qPrintable(path);
}

// Files in a folder, hidden ones included.
inline QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

// A folder (made if missing) nobody may write to for the lifetime of the
// object. Root writes anywhere, so for root the thread also gives up
// overriding file permissions until the folder is writable again.
class ReadOnlyFolder
{
public:
    explicit ReadOnlyFolder(QString path) : m_path(std::move(path))
    {
        QDir().mkpath(m_path);
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                          QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
#ifdef Q_OS_LINUX
        if (geteuid() == 0)
            m_dropped = setOverride(false);
#endif
    }
    ~ReadOnlyFolder()
    {
#ifdef Q_OS_LINUX
        if (m_dropped)
            setOverride(true);
#endif
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                          QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                                          QFile::ExeOther);
    }
    // Whether writing there really fails (checked by trying).
    bool holds() const
    {
        QFile probe(m_path + QStringLiteral("/.probe"));
        if (probe.open(QIODevice::WriteOnly)) {
            probe.remove();
            return false;
        }
        return true;
    }

private:
#ifdef Q_OS_LINUX
    static bool setOverride(bool enabled)
    {
        __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct data[2] = {};
        if (syscall(SYS_capget, &header, data) != 0)
            return false;
        const __u32 bits = (1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH);
        data[0].effective =
            enabled ? (data[0].effective | (data[0].permitted & bits)) : (data[0].effective & ~bits);
        return syscall(SYS_capset, &header, data) == 0;
    }
    bool m_dropped = false;
#endif
    QString m_path;
};

} // namespace vorn::test
