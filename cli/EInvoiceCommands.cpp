#include "app/AppDelegate.h"
#include "cli/CliUserInterface.h"
#include "cli/CommandRegistry.h"
#include "cli/DocumentCommandSupport.h"
#include "einvoice/EInvoiceController.h"
#include "output/PreviewController.h"
#include "store/AtomicFile.h"

#include <QEventLoop>
#include <QFileInfo>

namespace vorn {

namespace {

class EInvoiceCommands
{
    Q_DECLARE_TR_FUNCTIONS(EInvoiceCommands)
};

QString tr(const char* text)
{
    return EInvoiceCommands::tr(text);
}

// The e-invoice of a document: a Factur-X PDF or a CII XML file, by the
// target's extension. Refusals (incomplete data) exit 1 before anything is
// rendered or written.
int einvoiceCommand(CommandContext& c)
{
    const QString usageText = tr("usage: einvoice DOC OUT.pdf|OUT.xml [--profile en16931|xrechnung]");
    QStringList args = c.args;
    bool missingValue = false;
    const std::optional<QString> profileName =
        DocumentCli::takeOption(args, QStringLiteral("--profile"), missingValue);
    if (missingValue || args.size() != 2)
        return c.usage(usageText);
    EInvoiceProfile profile = EInvoiceProfile::En16931;
    if (profileName == QLatin1String("xrechnung"))
        profile = EInvoiceProfile::XRechnung;
    else if (profileName && *profileName != QLatin1String("en16931"))
        return c.usage(usageText);
    const QString suffix = QFileInfo(args[1]).suffix().toLower();
    if (suffix != QLatin1String("pdf") && suffix != QLatin1String("xml"))
        return c.usage(usageText);
    ManagedObject* document = DocumentCli::select(c, args[0]);
    if (!document)
        return ExitCode::Usage;

    AppState& state = c.app.state();
    PreviewController& preview = c.app.preview();
    EInvoiceController& einvoice = c.app.einvoice();
    const QString target = QFileInfo(args[1]).absoluteFilePath();

    Result<QByteArray> file = einvoice.xml(*document, profile);
    if (!file)
        return c.fail(file.error().fullText(), ExitCode::Refused);
    if (suffix == QLatin1String("pdf")) {
        if (!DocumentCli::hasDesign(c, preview))
            return ExitCode::Failure;
        state.isReminderAction = false;
        std::optional<Result<QByteArray>> made;
        QEventLoop loop;
        einvoice.makeFacturX(profile, [&made, &loop](Result<QByteArray> result) {
            made = std::move(result);
            loop.quit();
        });
        if (!made)
            loop.exec();
        file = std::move(*made);
        if (!file)
            return c.fail(file.error().fullText());
    }
    if (Status written = AtomicFile::writeNew(target, file.value()); !written)
        return c.fail(written.error().fullText());
    c.out = target + QLatin1Char('\n');
    return ExitCode::Done;
}

} // namespace

void registerEInvoiceCommands(CommandRegistry& registry)
{
    registry.add({QStringLiteral("einvoice"),
                  QStringLiteral("DOC OUT.pdf|OUT.xml [--profile en16931|xrechnung]"), false, true,
                  einvoiceCommand});
}

} // namespace vorn
