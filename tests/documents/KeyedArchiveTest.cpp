#include "documents/KeyedArchive.h"
#include "documents/InterchangeFile.h"
#include "documents/Serialization.h"

#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/PropertyList.h"
#include "tests/support/TestValues.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

using namespace vorn;
using namespace vorn::test;

namespace {

const QString dataDir = QStringLiteral(VORN_TEST_DATA_DIR);

QVariant uid(quint64 value)
{
    return QVariant::fromValue(PlistUid{value});
}

QVariantMap classRecord(const QString& name, const QStringList& classes)
{
    QVariantList list;
    for (const QString& c : classes)
        list.append(c);
    return {{"$classname", name}, {"$classes", list}};
}

} // namespace

TEST(KeyedArchive, LayoutIsTheKeyedArchiversOwn)
{
    const QVariantMap tree{
        {"a", "x"}, {"d", utc(2001, 1, 2, 0, 0, 1, 500)}, {"l", QVariantList{qint64(1), 2.5f, "x"}}};
    auto plist = PropertyList::read(KeyedArchive::archive(tree));
    ASSERT_TRUE(plist.ok());
    ASSERT_TRUE(QByteArray(KeyedArchive::archive(tree)).startsWith("bplist00"));
    const QVariantMap root = plist.value().toMap();
    EXPECT_EQ(root.value("$archiver"), QVariant(QStringLiteral("NSKeyedArchiver")));
    EXPECT_EQ(root.value("$version"), QVariant(qint64(100000)));
    EXPECT_EQ(root.value("$top"), QVariant(QVariantMap{{"root", uid(1)}}));

    // Containers take their slot first, members follow, the class record
    // comes last and is shared; equal strings are stored once.
    const QVariantList expected{
        "$null",
        QVariantMap{{"NS.keys", QVariantList{uid(2), uid(3), uid(4)}},
                    {"NS.objects", QVariantList{uid(5), uid(6), uid(8)}},
                    {"$class", uid(12)}},
        "a",
        "d",
        "l",
        "x",
        QVariantMap{{"NS.time", 86401.5}, {"$class", uid(7)}},
        classRecord("NSDate", {"NSDate", "NSObject"}),
        QVariantMap{{"NS.objects", QVariantList{uid(9), uid(10), uid(5)}}, {"$class", uid(11)}},
        qint64(1),
        2.5,
        classRecord("NSArray", {"NSArray", "NSObject"}),
        classRecord("NSMutableDictionary", {"NSMutableDictionary", "NSDictionary", "NSObject"}),
    };
    const QVariantList objects = root.value("$objects").toList();
    ASSERT_EQ(objects.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i)
        EXPECT_EQ(objects[i], expected[i]) << "object " << i;

    auto back = KeyedArchive::unarchive(KeyedArchive::archive(tree));
    ASSERT_TRUE(back.ok());
    EXPECT_EQ(back.value(), QVariant(tree));
}

TEST(KeyedArchive, ReadsAnArchiveMadeByAnotherWriterAndPlainPropertyLists)
{
    auto entry = InterchangeFile::readDocumentFile(dataDir + "/python-document.vorn");
    ASSERT_TRUE(entry.ok()) << entry.error().fullText().toStdString();
    FixedClock clock(utc(2026, 3, 1));
    ObjectContext context(nullptr, clock);
    QVariantMap dictionary = entry.value();
    dictionary.insert("class", "Invoice");
    auto created = Serialization::createManagedObjectFromDictionary(dictionary, context);
    ASSERT_TRUE(created.ok()) << created.error().fullText().toStdString();
    ManagedObject* document = created.value();
    EXPECT_EQ(fields(*document, {"uniqueID", "number", "date", "due", "status", "amount", "misc2", "notes"}),
              QString::fromUtf8(
                  "DOC-PY-1|RE-2026-042|2026-02-14T09:30:00.000Z|2026-03-16T00:00:00.000Z|1|232.53|-3|"
                  "Grüße 😀"));
    ASSERT_EQ(document->items().size(), 2);
    EXPECT_EQ(fields(*document->items()[0], {"title", "unitCount", "isTax1Applied"}), "Design work|2.5|true");
    EXPECT_EQ(fields(*document->items()[1], {"title", "unitCount", "baseAmount", "isTax1Applied"}),
              "Hosting|12|4.75|false");

    auto design = InterchangeFile::readDesignFile(dataDir + "/python-design.design");
    ASSERT_TRUE(design.ok());
    EXPECT_EQ(fields(design.value(), {"class", "title", "isDefault"}), "Design|From Python|true");

    // Plain property lists are read too.
    auto plain = InterchangeFile::readDocumentFile(dataDir + "/plain-document.vorn");
    ASSERT_TRUE(plain.ok()) << plain.error().fullText().toStdString();
    EXPECT_EQ(plain.value().value("number").toString(), "Q-7");
    EXPECT_EQ(plain.value().value("date").toDateTime(), utc(2026, 1, 5, 8));
    EXPECT_EQ(plain.value().value("items").toList().size(), 1);
}

TEST(KeyedArchive, DocumentFileReadsBackWithAnIndependentReader)
{
    const QString python = QStandardPaths::findExecutable("python3");
    // scripts/setup.sh installs python3; without it this check would not run at all.
    ASSERT_FALSE(python.isEmpty()) << "python3 is not installed: the independent reader cannot run";
    FixedClock clock(utc(2026, 3, 1));
    ObjectContext context(nullptr, clock);
    ManagedObject* document = context.insertNewObject(Entity::Invoice);
    assign(*document, "number", QString::fromUtf8("RE-1 «ü»"), "amount", 34.65f, "kind", 1, "isPaid", true,
           "date", utc(2026, 2, 14, 9, 30, 12, 250));
    for (const char* title : {"First", "Second"}) {
        ManagedObject* item = context.insertNewObject(Entity::Item);
        assign(*item, "title", title, "misc3", 0.1f);
        document->insertObject("items", item);
    }
    QTemporaryDir dir;
    const QString path = dir.filePath("doc.vorn");
    ASSERT_TRUE(InterchangeFile::writeDocumentFile(path, *document));

    QProcess process;
    process.start(python, {dataDir + "/read_archive.py", path});
    ASSERT_TRUE(process.waitForFinished(30000));
    ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    const QJsonObject root = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    const QJsonObject dic = root.value("vornDic").toObject();
    EXPECT_EQ(dic.value("class").toString(), "NSManagedObject");
    EXPECT_EQ(dic.value("number").toString(), QString::fromUtf8("RE-1 «ü»"));
    EXPECT_EQ(dic.value("amount").toDouble(), double(34.65f));
    EXPECT_EQ(dic.value("kind").toInt(), 1);
    EXPECT_EQ(dic.value("isPaid").toBool(), true);
    EXPECT_DOUBLE_EQ(dic.value("date").toObject().value("date").toDouble(),
                     (utc(2026, 2, 14, 9, 30, 12, 250).toMSecsSinceEpoch() - 978307200000LL) / 1000.0);
    EXPECT_EQ(dic.value("misc5").toObject().value("date").toDouble(),
              (utc(2026, 3, 1).toSecsSinceEpoch() - 978307200.0));
    const QJsonArray items = dic.value("items").toArray();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].toObject().value("title").toString(), "First");
    EXPECT_EQ(items[1].toObject().value("title").toString(), "Second");
    EXPECT_EQ(items[1].toObject().value("misc3").toDouble(), double(0.1f));
    EXPECT_FALSE(items[0].toObject().contains("invoice"));
}
