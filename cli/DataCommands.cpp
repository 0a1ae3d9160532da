#include "app/AppDelegate.h"
#include "app/BackupController.h"
#include "cli/CliUserInterface.h"
#include "cli/CommandRegistry.h"

#include <QFileInfo>

namespace vorn {

namespace {

int backup(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(CommandRegistry::tr("usage: backup OUT.vndb"));
    c.ui.setPanelAnswer(QFileInfo(c.args.first()).absoluteFilePath());
    c.app.backupController().backupVornData();
    return ExitCode::Done;
}

int restore(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(CommandRegistry::tr("usage: restore FILE.vndb"));
    c.ui.setPanelAnswer(QFileInfo(c.args.first()).absoluteFilePath());
    c.app.backupController().restoreVornData();
    return ExitCode::Done;
}

int check(CommandContext& c)
{
    if (!c.args.isEmpty())
        return c.usage(CommandRegistry::tr("usage: check"));
    using Result = BackupController::CheckResult;
    switch (c.app.backupController().createBackup()) {
    case Result::Copied:
        c.out = QStringLiteral("copied\n");
        break;
    case Result::Repaired:
        c.asked = BackupController::repairQuestionText() + QLatin1Char('\n');
        c.out = QStringLiteral("repaired\n");
        break;
    case Result::RepairDeclined:
    case Result::RepairFailed:
        // The question came first; what ended the repair (the missing-copy
        // alert, an error) follows from the interface and ends the run.
        c.asked = BackupController::repairQuestionText() + QLatin1Char('\n');
        break;
    case Result::Skipped:
        return c.fail(
            CommandRegistry::tr("the settings cannot be read, so the document count cannot be checked"));
    case Result::NoStore:
        return c.fail(CommandRegistry::tr("Failed to initialize the store"));
    case Result::AlreadyDone:
    case Result::CopyFailed:
        // Errors were reported through the interface and end the run with
        // their own text.
        break;
    }
    return ExitCode::Done;
}

} // namespace

void registerDataCommands(CommandRegistry& registry)
{
    registry.add({QStringLiteral("backup"), QStringLiteral("OUT.vndb"), false, true, backup});
    // A restore is also the way out of a store that cannot be opened.
    registry.add({QStringLiteral("restore"), QStringLiteral("FILE.vndb"), true, false, restore});
    registry.add({QStringLiteral("check"), QString(), true, true, check});
}

} // namespace vorn
