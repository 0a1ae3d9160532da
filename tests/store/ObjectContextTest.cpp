#include "tests/store/StoreTestSupport.h"

#include <QRegularExpression>
#include <QSet>

#include <bit>
#include <cfloat>
#include <cmath>
#include <limits>
#include <numeric>

namespace vorn::test {
namespace {

const QString kTitle = "title";
const QString kItems = "items";

// ---------------------------------------------------------------- round trip

// Values a store could get wrong, by attribute type.
QVariant sample(AttributeType type, int variant)
{
    QByteArray bytes(256, '\0');
    std::iota(bytes.begin(), bytes.end(), char(0));
    const QMap<AttributeType, QVariantList> samples{
        {AttributeType::String,
         {QString(""), QString("Ünïcödé ✓ 𝄞 \"quoted\" 'single'\n\tsecond line"),
          QString::fromUtf8("nul\0inside", 10), QString("  padded  "), QString("<b>markup</b> & 100 %"),
          QString("0042")}},
        {AttributeType::Integer,
         {qint64(0), qint64(-1), std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min(),
          qint64(42)}},
        {AttributeType::Float,
         {0.1f, 34.65f, -0.0f, FLT_MIN, FLT_MAX, std::numeric_limits<float>::denorm_min(), INFINITY,
          -123456.789f}},
        {AttributeType::Bool, {true, false}},
        {AttributeType::Date,
         {utc(2026, 11, 21, 9, 52, 0, 123), utc(1969, 7, 20, 20, 17, 40, 1), utc(2100, 1, 1, 23, 59, 59, 999),
          utc(1, 1, 1, 0, 0, 0, 0),
          QDateTime(QDate(2026, 7, 1), QTime(10, 30, 0, 5), QTimeZone("Europe/Berlin"))}},
        {AttributeType::Data, {bytes, QByteArray(""), QByteArray(1, '\0')}},
    };
    const QVariantList& values = samples[type];
    return values[variant % values.size()];
}

// Floats with their bits (-0.0 is not 0.0), dates in UTC to the millisecond.
std::string describe(const QVariant& v)
{
    if (v.typeId() == QMetaType::Float)
        return QString("%1 (0x%2)")
            .arg(double(v.toFloat()), 0, 'g', 9)
            .arg(std::bit_cast<quint32>(v.toFloat()), 8, 16, QLatin1Char('0'))
            .toStdString();
    if (v.typeId() == QMetaType::QDateTime)
        return v.toDateTime().toUTC().toString(Qt::ISODateWithMs).toStdString();
    if (v.typeId() == QMetaType::QByteArray)
        return v.toByteArray().toHex().toStdString();
    return v.isValid() ? v.toString().toStdString() : "<absent>";
}

bool sameValue(const QVariant& a, const QVariant& b)
{
    return a.typeId() == b.typeId() && describe(a) == describe(b);
}

class RoundTripTest : public StoreFixture, public ::testing::WithParamInterface<int>
{
};

TEST_P(RoundTripTest, EveryAttributeOfEveryEntitySurvivesSaveAndReopen)
{
    // Per entity: one object with every attribute set, one with none, and one as inserted.
    for (const auto& entity : ObjectModel::vorn().entities()) {
        ManagedObject* filled = context()->insertNewObject(entity->name());
        ManagedObject* empty = context()->insertNewObject(entity->name());
        context()->insertNewObject(entity->name());
        for (int i = 0; i < int(entity->attributes().size()); ++i) {
            filled->setValue(i, sample(entity->attributes()[i].type, i + GetParam()));
            empty->setValue(i, QVariant());
        }
    }
    ASSERT_TRUE(context()->save());
    reopen();
    // New objects get a fresh identity, misc1..misc5 start as empty text, 0,
    // 0.0, false and the creation time, and everything else starts absent.
    static const QRegularExpression uuid("^[0-9A-F]{8}-([0-9A-F]{4}-){3}[0-9A-F]{12}$");
    const QVariantList misc{QString(""), qint64(0), 0.0f, false, m_clock.now()};
    QSet<QString> ids;
    for (const auto& entity : ObjectModel::vorn().entities()) {
        const QList<ManagedObject*> objects = context()->fetch(entity->name());
        ASSERT_EQ(objects.size(), 3) << qPrintable(entity->name());
        for (int i = 0; i < int(entity->attributes().size()); ++i) {
            const auto& attribute = entity->attributes()[i];
            const std::string name = (entity->name() + QLatin1Char('.') + attribute.name).toStdString();
            const QVariant want = sample(attribute.type, i + GetParam());
            const QVariant got = objects[0]->value(i);
            EXPECT_TRUE(sameValue(got, want))
                << name << ": stored " << describe(want) << ", read back " << describe(got);
            if (attribute.type == AttributeType::Date) {
                EXPECT_EQ(got.toDateTime().offsetFromUtc(), 0) << name;
            }
            EXPECT_FALSE(objects[1]->value(i).isValid()) << name << " should stay absent";

            const QVariant fresh = objects[2]->value(i);
            const int m = attribute.name.startsWith("misc") ? attribute.name.mid(4).toInt() : 0;
            if (attribute.name == "uniqueID") {
                EXPECT_TRUE(uuid.match(fresh.toString()).hasMatch()) << describe(fresh);
                ids.insert(fresh.toString());
            } else {
                EXPECT_TRUE(sameValue(fresh, m > 0 ? misc[m - 1] : QVariant()))
                    << name << ": " << describe(fresh);
            }
        }
    }
    EXPECT_EQ(ids.size(), int(ObjectModel::vorn().entities().size()));
}

INSTANTIATE_TEST_SUITE_P(Rounds, RoundTripTest, ::testing::Range(0, 8));

// ---------------------------------------------------------------- changes

// The documents a change works on: "D" with items A..E and "O" with X, Y
// listed as Y, X (list order is not creation order).
struct Docs
{
    StoreFixture* f;
    ManagedObject* d;
    ManagedObject* o;
    ObjectContext* ctx() const { return f->context(); }
    ManagedObject* item(const char* title) const
    {
        for (ManagedObject* item : d->items())
            if (item->stringValue(kTitle) == QLatin1String(title))
                return item;
        ADD_FAILURE() << "no item " << title;
        return nullptr;
    }
    void reorder(const std::function<void(QList<ManagedObject*>&)>& how) const
    {
        QList<ManagedObject*> items = d->items();
        how(items);
        d->setObjects(kItems, items);
    }
};
using Change = std::function<void(const Docs&)>;

// A change (and, where given, the edit that takes it back), the items "D"
// and "O" then list ("-" for a deleted document) and the rows a save writes
// when the documents were saved before; a change taken back leaves nothing
// to save.
struct ChangeCase
{
    const char* name;
    int rowsWritten;
    const char* lists;
    Change change;
    Change revert = {};
};

void swapFirstTwo(const Docs& x)
{
    x.reorder([](auto& l) { l.swapItemsAt(0, 1); });
}

const ChangeCase changes[] = {
    {"Nothing", 0, "ABCDE YX", [](auto&) {}},
    {"OneAttribute", 1, "ABCDE YX", [](auto& x) { x.d->setValue("subject", "new"); }},
    {"TwoAttributesOfOneObject", 1, "ABCDE YX",
     [](auto& x) { assign(*x.d, "subject", "new", "amount", 12.5f); }},
    {"SameValueAgain", 0, "ABCDE YX", [](auto& x) { x.d->setValue(kTitle, "D"); }},
    {"ReadItemsOnly", 0, "ABCDE YX",
     [](auto& x) {
         (void)x.d->items();
         (void)x.o->items();
     }},
    {"SwapTwoItems", 2, "BACDE YX", swapFirstTwo},
    {"Reverse", 4, "EDCBA YX", [](auto& x) { x.reorder([](auto& l) { std::reverse(l.begin(), l.end()); }); }},
    {"MoveLastItemToFront", 5, "EABCD YX", [](auto& x) { x.d->insertObject(kItems, x.item("E"), 0); }},
    {"InsertAtFront", 6, "NABCDE YX", [](auto& x) { x.d->insertObject(kItems, x.f->newItem("N"), 0); }},
    {"InsertInMiddle", 4, "ABNCDE YX", [](auto& x) { x.d->insertObject(kItems, x.f->newItem("N"), 2); }},
    {"InsertPastEnd", 1, "ABCDEN YX", [](auto& x) { x.d->insertObject(kItems, x.f->newItem("N"), 99); }},
    {"RemoveFirstFromList", 5, "BCDE YX", [](auto& x) { x.d->removeObject(kItems, x.item("A")); }},
    {"DeleteFirstItem", 5, "BCDE YX", [](auto& x) { x.ctx()->deleteObject(x.item("A")); }},
    {"DeleteMiddleItem", 3, "ABDE YX", [](auto& x) { x.ctx()->deleteObject(x.item("C")); }},
    {"DeleteLastItem", 1, "ABCD YX", [](auto& x) { x.ctx()->deleteObject(x.item("E")); }},
    {"MoveToOtherDocument", 5, "ACDE YBX", [](auto& x) { x.o->insertObject(kItems, x.item("B"), 1); }},
    {"SetOwner", 3, "ABDE YXC", [](auto& x) { x.item("C")->setObject("invoice", x.o); }},
    {"InsertDeleteAndReorder", 4, "NBCEA YX",
     [](auto& x) {
         x.d->insertObject(kItems, x.f->newItem("N"), 1);
         x.ctx()->deleteObject(x.item("D"));
         x.reorder([](auto& l) { l.move(0, l.size() - 1); });
     }},
    {"MoveThenDeleteTheOther", 8, "BCDE -",
     [](auto& x) {
         x.o->insertObject(kItems, x.item("A"));
         x.ctx()->deleteObject(x.o);
     }},
    {"InsertDocumentWithAnItem", 2, "ABCDE YX",
     [](auto& x) { x.f->newDocument("N", "Z")->setValue("amount", 9.5f); }},
    // The items were never read: the delete loads them to take them along.
    {"DeleteDocumentWithItems", 3, "ABCDE -", [](auto& x) { x.ctx()->deleteObject(x.o); }},
};

const ChangeCase changesTakenBack[] = {
    {"TextTakenBack", 0, "ABCDE YX", [](auto& x) { x.d->setValue(kTitle, "x"); },
     [](auto& x) { x.d->setValue(kTitle, "D"); }},
    {"EmptyToAbsentAndBack", 0, "ABCDE YX", [](auto& x) { x.d->setValue("misc1", QVariant()); },
     [](auto& x) { x.d->setValue("misc1", QString("")); }},
    {"FloatTakenBack", 0, "ABCDE YX", [](auto& x) { x.d->setValue("misc3", 0.5f); },
     [](auto& x) { x.d->setValue("misc3", 0.0f); }},
    {"DateTakenBack", 0, "ABCDE YX", [](auto& x) { x.d->setValue("misc5", utc(2001, 1, 1)); },
     [](auto& x) { x.d->setValue("misc5", x.ctx()->clock().now()); }},
    {"ItemsSwappedBack", 0, "ABCDE YX", swapFirstTwo, swapFirstTwo},
    {"ItemRemovedAndPutBack", 0, "ABCDE YX", [](auto& x) { x.d->removeObject(kItems, x.item("B")); },
     [](auto& x) { x.d->insertObject(kItems, x.ctx()->fetch(Entity::Item).value(1), 1); }},
    {"InsertedThenDeleted", 0, "ABCDE YX", [](auto& x) { x.ctx()->insertNewObject(Entity::Address); },
     [](auto& x) { x.ctx()->deleteObject(x.ctx()->fetch(Entity::Address).value(0)); }},
};

// The documents, saved and read anew or only inserted, and a change to them.
class ChangeTest : public StoreFixture, public ::testing::WithParamInterface<std::tuple<ChangeCase, bool>>
{
protected:
    void makeDocs(bool saved)
    {
        newDocument("D", "ABCDE");
        ManagedObject* o = newDocument("O", "XY");
        o->setObjects(kItems, {o->items()[1], o->items()[0]});
        if (saved) {
            ASSERT_TRUE(context()->save());
            reopen();
        }
        m_docs = {this, document("D"), document("O")};
    }
    QString lists()
    {
        QStringList lists;
        for (const QString title : {"D", "O"}) {
            const auto docs = context()->fetch(
                Entity::Invoice, [&](const ManagedObject& o) { return o.stringValue(kTitle) == title; });
            lists << (docs.isEmpty() ? "-" : letters(docs[0]->items()));
        }
        return lists.join(' ');
    }
    // Each document's identity, the values the changes touch ("-" when absent), and its items.
    QStringList contents()
    {
        QStringList docs;
        for (ManagedObject* doc : context()->fetch(Entity::Invoice)) {
            QString values;
            for (const char* key : {"title", "uniqueID", "subject", "amount", "misc1", "misc3", "misc5"})
                values += (doc->hasValue(key) ? fields(*doc, {key}) : QString("-")) + '|';
            docs << values + letters(doc->items());
        }
        return docs;
    }
    Docs m_docs{};
};

TEST_P(ChangeTest, SavesTheListsAndOnlyTheRowsThatChanged)
{
    const auto& [c, saved] = GetParam();
    makeDocs(saved);
    c.change(m_docs);
    if (c.revert) {
        EXPECT_TRUE(context()->hasChanges());
        c.revert(m_docs);
    }
    EXPECT_EQ(lists(), c.lists) << "before saving";
    if (saved) {
        EXPECT_EQ(context()->hasChanges(), c.rowsWritten > 0);
        EXPECT_EQ(saveCountingRows(), c.rowsWritten);
    } else {
        ASSERT_TRUE(context()->save());
    }
    EXPECT_FALSE(context()->hasChanges());
    reopen();
    EXPECT_EQ(lists(), c.lists) << "after reopening";
    for (ManagedObject* doc : context()->fetch(Entity::Invoice)) {
        // Positions on file are dense, so the next load needs no repair.
        QStringList dense;
        for (ManagedObject* item : doc->items()) {
            EXPECT_EQ(item->object("invoice"), doc);
            dense << QString::number(dense.size());
        }
        EXPECT_EQ(sql(QString("SELECT _position FROM Item WHERE _owner = %1 ORDER BY _position")
                          .arg(doc->objectId())),
                  dense.join(','));
    }
    EXPECT_FALSE(context()->hasChanges()) << "a freshly loaded store has no changes";
}

// The same changes to the saved documents made as one user action and
// undone, before or after saving: an undo after saving is a change of its
// own, saved back; either way the store ends as it was.
class UndoChangeTest : public ChangeTest
{
};

TEST_P(UndoChangeTest, LeavesTheStoreAsItWas)
{
    const auto& [c, saveFirst] = GetParam();
    makeDocs(true);
    const QStringList before = contents();
    UndoManager* undo = context()->undoManager();
    {
        UndoGroup g(undo, "Change");
        c.change(m_docs);
    }
    const QStringList changed = contents();
    if (saveFirst) {
        ASSERT_TRUE(context()->save());
    }
    undo->undo();
    undo->redo();
    EXPECT_EQ(contents(), changed) << "redone";
    undo->undo();
    EXPECT_EQ(context()->hasChanges(), saveFirst && c.rowsWritten > 0);
    ASSERT_TRUE(context()->save());
    reopen();
    EXPECT_EQ(contents(), before);
    EXPECT_EQ(context()->fetch(Entity::Item).size(), 7);
}

// Rolled back, a change to the saved documents leaves the very objects as
// they were, with nothing to save or undo.
class RollbackTest : public ChangeTest
{
};

TEST_P(RollbackTest, RestoresTheSavedObjects)
{
    makeDocs(true);
    const QStringList before = contents();
    const auto objects = [this] {
        return context()->fetch(Entity::Invoice) + context()->fetch(Entity::Item);
    };
    const QList<ManagedObject*> saved = objects();
    std::get<0>(GetParam()).change(m_docs);
    context()->rollback();
    EXPECT_FALSE(context()->hasChanges());
    EXPECT_FALSE(context()->undoManager()->canUndo());
    EXPECT_EQ(objects(), saved);
    EXPECT_EQ(contents(), before);
    for (ManagedObject* doc : context()->fetch(Entity::Invoice))
        for (ManagedObject* item : doc->items()) {
            EXPECT_EQ(item->object("invoice"), doc);
            EXPECT_FALSE(item->isDeleted());
        }
    EXPECT_EQ(saveCountingRows(), 0);
    EXPECT_EQ(reopen() ? contents() : QStringList(), before);
}

const auto changeName = [](const auto& info) {
    return std::string(std::get<0>(info.param).name) + (std::get<1>(info.param) ? "_Saved" : "_Unsaved");
};
INSTANTIATE_TEST_SUITE_P(Changes, ChangeTest,
                         ::testing::Combine(::testing::ValuesIn(changes), ::testing::Bool()), changeName);
INSTANTIATE_TEST_SUITE_P(TakenBack, ChangeTest,
                         ::testing::Combine(::testing::ValuesIn(changesTakenBack), ::testing::Bool()),
                         changeName);
INSTANTIATE_TEST_SUITE_P(Changes, RollbackTest,
                         ::testing::Combine(::testing::ValuesIn(changes), ::testing::Values(true)),
                         changeName);
INSTANTIATE_TEST_SUITE_P(TakenBack, RollbackTest,
                         ::testing::Combine(::testing::ValuesIn(changesTakenBack), ::testing::Values(true)),
                         changeName);
INSTANTIATE_TEST_SUITE_P(Changes, UndoChangeTest,
                         ::testing::Combine(::testing::ValuesIn(changes), ::testing::Bool()), changeName);

TEST_F(StoreFixture, SaveDoesNotOverwriteRowsOrColumnsItDidNotChange)
{
    const qint64 d = newDocument("D", "A")->objectId();
    const qint64 o = newDocument("O", "X")->objectId();
    ASSERT_TRUE(context()->save());
    (void)document("O")->items();
    sql(QString("UPDATE Invoice SET subject = 'behind' WHERE _id = %1").arg(o));
    sql(QString("UPDATE Invoice SET notes = 'also behind' WHERE _id = %1").arg(d));
    document("D")->setValue(kTitle, "edited");
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(sql("SELECT title, subject, notes FROM Invoice ORDER BY _id"), "edited||also behind,O|behind|");
}

// ---------------------------------------------------------------- fetching

// Store order is creation order, whatever the values, and stays so on file;
// deleted objects are left out. (The named fetch is the design list's.)
TEST_F(StoreFixture, FetchAnswersStoreOrderAndLeavesOutDeleted)
{
    const QDateTime dates[] = {utc(2026, 5, 1), utc(2024, 1, 1), utc(2027, 1, 1), utc(2025, 1, 1)};
    for (int i = 0; i < 4; ++i)
        assign(*newDocument(QString::number(i)), "date", dates[i], "kind", i % 2);
    EXPECT_EQ(letters(context()->fetch(Entity::Invoice)), "0123");
    ASSERT_TRUE(context()->save());
    reopen()->deleteObject(document("1"));
    newDocument("4");
    EXPECT_EQ(letters(context()->fetch(Entity::Invoice)), "0234");
    EXPECT_EQ(letters(context()->fetch(Entity::Invoice,
                                       [](const ManagedObject& o) { return o.intValue("kind") == 1; })),
              "3");
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(letters(reopen()->fetch(Entity::Invoice)), "0234");
    EXPECT_FALSE(context()->fetchObjects("NoSuchEntity").ok());
}

// The items of one document read lazily before or after all items are
// fetched: the same objects either way, each once.
TEST_F(StoreFixture, LazyListsAndFetchOfAllItemsAgree)
{
    for (const char* items : {"a", "bc", "def", "ghij"})
        newDocument(QLatin1String(items), QLatin1String(items));
    newItem("orphan");
    ASSERT_TRUE(context()->save());
    for (const bool listFirst : {true, false}) {
        SCOPED_TRACE(listFirst ? "list first" : "fetch first");
        reopen();
        QList<ManagedObject*> lazy = listFirst ? document("def")->items() : QList<ManagedObject*>();
        const QList<ManagedObject*> all = context()->fetch(Entity::Item);
        if (!listFirst)
            lazy = document("def")->items();
        EXPECT_EQ(letters(lazy), "def");
        EXPECT_EQ(all.size(), 11);
        EXPECT_EQ(QSet<ManagedObject*>(all.begin(), all.end()).size(), all.size()) << "duplicate objects";
        QSet<ManagedObject*> inLists;
        for (ManagedObject* doc : context()->fetch(Entity::Invoice))
            for (ManagedObject* item : doc->items()) {
                EXPECT_FALSE(inLists.contains(item));
                EXPECT_TRUE(all.contains(item)) << "the lazily read item is a different object";
                EXPECT_EQ(item->object("invoice"), doc);
                inLists.insert(item);
            }
        EXPECT_EQ(inLists.size(), 10);
        EXPECT_EQ(document("def")->items(), lazy);
        EXPECT_EQ(context()->fetch(Entity::Item).size(), 11) << "a second fetch loads nothing twice";
        EXPECT_FALSE(context()->hasChanges());
    }
}

} // namespace
} // namespace vorn::test
