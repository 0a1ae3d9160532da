#pragma once

#include "app/AppDelegate.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"
#include "tests/support/TestFiles.h"
#include "tests/support/TestValues.h"

#include <QUrl>

#include <sqlite3.h>

#include <memory>

namespace vorn::test {

// "A1 A2" as the list {"A1", "A2"}.
inline QStringList words(const char* text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// An alert or a panel as the user saw it: title, text and buttons.
inline QStringList shown(const ScriptedUserInterface::Call& call)
{
    return {call.title, call.text, call.buttons.join(QLatin1Char('|'))};
}

// Runs of the application over one scratch home: launch (as the desktop
// does), work, and end with a clean quit or a crash (no quit protocol).
class AppHarness
{
public:
    AppDelegate& launch(bool launchChecks = true)
    {
        app.reset();
        settings = std::make_unique<Settings>(env.locations().settingsFile());
        static_cast<void>(settings->load());
        app = std::make_unique<AppDelegate>(*settings, ui, clock, env.locations());
        app->setLaunchChecksEnabled(launchChecks);
        if (templateLoader)
            app->setTemplateLoader(templateLoader);
        app->awakeFromNib();
        app->applicationDidFinishLaunching();
        return *app;
    }
    void quit()
    {
        app->applicationShouldTerminate();
        crash();
    }
    // The process ends without the quit protocol (settings already written stay).
    void crash()
    {
        app.reset();
        settings.reset();
    }

    ObjectContext* context() const { return app->state().context(); }
    QString storePath() const { return env.locations().storeFile(); }
    QString backupPath() const
    {
        return env.locations().documentsDirectory + QStringLiteral("/Vorn_Backup.vndb");
    }
    // A setting as the file holds it.
    QVariant storedSetting(const QString& key) const
    {
        Settings stored(env.locations().settingsFile());
        return stored.load() ? stored.dictionaryRepresentation().value(key) : QVariant();
    }

    // A document with two items, added to the list (not saved).
    ManagedObject* addDocument(const QString& number)
    {
        ManagedObject* doc = context()->insertNewObject(Entity::Invoice);
        doc->setValue(QStringLiteral("number"), number);
        for (int j = 0; j < 2; ++j) {
            ManagedObject* item = context()->insertNewObject(Entity::Item);
            item->setValue(QStringLiteral("title"), number + QLatin1Char('/') + QString::number(j));
            doc->insertObject(QStringLiteral("items"), item);
        }
        app->state().invoicesController().addObject(doc);
        return doc;
    }
    // Documents "<prefix>1".."<prefix>n".
    void addDocuments(int n, const QString& prefix, bool save = true)
    {
        for (int i = 1; i <= n; ++i)
            addDocument(prefix + QString::number(i));
        if (save) {
            EXPECT_TRUE(context()->save().ok());
        }
    }
    ManagedObject* documentNumbered(const QString& number) const
    {
        for (ManagedObject* doc : app->state().invoicesController().arrangedObjects())
            if (doc->stringValue(QStringLiteral("number")) == number)
                return doc;
        return nullptr;
    }

    // The document numbers the window's list shows, sorted.
    QStringList listedNumbers() const
    {
        QStringList numbers;
        for (ManagedObject* doc : app->state().invoicesController().arrangedObjects())
            numbers << doc->stringValue(QStringLiteral("number"));
        numbers.sort();
        return numbers;
    }

    TestEnvironment env;
    FixedClock clock{utc(2026, 11, 21, 9, 52)};
    ScriptedUserInterface ui;
    std::unique_ptr<Settings> settings;
    std::unique_ptr<AppDelegate> app;
    std::function<void()> templateLoader;
};

// The first column a query answers on a store file, read through SQLite
// without changing it: read-only unless the file has a log to fold in (a
// read-only reader cannot set up the log's index).
inline QStringList queryColumn(const QString& path, const char* sql, bool writable = false)
{
    const QByteArray uri =
        "file:" + QUrl::toPercentEncoding(path, "/") + (writable ? "?mode=rw" : "?mode=ro");
    const int flags = (writable ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY) | SQLITE_OPEN_URI;
    sqlite3* db = nullptr;
    sqlite3_stmt* stmt = nullptr;
    QStringList values;
    if (sqlite3_open_v2(uri.constData(), &db, flags, nullptr) != SQLITE_OK ||
        sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr) != SQLITE_OK)
        values << QStringLiteral("<unreadable>");
    while (stmt && sqlite3_step(stmt) == SQLITE_ROW)
        values << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
    sqlite3_finalize(stmt);
    sqlite3_close(db);
    return values;
}

inline QStringList numbersIn(const QString& path, bool writable = false)
{
    return queryColumn(path, "SELECT number FROM Invoice ORDER BY number", writable);
}

inline QStringList sequence(const QString& prefix, int n)
{
    QStringList list;
    for (int i = 1; i <= n; ++i)
        list << prefix + QString::number(i);
    list.sort();
    return list;
}

// Runs statements on a database file as another program would.
inline bool execOn(const QString& path, const char* sql, bool create = false)
{
    sqlite3* db = nullptr;
    const int flags = SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0);
    bool ok = sqlite3_open_v2(QFile::encodeName(path).constData(), &db, flags, nullptr) == SQLITE_OK &&
              sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_close(db);
    return ok;
}

} // namespace vorn::test
