#include "cli/CommandRegistry.h"

#include "app/AppDelegate.h"
#include "store/Keys.h"

#include <QDateTime>
#include <QTimeZone>

#include <cmath>

namespace vorn {

const Command* CommandRegistry::find(QStringList& args) const
{
    const Command* best = nullptr;
    int bestWords = 0;
    for (const Command& c : m_commands) {
        const QStringList words = c.name.split(QLatin1Char(' '));
        if (words.size() > args.size() || int(words.size()) <= bestWords)
            continue;
        if (std::equal(words.cbegin(), words.cend(), args.cbegin())) {
            best = &c;
            bestWords = int(words.size());
        }
    }
    if (best)
        args.erase(args.begin(), args.begin() + bestWords);
    return best;
}

QString CommandRegistry::helpText() const
{
    QString text = tr("Usage: vorn-cli COMMAND [ARGUMENTS]\n\nCommands:\n");
    for (const Command& c : m_commands)
        text += QStringLiteral("  %1 %2\n").arg(c.name, c.usage);
    return text;
}

namespace Cli {

std::optional<QList<std::pair<QString, QString>>> keyValues(CommandContext& c, const QStringList& args)
{
    QList<std::pair<QString, QString>> result;
    for (const QString& arg : args) {
        const int eq = int(arg.indexOf(QLatin1Char('=')));
        if (eq <= 0) {
            c.message = CommandRegistry::tr("expected KEY=VALUE, got “%1”").arg(arg);
            return std::nullopt;
        }
        result.append({arg.left(eq), arg.mid(eq + 1)});
    }
    return result;
}

std::optional<bool> parseBool(const QString& text)
{
    const QString t = text.trimmed().toLower();
    if (t == QLatin1String("1") || t == QLatin1String("true") || t == QLatin1String("yes"))
        return true;
    if (t == QLatin1String("0") || t == QLatin1String("false") || t == QLatin1String("no"))
        return false;
    return std::nullopt;
}

std::optional<QDateTime> parseDate(const QString& text)
{
    QDateTime d = QDateTime::fromString(text.trimmed(), Qt::ISODateWithMs);
    if (!d.isValid())
        d = QDateTime::fromString(text.trimmed(), Qt::ISODate);
    if (!d.isValid())
        return std::nullopt;
    return d.toTimeZone(QTimeZone::utc());
}

std::optional<QVariant> typedValue(const QString& entityName, const QString& key, const QString& text,
                                   QString* error)
{
    const EntityDescription* entity = ObjectModel::vorn().entity(entityName);
    const AttributeDescription* attribute = entity ? entity->attribute(key) : nullptr;
    if (!attribute) {
        *error = CommandRegistry::tr("unknown key “%1”").arg(key);
        return std::nullopt;
    }
    bool ok = true;
    switch (attribute->type) {
    case AttributeType::String:
        return QVariant(text);
    case AttributeType::Integer: {
        const qint64 v = text.trimmed().toLongLong(&ok);
        if (ok)
            return QVariant(v);
        break;
    }
    case AttributeType::Float: {
        const float v = text.trimmed().toFloat(&ok);
        // "nan" and "inf" parse, but no amount or rate can be one.
        if (ok && std::isfinite(v))
            return QVariant(v);
        break;
    }
    case AttributeType::Bool:
        if (auto b = parseBool(text))
            return QVariant(*b);
        break;
    case AttributeType::Date:
        if (auto d = parseDate(text))
            return QVariant(*d);
        break;
    case AttributeType::Data:
        return QVariant(QByteArray::fromBase64(text.toLatin1()));
    }
    *error = CommandRegistry::tr("“%1” is not a valid value for %2").arg(text, key);
    return std::nullopt;
}

ManagedObject* document(CommandContext& c, const QString& doc)
{
    AppState& state = c.app.state();
    // The displayed order of the whole list, whatever filter the window has.
    QList<ManagedObject*> all = state.invoicesController().content();
    ArrayController::sort(all, state.invoicesController().sortDescriptors());
    if (doc.startsWith(QLatin1Char('#'))) {
        bool ok = false;
        const int n = doc.mid(1).toInt(&ok);
        if (ok && n >= 1 && n <= all.size())
            return all[n - 1];
    } else {
        for (ManagedObject* o : std::as_const(all))
            if (o->stringValue(key::uniqueID) == doc)
                return o;
        for (ManagedObject* o : std::as_const(all))
            if (!doc.isEmpty() && o->stringValue(key::number) == doc)
                return o;
    }
    c.message = CommandRegistry::tr("no document “%1”").arg(doc);
    return nullptr;
}

} // namespace Cli
} // namespace vorn
