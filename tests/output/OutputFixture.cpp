#include "tests/output/OutputFixture.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>

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
      clock(utc(2025, 3, 5, 9, 30)), context(nullptr, clock), state(settings, ui, clock, locations),
      preview(state, renderer)
{
    qputenv("LC_ALL", "en_US.UTF-8");
    state.setContext(&context);
    state.pdfPath = locations.scratchPdf();
    for (const char* key : labels)
        settings.setValue(QLatin1String(key), QString("{%1}").arg(QLatin1String(key)));
    assign(settings, "locPageOf", "Page %ld of %ld", "prefsName", "Tandrelo Studio", "prefsSlogan",
           "Type & Layout", "prefsContact", "12 Harbour Road\nPortsmouth\nhello@tandrelo.test",
           "prefsLetterbox", "Tandrelo Studio · 12 Harbour Road · Portsmouth", "prefsDatePattern",
           "%DAY%.%MONTHSHORT%.%YEARLONG%", "prefsCurrency", "EUR", "tax1Title", "VAT", "tax2Title",
           "City Tax", "tax3Title", "Levy", "tax1Enabled", true, "tax2Enabled", true, "tax3Enabled", false,
           "tempUseSKU", true, "showItemSubAmount", true, "tempPaperSize", 2);
}

OutputFixture::~OutputFixture()
{
    state.setContext(nullptr);
}

ManagedObject* OutputFixture::addDesign(const QString& page, const QString& item, const QString& css,
                                        bool isDefault)
{
    ManagedObject* design = context.insertNewObject(Entity::Design);
    assign(*design, "title", "Test", "invoice", page, "item", item, "css", css, "isDefault", isDefault);
    return design;
}

ManagedObject* OutputFixture::newDocument(int kind)
{
    ManagedObject* document = context.insertNewObject(Entity::Invoice);
    assign(*document, "kind", kind, "status", 0, "title", kind ? "Invoice" : "Quote", "number", "INV-2025-17",
           "currency", "EUR", "date", utc(2025, 3, 5, 10), "due", utc(2025, 3, 19, 10));
    return document;
}

ManagedObject* OutputFixture::newItem(ManagedObject* document)
{
    ManagedObject* item = context.insertNewObject(Entity::Item);
    document->insertObject("items", item);
    return item;
}

void OutputFixture::select(ManagedObject* document)
{
    state.invoicesController().fetch();
    state.invoicesController().setSelectedObjects({document});
    state.itemsController().setContent(document->items());
}

QString OutputFixture::home(const QString& name) const
{
    return QDir(environment.home()).filePath(name);
}

QString OutputFixture::write(const QString& name, const QByteArray& data) const
{
    writeFile(home(name), data);
    return home(name);
}

QString OutputFixture::html()
{
    QString text = preview.invoiceHTMLString();
    text.replace(environment.home(), "$HOME");
    return text;
}

QByteArray OutputFixture::pngData(int width, int height, QColor colour)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return data;
}

} // namespace vorn::test
