#include "store/AtomicFile.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace vorn {

Status AtomicFile::write(const QString& path, const QByteArray& data)
{
    const QFileInfo info(path);
    if (!QDir().mkpath(info.absolutePath()))
        return Error::make(ErrorCode::FileWriteNoPermission,
                           tr("The folder “%1” could not be created.").arg(info.absolutePath()));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Error::make(ErrorCode::FileWriteNoPermission,
                           tr("The file “%1” could not be written.").arg(info.fileName()),
                           file.errorString());
    if (file.write(data) != data.size()) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return Error::make(ErrorCode::FileWriteUnknown,
                           tr("The file “%1” could not be written.").arg(info.fileName()), reason);
    }
    if (!file.commit())
        return Error::make(ErrorCode::FileWriteUnknown,
                           tr("The file “%1” could not be written.").arg(info.fileName()),
                           file.errorString());
    return {};
}

Status AtomicFile::writeNew(const QString& path, const QByteArray& data)
{
    const QFileInfo target(path);
    if (target.exists())
        return Error::make(fileExistsCode,
                           tr("“%1” could not be written because a file of that name already exists.")
                               .arg(target.fileName()),
                           tr("Choose another name, or move the existing file aside, and try again."));
    return write(target.absoluteFilePath(), data);
}

} // namespace vorn
