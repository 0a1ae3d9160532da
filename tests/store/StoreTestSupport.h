#pragma once

#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/SqliteStore.h"
#include "tests/support/TestFiles.h"
#include "tests/support/TestValues.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <memory>

namespace vorn::test {

inline QStringList titles(const QList<ManagedObject*>& objects)
{
    QStringList result;
    for (const ManagedObject* o : objects)
        result << o->stringValue(QStringLiteral("title"));
    return result;
}

// The titles run together: items titled "A", "B", "C" read "ABC".
inline QString letters(const QList<ManagedObject*>& objects)
{
    return titles(objects).join(QString());
}

// Runs SQL on a database file through a connection of its own, as another
// program would; answers the rows joined by ',' with columns joined by '|'.
inline QString sqlOn(const QString& path, const QString& sql)
{
    sqlite3* db = nullptr;
    sqlite3_open(QFile::encodeName(path).constData(), &db);
    QStringList rows;
    const auto collect = [](void* out, int n, char** values, char**) {
        QStringList columns;
        for (int i = 0; i < n; ++i)
            columns << QString::fromUtf8(values[i]);
        static_cast<QStringList*>(out)->append(columns.join(QLatin1Char('|')));
        return 0;
    };
    char* message = nullptr;
    if (sqlite3_exec(db, sql.toUtf8().constData(), collect, &rows, &message) != SQLITE_OK)
        ADD_FAILURE() << message << " in " << qPrintable(sql);
    sqlite3_free(message);
    sqlite3_close(db);
    return rows.join(QLatin1Char(','));
}

// A scratch folder with one store file, and contexts opened on it.
class StoreFixture : public ::testing::Test
{
public:
    QString path() const { return m_dir.filePath(QStringLiteral("Vorn.vndb")); }
    QString sql(const QString& statement) const { return sqlOn(path(), statement); }

    // Closes the current context (if any) and opens the store anew.
    ObjectContext* reopen()
    {
        m_context.reset();
        auto store = SqliteStore::open(path(), ObjectModel::vorn());
        EXPECT_TRUE(store.ok()) << qPrintable(store.error().fullText());
        if (store)
            m_context = std::make_unique<ObjectContext>(std::move(store.value()), m_clock);
        return m_context.get();
    }
    ObjectContext* context() { return m_context ? m_context.get() : reopen(); }

    // A document with one item per letter, each titled by its letter.
    ManagedObject* newDocument(const QString& title, const QString& items = {})
    {
        ManagedObject* doc = context()->insertNewObject(Entity::Invoice);
        doc->setValue(QStringLiteral("title"), title);
        for (const QChar letter : items)
            doc->insertObject(QStringLiteral("items"), newItem(QString(letter)));
        return doc;
    }
    ManagedObject* newItem(const QString& title)
    {
        ManagedObject* item = context()->insertNewObject(Entity::Item);
        item->setValue(QStringLiteral("title"), title);
        return item;
    }
    ManagedObject* document(const QString& title)
    {
        const auto docs = context()->fetch(Entity::Invoice, [&title](const ManagedObject& o) {
            return o.stringValue(QStringLiteral("title")) == title;
        });
        EXPECT_EQ(docs.size(), 1) << qPrintable(title);
        return docs.value(0);
    }
    // Saves and answers the number of rows written (-1 if the save failed).
    int saveCountingRows()
    {
        sqlite3* db = context()->store()->handle();
        const int before = sqlite3_total_changes(db);
        return context()->save() ? sqlite3_total_changes(db) - before : -1;
    }

    QTemporaryDir m_dir;
    FixedClock m_clock{utc(2026, 11, 21, 9, 52, 0, 250)};
    std::unique_ptr<ObjectContext> m_context;
};

} // namespace vorn::test
