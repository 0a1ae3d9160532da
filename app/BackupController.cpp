#include "app/BackupController.h"

#include "app/AppDelegate.h"
#include "app/AppLog.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "store/SqliteStore.h"
#include "store/UserInterface.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <sqlite3.h>

namespace vorn {

namespace {

// The path with its folder resolved, whether or not the file exists.
QString resolvedPath(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? info.absolutePath() : folder) + QLatin1Char('/') + info.fileName();
}

// Whether path is the store or one of the files SQLite keeps beside it.
bool isPartOfStore(const QString& path, const QString& store)
{
    const QString target = resolvedPath(path);
    for (const char* suffix : {"", "-wal", "-shm", "-journal"})
        if (target == resolvedPath(store + QLatin1String(suffix)))
            return true;
    return false;
}

} // namespace

BackupController::BackupController(AppDelegate& app, QObject* parent) : QObject(parent), m_app(app) {}

Settings& BackupController::settings() const
{
    return m_app.settings();
}

UserInterface& BackupController::ui() const
{
    return m_app.ui();
}

SqliteStore* BackupController::liveStore() const
{
    ObjectContext* context = m_app.state().context();
    return context ? context->store() : nullptr;
}

QString BackupController::repairQuestionText()
{
    return tr(
        "It looks like your Vorn database got somehow corrupted or destroyed. Vorn can try to repair it or "
        "restore it from an internal backup. You should only proceed if you're sure that your database "
        "really "
        "is not intact, since this action will replace any possible data. Should Vorn not be able to repair "
        "or "
        "restore your database, please restore it from your own (Time Machine) backups. Do you want to "
        "proceed?");
}

void BackupController::createBackupPath()
{
    m_app.createBackupPath();
}

Status BackupController::backupTo(const QString& destination)
{
    SqliteStore* store = liveStore();
    if (!store)
        return Error::make(ErrorCode::StoreInitFailed, tr("There is no open Vorn database to back up."));
    if (isPartOfStore(destination, store->path()))
        return Error::make(ErrorCode::FileWriteNoPermission,
                           tr("A backup cannot replace the Vorn database itself."),
                           tr("Please choose another name or folder for the backup."));
    return StoreSnapshot::copy(store->handle(), destination, m_progress);
}

bool BackupController::backupVornData()
{
    const auto path = ui().runSavePanel(
        {tr("Backup Vorn Database"), {QStringLiteral("vndb")}, tr("Vorn Database"), {}, true});
    if (!path)
        return false;
    if (Status s = backupTo(*path); !s) {
        ui().presentError(s.error());
        return false;
    }
    return true;
}

BackupController::CheckResult BackupController::createBackup()
{
    if (m_backupDone)
        return CheckResult::AlreadyDone;
    ObjectContext* context = m_app.state().context();
    if (!context)
        return CheckResult::NoStore;
    m_backupDone = true;
    // Without readable settings the last count is unknown; asking to repair
    // a store that is fine would be worse than skipping one copy.
    if (settings().isReadOnly())
        return CheckResult::Skipped;

    auto documents = context->fetchObjects(Entity::Invoice);
    const qint64 count = documents ? qint64(documents.value().size()) : -1;
    const qint64 lastCount = settings().intValue(QStringLiteral("fetchedObjectsCount"));
    if (count == lastCount) {
        if (m_app.state().backupPath.isEmpty())
            createBackupPath();
        const QString path = m_app.state().backupPath;
        QDir().mkpath(QFileInfo(path).absolutePath());
        if (Status s = backupTo(path); !s) {
            ui().presentError(s.error());
            return CheckResult::CopyFailed;
        }
        return CheckResult::Copied;
    }

    qCDebug(lcApp) << "document count" << count << "differs from" << lastCount << "at the last quit";
    const int answer = ui().runAlert({tr("Warning!"),
                                      repairQuestionText(),
                                      {tr("Proceed"), tr("Cancel")},
                                      UserInterface::AlertStyle::Critical,
                                      false});
    if (answer != 0)
        return CheckResult::RepairDeclined;
    return restoreFromBackup() == RestoreResult::Restored ? CheckResult::Repaired : CheckResult::RepairFailed;
}

BackupController::RestoreResult BackupController::restoreFromBackup()
{
    if (m_app.state().backupPath.isEmpty())
        createBackupPath();
    const QString path = m_app.state().backupPath;
    if (!QFileInfo(path).isFile()) {
        ui().runAlert(
            {tr("Error!"),
             tr("No valid backup file available. Please restore your Vorn database from your own (Time "
                "Machine) backups."),
             {tr("OK")},
             UserInterface::AlertStyle::Warning,
             false});
        return RestoreResult::NoBackup;
    }
    if (Status s = replaceStore(path); !s) {
        ui().presentError(s.error());
        return RestoreResult::Failed;
    }
    return RestoreResult::Restored;
}

BackupController::RestoreResult BackupController::restoreVornData()
{
    const int answer =
        ui().runAlert({tr("Warning!"),
                       tr("You are about to restore your complete Vorn database from a backup. This "
                          "will irretrievably replace any existing data. Do you really want to do "
                          "that?"),
                       {tr("Restore…"), tr("Cancel")},
                       UserInterface::AlertStyle::Warning,
                       false});
    if (answer != 0)
        return RestoreResult::Cancelled;
    const auto path =
        ui().runOpenPanel({tr("Restore Vorn Database"), {QStringLiteral("vndb")}, {}, {}, false});
    if (!path)
        return RestoreResult::Cancelled;
    if (Status s = replaceStore(*path); !s) {
        ui().presentError(s.error());
        return RestoreResult::Failed;
    }
    return RestoreResult::Restored;
}

QString BackupController::replacedPathFor(const QString& store) const
{
    const QFileInfo info(store);
    const QString stem =
        info.absolutePath() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral(".replaced-") +
        m_app.state().clock().now().toLocalTime().toString(QStringLiteral("yyyy-MM-dd-HHmmss"));
    QString candidate = stem + QStringLiteral(".vndb");
    for (int n = 2; QFileInfo::exists(candidate); ++n)
        candidate = stem + QStringLiteral("-%1.vndb").arg(n);
    return candidate;
}

void BackupController::installStore(const QString& path)
{
    if (!QFileInfo::exists(path))
        return;
    auto store = SqliteStore::open(path, *m_app.managedObjectModel());
    if (!store) {
        qCWarning(lcApp).noquote() << "the store could not be opened again:" << store.error().fullText();
        ui().presentError(store.error());
        return;
    }
    m_app.adoptStore(std::move(store.value()));
}

Status BackupController::replaceStore(const QString& source)
{
    const QString unchanged = tr("Nothing was changed: your Vorn database is as it was.");
    auto refuse = [&unchanged](Error e) -> Status {
        e.reason = e.reason.isEmpty() ? unchanged : e.reason + QLatin1Char(' ') + unchanged;
        return e;
    };
    const QString live = m_app.state().storeURL;
    if (live.isEmpty())
        return refuse(Error::make(ErrorCode::StoreInitFailed,
                                  tr("There is no place to restore the Vorn database to.")));
    if (isPartOfStore(source, live))
        return refuse(
            Error::make(ErrorCode::StoreNotVorn,
                        tr("The file “%1” is the Vorn database itself.").arg(QFileInfo(source).fileName())));
    if (!QFileInfo::exists(source))
        return refuse(
            Error::make(ErrorCode::FileNotFound, tr("The file “%1” could not be found.").arg(source)));
    const ObjectModel& model = *m_app.managedObjectModel();
    if (Status s = SqliteStore::validate(source, model); !s)
        return refuse(s.error());
    if (Status s = StoreSnapshot::checkIntegrity(source); !s)
        return refuse(s.error());

    // The copy that becomes the store is made and checked beside it while
    // the old store is still in use; only a good copy gets that far.
    const QString incoming = live + QStringLiteral(".incoming");
    if (Status s = StoreSnapshot::copyFile(source, incoming, m_progress); !s)
        return refuse(s.error());
    auto dropIncoming = qScopeGuard([&incoming] { QFile::remove(incoming); });
    if (!QFileInfo::exists(source))
        return refuse(Error::make(ErrorCode::FileNotFound,
                                  tr("The file “%1” disappeared while it was being read.").arg(source)));
    if (Status s = SqliteStore::validate(incoming, model); !s)
        return refuse(s.error());

    // Close the old store. A checkpoint first folds its log into the file,
    // so what is kept beside the new store is one complete file.
    ObjectContext* context = m_app.state().context();
    const bool hadStore = context && context->store();
    if (hadStore) {
        std::unique_ptr<SqliteStore> old = context->takeStore();
        sqlite3_exec(old->handle(), "PRAGMA wal_checkpoint(TRUNCATE)", nullptr, nullptr, nullptr);
    }

    // Keep the old store (and any log another program still holds open) under
    // the replaced name; a stale log left at the store's path would otherwise
    // be applied to the restored file.
    const QString replaced = replacedPathFor(live);
    QList<std::pair<QString, QString>> moved;
    auto undoMoves = [&moved] {
        for (auto it = moved.crbegin(); it != moved.crend(); ++it)
            if (Status back = StoreSnapshot::replaceFile(it->second, it->first); !back)
                qCWarning(lcApp).noquote() << back.error().fullText();
    };
    auto giveUp = [&](const Error& e) {
        undoMoves();
        if (hadStore)
            installStore(live);
        return refuse(e);
    };
    QFile::remove(live + QStringLiteral("-shm"));
    for (const char* suffix : {"", "-wal", "-journal"}) {
        const QString from = live + QLatin1String(suffix);
        if (!QFileInfo::exists(from))
            continue;
        const QString to = replaced + QLatin1String(suffix);
        if (Status s = StoreSnapshot::replaceFile(from, to); !s)
            return giveUp(s.error());
        moved.append({from, to});
    }
    if (Status s = StoreSnapshot::replaceFile(incoming, live); !s)
        return giveUp(s.error());
    dropIncoming.dismiss();
    StoreSnapshot::flushToDisk(QFileInfo(live).absolutePath(), true);

    auto store = SqliteStore::open(live, model);
    if (!store) {
        for (const char* suffix : {"", "-wal", "-shm", "-journal"})
            QFile::remove(live + QLatin1String(suffix));
        return giveUp(store.error());
    }
    m_app.adoptStore(std::move(store.value()));
    m_lastReplaced = moved.isEmpty() ? QString() : replaced;
    qCDebug(lcApp).noquote() << "restored the store from" << source << "keeping the old one as"
                             << m_lastReplaced;
    return {};
}

} // namespace vorn
