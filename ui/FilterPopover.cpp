#include "ui/FilterPopover.h"

#include "invoicing/FilterController.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vorn {

QString FilterPopover::filterName(quint64 tag)
{
    switch (tag) {
    case FilterController::All:
        return tr("All Documents");
    case FilterController::Sent:
        return tr("Sent Invoices");
    case FilterController::Overdue:
        return tr("Overdue Invoices");
    case FilterController::Paid:
        return tr("Paid Invoices");
    case FilterController::Quotes:
        return tr("Quotes");
    case FilterController::Today:
        return tr("Today");
    case FilterController::Week:
        return tr("This Week");
    case FilterController::Month:
        return tr("This Month");
    case FilterController::Year:
        return tr("This Year");
    }
    return tr("Sent Invoices");
}

FilterPopover::FilterPopover(FilterController& filter, quint64& currentTag, QWidget* parent)
    : Popover(parent), m_filter(filter), m_tag(currentTag), m_buttons(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("filterPopover"));
    setAccessibleName(tr("Filter"));
    auto* layout = new QVBoxLayout(this);
    auto* heading = new QLabel(tr("Show"));
    heading->setStyleSheet(QStringLiteral("font-weight: bold"));
    layout->addWidget(heading);
    for (quint64 tag = FilterController::All; tag <= FilterController::Year; ++tag) {
        if (tag == FilterController::Today) {
            auto* recent = new QLabel(tr("Dated within"));
            recent->setStyleSheet(QStringLiteral("font-weight: bold"));
            layout->addSpacing(6);
            layout->addWidget(recent);
        }
        auto* button = new QPushButton(filterName(tag));
        button->setObjectName(QStringLiteral("filter%1").arg(tag));
        button->setCheckable(true);
        button->setFlat(true);
        button->setStyleSheet(QStringLiteral("text-align: left; padding: 3px 12px"));
        m_buttons->addButton(button, int(tag));
        layout->addWidget(button);
    }
    m_buttons->setExclusive(true);
    connect(m_buttons, &QButtonGroup::idClicked, this, [this](int tag) {
        close();
        m_filter.selectFilterAction(quint64(tag));
    });
    connect(this, &Popover::dismissed, this, [this] {
        if (m_filter.isFilterPopoverShown())
            m_filter.selectFilterAction(m_tag);
    });
}

void FilterPopover::open(QWidget* anchor)
{
    if (QAbstractButton* b = m_buttons->button(int(m_tag)))
        b->setChecked(true);
    m_filter.openFilterPopover();
    showBelow(anchor);
    if (QAbstractButton* b = m_buttons->button(int(m_tag)))
        b->setFocus();
}

} // namespace vorn
