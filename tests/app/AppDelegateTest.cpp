#include "app/AppDelegate.h"
#include "store/Clock.h"
#include "store/Settings.h"
#include "tests/support/ScriptedUserInterface.h"
#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <sqlite3.h>

namespace vorn::test {
namespace {

QByteArray fileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

void executeOn(const QString& path, const char* sql)
{
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READWRITE, nullptr),
              SQLITE_OK);
    char* message = nullptr;
    EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, &message), SQLITE_OK) << (message ? message : "");
    sqlite3_free(message);
    sqlite3_close(db);
}

// One launch of the application core in a scratch home, as the window
// system would drive it.
class AppDelegateTest : public ::testing::Test
{
protected:
    void launch()
    {
        m_app.reset();
        m_settings = std::make_unique<Settings>(m_env.locations().settingsFile());
        m_settingsLoad = m_settings->load();
        m_app = std::make_unique<AppDelegate>(*m_settings, m_ui, m_clock, m_env.locations());
        m_app->setTemplateLoader([this] { ++m_templateLoads; });
        m_app->awakeFromNib();
        m_app->applicationDidFinishLaunching();
    }
    // A setting as it is on disk.
    QVariant storedSetting(const QString& key) const
    {
        Settings s(m_env.locations().settingsFile());
        if (!s.load())
            return {};
        return s.dictionaryRepresentation().value(key);
    }
    ManagedObject* addDocument(int kind, int status = 0)
    {
        ManagedObject* doc = m_app->managedObjectContext()->insertNewObject(Entity::Invoice);
        doc->setValue(QStringLiteral("kind"), kind);
        doc->setValue(QStringLiteral("status"), status);
        doc->setValue(QStringLiteral("date"), m_clock.now());
        m_app->state().invoicesController().addObject(doc);
        return doc;
    }

    TestEnvironment m_env;
    FixedClock m_clock{QDateTime(QDate(2026, 11, 21), QTime(9, 52), QTimeZone::utc())};
    ScriptedUserInterface m_ui;
    std::unique_ptr<Settings> m_settings;
    Status m_settingsLoad;
    std::unique_ptr<AppDelegate> m_app;
    int m_templateLoads = 0;
};

TEST_F(AppDelegateTest, FirstLaunchCreatesTheStoreAndSeedsOnce)
{
    const FileLocations l = m_env.locations();
    ASSERT_FALSE(QFileInfo::exists(l.filesDirectory));
    launch();
    EXPECT_TRUE(m_ui.errors().isEmpty()) << qPrintable(m_ui.errors().value(0).fullText());
    EXPECT_TRUE(QFileInfo(l.filesDirectory).isDir());
    EXPECT_TRUE(QFileInfo(l.storeFile()).isFile());
    EXPECT_EQ(m_app->state().storeURL, l.storeFile());
    EXPECT_EQ(QFileInfo(l.filesDirectory).fileName(), QStringLiteral("com.tandrelo.Orvandel"));
    ASSERT_NE(m_app->managedObjectContext(), nullptr);
    EXPECT_EQ(m_templateLoads, 1);
    EXPECT_EQ(m_ui.calls(QStringLiteral("center")).size(), 1);
    EXPECT_EQ(m_ui.calls(QStringLiteral("preferences")).size(), 1);
    EXPECT_TRUE(m_app->state().isReminderButtonHidden);
    EXPECT_EQ(m_app->state().pdfPath, l.cachesDirectory + QStringLiteral("/Invoice.pdf"));
    EXPECT_TRUE(m_app->state().pdfPath.contains(QLatin1String("/com.tandrelo.Orvandel/")));
    EXPECT_NE(QFileInfo(m_app->state().pdfPath).absolutePath(), l.filesDirectory);
    EXPECT_EQ(m_app->state().backupPath, l.documentsDirectory + QStringLiteral("/Vorn_Backup.vndb"));

    // The English list is written as real settings, on disk.
    EXPECT_EQ(storedSetting(QStringLiteral("locInvoice")), QVariant(QStringLiteral("Invoice")));
    EXPECT_EQ(storedSetting(QStringLiteral("tax1Title")), QVariant(QStringLiteral("Sales Tax")));
    EXPECT_EQ(storedSetting(QStringLiteral("firstStartEverDone")), QVariant(true));
    EXPECT_EQ(storedSetting(QStringLiteral("firstCenter")), QVariant(true));
    const auto english = AppDelegate::defaultList(QStringLiteral("defaultPrefsEnglish"));
    ASSERT_TRUE(english.ok());
    for (auto it = english.value().cbegin(); it != english.value().cend(); ++it)
        EXPECT_TRUE(m_settings->hasValue(it.key())) << qPrintable(it.key());

    // The second launch seeds nothing and keeps what the user changed.
    m_settings->setValue(QStringLiteral("locInvoice"), QStringLiteral("Bill"));
    m_settings->removeValue(QStringLiteral("tax1Title"));
    ASSERT_TRUE(m_settings->synchronize());
    m_ui.clear();
    launch();
    EXPECT_EQ(m_templateLoads, 1);
    EXPECT_TRUE(m_ui.calls(QStringLiteral("center")).isEmpty());
    EXPECT_EQ(m_ui.calls(QStringLiteral("preferences")).size(), 1);
    EXPECT_EQ(m_settings->stringValue(QStringLiteral("locInvoice")), QStringLiteral("Bill"));
    EXPECT_FALSE(m_settings->hasValue(QStringLiteral("tax1Title")));
    EXPECT_TRUE(m_ui.errors().isEmpty());
}

TEST_F(AppDelegateTest, StoreStackIsBuiltOnce)
{
    launch();
    ObjectContext* context = m_app->managedObjectContext();
    EXPECT_EQ(m_app->managedObjectContext(), context);
    EXPECT_EQ(m_app->persistentStoreCoordinator(), context->store());
    EXPECT_EQ(m_app->managedObjectModel(), &ObjectModel::vorn());
    EXPECT_EQ(m_app->state().context(), context);
}

TEST_F(AppDelegateTest, AFileWhereTheFolderShouldBe)
{
    const FileLocations l = m_env.locations();
    writeFile(l.filesDirectory, "I am a file, not a folder.\n");
    launch();
    const QList<Error> errors = m_ui.errors();
    ASSERT_GE(errors.size(), 2);
    EXPECT_EQ(errors[0].domain, QStringLiteral("YOUR_ERROR_DOMAIN"));
    EXPECT_EQ(errors[0].code, 101);
    EXPECT_EQ(errors[0].message,
              QStringLiteral("Expected a folder to store application data, found a file (%1).")
                  .arg(l.filesDirectory));
    EXPECT_EQ(errors[1].domain, QStringLiteral("YOUR_ERROR_DOMAIN"));
    EXPECT_EQ(errors[1].code, 9999);
    EXPECT_EQ(errors[1].message, QStringLiteral("Failed to initialize the store"));
    EXPECT_EQ(errors[1].reason, QStringLiteral("There was an error building up the data file."));
    EXPECT_EQ(m_app->managedObjectContext(), nullptr);
    EXPECT_EQ(m_app->state().context(), nullptr);
    EXPECT_EQ(m_ui.errorCodes().count(9999), 1) << "the stack is not rebuilt on later use";

    // The application stays up without a store.
    EXPECT_EQ(m_app->state().currentInvoice(), nullptr);
    EXPECT_FALSE(m_app->state().isCurrentInvoiceSent());
    m_app->saveAction();
    m_app->fadeViewIn();
    EXPECT_EQ(m_app->applicationShouldTerminate(), AppDelegate::TerminateReply::Now);
    EXPECT_EQ(storedSetting(QStringLiteral("isTerminatedFine")), QVariant(true));
    EXPECT_EQ(storedSetting(QStringLiteral("fetchedObjectsCount")), QVariant(qint64(0)));
    EXPECT_EQ(fileBytes(l.filesDirectory), QByteArray("I am a file, not a folder.\n"));
}

struct BadStoreCase
{
    const char* name;
    void (*make)(const QString& path);
    int code;
};

const BadStoreCase badStoreCases[] = {
    {"NotSqlite",
     [](const QString& path) { writeFile(path, QByteArray("%PDF-1.4 not a database\n").repeated(50)); },
     ErrorCode::StoreNotVorn},
    {"Truncated",
     [](const QString& path) {
         QDir().mkpath(QFileInfo(path).absolutePath());
         {
             FixedClock clock(QDateTime::currentDateTimeUtc());
             auto store = SqliteStore::open(path, ObjectModel::vorn());
             ASSERT_TRUE(store.ok());
             ObjectContext ctx(std::move(store.value()), clock);
             for (int i = 0; i < 300; ++i)
                 ctx.insertNewObject(Entity::Invoice)
                     ->setValue(QStringLiteral("notes"), QString(200, QLatin1Char('x')));
             ASSERT_TRUE(ctx.save());
         }
         const QByteArray bytes = fileBytes(path);
         writeFile(path, bytes.left(bytes.size() / 2));
     },
     ErrorCode::StoreDamaged},
};

class BadStoreLaunchTest : public AppDelegateTest, public ::testing::WithParamInterface<BadStoreCase>
{
};

TEST_P(BadStoreLaunchTest, ErrorThenStoreFailureAndTheFileIsKept)
{
    const QString path = m_env.locations().storeFile();
    GetParam().make(path);
    if (HasFatalFailure())
        return;
    const QByteArray before = fileBytes(path);
    launch();
    ASSERT_EQ(m_ui.errorCodes().mid(0, 2), (QList<int>{GetParam().code, 9999}));
    EXPECT_TRUE(m_ui.errors()[0].message.contains(path)) << qPrintable(m_ui.errors()[0].message);
    EXPECT_EQ(m_app->managedObjectContext(), nullptr);
    m_app->saveAction();
    EXPECT_EQ(m_app->applicationShouldTerminate(), AppDelegate::TerminateReply::Now);
    m_app.reset();
    EXPECT_EQ(fileBytes(path), before);
    EXPECT_FALSE(QFileInfo::exists(path + QStringLiteral("-wal")));
}

INSTANTIATE_TEST_SUITE_P(Files, BadStoreLaunchTest, ::testing::ValuesIn(badStoreCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---------------------------------------------------------------- quit

enum class Setup
{
    NoStore,
    CommitFails,
    NoChanges,
    Changes,
    SaveFails
};

struct QuitCase
{
    const char* name;
    Setup setup;
    int errorAnswer; // -1: none scripted
    int alertAnswer; // -1: none scripted
    AppDelegate::TerminateReply reply;
    bool terminatedFine;
    bool alertShown;
    qint64 count;
};

const QuitCase quitCases[] = {
    {"NoContext", Setup::NoStore, -1, -1, AppDelegate::TerminateReply::Now, true, false, 0},
    {"CommitFails", Setup::CommitFails, -1, -1, AppDelegate::TerminateReply::Cancel, false, false, 4},
    {"NoChanges", Setup::NoChanges, -1, -1, AppDelegate::TerminateReply::Now, true, false, 3},
    {"SaveSucceeds", Setup::Changes, -1, -1, AppDelegate::TerminateReply::Now, true, false, 4},
    {"SaveFailsRecovered", Setup::SaveFails, 1, -1, AppDelegate::TerminateReply::Cancel, false, false, 4},
    {"SaveFailsQuitAnyway", Setup::SaveFails, 0, 0, AppDelegate::TerminateReply::Now, true, true, 4},
    {"SaveFailsCancel", Setup::SaveFails, 0, 1, AppDelegate::TerminateReply::Now, true, true, 4},
};

class QuitTest : public AppDelegateTest, public ::testing::WithParamInterface<QuitCase>
{
};

TEST_P(QuitTest, QuitProtocol)
{
    const QuitCase& c = GetParam();
    const QString storeFile = m_env.locations().storeFile();
    if (c.setup == Setup::NoStore)
        writeFile(m_env.locations().filesDirectory, "file");
    launch();
    QObject editor;
    if (c.setup != Setup::NoStore) {
        ASSERT_NE(m_app->managedObjectContext(), nullptr);
        addDocument(1);
        addDocument(0);
        addDocument(1, 3);
        m_app->saveAction();
        ASSERT_FALSE(m_app->managedObjectContext()->hasChanges());
        if (c.setup != Setup::NoChanges)
            addDocument(1)->setValue(QStringLiteral("title"), QStringLiteral("pending"));
        if (c.setup == Setup::CommitFails)
            m_app->managedObjectContext()->registerEditor(&editor, [] { return false; });
        if (c.setup == Setup::SaveFails)
            executeOn(storeFile,
                      "CREATE TRIGGER refuse BEFORE INSERT ON Invoice BEGIN SELECT RAISE(ABORT, 'disk "
                      "says no'); END");
    }
    // The opposite of what must be written, so that writing it shows.
    m_settings->setValue(QStringLiteral("isTerminatedFine"), !c.terminatedFine);
    m_settings->setValue(QStringLiteral("fetchedObjectsCount"), qint64(-1));
    ASSERT_TRUE(m_settings->synchronize());
    if (c.errorAnswer >= 0)
        m_ui.answerErrorRecovered(c.errorAnswer == 1);
    if (c.alertAnswer >= 0)
        m_ui.answerAlert(c.alertAnswer);
    m_ui.clear();

    EXPECT_EQ(m_app->applicationShouldTerminate(), c.reply);
    EXPECT_EQ(storedSetting(QStringLiteral("isTerminatedFine")), QVariant(c.terminatedFine));
    EXPECT_EQ(storedSetting(QStringLiteral("fetchedObjectsCount")), QVariant(c.count));
    const auto alerts = m_ui.calls(QStringLiteral("alert"));
    if (c.alertShown) {
        ASSERT_EQ(alerts.size(), 1);
        EXPECT_EQ(alerts[0].title, QStringLiteral("Could not save changes while quitting. Quit anyway?"));
        EXPECT_EQ(alerts[0].text,
                  QStringLiteral(
                      "Quitting now will lose any changes you have made since the last successful save"));
        EXPECT_EQ(alerts[0].buttons, (QStringList{"Quit anyway", "Cancel"}));
    } else {
        EXPECT_TRUE(alerts.isEmpty());
    }
    EXPECT_EQ(m_ui.errors().size(), c.setup == Setup::SaveFails ? 1 : 0);
    if (c.setup == Setup::Changes) {
        m_app.reset();
        launch();
        EXPECT_EQ(m_app->managedObjectContext()->fetch(Entity::Invoice).size(), 4);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, QuitTest, ::testing::ValuesIn(quitCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(AppDelegateTest, SaveActionPresentsAFailure)
{
    launch();
    addDocument(1);
    executeOn(
        m_env.locations().storeFile(),
        "CREATE TRIGGER refuse BEFORE INSERT ON Invoice BEGIN SELECT RAISE(ABORT, 'disk says no'); END");
    QObject editor;
    m_app->managedObjectContext()->registerEditor(&editor, [] { return false; });
    m_app->saveAction();
    ASSERT_EQ(m_ui.errors().size(), 1);
    EXPECT_TRUE(m_ui.errors()[0].fullText().contains(QLatin1String("disk says no")));
    EXPECT_TRUE(m_app->managedObjectContext()->hasChanges());
}

// ---------------------------------------------------------------- state

TEST_F(AppDelegateTest, OpeningAFileFromOutsideOnlyExplains)
{
    launch();
    m_ui.clear();
    EXPECT_TRUE(m_app->applicationOpenFile(m_env.home() + QStringLiteral("/Invoice.vorn")));
    const auto alerts = m_ui.calls(QStringLiteral("alert"));
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts[0].title, QStringLiteral("Vorn, Vorn Documents, and the Vorn Database"));
    EXPECT_EQ(alerts[0].text,
              QStringLiteral(
                  "In order to avoid duplicate entries, hiccups, and to keep the database intact - please "
                  "use the 'File Menu' to open documents and to restore the Vorn database."));
    EXPECT_EQ(alerts[0].buttons, QStringList{"OK"});
    EXPECT_TRUE(m_app->managedObjectContext()->fetch(Entity::Invoice).isEmpty());
    EXPECT_TRUE(m_app->applicationShouldHandleReopen());
}

TEST_F(AppDelegateTest, CurrentInvoiceFollowsTheSelection)
{
    launch();
    AppState& state = m_app->state();
    EXPECT_EQ(state.currentInvoice(), nullptr);
    EXPECT_FALSE(state.isCurrentInvoiceSent());
    struct
    {
        int status;
        bool sent;
    } const cases[] = {{0, false}, {1, true}, {2, true}, {3, true}, {4, true}};
    for (const auto& c : cases) {
        ManagedObject* doc = addDocument(c.status % 2, c.status);
        state.invoicesController().setSelectedObjects({doc});
        EXPECT_EQ(state.currentInvoice(), doc);
        EXPECT_EQ(state.isCurrentInvoiceSent(), c.sent) << "status " << c.status;
    }
    state.invoicesController().setSelectionIndexes({});
    EXPECT_EQ(state.currentInvoice(), nullptr);
    EXPECT_FALSE(state.isCurrentInvoiceSent());
}

TEST_F(AppDelegateTest, ToolbarItemDependsOnTheList)
{
    launch();
    m_ui.clear();
    m_app->fadeViewIn();
    addDocument(1);
    m_app->fadeViewIn();
    const auto calls = m_ui.calls(QStringLiteral("toolbar"));
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(calls[0].title, QStringLiteral("addressItem"));
    EXPECT_EQ(calls[1].title, QStringLiteral("infoItem"));
}

struct LanguageCase
{
    int language;
    const char* listName;
    const char* locInvoice;
    const char* locQuote;
};

class LoadDefaultsTest : public AppDelegateTest, public ::testing::WithParamInterface<LanguageCase>
{
};

TEST_P(LoadDefaultsTest, SwitchesTheTexts)
{
    launch();
    const LanguageCase& c = GetParam();
    EXPECT_EQ(AppDelegate::defaultListName(c.language), QLatin1String(c.listName));
    ASSERT_TRUE(m_app->loadDefaults(c.language));
    EXPECT_EQ(m_settings->stringValue(QStringLiteral("locInvoice")), QString::fromUtf8(c.locInvoice));
    EXPECT_EQ(storedSetting(QStringLiteral("locQuote")), QVariant(QString::fromUtf8(c.locQuote)));
    const auto list = AppDelegate::defaultList(QLatin1String(c.listName));
    ASSERT_TRUE(list.ok());
    for (auto it = list.value().cbegin(); it != list.value().cend(); ++it)
        EXPECT_EQ(m_settings->value(it.key()), it.value()) << qPrintable(it.key());
}

INSTANTIATE_TEST_SUITE_P(Languages, LoadDefaultsTest,
                         ::testing::Values(LanguageCase{0, "defaultPrefsEnglish", "Invoice", "Quote"},
                                           LanguageCase{1, "defaultPrefsGerman", "Rechnung", "Angebot"},
                                           LanguageCase{2, "defaultPrefsFrench", "Facture", "Devis"},
                                           LanguageCase{3, "defaultPrefsSpanish", "Factura", "Presupuesto"}),
                         [](const auto& info) { return std::string(info.param.listName); });

} // namespace
} // namespace vorn::test
