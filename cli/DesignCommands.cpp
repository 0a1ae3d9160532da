#include "app/AppDelegate.h"
#include "cli/CliUserInterface.h"
#include "cli/CommandRegistry.h"
#include "cli/Json.h"
#include "designs/DesignController.h"
#include "store/Keys.h"

#include <QFile>
#include <QFileInfo>

namespace vorn {

namespace {

class DesignCommands
{
    Q_DECLARE_TR_FUNCTIONS(DesignCommands)
};

QString tr(const char* text)
{
    return DesignCommands::tr(text);
}

// N: a 0-based row of the designs list (the default design first).
ManagedObject* selectDesign(CommandContext& c, const QString& text)
{
    ArrayController& list = c.app.state().designsController();
    bool ok = false;
    const int row = text.toInt(&ok);
    if (!ok || row < 0 || row >= list.count()) {
        c.message = tr("no design “%1”; see design list").arg(text);
        return nullptr;
    }
    list.setSelectionIndexes({row});
    return list.selectedObject();
}

QVariantMap listEntry(const ArrayController& list, const ManagedObject* design)
{
    return {
        {QStringLiteral("index"), qint64(list.arrangedObjects().indexOf(const_cast<ManagedObject*>(design)))},
        {key::title, design->stringValue(key::title)},
        {key::isDefault, design->boolValue(key::isDefault)},
        {key::uniqueID, design->stringValue(key::uniqueID)}};
}

bool failedWithError(CommandContext& c)
{
    if (c.ui.errors().isEmpty())
        return false;
    c.message = c.ui.errors().first().fullText();
    return true;
}

int designList(CommandContext& c)
{
    if (!c.args.isEmpty())
        return c.usage(tr("usage: design list"));
    const ArrayController& list = c.app.state().designsController();
    QVariantList entries;
    for (const ManagedObject* design : list.arrangedObjects())
        entries.append(listEntry(list, design));
    c.out = Json::write(entries) + QLatin1Char('\n');
    return ExitCode::Done;
}

int designShow(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(tr("usage: design show N"));
    const ManagedObject* design = selectDesign(c, c.args[0]);
    if (!design)
        return ExitCode::Usage;
    c.out = Json::objectDictionary(*design, false) + QLatin1Char('\n');
    return ExitCode::Done;
}

int designAdd(CommandContext& c)
{
    if (!c.args.isEmpty())
        return c.usage(tr("usage: design add"));
    DesignController designs(c.app.state());
    const ManagedObject* design = designs.addDesign();
    if (failedWithError(c) || !design)
        return ExitCode::Failure;
    c.out = Json::write(listEntry(c.app.state().designsController(), design)) + QLatin1Char('\n');
    return ExitCode::Done;
}

int designDelete(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(tr("usage: design delete N"));
    DesignController designs(c.app.state());
    if (!selectDesign(c, c.args[0]))
        return ExitCode::Usage;
    // The default design is refused with the application's alert.
    designs.deleteDesign();
    return ExitCode::Done;
}

int designDefault(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(tr("usage: design default N"));
    DesignController designs(c.app.state());
    if (!selectDesign(c, c.args[0]))
        return ExitCode::Usage;
    designs.makeDefaultDesign();
    designs.save();
    return ExitCode::Done;
}

int designImport(CommandContext& c)
{
    if (c.args.size() != 1)
        return c.usage(tr("usage: design import FILE.design"));
    DesignController designs(c.app.state());
    c.ui.setPanelAnswer(QFileInfo(c.args[0]).absoluteFilePath());
    const ManagedObject* design = designs.importDesign();
    if (failedWithError(c) || !design)
        return ExitCode::Failure;
    designs.save();
    c.out = Json::write(listEntry(c.app.state().designsController(), design)) + QLatin1Char('\n');
    return ExitCode::Done;
}

int designExport(CommandContext& c)
{
    if (c.args.size() != 2)
        return c.usage(tr("usage: design export N OUT.design"));
    DesignController designs(c.app.state());
    if (!selectDesign(c, c.args[0]))
        return ExitCode::Usage;
    const QString path = QFileInfo(c.args[1]).absoluteFilePath();
    c.ui.setPanelAnswer(path);
    if (Status written = designs.exportDesign(); !written)
        return c.fail(written.error().fullText());
    c.out = path + QLatin1Char('\n');
    return ExitCode::Done;
}

// KEY=VALUE or KEY=@FILE for the design builder's fields.
int designSet(CommandContext& c)
{
    if (c.args.size() < 2)
        return c.usage(tr("usage: design set N invoice=@FILE item=@FILE css=@FILE title=T"));
    ManagedObject* design = selectDesign(c, c.args[0]);
    if (!design)
        return ExitCode::Usage;
    const auto pairs = Cli::keyValues(c, c.args.mid(1));
    if (!pairs)
        return ExitCode::Usage;
    static const QStringList keys{key::invoice, key::item, key::css, key::title};
    QList<std::pair<QString, QString>> values;
    for (const auto& [key, text] : *pairs) {
        if (!keys.contains(key))
            return c.usage(tr("unknown key “%1”; use invoice, item, css or title").arg(key));
        if (!text.startsWith(QLatin1Char('@'))) {
            values.append({key, text});
            continue;
        }
        QFile file(text.mid(1));
        if (!file.open(QIODevice::ReadOnly))
            return c.fail(tr("cannot read “%1”: %2").arg(text.mid(1), file.errorString()));
        values.append({key, QString::fromUtf8(file.readAll())});
    }
    DesignController designs(c.app.state());
    {
        UndoGroup group(c.app.managedObjectContext()->undoManager(), tr("Edit Design"));
        for (const auto& [key, value] : values)
            design->setValue(key, value);
    }
    designs.save();
    c.out = Json::objectDictionary(*design, false) + QLatin1Char('\n');
    return ExitCode::Done;
}

} // namespace

void registerDesignCommands(CommandRegistry& registry)
{
    registry.add({QStringLiteral("design list"), QString(), false, true, designList});
    registry.add({QStringLiteral("design show"), QStringLiteral("N"), false, true, designShow});
    registry.add({QStringLiteral("design add"), QString(), true, true, designAdd});
    registry.add({QStringLiteral("design delete"), QStringLiteral("N"), true, true, designDelete});
    registry.add({QStringLiteral("design default"), QStringLiteral("N"), true, true, designDefault});
    registry.add({QStringLiteral("design import"), QStringLiteral("FILE.design"), true, true, designImport});
    registry.add(
        {QStringLiteral("design export"), QStringLiteral("N OUT.design"), false, true, designExport});
    registry.add({QStringLiteral("design set"),
                  QStringLiteral("N invoice=@FILE item=@FILE css=@FILE title=T"), true, true, designSet});
}

} // namespace vorn
