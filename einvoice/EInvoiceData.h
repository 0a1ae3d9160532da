#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

namespace vorn {

class ManagedObject;
class Settings;

enum class EInvoiceProfile
{
    En16931,
    XRechnung
};

// An invoice as an e-invoice says it: every amount in cents, rounded once and
// then only added up, so that the totals satisfy the calculation rules of
// EN 16931 to the cent. Vorn's own amounts are single-precision and never
// rounded; where the two disagree by a cent, the difference is carried as the
// rounding amount and explained in a note.
struct EInvoiceData
{
    // A VAT category: "S" (standard rate) or "E" (exempt, rate 0).
    struct Vat
    {
        QString category;
        qint64 rate = 0; // thousandths of a percent: 19 % is 19000

        bool operator==(const Vat& other) const = default;
    };

    struct Party
    {
        QString name;
        QString contactName;
        QString street;
        QString addressLine2;
        QString postcode;
        QString city;
        QString countryCode;
        QString vatID;
        QString taxNumber;
        QString email;
        QString phone;
    };

    struct Line
    {
        int id = 0;
        QString name;
        QString description;
        QString sku;
        QString unitCode;
        qint64 quantity = 0; // ten-thousandths
        qint64 price = 0;    // ten-thousandths of the currency
        qint64 net = 0;      // cents
        Vat vat;
    };

    struct AllowanceCharge
    {
        bool charge = true;
        qint64 amount = 0; // cents, positive
        QString reason;
        Vat vat;
    };

    struct VatBreakdown
    {
        Vat vat;
        qint64 basis = 0;
        qint64 tax = 0;
    };

    EInvoiceProfile profile = EInvoiceProfile::En16931;
    bool isInvoice = true;
    QString number;
    QDate issueDate;
    QDate dueDate;
    QString currencyText; // as the document writes it
    QString currency;     // ISO 4217, empty when unknown
    QString paymentTerms;
    QString buyerReference;
    QString orderReference;
    QStringList notes;
    Party seller;
    Party buyer;
    QString iban;
    QString bic;
    QString accountHolder;

    QList<Line> lines;
    QList<AllowanceCharge> allowancesCharges;
    QList<VatBreakdown> breakdown;

    qint64 lineTotal = 0;
    qint64 chargeTotal = 0;
    qint64 allowanceTotal = 0;
    qint64 taxBasisTotal = 0;
    qint64 taxTotal = 0;
    qint64 grandTotal = 0;
    qint64 rounding = 0; // printed total minus grand total
    qint64 duePayable = 0;
    qint64 printedTotal = 0; // the document's own total, rounded to the cent

    // Gathers the invoice's data, the seller's settings and the amounts.
    static EInvoiceData fromDocument(const ManagedObject& document, const Settings& settings,
                                     EInvoiceProfile profile);

    // The reason given for the exempt category.
    static QString exemptionReason();
    // "12.30", "-0.05"
    static QString amountText(qint64 cents);
    // A scaled decimal without trailing zeros, at least minDecimals digits.
    static QString decimalText(qint64 value, int scaleDigits, int minDecimals);
};

} // namespace vorn
