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

// A file system that can fill up: SQLite's own file system with every write
// that would make a file longer failing as on a full disk, while full is set.
class FullDisk
{
public:
    FullDisk()
    {
        s_real = sqlite3_vfs_find(nullptr);
        s_vfs = *s_real;
        s_vfs.zName = "vorn-full-disk";
        s_vfs.szOsFile = int(sizeof(File)) + s_real->szOsFile;
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
    struct File
    {
        sqlite3_file base;
        sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
    };
    static File* of(sqlite3_file* f) { return reinterpret_cast<File*>(f); }
    static sqlite3_file* real(sqlite3_file* f) { return of(f)->real(); }

    static int open(sqlite3_vfs*, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags)
    {
        File* f = of(file);
        f->base.pMethods = nullptr;
        const int rc = s_real->xOpen(s_real, name, f->real(), flags, outFlags);
        if (f->real()->pMethods) {
            s_methods = *f->real()->pMethods;
            s_methods.xClose = [](sqlite3_file* f) { return real(f)->pMethods->xClose(real(f)); };
            s_methods.xRead = [](sqlite3_file* f, void* b, int n, sqlite3_int64 o) {
                return real(f)->pMethods->xRead(real(f), b, n, o);
            };
            s_methods.xWrite = [](sqlite3_file* f, const void* b, int n, sqlite3_int64 o) {
                sqlite3_int64 size = 0;
                real(f)->pMethods->xFileSize(real(f), &size);
                if (s_full && o + n > size)
                    return SQLITE_FULL;
                return real(f)->pMethods->xWrite(real(f), b, n, o);
            };
            s_methods.xTruncate = [](sqlite3_file* f, sqlite3_int64 n) {
                return real(f)->pMethods->xTruncate(real(f), n);
            };
            s_methods.xSync = [](sqlite3_file* f, int fl) { return real(f)->pMethods->xSync(real(f), fl); };
            s_methods.xFileSize = [](sqlite3_file* f, sqlite3_int64* n) {
                return real(f)->pMethods->xFileSize(real(f), n);
            };
            s_methods.xLock = [](sqlite3_file* f, int l) { return real(f)->pMethods->xLock(real(f), l); };
            s_methods.xUnlock = [](sqlite3_file* f, int l) { return real(f)->pMethods->xUnlock(real(f), l); };
            s_methods.xCheckReservedLock = [](sqlite3_file* f, int* r) {
                return real(f)->pMethods->xCheckReservedLock(real(f), r);
            };
            s_methods.xFileControl = [](sqlite3_file* f, int op, void* a) {
                return real(f)->pMethods->xFileControl(real(f), op, a);
            };
            s_methods.xSectorSize = [](sqlite3_file* f) { return real(f)->pMethods->xSectorSize(real(f)); };
            s_methods.xDeviceCharacteristics = [](sqlite3_file* f) {
                return real(f)->pMethods->xDeviceCharacteristics(real(f));
            };
            s_methods.xShmMap = [](sqlite3_file* f, int p, int s, int e, void volatile** m) {
                return real(f)->pMethods->xShmMap(real(f), p, s, e, m);
            };
            s_methods.xShmLock = [](sqlite3_file* f, int o, int n, int fl) {
                return real(f)->pMethods->xShmLock(real(f), o, n, fl);
            };
            s_methods.xShmBarrier = [](sqlite3_file* f) { real(f)->pMethods->xShmBarrier(real(f)); };
            s_methods.xShmUnmap = [](sqlite3_file* f, int d) {
                return real(f)->pMethods->xShmUnmap(real(f), d);
            };
            s_methods.xFetch = [](sqlite3_file* f, sqlite3_int64 o, int n, void** p) {
                return real(f)->pMethods->xFetch(real(f), o, n, p);
            };
            s_methods.xUnfetch = [](sqlite3_file* f, sqlite3_int64 o, void* p) {
                return real(f)->pMethods->xUnfetch(real(f), o, p);
            };
            f->base.pMethods = &s_methods;
        }
        return rc;
    }

    // Static: connections opened through it may outlive the test's object.
    static inline sqlite3_vfs s_vfs{};
    static inline sqlite3_vfs* s_real = nullptr;
    static inline sqlite3_io_methods s_methods{};
    static inline bool s_full = false;
};

TEST_F(StoreFixture, AFullDiskLosesNothingSavedAndTheStoreOpensOnceThereIsSpace)
{
    FullDisk disk;
    newDocument("A", "ab");
    newDocument("B", "c");
    ASSERT_TRUE(context()->save());

    // A large change while the disk is full: refused as such, kept pending.
    disk.setFull(true);
    newDocument("C", "d")->setValue("notes", QString(200000, QLatin1Char('x')));
    Status saved = context()->save();
    ASSERT_FALSE(saved.ok());
    EXPECT_EQ(saved.error().code, ErrorCode::StoreWriteFailed);
    EXPECT_TRUE(saved.error().message.startsWith("The disk is full")) << qPrintable(saved.error().message);
    EXPECT_TRUE(context()->hasChanges());

    // Space again: the pending change is saved with the next save.
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
    EXPECT_EQ(letters(context()->fetch(Entity::Invoice)), "ABC");
    EXPECT_EQ(letters(document("A")->items()), "ab");
    EXPECT_EQ(sqlOn(path(), "PRAGMA integrity_check"), "ok");
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

} // namespace
} // namespace vorn::test
