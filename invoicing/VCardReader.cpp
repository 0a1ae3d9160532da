#include "invoicing/VCardReader.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStringDecoder>

#include <algorithm>
#include <optional>

namespace vorn {

const ContactAddress* Contact::primaryAddress() const
{
    const ContactAddress* best = nullptr;
    for (const ContactAddress& a : addresses) {
        if (a.preferred && (!best || a.preferenceRank < best->preferenceRank))
            best = &a;
    }
    if (best)
        return best;
    return addresses.isEmpty() ? nullptr : &addresses.first();
}

QString Contact::displayName() const
{
    if (!formattedName.trimmed().isEmpty())
        return formattedName.trimmed();
    const QString name = (firstName + QLatin1Char(' ') + lastName).trimmed();
    if (!name.isEmpty())
        return name;
    if (!organization.isEmpty())
        return organization;
    return emails.isEmpty() ? QString() : emails.first().address;
}

namespace {

struct Param
{
    QByteArray name; // upper case; empty for a bare 2.1 parameter
    QList<QByteArray> values;
};

struct Property
{
    QByteArray group;
    QByteArray name; // upper case
    QList<Param> params;
    QByteArray value;
    int line = 0;

    QList<QByteArray> paramValues(const QByteArray& paramName) const
    {
        QList<QByteArray> result;
        for (const Param& p : params)
            if (p.name == paramName)
                result += p.values;
        return result;
    }
};

bool isEncodingWord(const QByteArray& upper)
{
    return upper == "QUOTED-PRINTABLE" || upper == "BASE64" || upper == "B" || upper == "8BIT" ||
           upper == "7BIT";
}

// RFC 6868: ^n, ^^ and ^' inside parameter values.
QByteArray caretDecoded(const QByteArray& value)
{
    if (!value.contains('^'))
        return value;
    QByteArray out;
    out.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] == '^' && i + 1 < value.size()) {
            const char next = value[i + 1];
            if (next == 'n' || next == 'N') {
                out += '\n';
                ++i;
                continue;
            }
            if (next == '^') {
                out += '^';
                ++i;
                continue;
            }
            if (next == '\'') {
                out += '"';
                ++i;
                continue;
            }
        }
        out += value[i];
    }
    return out;
}

// Splits at a separator that is not inside double quotes.
QList<QByteArray> splitOutsideQuotes(const QByteArray& text, char separator)
{
    QList<QByteArray> parts;
    QByteArray current;
    bool quoted = false;
    for (char c : text) {
        if (c == '"')
            quoted = !quoted;
        if (c == separator && !quoted) {
            parts << current;
            current.clear();
        } else {
            current += c;
        }
    }
    parts << current;
    return parts;
}

QByteArray unquoted(QByteArray value)
{
    value = value.trimmed();
    if (value.size() >= 2 && value.startsWith('"') && value.endsWith('"'))
        value = value.mid(1, value.size() - 2);
    return value;
}

std::optional<Property> parseProperty(const QByteArray& line, int lineNumber)
{
    // The value starts after the first colon outside a quoted parameter.
    qsizetype colon = -1;
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == '"')
            quoted = !quoted;
        else if (line[i] == ':' && !quoted) {
            colon = i;
            break;
        }
    }
    if (colon <= 0)
        return std::nullopt;
    Property p;
    p.line = lineNumber;
    p.value = line.mid(colon + 1);
    const QList<QByteArray> head = splitOutsideQuotes(line.left(colon), ';');
    QByteArray name = head.first().trimmed();
    const qsizetype dot = name.lastIndexOf('.');
    if (dot >= 0) {
        p.group = name.left(dot).toUpper();
        name = name.mid(dot + 1);
    }
    p.name = name.toUpper();
    if (p.name.isEmpty())
        return std::nullopt;
    for (qsizetype i = 1; i < head.size(); ++i) {
        const QByteArray segment = head[i].trimmed();
        if (segment.isEmpty())
            continue;
        Param param;
        const qsizetype eq = segment.indexOf('=');
        if (eq < 0) {
            param.values << segment;
        } else {
            param.name = segment.left(eq).trimmed().toUpper();
            for (const QByteArray& v : splitOutsideQuotes(segment.mid(eq + 1), ','))
                param.values << caretDecoded(unquoted(v));
        }
        p.params << param;
    }
    return p;
}

QByteArray quotedPrintableDecoded(const QByteArray& value)
{
    auto hex = [](char c) -> int {
        if (c >= '0' && c <= '9')
            return c - '0';
        if (c >= 'A' && c <= 'F')
            return c - 'A' + 10;
        if (c >= 'a' && c <= 'f')
            return c - 'a' + 10;
        return -1;
    };
    QByteArray out;
    out.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] == '=' && i + 2 < value.size()) {
            const int hi = hex(value[i + 1]), lo = hex(value[i + 2]);
            if (hi >= 0 && lo >= 0) {
                out += char(hi * 16 + lo);
                i += 2;
                continue;
            }
        }
        // A broken escape is kept as it stands.
        out += value[i];
    }
    return out;
}

// Splits a structured value at unescaped semicolons; the parts keep their escapes.
QStringList splitComponents(const QString& value)
{
    QStringList parts;
    QString current;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar c = value[i];
        if (c == QLatin1Char('\\') && i + 1 < value.size()) {
            current += c;
            current += value[++i];
        } else if (c == QLatin1Char(';')) {
            parts << current;
            current.clear();
        } else {
            current += c;
        }
    }
    parts << current;
    return parts;
}

QString unescaped(const QString& text)
{
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c != QLatin1Char('\\') || i + 1 >= text.size()) {
            out += c;
            continue;
        }
        const QChar next = text[i + 1];
        switch (next.unicode()) {
        case 'n':
        case 'N':
            out += QLatin1Char('\n');
            break;
        case '\\':
        case ',':
        case ';':
        case ':':
            out += next;
            break;
        default:
            // Not an escape this reader knows: the text stays as written.
            out += c;
            out += next;
            break;
        }
        ++i;
    }
    out.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    out.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return out;
}

class Parser
{
public:
    Parser(const QByteArray& data, QString source, bool truncated)
        : m_data(data), m_source(std::move(source)), m_truncated(truncated)
    {
    }

    VCardReadResult run();

private:
    struct Card
    {
        QList<Property> properties;
        int firstLine = 0;
        bool version21 = false;
        bool tooManyProperties = false;
        bool lastWasEmptyAgent = false;
    };

    void handleLine(const QByteArray& line, int lineNumber, bool overlong);
    void startCard(int lineNumber);
    void finishCard();
    std::optional<QString> text(const Property& p, QByteArray* unknownCharset) const;
    void note(const QString& text) { m_result.notes << m_source + QLatin1String(": ") + text; }

    const QByteArray& m_data;
    QString m_source;
    bool m_truncated;
    VCardReadResult m_result;
    std::optional<Card> m_card;
    int m_nested = 0;
    int m_cardCount = 0;
    bool m_strayText = false;
};

std::optional<QString> Parser::text(const Property& p, QByteArray* unknownCharset) const
{
    QByteArray bytes = p.value;
    QByteArray encoding;
    QByteArray charset;
    for (const Param& param : p.params) {
        if (param.name == "ENCODING" && !param.values.isEmpty())
            encoding = param.values.first().toUpper();
        else if (param.name == "CHARSET" && !param.values.isEmpty())
            charset = param.values.first();
        else if (param.name.isEmpty() && !param.values.isEmpty() &&
                 isEncodingWord(param.values.first().toUpper()))
            encoding = param.values.first().toUpper();
    }
    if (encoding == "QUOTED-PRINTABLE")
        bytes = quotedPrintableDecoded(bytes);
    else if (encoding == "BASE64" || encoding == "B")
        bytes = QByteArray::fromBase64(bytes);

    if (!charset.isEmpty() && charset.toUpper() != "UTF-8") {
        QStringDecoder decoder(charset.constData());
        if (!decoder.isValid()) {
            *unknownCharset = charset;
            return std::nullopt;
        }
        return QString(decoder.decode(bytes));
    }
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString s = utf8.decode(bytes);
    // Old writers put 8-bit text into cards without naming its character set.
    if (utf8.hasError())
        s = QString::fromLatin1(bytes);
    return s;
}

void Parser::startCard(int lineNumber)
{
    m_card = Card{};
    m_card->firstLine = lineNumber;
    ++m_cardCount;
}

VCardReadResult Parser::run()
{
    int lineNumber = 0;
    QByteArray logical;
    int logicalLine = 0;
    bool haveLogical = false;
    bool logicalQp = false;
    bool overlong = false;

    auto isQp = [](const QByteArray& line) {
        const qsizetype colon = line.indexOf(':');
        const QByteArray head = (colon < 0 ? line : line.left(colon)).toUpper();
        return head.contains("QUOTED-PRINTABLE");
    };
    auto append = [&](const QByteArray& part) {
        if (logical.size() + part.size() > VCardReader::maximumLineLength)
            overlong = true;
        else
            logical += part;
    };

    qsizetype pos = 0;
    const qsizetype size = m_data.size();
    while (pos < size) {
        qsizetype end = pos;
        while (end < size && m_data[end] != '\n' && m_data[end] != '\r')
            ++end;
        const QByteArray line = m_data.mid(pos, end - pos);
        ++lineNumber;
        if (end < size && m_data[end] == '\r' && end + 1 < size && m_data[end + 1] == '\n')
            ++end;
        pos = end + 1;

        if (haveLogical && logicalQp && logical.endsWith('=')) {
            // A quoted-printable soft line break.
            logical.chop(1);
            append(line);
            continue;
        }
        if (haveLogical && !line.isEmpty() && (line[0] == ' ' || line[0] == '\t')) {
            // Folded: 2.1 keeps the white space, later versions drop one character.
            append(m_card && m_card->version21 ? line : line.mid(1));
            continue;
        }
        if (haveLogical)
            handleLine(logical, logicalLine, overlong);
        logical.clear();
        overlong = false;
        append(line);
        logicalLine = lineNumber;
        haveLogical = true;
        logicalQp = isQp(line);
    }
    if (haveLogical)
        handleLine(logical, logicalLine, overlong);

    if (m_card) {
        if (m_truncated) {
            note(VCardReader::tr(
                     "the card beginning on line %1 was cut off by the size limit and was not read.")
                     .arg(m_card->firstLine));
            m_card.reset();
        } else {
            note(VCardReader::tr("the card beginning on line %1 has no end; it was read as far as it goes.")
                     .arg(m_card->firstLine));
            finishCard();
        }
    }
    if (m_strayText)
        note(VCardReader::tr("text outside of any card was ignored."));
    if (m_cardCount == 0 && !m_data.trimmed().isEmpty())
        note(VCardReader::tr("no contact cards found."));
    return std::move(m_result);
}

void Parser::handleLine(const QByteArray& line, int lineNumber, bool overlong)
{
    if (overlong) {
        if (m_card && m_nested == 0)
            note(VCardReader::tr("card %1: line %2 is longer than the reader accepts and was skipped.")
                     .arg(m_cardCount)
                     .arg(lineNumber));
        else
            m_strayText = true;
        return;
    }
    if (line.trimmed().isEmpty())
        return;
    std::optional<Property> p = parseProperty(line, lineNumber);
    const bool isBegin = p && p->name == "BEGIN" && p->value.trimmed().toUpper() == "VCARD";
    const bool isEnd = p && p->name == "END" && p->value.trimmed().toUpper() == "VCARD";

    if (isBegin) {
        if (m_card) {
            if (m_card->lastWasEmptyAgent || m_nested > 0) {
                // A 2.1 agent card inside this one: skipped.
                ++m_nested;
                return;
            }
            note(VCardReader::tr("the card beginning on line %1 has no end; it was read as far as it goes.")
                     .arg(m_card->firstLine));
            finishCard();
        }
        startCard(lineNumber);
        return;
    }
    if (isEnd) {
        if (m_nested > 0) {
            --m_nested;
            if (m_card)
                m_card->lastWasEmptyAgent = false;
            return;
        }
        if (m_card)
            finishCard();
        else
            m_strayText = true;
        return;
    }
    if (!m_card) {
        m_strayText = true;
        return;
    }
    if (m_nested > 0)
        return;
    if (!p) {
        note(VCardReader::tr("card %1: line %2 is not a property and was skipped.")
                 .arg(m_cardCount)
                 .arg(lineNumber));
        return;
    }
    if (m_card->properties.size() >= VCardReader::maximumPropertiesPerCard) {
        if (!m_card->tooManyProperties)
            note(VCardReader::tr("card %1 has more than %2 properties; the rest were skipped.")
                     .arg(m_cardCount)
                     .arg(VCardReader::maximumPropertiesPerCard));
        m_card->tooManyProperties = true;
        return;
    }
    if (p->name == "VERSION")
        m_card->version21 = p->value.trimmed() == "2.1";
    m_card->lastWasEmptyAgent = p->name == "AGENT" && p->value.trimmed().isEmpty();
    m_card->properties << std::move(*p);
}

void Parser::finishCard()
{
    Card card = std::move(*m_card);
    m_card.reset();
    m_nested = 0;

    // Labels of grouped properties (Apple writes "item1.X-ABLabel").
    QHash<QByteArray, QString> labels;
    for (const Property& p : std::as_const(card.properties)) {
        if (p.name == "X-ABLABEL" && !p.group.isEmpty()) {
            QByteArray ignored;
            QString label = text(p, &ignored).value_or(QString()).trimmed();
            if (label.startsWith(QLatin1String("_$!<")) && label.endsWith(QLatin1String(">!$_")))
                label = label.mid(4, label.size() - 8);
            labels.insert(p.group, label.toLower());
        }
    }

    Contact contact;
    contact.sourceFile = m_source;
    contact.indexInFile = int(m_result.contacts.size());
    for (const Property& p : std::as_const(card.properties)) {
        const bool wanted =
            p.name == "N" || p.name == "FN" || p.name == "ORG" || p.name == "ADR" || p.name == "EMAIL";
        if (!wanted)
            continue;
        QByteArray charset;
        const std::optional<QString> value = text(p, &charset);
        if (!value) {
            note(VCardReader::tr("card %1 (line %2) uses the unknown character set “%3” and was skipped.")
                     .arg(m_cardCount)
                     .arg(card.firstLine)
                     .arg(QString::fromLatin1(charset)));
            return;
        }

        QStringList types;
        bool preferred = false;
        int rank = 0;
        for (const Param& param : p.params) {
            if (param.name == "TYPE" || (param.name.isEmpty() && !param.values.isEmpty() &&
                                         !isEncodingWord(param.values.first().toUpper()))) {
                for (const QByteArray& v : param.values) {
                    const QString t = QString::fromUtf8(v).trimmed().toLower();
                    if (t == QLatin1String("pref")) {
                        preferred = true;
                        rank = rank == 0 ? 1 : std::min(rank, 1);
                    } else if (!t.isEmpty()) {
                        types << t;
                    }
                }
            } else if (param.name == "PREF" && !param.values.isEmpty()) {
                bool ok = false;
                const int n = param.values.first().trimmed().toInt(&ok);
                preferred = true;
                rank = ok ? n : 100;
            }
        }
        if (!p.group.isEmpty() && labels.contains(p.group) && !labels.value(p.group).isEmpty())
            types << labels.value(p.group);

        const QStringList parts = splitComponents(*value);
        auto part = [&parts](int i) { return unescaped(parts.value(i)).trimmed(); };
        if (p.name == "N") {
            contact.lastName = part(0);
            contact.firstName = part(1);
        } else if (p.name == "FN") {
            contact.formattedName = unescaped(*value).trimmed();
        } else if (p.name == "ORG") {
            contact.organization = part(0);
        } else if (p.name == "ADR") {
            ContactAddress a;
            a.poBox = part(0);
            a.extended = part(1);
            a.street = part(2);
            a.city = part(3);
            a.region = part(4);
            a.postalCode = part(5);
            a.country = part(6);
            a.types = types;
            a.preferred = preferred;
            a.preferenceRank = rank;
            contact.addresses << a;
        } else if (p.name == "EMAIL") {
            const QString address = unescaped(*value).trimmed();
            if (!address.isEmpty())
                contact.emails << ContactEmail{address, types, preferred};
        }
    }
    m_result.contacts << contact;
}

// Text in UTF-16 (with a byte-order mark, or recognisable by its first
// characters) is turned into UTF-8 first; a UTF-8 mark is dropped.
QByteArray normalizedEncoding(const QByteArray& data)
{
    auto utf16 = [&data](QStringDecoder::Encoding e, qsizetype skip) {
        QStringDecoder decoder(e);
        return QString(decoder.decode(data.mid(skip))).toUtf8();
    };
    if (data.startsWith("\xEF\xBB\xBF"))
        return data.mid(3);
    if (data.startsWith("\xFF\xFE"))
        return utf16(QStringDecoder::Utf16LE, 2);
    if (data.startsWith("\xFE\xFF"))
        return utf16(QStringDecoder::Utf16BE, 2);
    if (data.size() >= 4 && data[0] != 0 && data[1] == 0 && data[2] != 0 && data[3] == 0)
        return utf16(QStringDecoder::Utf16LE, 0);
    if (data.size() >= 4 && data[0] == 0 && data[1] != 0 && data[2] == 0 && data[3] != 0)
        return utf16(QStringDecoder::Utf16BE, 0);
    return data;
}

VCardReadResult parseData(const QByteArray& raw, const QString& source, bool truncated)
{
    const QByteArray data = normalizedEncoding(raw);
    Parser parser(data, source, truncated);
    return parser.run();
}

void collectFiles(const QString& folder, int depth, QStringList& files, bool& tooMany)
{
    const QFileInfoList entries = QDir(folder).entryInfoList(
        QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable, QDir::Name);
    for (const QFileInfo& info : entries) {
        if (files.size() >= VCardReader::maximumFiles) {
            tooMany = true;
            return;
        }
        if (info.isDir()) {
            // Folders reached through links are not followed: they may loop.
            if (!info.isSymLink() && depth < VCardReader::maximumFolderDepth)
                collectFiles(info.filePath(), depth + 1, files, tooMany);
            continue;
        }
        const QString suffix = info.suffix().toLower();
        if (suffix == QLatin1String("vcf") || suffix == QLatin1String("vcard"))
            files << info.filePath();
    }
}

} // namespace

VCardReadResult VCardReader::parse(const QByteArray& data, const QString& source)
{
    if (data.size() > maximumFileSize) {
        VCardReadResult result = parseData(data.left(maximumFileSize), source, true);
        result.notes.prepend(source + QLatin1String(": ") +
                             tr("larger than %1 MB; only the contacts in the first %1 MB were read.")
                                 .arg(maximumFileSize / (1024 * 1024)));
        return result;
    }
    return parseData(data, source, false);
}

VCardReadResult VCardReader::readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        VCardReadResult result;
        result.notes << path + QLatin1String(": ") + tr("cannot be read (%1).").arg(file.errorString());
        return result;
    }
    // Never more than the limit (plus one byte, to know it was exceeded) in memory.
    const QByteArray data = file.read(maximumFileSize + 1);
    return parse(data, path);
}

VCardReadResult VCardReader::readPaths(const QStringList& paths)
{
    VCardReadResult result;
    QStringList files;
    bool tooMany = false;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (!info.exists()) {
            result.notes << path + QLatin1String(": ") + tr("does not exist.");
            continue;
        }
        if (info.isDir())
            collectFiles(info.filePath(), 0, files, tooMany);
        else
            files << info.filePath();
    }
    if (tooMany)
        result.notes
            << tr("More than %1 contact files were found; only the first %1 were read.").arg(maximumFiles);
    for (const QString& file : std::as_const(files)) {
        VCardReadResult one = readFile(file);
        result.contacts += one.contacts;
        result.notes += one.notes;
    }
    return result;
}

} // namespace vorn
