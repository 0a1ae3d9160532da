#include "cli/Json.h"
#include "cli/CommandRegistry.h"
#include "store/Clock.h"
#include "store/ObjectContext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>

namespace vorn::test {
namespace {

struct FloatCase
{
    float value;
    const char* text;
};

class JsonFloatTest : public ::testing::TestWithParam<FloatCase>
{
};

TEST_P(JsonFloatTest, ShortestTextOfTheSingle)
{
    EXPECT_EQ(Json::floatText(GetParam().value), QLatin1String(GetParam().text));
    EXPECT_EQ(Json::write(QVariant(GetParam().value)), QLatin1String(GetParam().text));
    // A single widened to double (as settings files keep reals) prints the same.
    if (std::isfinite(GetParam().value)) {
        EXPECT_EQ(Json::write(QVariant(double(GetParam().value))), QLatin1String(GetParam().text));
    }
}

INSTANTIATE_TEST_SUITE_P(Values, JsonFloatTest,
                         ::testing::Values(FloatCase{0.07f, "0.07"}, FloatCase{34.65f, "34.65"},
                                           FloatCase{0.1f, "0.1"}, FloatCase{1.0f, "1"},
                                           FloatCase{100.0f, "100"}, FloatCase{-2.5f, "-2.5"},
                                           FloatCase{0.0f, "0"}, FloatCase{-0.0f, "0"},
                                           FloatCase{1234567.0f, "1234567"},
                                           FloatCase{16777216.0f, "16777216"}, FloatCase{1e-7f, "1e-07"},
                                           FloatCase{3.4028235e38f, "3.4028235e+38"}, FloatCase{NAN, "null"},
                                           FloatCase{INFINITY, "null"}));

TEST(JsonTest, EveryFloatTextReadsBackAsTheSameSingle)
{
    std::mt19937 random(42);
    std::uniform_int_distribution<quint32> bits;
    for (int i = 0; i < 20000; ++i) {
        quint32 b = bits(random);
        float f;
        std::memcpy(&f, &b, sizeof f);
        if (!std::isfinite(f))
            continue;
        const QByteArray text = Json::floatText(f).toLatin1();
        ASSERT_EQ(std::strtof(text.constData(), nullptr), f == 0.0f ? 0.0f : f) << text.constData();
        ASSERT_TRUE(QJsonDocument::fromJson("[" + text + "]").isArray()) << text.constData();
    }
}

TEST(JsonTest, DoublesThatAreNotSinglesKeepTheirPrecision)
{
    EXPECT_EQ(Json::write(QVariant(0.07)), QStringLiteral("0.07"));
    EXPECT_EQ(Json::write(QVariant(0.1 + 0.2)), QStringLiteral("0.30000000000000004"));
    EXPECT_EQ(Json::write(QVariant(16777217.0)), QStringLiteral("16777217"));
}

struct DateCase
{
    QDateTime date;
    const char* text;
};

class JsonDateTest : public ::testing::TestWithParam<DateCase>
{
};

TEST_P(JsonDateTest, Rfc3339InUtcWithMilliseconds)
{
    EXPECT_EQ(Json::dateText(GetParam().date), QLatin1String(GetParam().text));
    EXPECT_EQ(Json::write(GetParam().date), QStringLiteral("\"%1\"").arg(QLatin1String(GetParam().text)));
    EXPECT_EQ(QDateTime::fromString(QLatin1String(GetParam().text), Qt::ISODateWithMs).toMSecsSinceEpoch(),
              GetParam().date.toMSecsSinceEpoch());
}

INSTANTIATE_TEST_SUITE_P(
    Dates, JsonDateTest,
    ::testing::Values(
        DateCase{QDateTime(QDate(2026, 11, 21), QTime(9, 52), QTimeZone::utc()), "2026-11-21T09:52:00.000Z"},
        DateCase{QDateTime(QDate(2026, 11, 21), QTime(9, 52, 7, 5), QTimeZone::utc()),
                 "2026-11-21T09:52:07.005Z"},
        DateCase{QDateTime(QDate(2026, 7, 1), QTime(0, 30), QTimeZone("Europe/Berlin")),
                 "2026-06-30T22:30:00.000Z"},
        DateCase{QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59, 999), QTimeZone(-5 * 3600)),
                 "2027-01-01T04:59:59.999Z"},
        DateCase{QDateTime(QDate(1969, 7, 20), QTime(20, 17, 40), QTimeZone::utc()),
                 "1969-07-20T20:17:40.000Z"},
        DateCase{QDateTime(QDate(999, 1, 2), QTime(3, 4, 5), QTimeZone::utc()), "0999-01-02T03:04:05.000Z"}));

struct QuoteCase
{
    QString text;
    const char* json;
};

class JsonQuoteTest : public ::testing::TestWithParam<QuoteCase>
{
};

TEST_P(JsonQuoteTest, EscapesWhatJsonRequires)
{
    const QString quoted = Json::quote(GetParam().text);
    EXPECT_EQ(quoted, QString::fromUtf8(GetParam().json));
    const QJsonDocument back = QJsonDocument::fromJson("[" + quoted.toUtf8() + "]");
    ASSERT_TRUE(back.isArray()) << qPrintable(quoted);
    EXPECT_EQ(back.array().at(0).toString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Strings, JsonQuoteTest,
    ::testing::Values(QuoteCase{QString(), "\"\""}, QuoteCase{QStringLiteral("plain"), "\"plain\""},
                      QuoteCase{QStringLiteral("say \"hi\""), "\"say \\\"hi\\\"\""},
                      QuoteCase{QStringLiteral("C:\\path"), "\"C:\\\\path\""},
                      QuoteCase{QStringLiteral("a\nb\r\tc"), "\"a\\nb\\r\\tc\""},
                      QuoteCase{QStringLiteral("\b\f"), "\"\\b\\f\""},
                      QuoteCase{QString(QChar(1)) + QChar(0x1f) + QChar(0), "\"\\u0001\\u001f\\u0000\""},
                      QuoteCase{QStringLiteral("€ 𝄞 ü </script>"), "\"€ 𝄞 ü </script>\""},
                      QuoteCase{QString(QChar(0x7f)), "\"\x7f\""}));

TEST(JsonTest, NestedValuesWithSortedKeys)
{
    const QVariantMap map{
        {QStringLiteral("b"), QVariantList{qint64(1), true, QVariant(), QStringLiteral("x")}},
        {QStringLiteral("a"), QByteArray("\x00\xff", 2)},
        {QStringLiteral("c"), QVariantMap{}},
        {QStringLiteral("d"), qint64(-9007199254740993)}};
    EXPECT_EQ(Json::write(map),
              QStringLiteral("{\"a\":\"AP8=\",\"b\":[1,true,null,\"x\"],\"c\":{},\"d\":-9007199254740993}"));
}

TEST(JsonTest, ObjectDictionaryHasClassAndOnlyPresentValues)
{
    FixedClock clock(QDateTime(QDate(2026, 11, 21), QTime(9, 52), QTimeZone::utc()));
    ObjectContext ctx(nullptr, clock);
    ManagedObject* doc = ctx.insertNewObject(Entity::Invoice);
    doc->setValue(QStringLiteral("uniqueID"), QStringLiteral("ID-1"));
    doc->setValue(QStringLiteral("amount"), 34.65f);
    doc->setValue(QStringLiteral("title"), QString(""));
    ManagedObject* item = ctx.insertNewObject(Entity::Item);
    item->setValue(QStringLiteral("uniqueID"), QStringLiteral("ID-2"));
    item->setValue(QStringLiteral("unitCount"), 3.0f);
    doc->insertObject(QStringLiteral("items"), item);

    const QJsonObject withItems =
        QJsonDocument::fromJson(Json::objectDictionary(*doc, true).toUtf8()).object();
    EXPECT_EQ(withItems.value(QStringLiteral("class")).toString(), QStringLiteral("NSManagedObject"));
    EXPECT_EQ(withItems.value(QStringLiteral("title")).toString(QStringLiteral("absent")), QString());
    EXPECT_FALSE(withItems.contains(QStringLiteral("number")));
    EXPECT_EQ(withItems.value(QStringLiteral("misc5")).toString(),
              QStringLiteral("2026-11-21T09:52:00.000Z"));
    EXPECT_TRUE(Json::objectDictionary(*doc, true).contains(QLatin1String("\"amount\":34.65,")));
    const QJsonArray items = withItems.value(QStringLiteral("items")).toArray();
    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].toObject().value(QStringLiteral("uniqueID")).toString(), QStringLiteral("ID-2"));
    EXPECT_FALSE(items[0].toObject().contains(QStringLiteral("items")));
    EXPECT_FALSE(QJsonDocument::fromJson(Json::objectDictionary(*doc, false).toUtf8())
                     .object()
                     .contains(QStringLiteral("items")));
}

struct TypedCase
{
    const char* key;
    const char* text;
    QVariant expected; // invalid: refused
};

class TypedValueTest : public ::testing::TestWithParam<TypedCase>
{
};

TEST_P(TypedValueTest, ConvertsByTheModel)
{
    QString error;
    const auto v = Cli::typedValue(Entity::Invoice, QLatin1String(GetParam().key),
                                   QLatin1String(GetParam().text), &error);
    if (!GetParam().expected.isValid()) {
        EXPECT_FALSE(v.has_value()) << GetParam().key << "=" << GetParam().text;
        EXPECT_FALSE(error.isEmpty());
        return;
    }
    ASSERT_TRUE(v.has_value()) << qPrintable(error);
    EXPECT_EQ(v->typeId(), GetParam().expected.typeId());
    EXPECT_EQ(*v, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Values, TypedValueTest,
    ::testing::Values(TypedCase{"title", "Web design", QStringLiteral("Web design")},
                      TypedCase{"status", "3", qint64(3)}, TypedCase{"status", "three", {}},
                      TypedCase{"amount", "34.65", 34.65f}, TypedCase{"amount", "lots", {}},
                      TypedCase{"amount", "nan", {}}, TypedCase{"amount", "inf", {}},
                      TypedCase{"isPaid", "true", true}, TypedCase{"isPaid", "0", false},
                      TypedCase{"isPaid", "perhaps", {}},
                      TypedCase{"date", "2026-11-21T09:52:00.000Z",
                                QDateTime(QDate(2026, 11, 21), QTime(9, 52), QTimeZone::utc())},
                      TypedCase{"date", "21.11.2026", {}}, TypedCase{"noSuchKey", "1", {}}));

} // namespace
} // namespace vorn::test
