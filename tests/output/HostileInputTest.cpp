#include "documents/InterchangeFile.h"
#include "documents/KeyedArchive.h"
#include "documents/Serialization.h"

#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/PropertyList.h"

#include <QFile>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <limits>

using namespace vorn;

namespace {

const QString dataDir = QStringLiteral(VORN_TEST_DATA_DIR);

QVariant uid(quint64 value)
{
    return QVariant::fromValue(PlistUid{value});
}

QByteArray archiveOf(const QVariantList& objects, const QVariant& root = uid(1),
                     const QString& archiver = QStringLiteral("NSKeyedArchiver"))
{
    return PropertyList::toBinary(QVariantMap{{"$archiver", archiver},
                                              {"$version", qint64(100000)},
                                              {"$top", QVariantMap{{"root", root}}},
                                              {"$objects", objects}});
}

const QVariantMap dictClass{{"$classname", "NSMutableDictionary"}, {"$classes", QStringList{"NSDictionary"}}};
const QVariantMap arrayClass{{"$classname", "NSArray"}, {"$classes", QStringList{"NSArray"}}};
const QVariantMap dateClass{{"$classname", "NSDate"}, {"$classes", QStringList{"NSDate"}}};

// {"vornDic": {"class": "Invoice", key: <object 6>}} with object 6 given.
QByteArray documentWith(const QVariant& sixth, const QVariantList& more = {})
{
    QVariantList objects{
        "$null",
        QVariantMap{
            {"NS.keys", QVariantList{uid(3)}}, {"NS.objects", QVariantList{uid(4)}}, {"$class", uid(2)}},
        dictClass,
        "vornDic",
        QVariantMap{{"NS.keys", QVariantList{uid(5), uid(7)}},
                    {"NS.objects", QVariantList{uid(8), uid(6)}},
                    {"$class", uid(2)}},
        "class",
        sixth,
        "date",
        "Invoice",
    };
    objects.append(more);
    return archiveOf(objects);
}

QByteArray nestedUidArrays(int depth)
{
    QVariantList objects{"$null", arrayClass};
    for (int i = 0; i < depth; ++i)
        objects.append(
            QVariantMap{{"NS.objects", QVariantList{uid(quint64(objects.size() + 1))}}, {"$class", uid(1)}});
    objects.append("bottom");
    return archiveOf(objects, uid(2));
}

QByteArray deepXml(int depth)
{
    return "<?xml version=\"1.0\"?><plist version=\"1.0\">" + QByteArray("<array>").repeated(depth) +
           QByteArray("</array>").repeated(depth) + "</plist>";
}

QByteArray deepBinary(int depth)
{
    QVariant v = QVariantList{};
    for (int i = 0; i < depth; ++i)
        v = QVariantList{v};
    return PropertyList::toBinary(v);
}

QByteArray fileData(const QString& name)
{
    QFile f(dataDir + "/" + name);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

struct HostileCase
{
    const char* name;
    QByteArray data;
};

} // namespace

class HostileDocumentFile : public ::testing::TestWithParam<HostileCase>
{
};

TEST_P(HostileDocumentFile, IsRefusedWithAMessageAndInsertsNothing)
{
    FixedClock clock(QDateTime(QDate(2026, 3, 1), QTime(10, 0), QTimeZone::utc()));
    ObjectContext context(nullptr, clock);
    Error error;
    auto entry = InterchangeFile::rootEntry(GetParam().data, "vornDic");
    if (entry) {
        QVariantMap dictionary = entry.value();
        dictionary.insert("class", "Invoice");
        auto created = Serialization::createManagedObjectFromDictionary(dictionary, context);
        ASSERT_FALSE(created.ok()) << "accepted";
        error = created.error();
    } else {
        error = entry.error();
    }
    EXPECT_FALSE(error.message.isEmpty());
    EXPECT_NE(error.code, 0);
    for (const auto& entity : context.model().entities())
        EXPECT_TRUE(context.fetch(entity->name()).isEmpty()) << entity->name().toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Cases, HostileDocumentFile,
    ::testing::Values(
        HostileCase{"empty", {}}, HostileCase{"text", "hello, this is not a property list"},
        HostileCase{"html", "<html><body><dict></body></html>"}, HostileCase{"justTheMagic", "bplist00"},
        HostileCase{"deepXml", deepXml(100000)}, HostileCase{"deepBinary", deepBinary(2000)},
        HostileCase{"sharedReferencesUnfoldingToBillions", fileData("shared-bomb.plist")},
        HostileCase{"rootIsAnArray", PropertyList::toXml(QVariantList{"vornDic"})},
        HostileCase{"noDocumentKey", PropertyList::toXml(QVariantMap{{"designDic", QVariantMap{}}})},
        HostileCase{"documentKeyNotARecord", PropertyList::toXml(QVariantMap{{"vornDic", "Invoice"}})},
        HostileCase{"otherArchiver", archiveOf({"$null", "x"}, uid(1), "NSArchiver")},
        HostileCase{"noTop", PropertyList::toBinary(QVariantMap{{"$archiver", "NSKeyedArchiver"},
                                                                {"$objects", QVariantList{"$null"}}})},
        HostileCase{"objectsNotAList",
                    PropertyList::toBinary(QVariantMap{{"$archiver", "NSKeyedArchiver"},
                                                       {"$top", QVariantMap{{"root", uid(1)}}},
                                                       {"$objects", "none"}})},
        HostileCase{"rootNotAReference", archiveOf({"$null", "x"}, "x")},
        HostileCase{"rootIsNull", archiveOf({"$null", "x"}, uid(0))},
        HostileCase{"rootOutOfRange", archiveOf({"$null", "x"}, uid(99))},
        HostileCase{"cycleThroughItself", archiveOf({"$null",
                                                     QVariantMap{{"NS.keys", QVariantList{uid(3)}},
                                                                 {"NS.objects", QVariantList{uid(1)}},
                                                                 {"$class", uid(2)}},
                                                     dictClass, "vornDic"})},
        HostileCase{"cycleThroughAnArray",
                    documentWith(QVariantMap{{"NS.objects", QVariantList{uid(4)}}, {"$class", uid(9)}},
                                 {arrayClass})},
        HostileCase{"referencesTooDeep", nestedUidArrays(KeyedArchive::maximumDepth + 10)},
        HostileCase{
            "sharedObjectsUnfoldingFarPastTheFile",
            archiveOf({"$null", arrayClass,
                       QVariantMap{{"NS.objects", QVariantList(100, uid(3))}, {"$class", uid(1)}},
                       QVariantMap{{"NS.objects", QVariantList(100, uid(4))}, {"$class", uid(1)}},
                       QVariantMap{{"NS.objects", QVariantList(100, uid(5))}, {"$class", uid(1)}}, "x"},
                      uid(2))},
        HostileCase{"nullAsValue",
                    documentWith(QVariantMap{{"NS.objects", QVariantList{uid(0)}}, {"$class", uid(9)}},
                                 {arrayClass})},
        HostileCase{"referenceOutOfRange",
                    documentWith(QVariantMap{{"NS.objects", QVariantList{uid(500)}}, {"$class", uid(9)}},
                                 {arrayClass})},
        HostileCase{
            "unknownClass",
            documentWith(QVariantMap{{"NS.objects", QVariantList{}}, {"$class", uid(9)}},
                         {QVariantMap{{"$classname", "NSWindow"}, {"$classes", QStringList{"NSWindow"}}}})},
        HostileCase{"classIsText",
                    documentWith(QVariantMap{{"NS.objects", QVariantList{}}, {"$class", uid(8)}})},
        HostileCase{"classMissing", documentWith(QVariantMap{{"NS.objects", QVariantList{}}})},
        HostileCase{"plainListAsObject", documentWith(QVariantList{uid(8)})},
        HostileCase{"referenceAsObject", documentWith(uid(8))},
        HostileCase{
            "keysNotAList",
            documentWith(QVariantMap{{"NS.keys", "a"}, {"NS.objects", QVariantList{}}, {"$class", uid(2)}})},
        HostileCase{"keyNotText", documentWith(QVariantMap{{"NS.keys", QVariantList{uid(9)}},
                                                           {"NS.objects", QVariantList{uid(8)}},
                                                           {"$class", uid(2)}},
                                               {qint64(5)})},
        HostileCase{"keysAndObjectsDiffer", documentWith(QVariantMap{{"NS.keys", QVariantList{uid(5)}},
                                                                     {"NS.objects", QVariantList{}},
                                                                     {"$class", uid(2)}})},
        HostileCase{"timeNotANumber",
                    documentWith(QVariantMap{{"NS.time", "noon"}, {"$class", uid(9)}}, {dateClass})},
        HostileCase{"timeInfinite",
                    documentWith(QVariantMap{{"NS.time", std::numeric_limits<double>::infinity()},
                                             {"$class", uid(9)}},
                                 {dateClass})},
        HostileCase{"timeBeyondAnyCalendar",
                    documentWith(QVariantMap{{"NS.time", 1e300}, {"$class", uid(9)}}, {dateClass})},
        HostileCase{"textWhereADateBelongs", documentWith("tomorrow")},
        HostileCase{"unknownRecordClass",
                    archiveOf({"$null",
                               QVariantMap{{"NS.keys", QVariantList{uid(3)}},
                                           {"NS.objects", QVariantList{uid(4)}},
                                           {"$class", uid(2)}},
                               dictClass, "vornDic",
                               QVariantMap{{"NS.keys", QVariantList{uid(5)}},
                                           {"NS.objects", QVariantList{uid(3)}},
                                           {"$class", uid(2)}},
                               "items"})}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(HostileDocumentFile, EveryTruncationAndEveryFlippedByteIsSurvived)
{
    // A real document file damaged at every position: no crash, and a
    // truncated file is always refused.
    FixedClock clock(QDateTime(QDate(2026, 3, 1), QTime(10, 0), QTimeZone::utc()));
    ObjectContext source(nullptr, clock);
    ManagedObject* document = source.insertNewObject(Entity::Invoice);
    document->setValue("number", "RE-1");
    document->setValue("amount", 12.5f);
    ManagedObject* item = source.insertNewObject(Entity::Item);
    item->setValue("title", "Work");
    document->insertObject("items", item);
    const QByteArray file = InterchangeFile::documentFileData(*document);

    ObjectContext target(nullptr, clock);
    auto attempt = [&target](const QByteArray& data) {
        auto entry = InterchangeFile::rootEntry(data, "vornDic");
        if (!entry)
            return false;
        QVariantMap dictionary = entry.value();
        dictionary.insert("class", "Invoice");
        auto created = Serialization::createManagedObjectFromDictionary(dictionary, target);
        return created.ok();
    };
    for (qsizetype length = 0; length < file.size(); ++length)
        EXPECT_FALSE(attempt(file.left(length))) << "truncated to " << length;
    int accepted = 0;
    for (qsizetype i = 0; i < file.size(); ++i) {
        for (unsigned char mask : {0x01, 0x80, 0xFF}) {
            QByteArray damaged = file;
            damaged[i] = char(damaged[i] ^ mask);
            accepted += attempt(damaged) ? 1 : 0;
        }
    }
    // Some flips only change a letter of a value; most break the file.
    EXPECT_LT(accepted, file.size() * 3);
    EXPECT_TRUE(attempt(file));
}

TEST(HostileDocumentFile, WrongTypeAtAnyKeyIsRefused)
{
    FixedClock clock(QDateTime(QDate(2026, 3, 1), QTime(10, 0), QTimeZone::utc()));
    ObjectContext source(nullptr, clock);
    ManagedObject* document = source.insertNewObject(Entity::Invoice);
    ManagedObject* item = source.insertNewObject(Entity::Item);
    document->insertObject("items", item);
    for (ManagedObject* o : {document, item}) {
        const auto& attributes = o->entity().attributes();
        for (int i = 0; i < int(attributes.size()); ++i)
            if (!o->value(i).isValid())
                o->setValue(i, attributes[size_t(i)].type == AttributeType::String ? QVariant("x")
                                                                                   : QVariant(1));
    }
    const QVariantMap good = Serialization::toDictionary(*document);

    // Values that fit no attribute of the other types, each written into an
    // archive and read back as a stranger's file would be.
    const QVariantList strangers{QVariantList{"a"},
                                 QVariantMap{{"k", "v"}},
                                 QByteArray("bytes"),
                                 "text",
                                 QDateTime(QDate(2020, 1, 1), QTime(0, 0), QTimeZone::utc()),
                                 qint64(3)};
    ObjectContext target(nullptr, clock);
    for (auto it = good.cbegin(); it != good.cend(); ++it) {
        if (it.key() == "class")
            continue;
        const AttributeDescription* attribute = document->entity().attribute(it.key());
        for (const QVariant& stranger : strangers) {
            const bool fits =
                attribute &&
                ((attribute->type == AttributeType::String && stranger.typeId() == QMetaType::QString) ||
                 (attribute->type == AttributeType::Data && stranger.typeId() == QMetaType::QByteArray) ||
                 (attribute->type == AttributeType::Date && stranger.typeId() == QMetaType::QDateTime) ||
                 (stranger.typeId() == QMetaType::LongLong && attribute->type != AttributeType::String &&
                  attribute->type != AttributeType::Data && attribute->type != AttributeType::Date));
            QVariantMap changed = good;
            changed.insert(it.key(), stranger);
            changed.insert("class", "Invoice");
            auto entry = InterchangeFile::rootEntry(KeyedArchive::archive(QVariantMap{{"vornDic", changed}}),
                                                    "vornDic");
            ASSERT_TRUE(entry.ok());
            auto created = Serialization::createManagedObjectFromDictionary(entry.value(), target);
            EXPECT_EQ(created.ok(), fits) << it.key().toStdString() << " = " << stranger.typeName();
            if (created.ok())
                target.rollback();
            EXPECT_TRUE(target.fetch(Entity::Invoice).isEmpty());
        }
    }
}
