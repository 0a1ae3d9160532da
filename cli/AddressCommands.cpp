#include "app/AppDelegate.h"
#include "cli/CliUserInterface.h"
#include "cli/CommandRegistry.h"
#include "cli/DocumentCommandSupport.h"
#include "cli/Json.h"
#include "invoicing/InvoicingControllers.h"
#include "invoicing/VCardReader.h"

namespace vorn {

namespace {

using namespace DocumentCli;

const char* const addressUsage =
    "usage: address DOC --text TEXT [--email E] [--client-number C] | DOC --contact FILE.vcf [--index I] "
    "[--email E] [--client-number C] | DOC --recent N | address list";

int address(CommandContext& c)
{
    QStringList args = c.args;
    if (args.isEmpty())
        return c.usage(CommandRegistry::tr(addressUsage));
    const QString docName = args.takeFirst();
    bool missing = false;
    const std::optional<QString> text = takeOption(args, QStringLiteral("--text"), missing);
    const std::optional<QString> email = takeOption(args, QStringLiteral("--email"), missing);
    const std::optional<QString> number = takeOption(args, QStringLiteral("--client-number"), missing);
    const std::optional<QString> file = takeOption(args, QStringLiteral("--contact"), missing);
    const std::optional<QString> index = takeOption(args, QStringLiteral("--index"), missing);
    const std::optional<QString> recent = takeOption(args, QStringLiteral("--recent"), missing);
    const int sources = int(text.has_value()) + int(file.has_value()) + int(recent.has_value());
    if (missing || !args.isEmpty() || sources != 1 || (index && !file) || (recent && (email || number)))
        return c.usage(CommandRegistry::tr(addressUsage));

    ManagedObject* doc = select(c, docName);
    if (!doc)
        return ExitCode::Usage;
    AddressController& ac = controllers(c).addresses();

    if (recent) {
        ArrayController& remembered = c.app.state().addressesController();
        const std::optional<int> row = parseIndex(*recent, remembered.count());
        if (!row)
            return c.usage(CommandRegistry::tr("no remembered address %1 (there are %2)")
                               .arg(*recent)
                               .arg(remembered.count()));
        remembered.setSelectionIndexes({*row});
        ac.selectRecentAdress();
        printDocument(c, *doc);
        return ExitCode::Done;
    }

    std::optional<Contact> contact;
    if (file) {
        const VCardReadResult read = VCardReader::readFile(*file);
        int i = 0;
        if (index) {
            bool ok = false;
            i = index->trimmed().toInt(&ok);
            if (!ok || i < 0)
                return c.usage(
                    CommandRegistry::tr("the contact index must be 0 or more, not “%1”").arg(*index));
        }
        if (i >= read.contacts.size()) {
            QString message =
                read.contacts.isEmpty()
                    ? CommandRegistry::tr("no contact could be read from “%1”").arg(*file)
                    : CommandRegistry::tr("“%1” holds %2 readable contacts; there is no contact %3")
                          .arg(*file)
                          .arg(read.contacts.size())
                          .arg(i);
            if (!read.notes.isEmpty())
                message += QStringLiteral(" (") + read.notes.join(QStringLiteral("; ")) + QLatin1Char(')');
            return c.fail(message, ExitCode::Failure);
        }
        contact = read.contacts[i];
    }

    // The popover, filled as the user would fill it, then accepted.
    ac.popover() = AddressController::Popover{true, {}, {}, {}};
    if (contact)
        ac.fillFromContact(*contact);
    else
        ac.popover().address = *text;
    if (email)
        ac.popover().emailAddress = *email;
    if (number)
        ac.popover().clientNumber = *number;
    ac.selectAddress();
    printDocument(c, *doc);
    return ExitCode::Done;
}

int addressList(CommandContext& c)
{
    if (!c.args.isEmpty())
        return c.usage(CommandRegistry::tr("usage: address list"));
    QStringList parts;
    for (const ManagedObject* a : c.app.state().addressesController().arrangedObjects())
        parts << Json::objectDictionary(*a, false);
    c.out = QLatin1Char('[') + parts.join(QLatin1Char(',')) + QStringLiteral("]\n");
    return ExitCode::Done;
}

} // namespace

void registerAddressCommands(CommandRegistry& registry)
{
    registry.add({QStringLiteral("address"),
                  QStringLiteral(
                      "DOC --text TEXT [--email E] [--client-number C] | DOC --contact FILE.vcf [--index I] "
                      "| DOC --recent N"),
                  true, true, address});
    registry.add({QStringLiteral("address list"), QString(), false, true, addressList});
}

} // namespace vorn
