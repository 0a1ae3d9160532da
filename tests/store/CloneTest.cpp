#include "store/Clone.h"
#include "tests/store/StoreTestSupport.h"

using namespace vorn;
using namespace vorn::test;

namespace {

class CloneTest : public ::testing::Test
{
protected:
    FixedClock clock{utc(2026, 3, 1, 10)};
    ObjectContext source{nullptr, clock};
    ObjectContext target{nullptr, clock};

    ManagedObject* document(int itemCount)
    {
        ManagedObject* invoice = source.insertNewObject(Entity::Invoice);
        // misc1 absent: it must stay absent
        assign(*invoice, "number", "RE-2026-007", "amount", 34.65f, "kind", 1, "date",
               utc(2026, 2, 14, 9, 30), "misc1", QVariant());
        for (int i = 0; i < itemCount; ++i) {
            ManagedObject* item = source.insertNewObject(Entity::Item);
            assign(*item, "title", QStringLiteral("Line %1").arg(i), "unitCount", float(i) + 0.5f);
            invoice->insertObject(QStringLiteral("items"), item);
        }
        return invoice;
    }
};

} // namespace

// Cloning a document, or one of its items, copies the whole document once,
// its items in order, into the target; the source is left alone.
TEST_F(CloneTest, DocumentOrOneOfItsItemsCopiesTheWholeDocumentInOrder)
{
    for (const bool fromItem : {false, true}) {
        SCOPED_TRACE(fromItem ? "from an item" : "from the document");
        ObjectContext target{nullptr, clock};
        ManagedObject* original = document(3);
        ManagedObject* copy = cloneInContext(fromItem ? *original->items()[1] : *original, target, {});
        ASSERT_NE(copy, nullptr);
        ManagedObject* documentCopy = fromItem ? copy->object(QStringLiteral("invoice")) : copy;
        ASSERT_NE(documentCopy, nullptr);
        EXPECT_EQ(documentCopy->context(), &target);
        for (const AttributeDescription& a : original->entity().attributes()) {
            EXPECT_EQ(documentCopy->value(a.name), original->value(a.name)) << a.name.toStdString();
            EXPECT_EQ(documentCopy->hasValue(a.name), original->hasValue(a.name)) << a.name.toStdString();
        }
        EXPECT_EQ(titles(documentCopy->items()), (QStringList{"Line 0", "Line 1", "Line 2"}));
        if (fromItem) {
            EXPECT_EQ(documentCopy->items()[1], copy);
        }
        for (ManagedObject* item : documentCopy->items()) {
            EXPECT_EQ(item->context(), &target);
            EXPECT_EQ(item->object(QStringLiteral("invoice")), documentCopy);
        }
        EXPECT_EQ(original->items().size(), 3);
        EXPECT_EQ(original->items().first()->object(QStringLiteral("invoice")), original);
        EXPECT_EQ(target.fetch(Entity::Item).size(), 3);
        EXPECT_EQ(target.fetch(Entity::Invoice).size(), 1);
    }
}

namespace {

struct ExclusionCase
{
    const char* name;
    QStringList entities;
    QStringList attributes;
    bool cloneExpected;
    int itemsExpected;
    bool sameUniqueId;
    bool sameNumber;
};

class CloneExclusionTest : public CloneTest, public ::testing::WithParamInterface<ExclusionCase>
{
};

} // namespace

TEST_P(CloneExclusionTest, ExcludedEntitiesAndAttributes)
{
    const ExclusionCase& c = GetParam();
    ManagedObject* original = document(2);
    ManagedObject* copy = cloneInContext(*original, target, c.entities, c.attributes);
    ASSERT_EQ(copy != nullptr, c.cloneExpected);
    if (!copy) {
        EXPECT_TRUE(target.fetch(Entity::Invoice).isEmpty());
        EXPECT_TRUE(target.fetch(Entity::Item).isEmpty());
        return;
    }
    EXPECT_EQ(copy->items().size(), c.itemsExpected);
    EXPECT_EQ(target.fetch(Entity::Item).size(), c.itemsExpected);
    EXPECT_EQ(copy->stringValue(QStringLiteral("uniqueID")) ==
                  original->stringValue(QStringLiteral("uniqueID")),
              c.sameUniqueId);
    // An excluded attribute keeps what insertion gave it: a fresh identity, no number.
    EXPECT_FALSE(copy->stringValue(QStringLiteral("uniqueID")).isEmpty());
    EXPECT_EQ(copy->hasValue(QStringLiteral("number")), c.sameNumber);
    for (ManagedObject* item : copy->items())
        EXPECT_EQ(item->stringValue(QStringLiteral("uniqueID")) ==
                      original->items()[copy->items().indexOf(item)]->stringValue(QStringLiteral("uniqueID")),
                  c.sameUniqueId);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, CloneExclusionTest,
    ::testing::Values(ExclusionCase{"nothing", {}, {}, true, 2, true, true},
                      ExclusionCase{"items", {"Item"}, {}, true, 0, true, true},
                      ExclusionCase{"root", {"Invoice"}, {}, false, 0, false, false},
                      ExclusionCase{"identity", {}, {"uniqueID"}, true, 2, false, true},
                      ExclusionCase{
                          "identityAndNumber", {"Design"}, {"uniqueID", "number"}, true, 2, false, false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(CloneTest, SharedCacheCopiesEachObjectOnce)
{
    ManagedObject* original = document(2);
    QHash<const ManagedObject*, ManagedObject*> cache;
    ManagedObject* first = cloneInContext(*original, target, cache, {});
    ManagedObject* second = cloneInContext(*original, target, cache, {});
    ManagedObject* item = cloneInContext(*original->items()[0], target, cache, {});
    EXPECT_EQ(first, second);
    EXPECT_EQ(item, first->items()[0]);
    EXPECT_EQ(cache.size(), 3);
    EXPECT_EQ(target.fetch(Entity::Item).size(), 2);
}
