#pragma once

#include "store/ObjectContext.h"

#include <QDateTime>
#include <QObject>
#include <QString>

namespace vorn {

class AppState;
class Calculator;

// The filter of the document list. The tag (AppState::filterTag) picks one
// of nine predicates; the list totals always describe the filtered list.
class FilterController : public QObject
{
    Q_OBJECT
public:
    enum Tag : quint64
    {
        All = 0,
        Sent = 1,
        Overdue = 2,
        Paid = 3,
        Quotes = 4,
        Today = 5,
        Week = 6,
        Month = 7,
        Year = 8
    };

    // The date filters reach back this many units of half a day: 12 hours,
    // 3.5, 15.5 and 182.5 days. The span is deliberate.
    static constexpr qint64 halfDaySeconds = 43200;

    FilterController(AppState& state, Calculator& calculator, QObject* parent = nullptr);

    // The predicate of a tag at the given moment; empty for "all documents".
    // Tags above 8 filter as sent invoices.
    static Predicate predicateForTag(quint64 tag, const QDateTime& now);
    // How many half-day units the date filter of a tag reaches back (0 when
    // the tag is not a date filter).
    static qint64 unitsForTag(quint64 tag);

    void setFilterTag(quint64 tag);
    // The filter button's picture follows the tag.
    void selectFilter();
    // Applies the current tag's predicate, rearranges the list and
    // recomputes the totals.
    void setFilterPredicate();
    // Back to all documents (before a new document is shown).
    void showAllDocuments();

    // The filter popover: open it, and pick a filter from it (closes it).
    void openFilterPopover();
    void selectFilterAction(quint64 tag);
    bool isFilterPopoverShown() const { return m_popoverShown; }

    // Whether the list shows less than all documents.
    bool isFilterActive() const { return m_active; }
    // The button's picture: "torchGlow" while a filter is active,
    // "torchTemplate" otherwise.
    QString filterButtonImage() const
    {
        return m_active ? QStringLiteral("torchGlow") : QStringLiteral("torchTemplate");
    }

Q_SIGNALS:
    void filterChanged();

private:
    AppState& m_state;
    Calculator& m_calculator;
    bool m_active = false;
    bool m_popoverShown = false;
};

} // namespace vorn
