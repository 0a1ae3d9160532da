#include "store/SqliteStore.h"

#include "store/Keys.h"
#include "store/StoreLog.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QUrl>

#include <sqlite3.h>

#include <cmath>
#include <limits>

namespace vorn {

namespace {

QString quoted(const QString& identifier)
{
    return QLatin1Char('"') + identifier + QLatin1Char('"');
}

const char* columnType(AttributeType type)
{
    switch (type) {
    case AttributeType::String:
        return "TEXT";
    case AttributeType::Integer:
    case AttributeType::Bool:
    case AttributeType::Date:
        return "INTEGER";
    case AttributeType::Float:
        return "REAL";
    case AttributeType::Data:
        return "BLOB";
    }
    return "";
}

// Attributes added after the first files were written. Such a file is
// brought up to date when it is opened for writing (the new columns start
// empty); a file only read, such as a backup being checked, may lack them.
// Older versions of Vorn read and write these files as before: they name
// the columns they know and leave the others alone.
bool isLaterColumn(const QString& entity, const QString& column)
{
    static const QSet<QString> invoice{key::buyerCountryCode, key::buyerVatID, key::buyerReference,
                                       key::orderReference};
    return entity == Entity::Invoice && invoice.contains(column);
}

// The columns read and written; without the later ones, those a file only
// read may lack are left out.
QString columnList(const EntityDescription& entity, bool withLater = true)
{
    QStringList columns{QStringLiteral("\"_id\"")};
    if (entity.ownerRelationship())
        columns << QStringLiteral("\"_owner\"") << QStringLiteral("\"_position\"");
    for (const auto& a : entity.attributes()) {
        if (withLater || !isLaterColumn(entity.name(), a.name))
            columns << quoted(a.name);
    }
    return columns.join(QLatin1Char(','));
}

// SQLite reads a double-quoted name that matches no column as a string
// literal, so a table missing a column would answer the column's name as
// every row's value instead of failing. Quoted names must be names.
void refuseQuotedLiterals(sqlite3* db)
{
    sqlite3_db_config(db, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
}

quint32 bigEndian32(const unsigned char* p)
{
    return (quint32(p[0]) << 24) | (quint32(p[1]) << 16) | (quint32(p[2]) << 8) | quint32(p[3]);
}

} // namespace

SqliteStore::SqliteStore(QString path, sqlite3* db, const ObjectModel& model)
    : m_path(std::move(path)), m_db(db), m_model(model)
{
}

SqliteStore::~SqliteStore()
{
    for (sqlite3_stmt* stmt : std::as_const(m_statements))
        sqlite3_finalize(stmt);
    sqlite3_close(m_db);
}

Status SqliteStore::checkHeader(const QString& path)
{
    // Read the header before SQLite opens the file: a file that is not a
    // database, or one cut short, is refused without SQLite touching it.
    // (Reading it later with plain file calls would drop SQLite's locks.)
    QFile file(path);
    if (!file.exists() || file.size() == 0)
        return {};
    if (!file.open(QIODevice::ReadOnly))
        return Error::make(ErrorCode::FileReadUnknown,
                           tr("The Vorn database “%1” could not be read.").arg(path), file.errorString());
    const QByteArray header = file.read(100);
    const qint64 size = file.size();
    file.close();
    if (header.size() < 100 || !header.startsWith(QByteArrayLiteral("SQLite format 3\0")))
        return Error::make(ErrorCode::StoreNotVorn, tr("The file “%1” is not a Vorn database.").arg(path));
    const auto* h = reinterpret_cast<const unsigned char*>(header.constData());
    quint32 pageSize = (quint32(h[16]) << 8) | quint32(h[17]);
    if (pageSize == 1)
        pageSize = 65536;
    const quint32 pages = bigEndian32(h + 28);
    const bool sizeValid = pages != 0 && bigEndian32(h + 24) == bigEndian32(h + 92);
    // With a write-ahead log beside the file, the newest pages (the header
    // among them) may still be in the log: a checkpoint cut short by a full
    // disk or a crash leaves a header that counts pages the file does not
    // hold yet. SQLite completes such a file from the log, so then it decides.
    const bool logDecides = QFileInfo(path + QStringLiteral("-wal")).size() > 0;
    if (pageSize < 512 || (sizeValid && !logDecides && qint64(pages) * pageSize > size))
        return Error::make(ErrorCode::StoreDamaged,
                           tr("The Vorn database “%1” is damaged and cannot be opened.").arg(path),
                           tr("The file is shorter than its contents require; it may have been cut off while "
                              "copying."));
    return {};
}

Result<std::unique_ptr<SqliteStore>> SqliteStore::open(const QString& path, const ObjectModel& model)
{
    if (Status header = checkHeader(path); !header)
        return header.error();
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &db,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    if (rc != SQLITE_OK) {
        const QString reason = db ? QString::fromUtf8(sqlite3_errmsg(db)) : QString();
        sqlite3_close(db);
        return Error::make(ErrorCode::StoreOpenFailed,
                           tr("The Vorn database “%1” could not be opened.").arg(path), reason);
    }
    sqlite3_busy_timeout(db, 5000);
    refuseQuotedLiterals(db);
    std::unique_ptr<SqliteStore> store(new SqliteStore(path, db, model));
    bool created = false;
    if (Status s = store->prepareSchema(created); !s)
        return s.error();
    qCDebug(lcStore) << (created ? "created store" : "opened store") << path;
    return store;
}

Status SqliteStore::validate(const QString& path, const ObjectModel& model)
{
    if (!QFileInfo(path).isFile() || QFileInfo(path).size() == 0)
        return Error::make(ErrorCode::StoreNotVorn, tr("The file “%1” is not a Vorn database.").arg(path));
    if (Status header = checkHeader(path); !header)
        return header;
    sqlite3* db = nullptr;
    // A read-only connection cannot remove the shared-memory and log files it
    // makes for a database in write-ahead mode. Without a log beside it the
    // file holds everything and nobody writes it, so it is read as immutable
    // and nothing is left behind.
    const bool hasLog = QFileInfo::exists(path + QStringLiteral("-wal"));
    const QByteArray uri = QByteArrayLiteral("file:") + QUrl::toPercentEncoding(path, "/") +
                           (hasLog ? "?mode=ro" : "?mode=ro&immutable=1");
    if (sqlite3_open_v2(uri.constData(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr) != SQLITE_OK) {
        sqlite3_close(db);
        return Error::make(ErrorCode::StoreOpenFailed,
                           tr("The Vorn database “%1” could not be opened.").arg(path));
    }
    refuseQuotedLiterals(db);
    SqliteStore store(path, db, model);
    bool created = false;
    return store.prepareSchema(created);
}

Error SqliteStore::sqliteError(const QString& what) const
{
    const int code = sqlite3_errcode(m_db);
    const QString reason = QString::fromUtf8(sqlite3_errmsg(m_db));
    if (code == SQLITE_NOTADB)
        return Error::make(ErrorCode::StoreNotVorn, tr("The file “%1” is not a Vorn database.").arg(m_path),
                           reason);
    if (code == SQLITE_CORRUPT)
        return Error::make(ErrorCode::StoreDamaged,
                           tr("The Vorn database “%1” is damaged and cannot be opened.").arg(m_path), reason);
    if (code == SQLITE_FULL)
        return Error::make(
            ErrorCode::StoreWriteFailed, tr("The disk is full: the Vorn database could not be saved."),
            tr("Your changes are kept while Vorn runs and saved with the next change once there "
               "is space again; what was saved before is not lost. (%1)")
                .arg(reason));
    if (code == SQLITE_READONLY || code == SQLITE_PERM || code == SQLITE_CANTOPEN)
        return Error::make(
            ErrorCode::FileWriteNoPermission,
            tr("The Vorn database “%1” cannot be written: you don't have permission.").arg(m_path), reason);
    if (code == SQLITE_BUSY || code == SQLITE_LOCKED)
        return Error::make(ErrorCode::StoreLocked, tr("The Vorn database is in use by another program."),
                           reason);
    qCWarning(lcStore) << what << reason;
    return Error::make(ErrorCode::StoreOpenFailed, what, reason);
}

sqlite3_stmt* SqliteStore::statement(const QString& sql)
{
    if (sqlite3_stmt* cached = m_statements.value(sql)) {
        sqlite3_reset(cached);
        sqlite3_clear_bindings(cached);
        return cached;
    }
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v3(m_db, sql.toUtf8().constData(), -1, SQLITE_PREPARE_PERSISTENT, &stmt, nullptr) !=
        SQLITE_OK) {
        qCWarning(lcStore) << "cannot prepare" << sql << sqlite3_errmsg(m_db);
        return nullptr;
    }
    m_statements.insert(sql, stmt);
    return stmt;
}

Status SqliteStore::step(sqlite3_stmt* stmt, const QString& what)
{
    if (!stmt)
        return sqliteError(what);
    const int rc = sqlite3_step(stmt);
    sqlite3_reset(stmt);
    if (rc != SQLITE_DONE && rc != SQLITE_ROW)
        return sqliteError(what);
    return {};
}

Status SqliteStore::prepareSchema(bool& created)
{
    const QString damaged = tr("The Vorn database “%1” could not be opened.").arg(m_path);
    auto pragma = [&](const char* sql, qint64& out) -> bool {
        sqlite3_stmt* stmt = nullptr;
        if (sqlite3_prepare_v2(m_db, sql, -1, &stmt, nullptr) != SQLITE_OK)
            return false;
        const int rc = sqlite3_step(stmt);
        out = rc == SQLITE_ROW ? sqlite3_column_int64(stmt, 0) : 0;
        sqlite3_finalize(stmt);
        return rc == SQLITE_ROW || rc == SQLITE_DONE;
    };
    qint64 appId = 0, version = 0, tables = 0;
    if (!pragma("PRAGMA application_id", appId) || !pragma("PRAGMA user_version", version) ||
        !pragma("SELECT count(*) FROM sqlite_master", tables))
        return sqliteError(damaged);

    if (appId == 0 && version == 0 && tables == 0) {
        if (sqlite3_db_readonly(m_db, "main") == 1)
            return Error::make(ErrorCode::StoreNotVorn,
                               tr("The file “%1” is not a Vorn database.").arg(m_path));
        if (Status s = createSchema(); !s)
            return s;
        created = true;
    } else if (appId != applicationId) {
        return Error::make(ErrorCode::StoreNotVorn, tr("The file “%1” is not a Vorn database.").arg(m_path));
    } else if (version > ObjectModel::schemaVersion) {
        return Error::make(
            ErrorCode::StoreTooNew,
            tr("The Vorn database “%1” was made by a newer version of Vorn.").arg(m_path),
            tr("This version of Vorn cannot read it. Use the newer version, or restore a backup "
               "made with this version."));
    }

    const bool writable = sqlite3_db_readonly(m_db, "main") != 1;
    if (!created && writable) {
        if (Status s = addLaterColumns(); !s)
            return s;
    }

    // Every table must have every column we read and write.
    for (const auto& entity : m_model.entities()) {
        sqlite3_stmt* stmt = nullptr;
        const QByteArray sql = QStringLiteral("SELECT %1 FROM %2 LIMIT 0")
                                   .arg(columnList(*entity, writable), quoted(entity->name()))
                                   .toUtf8();
        const int rc = sqlite3_prepare_v2(m_db, sql.constData(), -1, &stmt, nullptr);
        sqlite3_finalize(stmt);
        if (rc != SQLITE_OK) {
            const Error e = sqliteError(damaged);
            if (e.code != ErrorCode::StoreOpenFailed)
                return e;
            return Error::make(ErrorCode::StoreDamaged,
                               tr("The Vorn database “%1” is damaged and cannot be opened.").arg(m_path),
                               QString::fromUtf8(sqlite3_errmsg(m_db)));
        }
    }

    if (writable) {
        // Write-ahead logging: a save is one append and one flush, and readers
        // (the command-line tool) never block the application.
        sqlite3_exec(m_db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
        sqlite3_exec(m_db, "PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
    }
    return {};
}

Status SqliteStore::addLaterColumns()
{
    QStringList statements;
    for (const auto& entity : m_model.entities()) {
        QSet<QString> present;
        sqlite3_stmt* stmt = nullptr;
        const QByteArray info = QStringLiteral("PRAGMA table_info(%1)").arg(quoted(entity->name())).toUtf8();
        if (sqlite3_prepare_v2(m_db, info.constData(), -1, &stmt, nullptr) != SQLITE_OK)
            return sqliteError(tr("The Vorn database “%1” could not be opened.").arg(m_path));
        while (sqlite3_step(stmt) == SQLITE_ROW)
            present.insert(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 1))));
        sqlite3_finalize(stmt);
        // A table that is not there at all is damage, found by the check after.
        if (present.isEmpty())
            continue;
        for (const auto& a : entity->attributes()) {
            if (!present.contains(a.name) && isLaterColumn(entity->name(), a.name))
                statements << QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3")
                                  .arg(quoted(entity->name()), quoted(a.name),
                                       QLatin1String(columnType(a.type)));
        }
    }
    if (statements.isEmpty())
        return {};
    statements.prepend(QStringLiteral("BEGIN IMMEDIATE"));
    statements << QStringLiteral("COMMIT");
    for (const QString& statement : std::as_const(statements)) {
        if (sqlite3_exec(m_db, statement.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
            const Error e =
                sqliteError(tr("The Vorn database “%1” could not be brought up to date.").arg(m_path));
            sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
            return e;
        }
    }
    qCDebug(lcStore) << "added" << statements.size() - 2 << "new columns to" << m_path;
    return {};
}

Status SqliteStore::createSchema()
{
    QStringList sql;
    sql << QStringLiteral("PRAGMA journal_mode=WAL");
    sql << QStringLiteral("BEGIN");
    for (const auto& entity : m_model.entities()) {
        QStringList columns{QStringLiteral("\"_id\" INTEGER PRIMARY KEY")};
        if (entity->ownerRelationship())
            columns << QStringLiteral("\"_owner\" INTEGER") << QStringLiteral("\"_position\" INTEGER");
        for (const auto& a : entity->attributes())
            columns << quoted(a.name) + QLatin1Char(' ') + QLatin1String(columnType(a.type));
        sql << QStringLiteral("CREATE TABLE %1 (%2)")
                   .arg(quoted(entity->name()), columns.join(QLatin1Char(',')));
        if (entity->ownerRelationship())
            sql << QStringLiteral("CREATE INDEX %1 ON %2 (\"_owner\", \"_position\")")
                       .arg(quoted(entity->name() + QStringLiteral("_owner")), quoted(entity->name()));
    }
    sql << QStringLiteral("PRAGMA application_id=%1").arg(applicationId);
    sql << QStringLiteral("PRAGMA user_version=%1").arg(ObjectModel::schemaVersion);
    sql << QStringLiteral("COMMIT");
    for (const QString& statement : sql) {
        if (sqlite3_exec(m_db, statement.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
            const Error e = sqliteError(tr("The Vorn database “%1” could not be created.").arg(m_path));
            sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
            return e;
        }
    }
    return {};
}

Status SqliteStore::loadRows(const EntityDescription& entity, sqlite3_stmt* stmt, const RowSink& sink)
{
    const QString what = tr("The Vorn database “%1” could not be read.").arg(m_path);
    if (!stmt)
        return sqliteError(what);
    const bool owned = entity.ownerRelationship() != nullptr;
    const int first = owned ? 3 : 1;
    const auto& attributes = entity.attributes();
    std::vector<QString> previousText(attributes.size());
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        Row row;
        row.id = sqlite3_column_int64(stmt, 0);
        if (owned) {
            row.ownerId = sqlite3_column_int64(stmt, 1);
            row.position = sqlite3_column_int(stmt, 2);
        }
        // Values are built in place: a document has some sixty of them.
        row.values.reserve(attributes.size());
        for (size_t i = 0; i < attributes.size(); ++i) {
            const int column = first + int(i);
            if (sqlite3_column_type(stmt, column) == SQLITE_NULL) {
                row.values.emplace_back();
                continue;
            }
            switch (attributes[i].type) {
            case AttributeType::String: {
                // Texts repeat from row to row (conditions, footers and the
                // currency are copied from the settings): equal neighbours
                // share one string.
                const QUtf8StringView text(reinterpret_cast<const char*>(sqlite3_column_text(stmt, column)),
                                           sqlite3_column_bytes(stmt, column));
                QString& previous = previousText[i];
                if (previous.isNull() || !QAnyStringView::equal(previous, text))
                    previous = text.toString();
                row.values.emplace_back(previous);
                break;
            }
            case AttributeType::Integer:
                row.values.emplace_back(qint64(sqlite3_column_int64(stmt, column)));
                break;
            case AttributeType::Float:
                row.values.emplace_back(float(sqlite3_column_double(stmt, column)));
                break;
            case AttributeType::Bool:
                row.values.emplace_back(sqlite3_column_int64(stmt, column) != 0);
                break;
            case AttributeType::Date:
                row.values.emplace_back(
                    QDateTime::fromMSecsSinceEpoch(sqlite3_column_int64(stmt, column), Qt::UTC));
                break;
            case AttributeType::Data:
                row.values.emplace_back(
                    QByteArray(static_cast<const char*>(sqlite3_column_blob(stmt, column)),
                               sqlite3_column_bytes(stmt, column)));
                break;
            }
        }
        sink(std::move(row));
    }
    sqlite3_reset(stmt);
    if (rc != SQLITE_DONE)
        return sqliteError(what);
    return {};
}

Status SqliteStore::loadAll(const EntityDescription& entity, const RowSink& sink)
{
    const QString order = entity.ownerRelationship() ? QStringLiteral("\"_owner\", \"_position\", \"_id\"")
                                                     : QStringLiteral("\"_id\"");
    return loadRows(entity,
                    statement(QStringLiteral("SELECT %1 FROM %2 ORDER BY %3")
                                  .arg(columnList(entity), quoted(entity.name()), order)),
                    sink);
}

Status SqliteStore::loadOwned(const EntityDescription& entity, qint64 ownerId, const RowSink& sink)
{
    sqlite3_stmt* stmt =
        statement(QStringLiteral("SELECT %1 FROM %2 WHERE \"_owner\" = ?1 ORDER BY \"_position\", \"_id\"")
                      .arg(columnList(entity), quoted(entity.name())));
    if (stmt)
        sqlite3_bind_int64(stmt, 1, ownerId);
    return loadRows(entity, stmt, sink);
}

qint64 SqliteStore::maxId(const EntityDescription& entity)
{
    sqlite3_stmt* stmt = statement(QStringLiteral("SELECT max(\"_id\") FROM %1").arg(quoted(entity.name())));
    if (!stmt)
        return 0;
    const qint64 id = sqlite3_step(stmt) == SQLITE_ROW ? sqlite3_column_int64(stmt, 0) : 0;
    sqlite3_reset(stmt);
    return id;
}

Result<qint64> SqliteStore::count(const EntityDescription& entity)
{
    sqlite3_stmt* stmt = statement(QStringLiteral("SELECT count(*) FROM %1").arg(quoted(entity.name())));
    if (!stmt)
        return sqliteError(tr("The Vorn database “%1” could not be read.").arg(m_path));
    const int rc = sqlite3_step(stmt);
    const qint64 n = rc == SQLITE_ROW ? sqlite3_column_int64(stmt, 0) : 0;
    sqlite3_reset(stmt);
    if (rc != SQLITE_ROW)
        return sqliteError(tr("The Vorn database “%1” could not be read.").arg(m_path));
    return n;
}

Status SqliteStore::begin()
{
    if (sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        return sqliteError(tr("The Vorn database could not be saved."));
    return {};
}

Status SqliteStore::commit()
{
    if (sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK) {
        const Error e = sqliteError(tr("The Vorn database could not be saved."));
        rollback();
        return e;
    }
    return {};
}

void SqliteStore::rollback()
{
    if (!sqlite3_get_autocommit(m_db))
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
}

void SqliteStore::bindValue(sqlite3_stmt* stmt, int index, AttributeType type, const QVariant& value)
{
    if (!value.isValid()) {
        sqlite3_bind_null(stmt, index);
        return;
    }
    switch (type) {
    case AttributeType::String: {
        const QByteArray utf8 = value.toString().toUtf8();
        // An empty string stays an empty string, never NULL.
        sqlite3_bind_text(stmt, index, utf8.isNull() ? "" : utf8.constData(), int(utf8.size()),
                          SQLITE_TRANSIENT);
        break;
    }
    case AttributeType::Integer:
        sqlite3_bind_int64(stmt, index, value.toLongLong());
        break;
    case AttributeType::Float: {
        // SQLite keeps a whole-number real as an integer, which drops the sign
        // of -0. The negative double nearest zero is not whole, and reads back
        // as the float -0.
        const float f = value.toFloat();
        sqlite3_bind_double(stmt, index,
                            f == 0.0f && std::signbit(f) ? -std::numeric_limits<double>::denorm_min()
                                                         : double(f));
        break;
    }
    case AttributeType::Bool:
        sqlite3_bind_int(stmt, index, value.toBool() ? 1 : 0);
        break;
    case AttributeType::Date:
        sqlite3_bind_int64(stmt, index, value.toDateTime().toMSecsSinceEpoch());
        break;
    case AttributeType::Data: {
        const QByteArray data = value.toByteArray();
        sqlite3_bind_blob(stmt, index, data.isNull() ? "" : data.constData(), int(data.size()),
                          SQLITE_TRANSIENT);
        break;
    }
    }
}

Status SqliteStore::insert(const EntityDescription& entity, qint64 id, const std::vector<QVariant>& values,
                           qint64 ownerId, int position)
{
    const bool owned = entity.ownerRelationship() != nullptr;
    const int count = int(entity.attributes().size()) + (owned ? 3 : 1);
    QStringList params;
    for (int i = 1; i <= count; ++i)
        params << QStringLiteral("?%1").arg(i);
    sqlite3_stmt* stmt =
        statement(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                      .arg(quoted(entity.name()), columnList(entity), params.join(QLatin1Char(','))));
    if (stmt) {
        int index = 1;
        sqlite3_bind_int64(stmt, index++, id);
        if (owned) {
            if (ownerId)
                sqlite3_bind_int64(stmt, index, ownerId);
            ++index;
            sqlite3_bind_int(stmt, index++, position);
        }
        for (size_t i = 0; i < values.size(); ++i)
            bindValue(stmt, index++, entity.attributes()[i].type, values[i]);
    }
    return step(stmt, tr("The Vorn database could not be saved."));
}

Status SqliteStore::update(const EntityDescription& entity, qint64 id, const std::vector<int>& changed,
                           const std::vector<QVariant>& values)
{
    QStringList sets;
    for (size_t i = 0; i < changed.size(); ++i)
        sets << QStringLiteral("%1 = ?%2")
                    .arg(quoted(entity.attributes()[size_t(changed[i])].name))
                    .arg(i + 2);
    sqlite3_stmt* stmt = statement(QStringLiteral("UPDATE %1 SET %2 WHERE \"_id\" = ?1")
                                       .arg(quoted(entity.name()), sets.join(QLatin1Char(','))));
    if (stmt) {
        sqlite3_bind_int64(stmt, 1, id);
        for (size_t i = 0; i < changed.size(); ++i)
            bindValue(stmt, int(i) + 2, entity.attributes()[size_t(changed[i])].type,
                      values[size_t(changed[i])]);
    }
    return step(stmt, tr("The Vorn database could not be saved."));
}

Status SqliteStore::updateOwner(const EntityDescription& entity, qint64 id, qint64 ownerId, int position)
{
    sqlite3_stmt* stmt =
        statement(QStringLiteral("UPDATE %1 SET \"_owner\" = ?2, \"_position\" = ?3 WHERE \"_id\" = ?1")
                      .arg(quoted(entity.name())));
    if (stmt) {
        sqlite3_bind_int64(stmt, 1, id);
        if (ownerId)
            sqlite3_bind_int64(stmt, 2, ownerId);
        sqlite3_bind_int(stmt, 3, position);
    }
    return step(stmt, tr("The Vorn database could not be saved."));
}

Status SqliteStore::remove(const EntityDescription& entity, qint64 id)
{
    sqlite3_stmt* stmt =
        statement(QStringLiteral("DELETE FROM %1 WHERE \"_id\" = ?1").arg(quoted(entity.name())));
    if (stmt)
        sqlite3_bind_int64(stmt, 1, id);
    return step(stmt, tr("The Vorn database could not be saved."));
}

} // namespace vorn
