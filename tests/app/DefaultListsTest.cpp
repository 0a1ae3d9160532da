#include "app/AppDelegate.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace vorn::test {
namespace {

const char* const listNames[] = {"defaultPrefsEnglish", "defaultPrefsGerman", "defaultPrefsFrench",
                                 "defaultPrefsSpanish"};

// Keys that documents, numbering and output read and that must start with a
// real value in every language, by the type they are read with.
const std::pair<QMetaType::Type, const char*> requiredKeys[] = {
    {QMetaType::Bool,
     "invHaveNumber invHaveDueDate quotHaveNumber quotHaveValidity tax1Enabled tax2Enabled tax3Enabled "
     "tax2IsCompound tax3IsCompound showItemSubAmount tempUseSKU tempPrintDetails tempPrintNumbers "
     "printBorderless markInvoiceAsSent"},
    {QMetaType::LongLong,
     "invDefaultDueDate invCount quotDefaultValidity quotCount clientCount tempPaperSize printBehavior "
     "exportFormat languageDefaults"},
    {QMetaType::Double, "tax1Rate tax2Rate tax3Rate"},
    {QMetaType::QString,
     "invPattern quotPattern clientPattern prefsAddressPattern prefsCurrency prefsDatePattern tax1Title "
     "tax2Title tax3Title tempInvConditions tempInvFooter tempInvMisc tempQuotConditions tempQuotFooter "
     "tempRemConditions tempRemFooter tempBorderFont"},
};

// Labels every document prints: never empty.
const char* const locKeys =
    "locInvoice locQuote locReminder locInvoiceNumber locQuoteNumber locClientNumber locNumber locDate "
    "locDue "
    "locExpiration locOverdue locDispatched locSubtotal locTotal locTaxes locDiscount locShipping "
    "locDescription locQuantity locUnit locUnitPrice locNet locNo locSKUNumber locPageOf";

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

    for (const auto& [type, keys] : requiredKeys)
        for (const QString& key : QString(keys).split(' '))
            EXPECT_EQ(other.value(key).typeId(), int(type)) << qPrintable(key);
    for (const QString& key : QString(locKeys).split(' '))
        EXPECT_FALSE(other.value(key).toString().trimmed().isEmpty()) << qPrintable(key);
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
