#include "tests/invoicing/InvoicingFixture.h"

#include "invoicing/ValueTransformers.h"

using namespace vorn;
using namespace vorn::test;

namespace {

struct StampCase
{
    int kind, status; // kind -1: no document
    const char* large;
    const char* small;
    bool editable;
};

const StampCase stampCases[] = {
    {-1, 0, "", "", false},
    {0, 0, "Stamp5", "StampM5", true},
    {0, 3, "Stamp5", "StampM5", true},
    {1, 0, "Stamp0", "StampM0", true},
    {1, 1, "Stamp1", "StampM1", false},
    {1, 2, "Stamp2", "StampM2", false},
    {1, 3, "Stamp3", "StampM3", false},
    {1, 4, "Stamp4", "StampM4", false},
    {1, 5, "Stamp0", "StampM0", false},
    {1, 7, "Stamp0", "StampM0", false},
    {2, 2, "Stamp2", "StampM2", false},
};

using Stamps = CaseTable<InvoicingFixture, StampCase>;

TEST_P(Stamps, PerKindAndStatus)
{
    const StampCase& c = GetParam();
    ManagedObject* doc = c.kind < 0 ? nullptr : document(c.kind, c.status);
    const QList<ManagedObject*> selection =
        doc ? QList<ManagedObject*>{doc, document(1, 3)} : QList<ManagedObject*>{};
    EXPECT_EQ(ValueTransformers::entityToImage(selection), QString::fromUtf8(c.large));
    EXPECT_EQ(ValueTransformers::entityToImageTable(doc), QString::fromUtf8(c.small));
    EXPECT_EQ(ValueTransformers::invoiceSentToBool(doc), c.editable);
}

INSTANTIATE_TEST_SUITE_P(Transformers, Stamps, ::testing::ValuesIn(stampCases));

using SubAmountTest = InvoicingFixture;

TEST_F(SubAmountTest, BracketedTwoDigitsOnlyWhenShown)
{
    qputenv("LC_ALL", "de_DE.UTF-8");
    settings.setValue(key::showItemSubAmount, true);
    EXPECT_EQ(ValueTransformers::numberToSubAmountString(1234.5f, settings), QStringLiteral("(1.234,50)"));
    EXPECT_EQ(ValueTransformers::numberToSubAmountString(0.0f, settings), QStringLiteral("(0,00)"));
    qputenv("LC_ALL", "C.UTF-8");
    settings.setValue(key::showItemSubAmount, false);
    EXPECT_EQ(ValueTransformers::numberToSubAmountString(1234.5f, settings), QString());
}

} // namespace
