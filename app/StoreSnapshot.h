#pragma once

#include "store/Result.h"

#include <QCoreApplication>
#include <QString>

#include <functional>

struct sqlite3;

namespace vorn {

// Consistent copies of a store file. Copies are made through SQLite's online
// backup, never with plain file calls: a store in use may have committed
// pages that live only in its write-ahead log, and closing any descriptor on
// the file would drop the locks SQLite holds on it.
//
// A copy is written to a temporary file beside its destination, switched to
// a self-contained journal mode, flushed to disk, checked with PRAGMA
// integrity_check and only then renamed over the destination, so a failed
// copy leaves an existing destination as it was.
class StoreSnapshot
{
    Q_DECLARE_TR_FUNCTIONS(StoreSnapshot)
public:
    // Called after each chunk of pages is copied, with the pages still to
    // copy and the total (lets tests disturb a copy while it runs).
    using Progress = std::function<void(int remaining, int total)>;

    // Copies the database of an open connection (its last committed state).
    static Status copy(sqlite3* source, const QString& destination, const Progress& progress = {});
    // Copies a store file that nobody has open, reading it read-only.
    static Status copyFile(const QString& source, const QString& destination, const Progress& progress = {});
    // Runs PRAGMA integrity_check on a file, read-only.
    static Status checkIntegrity(const QString& path);
    // Flushes a file or a folder's entries to disk.
    static bool flushToDisk(const QString& path, bool isDirectory = false);
    // Renames over an existing file in one step.
    static Status replaceFile(const QString& from, const QString& to);
};

} // namespace vorn
