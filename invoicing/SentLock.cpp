#include "invoicing/SentLock.h"

#include "store/AppState.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "store/UserInterface.h"

namespace vorn {

QString SentLock::title()
{
    return tr("Error!");
}

QString SentLock::message()
{
    return tr(
        "The selected invoice is marked as already sent. If you really need to make changes, please set its "
        "status back to 'Created' first. Then you will also be able to resend the modified invoice.");
}

bool SentLock::refuse(AppState& state)
{
    if (!state.isCurrentInvoiceSent())
        return false;
    state.ui().runAlert({title(), message(), {tr("OK")}, UserInterface::AlertStyle::Warning, false});
    return true;
}

ManagedObject* SentLock::unlockedDocument(AppState& state)
{
    if (refuse(state))
        return nullptr;
    return state.currentInvoice();
}

bool SentLock::openChargePopover(AppState& state, const QString& enabledKey, const QString& titleKey,
                                 const QString& defaultTitleKey)
{
    if (refuse(state))
        return false;
    ManagedObject* doc = state.currentInvoice();
    if (!doc) {
        state.ui().beep();
        return false;
    }
    const QString defaultTitle = state.settings().stringValue(defaultTitleKey);
    if (!doc->boolValue(enabledKey) && doc->stringValue(titleKey).isEmpty() && !defaultTitle.isEmpty())
        doc->setValue(titleKey, defaultTitle);
    return true;
}

} // namespace vorn
