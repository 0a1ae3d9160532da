#pragma once

#include <QtGlobal>

namespace vorn {

// The small integer codes of a document, named. The store keeps them as the
// integers of the file formats; ManagedObject's document accessors convert.

// `kind`: 0 is a quote; any other stored value reads as an invoice.
enum class DocumentKind : qint64
{
    Quote = 0,
    Invoice = 1
};

// `status`: the stored number as it is; 1 or more counts as sent (and locks
// the document against edits). Values above PartlyPaid are kept, not clamped.
enum class DocumentStatus : qint64
{
    Created = 0,
    Sent = 1,
    Overdue = 2,
    Paid = 3,
    PartlyPaid = 4
};

// `discountKind`: 0 takes `discountAmount` off; any other value reads as a
// rate (`discountPercent`).
enum class DiscountKind : qint64
{
    Amount = 0,
    Rate = 1
};

} // namespace vorn
