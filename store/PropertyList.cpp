#include "store/PropertyList.h"

#include <QDateTime>
#include <QTimeZone>

#include <plist/plist.h>

#include <algorithm>
#include <limits>
#include <memory>
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

// The nesting depth of an XML property list, counted over its container
// tags without building anything; the parser recurses, so depth is capped
// before it runs.
int xmlDepth(const QByteArray& data)
{
    int depth = 0, maxDepth = 0;
    const char* p = data.constData();
    const char* end = p + data.size();
    while (p < end) {
        const char* lt = static_cast<const char*>(memchr(p, '<', size_t(end - p)));
        if (!lt)
            break;
        const char* gt = static_cast<const char*>(memchr(lt, '>', size_t(end - lt)));
        if (!gt)
            break;
        const QByteArray tag = QByteArray::fromRawData(lt + 1, int(gt - lt - 1)).trimmed();
        const bool selfClosing = tag.endsWith('/');
        // The element name ends at white space: attributes do not hide a container.
        qsizetype nameEnd = 0;
        while (nameEnd < tag.size() && !isspace(uchar(tag[nameEnd])) && tag[nameEnd] != '/')
            ++nameEnd;
        if (nameEnd == 0 && tag.startsWith('/')) {
            nameEnd = 1;
            while (nameEnd < tag.size() && !isspace(uchar(tag[nameEnd])))
                ++nameEnd;
        }
        const QByteArray name = tag.left(nameEnd);
        const bool container = name == "dict" || name == "array";
        if (container && selfClosing)
            maxDepth = std::max(maxDepth, depth + 1);
        else if (container)
            maxDepth = std::max(maxDepth, ++depth);
        else if (name == "/dict" || name == "/array")
            --depth;
        p = gt + 1;
    }
    return maxDepth;
}

// Binary property lists: each container holds object references, and a
// reference to an object that is still being decoded is a cycle. The walk
// uses an explicit stack, so neither depth nor cycles can overflow ours, and
// it refuses what libplist's recursive reader could not survive. Objects
// referenced from several places are copied by the reader each time, so the
// size of the tree as it will be built is counted too: a few hundred bytes of
// shared references can otherwise describe billions of nodes.
bool binaryIsSafe(const QByteArray& data, int maxDepth, quint64 maxNodes)
{
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
        const quint64 refs = type == 0xD ? n * 2 : n;
        if (refs > count * 2 + 2 || pos + refs * quint64(refSize) > tableOffset)
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
        const uint32_t n = plist_array_get_size(node);
        list.reserve(n);
        for (uint32_t i = 0; i < n; ++i)
            list.append(toVariant(plist_array_get_item(node, i), depth + 1));
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

Result<QVariant> PropertyList::read(const QByteArray& data)
{
    if (data.isEmpty())
        return Error::make(ErrorCode::FileReadUnknown, tr("The file is empty."));
    if (data.size() > maximumSize)
        return Error::make(ErrorCode::FileReadUnknown, tr("The file is too large to be a Vorn file."));
    const bool binary = data.startsWith("bplist00");
    if (binary ? !binaryIsSafe(data, maximumDepth, maximumNodes) : xmlDepth(data) > maximumDepth)
        return Error::make(ErrorCode::FileReadUnknown, tr("The file is damaged or not a property list."));
    plist_t root = nullptr;
    if (binary)
        plist_from_bin(data.constData(), uint32_t(data.size()), &root);
    else
        plist_from_xml(data.constData(), uint32_t(data.size()), &root);
    PlistPtr guard(root);
    if (!root)
        return Error::make(ErrorCode::FileReadUnknown, tr("The file is damaged or not a property list."));
    return toVariant(root, 0);
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

QByteArray PropertyList::toBinary(const QVariant& root)
{
    PlistPtr node(fromVariant(root));
    char* bin = nullptr;
    uint32_t length = 0;
    plist_to_bin(static_cast<plist_t>(node.get()), &bin, &length);
    QByteArray result(bin, qsizetype(length));
    plist_to_bin_free(bin);
    return result;
}

} // namespace vorn
