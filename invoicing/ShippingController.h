#pragma once

#include <QObject>
#include <QString>

namespace vorn {

class AppState;
class Calculator;

// The shipping popover. Its entry fields edit the current document's
// shipping attributes directly (title, subtitle, amount, the three tax
// boxes); only the note lives in the popover. Accepting remembers the
// charge unless one with the same title and amount is remembered already.
class ShippingController : public QObject
{
    Q_OBJECT
public:
    ShippingController(AppState& state, Calculator& calculator, QObject* parent = nullptr);

    bool isShippingPopoverShown() const { return m_shown; }
    // The popover's note field (remembered with the charge, never copied
    // into the document).
    QString& note() { return m_note; }

    // Toggles the popover; refused for a sent document.
    void showShippingPopover();
    // Accepts: recalculates, closes, remembers the charge.
    void closeShippingPopover();
    void cancelShippingPopover();
    // Copies the selected remembered charge into the document (shipping on).
    void selectRecentShipping();
    // Switches shipping off and recalculates; refused for a sent document.
    bool switchShippingOff();

    void makeShippingTitleResponder();
    void makeShippingSubtitleTitleResponder();

Q_SIGNALS:
    void popoverChanged();

private:
    void recalculate();
    void rememberCharge();

    AppState& m_state;
    Calculator& m_calculator;
    bool m_shown = false;
    QString m_note;
};

} // namespace vorn
