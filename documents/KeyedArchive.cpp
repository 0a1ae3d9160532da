#include "documents/KeyedArchive.h"

#include "store/PropertyList.h"

#include <QDateTime>
#include <QHash>
#include <QStringList>
#include <QTimeZone>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

namespace vorn {

namespace {

const QString archiverName = QStringLiteral("NSKeyedArchiver");
constexpr qint64 archiveVersion = 100000;
// Seconds between the Unix epoch and 2001-01-01 UTC.
constexpr qint64 referenceDateOffset = 978307200;
// Dates further than this from 2001 (about 10,000 years) are not dates.
constexpr double maximumTimeSeconds = 3.2e11;

const QString keysKey = QStringLiteral("NS.keys");
const QString objectsKey = QStringLiteral("NS.objects");
const QString timeKey = QStringLiteral("NS.time");
const QString classKey = QStringLiteral("$class");

class Writer
{
public:
    Writer() { m_objects.append(QStringLiteral("$null")); }

    QByteArray finish(const QVariant& root)
    {
        const PlistUid top = encode(root);
        QVariantMap plist;
        plist.insert(QStringLiteral("$archiver"), archiverName);
        plist.insert(QStringLiteral("$version"), archiveVersion);
        plist.insert(QStringLiteral("$top"), QVariantMap{{QStringLiteral("root"), QVariant::fromValue(top)}});
        plist.insert(QStringLiteral("$objects"), m_objects);
        return PropertyList::toBinary(plist);
    }

private:
    PlistUid append(const QVariant& object)
    {
        m_objects.append(object);
        return PlistUid{quint64(m_objects.size() - 1)};
    }
    // The container's slot comes first and is filled once its members are
    // archived, as the platform's archiver orders them.
    PlistUid reserve() { return append(QVariant()); }

    PlistUid classUid(const QString& name, const QStringList& hierarchy)
    {
        auto it = m_classes.constFind(name);
        if (it != m_classes.cend())
            return *it;
        const PlistUid uid = append(
            QVariantMap{{QStringLiteral("$classname"), name}, {QStringLiteral("$classes"), hierarchy}});
        m_classes.insert(name, uid);
        return uid;
    }

    static QVariant uidList(const QList<PlistUid>& uids)
    {
        QVariantList list;
        list.reserve(uids.size());
        for (const PlistUid& uid : uids)
            list.append(QVariant::fromValue(uid));
        return list;
    }

    PlistUid encode(const QVariant& value)
    {
        switch (value.typeId()) {
        case QMetaType::UnknownType:
            return PlistUid{0};
        case QMetaType::QString: {
            // Equal strings are stored once, as the archiver does for equal keys.
            const QString text = value.toString();
            auto it = m_strings.constFind(text);
            if (it != m_strings.cend())
                return *it;
            const PlistUid uid = append(text);
            m_strings.insert(text, uid);
            return uid;
        }
        case QMetaType::QVariantMap: {
            const PlistUid uid = reserve();
            const QVariantMap map = value.toMap();
            QList<PlistUid> keys, objects;
            for (auto it = map.cbegin(); it != map.cend(); ++it)
                keys.append(encode(it.key()));
            for (auto it = map.cbegin(); it != map.cend(); ++it)
                objects.append(encode(it.value()));
            const PlistUid cls = classUid(QStringLiteral("NSMutableDictionary"),
                                          {QStringLiteral("NSMutableDictionary"),
                                           QStringLiteral("NSDictionary"), QStringLiteral("NSObject")});
            m_objects[qsizetype(uid.value)] = QVariantMap{{keysKey, uidList(keys)},
                                                          {objectsKey, uidList(objects)},
                                                          {classKey, QVariant::fromValue(cls)}};
            return uid;
        }
        case QMetaType::QVariantList:
        case QMetaType::QStringList: {
            const PlistUid uid = reserve();
            QList<PlistUid> objects;
            for (const QVariant& element : value.toList())
                objects.append(encode(element));
            const PlistUid cls =
                classUid(QStringLiteral("NSArray"), {QStringLiteral("NSArray"), QStringLiteral("NSObject")});
            m_objects[qsizetype(uid.value)] =
                QVariantMap{{objectsKey, uidList(objects)}, {classKey, QVariant::fromValue(cls)}};
            return uid;
        }
        case QMetaType::QDateTime: {
            const PlistUid uid = reserve();
            const qint64 ms = value.toDateTime().toMSecsSinceEpoch() - referenceDateOffset * 1000;
            const PlistUid cls =
                classUid(QStringLiteral("NSDate"), {QStringLiteral("NSDate"), QStringLiteral("NSObject")});
            m_objects[qsizetype(uid.value)] =
                QVariantMap{{timeKey, double(ms) / 1000.0}, {classKey, QVariant::fromValue(cls)}};
            return uid;
        }
        case QMetaType::Float:
            // Exactly the stored float, widened; it reads back as the same float.
            return append(double(value.toFloat()));
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::Long:
        case QMetaType::Short:
            return append(value.toLongLong());
        default:
            return append(value);
        }
    }

    QVariantList m_objects;
    QHash<QString, PlistUid> m_classes;
    QHash<QString, PlistUid> m_strings;
};

class Reader
{
public:
    // objectAt answers the stored object at an index below count; each is
    // asked for once at most (class descriptions aside, which are kept).
    Reader(qsizetype count, std::function<QVariant(qsizetype)> objectAt)
        : m_count(count), m_objectAt(std::move(objectAt)), m_state(size_t(count), 0),
          m_decoded(size_t(count)), m_unfolded(size_t(count), 0),
          m_limit(PropertyList::unfoldedLimit(quint64(count)))
    {
    }

    Result<QVariant> decode(const QVariant& reference, int depth)
    {
        if (reference.typeId() != qMetaTypeId<PlistUid>())
            return damaged();
        const quint64 index = reference.value<PlistUid>().value;
        // Index 0 is "$null": nil has no place inside a dictionary or array.
        if (index == 0 || index >= quint64(m_count))
            return damaged();
        const size_t i = size_t(index);
        if (m_state[i] == 2)
            return m_decoded[i];
        if (m_state[i] == 1)
            return damaged(); // an object that contains itself
        if (depth > KeyedArchive::maximumDepth)
            return damaged();
        m_state[i] = 1;
        const quint64 outer = m_children;
        m_children = 0;
        auto result = object(m_objectAt(qsizetype(i)), depth);
        const quint64 inner = m_children;
        m_children = outer;
        if (!result)
            return result;
        m_state[i] = 2;
        m_decoded[i] = result.value();
        // The values this object stands for wherever it is used: shared
        // objects are decoded once but unfold at every place they appear,
        // and whoever reads the result walks them all.
        m_unfolded[i] = 1 + inner;
        if (m_unfolded[i] > m_limit)
            return Error::make(ErrorCode::FileReadCorrupt,
                               KeyedArchive::tr("The file unfolds into too many values to be a Vorn file."));
        return result;
    }

private:
    static Error damaged()
    {
        return Error::make(ErrorCode::FileReadCorrupt,
                           KeyedArchive::tr("The file is damaged or not a Vorn file."));
    }

    Result<QVariantList> references(const QVariant& list, int depth)
    {
        if (list.typeId() != QMetaType::QVariantList)
            return damaged();
        QVariantList result;
        const QVariantList refs = list.toList();
        result.reserve(refs.size());
        quint64 children = 0;
        for (const QVariant& r : refs) {
            auto v = decode(r, depth + 1);
            if (!v)
                return v.error();
            result.append(v.value());
            children = std::min(children + m_unfolded[size_t(r.value<PlistUid>().value)], m_limit + 1);
        }
        m_children = std::min(m_children + children, m_limit + 1);
        return result;
    }

    Result<QVariant> object(const QVariant& stored, int depth)
    {
        switch (stored.typeId()) {
        case QMetaType::QString:
        case QMetaType::QByteArray:
        case QMetaType::Bool:
        case QMetaType::LongLong:
        case QMetaType::Double:
        case QMetaType::QDateTime:
            return stored;
        case QMetaType::QVariantMap:
            break;
        default:
            return damaged();
        }
        const QVariantMap map = stored.toMap();
        const QVariant classRef = map.value(classKey);
        if (classRef.typeId() != qMetaTypeId<PlistUid>())
            return damaged();
        const quint64 ci = classRef.value<PlistUid>().value;
        if (ci == 0 || ci >= quint64(m_count))
            return damaged();
        auto knownClass = m_classNames.constFind(ci);
        if (knownClass == m_classNames.cend()) {
            const QVariant name = m_objectAt(qsizetype(ci)).toMap().value(QStringLiteral("$classname"));
            knownClass =
                m_classNames.insert(ci, name.typeId() == QMetaType::QString ? name.toString() : QString());
        }
        if (knownClass->isEmpty())
            return damaged();
        const QString className = *knownClass;

        if (className == QLatin1String("NSDictionary") || className == QLatin1String("NSMutableDictionary")) {
            auto keys = references(map.value(keysKey), depth);
            if (!keys)
                return keys.error();
            auto values = references(map.value(objectsKey), depth);
            if (!values)
                return values.error();
            if (keys.value().size() != values.value().size())
                return damaged();
            QVariantMap result;
            for (qsizetype k = 0; k < keys.value().size(); ++k) {
                if (keys.value()[k].typeId() != QMetaType::QString)
                    return damaged();
                result.insert(keys.value()[k].toString(), values.value()[k]);
            }
            return QVariant(result);
        }
        if (className == QLatin1String("NSArray") || className == QLatin1String("NSMutableArray") ||
            className == QLatin1String("NSSet") || className == QLatin1String("NSMutableSet") ||
            className == QLatin1String("NSOrderedSet") || className == QLatin1String("NSMutableOrderedSet")) {
            auto values = references(map.value(objectsKey), depth);
            if (!values)
                return values.error();
            return QVariant(values.value());
        }
        if (className == QLatin1String("NSDate")) {
            const QVariant time = map.value(timeKey);
            if (time.typeId() != QMetaType::Double && time.typeId() != QMetaType::LongLong)
                return damaged();
            const double seconds = time.toDouble();
            if (!std::isfinite(seconds) || std::fabs(seconds) > maximumTimeSeconds)
                return damaged();
            const qint64 ms = qint64(std::llround(seconds * 1000.0)) + referenceDateOffset * 1000;
            return QVariant(QDateTime::fromMSecsSinceEpoch(ms, QTimeZone::utc()));
        }
        if (className == QLatin1String("NSString") || className == QLatin1String("NSMutableString")) {
            const QVariant text = map.value(QStringLiteral("NS.string"));
            if (text.typeId() != QMetaType::QString)
                return damaged();
            return text;
        }
        if (className == QLatin1String("NSData") || className == QLatin1String("NSMutableData")) {
            const QVariant data = map.value(QStringLiteral("NS.data"));
            if (data.typeId() != QMetaType::QByteArray)
                return damaged();
            return data;
        }
        return Error::make(
            ErrorCode::FileReadCorrupt,
            KeyedArchive::tr("The file holds an object of an unknown class, “%1”.").arg(className));
    }

    const qsizetype m_count;
    const std::function<QVariant(qsizetype)> m_objectAt;
    QHash<quint64, QString> m_classNames;
    // 0 = not yet decoded, 1 = being decoded, 2 = decoded (shared references
    // are decoded once).
    std::vector<unsigned char> m_state;
    std::vector<QVariant> m_decoded;
    std::vector<quint64> m_unfolded;
    const quint64 m_limit;
    // The unfolded values under the object being decoded, summed by references().
    quint64 m_children = 0;
};

} // namespace

QByteArray KeyedArchive::archive(const QVariant& root)
{
    return Writer().finish(root);
}

namespace {

// The root object of an archive whose parts tree answers.
Result<QVariant> unarchiveTree(const PropertyList::Tree& tree)
{
    const QVariant archiver = tree.value(QStringLiteral("$archiver"));
    if (!archiver.isValid())
        return tree.value();
    if (archiver.typeId() != QMetaType::QString || archiver.toString() != archiverName)
        return Error::make(ErrorCode::FileReadCorrupt,
                           KeyedArchive::tr("The file is an archive of an unknown kind."));
    const QString objectsKey = QStringLiteral("$objects");
    const qsizetype count = tree.arraySize(objectsKey);
    const QVariant top = tree.value(QStringLiteral("$top"));
    if (count < 0 || top.typeId() != QMetaType::QVariantMap)
        return Error::make(ErrorCode::FileReadCorrupt,
                           KeyedArchive::tr("The file is damaged or not a Vorn file."));
    Reader reader(count, [&tree, &objectsKey](qsizetype i) { return tree.arrayElement(objectsKey, i); });
    return reader.decode(top.toMap().value(QStringLiteral("root")), 0);
}

} // namespace

Result<QVariant> KeyedArchive::unarchive(const QByteArray& data)
{
    // Objects are converted as the references reach them, so a file is
    // refused after reading no more of it than it must.
    auto tree = PropertyList::parse(data);
    if (!tree)
        return tree.error();
    return unarchiveTree(tree.value());
}

Result<QVariant> KeyedArchive::unarchiveObject(const QVariant& plist)
{
    if (plist.typeId() != QMetaType::QVariantMap)
        return plist;
    return unarchiveTree(PropertyList::Tree(plist));
}

} // namespace vorn
