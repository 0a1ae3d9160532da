#include "app/AppDelegate.h"
#include "cli/CliUserInterface.h"
#include "cli/CommandRegistry.h"
#include "cli/Json.h"
#include "invoicing/FilterController.h"
#include "output/ExportController.h"
#include "output/InterchangeController.h"
#include "store/Clock.h"
#include "store/Settings.h"

#include <QFileInfo>

namespace vorn {

namespace {

class InterchangeCommands
{
    Q_DECLARE_TR_FUNCTIONS(InterchangeCommands)
};

QString tr(const char* text)
{
    return InterchangeCommands::tr(text);
}

// The list filters by name or by tag number, as the filter popover offers them.
std::optional<quint64> filterTag(const QString& text)
{
    static const QStringList names{
        QStringLiteral("all"),  QStringLiteral("sent"),   QStringLiteral("overdue"),
        QStringLiteral("paid"), QStringLiteral("quotes"), QStringLiteral("today"),
        QStringLiteral("week"), QStringLiteral("month"),  QStringLiteral("year")};
    bool ok = false;
    const quint64 number = text.toULongLong(&ok);
    if (ok && number < quint64(names.size()))
        return number;
    const qsizetype index = names.indexOf(text.toLower());
    return index >= 0 ? std::optional<quint64>(quint64(index)) : std::nullopt;
}

bool failedWithError(CommandContext& c)
{
    if (c.ui.errors().isEmpty())
        return false;
    c.message = c.ui.errors().first().fullText();
    return true;
}

// As the export sheet's command does for a document export: the file format
// follows the name (".xml" an XML property list, ".vorn" a document file),
// and an invoice is marked as sent when the settings say so.
int exportCommand(CommandContext& c)
{
    if (c.args.size() != 2)
        return c.usage(tr("usage: export DOC OUT.vorn|OUT.xml"));
    const QString suffix = QFileInfo(c.args[1]).suffix().toLower();
    if (suffix != QLatin1String("vorn") && suffix != QLatin1String("xml"))
        return c.usage(tr("the file name must end in .vorn or .xml"));
    ManagedObject* document = Cli::document(c, c.args[0]);
    if (!document)
        return ExitCode::Usage;
    const QString path = QFileInfo(c.args[1]).absoluteFilePath();

    AppState& state = c.app.state();
    state.invoicesController().setSelectedObjects({document});
    state.itemsController().setContent(document->items());
    ExportController& exporter = c.app.exporter();

    // The format is chosen by the file name for this run only; the user's
    // setting stays as it was.
    Settings& settings = c.app.settings();
    const QString formatKey = QStringLiteral("exportFormat");
    const bool hadFormat = settings.hasValue(formatKey);
    const QVariant previousFormat = settings.value(formatKey);
    settings.setValue(formatKey, qint64(suffix == QLatin1String("xml") ? 1 : 0));
    state.exportKind = ExportController::DocumentExport;
    c.ui.setPanelAnswer(path);
    exporter.exportCommand();
    settings.setValue(formatKey, hadFormat ? previousFormat : QVariant());
    if (failedWithError(c))
        return ExitCode::Failure;
    c.out = path + QLatin1Char('\n');
    return ExitCode::Done;
}

int exportDatabase(CommandContext& c)
{
    QStringList args = c.args;
    std::optional<quint64> tag;
    const qsizetype f = args.indexOf(QStringLiteral("--filter"));
    if (f >= 0) {
        tag = f + 1 < args.size() ? filterTag(args[f + 1]) : std::nullopt;
        if (!tag)
            return c.usage(tr("unknown filter “%1”").arg(f + 1 < args.size() ? args[f + 1] : QString()));
        args.remove(f, 2);
    }
    if (args.size() != 1)
        return c.usage(tr("usage: export-db OUT.xml [--filter TAG]"));
    const QString path = QFileInfo(args[0]).absoluteFilePath();
    AppState& state = c.app.state();
    InterchangeController interchange(state);
    c.ui.setPanelAnswer(path);
    Status written;
    if (tag) {
        // The listed documents, in the list's order, as the window shows them filtered.
        state.filterTag = *tag;
        state.invoicesController().setFilterPredicate(
            FilterController::predicateForTag(*tag, state.clock().now()));
        written = interchange.exportItems();
    } else {
        written = interchange.exportVornDataXML();
    }
    if (!written)
        return c.fail(written.error().fullText());
    c.out = path + QLatin1Char('\n');
    return ExitCode::Done;
}

int importCommand(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(tr("usage: import FILE.vorn"));
    InterchangeController interchange(c.app.state());
    c.ui.setPanelAnswer(QFileInfo(c.args[0]).absoluteFilePath());
    ManagedObject* document = interchange.importInvoice();
    if (failedWithError(c))
        return ExitCode::Failure;
    if (!document)
        return c.fail(tr("Nothing was imported."));
    c.out = Json::objectDictionary(*document, true) + QLatin1Char('\n');
    return ExitCode::Done;
}

} // namespace

void registerInterchangeCommands(CommandRegistry& registry)
{
    registry.add(
        {QStringLiteral("export"), QStringLiteral("DOC OUT.vorn|OUT.xml"), true, true, exportCommand});
    registry.add(
        {QStringLiteral("export-db"), QStringLiteral("OUT.xml [--filter TAG]"), false, true, exportDatabase});
    registry.add({QStringLiteral("import"), QStringLiteral("FILE.vorn"), true, true, importCommand});
}

} // namespace vorn
