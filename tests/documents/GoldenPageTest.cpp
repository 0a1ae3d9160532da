#include "documents/Formatter.h"
#include "documents/Template.h"
#include "documents/TemplateValues.h"
#include "tests/invoicing/InvoicingFixture.h"
#include "tests/support/TestFiles.h"

#include <QDir>
#include <QFile>

// One page per built-in design, from a document made as the user makes one:
// a new invoice or quote, items from the item popover, shipping and a
// discount through their popovers, the amounts computed by the Calculator.
// The whole road from the store through the arithmetic to the HTML is
// pinned. The design's style sheet must be embedded verbatim; the golden
// files hold a marker in its place so that they do not repeat the designs.
// Set VORN_UPDATE_GOLDEN=1 to write the files anew after a deliberate change
// (the run then fails, so that the difference is reviewed).
namespace vorn::test {
namespace {

struct ItemLine
{
    const char* title;
    const char* unit;
    const char* baseAmount;
    float quantity;
    bool tax1, tax2;
};

const ItemLine lines[] = {
    {"Brand workshop <b>half a day</b>", "day", "1200", 1.0f, true, false},
    {"Printing", "pc", "0.125", 2.5f, true, true},
    {"Licence", "seat", "1.5", 1234.0f, false, false},
};

class GoldenPages : public InvoicingFixture, public ::testing::WithParamInterface<int>
{
protected:
    GoldenPages()
    {
        const QString labels = QStringLiteral(
            "locInvoice locQuote locInvoiceNumber locQuoteNumber locClientNumber locNumber locDate locDue "
            "locExpiration locOverdue locDispatched locSubtotal locTotal locTaxes locDiscount locShipping "
            "locDescription locQuantity locUnit locUnitPrice locNet locNo locSKUNumber");
        for (const QString& label : labels.split(u' '))
            settings.setValue(label, QStringLiteral("{%1}").arg(label));
        assign(settings, "prefsName", "Tandrelo Studio", "prefsContact", "12 Harbour Road\nPortsmouth",
               "prefsLetterbox", "Tandrelo Studio · 12 Harbour Road", "prefsCurrency", "EUR",
               "prefsDatePattern", "%DAY%.%MONTHSHORT%.%YEARLONG%", "invHaveNumber", true, "invPattern",
               "RE-%YEAR%-%COUNT%", "quotHaveNumber", true, "quotPattern", "Q-%COUNT%", "tax1Enabled", true,
               "tax1Title", "VAT", "tax1Rate", 0.19f, "tax2Enabled", true, "tax2Title", "City Tax",
               "tax2Rate", 0.05f, "showItemSubAmount", true);
    }

    // Odd designs show an invoice with a rate off, even ones a quote with a
    // fixed amount off.
    ManagedObject* makeDocument(bool invoice)
    {
        ManagedObject* doc = invoice ? controllers->data().addInvoice() : controllers->data().addQuote();
        assign(*doc, "address", "Erin Holloway\nQuarry & Sons\n7 Quarry Lane", "clientNumber", "C-42",
               "subject", "Brand refresh", "conditions", "Within 14 days.", "footer", "Bank: Harbour Bank");
        for (const ItemLine& line : lines) {
            ItemController& items = controllers->items();
            items.showItemPopover();
            ItemController::Popover& p = items.popover();
            p.title = QString::fromUtf8(line.title);
            p.unit = QString::fromLatin1(line.unit);
            p.baseAmount = QString::fromLatin1(line.baseAmount);
            p.tax1 = line.tax1;
            p.tax2 = line.tax2;
            state.itemPopoverQuantity = line.quantity;
            EXPECT_TRUE(items.addItem());
        }
        ShippingController& shipping = controllers->shipping();
        shipping.showShippingPopover();
        assign(*doc, "isShippingEnabled", true, "shippingTitle", "Courier", "hasShippingSubtitle", true,
               "shippingSubtitle", "overnight", "shippingAmount", 6.99f, "isShippingTax1Enabled", true);
        shipping.closeShippingPopover();
        DiscountController& discount = controllers->discount();
        discount.showDiscountPopover();
        assign(*doc, "isDiscountEnabled", true, "discountTitle", "Loyalty", "hasDiscountSubtitle", true,
               "discountSubtitle", "ten years");
        if (invoice) {
            doc->setDiscountKind(DiscountKind::Rate);
            doc->setValue(key::discountPercent, 0.1f);
        } else {
            doc->setDiscountKind(DiscountKind::Amount);
            doc->setValue(key::discountAmount, 50.0f);
        }
        discount.closeDiscountPopover();
        calculator().calculateInvoice(doc);
        return doc;
    }

    // The page as the preview fills it (without a logo).
    QString page(const QString& folder, const ManagedObject& doc) const
    {
        const Formatter formatter(settings);
        PageValues values = pageValuesForDocument(doc, settings, nullptr);
        values.css = readText(folder + QStringLiteral("/style.css"));
        QList<ItemValues> rows;
        for (const ManagedObject* item : doc.items())
            rows.append(ItemValues::fromObject(*item));
        values.itemsList = fillItemsList(readText(folder + QStringLiteral("/item.html")), rows,
                                         ItemRowSettings::fromSettings(settings), values.currency, formatter);
        QString text = readText(folder + QStringLiteral("/invoice.html"));
        Template::apply(text, pageSteps(values, formatter));
        return text;
    }
};

TEST_P(GoldenPages, BuiltInDesignShowsAControllerMadeDocument)
{
    const QString name = QStringLiteral("Temp%1").arg(GetParam(), 3, 10, QLatin1Char('0'));
    const QString folder = QDir(QStringLiteral(VORN_DESIGNS_DIR)).filePath(name);
    ASSERT_TRUE(QFile::exists(folder + QStringLiteral("/invoice.html"))) << folder.toStdString();
    const ManagedObject* doc = makeDocument(GetParam() % 2 == 1);
    ASSERT_EQ(doc->items().size(), 3);
    QString html = page(folder, *doc);
    const QString css = readText(folder + QStringLiteral("/style.css"));
    ASSERT_FALSE(css.isEmpty());
    ASSERT_EQ(html.count(css), 1) << "the style sheet is not embedded verbatim";
    html.replace(css, QStringLiteral("/* style.css */"));

    const QString path = QDir(QStringLiteral(VORN_GOLDEN_DIR)).filePath(name + QStringLiteral(".html"));
    if (qEnvironmentVariableIntValue("VORN_UPDATE_GOLDEN")) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(html.toUtf8());
        FAIL() << "wrote " << path.toStdString()
               << "; review the difference, then run without VORN_UPDATE_GOLDEN";
    }
    EXPECT_EQ(html.toStdString(), readText(path).toStdString()) << "differs from " << path.toStdString();
}

INSTANTIATE_TEST_SUITE_P(BuiltIn, GoldenPages, ::testing::Range(1, 10));

} // namespace
} // namespace vorn::test
