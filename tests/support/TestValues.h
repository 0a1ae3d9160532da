#pragma once

#include <QDateTime>
#include <QStringList>
#include <QTimeZone>
#include <QVariant>
#include <QVariantMap>

#include <charconv>
#include <ostream>

// Readable strings in failure messages.
inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace vorn::test {

// Sets values in order, on settings or on an object: assign(target, key, value, key, value ...).
template <class Target, class... Rest>
void assign(Target& target, const QString& key, const QVariant& value, const Rest&... rest)
{
    target.setValue(key, value);
    if constexpr (sizeof...(rest) > 0)
        assign(target, rest...);
}

// A map from a flat list: values({key, value, key, value ...}).
inline QVariantMap values(const QVariantList& keysAndValues)
{
    QVariantMap map;
    for (qsizetype i = 0; i + 1 < keysAndValues.size(); i += 2)
        map.insert(keysAndValues[i].toString(), keysAndValues[i + 1]);
    return map;
}

// Several values of an object as text joined by '|' (floats in their
// shortest form, dates in ISO form, absent values empty).
template <class Object> QString fields(const Object& object, const QStringList& keys)
{
    QStringList texts;
    for (const QString& k : keys) {
        const QVariant v = object.value(k);
        char single[32];
        const auto end = std::to_chars(single, single + sizeof single, v.toFloat()).ptr;
        texts << (v.typeId() == QMetaType::Float ? QString::fromLatin1(single, end - single) : v.toString());
    }
    return texts.join(QLatin1Char('|'));
}

inline QDateTime utc(int y, int m, int d, int h = 0, int min = 0, int s = 0, int ms = 0)
{
    return QDateTime(QDate(y, m, d), QTime(h, min, s, ms), QTimeZone::utc());
}

} // namespace vorn::test
