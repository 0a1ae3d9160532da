#include "tests/output/OutputFixture.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QTimeZone>

namespace vorn::test {

namespace {

const char* const labels[] = {
    "locInvoice",  "locQuote", "locReminder",  "locInvoiceNumber", "locQuoteNumber", "locClientNumber",
    "locNumber",   "locDate",  "locDue",       "locExpiration",    "locOverdue",     "locDispatched",
    "locSubtotal", "locTotal", "locTaxes",     "locDiscount",      "locShipping",    "locDescription",
    "locQuantity", "locUnit",  "locUnitPrice", "locNet",           "locNo",          "locSKUNumber"};

} // namespace

OutputFixture::OutputFixture()
    : locations(FileLocations::fromEnvironment()), settings(locations.settingsFile()),
      clock(QDateTime(QDate(2025, 3, 5), QTime(9, 30), QTimeZone::utc())), context(nullptr, clock),
      state(settings, ui, clock, locations), preview(state, renderer)
{
    qputenv("LC_ALL", "en_US.UTF-8");
    state.setContext(&context);
    state.pdfPath = locations.scratchPdf();
    for (const char* key : labels)
        settings.setValue(QLatin1String(key), QStringLiteral("{%1}").arg(QLatin1String(key)));
    settings.setValue(QStringLiteral("locPageOf"), QStringLiteral("Page %ld of %ld"));
    settings.setValue(QStringLiteral("prefsName"), QStringLiteral("Tandrelo Studio"));
    settings.setValue(QStringLiteral("prefsSlogan"), QStringLiteral("Type & Layout"));
    settings.setValue(QStringLiteral("prefsContact"),
                      QStringLiteral("12 Harbour Road\nPortsmouth\nhello@tandrelo.test"));
    settings.setValue(QStringLiteral("prefsLetterbox"),
                      QStringLiteral("Tandrelo Studio · 12 Harbour Road · Portsmouth"));
    settings.setValue(QStringLiteral("prefsDatePattern"), QStringLiteral("%DAY%.%MONTHSHORT%.%YEARLONG%"));
    settings.setValue(QStringLiteral("prefsCurrency"), QStringLiteral("EUR"));
    settings.setValue(QStringLiteral("tax1Title"), QStringLiteral("VAT"));
    settings.setValue(QStringLiteral("tax2Title"), QStringLiteral("City Tax"));
    settings.setValue(QStringLiteral("tax3Title"), QStringLiteral("Levy"));
    settings.setValue(QStringLiteral("tax1Enabled"), true);
    settings.setValue(QStringLiteral("tax2Enabled"), true);
    settings.setValue(QStringLiteral("tax3Enabled"), false);
    settings.setValue(QStringLiteral("tempUseSKU"), true);
    settings.setValue(QStringLiteral("showItemSubAmount"), true);
    settings.setValue(QStringLiteral("tempPaperSize"), 2);
}

OutputFixture::~OutputFixture()
{
    state.setContext(nullptr);
}

void OutputFixture::setValues(ManagedObject* object, const QVariantMap& values)
{
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        object->setValue(it.key(), it.value());
}

ManagedObject* OutputFixture::addDesign(const QString& page, const QString& item, const QString& css,
                                        bool isDefault)
{
    ManagedObject* design = context.insertNewObject(Entity::Design);
    setValues(design, {{QStringLiteral("title"), QStringLiteral("Test")},
                       {QStringLiteral("invoice"), page},
                       {QStringLiteral("item"), item},
                       {QStringLiteral("css"), css},
                       {QStringLiteral("isDefault"), isDefault}});
    return design;
}

ManagedObject* OutputFixture::addDocument(int kind, const QVariantMap& values)
{
    ManagedObject* document = context.insertNewObject(Entity::Invoice);
    setValues(document,
              {{QStringLiteral("kind"), kind},
               {QStringLiteral("status"), 0},
               {QStringLiteral("title"), kind ? QStringLiteral("Invoice") : QStringLiteral("Quote")},
               {QStringLiteral("number"), QStringLiteral("INV-2025-17")},
               {QStringLiteral("currency"), QStringLiteral("EUR")},
               {QStringLiteral("date"), QDateTime(QDate(2025, 3, 5), QTime(10, 0), QTimeZone::utc())},
               {QStringLiteral("due"), QDateTime(QDate(2025, 3, 19), QTime(10, 0), QTimeZone::utc())}});
    setValues(document, values);
    return document;
}

ManagedObject* OutputFixture::addItem(ManagedObject* document, const QVariantMap& values)
{
    ManagedObject* item = context.insertNewObject(Entity::Item);
    setValues(item, values);
    document->insertObject(QStringLiteral("items"), item);
    return item;
}

void OutputFixture::select(ManagedObject* document)
{
    state.invoicesController().fetch();
    state.invoicesController().setSelectedObjects({document});
    state.itemsController().setContent(document->items());
}

QString OutputFixture::html()
{
    QString text = preview.invoiceHTMLString();
    text.replace(environment.home(), QStringLiteral("$HOME"));
    return text;
}

QByteArray OutputFixture::pngData(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(QColor(200, 40, 40));
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return data;
}

} // namespace vorn::test
