#pragma once

#include "app/AppDelegate.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimeZone>
#include <QUrl>

#include <gtest/gtest.h>

#include <sqlite3.h>

#ifdef Q_OS_LINUX
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

#include <memory>
#include <ostream>

// Readable test failures.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace vorn::test {

inline QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline void writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(bytes);
}

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
    AppHarness() : clock(QDateTime(QDate(2026, 11, 21), QTime(9, 52), QTimeZone::utc())) {}

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
    FixedClock clock;
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

// Files in a folder, hidden ones included.
inline QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

// A folder nobody may write to for the lifetime of the object. Root writes
// anywhere, so for root the thread also gives up overriding file permissions
// until the folder is writable again.
class ReadOnlyFolder
{
public:
    explicit ReadOnlyFolder(QString path) : m_path(std::move(path))
    {
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                          QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
#ifdef Q_OS_LINUX
        if (geteuid() == 0)
            m_dropped = setOverride(false);
#endif
    }
    ~ReadOnlyFolder()
    {
#ifdef Q_OS_LINUX
        if (m_dropped)
            setOverride(true);
#endif
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                          QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                                          QFile::ExeOther);
    }
    // Whether writing there really fails (checked by trying).
    bool holds() const
    {
        QFile probe(m_path + QStringLiteral("/.probe"));
        if (probe.open(QIODevice::WriteOnly)) {
            probe.remove();
            return false;
        }
        return true;
    }

private:
#ifdef Q_OS_LINUX
    static bool setOverride(bool enabled)
    {
        __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct data[2] = {};
        if (syscall(SYS_capget, &header, data) != 0)
            return false;
        const __u32 bits = (1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH);
        data[0].effective =
            enabled ? (data[0].effective | (data[0].permitted & bits)) : (data[0].effective & ~bits);
        return syscall(SYS_capset, &header, data) == 0;
    }
    bool m_dropped = false;
#endif
    QString m_path;
};

} // namespace vorn::test
