#include "store/Settings.h"
#include "store/PropertyList.h"
#include "tests/store/StoreTestSupport.h"

namespace vorn::test {
namespace {

class SettingsTest : public ::testing::Test
{
protected:
    QString file() const { return m_dir.filePath(QStringLiteral("config/com.tandrelo.Orvandel.plist")); }
    // What the file holds, read by settings of their own.
    QVariantMap stored() const
    {
        Settings settings(file());
        EXPECT_TRUE(settings.load());
        return settings.dictionaryRepresentation();
    }
    QTemporaryDir m_dir;
};

TEST_F(SettingsTest, EveryTypeRoundTripsThroughTheFileAsItself)
{
    QByteArray logo;
    for (int i = 0; i < 300; ++i)
        logo.append(char(i * 7));
    const QVariantMap values{{"tax1Enabled", true},
                             {"tax2Enabled", false},
                             {"invCount", qint64(1000)},
                             {"negative", qint64(-42)},
                             {"large", qint64(1) << 40},
                             {"tax1Rate", 0.07},
                             {"locInvoice", QString("Rechnung № 1 & <b>\"ü\"</b>\nzweite Zeile")},
                             {"prefsName", QString("")},
                             {"prefsLogo", logo},
                             {"ZRUpdateChecker:LastCheckDate", utc(2026, 11, 21, 9, 52, 13)},
                             {"oldDate", utc(1999, 12, 31, 23, 59, 59)}};
    {
        Settings settings(file());
        ASSERT_TRUE(settings.load());
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            settings.setValue(it.key(), it.value());
        settings.setValue("tax2Rate", 0.19f);
        ASSERT_TRUE(settings.synchronize());
    }
    Settings settings(file());
    ASSERT_TRUE(settings.load());
    EXPECT_FALSE(settings.isReadOnly());
    const QVariantMap all = settings.dictionaryRepresentation();
    EXPECT_EQ(all.size(), values.size() + 1);
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        EXPECT_EQ(all.value(it.key()), it.value()) << qPrintable(it.key());
        EXPECT_EQ(all.value(it.key()).typeId(), it.value().typeId()) << qPrintable(it.key());
    }
    EXPECT_EQ(settings.floatValue("tax1Rate"), 0.07f);
    EXPECT_EQ(settings.floatValue("tax2Rate"), 0.19f);
}

// A missing file reads as empty and is not made until something changes.
TEST_F(SettingsTest, RegisteredDefaultsAnswerReadsButAreNeverWritten)
{
    {
        Settings settings(file());
        ASSERT_TRUE(settings.load());
        EXPECT_TRUE(settings.dictionaryRepresentation().isEmpty());
        settings.registerDefaults(
            {{"locInvoice", "Invoice"}, {"locQuote", "Quote"}, {"tax1Rate", 0.07}, {"invHaveNumber", true}});
        EXPECT_EQ(settings.stringValue("locInvoice"), "Invoice");
        EXPECT_TRUE(settings.boolValue("invHaveNumber"));
        EXPECT_FALSE(settings.hasValue("locInvoice"));
        ASSERT_TRUE(settings.synchronize());
        EXPECT_FALSE(QFile::exists(file()));
        // A real value equal to the fallback is still a real value.
        settings.setValue("invHaveNumber", true);
        // A removed value falls back again, and leaves the file.
        settings.setValue("locQuote", "Offer");
        ASSERT_TRUE(settings.synchronize());
        settings.removeValue("locQuote");
        EXPECT_EQ(settings.stringValue("locQuote"), "Quote");
        ASSERT_TRUE(settings.synchronize());
        EXPECT_EQ(settings.dictionaryRepresentation().keys(), QStringList{"invHaveNumber"});
    }
    EXPECT_EQ(stored().keys(), QStringList{"invHaveNumber"});
}

// A settings file that cannot be read, or a file where the settings folder
// should be: reported, and the settings work for the session without ever
// writing over what is there.
struct BadSettingsCase
{
    const char* name;
    QByteArray bytes;
    bool inPlaceOfTheFolder = false;
};

QByteArray half(const QByteArray& bytes)
{
    return bytes.left(bytes.size() / 2);
}

const BadSettingsCase badSettingsCases[] = {
    {"Garbage", QByteArray("\x89PNG\r\n\x1a\n not settings at all \xff\xfe", 26)},
    {"TruncatedXml", half(PropertyList::toXml(QVariantMap{{"locInvoice", "Invoice"}, {"invCount", 1000}}))},
    {"RootIsArray", PropertyList::toXml(QVariantList{"a", qint64(1)})},
    {"RootIsString", PropertyList::toXml(QString("just text"))},
    {"TruncatedBinary", half(PropertyList::toBinary(QVariantMap{{"locInvoice", "Invoice"}}))},
    {"Empty", QByteArray()},
    {"FileInPlaceOfTheFolder", "not a folder", true},
};

class BadSettingsTest : public SettingsTest, public ::testing::WithParamInterface<BadSettingsCase>
{
};

TEST_P(BadSettingsTest, IsReportedAndNeverOverwritten)
{
    const BadSettingsCase& row = GetParam();
    const QString bad = row.inPlaceOfTheFolder ? QFileInfo(file()).absolutePath() : file();
    writeFile(bad, row.bytes);
    {
        Settings settings(file());
        const Status loaded = settings.load();
        EXPECT_EQ(loaded.ok(), row.inPlaceOfTheFolder);
        if (!loaded) {
            EXPECT_EQ(loaded.error().code, ErrorCode::SettingsUnreadable);
            EXPECT_TRUE(loaded.error().message.contains(file())) << qPrintable(loaded.error().message);
            EXPECT_TRUE(settings.isReadOnly());
        }
        settings.setValue("invCount", qint64(7));
        EXPECT_EQ(settings.intValue("invCount"), 7);
        const Status saved = settings.synchronize();
        EXPECT_FALSE(saved.ok());
        EXPECT_EQ(saved.error().code, ErrorCode::SettingsWriteFailed);
    }
    EXPECT_EQ(fileBytes(bad), row.bytes) << "written when the settings went away";
    EXPECT_EQ(QDir(QFileInfo(bad).absolutePath()).entryList(QDir::Files).size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Files, BadSettingsTest, ::testing::ValuesIn(badSettingsCases),
                         [](const auto& info) { return std::string(info.param.name); });

// A value as the file holds it, read through one typed getter: text written
// by hand reads as the type asked for; a value of the wrong type or out of
// that type's range reads as the key's declared default, is named in the log
// once, and stays in the file as it was.
struct TypedRead
{
    const char* name;
    const char* key;
    const char* stored; // the value's element in the file
    QVariant (*read)(const Settings&, const QString&);
    QVariant expected;
    bool wrongType;
};

template <auto getter> QVariant read(const Settings& s, const QString& k)
{
    return QVariant::fromValue((s.*getter)(k));
}

const QVariantMap declaredDefaults{{"invCount", qint64(1000)},
                                   {"tax1Rate", 0.07},
                                   {"invPattern", "INV-%YEAR%-%COUNT%"},
                                   {"tax1Enabled", true}};

const TypedRead typedReads[] = {
    {"YesText", "a", "<string>YES</string>", read<&Settings::boolValue>, true, false},
    {"ZeroText", "a", "<string>0</string>", read<&Settings::boolValue>, false, false},
    {"IntegerTextWithSpaces", "invCount", "<string> 12 </string>", read<&Settings::intValue>, qint64(12),
     false},
    {"RealText", "tax1Rate", "<string>0.19</string>", read<&Settings::floatValue>, 0.19f, false},
    {"IntegerAsText", "a", "<integer>3</integer>", read<&Settings::stringValue>, "3", false},
    {"RealCutToWhole", "invCount", "<real>2.5</real>", read<&Settings::intValue>, qint64(2), false},
    {"IntegerBeyondAnyCount", "invCount", "<real>1e300</real>", read<&Settings::intValue>, qint64(1000),
     true},
    {"IntegerNotANumber", "invCount", "<string>nan</string>", read<&Settings::intValue>, qint64(1000), true},
    {"IntegerInfinite", "invCount", "<real>-inf</real>", read<&Settings::intValue>, qint64(1000), true},
    {"IntegerAsList", "invCount", "<array><integer>1</integer></array>", read<&Settings::intValue>,
     qint64(1000), true},
    {"RateInfinite", "tax1Rate", "<string>inf</string>", read<&Settings::floatValue>, 0.07f, true},
    {"RateBeyondFloat", "tax1Rate", "<real>1e39</real>", read<&Settings::floatValue>, 0.07f, true},
    {"PatternAsList", "invPattern", "<array><string>INV</string></array>", read<&Settings::stringValue>,
     "INV-%YEAR%-%COUNT%", true},
    {"SwitchAsDictionary", "tax1Enabled", "<dict/>", read<&Settings::boolValue>, true, true},
    {"SwitchAsWord", "tax1Enabled", "<string>maybe</string>", read<&Settings::boolValue>, true, true},
    {"LogoAsText", "prefsLogo", "<string>logo.png</string>", read<&Settings::dataValue>, QByteArray(), true},
    {"DateAsNumber", "lastCheck", "<integer>5</integer>", read<&Settings::dateValue>, QDateTime(), true},
};

class TypedReadTest : public SettingsTest, public ::testing::WithParamInterface<TypedRead>
{
};

int loggedLines = 0;
QString loggedKey;

TEST_P(TypedReadTest, ReadsAsItsTypeOrAsTheDeclaredDefault)
{
    const TypedRead& row = GetParam();
    writeFile(file(),
              QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>") +
                  row.key + "</key>" + row.stored + "</dict></plist>");
    Settings settings(file());
    ASSERT_TRUE(settings.load());
    settings.setDeclaredDefaults(declaredDefaults);
    const QVariant original = settings.value(row.key);

    loggedLines = 0;
    loggedKey = row.key;
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& m) {
            loggedLines += m.contains(loggedKey) ? 1 : 0;
        });
    const QVariant first = row.read(settings, row.key);
    const QVariant second = row.read(settings, row.key);
    qInstallMessageHandler(previous);

    EXPECT_EQ(first, row.expected);
    EXPECT_EQ(first.typeId(), row.expected.typeId());
    EXPECT_EQ(second, first);
    EXPECT_EQ(loggedLines, row.wrongType ? 1 : 0);
    // Saving other settings leaves the value as the file held it.
    settings.setValue("other", true);
    ASSERT_TRUE(settings.synchronize());
    EXPECT_EQ(stored().value(row.key), original);
}

INSTANTIATE_TEST_SUITE_P(Values, TypedReadTest, ::testing::ValuesIn(typedReads),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace vorn::test
