#include "store/PropertyList.h"
#include "tests/store/StoreTestSupport.h"

namespace vorn::test {
namespace {

QVariantMap sampleTree(bool withUid)
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes.append(char(255 - i));
    QVariantMap inner{{"title", QStringLiteral("Ünïcödé ✓ 𝄞 <&> \"q\"")},
                      {"empty", QString("")},
                      {"count", qint64(-42)},
                      {"big", std::numeric_limits<qint64>::max()},
                      {"rate", 0.19},
                      {"tiny", 1e-300},
                      {"infinite", -std::numeric_limits<double>::infinity()},
                      {"yes", true},
                      {"no", false},
                      {"when", utc(2026, 11, 21, 9, 52, 0)},
                      {"before2001", utc(1969, 7, 20, 20, 17, 40)},
                      {"bytes", bytes},
                      {"noBytes", QByteArray("")}};
    // Equal values are written once in the binary form, referenced from every place.
    QVariantList list{inner, QVariantList{}, QVariantMap{}, QVariantList{qint64(1), QVariantList{qint64(2)}},
                      QVariantList(100, QStringLiteral("pc"))};
    QVariantMap root{{"list", list}, {"key with spaces ü", inner}};
    if (withUid)
        root.insert("$top", QVariant::fromValue(PlistUid{7}));
    return root;
}

TEST(PropertyListTest, NestedValuesRoundTripThroughXmlAndBinary)
{
    for (const bool binary : {false, true}) {
        // Keyed-archive references exist only in the binary form.
        const QVariantMap tree = sampleTree(binary);
        auto back = PropertyList::read(binary ? PropertyList::toBinary(tree) : PropertyList::toXml(tree));
        ASSERT_TRUE(back.ok()) << qPrintable(back.error().message);
        EXPECT_EQ(back.value(), QVariant(tree)) << (binary ? "binary" : "XML");
    }
    const QDateTime dates[] = {utc(2026, 11, 21, 9, 52, 0, 123), utc(2026, 11, 21, 9, 52, 0, 999),
                               utc(2000, 12, 31, 23, 59, 58, 1), utc(1969, 7, 20, 20, 17, 40, 500)};
    for (const QDateTime& d : dates) {
        auto back = PropertyList::read(PropertyList::toBinary(QVariantMap{{"d", d}}));
        ASSERT_TRUE(back.ok());
        EXPECT_EQ(back.value().toMap().value("d").toDateTime().toMSecsSinceEpoch(), d.toMSecsSinceEpoch())
            << "binary dates keep milliseconds: " << qPrintable(d.toString(Qt::ISODateWithMs));
    }
}

// ---------------------------------------------------------------- hostile input

// Binary property lists built object by object, so that damaged ones can be
// made on purpose. References and offsets are four bytes wide.
QByteArray bigEndian(quint64 v, int n)
{
    QByteArray out(n, '\0');
    for (int i = n - 1; i >= 0; --i, v >>= 8)
        out[i] = char(v & 0xFF);
    return out;
}

QByteArray integer(quint64 v)
{
    return QByteArray(1, char(0x13)) + bigEndian(v, 8);
}

QByteArray container(int type, const QList<quint64>& refs, qint64 claimedCount = -1)
{
    const quint64 n =
        claimedCount >= 0 ? quint64(claimedCount) : quint64(type == 0xD ? refs.size() / 2 : refs.size());
    QByteArray out;
    if (n < 15)
        out.append(char((type << 4) | int(n)));
    else
        out.append(char((type << 4) | 0xF)).append(char(0x13)).append(bigEndian(n, 8));
    for (quint64 r : refs)
        out.append(bigEndian(r, 4));
    return out;
}

QByteArray array(const QList<quint64>& refs)
{
    return container(0xA, refs);
}

struct Trailer
{
    quint64 top = 0;
    qint64 claimedObjects = -1;
    std::function<void(QList<quint64>&)> patchOffsets = {};
};

QByteArray binary(const QList<QByteArray>& objects, const Trailer& trailer = {})
{
    QByteArray out = "bplist00";
    QList<quint64> offsets;
    for (const QByteArray& o : objects) {
        offsets << quint64(out.size());
        out += o;
    }
    if (trailer.patchOffsets)
        trailer.patchOffsets(offsets);
    const quint64 tableOffset = quint64(out.size());
    for (quint64 off : offsets)
        out += bigEndian(off, 4);
    out += QByteArray(6, '\0') + char(4) + char(4);
    out +=
        bigEndian(trailer.claimedObjects >= 0 ? quint64(trailer.claimedObjects) : quint64(objects.size()), 8);
    return out + bigEndian(trailer.top, 8) + bigEndian(tableOffset, 8);
}

QByteArray deepBinary(int depth)
{
    QList<QByteArray> objects;
    for (int i = 0; i < depth; ++i)
        objects << array({quint64(i + 1)});
    return binary(objects << integer(1));
}

QByteArray deepXml(const QByteArray& open, const QByteArray& close, int depth)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + open.repeated(depth) +
           close.repeated(depth) + "</plist>";
}

struct HostileCase
{
    const char* name;
    QByteArray bytes;
};

QByteArray twoThirds(const QByteArray& bytes)
{
    return bytes.left(bytes.size() * 2 / 3);
}

QByteArray withZeroReferenceSize(QByteArray bytes)
{
    bytes[bytes.size() - 25] = 0;
    return bytes;
}

const HostileCase hostileCases[] = {
    {"DeepXmlArrays", deepXml("<array>", "</array>", 100000)},
    {"DeepXmlDicts", deepXml("<dict><key>k</key>", "</dict>", 100000)},
    {"DeepXmlWithSpaces", deepXml("<array >", "</array >", 100000)},
    {"DeepXmlWithNewlines", deepXml("<array\n>", "</array\n>", 100000)},
    {"DeepXmlWithAttributes", deepXml("<array a=\"1\">", "</array>", 100000)},
    {"DeepXmlUnclosed", deepXml("<array>", "", 100000)},
    {"XmlNotClosed", QByteArray("<?xml version=\"1.0\"?><plist><dict><key>a</key><string>b")},
    {"DeepBinary", deepBinary(100000)},
    {"BinaryJustOverTheLimit", deepBinary(PropertyList::maximumDepth + 2)},
    {"BinarySelfReference", binary({array({0})})},
    // The dictionary's key is the one-letter text "k".
    {"BinaryLongCycle", binary({array({1}), container(0xD, {2, 3}), "\x51k", array({0})})},
    // Four objects unfolding to a million values: within the absolute
    // limit, far past what so small a file may stand for.
    {"BinarySharedPastItsSize", binary({array(QList<quint64>(100, 1)), array(QList<quint64>(100, 2)),
                                        array(QList<quint64>(100, 3)), integer(1)})},
    {"BinaryTruncated", twoThirds(PropertyList::toBinary(sampleTree(true)))},
    {"BinaryOnlyHeader", QByteArray("bplist00")},
    {"BinaryOffsetPastEnd",
     binary({array({1}), integer(5)}, {0, -1, [](auto& offsets) { offsets[1] = 0xFFFFFF; }})},
    {"BinaryOffsetIntoTable",
     binary({array({1}), integer(5)}, {0, -1, [](auto& offsets) { offsets[1] += 9; }})},
    {"BinaryTopOutOfRange", binary({integer(5)}, {3})},
    {"BinaryReferenceOutOfRange", binary({array({1, 9}), integer(5)})},
    {"BinaryHugeObjectCount", binary({integer(5)}, {0, qint64(1) << 40})},
    {"BinaryHugeArrayCount", binary({container(0xA, {1}, qint64(1) << 33), integer(5)})},
    {"BinaryZeroReferenceSize", withZeroReferenceSize(binary({integer(5)}))},
    {"TooLarge", QByteArray(PropertyList::maximumSize + 1, ' ')},
    {"Empty", QByteArray()},
};

class HostilePropertyListTest : public ::testing::TestWithParam<HostileCase>
{
};

TEST_P(HostilePropertyListTest, RefusedWithoutCrashing)
{
    const auto result = PropertyList::read(GetParam().bytes);
    ASSERT_FALSE(result.ok());
    EXPECT_FALSE(result.error().message.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Inputs, HostilePropertyListTest, ::testing::ValuesIn(hostileCases),
                         [](const auto& info) { return std::string(info.param.name); });

// The guards must not refuse what is merely shared or moderately deep.
TEST(PropertyListTest, SharedObjectsAndModerateDepthAreAccepted)
{
    // A diamond: two references to the same array are not a cycle.
    auto shared = PropertyList::read(binary({array({1, 1, 2}), array({2}), integer(9)}));
    ASSERT_TRUE(shared.ok()) << qPrintable(shared.error().message);
    EXPECT_EQ(shared.value().toList().size(), 3);
    EXPECT_TRUE(PropertyList::read(deepBinary(PropertyList::maximumDepth - 2)).ok());
    EXPECT_TRUE(PropertyList::read(deepXml("<array>", "</array>", PropertyList::maximumDepth - 2)).ok());
}

} // namespace
} // namespace vorn::test
