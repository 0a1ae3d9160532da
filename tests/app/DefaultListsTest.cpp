#include "app/AppDelegate.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace vorn::test {
namespace {

const char* const listNames[] = {"defaultPrefsEnglish", "defaultPrefsGerman", "defaultPrefsFrench",
                                 "defaultPrefsSpanish"};

// Keys that documents, numbering and output read and that must start with a
// real value in every language, with the type they are read with.
struct RequiredKey
{
    const char* key;
    QMetaType::Type type;
};

const RequiredKey requiredKeys[] = {
    {"invHaveNumber", QMetaType::Bool},
    {"invHaveDueDate", QMetaType::Bool},
    {"invDefaultDueDate", QMetaType::LongLong},
    {"invPattern", QMetaType::QString},
    {"invCount", QMetaType::LongLong},
    {"quotHaveNumber", QMetaType::Bool},
    {"quotHaveValidity", QMetaType::Bool},
    {"quotDefaultValidity", QMetaType::LongLong},
    {"quotPattern", QMetaType::QString},
    {"quotCount", QMetaType::LongLong},
    {"clientPattern", QMetaType::QString},
    {"clientCount", QMetaType::LongLong},
    {"prefsAddressPattern", QMetaType::QString},
    {"prefsCurrency", QMetaType::QString},
    {"prefsDatePattern", QMetaType::QString},
    {"tax1Enabled", QMetaType::Bool},
    {"tax2Enabled", QMetaType::Bool},
    {"tax3Enabled", QMetaType::Bool},
    {"tax1Title", QMetaType::QString},
    {"tax2Title", QMetaType::QString},
    {"tax3Title", QMetaType::QString},
    {"tax1Rate", QMetaType::Double},
    {"tax2Rate", QMetaType::Double},
    {"tax3Rate", QMetaType::Double},
    {"tax2IsCompound", QMetaType::Bool},
    {"tax3IsCompound", QMetaType::Bool},
    {"showItemSubAmount", QMetaType::Bool},
    {"tempUseSKU", QMetaType::Bool},
    {"tempInvConditions", QMetaType::QString},
    {"tempInvFooter", QMetaType::QString},
    {"tempInvMisc", QMetaType::QString},
    {"tempQuotConditions", QMetaType::QString},
    {"tempQuotFooter", QMetaType::QString},
    {"tempRemConditions", QMetaType::QString},
    {"tempRemFooter", QMetaType::QString},
    {"tempPaperSize", QMetaType::LongLong},
    {"tempBorderFont", QMetaType::QString},
    {"tempPrintDetails", QMetaType::Bool},
    {"tempPrintNumbers", QMetaType::Bool},
    {"printBorderless", QMetaType::Bool},
    {"printBehavior", QMetaType::LongLong},
    {"exportFormat", QMetaType::LongLong},
    {"markInvoiceAsSent", QMetaType::Bool},
    {"languageDefaults", QMetaType::LongLong},
};

const char* const locKeys[] = {
    "locInvoice",      "locQuote",      "locReminder",    "locInvoiceNumber", "locQuoteNumber",
    "locClientNumber", "locNumber",     "locDate",        "locDue",           "locExpiration",
    "locOverdue",      "locDispatched", "locSubtotal",    "locTotal",         "locTaxes",
    "locDiscount",     "locShipping",   "locDescription", "locQuantity",      "locUnit",
    "locUnitPrice",    "locNet",        "locNo",          "locSKUNumber",     "locPageOf"};

QVariantMap list(const char* name)
{
    const auto result = AppDelegate::defaultList(QLatin1String(name));
    EXPECT_TRUE(result.ok()) << name << ": " << qPrintable(result.error().fullText());
    return result ? result.value() : QVariantMap();
}

class DefaultListTest : public ::testing::TestWithParam<int>
{
};

TEST_P(DefaultListTest, ParsesWithTheKeysAndTypesOfTheEnglishList)
{
    const QVariantMap english = list(listNames[0]);
    const QVariantMap other = list(listNames[GetParam()]);
    ASSERT_FALSE(other.isEmpty());
    EXPECT_EQ(other.keys(), english.keys());
    for (auto it = english.cbegin(); it != english.cend(); ++it)
        EXPECT_EQ(other.value(it.key()).typeId(), it.value().typeId()) << qPrintable(it.key());
    EXPECT_EQ(other.value(QStringLiteral("languageDefaults")), QVariant(qint64(GetParam())));

    for (const RequiredKey& k : requiredKeys) {
        ASSERT_TRUE(other.contains(QLatin1String(k.key))) << k.key;
        EXPECT_EQ(other.value(QLatin1String(k.key)).typeId(), int(k.type)) << k.key;
    }
    for (const char* key : locKeys) {
        ASSERT_TRUE(other.contains(QLatin1String(key))) << key;
        EXPECT_FALSE(other.value(QLatin1String(key)).toString().trimmed().isEmpty()) << key;
    }
    // Rates are fractions (a withholding is negative), numbering patterns
    // carry the counter, and the page label has its two numbers.
    for (const char* rate : {"tax1Rate", "tax2Rate", "tax3Rate"}) {
        const double r = other.value(QLatin1String(rate)).toDouble();
        EXPECT_TRUE(r > -1 && r < 1) << rate << " = " << r;
    }
    for (const char* pattern : {"invPattern", "quotPattern", "clientPattern"})
        EXPECT_TRUE(other.value(QLatin1String(pattern)).toString().contains(QLatin1String("%COUNT%")))
            << pattern;
    EXPECT_EQ(
        other.value(QStringLiteral("locPageOf")).toString().count(QRegularExpression(QStringLiteral("%ld"))),
        2);
    const qint64 paper = other.value(QStringLiteral("tempPaperSize")).toLongLong();
    EXPECT_TRUE(paper >= 0 && paper <= 4);
}

INSTANTIATE_TEST_SUITE_P(Languages, DefaultListTest, ::testing::Range(0, 4),
                         [](const auto& info) { return std::string(listNames[info.param]); });

TEST(DefaultListTest, AMissingListIsAnError)
{
    const auto missing = AppDelegate::defaultList(QStringLiteral("defaultPrefsKlingon"));
    ASSERT_FALSE(missing.ok());
    EXPECT_EQ(missing.error().code, ErrorCode::FileNotFound);
    EXPECT_EQ(AppDelegate::defaultListName(99), QStringLiteral("defaultPrefsEnglish"));
}

} // namespace
} // namespace vorn::test
