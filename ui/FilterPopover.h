#pragma once

#include "ui/Popover.h"

class QButtonGroup;

namespace vorn {

class FilterController;

// The nine list filters, one button each; picking one closes the popover.
class FilterPopover : public Popover
{
    Q_OBJECT
public:
    FilterPopover(FilterController& filter, quint64& currentTag, QWidget* parent = nullptr);

    static QString filterName(quint64 tag);
    QButtonGroup* buttons() const { return m_buttons; }
    void open(QWidget* anchor);

private:
    FilterController& m_filter;
    quint64& m_tag;
    QButtonGroup* m_buttons;
};

} // namespace vorn
