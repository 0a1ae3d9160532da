#include "cli/Json.h"

#include "store/Keys.h"
#include "store/ManagedObject.h"

#include <QDateTime>
#include <QStringList>
#include <QTimeZone>

#include <charconv>
#include <cmath>

namespace vorn::Json {

QString quote(const QString& text)
{
    QString out;
    out.reserve(text.size() + 2);
    out += QLatin1Char('"');
    for (QChar c : text) {
        switch (c.unicode()) {
        case '"':
            out += QLatin1String("\\\"");
            break;
        case '\\':
            out += QLatin1String("\\\\");
            break;
        case '\n':
            out += QLatin1String("\\n");
            break;
        case '\r':
            out += QLatin1String("\\r");
            break;
        case '\t':
            out += QLatin1String("\\t");
            break;
        case '\b':
            out += QLatin1String("\\b");
            break;
        case '\f':
            out += QLatin1String("\\f");
            break;
        default:
            if (c.unicode() < 0x20)
                out += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
            else
                out += c;
        }
    }
    out += QLatin1Char('"');
    return out;
}

namespace {

template <typename T> QString shortest(T value)
{
    if (!std::isfinite(value))
        return QStringLiteral("null");
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    QString text = QString::fromLatin1(buffer, int(result.ptr - buffer));
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

} // namespace

QString floatText(float value)
{
    return shortest(value);
}

QString dateText(const QDateTime& date)
{
    return date.toTimeZone(QTimeZone::utc()).toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzzZ"));
}

QString write(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return QStringLiteral("null");
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return QString::number(value.toLongLong());
    case QMetaType::Float:
        return floatText(value.toFloat());
    case QMetaType::Double: {
        // Settings keep reals as doubles; one that is exactly a single (a
        // rate stored from a float) is that single's shortest text.
        const double d = value.toDouble();
        const float f = float(d);
        return double(f) == d ? floatText(f) : shortest(d);
    }
    case QMetaType::QDateTime:
        return quote(dateText(value.toDateTime()));
    case QMetaType::QByteArray:
        return quote(QString::fromLatin1(value.toByteArray().toBase64()));
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        QStringList parts;
        for (const QVariant& v : value.toList())
            parts << write(v);
        return QLatin1Char('[') + parts.join(QLatin1Char(',')) + QLatin1Char(']');
    }
    case QMetaType::QVariantMap: {
        const QVariantMap map = value.toMap();
        QStringList parts;
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            parts << quote(it.key()) + QLatin1Char(':') + write(it.value());
        return QLatin1Char('{') + parts.join(QLatin1Char(',')) + QLatin1Char('}');
    }
    default:
        return quote(value.toString());
    }
}

QString objectDictionary(const ManagedObject& object, bool withItems)
{
    QStringList parts;
    parts << QStringLiteral("\"class\":\"NSManagedObject\"");
    const auto& attributes = object.entity().attributes();
    for (size_t i = 0; i < attributes.size(); ++i) {
        const QVariant v = object.value(int(i));
        if (v.isValid())
            parts << quote(attributes[i].name) + QLatin1Char(':') + write(v);
    }
    if (withItems && object.entity().relationship(key::items)) {
        QStringList items;
        for (const ManagedObject* item : object.items())
            items << objectDictionary(*item, false);
        parts << QStringLiteral("\"items\":[") + items.join(QLatin1Char(',')) + QLatin1Char(']');
    }
    return QLatin1Char('{') + parts.join(QLatin1Char(',')) + QLatin1Char('}');
}

} // namespace vorn::Json
