#pragma once

#include <QString>

// The document attributes of e-invoices: empty on every document until the
// user fills them in.
namespace vorn::documentKey {

inline const QString buyerCountryCode = QStringLiteral("buyerCountryCode");
inline const QString buyerVatID = QStringLiteral("buyerVatID");
inline const QString buyerReference = QStringLiteral("buyerReference"); // or the Leitweg-ID
inline const QString orderReference = QStringLiteral("orderReference");

} // namespace vorn::documentKey
