#include "output/KeyedArchive.h"
#include "store/PropertyList.h"
#include "tests/support/TestEnvironment.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTimeZone>

#include <gtest/gtest.h>

using namespace vorn;

namespace {

const QString dataDir = QStringLiteral(VORN_TEST_DATA_DIR);

struct CliRun
{
    int exitCode = -1;
    QString out;
    QString err;
};

class InterchangeCommandsTest : public ::testing::Test
{
protected:
    test::TestEnvironment env;

    CliRun run(const QStringList& args)
    {
        QProcess p;
        p.setProgram(QStringLiteral(VORN_CLI_PATH));
        p.setArguments(args);
        p.start();
        EXPECT_TRUE(p.waitForFinished(60000)) << qPrintable(args.join(' '));
        CliRun r;
        r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
        r.out = QString::fromUtf8(p.readAllStandardOutput());
        r.err = QString::fromUtf8(p.readAllStandardError());
        return r;
    }
    QString path(const QString& name) const { return env.home() + "/" + name; }

    // Every stored document, as the database export writes them (store order).
    QVariantList database()
    {
        const CliRun r = run({"export-db", path("all.xml")});
        EXPECT_EQ(r.exitCode, 0) << qPrintable(r.err);
        QFile f(path("all.xml"));
        EXPECT_TRUE(f.open(QIODevice::ReadOnly));
        auto plist = PropertyList::read(f.readAll());
        EXPECT_TRUE(plist.ok());
        return plist.ok() ? plist.value().toList() : QVariantList();
    }
    static QStringList numbers(const QVariantList& documents)
    {
        QStringList result;
        for (const QVariant& d : documents)
            result << d.toMap().value("number").toString();
        return result;
    }
    void writeFile(const QString& name, const QByteArray& data)
    {
        QFile f(path(name));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(data);
    }
};

void expectOneErrorLine(const CliRun& r)
{
    EXPECT_TRUE(r.out.isEmpty()) << qPrintable(r.out);
    EXPECT_TRUE(r.err.startsWith("vorn-cli: ")) << qPrintable(r.err);
    EXPECT_EQ(r.err.count('\n'), 1) << qPrintable(r.err);
}

} // namespace

TEST_F(InterchangeCommandsTest, ImportedDocumentExportsAndImportsAgainUnchanged)
{
    const CliRun imported = run({"import", dataDir + "/python-document.vorn"});
    ASSERT_EQ(imported.exitCode, 0) << qPrintable(imported.err);
    const QJsonObject json = QJsonDocument::fromJson(imported.out.toUtf8()).object();
    EXPECT_EQ(json.value("number").toString(), "RE-2026-042");
    EXPECT_EQ(json.value("uniqueID").toString(), "DOC-PY-1");
    EXPECT_EQ(json.value("date").toString(), "2026-02-14T09:30:00.000Z");
    EXPECT_EQ(json.value("items").toArray().size(), 2);
    EXPECT_FALSE(json.contains("title")) << "absent in the file, absent after import";

    const CliRun exported = run({"export", "RE-2026-042", path("copy.vorn")});
    ASSERT_EQ(exported.exitCode, 0) << qPrintable(exported.err);
    EXPECT_EQ(exported.out.trimmed(), path("copy.vorn"));
    const CliRun again = run({"import", path("copy.vorn")});
    ASSERT_EQ(again.exitCode, 0) << qPrintable(again.err);
    // The second import is a document of its own with the same values.
    QJsonObject first = json, second = QJsonDocument::fromJson(again.out.toUtf8()).object();
    EXPECT_EQ(first, second);

    const QVariantList all = database();
    EXPECT_EQ(numbers(all), (QStringList{"RE-2026-042", "RE-2026-042"}));
    EXPECT_EQ(all[0].toMap().value("items").toList().size(), 2);
    EXPECT_FALSE(all[0].toMap().value("items").toList()[0].toMap().contains("invoice"));
}

TEST_F(InterchangeCommandsTest, SingleDocumentXmlIsTheDictionaryItself)
{
    ASSERT_EQ(run({"import", dataDir + "/python-document.vorn"}).exitCode, 0);
    const CliRun r = run({"export", "#1", path("doc.xml")});
    ASSERT_EQ(r.exitCode, 0) << qPrintable(r.err);
    QFile f(path("doc.xml"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray xml = f.readAll();
    EXPECT_TRUE(xml.contains("<date>2026-02-14T09:30:00Z</date>")) << xml.constData();
    const QVariantMap document = PropertyList::read(xml).value().toMap();
    EXPECT_EQ(document.value("class").toString(), "NSManagedObject");
    EXPECT_EQ(document.value("number").toString(), "RE-2026-042");
    EXPECT_EQ(float(document.value("amount").toDouble()), 232.53f);
    EXPECT_EQ(document.value("items").toList().size(), 2);
}

TEST_F(InterchangeCommandsTest, DatabaseExportIsAllDocumentsOrTheFilteredList)
{
    ASSERT_EQ(run({"import", dataDir + "/python-document.vorn"}).exitCode, 0); // a sent invoice
    ASSERT_EQ(run({"import", dataDir + "/plain-document.vorn"}).exitCode, 0);  // a quote, dated earlier
    const QVariantList all = database();
    EXPECT_EQ(numbers(all), (QStringList{"RE-2026-042", "Q-7"}));
    // The sent invoice may have been found overdue by its due date since.
    const bool overdue = all.value(0).toMap().value("status").toLongLong() == 2;

    struct
    {
        const char* filter;
        QStringList expected;
    } cases[] = {{"quotes", {"Q-7"}},
                 {overdue ? "overdue" : "sent", {"RE-2026-042"}},
                 {"paid", {}},
                 {"all", {"RE-2026-042", "Q-7"}},
                 {"4", {"Q-7"}}};
    for (const auto& c : cases) {
        const CliRun r = run({"export-db", path("filtered.xml"), "--filter", c.filter});
        ASSERT_EQ(r.exitCode, 0) << c.filter << qPrintable(r.err);
        QFile f(path("filtered.xml"));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        EXPECT_EQ(numbers(PropertyList::read(f.readAll()).value().toList()), c.expected) << c.filter;
    }
    const CliRun bad = run({"export-db", path("x.xml"), "--filter", "someday"});
    EXPECT_EQ(bad.exitCode, 2);
    expectOneErrorLine(bad);
}

TEST_F(InterchangeCommandsTest, ExportMarksAnInvoiceSentWhenTheSettingsSaySo)
{
    // An unsent invoice and an unsent quote, written as a stranger's files.
    for (const auto& [name, kind] : {std::pair{"invoice", 1}, std::pair{"quote", 0}}) {
        const QVariantMap document{{"class", "NSManagedObject"},
                                   {"number", QString(name)},
                                   {"kind", qint64(kind)},
                                   {"status", qint64(0)},
                                   {"date", QDateTime(QDate(2026, 1, 10), QTime(8, 0), QTimeZone::utc())}};
        writeFile(QString(name) + ".vorn", KeyedArchive::archive(QVariantMap{{"vornDic", document}}));
        ASSERT_EQ(run({"import", path(QString(name) + ".vorn")}).exitCode, 0);
    }
    ASSERT_EQ(run({"defaults", "write", "markInvoiceAsSent", "1", "--type", "bool"}).exitCode, 0);
    ASSERT_EQ(run({"defaults", "write", "exportFormat", "1", "--type", "int"}).exitCode, 0);
    ASSERT_EQ(run({"export", "invoice", path("invoice-out.vorn")}).exitCode, 0);
    ASSERT_EQ(run({"export", "quote", path("quote-out.vorn")}).exitCode, 0);

    const QVariantList all = database();
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all[0].toMap().value("status").toLongLong(), 1);
    EXPECT_EQ(all[1].toMap().value("status").toLongLong(), 0);
    // The file name chose the format for that run only.
    EXPECT_TRUE(QFile(path("invoice-out.vorn")).open(QIODevice::ReadOnly));
    QFile out(path("invoice-out.vorn"));
    ASSERT_TRUE(out.open(QIODevice::ReadOnly));
    EXPECT_TRUE(out.readAll().startsWith("bplist00"));
    EXPECT_EQ(run({"defaults", "read", "exportFormat"}).out.trimmed(), "1");
}

namespace {

struct RefusedCase
{
    const char* name;
    QStringList args; // %H stands for the scratch home
    int exitCode;
};

} // namespace

class InterchangeCommandsRefused : public InterchangeCommandsTest,
                                   public ::testing::WithParamInterface<RefusedCase>
{
};

TEST_P(InterchangeCommandsRefused, OneLineAndNothingImported)
{
    writeFile("garbage.vorn", "this is not a document");
    writeFile("design.vorn",
              KeyedArchive::archive(QVariantMap{{"designDic", QVariantMap{{"class", "Design"}}}}));
    writeFile("wrongtype.vorn", KeyedArchive::archive(QVariantMap{
                                    {"vornDic", QVariantMap{{"class", "Invoice"}, {"amount", "a lot"}}}}));
    ASSERT_EQ(run({"import", dataDir + "/plain-document.vorn"}).exitCode, 0);
    QStringList args = GetParam().args;
    for (QString& a : args)
        a.replace("%H", env.home());
    const CliRun r = run(args);
    EXPECT_EQ(r.exitCode, GetParam().exitCode) << qPrintable(r.err);
    expectOneErrorLine(r);
    EXPECT_EQ(numbers(database()), QStringList{"Q-7"});
}

INSTANTIATE_TEST_SUITE_P(
    Cases, InterchangeCommandsRefused,
    ::testing::Values(RefusedCase{"importGarbage", {"import", "%H/garbage.vorn"}, 3},
                      RefusedCase{"importDesignFile", {"import", "%H/design.vorn"}, 3},
                      RefusedCase{"importWrongType", {"import", "%H/wrongtype.vorn"}, 3},
                      RefusedCase{"importMissing", {"import", "%H/none.vorn"}, 3},
                      RefusedCase{"importTwoFiles", {"import", "%H/a.vorn", "%H/b.vorn"}, 2},
                      RefusedCase{"exportUnknownDocument", {"export", "NOPE-1", "%H/x.vorn"}, 2},
                      RefusedCase{"exportOtherFormat", {"export", "Q-7", "%H/x.pdf"}, 2},
                      RefusedCase{"exportIntoAFile", {"export", "Q-7", "%H/garbage.vorn/x.vorn"}, 3},
                      RefusedCase{"exportDatabaseNoPath", {"export-db"}, 2}),
    [](const auto& info) { return std::string(info.param.name); });
