#pragma once

#include "documents/Template.h"
#include "store/DocumentState.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QVariantMap>

#include <array>
#include <optional>

namespace vorn {

class Formatter;
class ManagedObject;
class Settings;

// Everything the page template of a design is filled with, read before the
// first replacement. The document's values come from forDocument(); the
// design preview fills the same values with its samples.
struct PageValues
{
    struct TaxTotal
    {
        bool enabled = false;
        QString title;
        float amount = 0;
        float percent = 0;
    };

    QString css;
    QString company;
    QString slogan;
    QString contact; // several lines; gets "<br />" when filled in
    QString letterTitle;
    QString clientAddress; // several lines
    QString dispatched;
    QDateTime date;
    QDateTime due;
    QString number;
    QString clientNumber;
    QString locDate;
    QString locDue; // already chosen: overdue, due or expiration
    QString locNumber;
    QString locClientNumber;
    QString locDispatched;
    QString currency;
    QString subject;
    QString conditions; // several lines
    QString footer;     // several lines
    float subAmount = 0;
    float amount = 0;
    QString locSubtotal;

    bool discountEnabled = false;
    bool hasDiscountSubtitle = false;
    QString discountTitle;
    QString discountSubtitle;
    QString locDiscount;
    DiscountKind discountKind = DiscountKind::Amount;
    float discountAmount = 0;
    float discountPercent = 0;

    bool shippingEnabled = false;
    bool hasShippingSubtitle = false;
    QString shippingTitle;
    QString shippingSubtitle;
    float shippingAmount = 0;

    QString locTotal;
    std::array<TaxTotal, 3> taxes;
    QString itemsList;
    QString locInvoice;
    QString locQuote;
    QString locExpiration;
    QString locQuoteNumber;
    QString locReminder;
    QString locOverdue;
    QString locInvoiceNumber;
    QString locTaxes;
    QString letterbox;
    QString logo;
    // Only the design preview knows "%MISCELLANEOUS%".
    std::optional<QString> miscellaneous;

    // The company data, the labels and the tax switches and titles.
    void readSettings(const Settings& settings);
};

// The texts of the reminder sheet that stand in for the document's own.
struct ReminderTexts
{
    QString title;
    QString conditions;
    QString footer;
};

// The values of a document (its stored amounts as last computed), with the
// reminder's texts and overdue label when reminder is given. The css, the
// item rows and the logo are left for the caller.
PageValues pageValuesForDocument(const ManagedObject& document, const Settings& settings,
                                 const ReminderTexts* reminder);

// The 49 replacement steps of a page, in the order of the language.
Template::Steps pageSteps(const PageValues& values, const Formatter& formatter);

// One line item as an item row shows it.
struct ItemValues
{
    struct Tax
    {
        bool applied = false;
        QString title;
        float percent = 0;
        float amount = 0;
    };

    float unitCount = 0;
    QString unit;
    float baseAmount = 0;
    QString sku;
    float subAmount = 0;
    QString title;
    QString subtitle;
    float amount = 0;
    std::array<Tax, 3> taxes;

    static ItemValues fromObject(const ManagedObject& item);
    static ItemValues fromDictionary(const QVariantMap& item);
};

// The preferences an item row depends on.
struct ItemRowSettings
{
    bool useSku = false;
    bool showSubAmount = false;
    QString locNo;
    QString locUnit;
    QString locUnitPrice;
    QString locNet;
    QString locSKUNumber;
    QString locDescription;
    QString locQuantity;
    QString locTaxes;

    static ItemRowSettings fromSettings(const Settings& settings);
};

// The 27 replacement steps of the row numbered row (from 1).
Template::Steps itemSteps(const ItemValues& item, int row, const ItemRowSettings& settings,
                          const QString& currency, const Formatter& formatter);
// Every row filled and joined without separator; empty without items.
QString fillItemsList(const QString& itemTemplate, const QList<ItemValues>& items,
                      const ItemRowSettings& settings, const QString& currency, const Formatter& formatter);

} // namespace vorn
