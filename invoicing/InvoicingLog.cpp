#include "invoicing/InvoicingLog.h"

Q_LOGGING_CATEGORY(lcInvoicing, "vorn.invoicing", QtInfoMsg)
