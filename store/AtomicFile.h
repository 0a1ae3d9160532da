#pragma once

#include "store/Result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

namespace vorn {

// Writes a whole file or nothing: the data goes to a temporary file in the
// same folder, is flushed to disk and then renamed over the target. A full
// disk or a missing permission leaves the old file as it was.
class AtomicFile
{
    Q_DECLARE_TR_FUNCTIONS(AtomicFile)
public:
    static Status write(const QString& path, const QByteArray& data);
    // The platform's "a file of that name already exists".
    static constexpr int fileExistsCode = 516;
    // The same for an export: it never replaces a file that is already
    // there, and says so (fileExistsCode).
    static Status writeNew(const QString& path, const QByteArray& data);
};

} // namespace vorn
