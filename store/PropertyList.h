#pragma once

#include "store/Result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QMetaType>
#include <QVariant>

namespace vorn {

// A keyed archive's object reference.
struct PlistUid
{
    quint64 value = 0;
    bool operator==(const PlistUid& other) const { return value == other.value; }
};

// Property lists (XML and binary) as QVariant trees: dictionaries as
// QVariantMap, arrays as QVariantList, integers as qint64, reals as double,
// strings, data as QByteArray, dates as UTC QDateTime, UIDs as PlistUid.
class PropertyList
{
    Q_DECLARE_TR_FUNCTIONS(PropertyList)
public:
    // Limits applied before any parsing: files from outside may be hostile.
    static constexpr qsizetype maximumSize = 64 * 1024 * 1024;
    static constexpr int maximumDepth = 512;
    // Values in the tree a binary list unfolds into (shared objects count
    // once per place they appear).
    static constexpr quint64 maximumNodes = 2 * 1024 * 1024;

    // Reads an XML or a binary property list.
    static Result<QVariant> read(const QByteArray& data);
    static QByteArray toXml(const QVariant& root);
    static QByteArray toBinary(const QVariant& root);
};

} // namespace vorn

Q_DECLARE_METATYPE(vorn::PlistUid)
