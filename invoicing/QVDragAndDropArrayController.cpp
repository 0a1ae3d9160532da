#include "invoicing/QVDragAndDropArrayController.h"

#include "store/ArrayController.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/ObjectContext.h"
#include "store/PropertyList.h"

#include <algorithm>
#include <limits>

namespace vorn {

QVDragAndDropArrayController::QVDragAndDropArrayController(ArrayController& controller, QObject* parent)
    : QObject(parent), m_controller(controller)
{
}

int QVDragAndDropArrayController::countOfIndexesInRange(const QList<int>& indexes, int location, int length)
{
    if (length <= 0)
        return 0;
    const int end = location + length;
    // From the first member at or after the start, one member after another.
    auto it = std::lower_bound(indexes.cbegin(), indexes.cend(), location);
    int count = 0;
    while (it != indexes.cend() && *it < end) {
        ++count;
        it = std::upper_bound(it, indexes.cend(), *it);
    }
    return count;
}

QByteArray QVDragAndDropArrayController::archiveIndexes(const QList<int>& indexes)
{
    QVariantList list;
    for (int i : indexes)
        list << qint64(i);
    return PropertyList::toBinary(list);
}

std::optional<QList<int>> QVDragAndDropArrayController::unarchiveIndexes(const QByteArray& data)
{
    auto root = PropertyList::read(data);
    if (!root || root.value().typeId() != QMetaType::QVariantList)
        return std::nullopt;
    QList<int> indexes;
    for (const QVariant& v : root.value().toList()) {
        bool ok = false;
        const qint64 i = v.toLongLong(&ok);
        if (!ok || i < 0 || i > std::numeric_limits<int>::max())
            return std::nullopt;
        indexes << int(i);
    }
    std::sort(indexes.begin(), indexes.end());
    indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
    return indexes;
}

QVDragAndDropArrayController::Pasteboard QVDragAndDropArrayController::writeRows(const QList<int>& rows) const
{
    Pasteboard pb;
    pb.types = {copiedRowsType, movedRowsType};
    if (rows.size() == 1) {
        pb.types << stringType;
        if (const ManagedObject* o = m_controller.arrangedObjects().value(rows.first()))
            pb.string = o->stringValue(key::title);
    }
    QList<int> sorted = rows;
    std::sort(sorted.begin(), sorted.end());
    pb.movedRows = archiveIndexes(sorted);
    return pb;
}

QVDragAndDropArrayController::DropProposal
QVDragAndDropArrayController::validateDrop(bool fromThisTable, bool optionHeld, int proposedRow) const
{
    DropProposal proposal;
    proposal.row = std::max(proposedRow, 0);
    proposal.above = true;
    if (mayDrop && !mayDrop())
        return proposal;
    proposal.operation = fromThisTable && !optionHeld ? Move : Copy;
    return proposal;
}

bool QVDragAndDropArrayController::acceptDrop(const Pasteboard& pasteboard, bool fromThisTable,
                                              bool optionHeld, int row)
{
    if (mayDrop && !mayDrop())
        return false;
    row = std::max(row, 0);
    if (fromThisTable && !optionHeld) {
        const auto indexes = unarchiveIndexes(pasteboard.movedRows);
        if (!indexes)
            return false;
        moveObjectsInArrangedObjectsFromIndexes(*indexes, row);
        return true;
    }
    // The table never writes copied rows itself, so a copy within the table
    // finds nothing to insert and is refused.
    if (pasteboard.copiedRows && !pasteboard.copiedRows->isEmpty()) {
        ManagedObject* list = owner ? owner() : nullptr;
        if (!list || !list->context())
            return false;
        const auto* relationship = list->entity().relationship(relationshipKey);
        if (!relationship)
            return false;
        QList<ManagedObject*> objects;
        for (const QVariant& copied : *pasteboard.copiedRows) {
            ManagedObject* o = list->context()->insertNewObject(relationship->destination);
            const QVariantMap values = copied.toMap();
            for (auto it = values.cbegin(); it != values.cend(); ++it)
                if (o->entity().attributeIndex(it.key()) >= 0)
                    o->setValue(it.key(), it.value());
            objects << o;
        }
        return insertBlock(objects, row);
    }
    if (pasteboard.url) {
        ManagedObject* list = owner ? owner() : nullptr;
        const auto* relationship = list ? list->entity().relationship(relationshipKey) : nullptr;
        if (!relationship || !list->context())
            return false;
        return insertBlock({list->context()->insertNewObject(relationship->destination)}, row);
    }
    return false;
}

bool QVDragAndDropArrayController::insertBlock(const QList<ManagedObject*>& objects, int row)
{
    QList<ManagedObject*> order = m_controller.arrangedObjects();
    row = std::clamp(row, 0, int(order.size()));
    for (int i = 0; i < objects.size(); ++i)
        order.insert(row + i, objects[i]);
    QList<int> selection;
    for (int i = 0; i < objects.size(); ++i)
        selection << row + i;
    setOrder(order, selection);
    return true;
}

QList<int> QVDragAndDropArrayController::moveObjectsInArrangedObjectsFromIndexes(const QList<int>& indexes,
                                                                                 int toIndex)
{
    QList<ManagedObject*> order = m_controller.arrangedObjects();
    QList<int> moved;
    for (int i : indexes)
        if (i >= 0 && i < order.size())
            moved << i;
    std::sort(moved.begin(), moved.end());
    moved.erase(std::unique(moved.begin(), moved.end()), moved.end());
    if (moved.isEmpty())
        return {};
    toIndex = std::clamp(toIndex, 0, int(order.size()));

    const int insertion = toIndex - countOfIndexesInRange(moved, 0, toIndex);
    QList<ManagedObject*> block;
    for (int i : std::as_const(moved))
        block << order[i];
    for (auto it = moved.crbegin(); it != moved.crend(); ++it)
        order.removeAt(*it);
    for (int i = 0; i < block.size(); ++i)
        order.insert(insertion + i, block[i]);

    QList<int> result;
    for (int i = 0; i < block.size(); ++i)
        result << insertion + i;
    setOrder(order, result);
    return result;
}

void QVDragAndDropArrayController::setOrder(const QList<ManagedObject*>& order, const QList<int>& selection)
{
    ManagedObject* list = owner ? owner() : nullptr;
    if (list && !relationshipKey.isEmpty())
        list->setObjects(relationshipKey, order);
    m_controller.setContent(order);
    m_controller.setSelectionIndexes(selection);
    if (didChangeRows)
        didChangeRows();
}

} // namespace vorn
