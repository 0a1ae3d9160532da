#include "tests/invoicing/InvoicingFixture.h"

using namespace vorn;
using namespace vorn::test;

namespace {

class ShippingDiscountTest : public InvoicingFixture
{
protected:
    ShippingDiscountTest()
    {
        assign(settings, key::locShipping, "Shipping", key::locDiscount, "Discount");
        doc = document(1);
        item(doc, 100, 1);
        select(doc);
    }
    ShippingController& shipping() { return controllers->shipping(); }
    DiscountController& discount() { return controllers->discount(); }

    // Fills the shipping popover as a user would and accepts it.
    void acceptShipping(const QString& title, float amount)
    {
        if (!shipping().isShippingPopoverShown())
            shipping().showShippingPopover();
        assign(*doc, key::isShippingEnabled, true, key::shippingTitle, title, key::shippingAmount, amount);
        shipping().closeShippingPopover();
    }
    QStringList remembered()
    {
        return texts(state.recentShippingArrayController().arrangedObjects(), {key::title, key::amount});
    }

    ManagedObject* doc = nullptr;
};

struct DefaultTitleCase
{
    const char* name;
    bool discount; // the discount popover rather than the shipping one
    bool enabled;
    const char* title;
    const char* setting;
    const char* expected;
};

const DefaultTitleCase defaultTitleCases[] = {
    {"newShipping", false, false, "", "Shipping", "Shipping"},
    {"shippingWithTitleKeepsIt", false, false, "Express", "Shipping", "Express"},
    {"shippingOnWithEmptyTitle", false, true, "", "Shipping", ""},
    {"noDefaultShippingTitle", false, false, "", "", ""},
    {"newDiscount", true, false, "", "Discount", "Discount"},
    {"discountWithTitleKeepsIt", true, false, "Loyalty", "Discount", "Loyalty"},
    {"discountOnWithEmptyTitle", true, true, "", "Discount", ""},
};

using DefaultTitles = CaseTable<ShippingDiscountTest, DefaultTitleCase>;

TEST_P(DefaultTitles, OnOpening)
{
    const DefaultTitleCase& c = GetParam();
    const QString& titleKey = c.discount ? key::discountTitle : key::shippingTitle;
    settings.setValue(c.discount ? key::locDiscount : key::locShipping, QString::fromUtf8(c.setting));
    doc->setValue(c.discount ? key::isDiscountEnabled : key::isShippingEnabled, c.enabled);
    doc->setValue(titleKey, QString::fromUtf8(c.title));
    if (c.discount)
        discount().showDiscountPopover();
    else
        shipping().showShippingPopover();
    EXPECT_EQ(doc->stringValue(titleKey), QString::fromUtf8(c.expected));
    EXPECT_TRUE(c.discount ? discount().isDiscountPopoverShown() : shipping().isShippingPopoverShown());
}

INSTANTIATE_TEST_SUITE_P(Shipping, DefaultTitles, ::testing::ValuesIn(defaultTitleCases), caseName);

TEST_F(ShippingDiscountTest, ButtonsToggleAndSentDocumentsAreRefused)
{
    settings.setValue(key::alwaysShowRecentShipping, 1);
    shipping().showShippingPopover();
    EXPECT_TRUE(shipping().isShippingPopoverShown());
    EXPECT_EQ(settings.intValue(key::shippingTabViewIndex), 1);
    shipping().showShippingPopover();
    EXPECT_FALSE(shipping().isShippingPopoverShown());
    discount().showDiscountPopover();
    discount().showDiscountPopover();
    EXPECT_FALSE(discount().isDiscountPopoverShown());
    EXPECT_TRUE(ui.alertTitles().isEmpty());

    for (int status : {1, 2, 3, 4}) {
        doc->setValue(key::status, status);
        doc->setValue(key::kind, status % 2); // quotes are locked by status too
        ui.clear();
        shipping().showShippingPopover();
        discount().showDiscountPopover();
        EXPECT_FALSE(shipping().isShippingPopoverShown());
        EXPECT_FALSE(discount().isDiscountPopoverShown());
        EXPECT_EQ(ui.alertTitles(), (QStringList{QStringLiteral("Error!"), QStringLiteral("Error!")}));
        EXPECT_FALSE(shipping().switchShippingOff());
        EXPECT_FALSE(discount().switchDiscountOff());
    }
}

TEST_F(ShippingDiscountTest, AcceptingRecalculatesAndRemembersEachChargeOnce)
{
    settings.setValue(key::tax2IsCompound, true);
    assign(*doc, key::tax1Percent, 0.2f, key::tax2Percent, 0.1f, key::isShippingTax2Enabled, true,
           key::shippingSubtitle, "2 days", key::hasShippingSubtitle, true);
    shipping().showShippingPopover();
    shipping().note() = QStringLiteral("by courier");
    acceptShipping(QStringLiteral("Express"), 10);
    EXPECT_FALSE(shipping().isShippingPopoverShown());
    EXPECT_FLOAT_EQ(doc->floatValue(key::tax2Amount), 1.2f);
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), 111.2f);

    acceptShipping(QStringLiteral("Express"), 10);
    acceptShipping(QStringLiteral("Express"), 12.5f);
    acceptShipping(QStringLiteral("Post"), 10);
    EXPECT_EQ(remembered(), QStringList({"Express|10", "Express|12.5", "Post|10"}));

    const ManagedObject* first = state.recentShippingArrayController().arrangedObjects().first();
    EXPECT_EQ(
        fields(*first, {key::note, key::subtitle, key::hasSubtitle, key::isTax1Enabled, key::isTax2Enabled}),
        QStringLiteral("by courier|2 days|true|false|true"));

    // Cancelling neither recalculates nor remembers.
    shipping().showShippingPopover();
    doc->setValue(key::shippingAmount, 99.0f);
    shipping().cancelShippingPopover();
    EXPECT_EQ(remembered().size(), 3);
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), 111.2f);
}

TEST_F(ShippingDiscountTest, PickingARememberedChargeSwitchesShippingOn)
{
    acceptShipping(QStringLiteral("Freight"), 40);
    ManagedObject* r = state.recentShippingArrayController().arrangedObjects().first();
    assign(*r, key::isTax1Enabled, true, key::subtitle, "pallet", key::note, "internal");
    assign(*doc, key::tax1Percent, 0.5f, key::isShippingEnabled, false, key::shippingTitle, "", key::notes,
           "");
    calculator().calculateInvoice(doc);
    ASSERT_FLOAT_EQ(doc->floatValue(key::amount), 100.0f);

    shipping().showShippingPopover();
    state.recentShippingArrayController().setSelectionIndexes({0});
    shipping().selectRecentShipping();
    EXPECT_EQ(fields(*doc, {key::isShippingEnabled, key::shippingTitle, key::shippingSubtitle,
                            key::isShippingTax1Enabled, key::notes}),
              QStringLiteral("true|Freight|pallet|true|"));
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), 160.0f);
    EXPECT_FALSE(shipping().isShippingPopoverShown());

    EXPECT_TRUE(shipping().switchShippingOff());
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), 100.0f);
}

TEST_F(ShippingDiscountTest, DiscountIsTakenOffOnAcceptAndNotRemembered)
{
    discount().showDiscountPopover();
    assign(*doc, key::isDiscountEnabled, true, key::discountKind, 1, key::discountPercent, 0.1f);
    discount().closeDiscountPopover();
    EXPECT_FALSE(discount().isDiscountPopoverShown());
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), 90.0f);
    EXPECT_FLOAT_EQ(state.totalAmount, 0.0f); // a created invoice is not in the totals

    EXPECT_TRUE(discount().switchDiscountOff());
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), 100.0f);
    EXPECT_EQ(context.fetch(Entity::RecentShipping).size(), 0);
}

} // namespace
