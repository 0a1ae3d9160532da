#include "documents/KeyedArchive.h"
#include "documents/InterchangeFile.h"
#include "documents/Serialization.h"

#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/PropertyList.h"
#include "tests/support/TestValues.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>

using namespace vorn;
using namespace vorn::test;

namespace {

const QString dataDir = QStringLiteral(VORN_TEST_DATA_DIR);
const QDateTime now = utc(2026, 3, 1);

QVariant uid(quint64 value)
{
    return QVariant::fromValue(PlistUid{value});
}

QVariantMap classRecord(const QString& name, const QStringList& classes)
{
    return {{"$classname", name}, {"$classes", QVariantList(classes.cbegin(), classes.cend())}};
}

// Reads a file as opening a document does: its document entry, made an invoice.
Result<ManagedObject*> readDocument(const QByteArray& data, ObjectContext& context)
{
    auto entry = InterchangeFile::rootEntry(data, "vornDic");
    if (!entry)
        return entry.error();
    QVariantMap dictionary = entry.value();
    dictionary.insert("class", "Invoice");
    return Serialization::createManagedObjectFromDictionary(dictionary, context);
}

QByteArray fileData(const QString& name)
{
    QFile f(dataDir + "/" + name);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

// The header and the dates are checked by the independent reader below, the
// round trip by the serialization tests; here what keeps archives small and
// readable by the platform's own unarchiver: one record per class, with its
// class chain, and equal strings stored once.
TEST(KeyedArchive, SharesClassRecordsAndEqualStrings)
{
    const QVariantMap tree{
        {"a", "x"}, {"b", "x"}, {"d", now}, {"l", QVariantList{QVariantList{"x"}, QVariantList{}}}};
    const QByteArray data = KeyedArchive::archive(tree);
    ASSERT_TRUE(data.startsWith("bplist00"));
    const QVariantList objects = PropertyList::read(data).value().toMap().value("$objects").toList();
    EXPECT_EQ(objects.count(QVariant("x")), 1);
    for (const QVariantMap& record :
         {classRecord("NSDate", {"NSDate", "NSObject"}), classRecord("NSArray", {"NSArray", "NSObject"}),
          classRecord("NSMutableDictionary", {"NSMutableDictionary", "NSDictionary", "NSObject"})})
        EXPECT_EQ(objects.count(record), 1) << record.value("$classname").toString().toStdString();
}

TEST(KeyedArchive, ReadsAnArchiveMadeByAnotherWriterAndPlainPropertyLists)
{
    FixedClock clock(now);
    ObjectContext context(nullptr, clock);
    auto created = readDocument(fileData("python-document.vorn"), context);
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

    // Plain property lists are read too.
    auto plain = InterchangeFile::readDocumentFile(dataDir + "/plain-document.vorn");
    ASSERT_TRUE(plain.ok()) << plain.error().fullText().toStdString();
    EXPECT_EQ(fields(plain.value(), {"number", "date"}), "Q-7|2026-01-05T08:00:00.000Z");
    EXPECT_EQ(plain.value().value("items").toList().size(), 1);
}

TEST(KeyedArchive, DocumentFileReadsBackWithAnIndependentReader)
{
    const QString python = QStandardPaths::findExecutable("python3");
    // scripts/setup.sh installs python3; without it this check would not run at all.
    ASSERT_FALSE(python.isEmpty()) << "python3 is not installed: the independent reader cannot run";
    FixedClock clock(now);
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
    const QVariantMap dic = QJsonDocument::fromJson(process.readAllStandardOutput())
                                .object()
                                .toVariantMap()
                                .value("vornDic")
                                .toMap();
    EXPECT_EQ(fields(dic, {"class", "number", "amount", "kind", "isPaid"}),
              QString::fromUtf8("NSManagedObject|RE-1 «ü»|") + QVariant(double(34.65f)).toString() +
                  "|1|true");
    // Dates are seconds since 2001-01-01, to the millisecond.
    EXPECT_DOUBLE_EQ(dic.value("date").toMap().value("date").toDouble(),
                     (utc(2026, 2, 14, 9, 30, 12, 250).toMSecsSinceEpoch() - 978307200000LL) / 1000.0);
    EXPECT_EQ(dic.value("misc5").toMap().value("date").toDouble(), (now.toSecsSinceEpoch() - 978307200.0));
    const QVariantList items = dic.value("items").toList();
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(fields(items[1].toMap(), {"title", "misc3"}), "Second|" + QVariant(double(0.1f)).toString());
    EXPECT_EQ(items[0].toMap().value("title"), "First");
    EXPECT_FALSE(items[0].toMap().contains("invoice"));
}

// ---------------------------------------------------------------------------
// Damaged and hostile document files.

namespace {

QByteArray archiveOf(const QVariantList& objects, const QVariant& root = uid(1),
                     const QString& archiver = QStringLiteral("NSKeyedArchiver"))
{
    return PropertyList::toBinary(QVariantMap{{"$archiver", archiver},
                                              {"$version", qint64(100000)},
                                              {"$top", QVariantMap{{"root", root}}},
                                              {"$objects", objects}});
}

const QVariantMap dictClass = classRecord("NSMutableDictionary", {"NSDictionary"});
const QVariantMap arrayClass = classRecord("NSArray", {"NSArray"});
const QVariantMap dateClass = classRecord("NSDate", {"NSDate"});

// Records of a keyed archive: a dictionary (class <object 2>), an array and a
// date (class <object 9>, appended by documentWith).
QVariantMap dictionary(const QVariantList& keys, const QVariantList& objects)
{
    return {{"NS.keys", keys}, {"NS.objects", objects}, {"$class", uid(2)}};
}
QVariantMap array(const QVariantList& objects, const QVariant& cls = uid(9))
{
    return {{"NS.objects", objects}, {"$class", cls}};
}
QVariantMap date(const QVariant& time)
{
    return {{"NS.time", time}, {"$class", uid(9)}};
}

// {"vornDic": {"class": "Invoice", key: <object 6>}} with object 6 given.
QByteArray documentWith(const QVariant& sixth, const QVariantList& more = {})
{
    QVariantList objects{"$null", dictionary({uid(3)}, {uid(4)}), dictClass, "vornDic"};
    objects << dictionary({uid(5), uid(7)}, {uid(8), uid(6)}) << "class" << sixth << "date"
            << "Invoice";
    objects.append(more);
    return archiveOf(objects);
}

QByteArray nestedUidArrays(int depth)
{
    QVariantList objects{"$null", arrayClass};
    for (int i = 0; i < depth; ++i)
        objects.append(array({uid(quint64(objects.size() + 1))}, uid(1)));
    objects.append("bottom");
    return archiveOf(objects, uid(2));
}

// A document with one item, as a file would hold it.
ManagedObject* documentWithItem(ObjectContext& context)
{
    ManagedObject* document = context.insertNewObject(Entity::Invoice);
    assign(*document, "number", "RE-1", "amount", 12.5f);
    ManagedObject* item = context.insertNewObject(Entity::Item);
    item->setValue("title", "Work");
    document->insertObject("items", item);
    return document;
}

struct HostileCase
{
    const char* name;
    QByteArray data;
    bool archiveReads = false; // the archive itself reads; what it holds is refused
};

} // namespace

class HostileDocumentFile : public ::testing::TestWithParam<HostileCase>
{
};

// Damage the property list reader refuses on its own is tested with it.
TEST_P(HostileDocumentFile, IsRefusedWithAMessageAndInsertsNothing)
{
    FixedClock clock(now);
    ObjectContext context(nullptr, clock);
    EXPECT_EQ(KeyedArchive::unarchive(GetParam().data).ok(), GetParam().archiveReads);
    auto created = readDocument(GetParam().data, context);
    ASSERT_FALSE(created.ok()) << "accepted";
    EXPECT_FALSE(created.error().message.isEmpty());
    EXPECT_NE(created.error().code, 0);
    for (const auto& entity : context.model().entities())
        EXPECT_TRUE(context.fetch(entity->name()).isEmpty()) << entity->name().toStdString();
}

const HostileCase hostileCases[] = {
    {"text", "hello, this is not a property list"},
    {"html", "<html><body><dict></body></html>"},
    {"sharedReferencesUnfoldingToBillions", fileData("shared-bomb.plist")},
    {"rootIsAnArray", PropertyList::toXml(QVariantList{"vornDic"}), true},
    {"noDocumentKey", PropertyList::toXml(QVariantMap{{"designDic", QVariantMap{}}}), true},
    {"documentKeyNotARecord", PropertyList::toXml(QVariantMap{{"vornDic", "Invoice"}}), true},
    {"otherArchiver", archiveOf({"$null", "x"}, uid(1), "NSArchiver")},
    {"noTop", PropertyList::toBinary(
                  QVariantMap{{"$archiver", "NSKeyedArchiver"}, {"$objects", QVariantList{"$null"}}})},
    {"objectsNotAList",
     PropertyList::toBinary(QVariantMap{
         {"$archiver", "NSKeyedArchiver"}, {"$top", QVariantMap{{"root", uid(1)}}}, {"$objects", "none"}})},
    {"rootNotAReference", archiveOf({"$null", "x"}, "x")},
    {"rootIsNull", archiveOf({"$null", "x"}, uid(0))},
    {"rootOutOfRange", archiveOf({"$null", "x"}, uid(99))},
    {"cycleThroughItself", archiveOf({"$null", dictionary({uid(3)}, {uid(1)}), dictClass, "vornDic"})},
    {"cycleThroughAnArray", documentWith(array({uid(4)}), {arrayClass})},
    {"referencesTooDeep", nestedUidArrays(KeyedArchive::maximumDepth + 10)},
    {"sharedObjectsUnfoldingFarPastTheFile",
     archiveOf({"$null", arrayClass, array(QVariantList(100, uid(3)), uid(1)),
                array(QVariantList(100, uid(4)), uid(1)), array(QVariantList(100, uid(5)), uid(1)), "x"},
               uid(2))},
    {"nullAsValue", documentWith(array({uid(0)}), {arrayClass})},
    {"referenceOutOfRange", documentWith(array({uid(500)}), {arrayClass})},
    {"unknownClass", documentWith(array({}), {classRecord("NSWindow", {"NSWindow"})})},
    {"classIsText", documentWith(array({}, uid(8)))},
    {"classMissing", documentWith(QVariantMap{{"NS.objects", QVariantList{}}})},
    {"plainListAsObject", documentWith(QVariantList{uid(8)})},
    {"referenceAsObject", documentWith(uid(8))},
    {"keysNotAList",
     documentWith(QVariantMap{{"NS.keys", "a"}, {"NS.objects", QVariantList{}}, {"$class", uid(2)}})},
    {"keyNotText", documentWith(dictionary({uid(9)}, {uid(8)}), {qint64(5)})},
    {"keysAndObjectsDiffer", documentWith(dictionary({uid(5)}, {}))},
    {"timeNotANumber", documentWith(date("noon"), {dateClass})},
    {"timeInfinite", documentWith(date(std::numeric_limits<double>::infinity()), {dateClass})},
    {"timeBeyondAnyCalendar", documentWith(date(1e300), {dateClass})},
    {"textWhereADateBelongs", documentWith("tomorrow"), true},
    {"unknownRecordClass",
     archiveOf({"$null", dictionary({uid(3)}, {uid(4)}), dictClass, "vornDic", dictionary({uid(5)}, {uid(3)}),
                "items"}),
     true},
};

INSTANTIATE_TEST_SUITE_P(Cases, HostileDocumentFile, ::testing::ValuesIn(hostileCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(HostileDocumentFile, EveryTruncationAndEveryFlippedByteIsSurvived)
{
    // A real document file damaged at every position: no crash, and a
    // truncated file is always refused.
    FixedClock clock(now);
    ObjectContext source(nullptr, clock);
    const QByteArray file = InterchangeFile::documentFileData(*documentWithItem(source));

    ObjectContext target(nullptr, clock);
    for (qsizetype length = 0; length < file.size(); ++length)
        EXPECT_FALSE(readDocument(file.left(length), target).ok()) << "truncated to " << length;
    int accepted = 0;
    for (qsizetype i = 0; i < file.size(); ++i) {
        for (unsigned char mask : {0x01, 0x80, 0xFF}) {
            QByteArray damaged = file;
            damaged[i] = char(damaged[i] ^ mask);
            accepted += readDocument(damaged, target).ok() ? 1 : 0;
        }
    }
    // Some flips only change a letter of a value; most break the file.
    EXPECT_LT(accepted, file.size() * 3);
    EXPECT_TRUE(readDocument(file, target).ok());
}

TEST(HostileDocumentFile, WrongTypeAtAnyKeyIsRefused)
{
    FixedClock clock(now);
    ObjectContext source(nullptr, clock);
    ManagedObject* document = documentWithItem(source);
    for (ManagedObject* o : {document, document->items()[0]}) {
        const auto& attributes = o->entity().attributes();
        for (int i = 0; i < int(attributes.size()); ++i)
            if (!o->value(i).isValid())
                o->setValue(i, attributes[size_t(i)].type == AttributeType::String ? QVariant("x")
                                                                                   : QVariant(1));
    }
    const QVariantMap good = Serialization::toDictionary(*document);

    // Values that fit no attribute of the other types (integers serve every
    // number and switch), each written into an archive and read back as a
    // stranger's file would be.
    const QVariantList strangers{QVariantList{"a"}, QVariantMap{{"k", "v"}}, QByteArray("bytes"), "text", now,
                                 qint64(3)};
    const auto fitting = [](AttributeType type) {
        return type == AttributeType::String ? QMetaType::QString
               : type == AttributeType::Data ? QMetaType::QByteArray
               : type == AttributeType::Date ? QMetaType::QDateTime
                                             : QMetaType::LongLong;
    };
    ObjectContext target(nullptr, clock);
    for (auto it = good.cbegin(); it != good.cend(); ++it) {
        if (it.key() == "class")
            continue;
        const AttributeDescription* attribute = document->entity().attribute(it.key());
        for (const QVariant& stranger : strangers) {
            QVariantMap changed = good;
            changed.insert(it.key(), stranger);
            auto created = readDocument(KeyedArchive::archive(QVariantMap{{"vornDic", changed}}), target);
            EXPECT_EQ(created.ok(), attribute && stranger.typeId() == fitting(attribute->type))
                << it.key().toStdString() << " = " << stranger.typeName();
            if (created.ok())
                target.rollback();
            EXPECT_TRUE(target.fetch(Entity::Invoice).isEmpty());
        }
    }
}
