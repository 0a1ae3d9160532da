#include "einvoice/EInvoiceLog.h"

Q_LOGGING_CATEGORY(lcEInvoice, "vorn.einvoice", QtInfoMsg)
