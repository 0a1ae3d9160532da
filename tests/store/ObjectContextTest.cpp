#include "tests/store/StoreTestSupport.h"

#include <QRegularExpression>
#include <QSet>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>

namespace vorn::test {
namespace {

const QString kTitle = QStringLiteral("title");
const QString kItems = QStringLiteral("items");

// ---------------------------------------------------------------- defaults

class InsertDefaultsTest : public StoreFixture, public ::testing::WithParamInterface<QString>
{
};

TEST_P(InsertDefaultsTest, NewObjectsGetFreshIdentityAndSpareValues)
{
    const QString entityName = GetParam();
    ManagedObject* a = context()->insertNewObject(entityName);
    ManagedObject* b = context()->insertNewObject(entityName);
    ASSERT_TRUE(a && b);
    static const QRegularExpression uuid(
        QStringLiteral("^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"));
    EXPECT_TRUE(uuid.match(a->stringValue(QStringLiteral("uniqueID"))).hasMatch())
        << qPrintable(a->stringValue(QStringLiteral("uniqueID")));
    EXPECT_NE(a->stringValue(QStringLiteral("uniqueID")), b->stringValue(QStringLiteral("uniqueID")));
    EXPECT_LT(a->objectId(), b->objectId());

    auto check = [this](const ManagedObject* o) {
        EXPECT_TRUE(o->hasValue(QStringLiteral("misc1")));
        EXPECT_EQ(o->value(QStringLiteral("misc1")).typeId(), QMetaType::QString);
        EXPECT_EQ(o->stringValue(QStringLiteral("misc1")), QString());
        EXPECT_EQ(o->value(QStringLiteral("misc2")), QVariant(qint64(0)));
        EXPECT_EQ(o->value(QStringLiteral("misc3")), QVariant(0.0f));
        EXPECT_EQ(o->value(QStringLiteral("misc4")), QVariant(false));
        EXPECT_EQ(o->dateValue(QStringLiteral("misc5")), m_clock.now());
        // Everything else starts absent.
        for (const auto& attribute : o->entity().attributes()) {
            if (attribute.name == QLatin1String("uniqueID") ||
                attribute.name.startsWith(QLatin1String("misc")))
                continue;
            EXPECT_FALSE(o->hasValue(attribute.name)) << qPrintable(attribute.name);
        }
    };
    check(a);
    ASSERT_TRUE(context()->save());
    const QString id = a->stringValue(QStringLiteral("uniqueID"));
    const QList<ManagedObject*> reread = reopen()->fetch(entityName);
    ASSERT_EQ(reread.size(), 2);
    EXPECT_EQ(reread[0]->stringValue(QStringLiteral("uniqueID")), id);
    check(reread[0]);
}

INSTANTIATE_TEST_SUITE_P(Entities, InsertDefaultsTest,
                         ::testing::Values(Entity::Invoice, Entity::Item, Entity::Address, Entity::RecentItem,
                                           Entity::RecentShipping, Entity::Design),
                         [](const auto& info) { return info.param.toStdString(); });

// ---------------------------------------------------------------- round trip

QVariant sample(AttributeType type, int variant)
{
    switch (type) {
    case AttributeType::String: {
        static const QStringList v{QString(""),
                                   QStringLiteral("Ünïcödé ✓ 𝄞 \"quoted\" 'single'\n\tsecond line"),
                                   QString::fromUtf8("nul\0inside", 10),
                                   QStringLiteral("  padded  "),
                                   QStringLiteral("<b>markup</b> & 100 %"),
                                   QStringLiteral("0042")};
        return v[variant % v.size()];
    }
    case AttributeType::Integer: {
        static const qint64 v[] = {
            0, -1, std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min(), 42, 1};
        return v[variant % std::size(v)];
    }
    case AttributeType::Float: {
        static const float v[] = {0.1f,     34.65f,      -0.0f,
                                  FLT_MIN,  FLT_MAX,     std::numeric_limits<float>::denorm_min(),
                                  INFINITY, -123456.789f};
        return v[variant % std::size(v)];
    }
    case AttributeType::Bool:
        return variant % 2 == 0;
    case AttributeType::Date: {
        static const QDateTime v[] = {
            utc(2026, 11, 21, 9, 52, 0, 123), utc(1969, 7, 20, 20, 17, 40, 1),
            utc(2100, 1, 1, 23, 59, 59, 999), utc(1, 1, 1, 0, 0, 0, 0),
            QDateTime(QDate(2026, 7, 1), QTime(10, 30, 0, 5), QTimeZone("Europe/Berlin"))};
        return v[variant % std::size(v)];
    }
    case AttributeType::Data: {
        QByteArray all;
        for (int i = 0; i < 256; ++i)
            all.append(char(i));
        static const QByteArray v[] = {all, QByteArray(""), QByteArray(1, '\0')};
        return v[variant % std::size(v)];
    }
    }
    return {};
}

std::string describe(const QVariant& v)
{
    if (!v.isValid())
        return "<absent>";
    if (v.typeId() == QMetaType::Float) {
        const float f = v.toFloat();
        quint32 bits;
        std::memcpy(&bits, &f, sizeof bits);
        return QStringLiteral("%1 (0x%2)")
            .arg(double(f), 0, 'g', 9)
            .arg(bits, 8, 16, QLatin1Char('0'))
            .toStdString();
    }
    if (v.typeId() == QMetaType::QDateTime)
        return v.toDateTime().toString(Qt::ISODateWithMs).toStdString();
    if (v.typeId() == QMetaType::QByteArray)
        return v.toByteArray().toHex().toStdString();
    return v.toString().toStdString();
}

// Equal in type and value, floats bit for bit, dates to the millisecond.
bool sameValue(const QVariant& a, const QVariant& b)
{
    if (a.isValid() != b.isValid())
        return false;
    if (!a.isValid())
        return true;
    if (a.typeId() != b.typeId())
        return false;
    switch (a.typeId()) {
    case QMetaType::Float: {
        const float x = a.toFloat(), y = b.toFloat();
        return std::memcmp(&x, &y, sizeof x) == 0;
    }
    case QMetaType::QDateTime:
        return a.toDateTime().toMSecsSinceEpoch() == b.toDateTime().toMSecsSinceEpoch();
    default:
        return a == b;
    }
}

class RoundTripTest : public StoreFixture, public ::testing::WithParamInterface<int>
{
};

TEST_P(RoundTripTest, EveryAttributeOfEveryEntitySurvivesSaveAndReopen)
{
    const int round = GetParam();
    struct Expected
    {
        QString entity;
        std::vector<QVariant> filled;
    };
    std::vector<Expected> expected;
    for (const auto& entity : ObjectModel::vorn().entities()) {
        ManagedObject* filled = context()->insertNewObject(entity->name());
        ManagedObject* empty = context()->insertNewObject(entity->name());
        Expected e{entity->name(), {}};
        const auto& attributes = entity->attributes();
        for (size_t i = 0; i < attributes.size(); ++i) {
            filled->setValue(int(i), sample(attributes[i].type, int(i) + round));
            empty->setValue(int(i), QVariant());
            e.filled.push_back(filled->value(int(i)));
        }
        expected.push_back(std::move(e));
    }
    ASSERT_TRUE(context()->save());
    reopen();
    for (const Expected& e : expected) {
        const QList<ManagedObject*> objects = context()->fetch(e.entity);
        ASSERT_EQ(objects.size(), 2) << qPrintable(e.entity);
        const auto& attributes = objects[0]->entity().attributes();
        for (size_t i = 0; i < attributes.size(); ++i) {
            const QVariant want = sample(attributes[i].type, int(i) + round);
            EXPECT_TRUE(sameValue(e.filled[i], want))
                << "coerced on set: " << qPrintable(e.entity) << "." << qPrintable(attributes[i].name) << ": "
                << describe(e.filled[i]) << " vs " << describe(want);
            EXPECT_TRUE(sameValue(objects[0]->value(int(i)), e.filled[i]))
                << qPrintable(e.entity) << "." << qPrintable(attributes[i].name) << ": stored "
                << describe(e.filled[i]) << ", read back " << describe(objects[0]->value(int(i)));
            if (attributes[i].type == AttributeType::Date && objects[0]->value(int(i)).isValid()) {
                EXPECT_EQ(objects[0]->dateValue(attributes[i].name).offsetFromUtc(), 0);
            }
            EXPECT_FALSE(objects[1]->value(int(i)).isValid())
                << qPrintable(e.entity) << "." << qPrintable(attributes[i].name) << " should stay absent";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Rounds, RoundTripTest, ::testing::Range(0, 8));

// ---------------------------------------------------------------- item order

struct OrderCase
{
    const char* name;
    // Works on the document "D" (items A..E) and "O" (items X, Y).
    std::function<void(ObjectContext*, ManagedObject* d, ManagedObject* o)> change;
    QStringList expectedD;
    QStringList expectedO;
};

ManagedObject* itemTitled(ManagedObject* doc, const QString& title)
{
    for (ManagedObject* item : doc->items())
        if (item->stringValue(QStringLiteral("title")) == title)
            return item;
    ADD_FAILURE() << "no item " << qPrintable(title);
    return nullptr;
}

ManagedObject* newItem(ObjectContext* ctx, const QString& title)
{
    ManagedObject* item = ctx->insertNewObject(Entity::Item);
    item->setValue(QStringLiteral("title"), title);
    return item;
}

const OrderCase orderCases[] = {
    {"InsertAtFront",
     [](auto* c, auto* d, auto*) { d->insertObject(kItems, newItem(c, "N"), 0); },
     {"N", "A", "B", "C", "D", "E"},
     {"X", "Y"}},
    {"InsertInMiddle",
     [](auto* c, auto* d, auto*) { d->insertObject(kItems, newItem(c, "N"), 2); },
     {"A", "B", "N", "C", "D", "E"},
     {"X", "Y"}},
    {"InsertPastEnd",
     [](auto* c, auto* d, auto*) { d->insertObject(kItems, newItem(c, "N"), 99); },
     {"A", "B", "C", "D", "E", "N"},
     {"X", "Y"}},
    {"RemoveFirstFromList",
     [](auto*, auto* d, auto*) { d->removeObject(kItems, itemTitled(d, "A")); },
     {"B", "C", "D", "E"},
     {"X", "Y"}},
    {"DeleteMiddleItem",
     [](auto* c, auto* d, auto*) { c->deleteObject(itemTitled(d, "C")); },
     {"A", "B", "D", "E"},
     {"X", "Y"}},
    {"DeleteLastItem",
     [](auto* c, auto* d, auto*) { c->deleteObject(itemTitled(d, "E")); },
     {"A", "B", "C", "D"},
     {"X", "Y"}},
    {"ReverseWithSetObjects",
     [](auto*, auto* d, auto*) {
         QList<ManagedObject*> items = d->items();
         std::reverse(items.begin(), items.end());
         d->setObjects(kItems, items);
     },
     {"E", "D", "C", "B", "A"},
     {"X", "Y"}},
    {"MoveLastToFront",
     [](auto*, auto* d, auto*) { d->insertObject(kItems, itemTitled(d, "E"), 0); },
     {"E", "A", "B", "C", "D"},
     {"X", "Y"}},
    {"MoveToOtherDocument",
     [](auto*, auto* d, auto* o) { o->insertObject(kItems, itemTitled(d, "B"), 1); },
     {"A", "C", "D", "E"},
     {"X", "B", "Y"}},
    {"SetOwner",
     [](auto*, auto* d, auto* o) { itemTitled(d, "C")->setObject(QStringLiteral("invoice"), o); },
     {"A", "B", "D", "E"},
     {"X", "Y", "C"}},
    {"InsertDeleteAndReorder",
     [](auto* c, auto* d, auto*) {
         d->insertObject(kItems, newItem(c, "N"), 1);
         c->deleteObject(itemTitled(d, "D"));
         QList<ManagedObject*> items = d->items();
         items.move(0, items.size() - 1);
         d->setObjects(kItems, items);
     },
     {"N", "B", "C", "E", "A"},
     {"X", "Y"}},
};

class ItemOrderTest : public StoreFixture, public ::testing::WithParamInterface<std::tuple<OrderCase, bool>>
{
};

TEST_P(ItemOrderTest, OrderSurvivesSaveAndReopen)
{
    const auto& [c, saveFirst] = GetParam();
    newDocument(QStringLiteral("D"), {"A", "B", "C", "D", "E"});
    newDocument(QStringLiteral("O"), {"X", "Y"});
    if (saveFirst) {
        ASSERT_TRUE(context()->save());
        reopen();
    }
    c.change(context(), document(QStringLiteral("D")), document(QStringLiteral("O")));
    EXPECT_EQ(titles(document(QStringLiteral("D"))->items()), c.expectedD) << "before saving";
    EXPECT_EQ(titles(document(QStringLiteral("O"))->items()), c.expectedO) << "before saving";
    ASSERT_TRUE(context()->save());
    EXPECT_FALSE(context()->hasChanges());
    reopen();
    for (const auto& [title, expected] :
         {std::pair{QStringLiteral("D"), c.expectedD}, {QStringLiteral("O"), c.expectedO}}) {
        ManagedObject* doc = document(title);
        EXPECT_EQ(titles(doc->items()), expected) << qPrintable(title);
        for (ManagedObject* item : doc->items())
            EXPECT_EQ(item->object(QStringLiteral("invoice")), doc);
        // Positions on file are dense, so the next load needs no repair.
        const QString ids = QString::number(doc->objectId());
        QStringList dense;
        for (int i = 0; i < expected.size(); ++i)
            dense << QString::number(i);
        EXPECT_EQ(
            queryText(
                QStringLiteral("SELECT _position FROM Item WHERE _owner = %1 ORDER BY _position").arg(ids)),
            dense.join(QLatin1Char(',')));
    }
    EXPECT_FALSE(context()->hasChanges()) << "a freshly loaded store has no changes";
}

INSTANTIATE_TEST_SUITE_P(Changes, ItemOrderTest,
                         ::testing::Combine(::testing::ValuesIn(orderCases), ::testing::Bool()),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) +
                                    (std::get<1>(info.param) ? "_Saved" : "_New");
                         });

// ---------------------------------------------------------------- deletes

TEST_F(StoreFixture, DeletingADocumentDeletesItsItemsInTheStore)
{
    newDocument(QStringLiteral("D"), {"A", "B", "C"});
    newDocument(QStringLiteral("O"), {"X"});
    ASSERT_TRUE(context()->save());
    reopen();
    context()->deleteObject(document(QStringLiteral("D")));
    EXPECT_TRUE(context()->hasChanges());
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(queryText(QStringLiteral("SELECT count(*) FROM Invoice")), QStringLiteral("1"));
    EXPECT_EQ(queryText(QStringLiteral("SELECT title FROM Item")), QStringLiteral("X"));
    reopen();
    EXPECT_EQ(context()->fetch(Entity::Item).size(), 1);
}

TEST_F(StoreFixture, DeletingAnUnloadedDocumentStillDeletesItsItems)
{
    newDocument(QStringLiteral("D"), {"A", "B"});
    ASSERT_TRUE(context()->save());
    reopen();
    // The items were never read: the delete must load them to take them along.
    context()->deleteObject(context()->fetch(Entity::Invoice).value(0));
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(queryText(QStringLiteral("SELECT count(*) FROM Item")), QStringLiteral("0"));
}

// ---------------------------------------------------------------- only what changed

struct ChangeCase
{
    const char* name;
    std::function<void(ObjectContext*, ManagedObject* d, ManagedObject* o)> change;
    int rowsWritten;
};

const ChangeCase changeCases[] = {
    {"Nothing", [](auto*, auto*, auto*) {}, 0},
    {"OneAttribute", [](auto*, auto* d, auto*) { d->setValue(kTitle, QStringLiteral("new")); }, 1},
    {"TwoAttributesOfOneObject",
     [](auto*, auto* d, auto*) {
         d->setValue(kTitle, QStringLiteral("new"));
         d->setValue(QStringLiteral("amount"), 12.5f);
     },
     1},
    {"SetAndRevert",
     [](auto*, auto* d, auto*) {
         d->setValue(kTitle, QStringLiteral("new"));
         d->setValue(kTitle, QStringLiteral("D"));
     },
     0},
    {"SameValueAgain", [](auto*, auto* d, auto*) { d->setValue(kTitle, QStringLiteral("D")); }, 0},
    {"ReadItemsOnly",
     [](auto*, auto* d, auto* o) {
         (void)d->items();
         (void)o->items();
     },
     0},
    {"SwapTwoItems",
     [](auto*, auto* d, auto*) {
         QList<ManagedObject*> items = d->items();
         items.swapItemsAt(1, 2);
         d->setObjects(kItems, items);
     },
     2},
    {"MoveLastItemToFront", [](auto*, auto* d, auto*) { d->insertObject(kItems, itemTitled(d, "E"), 0); }, 5},
    {"DeleteLastItem", [](auto* c, auto* d, auto*) { c->deleteObject(itemTitled(d, "E")); }, 1},
    {"DeleteFirstItem", [](auto* c, auto* d, auto*) { c->deleteObject(itemTitled(d, "A")); }, 5},
    {"InsertDocument", [](auto* c, auto*, auto*) { c->insertNewObject(Entity::Invoice); }, 1},
    {"InsertAndDeleteDocument",
     [](auto* c, auto*, auto*) { c->deleteObject(c->insertNewObject(Entity::Invoice)); }, 0},
    {"DeleteDocumentWithItems", [](auto* c, auto*, auto* o) { c->deleteObject(o); }, 3},
};

class SaveWritesOnlyChangesTest : public StoreFixture, public ::testing::WithParamInterface<ChangeCase>
{
};

TEST_P(SaveWritesOnlyChangesTest, RowsWrittenMatchTheChange)
{
    newDocument(QStringLiteral("D"), {"A", "B", "C", "D", "E"});
    newDocument(QStringLiteral("O"), {"X", "Y"});
    ASSERT_TRUE(context()->save());
    reopen();
    GetParam().change(context(), document(QStringLiteral("D")), document(QStringLiteral("O")));
    sqlite3* db = context()->store()->handle();
    const int before = sqlite3_total_changes(db);
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(sqlite3_total_changes(db) - before, GetParam().rowsWritten);
    EXPECT_FALSE(context()->hasChanges());
}

INSTANTIATE_TEST_SUITE_P(Changes, SaveWritesOnlyChangesTest, ::testing::ValuesIn(changeCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(StoreFixture, SaveDoesNotOverwriteRowsItDidNotChange)
{
    newDocument(QStringLiteral("D"), {"A"});
    newDocument(QStringLiteral("O"), {"X"});
    ASSERT_TRUE(context()->save());
    ManagedObject* d = document(QStringLiteral("D"));
    ManagedObject* o = document(QStringLiteral("O"));
    (void)o->items();
    execute(QStringLiteral("UPDATE Invoice SET subject = 'behind' WHERE _id = %1").arg(o->objectId()));
    execute(QStringLiteral("UPDATE Invoice SET notes = 'also behind' WHERE _id = %1").arg(d->objectId()));
    d->setValue(kTitle, QStringLiteral("edited"));
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(
        queryText(QStringLiteral("SELECT title, subject FROM Invoice WHERE _id = %1").arg(o->objectId())),
        QStringLiteral("O|behind"));
    // Only the changed column of the edited row is written.
    EXPECT_EQ(queryText(QStringLiteral("SELECT title, notes FROM Invoice WHERE _id = %1").arg(d->objectId())),
              QStringLiteral("edited|also behind"));
}

// ---------------------------------------------------------------- hasChanges

struct RevertCase
{
    const char* name;
    std::function<void(ObjectContext*, ManagedObject* d)> change;
    std::function<void(ObjectContext*, ManagedObject* d)> revert;
};

const RevertCase revertCases[] = {
    {"String", [](auto*, auto* d) { d->setValue(kTitle, QStringLiteral("x")); },
     [](auto*, auto* d) { d->setValue(kTitle, QStringLiteral("D")); }},
    {"EmptyToAbsentAndBack", [](auto*, auto* d) { d->setValue(QStringLiteral("misc1"), QVariant()); },
     [](auto*, auto* d) { d->setValue(QStringLiteral("misc1"), QString("")); }},
    {"Float", [](auto*, auto* d) { d->setValue(QStringLiteral("misc3"), 0.5f); },
     [](auto*, auto* d) { d->setValue(QStringLiteral("misc3"), 0.0f); }},
    {"Date", [](auto*, auto* d) { d->setValue(QStringLiteral("misc5"), utc(2001, 1, 1)); },
     [](auto* c, auto* d) { d->setValue(QStringLiteral("misc5"), c->clock().now()); }},
    {"ItemOrder",
     [](auto*, auto* d) {
         QList<ManagedObject*> items = d->items();
         items.swapItemsAt(0, 1);
         d->setObjects(kItems, items);
     },
     [](auto*, auto* d) {
         QList<ManagedObject*> items = d->items();
         items.swapItemsAt(0, 1);
         d->setObjects(kItems, items);
     }},
    {"RemoveAndReinsertItem", [](auto*, auto* d) { d->removeObject(kItems, itemTitled(d, "B")); },
     [](auto* c, auto* d) {
         const auto items = c->fetch(Entity::Item, [](const ManagedObject& o) {
             return o.stringValue(QStringLiteral("title")) == QLatin1String("B");
         });
         d->insertObject(kItems, items.value(0), 1);
     }},
    {"InsertThenDelete", [](auto* c, auto*) { c->insertNewObject(Entity::Address); },
     [](auto* c, auto*) { c->deleteObject(c->fetch(Entity::Address).value(0)); }},
    {"InsertThenUndo",
     [](auto* c, auto*) {
         UndoGroup g(c->undoManager());
         c->insertNewObject(Entity::Address)->setValue(QStringLiteral("address"), QStringLiteral("x"));
     },
     [](auto* c, auto*) { c->undoManager()->undo(); }},
    {"DeleteThenUndo",
     [](auto* c, auto* d) {
         UndoGroup g(c->undoManager());
         c->deleteObject(d);
     },
     [](auto* c, auto*) { c->undoManager()->undo(); }},
    {"EditThenUndo",
     [](auto* c, auto* d) {
         UndoGroup g(c->undoManager());
         d->setValue(kTitle, QStringLiteral("x"));
         d->setValue(QStringLiteral("amount"), 3.0f);
     },
     [](auto* c, auto*) { c->undoManager()->undo(); }},
};

class HasChangesTest : public StoreFixture, public ::testing::WithParamInterface<RevertCase>
{
};

TEST_P(HasChangesTest, ChangeShowsAndRevertClears)
{
    newDocument(QStringLiteral("D"), {"A", "B", "C"});
    ASSERT_TRUE(context()->save());
    reopen();
    ManagedObject* d = document(QStringLiteral("D"));
    EXPECT_FALSE(context()->hasChanges());
    GetParam().change(context(), d);
    EXPECT_TRUE(context()->hasChanges());
    GetParam().revert(context(), d);
    EXPECT_FALSE(context()->hasChanges());
    sqlite3* db = context()->store()->handle();
    const int before = sqlite3_total_changes(db);
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(sqlite3_total_changes(db), before);
}

INSTANTIATE_TEST_SUITE_P(Changes, HasChangesTest, ::testing::ValuesIn(revertCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---------------------------------------------------------------- rollback

TEST_F(StoreFixture, RollbackRestoresValuesListsDeletedAndInsertedObjects)
{
    newDocument(QStringLiteral("D"), {"A", "B", "C"});
    newDocument(QStringLiteral("O"), {"X", "Y"});
    ASSERT_TRUE(context()->save());
    reopen();
    ManagedObject* d = document(QStringLiteral("D"));
    ManagedObject* o = document(QStringLiteral("O"));
    const QList<ManagedObject*> dItems = d->items();
    const QList<ManagedObject*> oItems = o->items();

    d->setValue(QStringLiteral("subject"), QStringLiteral("changed"));
    d->setValue(QStringLiteral("notes"), QVariant());
    QList<ManagedObject*> reversed = dItems;
    std::reverse(reversed.begin(), reversed.end());
    d->setObjects(kItems, reversed);
    d->insertObject(kItems, newItem(context(), "N"), 1);
    o->insertObject(kItems, dItems[0]);
    context()->deleteObject(o);
    ManagedObject* fresh = newDocument(QStringLiteral("F"), {"Z"});
    Q_UNUSED(fresh);
    ASSERT_TRUE(context()->hasChanges());

    context()->rollback();
    EXPECT_FALSE(context()->hasChanges());
    EXPECT_FALSE(context()->undoManager()->canUndo());
    EXPECT_FALSE(d->hasValue(QStringLiteral("subject")));
    EXPECT_FALSE(d->hasValue(QStringLiteral("notes")));
    EXPECT_EQ(titles(context()->fetch(Entity::Invoice)), (QStringList{"D", "O"}));
    EXPECT_EQ(d->items(), dItems);
    EXPECT_EQ(o->items(), oItems);
    EXPECT_FALSE(o->isDeleted());
    for (ManagedObject* item : dItems)
        EXPECT_EQ(item->object(QStringLiteral("invoice")), d);
    for (ManagedObject* item : oItems) {
        EXPECT_EQ(item->object(QStringLiteral("invoice")), o);
        EXPECT_FALSE(item->isDeleted());
    }
    EXPECT_EQ(titles(context()->fetch(Entity::Item)), (QStringList{"A", "B", "C", "X", "Y"}));

    sqlite3* db = context()->store()->handle();
    const int before = sqlite3_total_changes(db);
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(sqlite3_total_changes(db), before);
    reopen();
    EXPECT_EQ(titles(document(QStringLiteral("D"))->items()), (QStringList{"A", "B", "C"}));
    EXPECT_EQ(titles(document(QStringLiteral("O"))->items()), (QStringList{"X", "Y"}));
}

TEST_F(StoreFixture, RollbackRestoresAnAttributeThatWasSetToAbsent)
{
    ManagedObject* d = newDocument(QStringLiteral("D"));
    d->setValue(QStringLiteral("notes"), QStringLiteral("keep me"));
    ASSERT_TRUE(context()->save());
    d->setValue(QStringLiteral("notes"), QVariant());
    context()->rollback();
    EXPECT_EQ(d->stringValue(QStringLiteral("notes")), QStringLiteral("keep me"));
}

// ---------------------------------------------------------------- undo

TEST_F(StoreFixture, InsertAndEditsInOneGroupUndoInOneStep)
{
    ObjectContext* ctx = context();
    UndoManager* undo = ctx->undoManager();
    ManagedObject* d = nullptr;
    {
        UndoGroup g(undo, QStringLiteral("New Invoice"));
        d = newDocument(QStringLiteral("D"), {"A", "B"});
        d->setValue(QStringLiteral("amount"), 9.5f);
    }
    EXPECT_EQ(undo->undoActionName(), QStringLiteral("New Invoice"));
    undo->undo();
    EXPECT_TRUE(ctx->fetch(Entity::Invoice).isEmpty());
    EXPECT_TRUE(ctx->fetch(Entity::Item).isEmpty());
    EXPECT_FALSE(undo->canUndo());
    EXPECT_FALSE(ctx->hasChanges());
    undo->redo();
    ASSERT_EQ(ctx->fetch(Entity::Invoice), QList<ManagedObject*>{d});
    EXPECT_EQ(d->floatValue(QStringLiteral("amount")), 9.5f);
    EXPECT_EQ(titles(d->items()), (QStringList{"A", "B"}));
    ASSERT_TRUE(ctx->save());
    reopen();
    EXPECT_EQ(titles(document(QStringLiteral("D"))->items()), (QStringList{"A", "B"}));
}

class CascadeUndoTest : public StoreFixture, public ::testing::WithParamInterface<bool>
{
};

TEST_P(CascadeUndoTest, UndoOfDocumentDeleteBringsItemsBackInOrder)
{
    const bool saveBetween = GetParam();
    newDocument(QStringLiteral("D"), {"A", "B", "C", "D"});
    newDocument(QStringLiteral("O"), {"X"});
    ASSERT_TRUE(context()->save());
    reopen();
    ManagedObject* d = document(QStringLiteral("D"));
    const QString id = d->stringValue(QStringLiteral("uniqueID"));
    // Reorder first so "in order" means the order the user made.
    d->insertObject(kItems, itemTitled(d, "D"), 0);
    ASSERT_TRUE(context()->save());
    {
        UndoGroup g(context()->undoManager(), QStringLiteral("Delete"));
        context()->deleteObject(d);
    }
    if (saveBetween) {
        ASSERT_TRUE(context()->save());
        EXPECT_EQ(queryText(QStringLiteral("SELECT count(*) FROM Item")), QStringLiteral("1"));
    }
    context()->undoManager()->undo();
    EXPECT_EQ(titles(context()->fetch(Entity::Invoice)), (QStringList{"D", "O"}));
    EXPECT_EQ(titles(d->items()), (QStringList{"D", "A", "B", "C"}));
    ASSERT_TRUE(context()->save());
    EXPECT_FALSE(context()->hasChanges());
    reopen();
    ManagedObject* back = document(QStringLiteral("D"));
    EXPECT_EQ(back->stringValue(QStringLiteral("uniqueID")), id);
    EXPECT_EQ(titles(back->items()), (QStringList{"D", "A", "B", "C"}));
    EXPECT_EQ(context()->fetch(Entity::Item).size(), 5);
}

INSTANTIATE_TEST_SUITE_P(Save, CascadeUndoTest, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "SavedBeforeUndo" : "Unsaved"; });

struct UndoAfterSaveCase
{
    const char* name;
    std::function<void(ObjectContext*, ManagedObject* d)> change;
    QStringList documents; // titles after undo, save and reopen
    QStringList items;     // items of "D" after undo, save and reopen
};

const UndoAfterSaveCase undoAfterSaveCases[] = {
    {"Edit", [](auto*, auto* d) { d->setValue(kTitle, QStringLiteral("renamed")); }, {"D"}, {"A", "B", "C"}},
    {"Insert",
     [](auto* c, auto*) { c->insertNewObject(Entity::Invoice)->setValue(kTitle, QStringLiteral("N")); },
     {"D"},
     {"A", "B", "C"}},
    {"DeleteItem", [](auto* c, auto* d) { c->deleteObject(itemTitled(d, "B")); }, {"D"}, {"A", "B", "C"}},
    {"AddItem",
     [](auto* c, auto* d) { d->insertObject(kItems, newItem(c, "N"), 0); },
     {"D"},
     {"A", "B", "C"}},
    {"Reorder",
     [](auto*, auto* d) { d->insertObject(kItems, itemTitled(d, "C"), 0); },
     {"D"},
     {"A", "B", "C"}},
};

class UndoAfterSaveTest : public StoreFixture, public ::testing::WithParamInterface<UndoAfterSaveCase>
{
};

TEST_P(UndoAfterSaveTest, UndoneChangeIsSavedBack)
{
    newDocument(QStringLiteral("D"), {"A", "B", "C"});
    ASSERT_TRUE(context()->save());
    context()->undoManager()->removeAllActions();
    {
        UndoGroup g(context()->undoManager(), QStringLiteral("Change"));
        GetParam().change(context(), document(QStringLiteral("D")));
    }
    ASSERT_TRUE(context()->save());
    context()->undoManager()->undo();
    EXPECT_TRUE(context()->hasChanges());
    ASSERT_TRUE(context()->save());
    reopen();
    EXPECT_EQ(titles(context()->fetch(Entity::Invoice)), GetParam().documents);
    EXPECT_EQ(titles(document(QStringLiteral("D"))->items()), GetParam().items);
    EXPECT_EQ(context()->fetch(Entity::Item).size(), GetParam().items.size());
}

INSTANTIATE_TEST_SUITE_P(Changes, UndoAfterSaveTest, ::testing::ValuesIn(undoAfterSaveCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---------------------------------------------------------------- fetching

TEST_F(StoreFixture, FetchAnswersStoreOrderAndLeavesOutDeleted)
{
    const QDateTime dates[] = {utc(2026, 5, 1), utc(2024, 1, 1), utc(2027, 1, 1), utc(2025, 1, 1)};
    QStringList order;
    for (int i = 0; i < 4; ++i) {
        ManagedObject* d = newDocument(QStringLiteral("doc%1").arg(i));
        d->setValue(QStringLiteral("date"), dates[i]);
        d->setValue(QStringLiteral("kind"), i % 2);
        order << QStringLiteral("doc%1").arg(i);
    }
    EXPECT_EQ(titles(context()->fetch(Entity::Invoice)), order);
    ASSERT_TRUE(context()->save());
    reopen();
    EXPECT_EQ(titles(context()->fetch(Entity::Invoice)), order);
    context()->deleteObject(document(QStringLiteral("doc1")));
    EXPECT_EQ(titles(context()->fetch(Entity::Invoice)), (QStringList{"doc0", "doc2", "doc3"}));
    EXPECT_EQ(
        titles(context()->fetch(
            Entity::Invoice, [](const ManagedObject& o) { return o.intValue(QStringLiteral("kind")) == 1; })),
        QStringList{"doc3"});
    newDocument(QStringLiteral("doc4"));
    EXPECT_EQ(titles(context()->fetch(Entity::Invoice)), (QStringList{"doc0", "doc2", "doc3", "doc4"}));
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(titles(reopen()->fetch(Entity::Invoice)), (QStringList{"doc0", "doc2", "doc3", "doc4"}));
    EXPECT_FALSE(context()->fetchObjects(QStringLiteral("NoSuchEntity")).ok());
}

class LazyItemsTest : public StoreFixture, public ::testing::WithParamInterface<bool>
{
};

TEST_P(LazyItemsTest, LazyListsAndFetchOfAllItemsAgree)
{
    for (int d = 0; d < 4; ++d) {
        QStringList items;
        for (int i = 0; i < d + 1; ++i)
            items << QStringLiteral("%1.%2").arg(d).arg(i);
        newDocument(QStringLiteral("doc%1").arg(d), items);
    }
    ManagedObject* orphan = newItem(context(), "orphan");
    Q_UNUSED(orphan);
    ASSERT_TRUE(context()->save());
    reopen();

    const bool itemsFirst = GetParam();
    QList<ManagedObject*> lazy;
    QList<ManagedObject*> all;
    if (itemsFirst) {
        lazy = document(QStringLiteral("doc2"))->items();
        all = context()->fetch(Entity::Item);
    } else {
        all = context()->fetch(Entity::Item);
        lazy = document(QStringLiteral("doc2"))->items();
    }
    EXPECT_EQ(titles(lazy), (QStringList{"2.0", "2.1", "2.2"}));
    EXPECT_EQ(all.size(), 11);
    EXPECT_EQ(QSet<ManagedObject*>(all.begin(), all.end()).size(), all.size()) << "duplicate objects";
    QSet<ManagedObject*> inLists;
    for (ManagedObject* doc : context()->fetch(Entity::Invoice))
        for (ManagedObject* item : doc->items()) {
            EXPECT_FALSE(inLists.contains(item));
            inLists.insert(item);
            EXPECT_EQ(item->object(QStringLiteral("invoice")), doc);
        }
    EXPECT_EQ(inLists.size(), 10);
    for (ManagedObject* item : lazy)
        EXPECT_TRUE(all.contains(item)) << "the lazily read item is a different object";
    EXPECT_EQ(document(QStringLiteral("doc2"))->items(), lazy);
    EXPECT_EQ(context()->fetch(Entity::Item).size(), 11) << "a second fetch loads nothing twice";
    EXPECT_FALSE(context()->hasChanges());
}

INSTANTIATE_TEST_SUITE_P(Order, LazyItemsTest, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "ListFirst" : "FetchFirst"; });

TEST_F(StoreFixture, FetchNamedDefaultDesign)
{
    for (int i = 0; i < 3; ++i) {
        ManagedObject* design = context()->insertNewObject(Entity::Design);
        design->setValue(kTitle, QStringLiteral("design%1").arg(i));
        design->setValue(QStringLiteral("isDefault"), i == 1);
    }
    EXPECT_EQ(titles(context()->fetchNamed(QStringLiteral("defaultDesign"))), QStringList{"design1"});
    ASSERT_TRUE(context()->save());
    EXPECT_EQ(titles(reopen()->fetchNamed(QStringLiteral("defaultDesign"))), QStringList{"design1"});
    EXPECT_TRUE(context()->fetchNamed(QStringLiteral("noSuchTemplate")).isEmpty());
}

} // namespace
} // namespace vorn::test
