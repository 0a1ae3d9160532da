#include "invoicing/SentLock.h"

#include "store/AppState.h"
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

} // namespace vorn
