#include "store/PropertyList.h"
#include "tests/store/StoreTestSupport.h"

namespace vorn::test {
namespace {

QVariantMap sampleTree(bool withUid)
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes.append(char(255 - i));
    QVariantMap inner{{QStringLiteral("title"), QStringLiteral("Ünïcödé ✓ 𝄞 <&> \"q\"")},
                      {QStringLiteral("empty"), QString("")},
                      {QStringLiteral("count"), qint64(-42)},
                      {QStringLiteral("big"), std::numeric_limits<qint64>::max()},
                      {QStringLiteral("rate"), 0.19},
                      {QStringLiteral("tiny"), 1e-300},
                      {QStringLiteral("yes"), true},
                      {QStringLiteral("no"), false},
                      {QStringLiteral("when"), utc(2026, 11, 21, 9, 52, 0)},
                      {QStringLiteral("before2001"), utc(1969, 7, 20, 20, 17, 40)},
                      {QStringLiteral("bytes"), bytes},
                      {QStringLiteral("noBytes"), QByteArray("")}};
    QVariantList list{inner, QVariantList{}, QVariantMap{}, QVariantList{qint64(1), QVariantList{qint64(2)}}};
    QVariantMap root{{QStringLiteral("list"), list}, {QStringLiteral("key with spaces ü"), inner}};
    if (withUid)
        root.insert(QStringLiteral("$top"), QVariant::fromValue(PlistUid{7}));
    return root;
}

TEST(PropertyListTest, NestedValuesRoundTripThroughXml)
{
    const QVariantMap tree = sampleTree(false);
    auto back = PropertyList::read(PropertyList::toXml(tree));
    ASSERT_TRUE(back.ok()) << qPrintable(back.error().message);
    EXPECT_EQ(back.value(), QVariant(tree));
}

TEST(PropertyListTest, NestedValuesRoundTripThroughBinary)
{
    const QVariantMap tree = sampleTree(true);
    auto back = PropertyList::read(PropertyList::toBinary(tree));
    ASSERT_TRUE(back.ok()) << qPrintable(back.error().message);
    EXPECT_EQ(back.value(), QVariant(tree));
    EXPECT_EQ(back.value().toMap().value(QStringLiteral("$top")).value<PlistUid>().value, 7u);
}

TEST(PropertyListTest, BinaryDatesKeepMilliseconds)
{
    for (const QDateTime& d : {utc(2026, 11, 21, 9, 52, 0, 123), utc(2026, 11, 21, 9, 52, 0, 999),
                               utc(2000, 12, 31, 23, 59, 58, 1), utc(1969, 7, 20, 20, 17, 40, 500)}) {
        auto back = PropertyList::read(PropertyList::toBinary(QVariantMap{{QStringLiteral("d"), d}}));
        ASSERT_TRUE(back.ok());
        EXPECT_EQ(back.value().toMap().value(QStringLiteral("d")).toDateTime().toMSecsSinceEpoch(),
                  d.toMSecsSinceEpoch())
            << qPrintable(d.toString(Qt::ISODateWithMs));
    }
}

// ---------------------------------------------------------------- hostile input

// Builds binary property lists object by object, so that damaged ones can be
// made on purpose.
struct BinaryPlist
{
    QList<QByteArray> objects;
    int refSize = 4;
    int offsetSize = 4;

    static QByteArray be(quint64 v, int n)
    {
        QByteArray out(n, '\0');
        for (int i = n - 1; i >= 0; --i, v >>= 8)
            out[i] = char(v & 0xFF);
        return out;
    }
    static QByteArray integer(quint64 v) { return QByteArray(1, char(0x13)) + be(v, 8); }
    static QByteArray ascii(const QByteArray& s) { return QByteArray(1, char(0x50 | s.size())) + s; }
    QByteArray container(int type, const QList<quint64>& refs, qint64 claimedCount = -1) const
    {
        const quint64 n =
            claimedCount >= 0 ? quint64(claimedCount) : quint64(type == 0xD ? refs.size() / 2 : refs.size());
        QByteArray out;
        if (n < 15)
            out.append(char((type << 4) | int(n)));
        else
            out.append(char((type << 4) | 0xF)).append(char(0x13)).append(be(n, 8));
        for (quint64 r : refs)
            out.append(be(r, refSize));
        return out;
    }
    QByteArray array(const QList<quint64>& refs) const { return container(0xA, refs); }

    QByteArray build(quint64 top = 0, std::function<void(QList<quint64>&)> patchOffsets = {},
                     qint64 claimedObjects = -1) const
    {
        QByteArray out = "bplist00";
        QList<quint64> offsets;
        for (const QByteArray& o : objects) {
            offsets << quint64(out.size());
            out += o;
        }
        if (patchOffsets)
            patchOffsets(offsets);
        const quint64 tableOffset = quint64(out.size());
        for (quint64 off : offsets)
            out += be(off, offsetSize);
        out += QByteArray(6, '\0');
        out.append(char(offsetSize)).append(char(refSize));
        out += be(claimedObjects >= 0 ? quint64(claimedObjects) : quint64(objects.size()), 8);
        out += be(top, 8);
        out += be(tableOffset, 8);
        return out;
    }
};

QByteArray deepBinary(int depth)
{
    BinaryPlist p;
    for (int i = 0; i < depth; ++i)
        p.objects << p.array({quint64(i + 1)});
    p.objects << BinaryPlist::integer(1);
    return p.build();
}

QByteArray deepXml(const QByteArray& open, const QByteArray& close, int depth)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + open.repeated(depth) +
           close.repeated(depth) + "</plist>";
}

struct HostileCase
{
    const char* name;
    QByteArray (*bytes)();
};

const HostileCase hostileCases[] = {
    {"DeepXmlArrays", [] { return deepXml("<array>", "</array>", 100000); }},
    {"DeepXmlDicts", [] { return deepXml("<dict><key>k</key>", "</dict>", 100000); }},
    {"DeepXmlWithSpaces", [] { return deepXml("<array >", "</array >", 100000); }},
    {"DeepXmlWithNewlines", [] { return deepXml("<array\n>", "</array\n>", 100000); }},
    {"DeepXmlWithAttributes", [] { return deepXml("<array a=\"1\">", "</array>", 100000); }},
    {"DeepXmlUnclosed", [] { return deepXml("<array>", "", 100000); }},
    {"XmlNotClosed", [] { return QByteArray("<?xml version=\"1.0\"?><plist><dict><key>a</key><string>b"); }},
    {"DeepBinary", [] { return deepBinary(100000); }},
    {"BinaryJustOverTheLimit", [] { return deepBinary(PropertyList::maximumDepth + 2); }},
    {"BinarySelfReference",
     [] {
         BinaryPlist p;
         p.objects << p.array({0});
         return p.build();
     }},
    {"BinaryLongCycle",
     [] {
         BinaryPlist p;
         p.objects << p.array({1}) << p.container(0xD, {2, 3}) << BinaryPlist::ascii("k") << p.array({0});
         return p.build();
     }},
    {"BinaryTruncated",
     [] {
         const QByteArray full = PropertyList::toBinary(sampleTree(true));
         return full.left(full.size() * 2 / 3);
     }},
    {"BinaryOnlyHeader", [] { return QByteArray("bplist00"); }},
    {"BinaryOffsetPastEnd",
     [] {
         BinaryPlist p;
         p.objects << p.array({1}) << BinaryPlist::integer(5);
         return p.build(0, [](QList<quint64>& offsets) { offsets[1] = 0xFFFFFF; });
     }},
    {"BinaryOffsetIntoTable",
     [] {
         BinaryPlist p;
         p.objects << p.array({1}) << BinaryPlist::integer(5);
         return p.build(0, [](QList<quint64>& offsets) { offsets[1] = offsets[1] + 9; });
     }},
    {"BinaryTopOutOfRange",
     [] {
         BinaryPlist p;
         p.objects << BinaryPlist::integer(5);
         return p.build(3);
     }},
    {"BinaryReferenceOutOfRange",
     [] {
         BinaryPlist p;
         p.objects << p.array({1, 9});
         p.objects << BinaryPlist::integer(5);
         return p.build();
     }},
    {"BinaryHugeObjectCount",
     [] {
         BinaryPlist p;
         p.objects << BinaryPlist::integer(5);
         return p.build(0, {}, qint64(1) << 40);
     }},
    {"BinaryHugeArrayCount",
     [] {
         BinaryPlist p;
         p.objects << p.container(0xA, {1}, qint64(1) << 33) << BinaryPlist::integer(5);
         return p.build();
     }},
    {"BinaryZeroReferenceSize",
     [] {
         BinaryPlist p;
         p.objects << BinaryPlist::integer(5);
         QByteArray bytes = p.build();
         bytes[bytes.size() - 25] = 0;
         return bytes;
     }},
    {"TooLarge", [] { return QByteArray(PropertyList::maximumSize + 1, ' '); }},
    {"Empty", [] { return QByteArray(); }},
};

class HostilePropertyListTest : public ::testing::TestWithParam<HostileCase>
{
};

TEST_P(HostilePropertyListTest, RefusedWithoutCrashing)
{
    const auto result = PropertyList::read(GetParam().bytes());
    ASSERT_FALSE(result.ok());
    EXPECT_FALSE(result.error().message.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Inputs, HostilePropertyListTest, ::testing::ValuesIn(hostileCases),
                         [](const auto& info) { return std::string(info.param.name); });

// The guards must not refuse what is merely shared or moderately deep.
TEST(PropertyListTest, SharedObjectsAndModerateDepthAreAccepted)
{
    BinaryPlist p;
    // A diamond: two references to the same array are not a cycle.
    p.objects << p.array({1, 1, 2}) << p.array({2}) << BinaryPlist::integer(9);
    auto shared = PropertyList::read(p.build());
    ASSERT_TRUE(shared.ok()) << qPrintable(shared.error().message);
    EXPECT_EQ(shared.value().toList().size(), 3);

    auto deep = PropertyList::read(deepBinary(PropertyList::maximumDepth - 2));
    EXPECT_TRUE(deep.ok());
    auto deepX = PropertyList::read(deepXml("<array>", "</array>", PropertyList::maximumDepth - 2));
    EXPECT_TRUE(deepX.ok());
}

} // namespace
} // namespace vorn::test
