#include "ui/SelectionSync.h"
#include "tests/ui/UiFixture.h"
#include "ui/DocumentListModel.h"
#include "ui/DocumentListView.h"

#include <QItemSelectionModel>

#include <functional>

namespace vorn::test {
namespace {

class SelectionSyncTest : public UiFixture
{
public:
    SelectionSyncTest()
    {
        add("A", -3);
        add("B", -2, 0);
        add("C", -1);
        view.setModel(&model);
        sync = std::make_unique<SelectionSync>(model, view);
    }

    // The document the view shows as selected, or "" for none.
    QString viewSelection() const
    {
        const QModelIndexList rows = view.selectionModel()->selectedRows();
        if (rows.size() > 1)
            return QStringLiteral("several");
        return rows.isEmpty() ? QString() : model.index(rows.first().row(), 0).data().toString();
    }

    QString listSelection()
    {
        const QStringList selected = numbers(state.invoicesController().selectedObjects());
        return selected.size() > 1 ? QStringLiteral("several") : selected.value(0);
    }

    void clickRow(int row)
    {
        view.selectionModel()->select(model.index(row, 0),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

    DocumentListModel model{state.invoicesController()};
    DocumentListView view;
    std::unique_ptr<SelectionSync> sync;
};

struct SelectionStep
{
    const char* what;
    std::function<void(SelectionSyncTest&)> run;
    const char* selected; // number of the document both sides select, "" for none
};

TEST_F(SelectionSyncTest, ViewAndListAgreeOnTheSelectedDocument)
{
    using T = SelectionSyncTest;
    const std::vector<SelectionStep> steps = {
        {"the last added document starts selected", [](T&) {}, "C"},
        {"the user picks the bottom row", [](T& t) { t.clickRow(2); }, "A"},
        {"the list selects another one", [](T& t) { t.list().setSelectedObjects({t.doc("B")}); }, "B"},
        {"re-sorting keeps the document, not the row",
         [](T& t) {
             t.doc("B")->setValue(QStringLiteral("date"), t.clock.now().addDays(-10));
             t.list().rearrangeObjects();
         },
         "B"},
        {"the user clears the selection", [](T& t) { t.view.selectionModel()->clearSelection(); }, ""},
        {"a new document is selected as it is added", [](T& t) { t.add("D", 1); }, "D"},
        {"filtering out the selected document leaves nothing selected",
         [](T& t) {
             t.list().setFilterPredicate(
                 [](const ManagedObject& o) { return o.intValue(QStringLiteral("kind")) == 0; });
         },
         ""},
        {"back to all documents, the user picks the top row",
         [](T& t) {
             t.list().setFilterPredicate({});
             t.clickRow(0);
         },
         "D"},
        {"with a list that avoids an empty selection, deleting the selected row selects its successor",
         [](T& t) {
             t.list().setAvoidsEmptySelection(true);
             t.context.deleteObject(t.doc("D"));
         },
         "C"},
        {"undoing the delete keeps the list's choice", [](T& t) { t.context.undoManager()->undo(); }, "C"},
        {"the user cannot empty a list that avoids it",
         [](T& t) { t.view.selectionModel()->clearSelection(); }, "D"},
        {"new content around the selected document keeps it selected",
         [](T& t) {
             ManagedObject* e = t.context.insertNewObject(Entity::Invoice);
             e->setValue(QStringLiteral("number"), QStringLiteral("E"));
             e->setValue(QStringLiteral("date"), t.clock.now().addDays(-20));
             t.list().setContent({t.doc("D"), e});
         },
         "D"},
    };
    for (const SelectionStep& step : steps) {
        SCOPED_TRACE(step.what);
        step.run(*this);
        EXPECT_EQ(listSelection(), QString::fromUtf8(step.selected));
        EXPECT_EQ(viewSelection(), QString::fromUtf8(step.selected));
        if (!QString::fromUtf8(step.selected).isEmpty()) {
            EXPECT_EQ(view.selectionModel()->currentIndex().row(), model.rowOf(state.currentInvoice()));
        }
    }
}

} // namespace
} // namespace vorn::test
