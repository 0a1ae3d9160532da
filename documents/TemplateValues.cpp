#include "documents/TemplateValues.h"

#include "documents/DocumentsLog.h"
#include "documents/Formatter.h"
#include "store/AtomicFile.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vorn {

namespace {

QString setting(const Settings& settings, const char* key)
{
    return settings.stringValue(QLatin1String(key));
}

QString text(const ManagedObject& object, const char* key)
{
    return object.stringValue(QLatin1String(key));
}

QString subtitled(const QString& title, const QString& subtitle)
{
    return QStringLiteral("%1<br /><small>%2</small>").arg(title, subtitle);
}

} // namespace

void PageValues::readSettings(const Settings& s)
{
    company = setting(s, "prefsName");
    slogan = setting(s, "prefsSlogan");
    contact = setting(s, "prefsContact");
    locDate = setting(s, "locDate");
    locNumber = setting(s, "locNumber");
    locClientNumber = setting(s, "locClientNumber");
    locDispatched = setting(s, "locDispatched");
    locSubtotal = setting(s, "locSubtotal");
    locTotal = setting(s, "locTotal");
    locDiscount = setting(s, "locDiscount");
    locInvoice = setting(s, "locInvoice");
    locQuote = setting(s, "locQuote");
    locExpiration = setting(s, "locExpiration");
    locQuoteNumber = setting(s, "locQuoteNumber");
    locReminder = setting(s, "locReminder");
    locOverdue = setting(s, "locOverdue");
    locInvoiceNumber = setting(s, "locInvoiceNumber");
    locTaxes = setting(s, "locTaxes");
    letterbox = setting(s, "prefsLetterbox");
    for (int i = 0; i < 3; ++i) {
        const QString n = QString::number(i + 1);
        taxes[size_t(i)].enabled = s.boolValue(QStringLiteral("tax%1Enabled").arg(n));
        taxes[size_t(i)].title = s.stringValue(QStringLiteral("tax%1Title").arg(n));
    }
}

PageValues pageValuesForDocument(const ManagedObject& d, const Settings& settings,
                                 const ReminderTexts* reminder)
{
    PageValues v;
    v.readSettings(settings);
    const bool invoice = d.isInvoice();
    if (reminder)
        v.locDue = setting(settings, "locOverdue");
    else
        v.locDue = setting(settings, invoice ? "locDue" : "locExpiration");

    v.letterTitle = reminder ? reminder->title : text(d, "title");
    v.conditions = reminder ? reminder->conditions : text(d, "conditions");
    v.footer = reminder ? reminder->footer : text(d, "footer");
    v.clientAddress = text(d, "address");
    v.dispatched = text(d, "dispatchNumber");
    v.date = d.dateValue(key::date);
    v.due = d.dateValue(key::due);
    v.number = text(d, "number");
    v.clientNumber = text(d, "clientNumber");
    v.currency = text(d, "currency");
    v.subject = text(d, "subject");
    v.subAmount = d.floatValue(key::subAmount);
    v.amount = d.floatValue(key::amount);

    v.discountEnabled = d.boolValue(key::isDiscountEnabled);
    v.hasDiscountSubtitle = d.boolValue(key::hasDiscountSubtitle);
    v.discountTitle = text(d, "discountTitle");
    v.discountSubtitle = text(d, "discountSubtitle");
    v.discountKind = d.discountKind();
    v.discountAmount = d.floatValue(key::discountAmount);
    v.discountPercent = d.floatValue(key::discountPercent);

    v.shippingEnabled = d.boolValue(key::isShippingEnabled);
    v.hasShippingSubtitle = d.boolValue(key::hasShippingSubtitle);
    v.shippingTitle = text(d, "shippingTitle");
    v.shippingSubtitle = text(d, "shippingSubtitle");
    v.shippingAmount = d.floatValue(key::shippingAmount);

    for (int i = 0; i < 3; ++i) {
        const QString n = QString::number(i + 1);
        v.taxes[size_t(i)].amount = d.floatValue(QStringLiteral("tax%1Amount").arg(n));
        v.taxes[size_t(i)].percent = d.floatValue(QStringLiteral("tax%1Percent").arg(n));
    }
    return v;
}

Template::Steps pageSteps(const PageValues& v, const Formatter& f)
{
    auto lines = [](const QString& s) { return Formatter::htmlLineBreakStringFromString(s); };
    Template::Steps steps;
    steps.reserve(52);
    auto add = [&steps](const char* token, const QString& value) {
        steps.append({QLatin1String(token), value});
    };

    add("%CSS%", v.css);
    add("%COMPANY%", v.company);
    add("%SLOGAN%", v.slogan);
    add("%COMPANYCONTACT%", lines(v.contact));
    add("%LETTERTITLE%", v.letterTitle);
    add("%CLIENTADDRESS%", lines(v.clientAddress));
    add("%DISPATCHED%", v.dispatched);
    add("%DATE%", f.getPatternDateStringFromDate(v.date));
    add("%DUEDATE%", f.getPatternDateStringFromDate(v.due));
    add("%NUMBER%", v.number);
    add("%CLIENTNUMBER%", v.clientNumber);
    add("%LOCDATE%", v.locDate);
    add("%LOCDUE%", v.locDue);
    add("%LOCNUMBER%", v.locNumber);
    add("%LOCCLIENTNUMBER%", v.locClientNumber);
    add("%LOCDISPATCHED%", v.locDispatched);
    add("%CURRENCY%", v.currency);
    add("%SUBJECT%", v.subject);
    add("%CONDITIONS%", lines(v.conditions));
    add("%FOOTER%", lines(v.footer));
    if (v.miscellaneous)
        add("%MISCELLANEOUS%", lines(*v.miscellaneous));
    add("%SUBTOTAL%", f.stringFromNumber(v.subAmount));
    add("%TOTAL%", f.stringFromNumber(v.amount));
    add("%LOCSUBTOTAL%", v.locSubtotal);

    // The discount row is labelled by the preference unless it has a
    // subtitle, and its label goes first; the shipping row is labelled by
    // the document's own title and its amount goes first.
    if (v.discountEnabled) {
        add("%LOCDISCOUNT%",
            v.hasDiscountSubtitle ? subtitled(v.discountTitle, v.discountSubtitle) : v.locDiscount);
        add("%DISCOUNTKINDCHAR%",
            v.discountKind == DiscountKind::Rate ? QStringLiteral("%") : QStringLiteral("-"));
        add("%DISCOUNT%", v.discountKind == DiscountKind::Rate ? f.decimalStringFromNumber(v.discountPercent)
                                                               : f.stringFromNumber(v.discountAmount));
    } else {
        add("%LOCDISCOUNT%", {});
        add("%DISCOUNTKINDCHAR%", {});
        add("%DISCOUNT%", {});
    }
    if (v.shippingEnabled) {
        add("%SHIPPING%", f.stringFromNumber(v.shippingAmount));
        add("%LOCSHIPPING%",
            v.hasShippingSubtitle ? subtitled(v.shippingTitle, v.shippingSubtitle) : v.shippingTitle);
    } else {
        add("%SHIPPING%", {});
        add("%LOCSHIPPING%", {});
    }

    add("%LOCTOTAL%", v.locTotal);
    for (int i = 0; i < 3; ++i) {
        const PageValues::TaxTotal& tax = v.taxes[size_t(i)];
        const QString n = QString::number(i + 1);
        steps.append({QStringLiteral("%TAX%1TITLE%").arg(n), tax.enabled ? tax.title : QString()});
        steps.append(
            {QStringLiteral("%TAX%1%").arg(n), tax.enabled ? f.stringFromNumber(tax.amount) : QString()});
        steps.append({QStringLiteral("%TAX%1RATE%").arg(n),
                      tax.enabled ? f.decimalStringFromNumber(tax.percent) : QString()});
    }
    add("%ITEMSLIST%", v.itemsList);
    add("%LOCINVOICE%", v.locInvoice);
    // The quote label has no token of its own: it fills the "%LOCDUE%" that
    // only values inserted after the due label can still bring in.
    add("%LOCDUE%", v.locQuote);
    add("%LOCEXPIRATION%", v.locExpiration);
    add("%LOCQUOTENUMBER%", v.locQuoteNumber);
    add("%LOCREMINDER%", v.locReminder);
    add("%LOCOVERDUE%", v.locOverdue);
    add("%LOCINVOICENUMBER%", v.locInvoiceNumber);
    add("%LOCTAXES%", v.locTaxes);
    add("%WINDOW%", v.letterbox);
    add("%LOGO%", v.logo);
    return steps;
}

ItemValues ItemValues::fromObject(const ManagedObject& o)
{
    ItemValues v;
    v.unitCount = o.floatValue(key::unitCount);
    v.unit = text(o, "unit");
    v.baseAmount = o.floatValue(key::baseAmount);
    v.sku = text(o, "sku");
    v.subAmount = o.floatValue(key::subAmount);
    v.title = text(o, "title");
    v.subtitle = text(o, "subtitle");
    v.amount = o.floatValue(key::amount);
    for (int i = 0; i < 3; ++i) {
        const QString n = QString::number(i + 1);
        Tax& t = v.taxes[size_t(i)];
        t.applied = o.boolValue(QStringLiteral("isTax%1Applied").arg(n));
        t.title = o.stringValue(QStringLiteral("tax%1Title").arg(n));
        t.percent = o.floatValue(QStringLiteral("tax%1Percent").arg(n));
        t.amount = o.floatValue(QStringLiteral("tax%1Amount").arg(n));
    }
    return v;
}

ItemValues ItemValues::fromDictionary(const QVariantMap& d)
{
    auto number = [&d](const QString& key) { return d.value(key).toFloat(); };
    auto string = [&d](const QString& key) {
        const QVariant value = d.value(key);
        return value.typeId() == QMetaType::QString ? value.toString() : QString();
    };
    ItemValues v;
    v.unitCount = number(key::unitCount);
    v.unit = string(key::unit);
    v.baseAmount = number(key::baseAmount);
    v.sku = string(key::sku);
    v.subAmount = number(key::subAmount);
    v.title = string(key::title);
    v.subtitle = string(key::subtitle);
    v.amount = number(key::amount);
    for (int i = 0; i < 3; ++i) {
        const QString n = QString::number(i + 1);
        Tax& t = v.taxes[size_t(i)];
        t.applied = d.value(QStringLiteral("isTax%1Applied").arg(n)).toBool();
        t.title = string(QStringLiteral("tax%1Title").arg(n));
        t.percent = number(QStringLiteral("tax%1Percent").arg(n));
        t.amount = number(QStringLiteral("tax%1Amount").arg(n));
    }
    return v;
}

ItemRowSettings ItemRowSettings::fromSettings(const Settings& s)
{
    ItemRowSettings r;
    r.useSku = s.boolValue(QStringLiteral("tempUseSKU"));
    r.showSubAmount = s.boolValue(key::showItemSubAmount);
    r.locNo = setting(s, "locNo");
    r.locUnit = setting(s, "locUnit");
    r.locUnitPrice = setting(s, "locUnitPrice");
    r.locNet = setting(s, "locNet");
    r.locSKUNumber = setting(s, "locSKUNumber");
    r.locDescription = setting(s, "locDescription");
    r.locQuantity = setting(s, "locQuantity");
    r.locTaxes = setting(s, "locTaxes");
    return r;
}

Template::Steps itemSteps(const ItemValues& item, int row, const ItemRowSettings& s, const QString& currency,
                          const Formatter& f)
{
    Template::Steps steps;
    steps.reserve(27);
    auto add = [&steps](const char* token, const QString& value) {
        steps.append({QLatin1String(token), value});
    };

    add("%ITEMNUMBER%", f.decimalStringFromNumber(row));
    add("%ITEMSQUANTITY%", f.decimalStringFromNumber(item.unitCount));
    add("%ITEMSUNIT%", item.unit);
    add("%ITEMSBASEAMOUNT%", f.stringFromNumber(item.baseAmount));
    add("%ITEMSSKU%", s.useSku ? item.sku : QString());
    add("%ITEMSSUBAMOUNT%", s.showSubAmount ? f.stringFromNumber(item.subAmount) : QString());
    add("%ITEMSTITLE%", item.title);
    add("%ITEMSSUBTITLE%", item.subtitle);
    add("%ITEMSAMOUNT%", f.stringFromNumber(item.amount));
    // A row shows the taxes its item carries, whatever the tax switches of
    // the preferences (those govern the totals only).
    for (int i = 0; i < 3; ++i) {
        const ItemValues::Tax& tax = item.taxes[size_t(i)];
        const QString n = QString::number(i + 1);
        steps.append({QStringLiteral("%ITEMSTAX%1TITLE%").arg(n), tax.applied ? tax.title : QString()});
        steps.append({QStringLiteral("%ITEMSTAX%1PERCENT%").arg(n),
                      tax.applied ? f.decimalStringFromNumber(tax.percent) : QString()});
        steps.append({QStringLiteral("%ITEMSTAX%1AMOUNT%").arg(n),
                      tax.applied ? f.stringFromNumber(tax.amount) : QString()});
    }
    add("%LOCSHORTNUMBER%", s.locNo);
    add("%LOCUNIT%", s.locUnit);
    add("%LOCUNITPRICE%", s.locUnitPrice);
    add("%LOCNET%", s.locNet);
    add("%LOCSKUNUMBER%", s.locSKUNumber);
    add("%LOCDESCRIPTION%", s.locDescription);
    add("%LOCQUANTITY%", s.locQuantity);
    add("%LOCTAXES%", s.locTaxes);
    add("%CURRENCY%", currency);
    return steps;
}

QString fillItemsList(const QString& itemTemplate, const QList<ItemValues>& items,
                      const ItemRowSettings& settings, const QString& currency, const Formatter& formatter)
{
    QString result;
    int row = 1;
    for (const ItemValues& item : items) {
        QString text = itemTemplate;
        Template::apply(text, itemSteps(item, row++, settings, currency, formatter));
        result += text;
    }
    return result;
}

} // namespace vorn
