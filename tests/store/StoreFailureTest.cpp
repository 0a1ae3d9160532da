#include "tests/store/StoreTestSupport.h"

#include <map>
#include <optional>

namespace vorn::test {
namespace {

// A real store with the given number of documents.
void makeRealStore(const QString& path, int documents)
{
    FixedClock clock(utc(2026, 1, 1));
    auto store = SqliteStore::open(path, ObjectModel::vorn());
    ASSERT_TRUE(store.ok());
    ObjectContext ctx(std::move(store.value()), clock);
    for (int i = 0; i < documents; ++i)
        ctx.insertNewObject(Entity::Invoice)->setValue("notes", QString(300, 'x'));
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
    bool readOnlyFolder = false;
};

const char* const notVorn = "is not a Vorn database";

const BadStoreCase badStoreCases[] = {
    {"NotSqlite", ErrorCode::StoreNotVorn, notVorn,
     [](auto& p) { writeFile(p, QByteArray("This is a letter, not a database.\n").repeated(100)); }},
    {"ShortGarbage", ErrorCode::StoreNotVorn, notVorn, [](auto& p) { writeFile(p, "SQLite"); }},
    {"Truncated", ErrorCode::StoreDamaged, "is damaged",
     [](auto& p) {
         makeRealStore(p, 400);
         const QByteArray bytes = fileBytes(p);
         ASSERT_GT(bytes.size(), 100000);
         writeFile(p, bytes.left(bytes.size() / 2));
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
     [](auto& p) { writeFile(p + "/inside", "kept"); }},
    {"ReadOnlyFolder", ErrorCode::StoreOpenFailed, "could not be opened", [](auto&) {}, true},
};

class BadStoreTest : public StoreFixture, public ::testing::WithParamInterface<BadStoreCase>
{
};

TEST_P(BadStoreTest, RefusedWithClearErrorAndLeftUntouched)
{
    const BadStoreCase& c = GetParam();
    c.make(path());
    if (HasFatalFailure())
        return;
    const QByteArray before = fileBytes(path());
    const QStringList filesBefore = QDir(m_dir.path()).entryList(QDir::Files);
    std::optional<ReadOnlyFolder> locked;
    if (c.readOnlyFolder && !locked.emplace(m_dir.path()).holds())
        GTEST_SKIP() << "this system lets the test write to a read-only folder";

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
    writeFile(path(), {});
    ASSERT_NE(context(), nullptr);
    context()->insertNewObject(Entity::Invoice);
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(reopen()->fetch(Entity::Invoice).size(), 1);
    EXPECT_TRUE(SqliteStore::validate(path(), ObjectModel::vorn()).ok());
}

// A file system that can fill up: SQLite's own, with every write that would
// make a file longer failing as on a full disk while full is set. Its files
// are the real ones with the write method swapped; each file's real methods
// are kept right behind it.
class FullDisk
{
public:
    FullDisk()
    {
        s_real = sqlite3_vfs_find(nullptr);
        s_vfs = *s_real;
        s_vfs.zName = "vorn-full-disk";
        s_vfs.szOsFile = s_real->szOsFile + int(sizeof(void*));
        s_vfs.xOpen = &FullDisk::open;
        sqlite3_vfs_register(&s_vfs, 1);
    }
    ~FullDisk()
    {
        sqlite3_vfs_unregister(&s_vfs);
        sqlite3_vfs_register(s_real, 1);
        s_full = false;
    }
    void setFull(bool full) { s_full = full; }

private:
    static const sqlite3_io_methods*& realMethods(sqlite3_file* f)
    {
        return *reinterpret_cast<const sqlite3_io_methods**>(reinterpret_cast<char*>(f) + s_real->szOsFile);
    }

    static int open(sqlite3_vfs*, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags)
    {
        const int rc = s_real->xOpen(s_real, name, file, flags, outFlags);
        if (file->pMethods) {
            realMethods(file) = file->pMethods;
            sqlite3_io_methods& wrapped =
                s_wrapped.try_emplace(file->pMethods, *file->pMethods).first->second;
            wrapped.xWrite = [](sqlite3_file* f, const void* b, int n, sqlite3_int64 o) {
                sqlite3_int64 size = 0;
                realMethods(f)->xFileSize(f, &size);
                return s_full && o + n > size ? SQLITE_FULL : realMethods(f)->xWrite(f, b, n, o);
            };
            file->pMethods = &wrapped;
        }
        return rc;
    }

    // Static: connections opened through it may outlive the test's object.
    static inline sqlite3_vfs s_vfs{};
    static inline sqlite3_vfs* s_real = nullptr;
    // One copy of each kind of the real file system's methods (main file, journal ...).
    static inline std::map<const sqlite3_io_methods*, sqlite3_io_methods> s_wrapped;
    static inline bool s_full = false;
};

TEST_F(StoreFixture, AFullDiskLosesNothingSavedAndTheStoreOpensOnceThereIsSpace)
{
    FullDisk disk;
    newDocument("A", "ab");
    newDocument("B", "c");
    ASSERT_TRUE(context()->save());

    // Changes while the disk is full: refused as such, nothing of them
    // written, all of them kept pending.
    disk.setFull(true);
    ManagedObject* b = document("B");
    b->setValue("title", "C");
    b->insertObject("items", newItem("d"), 0);
    b->setValue("notes", QString(200000, QLatin1Char('x')));
    const Status saved = context()->save();
    ASSERT_FALSE(saved.ok());
    EXPECT_EQ(saved.error().code, ErrorCode::StoreWriteFailed);
    EXPECT_TRUE(saved.error().message.startsWith("The disk is full")) << qPrintable(saved.error().message);
    EXPECT_TRUE(context()->hasChanges());
    EXPECT_EQ(sql("SELECT title, (SELECT count(*) FROM Item) FROM Invoice"), "A|3,B|3");

    // Space again: the next save writes them.
    disk.setFull(false);
    ASSERT_TRUE(context()->save());

    // Full again, and the program ends in the middle of it: the store closes
    // with a checkpoint cut short, its header counting pages that are still
    // only in the log. The next start, with space, finds every saved document.
    disk.setFull(true);
    newDocument("D", "e")->setValue("notes", QString(200000, QLatin1Char('y')));
    EXPECT_FALSE(context()->save().ok());
    m_context.reset();
    disk.setFull(false);
    ASSERT_NE(reopen(), nullptr);
    EXPECT_EQ(letters(context()->fetch(Entity::Invoice)), "AC");
    EXPECT_EQ(letters(document("C")->items()), "dc");
    EXPECT_EQ(sql("PRAGMA integrity_check"), "ok");
}

// A file written before the e-invoice fields gets their columns, empty, when
// it is opened for writing; checking it (as a backup to restore) changes
// nothing; its schema version stays, so older versions still open it.
TEST_F(StoreFixture, OlderFilesGainTheNewColumnsWhenOpened)
{
    newDocument("Old");
    ASSERT_TRUE(context()->save());
    m_context.reset();
    sql("ALTER TABLE Invoice DROP COLUMN buyerCountryCode; ALTER TABLE Invoice DROP COLUMN orderReference");
    const QString columns = "SELECT count(*) FROM pragma_table_info('Invoice') WHERE name IN "
                            "('buyerCountryCode', 'orderReference')";
    EXPECT_TRUE(SqliteStore::validate(path(), ObjectModel::vorn()).ok());
    EXPECT_EQ(sql(columns), "0");

    ManagedObject* old = reopen() ? document("Old") : nullptr;
    ASSERT_TRUE(old);
    EXPECT_EQ(sql(columns), "2");
    EXPECT_FALSE(old->hasValue("buyerCountryCode"));
    old->setValue("buyerCountryCode", "DE");
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(reopen() ? document("Old")->stringValue("buyerCountryCode") : QString(), "DE");
    EXPECT_EQ(sql("PRAGMA user_version"), "1");
}

} // namespace
} // namespace vorn::test
