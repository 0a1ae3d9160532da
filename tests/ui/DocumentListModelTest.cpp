#include "ui/DocumentListModel.h"
#include "tests/ui/UiFixture.h"

#include <QAbstractItemModelTester>
#include <QColor>

#include <functional>

namespace vorn::test {
namespace {

// Records how the model announced each change, so a test can tell an
// insertion from a reset (a reset loses the view's scroll position).
struct ChangeLog
{
    explicit ChangeLog(QAbstractItemModel& model)
    {
        QObject::connect(&model, &QAbstractItemModel::rowsInserted,
                         [this] { kinds << QStringLiteral("insert"); });
        QObject::connect(&model, &QAbstractItemModel::rowsRemoved,
                         [this] { kinds << QStringLiteral("remove"); });
        QObject::connect(&model, &QAbstractItemModel::layoutChanged,
                         [this] { kinds << QStringLiteral("layout"); });
        QObject::connect(&model, &QAbstractItemModel::modelReset,
                         [this] { kinds << QStringLiteral("reset"); });
    }
    QStringList take() { return std::exchange(kinds, {}); }
    QStringList kinds;
};

class DocumentListModelTest : public UiFixture
{
public:
    QStringList shownNumbers() const
    {
        QStringList result;
        for (int row = 0; row < model.rowCount(); ++row)
            result << model.index(row, DocumentListModel::NumberColumn).data().toString();
        return result;
    }

    DocumentListModel model{state.invoicesController()};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    ChangeLog log{model};
};

struct Step
{
    const char* what;
    std::function<void(DocumentListModelTest&)> run;
    QStringList rows;    // numbers shown afterwards, top to bottom
    QStringList changes; // how the model announced it
};

TEST_F(DocumentListModelTest, RowsFollowTheListThroughEditsSortingFilteringAndUndo)
{
    using T = DocumentListModelTest;
    const QString insert = QStringLiteral("insert"), remove = QStringLiteral("remove"),
                  layout = QStringLiteral("layout"), reset = QStringLiteral("reset");
    const std::vector<Step> steps = {
        {"first document", [](T& t) { t.add("A", -3); }, {"A"}, {insert}},
        {"a newer one goes on top", [](T& t) { t.add("B", -1); }, {"B", "A"}, {insert, layout}},
        {"one dated between them", [](T& t) { t.add("C", -2, 0); }, {"B", "C", "A"}, {insert, layout}},
        {"delete the middle one", [](T& t) { t.context.deleteObject(t.doc("C")); }, {"B", "A"}, {remove}},
        {"undo brings it back in place",
         [](T& t) { t.context.undoManager()->undo(); },
         {"B", "C", "A"},
         {insert}},
        {"redate the oldest to tomorrow",
         [](T& t) {
             t.doc("A")->setValue(QStringLiteral("date"), t.clock.now().addDays(1));
             t.list().rearrangeObjects();
         },
         {"A", "B", "C"},
         {layout}},
        {"show quotes only",
         [](T& t) {
             t.list().setFilterPredicate(
                 [](const ManagedObject& o) { return o.intValue(QStringLiteral("kind")) == 0; });
         },
         {"C"},
         {remove}},
        {"show everything again", [](T& t) { t.list().setFilterPredicate({}); }, {"A", "B", "C"}, {insert}},
        {"undoing the redate leaves the order to the list",
         [](T& t) { t.context.undoManager()->undo(); },
         {"A", "B", "C"},
         {}},
        {"which rearranges on request", [](T& t) { t.list().rearrangeObjects(); }, {"B", "C", "A"}, {layout}},
        {"a whole new content",
         [](T& t) {
             ManagedObject* d = t.context.insertNewObject(Entity::Invoice);
             d->setValue(QStringLiteral("number"), QStringLiteral("D"));
             t.list().setContent({d, t.doc("A")});
         },
         {"A", "D"},
         {reset}},
        {"no context at all", [](T& t) { t.state.setContext(nullptr); }, {}, {remove}},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.what);
        step.run(*this);
        EXPECT_EQ(shownNumbers(), step.rows);
        EXPECT_EQ(numbers(model.rows()), numbers(list().arrangedObjects()));
        EXPECT_EQ(log.take(), step.changes);
    }
}

struct Cell
{
    const char* what;
    QVariantMap values;
    int column;
    int role;
    QVariant expected;
};

// The dates show in local time, so the cells run in Berlin whatever zone the
// machine is in: there 23:30 UTC in November is already the next day.
class DocumentListCellTest : public UiFixture, public ::testing::WithParamInterface<Cell>
{
protected:
    void SetUp() override { qputenv("TZ", "Europe/Berlin"); }
    void TearDown() override
    {
        if (m_hadZone)
            qputenv("TZ", m_zone);
        else
            qunsetenv("TZ");
    }

private:
    const bool m_hadZone = qEnvironmentVariableIsSet("TZ");
    const QByteArray m_zone = qgetenv("TZ");
};

TEST_P(DocumentListCellTest, ShowsTheDocument)
{
    const Cell& cell = GetParam();
    SCOPED_TRACE(cell.what);
    DocumentListModel model(list());
    ManagedObject* d = context.insertNewObject(Entity::Invoice);
    for (auto it = cell.values.cbegin(); it != cell.values.cend(); ++it)
        d->setValue(it.key(), it.value());
    list().addObject(d);
    ASSERT_EQ(model.rowCount(), 1);
    const QVariant value = model.index(0, cell.column).data(cell.role);
    if (cell.role == Qt::ForegroundRole)
        EXPECT_EQ(value.isValid(), cell.expected.toBool()) << value.toString().toStdString();
    else
        EXPECT_EQ(value, cell.expected) << value.toString().toStdString();
}

using M = DocumentListModel;
const QString nbsp(QChar(0x00A0));
const QDateTime lateEvening(QDate(2026, 11, 21), QTime(23, 30), QTimeZone::utc());

INSTANTIATE_TEST_SUITE_P(
    Cells, DocumentListCellTest,
    ::testing::Values(
        Cell{"amount with grouping, two decimals and the currency",
             {{"amount", 1234.5f}, {"currency", "€"}},
             M::AmountColumn,
             Qt::DisplayRole,
             QString("1,234.50" + nbsp + "€")},
        Cell{"negative amount without currency",
             {{"amount", -12.5f}, {"currency", ""}},
             M::AmountColumn,
             Qt::DisplayRole,
             QString("-12.50")},
        Cell{"absent amount",
             {{"currency", "$"}},
             M::AmountColumn,
             Qt::DisplayRole,
             QString("0.00" + nbsp + "$")},
        Cell{"amounts line up on the right",
             {},
             M::AmountColumn,
             Qt::TextAlignmentRole,
             QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter)},
        Cell{"the stored amount", {{"amount", 19.99f}}, M::AmountColumn, M::ValueRole, QVariant(19.99f)},
        Cell{"the title as written",
             {{"title", "Consulting"}, {"kind", 1}},
             M::TitleColumn,
             Qt::DisplayRole,
             QString("Consulting")},
        Cell{"a quote without title",
             {{"title", ""}, {"kind", 0}},
             M::TitleColumn,
             Qt::DisplayRole,
             QString("Quote")},
        Cell{"an invoice with a blank title",
             {{"title", "  "}, {"kind", 1}},
             M::TitleColumn,
             Qt::DisplayRole,
             QString("Invoice")},
        Cell{"client: first line that is not blank",
             {{"address", "\n  \n  Acme Ltd \nHigh Street 1"}},
             M::ClientColumn,
             Qt::DisplayRole,
             QString("Acme Ltd")},
        Cell{"client: Windows line ends",
             {{"address", "One GmbH\r\nTwo"}},
             M::ClientColumn,
             Qt::DisplayRole,
             QString("One GmbH")},
        Cell{"client: no address", {}, M::ClientColumn, Qt::DisplayRole, QString()},
        Cell{"the date in local time, where it is already the next day",
             {{"date", lateEvening}},
             M::DateColumn,
             Qt::DisplayRole,
             QString("11/22/26")},
        Cell{"the stored date", {{"date", lateEvening}}, M::DateColumn, M::ValueRole, QVariant(lateEvening)},
        Cell{"status created", {{"status", 0}}, M::StatusColumn, Qt::DisplayRole, QString("Created")},
        Cell{"status sent", {{"status", 1}}, M::StatusColumn, Qt::DisplayRole, QString("Sent")},
        Cell{"status overdue", {{"status", 2}}, M::StatusColumn, Qt::DisplayRole, QString("Overdue")},
        Cell{"status paid", {{"status", 3}}, M::StatusColumn, Qt::DisplayRole, QString("Paid")},
        Cell{"status partly paid", {{"status", 4}}, M::StatusColumn, Qt::DisplayRole, QString("Partly Paid")},
        Cell{"an unknown status reads as created",
             {{"status", 7}},
             M::StatusColumn,
             Qt::DisplayRole,
             QString("Created")},
        Cell{"an overdue invoice stands out",
             {{"status", 2}, {"kind", 1}},
             M::StatusColumn,
             Qt::ForegroundRole,
             true},
        Cell{"a quote is never marked overdue",
             {{"status", 2}, {"kind", 0}},
             M::StatusColumn,
             Qt::ForegroundRole,
             false},
        Cell{"a created invoice is plain",
             {{"status", 0}, {"kind", 1}},
             M::StatusColumn,
             Qt::ForegroundRole,
             false},
        Cell{"kind for filtering", {{"kind", 0}}, M::NumberColumn, M::KindRole, QVariant(qint64(0))},
        Cell{"status for filtering", {{"status", 3}}, M::NumberColumn, M::StatusRole, QVariant(qint64(3))}),
    [](const ::testing::TestParamInfo<Cell>& info) { return std::to_string(info.index); });

TEST_F(DocumentListModelTest, RepaintsARowOnlyWhenWhatItShowsChanges)
{
    add("A", -1);
    add("B", -2);
    QList<int> changedRows;
    QObject::connect(
        &model, &QAbstractItemModel::dataChanged,
        [&changedRows](const QModelIndex& from, const QModelIndex&) { changedRows << from.row(); });
    doc("B")->setValue(QStringLiteral("amount"), 10.0f);
    doc("A")->setValue(QStringLiteral("status"), 3);
    doc("A")->setValue(QStringLiteral("notes"), QStringLiteral("private"));
    ManagedObject* unlisted = context.insertNewObject(Entity::Invoice);
    unlisted->setValue(QStringLiteral("amount"), 5.0f);
    EXPECT_EQ(changedRows, (QList<int>{1, 0}));
}

} // namespace
} // namespace vorn::test
