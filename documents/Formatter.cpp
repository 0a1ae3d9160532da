#include "documents/Formatter.h"

#include "documents/DocumentsLog.h"
#include "store/Settings.h"

#include <QRegularExpression>
#include <QTimeZone>

#include <unicode/decimfmt.h>
#include <unicode/locid.h>
#include <unicode/numfmt.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

namespace vorn {

namespace {

icu::UnicodeString toIcu(const QString& text)
{
    return icu::UnicodeString(reinterpret_cast<const UChar*>(text.utf16()), int32_t(text.size()));
}

QString fromIcu(const icu::UnicodeString& text)
{
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

QString localeFromEnvironment(const char* category)
{
    for (const char* name : {"LC_ALL", category, "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (!value.isEmpty())
            return QString::fromLatin1(value);
    }
    return {};
}

} // namespace

struct Formatter::Cache
{
    QString amountLocale;
    std::unique_ptr<icu::NumberFormat> amount;
    QString decimalLocale;
    std::unique_ptr<icu::NumberFormat> decimal;
    QString dateKey;
    std::unique_ptr<icu::SimpleDateFormat> date;
    bool dateFailed = false;
};

Formatter::Formatter(const Settings& settings) : m_settings(settings), m_cache(std::make_unique<Cache>()) {}

Formatter::~Formatter() = default;

QString Formatter::processLocaleName(Category category)
{
    QString name = localeFromEnvironment(category == Category::Numeric ? "LC_NUMERIC" : "LC_TIME");
    // "de_DE.UTF-8@euro" -> "de_DE"
    const qsizetype cut = name.indexOf(QRegularExpression(QStringLiteral("[.@]")));
    if (cut >= 0)
        name.truncate(cut);
    if (name.isEmpty() || name == QLatin1String("C") || name == QLatin1String("POSIX"))
        return QStringLiteral("en_US");
    return name;
}

QString Formatter::datePatternFromTemplate(QString pattern)
{
    static const std::pair<QLatin1String, QLatin1String> tokens[] = {
        {QLatin1String("%MONTHSHORT%"), QLatin1String("MM")},
        {QLatin1String("%MONTHLONG%"), QLatin1String("MMMM")},
        {QLatin1String("%DAY%"), QLatin1String("dd")},
        {QLatin1String("%YEARSHORT%"), QLatin1String("YY")},
        {QLatin1String("%YEARLONG%"), QLatin1String("YYYY")},
    };
    for (const auto& [token, letters] : tokens)
        pattern.replace(token, letters);
    return pattern;
}

QString Formatter::getPatternDateStringFromDate(const QDateTime& date) const
{
    const QString pattern =
        datePatternFromTemplate(m_settings.stringValue(QStringLiteral("prefsDatePattern")));
    // Without a pattern the formatter has nothing to write.
    if (pattern.isEmpty() || !date.isValid())
        return {};
    const QString locale = processLocaleName(Category::Time);
    const QString zone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    const QString key = locale + QLatin1Char('\n') + zone + QLatin1Char('\n') + pattern;
    if (key != m_cache->dateKey) {
        m_cache->dateKey = key;
        m_cache->date.reset();
        UErrorCode status = U_ZERO_ERROR;
        auto format = std::make_unique<icu::SimpleDateFormat>(
            toIcu(pattern), icu::Locale(locale.toLatin1().constData()), status);
        m_cache->dateFailed = U_FAILURE(status);
        if (m_cache->dateFailed) {
            qCWarning(lcDocuments) << "The date pattern" << pattern
                                   << "is not usable:" << u_errorName(status);
        } else {
            if (!zone.isEmpty())
                format->adoptTimeZone(icu::TimeZone::createTimeZone(toIcu(zone)));
            m_cache->date = std::move(format);
        }
    }
    if (!m_cache->date)
        return {};
    icu::UnicodeString out;
    m_cache->date->format(UDate(date.toMSecsSinceEpoch()), out);
    return fromIcu(out);
}

QString Formatter::stringFromNumber(double value) const
{
    const QString locale = processLocaleName(Category::Numeric);
    if (!m_cache->amount || locale != m_cache->amountLocale) {
        UErrorCode status = U_ZERO_ERROR;
        m_cache->amount.reset(icu::NumberFormat::createInstance(icu::Locale(locale.toLatin1().constData()),
                                                                UNUM_DECIMAL, status));
        if (U_FAILURE(status) || !m_cache->amount) {
            m_cache->amount.reset();
            return QString::number(value, 'f', 2);
        }
        m_cache->amount->setMinimumFractionDigits(2);
        m_cache->amount->setMaximumFractionDigits(2);
        m_cache->amountLocale = locale;
    }
    icu::UnicodeString out;
    m_cache->amount->format(value, out);
    return fromIcu(out);
}

QString Formatter::decimalStringFromNumber(double value) const
{
    const QString locale = processLocaleName(Category::Numeric);
    if (!m_cache->decimal || locale != m_cache->decimalLocale) {
        UErrorCode status = U_ZERO_ERROR;
        m_cache->decimal.reset(icu::NumberFormat::createInstance(icu::Locale(locale.toLatin1().constData()),
                                                                 UNUM_DECIMAL, status));
        if (U_FAILURE(status) || !m_cache->decimal) {
            m_cache->decimal.reset();
            return QString::number(value);
        }
        m_cache->decimalLocale = locale;
    }
    icu::UnicodeString out;
    m_cache->decimal->format(value, out);
    return fromIcu(out);
}

QString Formatter::htmlLineBreakStringFromString(const QString& text)
{
    QString result = text;
    result.replace(QLatin1Char('\n'), QLatin1String("<br />"));
    return result;
}

} // namespace vorn
