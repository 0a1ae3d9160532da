#include "tests/invoicing/InvoicingFixture.h"

#include "invoicing/TextValue.h"

#include <cmath>

using namespace vorn;
using namespace vorn::test;

namespace {

// ---------------------------------------------------------------------------
// Numbers typed into fields.

TEST(TextValues, ReadLikeAFormField)
{
    const std::pair<const char*, float> cases[] = {
        {"12.5", 12.5f},      {"12.5 kg", 12.5f}, {"1,5", 1.0f}, {"", 0.0f},       {"abc", 0.0f},
        {"  -3", -3.0f},      {".5", 0.5f},       {"5.", 5.0f},  {"1e3", 1000.0f}, {"1e", 1.0f},
        {"2E-1x", 0.2f},      {"+2", 2.0f},       {"--2", 0.0f}, {"-", 0.0f},      {"0x10", 0.0f},
        {"19.99", 19.99f},    {"\t7\n", 7.0f},    {"€5", 0.0f},  {"1e-60", 0.0f},  {"1e50", HUGE_VALF},
        {"-1e50", -HUGE_VALF}};
    for (const auto& [text, value] : cases)
        EXPECT_EQ(floatValueOfText(QString::fromUtf8(text)), value) << text;
    EXPECT_EQ(floatValueOfText(QString(100000, QLatin1Char('9'))), HUGE_VALF);
    for (float f : {34.65f, 19.99f, 0.1f, -2.5f, 1.0e7f, 3.4028235e38f})
        EXPECT_EQ(floatValueOfText(textOfFloat(f)), f);
    EXPECT_EQ(textOfFloat(34.65f), QStringLiteral("34.65"));
}

// ---------------------------------------------------------------------------
// The item popover.

class ItemControllerTest : public InvoicingFixture
{
protected:
    ItemControllerTest()
    {
        assign(settings, key::tax1Title, "VAT", key::tax2Title, "City", key::tax3Title, "Other",
               key::tax1Rate, 0.19, key::tax2Rate, 0.05, key::tax3Rate, 0.01, key::tax1Enabled, true,
               key::tax2Enabled, true, key::tax3Enabled, false, key::tax2IsCompound, true);
        doc = document(1);
        select(doc);
    }
    ItemController& items() { return controllers->items(); }

    ManagedObject* add(const QString& title, const QString& price, const QString& sku = {})
    {
        items().showItemPopover();
        ItemController::Popover& p = items().popover();
        p.title = title;
        p.baseAmount = price;
        p.sku = sku;
        return items().addItem();
    }
    ManagedObject* doc = nullptr;
};

TEST_F(ItemControllerTest, AddingALineCopiesFieldsAndSettingsAndRecalculates)
{
    items().showItemPopover();
    ItemController::Popover& p = items().popover();
    EXPECT_TRUE(p.shown && p.tax1 && p.tax2 && !p.tax3);
    EXPECT_EQ(state.itemPopoverQuantity, 1.0f);
    p = {true, "Design", "Logo", "h", "D-1", "urgent", "80 per hour", true, false, false};
    state.itemPopoverQuantity = 2.5f;

    ManagedObject* line = items().addItem();
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(
        fields(*line,
               {key::title, key::subtitle, key::unit, key::sku, key::note, key::tax1Title, key::tax3Title,
                key::baseAmount, key::unitCount, key::isTax1Applied, key::isTax2Applied, key::isTax2Compound,
                key::isTax3Compound, key::tax1Percent, key::tax2Percent, key::tax3Percent, key::tax2Amount}),
        QStringLiteral("Design|Logo|h|D-1|urgent|VAT|Other|80|2.5|true|false|true|false|0.19|0.05|0.01|0"));

    EXPECT_EQ(doc->items(), QList<ManagedObject*>{line});
    EXPECT_EQ(state.itemsController().selectedObject(), line);
    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), 200.0f);
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), 238.0f);
    EXPECT_FALSE(items().popover().shown);
    EXPECT_FALSE(context.hasChanges());

    // Lines are appended in order; prices that do not read as numbers are 0.
    add("B", "ten");
    add("C", "1,5");
    EXPECT_EQ(texts(doc->items(), {key::title, key::baseAmount}), QStringList({"Design|80", "B|0", "C|1"}));
    EXPECT_EQ(state.itemsController().arrangedObjects(), doc->items());
}

struct RecentCase
{
    const char* name;
    std::vector<std::tuple<const char*, const char*, const char*>> lines; // title, price, sku
    QStringList remembered;
};

const RecentCase recentCases[] = {
    {"sameTitleAndPriceOnce", {{"Hour", "80", ""}, {"Hour", "80", ""}}, {"Hour"}},
    {"samePriceTextDifferentSpelling", {{"Hour", "80", ""}, {"Hour", "80.00", ""}}, {"Hour"}},
    {"sameTitleOtherPrice", {{"Hour", "80", ""}, {"Hour", "90", ""}}, {"Hour", "Hour"}},
    {"equalSkuOtherTitle", {{"Hour", "80", "H1"}, {"Stunde", "70", "H1"}}, {"Hour"}},
    {"emptySkusDoNotMatch", {{"Hour", "80", ""}, {"Day", "600", ""}}, {"Hour", "Day"}},
    {"otherSkuSameTitleAndPrice", {{"Hour", "80", "H1"}, {"Hour", "80", "H2"}}, {"Hour"}},
};

using RecentItems = CaseTable<ItemControllerTest, RecentCase>;

TEST_P(RecentItems, RememberedOnce)
{
    for (const auto& [title, price, sku] : GetParam().lines)
        add(QString::fromUtf8(title), QString::fromUtf8(price), QString::fromUtf8(sku));
    EXPECT_EQ(texts(state.recentItemsController().arrangedObjects()), GetParam().remembered);
    EXPECT_EQ(doc->items().size(), qsizetype(GetParam().lines.size()));
    EXPECT_FALSE(context.hasChanges());
}

INSTANTIATE_TEST_SUITE_P(Items, RecentItems, ::testing::ValuesIn(recentCases), caseName);

TEST_F(ItemControllerTest, RecentItemsForgetSwitchedOffTaxesAndTheQuantity)
{
    // The button toggles the popover, opened on the page the settings ask.
    assign(settings, key::tax2Enabled, false, key::alwaysShowRecentItems, 1);
    items().showItemPopover();
    EXPECT_TRUE(items().popover().shown);
    EXPECT_EQ(settings.intValue(key::itemTabViewIndex), 1);
    items().showItemPopover();
    EXPECT_FALSE(items().popover().shown);
    items().showItemPopover();
    items().popover() = {true, "Box", {}, {}, {}, {}, "4.99", true, true, true};
    state.itemPopoverQuantity = 12;
    items().addItem();
    const ManagedObject* r = state.recentItemsController().arrangedObjects().value(0);
    ASSERT_NE(r, nullptr);
    EXPECT_EQ(fields(*r, {key::isTax1Applied, key::isTax2Applied, key::isTax3Applied, key::baseAmount,
                          key::subAmount}),
              QStringLiteral("true|false|false|4.99|0"));

    // Picking it fills the entry page, masked by the taxes switched on now.
    assign(settings, key::tax2Enabled, true, key::itemTabViewIndex, 1);
    items().showItemPopover();
    items().showItemPopover();
    state.recentItemsController().setSelectionIndexes({0});
    items().addItemRecent();
    const ItemController::Popover& p = items().popover();
    EXPECT_EQ(p.title + p.baseAmount, QStringLiteral("Box4.99"));
    EXPECT_TRUE(p.tax1 && !p.tax2 && !p.tax3);
    EXPECT_EQ(settings.intValue(key::itemTabViewIndex), 0);
    EXPECT_EQ(ui.calls(QStringLiteral("focus")).last().title, QStringLiteral("itemPopoverQuantityView"));
}

struct DeleteItemCase
{
    const char* name;
    int status, answer;
    const char* alert;
    bool deleted;
};

const DeleteItemCase deleteItemCases[] = {
    {"createdConfirmed", 0, 0, "Delete Item", true},
    {"createdCancelled", 0, 1, "Delete Item", false},
    {"sentRefused", 1, 0, "Error!", false},
    {"paidRefused", 3, 0, "Error!", false},
};

using DeletingItems = CaseTable<ItemControllerTest, DeleteItemCase>;

TEST_P(DeletingItems, LastLine)
{
    const DeleteItemCase& c = GetParam();
    ManagedObject* line = add("Only", "50");
    doc->setValue(key::status, c.status);
    state.itemsController().setSelectedObjects({line});
    ui.clear();
    ui.answerAlert(c.answer);

    items().deleteItem();

    EXPECT_EQ(ui.alertTitles(), QStringList{QString::fromUtf8(c.alert)});
    EXPECT_EQ(line->isDeleted(), c.deleted);
    EXPECT_EQ(doc->items().isEmpty(), c.deleted);
    EXPECT_EQ(state.itemsController().count(), c.deleted ? 0 : 1);
    // 50 + 19 % + 5 % compound on both.
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), c.deleted ? 0.0f : 62.475f);
}

INSTANTIATE_TEST_SUITE_P(Items, DeletingItems, ::testing::ValuesIn(deleteItemCases), caseName);

TEST_F(ItemControllerTest, EditSheetIsRefusedForSentDocumentsAndRecalculatesOnClose)
{
    ManagedObject* line = add("Hour", "80");
    doc->setValue(key::status, 1);
    ui.clear();
    items().openEditItemSheet();
    EXPECT_EQ(ui.alertTitles(), QStringList{QStringLiteral("Error!")});
    EXPECT_FALSE(items().isEditItemSheetShown());
    EXPECT_FALSE(items().editItemButtonState());

    doc->setValue(key::status, 0);
    items().openEditItemSheet();
    EXPECT_TRUE(items().isEditItemSheetShown());
    line->setValue(key::unitCount, 3.0f);
    items().editItem();
    EXPECT_FALSE(items().isEditItemSheetShown());
    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), 240.0f);
    EXPECT_FALSE(context.hasChanges());
}

TEST_F(ItemControllerTest, TheItemsListFollowsTheCurrentDocumentAndUndo)
{
    add("A", "1");
    select(document(0));
    EXPECT_EQ(state.itemsController().count(), 0);
    select(doc);
    EXPECT_EQ(state.itemsController().count(), 1);
    context.undoManager()->undo();
    EXPECT_EQ(state.itemsController().count(), qsizetype(doc->items().size()));
}

} // namespace
