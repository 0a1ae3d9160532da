#include "tests/invoicing/InvoicingFixture.h"

#include <bit>
#include <cstdint>
#include <random>

using namespace vorn;
using namespace vorn::test;

namespace {

// ---------------------------------------------------------------------------
// Worked examples of single lines.

struct LineCase
{
    const char* name;
    float base, count, p1, p2, p3;
    bool applied1, applied2, applied3, compound2, compound3;
    float net, t1, t2, t3, amount; // t = stored tax amounts (the old value when not applied)
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

class LineArithmetic : public InvoicingFixture, public ::testing::WithParamInterface<LineCase>
{
};

TEST_P(LineArithmetic, ItemAmounts)
{
    const LineCase& c = GetParam();
    ManagedObject* doc = document(1);
    ManagedObject* line = item(doc, c.base, c.count);
    line->setValue(key::tax1Percent, c.p1);
    line->setValue(key::tax2Percent, c.p2);
    line->setValue(key::tax3Percent, c.p3);
    line->setValue(key::isTax1Applied, c.applied1);
    line->setValue(key::isTax2Applied, c.applied2);
    line->setValue(key::isTax3Applied, c.applied3);
    line->setValue(key::isTax2Compound, c.compound2);
    line->setValue(key::isTax3Compound, c.compound3);
    for (const QString& k : {key::tax1Amount, key::tax2Amount, key::tax3Amount})
        line->setValue(k, kOld);

    calculator().calculateInvoice(doc);

    EXPECT_FLOAT_EQ(line->floatValue(key::subAmount), c.net);
    EXPECT_FLOAT_EQ(line->floatValue(key::tax1Amount), c.t1);
    EXPECT_FLOAT_EQ(line->floatValue(key::tax2Amount), c.t2);
    EXPECT_FLOAT_EQ(line->floatValue(key::tax3Amount), c.t3);
    EXPECT_FLOAT_EQ(line->floatValue(key::amount), c.amount);
    // Document totals count a tax that is not applied as 0, not as its stale value.
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), c.amount);
    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), c.net);
}

INSTANTIATE_TEST_SUITE_P(Calculator, LineArithmetic, ::testing::ValuesIn(lineCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---------------------------------------------------------------------------
// Shipping and discount on a document with one untaxed line of 100.

struct DocumentCase
{
    const char* name;
    bool shipping;
    float shippingAmount;
    bool ship1, ship2, ship3;
    float q1, q2, q3;
    bool prefCompound2, prefCompound3;
    bool discount;
    int discountKind;
    float discountPercent, discountAmount;
    float T1, T2, T3, total;
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

class DocumentArithmetic : public InvoicingFixture, public ::testing::WithParamInterface<DocumentCase>
{
};

TEST_P(DocumentArithmetic, ShippingAndDiscount)
{
    const DocumentCase& c = GetParam();
    settings.setValue(key::tax2IsCompound, c.prefCompound2);
    settings.setValue(key::tax3IsCompound, c.prefCompound3);
    ManagedObject* doc = document(1);
    item(doc, 100, 1);
    doc->setValue(key::isShippingEnabled, c.shipping);
    doc->setValue(key::shippingAmount, c.shippingAmount);
    doc->setValue(key::isShippingTax1Enabled, c.ship1);
    doc->setValue(key::isShippingTax2Enabled, c.ship2);
    doc->setValue(key::isShippingTax3Enabled, c.ship3);
    doc->setValue(key::tax1Percent, c.q1);
    doc->setValue(key::tax2Percent, c.q2);
    doc->setValue(key::tax3Percent, c.q3);
    doc->setValue(key::isDiscountEnabled, c.discount);
    doc->setValue(key::discountKind, c.discountKind);
    doc->setValue(key::discountPercent, c.discountPercent);
    doc->setValue(key::discountAmount, c.discountAmount);

    calculator().calculateInvoice(doc);

    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), 100);
    EXPECT_FLOAT_EQ(doc->floatValue(key::tax1Amount), c.T1);
    EXPECT_FLOAT_EQ(doc->floatValue(key::tax2Amount), c.T2);
    EXPECT_FLOAT_EQ(doc->floatValue(key::tax3Amount), c.T3);
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), c.total);
    // Neither the shipping charge nor the discount amount is written back.
    EXPECT_FLOAT_EQ(doc->floatValue(key::shippingAmount), c.shippingAmount);
    EXPECT_FLOAT_EQ(doc->floatValue(key::discountAmount), c.discountAmount);
}

INSTANTIATE_TEST_SUITE_P(Calculator, DocumentArithmetic, ::testing::ValuesIn(documentCases),
                         [](const auto& info) { return std::string(info.param.name); });

using CalculatorTest = InvoicingFixture;

TEST_F(CalculatorTest, MissingValuesReadAsZeroAndNullDocumentIsHarmless)
{
    ManagedObject* doc = document(1);
    ManagedObject* line = context.insertNewObject(Entity::Item);
    line->setValue(key::isTax1Applied, true);
    line->setValue(key::isTax2Applied, true);
    line->setValue(key::isTax2Compound, true);
    doc->insertObject(key::items, line);
    doc->setValue(key::isShippingEnabled, true);
    doc->setValue(key::isShippingTax1Enabled, true);

    calculator().calculateInvoice(doc);
    EXPECT_EQ(doc->floatValue(key::amount), 0.0f);
    EXPECT_EQ(line->floatValue(key::tax2Amount), 0.0f);
    EXPECT_TRUE(line->hasValue(key::amount));

    calculator().calculateInvoice(nullptr);
    calculator().calculateInvoice(line); // not a document: nothing happens
    EXPECT_EQ(state.invoiceCountForNumber, 1u);
}

TEST_F(CalculatorTest, RecalculatingAnUnchangedDocumentLeavesItUnchanged)
{
    ManagedObject* doc = document(1);
    item(doc, 19.99f, 3)->setValue(key::isTax1Applied, true);
    calculator().calculateInvoice(doc);
    ASSERT_TRUE(context.save().ok());
    calculator().calculateInvoice(doc);
    EXPECT_FALSE(context.hasChanges());
}

// ---------------------------------------------------------------------------
// The list totals and the status moves.

struct StatusCase
{
    const char* name;
    int kind, status;
    int dueInSeconds; // relative to now
    bool isPaid;
    float amount, paidAmount, dueAmount;
    int statusAfter;
    float paidAfter, dueAfter;
    bool stampsPaid;
    // contribution to the totals
    int counted, countedForNumber, quotes;
};

const StatusCase statusCases[] = {
    {"sentDueYesterdayBecomesOverdue", 1, 1, -86400, false, 50, 0, 0, 2, 0, 50, false, 1, 1, 0},
    {"sentDueOneSecondAgo", 1, 1, -1, false, 50, 0, 0, 2, 0, 50, false, 1, 1, 0},
    {"sentDueExactlyNowIsNotOverdue", 1, 1, 0, false, 50, 0, 9, 1, 0, 0, false, 1, 1, 0},
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

class StatusMoves : public InvoicingFixture, public ::testing::WithParamInterface<StatusCase>
{
};

TEST_P(StatusMoves, OneDocument)
{
    const StatusCase& c = GetParam();
    ManagedObject* doc = document(c.kind, c.status, c.amount);
    doc->setValue(key::due, clock.now().addSecs(c.dueInSeconds));
    doc->setValue(key::isPaid, c.isPaid);
    doc->setValue(key::paidAmount, c.paidAmount);
    doc->setValue(key::dueAmount, c.dueAmount);
    const QDateTime oldPaid = at(2020, 1, 1);
    doc->setValue(key::paid, oldPaid);

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

INSTANTIATE_TEST_SUITE_P(Calculator, StatusMoves, ::testing::ValuesIn(statusCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(CalculatorTest, SentWithoutDueDateIsNotOverdue)
{
    ManagedObject* doc = document(1, 2, 10);
    doc->setValue(key::due, QVariant());
    calculator().calculateDatabase();
    EXPECT_EQ(doc->intValue(key::status), 1);
    EXPECT_EQ(doc->floatValue(key::dueAmount), 0.0f);
}

TEST_F(CalculatorTest, SetBackFromPaidToSentKeepsOldPaidAmountInTotals)
{
    ManagedObject* doc = document(1, 3, 120);
    doc->setValue(key::due, clock.now().addDays(10));
    calculator().calculateDatabase();
    doc->setValue(key::status, 1);
    calculator().calculateDatabase();
    EXPECT_FLOAT_EQ(state.paidAmount, 120);
    EXPECT_FLOAT_EQ(state.dueAmount, 0);
    EXPECT_TRUE(doc->boolValue(key::isPaid));
}

TEST_F(CalculatorTest, TotalsCoverOnlyTheFilteredList)
{
    ManagedObject* a = document(1, 3, 100);
    ManagedObject* b = document(1, 2, 40);
    b->setValue(key::due, clock.now().addDays(-3));
    document(0, 0, 999);
    a->setValue(key::due, clock.now().addDays(3));
    calculator().calculateDatabase();
    EXPECT_FLOAT_EQ(state.totalAmount, 140);
    EXPECT_EQ(state.quoteCount, 1u);

    state.invoicesController().setFilterPredicate(
        [](const ManagedObject& o) { return o.intValue(key::kind) == 1 && o.intValue(key::status) == 2; });
    calculator().calculateDatabase();
    EXPECT_FLOAT_EQ(state.totalAmount, 40);
    EXPECT_FLOAT_EQ(state.dueAmount, 40);
    EXPECT_FLOAT_EQ(state.paidAmount, 0);
    EXPECT_EQ(state.invoiceCount, 1u);
    EXPECT_EQ(state.invoiceCountForNumber, 1u);
    EXPECT_EQ(state.quoteCount, 0u);
}

// ---------------------------------------------------------------------------
// Randomized cross-check against a separate step-by-step evaluation.
//
// The reference below is written from the arithmetic rules alone, on plain
// values: it shares no code with the calculator. Both must agree bit for bit.

struct RefLine
{
    float rate[3];
    float price, quantity;
    bool charged[3];
    bool compound2, compound3;
    float oldTax[3];
    // results
    float net, tax[3], gross;
};

struct RefDocument
{
    std::vector<RefLine> lines;
    bool shippingOn;
    float shipping;
    bool shippingTax[3];
    float docRate[3];
    bool discountOn;
    qint64 discountKind;
    float discountRate, discountValue;
    // results
    float sub, taxTotal[3], total;
};

void referenceEvaluate(RefDocument& d, bool settingCompound2, bool settingCompound3)
{
    float sumNet = 0, sum1 = 0, sum2 = 0, sum3 = 0;
    for (RefLine& l : d.lines) {
        volatile float net = l.price * l.quantity;
        l.net = net;
        sumNet = sumNet + l.net;
        float own1 = 0, own2 = 0, own3 = 0;
        l.tax[0] = l.oldTax[0];
        l.tax[1] = l.oldTax[1];
        l.tax[2] = l.oldTax[2];
        if (l.charged[0]) {
            own1 = l.net * l.rate[0];
            l.tax[0] = own1;
            sum1 = sum1 + own1;
        }
        if (l.charged[1]) {
            if (l.compound2) {
                volatile float base = l.net + l.net * l.rate[0];
                own2 = base * l.rate[1];
            } else {
                own2 = l.net * l.rate[1];
            }
            l.tax[1] = own2;
            sum2 = sum2 + own2;
        }
        if (l.charged[2]) {
            if (l.compound3) {
                volatile float afterFirst = l.net + l.net * l.rate[0];
                volatile float afterSecond = afterFirst + afterFirst * l.rate[1];
                own3 = afterSecond * l.rate[2];
            } else {
                own3 = l.net * l.rate[2];
            }
            l.tax[2] = own3;
            sum3 = sum3 + own3;
        }
        volatile float g = l.net + own1;
        g = g + own2;
        g = g + own3;
        l.gross = g;
    }
    float ship = 0;
    if (d.shippingOn) {
        ship = d.shipping;
        if (d.shippingTax[0])
            sum1 = sum1 + ship * d.docRate[0];
        if (d.shippingTax[1]) {
            if (settingCompound2) {
                volatile float base = ship + ship * d.docRate[0];
                sum2 = sum2 + base * d.docRate[1];
            } else {
                sum2 = sum2 + ship * d.docRate[1];
            }
        }
        if (d.shippingTax[2]) {
            if (settingCompound3) {
                volatile float x = ship + ship * d.docRate[0];
                volatile float y = x + x * d.docRate[1];
                sum3 = sum3 + y * d.docRate[2];
            } else {
                sum3 = sum3 + ship * d.docRate[2];
            }
        }
    }
    volatile float total = sumNet + sum1;
    total = total + sum2;
    total = total + sum3;
    total = total + ship;
    if (d.discountOn) {
        if (d.discountKind != 0)
            total = total - total * d.discountRate;
        else
            total = total - d.discountValue;
    }
    d.total = total;
    d.sub = sumNet;
    d.taxTotal[0] = sum1;
    d.taxTotal[1] = sum2;
    d.taxTotal[2] = sum3;
}

::testing::AssertionResult sameBits(const char* what, float expected, float actual)
{
    if (std::bit_cast<std::uint32_t>(expected) == std::bit_cast<std::uint32_t>(actual))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << what << ": expected " << expected << " (0x" << std::hex
                                         << std::bit_cast<std::uint32_t>(expected) << "), got " << actual
                                         << " (0x" << std::bit_cast<std::uint32_t>(actual) << ")";
}

TEST_F(CalculatorTest, RandomDocumentsAgreeBitForBitWithStepByStepEvaluation)
{
    std::mt19937 rng(20250305);
    auto chance = [&rng](double p) { return std::bernoulli_distribution(p)(rng); };
    auto money = [&rng, &chance]() -> float {
        if (chance(0.05))
            return 0.0f;
        // Cents, odd fractions, large and negative values alike.
        switch (std::uniform_int_distribution<int>(0, 3)(rng)) {
        case 0:
            return float(std::uniform_int_distribution<int>(0, 100000)(rng)) / 100.0f;
        case 1:
            return std::uniform_real_distribution<float>(-500.0f, 500.0f)(rng);
        case 2:
            return std::uniform_real_distribution<float>(0.0f, 1.0e7f)(rng);
        default:
            return float(std::uniform_int_distribution<int>(1, 999)(rng)) / 7.0f;
        }
    };
    auto rate = [&rng, &chance]() -> float {
        static const float common[] = {0.0f, 0.05f, 0.07f, 0.1f, 0.16f, 0.19f, 0.2f, 0.21f, 0.255f};
        if (chance(0.6))
            return common[std::uniform_int_distribution<int>(0, 8)(rng)];
        return std::uniform_real_distribution<float>(0.0f, 0.5f)(rng);
    };

    constexpr int documents = 3000;
    int lineCount = 0;
    for (int n = 0; n < documents; ++n) {
        const bool compound2 = chance(0.5), compound3 = chance(0.5);
        settings.setValue(key::tax2IsCompound, compound2);
        settings.setValue(key::tax3IsCompound, compound3);

        RefDocument ref{};
        // Not listed: only the document's own arithmetic is compared here.
        ManagedObject* doc = context.insertNewObject(Entity::Invoice);
        const int lines = std::uniform_int_distribution<int>(0, 25)(rng);
        for (int i = 0; i < lines; ++i) {
            RefLine l{};
            for (int t = 0; t < 3; ++t) {
                l.rate[t] = rate();
                l.charged[t] = chance(0.5);
                l.oldTax[t] = money();
            }
            l.price = money();
            l.quantity = chance(0.5) ? float(std::uniform_int_distribution<int>(0, 40)(rng))
                                     : std::uniform_real_distribution<float>(0.0f, 12.0f)(rng);
            l.compound2 = chance(0.5);
            l.compound3 = chance(0.5);

            ManagedObject* it = item(doc, l.price, l.quantity);
            it->setValue(key::tax1Percent, l.rate[0]);
            it->setValue(key::tax2Percent, l.rate[1]);
            it->setValue(key::tax3Percent, l.rate[2]);
            it->setValue(key::isTax1Applied, l.charged[0]);
            it->setValue(key::isTax2Applied, l.charged[1]);
            it->setValue(key::isTax3Applied, l.charged[2]);
            it->setValue(key::isTax2Compound, l.compound2);
            it->setValue(key::isTax3Compound, l.compound3);
            it->setValue(key::tax1Amount, l.oldTax[0]);
            it->setValue(key::tax2Amount, l.oldTax[1]);
            it->setValue(key::tax3Amount, l.oldTax[2]);
            ref.lines.push_back(l);
        }
        ref.shippingOn = chance(0.6);
        ref.shipping = money();
        for (int t = 0; t < 3; ++t) {
            ref.shippingTax[t] = chance(0.5);
            ref.docRate[t] = rate();
        }
        ref.discountOn = chance(0.5);
        ref.discountKind = std::uniform_int_distribution<int>(0, 2)(rng);
        ref.discountRate = rate();
        ref.discountValue = money();
        doc->setValue(key::isShippingEnabled, ref.shippingOn);
        doc->setValue(key::shippingAmount, ref.shipping);
        doc->setValue(key::isShippingTax1Enabled, ref.shippingTax[0]);
        doc->setValue(key::isShippingTax2Enabled, ref.shippingTax[1]);
        doc->setValue(key::isShippingTax3Enabled, ref.shippingTax[2]);
        doc->setValue(key::tax1Percent, ref.docRate[0]);
        doc->setValue(key::tax2Percent, ref.docRate[1]);
        doc->setValue(key::tax3Percent, ref.docRate[2]);
        doc->setValue(key::isDiscountEnabled, ref.discountOn);
        doc->setValue(key::discountKind, ref.discountKind);
        doc->setValue(key::discountPercent, ref.discountRate);
        doc->setValue(key::discountAmount, ref.discountValue);

        calculator().calculateInvoiceAmounts(doc);
        referenceEvaluate(ref, compound2, compound3);

        const QList<ManagedObject*> stored = doc->items();
        ASSERT_EQ(stored.size(), qsizetype(ref.lines.size()));
        for (size_t i = 0; i < ref.lines.size(); ++i) {
            const RefLine& l = ref.lines[i];
            const ManagedObject& it = *stored[qsizetype(i)];
            ASSERT_TRUE(sameBits("net", l.net, it.floatValue(key::subAmount)))
                << "document " << n << " line " << i;
            ASSERT_TRUE(sameBits("tax1", l.tax[0], it.floatValue(key::tax1Amount))) << n << "/" << i;
            ASSERT_TRUE(sameBits("tax2", l.tax[1], it.floatValue(key::tax2Amount))) << n << "/" << i;
            ASSERT_TRUE(sameBits("tax3", l.tax[2], it.floatValue(key::tax3Amount))) << n << "/" << i;
            ASSERT_TRUE(sameBits("gross", l.gross, it.floatValue(key::amount))) << n << "/" << i;
        }
        ASSERT_TRUE(sameBits("subAmount", ref.sub, doc->floatValue(key::subAmount))) << "document " << n;
        ASSERT_TRUE(sameBits("tax1Amount", ref.taxTotal[0], doc->floatValue(key::tax1Amount))) << n;
        ASSERT_TRUE(sameBits("tax2Amount", ref.taxTotal[1], doc->floatValue(key::tax2Amount))) << n;
        ASSERT_TRUE(sameBits("tax3Amount", ref.taxTotal[2], doc->floatValue(key::tax3Amount))) << n;
        ASSERT_TRUE(sameBits("amount", ref.total, doc->floatValue(key::amount))) << n;
        lineCount += lines;
    }
    EXPECT_GT(lineCount, documents * 10);
}

TEST_F(CalculatorTest, RandomListsAgreeWithStepByStepTotals)
{
    std::mt19937 rng(42);
    for (int round = 0; round < 20; ++round) {
        struct Ref
        {
            ManagedObject* doc;
            qint64 kind, status;
            qint64 dueOffset;
            bool isPaid;
            float amount, paidAmount, dueAmount;
        };
        std::vector<Ref> refs;
        for (ManagedObject* o : state.invoicesController().arrangedObjects())
            context.deleteObject(o);
        for (int i = 0; i < 200; ++i) {
            Ref r{};
            r.kind = std::uniform_int_distribution<int>(0, 2)(rng) == 0 ? 0 : 1;
            r.status = std::uniform_int_distribution<int>(0, 5)(rng);
            r.dueOffset = std::uniform_int_distribution<int>(-5, 5)(rng) * 3600;
            r.isPaid = std::bernoulli_distribution(0.3)(rng);
            r.amount = std::uniform_real_distribution<float>(-100, 10000)(rng);
            r.paidAmount = std::uniform_real_distribution<float>(0, 5000)(rng);
            r.dueAmount = std::uniform_real_distribution<float>(0, 5000)(rng);
            r.doc = document(int(r.kind), int(r.status), r.amount);
            r.doc->setValue(key::due, clock.now().addSecs(r.dueOffset));
            r.doc->setValue(key::isPaid, r.isPaid);
            r.doc->setValue(key::paidAmount, r.paidAmount);
            r.doc->setValue(key::dueAmount, r.dueAmount);
            refs.push_back(r);
        }
        calculator().calculateDatabase();

        // The list order is the arranged order; walk the references in it.
        float total = 0, paid = 0, due = 0;
        quint64 counted = 0, forNumber = 0, quotes = 0;
        for (ManagedObject* o : state.invoicesController().arrangedObjects()) {
            Ref& r = *std::find_if(refs.begin(), refs.end(), [o](const Ref& x) { return x.doc == o; });
            if (r.kind != 1) {
                ++quotes;
                continue;
            }
            ++forNumber;
            if (r.status == 0)
                continue;
            if (r.status == 1 || r.status == 2) {
                if (r.dueOffset < 0) {
                    r.status = 2;
                    r.dueAmount = r.amount;
                } else {
                    r.status = 1;
                    r.dueAmount = 0;
                }
            }
            if (r.status >= 3 && !r.isPaid && r.status == 3)
                r.paidAmount = r.amount;
            if (r.status == 2) {
                r.dueAmount = r.amount;
                r.paidAmount = 0;
            } else if (r.status == 3) {
                r.paidAmount = r.amount;
                r.dueAmount = 0;
            } else if (r.status == 4) {
                volatile float rest = r.amount - r.paidAmount;
                r.dueAmount = rest;
            }
            total = total + r.amount;
            paid = paid + r.paidAmount;
            due = due + r.dueAmount;
            ++counted;
            ASSERT_EQ(o->intValue(key::status), r.status);
            ASSERT_TRUE(sameBits("dueAmount", r.dueAmount, o->floatValue(key::dueAmount)));
            ASSERT_TRUE(sameBits("paidAmount", r.paidAmount, o->floatValue(key::paidAmount)));
        }
        EXPECT_TRUE(sameBits("totalAmount", total, state.totalAmount));
        EXPECT_TRUE(sameBits("paidAmount", paid, state.paidAmount));
        EXPECT_TRUE(sameBits("dueAmount", due, state.dueAmount));
        EXPECT_EQ(state.invoiceCount, counted);
        EXPECT_EQ(state.invoiceCountForNumber, forNumber);
        EXPECT_EQ(state.quoteCount, quotes);
    }
}

} // namespace
