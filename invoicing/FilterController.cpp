#include "invoicing/FilterController.h"

#include "invoicing/Calculator.h"
#include "invoicing/Keys.h"
#include "store/AppState.h"
#include "store/Clock.h"

namespace vorn {

namespace {

Predicate kindAndStatus(qint64 kind, qint64 status)
{
    return [kind, status](const ManagedObject& o) {
        return o.intValue(key::kind) == kind && o.intValue(key::status) == status;
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
        return kindAndStatus(1, 1);
    case Overdue:
        return kindAndStatus(1, 2);
    case Paid:
        return kindAndStatus(1, 3);
    case Quotes:
        return [](const ManagedObject& o) { return o.intValue(key::kind) == 0; };
    case Today:
    case Week:
    case Month:
    case Year: {
        const qint64 to = now.toMSecsSinceEpoch();
        const qint64 from = to - unitsForTag(tag) * halfDaySeconds * 1000;
        return [from, to](const ManagedObject& o) {
            // A document without a date matches no date range.
            const QVariant date = o.value(key::date);
            if (!date.isValid())
                return false;
            const qint64 t = date.toDateTime().toMSecsSinceEpoch();
            return t >= from && t <= to;
        };
    }
    default:
        return kindAndStatus(1, 1);
    }
}

void FilterController::setFilterTag(quint64 tag)
{
    m_state.filterTag = tag;
    m_state.notifyStateChanged();
}

void FilterController::selectFilter()
{
    m_buttonImage = m_state.filterTag != All ? QStringLiteral("torchGlow") : QStringLiteral("torchTemplate");
    Q_EMIT filterChanged();
}

void FilterController::setFilterPredicate()
{
    // Setting the predicate rearranges the list.
    m_state.invoicesController().setFilterPredicate(predicateForTag(m_state.filterTag, m_state.clock().now()));
    m_calculator.calculateDatabase();
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
