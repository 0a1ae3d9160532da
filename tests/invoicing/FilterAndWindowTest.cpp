#include "tests/invoicing/InvoicingFixture.h"

#include <QCoreApplication>
#include <QElapsedTimer>

using namespace vorn;
using namespace vorn::test;

namespace {

class FilterTest : public InvoicingFixture
{
protected:
    FilterTest()
    {
        // name: kind, status, age in hours
        add("quote", 0, 0, 1);
        add("created", 1, 0, 11);
        add("sent", 1, 1, 13);
        add("overdue", 1, 2, 80);
        add("paid", 1, 3, 90);
        add("partly", 1, 4, 370);
        add("old", 1, 1, 4379);
        add("ancient", 1, 1, 4381);
        add("future", 1, 1, -2);
    }
    void add(const char* name, int kind, int status, int hoursAgo)
    {
        ManagedObject* doc = document(kind, status, 10);
        doc->setValue(key::title, QString::fromUtf8(name));
        doc->setValue(key::date, clock.now().addSecs(-qint64(hoursAgo) * 3600));
    }
    QStringList listed()
    {
        QStringList names = texts(state.invoicesController().arrangedObjects());
        names.sort();
        return names;
    }
};

struct FilterCase
{
    quint64 tag;
    QStringList listed;
    quint64 invoices, quotes; // counted in the totals: sent or later invoices, quotes
};

const FilterCase filterCases[] = {
    {0, {"ancient", "created", "future", "old", "overdue", "paid", "partly", "quote", "sent"}, 7, 1},
    {1, {"ancient", "future", "old", "sent"}, 4, 0},
    {2, {"overdue"}, 1, 0},
    {3, {"paid"}, 1, 0},
    {4, {"quote"}, 0, 1},
    {5, {"created", "quote"}, 0, 1},                                             // 12 hours back
    {6, {"created", "overdue", "quote", "sent"}, 2, 1},                          // 3.5 days
    {7, {"created", "overdue", "paid", "partly", "quote", "sent"}, 4, 1},        // 15.5 days
    {8, {"created", "old", "overdue", "paid", "partly", "quote", "sent"}, 5, 1}, // 182.5 days
    {9, {"ancient", "future", "old", "sent"}, 4, 0},
    {1000, {"ancient", "future", "old", "sent"}, 4, 0},
};

using Filters = CaseTable<FilterTest, FilterCase>;

TEST_P(Filters, ListAndTotals)
{
    const FilterCase& c = GetParam();
    controllers->filter().selectFilterAction(c.tag);
    EXPECT_EQ(listed(), c.listed);
    EXPECT_EQ(state.filterTag, c.tag);
    EXPECT_EQ(controllers->filter().isFilterActive(), c.tag != 0);
    EXPECT_EQ(controllers->filter().filterButtonImage(),
              c.tag ? QStringLiteral("torchGlow") : QStringLiteral("torchTemplate"));
    // The totals describe the filtered list (every document is worth 10).
    EXPECT_EQ(state.invoiceCount, c.invoices);
    EXPECT_EQ(state.quoteCount, c.quotes);
    EXPECT_FLOAT_EQ(state.totalAmount, 10.0f * float(c.invoices));
}

INSTANTIATE_TEST_SUITE_P(Filter, Filters, ::testing::ValuesIn(filterCases));

TEST_F(FilterTest, DateRangesEndExactlyOnTheirHalfDays)
{
    ManagedObject* edge = document(1, 0);
    edge->setValue(key::title, QStringLiteral("edge"));
    edge->setValue(key::date, clock.now().addSecs(-43200));
    controllers->filter().openFilterPopover();
    EXPECT_TRUE(controllers->filter().isFilterPopoverShown());
    controllers->filter().selectFilterAction(5); // picking a filter closes the popover
    EXPECT_FALSE(controllers->filter().isFilterPopoverShown());
    EXPECT_TRUE(listed().contains(QStringLiteral("edge")));
    edge->setValue(key::date, clock.now().addSecs(-43201));
    controllers->filter().setFilterPredicate();
    EXPECT_FALSE(listed().contains(QStringLiteral("edge")));
    edge->setValue(key::date, QVariant());
    controllers->filter().setFilterPredicate();
    EXPECT_FALSE(listed().contains(QStringLiteral("edge")));
}

// ---------------------------------------------------------------------------
// Menus, toolbar, tabs.

struct WindowCase
{
    const char* name;
    int kind, status; // kind -1: no document selected
    bool deleteEnabled;
    const char* deleteTitle; // also the toolbar's label
    bool reminder;
};

const WindowCase windowCases[] = {
    {"nothingSelected", -1, 0, false, "Delete Invoice", false},
    {"createdInvoice", 1, 0, true, "Delete Invoice", false},
    {"sentInvoice", 1, 1, true, "Delete Invoice", false},
    {"overdueInvoice", 1, 2, true, "Delete Invoice", true},
    {"paidInvoice", 1, 3, true, "Delete Invoice", false},
    {"partlyPaidInvoice", 1, 4, true, "Delete Invoice", true},
    {"overdueQuote", 0, 2, true, "Delete Quote", false},
    {"partlyPaidQuote", 0, 4, true, "Delete Quote", false},
    {"otherKindCountsAsInvoice", 3, 2, true, "Delete Invoice", true},
};

using WindowState = CaseTable<InvoicingFixture, WindowCase>;

TEST_P(WindowState, MenusToolbarAndReminder)
{
    const WindowCase& c = GetParam();
    if (c.kind >= 0) {
        select(document(c.kind, c.status));
    }
    GUIController& gui = controllers->gui();
    const auto deletion = gui.validateUserInterfaceItem(GUIController::deleteInvoiceAction);
    EXPECT_EQ(deletion.enabled, c.deleteEnabled);
    EXPECT_EQ(deletion.title.value_or(QString()), QString::fromUtf8(c.deleteTitle));
    EXPECT_EQ(gui.validateUserInterfaceItem(GUIController::openReminderSheetAction).enabled, c.reminder);
    EXPECT_TRUE(gui.hasPrerequisites(QStringLiteral("addInvoice")));
    EXPECT_EQ(gui.hasPrerequisites(QStringLiteral("duplicateInvoice")), c.kind >= 0);
    EXPECT_EQ(gui.hasPrerequisites(QStringLiteral("convertQuoteToInvoice")), c.kind == 0);
    EXPECT_EQ(gui.hasPrerequisites(QStringLiteral("showItemPopover")), c.kind >= 0);
    // A new document has no line to delete.
    EXPECT_FALSE(gui.hasPrerequisites(QStringLiteral("deleteItem")));

    gui.delayedToolbarLabel();
    EXPECT_EQ(gui.deleteToolbarLabel(), QString::fromUtf8(c.deleteTitle));
    EXPECT_EQ(gui.isReminderButtonEnabled(), c.reminder);
    EXPECT_EQ(state.isReminderButtonHidden, !c.reminder);
}

INSTANTIATE_TEST_SUITE_P(Window, WindowState, ::testing::ValuesIn(windowCases), caseName);

using WindowTest = InvoicingFixture;

TEST_F(WindowTest, SelectionChangesRelabelTheToolbarShortlyAfter)
{
    ManagedObject* quote = document(0);
    document(1);
    select(quote);
    QElapsedTimer timer;
    timer.start();
    while (controllers->gui().deleteToolbarLabel() != QStringLiteral("Delete Quote") &&
           timer.elapsed() < 2000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_EQ(controllers->gui().deleteToolbarLabel(), QStringLiteral("Delete Quote"));
}

TEST_F(WindowTest, LaunchOpensOnTheFirstListedDocumentUnlessOneIsSelected)
{
    controllers->gui().selectFirstDocumentAtLaunch();
    EXPECT_EQ(state.currentInvoice(), nullptr);
    document(1);
    ManagedObject* second = document(1);
    controllers->gui().sortListBy(key::date, false);
    state.invoicesController().setSelectedObjects({});
    controllers->gui().selectFirstDocumentAtLaunch();
    EXPECT_EQ(state.currentInvoice(), state.invoicesController().arrangedObjects().value(0));
    select(second);
    controllers->gui().selectFirstDocumentAtLaunch();
    EXPECT_EQ(state.currentInvoice(), second);
}

TEST_F(WindowTest, OnlyTheCurrentDocumentsChangesReachThePages)
{
    ManagedObject* current = document(1);
    ManagedObject* other = document(1);
    select(current);
    QStringList changed;
    QObject::connect(&state, &AppState::currentInvoiceValueChanged,
                     [&changed](const QString& k) { changed << k; });
    other->setValue(key::title, QStringLiteral("Other"));
    current->setValue(key::title, QStringLiteral("Current"));
    EXPECT_EQ(changed, QStringList{key::title});
}

TEST_F(WindowTest, TabsFollowTheToolbarTags)
{
    const std::pair<qint64, const char*> tags[] = {
        {0, "addressItem"}, {1, "itemsItem"}, {2, "infoItem"}, {7, "addressItem"}, {-1, "addressItem"}};
    for (const auto& [tag, item] : tags) {
        ui.clear();
        controllers->gui().selectMainTabIndex(tag);
        EXPECT_EQ(ui.calls(QStringLiteral("toolbar")).value(0).title, QString::fromUtf8(item));
        EXPECT_EQ(settings.intValue(key::mainTabIndex), tag);
    }
    settings.setValue(key::mainTabIndex, 2);
    controllers->gui().selectInfoView();
    EXPECT_EQ(settings.intValue(key::mainTabIndex), 2);
}

} // namespace
