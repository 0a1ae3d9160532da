#include "einvoice/EInvoiceValidator.h"

#include "documents/Iban.h"

#include <QCoreApplication>
#include <QSet>

namespace vorn::EInvoiceValidator {

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(vorn::EInvoiceValidator)
};

QString tr(const char* text)
{
    return Texts::tr(text);
}

// ISO 3166-1 alpha-2, and XI (Northern Ireland), which EN 16931 accepts.
const QSet<QString>& countryCodes()
{
    static const QSet<QString> codes = [] {
        const char* list =
            "AD AE AF AG AI AL AM AO AQ AR AS AT AU AW AX AZ BA BB BD BE BF BG BH BI BJ BL BM BN BO BQ BR BS "
            "BT BV BW BY BZ CA CC CD CF CG CH CI CK CL CM CN CO CR CU CV CW CX CY CZ DE DJ DK DM DO DZ EC EE "
            "EG EH ER ES ET FI FJ FK FM FO FR GA GB GD GE GF GG GH GI GL GM GN GP GQ GR GS GT GU GW GY HK HM "
            "HN HR HT HU ID IE IL IM IN IO IQ IR IS IT JE JM JO JP KE KG KH KI KM KN KP KR KW KY KZ LA LB LC "
            "LI LK LR LS LT LU LV LY MA MC MD ME MF MG MH MK ML MM MN MO MP MQ MR MS MT MU MV MW MX MY MZ NA "
            "NC NE NF NG NI NL NO NP NR NU NZ OM PA PE PF PG PH PK PL PM PN PR PS PT PW PY QA RE RO RS RU RW "
            "SA SB SC SD SE SG SH SI SJ SK SL SM SN SO SR SS ST SV SX SY SZ TC TD TF TG TH TJ TK TL TM TN TO "
            "TR TT TV TW TZ UA UG UM US UY UZ VA VC VE VG VI VN VU WF WS XI YE YT ZA ZM ZW";
        QSet<QString> set;
        for (const QString& code : QString::fromLatin1(list).split(QLatin1Char(' ')))
            set.insert(code);
        return set;
    }();
    return codes;
}

bool isCountryCode(const QString& code)
{
    return countryCodes().contains(code);
}

// VAT identifiers begin with the country code, "EL" for Greece.
bool hasVatPrefix(const QString& vatID)
{
    return vatID.size() > 2 && (isCountryCode(vatID.left(2)) || vatID.startsWith(QLatin1String("EL")));
}

} // namespace

QStringList problems(const EInvoiceData& e)
{
    QStringList out;
    auto need = [&out](bool ok, const char* message) {
        if (!ok)
            out << tr(message);
    };
    const bool xrechnung = e.profile == EInvoiceProfile::XRechnung;

    if (!e.isInvoice) {
        out << tr("Only invoices can be sent as e-invoices; this is a quote.");
        return out;
    }
    need(!e.number.isEmpty(), QT_TR_NOOP("The invoice number is missing."));
    need(e.issueDate.isValid(), QT_TR_NOOP("The invoice date is missing."));
    if (e.currencyText.trimmed().isEmpty())
        out << tr("The invoice's currency is missing.");
    else if (e.currency.isEmpty())
        out << tr("The currency “%1” has no ISO code: write it as a three-letter code such as EUR.")
                   .arg(e.currencyText.trimmed());

    const EInvoiceData::Party& seller = e.seller;
    need(!seller.name.isEmpty(), QT_TR_NOOP("The seller's legal name is missing."));
    need(!seller.street.isEmpty(), QT_TR_NOOP("The seller's street is missing."));
    need(!seller.postcode.isEmpty(), QT_TR_NOOP("The seller's postcode is missing."));
    need(!seller.city.isEmpty(), QT_TR_NOOP("The seller's city is missing."));
    if (seller.countryCode.isEmpty())
        out << tr("The seller's country is missing.");
    else if (!isCountryCode(seller.countryCode))
        out << tr("The seller's country “%1” is not a two-letter country code such as DE.")
                   .arg(seller.countryCode);
    if (seller.vatID.isEmpty() && seller.taxNumber.isEmpty())
        out << tr("The seller's VAT identifier or tax number is missing.");
    if (!seller.vatID.isEmpty() && !hasVatPrefix(seller.vatID))
        out << tr("The seller's VAT identifier “%1” must begin with its country code, as in DE123456789.")
                   .arg(seller.vatID);

    if (e.iban.isEmpty())
        out << tr("The seller's IBAN is missing.");
    else if (!Iban::isValid(e.iban))
        out << tr("The IBAN “%1” is not valid: its length or check digits are wrong.").arg(e.iban);
    if (!e.bic.isEmpty() && !Iban::isValidBic(e.bic))
        out << tr("The BIC “%1” is not valid: it has 8 or 11 letters and digits.").arg(e.bic);

    const EInvoiceData::Party& buyer = e.buyer;
    need(!buyer.name.isEmpty(),
         QT_TR_NOOP("The buyer's name is missing: it is the first line of the address."));
    if (buyer.countryCode.isEmpty())
        out << tr("The buyer's country is missing.");
    else if (!isCountryCode(buyer.countryCode))
        out << tr("The buyer's country “%1” is not a two-letter country code such as DE.")
                   .arg(buyer.countryCode);
    if (!buyer.vatID.isEmpty() && !hasVatPrefix(buyer.vatID))
        out << tr("The buyer's VAT identifier “%1” must begin with its country code, as in FR12345678901.")
                   .arg(buyer.vatID);

    if (e.lines.isEmpty())
        out << tr("The invoice has no items.");
    for (const EInvoiceData::Line& line : e.lines) {
        if (line.name.isEmpty())
            out << tr("Item %1 has no description.").arg(line.id);
    }
    if (!e.lines.isEmpty() && e.grandTotal <= 0)
        out << tr("The invoice total must be more than zero: an invoice with a negative total is a credit "
                  "note.");
    // A difference of more than a cent per amount means the stored amounts
    // are not those of the items (the invoice was not recomputed).
    const qint64 tolerance = e.lines.size() + e.allowancesCharges.size() + 1;
    if (e.rounding > tolerance || e.rounding < -tolerance)
        out << tr("The invoice's amounts do not add up: change an item or recompute the invoice, then "
                  "export it again.");

    if (xrechnung) {
        need(!e.buyerReference.isEmpty(), QT_TR_NOOP("The buyer reference (Leitweg-ID) is missing."));
        need(!seller.email.isEmpty(), QT_TR_NOOP("The seller's contact e-mail is missing."));
        need(!seller.phone.isEmpty(), QT_TR_NOOP("The seller's contact phone is missing."));
        need(!buyer.email.isEmpty(), QT_TR_NOOP("The buyer's e-mail address is missing."));
        need(!buyer.postcode.isEmpty() && !buyer.city.isEmpty(),
             QT_TR_NOOP("The buyer's postcode and city are missing: write them on the last line of the "
                        "address, as in “10115 Berlin”."));
    }
    return out;
}

} // namespace vorn::EInvoiceValidator
