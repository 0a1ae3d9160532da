#include "invoicing/SaveLog.h"

#include "invoicing/InvoicingLog.h"
#include "store/ObjectContext.h"

namespace vorn {

void saveLoggingFailure(ObjectContext* context)
{
    if (!context)
        return;
    if (Status s = context->save(); !s)
        qCWarning(lcInvoicing).noquote()
            << QStringLiteral("Unresolved error %1, %2").arg(s.error().message, s.error().reason);
}

} // namespace vorn
