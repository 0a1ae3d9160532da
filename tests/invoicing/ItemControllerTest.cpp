#include "tests/invoicing/InvoicingFixture.h"

#include "invoicing/TextValue.h"

#include <cmath>

using namespace vorn;
using namespace vorn::test;

namespace {

// ---------------------------------------------------------------------------
// Numbers typed into fields.

struct TextCase
{
    const char* text;
    float value;
};

const TextCase textCases[] = {
    {"12.5", 12.5f},   {"12.5 kg", 12.5f}, {"1,5", 1.0f}, {"", 0.0f},       {"abc", 0.0f},
    {"  -3", -3.0f},   {".5", 0.5f},       {"5.", 5.0f},  {"1e3", 1000.0f}, {"1e", 1.0f},
    {"2E-1x", 0.2f},   {"+2", 2.0f},       {"--2", 0.0f}, {"-", 0.0f},      {"0x10", 0.0f},
    {"19.99", 19.99f}, {"\t7\n", 7.0f},    {"€5", 0.0f},
};

class TextValues : public ::testing::TestWithParam<TextCase>
{
};

TEST_P(TextValues, ReadLikeAFormField)
{
    EXPECT_EQ(floatValueOfText(QString::fromUtf8(GetParam().text)), GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Items, TextValues, ::testing::ValuesIn(textCases));

TEST(TextValueLimits, OutOfRangeAndRoundTrip)
{
    EXPECT_TRUE(std::isinf(floatValueOfText(QStringLiteral("1e50"))));
    EXPECT_LT(floatValueOfText(QStringLiteral("-1e50")), 0.0f);
    EXPECT_EQ(floatValueOfText(QStringLiteral("1e-60")), 0.0f);
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
        settings.setValue(key::tax1Title, QStringLiteral("VAT"));
        settings.setValue(key::tax2Title, QStringLiteral("City"));
        settings.setValue(key::tax3Title, QStringLiteral("Other"));
        settings.setValue(key::tax1Rate, 0.19);
        settings.setValue(key::tax2Rate, 0.05);
        settings.setValue(key::tax3Rate, 0.01);
        settings.setValue(key::tax1Enabled, true);
        settings.setValue(key::tax2Enabled, true);
        settings.setValue(key::tax3Enabled, false);
        settings.setValue(key::tax2IsCompound, true);
        doc = document(1);
        select(doc);
    }
    ItemController& items() { return controllers->items(); }

    ManagedObject* add(const QString& title, const QString& price, const QString& sku = {},
                       float quantity = 1)
    {
        items().showItemPopover();
        auto& p = items().popover();
        p.title = title;
        p.baseAmount = price;
        p.sku = sku;
        state.itemPopoverQuantity = quantity;
        return items().addItem();
    }
    QStringList recentTitles() const
    {
        QStringList titles;
        for (const ManagedObject* r : const_cast<AppState&>(state).recentItemsController().arrangedObjects())
            titles << r->stringValue(key::title);
        return titles;
    }

    ManagedObject* doc = nullptr;
};

TEST_F(ItemControllerTest, AddingALineCopiesFieldsAndSettingsAndRecalculates)
{
    items().showItemPopover();
    auto& p = items().popover();
    EXPECT_TRUE(p.shown);
    EXPECT_TRUE(p.tax1);
    EXPECT_TRUE(p.tax2);
    EXPECT_FALSE(p.tax3);
    EXPECT_EQ(state.itemPopoverQuantity, 1.0f);
    p.title = QStringLiteral("Design");
    p.subtitle = QStringLiteral("Logo");
    p.unit = QStringLiteral("h");
    p.sku = QStringLiteral("D-1");
    p.note = QStringLiteral("urgent");
    p.baseAmount = QStringLiteral("80 per hour");
    p.tax2 = false;
    state.itemPopoverQuantity = 2.5f;

    ManagedObject* line = items().addItem();
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->stringValue(key::title), QStringLiteral("Design"));
    EXPECT_EQ(line->stringValue(key::subtitle), QStringLiteral("Logo"));
    EXPECT_EQ(line->stringValue(key::unit), QStringLiteral("h"));
    EXPECT_EQ(line->stringValue(key::sku), QStringLiteral("D-1"));
    EXPECT_EQ(line->stringValue(key::note), QStringLiteral("urgent"));
    EXPECT_EQ(line->stringValue(key::tax1Title), QStringLiteral("VAT"));
    EXPECT_EQ(line->stringValue(key::tax3Title), QStringLiteral("Other"));
    EXPECT_EQ(line->floatValue(key::baseAmount), 80.0f);
    EXPECT_EQ(line->floatValue(key::unitCount), 2.5f);
    EXPECT_TRUE(line->boolValue(key::isTax1Applied));
    EXPECT_FALSE(line->boolValue(key::isTax2Applied));
    EXPECT_TRUE(line->boolValue(key::isTax2Compound));
    EXPECT_FALSE(line->boolValue(key::isTax3Compound));
    EXPECT_EQ(line->floatValue(key::tax1Percent), 0.19f);
    EXPECT_EQ(line->floatValue(key::tax2Percent), 0.05f);
    EXPECT_EQ(line->floatValue(key::tax3Percent), 0.01f);
    EXPECT_EQ(line->floatValue(key::tax2Amount), 0.0f);
    EXPECT_TRUE(line->hasValue(key::tax2Amount));

    EXPECT_EQ(doc->items(), QList<ManagedObject*>{line});
    EXPECT_EQ(state.itemsController().selectedObject(), line);
    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), 200.0f);
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), 238.0f);
    EXPECT_FALSE(items().popover().shown);
    EXPECT_FALSE(context.hasChanges());

    // Changing the settings later leaves the line alone.
    settings.setValue(key::tax1Rate, 0.2);
    EXPECT_EQ(line->floatValue(key::tax1Percent), 0.19f);
}

TEST_F(ItemControllerTest, LinesAreAppendedInOrderAndUnparseableNumbersReadAsZero)
{
    add(QStringLiteral("A"), QStringLiteral("10"));
    add(QStringLiteral("B"), QStringLiteral("ten"));
    ManagedObject* c = add(QStringLiteral("C"), QStringLiteral("1,5"));
    ASSERT_EQ(doc->items().size(), 3);
    EXPECT_EQ(doc->items()[1]->floatValue(key::baseAmount), 0.0f);
    EXPECT_EQ(doc->items()[2], c);
    EXPECT_EQ(c->floatValue(key::baseAmount), 1.0f);
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

class RecentItems : public ItemControllerTest, public ::testing::WithParamInterface<RecentCase>
{
};

TEST_P(RecentItems, RememberedOnce)
{
    for (const auto& [title, price, sku] : GetParam().lines)
        add(QString::fromUtf8(title), QString::fromUtf8(price), QString::fromUtf8(sku));
    EXPECT_EQ(recentTitles(), GetParam().remembered);
    EXPECT_EQ(doc->items().size(), qsizetype(GetParam().lines.size()));
    EXPECT_FALSE(context.hasChanges());
}

INSTANTIATE_TEST_SUITE_P(Items, RecentItems, ::testing::ValuesIn(recentCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(ItemControllerTest, RecentItemsForgetSwitchedOffTaxesAndTheQuantity)
{
    settings.setValue(key::tax2Enabled, false);
    items().showItemPopover();
    auto& p = items().popover();
    p.title = QStringLiteral("Box");
    p.baseAmount = QStringLiteral("4.99");
    p.tax1 = true;
    p.tax2 = true;
    p.tax3 = true;
    state.itemPopoverQuantity = 12;
    items().addItem();
    const ManagedObject* r = state.recentItemsController().arrangedObjects().value(0);
    ASSERT_NE(r, nullptr);
    EXPECT_TRUE(r->boolValue(key::isTax1Applied));
    EXPECT_FALSE(r->boolValue(key::isTax2Applied));
    EXPECT_FALSE(r->boolValue(key::isTax3Applied));
    EXPECT_EQ(r->floatValue(key::baseAmount), 4.99f);
    EXPECT_EQ(r->floatValue(key::subAmount), 0.0f);

    // Picking it fills the entry page, masked by the taxes switched on now.
    settings.setValue(key::tax2Enabled, true);
    settings.setValue(key::itemTabViewIndex, 1);
    items().showItemPopover();
    items().showItemPopover();
    state.recentItemsController().setSelectionIndexes({0});
    items().addItemRecent();
    EXPECT_EQ(items().popover().title, QStringLiteral("Box"));
    EXPECT_EQ(items().popover().baseAmount, QStringLiteral("4.99"));
    EXPECT_TRUE(items().popover().tax1);
    EXPECT_FALSE(items().popover().tax2);
    EXPECT_FALSE(items().popover().tax3);
    EXPECT_EQ(settings.intValue(key::itemTabViewIndex), 0);
    EXPECT_EQ(ui.calls(QStringLiteral("focus")).last().title, QStringLiteral("itemPopoverQuantityView"));
}

TEST_F(ItemControllerTest, PopoverTogglesAndOpensOnThePageTheSettingsAsk)
{
    settings.setValue(key::alwaysShowRecentItems, 1);
    items().showItemPopover();
    EXPECT_TRUE(items().popover().shown);
    EXPECT_EQ(settings.intValue(key::itemTabViewIndex), 1);
    items().showItemPopover();
    EXPECT_FALSE(items().popover().shown);

    state.invoicesController().setSelectionIndexes({});
    items().showItemPopover();
    EXPECT_FALSE(items().popover().shown);
    EXPECT_EQ(items().addItem(), nullptr);
}

struct DeleteItemCase
{
    const char* name;
    int status;
    int answer;
    const char* alert;
    bool deleted;
};

const DeleteItemCase deleteItemCases[] = {
    {"createdConfirmed", 0, 0, "Delete Item", true},
    {"createdCancelled", 0, 1, "Delete Item", false},
    {"sentRefused", 1, 0, "Error!", false},
    {"paidRefused", 3, 0, "Error!", false},
};

class DeletingItems : public ItemControllerTest, public ::testing::WithParamInterface<DeleteItemCase>
{
};

TEST_P(DeletingItems, LastLine)
{
    const DeleteItemCase& c = GetParam();
    ManagedObject* line = add(QStringLiteral("Only"), QStringLiteral("50"));
    doc->setValue(key::status, c.status);
    state.itemsController().setSelectedObjects({line});
    ui.clear();
    ui.answerAlert(c.answer);

    items().deleteItem();

    EXPECT_EQ(ui.alertTitles(), QStringList{QString::fromUtf8(c.alert)});
    EXPECT_EQ(line->isDeleted(), c.deleted);
    EXPECT_EQ(doc->items().isEmpty(), c.deleted);
    EXPECT_EQ(state.itemsController().count(), c.deleted ? 0 : 1);
    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), c.deleted ? 0.0f : 50.0f);
    // 50 + 19 % + 5 % compound on both.
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), c.deleted ? 0.0f : 62.475f);
}

INSTANTIATE_TEST_SUITE_P(Items, DeletingItems, ::testing::ValuesIn(deleteItemCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(ItemControllerTest, EditSheetIsRefusedForSentDocumentsAndRecalculatesOnClose)
{
    ManagedObject* line = add(QStringLiteral("Hour"), QStringLiteral("80"));
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
    add(QStringLiteral("A"), QStringLiteral("1"));
    ManagedObject* other = document(0);
    select(other);
    EXPECT_EQ(state.itemsController().count(), 0);
    select(doc);
    EXPECT_EQ(state.itemsController().count(), 1);
    context.undoManager()->undo();
    EXPECT_EQ(state.itemsController().count(), qsizetype(doc->items().size()));
}

} // namespace
