#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace vorn {

class ManagedObject;
class Settings;

// The EPC QR code of a SEPA credit transfer ("BCD", version 002): banking
// apps read the payee, the IBAN, the amount in euros and the remittance text
// from it. Drawn as inline SVG, so a page needs no image file for it.
namespace PaymentQrCode {

struct Payment
{
    QString bic; // may be empty (version 002, within the EEA)
    QString name;
    QString iban;
    qint64 cents = 0;
    QString remittance;
};

// Whom a transfer goes to: the account holder, else the legal name, else the
// company name (trimmed; empty when none is set).
QString payeeName(const Settings& settings);
// The payment a document asks for, or nothing when it asks for none the code
// can carry: a quote, a currency other than the euro, no valid IBAN, an
// amount outside 0.01 .. 999999999.99, no payee name.
std::optional<Payment> paymentForDocument(const ManagedObject& document, const Settings& settings);
// The payload text: one field per line.
QByteArray payload(const Payment& payment);
// The QR code (error correction M, UTF-8) as an <svg> element with a quiet
// zone; empty when the text does not fit a QR code.
QString svg(const QByteArray& payload);
// The "%PAYMENTQR%" value of a document: the code, or empty.
QString forDocument(const ManagedObject& document, const Settings& settings);

} // namespace PaymentQrCode
} // namespace vorn
