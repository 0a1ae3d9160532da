#include "output/KeyedArchive.h"
#include "output/InterchangeFile.h"
#include "output/Serialization.h"

#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/PropertyList.h"

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

QDateTime utc(int y, int m, int d, int h = 0, int min = 0, int s = 0, int ms = 0)
{
    return QDateTime(QDate(y, m, d), QTime(h, min, s, ms), QTimeZone::utc());
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

TEST(KeyedArchive, ReadsAnArchiveMadeByAnotherWriter)
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
    EXPECT_EQ(document->stringValue("uniqueID"), "DOC-PY-1");
    EXPECT_EQ(document->stringValue("number"), "RE-2026-042");
    EXPECT_EQ(document->dateValue("date"), utc(2026, 2, 14, 9, 30));
    EXPECT_EQ(document->dateValue("due"), utc(2026, 3, 16));
    EXPECT_EQ(document->intValue("status"), 1);
    EXPECT_EQ(document->floatValue("amount"), 232.53f);
    EXPECT_EQ(document->intValue("misc2"), -3);
    EXPECT_EQ(document->stringValue("notes"), QString::fromUtf8("Grüße 😀"));
    ASSERT_EQ(document->items().size(), 2);
    const ManagedObject* first = document->items()[0];
    const ManagedObject* second = document->items()[1];
    EXPECT_EQ(first->stringValue("title"), "Design work");
    EXPECT_EQ(first->floatValue("unitCount"), 2.5f);
    EXPECT_TRUE(first->boolValue("isTax1Applied"));
    EXPECT_EQ(second->stringValue("title"), "Hosting");
    EXPECT_EQ(second->floatValue("unitCount"), 12.0f);
    EXPECT_EQ(second->floatValue("baseAmount"), 4.75f);
    EXPECT_FALSE(second->boolValue("isTax1Applied"));

    auto design = InterchangeFile::readDesignFile(dataDir + "/python-design.design");
    ASSERT_TRUE(design.ok());
    EXPECT_EQ(design.value().value("class").toString(), "Design");
    EXPECT_EQ(design.value().value("title").toString(), "From Python");
    EXPECT_EQ(design.value().value("isDefault"), QVariant(true));
}

TEST(KeyedArchive, PlainPropertyListsAreReadToo)
{
    auto plain = InterchangeFile::readDocumentFile(dataDir + "/plain-document.vorn");
    ASSERT_TRUE(plain.ok()) << plain.error().fullText().toStdString();
    EXPECT_EQ(plain.value().value("number").toString(), "Q-7");
    EXPECT_EQ(plain.value().value("date").toDateTime(), utc(2026, 1, 5, 8));
    EXPECT_EQ(plain.value().value("items").toList().size(), 1);
}

TEST(KeyedArchive, DocumentFileReadsBackWithAnIndependentReader)
{
    const QString python = QStandardPaths::findExecutable("python3");
    if (python.isEmpty())
        GTEST_SKIP() << "python3 is not installed";
    FixedClock clock(utc(2026, 3, 1));
    ObjectContext context(nullptr, clock);
    ManagedObject* document = context.insertNewObject(Entity::Invoice);
    document->setValue("number", QString::fromUtf8("RE-1 «ü»"));
    document->setValue("amount", 34.65f);
    document->setValue("kind", 1);
    document->setValue("isPaid", true);
    document->setValue("date", utc(2026, 2, 14, 9, 30, 12, 250));
    for (const char* title : {"First", "Second"}) {
        ManagedObject* item = context.insertNewObject(Entity::Item);
        item->setValue("title", title);
        item->setValue("misc3", 0.1f);
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
