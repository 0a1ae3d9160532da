#pragma once

#include <QString>

namespace vorn {

// International bank account numbers as people type them: with spaces, in
// lower case. The check is the ISO 13616 one (country, length, mod-97).
namespace Iban {

// Upper case, without spaces.
QString normalized(const QString& text);
// Well formed and the check digits agree.
bool isValid(const QString& text);
// A BIC: 8 or 11 letters and digits (bank, country, location, branch).
bool isValidBic(const QString& text);

} // namespace Iban
} // namespace vorn
