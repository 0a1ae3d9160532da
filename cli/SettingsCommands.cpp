#include "app/AppDelegate.h"
#include "app/AssiController.h"
#include "cli/CliUserInterface.h"
#include "cli/CommandRegistry.h"
#include "cli/Json.h"
#include "store/Settings.h"

#include <QFile>

#include <cmath>

namespace vorn {

namespace {

int defaultsRead(CommandContext& c)
{
    Settings& settings = c.app.settings();
    if (c.args.size() > 1)
        return c.usage(CommandRegistry::tr("usage: defaults read [KEY]"));
    if (c.args.isEmpty())
        c.out = Json::write(settings.dictionaryRepresentation());
    else
        c.out = Json::write(settings.value(c.args.first()));
    c.out += QLatin1Char('\n');
    return ExitCode::Done;
}

int defaultsWrite(CommandContext& c)
{
    QStringList args = c.args;
    QString type = QStringLiteral("string");
    const int typeAt = int(args.indexOf(QStringLiteral("--type")));
    if (typeAt >= 0) {
        if (typeAt + 1 >= args.size())
            return c.usage(CommandRegistry::tr("--type needs one of bool, int, float, string, date, data"));
        type = args[typeAt + 1];
        args.remove(typeAt, 2);
    }
    if (args.size() != 2)
        return c.usage(
            CommandRegistry::tr("usage: defaults write KEY VALUE [--type bool|int|float|string|date|data]"));
    const QString& key = args[0];
    const QString& text = args[1];
    QVariant value;
    bool ok = true;
    if (type == QLatin1String("string")) {
        value = text;
    } else if (type == QLatin1String("bool")) {
        const auto b = Cli::parseBool(text);
        ok = b.has_value();
        value = b.value_or(false);
    } else if (type == QLatin1String("int")) {
        value = text.trimmed().toLongLong(&ok);
    } else if (type == QLatin1String("float")) {
        const double number = text.trimmed().toDouble(&ok);
        // "nan" and "inf" parse, but are no setting anyone can use.
        ok = ok && std::isfinite(number);
        value = number;
    } else if (type == QLatin1String("date")) {
        const auto d = Cli::parseDate(text);
        ok = d.has_value();
        value = d.value_or(QDateTime());
    } else if (type == QLatin1String("data")) {
        QFile file(text);
        if (!file.open(QIODevice::ReadOnly))
            return c.fail(CommandRegistry::tr("cannot read “%1”: %2").arg(text, file.errorString()));
        value = file.readAll();
    } else {
        return c.usage(CommandRegistry::tr("unknown type “%1”").arg(type));
    }
    if (!ok)
        return c.usage(CommandRegistry::tr("“%1” is not a valid %2").arg(text, type));
    c.app.settings().setValue(key, value);
    if (Status s = c.app.settings().synchronize(); !s)
        return c.fail(s.error().fullText());
    return ExitCode::Done;
}

int defaultsLoad(CommandContext& c)
{
    static const QStringList languages{QStringLiteral("english"), QStringLiteral("german"),
                                       QStringLiteral("french"), QStringLiteral("spanish")};
    const int language = c.args.size() == 1 ? int(languages.indexOf(c.args.first().toLower())) : -1;
    if (language < 0)
        return c.usage(CommandRegistry::tr("usage: defaults load english|german|french|spanish"));
    AssiController& assi = c.app.assiController();
    assi.setLanguage(language);
    // Failures are presented through the interface and end the run with their text.
    assi.firstAssiTabAction();
    return ExitCode::Done;
}

} // namespace

void registerSettingsCommands(CommandRegistry& registry)
{
    registry.add({QStringLiteral("defaults read"), QStringLiteral("[KEY]"), false, false, defaultsRead});
    registry.add({QStringLiteral("defaults write"),
                  QStringLiteral("KEY VALUE [--type bool|int|float|string|date|data]"), false, false,
                  defaultsWrite});
    registry.add({QStringLiteral("defaults load"), QStringLiteral("english|german|french|spanish"), true,
                  true, defaultsLoad});
}

} // namespace vorn
