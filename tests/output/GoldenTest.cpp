#include "output/DesignPreview.h"
#include "tests/output/OutputFixture.h"

#include <QDir>
#include <QFile>
#include <QTimeZone>

#include <functional>

// Pins the whole HTML of fixed documents in a fixed design that uses every
// token. Set VORN_UPDATE_GOLDEN=1 to write the files anew after a deliberate
// change, then review the difference.
namespace vorn::test {
namespace {

QString readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

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
    addDesign(readFile(golden(QStringLiteral("design/page.html"))),
              readFile(golden(QStringLiteral("design/item.html"))),
              readFile(golden(QStringLiteral("design/style.css"))));
    QString html = GetParam().produce(*this);
    html.replace(environment.home(), QStringLiteral("$HOME"));
    const QString path = golden(QString::fromLatin1(GetParam().file));
    if (qEnvironmentVariableIntValue("VORN_UPDATE_GOLDEN")) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(html.toUtf8());
        GTEST_SKIP() << "wrote " << path.toStdString();
    }
    EXPECT_EQ(html, readFile(path)) << "differs from " << path.toStdString();
}

void items(OutputFixture& f, ManagedObject* d)
{
    f.addItem(d, {{QStringLiteral("title"), QStringLiteral("Brand workshop for %LOCINVOICE% and %TOTAL%")},
                  {QStringLiteral("subtitle"), QStringLiteral("half a day")},
                  {QStringLiteral("unit"), QStringLiteral("day")},
                  {QStringLiteral("sku"), QStringLiteral("WS-1")},
                  {QStringLiteral("unitCount"), 1.0f},
                  {QStringLiteral("baseAmount"), 1200.0f},
                  {QStringLiteral("subAmount"), 1200.0f},
                  {QStringLiteral("amount"), 1284.0f},
                  {QStringLiteral("isTax1Applied"), true},
                  {QStringLiteral("tax1Title"), QStringLiteral("VAT")},
                  {QStringLiteral("tax1Percent"), 0.07f},
                  {QStringLiteral("tax1Amount"), 84.0f}});
    f.addItem(d, {{QStringLiteral("title"), QStringLiteral("Printing <b>bold</b>")},
                  {QStringLiteral("unit"), QStringLiteral("pc")},
                  {QStringLiteral("sku"), QStringLiteral("PR-500")},
                  {QStringLiteral("unitCount"), 2.5f},
                  {QStringLiteral("baseAmount"), 0.125f},
                  {QStringLiteral("subAmount"), 0.3125f},
                  {QStringLiteral("amount"), 0.35f},
                  {QStringLiteral("isTax1Applied"), true},
                  {QStringLiteral("tax1Title"), QStringLiteral("VAT")},
                  {QStringLiteral("tax1Percent"), 7.1f},
                  {QStringLiteral("tax1Amount"), 0.0221875f},
                  {QStringLiteral("isTax2Applied"), false},
                  {QStringLiteral("tax2Title"), QStringLiteral("City Tax")},
                  {QStringLiteral("tax2Percent"), 0.05f},
                  {QStringLiteral("isTax3Applied"), true},
                  {QStringLiteral("tax3Title"), QStringLiteral("Levy")},
                  {QStringLiteral("tax3Percent"), 0.01f},
                  {QStringLiteral("tax3Amount"), 0.003125f}});
    f.addItem(d, {{QStringLiteral("title"), QStringLiteral("Licence")},
                  {QStringLiteral("unitCount"), 1234.0f},
                  {QStringLiteral("baseAmount"), 1.5f},
                  {QStringLiteral("subAmount"), 1851.0f},
                  {QStringLiteral("amount"), 1851.0f}});
}

ManagedObject* invoice(OutputFixture& f, int kind)
{
    ManagedObject* d = f.addDocument(
        kind, {{QStringLiteral("address"), QStringLiteral("Erin Holloway\nQuarry & Sons\n7 Quarry Lane")},
               {QStringLiteral("clientNumber"), QStringLiteral("C-42")},
               {QStringLiteral("dispatchNumber"), QStringLiteral("DHL 123")},
               {QStringLiteral("subject"), QStringLiteral("Re: %TOTAL% for %COMPANY%, %LOCDUE%")},
               {QStringLiteral("conditions"), QStringLiteral("Within 14 days.\nLate: %LOCOVERDUE%")},
               {QStringLiteral("footer"), QStringLiteral("Bank: Harbour Bank\nIBAN: XX00 1234")},
               {QStringLiteral("subAmount"), 3051.3125f},
               {QStringLiteral("amount"), 3349.75f},
               {QStringLiteral("tax1Amount"), 84.02219f},
               {QStringLiteral("tax1Percent"), 0.07f},
               {QStringLiteral("tax2Amount"), 0.0f},
               {QStringLiteral("tax2Percent"), 0.05f},
               {QStringLiteral("tax3Amount"), 0.003125f},
               {QStringLiteral("tax3Percent"), 0.01f}});
    items(f, d);
    f.select(d);
    return d;
}

const GoldenCase cases[] = {
    {"invoice.html",
     [](OutputFixture& f) {
         f.settings.setValue(QStringLiteral("prefsLogo"), OutputFixture::pngData());
         ManagedObject* d = invoice(f, 1);
         f.setValues(d, {{QStringLiteral("isDiscountEnabled"), true},
                         {QStringLiteral("discountKind"), 1},
                         {QStringLiteral("discountPercent"), 0.1f},
                         {QStringLiteral("hasDiscountSubtitle"), true},
                         {QStringLiteral("discountTitle"), QStringLiteral("Loyalty")},
                         {QStringLiteral("discountSubtitle"), QStringLiteral("ten years")},
                         {QStringLiteral("isShippingEnabled"), true},
                         {QStringLiteral("shippingTitle"), QStringLiteral("Courier")},
                         {QStringLiteral("hasShippingSubtitle"), true},
                         {QStringLiteral("shippingSubtitle"), QStringLiteral("overnight")},
                         {QStringLiteral("shippingAmount"), 6.99f}});
         return f.preview.invoiceHTMLString();
     }},
    {"quote.html",
     [](OutputFixture& f) {
         f.settings.setValue(QStringLiteral("tempUseSKU"), false);
         f.settings.setValue(QStringLiteral("showItemSubAmount"), false);
         f.settings.setValue(QStringLiteral("tax2Enabled"), false);
         f.settings.setValue(QStringLiteral("tax3Enabled"), true);
         ManagedObject* d = invoice(f, 0);
         f.setValues(d, {{QStringLiteral("title"), QStringLiteral("Quote")},
                         {QStringLiteral("isDiscountEnabled"), true},
                         {QStringLiteral("discountKind"), 0},
                         {QStringLiteral("discountAmount"), 50.0f},
                         {QStringLiteral("discountTitle"), QStringLiteral("not shown without a subtitle")},
                         {QStringLiteral("isShippingEnabled"), false},
                         {QStringLiteral("shippingTitle"), QStringLiteral("Courier")}});
         return f.preview.invoiceHTMLString();
     }},
    {"reminder.html",
     [](OutputFixture& f) {
         invoice(f, 1);
         f.preview.setReminderTexts({QStringLiteral("Payment Reminder"),
                                     QStringLiteral("Still open.\nPlease pay within 7 days."),
                                     QStringLiteral("Thank you.")});
         f.state.isReminderAction = true;
         return f.preview.invoiceHTMLString();
     }},
    {"design-preview.html",
     [](OutputFixture& f) {
         f.settings.setValue(QStringLiteral("invPattern"), QStringLiteral("RE-%YEAR%-%MONTH%-%DAY%/%COUNT%"));
         f.settings.setValue(QStringLiteral("invCount"), 41);
         f.settings.setValue(QStringLiteral("tax2Title"), QString());
         f.settings.setValue(QStringLiteral("tempInvConditions"), QStringLiteral("Sample\nconditions"));
         f.settings.setValue(QStringLiteral("tempInvFooter"), QStringLiteral("Sample footer"));
         DesignPreview preview(f.preview);
         return preview.invoiceHTMLString();
     }},
};

INSTANTIATE_TEST_SUITE_P(Documents, Golden, ::testing::ValuesIn(cases), [](const auto& info) {
    QString name = QString::fromLatin1(info.param.file);
    return name.remove(QLatin1Char('-')).remove(QStringLiteral(".html")).toStdString();
});

} // namespace
} // namespace vorn::test
