#include "documents/KeyedArchive.h"
#include "store/PropertyList.h"
#include "tests/cli/CliProcess.h"

#include <QTimeZone>

using namespace vorn;
using namespace vorn::test;

namespace {

const QString dataDir = QStringLiteral(VORN_TEST_DATA_DIR);

class InterchangeCommandsTest : public CliFixture
{
protected:
    // The documents of an XML property list file.
    static QVariantList documentsIn(const QString& file)
    {
        return PropertyList::read(readFile(file)).value().toList();
    }
    // Every stored document, as the database export writes them (store order).
    QVariantList database()
    {
        ok({"export-db", path("all.xml")});
        return documentsIn(path("all.xml"));
    }
    static QStringList numbers(const QVariantList& documents)
    {
        QStringList result;
        for (const QVariant& d : documents)
            result << d.toMap().value("number").toString();
        return result;
    }
};

TEST_F(InterchangeCommandsTest, ImportedDocumentExportsAndImportsAgainUnchanged)
{
    const QJsonObject json = ok({"import", dataDir + "/python-document.vorn"}).object();
    EXPECT_EQ(json.value("number").toString(), "RE-2026-042");
    EXPECT_EQ(json.value("uniqueID").toString(), "DOC-PY-1");
    EXPECT_EQ(json.value("date").toString(), "2026-02-14T09:30:00.000Z");
    EXPECT_EQ(json.value("items").toArray().size(), 2);
    EXPECT_FALSE(json.contains("title")) << "absent in the file, absent after import";

    EXPECT_EQ(ok({"export", "RE-2026-042", path("copy.vorn")}).out.trimmed(), path("copy.vorn"));
    // The second import is a document of its own with the same values.
    EXPECT_EQ(ok({"import", path("copy.vorn")}).object(), json);

    const QVariantList all = database();
    EXPECT_EQ(numbers(all), (QStringList{"RE-2026-042", "RE-2026-042"}));
    EXPECT_EQ(all[0].toMap().value("items").toList().size(), 2);
    EXPECT_FALSE(all[0].toMap().value("items").toList()[0].toMap().contains("invoice"));

    // A single document as XML is the dictionary itself.
    ok({"export", "#1", path("doc.xml")});
    EXPECT_TRUE(readFile(path("doc.xml")).contains("<date>2026-02-14T09:30:00Z</date>"));
    const QVariantMap document = PropertyList::read(readFile(path("doc.xml"))).value().toMap();
    EXPECT_EQ(document.value("number").toString(), "RE-2026-042");
    EXPECT_EQ(document.value("items").toList().size(), 2);
}

TEST_F(InterchangeCommandsTest, DatabaseExportIsAllDocumentsOrTheFilteredList)
{
    ok({"import", dataDir + "/python-document.vorn"}); // a sent invoice
    ok({"import", dataDir + "/plain-document.vorn"});  // a quote, dated earlier
    EXPECT_EQ(numbers(database()), (QStringList{"RE-2026-042", "Q-7"}));

    // The filters themselves are the list's; here a name and a tag reach the command.
    const std::pair<const char*, QStringList> cases[] = {{"quotes", {"Q-7"}}, {"4", {"Q-7"}}};
    for (const auto& [filter, expected] : cases) {
        ok({"export-db", path("filtered.xml"), "--filter", filter});
        EXPECT_EQ(numbers(documentsIn(path("filtered.xml"))), expected) << filter;
    }
    expectRefusal(run({"export-db", path("x.xml"), "--filter", "someday"}), 2);
}

TEST_F(InterchangeCommandsTest, ExportMarksAnInvoiceSentWhenTheSettingsSaySo)
{
    // An unsent invoice, written as a stranger's file; which kinds are marked is the controller's.
    const QVariantMap document{{"class", "NSManagedObject"},
                               {"number", "invoice"},
                               {"kind", qint64(1)},
                               {"status", qint64(0)},
                               {"date", QDateTime(QDate(2026, 1, 10), QTime(8, 0), QTimeZone::utc())}};
    writeFile("invoice.vorn", KeyedArchive::archive(QVariantMap{{"vornDic", document}}));
    ok({"import", path("invoice.vorn")});
    ok({"defaults", "write", "markInvoiceAsSent", "1", "--type", "bool"});
    ok({"defaults", "write", "exportFormat", "1", "--type", "int"});
    ok({"export", "invoice", path("invoice-out.vorn")});

    const QVariantList all = database();
    ASSERT_EQ(all.size(), 1);
    EXPECT_EQ(all[0].toMap().value("status").toLongLong(), 1);
    // The file name chose the format for that run only.
    EXPECT_TRUE(readFile(path("invoice-out.vorn")).startsWith("bplist00"));
    EXPECT_EQ(ok({"defaults", "read", "exportFormat"}).out.trimmed(), "1");
}

// Each refusal is one line, and nothing is imported or written.
TEST_F(InterchangeCommandsTest, RefusalsChangeNothing)
{
    writeFile("garbage.vorn", "this is not a document");
    ok({"import", dataDir + "/plain-document.vorn"});
    const std::pair<QStringList, int> cases[] = {{{"import", path("garbage.vorn")}, 3},
                                                 {{"import", path("none.vorn")}, 3},
                                                 {{"import", path("a.vorn"), path("b.vorn")}, 2},
                                                 {{"export", "NOPE-1", path("x.vorn")}, 2},
                                                 {{"export", "Q-7", path("x.pdf")}, 2},
                                                 {{"export", "Q-7", path("garbage.vorn/x.vorn")}, 3},
                                                 {{"export-db"}, 2}};
    for (const auto& [args, exitCode] : cases) {
        SCOPED_TRACE(args.join(' ').toStdString());
        expectRefusal(run(args), exitCode);
    }
    EXPECT_EQ(numbers(database()), QStringList{"Q-7"});
    EXPECT_FALSE(QFile::exists(path("x.vorn")) || QFile::exists(path("x.pdf")));
}

} // namespace
