#include "documents/PaymentQrCode.h"

#include "documents/CurrencyCode.h"
#include "documents/Iban.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"

#include <qrencode.h>

#include <cmath>
#include <memory>

namespace vorn::PaymentQrCode {

namespace {

constexpr qint64 maximumCents = 99999999999; // 999999999.99
constexpr int nameLimit = 70;
constexpr int remittanceLimit = 140;
constexpr int quietZone = 4; // modules of white around the code

// The EPC fields count characters; longer texts are cut rather than refused.
QString limited(const QString& text, int limit)
{
    QString simple = text.simplified();
    return simple.size() > limit ? simple.left(limit) : simple;
}

} // namespace

QString payeeName(const Settings& settings)
{
    for (const QString& key : {key::prefsAccountHolder, key::prefsLegalName, key::prefsName})
        if (QString name = settings.stringValue(key).trimmed(); !name.isEmpty())
            return name;
    return {};
}

std::optional<Payment> paymentForDocument(const ManagedObject& document, const Settings& settings)
{
    if (!document.isInvoice())
        return std::nullopt;
    if (CurrencyCode::isoCode(document.stringValue(key::currency)) != QLatin1String("EUR"))
        return std::nullopt;
    const QString iban = Iban::normalized(settings.stringValue(key::prefsIBAN));
    if (!Iban::isValid(iban))
        return std::nullopt;
    // What the page shows as the total, to the cent.
    const double total = std::round(double(document.floatValue(key::amount)) * 100.0);
    if (!(total >= 1 && total <= double(maximumCents)))
        return std::nullopt;

    Payment payment;
    payment.iban = iban;
    payment.cents = qint64(total);
    const QString bic = Iban::normalized(settings.stringValue(key::prefsBIC));
    payment.bic = Iban::isValidBic(bic) ? bic : QString();
    payment.name = limited(payeeName(settings), nameLimit);
    if (payment.name.isEmpty())
        return std::nullopt;
    payment.remittance = limited(
        QStringLiteral("%1 %2").arg(document.stringValue(key::title), document.stringValue(key::number)),
        remittanceLimit);
    return payment;
}

QByteArray payload(const Payment& p)
{
    const QString amount =
        QStringLiteral("EUR%1.%2").arg(p.cents / 100).arg(p.cents % 100, 2, 10, QLatin1Char('0'));
    // Service tag, version, UTF-8, SEPA credit transfer, BIC, name, IBAN,
    // amount, purpose, structured reference, remittance text.
    const QStringList lines{QStringLiteral("BCD"),
                            QStringLiteral("002"),
                            QStringLiteral("1"),
                            QStringLiteral("SCT"),
                            p.bic,
                            p.name,
                            p.iban,
                            amount,
                            QString(),
                            QString(),
                            p.remittance};
    return lines.join(QLatin1Char('\n')).toUtf8();
}

QString svg(const QByteArray& payload)
{
    std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
        QRcode_encodeString8bit(payload.constData(), 0, QR_ECLEVEL_M), &QRcode_free);
    if (!code)
        return {};
    const int width = code->width;
    const int size = width + 2 * quietZone;
    QString path;
    path.reserve(width * width * 4);
    for (int y = 0; y < width; ++y) {
        for (int x = 0; x < width; ++x) {
            // Runs of dark modules become one rectangle each.
            if (!(code->data[y * width + x] & 1))
                continue;
            int run = 1;
            while (x + run < width && (code->data[y * width + x + run] & 1))
                ++run;
            path += QStringLiteral("M%1 %2h%3v1h-%3z").arg(x + quietZone).arg(y + quietZone).arg(run);
            x += run - 1;
        }
    }
    return QStringLiteral(
               "<svg xmlns=\"http://www.w3.org/2000/svg\" class=\"payment-qr\" "
               "viewBox=\"0 0 %1 %1\" width=\"%2mm\" height=\"%2mm\" "
               "style=\"float:right;margin:0 0 2mm 4mm\" shape-rendering=\"crispEdges\" role=\"img\" "
               "aria-label=\"Payment QR code\">"
               "<rect width=\"%1\" height=\"%1\" fill=\"#fff\"/>"
               "<path d=\"%3\" fill=\"#000\"/></svg>")
        .arg(size)
        .arg(size * 0.5, 0, 'f', 1) // half a millimetre per module scans well from paper
        .arg(path);
}

QString forDocument(const ManagedObject& document, const Settings& settings)
{
    const std::optional<Payment> payment = paymentForDocument(document, settings);
    return payment ? svg(payload(*payment)) : QString();
}

} // namespace vorn::PaymentQrCode
