#include "documents/CurrencyCode.h"
#include "documents/Iban.h"
#include "documents/PaymentQrCode.h"
#include "einvoice/CiiReader.h"
#include "einvoice/CiiWriter.h"
#include "einvoice/EInvoiceData.h"
#include "einvoice/EInvoiceValidator.h"
#include "einvoice/UnitCodes.h"
#include "tests/einvoice/EInvoiceFixture.h"

#include <QDir>
#include <QFile>

#include <array>

namespace vorn::test {
namespace {

TEST(EInvoiceCodes, UnitsMapToRecommendation20WithOneAsFallback)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Std.", "HUR"}, {"hours", "HUR"},   {"Stück", "H87"}, {"pcs", "H87"},
        {"Tage", "DAY"}, {"pauschal", "LS"}, {"kg", "KGM"},    {"m²", "MTK"},
        {"HUR", "HUR"},  {"Widgets", "C62"}, {"", "C62"},
    };
    for (const auto& [unit, code] : cases)
        EXPECT_EQ(UnitCodes::code(QString::fromUtf8(unit)), QLatin1String(code)) << unit;
}

TEST(EInvoiceCodes, IbansBicsAndCurrencies)
{
    const std::pair<const char*, bool> ibans[] = {
        {"DE89370400440532013000", true},
        {"de89 3704 0044 0532 0130 00", true},
        {"GB82WEST12345698765432", true},
        {"DE89370400440532013001", false}, // check digits
        {"DE8937040044053201300", false},
        {"DE89-3704-0044", false},
        {"", false},
    };
    for (const auto& [iban, valid] : ibans)
        EXPECT_EQ(Iban::isValid(QString::fromLatin1(iban)), valid) << iban;
    EXPECT_TRUE(Iban::isValidBic(QStringLiteral("COBADEFFXXX")));
    EXPECT_TRUE(Iban::isValidBic(QStringLiteral("cobadeff")));
    EXPECT_FALSE(Iban::isValidBic(QStringLiteral("COBA1EFF")));

    const std::pair<const char*, const char*> currencies[] = {
        {"€", "EUR"},   {"Euro", "EUR"}, {" eur ", "EUR"}, {"CHF", "CHF"},
        {"Fr.", "CHF"}, {"$", ""},       {"XYZ", ""},
    };
    for (const auto& [text, code] : currencies)
        EXPECT_EQ(CurrencyCode::isoCode(QString::fromUtf8(text)), QLatin1String(code)) << text;
}

class EInvoiceTest : public EInvoiceFixture
{
protected:
    // The example invoice, changed: "key=value" on the document, "@key=value"
    // on the settings, "@key" removes a setting, "!" recomputes the amounts.
    ManagedObject* changedInvoice(const std::vector<const char*>& changes)
    {
        sellerSettings();
        ManagedObject* d = germanInvoice();
        for (const QString change : changes) {
            const QString key = change.section(u'=', 0, 0), value = change.section(u'=', 1);
            if (change == u"!")
                calculator.calculateInvoiceAmounts(d);
            else if (!key.startsWith(u'@'))
                d->setValue(key, value);
            else if (change.contains(u'='))
                settings.setValue(key.mid(1), value);
            else
                settings.removeValue(key.mid(1));
        }
        return d;
    }
};

// The totals of the example by hand: lines 332.50 + 49.80 + 1.00 (3 × 0.333);
// 19 % on 332.50 + 1.00 + 5.90 shipping = 339.40 -> 64.49; 7 % on 49.80 ->
// 3.49; 3 % off the gross 457.18 -> 13.72; due 443.46, Vorn's own total.
TEST_F(EInvoiceTest, AmountsAddUpToTheCentAndMatchThePrintedTotal)
{
    const EInvoiceData e = einvoice.data(*germanInvoice(), EInvoiceProfile::En16931);
    EXPECT_EQ(QList<qint64>({e.lineTotal, e.chargeTotal, e.allowanceTotal, e.taxBasisTotal, e.taxTotal,
                             e.grandTotal, e.rounding, e.duePayable, e.printedTotal}),
              QList<qint64>({38330, 590, 1372, 37548, 6798, 44346, 0, 44346, 44346}));
    QStringList breakdown;
    for (const auto& b : e.breakdown)
        breakdown
            << QStringLiteral("%1 %2 %3 %4").arg(b.vat.category).arg(b.vat.rate).arg(b.basis).arg(b.tax);
    EXPECT_EQ(breakdown, QStringList({"S 19000 33940 6449", "S 7000 4980 349", "E 0 -1372 0"}));
    EXPECT_EQ(QStringList({e.lines[0].unitCode, e.currency, e.buyer.name, e.buyer.postcode, e.buyer.city}),
              QStringList({"HUR", "EUR", "Muster AG", "80331", "München"}));
    EXPECT_EQ(e.paymentTerms, QStringLiteral("Zahlbar ohne Abzug\nbis zum Fälligkeitsdatum."));
    EXPECT_TRUE(EInvoiceValidator::problems(e).isEmpty())
        << EInvoiceValidator::problems(e).join(u'\n').toStdString();
}

// Compound taxes become the one combined rate of the line; where rounding
// each line and each rate to the cent moves the total, the difference is
// carried as the rounding amount and said in a note.
TEST_F(EInvoiceTest, CompoundTaxesCombineAndRoundingDifferencesAreShown)
{
    ManagedObject* d = addDocument(1, "currency", "EUR");
    line(d, "Service", "h", 1, 100, 0.10f, 0.05f, true);
    calculator.calculateInvoiceAmounts(d);
    EInvoiceData e = einvoice.data(*d, EInvoiceProfile::En16931);
    EXPECT_EQ(QList<qint64>({e.lines[0].vat.rate, e.taxTotal, e.rounding}), QList<qint64>({15500, 1550, 0}));

    ManagedObject* small = addDocument(1, "currency", "EUR");
    for (int i = 0; i < 3; ++i)
        line(small, "Copy", "", 1, 0.335f, 0.19f, 0);
    calculator.calculateInvoiceAmounts(small);
    e = einvoice.data(*small, EInvoiceProfile::En16931);
    // Printed 1.005 + 0.19095; by the cent 3 × 0.34 + 0.19.
    EXPECT_EQ(QList<qint64>({e.printedTotal, e.grandTotal, e.rounding, e.duePayable}),
              QList<qint64>({120, 121, -1, 120}));
    ASSERT_FALSE(e.notes.isEmpty());
    EXPECT_TRUE(e.notes.last().contains(QLatin1String("-0.01 EUR")));
}

TEST_F(EInvoiceTest, TheXmlReadBackGivesTheInvoicesTotals)
{
    ManagedObject* d = germanInvoice();
    for (EInvoiceProfile profile : {EInvoiceProfile::En16931, EInvoiceProfile::XRechnung}) {
        Result<QByteArray> xml = einvoice.xml(*d, profile);
        ASSERT_TRUE(xml.ok()) << xml.error().fullText().toStdString();
        Result<CiiSummary> read = CiiSummary::read(xml.value());
        ASSERT_TRUE(read.ok());
        EXPECT_EQ(QStringList({read->number, read->currency, read->guideline}),
                  QStringList({"RE-2025-17", "EUR",
                               profile == EInvoiceProfile::XRechnung ? CiiWriter::xrechnungGuideline
                                                                     : CiiWriter::en16931Guideline}));
        EXPECT_EQ(read->lineCount, 3);
        EXPECT_EQ(read->totals.value(QStringLiteral("DuePayableAmount")),
                  qRound64(double(d->floatValue(QStringLiteral("amount"))) * 100));
        EXPECT_EQ(read->totals.value(QStringLiteral("TaxTotalAmount")), 6798);
        EXPECT_EQ(read->totals.value(QStringLiteral("LineTotalAmount")), 38330);
    }
}

// One fault at a time on the complete example: the message names the field,
// and each change breaks only its own rule.
TEST_F(EInvoiceTest, IncompleteOrWrongDataIsRefusedNamingTheField)
{
    const EInvoiceProfile en = EInvoiceProfile::En16931, xr = EInvoiceProfile::XRechnung;
    const std::tuple<const char*, std::vector<const char*>, EInvoiceProfile> cases[] = {
        {"The buyer's country is missing.", {"buyerCountryCode="}, en},
        {"The buyer's country “XX” is not", {"buyerCountryCode=xx"}, en},
        {"The buyer's name is missing", {"address="}, en},
        {"The seller's legal name is missing.", {"@prefsLegalName", "@prefsName"}, en},
        {"The seller's VAT identifier or tax number is missing.", {"@prefsVatID"}, en},
        {"must begin with its country code", {"@prefsVatID=123456789"}, en},
        {"The IBAN “DE89370400440532013001” is not valid", {"@prefsIBAN=DE89370400440532013001"}, en},
        {"The seller's IBAN is missing.", {"@prefsIBAN"}, en},
        {"The currency “$” has no ISO code", {"currency=$"}, en},
        {"The invoice number is missing.", {"number="}, en},
        {"Only invoices can be sent as e-invoices", {"kind=0"}, en},
        {"The invoice total must be more than zero", {"discountKind=0", "discountAmount=1000", "!"}, en},
        {"The invoice total must be more than zero", {"discountPercent=1", "!"}, en},
        {"The invoice's amounts do not add up", {"amount=400"}, en},
        {"The buyer reference (Leitweg-ID) is missing.", {"buyerReference="}, xr},
        {"The seller's contact phone is missing.", {"@prefsContactPhone"}, xr},
        {"The buyer's postcode and city are missing", {"address=Muster AG\nMünchen"}, xr},
    };
    for (const auto& [says, changes, profile] : cases) {
        const Result<QByteArray> xml = einvoice.xml(*changedInvoice(changes), profile);
        ASSERT_FALSE(xml.ok()) << says;
        const std::string message = xml.error().message.toStdString();
        EXPECT_TRUE(xml.error().message.contains(QString::fromUtf8(says))) << message;
        EXPECT_FALSE(xml.error().message.contains(QLatin1String(". The"))) << message;
    }
}

// The File menu command: a refusal shows what is missing and asks nothing
// more; a complete invoice is written where the user says, never over a file.
TEST_F(EInvoiceTest, TheExportAsksWhereOnlyOnceTheDataIsComplete)
{
    ManagedObject* d = changedInvoice({"buyerCountryCode="});
    einvoice.exportXRechnung();
    ASSERT_EQ(ui.calls(QStringLiteral("alert")).size(), 1);
    EXPECT_EQ(ui.calls(QStringLiteral("alert")).first().text,
              QStringLiteral("The buyer's country is missing."));
    EXPECT_TRUE(ui.calls(QStringLiteral("save")).isEmpty());

    d->setValue(key::buyerCountryCode, QStringLiteral("DE"));
    const QString target = QDir(environment.home()).filePath(QStringLiteral("invoice.xml"));
    ui.answerPanel(target);
    einvoice.exportXRechnung();
    QFile file(target);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray written = file.readAll();
    file.close();
    EXPECT_EQ(CiiSummary::read(written)->totals.value(QStringLiteral("DuePayableAmount")), 44346);

    ui.answerPanel(target);
    d->setValue(QStringLiteral("number"), QStringLiteral("RE-2025-18"));
    einvoice.exportXRechnung();
    EXPECT_EQ(ui.errorCodes(), QList<int>{516});
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), written);
}

// The page's payment code and the e-invoice's account pay the same name.
TEST_F(EInvoiceTest, ThePayeeIsTheAccountHolderElseTheLegalElseTheCompanyName)
{
    // account holder, legal name, company name, payee
    const std::array<const char*, 4> cases[] = {{"Kim Berger", "Studio GmbH", "Studio", "Kim Berger"},
                                                {" ", "Studio GmbH", "Studio", "Studio GmbH"},
                                                {"", "", " Studio ", "Studio"},
                                                {"", "", "", ""}};
    ManagedObject* d = germanInvoice();
    for (const auto& [holder, legal, company, payee] : cases) {
        assign(settings, key::prefsAccountHolder, holder, key::prefsLegalName, legal, key::prefsName,
               company);
        EXPECT_EQ(PaymentQrCode::payeeName(settings), payee);
        EXPECT_EQ(EInvoiceData::fromDocument(*d, settings, EInvoiceProfile::En16931).accountHolder, payee);
    }
}

// "%PAYMENTQR%" draws the code only for an invoice in euros to a valid IBAN;
// otherwise it vanishes like any empty token.
TEST_F(EInvoiceTest, ThePaymentQrCodeIsDrawnOnlyForEuroInvoicesWithAnIban)
{
    addDesign(QStringLiteral("[%PAYMENTQR%]"), QString());
    const std::pair<bool, std::vector<const char*>> cases[] = {
        {true, {}},
        {false, {"kind=0"}},
        {false, {"currency=USD"}},
        {false, {"@prefsIBAN"}},
        {false, {"@prefsIBAN=DE89370400440532013001"}},
        {false, {"amount=0"}},
    };
    for (const auto& [drawn, changes] : cases) {
        changedInvoice(changes);
        const QString page = html();
        EXPECT_EQ(page.startsWith(QLatin1String("[<svg")), drawn) << page.left(40).toStdString();
        if (!drawn) {
            EXPECT_EQ(page, QStringLiteral("[]"));
        }
    }
}

} // namespace
} // namespace vorn::test
