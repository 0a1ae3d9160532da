#pragma once

#include "store/ObjectModel.h"
#include "store/Result.h"

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QVariant>

#include <functional>
#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace vorn {

// The store file: one SQLite database with a table per entity whose columns
// are named after the attribute keys. Each table has an integer key "_id";
// owned entities (items) also have "_owner" and "_position", which keep a
// document's items and their order.
//
// The file is marked with an application id and a schema version. A file
// that is not SQLite, not ours, damaged, or from a newer version of the
// application is refused before anything is written to it.
class SqliteStore
{
    Q_DECLARE_TR_FUNCTIONS(SqliteStore)
public:
    static constexpr int applicationId = 0x566F726E; // "Vorn"

    struct Row
    {
        qint64 id = 0;
        qint64 ownerId = 0;
        int position = -1;
        std::vector<QVariant> values;
    };
    using RowSink = std::function<void(Row&&)>;

    static Result<std::unique_ptr<SqliteStore>> open(const QString& path, const ObjectModel& model);
    // Checks that the file at path is a readable store of this or an older
    // schema version without keeping it open.
    static Status validate(const QString& path, const ObjectModel& model);
    ~SqliteStore();

    const QString& path() const { return m_path; }
    sqlite3* handle() const { return m_db; }

    Status loadAll(const EntityDescription& entity, const RowSink& sink);
    Status loadOwned(const EntityDescription& entity, qint64 ownerId, const RowSink& sink);
    qint64 maxId(const EntityDescription& entity);
    Result<qint64> count(const EntityDescription& entity);

    Status begin();
    Status commit();
    void rollback();
    Status insert(const EntityDescription& entity, qint64 id, const std::vector<QVariant>& values,
                  qint64 ownerId, int position);
    Status update(const EntityDescription& entity, qint64 id, const std::vector<int>& changed,
                  const std::vector<QVariant>& values);
    Status updateOwner(const EntityDescription& entity, qint64 id, qint64 ownerId, int position);
    Status remove(const EntityDescription& entity, qint64 id);

private:
    SqliteStore(QString path, sqlite3* db, const ObjectModel& model);
    static Status checkHeader(const QString& path);
    Status prepareSchema(bool& created);
    // Adds the columns of attributes newer than the file.
    Status addLaterColumns();
    Status createSchema();
    Error sqliteError(const QString& what) const;
    sqlite3_stmt* statement(const QString& sql);
    Status step(sqlite3_stmt* stmt, const QString& what);
    Status loadRows(const EntityDescription& entity, sqlite3_stmt* stmt, const RowSink& sink);
    void bindValue(sqlite3_stmt* stmt, int index, AttributeType type, const QVariant& value);

    QString m_path;
    sqlite3* m_db;
    const ObjectModel& m_model;
    QHash<QString, sqlite3_stmt*> m_statements;
};

} // namespace vorn
