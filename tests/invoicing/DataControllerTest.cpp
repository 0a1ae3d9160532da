#include "tests/invoicing/InvoicingFixture.h"

using namespace vorn;
using namespace vorn::test;

namespace {

class DataControllerTest : public InvoicingFixture
{
protected:
    DataControllerTest()
    {
        settings.setValue(key::invPattern, QStringLiteral("RE-%YEAR%-%COUNT%"));
        settings.setValue(key::invCount, 100);
        settings.setValue(key::quotPattern, QStringLiteral("Q-%COUNT%"));
        settings.setValue(key::quotCount, 10);
        settings.setValue(key::locInvoice, QStringLiteral("Invoice"));
        settings.setValue(key::locQuote, QStringLiteral("Quote"));
        settings.setValue(key::tempInvConditions, QStringLiteral("Pay soon"));
        settings.setValue(key::tempInvFooter, QStringLiteral("Thanks"));
        settings.setValue(key::tempQuotConditions, QStringLiteral("Valid a while"));
        settings.setValue(key::tempQuotFooter, QStringLiteral("Hope to hear"));
        settings.setValue(key::prefsCurrency, QStringLiteral("€"));
        settings.setValue(key::tax1Rate, 0.19);
        settings.setValue(key::tax2Rate, 0.07);
        settings.setValue(key::tax3Rate, 0.0);
    }
    DataController& data() { return controllers->data(); }
};

// ---------------------------------------------------------------------------
// New documents.

struct NewDocumentCase
{
    const char* name;
    bool quote;
    bool haveNumber, haveTerm;
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
    {"quoteTerm14", true, true, true, 1, "Q-11", 14},
    {"quoteWithoutNumberOrValidity", true, false, false, 0, "", -1},
};

class NewDocuments : public DataControllerTest, public ::testing::WithParamInterface<NewDocumentCase>
{
};

TEST_P(NewDocuments, DefaultsFromSettings)
{
    const NewDocumentCase& c = GetParam();
    settings.setValue(c.quote ? key::quotHaveNumber : key::invHaveNumber, c.haveNumber);
    settings.setValue(c.quote ? key::quotHaveValidity : key::invHaveDueDate, c.haveTerm);
    settings.setValue(c.quote ? key::quotDefaultValidity : key::invDefaultDueDate, c.termIndex);
    ManagedObject* doc = c.quote ? data().addQuote() : data().addInvoice();
    ASSERT_NE(doc, nullptr);

    const QDateTime now = clock.now();
    EXPECT_EQ(doc->intValue(key::kind), c.quote ? 0 : 1);
    EXPECT_EQ(doc->stringValue(key::number), QString::fromUtf8(c.number));
    // Terms are days on the local calendar (this one crosses the start of summer time).
    EXPECT_EQ(doc->dateValue(key::due), c.dueDays < 0 ? now : now.toLocalTime().addDays(c.dueDays).toUTC());
    EXPECT_EQ(doc->stringValue(key::title), c.quote ? QStringLiteral("Quote") : QStringLiteral("Invoice"));
    EXPECT_EQ(doc->stringValue(key::conditions),
              c.quote ? QStringLiteral("Valid a while") : QStringLiteral("Pay soon"));
    EXPECT_EQ(doc->stringValue(key::footer),
              c.quote ? QStringLiteral("Hope to hear") : QStringLiteral("Thanks"));
    EXPECT_EQ(doc->stringValue(key::currency), QStringLiteral("€"));
    for (const QString& k : {key::date, key::paid, key::sent, key::dispatched, key::misc5})
        EXPECT_EQ(doc->dateValue(k), now) << k.toStdString();
    for (const QString& k :
         {key::address, key::subject, key::discountSubtitle, key::discountTitle, key::shippingSubtitle,
          key::shippingTitle, key::clientNumber, key::dispatchNumber, key::notes, key::misc1}) {
        EXPECT_TRUE(doc->hasValue(k)) << k.toStdString();
        EXPECT_EQ(doc->stringValue(k), QString()) << k.toStdString();
    }
    for (const QString& k :
         {key::status, key::discountKind, key::tax1Kind, key::tax2Kind, key::tax3Kind, key::misc2}) {
        EXPECT_TRUE(doc->hasValue(k)) << k.toStdString();
        EXPECT_EQ(doc->intValue(k), 0) << k.toStdString();
    }
    for (const QString& k :
         {key::amount, key::subAmount, key::paidAmount, key::dueAmount, key::shippingAmount,
          key::discountAmount, key::tax1Amount, key::tax2Amount, key::tax3Amount, key::misc3}) {
        EXPECT_TRUE(doc->hasValue(k)) << k.toStdString();
        EXPECT_EQ(doc->floatValue(k), 0.0f) << k.toStdString();
    }
    EXPECT_FALSE(doc->boolValue(key::isDispatched));
    EXPECT_TRUE(doc->hasValue(key::isDispatched));
    EXPECT_EQ(doc->floatValue(key::tax1Percent), 0.19f);
    EXPECT_EQ(doc->floatValue(key::tax2Percent), 0.07f);
    EXPECT_EQ(doc->floatValue(key::tax3Percent), 0.0f);
    EXPECT_FALSE(doc->stringValue(key::uniqueID).isEmpty());

    // Selected, on the address page with the address field focused, saved.
    EXPECT_EQ(state.currentInvoice(), doc);
    EXPECT_EQ(ui.calls(QStringLiteral("toolbar")).value(0).title, QStringLiteral("addressItem"));
    EXPECT_EQ(ui.calls(QStringLiteral("focus")).value(0).title, QStringLiteral("addressView"));
    EXPECT_EQ(settings.intValue(key::mainTabIndex), 0);
    EXPECT_FALSE(context.hasChanges());
}

INSTANTIATE_TEST_SUITE_P(DataController, NewDocuments, ::testing::ValuesIn(newDocumentCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(DataControllerTest, NumbersFollowOnAndRatesAreCopies)
{
    settings.setValue(key::invHaveNumber, true);
    settings.setValue(key::quotHaveNumber, true);
    ManagedObject* first = data().addInvoice();
    data().addQuote();
    ManagedObject* second = data().addInvoice();
    EXPECT_EQ(first->stringValue(key::number), QStringLiteral("RE-2025-101"));
    EXPECT_EQ(second->stringValue(key::number), QStringLiteral("RE-2025-102"));
    EXPECT_EQ(data().addQuote()->stringValue(key::number), QStringLiteral("Q-12"));

    settings.setValue(key::tax1Rate, 0.25);
    EXPECT_EQ(first->floatValue(key::tax1Percent), 0.19f);
}

TEST_F(DataControllerTest, NewDocumentClearsAnActiveFilter)
{
    document(0);
    document(1, 3);
    controllers->filter().selectFilterAction(FilterController::Quotes);
    ASSERT_EQ(state.invoicesController().count(), 1);
    data().addInvoice();
    EXPECT_EQ(state.filterTag, 0u);
    EXPECT_EQ(controllers->filter().filterButtonImage(), QStringLiteral("torchTemplate"));
    EXPECT_EQ(state.invoicesController().count(), 3);
}

TEST_F(DataControllerTest, TermsAreCalendarDaysOnTheLocalClock)
{
    // Summer time starts in Berlin on 30 March 2025: a week after 11:00 CET
    // is 11:00 CEST, one hour less in UTC.
    qputenv("TZ", "Europe/Berlin");
    clock.set(at(2025, 3, 25, 10, 0));
    EXPECT_EQ(data().futureDateFromTodayWithDays(0), at(2025, 4, 1, 9, 0));
    EXPECT_EQ(data().futureDateFromTodayWithDays(3), at(2025, 4, 22, 9, 0));
    // Across the end of February in a leap year.
    clock.set(at(2024, 2, 20, 12, 0));
    EXPECT_EQ(data().futureDateFromTodayWithDays(1), at(2024, 3, 5, 12, 0));
}

// ---------------------------------------------------------------------------
// Converting.

TEST_F(DataControllerTest, ConvertingAnInvoiceIsRefused)
{
    ManagedObject* doc = document(1, 0, 50);
    doc->setValue(key::number, QStringLiteral("X"));
    select(doc);
    data().convertQuoteToInvoice();
    ASSERT_EQ(ui.calls(QStringLiteral("alert")).size(), 1);
    EXPECT_EQ(ui.calls(QStringLiteral("alert"))[0].title, QStringLiteral("Sorry!"));
    EXPECT_EQ(ui.calls(QStringLiteral("alert"))[0].text,
              QStringLiteral("You can't convert an invoice into a quote."));
    EXPECT_EQ(doc->stringValue(key::number), QStringLiteral("X"));
}

TEST_F(DataControllerTest, ConvertingAQuoteCanBeCancelled)
{
    ManagedObject* doc = document(0, 0, 50);
    select(doc);
    ui.answerAlert(1);
    data().convertQuoteToInvoice();
    EXPECT_EQ(ui.alertTitles(), QStringList{QStringLiteral("Convert Into Invoice")});
    EXPECT_EQ(ui.calls(QStringLiteral("alert"))[0].buttons,
              (QStringList{QStringLiteral("Convert"), QStringLiteral("Cancel")}));
    EXPECT_EQ(doc->intValue(key::kind), 0);
}

struct ConvertCase
{
    const char* name;
    bool haveNumber, haveDue;
    const char* number;
    int dueDays;
};

const ConvertCase convertCases[] = {
    {"numberedWithTerm", true, true, "RE-2025-102", 14},
    {"unnumberedWithoutTerm", false, false, "", -1},
};

class Converting : public DataControllerTest, public ::testing::WithParamInterface<ConvertCase>
{
};

TEST_P(Converting, QuoteBecomesInvoice)
{
    const ConvertCase& c = GetParam();
    settings.setValue(key::invHaveNumber, c.haveNumber);
    settings.setValue(key::invHaveDueDate, c.haveDue);
    settings.setValue(key::invDefaultDueDate, 1);
    document(1, 1, 10)->setValue(key::due, clock.now().addDays(30)); // one invoice listed before
    ManagedObject* quote = document(0, 3, 77);
    const QDateTime date = at(2025, 2, 1);
    quote->setValue(key::date, date);
    quote->setValue(key::number, QStringLiteral("Q-5"));
    quote->setValue(key::title, QStringLiteral("Quote"));
    quote->setValue(key::subAmount, 70.0f);
    controllers->filter().selectFilterAction(FilterController::Quotes);
    select(quote);

    data().convertQuoteToInvoice();

    EXPECT_EQ(quote->intValue(key::kind), 1);
    EXPECT_EQ(quote->stringValue(key::number), QString::fromUtf8(c.number));
    EXPECT_EQ(quote->dateValue(key::due), c.dueDays < 0 ? clock.now() : clock.now().addDays(c.dueDays));
    EXPECT_EQ(quote->stringValue(key::title), QStringLiteral("Invoice"));
    // Date, status and amounts stay.
    EXPECT_EQ(quote->dateValue(key::date), date);
    EXPECT_EQ(quote->intValue(key::status), 3);
    EXPECT_EQ(quote->floatValue(key::amount), 77.0f);
    EXPECT_EQ(quote->floatValue(key::subAmount), 70.0f);
    EXPECT_EQ(state.filterTag, 0u);
    EXPECT_EQ(state.invoiceCountForNumber, 2u);
}

INSTANTIATE_TEST_SUITE_P(DataController, Converting, ::testing::ValuesIn(convertCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---------------------------------------------------------------------------
// Deleting.

struct DeleteCase
{
    const char* name;
    int kind, status;
    int answer;
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

class Deleting : public DataControllerTest, public ::testing::WithParamInterface<DeleteCase>
{
};

TEST_P(Deleting, AsksOrRefuses)
{
    const DeleteCase& c = GetParam();
    ManagedObject* keep = document(1, 0);
    ManagedObject* doc = document(c.kind, c.status, 10);
    doc->setValue(key::due, clock.now().addDays(10));
    ASSERT_TRUE(context.save().ok());
    select(doc);
    ui.answerAlert(c.answer);

    data().deleteInvoice();

    EXPECT_EQ(ui.alertTitles(), QStringList{QString::fromUtf8(c.alert)});
    EXPECT_EQ(doc->isDeleted(), c.deleted);
    EXPECT_EQ(state.invoicesController().arrangedObjects().contains(doc), !c.deleted);
    EXPECT_FALSE(keep->isDeleted());
    EXPECT_FALSE(context.hasChanges()); // deleted and saved, or nothing changed
    if (std::string(c.alert) == "Error!") {
        EXPECT_EQ(
            ui.calls(QStringLiteral("alert"))[0].text,
            QStringLiteral("The selected invoice is marked as already sent. If you really need to delete it, "
                           "please set its status back to 'Created' first."));
    }
}

INSTANTIATE_TEST_SUITE_P(DataController, Deleting, ::testing::ValuesIn(deleteCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(DataControllerTest, DeletingTheLastDocumentZeroesTheTotals)
{
    ManagedObject* doc = document(1, 3, 100);
    doc->setValue(key::status, 0);
    calculator().calculateDatabase();
    // Pretend stale totals: the empty list must reset them without looking.
    state.totalAmount = 5;
    state.paidAmount = 6;
    state.dueAmount = 7;
    state.quoteCount = 8;
    controllers->gui().setDeleteToolbarLabel(QStringLiteral("Delete Quote"));
    select(doc);
    data().deleteInvoice();
    EXPECT_TRUE(doc->isDeleted());
    EXPECT_EQ(state.totalAmount, 0.0f);
    EXPECT_EQ(state.paidAmount, 0.0f);
    EXPECT_EQ(state.dueAmount, 0.0f);
    EXPECT_EQ(state.invoiceCount, 0u);
    EXPECT_EQ(state.quoteCount, 0u);
    EXPECT_EQ(state.invoiceCountForNumber, 0u);
    EXPECT_EQ(controllers->gui().deleteToolbarLabel(), QStringLiteral("Delete Invoice"));
}

TEST_F(DataControllerTest, DeletingUnderAFilterDeletesTheSelectedDocument)
{
    ManagedObject* quote = document(0);
    ManagedObject* invoice = document(1);
    invoice->setValue(key::date, clock.now().addDays(1)); // listed first
    state.invoicesController().rearrangeObjects();
    controllers->filter().selectFilterAction(FilterController::Quotes);
    select(quote);
    data().deleteInvoice();
    EXPECT_TRUE(quote->isDeleted());
    EXPECT_FALSE(invoice->isDeleted());
    EXPECT_EQ(state.filterTag, 0u);
}

// ---------------------------------------------------------------------------
// Duplicating, dispatching, edits.

TEST_F(DataControllerTest, DuplicateOfAPaidInvoiceStartsFresh)
{
    ManagedObject* doc = document(1, 3, 119);
    doc->setValue(key::number, QStringLiteral("RE-7"));
    doc->setValue(key::dispatchNumber, QStringLiteral("D-1"));
    doc->setValue(key::address, QStringLiteral("Ada\nStreet 1"));
    doc->setValue(key::isDispatched, true);
    doc->setValue(key::isShippingEnabled, true);
    doc->setValue(key::shippingAmount, 4.5f);
    doc->setValue(key::due, clock.now().addDays(3));
    for (int i = 0; i < 3; ++i)
        item(doc, 10.0f * float(i + 1), 1)->setValue(key::title, QStringLiteral("Line %1").arg(i));
    calculator().calculateInvoice(doc);
    select(doc);

    ManagedObject* copy = data().duplicateInvoice();
    ASSERT_NE(copy, nullptr);
    ASSERT_NE(copy, doc);

    for (const QString& k :
         {key::number, key::dispatchNumber, key::status, key::isDispatched, key::date, key::due, key::paid,
          key::sent, key::dispatched, key::paidAmount, key::dueAmount})
        EXPECT_FALSE(copy->hasValue(k)) << k.toStdString();
    EXPECT_FALSE(copy->stringValue(key::uniqueID).isEmpty());
    EXPECT_NE(copy->stringValue(key::uniqueID), doc->stringValue(key::uniqueID));
    for (const QString& k : {key::kind, key::address, key::amount, key::subAmount, key::isShippingEnabled,
                             key::shippingAmount, key::isPaid})
        EXPECT_EQ(copy->value(k), doc->value(k)) << k.toStdString();
    ASSERT_EQ(copy->items().size(), 3);
    EXPECT_EQ(copy->items()[2]->stringValue(key::title), QStringLiteral("Line 2"));
    EXPECT_NE(copy->items()[0], doc->items()[0]);
    EXPECT_EQ(doc->items().size(), 3);
    EXPECT_EQ(state.currentInvoice(), copy);
    EXPECT_EQ(ui.calls(QStringLiteral("focus")).value(0).title, QStringLiteral("addressView"));
    EXPECT_FALSE(context.hasChanges());
}

TEST_F(DataControllerTest, DispatchedStampsNowAndFocusesTheNumber)
{
    ManagedObject* doc = document(1, 1);
    doc->setValue(key::dispatched, at(2020, 1, 1));
    select(doc);
    data().setDispatched();
    EXPECT_EQ(doc->dateValue(key::dispatched), clock.now());
    EXPECT_EQ(ui.calls(QStringLiteral("focus")).value(0).title, QStringLiteral("dispatchedNumberView"));
}

TEST_F(DataControllerTest, ChangedCriteriaRecomputeTheCurrentDocument)
{
    ManagedObject* doc = document(1, 1);
    doc->setValue(key::due, clock.now().addDays(5));
    ManagedObject* line = item(doc, 20, 2);
    select(doc);
    line->setValue(key::unitCount, 3.0f);
    data().changedInvoiceCriteria();
    EXPECT_EQ(doc->floatValue(key::amount), 60.0f);
    EXPECT_EQ(state.totalAmount, 60.0f);
}

TEST_F(DataControllerTest, EveryActionToleratesNoStoreAndNoSelection)
{
    data().convertQuoteToInvoice();
    data().deleteInvoice();
    data().invoiceDeleteWarningSheetDidEnd(1);
    data().setDispatched();
    data().changedInvoiceCriteria();
    EXPECT_EQ(data().duplicateInvoice(), nullptr);

    state.setContext(nullptr);
    EXPECT_EQ(data().addInvoice(), nullptr);
    EXPECT_EQ(data().addQuote(), nullptr);
    EXPECT_EQ(data().duplicateInvoice(), nullptr);
    data().deleteInvoice();
    data().saveLoggingFailure();
    EXPECT_TRUE(ui.calls(QStringLiteral("alert")).isEmpty());
}

} // namespace

namespace {

// Without a store (it could not be opened) every action of every controller
// does nothing and breaks nothing.
TEST_F(DataControllerTest, EveryControllerToleratesAMissingStore)
{
    state.setContext(nullptr);
    InvoicingControllers& c = *controllers;
    c.calculator().calculateDatabase();
    c.calculator().calculateInvoice(nullptr);
    c.filter().selectFilterAction(7);
    c.filter().showAllDocuments();
    c.gui().delayedToolbarLabel();
    EXPECT_FALSE(c.gui().validateUserInterfaceItem(GUIController::deleteInvoiceAction).enabled);
    c.items().showItemPopover();
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
    c.addresses().selectAddressRecord();
    c.addresses().selectAddress();
    c.addresses().selectRecentAdress();
    c.addresses().generateClientNumber();
    EXPECT_EQ(state.totalAmount, 0.0f);
    EXPECT_TRUE(ui.alertTitles().isEmpty());
}

} // namespace
