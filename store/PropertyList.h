#pragma once

#include "store/Result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QMetaType>
#include <QVariant>

#include <memory>

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
    // Values in the tree a list unfolds into (shared objects count once per
    // place they appear): never more than maximumNodes, and no more than a
    // few for each object the file holds plus a fixed allowance, so that a
    // small file can never cost much.
    static constexpr quint64 maximumNodes = 2 * 1000 * 1000;
    static constexpr quint64 unfoldingFactor = 8;
    static constexpr quint64 unfoldingAllowance = 100000;
    static quint64 unfoldedLimit(quint64 objects);

    // Reads an XML or a binary property list.
    static Result<QVariant> read(const QByteArray& data);

    // A property list as read, whose values are converted when asked for: a
    // reader that follows references through one large array (a keyed
    // archive's objects) converts only the elements it reaches.
    class Tree
    {
    public:
        struct Nodes;
        explicit Tree(QVariant root) : m_root(std::move(root)) {}
        explicit Tree(std::shared_ptr<Nodes> nodes) : m_nodes(std::move(nodes)) {}

        // The root dictionary's value under key (invalid when there is none),
        // or the whole list for an empty key.
        QVariant value(const QString& key = {}) const;
        // The root dictionary's array under key: the number of its elements
        // (-1 when it is not an array) and one of them.
        qsizetype arraySize(const QString& key) const;
        QVariant arrayElement(const QString& key, qsizetype index) const;

    private:
        QVariant m_root;
        std::shared_ptr<Nodes> m_nodes;
    };
    static Result<Tree> parse(const QByteArray& data);
    static QByteArray toXml(const QVariant& root);
    static QByteArray toBinary(const QVariant& root);
};

} // namespace vorn

Q_DECLARE_METATYPE(vorn::PlistUid)
