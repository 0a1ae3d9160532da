#include "invoicing/DocumentEditor.h"
#include "invoicing/SentLock.h"
#include "tests/invoicing/InvoicingFixture.h"

namespace vorn::test {
namespace {

class DocumentEditorTest : public InvoicingFixture
{
protected:
    DocumentEditor& editor() { return controllers->editor(); }
    UndoManager& undo() { return *context.undoManager(); }
};

// Which fields a document's state leaves open: a sent invoice keeps its
// payment and dispatch fields, quotes stay open whatever their status.
TEST_F(DocumentEditorTest, SentInvoicesKeepOnlyTheirPaymentAndDispatchFieldsOpen)
{
    // kind, status, field, editable
    const std::tuple<int, int, QString, bool> cases[] = {
        {1, 0, key::title, true},           {1, 1, key::title, false},     {1, 3, key::notes, false},
        {1, 1, key::status, true},          {1, 4, key::paidAmount, true}, {1, 1, key::dispatchNumber, true},
        {1, 2, key::address, false},        {0, 1, key::title, true},      {0, 0, key::currency, true},
        {1, 1, key::buyerReference, false},
    };
    for (const auto& [kind, status, field, editable] : cases) {
        SCOPED_TRACE(QStringLiteral("%1 %2 %3").arg(kind).arg(status).arg(field).toStdString());
        select(document(kind, status));
        EXPECT_EQ(editor().isEditable(field), editable);
        const QVariant value = field == key::status ? QVariant(0) : QVariant(QStringLiteral("x"));
        EXPECT_EQ(editor().setDocumentValue(field, value), editable);
    }
    state.invoicesController().setSelectedObjects({});
    EXPECT_FALSE(editor().isEditable(key::title));
    EXPECT_FALSE(editor().setDocumentValue(key::title, QStringLiteral("x")));
}

TEST_F(DocumentEditorTest, PaidDateAndAmountAreShownForPaidAndPartlyPaidInvoices)
{
    // kind, status, paid date shown, paid amount shown
    const std::tuple<int, int, bool, bool> cases[] = {{1, 0, false, false}, {1, 2, false, false},
                                                      {1, 3, true, false},  {1, 4, true, true},
                                                      {1, 9, true, true},   {0, 4, false, false}};
    for (const auto& [kind, status, paidDate, paidAmount] : cases) {
        select(document(kind, status));
        EXPECT_EQ(editor().isRelevant(key::paid), paidDate) << status;
        EXPECT_EQ(editor().isRelevant(key::paidAmount), paidAmount) << status;
    }
}

// Each edit is one named undo step; amounts follow at once and go back with it.
TEST_F(DocumentEditorTest, EditsRecalculateAndUndoAsOneNamedStep)
{
    ManagedObject* doc = document(1);
    ManagedObject* line = item(doc, 10.0f, 2.0f);
    select(doc);
    calculator().calculateInvoice(doc);
    undo().removeAllActions();

    ASSERT_TRUE(editor().setItemValue(line, key::baseAmount, QStringLiteral("12.5 EUR")));
    EXPECT_FLOAT_EQ(line->floatValue(key::subAmount), 25.0f);
    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), 25.0f);
    EXPECT_EQ(undo().undoActionName(), DocumentEditor::actionName(key::baseAmount));
    // The same value again is no action at all.
    EXPECT_FALSE(editor().setItemValue(line, key::baseAmount, QStringLiteral("12.5")));

    ASSERT_TRUE(editor().setItemValue(line, key::unitCount, QStringLiteral("abc")));
    EXPECT_FLOAT_EQ(line->floatValue(key::unitCount), 0.0f);
    EXPECT_FLOAT_EQ(doc->floatValue(key::amount), 0.0f);

    // Title and subtitle edited together: one step, named after the title.
    ASSERT_TRUE(editor().setItemValues(
        line, {{key::title, QStringLiteral("Design")}, {key::subtitle, QStringLiteral("Logo")}}));
    EXPECT_EQ(undo().undoActionName(), DocumentEditor::actionName(key::title));
    EXPECT_FALSE(editor().setItemValues(
        line, {{key::title, QStringLiteral("Design")}, {key::subtitle, QStringLiteral("Logo")}}));

    undo().undo();
    EXPECT_EQ(line->stringValue(key::title) + line->stringValue(key::subtitle), QString());
    undo().undo();
    EXPECT_FLOAT_EQ(line->floatValue(key::unitCount), 2.0f);
    undo().undo();
    EXPECT_FLOAT_EQ(line->floatValue(key::baseAmount), 10.0f);
    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), 20.0f);
}

TEST_F(DocumentEditorTest, SettingAnInvoicePaidStampsThePaymentAndChangesTheTotals)
{
    ManagedObject* doc = document(1, 1);
    item(doc, 100.0f, 1.0f);
    select(doc);
    calculator().calculateInvoice(doc);
    EXPECT_FLOAT_EQ(state.paidAmount, 0.0f);

    ASSERT_TRUE(editor().setDocumentValue(key::status, 3));
    EXPECT_TRUE(doc->boolValue(key::isPaid));
    EXPECT_EQ(doc->dateValue(key::paid), clock.now());
    EXPECT_FLOAT_EQ(state.paidAmount, 100.0f);

    // Back to created: the next payment is stamped afresh.
    ASSERT_TRUE(editor().setDocumentValue(key::status, 0));
    EXPECT_FALSE(doc->boolValue(key::isPaid));
    EXPECT_FLOAT_EQ(state.paidAmount, 0.0f);
}

TEST_F(DocumentEditorTest, LinesOfASentDocumentAreRefusedWithTheAlert)
{
    ManagedObject* doc = document(1, 1);
    ManagedObject* line = item(doc, 10.0f, 1.0f);
    select(doc);
    EXPECT_FALSE(editor().setItemValue(line, key::title, QStringLiteral("x")));
    EXPECT_EQ(ui.alertTitles(), QStringList{SentLock::title()});
    // A line of another document is not this page's to change.
    ManagedObject* other = document(1);
    select(other);
    EXPECT_FALSE(editor().setItemValue(line, key::title, QStringLiteral("x")));
}

// A date field picks a calendar day: the time of day stays, a new date starts at noon.
TEST_F(DocumentEditorTest, APickedDayKeepsTheTimeOfDayAndNewDatesStartAtNoon)
{
    select(document(1));
    const QDateTime morning(QDate(2025, 1, 14), QTime(8, 30));
    // date before, day picked, date after (local time)
    const std::tuple<QDateTime, QDate, QDateTime> cases[] = {
        {{}, QDate(2025, 7, 1), QDateTime(QDate(2025, 7, 1), QTime(12, 0))},
        {morning, QDate(2025, 7, 1), QDateTime(QDate(2025, 7, 1), QTime(8, 30))},
        {morning, QDate(), {}},
    };
    for (const auto& [before, day, after] : cases) {
        state.currentInvoice()->setValue(key::date, before.isValid() ? QVariant(before.toUTC()) : QVariant());
        editor().setDocumentDay(key::date, day);
        EXPECT_EQ(state.currentInvoice()->dateValue(key::date), after.toUTC())
            << day.toString().toStdString();
    }
}

TEST_F(DocumentEditorTest, DaysFromTodayCountCalendarDays)
{
    for (int days : {-3, 0, 1, 30})
        EXPECT_EQ(editor().daysFromToday(editor().dateDaysFromToday(days)), days);
}

TEST_F(DocumentEditorTest, TheListOrderFromAHeaderIsRememberedAndUnknownKeysFallBackToTheDate)
{
    GUIController& gui = controllers->gui();
    gui.sortListBy(key::amount, true);
    EXPECT_EQ(state.invoicesController().sortDescriptors().first().key, key::amount);
    EXPECT_EQ(settings.stringValue(key::listSortKey), key::amount);

    state.invoicesController().setSortDescriptors({});
    gui.restoreListSort();
    EXPECT_EQ(state.invoicesController().sortDescriptors().first().key, key::amount);
    EXPECT_TRUE(state.invoicesController().sortDescriptors().first().ascending);

    gui.sortListBy(QStringLiteral("misc3"), true);
    EXPECT_EQ(state.invoicesController().sortDescriptors().first().key, key::date);
    EXPECT_FALSE(state.invoicesController().sortDescriptors().first().ascending);
}

// Columns are hidden and shown by their key, remembered, and the list never
// loses its last column, whatever the settings file says.
TEST_F(DocumentEditorTest, HiddenListColumnsAreRememberedAndOneAlwaysStays)
{
    GUIController& gui = controllers->gui();
    EXPECT_EQ(gui.hiddenListColumns(), QStringList{key::title});
    const struct
    {
        QString key;
        bool shown;
        QStringList hidden;
    } steps[] = {
        {key::date, false, {key::title, key::date}},
        {key::title, true, {key::date}},
        {QStringLiteral("misc3"), false, {key::date}},
        {key::number, false, {key::date, key::number}},
        {key::address, false, {key::date, key::number, key::address}},
        {key::title, false, {key::date, key::number, key::address, key::title}},
        {key::amount, false, {key::date, key::number, key::address, key::title}},
    };
    for (const auto& step : steps) {
        gui.setListColumnShown(step.key, step.shown);
        EXPECT_EQ(gui.hiddenListColumns(), step.hidden) << step.key.toStdString();
    }
    EXPECT_FALSE(gui.canHideListColumn(key::amount));
    settings.setValue(key::listHiddenColumns, QStringLiteral("number,title,address,date,amount,misc3"));
    EXPECT_EQ(gui.hiddenListColumns(), (QStringList{key::number, key::title, key::address, key::date}));
}

} // namespace
} // namespace vorn::test
