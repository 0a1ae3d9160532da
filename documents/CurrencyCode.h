#pragma once

#include <QString>

namespace vorn {

// Documents carry their currency as the text the user typed ("€", "EUR",
// "Euro", "CHF"); payments and e-invoices need its ISO 4217 code.
namespace CurrencyCode {

// The code, or an empty string when the text names no currency for sure
// ("$" could be any dollar).
QString isoCode(const QString& text);

} // namespace CurrencyCode
} // namespace vorn
