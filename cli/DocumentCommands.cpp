#include "app/AppDelegate.h"
#include "cli/CliUserInterface.h"
#include "cli/CommandRegistry.h"
#include "cli/DocumentCommandSupport.h"
#include "cli/Json.h"
#include "invoicing/InvoicingControllers.h"
#include "invoicing/SentLock.h"
#include "store/Keys.h"
#include "store/Settings.h"

namespace vorn {

namespace DocumentCli {

InvoicingControllers& controllers(CommandContext& c)
{
    return c.app.invoicing();
}

ManagedObject* select(CommandContext& c, const QString& doc)
{
    ManagedObject* document = Cli::document(c, doc);
    if (!document)
        return nullptr;
    ArrayController& list = c.app.state().invoicesController();
    // A document hidden by a filter is shown again before it is selected.
    if (!list.arrangedObjects().contains(document))
        controllers(c).filter().showAllDocuments();
    list.setSelectedObjects({document});
    return document;
}

void printDocument(CommandContext& c, const ManagedObject& document)
{
    c.out = Json::objectDictionary(document, true) + QLatin1Char('\n');
}

std::optional<QString> takeOption(QStringList& args, const QString& name, bool& missingValue)
{
    const int at = int(args.indexOf(name));
    if (at < 0)
        return std::nullopt;
    if (at + 1 >= args.size()) {
        missingValue = true;
        args.removeAt(at);
        return std::nullopt;
    }
    const QString value = args[at + 1];
    args.remove(at, 2);
    return value;
}

bool takeFlag(QStringList& args, const QString& name)
{
    return args.removeAll(name) > 0;
}

std::optional<int> parseIndex(const QString& text, int count)
{
    bool ok = false;
    const int i = text.trimmed().toInt(&ok);
    if (!ok || i < 0 || i >= count)
        return std::nullopt;
    return i;
}

} // namespace DocumentCli

namespace {

using namespace DocumentCli;

QString totalsJson(const AppState& s)
{
    return QStringLiteral("{\"totalAmount\":%1,\"paidAmount\":%2,\"dueAmount\":%3,\"invoiceCount\":%4,"
                          "\"quoteCount\":%5,\"invoiceCountForNumber\":%6}")
        .arg(Json::floatText(s.totalAmount), Json::floatText(s.paidAmount), Json::floatText(s.dueAmount))
        .arg(s.invoiceCount)
        .arg(s.quoteCount)
        .arg(s.invoiceCountForNumber);
}

int list(CommandContext& c)
{
    QStringList args = c.args;
    bool missing = false;
    const std::optional<QString> filter = takeOption(args, QStringLiteral("--filter"), missing);
    if (missing || !args.isEmpty())
        return c.usage(CommandRegistry::tr("usage: list [--filter TAG]"));
    quint64 tag = 0;
    if (filter) {
        bool ok = false;
        tag = filter->trimmed().toULongLong(&ok);
        if (!ok)
            return c.usage(CommandRegistry::tr("the filter tag must be a whole number from 0 to 8, not “%1”")
                               .arg(*filter));
    }
    controllers(c).filter().selectFilterAction(tag);
    AppState& state = c.app.state();
    QStringList documents;
    for (const ManagedObject* doc : state.invoicesController().arrangedObjects())
        documents << Json::objectDictionary(*doc, false);
    c.out = QStringLiteral("{\"documents\":[%1],\"totals\":%2}\n")
                .arg(documents.join(QLatin1Char(',')), totalsJson(state));
    return ExitCode::Done;
}

int newDocument(CommandContext& c)
{
    if (c.args.size() != 1 || (c.args[0] != QLatin1String("invoice") && c.args[0] != QLatin1String("quote")))
        return c.usage(CommandRegistry::tr("usage: new invoice|quote"));
    DataController& data = controllers(c).data();
    ManagedObject* doc = c.args[0] == QLatin1String("invoice") ? data.addInvoice() : data.addQuote();
    if (!doc)
        return c.fail(CommandRegistry::tr("the document could not be created"));
    printDocument(c, *doc);
    return ExitCode::Done;
}

int show(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(CommandRegistry::tr("usage: show DOC"));
    ManagedObject* doc = Cli::document(c, c.args[0]);
    if (!doc)
        return ExitCode::Usage;
    printDocument(c, *doc);
    return ExitCode::Done;
}

// Fields the sent lock keeps: what the shipping and discount popovers edit,
// and the document's own rates, which tax the shipping.
bool lockedWhenSent(const QString& k)
{
    static const QStringList locked{
        key::isShippingEnabled,     key::shippingTitle,         key::shippingSubtitle,
        key::hasShippingSubtitle,   key::shippingAmount,        key::isShippingTax1Enabled,
        key::isShippingTax2Enabled, key::isShippingTax3Enabled, key::isDiscountEnabled,
        key::discountTitle,         key::discountSubtitle,      key::hasDiscountSubtitle,
        key::discountKind,          key::discountPercent,       key::discountAmount,
        key::tax1Percent,           key::tax2Percent,           key::tax3Percent};
    return locked.contains(k);
}

int set(CommandContext& c)
{
    if (c.args.size() < 2)
        return c.usage(CommandRegistry::tr("usage: set DOC KEY=VALUE..."));
    const auto pairs = Cli::keyValues(c, c.args.mid(1));
    if (!pairs)
        return ExitCode::Usage;
    QList<std::pair<QString, QVariant>> values;
    for (const auto& [k, text] : *pairs) {
        QString error;
        const std::optional<QVariant> v = Cli::typedValue(Entity::Invoice, k, text, &error);
        if (!v)
            return c.usage(error);
        values.append({k, *v});
    }
    ManagedObject* doc = select(c, c.args[0]);
    if (!doc)
        return ExitCode::Usage;
    AppState& state = c.app.state();
    const bool touchesLocked =
        std::any_of(values.cbegin(), values.cend(), [](const auto& kv) { return lockedWhenSent(kv.first); });
    if (touchesLocked && SentLock::refuse(state))
        return ExitCode::Done; // the refusal's alert ends the run
    {
        UndoGroup group(state.context()->undoManager(), CommandRegistry::tr("Edit"));
        for (const auto& [k, v] : std::as_const(values))
            doc->setValue(k, v);
    }
    controllers(c).data().changedInvoiceCriteria();
    printDocument(c, *doc);
    return ExitCode::Done;
}

int duplicate(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(CommandRegistry::tr("usage: duplicate DOC"));
    if (!select(c, c.args[0]))
        return ExitCode::Usage;
    ManagedObject* copy = controllers(c).data().duplicateInvoice();
    if (!copy)
        return c.fail(CommandRegistry::tr("the document could not be duplicated"));
    printDocument(c, *copy);
    return ExitCode::Done;
}

int convert(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(CommandRegistry::tr("usage: convert DOC"));
    ManagedObject* doc = select(c, c.args[0]);
    if (!doc)
        return ExitCode::Usage;
    controllers(c).data().convertQuoteToInvoice();
    printDocument(c, *doc);
    return ExitCode::Done;
}

int deleteDocument(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(CommandRegistry::tr("usage: delete DOC"));
    if (!select(c, c.args[0]))
        return ExitCode::Usage;
    controllers(c).data().deleteInvoice();
    return ExitCode::Done;
}

int dispatched(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(CommandRegistry::tr("usage: dispatched DOC"));
    ManagedObject* doc = select(c, c.args[0]);
    if (!doc)
        return ExitCode::Usage;
    controllers(c).data().setDispatched();
    printDocument(c, *doc);
    return ExitCode::Done;
}

int nextNumber(CommandContext& c)
{
    const QString what = c.args.size() == 1 ? c.args[0] : QString();
    InvoicingControllers& inv = controllers(c);
    const Settings& s = c.app.settings();
    // Counted over the whole list, as a new document would be.
    inv.filter().showAllDocuments();
    QString number;
    if (what == QLatin1String("invoice"))
        number = s.boolValue(key::invHaveNumber) ? inv.numbering().invoiceNumberString() : QString();
    else if (what == QLatin1String("quote"))
        number = s.boolValue(key::quotHaveNumber) ? inv.numbering().quoteNumberString() : QString();
    else if (what == QLatin1String("client"))
        number = inv.numbering().clientNumberString();
    else
        return c.usage(CommandRegistry::tr("usage: next-number invoice|quote|client"));
    c.out = Json::quote(number) + QLatin1Char('\n');
    return ExitCode::Done;
}

} // namespace

void registerDocumentCommands(CommandRegistry& registry)
{
    registry.add({QStringLiteral("list"), QStringLiteral("[--filter TAG]"), false, true, list});
    registry.add({QStringLiteral("new"), QStringLiteral("invoice|quote"), true, true, newDocument});
    registry.add({QStringLiteral("show"), QStringLiteral("DOC"), false, true, show});
    registry.add({QStringLiteral("set"), QStringLiteral("DOC KEY=VALUE..."), true, true, set});
    registry.add({QStringLiteral("duplicate"), QStringLiteral("DOC"), true, true, duplicate});
    registry.add({QStringLiteral("convert"), QStringLiteral("DOC"), true, true, convert});
    registry.add({QStringLiteral("delete"), QStringLiteral("DOC"), true, true, deleteDocument});
    registry.add({QStringLiteral("dispatched"), QStringLiteral("DOC"), true, true, dispatched});
    registry.add(
        {QStringLiteral("next-number"), QStringLiteral("invoice|quote|client"), false, true, nextNumber});
    registerItemCommands(registry);
    registerAddressCommands(registry);
}

} // namespace vorn
