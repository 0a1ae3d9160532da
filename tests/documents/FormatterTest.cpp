#include "documents/Formatter.h"
#include "store/Settings.h"

#include <QDateTime>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace vorn {
namespace {

// Sets LC_ALL for the lifetime of a case and restores it afterwards.
class LocaleScope
{
public:
    explicit LocaleScope(const char* locale)
        : m_saved(qEnvironmentVariableIsSet("LC_ALL") ? std::optional(qgetenv("LC_ALL")) : std::nullopt)
    {
        qputenv("LC_ALL", locale);
    }
    ~LocaleScope() { m_saved ? qputenv("LC_ALL", *m_saved) : qunsetenv("LC_ALL"); }

private:
    std::optional<QByteArray> m_saved;
};

// Values stored as single-precision floats reach the formatters widened to
// double, as the document's amounts do. One formatter serves every row: it
// follows the locale (and, below, the pattern) as they change between calls.
const std::tuple<const char*, double, const char*, const char*> numberCases[] = {
    // locale, value, stringFromNumber, decimalStringFromNumber
    {"en_US.UTF-8", 0, "0.00", "0"},
    {"en_US.UTF-8", 7, "7.00", "7"},
    {"en_US.UTF-8", 7.5, "7.50", "7.5"},
    {"en_US.UTF-8", double(7.1f), "7.10", "7.1"},
    {"en_US.UTF-8", double(0.19f), "0.19", "0.19"},
    {"en_US.UTF-8", double(34.65f), "34.65", "34.65"},
    {"en_US.UTF-8", 1234.5, "1,234.50", "1,234.5"},
    {"en_US.UTF-8", 1234567.891, "1,234,567.89", "1,234,567.891"},
    {"en_US.UTF-8", 2.0004, "2.00", "2"},
    {"en_US.UTF-8", 0.125, "0.12", "0.125"}, // half-even on exact halves
    {"en_US.UTF-8", 0.375, "0.38", "0.375"},
    {"en_US.UTF-8", 1.0625, "1.06", "1.062"},
    {"en_US.UTF-8", -50, "-50.00", "-50"},
    {"en_US.UTF-8", double(3351.27f), "3,351.27", "3,351.27"},
    {"de_DE.UTF-8", 1234.5, "1.234,50", "1.234,5"},
    {"de_DE.UTF-8", 1234567.891, "1.234.567,89", "1.234.567,891"},
    {"de_DE.UTF-8", 0.125, "0,12", "0,125"},
    {"de_DE", double(34.65f), "34,65", "34,65"},
};

TEST(Formatter, AmountsHaveTwoDigitsAndPlainNumbersUpToThree)
{
    QTemporaryDir dir;
    Settings settings(dir.filePath(QStringLiteral("s.plist")));
    Formatter f(settings);
    for (const auto& [name, value, amount, decimal] : numberCases) {
        LocaleScope locale(name);
        EXPECT_EQ(f.stringFromNumber(value), QString::fromUtf8(amount)) << name << " " << value;
        EXPECT_EQ(f.decimalStringFromNumber(value), QString::fromUtf8(decimal)) << name << " " << value;
    }
}

// The tests run in Europe/Berlin.
const std::tuple<const char*, const char*, const char*, const char*> dateCases[] = {
    // locale, pattern, UTC date and time, expected
    {"en_US.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2025-03-05T10:00:00Z", "05.03.2025"},
    {"en_US.UTF-8", "%MONTHSHORT%/%DAY%/%YEARLONG%", "2025-03-05T10:00:00Z", "03/05/2025"},
    {"en_US.UTF-8", "%MONTHLONG% %DAY%, %YEARLONG%", "2025-03-05T10:00:00Z", "March 05, 2025"},
    {"en_US.UTF-8", "%DAY%-%MONTHSHORT%-%YEARSHORT%", "2025-03-05T10:00:00Z", "05-03-25"},
    // the local day, not the UTC one
    {"en_US.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2025-03-04T23:30:00Z", "05.03.2025"},
    // a token used twice, and text the formatter must see quoted
    {"en_US.UTF-8", "%DAY%/%DAY% 'of' %YEARLONG%", "2025-03-05T10:00:00Z", "05/05 of 2025"},
    // the week-numbering year: US weeks start on Sunday, one day makes a week
    {"en_US.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2024-12-29T12:00:00Z", "29.12.2025"},
    {"en_US.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2021-01-01T12:00:00Z", "01.01.2021"},
    // ISO weeks: 1 January 2021 belongs to the last week of 2020 (the same
    // pattern and date as the row before: only the locale changed)
    {"de_DE.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2021-01-01T12:00:00Z", "01.01.2020"},
    {"de_DE.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2024-12-29T12:00:00Z", "29.12.2024"},
    {"de_DE.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2024-12-30T12:00:00Z", "30.12.2025"},
    {"de_DE.UTF-8", "%DAY%. %MONTHLONG% %YEARLONG%", "2025-03-05T10:00:00Z", "05. März 2025"},
    // no pattern: nothing to write
    {"de_DE.UTF-8", "", "2025-03-05T10:00:00Z", ""},
};

TEST(Formatter, DatesUseThePatternOfTheSettings)
{
    QTemporaryDir dir;
    Settings settings(dir.filePath(QStringLiteral("s.plist")));
    Formatter f(settings);
    for (const auto& [name, pattern, date, expected] : dateCases) {
        LocaleScope locale(name);
        settings.setValue(QStringLiteral("prefsDatePattern"), QString::fromUtf8(pattern));
        EXPECT_EQ(f.getPatternDateStringFromDate(QDateTime::fromString(QLatin1String(date), Qt::ISODate)),
                  QString::fromUtf8(expected))
            << name << " " << pattern << " " << date;
    }
}

TEST(Formatter, CAndUnsetLocalesReadAsUsEnglish)
{
    for (const char* name : {"C", "C.UTF-8", "POSIX", ""}) {
        LocaleScope locale(name);
        const QByteArray lang = qgetenv("LANG");
        qunsetenv("LANG");
        EXPECT_EQ(Formatter::processLocaleName(Formatter::Category::Numeric), QStringLiteral("en_US"))
            << name;
        qputenv("LANG", lang);
    }
    LocaleScope locale("fr_CA.UTF-8@euro");
    EXPECT_EQ(Formatter::processLocaleName(Formatter::Category::Time), QStringLiteral("fr_CA"));
}

TEST(Formatter, EveryLineFeedBecomesABreak)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"one line", "one line"},
        {"a\nb", "a<br />b"},
        {"a\r\nb", "a\r<br />b"},
        {"\n\nx\n", "<br /><br />x<br />"},
    };
    for (const auto& [input, expected] : cases)
        EXPECT_EQ(Formatter::htmlLineBreakStringFromString(QString::fromUtf8(input)),
                  QString::fromUtf8(expected));
}

} // namespace
} // namespace vorn
