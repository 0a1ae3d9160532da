#include "tests/invoicing/InvoicingFixture.h"

using namespace vorn;
using namespace vorn::test;

namespace {

struct PatternCase
{
    const char* pattern;
    qint64 count;
    const char* expected;
};

// 5 March 2025 throughout.
const PatternCase patternCases[] = {
    {"RE-%YEAR%-%COUNT%", 104, "RE-2025-104"},
    {"%DAY%.%MONTH%.%YEAR%/%COUNT%", 7, "5.3.2025/7"},
    {"%COUNT%%COUNT%", 12, "1212"},
    {"INV-0001", 55, "INV-0001"},
    {"%count%-%Year%", 3, "%count%-%Year%"},
    {"%YEAR%%MONTH%%DAY%-%COUNT%", 1000, "202535-1000"},
    {"%COUNT", 9, "%COUNT"},
    {"%%COUNT%%", 9, "%9%"},
    {"%CO%COUNT%UNT%", 4, "%CO4UNT%"},
    {"", 1, ""},
    {"#%COUNT%", -2, "#-2"},
    {"%DAY%%DAY%%MONTH%", 1, "553"},
};

TEST(Numbering, PatternsExpand)
{
    for (const PatternCase& c : patternCases)
        EXPECT_EQ(
            NumberingController::expandPattern(QString::fromUtf8(c.pattern), c.count, QDate(2025, 3, 5)),
            QString::fromUtf8(c.expected))
            << c.pattern;
}

using NumberingTest = InvoicingFixture;

TEST_F(NumberingTest, CountsComeFromTheListedDocuments)
{
    assign(settings, key::invPattern, "RE-%YEAR%-%COUNT%", key::invCount, 100, key::quotPattern, "Q%COUNT%",
           key::quotCount, 10);
    document(1, 0);
    document(1, 3);
    document(1, 2);
    document(0, 0);
    calculator().calculateDatabase();
    NumberingController& n = controllers->numbering();
    EXPECT_EQ(n.invoiceNumberString(), QStringLiteral("RE-2025-104"));
    EXPECT_EQ(n.convertedInvoiceNumberString(), QStringLiteral("RE-2025-103"));
    EXPECT_EQ(n.quoteNumberString(), QStringLiteral("Q12"));

    // More quotes do not move invoice numbers, and the other way round.
    document(0, 0);
    calculator().calculateDatabase();
    EXPECT_EQ(n.invoiceNumberString(), QStringLiteral("RE-2025-104"));
    EXPECT_EQ(n.quoteNumberString(), QStringLiteral("Q13"));

    // Nothing is stored: the offsets stay as the user set them.
    EXPECT_EQ(settings.intValue(key::invCount), 100);

    // A filter that hides every invoice leaves only the offset.
    state.invoicesController().setFilterPredicate(
        [](const ManagedObject& o) { return o.intValue(key::kind) == 0; });
    calculator().calculateDatabase();
    EXPECT_EQ(n.invoiceNumberString(), QStringLiteral("RE-2025-101"));
}

TEST_F(NumberingTest, MissingPatternGivesEmptyNumberAndMissingOffsetCountsZero)
{
    document(1);
    calculator().calculateDatabase();
    NumberingController& n = controllers->numbering();
    EXPECT_EQ(n.invoiceNumberString(), QString());
    settings.setValue(key::invPattern, QStringLiteral("%COUNT%"));
    EXPECT_EQ(n.invoiceNumberString(), QStringLiteral("2"));
    EXPECT_EQ(n.convertedInvoiceNumberString(), QStringLiteral("1"));
}

TEST_F(NumberingTest, DateIsTheUsersLocalDay)
{
    // 23:30 UTC on 4 March is already 5 March in the test time zone (Berlin).
    qputenv("TZ", "Europe/Berlin");
    clock.set(utc(2025, 3, 4, 23, 30));
    settings.setValue(key::invPattern, QStringLiteral("%YEAR%-%MONTH%-%DAY%"));
    EXPECT_EQ(controllers->numbering().invoiceNumberString(), QStringLiteral("2025-3-5"));
    clock.set(utc(2024, 12, 31, 23, 0));
    EXPECT_EQ(controllers->numbering().invoiceNumberString(), QStringLiteral("2025-1-1"));
}

} // namespace
