#include "output/DesignPreview.h"

#include "documents/KeyedArchive.h"
#include "documents/PaymentQrCode.h"
#include "documents/Template.h"
#include "documents/TemplateValues.h"
#include "output/Logo.h"
#include "output/OutputLog.h"
#include "output/PreviewController.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"

#include <QFile>

namespace vorn {

namespace {

// The sample invoice of the preview: amounts of a fixed size, the total
// chosen for its look rather than summed.
constexpr float sampleSubtotal = 3204.0f;
constexpr float sampleTotal = 3351.27f;
constexpr float sampleTaxes[3] = {320.4f, 160.2f, 32.04f};
constexpr float sampleRates[3] = {10.0f, 5.0f, 1.0f};
constexpr float sampleShipping = 6.99f;
constexpr float sampleDiscount = 10.0f;
constexpr qint64 twoWeeks = 1209600;

QList<ItemValues> sampleItems()
{
    QList<ItemValues> items;
    auto list = DesignPreview::previewItems();
    if (!list) {
        qCWarning(lcOutput) << "The sample items are missing:" << list.error().fullText();
        return items;
    }
    for (const QVariant& item : list.value())
        items.append(ItemValues::fromDictionary(item.toMap()));
    return items;
}

} // namespace

Result<QVariantList> DesignPreview::previewItems()
{
    QFile file(QStringLiteral(":/PreviewItems.plist"));
    if (!file.open(QIODevice::ReadOnly))
        return Error::make(ErrorCode::FileNotFound,
                           tr("The sample items of the design preview are missing."));
    auto root = KeyedArchive::unarchive(file.readAll());
    if (!root)
        return root.error();
    const QVariant array = root.value().toMap().value(QStringLiteral("array"));
    if (array.typeId() != QMetaType::QVariantList)
        return Error::make(ErrorCode::FileReadUnknown,
                           tr("The sample items of the design preview are damaged."));
    return array.toList();
}

QString DesignPreview::invoiceNumberString() const
{
    const Settings& settings = m_preview.state().settings();
    const QDate today = m_preview.state().clock().now().toLocalTime().date();
    QString number = settings.stringValue(key::invPattern);
    Template::apply(number, {{QStringLiteral("%COUNT%"), QString::number(settings.intValue(key::invCount))},
                             {QStringLiteral("%YEAR%"), QString::number(today.year())},
                             {QStringLiteral("%MONTH%"), QString::number(today.month())},
                             {QStringLiteral("%DAY%"), QString::number(today.day())}});
    return number;
}

QString DesignPreview::itemsList()
{
    ManagedObject* design = m_preview.currentDesign();
    if (!design)
        return {};
    const Settings& settings = m_preview.state().settings();
    return fillItemsList(design->stringValue(key::item), sampleItems(),
                         ItemRowSettings::fromSettings(settings), settings.stringValue(key::prefsCurrency),
                         m_preview.formatter());
}

QString DesignPreview::invoiceHTMLString()
{
    const AppState& state = m_preview.state();
    const Settings& settings = state.settings();
    const QString logo = Logo::element(settings, state.locations().logoCache());
    ManagedObject* design = m_preview.currentDesign();
    if (!design)
        return PreviewController::missingDesignPage();
    QString text = design->stringValue(key::invoice);
    if (text.isEmpty())
        return PreviewController::missingTemplatePage();

    PageValues v;
    v.readSettings(settings);
    v.css = design->stringValue(key::css);
    v.logo = logo;
    v.letterTitle = v.locInvoice;
    v.locDue = settings.stringValue(QStringLiteral("locDue"));
    v.clientAddress = QStringLiteral("Erin Holloway\n7 Quarry Lane\nFernwood CA\nUnited States");
    v.clientNumber = QStringLiteral("1234");
    v.subject = QStringLiteral("A Lot of Things");
    v.dispatched = QStringLiteral("DHL 123.45.6.789");
    v.date = state.clock().now();
    v.due = v.date.addSecs(twoWeeks);
    v.number = invoiceNumberString();
    v.currency = settings.stringValue(key::prefsCurrency);
    v.conditions = settings.stringValue(key::tempInvConditions);
    v.footer = settings.stringValue(key::tempInvFooter);
    v.miscellaneous = settings.stringValue(QStringLiteral("tempInvMisc"));
    v.subAmount = sampleSubtotal;
    v.amount = sampleTotal;
    v.discountEnabled = true;
    v.discountKind = DiscountKind::Rate;
    v.discountPercent = sampleDiscount;
    v.shippingEnabled = true;
    v.shippingTitle = settings.stringValue(key::locShipping);
    v.shippingAmount = sampleShipping;
    const QString fallbackTitles[3] = {tr("Federal Tax"), tr("State Tax"), tr("Third Tax")};
    for (size_t i = 0; i < 3; ++i) {
        PageValues::TaxTotal& tax = v.taxes[i];
        if (tax.title.isEmpty())
            tax.title = fallbackTitles[i];
        tax.amount = sampleTaxes[i];
        tax.percent = sampleRates[i];
    }
    // A sample transfer, so that design authors see where the code goes.
    PaymentQrCode::Payment payment;
    payment.name = v.company.isEmpty() ? QStringLiteral("Vorn") : v.company;
    payment.iban = QStringLiteral("DE89370400440532013000");
    payment.cents = qint64(sampleTotal * 100.0f + 0.5f);
    payment.remittance = v.letterTitle + QLatin1Char(' ') + v.number;
    v.paymentQr = PaymentQrCode::svg(PaymentQrCode::payload(payment));
    v.itemsList = fillItemsList(design->stringValue(key::item), sampleItems(),
                                ItemRowSettings::fromSettings(settings), v.currency, m_preview.formatter());
    Template::apply(text, pageSteps(v, m_preview.formatter()));
    return text;
}

} // namespace vorn
