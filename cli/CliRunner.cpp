#include "cli/CliRunner.h"

#include "app/AppDelegate.h"
#include "app/InstanceLock.h"
#include "cli/CliUserInterface.h"
#include "store/Clock.h"
#include "store/Settings.h"

#include <optional>

namespace vorn {

namespace {

QString oneLine(QString text)
{
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text.trimmed();
}

} // namespace

CliRunner::CliRunner()
{
    registerSettingsCommands(m_registry);
    registerOutputCommands(m_registry);
    registerDocumentCommands(m_registry);
    registerDataCommands(m_registry);
    registerDesignCommands(m_registry);
    registerInterchangeCommands(m_registry);
}

int CliRunner::run(QStringList args, QTextStream& out, QTextStream& err)
{
    if (args.isEmpty() || args.first() == QLatin1String("--help") || args.first() == QLatin1String("-h")) {
        (args.isEmpty() ? err : out) << m_registry.helpText();
        return args.isEmpty() ? ExitCode::Usage : ExitCode::Done;
    }
    const QStringList original = args;
    const Command* command = m_registry.find(args);
    if (!command) {
        err << "vorn-cli: "
            << tr("unknown command “%1”; see vorn-cli --help").arg(original.join(QLatin1Char(' ')))
            << Qt::endl;
        return ExitCode::Usage;
    }
    return runCommand(*command, args, out, err);
}

int CliRunner::runCommand(const Command& command, QStringList args, QTextStream& out, QTextStream& err)
{
    auto fail = [&err](const QString& message, int code) {
        err << "vorn-cli: " << oneLine(message) << Qt::endl;
        return code;
    };

    const FileLocations locations = FileLocations::fromEnvironment();
    Settings settings(locations.settingsFile());
    if (Status s = settings.load(); !s)
        err << "vorn-cli: " << oneLine(s.error().fullText()) << Qt::endl;

    // While the desktop application holds the store, only reading is allowed,
    // and this run neither seeds, saves nor records a quit.
    InstanceLock lock(locations.lockFile());
    bool readOnly = false;
    std::optional<Error> lockError;
    if (Status s = lock.tryLock(); !s) {
        if (command.changesStore && s.error().code == ErrorCode::StoreLocked)
            return fail(s.error().message + QLatin1Char(' ') + s.error().reason, ExitCode::Failure);
        // A lock that cannot even be made (no folder for it) is reported
        // after the store, whose own error says why.
        readOnly = true;
        lockError = s.error();
    }

    CliUserInterface ui;
    AppDelegate app(settings, ui, Clock::system(), locations);
    // The safety copy and its repair question run only through "check".
    app.setLaunchChecksEnabled(false);
    app.awakeFromNib();
    if (!readOnly)
        app.applicationDidFinishLaunching();
    if (command.needsStore && !app.managedObjectContext()) {
        const Error e = ui.errors().isEmpty()
                            ? Error::make(ErrorCode::StoreInitFailed, tr("Failed to initialize the store"))
                            : ui.errors().first();
        return fail(e.fullText(), ExitCode::Failure);
    }
    if (lockError && command.changesStore)
        return fail(lockError->message + QLatin1Char(' ') + lockError->reason, ExitCode::Failure);
    ui.clear();

    CommandContext context{app, ui, args, {}, {}, {}};
    int code = command.run(context);
    if (code == ExitCode::Done && ui.refusal()) {
        code = ExitCode::Refused;
        context.message = ui.refusal()->text.isEmpty() ? ui.refusal()->title : ui.refusal()->text;
    }
    if (code == ExitCode::Done && !ui.errors().isEmpty()) {
        code = ExitCode::Failure;
        context.message = ui.errors().first().fullText();
    }

    if (!readOnly && (code == ExitCode::Done || code == ExitCode::Refused)) {
        if (ObjectContext* objects = app.managedObjectContext(); objects && objects->hasChanges()) {
            objects->commitEditing();
            if (Status s = objects->save(); !s)
                return fail(s.error().fullText(), ExitCode::Failure);
        }
        app.applicationShouldTerminate();
    }

    // A question the command answered comes first, also before a refusal.
    out << context.asked;
    out.flush();
    if (code != ExitCode::Done)
        return fail(context.message, code);
    out << context.out;
    return ExitCode::Done;
}

} // namespace vorn
