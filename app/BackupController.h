#pragma once

#include "app/StoreSnapshot.h"
#include "store/Result.h"

#include <QObject>
#include <QString>

namespace vorn {

class AppDelegate;
class Settings;
class SqliteStore;
class UserInterface;

// The database as a unit: the user's own backups, restoring one, and the
// safety copy in the documents folder with its check for documents that went
// missing between two runs.
//
// Every copy is a consistent snapshot of the store as last saved (pending
// edits stay in memory and are not part of it). A restore checks the chosen
// file before anything is touched, keeps the store it replaces beside it as
// "Vorn.replaced-<date-time>.vndb", and has the context fetch everything anew
// so the windows show the restored data.
class BackupController : public QObject
{
    Q_OBJECT
public:
    // What the safety copy and its check did.
    enum class CheckResult
    {
        NoStore,        // the application runs without a store
        Skipped,        // the settings could not be read, so the count means nothing
        AlreadyDone,    // once per run
        Copied,         // counts matched; the safety copy was refreshed
        CopyFailed,     // counts matched; the copy failed (the error was presented)
        RepairDeclined, // counts differed; the user cancelled the repair
        Repaired,       // counts differed; the store was restored from the safety copy
        RepairFailed,   // counts differed; the repair found no copy or failed
    };
    enum class RestoreResult
    {
        Restored,
        Cancelled,
        NoBackup,
        Failed
    };

    explicit BackupController(AppDelegate& app, QObject* parent = nullptr);

    // "Backup Vorn Database…": the store as last saved to a file of the
    // user's choice. Answers whether a backup was written.
    bool backupVornData();
    // "Restore Vorn Database…": the warning, the file, the swap.
    RestoreResult restoreVornData();
    // Where the safety copy lives.
    void createBackupPath();
    // The safety copy and the corruption check; runs once per run.
    CheckResult createBackup();
    // The repair from the safety copy.
    RestoreResult restoreFromBackup();

    // Writes a snapshot of the open store to destination.
    Status backupTo(const QString& destination);
    // Swaps the live store for a copy of source, after checking source.
    Status replaceStore(const QString& source);
    // Where the last swap kept the store it replaced (empty if none).
    const QString& lastReplacedPath() const { return m_lastReplaced; }
    // Watches (and in tests disturbs) every copy this controller makes.
    void setCopyProgress(StoreSnapshot::Progress progress) { m_progress = std::move(progress); }

    // The texts of the repair question, for the command line.
    static QString repairQuestionText();

private:
    Settings& settings() const;
    UserInterface& ui() const;
    SqliteStore* liveStore() const;
    QString replacedPathFor(const QString& store) const;
    void installStore(const QString& path);

    AppDelegate& m_app;
    StoreSnapshot::Progress m_progress;
    QString m_lastReplaced;
    bool m_backupDone = false;
};

} // namespace vorn
