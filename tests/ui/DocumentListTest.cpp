#include "tests/ui/UiFixture.h"
#include "ui/DocumentListModel.h"
#include "ui/DocumentListView.h"
#include "ui/SelectionSync.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QItemSelectionModel>

#include <functional>

namespace vorn::test {
namespace {

// Records how the model announced each change, so a test can tell an
// insertion from a reset (a reset loses the view's scroll position).
struct ChangeLog
{
    explicit ChangeLog(QAbstractItemModel& model)
    {
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, [this] { kinds << "insert"; });
        QObject::connect(&model, &QAbstractItemModel::rowsRemoved, [this] { kinds << "remove"; });
        QObject::connect(&model, &QAbstractItemModel::layoutChanged, [this] { kinds << "layout"; });
        QObject::connect(&model, &QAbstractItemModel::modelReset, [this] { kinds << "reset"; });
    }
    QStringList take() { return std::exchange(kinds, {}); }
    QStringList kinds;
};

// The document list as the main window shows it: the model over the list
// of documents, and a view whose selection is kept in step with the list's.
class DocumentListTest : public UiFixture
{
public:
    DocumentListTest()
    {
        view.setModel(&model);
        sync = std::make_unique<SelectionSync>(model, view);
    }

    QStringList shownNumbers() const
    {
        QStringList result;
        for (int row = 0; row < model.rowCount(); ++row)
            result << model.index(row, DocumentListModel::NumberColumn).data().toString();
        return result;
    }
    // The document a side shows as selected, "" for none.
    QString viewSelection() const
    {
        const QModelIndexList rows = view.selectionModel()->selectedRows();
        if (rows.size() > 1)
            return "several";
        return rows.isEmpty() ? QString() : model.index(rows.first().row(), 0).data().toString();
    }
    QString listSelection()
    {
        const QStringList selected = numbers(list().selectedObjects());
        return selected.size() > 1 ? "several" : selected.value(0);
    }
    void undo() { context.undoManager()->undo(); }
    void clickRow(int row)
    {
        view.selectionModel()->select(model.index(row, 0),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

    DocumentListModel model{state.invoicesController()};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    ChangeLog log{model};
    DocumentListView view;
    std::unique_ptr<SelectionSync> sync;
};

// Each step names the documents shown afterwards, top to bottom, how the
// model announced the change, and the document both sides select.
struct Step
{
    const char* what;
    std::function<void(DocumentListTest&)> run;
    const char* rows;
    const char* changes;
    const char* selected;
};

TEST_F(DocumentListTest, RowsAndSelectionFollowTheListThroughEditsSortingFilteringAndUndo)
{
    using T = DocumentListTest;
    const std::vector<Step> steps = {
        {"first document", [](T& t) { t.add("A", -3); }, "A", "insert", "A"},
        {"a newer one goes on top, selected as added", [](T& t) { t.add("B", -1); }, "B A", "insert layout",
         "B"},
        {"one dated between them", [](T& t) { t.add("C", -2, 0); }, "B C A", "insert layout", "C"},
        {"the user picks the bottom row", [](T& t) { t.clickRow(2); }, "B C A", "", "A"},
        {"the list selects another one", [](T& t) { t.list().setSelectedObjects({t.doc("B")}); }, "B C A", "",
         "B"},
        {"delete the middle one", [](T& t) { t.context.deleteObject(t.doc("C")); }, "B A", "remove", "B"},
        {"undo brings it back in place", [](T& t) { t.undo(); }, "B C A", "insert", "B"},
        {"re-sorting keeps the selected document, not the row",
         [](T& t) {
             t.doc("A")->setValue("date", t.clock.now().addDays(1));
             t.list().rearrangeObjects();
         },
         "A B C", "layout", "B"},
        {"filtering out the selected document leaves nothing selected",
         [](T& t) {
             t.list().setFilterPredicate([](const ManagedObject& o) { return o.intValue("kind") == 0; });
         },
         "C", "remove", ""},
        {"show everything again", [](T& t) { t.list().setFilterPredicate({}); }, "A B C", "insert", ""},
        {"undoing the redate leaves the order to the list", [](T& t) { t.undo(); }, "A B C", "", ""},
        {"which rearranges on request", [](T& t) { t.list().rearrangeObjects(); }, "B C A", "layout", ""},
        {"the user picks the top row", [](T& t) { t.clickRow(0); }, "B C A", "", "B"},
        {"the user clears the selection", [](T& t) { t.view.selectionModel()->clearSelection(); }, "B C A",
         "", ""},
        {"a new document on top", [](T& t) { t.add("D", 1); }, "D B C A", "insert layout", "D"},
        {"with a list that avoids an empty selection, deleting the selected row selects its successor",
         [](T& t) {
             t.list().setAvoidsEmptySelection(true);
             t.context.deleteObject(t.doc("D"));
         },
         "B C A", "remove", "B"},
        {"undoing the delete keeps the list's choice", [](T& t) { t.undo(); }, "D B C A", "insert", "B"},
        {"the user cannot empty a list that avoids it",
         [](T& t) { t.view.selectionModel()->clearSelection(); }, "D B C A", "", "D"},
        {"a whole new content around the selected document keeps it selected",
         [](T& t) {
             ManagedObject* e = t.context.insertNewObject(Entity::Invoice);
             e->setValue("number", "E");
             e->setValue("date", t.clock.now().addDays(-20));
             t.list().setContent({t.doc("D"), e});
         },
         "D E", "reset", "D"},
        {"no context at all", [](T& t) { t.state.setContext(nullptr); }, "", "remove", ""},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.what);
        step.run(*this);
        EXPECT_EQ(shownNumbers().join(' '), QLatin1String(step.rows));
        EXPECT_EQ(numbers(model.rows()), numbers(list().arrangedObjects()));
        EXPECT_EQ(log.take().join(' '), QLatin1String(step.changes));
        EXPECT_EQ(listSelection(), QLatin1String(step.selected));
        EXPECT_EQ(viewSelection(), QLatin1String(step.selected));
        if (*step.selected) {
            EXPECT_EQ(view.selectionModel()->currentIndex().row(), model.rowOf(state.currentInvoice()));
        }
    }
}

TEST_F(DocumentListTest, CellsShowTheDocument)
{
    using M = DocumentListModel;
    const QDateTime lateEvening(QDate(2026, 11, 21), QTime(23, 30), QTimeZone::utc());
    struct
    {
        const char* what;
        QVariantMap values;
        int column;
        QString shown; // for the foreground, "coloured" or "plain"
        int role = Qt::DisplayRole;
    } const cells[] = {
        {"grouped amount", {{"amount", 1234.5f}, {"currency", "€"}}, M::AmountColumn, "1,234.50\u00A0€"},
        {"negative amount, no currency", {{"amount", -12.5f}}, M::AmountColumn, "-12.50"},
        {"untitled quote", {{"title", ""}, {"kind", 0}}, M::TitleColumn, "Quote"},
        {"blank-titled invoice", {{"title", "  "}, {"kind", 1}}, M::TitleColumn, "Invoice"},
        {"client: first line not blank", {{"address", "\n \r\n Acme \r\nHigh St"}}, M::ClientColumn, "Acme"},
        {"local date, already the next day", {{"date", lateEvening}}, M::DateColumn, "11/22/26"},
        {"partly paid", {{"status", 4}}, M::StatusColumn, "Partly Paid"},
        {"unknown status reads as created", {{"status", 7}}, M::StatusColumn, "Created"},
        {"overdue invoice", {{"status", 2}, {"kind", 1}}, M::StatusColumn, "coloured", Qt::ForegroundRole},
        {"overdue quote", {{"status", 2}, {"kind", 0}}, M::StatusColumn, "plain", Qt::ForegroundRole},
    };
    // Dates show in local time, so the cells are read in Berlin whatever zone
    // the machine is in: there 23:30 UTC in November is already the next day.
    const bool hadZone = qEnvironmentVariableIsSet("TZ");
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "Europe/Berlin");
    for (const auto& cell : cells) {
        SCOPED_TRACE(cell.what);
        ManagedObject* d = context.insertNewObject(Entity::Invoice);
        for (auto it = cell.values.cbegin(); it != cell.values.cend(); ++it)
            d->setValue(it.key(), it.value());
        list().setContent({d});
        const QVariant value = model.index(0, cell.column).data(cell.role);
        if (cell.role == Qt::ForegroundRole)
            EXPECT_EQ(value.isValid() ? "coloured" : "plain", cell.shown);
        else
            EXPECT_EQ(value.toString(), cell.shown);
    }
    if (hadZone)
        qputenv("TZ", zone);
    else
        qunsetenv("TZ");
}

TEST_F(DocumentListTest, RepaintsARowOnlyWhenWhatItShowsChanges)
{
    add("A", -1);
    add("B", -2);
    QList<int> changedRows;
    QObject::connect(
        &model, &QAbstractItemModel::dataChanged,
        [&changedRows](const QModelIndex& from, const QModelIndex&) { changedRows << from.row(); });
    doc("B")->setValue("amount", 10.0f);
    doc("A")->setValue("status", 3);
    doc("A")->setValue("notes", "private");
    ManagedObject* unlisted = context.insertNewObject(Entity::Invoice);
    unlisted->setValue("amount", 5.0f);
    EXPECT_EQ(changedRows, (QList<int>{1, 0}));
}

} // namespace
} // namespace vorn::test
