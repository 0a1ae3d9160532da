#include "documents/Serialization.h"
#include "documents/InterchangeFile.h"
#include "documents/KeyedArchive.h"

#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "store/PropertyList.h"
#include "tests/support/TestValues.h"

#include <QTimeZone>

#include <gtest/gtest.h>

using namespace vorn;
using vorn::test::fields;

namespace {

const QDateTime now(QDate(2026, 3, 1), QTime(10, 0), QTimeZone::utc());
const QDateTime referenceDate(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());

// A value of each type that would be damaged by a careless conversion:
// non-ASCII text, a negative integer, a float that is not a short double, a
// date with milliseconds, data with a zero byte.
QVariant sampleValue(AttributeType type, int salt)
{
    switch (type) {
    case AttributeType::String:
        return QStringLiteral("Grüße 😀 <b>&amp;</b>\nline %1").arg(salt);
    case AttributeType::Integer:
        return qint64(-42 - salt);
    case AttributeType::Float:
        return 34.65f + float(salt) / 7.0f;
    case AttributeType::Bool:
        return true;
    case AttributeType::Date:
        return QDateTime(QDate(2026, 2, 14), QTime(9, 30, 12, 345), QTimeZone::utc()).addSecs(salt * 3600);
    case AttributeType::Data:
        return QByteArray("\x89PNG\0\r\n", 7) + QByteArray::number(salt);
    }
    return {};
}

void fillEveryAttribute(ManagedObject& object, const QString& leaveAbsent)
{
    const auto& attributes = object.entity().attributes();
    for (int i = 0; i < int(attributes.size()); ++i)
        object.setValue(i, attributes[size_t(i)].name == leaveAbsent
                               ? QVariant()
                               : sampleValue(attributes[size_t(i)].type, i));
}

// How a record's dictionary travels: as it is, or written into a file of
// the given form (the dictionary under "vornDic") and read back.
const std::pair<const char*, QByteArray (*)(const QVariant&)> carriers[] = {
    {"Dictionary", nullptr},
    {"KeyedArchive", KeyedArchive::archive},
    {"BinaryPlist", PropertyList::toBinary},
    {"XmlPlist", PropertyList::toXml}};

class SerializationTest : public ::testing::Test
{
protected:
    FixedClock clock{now};
    ObjectContext context{nullptr, clock};

    ManagedObject* document(int items)
    {
        ManagedObject* invoice = context.insertNewObject(Entity::Invoice);
        invoice->setValue("number", "RE-7");
        for (int i = 0; i < items; ++i) {
            ManagedObject* item = context.insertNewObject(Entity::Item);
            item->setValue("title", QStringLiteral("Item %1").arg(i));
            invoice->insertObject("items", item);
        }
        return invoice;
    }
};

} // namespace

// Every attribute of every kind of record, one of its own left absent and
// the spare ones all records share filled, through every carrier.
TEST_F(SerializationTest, EveryAttributeComesBackAsItWas)
{
    const std::pair<QString, QString> absent[] = {
        {Entity::Invoice, "subject"},     {Entity::Item, "sku"},
        {Entity::Address, "misc5"},       {Entity::RecentItem, "misc1"},
        {Entity::RecentShipping, "note"}, {Entity::Design, "css"}};
    ObjectContext target(nullptr, clock);
    for (const auto& [entity, absentKey] : absent)
        for (const auto& [carrier, write] : carriers) {
            SCOPED_TRACE(entity.toStdString() + " " + carrier);
            ManagedObject* original = context.insertNewObject(entity);
            fillEveryAttribute(*original, absentKey);
            const QVariantMap dictionary = Serialization::toDictionary(*original);
            EXPECT_EQ(dictionary.value("class").toString(), "NSManagedObject");
            EXPECT_FALSE(dictionary.contains(absentKey));

            QVariantMap read = dictionary;
            if (write) {
                auto back =
                    InterchangeFile::rootEntry(write(QVariantMap{{"vornDic", dictionary}}), "vornDic");
                ASSERT_TRUE(back.ok()) << back.error().message.toStdString();
                read = back.value();
            }
            // The generic class name stands for an item; other entities are named.
            read.insert("class", entity == Entity::Item ? QStringLiteral("NSManagedObject") : entity);
            auto copy = Serialization::createManagedObjectFromDictionary(read, target);
            ASSERT_TRUE(copy.ok()) << copy.error().message.toStdString();
            ASSERT_EQ(copy.value()->entityName(), entity);

            for (const AttributeDescription& a : original->entity().attributes()) {
                const QVariant expected = original->value(a.name);
                const QVariant actual = copy.value()->value(a.name);
                if (a.name == absentKey) {
                    // Absent in the file: the new object keeps what insertion gave it.
                    const QVariant inserted = target.model().defaultValue(a, now);
                    EXPECT_EQ(actual.isValid(), inserted.isValid()) << a.name.toStdString();
                    EXPECT_EQ(actual, inserted) << a.name.toStdString();
                    continue;
                }
                ASSERT_EQ(actual.typeId(), expected.typeId()) << a.name.toStdString();
                if (a.type == AttributeType::Date && write == PropertyList::toXml)
                    // XML property lists keep whole seconds.
                    EXPECT_EQ(actual.toDateTime().toSecsSinceEpoch(),
                              expected.toDateTime().toSecsSinceEpoch());
                else
                    EXPECT_EQ(actual, expected) << a.name.toStdString();
            }
        }
}

// A document holds its items in order, each without the document again; an
// item holds its document with the other items; read back, the items are the
// new document's, in the same order.
TEST_F(SerializationTest, DocumentsAndItemsWriteEachOtherOnce)
{
    ManagedObject* invoice = document(3);
    const auto titles = [](const QVariantList& items) {
        QStringList list;
        for (const QVariant& item : items)
            list << fields(item.toMap(), {"class", "title", "invoice"});
        return list;
    };
    const QVariantMap dictionary = Serialization::toDictionary(*invoice);
    EXPECT_EQ(titles(dictionary.value("items").toList()),
              QStringList({"NSManagedObject|Item 0|", "NSManagedObject|Item 1|", "NSManagedObject|Item 2|"}));
    const QVariantMap owner = Serialization::toDictionary(*invoice->items()[1]).value("invoice").toMap();
    EXPECT_EQ(owner.value("number").toString(), "RE-7");
    EXPECT_EQ(titles(owner.value("items").toList()),
              QStringList({"NSManagedObject|Item 0|", "NSManagedObject|Item 2|"}));
    // A history handed in leaves out what it holds.
    QSet<const ManagedObject*> history{invoice};
    EXPECT_FALSE(
        Serialization::toDictionaryWithTraversalHistory(*invoice->items()[0], &history).contains("invoice"));
    EXPECT_EQ(history.size(), 2);

    QVariantMap read = dictionary;
    read.insert("class", "Invoice");
    auto copy = Serialization::createManagedObjectFromDictionary(read, context);
    ASSERT_TRUE(copy.ok());
    ASSERT_EQ(copy.value()->items().size(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(copy.value()->items()[i]->stringValue("title"), QStringLiteral("Item %1").arg(i));
        EXPECT_EQ(copy.value()->items()[i]->object("invoice"), copy.value());
    }
}

TEST(SerializationDecodedValue, OldDateMarkerBecomesTheReferenceDate)
{
    const struct
    {
        QVariant in;
        QVariant out;
    } cases[] = {
        {QStringLiteral("dAtEaTtr:"), referenceDate},
        {QStringLiteral("dAtEaTtr:788918400"), referenceDate},
        {QStringLiteral("dAtEaTtr:-5 whatever"), referenceDate},
        {QStringLiteral("dAtEaTtr"), QStringLiteral("dAtEaTtr")},
        {QStringLiteral("DATEATTR:12"), QStringLiteral("DATEATTR:12")},
        {QStringLiteral(" dAtEaTtr:12"), QStringLiteral(" dAtEaTtr:12")},
        {QString(), QString()},
        {qint64(5), qint64(5)},
        {QByteArray("dAtEaTtr:"), QByteArray("dAtEaTtr:")},
        {referenceDate.addDays(3), referenceDate.addDays(3)},
    };
    for (const auto& c : cases) {
        const QVariant out = Serialization::decodedValueFrom(c.in, "date");
        EXPECT_EQ(out.typeId(), c.out.typeId()) << c.in.toString().toStdString();
        EXPECT_EQ(out, c.out) << c.in.toString().toStdString();
    }
}

namespace {

struct DictionaryCase
{
    const char* name;
    QVariantMap dictionary;
    QString key = {}; // checked on the created document; none: the file is refused
    QVariant expected = {};
};

QVariantMap invoiceWith(const QString& key, const QVariant& value)
{
    return QVariantMap{{"class", "Invoice"}, {"number", "A-1"}, {key, value}};
}

QVariantMap itemDictionary(const QVariantMap& extra = {})
{
    QVariantMap item{{"class", "NSManagedObject"}, {"title", "Work"}};
    item.insert(extra);
    return item;
}

QVariantMap nestedTooDeep()
{
    // Item -> its document -> an item -> its document ... beyond the limit.
    QVariantMap inner = itemDictionary();
    for (int i = 0; i < Serialization::maximumNesting; ++i) {
        QVariantMap invoice{{"class", "Invoice"}, {"items", QVariantList{inner}}};
        inner = itemDictionary({{"invoice", invoice}});
    }
    return QVariantMap{{"class", "Invoice"}, {"items", QVariantList{inner}}};
}

} // namespace

class SerializationDictionaryTest : public SerializationTest,
                                    public ::testing::WithParamInterface<DictionaryCase>
{
};

TEST_P(SerializationDictionaryTest, WholeTreeIsCheckedBeforeAnythingIsInserted)
{
    const DictionaryCase& c = GetParam();
    // An unrelated pending change that a refused file must not disturb.
    ManagedObject* pending = context.insertNewObject(Entity::Address);
    pending->setValue("address", "Somewhere");

    auto created = Serialization::createManagedObjectFromDictionary(c.dictionary, context);
    ASSERT_EQ(created.ok(), !c.key.isEmpty()) << (created.ok() ? "" : created.error().message.toStdString());
    if (!created.ok()) {
        EXPECT_EQ(created.error().code, ErrorCode::FileReadCorrupt);
        EXPECT_FALSE(created.error().message.isEmpty());
        EXPECT_TRUE(context.fetch(Entity::Invoice).isEmpty());
        EXPECT_TRUE(context.fetch(Entity::Item).isEmpty());
        EXPECT_EQ(context.fetch(Entity::Address), QList<ManagedObject*>{pending});
        EXPECT_EQ(pending->stringValue("address"), "Somewhere");
        return;
    }
    const QVariant actual = created.value()->value(c.key);
    EXPECT_EQ(actual.typeId(), c.expected.typeId());
    EXPECT_EQ(actual, c.expected);
}

const DictionaryCase dictionaryCases[] = {
    {"integerServesFloat", invoiceWith("amount", qint64(3)), "amount", 3.0f},
    {"realServesInteger", invoiceWith("status", 2.0), "status", qint64(2)},
    {"numberServesBool", invoiceWith("isPaid", qint64(1)), "isPaid", true},
    {"boolServesInteger", invoiceWith("kind", true), "kind", qint64(1)},
    {"doubleNarrowsToFloat", invoiceWith("amount", double(0.1f)), "amount", 0.1f},
    {"dateMarker", invoiceWith("due", "dAtEaTtr:99"), "due", referenceDate},
    {"unknownKeySkipped", invoiceWith("colour", "red"), "number", QStringLiteral("A-1")},
    {"genericClassIsItem", itemDictionary(), "title", QStringLiteral("Work")},
    {"missingClass", QVariantMap{{"number", "A-1"}}},
    {"classNotText", QVariantMap{{"class", qint64(7)}}},
    {"unknownClass", QVariantMap{{"class", "NSWindow"}}},
    {"dateMarkerForText", invoiceWith("title", "dAtEaTtr:1")},
    {"textForData", QVariantMap{{"class", "Design"}, {"misc5", "yesterday"}}},
    {"floatOutOfRange", invoiceWith("amount", 1e39)},
    {"integerNotFinite", invoiceWith("status", qQNaN())},
    {"textInItems", invoiceWith("items", QVariantList{itemDictionary(), "x"})},
    {"documentInItems", invoiceWith("items", QVariantList{QVariantMap{{"class", "Invoice"}}})},
    {"damagedSecondItem",
     invoiceWith("items", QVariantList{itemDictionary(), itemDictionary({{"unitCount", "two"}})})},
    {"listForOwner", itemDictionary({{"invoice", QVariantList{}}})},
    {"nestedTooDeep", nestedTooDeep()},
};

INSTANTIATE_TEST_SUITE_P(Cases, SerializationDictionaryTest, ::testing::ValuesIn(dictionaryCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(SerializationTest, PopulateFillsAnExistingObjectAndAppendsItems)
{
    ManagedObject* invoice = document(1);
    ASSERT_TRUE(Serialization::populateFromDictionary(
        *invoice, {{"class", "Ignored"}, {"subject", "Hello"}, {"items", QVariantList{itemDictionary()}}}));
    EXPECT_EQ(invoice->stringValue("subject"), "Hello");
    ASSERT_EQ(invoice->items().size(), 2);
    EXPECT_EQ(invoice->items()[1]->stringValue("title"), "Work");

    Status refused = Serialization::populateFromDictionary(*invoice, {{"subject", "Bye"}, {"amount", "x"}});
    EXPECT_FALSE(refused);
    EXPECT_EQ(invoice->stringValue("subject"), "Hello");
}
