#include "tests/invoicing/InvoicingFixture.h"

using namespace vorn;
using namespace vorn::test;

namespace {

class DataControllerTest : public InvoicingFixture
{
protected:
    DataControllerTest()
    {
        assign(settings, key::invPattern, "RE-%YEAR%-%COUNT%", key::invCount, 100, key::quotPattern,
               "Q-%COUNT%", key::quotCount, 10, key::locInvoice, "Invoice", key::locQuote, "Quote",
               key::tempInvConditions, "Pay soon", key::tempInvFooter, "Thanks", key::tempQuotConditions,
               "Valid a while", key::tempQuotFooter, "Hope to hear", key::prefsCurrency, "€", key::tax1Rate,
               0.19, key::tax2Rate, 0.07, key::tax3Rate, 0.0);
    }
    DataController& data() { return controllers->data(); }
};

// ---------------------------------------------------------------------------
// New documents.

struct NewDocumentCase
{
    const char* name;
    bool quote, haveNumber, haveTerm;
    int termIndex;
    const char* number;
    int dueDays; // -1: due is now
};

const NewDocumentCase newDocumentCases[] = {
    {"invoiceNumberedWithTerm21", false, true, true, 2, "RE-2025-101", 21},
    {"invoiceTermIndexOutOfTableIs7", false, true, true, 9, "RE-2025-101", 7},
    {"invoiceNegativeTermIndexIs7", false, true, true, -1, "RE-2025-101", 7},
    {"invoiceWithoutNumberOrTerm", false, false, false, 3, "", -1},
    {"quoteNumberedWithValidity28", true, true, true, 3, "Q-11", 28},
    {"quoteWithoutNumberOrValidity", true, false, false, 0, "", -1},
};

using NewDocuments = CaseTable<DataControllerTest, NewDocumentCase>;

TEST_P(NewDocuments, DefaultsFromSettings)
{
    const NewDocumentCase& c = GetParam();
    assign(settings, c.quote ? key::quotHaveNumber : key::invHaveNumber, c.haveNumber,
           c.quote ? key::quotHaveValidity : key::invHaveDueDate, c.haveTerm,
           c.quote ? key::quotDefaultValidity : key::invDefaultDueDate, c.termIndex);
    ManagedObject* doc = c.quote ? data().addQuote() : data().addInvoice();
    ASSERT_NE(doc, nullptr);

    const QDateTime now = clock.now();
    EXPECT_EQ(doc->stringValue(key::number), QString::fromUtf8(c.number));
    // Terms are days on the local calendar (this one crosses the start of summer time).
    EXPECT_EQ(doc->dateValue(key::due), c.dueDays < 0 ? now : now.toLocalTime().addDays(c.dueDays).toUTC());
    EXPECT_EQ(fields(*doc, {key::kind, key::title, key::conditions, key::footer, key::currency,
                            key::tax1Percent, key::tax2Percent, key::tax3Percent}),
              c.quote ? QStringLiteral("0|Quote|Valid a while|Hope to hear|€|0.19|0.07|0")
                      : QStringLiteral("1|Invoice|Pay soon|Thanks|€|0.19|0.07|0"));
    for (const QString& k : {key::date, key::paid, key::sent, key::dispatched, key::misc5})
        EXPECT_EQ(doc->dateValue(k), now) << k.toStdString();
    EXPECT_FALSE(doc->stringValue(key::uniqueID).isEmpty());

    // Selected, on the address page with the address field focused, saved.
    EXPECT_EQ(state.currentInvoice(), doc);
    EXPECT_EQ(ui.calls(QStringLiteral("toolbar")).value(0).title, QStringLiteral("addressItem"));
    EXPECT_EQ(ui.calls(QStringLiteral("focus")).value(0).title, QStringLiteral("addressView"));
    EXPECT_EQ(settings.intValue(key::mainTabIndex), 0);
    EXPECT_FALSE(context.hasChanges());
}

INSTANTIATE_TEST_SUITE_P(DataController, NewDocuments, ::testing::ValuesIn(newDocumentCases), caseName);

TEST_F(DataControllerTest, NumbersFollowOnAndAnActiveFilterIsCleared)
{
    assign(settings, key::invHaveNumber, true, key::quotHaveNumber, true);
    document(1, 3);
    controllers->filter().selectFilterAction(FilterController::Quotes);
    ASSERT_EQ(state.invoicesController().count(), 0);
    EXPECT_EQ(data().addInvoice()->stringValue(key::number), QStringLiteral("RE-2025-102"));
    EXPECT_EQ(state.filterTag, 0u);
    EXPECT_EQ(controllers->filter().filterButtonImage(), QStringLiteral("torchTemplate"));
    EXPECT_EQ(data().addQuote()->stringValue(key::number), QStringLiteral("Q-11"));
    EXPECT_EQ(data().addInvoice()->stringValue(key::number), QStringLiteral("RE-2025-103"));
    EXPECT_EQ(state.invoicesController().count(), 4);
}

TEST_F(DataControllerTest, TermsAreCalendarDaysOnTheLocalClock)
{
    // Summer time starts in Berlin on 30 March 2025: a week after 11:00 CET
    // is 11:00 CEST, one hour less in UTC.
    qputenv("TZ", "Europe/Berlin");
    clock.set(utc(2025, 3, 25, 10, 0));
    EXPECT_EQ(data().futureDateFromTodayWithDays(0), utc(2025, 4, 1, 9, 0));
    EXPECT_EQ(data().futureDateFromTodayWithDays(3), utc(2025, 4, 22, 9, 0));
}

// ---------------------------------------------------------------------------
// Converting.

struct ConvertCase
{
    const char* name;
    int kind, answer;
    bool haveNumber, haveDue;
    const char* alert;
    const char* number; // after the conversion
    int dueDays;        // -1: due is now; -2: not converted
};

const ConvertCase convertCases[] = {
    {"invoiceRefused", 1, 0, true, true, "Sorry!", "Q-5", -2},
    {"quoteCancelled", 0, 1, true, true, "Convert Into Invoice", "Q-5", -2},
    {"numberedWithTerm", 0, 0, true, true, "Convert Into Invoice", "RE-2025-102", 14},
    {"unnumberedWithoutTerm", 0, 0, false, false, "Convert Into Invoice", "", -1},
};

using Converting = CaseTable<DataControllerTest, ConvertCase>;

TEST_P(Converting, QuoteBecomesInvoice)
{
    const ConvertCase& c = GetParam();
    assign(settings, key::invHaveNumber, c.haveNumber, key::invHaveDueDate, c.haveDue, key::invDefaultDueDate,
           1);
    document(1, 1, 10); // one invoice listed before
    ManagedObject* doc = document(c.kind, 3, 77);
    const QDateTime date = utc(2025, 2, 1), due = doc->dateValue(key::due);
    assign(*doc, key::date, date, key::number, "Q-5", key::title, "Quote", key::subAmount, 70.0f);
    if (c.kind == 0)
        controllers->filter().selectFilterAction(FilterController::Quotes);
    select(doc);
    ui.answerAlert(c.answer);

    data().convertQuoteToInvoice();

    const bool converted = c.dueDays != -2;
    EXPECT_EQ(ui.alertTitles(), QStringList{QString::fromUtf8(c.alert)});
    EXPECT_EQ(doc->intValue(key::kind), converted ? 1 : c.kind);
    EXPECT_EQ(doc->stringValue(key::number), QString::fromUtf8(c.number));
    EXPECT_EQ(doc->dateValue(key::due), !converted      ? due
                                        : c.dueDays < 0 ? clock.now()
                                                        : clock.now().addDays(c.dueDays));
    EXPECT_EQ(doc->stringValue(key::title), converted ? QStringLiteral("Invoice") : QStringLiteral("Quote"));
    // Date, status and amounts stay.
    EXPECT_EQ(doc->dateValue(key::date), date);
    EXPECT_EQ(fields(*doc, {key::status, key::amount, key::subAmount}), QStringLiteral("3|77|70"));
    EXPECT_EQ(state.filterTag, converted || c.kind ? 0u : quint64(FilterController::Quotes));
    if (converted) {
        EXPECT_EQ(state.invoiceCountForNumber, 2u);
    }
}

INSTANTIATE_TEST_SUITE_P(DataController, Converting, ::testing::ValuesIn(convertCases), caseName);

// ---------------------------------------------------------------------------
// Deleting.

struct DeleteCase
{
    const char* name;
    int kind, status, answer;
    const char* alert;
    bool deleted;
};

const DeleteCase deleteCases[] = {
    {"createdInvoiceConfirmed", 1, 0, 0, "Delete Invoice", true},
    {"createdInvoiceCancelled", 1, 0, 1, "Delete Invoice", false},
    {"sentInvoiceRefused", 1, 1, 0, "Error!", false},
    {"partlyPaidInvoiceRefused", 1, 4, 0, "Error!", false},
    {"paidQuoteAllowed", 0, 3, 0, "Delete Quote", true},
    {"quoteCancelled", 0, 0, 1, "Delete Quote", false},
};

using Deleting = CaseTable<DataControllerTest, DeleteCase>;

TEST_P(Deleting, AsksOrRefuses)
{
    const DeleteCase& c = GetParam();
    ManagedObject* keep = document(1, 0);
    ManagedObject* doc = document(c.kind, c.status, 10);
    ASSERT_TRUE(context.save().ok());
    select(doc);
    ui.answerAlert(c.answer);

    data().deleteInvoice();

    EXPECT_EQ(ui.alertTitles(), QStringList{QString::fromUtf8(c.alert)});
    EXPECT_EQ(doc->isDeleted(), c.deleted);
    EXPECT_EQ(state.invoicesController().arrangedObjects().contains(doc), !c.deleted);
    EXPECT_FALSE(keep->isDeleted());
    EXPECT_FALSE(context.hasChanges()); // deleted and saved, or nothing changed
}

INSTANTIATE_TEST_SUITE_P(DataController, Deleting, ::testing::ValuesIn(deleteCases), caseName);

// The last document deleted resets the totals without looking at stale ones;
// under a filter the selected document is the one deleted, and the filter goes.
TEST_F(DataControllerTest, DeletingTheLastOrAFilteredDocument)
{
    ManagedObject* quote = document(0);
    ManagedObject* invoice = document(1, 3, 100);
    invoice->setValue(key::date, clock.now().addDays(1)); // listed first
    state.invoicesController().rearrangeObjects();
    controllers->filter().selectFilterAction(FilterController::Quotes);
    select(quote);
    data().deleteInvoice();
    EXPECT_TRUE(quote->isDeleted());
    EXPECT_FALSE(invoice->isDeleted());
    EXPECT_EQ(state.filterTag, 0u);

    invoice->setValue(key::status, 0);
    calculator().calculateDatabase();
    state.totalAmount = state.paidAmount = state.dueAmount = 5;
    state.quoteCount = 8;
    controllers->gui().setDeleteToolbarLabel(QStringLiteral("Delete Quote"));
    select(invoice);
    data().deleteInvoice();
    EXPECT_TRUE(invoice->isDeleted());
    EXPECT_EQ(QList<float>({state.totalAmount, state.paidAmount, state.dueAmount}), QList<float>({0, 0, 0}));
    EXPECT_EQ(QList<quint64>({state.invoiceCount, state.quoteCount, state.invoiceCountForNumber}),
              QList<quint64>({0, 0, 0}));
    EXPECT_EQ(controllers->gui().deleteToolbarLabel(), QStringLiteral("Delete Invoice"));
}

// ---------------------------------------------------------------------------
// Duplicating, dispatching, edits.

TEST_F(DataControllerTest, DuplicateOfAPaidInvoiceStartsFresh)
{
    ManagedObject* doc = document(1, 3, 119);
    assign(*doc, key::number, "RE-7", key::dispatchNumber, "D-1", key::address, "Ada\nStreet 1",
           key::isDispatched, true, key::isShippingEnabled, true, key::shippingAmount, 4.5f);
    for (int i = 0; i < 3; ++i)
        item(doc, 10.0f * float(i + 1), 1)->setValue(key::title, QStringLiteral("Line %1").arg(i));
    calculator().calculateInvoice(doc);
    select(doc);

    ManagedObject* copy = data().duplicateInvoice();
    ASSERT_TRUE(copy && copy != doc);

    const QStringList cleared{
        key::number, key::dispatchNumber, key::status,     key::isDispatched, key::date,     key::due,
        key::paid,   key::sent,           key::dispatched, key::paidAmount,   key::dueAmount};
    EXPECT_EQ(fields(*copy, cleared), QString(cleared.size() - 1, QLatin1Char('|')));
    EXPECT_FALSE(copy->stringValue(key::uniqueID).isEmpty());
    EXPECT_NE(copy->stringValue(key::uniqueID), doc->stringValue(key::uniqueID));
    const QStringList kept{key::kind,      key::address,           key::amount,
                           key::subAmount, key::isShippingEnabled, key::shippingAmount,
                           key::isPaid};
    EXPECT_EQ(fields(*copy, kept), fields(*doc, kept));
    EXPECT_EQ(texts(copy->items()), QStringList({"Line 0", "Line 1", "Line 2"}));
    EXPECT_NE(copy->items().value(0), doc->items().value(0));
    EXPECT_EQ(state.currentInvoice(), copy);
    EXPECT_EQ(ui.calls(QStringLiteral("focus")).value(0).title, QStringLiteral("addressView"));
    EXPECT_FALSE(context.hasChanges());
}

TEST_F(DataControllerTest, DispatchingStampsNowAndCriteriaChangesRecompute)
{
    ManagedObject* doc = document(1, 1);
    doc->setValue(key::dispatched, utc(2020, 1, 1));
    ManagedObject* line = item(doc, 20, 2);
    select(doc);
    data().setDispatched();
    EXPECT_EQ(doc->dateValue(key::dispatched), clock.now());
    EXPECT_EQ(ui.calls(QStringLiteral("focus")).value(0).title, QStringLiteral("dispatchedNumberView"));

    line->setValue(key::unitCount, 3.0f);
    data().changedInvoiceCriteria();
    EXPECT_EQ(doc->floatValue(key::amount), 60.0f);
    EXPECT_EQ(state.totalAmount, 60.0f);
}

// Without a selection, or without a store (it could not be opened), every
// action of every controller does nothing and breaks nothing.
TEST_F(DataControllerTest, EveryActionToleratesNoSelectionAndNoStore)
{
    InvoicingControllers& c = *controllers;
    for (bool withStore : {true, false}) {
        SCOPED_TRACE(withStore);
        if (!withStore)
            state.setContext(nullptr);
        c.data().convertQuoteToInvoice();
        c.data().deleteInvoice();
        c.data().invoiceDeleteWarningSheetDidEnd(1);
        c.data().setDispatched();
        c.data().changedInvoiceCriteria();
        c.data().saveLoggingFailure();
        EXPECT_EQ(c.data().duplicateInvoice(), nullptr);
        c.calculator().calculateDatabase();
        c.calculator().calculateInvoice(nullptr);
        c.filter().selectFilterAction(7);
        c.filter().showAllDocuments();
        c.gui().delayedToolbarLabel();
        EXPECT_FALSE(c.gui().validateUserInterfaceItem(GUIController::deleteInvoiceAction).enabled);
        c.items().showItemPopover();
        EXPECT_FALSE(c.items().popover().shown);
        EXPECT_EQ(c.items().addItem(), nullptr);
        c.items().addItemRecent();
        c.items().deleteItem();
        c.items().itemDeleteWarningSheetDidEnd(1);
        c.items().openEditItemSheet();
        c.items().editItem();
        EXPECT_TRUE(c.items().moveItems({0}, 1).isEmpty());
        c.shipping().showShippingPopover();
        c.shipping().closeShippingPopover();
        c.shipping().selectRecentShipping();
        EXPECT_FALSE(c.shipping().switchShippingOff());
        c.discount().showDiscountPopover();
        c.discount().closeDiscountPopover();
        EXPECT_FALSE(c.discount().switchDiscountOff());
        c.addresses().showAddressPopover();
        EXPECT_FALSE(c.addresses().popover().shown);
        c.addresses().selectAddressRecord();
        c.addresses().popover().address = QStringLiteral("X");
        c.addresses().selectAddress();
        c.addresses().selectRecentAdress();
        c.addresses().generateClientNumber();
        EXPECT_EQ(state.totalAmount, 0.0f);
        EXPECT_EQ(state.addressesController().count(), 0);
        EXPECT_TRUE(ui.alertTitles().isEmpty());
    }
    EXPECT_EQ(c.data().addInvoice(), nullptr);
    EXPECT_EQ(c.data().addQuote(), nullptr);
}

} // namespace
