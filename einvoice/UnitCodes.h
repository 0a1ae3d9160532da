#pragma once

#include <QString>

namespace vorn {

// Vorn's units are free text ("Std.", "hours", "Stück"); e-invoices name
// them by the codes of UN/ECE Recommendation 20.
namespace UnitCodes {

// The code of a unit text; "C62" ("one") for anything not recognised.
QString code(const QString& unit);

} // namespace UnitCodes
} // namespace vorn
