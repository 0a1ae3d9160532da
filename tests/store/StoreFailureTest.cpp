#include "tests/store/StoreTestSupport.h"

#include <QDir>
#include <QFileInfo>

#include <unistd.h>

namespace vorn::test {
namespace {

// Each case leaves a file at the store's path (or makes the path unusable);
// opening must refuse it with a clear error and leave every byte as it was.
struct BadStoreCase
{
    const char* name;
    std::function<void(StoreFixture&, const QString& path)> make;
    int code;
    const char* messagePart;
    bool needsPermissions = false;
};

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

void sqlite(const QString& path, const char* sql)
{
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(path).constData(), &db), SQLITE_OK);
    char* message = nullptr;
    EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, &message), SQLITE_OK) << (message ? message : "");
    sqlite3_free(message);
    sqlite3_close(db);
}

// A real store with several hundred documents and their items.
void makeRealStore(const QString& path, int documents)
{
    FixedClock clock(utc(2026, 1, 1));
    auto store = SqliteStore::open(path, ObjectModel::vorn());
    ASSERT_TRUE(store.ok());
    ObjectContext ctx(std::move(store.value()), clock);
    ctx.undoManager()->setEnabled(false);
    for (int i = 0; i < documents; ++i) {
        ManagedObject* doc = ctx.insertNewObject(Entity::Invoice);
        doc->setValue(QStringLiteral("title"), QStringLiteral("Invoice %1").arg(i));
        doc->setValue(QStringLiteral("address"),
                      QStringLiteral("Client %1\nSome Street %1\n12345 Town").arg(i));
        for (int j = 0; j < 3; ++j) {
            ManagedObject* item = ctx.insertNewObject(Entity::Item);
            item->setValue(QStringLiteral("title"), QStringLiteral("Work item %1").arg(j));
            doc->insertObject(QStringLiteral("items"), item);
        }
    }
    ASSERT_TRUE(ctx.save());
}

const BadStoreCase badStoreCases[] = {
    {"NotSqlite",
     [](auto&, const QString& path) {
         writeFile(path, QByteArray("This is a letter, not a database.\n").repeated(100));
     },
     ErrorCode::StoreNotVorn, "is not a Vorn database"},
    {"ShortGarbage", [](auto&, const QString& path) { writeFile(path, "SQLite"); }, ErrorCode::StoreNotVorn,
     "is not a Vorn database"},
    {"Truncated",
     [](auto&, const QString& path) {
         makeRealStore(path, 400);
         QByteArray bytes = fileBytes(path);
         ASSERT_GT(bytes.size(), 100000);
         writeFile(path, bytes.left(bytes.size() / 2));
     },
     ErrorCode::StoreDamaged, "is damaged"},
    {"ForeignSqliteWithTables",
     [](auto&, const QString& path) {
         sqlite(path, "CREATE TABLE notes (id INTEGER PRIMARY KEY, body TEXT);"
                      "INSERT INTO notes (body) VALUES ('mine, not Vorn''s');");
     },
     ErrorCode::StoreNotVorn, "is not a Vorn database"},
    {"ForeignApplicationId",
     [](auto&, const QString& path) {
         sqlite(path, "PRAGMA application_id = 1234; CREATE TABLE Invoice (x);");
     },
     ErrorCode::StoreNotVorn, "is not a Vorn database"},
    {"NewerSchemaVersion",
     [](auto&, const QString& path) {
         makeRealStore(path, 3);
         sqlite(path,
                QStringLiteral("PRAGMA user_version = %1").arg(ObjectModel::schemaVersion + 1).toUtf8());
     },
     ErrorCode::StoreTooNew, "newer version"},
    {"MissingTable",
     [](auto&, const QString& path) {
         makeRealStore(path, 3);
         sqlite(path, "DROP TABLE Design");
     },
     ErrorCode::StoreDamaged, "is damaged"},
    {"MissingColumn",
     [](auto&, const QString& path) {
         makeRealStore(path, 3);
         sqlite(path, "ALTER TABLE Item DROP COLUMN sku");
     },
     ErrorCode::StoreDamaged, "is damaged"},
    {"StoreIsAFolder",
     [](auto&, const QString& path) {
         QDir().mkpath(path);
         writeFile(path + QStringLiteral("/inside"), "kept");
     },
     ErrorCode::FileReadUnknown, "could not be read"},
    {"ReadOnlyFolder",
     [](auto&, const QString& path) {
         const QString folder = QFileInfo(path).absolutePath();
         QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
     },
     ErrorCode::StoreOpenFailed, "could not be opened", true},
};

class BadStoreTest : public StoreFixture, public ::testing::WithParamInterface<BadStoreCase>
{
protected:
    void TearDown() override
    {
        QFile::setPermissions(m_dir.path(),
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }
};

TEST_P(BadStoreTest, RefusedWithClearErrorAndLeftUntouched)
{
    const BadStoreCase& c = GetParam();
    if (c.needsPermissions && geteuid() == 0)
        GTEST_SKIP() << "running as root: permission bits do not stop writes";
    c.make(*this, path());
    if (HasFatalFailure())
        return;
    const QByteArray before = fileBytes(path());
    const QStringList filesBefore = QDir(m_dir.path()).entryList(QDir::Files);

    auto store = SqliteStore::open(path(), ObjectModel::vorn());
    ASSERT_FALSE(store.ok());
    EXPECT_EQ(store.error().code, c.code) << qPrintable(store.error().fullText());
    EXPECT_TRUE(store.error().message.contains(QLatin1String(c.messagePart)))
        << qPrintable(store.error().message);
    EXPECT_FALSE(store.error().message.contains(QLatin1String("%1")));

    const Status validated = SqliteStore::validate(path(), ObjectModel::vorn());
    EXPECT_FALSE(validated.ok());

    EXPECT_EQ(fileBytes(path()), before) << "the refused file was changed";
    EXPECT_EQ(QDir(m_dir.path()).entryList(QDir::Files), filesBefore) << "files appeared beside the store";
}

INSTANTIATE_TEST_SUITE_P(Files, BadStoreTest, ::testing::ValuesIn(badStoreCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(StoreFixture, EmptyFileBecomesANewStore)
{
    writeFile(path(), {});
    ASSERT_NE(context(), nullptr);
    context()->insertNewObject(Entity::Invoice);
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(reopen()->fetch(Entity::Invoice).size(), 1);
    EXPECT_TRUE(SqliteStore::validate(path(), ObjectModel::vorn()).ok());
}

TEST_F(StoreFixture, FailedSaveWritesNothingAndKeepsChangesPending)
{
    newDocument(QStringLiteral("D"), {"A"});
    ASSERT_TRUE(context()->save());
    // Another program makes every new item row fail.
    execute(QStringLiteral(
        "CREATE TRIGGER refuse BEFORE INSERT ON Item BEGIN SELECT RAISE(ABORT, 'refused'); END"));
    ManagedObject* d = document(QStringLiteral("D"));
    d->setValue(QStringLiteral("title"), QStringLiteral("changed"));
    d->insertObject(QStringLiteral("items"), context()->insertNewObject(Entity::Item), 0);
    const Status saved = context()->save();
    ASSERT_FALSE(saved.ok());
    EXPECT_FALSE(saved.error().message.isEmpty());
    EXPECT_TRUE(context()->hasChanges());
    EXPECT_EQ(queryText(QStringLiteral("SELECT title FROM Invoice")), QStringLiteral("D"));
    EXPECT_EQ(queryText(QStringLiteral("SELECT count(*) FROM Item")), QStringLiteral("1"));

    execute(QStringLiteral("DROP TRIGGER refuse"));
    ASSERT_TRUE(context()->save());
    EXPECT_FALSE(context()->hasChanges());
    reopen();
    EXPECT_EQ(document(QStringLiteral("changed"))->items().size(), 2);
}

} // namespace
} // namespace vorn::test
