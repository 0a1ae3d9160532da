#pragma once

#include "einvoice/EInvoiceData.h"

#include <QStringList>

namespace vorn {

// The rules of EN 16931 (and of XRechnung, for that profile) that can be
// checked on Vorn's data, said in the user's words: what is missing or wrong,
// and where to put it right. An e-invoice is written only when the list is
// empty.
namespace EInvoiceValidator {

QStringList problems(const EInvoiceData& invoice);

} // namespace EInvoiceValidator
} // namespace vorn
