#include "invoicing/FilterController.h"

#include "invoicing/Calculator.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Keys.h"

namespace vorn {

namespace {

// Attribute indexes of the filtered entity, resolved on first use: the
// predicates run over every document at each filter change.
struct Columns
{
    const EntityDescription* entity = nullptr;
    int kind = -1, status = -1, date = -1;

    void resolve(const ManagedObject& o)
    {
        if (entity == &o.entity())
            return;
        entity = &o.entity();
        kind = entity->attributeIndex(key::kind);
        status = entity->attributeIndex(key::status);
        date = entity->attributeIndex(key::date);
    }
};

qint64 integerAt(const ManagedObject& o, int index)
{
    if (index < 0)
        return 0;
    const QVariant v = o.value(index);
    return v.typeId() == QMetaType::LongLong ? *static_cast<const qint64*>(v.constData()) : v.toLongLong();
}

Predicate invoicesWithStatus(DocumentStatus status)
{
    return [status, c = Columns()](const ManagedObject& o) mutable {
        c.resolve(o);
        return integerAt(o, c.kind) == qint64(DocumentKind::Invoice) &&
               integerAt(o, c.status) == qint64(status);
    };
}

Predicate dateBetween(qint64 from, qint64 to)
{
    return [from, to, c = Columns()](const ManagedObject& o) mutable {
        c.resolve(o);
        // A document without a date matches no date range.
        const QVariant date = c.date < 0 ? QVariant() : o.value(c.date);
        if (date.typeId() != QMetaType::QDateTime)
            return false;
        const qint64 t = static_cast<const QDateTime*>(date.constData())->toMSecsSinceEpoch();
        return t >= from && t <= to;
    };
}

} // namespace

FilterController::FilterController(AppState& state, Calculator& calculator, QObject* parent)
    : QObject(parent), m_state(state), m_calculator(calculator)
{
}

qint64 FilterController::unitsForTag(quint64 tag)
{
    switch (tag) {
    case Today:
        return 1;
    case Week:
        return 7;
    case Month:
        return 31;
    case Year:
        return 365;
    default:
        return 0;
    }
}

Predicate FilterController::predicateForTag(quint64 tag, const QDateTime& now)
{
    switch (tag) {
    case All:
        return {};
    case Sent:
        return invoicesWithStatus(DocumentStatus::Sent);
    case Overdue:
        return invoicesWithStatus(DocumentStatus::Overdue);
    case Paid:
        return invoicesWithStatus(DocumentStatus::Paid);
    case Quotes:
        return [c = Columns()](const ManagedObject& o) mutable {
            c.resolve(o);
            return integerAt(o, c.kind) == qint64(DocumentKind::Quote);
        };
    case Today:
    case Week:
    case Month:
    case Year: {
        const qint64 to = now.toMSecsSinceEpoch();
        return dateBetween(to - unitsForTag(tag) * halfDaySeconds * 1000, to);
    }
    default:
        return invoicesWithStatus(DocumentStatus::Sent);
    }
}

void FilterController::setFilterTag(quint64 tag)
{
    m_state.filterTag = tag;
    m_state.notifyStateChanged();
}

void FilterController::selectFilter()
{
    m_active = m_state.filterTag != All;
    Q_EMIT filterChanged();
}

void FilterController::setFilterPredicate()
{
    {
        // Setting the predicate rearranges the list, which asks for the
        // totals too: they are computed once.
        Calculator::TotalsBatch batch(m_calculator);
        m_state.invoicesController().setFilterPredicate(
            predicateForTag(m_state.filterTag, m_state.clock().now()));
        m_calculator.calculateDatabase();
    }
    Q_EMIT filterChanged();
}

void FilterController::showAllDocuments()
{
    setFilterTag(All);
    selectFilter();
    setFilterPredicate();
}

void FilterController::openFilterPopover()
{
    m_popoverShown = true;
    Q_EMIT filterChanged();
}

void FilterController::selectFilterAction(quint64 tag)
{
    m_popoverShown = false;
    setFilterTag(tag);
    selectFilter();
    setFilterPredicate();
}

} // namespace vorn
