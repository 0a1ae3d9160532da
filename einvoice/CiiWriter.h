#pragma once

#include "einvoice/EInvoiceData.h"

#include <QByteArray>

namespace vorn {

// Writes an invoice as a UN/CEFACT Cross Industry Invoice (D16B) of the
// EN 16931 profile, or of XRechnung with its guideline identifier.
namespace CiiWriter {

inline constexpr const char* en16931Guideline = "urn:cen.eu:en16931:2017";
inline constexpr const char* xrechnungGuideline =
    "urn:cen.eu:en16931:2017#compliant#urn:xeinkauf.de:kosit:xrechnung_3.0";
inline constexpr const char* peppolProcess = "urn:fdc:peppol.eu:2017:poacc:billing:01.0";

QByteArray write(const EInvoiceData& invoice);

} // namespace CiiWriter
} // namespace vorn
