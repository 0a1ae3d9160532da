#include "store/ArrayController.h"

#include "store/ListCompare.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <vector>

namespace vorn {

namespace {

int compareValues(const QVariant& a, const QVariant& b)
{
    // Sorting compares prepared keys: integers (and dates as their
    // milliseconds) go straight to their numbers.
    if (a.typeId() == QMetaType::LongLong && b.typeId() == QMetaType::LongLong) {
        const qint64 x = *static_cast<const qint64*>(a.constData());
        const qint64 y = *static_cast<const qint64*>(b.constData());
        return x < y ? -1 : (x > y ? 1 : 0);
    }
    if (!a.isValid() || !b.isValid())
        return int(a.isValid()) - int(b.isValid());
    switch (a.typeId()) {
    case QMetaType::QString:
        return QString::localeAwareCompare(a.toString(), b.toString());
    case QMetaType::QDateTime: {
        const qint64 x = a.toDateTime().toMSecsSinceEpoch(), y = b.toDateTime().toMSecsSinceEpoch();
        return x < y ? -1 : (x > y ? 1 : 0);
    }
    case QMetaType::Float:
    case QMetaType::Double: {
        const double x = a.toDouble(), y = b.toDouble();
        return x < y ? -1 : (x > y ? 1 : 0);
    }
    default: {
        const qint64 x = a.toLongLong(), y = b.toLongLong();
        return x < y ? -1 : (x > y ? 1 : 0);
    }
    }
}

} // namespace

ArrayController::ArrayController(QObject* parent) : QObject(parent) {}

void ArrayController::setEntity(ObjectContext* context, const QString& entityName)
{
    for (const auto& c : std::as_const(m_connections))
        disconnect(c);
    m_connections.clear();
    m_context = context;
    m_entityName = entityName;
    if (m_context) {
        m_connections << connect(m_context, &ObjectContext::objectsInserted, this,
                                 &ArrayController::contextInserted);
        m_connections << connect(m_context, &ObjectContext::objectsDeleted, this,
                                 &ArrayController::contextDeleted);
        m_connections << connect(m_context, &ObjectContext::objectChanged, this,
                                 &ArrayController::contextObjectChanged);
        m_connections << connect(m_context, &ObjectContext::contextDidReset, this, &ArrayController::fetch);
        m_connections << connect(m_context, &QObject::destroyed, this, [this] {
            m_context = nullptr;
            m_content.clear();
            m_arranged.clear();
            m_selection.clear();
        });
    }
    fetch();
}

void ArrayController::fetch()
{
    if (!m_context || m_entityName.isEmpty()) {
        setContent({});
        return;
    }
    setContent(m_context->fetch(m_entityName));
}

void ArrayController::setContent(const QList<ManagedObject*>& content)
{
    const QList<ManagedObject*> selected = selectedObjects();
    m_content = content;
    arrange(selected);
}

void ArrayController::setFilterPredicate(Predicate predicate)
{
    m_filter = std::move(predicate);
    arrange(selectedObjects());
}

void ArrayController::setSortDescriptors(QList<SortDescriptor> descriptors)
{
    m_sort = std::move(descriptors);
    arrange(selectedObjects());
}

void ArrayController::rearrangeObjects()
{
    arrange(selectedObjects());
}

void ArrayController::sort(QList<ManagedObject*>& objects, const QList<SortDescriptor>& descriptors)
{
    if (descriptors.isEmpty() || objects.size() < 2)
        return;
    // Each object's sort keys are read once, dates as their milliseconds:
    // the comparisons then neither look up attributes nor build dates.
    const size_t width = size_t(descriptors.size());
    std::vector<bool> storeOrder(width);
    for (size_t d = 0; d < width; ++d)
        storeOrder[d] = descriptors[qsizetype(d)].key == SortDescriptor::storeOrder();
    std::vector<QVariant> keys(size_t(objects.size()) * width);
    const EntityDescription* entity = nullptr;
    std::vector<int> attribute(width, -1);
    for (qsizetype i = 0; i < objects.size(); ++i) {
        const ManagedObject* object = objects[i];
        if (&object->entity() != entity) {
            entity = &object->entity();
            for (size_t d = 0; d < width; ++d)
                attribute[d] = entity->attributeIndex(descriptors[qsizetype(d)].key);
        }
        for (size_t d = 0; d < width; ++d) {
            QVariant& key = keys[size_t(i) * width + d];
            if (storeOrder[d])
                key = object->objectId();
            else if (attribute[d] >= 0)
                key = object->value(attribute[d]);
            if (key.typeId() == QMetaType::QDateTime)
                key = key.toDateTime().toMSecsSinceEpoch();
        }
    }
    std::vector<size_t> order(size_t(objects.size()));
    std::iota(order.begin(), order.end(), size_t(0));
    // Keys that are all whole numbers (the document list: date, then store
    // order) are compared as plain numbers, an absent one first.
    const bool numeric = std::all_of(keys.cbegin(), keys.cend(), [](const QVariant& k) {
        return !k.isValid() || k.typeId() == QMetaType::LongLong;
    });
    if (numeric) {
        std::vector<qint64> numbers(keys.size());
        for (size_t k = 0; k < keys.size(); ++k)
            numbers[k] = keys[k].isValid() ? *static_cast<const qint64*>(keys[k].constData())
                                           : std::numeric_limits<qint64>::min();
        std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
            for (size_t d = 0; d < width; ++d) {
                const qint64 x = numbers[a * width + d], y = numbers[b * width + d];
                if (x != y)
                    return descriptors[qsizetype(d)].ascending ? x < y : x > y;
            }
            return false;
        });
    } else {
        std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
            for (size_t d = 0; d < width; ++d) {
                const int c = compareValues(keys[a * width + d], keys[b * width + d]);
                if (c != 0)
                    return descriptors[qsizetype(d)].ascending ? c < 0 : c > 0;
            }
            return false;
        });
    }
    QList<ManagedObject*> sorted;
    sorted.reserve(objects.size());
    for (size_t i : order)
        sorted.append(objects[qsizetype(i)]);
    objects = std::move(sorted);
}

void ArrayController::arrange(const QList<ManagedObject*>& keepSelected)
{
    QList<ManagedObject*> arranged;
    arranged.reserve(m_content.size());
    for (ManagedObject* o : std::as_const(m_content))
        if (!m_filter || m_filter(*o))
            arranged.append(o);
    sort(arranged, m_sort);
    m_arranged = std::move(arranged);
    QList<int> selection;
    for (ManagedObject* o : keepSelected) {
        const int i = int(m_arranged.indexOf(o));
        if (i >= 0)
            selection.append(i);
    }
    std::sort(selection.begin(), selection.end());
    const bool selectionMoved = !sameList(selection, m_selection) || keepSelected.size() != selection.size();
    m_selection = selection;
    fixSelection();
    Q_EMIT arrangedObjectsChanged();
    if (selectionMoved)
        Q_EMIT selectionChanged();
}

void ArrayController::fixSelection()
{
    if (m_avoidsEmptySelection && m_selection.isEmpty() && !m_arranged.isEmpty())
        m_selection = {0};
}

void ArrayController::setSelectionIndexes(QList<int> indexes)
{
    std::sort(indexes.begin(), indexes.end());
    indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
    indexes.removeIf([this](int i) { return i < 0 || i >= m_arranged.size(); });
    if (sameList(indexes, m_selection))
        return;
    m_selection = indexes;
    fixSelection();
    Q_EMIT selectionChanged();
}

QList<ManagedObject*> ArrayController::selectedObjects() const
{
    QList<ManagedObject*> result;
    for (int i : m_selection)
        if (i >= 0 && i < m_arranged.size())
            result.append(m_arranged[i]);
    return result;
}

void ArrayController::setSelectedObjects(const QList<ManagedObject*>& objects)
{
    QList<int> indexes;
    for (ManagedObject* o : objects) {
        const int i = int(m_arranged.indexOf(o));
        if (i >= 0)
            indexes.append(i);
    }
    setSelectionIndexes(indexes);
}

ManagedObject* ArrayController::selectedObject() const
{
    return m_selection.isEmpty() ? nullptr : m_arranged.value(m_selection.first());
}

void ArrayController::addObject(ManagedObject* object)
{
    insertObject(object, -1);
}

void ArrayController::insertObject(ManagedObject* object, int arrangedIndex)
{
    if (!object)
        return;
    const QList<ManagedObject*> selected = selectedObjects();
    if (!m_content.contains(object))
        m_content.append(object);
    if (!m_arranged.contains(object)) {
        if (arrangedIndex < 0 || arrangedIndex > m_arranged.size())
            arrangedIndex = int(m_arranged.size());
        m_arranged.insert(arrangedIndex, object);
    }
    if (m_selectsInserted) {
        m_selection = {int(m_arranged.indexOf(object))};
        Q_EMIT arrangedObjectsChanged();
        Q_EMIT selectionChanged();
    } else {
        const QList<int> before = m_selection;
        m_selection.clear();
        for (ManagedObject* o : selected)
            m_selection.append(int(m_arranged.indexOf(o)));
        Q_EMIT arrangedObjectsChanged();
        if (!sameList(m_selection, before))
            Q_EMIT selectionChanged();
    }
}

void ArrayController::removeObject(ManagedObject* object)
{
    if (!m_content.removeOne(object))
        return;
    const int index = int(m_arranged.indexOf(object));
    if (index < 0)
        return;
    QList<ManagedObject*> selected = selectedObjects();
    selected.removeOne(object);
    m_arranged.removeAt(index);
    m_selection.clear();
    for (ManagedObject* o : selected)
        m_selection.append(int(m_arranged.indexOf(o)));
    // After removing the selected row, the platform selects the row that
    // took its place (or the new last row).
    if (m_selection.isEmpty() && m_avoidsEmptySelection && !m_arranged.isEmpty())
        m_selection = {std::min(index, int(m_arranged.size()) - 1)};
    Q_EMIT arrangedObjectsChanged();
    Q_EMIT selectionChanged();
}

void ArrayController::contextInserted(const QList<ManagedObject*>& objects)
{
    // Objects coming back through undo rejoin the list; new ones are added by
    // the action that created them (which decides where and what to select).
    if (!m_context->undoManager()->isUndoing() && !m_context->undoManager()->isRedoing())
        return;
    bool any = false;
    for (ManagedObject* o : objects) {
        if (o->entityName() == m_entityName && !m_content.contains(o)) {
            m_content.append(o);
            any = true;
        }
    }
    if (any)
        arrange(selectedObjects());
}

void ArrayController::contextDeleted(const QList<ManagedObject*>& objects)
{
    for (ManagedObject* o : objects)
        if (o->entityName() == m_entityName)
            removeObject(o);
}

void ArrayController::contextObjectChanged(ManagedObject* object, const QString& key)
{
    if (!m_autoRearrange || object->entityName() != m_entityName || !m_content.contains(object))
        return;
    const bool sortKey =
        std::any_of(m_sort.cbegin(), m_sort.cend(), [&key](const SortDescriptor& d) { return d.key == key; });
    if (sortKey || m_filter)
        arrange(selectedObjects());
}

} // namespace vorn
