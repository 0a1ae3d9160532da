#pragma once

#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/SqliteStore.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <memory>

namespace vorn::test {

inline QDateTime utc(int y, int mo, int d, int h = 12, int mi = 0, int s = 0, int ms = 0)
{
    return QDateTime(QDate(y, mo, d), QTime(h, mi, s, ms), QTimeZone::utc());
}

inline QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline QStringList titles(const QList<ManagedObject*>& objects)
{
    QStringList result;
    for (const ManagedObject* o : objects)
        result << o->stringValue(QStringLiteral("title"));
    return result;
}

// A scratch folder with one store file, and contexts opened on it.
class StoreFixture : public ::testing::Test
{
protected:
    QString path() const { return m_dir.filePath(QStringLiteral("Vorn.vndb")); }

    std::unique_ptr<ObjectContext> open()
    {
        auto store = SqliteStore::open(path(), ObjectModel::vorn());
        EXPECT_TRUE(store.ok()) << qPrintable(store.error().fullText());
        if (!store)
            return nullptr;
        return std::make_unique<ObjectContext>(std::move(store.value()), m_clock);
    }
    // Closes the current context (if any) and opens the store anew.
    ObjectContext* reopen()
    {
        m_context.reset();
        m_context = open();
        return m_context.get();
    }
    ObjectContext* context()
    {
        if (!m_context)
            m_context = open();
        return m_context.get();
    }

    ManagedObject* newDocument(const QString& title, const QStringList& itemTitles = {})
    {
        ManagedObject* doc = context()->insertNewObject(Entity::Invoice);
        doc->setValue(QStringLiteral("title"), title);
        for (const QString& t : itemTitles) {
            ManagedObject* item = context()->insertNewObject(Entity::Item);
            item->setValue(QStringLiteral("title"), t);
            doc->insertObject(QStringLiteral("items"), item);
        }
        return doc;
    }
    ManagedObject* document(const QString& title)
    {
        const auto docs = context()->fetch(Entity::Invoice, [&title](const ManagedObject& o) {
            return o.stringValue(QStringLiteral("title")) == title;
        });
        EXPECT_EQ(docs.size(), 1) << qPrintable(title);
        return docs.value(0);
    }

    // A direct query on the file through a connection of its own.
    QString queryText(const QString& sql) const
    {
        sqlite3* db = nullptr;
        sqlite3_open_v2(QFile::encodeName(path()).constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_stmt* stmt = nullptr;
        QString result;
        if (sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &stmt, nullptr) == SQLITE_OK) {
            QStringList rows;
            while (sqlite3_step(stmt) == SQLITE_ROW) {
                QStringList columns;
                for (int i = 0; i < sqlite3_column_count(stmt); ++i)
                    columns << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, i)));
                rows << columns.join(QLatin1Char('|'));
            }
            result = rows.join(QLatin1Char(','));
        } else {
            ADD_FAILURE() << sqlite3_errmsg(db) << " in " << qPrintable(sql);
        }
        sqlite3_finalize(stmt);
        sqlite3_close(db);
        return result;
    }
    void execute(const QString& sql) const
    {
        sqlite3* db = nullptr;
        sqlite3_open_v2(QFile::encodeName(path()).constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
        char* message = nullptr;
        if (sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, &message) != SQLITE_OK)
            ADD_FAILURE() << message << " in " << qPrintable(sql);
        sqlite3_free(message);
        sqlite3_close(db);
    }

    QTemporaryDir m_dir;
    FixedClock m_clock{utc(2026, 11, 21, 9, 52, 0, 250)};
    std::unique_ptr<ObjectContext> m_context;
};

} // namespace vorn::test
