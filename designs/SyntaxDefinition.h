#pragma once

#include "store/Result.h"

#include <QSet>
#include <QStringList>
#include <QStringView>
#include <QVariantMap>

#include <bitset>
#include <memory>
#include <vector>

namespace vorn {

class Settings;

// A colour of the syntax colouring, as the settings keep it: red, green,
// blue and alpha from 0 to 1. An invalid colour is none.
struct SyntaxColor
{
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    bool valid = false;
    bool isValid() const { return valid; }
    friend bool operator==(const SyntaxColor&, const SyntaxColor&) = default;
};

// The characters that make up a word for the identifier passes.
class WordCharset
{
public:
    WordCharset() = default;
    explicit WordCharset(const QString& characters);

    bool isEmpty() const { return m_empty; }
    bool contains(QChar c) const
    {
        const char16_t u = c.unicode();
        return u < 128 ? m_ascii.test(u) : m_other.contains(c);
    }
    bool containsAll(QStringView word) const;

private:
    std::bitset<128> m_ascii;
    QString m_other;
    bool m_empty = true;
};

// One rule of a syntax definition: what it finds, the mode name it writes
// into the text, and its colour (invalid: the rule marks its text but
// leaves its colour alone).
struct SyntaxComponent
{
    enum class Type
    {
        BlockComment,
        OneLineComment,
        String,
        Tag,
        Keywords,
        UserIdentifiers
    };

    Type type = Type::Keywords;
    QString name;
    SyntaxColor color;
    QString start;
    QString end;
    QChar escape;
    QString ignoredComponent;
    // Words to colour, and the characters words are made of.
    QStringList words;
    WordCharset charset;
    // The words whose characters all belong to the charset are found by
    // looking words up (a whole-word occurrence is then exactly a maximal
    // run of word characters); the others by searching the text.
    QSet<QStringView> wordLookup;
    QStringList searchedWords;

    void prepareWords();
};

// A language for the colourer: the components in the order they are
// applied, later ones overwriting earlier ones where they overlap. Built
// from a definition dictionary in the current format ("Components") or the
// older flat format, with colours from the settings ("SyntaxColoring:Color:"
// + name) over the definition's own.
class SyntaxDefinition
{
public:
    // A definition without components: plain text.
    SyntaxDefinition() = default;

    static SyntaxDefinition fromDictionary(const QVariantMap& definition, const Settings* settings);
    // Reads a definition resource (":/syntax/HTML.plist"). An unreadable one
    // is an error; the caller falls back to plain text.
    static Result<QVariantMap> readDictionary(const QString& path);
    // The definition of a resource, or plain text with the reason logged.
    static SyntaxDefinition load(const QString& path, const Settings* settings);

    // Registers the colours of the "SyntaxColorDefaults" resource as the
    // settings' fallbacks (once per settings object is enough).
    static Status registerColorDefaults(Settings& settings, const QString& path = defaultColorsPath());
    static QString defaultColorsPath() { return QStringLiteral(":/syntax/SyntaxColorDefaults.plist"); }
    static QString htmlPath() { return QStringLiteral(":/syntax/HTML.plist"); }
    static QString cssPath() { return QStringLiteral(":/syntax/CSS.plist"); }

    // Colour arrays: 3 or 4 numbers (red, green, blue, alpha 1 unless given).
    static SyntaxColor colorValue(const QVariant& array);
    static QVariantList arrayWithColor(const SyntaxColor& color);

    const std::vector<SyntaxComponent>& components() const { return m_components; }
    bool isLegacy() const { return m_legacy; }
    bool isPlainText() const { return m_components.empty(); }

    // Modes are numbered from 1 in the order their names first appear; 0 is
    // uncoloured text.
    int modeCount() const { return int(m_modeNames.size()); }
    quint8 modeOf(const QString& name) const;
    QString modeName(quint8 mode) const;
    // The colour of a mode: that of the last component writing it.
    SyntaxColor modeColor(quint8 mode) const;

private:
    void addComponent(SyntaxComponent component);
    static SyntaxDefinition fromLegacy(const QVariantMap& definition, const Settings* settings);

    std::vector<SyntaxComponent> m_components;
    QStringList m_modeNames;
    std::vector<SyntaxColor> m_modeColors;
    bool m_legacy = false;
};

} // namespace vorn
