#pragma once

#include <QList>
#include <QString>

namespace vorn {

class Formatter;
class ManagedObject;
class Settings;

// What the interface shows for document state: the status stamps (names of
// image resources), the editable flags that depend on the status, and the
// bracketed net amount of an item row. One-way: nothing transforms back.
namespace ValueTransformers {

// The large stamp of the first selected document: "Stamp5" for a quote,
// "Stamp1".."Stamp4" for an invoice of status 1 to 4, "Stamp0" otherwise;
// empty for an empty selection.
QString entityToImage(const QList<ManagedObject*>& selection);
// The small stamp of a list row: "StampM5" for a quote, "StampM0".."StampM4"
// for an invoice of status 0 to 4, "StampM0" for higher; empty for none.
QString entityToImageTable(const ManagedObject* document);
// Fields that stay editable until the invoice is paid: status below 3.
bool intToDateBool(qint64 status);
// Fields that stay editable until it is partly paid: status below 4.
bool intToAmountBool(qint64 status);
// The editable flag of a document: quotes and created invoices are
// editable, sent invoices read-only; no document is not editable.
bool invoiceSentToBool(const ManagedObject* document);
// "(1,234.50)" in the user's locale when item rows show net amounts
// (showItemSubAmount), else empty.
QString numberToSubAmountString(float amount, const Settings& settings);
// The same with a formatter the caller keeps (a table drawing many rows).
QString numberToSubAmountString(float amount, const Settings& settings, const Formatter& formatter);

} // namespace ValueTransformers
} // namespace vorn
