#include "einvoice/CiiWriter.h"

#include <QXmlStreamWriter>

namespace vorn::CiiWriter {

namespace {

const QString rsm = QStringLiteral("urn:un:unece:uncefact:data:standard:CrossIndustryInvoice:100");
const QString ram =
    QStringLiteral("urn:un:unece:uncefact:data:standard:ReusableAggregateBusinessInformationEntity:100");
const QString udt = QStringLiteral("urn:un:unece:uncefact:data:standard:UnqualifiedDataType:100");
const QString qdt = QStringLiteral("urn:un:unece:uncefact:data:standard:QualifiedDataType:100");

class Writer
{
public:
    explicit Writer(QByteArray& out) : m_xml(&out)
    {
        m_xml.setAutoFormatting(true);
        m_xml.setAutoFormattingIndent(1);
    }

    void start(const char* name) { m_xml.writeStartElement(ram, QLatin1String(name)); }
    void end() { m_xml.writeEndElement(); }
    void text(const char* name, const QString& value)
    {
        m_xml.writeTextElement(ram, QLatin1String(name), value);
    }
    // Optional elements are left out when empty.
    void optional(const char* name, const QString& value)
    {
        if (!value.isEmpty())
            text(name, value);
    }
    void amount(const char* name, qint64 cents, const QString& currency = {})
    {
        start(name);
        if (!currency.isEmpty())
            m_xml.writeAttribute(QStringLiteral("currencyID"), currency);
        m_xml.writeCharacters(EInvoiceData::amountText(cents));
        end();
    }
    void date(const char* name, const QDate& date)
    {
        start(name);
        m_xml.writeStartElement(udt, QStringLiteral("DateTimeString"));
        m_xml.writeAttribute(QStringLiteral("format"), QStringLiteral("102"));
        m_xml.writeCharacters(date.toString(QStringLiteral("yyyyMMdd")));
        m_xml.writeEndElement();
        end();
    }
    void idWithScheme(const char* name, const QString& scheme, const QString& value)
    {
        start(name);
        m_xml.writeAttribute(QStringLiteral("schemeID"), scheme);
        m_xml.writeCharacters(value);
        end();
    }
    void vat(const EInvoiceData::Vat& vat, const char* element)
    {
        start(element);
        text("TypeCode", QStringLiteral("VAT"));
        text("CategoryCode", vat.category);
        text("RateApplicablePercent", EInvoiceData::decimalText(vat.rate, 3, 0));
        end();
    }
    void party(const char* element, const EInvoiceData::Party& p, bool withContact)
    {
        start(element);
        text("Name", p.name);
        if (withContact && (!p.phone.isEmpty() || !p.email.isEmpty())) {
            start("DefinedTradeContact");
            optional("PersonName", p.contactName);
            if (!p.phone.isEmpty()) {
                start("TelephoneUniversalCommunication");
                text("CompleteNumber", p.phone);
                end();
            }
            if (!p.email.isEmpty()) {
                start("EmailURIUniversalCommunication");
                text("URIID", p.email);
                end();
            }
            end();
        }
        start("PostalTradeAddress");
        optional("PostcodeCode", p.postcode);
        optional("LineOne", p.street);
        optional("LineTwo", p.addressLine2);
        optional("CityName", p.city);
        text("CountryID", p.countryCode);
        end();
        if (!p.email.isEmpty()) {
            start("URIUniversalCommunication");
            idWithScheme("URIID", QStringLiteral("EM"), p.email);
            end();
        }
        if (!p.vatID.isEmpty()) {
            start("SpecifiedTaxRegistration");
            idWithScheme("ID", QStringLiteral("VA"), p.vatID);
            end();
        }
        if (!p.taxNumber.isEmpty()) {
            start("SpecifiedTaxRegistration");
            idWithScheme("ID", QStringLiteral("FC"), p.taxNumber);
            end();
        }
        end();
    }

    QXmlStreamWriter m_xml;
};

} // namespace

QByteArray write(const EInvoiceData& e)
{
    QByteArray out;
    Writer w(out);
    QXmlStreamWriter& x = w.m_xml;
    x.writeStartDocument();
    x.writeNamespace(rsm, QStringLiteral("rsm"));
    x.writeNamespace(qdt, QStringLiteral("qdt"));
    x.writeNamespace(ram, QStringLiteral("ram"));
    x.writeNamespace(udt, QStringLiteral("udt"));
    x.writeStartElement(rsm, QStringLiteral("CrossIndustryInvoice"));

    const bool xrechnung = e.profile == EInvoiceProfile::XRechnung;
    x.writeStartElement(rsm, QStringLiteral("ExchangedDocumentContext"));
    if (xrechnung) {
        w.start("BusinessProcessSpecifiedDocumentContextParameter");
        w.text("ID", QLatin1String(peppolProcess));
        w.end();
    }
    w.start("GuidelineSpecifiedDocumentContextParameter");
    w.text("ID", QLatin1String(xrechnung ? xrechnungGuideline : en16931Guideline));
    w.end();
    x.writeEndElement();

    x.writeStartElement(rsm, QStringLiteral("ExchangedDocument"));
    w.text("ID", e.number);
    w.text("TypeCode", QStringLiteral("380"));
    w.date("IssueDateTime", e.issueDate);
    for (const QString& note : e.notes) {
        w.start("IncludedNote");
        w.text("Content", note);
        w.end();
    }
    x.writeEndElement();

    x.writeStartElement(rsm, QStringLiteral("SupplyChainTradeTransaction"));
    for (const EInvoiceData::Line& line : e.lines) {
        w.start("IncludedSupplyChainTradeLineItem");
        w.start("AssociatedDocumentLineDocument");
        w.text("LineID", QString::number(line.id));
        w.end();
        w.start("SpecifiedTradeProduct");
        w.optional("SellerAssignedID", line.sku);
        w.text("Name", line.name);
        w.optional("Description", line.description);
        w.end();
        w.start("SpecifiedLineTradeAgreement");
        w.start("NetPriceProductTradePrice");
        w.text("ChargeAmount", EInvoiceData::decimalText(line.price, 4, 2));
        w.end();
        w.end();
        w.start("SpecifiedLineTradeDelivery");
        w.start("BilledQuantity");
        x.writeAttribute(QStringLiteral("unitCode"), line.unitCode);
        x.writeCharacters(EInvoiceData::decimalText(line.quantity, 4, 0));
        w.end();
        w.end();
        w.start("SpecifiedLineTradeSettlement");
        w.vat(line.vat, "ApplicableTradeTax");
        w.start("SpecifiedTradeSettlementLineMonetarySummation");
        w.amount("LineTotalAmount", line.net);
        w.end();
        w.end();
        w.end();
    }

    w.start("ApplicableHeaderTradeAgreement");
    w.optional("BuyerReference", e.buyerReference);
    w.party("SellerTradeParty", e.seller, true);
    w.party("BuyerTradeParty", e.buyer, false);
    if (!e.orderReference.isEmpty()) {
        w.start("BuyerOrderReferencedDocument");
        w.text("IssuerAssignedID", e.orderReference);
        w.end();
    }
    w.end();

    w.start("ApplicableHeaderTradeDelivery");
    w.end();

    w.start("ApplicableHeaderTradeSettlement");
    w.text("PaymentReference", e.number);
    w.text("InvoiceCurrencyCode", e.currency);
    w.start("SpecifiedTradeSettlementPaymentMeans");
    w.text("TypeCode", QStringLiteral("58")); // SEPA credit transfer
    w.start("PayeePartyCreditorFinancialAccount");
    w.text("IBANID", e.iban);
    w.optional("AccountName", e.accountHolder);
    w.end();
    if (!e.bic.isEmpty()) {
        w.start("PayeeSpecifiedCreditorFinancialInstitution");
        w.text("BICID", e.bic);
        w.end();
    }
    w.end();
    for (const EInvoiceData::VatBreakdown& entry : e.breakdown) {
        w.start("ApplicableTradeTax");
        w.amount("CalculatedAmount", entry.tax);
        w.text("TypeCode", QStringLiteral("VAT"));
        if (entry.vat.category == QLatin1String("E"))
            w.text("ExemptionReason", EInvoiceData::exemptionReason());
        w.amount("BasisAmount", entry.basis);
        w.text("CategoryCode", entry.vat.category);
        w.text("RateApplicablePercent", EInvoiceData::decimalText(entry.vat.rate, 3, 0));
        w.end();
    }
    for (const EInvoiceData::AllowanceCharge& ac : e.allowancesCharges) {
        w.start("SpecifiedTradeAllowanceCharge");
        w.start("ChargeIndicator");
        x.writeTextElement(udt, QStringLiteral("Indicator"),
                           ac.charge ? QStringLiteral("true") : QStringLiteral("false"));
        w.end();
        w.amount("ActualAmount", ac.amount);
        w.text("Reason", ac.reason);
        w.vat(ac.vat, "CategoryTradeTax");
        w.end();
    }
    if (!e.paymentTerms.isEmpty() || e.dueDate.isValid()) {
        w.start("SpecifiedTradePaymentTerms");
        w.optional("Description", e.paymentTerms);
        if (e.dueDate.isValid())
            w.date("DueDateDateTime", e.dueDate);
        w.end();
    }
    w.start("SpecifiedTradeSettlementHeaderMonetarySummation");
    w.amount("LineTotalAmount", e.lineTotal);
    w.amount("ChargeTotalAmount", e.chargeTotal);
    w.amount("AllowanceTotalAmount", e.allowanceTotal);
    w.amount("TaxBasisTotalAmount", e.taxBasisTotal);
    w.amount("TaxTotalAmount", e.taxTotal, e.currency);
    if (e.rounding != 0)
        w.amount("RoundingAmount", e.rounding);
    w.amount("GrandTotalAmount", e.grandTotal);
    w.amount("DuePayableAmount", e.duePayable);
    w.end();
    w.end();

    x.writeEndElement(); // SupplyChainTradeTransaction
    x.writeEndElement(); // CrossIndustryInvoice
    x.writeEndDocument();
    return out;
}

} // namespace vorn::CiiWriter
