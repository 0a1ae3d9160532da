#include "designs/SyntaxDefinition.h"

#include "designs/DesignsLog.h"
#include "store/PropertyList.h"
#include "store/Settings.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

namespace vorn {

namespace {

const QString colorPrefix = QStringLiteral("SyntaxColoring:Color:");
const QString keywordsPrefix = QStringLiteral("SyntaxColoring:Keywords:");
const QString userIdentifiersKey = QStringLiteral("SyntaxColoring:UserIdentifiers");

QStringList stringList(const QVariant& value)
{
    QStringList list;
    for (const QVariant& v : value.toList())
        if (v.typeId() == QMetaType::QString)
            list.append(v.toString());
    return list;
}

QVariant setting(const Settings* settings, const QString& key)
{
    return settings ? settings->value(key) : QVariant();
}

// The colour of a component: the settings' colour for its name, else its own.
SyntaxColor componentColor(const Settings* settings, const QString& name, const QVariant& own)
{
    const SyntaxColor chosen = SyntaxDefinition::colorValue(setting(settings, colorPrefix + name));
    return chosen.isValid() ? chosen : SyntaxDefinition::colorValue(own);
}

} // namespace

WordCharset::WordCharset(const QString& characters) : m_empty(characters.isEmpty())
{
    for (QChar c : characters) {
        if (c.unicode() < 128)
            m_ascii.set(c.unicode());
        else if (!m_other.contains(c))
            m_other.append(c);
    }
}

bool WordCharset::containsAll(QStringView word) const
{
    for (QChar c : word)
        if (!contains(c))
            return false;
    return true;
}

void SyntaxComponent::prepareWords()
{
    wordLookup.clear();
    searchedWords.clear();
    for (const QString& word : std::as_const(words)) {
        if (word.isEmpty())
            continue;
        if (!charset.isEmpty() && charset.containsAll(word))
            wordLookup.insert(QStringView(word));
        else
            searchedWords.append(word);
    }
}

SyntaxColor SyntaxDefinition::colorValue(const QVariant& array)
{
    const QVariantList parts = array.toList();
    if (parts.size() < 3)
        return {};
    double values[4] = {0, 0, 0, 1};
    for (qsizetype i = 0; i < std::min<qsizetype>(parts.size(), 4); ++i) {
        bool ok = false;
        values[i] = std::clamp(parts[i].toDouble(&ok), 0.0, 1.0);
        if (!ok)
            return {};
    }
    return {values[0], values[1], values[2], values[3], true};
}

QVariantList SyntaxDefinition::arrayWithColor(const SyntaxColor& color)
{
    return {color.red, color.green, color.blue, color.alpha};
}

Result<QVariantMap> SyntaxDefinition::readDictionary(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error::make(
            ErrorCode::FileNotFound,
            QCoreApplication::translate("SyntaxDefinition", "The syntax definition “%1” is missing.")
                .arg(path));
    auto root = PropertyList::read(file.readAll());
    if (!root)
        return root.error();
    if (root.value().typeId() != QMetaType::QVariantMap)
        return Error::make(
            ErrorCode::FileReadCorrupt,
            QCoreApplication::translate("SyntaxDefinition", "The syntax definition “%1” is damaged.")
                .arg(path));
    return root.value().toMap();
}

SyntaxDefinition SyntaxDefinition::load(const QString& path, const Settings* settings)
{
    auto dictionary = readDictionary(path);
    if (!dictionary) {
        qCWarning(lcDesigns).noquote() << "colouring as plain text:" << dictionary.error().fullText();
        return {};
    }
    return fromDictionary(dictionary.value(), settings);
}

Status SyntaxDefinition::registerColorDefaults(Settings& settings, const QString& path)
{
    auto colors = readDictionary(path);
    if (!colors) {
        qCWarning(lcDesigns).noquote() << "no syntax colours:" << colors.error().fullText();
        return colors.error();
    }
    settings.registerDefaults(colors.value());
    return {};
}

SyntaxDefinition SyntaxDefinition::fromDictionary(const QVariantMap& definition, const Settings* settings)
{
    if (!definition.contains(QStringLiteral("Components")))
        return fromLegacy(definition, settings);
    SyntaxDefinition result;
    static const QHash<QString, SyntaxComponent::Type> types = {
        {QStringLiteral("BlockComment"), SyntaxComponent::Type::BlockComment},
        {QStringLiteral("OneLineComment"), SyntaxComponent::Type::OneLineComment},
        {QStringLiteral("String"), SyntaxComponent::Type::String},
        {QStringLiteral("Tag"), SyntaxComponent::Type::Tag},
        {QStringLiteral("Keywords"), SyntaxComponent::Type::Keywords},
        {QStringLiteral("UserIdentifiers"), SyntaxComponent::Type::UserIdentifiers}};
    for (const QVariant& entry : definition.value(QStringLiteral("Components")).toList()) {
        const QVariantMap d = entry.toMap();
        const auto type = types.constFind(d.value(QStringLiteral("Type")).toString());
        if (type == types.cend()) {
            qCWarning(lcDesigns) << "skipping a syntax component of unknown type"
                                 << d.value(QStringLiteral("Type")).toString();
            continue;
        }
        SyntaxComponent c;
        c.type = *type;
        c.name = d.value(QStringLiteral("Name")).toString();
        c.color = componentColor(settings, c.name, d.value(QStringLiteral("Color")));
        c.start = d.value(QStringLiteral("Start")).toString();
        c.end = d.value(QStringLiteral("End")).toString();
        const QString escape = d.value(QStringLiteral("EscapeChar")).toString();
        c.escape = escape.isEmpty() ? QChar() : escape.front();
        c.ignoredComponent = d.value(QStringLiteral("IgnoredComponent")).toString();
        c.charset = WordCharset(d.value(QStringLiteral("Charset")).toString());
        if (c.type == SyntaxComponent::Type::Keywords) {
            c.words = d.contains(QStringLiteral("Keywords"))
                          ? stringList(d.value(QStringLiteral("Keywords")))
                          : stringList(setting(settings, keywordsPrefix + c.name));
        } else if (c.type == SyntaxComponent::Type::UserIdentifiers) {
            c.words = stringList(setting(settings, userIdentifiersKey));
        }
        result.addComponent(std::move(c));
    }
    return result;
}

SyntaxDefinition SyntaxDefinition::fromLegacy(const QVariantMap& d, const Settings* settings)
{
    SyntaxDefinition result;
    result.m_legacy = true;
    auto text = [&d](const char* key) { return d.value(QLatin1String(key)).toString(); };
    auto color = [settings](const char* name) {
        return colorValue(setting(settings, colorPrefix + QLatin1String(name)));
    };
    const WordCharset charset(text("Identifiers:Charset"));
    using Type = SyntaxComponent::Type;
    auto words = [&](const QString& mode, const SyntaxColor& c, QStringList list) {
        SyntaxComponent component;
        component.type = Type::Keywords;
        component.name = mode;
        component.color = c;
        component.words = std::move(list);
        component.charset = charset;
        result.addComponent(std::move(component));
    };
    auto delimited = [&](Type type, const QString& mode, const SyntaxColor& c, const QString& start,
                         const QString& end) {
        SyntaxComponent component;
        component.type = type;
        component.name = mode;
        component.color = c;
        component.start = start;
        component.end = end;
        return component;
    };
    words(QStringLiteral("SyntaxColoring:Identifier"), color("Identifiers"),
          stringList(d.value(QStringLiteral("Identifiers"))));
    words(QStringLiteral("SyntaxColoring:Identifier2"), color("Identifiers2"),
          stringList(d.value(QStringLiteral("Identifiers2"))) +
              stringList(setting(settings, userIdentifiersKey)));
    SyntaxComponent strings = delimited(Type::String, QStringLiteral("SyntaxColoring:DoubleQuotedString"),
                                        color("Strings"), QStringLiteral("\""), QStringLiteral("\""));
    const QString escape = text("String:EscapeChar");
    strings.escape = escape.isEmpty() ? QChar() : escape.front();
    result.addComponent(std::move(strings));
    SyntaxComponent tags = delimited(Type::Tag, QStringLiteral("SyntaxColoring:Tag"), color("Tags"),
                                     text("Tag:Start"), text("Tag:End"));
    tags.ignoredComponent = text("Tag:IgnoredStyle");
    result.addComponent(std::move(tags));
    for (const QString& directive : stringList(d.value(QStringLiteral("PreprocessorDirectives"))))
        result.addComponent(delimited(Type::OneLineComment, QStringLiteral("SyntaxColoring:Preprocessor"),
                                      color("Preprocessor"), directive, {}));
    result.addComponent(delimited(Type::OneLineComment, QStringLiteral("SyntaxColoring:OneLineComment"),
                                  color("Comments"), text("OneLineComment:Start"), {}));
    result.addComponent(delimited(Type::BlockComment, QStringLiteral("SyntaxColoring:MultiLineComment"),
                                  color("Comments"), text("BlockComment:Start"), text("BlockComment:End")));
    result.addComponent(delimited(Type::BlockComment, QStringLiteral("SyntaxColoring:MultiLineComment2"),
                                  color("Comments2"), text("BlockComment2:Start"),
                                  text("BlockComment2:End")));
    return result;
}

void SyntaxDefinition::addComponent(SyntaxComponent component)
{
    const bool delimited = component.type != SyntaxComponent::Type::Keywords &&
                           component.type != SyntaxComponent::Type::UserIdentifiers;
    // A component that could never match is left out rather than scanned.
    if (delimited ? component.start.isEmpty() : component.words.isEmpty())
        return;
    const qsizetype existing = m_modeNames.indexOf(component.name);
    // Mode numbers fit a byte; names beyond that mark nothing.
    if (existing < 0 && m_modeNames.size() < 255) {
        m_modeNames.append(component.name);
        m_modeColors.push_back(component.color);
    } else if (existing >= 0) {
        m_modeColors[size_t(existing)] = component.color;
    }
    m_components.push_back(std::move(component));
    m_components.back().prepareWords();
}

quint8 SyntaxDefinition::modeOf(const QString& name) const
{
    const qsizetype i = m_modeNames.indexOf(name);
    return i < 0 ? 0 : quint8(i + 1);
}

QString SyntaxDefinition::modeName(quint8 mode) const
{
    return mode == 0 || mode > m_modeNames.size() ? QString() : m_modeNames[mode - 1];
}

SyntaxColor SyntaxDefinition::modeColor(quint8 mode) const
{
    return mode == 0 || mode > m_modeColors.size() ? SyntaxColor() : m_modeColors[mode - 1];
}

} // namespace vorn
