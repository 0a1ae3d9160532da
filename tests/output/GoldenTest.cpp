#include "invoicing/Calculator.h"
#include "output/DesignPreview.h"
#include "tests/output/OutputFixture.h"
#include "tests/support/TestFiles.h"

#include <QDir>
#include <QFile>

#include <functional>

// Pins the whole HTML of fixed documents in a fixed design that uses every
// token. Set VORN_UPDATE_GOLDEN=1 to write the files anew after a deliberate
// change, then review the difference.
namespace vorn::test {
namespace {

QString golden(const QString& name)
{
    return QDir(QStringLiteral(VORN_GOLDEN_DIR)).filePath(name);
}

struct GoldenCase
{
    const char* file;
    std::function<QString(OutputFixture&)> produce;
};

class Golden : public OutputFixture, public ::testing::WithParamInterface<GoldenCase>
{
};

TEST_P(Golden, HtmlMatchesThePinnedFile)
{
    addDesign(readText(golden("design/page.html")), readText(golden("design/item.html")),
              readText(golden("design/style.css")));
    QString html = GetParam().produce(*this);
    html.replace(environment.home(), "$HOME");
    const QString path = golden(QString::fromLatin1(GetParam().file));
    if (qEnvironmentVariableIntValue("VORN_UPDATE_GOLDEN")) {
        writeFile(path, html.toUtf8());
        FAIL() << "wrote " << path.toStdString()
               << "; review the difference, then run without VORN_UPDATE_GOLDEN";
    }
    EXPECT_EQ(html, readText(path)) << "differs from " << path.toStdString();
}

void items(OutputFixture& f, ManagedObject* d)
{
    f.addItem(d, "title", "Brand workshop for %LOCINVOICE% and %TOTAL%", "subtitle", "half a day", "unit",
              "day", "sku", "WS-1", "unitCount", 1.0f, "baseAmount", 1200.0f, "isTax1Applied", true,
              "tax1Title", "VAT", "tax1Percent", 0.07f);
    f.addItem(d, "title", "Printing <b>bold</b>", "unit", "pc", "sku", "PR-500", "unitCount", 2.5f,
              "baseAmount", 0.125f, "isTax1Applied", true, "tax1Title", "VAT", "tax1Percent", 7.1f,
              "isTax2Applied", false, "tax2Title", "City Tax", "tax2Percent", 0.05f, "isTax3Applied", true,
              "tax3Title", "Levy", "tax3Percent", 0.01f);
    f.addItem(d, "title", "Licence", "unitCount", 1234.0f, "baseAmount", 1.5f);
}

// The amounts as the Calculator makes them from the items and the settings.
QString computed(OutputFixture& f)
{
    Calculator(f.state).calculateInvoice(f.state.currentInvoice());
    return f.preview.invoiceHTMLString();
}

ManagedObject* invoice(OutputFixture& f, int kind)
{
    ManagedObject* d = f.addDocument(
        kind, "address", "Erin Holloway\nQuarry & Sons\n7 Quarry Lane", "clientNumber", "C-42",
        "dispatchNumber", "DHL 123", "subject", "Re: %TOTAL% for %COMPANY%, %LOCDUE%", "conditions",
        "Within 14 days.\nLate: %LOCOVERDUE%", "footer", "Bank: Harbour Bank\nIBAN: XX00 1234", "tax1Percent",
        0.07f, "tax2Percent", 0.05f, "tax3Percent", 0.01f);
    items(f, d);
    f.select(d);
    return d;
}

const GoldenCase cases[] = {
    {"invoice.html",
     [](OutputFixture& f) {
         f.settings.setValue("prefsLogo", OutputFixture::pngData());
         assign(*invoice(f, 1), "isDiscountEnabled", true, "discountKind", 1, "discountPercent", 0.1f,
                "hasDiscountSubtitle", true, "discountTitle", "Loyalty", "discountSubtitle", "ten years",
                "isShippingEnabled", true, "shippingTitle", "Courier", "hasShippingSubtitle", true,
                "shippingSubtitle", "overnight", "shippingAmount", 6.99f);
         return computed(f);
     }},
    {"quote.html",
     [](OutputFixture& f) {
         assign(f.settings, "tempUseSKU", false, "showItemSubAmount", false, "tax2Enabled", false,
                "tax3Enabled", true);
         assign(*invoice(f, 0), "title", "Quote", "isDiscountEnabled", true, "discountKind", 0,
                "discountAmount", 50.0f, "discountTitle", "not shown without a subtitle", "isShippingEnabled",
                false, "shippingTitle", "Courier");
         return computed(f);
     }},
    {"reminder.html",
     [](OutputFixture& f) {
         invoice(f, 1);
         f.preview.setReminderTexts(
             {"Payment Reminder", "Still open.\nPlease pay within 7 days.", "Thank you."});
         f.state.isReminderAction = true;
         return computed(f);
     }},
    {"design-preview.html",
     [](OutputFixture& f) {
         assign(f.settings, "invPattern", "RE-%YEAR%-%MONTH%-%DAY%/%COUNT%", "invCount", 41, "tax2Title",
                QString(), "tempInvConditions", "Sample\nconditions", "tempInvFooter", "Sample footer");
         DesignPreview preview(f.preview);
         return preview.invoiceHTMLString();
     }},
};

INSTANTIATE_TEST_SUITE_P(Documents, Golden, ::testing::ValuesIn(cases), [](const auto& info) {
    QString name = QString::fromLatin1(info.param.file);
    return name.remove(QLatin1Char('-')).remove(".html").toStdString();
});

} // namespace
} // namespace vorn::test
