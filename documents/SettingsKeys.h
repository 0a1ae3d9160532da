#pragma once

#include <QString>

// The settings of the seller's e-invoicing and payment data. All of them are
// empty until the user fills them in; nothing printed before uses them.
namespace vorn::settingsKey {

inline const QString legalName = QStringLiteral("prefsLegalName");
inline const QString street = QStringLiteral("prefsStreet");
inline const QString postcode = QStringLiteral("prefsPostcode");
inline const QString city = QStringLiteral("prefsCity");
inline const QString countryCode = QStringLiteral("prefsCountryCode");
inline const QString vatID = QStringLiteral("prefsVatID");
inline const QString taxNumber = QStringLiteral("prefsTaxNumber");
inline const QString contactEmail = QStringLiteral("prefsContactEmail");
inline const QString contactPhone = QStringLiteral("prefsContactPhone");
inline const QString iban = QStringLiteral("prefsIBAN");
inline const QString bic = QStringLiteral("prefsBIC");
inline const QString accountHolder = QStringLiteral("prefsAccountHolder");
// The PDF export makes Factur-X files (the invoice's data embedded).
inline const QString facturXDefault = QStringLiteral("prefsFacturXDefault");

} // namespace vorn::settingsKey
