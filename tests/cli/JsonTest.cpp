#include "cli/Json.h"
#include "cli/CommandRegistry.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"
#include "tests/support/TestValues.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <cmath>

namespace vorn::test {
namespace {

const std::pair<float, const char*> floatCases[] = {
    {0.07f, "0.07"},         {34.65f, "34.65"},         {0.1f, "0.1"},    {1.0f, "1"},
    {100.0f, "100"},         {-2.5f, "-2.5"},           {0.0f, "0"},      {-0.0f, "0"},
    {1234567.0f, "1234567"}, {16777216.0f, "16777216"}, {1e-7f, "1e-07"}, {3.4028235e38f, "3.4028235e+38"},
    {NAN, "null"},           {INFINITY, "null"},
};

TEST(JsonTest, FloatsAreTheShortestTextOfTheSingle)
{
    for (const auto& [value, text] : floatCases) {
        EXPECT_EQ(Json::floatText(value), QLatin1String(text));
        EXPECT_EQ(Json::write(QVariant(value)), QLatin1String(text));
        // A single widened to double (as settings files keep reals) prints the same.
        if (std::isfinite(value)) {
            EXPECT_EQ(Json::write(QVariant(double(value))), QLatin1String(text));
        }
    }
    // Doubles that are not singles keep their precision.
    EXPECT_EQ(Json::write(QVariant(0.07)), "0.07");
    EXPECT_EQ(Json::write(QVariant(0.1 + 0.2)), "0.30000000000000004");
    EXPECT_EQ(Json::write(QVariant(16777217.0)), "16777217");
}

const std::pair<QDateTime, const char*> dateCases[] = {
    {utc(2026, 11, 21, 9, 52), "2026-11-21T09:52:00.000Z"},
    {utc(2026, 11, 21, 9, 52, 7, 5), "2026-11-21T09:52:07.005Z"},
    {QDateTime(QDate(2026, 7, 1), QTime(0, 30), QTimeZone("Europe/Berlin")), "2026-06-30T22:30:00.000Z"},
    {QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59, 999), QTimeZone(-5 * 3600)),
     "2027-01-01T04:59:59.999Z"},
    {utc(1969, 7, 20, 20, 17, 40), "1969-07-20T20:17:40.000Z"},
    {utc(999, 1, 2, 3, 4, 5), "0999-01-02T03:04:05.000Z"},
};

TEST(JsonTest, DatesAreRfc3339InUtcWithMilliseconds)
{
    for (const auto& [date, text] : dateCases) {
        EXPECT_EQ(Json::dateText(date), QLatin1String(text));
        EXPECT_EQ(Json::write(date), QString("\"%1\"").arg(QLatin1String(text)));
        EXPECT_EQ(QDateTime::fromString(QLatin1String(text), Qt::ISODateWithMs).toMSecsSinceEpoch(),
                  date.toMSecsSinceEpoch());
    }
}

const std::pair<QString, const char*> quoteCases[] = {
    {QString(), "\"\""},
    {"plain", "\"plain\""},
    {"say \"hi\"", "\"say \\\"hi\\\"\""},
    {"C:\\path", "\"C:\\\\path\""},
    {"a\nb\r\tc", "\"a\\nb\\r\\tc\""},
    {"\b\f", "\"\\b\\f\""},
    {QString(QChar(1)) + QChar(0x1f) + QChar(0), "\"\\u0001\\u001f\\u0000\""},
    {"€ 𝄞 ü </script>", "\"€ 𝄞 ü </script>\""},
    {QString(QChar(0x7f)), "\"\x7f\""},
};

TEST(JsonTest, StringsEscapeWhatJsonRequires)
{
    for (const auto& [text, json] : quoteCases) {
        const QString quoted = Json::quote(text);
        EXPECT_EQ(quoted, QString::fromUtf8(json));
        const QJsonDocument back = QJsonDocument::fromJson("[" + quoted.toUtf8() + "]");
        ASSERT_TRUE(back.isArray()) << qPrintable(quoted);
        EXPECT_EQ(back.array().at(0).toString(), text);
    }
}

TEST(JsonTest, NestedValuesWithSortedKeys)
{
    const QVariantMap map{{"b", QVariantList{qint64(1), true, QVariant(), "x"}},
                          {"a", QByteArray("\x00\xff", 2)},
                          {"c", QVariantMap{}},
                          {"d", qint64(-9007199254740993)}};
    EXPECT_EQ(Json::write(map),
              "{\"a\":\"AP8=\",\"b\":[1,true,null,\"x\"],\"c\":{},\"d\":-9007199254740993}");
}

TEST(JsonTest, ObjectDictionaryHasClassAndOnlyPresentValues)
{
    FixedClock clock(utc(2026, 11, 21, 9, 52));
    ObjectContext ctx(nullptr, clock);
    ManagedObject* doc = ctx.insertNewObject(Entity::Invoice);
    doc->setValue("uniqueID", "ID-1");
    doc->setValue("amount", 34.65f);
    doc->setValue("title", QString(""));
    ManagedObject* item = ctx.insertNewObject(Entity::Item);
    item->setValue("uniqueID", "ID-2");
    doc->insertObject("items", item);

    const QString text = Json::objectDictionary(*doc, true);
    const QJsonObject withItems = QJsonDocument::fromJson(text.toUtf8()).object();
    EXPECT_EQ(withItems.value("class").toString(), "NSManagedObject");
    EXPECT_EQ(withItems.value("title").toString("absent"), QString());
    EXPECT_FALSE(withItems.contains("number"));
    EXPECT_EQ(withItems.value("misc5").toString(), "2026-11-21T09:52:00.000Z");
    EXPECT_TRUE(text.contains(QLatin1String("\"amount\":34.65,")));
    const QJsonArray items = withItems.value("items").toArray();
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].toObject().value("uniqueID").toString(), "ID-2");
    EXPECT_FALSE(items[0].toObject().contains("items"));
    EXPECT_FALSE(
        QJsonDocument::fromJson(Json::objectDictionary(*doc, false).toUtf8()).object().contains("items"));
}

const std::tuple<const char*, const char*, QVariant> typedCases[] = {
    // invalid: refused
    {"title", "Web design", "Web design"},
    {"status", "3", qint64(3)},
    {"status", "three", {}},
    {"amount", "34.65", 34.65f},
    {"amount", "lots", {}},
    {"amount", "nan", {}},
    {"amount", "inf", {}},
    {"isPaid", "true", true},
    {"isPaid", "0", false},
    {"isPaid", "perhaps", {}},
    {"date", "2026-11-21T09:52:00.000Z", utc(2026, 11, 21, 9, 52)},
    {"date", "21.11.2026", {}},
    {"noSuchKey", "1", {}},
};

TEST(JsonTest, TypedValuesConvertByTheModel)
{
    for (const auto& [key, text, expected] : typedCases) {
        SCOPED_TRACE(std::string(key) + "=" + text);
        QString error;
        const auto v = Cli::typedValue(Entity::Invoice, QLatin1String(key), QLatin1String(text), &error);
        EXPECT_EQ(v.has_value(), expected.isValid());
        EXPECT_EQ(error.isEmpty(), expected.isValid());
        if (v && expected.isValid()) {
            EXPECT_EQ(v->typeId(), expected.typeId());
            EXPECT_EQ(*v, expected);
        }
    }
}

} // namespace
} // namespace vorn::test
