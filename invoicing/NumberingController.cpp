#include "invoicing/NumberingController.h"

#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/Settings.h"

namespace vorn {

namespace {

void replaceWhileFound(QString& text, const QString& placeholder, const QString& value)
{
    while (text.contains(placeholder, Qt::CaseSensitive))
        text.replace(placeholder, value, Qt::CaseSensitive);
}

} // namespace

NumberingController::NumberingController(AppState& state, QObject* parent) : QObject(parent), m_state(state)
{
}

QString NumberingController::expandPattern(const QString& pattern, qint64 count, const QDate& date)
{
    QString text = pattern;
    replaceWhileFound(text, QStringLiteral("%COUNT%"), QString::number(count));
    replaceWhileFound(text, QStringLiteral("%YEAR%"), QString::number(date.year()));
    replaceWhileFound(text, QStringLiteral("%MONTH%"), QString::number(date.month()));
    replaceWhileFound(text, QStringLiteral("%DAY%"), QString::number(date.day()));
    return text;
}

QString NumberingController::expand(const QString& patternKey, qint64 count) const
{
    // One moment for year, month and day, in the user's own time zone.
    const QDate today = m_state.clock().now().toLocalTime().date();
    return expandPattern(m_state.settings().stringValue(patternKey), count, today);
}

QString NumberingController::invoiceNumberString() const
{
    const qint64 count =
        m_state.settings().intValue(key::invCount) + qint64(m_state.invoiceCountForNumber) + 1;
    return expand(key::invPattern, count);
}

QString NumberingController::convertedInvoiceNumberString() const
{
    const qint64 count = m_state.settings().intValue(key::invCount) + qint64(m_state.invoiceCountForNumber);
    return expand(key::invPattern, count);
}

QString NumberingController::quoteNumberString() const
{
    const qint64 count = m_state.settings().intValue(key::quotCount) + qint64(m_state.quoteCount) + 1;
    return expand(key::quotPattern, count);
}

QString NumberingController::clientNumberString() const
{
    const qint64 count =
        m_state.settings().intValue(key::clientCount) + qint64(m_state.addressesController().count()) + 1;
    return expand(key::clientPattern, count);
}

} // namespace vorn
