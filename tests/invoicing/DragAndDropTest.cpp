#include "tests/invoicing/InvoicingFixture.h"

#include "invoicing/QVDragAndDropArrayController.h"

using namespace vorn;
using namespace vorn::test;

namespace {

using DnD = QVDragAndDropArrayController;

class DragAndDropTest : public InvoicingFixture
{
protected:
    DragAndDropTest()
    {
        doc = document(1);
        for (int i = 0; i < 5; ++i)
            item(doc, float(i + 1), 1)->setValue(key::title, QString::number(i));
        select(doc);
    }
    QString order() const { return texts(doc->items()).join(QString()); }
    DnD& dnd() { return controllers->items().dragAndDrop(); }

    ManagedObject* doc = nullptr;
};

struct MoveCase
{
    const char* name;
    QList<int> indexes;
    int to;
    const char* order;
    QList<int> landed;
};

const MoveCase moveCases[] = {
    {"twoDownToRowFour", {1, 2}, 4, "03124", {2, 3}},
    {"firstToEnd", {0}, 5, "12340", {4}},
    {"lastToTop", {4}, 0, "40123", {0}},
    {"endsToMiddle", {0, 4}, 2, "10423", {1, 2}},
    {"ontoItself", {2}, 2, "01234", {2}},
    {"justBelowItself", {2}, 3, "01234", {2}},
    {"pastTheEndClamps", {1, 3}, 10, "02413", {3, 4}},
    {"unorderedDuplicates", {3, 1, 3}, 0, "13024", {0, 1}},
    {"outOfRangeIgnored", {7, -1}, 0, "01234", {}},
};

using MovingRows = CaseTable<DragAndDropTest, MoveCase>;

TEST_P(MovingRows, LandAsOneBlock)
{
    const MoveCase& c = GetParam();
    EXPECT_EQ(dnd().moveObjectsInArrangedObjectsFromIndexes(c.indexes, c.to), c.landed);
    EXPECT_EQ(order(), QString::fromUtf8(c.order));
    EXPECT_EQ(state.itemsController().arrangedObjects(), doc->items());
    if (!c.landed.isEmpty()) {
        EXPECT_EQ(state.itemsController().selectionIndexes(), c.landed);
    }
}

INSTANTIATE_TEST_SUITE_P(DragAndDrop, MovingRows, ::testing::ValuesIn(moveCases), caseName);

TEST_F(DragAndDropTest, DropsWithinTheTableMoveOthersCopy)
{
    // from this table, option key held, proposed row, operation, row
    const std::tuple<bool, bool, int, DnD::Operation, int> cases[] = {
        {true, false, 3, DnD::Move, 3},
        {true, true, 3, DnD::Copy, 3},
        {false, false, 1, DnD::Copy, 1},
        {false, true, -4, DnD::Copy, 0},
    };
    for (const auto& [fromThisTable, optionHeld, proposed, operation, row] : cases) {
        const DnD::DropProposal p = dnd().validateDrop(fromThisTable, optionHeld, proposed);
        EXPECT_EQ(p.operation, operation) << proposed;
        EXPECT_EQ(p.row, row) << proposed;
        EXPECT_TRUE(p.above);
    }
}

TEST_F(DragAndDropTest, WrittenRowsMoveOnDropAndRecalculate)
{
    DnD::Pasteboard pb = dnd().writeRows({2, 1});
    EXPECT_EQ(pb.types, (QStringList{DnD::copiedRowsType, DnD::movedRowsType}));
    EXPECT_FALSE(pb.copiedRows.has_value());
    // With the option key held within the table there is nothing to copy.
    EXPECT_FALSE(dnd().acceptDrop(pb, true, true, 4));
    EXPECT_EQ(order(), QStringLiteral("01234"));
    EXPECT_TRUE(dnd().acceptDrop(pb, true, false, 4));
    EXPECT_EQ(order(), QStringLiteral("03124"));
    EXPECT_FLOAT_EQ(doc->floatValue(key::subAmount), 15.0f);
    EXPECT_FALSE(context.hasChanges());

    DnD::Pasteboard single = dnd().writeRows({0});
    EXPECT_EQ(single.types.last(), DnD::stringType);
    EXPECT_EQ(single.string, QStringLiteral("0"));
}

TEST_F(DragAndDropTest, CopiedRowsAndUrlsInsertNewLines)
{
    DnD::Pasteboard rows;
    rows.copiedRows =
        QVariantList{QVariantMap{{key::title, QStringLiteral("x")}, {key::baseAmount, 2.0}},
                     QVariantMap{{key::title, QStringLiteral("y")}, {QStringLiteral("bogus"), 1}}};
    EXPECT_TRUE(dnd().acceptDrop(rows, false, false, 1));
    EXPECT_EQ(order(), QStringLiteral("0xy1234"));
    EXPECT_EQ(state.itemsController().selectionIndexes(), (QList<int>{1, 2}));

    DnD::Pasteboard url;
    url.url = QStringLiteral("https://example.org/");
    EXPECT_TRUE(dnd().acceptDrop(url, false, false, -3));
    EXPECT_EQ(doc->items().size(), 8);
    EXPECT_EQ(doc->items().first()->stringValue(key::title), QString());

    EXPECT_FALSE(dnd().acceptDrop(DnD::Pasteboard{}, false, false, 0));
    EXPECT_FALSE(dnd().acceptDrop(DnD::Pasteboard{{}, QByteArray("garbage"), {}, {}, {}}, true, false, 0));
}

TEST_F(DragAndDropTest, SentDocumentsRefuseDropsAndMoves)
{
    doc->setValue(key::status, 2);
    EXPECT_EQ(dnd().validateDrop(true, false, 1).operation, DnD::None);
    EXPECT_FALSE(dnd().acceptDrop(dnd().writeRows({0}), true, false, 3));
    EXPECT_TRUE(controllers->items().moveItems({0}, 3).isEmpty());
    EXPECT_EQ(ui.alertTitles(), QStringList{QStringLiteral("Error!")});
    EXPECT_EQ(order(), QStringLiteral("01234"));
}

} // namespace
