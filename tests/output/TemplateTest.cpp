#include "output/PdfRenderer.h"
#include "output/StringFormat.h"
#include "output/Template.h"
#include "tests/output/OutputFixture.h"

#include <QFile>
#include <QImage>

#include <functional>

namespace vorn::test {
namespace {

QVariantMap map(std::initializer_list<std::pair<const char*, QVariant>> values)
{
    QVariantMap m;
    for (const auto& [key, value] : values)
        m.insert(QLatin1String(key), value);
    return m;
}

struct PageCase
{
    const char* name;
    const char* page;
    const char* item;
    std::function<void(OutputFixture&, ManagedObject*)> setup;
    const char* expected;
};

class PageTemplates : public OutputFixture, public ::testing::WithParamInterface<PageCase>
{
};

TEST_P(PageTemplates, FillTheTokensInTheOrderOfTheLanguage)
{
    const PageCase& c = GetParam();
    addDesign(QString::fromUtf8(c.page), QString::fromUtf8(c.item), QStringLiteral("/* css */"));
    ManagedObject* document = addDocument(1);
    if (c.setup)
        c.setup(*this, document);
    select(document);
    EXPECT_EQ(html(), QString::fromUtf8(c.expected)) << c.name;
}

auto set(std::initializer_list<std::pair<const char*, QVariant>> values)
{
    const QVariantMap m = map(values);
    return [m](OutputFixture& f, ManagedObject* d) {
        for (auto it = m.cbegin(); it != m.cend(); ++it)
            d->setValue(it.key(), it.value());
        (void)f;
    };
}

void threeItems(OutputFixture& f, ManagedObject* d)
{
    for (const char* title : {"Alpha", "Bravo", "Charlie"})
        f.addItem(d, map({{"title", QString::fromLatin1(title)}, {"unitCount", 1.0f}, {"amount", 10.0f}}));
}

const PageCase pageCases[] = {
    {"no tokens", "<p>plain 100% text</p>", "", {}, "<p>plain 100% text</p>"},
    {"a token several times", "%NUMBER%/%NUMBER% %NUMBER%", "", {}, "INV-2025-17/INV-2025-17 INV-2025-17"},
    {"tokens are case-sensitive", "%number% %Number%", "", {}, "%number% %Number%"},
    {"css first, so tokens in it are filled", "<style>%CSS%</style>", "", {}, "<style>/* css */</style>"},
    {"dates in the user's pattern", "%DATE%|%DUEDATE%", "", {}, "05.03.2025|19.03.2025"},
    {"absent texts are empty",
     "[%DISPATCHED%|%CLIENTNUMBER%|%SUBJECT%|%CONDITIONS%|%FOOTER%]",
     "",
     {},
     "[||||]"},
    {"discount off leaves only the template's text", "[%LOCDISCOUNT%|%DISCOUNTKINDCHAR%|%DISCOUNT%]", "",
     set({{"isDiscountEnabled", false}, {"discountAmount", 5.0f}}), "[||]"},
    {"fixed discount: minus and two digits", "[%LOCDISCOUNT%|%DISCOUNTKINDCHAR%|%DISCOUNT%]", "",
     set({{"isDiscountEnabled", true},
          {"discountKind", 0},
          {"discountAmount", 5.0f},
          {"discountTitle", "Own"}}),
     "[{locDiscount}|-|5.00]"},
    {"percentage discount: percent sign, plain number", "[%LOCDISCOUNT%|%DISCOUNTKINDCHAR%|%DISCOUNT%]", "",
     set({{"isDiscountEnabled", true}, {"discountKind", 1}, {"discountPercent", 10.0f}}),
     "[{locDiscount}|%|10]"},
    {"discount subtitle labels with the document's texts", "[%LOCDISCOUNT%]", "",
     set({{"isDiscountEnabled", true},
          {"hasDiscountSubtitle", true},
          {"discountTitle", "Loyalty"},
          {"discountSubtitle", "ten years"}}),
     "[Loyalty<br /><small>ten years</small>]"},
    {"shipping labelled by its own title", "[%LOCSHIPPING%|%SHIPPING%]", "",
     set({{"isShippingEnabled", true}, {"shippingTitle", "Courier"}, {"shippingAmount", 6.99f}}),
     "[Courier|6.99]"},
    {"shipping subtitle", "[%LOCSHIPPING%]", "",
     set({{"isShippingEnabled", true},
          {"hasShippingSubtitle", true},
          {"shippingTitle", "Courier"},
          {"shippingSubtitle", "overnight"}}),
     "[Courier<br /><small>overnight</small>]"},
    {"shipping off", "[%LOCSHIPPING%|%SHIPPING%]", "",
     set({{"isShippingEnabled", false}, {"shippingTitle", "Courier"}, {"shippingAmount", 6.99f}}), "[|]"},
    {"an invoice is due", "%LOCDUE%", "", {}, "{locDue}"},
    {"a quote expires", "%LOCDUE%", "", set({{"kind", 0}}), "{locExpiration}"},
    {"the quote label only reaches a due label brought in later", "%LOCDUE% / %SUBJECT%", "",
     set({{"subject", "see %LOCDUE%"}}), "{locDue} / see {locQuote}"},
    {"a subject is filled by later steps only", "%SUBJECT%", "",
     set({{"subject", "%TOTAL% for %COMPANY%"}, {"amount", 1234.5f}}), "1,234.50 for %COMPANY%"},
    {"line breaks in contact and address, not in name and subject",
     "%COMPANYCONTACT%#%CLIENTADDRESS%#%COMPANY%#%SUBJECT%", "",
     [](OutputFixture& f, ManagedObject* d) {
         f.settings.setValue(QStringLiteral("prefsName"), QStringLiteral("A\nB"));
         d->setValue(QStringLiteral("address"), QStringLiteral("Erin Holloway\r\n7 Quarry Lane"));
         d->setValue(QStringLiteral("subject"), QStringLiteral("S\nT"));
     },
     "12 Harbour Road<br />Portsmouth<br />hello@tandrelo.test#Erin Holloway\r<br />7 Quarry Lane#A\nB#S\nT"},
    {"conditions and footer get line breaks", "%CONDITIONS%|%FOOTER%", "",
     set({{"conditions", "Pay\nsoon"}, {"footer", "Bank\nIBAN"}}), "Pay<br />soon|Bank<br />IBAN"},
    {"taxes switched by the preferences",
     "%TAX1TITLE% %TAX1% %TAX1RATE%|%TAX2TITLE% %TAX2%|[%TAX3TITLE%%TAX3%%TAX3RATE%]", "",
     set({{"tax1Amount", 21.0f}, {"tax1Percent", 0.07f}, {"tax2Amount", 3.0f}, {"tax3Amount", 9.0f}}),
     "VAT 21.00 0.07|City Tax 3.00|[]"},
    {"a value holding its own token ends", "%SUBJECT%|%CONDITIONS%", "",
     set({{"subject", "a %SUBJECT% b"}, {"conditions", "%CONDITIONS%%CONDITIONS%"}}),
     "a %SUBJECT% b|%CONDITIONS%%CONDITIONS%"},
    {"no logo: the notice",
     "%LOGO%",
     "",
     {},
     "<small><small>Please provide a 'Logo Image' in the Preferences<br />or remove the 'LOGO' substitute "
     "from the "
     "design/template.</small></small>"},
    {"a logo that is no image: the notice", "[%LOGO%]", "",
     [](OutputFixture& f, ManagedObject*) {
         f.settings.setValue(QStringLiteral("prefsLogo"), QByteArray("GIF89a-garbage"));
     },
     "[<small><small>Please provide a 'Logo Image' in the Preferences<br />or remove the 'LOGO' substitute "
     "from the "
     "design/template.</small></small>]"},
    {"a logo image", "%LOGO%", "",
     [](OutputFixture& f, ManagedObject*) {
         f.settings.setValue(QStringLiteral("prefsLogo"), OutputFixture::pngData());
     },
     "<img src=\"file://$HOME/.cache/com.tandrelo.Orvandel/Logo.png\" alt=\"logo\">"},
    {"the letterbox line", "%WINDOW%", "", {}, "Tandrelo Studio · 12 Harbour Road · Portsmouth"},
    {"no items, no rows", "[%ITEMSLIST%]", "<tr>%ITEMSTITLE%</tr>", {}, "[]"},
    {"rows numbered in displayed order", "[%ITEMSLIST%]", "%ITEMNUMBER%:%ITEMSTITLE%;", threeItems,
     "[1:Alpha;2:Bravo;3:Charlie;]"},
    {"rows follow the item list's sort order", "[%ITEMSLIST%]", "%ITEMNUMBER%:%ITEMSTITLE%;",
     [](OutputFixture& f, ManagedObject* d) {
         threeItems(f, d);
         f.state.itemsController().setSortDescriptors({{QStringLiteral("title"), false}});
     },
     "[1:Charlie;2:Bravo;3:Alpha;]"},
    {"later page tokens are filled in rows, earlier ones stay", "%ITEMSLIST%",
     "<%LOCINVOICE%|%TOTAL%|%WINDOW%>",
     [](OutputFixture& f, ManagedObject* d) {
         f.addItem(d, map({{"title", "x"}}));
     },
     "<{locInvoice}|%TOTAL%|Tandrelo Studio · 12 Harbour Road · Portsmouth>"},
};

INSTANTIATE_TEST_SUITE_P(Cases, PageTemplates, ::testing::ValuesIn(pageCases));

struct RowCase
{
    const char* name;
    QVariantMap item;
    std::function<void(Settings&)> setup;
    const char* expected;
};

class ItemRows : public OutputFixture, public ::testing::WithParamInterface<RowCase>
{
};

const char* const rowTemplate =
    "%ITEMNUMBER%|%ITEMSQUANTITY% %ITEMSUNIT%|%ITEMSBASEAMOUNT%|%ITEMSSKU%|%ITEMSSUBAMOUNT%|%ITEMSTITLE%/"
    "%ITEMSSUBTITLE%|%ITEMSAMOUNT%|1[%ITEMSTAX1TITLE% %ITEMSTAX1PERCENT% %ITEMSTAX1AMOUNT%]"
    "2[%ITEMSTAX2TITLE% %ITEMSTAX2PERCENT% %ITEMSTAX2AMOUNT%]3[%ITEMSTAX3TITLE% %ITEMSTAX3PERCENT% "
    "%ITEMSTAX3AMOUNT%]|%LOCSHORTNUMBER% %LOCUNIT% %LOCUNITPRICE% %LOCNET% %LOCSKUNUMBER% %LOCDESCRIPTION% "
    "%LOCQUANTITY% %LOCTAXES%|%CURRENCY%";

TEST_P(ItemRows, FillEveryRowToken)
{
    const RowCase& c = GetParam();
    addDesign(QStringLiteral("%ITEMSLIST%"), QString::fromLatin1(rowTemplate));
    ManagedObject* document = addDocument(1);
    addItem(document, c.item);
    if (c.setup)
        c.setup(settings);
    select(document);
    EXPECT_EQ(html(), QString::fromUtf8(c.expected)) << c.name;
}

const QVariantMap fullItem =
    map({{"title", "Logo design"}, {"subtitle", "two rounds"}, {"unit", "h"},          {"sku", "LD-1"},
         {"unitCount", 2.5f},      {"baseAmount", 80.0f},      {"subAmount", 200.0f},  {"amount", 230.0f},
         {"isTax1Applied", true},  {"tax1Title", "VAT"},       {"tax1Percent", 7.1f},  {"tax1Amount", 14.2f},
         {"isTax2Applied", false}, {"tax2Title", "City Tax"},  {"tax2Percent", 0.05f}, {"tax2Amount", 10.0f},
         {"isTax3Applied", true},  {"tax3Title", ""},          {"tax3Percent", 0.01f}, {"tax3Amount", 2.0f}});

const RowCase rowCases[] = {
    {"every token",
     fullItem,
     {},
     "1|2.5 h|80.00|LD-1|200.00|Logo design/two rounds|230.00|1[VAT 7.1 14.20]2[  ]3[ 0.01 2.00]|{locNo} "
     "{locUnit} "
     "{locUnitPrice} {locNet} {locSKUNumber} {locDescription} {locQuantity} {locTaxes}|EUR"},
    {"article numbers and net amounts switched off", fullItem,
     [](Settings& s) {
         s.setValue(QStringLiteral("tempUseSKU"), false);
         s.setValue(QStringLiteral("showItemSubAmount"), false);
     },
     "1|2.5 h|80.00|||Logo design/two rounds|230.00|1[VAT 7.1 14.20]2[  ]3[ 0.01 2.00]|{locNo} {locUnit} "
     "{locUnitPrice} {locNet} {locSKUNumber} {locDescription} {locQuantity} {locTaxes}|EUR"},
    {"tax switches of the preferences do not touch rows", fullItem,
     [](Settings& s) {
         s.setValue(QStringLiteral("tax1Enabled"), false);
         s.setValue(QStringLiteral("tax2Enabled"), true);
     },
     "1|2.5 h|80.00|LD-1|200.00|Logo design/two rounds|230.00|1[VAT 7.1 14.20]2[  ]3[ 0.01 2.00]|{locNo} "
     "{locUnit} "
     "{locUnitPrice} {locNet} {locSKUNumber} {locDescription} {locQuantity} {locTaxes}|EUR"},
    {"an empty item", QVariantMap(), [](Settings& s) { s.removeValue(QStringLiteral("locNo")); },
     "1|0 |0.00||0.00|/|0.00|1[  ]2[  ]3[  ]| {locUnit} {locUnitPrice} {locNet} {locSKUNumber} "
     "{locDescription} "
     "{locQuantity} {locTaxes}|EUR"},
};

INSTANTIATE_TEST_SUITE_P(Cases, ItemRows, ::testing::ValuesIn(rowCases));

TEST(TemplateReplace, RepeatsUntilTheTokenIsGoneAndEndsOnSelfReference)
{
    struct Case
    {
        const char* text;
        const char* token;
        const char* value;
        const char* expected;
    } cases[] = {
        {"a %X% b %X%", "%X%", "1", "a 1 b 1"},
        {"%X%", "%X%", "", ""},
        {"%X%", "%X%", "[%X%]", "[%X%]"},
        // a token formed across the seam of the value is replaced as well
        {"%X%X%%", "%X%", "%", "%%"},
        {"no token", "%X%", "1", "no token"},
    };
    for (const Case& c : cases) {
        QString text = QString::fromLatin1(c.text);
        Template::replace(text, QString::fromLatin1(c.token), QString::fromLatin1(c.value));
        EXPECT_EQ(text, QString::fromLatin1(c.expected)) << c.text;
    }
}

class TemplateEdges : public OutputFixture
{
};

TEST_F(TemplateEdges, LogoFileIsWrittenAsPngEvenWithoutTheToken)
{
    addDesign(QStringLiteral("<p>no logo token</p>"), {});
    settings.setValue(QStringLiteral("prefsLogo"), pngData(12, 6));
    select(addDocument(1));
    EXPECT_EQ(html(), QStringLiteral("<p>no logo token</p>"));
    QFile file(locations.logoCache());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray png = file.readAll();
    EXPECT_TRUE(png.startsWith("\x89PNG"));
    EXPECT_EQ(QImage::fromData(png).size(), QSize(12, 6));
}

TEST_F(TemplateEdges, ReminderTakesTheSheetsTextsAndTheOverdueLabel)
{
    addDesign(QStringLiteral("%LETTERTITLE%|%LOCDUE%|%CONDITIONS%|%FOOTER%|%LOCREMINDER%"), {});
    select(addDocument(0, map({{"conditions", "doc"}, {"footer", "doc"}})));
    preview.setReminderTexts(
        {QStringLiteral("Reminder"), QStringLiteral("Please pay\nnow"), QStringLiteral("Thanks")});
    state.isReminderAction = true;
    EXPECT_EQ(html(), QStringLiteral("Reminder|{locOverdue}|Please pay<br />now|Thanks|{locReminder}"));
    state.isReminderAction = false;
    EXPECT_EQ(html(), QStringLiteral("Quote|{locExpiration}|doc|doc|{locReminder}"));
}

TEST_F(TemplateEdges, MissingDesignOrPageTemplateGivesAClearPage)
{
    select(addDocument(1));
    EXPECT_EQ(html(), PreviewController::missingDesignPage());
    ManagedObject* design = addDesign({}, QStringLiteral("<tr></tr>"));
    EXPECT_EQ(html(), PreviewController::missingTemplatePage());
    design->setValue(QStringLiteral("isDefault"), false);
    addDesign(QStringLiteral("second %NUMBER%"), {});
    EXPECT_EQ(html(), QStringLiteral("second INV-2025-17"));
}

TEST_F(TemplateEdges, RowsOfADocumentThatIsNotShownKeepTheirStoredOrder)
{
    addDesign(QStringLiteral("%ITEMSLIST%"), QStringLiteral("%ITEMNUMBER%%ITEMSTITLE% "));
    ManagedObject* shown = addDocument(1);
    addItem(shown, map({{"title", "shown"}}));
    ManagedObject* other = addDocument(1);
    addItem(other, map({{"title", "b"}}));
    addItem(other, map({{"title", "a"}}));
    select(shown);
    EXPECT_EQ(preview.documentHTMLString(*other, preview.displayedItems(*other)), QStringLiteral("1b 2a "));
    EXPECT_EQ(html(), QStringLiteral("1shown "));
}

TEST(StringFormatTest, FillsPrintfStyleDirectives)
{
    struct Case
    {
        const char* format;
        QStringList args;
        const char* expected;
    } cases[] = {
        {"Page %ld of %ld", {"2", "3"}, "Page 2 of 3"},
        {"Seite %d von %d", {"2", "3"}, "Seite 2 von 3"},
        {"%2$ld / %1$ld", {"2", "3"}, "3 / 2"},
        {"%@ | %@", {"A", "B"}, "A | B"},
        {"100%% of %lu", {"7"}, "100% of 7"},
        {"%ld and %ld", {"1"}, "1 and "},
        {"trailing %", {}, "trailing %"},
        {"%y stays", {}, "%y stays"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(StringFormat::apply(QString::fromUtf8(c.format), c.args), QString::fromUtf8(c.expected))
            << c.format;
}

TEST(SecurityPolicy, GoesIntoTheHeadWithoutLeavingStandardsMode)
{
    // What goes in front of a page that loads nothing from its styles, and
    // the policy alone, for one that does.
    const QString both = PdfRenderer::withSecurityPolicy(QString());
    const QString policy = PdfRenderer::withSecurityPolicy(QStringLiteral("url(")).chopped(4);
    ASSERT_TRUE(policy.startsWith(QStringLiteral("<meta http-equiv=\"Content-Security-Policy\"")));
    ASSERT_TRUE(both.startsWith(policy) && both.size() > policy.size());
    struct Case
    {
        const char* html;
        const char* expected; // "^" stands for what is put in
        bool loadsFromStyles;
    } cases[] = {
        {"<!DOCTYPE html><html><head>", "<!DOCTYPE html>^<html><head>", false},
        {"  <!doctype HTML>\n<html>", "  <!doctype HTML>^\n<html>", false},
        {"<!-- Vorn --><!DOCTYPE html><p>", "<!-- Vorn --><!DOCTYPE html>^<p>", false},
        {"<html><p>x</p>", "^<html><p>x</p>", false},
        {"<p>no doctype here <!DOCTYPE html></p>", "^<p>no doctype here <!DOCTYPE html></p>", false},
        {"<style>body{background:URL(data:x)}</style>", "^<style>body{background:URL(data:x)}</style>", true},
        {"<style>@font-face{}</style>", "^<style>@font-face{}</style>", true},
    };
    for (const Case& c : cases) {
        QString expected = QString::fromUtf8(c.expected);
        expected.replace(QLatin1Char('^'), c.loadsFromStyles ? policy : both);
        EXPECT_EQ(PdfRenderer::withSecurityPolicy(QString::fromUtf8(c.html)), expected) << c.html;
    }
}

} // namespace
} // namespace vorn::test
