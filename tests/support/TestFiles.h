#pragma once

#include <QFile>
#include <QString>

namespace vorn::test {

// A whole text file, or nothing when it cannot be read.
inline QString readText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace vorn::test
