#include "tests/store/StoreTestSupport.h"

#include <unistd.h>

namespace vorn::test {
namespace {

// A real store with the given number of documents, three items each.
void makeRealStore(const QString& path, int documents)
{
    FixedClock clock(utc(2026, 1, 1));
    auto store = SqliteStore::open(path, ObjectModel::vorn());
    ASSERT_TRUE(store.ok());
    ObjectContext ctx(std::move(store.value()), clock);
    ctx.undoManager()->setEnabled(false);
    for (int i = 0; i < documents; ++i) {
        ManagedObject* doc = ctx.insertNewObject(Entity::Invoice);
        doc->setValue("title", QString("Invoice %1").arg(i));
        doc->setValue("address", QString("Client %1\nSome Street %1\n12345 Town").arg(i));
        for (int j = 0; j < 3; ++j) {
            ManagedObject* item = ctx.insertNewObject(Entity::Item);
            item->setValue("title", QString("Work item %1").arg(j));
            doc->insertObject("items", item);
        }
    }
    ASSERT_TRUE(ctx.save());
}

// Each case leaves a file at the store's path (or makes the path unusable);
// opening must refuse it with a clear error and leave every byte as it was.
struct BadStoreCase
{
    const char* name;
    int code;
    const char* messagePart;
    std::function<void(const QString& path)> make;
    bool needsPermissions = false;
};

const char* const notVorn = "is not a Vorn database";

const BadStoreCase badStoreCases[] = {
    {"NotSqlite", ErrorCode::StoreNotVorn, notVorn,
     [](auto& p) { writeBytes(p, QByteArray("This is a letter, not a database.\n").repeated(100)); }},
    {"ShortGarbage", ErrorCode::StoreNotVorn, notVorn, [](auto& p) { writeBytes(p, "SQLite"); }},
    {"Truncated", ErrorCode::StoreDamaged, "is damaged",
     [](auto& p) {
         makeRealStore(p, 400);
         const QByteArray bytes = fileBytes(p);
         ASSERT_GT(bytes.size(), 100000);
         writeBytes(p, bytes.left(bytes.size() / 2));
     }},
    {"ForeignSqliteWithTables", ErrorCode::StoreNotVorn, notVorn,
     [](auto& p) {
         sqlOn(p, "CREATE TABLE notes (body TEXT); INSERT INTO notes VALUES ('mine, not Vorn''s');");
     }},
    {"ForeignApplicationId", ErrorCode::StoreNotVorn, notVorn,
     [](auto& p) { sqlOn(p, "PRAGMA application_id = 1234; CREATE TABLE Invoice (x);"); }},
    {"NewerSchemaVersion", ErrorCode::StoreTooNew, "newer version",
     [](auto& p) {
         makeRealStore(p, 3);
         sqlOn(p, QString("PRAGMA user_version = %1").arg(ObjectModel::schemaVersion + 1));
     }},
    {"MissingTable", ErrorCode::StoreDamaged, "is damaged",
     [](auto& p) {
         makeRealStore(p, 3);
         sqlOn(p, "DROP TABLE Design");
     }},
    {"MissingColumn", ErrorCode::StoreDamaged, "is damaged",
     [](auto& p) {
         makeRealStore(p, 3);
         sqlOn(p, "ALTER TABLE Item DROP COLUMN sku");
     }},
    {"StoreIsAFolder", ErrorCode::FileReadUnknown, "could not be read",
     [](auto& p) { writeBytes(p + "/inside", "kept"); }},
    {"ReadOnlyFolder", ErrorCode::StoreOpenFailed, "could not be opened",
     [](auto& p) { QFile::setPermissions(QFileInfo(p).absolutePath(), QFile::ReadOwner | QFile::ExeOwner); },
     true},
};

class BadStoreTest : public StoreFixture, public ::testing::WithParamInterface<BadStoreCase>
{
protected:
    void TearDown() override
    {
        QFile::setPermissions(m_dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

TEST_P(BadStoreTest, RefusedWithClearErrorAndLeftUntouched)
{
    const BadStoreCase& c = GetParam();
    if (c.needsPermissions && geteuid() == 0)
        GTEST_SKIP() << "running as root: permission bits do not stop writes";
    c.make(path());
    if (HasFatalFailure())
        return;
    const QByteArray before = fileBytes(path());
    const QStringList filesBefore = QDir(m_dir.path()).entryList(QDir::Files);

    auto store = SqliteStore::open(path(), ObjectModel::vorn());
    ASSERT_FALSE(store.ok());
    EXPECT_EQ(store.error().code, c.code) << qPrintable(store.error().fullText());
    EXPECT_TRUE(store.error().message.contains(QLatin1String(c.messagePart)))
        << qPrintable(store.error().message);
    EXPECT_FALSE(store.error().message.contains("%1"));
    EXPECT_FALSE(SqliteStore::validate(path(), ObjectModel::vorn()).ok());
    EXPECT_EQ(fileBytes(path()), before) << "the refused file was changed";
    EXPECT_EQ(QDir(m_dir.path()).entryList(QDir::Files), filesBefore) << "files appeared beside the store";
}

INSTANTIATE_TEST_SUITE_P(Files, BadStoreTest, ::testing::ValuesIn(badStoreCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(StoreFixture, EmptyFileBecomesANewStore)
{
    writeBytes(path(), {});
    ASSERT_NE(context(), nullptr);
    context()->insertNewObject(Entity::Invoice);
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(reopen()->fetch(Entity::Invoice).size(), 1);
    EXPECT_TRUE(SqliteStore::validate(path(), ObjectModel::vorn()).ok());
}

TEST_F(StoreFixture, FailedSaveWritesNothingAndKeepsChangesPending)
{
    newDocument("D", "A");
    ASSERT_TRUE(context()->save());
    // Another program makes every new item row fail.
    sql("CREATE TRIGGER refuse BEFORE INSERT ON Item BEGIN SELECT RAISE(ABORT, 'refused'); END");
    ManagedObject* d = document("D");
    d->setValue("title", "changed");
    d->insertObject("items", context()->insertNewObject(Entity::Item), 0);
    const Status saved = context()->save();
    ASSERT_FALSE(saved.ok());
    EXPECT_FALSE(saved.error().message.isEmpty());
    EXPECT_TRUE(context()->hasChanges());
    EXPECT_EQ(sql("SELECT title, (SELECT count(*) FROM Item) FROM Invoice"), "D|1");

    sql("DROP TRIGGER refuse");
    ASSERT_TRUE(context()->save());
    EXPECT_FALSE(context()->hasChanges());
    reopen();
    EXPECT_EQ(document("changed")->items().size(), 2);
}

// A file written before the e-invoice fields gets their columns, empty, when
// it is opened for writing; checking it (as a backup to restore) changes
// nothing; its schema version stays, so older versions still open it.
TEST_F(StoreFixture, OlderFilesGainTheNewColumnsWhenOpened)
{
    newDocument(QStringLiteral("Old"));
    ASSERT_TRUE(context()->save());
    m_context.reset();
    sql(QStringLiteral(
        "ALTER TABLE Invoice DROP COLUMN buyerCountryCode; ALTER TABLE Invoice DROP COLUMN orderReference"));
    const QString columns = QStringLiteral("SELECT count(*) FROM pragma_table_info('Invoice') WHERE name IN "
                                           "('buyerCountryCode', 'orderReference')");
    EXPECT_TRUE(SqliteStore::validate(path(), ObjectModel::vorn()).ok());
    EXPECT_EQ(sql(columns), QStringLiteral("0"));

    ManagedObject* old = reopen() ? document(QStringLiteral("Old")) : nullptr;
    ASSERT_TRUE(old);
    EXPECT_EQ(sql(columns), QStringLiteral("2"));
    EXPECT_FALSE(old->hasValue(QStringLiteral("buyerCountryCode")));
    old->setValue(QStringLiteral("buyerCountryCode"), QStringLiteral("DE"));
    ASSERT_TRUE(context()->save());
    reopen();
    EXPECT_EQ(document(QStringLiteral("Old"))->stringValue(QStringLiteral("buyerCountryCode")),
              QStringLiteral("DE"));
    EXPECT_EQ(sql(QStringLiteral("PRAGMA user_version")), QStringLiteral("1"));
}

} // namespace
} // namespace vorn::test
