#include "invoicing/DiscountController.h"

#include "invoicing/Calculator.h"
#include "invoicing/SentLock.h"
#include "store/AppState.h"
#include "store/Keys.h"
#include "store/UserInterface.h"

namespace vorn {

DiscountController::DiscountController(AppState& state, Calculator& calculator, QObject* parent)
    : QObject(parent), m_state(state), m_calculator(calculator)
{
}

void DiscountController::showDiscountPopover()
{
    if (!m_shown &&
        !SentLock::openChargePopover(m_state, key::isDiscountEnabled, key::discountTitle, key::locDiscount))
        return;
    m_shown = !m_shown;
    Q_EMIT popoverChanged();
}

void DiscountController::recalculate()
{
    m_state.invoicesController().rearrangeObjects();
    m_calculator.calculateInvoice(m_state.currentInvoice());
    m_calculator.calculateDatabase();
}

void DiscountController::closeDiscountPopover()
{
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, tr("Discount"));
    recalculate();
    m_shown = false;
    Q_EMIT popoverChanged();
}

bool DiscountController::switchDiscountOff()
{
    ManagedObject* doc = SentLock::unlockedDocument(m_state);
    if (!doc)
        return false;
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, tr("Discount"));
    doc->setValue(key::isDiscountEnabled, false);
    recalculate();
    return true;
}

void DiscountController::makeDiscountTitleResponder()
{
    m_state.ui().focus(QStringLiteral("discountPopoverTitleView"));
}

void DiscountController::makeDiscountSubtitleTitleResponder()
{
    m_state.ui().focus(QStringLiteral("discountPopoverSubtitleView"));
}

} // namespace vorn
