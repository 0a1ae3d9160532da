#pragma once

#include <QDateTime>
#include <QString>

#include <memory>

namespace vorn {

class Settings;

// The four small formatters every date, amount, rate and multi-line text of
// a document passes through. Numbers and dates follow the process locale
// (LC_ALL, then LC_NUMERIC or LC_TIME, then LANG); the date pattern comes
// from the settings. The ICU formatters behind them are kept between calls
// and rebuilt only when the locale, the pattern or the time zone changed, so
// every call still sees the current settings.
class Formatter
{
public:
    explicit Formatter(const Settings& settings);
    ~Formatter();
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    // The date in the user's pattern ("prefsDatePattern" with its tokens
    // turned into pattern letters). Empty without a pattern or date.
    QString getPatternDateStringFromDate(const QDateTime& date) const;
    // An amount: exactly two fraction digits, locale separators, half-even.
    QString stringFromNumber(double value) const;
    // A plain number: up to three fraction digits, none when whole.
    QString decimalStringFromNumber(double value) const;
    // Every line feed becomes "<br />"; carriage returns stay.
    static QString htmlLineBreakStringFromString(const QString& text);

    // The user's date template with its tokens mapped to Unicode pattern
    // letters: %MONTHSHORT% MM, %MONTHLONG% MMMM, %DAY% dd, %YEARSHORT% YY,
    // %YEARLONG% YYYY (upper case: the week-numbering year).
    static QString datePatternFromTemplate(QString pattern);

    enum class Category
    {
        Numeric,
        Time
    };
    // The ICU locale name of the process for numbers or dates ("de_DE");
    // the C and POSIX locales and an unset environment read as "en_US".
    static QString processLocaleName(Category category);

private:
    struct Cache;
    const Settings& m_settings;
    std::unique_ptr<Cache> m_cache;
};

} // namespace vorn
