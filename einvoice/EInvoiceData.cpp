#include "einvoice/EInvoiceData.h"

#include "documents/CurrencyCode.h"
#include "documents/Iban.h"
#include "documents/PaymentQrCode.h"
#include "einvoice/UnitCodes.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <cmath>

namespace vorn {

namespace {

class EInvoiceTexts
{
    Q_DECLARE_TR_FUNCTIONS(EInvoiceData)
};

constexpr long double rateScale = 100000.0L; // thousandths of a percent per unit fraction

qint64 scaled(float value, long double factor)
{
    return std::llround(static_cast<long double>(value) * factor);
}

// Half away from zero, as the rules' own checks round positive amounts.
qint64 rounded(long double value)
{
    return std::llround(value);
}

// The one VAT rate EN 16931 allows per line, made from Vorn's up to three
// taxes: the rates are read as the decimals the user typed (0.19f is 19 %),
// and a compound tax is charged on the net plus the taxes before it, as the
// calculator does, so it adds its rate times (1 + the earlier rates).
qint64 combinedRate(const bool applied[3], bool compound2, bool compound3, const float percent[3])
{
    const long double r1 = scaled(percent[0], rateScale);
    const long double r2 = scaled(percent[1], rateScale);
    const long double r3 = scaled(percent[2], rateScale);
    long double rate = 0;
    if (applied[0])
        rate += r1;
    if (applied[1])
        rate += compound2 ? r2 * (1 + r1 / rateScale) : r2;
    if (applied[2])
        rate += compound3 ? r3 * (1 + r1 / rateScale) * (1 + r2 / rateScale) : r3;
    return rounded(rate);
}

EInvoiceData::Vat vatForRate(qint64 rate)
{
    return rate == 0 ? EInvoiceData::Vat{QStringLiteral("E"), 0}
                     : EInvoiceData::Vat{QStringLiteral("S"), rate};
}

qint64 taxOf(qint64 basis, qint64 rate)
{
    return rounded(static_cast<long double>(basis) * rate / rateScale);
}

// Documents keep user text as markup; the XML wants plain text.
QString plainText(const QString& markup)
{
    QString text = markup;
    text.replace(QRegularExpression(QStringLiteral("<br\\s*/?>"), QRegularExpression::CaseInsensitiveOption),
                 QStringLiteral("\n"));
    text.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    text.replace(QLatin1String("&nbsp;"), QLatin1String(" "));
    text.replace(QLatin1String("&lt;"), QLatin1String("<"));
    text.replace(QLatin1String("&gt;"), QLatin1String(">"));
    text.replace(QLatin1String("&quot;"), QLatin1String("\""));
    text.replace(QLatin1String("&#39;"), QLatin1String("'"));
    text.replace(QLatin1String("&amp;"), QLatin1String("&"));
    QStringList lines;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        const QString simple = line.simplified();
        if (!simple.isEmpty())
            lines << simple;
    }
    return lines.join(QLatin1Char('\n'));
}

QDate localDate(const QDateTime& time)
{
    return time.isValid() ? time.toLocalTime().date() : QDate();
}

// The client's address block: the name on the first line, then the street,
// and "postcode city" on the last line that starts with a postcode (a line
// after it, such as the country's name, is left out).
void readAddressBlock(const QString& block, EInvoiceData::Party& party)
{
    QStringList lines = plainText(block).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (lines.isEmpty())
        return;
    party.name = lines.takeFirst();
    static const QRegularExpression postcodeCity(QStringLiteral("^((?:[A-Z]{1,3}-)?\\d[\\dA-Z-]*)\\s+(.+)$"));
    int cityLine = -1;
    for (int i = lines.size() - 1; i >= 0 && cityLine < 0; --i) {
        const QRegularExpressionMatch m = postcodeCity.match(lines[i]);
        if (m.hasMatch()) {
            cityLine = i;
            party.postcode = m.captured(1);
            party.city = m.captured(2);
        }
    }
    if (cityLine < 0 && !lines.isEmpty()) {
        cityLine = lines.size() - 1;
        party.city = lines.last();
    }
    if (cityLine > 0)
        party.street = lines[0];
    if (cityLine > 1)
        party.addressLine2 = lines.mid(1, cityLine - 1).join(QStringLiteral(", "));
}

} // namespace

QString EInvoiceData::exemptionReason()
{
    return EInvoiceTexts::tr("No tax charged");
}

QString EInvoiceData::amountText(qint64 cents)
{
    return decimalText(cents, 2, 2);
}

QString EInvoiceData::decimalText(qint64 value, int scaleDigits, int minDecimals)
{
    const bool negative = value < 0;
    const quint64 magnitude = negative ? quint64(-value) : quint64(value);
    quint64 scale = 1;
    for (int i = 0; i < scaleDigits; ++i)
        scale *= 10;
    QString fraction = QString::number(magnitude % scale).rightJustified(scaleDigits, QLatin1Char('0'));
    while (fraction.size() > minDecimals && fraction.endsWith(QLatin1Char('0')))
        fraction.chop(1);
    QString text = QString::number(magnitude / scale);
    if (!fraction.isEmpty())
        text += QLatin1Char('.') + fraction;
    return negative ? QLatin1Char('-') + text : text;
}

EInvoiceData EInvoiceData::fromDocument(const ManagedObject& d, const Settings& s, EInvoiceProfile profile)
{
    EInvoiceData e;
    e.profile = profile;
    e.isInvoice = d.isInvoice();
    e.number = d.stringValue(key::number).trimmed();
    e.issueDate = localDate(d.dateValue(key::date));
    e.dueDate = localDate(d.dateValue(key::due));
    e.currencyText = d.stringValue(key::currency);
    e.currency = CurrencyCode::isoCode(e.currencyText);
    e.paymentTerms = plainText(d.stringValue(key::conditions));
    e.buyerReference = d.stringValue(key::buyerReference).trimmed();
    e.orderReference = d.stringValue(key::orderReference).trimmed();
    const QString subject = plainText(d.stringValue(key::subject));
    if (!subject.isEmpty())
        e.notes << subject;

    Party& seller = e.seller;
    seller.name = s.stringValue(key::prefsLegalName).trimmed();
    if (seller.name.isEmpty())
        seller.name = s.stringValue(key::prefsName).trimmed();
    seller.contactName = s.stringValue(key::prefsName).trimmed();
    if (seller.contactName.isEmpty())
        seller.contactName = seller.name;
    seller.street = s.stringValue(key::prefsStreet).trimmed();
    seller.postcode = s.stringValue(key::prefsPostcode).trimmed();
    seller.city = s.stringValue(key::prefsCity).trimmed();
    seller.countryCode = s.stringValue(key::prefsCountryCode).trimmed().toUpper();
    seller.vatID = Iban::normalized(s.stringValue(key::prefsVatID));
    seller.taxNumber = s.stringValue(key::prefsTaxNumber).trimmed();
    seller.email = s.stringValue(key::prefsContactEmail).trimmed();
    seller.phone = s.stringValue(key::prefsContactPhone).trimmed();

    Party& buyer = e.buyer;
    readAddressBlock(d.stringValue(key::address), buyer);
    buyer.countryCode = d.stringValue(key::buyerCountryCode).trimmed().toUpper();
    buyer.vatID = Iban::normalized(d.stringValue(key::buyerVatID));
    buyer.email = d.stringValue(key::emailAddress).trimmed();

    e.iban = Iban::normalized(s.stringValue(key::prefsIBAN));
    e.bic = Iban::normalized(s.stringValue(key::prefsBIC));
    e.accountHolder = PaymentQrCode::payeeName(s);

    // Lines: quantity and price to four decimals, the net to the cent.
    int id = 0;
    for (const ManagedObject* item : d.items()) {
        Line line;
        line.id = ++id;
        line.name = plainText(item->stringValue(key::title));
        line.description = plainText(item->stringValue(key::subtitle));
        line.sku = item->stringValue(key::sku).trimmed();
        line.unitCode = UnitCodes::code(item->stringValue(key::unit));
        line.quantity = scaled(item->floatValue(key::unitCount), 10000);
        line.price = scaled(item->floatValue(key::baseAmount), 10000);
        line.net = rounded(static_cast<long double>(line.quantity) * line.price / 1000000.0L);
        const bool applied[3] = {item->boolValue(key::isTax1Applied), item->boolValue(key::isTax2Applied),
                                 item->boolValue(key::isTax3Applied)};
        const float percent[3] = {item->floatValue(key::tax1Percent), item->floatValue(key::tax2Percent),
                                  item->floatValue(key::tax3Percent)};
        line.vat = vatForRate(combinedRate(applied, item->boolValue(key::isTax2Compound),
                                           item->boolValue(key::isTax3Compound), percent));
        e.lineTotal += line.net;
        e.lines << line;
    }

    // Shipping is a document-level charge with the shipping's own taxes, on
    // the document's rates and the compounding of the settings.
    if (d.boolValue(key::isShippingEnabled)) {
        AllowanceCharge shipping;
        shipping.charge = true;
        shipping.amount = scaled(d.floatValue(key::shippingAmount), 100);
        shipping.reason = plainText(d.stringValue(key::shippingTitle));
        if (shipping.reason.isEmpty())
            shipping.reason = EInvoiceTexts::tr("Shipping");
        const bool applied[3] = {d.boolValue(key::isShippingTax1Enabled),
                                 d.boolValue(key::isShippingTax2Enabled),
                                 d.boolValue(key::isShippingTax3Enabled)};
        const float percent[3] = {d.floatValue(key::tax1Percent), d.floatValue(key::tax2Percent),
                                  d.floatValue(key::tax3Percent)};
        shipping.vat = vatForRate(combinedRate(applied, s.boolValue(key::tax2IsCompound),
                                               s.boolValue(key::tax3IsCompound), percent));
        if (shipping.amount < 0) {
            shipping.charge = false;
            shipping.amount = -shipping.amount;
        }
        if (shipping.amount != 0)
            e.allowancesCharges << shipping;
    }

    auto addToBreakdown = [&e](const Vat& vat, qint64 amount) {
        for (VatBreakdown& entry : e.breakdown) {
            if (entry.vat == vat) {
                entry.basis += amount;
                return;
            }
        }
        e.breakdown << VatBreakdown{vat, amount, 0};
    };
    for (const Line& line : std::as_const(e.lines))
        addToBreakdown(line.vat, line.net);
    for (const AllowanceCharge& ac : std::as_const(e.allowancesCharges))
        addToBreakdown(ac.vat, ac.charge ? ac.amount : -ac.amount);
    qint64 taxBeforeDiscount = 0;
    for (VatBreakdown& entry : e.breakdown) {
        entry.tax = taxOf(entry.basis, entry.vat.rate);
        taxBeforeDiscount += entry.tax;
    }

    // Vorn takes the discount off the gross total and leaves the taxes as
    // they are. Said in EN 16931 terms: a document-level allowance in the
    // exempt category, which lowers the amount due but no VAT.
    if (d.boolValue(key::isDiscountEnabled)) {
        qint64 chargesNet = 0;
        for (const AllowanceCharge& ac : std::as_const(e.allowancesCharges))
            chargesNet += ac.charge ? ac.amount : -ac.amount;
        const qint64 gross = e.lineTotal + chargesNet + taxBeforeDiscount;
        qint64 discount = 0;
        QString reason = plainText(d.stringValue(key::discountTitle));
        if (d.intValue(key::discountKind) != 0) {
            const qint64 rate = scaled(d.floatValue(key::discountPercent), rateScale);
            discount = taxOf(gross, rate);
            if (reason.isEmpty())
                reason = EInvoiceTexts::tr("Discount of %1 % on the total").arg(decimalText(rate, 3, 0));
        } else {
            discount = scaled(d.floatValue(key::discountAmount), 100);
        }
        if (reason.isEmpty())
            reason = EInvoiceTexts::tr("Discount on the total");
        if (discount != 0) {
            AllowanceCharge allowance{discount < 0, discount < 0 ? -discount : discount, reason,
                                      Vat{QStringLiteral("E"), 0}};
            e.allowancesCharges << allowance;
            addToBreakdown(allowance.vat, allowance.charge ? allowance.amount : -allowance.amount);
        }
    }

    for (VatBreakdown& entry : e.breakdown) {
        entry.tax = taxOf(entry.basis, entry.vat.rate);
        e.taxTotal += entry.tax;
    }
    for (const AllowanceCharge& ac : std::as_const(e.allowancesCharges))
        (ac.charge ? e.chargeTotal : e.allowanceTotal) += ac.amount;
    e.taxBasisTotal = e.lineTotal - e.allowanceTotal + e.chargeTotal;
    e.grandTotal = e.taxBasisTotal + e.taxTotal;
    e.printedTotal = scaled(d.floatValue(key::amount), 100);
    e.rounding = e.printedTotal - e.grandTotal;
    e.duePayable = e.grandTotal + e.rounding;
    if (e.rounding != 0)
        e.notes << EInvoiceTexts::tr("The amounts are computed without rounding and printed to the cent; "
                                     "the VAT computed per rate from the rounded line amounts differs from "
                                     "the printed total by %1 %2, given as the rounding amount.")
                       .arg(amountText(e.rounding), e.currency);
    return e;
}

} // namespace vorn
