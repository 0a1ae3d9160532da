#include "app/AppDelegate.h"
#include "cli/CliUserInterface.h"
#include "cli/CommandRegistry.h"
#include "cli/DocumentCommandSupport.h"
#include "cli/Json.h"
#include "invoicing/InvoicingControllers.h"
#include "invoicing/TextValue.h"
#include "store/Keys.h"

namespace vorn {

namespace {

using namespace DocumentCli;

int itemAdd(CommandContext& c)
{
    if (c.args.isEmpty())
        return c.usage(CommandRegistry::tr("usage: item add DOC KEY=VALUE..."));
    const auto pairs = Cli::keyValues(c, c.args.mid(1));
    if (!pairs)
        return ExitCode::Usage;
    ManagedObject* doc = select(c, c.args[0]);
    if (!doc)
        return ExitCode::Usage;
    ItemController& items = controllers(c).items();
    items.showItemPopover();
    ItemController::Popover& p = items.popover();
    for (const auto& [k, value] : *pairs) {
        if (k == key::title)
            p.title = value;
        else if (k == key::subtitle)
            p.subtitle = value;
        else if (k == key::unit)
            p.unit = value;
        else if (k == key::sku)
            p.sku = value;
        else if (k == key::note)
            p.note = value;
        else if (k == key::baseAmount)
            p.baseAmount = value;
        else if (k == key::unitCount)
            c.app.state().itemPopoverQuantity = floatValueOfText(value);
        else if (k == QLatin1String("tax1") || k == QLatin1String("tax2") || k == QLatin1String("tax3")) {
            const std::optional<bool> on = Cli::parseBool(value);
            if (!on)
                return c.usage(CommandRegistry::tr("“%1” is not a valid value for %2").arg(value, k));
            (k.endsWith(QLatin1Char('1')) ? p.tax1 : k.endsWith(QLatin1Char('2')) ? p.tax2 : p.tax3) = *on;
        } else {
            return c.usage(
                CommandRegistry::tr("unknown field “%1”; the fields are title subtitle unit sku note "
                                    "baseAmount unitCount tax1 tax2 tax3")
                    .arg(k));
        }
    }
    if (!items.addItem())
        return c.fail(CommandRegistry::tr("the item could not be added"));
    printDocument(c, *doc);
    return ExitCode::Done;
}

int itemEdit(CommandContext& c)
{
    if (c.args.size() < 3)
        return c.usage(CommandRegistry::tr("usage: item edit DOC INDEX KEY=VALUE..."));
    const auto pairs = Cli::keyValues(c, c.args.mid(2));
    if (!pairs)
        return ExitCode::Usage;
    QList<std::pair<QString, QVariant>> values;
    for (auto [k, text] : *pairs) {
        // The popover's names for the tax boxes are accepted too.
        if (k == QLatin1String("tax1") || k == QLatin1String("tax2") || k == QLatin1String("tax3"))
            k = QStringLiteral("isTax%1Applied").arg(k.back());
        QString error;
        const std::optional<QVariant> v = Cli::typedValue(Entity::Item, k, text, &error);
        if (!v)
            return c.usage(error);
        values.append({k, *v});
    }
    ManagedObject* doc = select(c, c.args[0]);
    if (!doc)
        return ExitCode::Usage;
    ArrayController& list = c.app.state().itemsController();
    const std::optional<int> index = parseIndex(c.args[1], list.count());
    if (!index)
        return c.usage(
            CommandRegistry::tr("no item %1 in a document of %2 items").arg(c.args[1]).arg(list.count()));
    list.setSelectionIndexes({*index});
    ItemController& items = controllers(c).items();
    items.openEditItemSheet();
    if (!items.isEditItemSheetShown())
        return ExitCode::Done; // refused with an alert
    ManagedObject* item = list.selectedObject();
    for (const auto& [k, v] : std::as_const(values))
        item->setValue(k, v);
    items.editItem();
    printDocument(c, *doc);
    return ExitCode::Done;
}

int itemDelete(CommandContext& c)
{
    if (c.args.size() != 2)
        return c.usage(CommandRegistry::tr("usage: item delete DOC INDEX"));
    ManagedObject* doc = select(c, c.args[0]);
    if (!doc)
        return ExitCode::Usage;
    ArrayController& list = c.app.state().itemsController();
    const std::optional<int> index = parseIndex(c.args[1], list.count());
    if (!index)
        return c.usage(
            CommandRegistry::tr("no item %1 in a document of %2 items").arg(c.args[1]).arg(list.count()));
    list.setSelectionIndexes({*index});
    controllers(c).items().deleteItem();
    printDocument(c, *doc);
    return ExitCode::Done;
}

int itemMove(CommandContext& c)
{
    if (c.args.size() != 3)
        return c.usage(CommandRegistry::tr("usage: item move DOC INDEX[,INDEX...] TO"));
    ManagedObject* doc = select(c, c.args[0]);
    if (!doc)
        return ExitCode::Usage;
    const int count = c.app.state().itemsController().count();
    QList<int> rows;
    for (const QString& part : c.args[1].split(QLatin1Char(','))) {
        const std::optional<int> row = parseIndex(part, count);
        if (!row)
            return c.usage(CommandRegistry::tr("no item %1 in a document of %2 items").arg(part).arg(count));
        rows << *row;
    }
    bool ok = false;
    const int to = c.args[2].trimmed().toInt(&ok);
    if (!ok || to < 0 || to > count)
        return c.usage(
            CommandRegistry::tr("the target row must be from 0 to %1, not “%2”").arg(count).arg(c.args[2]));
    controllers(c).items().moveItems(rows, to);
    printDocument(c, *doc);
    return ExitCode::Done;
}

QString dictionaries(const QList<ManagedObject*>& objects)
{
    QStringList parts;
    for (const ManagedObject* o : objects)
        parts << Json::objectDictionary(*o, false);
    return QLatin1Char('[') + parts.join(QLatin1Char(',')) + QStringLiteral("]\n");
}

int itemRecent(CommandContext& c)
{
    if (!c.args.isEmpty())
        return c.usage(CommandRegistry::tr("usage: item recent"));
    c.out = dictionaries(c.app.state().recentItemsController().arrangedObjects());
    return ExitCode::Done;
}

int shipping(CommandContext& c)
{
    QStringList args = c.args;
    if (args.isEmpty())
        return c.usage(CommandRegistry::tr("usage: shipping DOC KEY=VALUE... | DOC --recent N | DOC --off"));
    const QString docName = args.takeFirst();
    bool missing = false;
    const std::optional<QString> recent = takeOption(args, QStringLiteral("--recent"), missing);
    const bool off = takeFlag(args, QStringLiteral("--off"));
    if (missing || (recent && off) || ((recent || off) && !args.isEmpty()))
        return c.usage(CommandRegistry::tr("usage: shipping DOC KEY=VALUE... | DOC --recent N | DOC --off"));
    const auto pairs = Cli::keyValues(c, args);
    if (!pairs)
        return ExitCode::Usage;

    ManagedObject* doc = select(c, docName);
    if (!doc)
        return ExitCode::Usage;
    ShippingController& sc = controllers(c).shipping();
    if (off) {
        sc.switchShippingOff();
        printDocument(c, *doc);
        return ExitCode::Done;
    }
    ArrayController& remembered = c.app.state().recentShippingArrayController();
    std::optional<int> recentIndex;
    if (recent) {
        recentIndex = parseIndex(*recent, remembered.count());
        if (!recentIndex)
            return c.usage(CommandRegistry::tr("no remembered shipping charge %1 (there are %2)")
                               .arg(*recent)
                               .arg(remembered.count()));
    }
    sc.showShippingPopover();
    if (!sc.isShippingPopoverShown())
        return ExitCode::Done; // refused with an alert
    if (recentIndex) {
        remembered.setSelectionIndexes({*recentIndex});
        sc.selectRecentShipping();
        printDocument(c, *doc);
        return ExitCode::Done;
    }
    for (const auto& [k, value] : *pairs) {
        auto flag = [&](const QString& attribute) {
            const std::optional<bool> on = Cli::parseBool(value);
            if (on)
                doc->setValue(attribute, *on);
            return on.has_value();
        };
        bool ok = true;
        if (k == key::title)
            doc->setValue(key::shippingTitle, value);
        else if (k == key::subtitle)
            doc->setValue(key::shippingSubtitle, value);
        else if (k == key::note)
            sc.note() = value;
        else if (k == key::amount)
            doc->setValue(key::shippingAmount, floatValueOfText(value));
        else if (k == key::hasSubtitle)
            ok = flag(key::hasShippingSubtitle);
        else if (k == QLatin1String("tax1"))
            ok = flag(key::isShippingTax1Enabled);
        else if (k == QLatin1String("tax2"))
            ok = flag(key::isShippingTax2Enabled);
        else if (k == QLatin1String("tax3"))
            ok = flag(key::isShippingTax3Enabled);
        else
            return c.usage(
                CommandRegistry::tr("unknown field “%1”; the fields are title subtitle hasSubtitle note "
                                    "amount tax1 tax2 tax3")
                    .arg(k));
        if (!ok)
            return c.usage(CommandRegistry::tr("“%1” is not a valid value for %2").arg(value, k));
    }
    doc->setValue(key::isShippingEnabled, true);
    sc.closeShippingPopover();
    printDocument(c, *doc);
    return ExitCode::Done;
}

int discount(CommandContext& c)
{
    const QString usage =
        CommandRegistry::tr("usage: discount DOC fixed|percent VALUE [title=T] [subtitle=S] | DOC --off");
    QStringList args = c.args;
    if (args.size() < 2)
        return c.usage(usage);
    const QString docName = args.takeFirst();
    const bool off = args == QStringList{QStringLiteral("--off")};
    QString kind, valueText;
    QList<std::pair<QString, QString>> extras;
    if (!off) {
        if (args.size() < 2)
            return c.usage(usage);
        kind = args.takeFirst();
        valueText = args.takeFirst().trimmed();
        if (kind != QLatin1String("fixed") && kind != QLatin1String("percent"))
            return c.usage(usage);
        const auto pairs = Cli::keyValues(c, args);
        if (!pairs)
            return ExitCode::Usage;
        for (const auto& kv : *pairs)
            if (kv.first != key::title && kv.first != key::subtitle)
                return c.usage(usage);
        extras = *pairs;
    }
    ManagedObject* doc = select(c, docName);
    if (!doc)
        return ExitCode::Usage;
    DiscountController& dc = controllers(c).discount();
    if (off) {
        dc.switchDiscountOff();
        printDocument(c, *doc);
        return ExitCode::Done;
    }
    dc.showDiscountPopover();
    if (!dc.isDiscountPopoverShown())
        return ExitCode::Done; // refused with an alert
    doc->setValue(key::isDiscountEnabled, true);
    if (kind == QLatin1String("fixed")) {
        doc->setDiscountKind(DiscountKind::Amount);
        doc->setValue(key::discountAmount, floatValueOfText(valueText));
    } else {
        // Rates are fractions (0.1); "10%" is the same rate written as a percentage.
        const bool percentSign = valueText.endsWith(QLatin1Char('%'));
        float rate = floatValueOfText(percentSign ? valueText.chopped(1) : valueText);
        if (percentSign)
            rate = rate / 100.0f;
        doc->setDiscountKind(DiscountKind::Rate);
        doc->setValue(key::discountPercent, rate);
    }
    for (const auto& [k, value] : std::as_const(extras)) {
        if (k == key::title) {
            doc->setValue(key::discountTitle, value);
        } else {
            doc->setValue(key::discountSubtitle, value);
            doc->setValue(key::hasDiscountSubtitle, !value.isEmpty());
        }
    }
    dc.closeDiscountPopover();
    printDocument(c, *doc);
    return ExitCode::Done;
}

} // namespace

void registerItemCommands(CommandRegistry& registry)
{
    registry.add(
        {QStringLiteral("item add"),
         QStringLiteral("DOC [title= subtitle= unit= sku= note= baseAmount= unitCount= tax1= tax2= tax3=]"),
         true, true, itemAdd});
    registry.add(
        {QStringLiteral("item edit"), QStringLiteral("DOC INDEX KEY=VALUE..."), true, true, itemEdit});
    registry.add({QStringLiteral("item delete"), QStringLiteral("DOC INDEX"), true, true, itemDelete});
    registry.add(
        {QStringLiteral("item move"), QStringLiteral("DOC INDEX[,INDEX...] TO"), true, true, itemMove});
    registry.add({QStringLiteral("item recent"), QString(), false, true, itemRecent});
    registry.add({QStringLiteral("shipping"),
                  QStringLiteral(
                      "DOC [title= subtitle= hasSubtitle= note= amount= tax1= tax2= tax3=] | DOC --recent N "
                      "| DOC --off"),
                  true, true, shipping});
    registry.add(
        {QStringLiteral("discount"),
         QStringLiteral("DOC fixed|percent VALUE [title=T] [subtitle=S] | DOC --off  (percent: 0.1 or 10%)"),
         true, true, discount});
}

} // namespace vorn
