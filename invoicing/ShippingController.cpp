#include "invoicing/ShippingController.h"

#include "invoicing/Calculator.h"
#include "invoicing/SentLock.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/Settings.h"
#include "store/UniqueId.h"
#include "store/UserInterface.h"

namespace vorn {

ShippingController::ShippingController(AppState& state, Calculator& calculator, QObject* parent)
    : QObject(parent), m_state(state), m_calculator(calculator)
{
}

void ShippingController::showShippingPopover()
{
    if (!m_shown) {
        if (!SentLock::openChargePopover(m_state, key::isShippingEnabled, key::shippingTitle,
                                         key::locShipping))
            return;
        m_state.settings().setValue(key::shippingTabViewIndex,
                                    m_state.settings().intValue(key::alwaysShowRecentShipping));
    }
    m_shown = !m_shown;
    Q_EMIT popoverChanged();
}

void ShippingController::recalculate()
{
    m_state.invoicesController().rearrangeObjects();
    m_calculator.calculateInvoice(m_state.currentInvoice());
}

void ShippingController::closeShippingPopover()
{
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, tr("Shipping"));
    recalculate();
    m_shown = false;
    Q_EMIT popoverChanged();
    m_calculator.calculateDatabase();
    rememberCharge();
}

void ShippingController::rememberCharge()
{
    ObjectContext* context = m_state.context();
    const ManagedObject* doc = m_state.currentInvoice();
    if (!context || !doc)
        return;
    const QString title = doc->stringValue(key::shippingTitle);
    const float amount = doc->floatValue(key::shippingAmount);
    ArrayController& recent = m_state.recentShippingArrayController();
    for (const ManagedObject* r : recent.arrangedObjects())
        if (r->stringValue(key::title) == title && r->floatValue(key::amount) == amount)
            return;
    ManagedObject* r = context->insertNewObject(Entity::RecentShipping);
    r->setValue(key::uniqueID, globallyUniqueString());
    r->setValue(key::title, title);
    r->setValue(key::subtitle, doc->stringValue(key::shippingSubtitle));
    r->setValue(key::note, m_note);
    r->setValue(key::hasSubtitle, doc->boolValue(key::hasShippingSubtitle));
    r->setValue(key::isTax1Enabled, doc->boolValue(key::isShippingTax1Enabled));
    r->setValue(key::isTax2Enabled, doc->boolValue(key::isShippingTax2Enabled));
    r->setValue(key::isTax3Enabled, doc->boolValue(key::isShippingTax3Enabled));
    r->setValue(key::amount, amount);
    r->setValue(key::misc1, QString());
    r->setValue(key::misc2, qint64(0));
    r->setValue(key::misc3, 0.0f);
    r->setValue(key::misc4, false);
    r->setValue(key::misc5, m_state.clock().now());
    // Saved with the next save of the store.
    recent.addObject(r);
    recent.rearrangeObjects();
}

void ShippingController::cancelShippingPopover()
{
    m_shown = false;
    Q_EMIT popoverChanged();
}

void ShippingController::selectRecentShipping()
{
    ManagedObject* doc = m_state.currentInvoice();
    const ManagedObject* r = m_state.recentShippingArrayController().selectedObject();
    if (!doc || !r)
        return;
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, tr("Shipping"));
    // The note stays with the remembered charge.
    doc->setValue(key::shippingTitle, r->stringValue(key::title));
    doc->setValue(key::shippingSubtitle, r->stringValue(key::subtitle));
    doc->setValue(key::isShippingEnabled, true);
    doc->setValue(key::hasShippingSubtitle, r->boolValue(key::hasSubtitle));
    doc->setValue(key::isShippingTax1Enabled, r->boolValue(key::isTax1Enabled));
    doc->setValue(key::isShippingTax2Enabled, r->boolValue(key::isTax2Enabled));
    doc->setValue(key::isShippingTax3Enabled, r->boolValue(key::isTax3Enabled));
    doc->setValue(key::shippingAmount, r->floatValue(key::amount));
    recalculate();
    m_calculator.calculateDatabase();
    m_shown = false;
    Q_EMIT popoverChanged();
}

bool ShippingController::switchShippingOff()
{
    ManagedObject* doc = SentLock::unlockedDocument(m_state);
    if (!doc)
        return false;
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, tr("Shipping"));
    doc->setValue(key::isShippingEnabled, false);
    recalculate();
    m_calculator.calculateDatabase();
    return true;
}

void ShippingController::makeShippingTitleResponder()
{
    // The title's Return key leads on to the amount.
    m_state.ui().focus(QStringLiteral("shippingPopoverAmountView"));
}

void ShippingController::makeShippingSubtitleTitleResponder()
{
    m_state.ui().focus(QStringLiteral("shippingPopoverSubtitleView"));
}

} // namespace vorn
