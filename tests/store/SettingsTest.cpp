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

TEST_F(SettingsTest, MissingFileIsEmptyAndIsNotCreatedUntilSomethingChanges)
{
    Settings settings(file());
    ASSERT_TRUE(settings.load());
    EXPECT_TRUE(settings.dictionaryRepresentation().isEmpty());
    EXPECT_FALSE(settings.value("locInvoice").isValid());
    EXPECT_EQ(settings.stringValue("locInvoice"), QString());
    EXPECT_FALSE(settings.boolValue("firstStartEverDone"));
    EXPECT_EQ(settings.intValue("invCount"), 0);
    ASSERT_TRUE(settings.synchronize());
    EXPECT_FALSE(QFile::exists(file()));
}

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

TEST_F(SettingsTest, RegisteredDefaultsAnswerReadsButAreNeverWritten)
{
    {
        Settings settings(file());
        ASSERT_TRUE(settings.load());
        settings.registerDefaults(
            {{"locInvoice", "Invoice"}, {"locQuote", "Quote"}, {"tax1Rate", 0.07}, {"invHaveNumber", true}});
        EXPECT_EQ(settings.stringValue("locInvoice"), "Invoice");
        EXPECT_TRUE(settings.boolValue("invHaveNumber"));
        EXPECT_FALSE(settings.hasValue("locInvoice"));
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

TEST_F(SettingsTest, AFailedWriteIsReportedAndTheValuesStay)
{
    // A file where the settings folder should be: nothing can be written.
    writeBytes(QFileInfo(file()).absolutePath(), {});
    Settings settings(file());
    ASSERT_TRUE(settings.load());
    settings.setValue("locInvoice", "Invoice");
    const Status saved = settings.synchronize();
    ASSERT_FALSE(saved.ok());
    EXPECT_EQ(saved.error().code, ErrorCode::SettingsWriteFailed);
    EXPECT_EQ(settings.stringValue("locInvoice"), "Invoice");
    EXPECT_TRUE(QFileInfo(QFileInfo(file()).absolutePath()).isFile());
}

struct BadSettingsCase
{
    const char* name;
    QByteArray bytes;
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
    {"DeepNesting", "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>a</key>" +
                        QByteArray("<array>").repeated(100000) + QByteArray("</array>").repeated(100000) +
                        "</dict></plist>"},
    {"TruncatedBinary", half(PropertyList::toBinary(QVariantMap{{"locInvoice", "Invoice"}}))},
    {"Empty", QByteArray()},
};

class BadSettingsTest : public SettingsTest, public ::testing::WithParamInterface<BadSettingsCase>
{
};

TEST_P(BadSettingsTest, UnreadableFileIsReportedAndNeverOverwritten)
{
    const QByteArray& bytes = GetParam().bytes;
    writeBytes(file(), bytes);
    {
        Settings settings(file());
        const Status loaded = settings.load();
        ASSERT_FALSE(loaded.ok());
        EXPECT_EQ(loaded.error().code, ErrorCode::SettingsUnreadable);
        EXPECT_TRUE(loaded.error().message.contains(file())) << qPrintable(loaded.error().message);
        EXPECT_TRUE(settings.isReadOnly());

        // The settings still work for this session.
        settings.setValue("invCount", qint64(7));
        EXPECT_EQ(settings.intValue("invCount"), 7);
        const Status saved = settings.synchronize();
        EXPECT_FALSE(saved.ok());
        EXPECT_EQ(saved.error().code, ErrorCode::SettingsWriteFailed);
    }
    EXPECT_EQ(fileBytes(file()), bytes) << "written when the settings went away";
    EXPECT_EQ(QDir(QFileInfo(file()).absolutePath()).entryList(QDir::Files).size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Files, BadSettingsTest, ::testing::ValuesIn(badSettingsCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(SettingsTest, ValuesWrittenByHandReadAsTheTypeAskedFor)
{
    writeBytes(file(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
                       "<key>a</key><string>YES</string><key>b</key><string>0</string>"
                       "<key>c</key><string> 12 </string><key>d</key><string>0.19</string>"
                       "<key>e</key><integer>3</integer><key>f</key><real>2.5</real>"
                       "</dict></plist>");
    Settings settings(file());
    ASSERT_TRUE(settings.load());
    EXPECT_TRUE(settings.boolValue("a"));
    EXPECT_FALSE(settings.boolValue("b"));
    EXPECT_EQ(settings.intValue("c"), 12);
    EXPECT_EQ(settings.floatValue("d"), 0.19f);
    EXPECT_EQ(settings.stringValue("e"), "3");
    EXPECT_EQ(settings.intValue("f"), 2);
    EXPECT_TRUE(settings.dataValue("a").isEmpty());
    EXPECT_FALSE(settings.dateValue("a").isValid());
}

} // namespace
} // namespace vorn::test
