#include "tests/invoicing/InvoicingFixture.h"

#include "invoicing/ValueTransformers.h"

using namespace vorn;
using namespace vorn::test;

namespace {

using Transformers = InvoicingFixture;

// The stamps of the list and the page, and whether the page can be edited:
// quotes always, invoices only while created.
TEST_F(Transformers, StampsPerKindAndStatus)
{
    // kind (-1: nothing selected), status, large stamp, small stamp, editable
    const std::tuple<int, int, const char*, const char*, bool> cases[] = {{-1, 0, "", "", false},
                                                                          {0, 0, "Stamp5", "StampM5", true},
                                                                          {0, 3, "Stamp5", "StampM5", true},
                                                                          {1, 0, "Stamp0", "StampM0", true},
                                                                          {1, 1, "Stamp1", "StampM1", false},
                                                                          {1, 2, "Stamp2", "StampM2", false},
                                                                          {1, 3, "Stamp3", "StampM3", false},
                                                                          {1, 4, "Stamp4", "StampM4", false},
                                                                          {1, 5, "Stamp0", "StampM0", false},
                                                                          {1, 7, "Stamp0", "StampM0", false},
                                                                          {2, 2, "Stamp2", "StampM2", false}};
    for (const auto& [kind, status, large, small, editable] : cases) {
        SCOPED_TRACE(QStringLiteral("%1 %2").arg(kind).arg(status).toStdString());
        ManagedObject* doc = kind < 0 ? nullptr : document(kind, status);
        // The large stamp follows the first of several selected documents.
        const QList<ManagedObject*> selection =
            doc ? QList<ManagedObject*>{doc, document(1, 3)} : QList<ManagedObject*>{};
        EXPECT_EQ(ValueTransformers::entityToImage(selection), QString::fromUtf8(large));
        EXPECT_EQ(ValueTransformers::entityToImageTable(doc), QString::fromUtf8(small));
        EXPECT_EQ(ValueTransformers::invoiceSentToBool(doc), editable);
    }
}

TEST_F(Transformers, BracketedTwoDigitsOnlyWhenShown)
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
