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
#include <functional>

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
};

// The totals of the example by hand: lines 332.50 + 49.80 + 1.00 (3 × 0.333);
// 19 % on 332.50 + 1.00 + 5.90 shipping = 339.40 -> 64.49; 7 % on 49.80 ->
// 3.49; 3 % off the gross 457.18 -> 13.72; due 443.46, Vorn's own total.
TEST_F(EInvoiceTest, AmountsAddUpToTheCentAndMatchThePrintedTotal)
{
    const EInvoiceData e = einvoice.data(*germanInvoice(), EInvoiceProfile::En16931);
    EXPECT_EQ(QList<qint64>({e.lineTotal, e.chargeTotal, e.allowanceTotal, e.taxBasisTotal, e.taxTotal,
                             e.grandTotal, e.rounding, e.duePayable}),
              QList<qint64>({38330, 590, 1372, 37548, 6798, 44346, 0, 44346}));
    EXPECT_EQ(e.duePayable, e.printedTotal);
    QStringList breakdown;
    for (const auto& b : e.breakdown)
        breakdown
            << QStringLiteral("%1 %2 %3 %4").arg(b.vat.category).arg(b.vat.rate).arg(b.basis).arg(b.tax);
    EXPECT_EQ(breakdown, QStringList({"S 19000 33940 6449", "S 7000 4980 349", "E 0 -1372 0"}));
    EXPECT_EQ(e.lines[0].unitCode, QLatin1String("HUR"));
    EXPECT_EQ(e.currency, QLatin1String("EUR"));
    EXPECT_EQ(QStringList({e.buyer.name, e.buyer.postcode, e.buyer.city}),
              QStringList({"Muster AG", "80331", "München"}));
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
    EXPECT_EQ(e.lines[0].vat.rate, 15500);
    EXPECT_EQ(e.taxTotal, 1550);
    EXPECT_EQ(e.rounding, 0);

    ManagedObject* small = addDocument(1, "currency", "EUR");
    for (int i = 0; i < 3; ++i)
        line(small, "Copy", "", 1, 0.335f, 0.19f, 0);
    calculator.calculateInvoiceAmounts(small);
    e = einvoice.data(*small, EInvoiceProfile::En16931);
    EXPECT_EQ(e.printedTotal, 120); // 1.005 + 0.19095
    EXPECT_EQ(e.grandTotal, 121);   // 3 × 0.34 + 0.19
    EXPECT_EQ(e.rounding, -1);
    EXPECT_EQ(e.duePayable, 120);
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
        EXPECT_EQ(read->number, QLatin1String("RE-2025-17"));
        EXPECT_EQ(read->currency, QLatin1String("EUR"));
        EXPECT_EQ(read->lineCount, 3);
        EXPECT_EQ(read->totals.value(QStringLiteral("DuePayableAmount")),
                  qRound64(double(d->floatValue(QStringLiteral("amount"))) * 100));
        EXPECT_EQ(read->totals.value(QStringLiteral("TaxTotalAmount")), 6798);
        EXPECT_EQ(read->totals.value(QStringLiteral("LineTotalAmount")), 38330);
        EXPECT_EQ(read->guideline,
                  QLatin1String(profile == EInvoiceProfile::XRechnung ? CiiWriter::xrechnungGuideline
                                                                      : CiiWriter::en16931Guideline));
    }
}

// One fault at a time on the complete example: the message names the field.
TEST_F(EInvoiceTest, IncompleteOrWrongDataIsRefusedNamingTheField)
{
    using Change = std::function<void(EInvoiceTest&, ManagedObject*)>;
    const struct
    {
        const char* says;
        Change change;
        EInvoiceProfile profile = EInvoiceProfile::En16931;
    } cases[] = {
        {"The buyer's country is missing.",
         [](auto&, ManagedObject* d) { d->setValue(key::buyerCountryCode, QString()); }},
        {"The buyer's country “XX” is not",
         [](auto&, ManagedObject* d) { d->setValue(key::buyerCountryCode, "xx"); }},
        {"The buyer's name is missing", [](auto&, ManagedObject* d) { d->setValue("address", QString()); }},
        {"The seller's legal name is missing.",
         [](EInvoiceTest& t, auto) {
             t.settings.removeValue(key::prefsLegalName);
             t.settings.removeValue("prefsName");
         }},
        {"The seller's VAT identifier or tax number is missing.",
         [](EInvoiceTest& t, auto) { t.settings.removeValue(key::prefsVatID); }},
        {"must begin with its country code",
         [](EInvoiceTest& t, auto) { t.settings.setValue(key::prefsVatID, "123456789"); }},
        {"The IBAN “DE89370400440532013001” is not valid",
         [](EInvoiceTest& t, auto) { t.settings.setValue(key::prefsIBAN, "DE89370400440532013001"); }},
        {"The seller's IBAN is missing.",
         [](EInvoiceTest& t, auto) { t.settings.removeValue(key::prefsIBAN); }},
        {"The currency “$” has no ISO code", [](auto&, ManagedObject* d) { d->setValue("currency", "$"); }},
        {"The invoice number is missing.", [](auto&, ManagedObject* d) { d->setValue("number", QString()); }},
        {"Only invoices can be sent as e-invoices", [](auto&, ManagedObject* d) { d->setValue("kind", 0); }},
        {"The invoice total must be more than zero",
         [](EInvoiceTest& t, ManagedObject* d) {
             assign(*d, "discountKind", 0, "discountAmount", 1000.0f);
             t.calculator.calculateInvoiceAmounts(d);
         }},
        {"The invoice's amounts do not add up",
         [](auto&, ManagedObject* d) { d->setValue("amount", 400.0f); }},
        {"The buyer reference (Leitweg-ID) is missing.",
         [](auto&, ManagedObject* d) { d->setValue(key::buyerReference, QString()); },
         EInvoiceProfile::XRechnung},
        {"The seller's contact phone is missing.",
         [](EInvoiceTest& t, auto) { t.settings.removeValue(key::prefsContactPhone); },
         EInvoiceProfile::XRechnung},
        {"The buyer's postcode and city are missing",
         [](auto&, ManagedObject* d) { d->setValue("address", "Muster AG\nMünchen"); },
         EInvoiceProfile::XRechnung},
    };
    for (const auto& c : cases) {
        EInvoiceTest& self = *this;
        ManagedObject* d = germanInvoice();
        c.change(self, d);
        const Result<QByteArray> xml = einvoice.xml(*d, c.profile);
        ASSERT_FALSE(xml.ok()) << c.says;
        EXPECT_TRUE(xml.error().message.contains(QString::fromUtf8(c.says)))
            << xml.error().message.toStdString();
        // Each change breaks only its own rule.
        EXPECT_FALSE(xml.error().message.contains(QLatin1String(". The")))
            << xml.error().message.toStdString();
        sellerSettings();
    }
}

// The File menu command: a refusal shows what is missing and asks nothing
// more; a complete invoice is written where the user says, never over a file.
TEST_F(EInvoiceTest, TheExportAsksWhereOnlyOnceTheDataIsComplete)
{
    ManagedObject* d = germanInvoice();
    d->setValue(key::buyerCountryCode, QString());
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
    using Change = std::function<void(EInvoiceTest&, ManagedObject*)>;
    const std::pair<bool, Change> cases[] = {
        {true, [](auto&, ManagedObject*) {}},
        {false, [](auto&, ManagedObject* d) { d->setValue("kind", 0); }},
        {false, [](auto&, ManagedObject* d) { d->setValue("currency", "USD"); }},
        {false, [](EInvoiceTest& t, auto) { t.settings.removeValue(key::prefsIBAN); }},
        {false, [](EInvoiceTest& t, auto) { t.settings.setValue(key::prefsIBAN, "DE89370400440532013001"); }},
        {false, [](auto&, ManagedObject* d) { d->setValue("amount", 0.0f); }},
    };
    for (const auto& [drawn, change] : cases) {
        ManagedObject* d = germanInvoice();
        change(*this, d);
        const QString page = html();
        EXPECT_EQ(page.startsWith(QLatin1String("[<svg")), drawn) << page.left(40).toStdString();
        if (!drawn) {
            EXPECT_EQ(page, QStringLiteral("[]"));
        }
        sellerSettings();
    }
}

} // namespace
} // namespace vorn::test
