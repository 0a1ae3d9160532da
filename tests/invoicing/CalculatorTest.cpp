#include "tests/invoicing/InvoicingFixture.h"

#include <climits>

using namespace vorn;
using namespace vorn::test;

namespace {

const QString percentKeys[] = {key::tax1Percent, key::tax2Percent, key::tax3Percent};
const QString appliedKeys[] = {key::isTax1Applied, key::isTax2Applied, key::isTax3Applied};
const QString amountKeys[] = {key::tax1Amount, key::tax2Amount, key::tax3Amount};
const QString shippingTaxKeys[] = {key::isShippingTax1Enabled, key::isShippingTax2Enabled,
                                   key::isShippingTax3Enabled};

// ---------------------------------------------------------------------------
// Worked examples of single lines.

struct LineCase
{
    const char* name;
    float base, count, p[3];
    bool applied[3], compound2, compound3;
    float net, t[3], amount; // t = stored tax amounts (the old value when not applied)
};

constexpr float kOld = 99.0f; // a stale tax amount that must survive when the tax is not applied

const LineCase lineCases[] = {
    {"simpleAndCompound", 10, 3, 0.1f, 0.05f, 0, true, true, false, true, false, 30, 3, 1.65f, kOld, 34.65f},
    {"compoundWithoutTax1", 10, 3, 0.1f, 0.05f, 0, false, true, false, true, false, 30, kOld, 1.65f, kOld,
     31.65f},
    {"tax3OnBothEarlierRates", 100, 1, 0.1f, 0.1f, 0.1f, false, false, true, false, true, 100, kOld, kOld,
     12.1f, 112.1f},
    {"plainTax3", 100, 1, 0.1f, 0.1f, 0.1f, false, false, true, false, false, 100, kOld, kOld, 10, 110},
    {"plainTax2IgnoresTax1", 200, 0.5f, 0.19f, 0.07f, 0, true, true, false, false, false, 100, 19, 7, kOld,
     126},
    {"noTaxes", 12.5f, 4, 0.19f, 0.07f, 0.02f, false, false, false, true, true, 50, kOld, kOld, kOld, 50},
    {"negativeCredit", -20, 2, 0.2f, 0, 0, true, false, false, false, false, -40, -8, kOld, kOld, -48},
    {"zeroQuantity", 99.99f, 0, 0.19f, 0.1f, 0.1f, true, true, true, true, true, 0, 0, 0, 0, 0},
};

using LineArithmetic = CaseTable<InvoicingFixture, LineCase>;

TEST_P(LineArithmetic, ItemAmounts)
{
    const LineCase& c = GetParam();
    ManagedObject* doc = document(1);
    ManagedObject* line = item(doc, c.base, c.count);
    assign(*line, key::isTax2Compound, c.compound2, key::isTax3Compound, c.compound3);
    for (int t = 0; t < 3; ++t)
        assign(*line, percentKeys[t], c.p[t], appliedKeys[t], c.applied[t], amountKeys[t], kOld);

    calculator().calculateInvoice(doc);

    EXPECT_FLOAT_EQ(line->floatValue(key::subAmount), c.net);
    for (int t = 0; t < 3; ++t)
        EXPECT_FLOAT_EQ(line->floatValue(amountKeys[t]), c.t[t]) << t;
    EXPECT_FLOAT_EQ(line->floatValue(key::amount), c.amount);
    // Document totals count a tax that is not applied as 0, not as its stale value.
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), c.amount);
    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), c.net);
}

INSTANTIATE_TEST_SUITE_P(Calculator, LineArithmetic, ::testing::ValuesIn(lineCases), caseName);

// ---------------------------------------------------------------------------
// Shipping and discount on a document with one untaxed line of 100.

struct DocumentCase
{
    const char* name;
    bool shipping;
    float shippingAmount;
    bool shipTax[3];
    float q[3];
    bool prefCompound2, prefCompound3, discount;
    int discountKind;
    float discountPercent, discountAmount;
    float T[3], total;
};

const DocumentCase documentCases[] = {
    {"shippingTax2CompoundByPreference", true, 10, false, true, false, 0.2f, 0.1f, 0, true, false, false, 0,
     0, 0, 0, 1.2f, 0, 111.2f},
    {"shippingTax2Plain", true, 10, false, true, false, 0.2f, 0.1f, 0, false, false, false, 0, 0, 0, 0, 1, 0,
     111},
    {"shippingAllTaxesCompound", true, 100, true, true, true, 0.1f, 0.1f, 0.1f, true, true, false, 0, 0, 0,
     10, 11, 12.1f, 233.1f},
    {"shippingOffIgnoresEverything", false, 10, true, true, true, 0.2f, 0.1f, 0.1f, true, true, false, 0, 0,
     0, 0, 0, 0, 100},
    {"shippingUntaxed", true, 7.5f, false, false, false, 0.2f, 0.1f, 0.1f, true, true, false, 0, 0, 0, 0, 0,
     0, 107.5f},
    {"rateDiscountOnGross", true, 100, false, false, false, 0, 0, 0, false, false, true, 1, 0.1f, 0, 0, 0, 0,
     180},
    {"fixedDiscountBelowZero", true, 100, false, false, false, 0, 0, 0, false, false, true, 0, 0.5f, 250, 0,
     0, 0, -50},
    {"anyNonZeroKindIsRate", false, 0, false, false, false, 0, 0, 0, false, false, true, 7, 0.25f, 1, 0, 0, 0,
     75},
    {"discountOffIgnored", false, 0, false, false, false, 0, 0, 0, false, false, false, 1, 0.5f, 30, 0, 0, 0,
     100},
    {"discountKeepsTaxes", true, 100, true, false, false, 0.2f, 0, 0, false, false, true, 1, 0.5f, 0, 20, 0,
     0, 110},
};

using DocumentArithmetic = CaseTable<InvoicingFixture, DocumentCase>;

TEST_P(DocumentArithmetic, ShippingAndDiscount)
{
    const DocumentCase& c = GetParam();
    assign(settings, key::tax2IsCompound, c.prefCompound2, key::tax3IsCompound, c.prefCompound3);
    ManagedObject* doc = document(1);
    item(doc, 100, 1);
    assign(*doc, key::isShippingEnabled, c.shipping, key::shippingAmount, c.shippingAmount,
           key::isDiscountEnabled, c.discount, key::discountKind, c.discountKind, key::discountPercent,
           c.discountPercent, key::discountAmount, c.discountAmount);
    for (int t = 0; t < 3; ++t)
        assign(*doc, shippingTaxKeys[t], c.shipTax[t], percentKeys[t], c.q[t]);

    calculator().calculateInvoice(doc);

    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), 100);
    for (int t = 0; t < 3; ++t)
        EXPECT_FLOAT_EQ(doc->floatValue(amountKeys[t]), c.T[t]) << t;
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), c.total);
    // Neither the shipping charge nor the discount amount is written back.
    EXPECT_FLOAT_EQ(doc->floatValue(key::shippingAmount), c.shippingAmount);
    EXPECT_FLOAT_EQ(doc->floatValue(key::discountAmount), c.discountAmount);
}

INSTANTIATE_TEST_SUITE_P(Calculator, DocumentArithmetic, ::testing::ValuesIn(documentCases), caseName);

using CalculatorTest = InvoicingFixture;

TEST_F(CalculatorTest, MissingValuesReadAsZeroAndNullOrUnchangedDocumentsAreHarmless)
{
    ManagedObject* doc = document(1);
    ManagedObject* line = context.insertNewObject(Entity::Item);
    assign(*line, key::isTax1Applied, true, key::isTax2Applied, true, key::isTax2Compound, true);
    doc->insertObject(key::items, line);
    assign(*doc, key::isShippingEnabled, true, key::isShippingTax1Enabled, true);

    calculator().calculateInvoice(doc);
    EXPECT_EQ(doc->floatValue(key::amount), 0.0f);
    EXPECT_EQ(line->floatValue(key::tax2Amount), 0.0f);
    EXPECT_TRUE(line->hasValue(key::amount));

    calculator().calculateInvoice(nullptr);
    calculator().calculateInvoice(line); // not a document: nothing happens
    EXPECT_EQ(state.invoiceCountForNumber, 1u);

    item(doc, 19.99f, 3)->setValue(key::isTax1Applied, true);
    calculator().calculateInvoice(doc);
    ASSERT_TRUE(context.save().ok());
    calculator().calculateInvoice(doc);
    EXPECT_FALSE(context.hasChanges());
}

// ---------------------------------------------------------------------------
// The list totals and the status moves.

constexpr int kNoDue = INT_MIN;

struct StatusCase
{
    const char* name;
    int kind, status;
    int dueInSeconds; // relative to now, or kNoDue
    bool isPaid;
    float amount, paidAmount, dueAmount;
    int statusAfter;
    float paidAfter, dueAfter;
    bool stampsPaid;
    int counted, countedForNumber, quotes; // contribution to the totals
};

const StatusCase statusCases[] = {
    {"sentDueYesterdayBecomesOverdue", 1, 1, -86400, false, 50, 0, 0, 2, 0, 50, false, 1, 1, 0},
    {"sentDueOneSecondAgo", 1, 1, -1, false, 50, 0, 0, 2, 0, 50, false, 1, 1, 0},
    {"sentDueExactlyNowIsNotOverdue", 1, 1, 0, false, 50, 0, 9, 1, 0, 0, false, 1, 1, 0},
    {"overdueWithoutDueDateIsSent", 1, 2, kNoDue, false, 10, 0, 10, 1, 0, 0, false, 1, 1, 0},
    {"overdueMovedIntoFutureReturnsToSent", 1, 2, 86400, false, 50, 7, 50, 1, 7, 0, false, 1, 1, 0},
    {"overdueStaysOverdueAndLosesPaid", 1, 2, -60, false, 50, 7, 0, 2, 0, 50, false, 1, 1, 0},
    {"paidFirstSeenStampsOnce", 1, 3, 86400, false, 80, 0, 80, 3, 80, 0, true, 1, 1, 0},
    {"paidAlreadyStamped", 1, 3, 86400, true, 80, 1, 80, 3, 80, 0, false, 1, 1, 0},
    {"partlyPaidKeepsUserAmount", 1, 4, -86400, false, 100, 30, 0, 4, 30, 70, true, 1, 1, 0},
    {"createdCountsOnlyForNumbering", 1, 0, -86400, false, 100, 5, 6, 0, 5, 6, false, 0, 1, 0},
    {"quoteWhateverStatus", 0, 3, -86400, false, 100, 5, 6, 3, 5, 6, false, 0, 0, 1},
    {"otherKindIsQuote", 2, 1, -86400, false, 100, 5, 6, 1, 5, 6, false, 0, 0, 1},
    {"statusAboveFourStampsAndCounts", 1, 7, -86400, false, 40, 2, 3, 7, 2, 3, true, 1, 1, 0},
};

using StatusMoves = CaseTable<InvoicingFixture, StatusCase>;

TEST_P(StatusMoves, OneDocument)
{
    const StatusCase& c = GetParam();
    ManagedObject* doc = document(c.kind, c.status, c.amount);
    const QDateTime oldPaid = utc(2020, 1, 1);
    assign(*doc, key::due, c.dueInSeconds == kNoDue ? QVariant() : clock.now().addSecs(c.dueInSeconds),
           key::isPaid, c.isPaid, key::paidAmount, c.paidAmount, key::dueAmount, c.dueAmount, key::paid,
           oldPaid);

    calculator().calculateDatabase();

    EXPECT_EQ(doc->intValue(key::status), c.statusAfter);
    EXPECT_FLOAT_EQ(doc->floatValue(key::paidAmount), c.paidAfter);
    EXPECT_FLOAT_EQ(doc->floatValue(key::dueAmount), c.dueAfter);
    EXPECT_EQ(doc->dateValue(key::paid), c.stampsPaid ? clock.now() : oldPaid);
    EXPECT_EQ(doc->boolValue(key::isPaid), c.isPaid || c.stampsPaid);
    EXPECT_EQ(state.invoiceCount, quint64(c.counted));
    EXPECT_EQ(state.invoiceCountForNumber, quint64(c.countedForNumber));
    EXPECT_EQ(state.quoteCount, quint64(c.quotes));
    EXPECT_FLOAT_EQ(state.totalAmount, c.counted ? c.amount : 0.0f);
    EXPECT_FLOAT_EQ(state.paidAmount, c.counted ? c.paidAfter : 0.0f);
    EXPECT_FLOAT_EQ(state.dueAmount, c.counted ? c.dueAfter : 0.0f);

    // A later run never moves the payment stamp again.
    const QDateTime stamped = doc->dateValue(key::paid);
    clock.advanceSeconds(3600);
    calculator().calculateDatabase();
    EXPECT_EQ(doc->dateValue(key::paid), stamped);
}

INSTANTIATE_TEST_SUITE_P(Calculator, StatusMoves, ::testing::ValuesIn(statusCases), caseName);

TEST_F(CalculatorTest, SetBackFromPaidToSentKeepsOldPaidAmountInTotals)
{
    ManagedObject* doc = document(1, 3, 120);
    calculator().calculateDatabase();
    doc->setValue(key::status, 1);
    calculator().calculateDatabase();
    EXPECT_FLOAT_EQ(state.paidAmount, 120);
    EXPECT_FLOAT_EQ(state.dueAmount, 0);
    EXPECT_TRUE(doc->boolValue(key::isPaid));
}

} // namespace
