#include "store/Settings.h"
#include "store/PropertyList.h"
#include "tests/store/StoreTestSupport.h"

#include <QDir>

namespace vorn::test {
namespace {

class SettingsTest : public ::testing::Test
{
protected:
    QString file() const { return m_dir.filePath(QStringLiteral("config/com.tandrelo.Orvandel.plist")); }
    void writeFile(const QByteArray& bytes)
    {
        QDir().mkpath(QFileInfo(file()).absolutePath());
        QFile f(file());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }
    QTemporaryDir m_dir;
};

TEST_F(SettingsTest, MissingFileIsEmptyAndIsNotCreatedUntilSomethingChanges)
{
    Settings settings(file());
    ASSERT_TRUE(settings.load());
    EXPECT_TRUE(settings.dictionaryRepresentation().isEmpty());
    EXPECT_FALSE(settings.value(QStringLiteral("locInvoice")).isValid());
    EXPECT_EQ(settings.stringValue(QStringLiteral("locInvoice")), QString());
    EXPECT_FALSE(settings.boolValue(QStringLiteral("firstStartEverDone")));
    EXPECT_EQ(settings.intValue(QStringLiteral("invCount")), 0);
    ASSERT_TRUE(settings.synchronize());
    EXPECT_FALSE(QFile::exists(file()));
}

TEST_F(SettingsTest, AllSixTypesRoundTripThroughTheFile)
{
    QByteArray logo;
    for (int i = 0; i < 300; ++i)
        logo.append(char(i * 7));
    const QDateTime checked = utc(2026, 11, 21, 9, 52, 13);
    const QDateTime old = utc(1999, 12, 31, 23, 59, 59);
    {
        Settings settings(file());
        ASSERT_TRUE(settings.load());
        settings.setValue(QStringLiteral("tax1Enabled"), true);
        settings.setValue(QStringLiteral("tax2Enabled"), false);
        settings.setValue(QStringLiteral("invCount"), qint64(1000));
        settings.setValue(QStringLiteral("negative"), qint64(-42));
        settings.setValue(QStringLiteral("large"), qint64(1) << 40);
        settings.setValue(QStringLiteral("tax1Rate"), 0.07);
        settings.setValue(QStringLiteral("tax2Rate"), 0.19f);
        settings.setValue(QStringLiteral("locInvoice"),
                          QStringLiteral("Rechnung № 1 & <b>\"ü\"</b>\nzweite Zeile"));
        settings.setValue(QStringLiteral("prefsName"), QString(""));
        settings.setValue(QStringLiteral("prefsLogo"), logo);
        settings.setValue(QStringLiteral("ZRUpdateChecker:LastCheckDate"), checked);
        settings.setValue(QStringLiteral("oldDate"), old);
        ASSERT_TRUE(settings.synchronize());
    }
    Settings settings(file());
    ASSERT_TRUE(settings.load());
    EXPECT_FALSE(settings.isReadOnly());
    EXPECT_TRUE(settings.boolValue(QStringLiteral("tax1Enabled")));
    EXPECT_TRUE(settings.hasValue(QStringLiteral("tax2Enabled")));
    EXPECT_FALSE(settings.boolValue(QStringLiteral("tax2Enabled")));
    EXPECT_EQ(settings.intValue(QStringLiteral("invCount")), 1000);
    EXPECT_EQ(settings.intValue(QStringLiteral("negative")), -42);
    EXPECT_EQ(settings.intValue(QStringLiteral("large")), qint64(1) << 40);
    EXPECT_EQ(settings.doubleValue(QStringLiteral("tax1Rate")), 0.07);
    EXPECT_EQ(settings.floatValue(QStringLiteral("tax1Rate")), 0.07f);
    EXPECT_EQ(settings.floatValue(QStringLiteral("tax2Rate")), 0.19f);
    EXPECT_EQ(settings.stringValue(QStringLiteral("locInvoice")),
              QStringLiteral("Rechnung № 1 & <b>\"ü\"</b>\nzweite Zeile"));
    EXPECT_TRUE(settings.hasValue(QStringLiteral("prefsName")));
    EXPECT_EQ(settings.stringValue(QStringLiteral("prefsName")), QString(""));
    EXPECT_EQ(settings.dataValue(QStringLiteral("prefsLogo")), logo);
    EXPECT_EQ(settings.dateValue(QStringLiteral("ZRUpdateChecker:LastCheckDate")), checked);
    EXPECT_EQ(settings.dateValue(QStringLiteral("oldDate")), old);
    // Each kind comes back as its own type, not as text.
    const QVariantMap all = settings.dictionaryRepresentation();
    EXPECT_EQ(all.value(QStringLiteral("tax1Enabled")).typeId(), QMetaType::Bool);
    EXPECT_EQ(all.value(QStringLiteral("invCount")).typeId(), QMetaType::LongLong);
    EXPECT_EQ(all.value(QStringLiteral("tax1Rate")).typeId(), QMetaType::Double);
    EXPECT_EQ(all.value(QStringLiteral("prefsLogo")).typeId(), QMetaType::QByteArray);
    EXPECT_EQ(all.value(QStringLiteral("oldDate")).typeId(), QMetaType::QDateTime);
    EXPECT_EQ(all.size(), 12);
}

TEST_F(SettingsTest, RegisteredDefaultsAnswerReadsButAreNeverWritten)
{
    {
        Settings settings(file());
        ASSERT_TRUE(settings.load());
        settings.registerDefaults({{QStringLiteral("locInvoice"), QStringLiteral("Invoice")},
                                   {QStringLiteral("tax1Rate"), 0.07},
                                   {QStringLiteral("invHaveNumber"), true}});
        EXPECT_EQ(settings.stringValue(QStringLiteral("locInvoice")), QStringLiteral("Invoice"));
        EXPECT_TRUE(settings.boolValue(QStringLiteral("invHaveNumber")));
        EXPECT_FALSE(settings.hasValue(QStringLiteral("locInvoice")));
        // A real value equal to the fallback is still a real value.
        settings.setValue(QStringLiteral("invHaveNumber"), true);
        settings.setValue(QStringLiteral("locQuote"), QStringLiteral("Quote"));
        ASSERT_TRUE(settings.synchronize());
        EXPECT_FALSE(settings.dictionaryRepresentation().contains(QStringLiteral("locInvoice")));
    }
    const QByteArray text = fileBytes(file());
    EXPECT_FALSE(text.contains("locInvoice"));
    EXPECT_FALSE(text.contains("tax1Rate"));
    EXPECT_TRUE(text.contains("invHaveNumber"));
    Settings again(file());
    ASSERT_TRUE(again.load());
    EXPECT_FALSE(again.value(QStringLiteral("locInvoice")).isValid());
    EXPECT_TRUE(again.boolValue(QStringLiteral("invHaveNumber")));
}

TEST_F(SettingsTest, RemovingAValueFallsBackAndIsWritten)
{
    Settings settings(file());
    ASSERT_TRUE(settings.load());
    settings.registerDefaults({{QStringLiteral("locInvoice"), QStringLiteral("Invoice")}});
    settings.setValue(QStringLiteral("locInvoice"), QStringLiteral("Bill"));
    ASSERT_TRUE(settings.synchronize());
    settings.removeValue(QStringLiteral("locInvoice"));
    EXPECT_EQ(settings.stringValue(QStringLiteral("locInvoice")), QStringLiteral("Invoice"));
    ASSERT_TRUE(settings.synchronize());
    EXPECT_FALSE(fileBytes(file()).contains("locInvoice"));
}

TEST_F(SettingsTest, AFailedWriteIsReportedAndTheValuesStay)
{
    // A file where the settings folder should be: nothing can be written.
    QFile blocker(QFileInfo(file()).absolutePath());
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    Settings settings(file());
    ASSERT_TRUE(settings.load());
    settings.setValue(QStringLiteral("locInvoice"), QStringLiteral("Invoice"));
    const Status saved = settings.synchronize();
    ASSERT_FALSE(saved.ok());
    EXPECT_EQ(saved.error().code, ErrorCode::SettingsWriteFailed);
    EXPECT_EQ(settings.stringValue(QStringLiteral("locInvoice")), QStringLiteral("Invoice"));
    EXPECT_TRUE(QFileInfo(QFileInfo(file()).absolutePath()).isFile());
}

QByteArray nested(int depth)
{
    QByteArray xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict><key>a</key>";
    xml += QByteArray("<array>").repeated(depth);
    xml += QByteArray("</array>").repeated(depth);
    xml += "</dict></plist>\n";
    return xml;
}

struct BadSettingsCase
{
    const char* name;
    QByteArray (*bytes)();
};

const BadSettingsCase badSettingsCases[] = {
    {"Garbage", [] { return QByteArray("\x89PNG\r\n\x1a\n not settings at all \xff\xfe", 26); }},
    {"TruncatedXml",
     [] {
         const QByteArray full =
             PropertyList::toXml(QVariantMap{{QStringLiteral("locInvoice"), QStringLiteral("Invoice")},
                                             {QStringLiteral("invCount"), qint64(1000)}});
         return full.left(full.size() / 2);
     }},
    {"RootIsArray",
     [] {
         return PropertyList::toXml(QVariantList{QStringLiteral("a"), qint64(1)});
     }},
    {"RootIsString", [] { return PropertyList::toXml(QStringLiteral("just text")); }},
    {"DeepNesting", [] { return nested(100000); }},
    {"TruncatedBinary",
     [] {
         const QByteArray full =
             PropertyList::toBinary(QVariantMap{{QStringLiteral("locInvoice"), QStringLiteral("Invoice")}});
         return full.left(full.size() - 10);
     }},
    {"Empty", [] { return QByteArray(); }},
};

class BadSettingsTest : public SettingsTest, public ::testing::WithParamInterface<BadSettingsCase>
{
};

TEST_P(BadSettingsTest, UnreadableFileIsReportedAndNeverOverwritten)
{
    const QByteArray bytes = GetParam().bytes();
    writeFile(bytes);
    {
        Settings settings(file());
        const Status loaded = settings.load();
        ASSERT_FALSE(loaded.ok());
        EXPECT_EQ(loaded.error().code, ErrorCode::SettingsUnreadable);
        EXPECT_TRUE(loaded.error().message.contains(file())) << qPrintable(loaded.error().message);
        EXPECT_TRUE(settings.isReadOnly());

        // The settings still work for this session.
        settings.setValue(QStringLiteral("locInvoice"), QStringLiteral("Invoice"));
        settings.setValue(QStringLiteral("invCount"), qint64(7));
        EXPECT_EQ(settings.stringValue(QStringLiteral("locInvoice")), QStringLiteral("Invoice"));
        EXPECT_EQ(settings.intValue(QStringLiteral("invCount")), 7);
        const Status saved = settings.synchronize();
        EXPECT_FALSE(saved.ok());
        EXPECT_EQ(saved.error().code, ErrorCode::SettingsWriteFailed);
        EXPECT_EQ(fileBytes(file()), bytes);
    }
    EXPECT_EQ(fileBytes(file()), bytes) << "written when the settings went away";
    EXPECT_EQ(QDir(QFileInfo(file()).absolutePath()).entryList(QDir::Files).size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Files, BadSettingsTest, ::testing::ValuesIn(badSettingsCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(SettingsTest, TextValuesWrittenByHandReadAsTheirType)
{
    writeFile("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
              "<key>a</key><string>YES</string><key>b</key><string>0</string>"
              "<key>c</key><string> 12 </string><key>d</key><string>0.19</string>"
              "<key>e</key><integer>3</integer><key>f</key><real>2.5</real>"
              "</dict></plist>");
    Settings settings(file());
    ASSERT_TRUE(settings.load());
    EXPECT_TRUE(settings.boolValue(QStringLiteral("a")));
    EXPECT_FALSE(settings.boolValue(QStringLiteral("b")));
    EXPECT_EQ(settings.intValue(QStringLiteral("c")), 12);
    EXPECT_EQ(settings.floatValue(QStringLiteral("d")), 0.19f);
    EXPECT_EQ(settings.stringValue(QStringLiteral("e")), QStringLiteral("3"));
    EXPECT_EQ(settings.intValue(QStringLiteral("f")), 2);
    EXPECT_TRUE(settings.dataValue(QStringLiteral("a")).isEmpty());
    EXPECT_FALSE(settings.dateValue(QStringLiteral("a")).isValid());
}

} // namespace
} // namespace vorn::test
