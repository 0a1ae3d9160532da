#include "store/ArrayController.h"
#include "tests/store/StoreTestSupport.h"

namespace vorn::test {
namespace {

const QString kDate = "date";

class ArrayControllerTest : public ::testing::Test
{
protected:
    ArrayControllerTest() : m_context(nullptr, m_clock)
    {
        m_list.setSortDescriptors({{kDate, false}, {SortDescriptor::storeOrder(), false}});
    }
    ManagedObject* doc(const QString& title, const QDateTime& date, int kind = 1)
    {
        ManagedObject* o = m_context.insertNewObject(Entity::Invoice);
        assign(*o, "title", title, kDate, date, "kind", kind);
        return o;
    }

    QString arranged() const { return letters(m_list.arrangedObjects()); }

    FixedClock m_clock{utc(2026, 1, 1)};
    ObjectContext m_context;
    ArrayController m_list;
};

TEST_F(ArrayControllerTest, SortsNewestDateFirstThenLastCreatedFirst)
{
    doc("a", utc(2026, 1, 1));
    doc("b", utc(2026, 3, 1));
    doc("c", utc(2026, 1, 1));
    doc("d", utc(2025, 12, 31, 23, 59, 59, 999));
    doc("e", utc(2026, 3, 1));
    doc("f", utc(2026, 1, 1, 0, 0, 0, 1));
    doc("g", QDateTime());
    m_list.setEntity(&m_context, Entity::Invoice);
    EXPECT_EQ(arranged(), "ebfcadg");
}

TEST_F(ArrayControllerTest, SortsByTextFlagsAndNumbersWithAbsentValuesFirst)
{
    const struct
    {
        const char* title;
        QVariant paid;
        QVariant amount;
    } rows[] = {{"beta", true, 2.5f},
                {"Alpha", false, {}},
                {"gamma", {}, -1.0f},
                {"alpha", true, 2.5f},
                {"Beta", false, 10.0f}};
    QList<ManagedObject*> objects;
    for (const auto& r : rows) {
        objects << doc(QLatin1String(r.title), utc(2026, 1, 1));
        objects.last()->setValue("isPaid", r.paid);
        objects.last()->setValue("amount", r.amount);
    }
    const QString storeOrder = SortDescriptor::storeOrder();
    const struct
    {
        QList<SortDescriptor> by;
        const char* expected;
    } cases[] = {
        {{{"amount", true}, {storeOrder, true}}, "Alpha gamma beta alpha Beta"},
        {{{"amount", false}, {storeOrder, false}}, "Beta alpha beta gamma Alpha"},
        {{{"isPaid", false}, {"amount", true}}, "beta alpha Alpha Beta gamma"},
        {{{"noSuchKey", true}, {storeOrder, false}}, "Beta alpha gamma Alpha beta"},
    };
    for (const auto& c : cases) {
        QList<ManagedObject*> sorted = objects;
        ArrayController::sort(sorted, c.by);
        EXPECT_EQ(titles(sorted).join(' '), c.expected);
    }
    // Text follows the locale's collation.
    ArrayController::sort(objects, {{"title", true}});
    for (qsizetype i = 1; i < objects.size(); ++i)
        EXPECT_LE(QString::localeAwareCompare(objects[i - 1]->stringValue("title"),
                                              objects[i]->stringValue("title")),
                  0);
}

TEST_F(ArrayControllerTest, FilterAndSelectionSurviveRearranging)
{
    doc("a", utc(2026, 1, 1), 1);
    ManagedObject* b = doc("b", utc(2026, 2, 1), 0);
    doc("c", utc(2026, 3, 1), 1);
    m_list.setEntity(&m_context, Entity::Invoice);
    m_list.setSelectedObjects({b});
    ASSERT_EQ(m_list.selectionIndex(), 1);

    // Editing a sort key rearranges the list by itself.
    m_list.setAutomaticallyRearrangesObjects(true);
    b->setValue(kDate, utc(2027, 1, 1));
    EXPECT_EQ(arranged(), "bca");
    EXPECT_EQ(m_list.selectedObject(), b);
    EXPECT_EQ(m_list.selectionIndex(), 0);

    m_list.setFilterPredicate([](const ManagedObject& o) { return o.intValue("kind") == 0; });
    EXPECT_EQ(arranged(), "b");
    EXPECT_EQ(m_list.selectedObject(), b);
    m_list.setFilterPredicate([](const ManagedObject& o) { return o.intValue("kind") == 1; });
    EXPECT_EQ(arranged(), "ca");
    EXPECT_EQ(m_list.selectedObject(), nullptr);
    EXPECT_EQ(m_list.content().size(), 3);
}

struct RemoveCase
{
    const char* name;
    int selected;
    int removed;
    bool avoidsEmptySelection;
    const char* expectedSelection; // "" for none
};

const RemoveCase removeCases[] = {
    {"SelectedMiddleTakesNext", 1, 1, true, "c"}, {"SelectedLastTakesNewLast", 3, 3, true, "c"},
    {"SelectedFirstTakesNext", 0, 0, true, "b"},  {"SelectedWithoutAvoidingEmpty", 1, 1, false, ""},
    {"OtherBeforeSelected", 2, 0, false, "c"},    {"OtherAfterSelected", 0, 3, true, "a"},
    {"NothingSelected", -1, 2, false, ""},
};

class RemoveSelectionTest : public ArrayControllerTest, public ::testing::WithParamInterface<RemoveCase>
{
};

TEST_P(RemoveSelectionTest, SelectionAfterRemoving)
{
    const RemoveCase& c = GetParam();
    for (const char* title : {"d", "c", "b", "a"})
        doc(title, utc(2026, 4, 1));
    m_list.setEntity(&m_context, Entity::Invoice);
    m_list.setAvoidsEmptySelection(c.avoidsEmptySelection);
    m_list.setSelectionIndexes(c.selected >= 0 ? QList<int>{c.selected} : QList<int>{});
    ASSERT_EQ(arranged(), "abcd");
    m_list.removeObject(m_list.arrangedObjects()[c.removed]);
    EXPECT_EQ(m_list.count(), 3);
    const ManagedObject* selected = m_list.selectedObject();
    EXPECT_EQ(selected ? selected->stringValue("title") : QString(), QLatin1String(c.expectedSelection));
    EXPECT_LE(m_list.selectionIndexes().size(), 1);
    if (selected) {
        EXPECT_EQ(m_list.arrangedObjects().indexOf(selected), m_list.selectionIndex());
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, RemoveSelectionTest, ::testing::ValuesIn(removeCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(ArrayControllerTest, FollowsDeletesUndoAndRollback)
{
    doc("a", utc(2026, 1, 1));
    ManagedObject* b = doc("b", utc(2026, 2, 1));
    doc("c", utc(2026, 3, 1));
    m_list.setEntity(&m_context, Entity::Invoice);
    m_context.undoManager()->removeAllActions();
    {
        UndoGroup g(m_context.undoManager(), "Delete");
        m_context.deleteObject(b);
    }
    EXPECT_EQ(arranged(), "ca");
    m_context.undoManager()->undo();
    EXPECT_EQ(arranged(), "cba");
    EXPECT_EQ(m_list.content().count(b), 1);
    m_context.undoManager()->redo();
    EXPECT_EQ(arranged(), "ca");
    // Nothing was ever saved: a rollback leaves the list empty.
    m_context.rollback();
    EXPECT_EQ(m_list.count(), 0);
}

TEST_F(ArrayControllerTest, NewObjectsJoinOnlyThroughAddObject)
{
    doc("a", utc(2026, 1, 1));
    m_list.setEntity(&m_context, Entity::Invoice);
    m_list.setSelectionIndexes({0});
    ManagedObject* b = doc("b", utc(2027, 1, 1));
    EXPECT_EQ(m_list.count(), 1) << "the creating action adds the object itself";
    m_list.addObject(b);
    EXPECT_EQ(arranged(), "ab");
    EXPECT_EQ(m_list.selectedObject(), b);
    m_list.rearrangeObjects();
    EXPECT_EQ(arranged(), "ba");
    EXPECT_EQ(m_list.selectedObject(), b);

    m_list.setSelectsInsertedObjects(false);
    ManagedObject* c = doc("c", utc(2020, 1, 1));
    m_list.insertObject(c, 0);
    EXPECT_EQ(arranged(), "cba");
    EXPECT_EQ(m_list.selectedObject(), b);
    m_list.addObject(c);
    EXPECT_EQ(m_list.content().count(c), 1);
}

} // namespace
} // namespace vorn::test
