#include "output/Formatter.h"
#include "store/Settings.h"

#include <QTemporaryDir>
#include <QTimeZone>

#include <gtest/gtest.h>

namespace vorn {
namespace {

// Sets LC_ALL for the lifetime of a case and restores it afterwards.
class LocaleScope
{
public:
    explicit LocaleScope(const char* locale)
        : m_saved(qgetenv("LC_ALL")), m_had(qEnvironmentVariableIsSet("LC_ALL"))
    {
        qputenv("LC_ALL", locale);
    }
    ~LocaleScope()
    {
        if (m_had)
            qputenv("LC_ALL", m_saved);
        else
            qunsetenv("LC_ALL");
    }

private:
    QByteArray m_saved;
    bool m_had;
};

struct NumberCase
{
    const char* locale;
    double value;
    const char* amount;  // stringFromNumber
    const char* decimal; // decimalStringFromNumber
};

class FormatterNumbers : public ::testing::TestWithParam<NumberCase>
{
};

TEST_P(FormatterNumbers, AmountsHaveTwoDigitsAndPlainNumbersUpToThree)
{
    const NumberCase& c = GetParam();
    LocaleScope locale(c.locale);
    QTemporaryDir dir;
    Settings settings(dir.filePath(QStringLiteral("s.plist")));
    Formatter f(settings);
    EXPECT_EQ(f.stringFromNumber(c.value), QString::fromUtf8(c.amount)) << c.locale << " " << c.value;
    EXPECT_EQ(f.decimalStringFromNumber(c.value), QString::fromUtf8(c.decimal)) << c.locale << " " << c.value;
}

// Values stored as single-precision floats reach the formatters widened to
// double, as the document's amounts do.
INSTANTIATE_TEST_SUITE_P(
    TwoLocales, FormatterNumbers,
    ::testing::Values(
        NumberCase{"en_US.UTF-8", 0, "0.00", "0"}, NumberCase{"en_US.UTF-8", 7, "7.00", "7"},
        NumberCase{"en_US.UTF-8", 7.5, "7.50", "7.5"}, NumberCase{"en_US.UTF-8", double(7.1f), "7.10", "7.1"},
        NumberCase{"en_US.UTF-8", double(0.19f), "0.19", "0.19"},
        NumberCase{"en_US.UTF-8", double(34.65f), "34.65", "34.65"},
        NumberCase{"en_US.UTF-8", 1234.5, "1,234.50", "1,234.5"},
        NumberCase{"en_US.UTF-8", 1234567.891, "1,234,567.89", "1,234,567.891"},
        NumberCase{"en_US.UTF-8", 2.0004, "2.00", "2"},
        // half-even on exact halves
        NumberCase{"en_US.UTF-8", 0.125, "0.12", "0.125"}, NumberCase{"en_US.UTF-8", 0.375, "0.38", "0.375"},
        NumberCase{"en_US.UTF-8", 1.0625, "1.06", "1.062"}, NumberCase{"en_US.UTF-8", -50, "-50.00", "-50"},
        NumberCase{"en_US.UTF-8", double(3351.27f), "3,351.27", "3,351.27"},
        NumberCase{"de_DE.UTF-8", 0, "0,00", "0"}, NumberCase{"de_DE.UTF-8", 7.5, "7,50", "7,5"},
        NumberCase{"de_DE.UTF-8", double(7.1f), "7,10", "7,1"},
        NumberCase{"de_DE.UTF-8", 1234.5, "1.234,50", "1.234,5"},
        NumberCase{"de_DE.UTF-8", 1234567.891, "1.234.567,89", "1.234.567,891"},
        NumberCase{"de_DE.UTF-8", 0.125, "0,12", "0,125"}, NumberCase{"de_DE.UTF-8", -50, "-50,00", "-50"},
        NumberCase{"de_DE", double(34.65f), "34,65", "34,65"}));

struct DateCase
{
    const char* locale;
    const char* pattern;
    const char* utc; // ISO date and time, UTC
    const char* expected;
};

class FormatterDates : public ::testing::TestWithParam<DateCase>
{
};

TEST_P(FormatterDates, UsesThePatternOfTheSettings)
{
    const DateCase& c = GetParam();
    LocaleScope locale(c.locale);
    QTemporaryDir dir;
    Settings settings(dir.filePath(QStringLiteral("s.plist")));
    settings.setValue(QStringLiteral("prefsDatePattern"), QString::fromUtf8(c.pattern));
    Formatter f(settings);
    const QDateTime date =
        QDateTime::fromString(QLatin1String(c.utc), Qt::ISODate).toTimeZone(QTimeZone::utc());
    EXPECT_EQ(f.getPatternDateStringFromDate(date), QString::fromUtf8(c.expected))
        << c.locale << " " << c.pattern;
}

// The tests run in Europe/Berlin.
INSTANTIATE_TEST_SUITE_P(
    TwoLocales, FormatterDates,
    ::testing::Values(
        DateCase{"en_US.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2025-03-05T10:00:00Z", "05.03.2025"},
        DateCase{"en_US.UTF-8", "%MONTHSHORT%/%DAY%/%YEARLONG%", "2025-03-05T10:00:00Z", "03/05/2025"},
        DateCase{"en_US.UTF-8", "%MONTHLONG% %DAY%, %YEARLONG%", "2025-03-05T10:00:00Z", "March 05, 2025"},
        DateCase{"en_US.UTF-8", "%DAY%-%MONTHSHORT%-%YEARSHORT%", "2025-03-05T10:00:00Z", "05-03-25"},
        // the local day, not the UTC one
        DateCase{"en_US.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2025-03-04T23:30:00Z", "05.03.2025"},
        // a token used twice, and text the formatter must see quoted
        DateCase{"en_US.UTF-8", "%DAY%/%DAY% 'of' %YEARLONG%", "2025-03-05T10:00:00Z", "05/05 of 2025"},
        // the week-numbering year: US weeks start on Sunday, one day makes a week
        DateCase{"en_US.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2024-12-29T12:00:00Z", "29.12.2025"},
        DateCase{"en_US.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2021-01-01T12:00:00Z", "01.01.2021"},
        DateCase{"de_DE.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2025-03-05T10:00:00Z", "05.03.2025"},
        DateCase{"de_DE.UTF-8", "%DAY%. %MONTHLONG% %YEARLONG%", "2025-03-05T10:00:00Z", "05. März 2025"},
        // ISO weeks: 1 January 2021 belongs to the last week of 2020
        DateCase{"de_DE.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2021-01-01T12:00:00Z", "01.01.2020"},
        DateCase{"de_DE.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2024-12-29T12:00:00Z", "29.12.2024"},
        DateCase{"de_DE.UTF-8", "%DAY%.%MONTHSHORT%.%YEARLONG%", "2024-12-30T12:00:00Z", "30.12.2025"},
        // no pattern: nothing to write
        DateCase{"de_DE.UTF-8", "", "2025-03-05T10:00:00Z", ""}));

TEST(Formatter, FollowsChangesOfThePatternAndTheLocaleBetweenCalls)
{
    QTemporaryDir dir;
    Settings settings(dir.filePath(QStringLiteral("s.plist")));
    Formatter f(settings);
    const QDateTime date(QDate(2025, 3, 5), QTime(10, 0), QTimeZone::utc());
    {
        LocaleScope locale("en_US.UTF-8");
        settings.setValue(QStringLiteral("prefsDatePattern"),
                          QStringLiteral("%DAY%.%MONTHSHORT%.%YEARLONG%"));
        EXPECT_EQ(f.getPatternDateStringFromDate(date), QStringLiteral("05.03.2025"));
        settings.setValue(QStringLiteral("prefsDatePattern"),
                          QStringLiteral("%YEARLONG%-%MONTHSHORT%-%DAY%"));
        EXPECT_EQ(f.getPatternDateStringFromDate(date), QStringLiteral("2025-03-05"));
        EXPECT_EQ(f.stringFromNumber(1234.5), QStringLiteral("1,234.50"));
    }
    {
        LocaleScope locale("de_DE.UTF-8");
        EXPECT_EQ(f.stringFromNumber(1234.5), QStringLiteral("1.234,50"));
        EXPECT_EQ(f.decimalStringFromNumber(1234.5), QStringLiteral("1.234,5"));
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

struct LineBreakCase
{
    const char* input;
    const char* expected;
};

class FormatterLineBreaks : public ::testing::TestWithParam<LineBreakCase>
{
};

TEST_P(FormatterLineBreaks, EveryLineFeedBecomesABreak)
{
    EXPECT_EQ(Formatter::htmlLineBreakStringFromString(QString::fromUtf8(GetParam().input)),
              QString::fromUtf8(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(Texts, FormatterLineBreaks,
                         ::testing::Values(LineBreakCase{"", ""}, LineBreakCase{"one line", "one line"},
                                           LineBreakCase{"a\nb", "a<br />b"},
                                           LineBreakCase{"a\r\nb", "a\r<br />b"},
                                           LineBreakCase{"\n\nx\n", "<br /><br />x<br />"}));

} // namespace
} // namespace vorn
