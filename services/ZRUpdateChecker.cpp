#include "services/ZRUpdateChecker.h"

#include "services/HttpRequest.h"
#include "services/ServiceUrls.h"
#include "services/ServicesLog.h"
#include "store/Clock.h"
#include "store/FileLocations.h"
#include "store/PropertyList.h"
#include "store/Settings.h"
#include "store/UserInterface.h"

#include <QAbstractNetworkCache>
#include <QMetaMethod>
#include <QNetworkReply>
#include <QTimeZone>

namespace vorn {

namespace {

const QString displayName = QStringLiteral("Vorn");

QDateTime referenceDate()
{
    return QDateTime(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
}

} // namespace

const QString ZRUpdateChecker::checkAtStartupKey = QStringLiteral("ZRUpdateChecker:CheckAtStartup");
const QString ZRUpdateChecker::lastCheckSecondsKey = QStringLiteral("ZRUpdateChecker:LastCheckDate");
const QString ZRUpdateChecker::lastCheckDateKey = QStringLiteral("LastCheckDate");
const QString ZRUpdateChecker::firstUpdateCheckKey = QStringLiteral("firstUpdateCheck");

ZRUpdateChecker::ZRUpdateChecker(Settings& settings, UserInterface& ui, const Clock& clock, QObject* parent)
    : QObject(parent), m_settings(settings), m_ui(ui), m_clock(clock), m_version(QStringLiteral(VORN_VERSION))
{
    qRegisterMetaType<CheckResult>();
}

double ZRUpdateChecker::referenceSeconds(const QDateTime& date)
{
    return double(referenceDate().msecsTo(date)) / 1000.0;
}

bool ZRUpdateChecker::checkAtStartup() const
{
    return m_settings.boolValue(checkAtStartupKey);
}

void ZRUpdateChecker::storeCheckAtStartup(Settings& settings, const QDateTime& now, bool enabled)
{
    settings.setValue(checkAtStartupKey, enabled);
    settings.setValue(lastCheckSecondsKey, referenceSeconds(now));
}

void ZRUpdateChecker::setCheckAtStartup(bool enabled)
{
    storeCheckAtStartup(m_settings, m_clock.now(), enabled);
    if (Status s = m_settings.synchronize(); !s)
        qCWarning(lcServices).noquote() << s.error().fullText();
    Q_EMIT checkAtStartupChanged(enabled);
}

QDateTime ZRUpdateChecker::lastCheck() const
{
    const QVariant stored = m_settings.value(lastCheckSecondsKey);
    if (stored.typeId() == QMetaType::QDateTime)
        return stored.toDateTime();
    bool ok = false;
    const double seconds = stored.toDouble(&ok);
    if (!stored.isValid() || !ok || !qIsFinite(seconds))
        return {};
    return referenceDate().addMSecs(qint64(seconds * 1000.0));
}

void ZRUpdateChecker::recordCheckDates()
{
    const QDateTime now = m_clock.now();
    m_settings.setValue(lastCheckSecondsKey, referenceSeconds(now));
    m_settings.setValue(lastCheckDateKey, now);
    if (Status s = m_settings.synchronize(); !s)
        qCWarning(lcServices).noquote() << s.error().fullText();
}

void ZRUpdateChecker::awakeFromNib()
{
    if (!m_settings.boolValue(firstUpdateCheckKey)) {
        m_settings.setValue(firstUpdateCheckKey, true);
        const int answer = m_ui.runAlert({tr("Check for updates automatically?"),
                                          tr("Should %1 look for a newer version once a day when it starts? "
                                             "You can change this at any time in "
                                             "the preferences.")
                                              .arg(displayName),
                                          {tr("OK"), tr("Cancel")},
                                          UserInterface::AlertStyle::Informational,
                                          false});
        m_settings.setValue(checkAtStartupKey, answer == 0);
        if (Status s = m_settings.synchronize(); !s)
            qCWarning(lcServices).noquote() << s.error().fullText();
    }
    Q_EMIT checkAtStartupChanged(checkAtStartup());
    if (!checkAtStartup())
        return;
    const QDateTime last = lastCheck();
    if (last.isValid() && last.msecsTo(m_clock.now()) <= checkInterval * 1000)
        return;
    checkForUpdatesAndNotify(false);
    recordCheckDates();
}

void ZRUpdateChecker::checkForUpdates()
{
    m_settings.setValue(lastCheckDateKey, m_clock.now());
    checkForUpdatesAndNotify(true);
}

void ZRUpdateChecker::checkForUpdatesAndNotify(bool notifyUpToDate)
{
    // A check under way takes over the wish to hear an up-to-date answer.
    if (m_checking) {
        m_notifyUpToDate = m_notifyUpToDate || notifyUpToDate;
        return;
    }
    m_notifyUpToDate = notifyUpToDate;
    m_checking = true;
    latestVersionsDictionary();
}

void ZRUpdateChecker::latestVersionsDictionary()
{
    const QUrl url = ServiceUrls::url(m_settings, ServiceUrls::versionList);
    HttpRequest::get(
        m_network, HttpRequest::request(url, m_timeoutMs), this, [this](const HttpRequest::Answer& answer) {
            CheckResult result;
            if (answer.isSuccess()) {
                result = evaluate(answer.body, m_version);
            } else {
                result.isError = true;
                result.errorText = answer.error.isEmpty()
                                       ? tr("The server answered with status %1.").arg(answer.status)
                                       : answer.error;
            }
            notifyAboutUpdateToNewVersion(result);
        });
}

ZRUpdateChecker::CheckResult ZRUpdateChecker::evaluate(const QByteArray& versionList, const QString& version)
{
    CheckResult result;
    auto fail = [&result](const QString& why) {
        result.isError = true;
        result.errorText = why;
        return result;
    };
    const auto list = PropertyList::read(versionList);
    if (!list || list.value().typeId() != QMetaType::QVariantMap)
        return fail(tr("The version list is not a readable property list."));
    QVariantMap entry = list.value().toMap();
    // The list is either this application's entry itself or holds it under
    // the application's identifier.
    if (!entry.contains(QStringLiteral("version"))) {
        const QVariant nested = entry.value(QLatin1String(applicationDomain));
        if (nested.typeId() == QMetaType::QVariantMap)
            entry = nested.toMap();
    }
    const QVariant newest = entry.value(QStringLiteral("version"));
    if (newest.typeId() != QMetaType::QString && newest.typeId() != QMetaType::LongLong)
        return fail(tr("The version list has no version for %1.").arg(displayName));
    result.productVersion = entry.value(QStringLiteral("productVersion")).toString();
    result.productPageURL = QUrl(entry.value(QStringLiteral("productPageURL")).toString());
    // Plain text equality: any other version, older or newer, is offered.
    result.isUpToDate = newest.toString() == version;
    return result;
}

void ZRUpdateChecker::notifyAboutUpdateToNewVersion(const CheckResult& result)
{
    if (result.isError) {
        // A check the user did not ask for fails quietly, into the log.
        qCInfo(lcServices).noquote() << "update check failed:" << result.errorText;
        if (m_notifyUpToDate)
            m_ui.runAlert({tr("Could not check for updates"),
                           tr("The list of available versions could not be loaded. Please check your "
                              "internet connection and try again later.") +
                               QStringLiteral("\n\n") + result.errorText,
                           {tr("OK")},
                           UserInterface::AlertStyle::Warning,
                           false});
        finish(result);
        return;
    }
    if (result.isUpToDate) {
        if (m_notifyUpToDate)
            m_ui.runAlert({tr("You're up to date!"),
                           tr("%1 %2 is the newest version available.").arg(displayName, m_version),
                           {tr("OK")},
                           UserInterface::AlertStyle::Informational,
                           false});
        finish(result);
        return;
    }
    // Fresh release notes: nothing cached from an earlier check may be shown.
    if (QAbstractNetworkCache* cache = m_network.cache())
        cache->clear();
    m_network.clearAccessCache();
    const QUrl notes = ServiceUrls::url(m_settings, ServiceUrls::releaseNotes);
    HttpRequest::get(m_network, HttpRequest::request(notes, m_timeoutMs), this,
                     [this, result](const HttpRequest::Answer& answer) {
                         offerUpdate(result, answer.isSuccess() ? QString::fromUtf8(answer.body).trimmed()
                                                                : QString());
                     });
}

void ZRUpdateChecker::offerUpdate(const CheckResult& result, const QString& notes)
{
    // A window of the shell shows the offer when there is one; it stays open
    // without holding up the check.
    if (isSignalConnected(QMetaMethod::fromSignal(&ZRUpdateChecker::updateAvailable))) {
        Q_EMIT updateAvailable(result, notes);
        finish(result);
        return;
    }
    const QString question = tr("Do you want to download the update now?");
    const int answer = m_ui.runAlert({tr("Update available!"),
                                      notes.isEmpty() ? question : notes + QStringLiteral("\n\n") + question,
                                      {tr("Download…"), tr("Cancel")},
                                      UserInterface::AlertStyle::Informational,
                                      false});
    if (answer == 0)
        download();
    finish(result);
}

bool ZRUpdateChecker::download()
{
    return m_ui.openUrl(ServiceUrls::url(m_settings, ServiceUrls::download));
}

void ZRUpdateChecker::finish(const CheckResult& result)
{
    m_checking = false;
    Q_EMIT checkFinished(result);
}

} // namespace vorn
