#pragma once

#include <QObject>

namespace vorn {

class AppState;
class Calculator;

// The discount popover: its fields edit the current document's discount
// attributes directly. Discounts are not remembered.
class DiscountController : public QObject
{
    Q_OBJECT
public:
    DiscountController(AppState& state, Calculator& calculator, QObject* parent = nullptr);

    bool isDiscountPopoverShown() const { return m_shown; }
    // Toggles the popover; refused for a sent document.
    void showDiscountPopover();
    // Accepts: recalculates and closes.
    void closeDiscountPopover();
    // Switches the discount off and recalculates; refused for a sent document.
    bool switchDiscountOff();

    void makeDiscountTitleResponder();
    void makeDiscountSubtitleTitleResponder();

Q_SIGNALS:
    void popoverChanged();

private:
    void recalculate();

    AppState& m_state;
    Calculator& m_calculator;
    bool m_shown = false;
};

} // namespace vorn
