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

} // namespace vorn
