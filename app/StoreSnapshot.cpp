#include "app/StoreSnapshot.h"

#include "app/AppLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTemporaryFile>
#include <QThread>
#include <QUrl>

#include <sqlite3.h>

#include <filesystem>
#include <system_error>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace vorn {

namespace {

// Pages copied per step: small enough that a copy can be watched (and
// disturbed in tests), large enough that a store copies in a few steps.
constexpr int pagesPerStep = 64;
// How long a copy waits for a store that another program is writing.
constexpr int busyRetries = 250;
constexpr int busyWaitMs = 20;

QByteArray readOnlyUri(const QString& path)
{
    return QByteArrayLiteral("file:") + QUrl::toPercentEncoding(QFileInfo(path).absoluteFilePath(), "/") +
           QByteArrayLiteral("?mode=ro");
}

// SQLite's messages as a sentence of a reason.
QString sentence(QString text)
{
    text = text.trimmed();
    if (text.isEmpty())
        return text;
    text[0] = text[0].toUpper();
    if (!text.endsWith(QLatin1Char('.')))
        text += QLatin1Char('.');
    return text;
}

QString sqliteReason(sqlite3* db, int rc)
{
    if ((rc & 0xff) == SQLITE_FULL)
        return StoreSnapshot::tr("The disk is full.");
    if (db)
        return sentence(QString::fromUtf8(sqlite3_errmsg(db)));
    return sentence(QString::fromUtf8(sqlite3_errstr(rc)));
}

void removeWithJournals(const QString& path)
{
    for (const char* suffix : {"", "-journal", "-wal", "-shm"})
        QFile::remove(path + QLatin1String(suffix));
}

Status copyFrom(sqlite3* source, const QString& sourceName, const QString& destination,
                const StoreSnapshot::Progress& progress)
{
    const QFileInfo target(destination);
    const QString folder = target.absolutePath();
    const QString failed = StoreSnapshot::tr("The copy “%1” could not be written.").arg(target.fileName());
    if (!QFileInfo(folder).isDir())
        return Error::make(ErrorCode::FileNotFound, failed,
                           StoreSnapshot::tr("The folder “%1” does not exist.").arg(folder));

    QTemporaryFile temp(folder + QStringLiteral("/.") + target.fileName() + QStringLiteral(".XXXXXX"));
    temp.setAutoRemove(false);
    if (!temp.open())
        return Error::make(
            ErrorCode::FileWriteNoPermission, failed,
            StoreSnapshot::tr("The folder “%1” cannot be written to (%2).").arg(folder, temp.errorString()));
    const QString tempPath = temp.fileName();
    temp.close();
    // A replaced file keeps its permissions; a new one gets the usual ones
    // rather than the temporary file's private mode.
    temp.setPermissions(target.exists() ? target.permissions()
                                        : QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                              QFileDevice::ReadGroup | QFileDevice::ReadOther);
    auto discard = qScopeGuard([&] { removeWithJournals(tempPath); });

    sqlite3* db = nullptr;
    int rc = sqlite3_open_v2(QFile::encodeName(tempPath).constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
    auto closeDb = qScopeGuard([&] { sqlite3_close(db); });
    if (rc != SQLITE_OK)
        return Error::make(ErrorCode::FileWriteUnknown, failed, sqliteReason(db, rc));

    sqlite3_backup* backup = sqlite3_backup_init(db, "main", source, "main");
    if (!backup)
        return Error::make(ErrorCode::FileWriteUnknown, failed, sqliteReason(db, sqlite3_errcode(db)));
    int retries = 0;
    do {
        rc = sqlite3_backup_step(backup, pagesPerStep);
        if (rc == SQLITE_OK && progress)
            progress(sqlite3_backup_remaining(backup), sqlite3_backup_pagecount(backup));
        if ((rc == SQLITE_BUSY || rc == SQLITE_LOCKED) && ++retries < busyRetries) {
            QThread::msleep(busyWaitMs);
            rc = SQLITE_OK;
        }
    } while (rc == SQLITE_OK);
    const int finished = sqlite3_backup_finish(backup);
    if (rc != SQLITE_DONE || finished != SQLITE_OK) {
        const int code = rc != SQLITE_DONE ? rc : finished;
        if ((code & 0xff) == SQLITE_CORRUPT || (code & 0xff) == SQLITE_NOTADB)
            return Error::make(ErrorCode::StoreDamaged,
                               StoreSnapshot::tr("The Vorn database “%1” could not be read.").arg(sourceName),
                               sqliteReason(nullptr, code));
        return Error::make((code & 0xff) == SQLITE_FULL ? ErrorCode::StoreWriteFailed
                                                        : ErrorCode::FileWriteUnknown,
                           failed, sqliteReason(nullptr, code));
    }

    // The copy carries the source's journal mode; a backup must stand on its
    // own as one file, so it leaves write-ahead logging.
    sqlite3_stmt* stmt = nullptr;
    QString mode;
    if (sqlite3_prepare_v2(db, "PRAGMA journal_mode=DELETE", -1, &stmt, nullptr) == SQLITE_OK &&
        sqlite3_step(stmt) == SQLITE_ROW)
        mode = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
    sqlite3_finalize(stmt);
    if (mode != QLatin1String("delete"))
        return Error::make(ErrorCode::FileWriteUnknown, failed, sqliteReason(db, sqlite3_errcode(db)));
    closeDb.dismiss();
    if (sqlite3_close(db) != SQLITE_OK)
        return Error::make(ErrorCode::FileWriteUnknown, failed, sqliteReason(db, sqlite3_errcode(db)));

    if (!StoreSnapshot::flushToDisk(tempPath))
        return Error::make(ErrorCode::FileWriteUnknown, failed,
                           StoreSnapshot::tr("The copy could not be flushed to disk."));
    if (Status check = StoreSnapshot::checkIntegrity(tempPath); !check)
        return Error::make(ErrorCode::StoreDamaged, failed, check.error().reason);
    if (Status moved = StoreSnapshot::replaceFile(tempPath, destination); !moved)
        return moved;
    discard.dismiss();
    QFile::remove(tempPath + QStringLiteral("-journal"));
    StoreSnapshot::flushToDisk(folder, true);
    qCDebug(lcApp).noquote() << "copied" << sourceName << "to" << destination;
    return {};
}

} // namespace

Status StoreSnapshot::copy(sqlite3* source, const QString& destination, const Progress& progress)
{
    if (!source)
        return Error::make(ErrorCode::StoreOpenFailed, tr("There is no open Vorn database to copy."));
    const char* name = sqlite3_db_filename(source, "main");
    return copyFrom(source, name ? QString::fromUtf8(name) : QString(), destination, progress);
}

Status StoreSnapshot::copyFile(const QString& source, const QString& destination, const Progress& progress)
{
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(readOnlyUri(source).constData(), &db,
                                   SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
    auto closeDb = qScopeGuard([&] { sqlite3_close(db); });
    if (rc != SQLITE_OK)
        return Error::make(ErrorCode::StoreOpenFailed,
                           tr("The Vorn database “%1” could not be opened.").arg(source),
                           sqliteReason(db, rc));
    sqlite3_busy_timeout(db, 5000);
    return copyFrom(db, source, destination, progress);
}

Status StoreSnapshot::checkIntegrity(const QString& path)
{
    const QString damaged = tr("The Vorn database “%1” is damaged.").arg(path);
    sqlite3* db = nullptr;
    int rc =
        sqlite3_open_v2(readOnlyUri(path).constData(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
    auto closeDb = qScopeGuard([&] { sqlite3_close(db); });
    if (rc != SQLITE_OK)
        return Error::make(ErrorCode::StoreOpenFailed,
                           tr("The Vorn database “%1” could not be opened.").arg(path), sqliteReason(db, rc));
    sqlite3_busy_timeout(db, 5000);
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db, "PRAGMA integrity_check(10)", -1, &stmt, nullptr) != SQLITE_OK)
        return Error::make(ErrorCode::StoreDamaged, damaged, sqliteReason(db, sqlite3_errcode(db)));
    QStringList problems;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        const QString line = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
        // Lines naming the database only introduce the problems that follow.
        if (!line.startsWith(QLatin1String("***")))
            problems << line;
    }
    sqlite3_finalize(stmt);
    if (rc != SQLITE_DONE)
        return Error::make(ErrorCode::StoreDamaged, damaged, sqliteReason(db, rc));
    if (problems != QStringList{QStringLiteral("ok")})
        return Error::make(
            ErrorCode::StoreDamaged, damaged,
            tr("SQLite's integrity check found: %1").arg(sentence(problems.join(QLatin1String("; ")))));
    return {};
}

bool StoreSnapshot::flushToDisk(const QString& path, bool isDirectory)
{
#ifdef Q_OS_WIN
    // Renames are journaled by the file system itself there.
    if (isDirectory)
        return true;
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    return _commit(file.handle()) == 0;
#else
    const int fd =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | (isDirectory ? O_DIRECTORY : 0));
    if (fd < 0)
        return false;
    const bool ok = ::fsync(fd) == 0;
    ::close(fd);
    return ok;
#endif
}

Status StoreSnapshot::replaceFile(const QString& from, const QString& to)
{
    std::error_code error;
    std::filesystem::rename(std::filesystem::path(QFile::encodeName(from).toStdString()),
                            std::filesystem::path(QFile::encodeName(to).toStdString()), error);
    if (error)
        return Error::make(ErrorCode::FileWriteUnknown,
                           tr("The file “%1” could not be put in place.").arg(QFileInfo(to).fileName()),
                           QString::fromStdString(error.message()));
    return {};
}

} // namespace vorn
