#include "documents/Template.h"
#include "documents/StringFormat.h"
#include "output/PdfRenderer.h"
#include "tests/output/OutputFixture.h"

#include <QImage>

#include <functional>

namespace vorn::test {
namespace {

// A set-up step that sets values on the document: with(key, value, key, value ...).
template <class... Values> auto with(const Values&... values)
{
    const QVariantList list{QVariant(values)...};
    return [list](OutputFixture&, ManagedObject* d) {
        for (qsizetype i = 0; i + 1 < list.size(); i += 2)
            d->setValue(list[i].toString(), list[i + 1]);
    };
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
    addDesign(QString::fromUtf8(c.page), QString::fromUtf8(c.item), "/* css */");
    ManagedObject* document = addDocument(1);
    if (c.setup)
        c.setup(*this, document);
    select(document);
    EXPECT_EQ(html(), QString::fromUtf8(c.expected)) << c.name;
}

void threeItems(OutputFixture& f, ManagedObject* d)
{
    for (const char* title : {"Alpha", "Bravo", "Charlie"})
        f.addItem(d, "title", title, "unitCount", 1.0f, "amount", 10.0f);
}

const char* const reminderPage = "%LETTERTITLE%|%LOCDUE%|%CONDITIONS%|%FOOTER%|%LOCREMINDER%";

// What the golden pages pin (every token filled) is not repeated here.
const PageCase pageCases[] = {
    {"no tokens", "<p>plain 100% text</p>", "", nullptr, "<p>plain 100% text</p>"},
    {"a token several times", "%NUMBER%/%NUMBER% %NUMBER%", "", nullptr,
     "INV-2025-17/INV-2025-17 INV-2025-17"},
    {"tokens are case-sensitive", "%number% %Number%", "", nullptr, "%number% %Number%"},
    {"css first, so tokens in it are filled", "<style>%CSS%</style>", "", nullptr,
     "<style>/* css */</style>"},
    {"absent texts are empty", "[%DISPATCHED%|%CLIENTNUMBER%|%SUBJECT%|%CONDITIONS%|%FOOTER%]", "", nullptr,
     "[||||]"},
    {"discount off leaves only the template's text", "[%LOCDISCOUNT%|%DISCOUNTKINDCHAR%|%DISCOUNT%]", "",
     with("isDiscountEnabled", false, "discountAmount", 5.0f), "[||]"},
    {"the quote label only reaches a due label brought in later", "%LOCDUE% / %SUBJECT%", "",
     with("subject", "see %LOCDUE%"), "{locDue} / see {locQuote}"},
    {"line breaks in contact and address, not in name and subject",
     "%COMPANYCONTACT%#%CLIENTADDRESS%#%COMPANY%#%SUBJECT%", "",
     [](OutputFixture& f, ManagedObject* d) {
         f.settings.setValue("prefsName", "A\nB");
         d->setValue("address", "Erin Holloway\r\n7 Quarry Lane");
         d->setValue("subject", "S\nT");
     },
     "12 Harbour Road<br />Portsmouth<br />hello@tandrelo.test#Erin Holloway\r<br />7 Quarry Lane#A\nB#S\nT"},
    {"a value holding its own token ends", "%SUBJECT%|%CONDITIONS%", "",
     with("subject", "a %SUBJECT% b", "conditions", "%CONDITIONS%%CONDITIONS%"),
     "a %SUBJECT% b|%CONDITIONS%%CONDITIONS%"},
    {"a logo that is no image: the notice", "[%LOGO%]", "",
     [](OutputFixture& f, ManagedObject*) { f.settings.setValue("prefsLogo", QByteArray("GIF89a-garbage")); },
     "[<small><small>Please provide a 'Logo Image' in the Preferences<br />or remove the 'LOGO' substitute "
     "from the "
     "design/template.</small></small>]"},
    {"no items, no rows", "[%ITEMSLIST%]", "<tr>%ITEMSTITLE%</tr>", nullptr, "[]"},
    {"rows follow the item list's sort order", "[%ITEMSLIST%]", "%ITEMNUMBER%:%ITEMSTITLE%;",
     [](OutputFixture& f, ManagedObject* d) {
         threeItems(f, d);
         f.state.itemsController().setSortDescriptors({{"title", false}});
     },
     "[1:Charlie;2:Bravo;3:Alpha;]"},
    // Every row token of an item without values (and without the number label):
    // zeros and empty texts. The golden pages pin the rows of full items.
    {"an empty item fills every row token with nothing", "%ITEMSLIST%",
     "%ITEMNUMBER%|%ITEMSQUANTITY% %ITEMSUNIT%|%ITEMSBASEAMOUNT%|%ITEMSSKU%|%ITEMSSUBAMOUNT%|"
     "%ITEMSTITLE%/%ITEMSSUBTITLE%|%ITEMSAMOUNT%|1[%ITEMSTAX1TITLE% %ITEMSTAX1PERCENT% %ITEMSTAX1AMOUNT%]"
     "2[%ITEMSTAX2TITLE% %ITEMSTAX2PERCENT% %ITEMSTAX2AMOUNT%]3[%ITEMSTAX3TITLE% %ITEMSTAX3PERCENT% "
     "%ITEMSTAX3AMOUNT%]|%LOCSHORTNUMBER% %LOCUNIT%|%CURRENCY%",
     [](OutputFixture& f, ManagedObject* d) {
         f.addItem(d);
         f.settings.removeValue("locNo");
     },
     "1|0 |0.00||0.00|/|0.00|1[  ]2[  ]3[  ]| {locUnit}|EUR"},
    {"a reminder takes the sheet's texts and the overdue label", reminderPage, "",
     [](OutputFixture& f, ManagedObject* d) {
         assign(*d, "kind", 0, "conditions", "doc", "footer", "doc");
         f.preview.setReminderTexts({"Reminder", "Please pay\nnow", "Thanks"});
         f.state.isReminderAction = true;
     },
     "Reminder|{locOverdue}|Please pay<br />now|Thanks|{locReminder}"},
    {"a quote without the reminder keeps its own", reminderPage, "",
     with("kind", 0, "title", "Quote", "conditions", "doc", "footer", "doc"),
     "Quote|{locExpiration}|doc|doc|{locReminder}"},
};

INSTANTIATE_TEST_SUITE_P(Cases, PageTemplates, ::testing::ValuesIn(pageCases));

class TemplateEdges : public OutputFixture
{
};

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

TEST_F(TemplateEdges, LogoFileIsWrittenAsPngEvenWithoutTheToken)
{
    addDesign("<p>no logo token</p>", {});
    settings.setValue("prefsLogo", pngData(12, 6));
    select(addDocument(1));
    EXPECT_EQ(html(), "<p>no logo token</p>");
    const QByteArray png = fileBytes(locations.logoCache());
    EXPECT_TRUE(png.startsWith("\x89PNG"));
    EXPECT_EQ(QImage::fromData(png).size(), QSize(12, 6));
}

TEST_F(TemplateEdges, MissingDesignOrPageTemplateGivesAClearPage)
{
    select(addDocument(1));
    EXPECT_EQ(html(), PreviewController::missingDesignPage());
    ManagedObject* design = addDesign({}, "<tr></tr>");
    EXPECT_EQ(html(), PreviewController::missingTemplatePage());
    design->setValue("isDefault", false);
    addDesign("second %NUMBER%", {});
    EXPECT_EQ(html(), "second INV-2025-17");
}

TEST_F(TemplateEdges, RowsOfADocumentThatIsNotShownKeepTheirStoredOrder)
{
    addDesign("%ITEMSLIST%", "%ITEMNUMBER%%ITEMSTITLE% ");
    ManagedObject* shown = addDocument(1);
    addItem(shown, "title", "shown");
    ManagedObject* other = addDocument(1);
    addItem(other, "title", "b");
    addItem(other, "title", "a");
    select(shown);
    EXPECT_EQ(preview.documentHTMLString(*other, preview.displayedItems(*other)), "1b 2a ");
    EXPECT_EQ(html(), "1shown ");
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
    const QString policy = PdfRenderer::withSecurityPolicy("url(").chopped(4);
    ASSERT_TRUE(policy.startsWith("<meta http-equiv=\"Content-Security-Policy\""));
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
