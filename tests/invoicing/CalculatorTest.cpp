#include "tests/invoicing/InvoicingFixture.h"

#include <array>
#include <bit>
#include <climits>
#include <cstdint>
#include <random>

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

class LineArithmetic : public InvoicingFixture, public ::testing::WithParamInterface<LineCase>
{
};

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

INSTANTIATE_TEST_SUITE_P(Calculator, LineArithmetic, ::testing::ValuesIn(lineCases),
                         [](const auto& info) { return std::string(info.param.name); });

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

class DocumentArithmetic : public InvoicingFixture, public ::testing::WithParamInterface<DocumentCase>
{
};

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

INSTANTIATE_TEST_SUITE_P(Calculator, DocumentArithmetic, ::testing::ValuesIn(documentCases),
                         [](const auto& info) { return std::string(info.param.name); });

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

class StatusMoves : public InvoicingFixture, public ::testing::WithParamInterface<StatusCase>
{
};

TEST_P(StatusMoves, OneDocument)
{
    const StatusCase& c = GetParam();
    ManagedObject* doc = document(c.kind, c.status, c.amount);
    const QDateTime oldPaid = at(2020, 1, 1);
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

INSTANTIATE_TEST_SUITE_P(Calculator, StatusMoves, ::testing::ValuesIn(statusCases),
                         [](const auto& info) { return std::string(info.param.name); });

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

// ---------------------------------------------------------------------------
// Randomized cross-checks against a separate step-by-step evaluation.
//
// The references below are written from the arithmetic rules alone, on the
// plain values read from the objects: they share no code with the
// calculator. Both must agree bit for bit.

// What the calculator writes, for a line and for a document alike.
const QString resultKeys[] = {key::subAmount, key::tax1Amount, key::tax2Amount, key::tax3Amount, key::amount};
using Results = std::array<float, 5>;

// The base a compound tax is charged on: the amount with each earlier tax added in turn.
float compounded(float amount, const float* rates, int earlier)
{
    volatile float x = amount;
    for (int i = 0; i < earlier; ++i)
        x = x + x * rates[i];
    return x;
}

// The expected results of every line, then of the document.
std::vector<Results> referenceEvaluate(const ManagedObject& doc, const bool settingCompound[3])
{
    std::vector<Results> expected;
    float sumNet = 0, sum[3] = {0, 0, 0}, docRate[3];
    for (const ManagedObject* l : doc.items()) {
        const float rate[3] = {l->floatValue(key::tax1Percent), l->floatValue(key::tax2Percent),
                               l->floatValue(key::tax3Percent)};
        const bool compound[3] = {false, l->boolValue(key::isTax2Compound),
                                  l->boolValue(key::isTax3Compound)};
        volatile float net = l->floatValue(key::baseAmount) * l->floatValue(key::unitCount);
        sumNet = sumNet + net;
        Results r{net};
        volatile float gross = net;
        for (int t = 0; t < 3; ++t) {
            float own = 0; // added to the gross amount even when not charged (-0 + 0 is +0)
            r[t + 1] = l->floatValue(amountKeys[t]);
            if (l->boolValue(appliedKeys[t])) {
                own = (compound[t] ? compounded(net, rate, t) : net) * rate[t];
                r[t + 1] = own;
                sum[t] = sum[t] + own;
            }
            gross = gross + own;
        }
        r[4] = gross;
        expected.push_back(r);
    }
    for (int t = 0; t < 3; ++t)
        docRate[t] = doc.floatValue(percentKeys[t]);
    const bool shippingOn = doc.boolValue(key::isShippingEnabled);
    const float ship = shippingOn ? doc.floatValue(key::shippingAmount) : 0;
    for (int t = 0; t < 3 && shippingOn; ++t) {
        if (doc.boolValue(shippingTaxKeys[t]))
            sum[t] = sum[t] + (settingCompound[t] ? compounded(ship, docRate, t) : ship) * docRate[t];
    }
    volatile float total = sumNet;
    for (float s : sum)
        total = total + s;
    total = total + ship;
    if (doc.boolValue(key::isDiscountEnabled)) {
        total = doc.intValue(key::discountKind) != 0 ? total - total * doc.floatValue(key::discountPercent)
                                                     : total - doc.floatValue(key::discountAmount);
    }
    expected.push_back({sumNet, sum[0], sum[1], sum[2], total});
    return expected;
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
        const bool compound[3] = {false, chance(0.5), chance(0.5)};
        assign(settings, key::tax2IsCompound, compound[1], key::tax3IsCompound, compound[2]);
        // Not listed: only the document's own arithmetic is compared here.
        ManagedObject* doc = context.insertNewObject(Entity::Invoice);
        const int lines = std::uniform_int_distribution<int>(0, 25)(rng);
        for (int i = 0; i < lines; ++i) {
            const float price = money();
            ManagedObject* it = item(doc, price,
                                     chance(0.5) ? float(std::uniform_int_distribution<int>(0, 40)(rng))
                                                 : std::uniform_real_distribution<float>(0.0f, 12.0f)(rng));
            assign(*it, key::isTax2Compound, chance(0.5), key::isTax3Compound, chance(0.5));
            for (int t = 0; t < 3; ++t)
                assign(*it, percentKeys[t], rate(), appliedKeys[t], chance(0.5), amountKeys[t], money());
        }
        for (int t = 0; t < 3; ++t)
            assign(*doc, shippingTaxKeys[t], chance(0.5), percentKeys[t], rate());
        assign(*doc, key::isShippingEnabled, chance(0.6), key::shippingAmount, money(),
               key::isDiscountEnabled, chance(0.5), key::discountKind,
               std::uniform_int_distribution<int>(0, 2)(rng), key::discountPercent, rate(),
               key::discountAmount, money());

        const std::vector<Results> expected = referenceEvaluate(*doc, compound);
        calculator().calculateInvoiceAmounts(doc);

        const QList<ManagedObject*> stored = doc->items();
        ASSERT_EQ(stored.size() + 1, qsizetype(expected.size()));
        for (qsizetype i = 0; i <= stored.size(); ++i) {
            const ManagedObject* object = i < stored.size() ? stored[i] : doc;
            for (int k = 0; k < 5; ++k)
                ASSERT_TRUE(sameBits(qPrintable(resultKeys[k]), expected[size_t(i)][size_t(k)],
                                     object->floatValue(resultKeys[k])))
                    << "document " << n << " line " << i;
        }
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
            qint64 kind, status, dueOffset;
            bool isPaid;
            float amount, paidAmount, dueAmount;
        };
        QHash<const ManagedObject*, Ref> refs;
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
            ManagedObject* doc = document(int(r.kind), int(r.status), r.amount);
            assign(*doc, key::due, clock.now().addSecs(r.dueOffset), key::isPaid, r.isPaid, key::paidAmount,
                   r.paidAmount, key::dueAmount, r.dueAmount);
            refs.insert(doc, r);
        }
        calculator().calculateDatabase();

        // The list order is the arranged order; walk the references in it.
        float total = 0, paid = 0, due = 0;
        quint64 counted = 0, forNumber = 0, quotes = 0;
        for (ManagedObject* o : state.invoicesController().arrangedObjects()) {
            Ref& r = refs[o];
            if (r.kind != 1) {
                ++quotes;
                continue;
            }
            ++forNumber;
            if (r.status == 0)
                continue;
            if (r.status == 1 || r.status == 2)
                r.status = r.dueOffset < 0 ? 2 : 1;
            if (r.status == 1) {
                r.dueAmount = 0;
            } else if (r.status == 2) {
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
