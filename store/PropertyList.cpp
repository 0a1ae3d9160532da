#include "store/PropertyList.h"

#include <QDateTime>
#include <QHash>
#include <QTimeZone>
#include <QXmlStreamReader>

#include <plist/plist.h>

#include <algorithm>
#include <bit>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

namespace vorn {

namespace {

// Seconds between the Unix epoch and the property-list epoch (2001-01-01 UTC).
constexpr qint64 referenceDateOffset = 978307200;

struct PlistDeleter
{
    void operator()(void* node) const { plist_free(static_cast<plist_t>(node)); }
};
using PlistPtr = std::unique_ptr<void, PlistDeleter>;

// Binary property lists: each container holds object references, and a
// reference to an object that is still being decoded is a cycle. The walk
// uses an explicit stack, so neither depth nor cycles can overflow ours, and
// it refuses what libplist's recursive reader could not survive. Objects
// referenced from several places are copied by the reader each time, so the
// size of the tree as it will be built is counted too: a few hundred bytes of
// shared references can otherwise describe billions of nodes.
bool binaryIsSafe(const QByteArray& data)
{
    constexpr int maxDepth = PropertyList::maximumDepth;
    const auto* d = reinterpret_cast<const unsigned char*>(data.constData());
    const qsizetype size = data.size();
    if (size < 40 || memcmp(d, "bplist00", 8) != 0)
        return false;
    const unsigned char* trailer = d + size - 32;
    const int offsetSize = trailer[6];
    const int refSize = trailer[7];
    auto be = [](const unsigned char* p, int n) {
        quint64 v = 0;
        for (int i = 0; i < n; ++i)
            v = (v << 8) | p[i];
        return v;
    };
    const quint64 count = be(trailer + 8, 8);
    const quint64 top = be(trailer + 16, 8);
    const quint64 tableOffset = be(trailer + 24, 8);
    if (offsetSize < 1 || offsetSize > 8 || refSize < 1 || refSize > 8 || count == 0 || top >= count ||
        tableOffset >= quint64(size) || count > quint64(size) ||
        tableOffset + count * quint64(offsetSize) > quint64(size - 32))
        return false;
    const quint64 maxNodes = PropertyList::unfoldedLimit(count);
    auto offsetOf = [&](quint64 i) { return be(d + tableOffset + i * quint64(offsetSize), offsetSize); };
    // libplist asserts (and so aborts) on a dictionary key with a zero
    // character in it; such keys are refused here.
    auto keyHasZero = [&](quint64 object) -> bool {
        const quint64 offset = offsetOf(object);
        if (offset >= tableOffset)
            return true;
        const unsigned char marker = d[offset];
        const int type = marker >> 4;
        if (type != 0x5 && type != 0x6 && type != 0x7)
            return false;
        quint64 n = marker & 0x0F;
        quint64 pos = offset + 1;
        if (n == 0x0F) {
            if (pos >= tableOffset || (d[pos] >> 4) != 0x1)
                return true;
            const int bytes = 1 << (d[pos] & 0x0F);
            if (bytes > 8 || pos + 1 + quint64(bytes) > tableOffset)
                return true;
            n = be(d + pos + 1, bytes);
            pos += 1 + quint64(bytes);
        }
        const quint64 unit = type == 0x6 ? 2 : 1;
        if (n > quint64(size) || pos + n * unit > tableOffset)
            return true;
        for (quint64 i = 0; i < n; ++i) {
            const unsigned char* c = d + pos + i * unit;
            if (c[0] == 0 && (unit == 1 || c[1] == 0))
                return true;
        }
        return false;
    };

    // 0 = unvisited, 1 = on the current path, 2 = done.
    std::vector<unsigned char> state(size_t(count), 0);
    // Nodes of the built tree under each finished object, capped past the limit.
    std::vector<quint64> nodes(size_t(count), 0);
    struct Frame
    {
        quint64 object;
        std::vector<quint64> refs;
        size_t next = 0;
    };
    std::vector<Frame> stack;
    quint64 referencesSeen = 0;
    auto open = [&](quint64 object, Frame& frame) -> bool {
        const quint64 offset = offsetOf(object);
        if (offset >= tableOffset)
            return false;
        const unsigned char marker = d[offset];
        const int type = marker >> 4;
        if (type != 0xA && type != 0xC && type != 0xD) // array, set, dictionary
            return true;
        quint64 n = marker & 0x0F;
        quint64 pos = offset + 1;
        if (n == 0x0F) {
            if (pos >= tableOffset || (d[pos] >> 4) != 0x1)
                return false;
            const int bytes = 1 << (d[pos] & 0x0F);
            if (bytes > 8 || pos + 1 + quint64(bytes) > tableOffset)
                return false;
            n = be(d + pos + 1, bytes);
            pos += 1 + quint64(bytes);
        }
        // Each reference takes at least a byte of the file, which bounds the
        // count before it is multiplied. Equal values written once may be
        // referenced many more times than there are objects.
        if (n > quint64(size))
            return false;
        const quint64 refs = type == 0xD ? n * 2 : n;
        if (pos + refs * quint64(refSize) > tableOffset)
            return false;
        // Every reference of a container reached stands for at least one
        // value: past the limit, the rest of the file need not be read.
        referencesSeen += refs;
        if (referencesSeen > maxNodes)
            return false;
        frame.refs.reserve(size_t(refs));
        for (quint64 i = 0; i < refs; ++i) {
            const quint64 r = be(d + pos + i * quint64(refSize), refSize);
            if (r >= count || (type == 0xD && i < n && keyHasZero(r)))
                return false;
            frame.refs.push_back(r);
        }
        return true;
    };
    stack.push_back(Frame{top, {}, 0});
    state[size_t(top)] = 1;
    if (!open(top, stack.back()))
        return false;
    while (!stack.empty()) {
        Frame& frame = stack.back();
        if (frame.next == frame.refs.size()) {
            quint64 total = 1;
            for (quint64 r : frame.refs)
                total = std::min(total + nodes[size_t(r)], maxNodes + 1);
            if (total > maxNodes)
                return false;
            nodes[size_t(frame.object)] = total;
            state[size_t(frame.object)] = 2;
            stack.pop_back();
            continue;
        }
        const quint64 child = frame.refs[frame.next++];
        if (state[size_t(child)] == 1)
            return false;
        if (state[size_t(child)] == 2)
            continue;
        if (int(stack.size()) >= maxDepth)
            return false;
        state[size_t(child)] = 1;
        stack.push_back(Frame{child, {}, 0});
        if (!open(child, stack.back()))
            return false;
    }
    return true;
}

// XML property lists are read here rather than by libplist, whose parser
// slows down quadratically on some texts (entities, for one). The format is
// small: a <plist> element holding one value, values being <dict> (<key>
// and value pairs), <array>, <string>, <integer>, <real>, <true/>,
// <false/>, <date> and <data>. Depth and the number of values are checked
// as the elements arrive, so a hostile file is refused as soon as it
// crosses a limit.
class XmlReader
{
public:
    explicit XmlReader(const QByteArray& data) : m_xml(data) {}

    std::optional<QVariant> read()
    {
        if (!nextElement())
            return std::nullopt;
        std::optional<QVariant> root;
        if (m_xml.name() == QLatin1String("plist")) {
            if (!nextElement())
                return std::nullopt;
            root = value(1);
            if (!root || !endOfParent())
                return std::nullopt;
        } else {
            root = value(1);
            if (!root)
                return std::nullopt;
        }
        // Nothing but the end of the document may follow.
        while (!m_xml.atEnd()) {
            const auto token = m_xml.readNext();
            if (token == QXmlStreamReader::StartElement || token == QXmlStreamReader::Invalid ||
                (token == QXmlStreamReader::Characters && !m_xml.isWhitespace()))
                return std::nullopt;
        }
        return m_xml.hasError() ? std::nullopt : root;
    }

private:
    // Moves to the next start element; false at an end element, text that
    // is not white space, the end or an error.
    bool nextElement()
    {
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                return true;
            case QXmlStreamReader::Characters:
                if (!m_xml.isWhitespace())
                    return false;
                break;
            case QXmlStreamReader::EndElement:
            case QXmlStreamReader::Invalid:
            case QXmlStreamReader::EndDocument:
                return false;
            default:
                break;
            }
        }
        return false;
    }

    // After the last child: true when the parent's end element comes next.
    bool endOfParent()
    {
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::EndElement:
                return true;
            case QXmlStreamReader::Characters:
                if (!m_xml.isWhitespace())
                    return false;
                break;
            case QXmlStreamReader::Comment:
            case QXmlStreamReader::ProcessingInstruction:
                break;
            default:
                return false;
            }
        }
        return false;
    }

    std::optional<QString> text()
    {
        QString t = m_xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
        if (m_xml.hasError())
            return std::nullopt;
        return t;
    }

    // The value whose start element was just read; afterwards its end
    // element has been read.
    std::optional<QVariant> value(int depth)
    {
        if (++m_values > PropertyList::maximumNodes || depth > PropertyList::maximumDepth)
            return std::nullopt;
        const QStringView name = m_xml.name();
        if (name == QLatin1String("dict"))
            return dictionary(depth);
        if (name == QLatin1String("array")) {
            QVariantList list;
            // Children until the end element ends the loop.
            while (nextElement()) {
                auto element = value(depth + 1);
                if (!element)
                    return std::nullopt;
                list.append(std::move(*element));
            }
            if (m_xml.tokenType() != QXmlStreamReader::EndElement)
                return std::nullopt;
            return QVariant(list);
        }
        if (name == QLatin1String("true") || name == QLatin1String("false")) {
            const bool b = name == QLatin1String("true");
            if (!text())
                return std::nullopt;
            return QVariant(b);
        }
        const QString element = name.toString();
        auto t = text();
        if (!t)
            return std::nullopt;
        if (element == QLatin1String("string"))
            return QVariant(*t);
        const QString trimmed = t->trimmed();
        bool ok = false;
        if (element == QLatin1String("integer")) {
            const bool hex = trimmed.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
            if (trimmed.startsWith(QLatin1Char('-'))) {
                const qint64 v = trimmed.toLongLong(&ok, 10);
                return ok ? std::optional<QVariant>(QVariant(v)) : std::nullopt;
            }
            // Values beyond the signed range wrap, as the binary form stores them.
            const quint64 v = hex ? trimmed.mid(2).toULongLong(&ok, 16) : trimmed.toULongLong(&ok, 10);
            return ok ? std::optional<QVariant>(QVariant(qint64(v))) : std::nullopt;
        }
        if (element == QLatin1String("real")) {
            // libplist and the platform write infinities as words.
            const QString word = trimmed.toLower();
            if (word == QLatin1String("infinity") || word == QLatin1String("+infinity"))
                return QVariant(std::numeric_limits<double>::infinity());
            if (word == QLatin1String("-infinity"))
                return QVariant(-std::numeric_limits<double>::infinity());
            const double v = trimmed.toDouble(&ok);
            return ok ? std::optional<QVariant>(QVariant(v)) : std::nullopt;
        }
        if (element == QLatin1String("date")) {
            const QDateTime d = QDateTime::fromString(trimmed, Qt::ISODate);
            return d.isValid() ? std::optional<QVariant>(QVariant(d.toUTC())) : std::nullopt;
        }
        if (element == QLatin1String("data")) {
            QByteArray base64 = t->toLatin1();
            base64.removeIf([](char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; });
            auto decoded = QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
            return decoded ? std::optional<QVariant>(QVariant(*decoded)) : std::nullopt;
        }
        return std::nullopt;
    }

    std::optional<QVariant> dictionary(int depth)
    {
        QVariantMap map;
        while (nextElement()) {
            if (m_xml.name() != QLatin1String("key"))
                return std::nullopt;
            auto key = text();
            if (!key || !nextElement())
                return std::nullopt;
            auto v = value(depth + 1);
            if (!v)
                return std::nullopt;
            map.insert(*key, std::move(*v));
        }
        if (m_xml.tokenType() != QXmlStreamReader::EndElement)
            return std::nullopt;
        // A keyed archive's reference as the platform writes it in XML.
        if (map.size() == 1) {
            const QVariant uid = map.value(QStringLiteral("CF$UID"));
            if (uid.typeId() == QMetaType::LongLong && uid.toLongLong() >= 0)
                return QVariant::fromValue(PlistUid{quint64(uid.toLongLong())});
        }
        return QVariant(map);
    }

    QXmlStreamReader m_xml;
    quint64 m_values = 0;
};

// Walks an array with an iterator: libplist finds the n-th element by
// counting from the first, so indexing would make a walk quadratic.
template <typename F> void forEachElement(plist_t array, F&& f)
{
    plist_array_iter it = nullptr;
    plist_array_new_iter(array, &it);
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(array, it, &item);
        if (!item)
            break;
        f(item);
    }
    free(it);
}

QVariant toVariant(plist_t node, int depth)
{
    if (!node || depth > PropertyList::maximumDepth)
        return {};
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t b = 0;
        plist_get_bool_val(node, &b);
        return bool(b);
    }
    case PLIST_UINT: {
        uint64_t v = 0;
        plist_get_uint_val(node, &v);
        return qint64(v);
    }
    case PLIST_REAL: {
        double v = 0;
        plist_get_real_val(node, &v);
        return v;
    }
    case PLIST_STRING: {
        uint64_t length = 0;
        const char* s = plist_get_string_ptr(node, &length);
        return QString::fromUtf8(s, qsizetype(length));
    }
    case PLIST_DATA: {
        uint64_t length = 0;
        const char* p = plist_get_data_ptr(node, &length);
        return QByteArray(p, qsizetype(length));
    }
    case PLIST_DATE: {
        // libplist keeps the seconds as a double and answers them truncated
        // toward zero, with the magnitude of the fraction in whole microseconds
        // (rounded down): round to the millisecond and give the fraction the
        // sign of the seconds. (Within the one second before 2001 the sign is
        // lost to libplist itself.)
        int32_t sec = 0, usec = 0;
        plist_get_date_val(node, &sec, &usec);
        const qint64 fraction = (qint64(usec) + 500) / 1000;
        const qint64 ms = (qint64(sec) + referenceDateOffset) * 1000 + (sec < 0 ? -fraction : fraction);
        return QDateTime::fromMSecsSinceEpoch(ms, QTimeZone::utc());
    }
    case PLIST_UID: {
        uint64_t v = 0;
        plist_get_uid_val(node, &v);
        return QVariant::fromValue(PlistUid{v});
    }
    case PLIST_ARRAY: {
        QVariantList list;
        list.reserve(plist_array_get_size(node));
        forEachElement(node, [&list, depth](plist_t item) { list.append(toVariant(item, depth + 1)); });
        return list;
    }
    case PLIST_DICT: {
        QVariantMap map;
        plist_dict_iter it = nullptr;
        plist_dict_new_iter(node, &it);
        for (;;) {
            char* key = nullptr;
            plist_t value = nullptr;
            plist_dict_next_item(node, it, &key, &value);
            if (!value) {
                free(key);
                break;
            }
            map.insert(QString::fromUtf8(key), toVariant(value, depth + 1));
            free(key);
        }
        free(it);
        return map;
    }
    default:
        return {};
    }
}

plist_t fromVariant(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::Bool:
        return plist_new_bool(v.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::Short:
        return plist_new_uint(uint64_t(v.toLongLong()));
    case QMetaType::Float:
    case QMetaType::Double:
        return plist_new_real(v.toDouble());
    case QMetaType::QByteArray: {
        const QByteArray data = v.toByteArray();
        return plist_new_data(data.constData(), uint64_t(data.size()));
    }
    case QMetaType::QDateTime: {
        const qint64 ms = v.toDateTime().toMSecsSinceEpoch() - referenceDateOffset * 1000;
        qint64 sec = ms / 1000;
        qint64 rest = ms % 1000;
        if (rest < 0) {
            rest += 1000;
            --sec;
        }
        // libplist keeps whole seconds in 32 bits (1933 to 2069 around the
        // 2001 epoch); a date beyond that is pinned to the nearest end
        // rather than wrapped into another century.
        if (sec > std::numeric_limits<int32_t>::max() || sec < std::numeric_limits<int32_t>::min()) {
            sec = std::clamp<qint64>(sec, std::numeric_limits<int32_t>::min(),
                                     std::numeric_limits<int32_t>::max());
            rest = 0;
        }
        return plist_new_date(int32_t(sec), int32_t(rest * 1000));
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        plist_t array = plist_new_array();
        for (const QVariant& item : v.toList())
            plist_array_append_item(array, fromVariant(item));
        return array;
    }
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash: {
        plist_t dict = plist_new_dict();
        const QVariantMap map = v.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            plist_dict_set_item(dict, it.key().toUtf8().constData(), fromVariant(it.value()));
        return dict;
    }
    default:
        if (v.canConvert<PlistUid>() && v.typeId() == qMetaTypeId<PlistUid>())
            return plist_new_uid(v.value<PlistUid>().value);
        return plist_new_string(v.toString().toUtf8().constData());
    }
}

} // namespace

quint64 PropertyList::unfoldedLimit(quint64 objects)
{
    return std::min(maximumNodes, objects * unfoldingFactor + unfoldingAllowance);
}

struct PropertyList::Tree::Nodes
{
    PlistPtr root;
    // The elements of arrays asked for by element, found once.
    QHash<QString, std::vector<plist_t>> arrays;

    plist_t entry(const QString& key) const
    {
        if (plist_get_node_type(root.get()) != PLIST_DICT)
            return nullptr;
        return plist_dict_get_item(root.get(), key.toUtf8().constData());
    }
    const std::vector<plist_t>* array(const QString& key)
    {
        auto found = arrays.find(key);
        if (found != arrays.end())
            return &*found;
        plist_t node = entry(key);
        if (!node || plist_get_node_type(node) != PLIST_ARRAY)
            return nullptr;
        std::vector<plist_t> elements;
        elements.reserve(plist_array_get_size(node));
        forEachElement(node, [&elements](plist_t item) { elements.push_back(item); });
        return &*arrays.insert(key, std::move(elements));
    }
};

QVariant PropertyList::Tree::value(const QString& key) const
{
    if (!m_nodes)
        return key.isEmpty() ? m_root : m_root.toMap().value(key);
    if (key.isEmpty())
        return toVariant(m_nodes->root.get(), 0);
    plist_t node = m_nodes->entry(key);
    return node ? toVariant(node, 1) : QVariant();
}

qsizetype PropertyList::Tree::arraySize(const QString& key) const
{
    if (!m_nodes) {
        const QVariant v = m_root.toMap().value(key);
        return v.typeId() == QMetaType::QVariantList ? v.toList().size() : -1;
    }
    const std::vector<plist_t>* elements = m_nodes->array(key);
    return elements ? qsizetype(elements->size()) : -1;
}

QVariant PropertyList::Tree::arrayElement(const QString& key, qsizetype index) const
{
    if (!m_nodes)
        return m_root.toMap().value(key).toList().value(index);
    const std::vector<plist_t>* elements = m_nodes->array(key);
    if (!elements || index < 0 || size_t(index) >= elements->size())
        return {};
    return toVariant((*elements)[size_t(index)], 2);
}

Result<PropertyList::Tree> PropertyList::parse(const QByteArray& data)
{
    if (data.isEmpty())
        return Error::make(ErrorCode::FileReadUnknown, tr("The file is empty."));
    if (data.size() > maximumSize)
        return Error::make(ErrorCode::FileReadUnknown, tr("The file is too large to be a Vorn file."));
    const QString damaged = tr("The file is damaged or not a property list.");
    if (!data.startsWith("bplist00")) {
        auto root = XmlReader(data).read();
        if (!root)
            return Error::make(ErrorCode::FileReadUnknown, damaged);
        return Tree(std::move(*root));
    }
    if (!binaryIsSafe(data))
        return Error::make(ErrorCode::FileReadUnknown, damaged);
    plist_t root = nullptr;
    plist_from_bin(data.constData(), uint32_t(data.size()), &root);
    if (!root)
        return Error::make(ErrorCode::FileReadUnknown, damaged);
    auto nodes = std::make_shared<Tree::Nodes>();
    nodes->root.reset(root);
    return Tree(std::move(nodes));
}

Result<QVariant> PropertyList::read(const QByteArray& data)
{
    auto tree = parse(data);
    if (!tree)
        return tree.error();
    return tree.value().value();
}

QByteArray PropertyList::toXml(const QVariant& root)
{
    PlistPtr node(fromVariant(root));
    char* xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(static_cast<plist_t>(node.get()), &xml, &length);
    QByteArray result(xml, qsizetype(length));
    plist_to_xml_free(xml);
    return result;
}

namespace {

// Binary property lists are written here: libplist's writer finds shared
// values in a table of fixed size, which makes it quadratic in the number of
// objects (seconds for a document of some thousand items). Equal strings,
// numbers, dates, data and references are written once, containers each time.
class BinaryWriter
{
public:
    QByteArray write(const QVariant& root)
    {
        const quint64 top = add(root);
        const quint64 count = m_objects.size();
        const int refSize = bytesFor(count);
        QByteArray out = "bplist00";
        std::vector<quint64> offsets;
        offsets.reserve(m_objects.size());
        for (const Object& object : m_objects) {
            offsets.push_back(quint64(out.size()));
            if (!object.container) {
                out += object.bytes;
                continue;
            }
            const quint64 n = object.type == 0xD ? object.refs.size() / 2 : object.refs.size();
            appendMarker(out, object.type, n);
            for (quint64 ref : object.refs)
                appendBigEndian(out, ref, refSize);
        }
        const quint64 tableOffset = quint64(out.size());
        const int offsetSize = bytesFor(tableOffset + 1);
        for (quint64 offset : offsets)
            appendBigEndian(out, offset, offsetSize);
        out += QByteArray(6, '\0');
        out += char(offsetSize);
        out += char(refSize);
        appendBigEndian(out, count, 8);
        appendBigEndian(out, top, 8);
        appendBigEndian(out, tableOffset, 8);
        return out;
    }

private:
    struct Object
    {
        bool container = false;
        int type = 0;
        QByteArray bytes;
        std::vector<quint64> refs;
    };

    static int bytesFor(quint64 value)
    {
        return value <= 0xFF ? 1 : value <= 0xFFFF ? 2 : value <= 0xFFFFFFFFULL ? 4 : 8;
    }
    static void appendBigEndian(QByteArray& out, quint64 value, int bytes)
    {
        for (int i = bytes - 1; i >= 0; --i)
            out += char((value >> (8 * i)) & 0xFF);
    }
    static void appendInteger(QByteArray& out, qint64 value)
    {
        // Negative numbers take all eight bytes, as readers expect.
        const int bytes = value < 0 ? 8 : bytesFor(quint64(value));
        out += char(0x10 | std::countr_zero(unsigned(bytes)));
        appendBigEndian(out, quint64(value), bytes);
    }
    static void appendMarker(QByteArray& out, int type, quint64 count)
    {
        if (count < 15) {
            out += char((type << 4) | int(count));
            return;
        }
        out += char((type << 4) | 0xF);
        appendInteger(out, qint64(count));
    }
    static void appendDouble(QByteArray& out, int marker, double value)
    {
        out += char(marker);
        appendBigEndian(out, std::bit_cast<quint64>(value), 8);
    }

    quint64 leaf(QByteArray bytes)
    {
        auto found = m_leaves.constFind(bytes);
        if (found != m_leaves.cend())
            return *found;
        const quint64 index = m_objects.size();
        m_leaves.insert(bytes, index);
        m_objects.push_back(Object{false, 0, std::move(bytes), {}});
        return index;
    }

    quint64 string(const QString& text)
    {
        QByteArray out;
        const bool ascii =
            std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80; });
        if (ascii) {
            appendMarker(out, 0x5, quint64(text.size()));
            out += text.toLatin1();
        } else {
            appendMarker(out, 0x6, quint64(text.size()));
            for (QChar c : text)
                appendBigEndian(out, c.unicode(), 2);
        }
        return leaf(std::move(out));
    }

    quint64 container(int type, std::vector<quint64> refs)
    {
        const quint64 index = m_objects.size();
        m_objects.push_back(Object{true, type, {}, std::move(refs)});
        return index;
    }

    quint64 add(const QVariant& v)
    {
        QByteArray out;
        switch (v.typeId()) {
        case QMetaType::Bool:
            out += char(v.toBool() ? 0x09 : 0x08);
            return leaf(std::move(out));
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Long:
        case QMetaType::Short:
            appendInteger(out, v.toLongLong());
            return leaf(std::move(out));
        case QMetaType::Float:
        case QMetaType::Double:
            appendDouble(out, 0x23, v.toDouble());
            return leaf(std::move(out));
        case QMetaType::QByteArray: {
            const QByteArray data = v.toByteArray();
            appendMarker(out, 0x4, quint64(data.size()));
            out += data;
            return leaf(std::move(out));
        }
        case QMetaType::QDateTime: {
            // Readers keep whole seconds in 32 bits (1933 to 2069 around the
            // 2001 epoch); a date beyond that is pinned to the nearest end
            // rather than wrapped into another century.
            const qint64 ms = v.toDateTime().toMSecsSinceEpoch() - referenceDateOffset * 1000;
            constexpr qint64 limit = qint64(std::numeric_limits<int32_t>::max()) * 1000;
            const qint64 clamped = std::clamp<qint64>(ms, -limit - 1000, limit);
            appendDouble(out, 0x33, double(clamped) / 1000.0);
            return leaf(std::move(out));
        }
        case QMetaType::QVariantList:
        case QMetaType::QStringList: {
            const QVariantList list = v.toList();
            std::vector<quint64> refs;
            refs.reserve(size_t(list.size()));
            const quint64 index = container(0xA, {});
            for (const QVariant& element : list)
                refs.push_back(add(element));
            m_objects[index].refs = std::move(refs);
            return index;
        }
        case QMetaType::QVariantMap:
        case QMetaType::QVariantHash: {
            const QVariantMap map = v.toMap();
            std::vector<quint64> refs;
            refs.reserve(size_t(map.size()) * 2);
            const quint64 index = container(0xD, {});
            for (auto it = map.cbegin(); it != map.cend(); ++it)
                refs.push_back(string(it.key()));
            for (auto it = map.cbegin(); it != map.cend(); ++it)
                refs.push_back(add(it.value()));
            m_objects[index].refs = std::move(refs);
            return index;
        }
        default:
            break;
        }
        if (v.typeId() == qMetaTypeId<PlistUid>()) {
            const quint64 uid = v.value<PlistUid>().value;
            const int bytes = bytesFor(uid);
            out += char(0x80 | (bytes - 1));
            appendBigEndian(out, uid, bytes);
            return leaf(std::move(out));
        }
        return string(v.toString());
    }

    std::vector<Object> m_objects;
    QHash<QByteArray, quint64> m_leaves;
};

} // namespace

QByteArray PropertyList::toBinary(const QVariant& root)
{
    return BinaryWriter().write(root);
}

} // namespace vorn
