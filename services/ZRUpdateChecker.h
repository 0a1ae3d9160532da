#pragma once

#include "store/Result.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariantMap>

namespace vorn {

class Clock;
class Settings;
class UserInterface;

// Checks on the site whether a newer version of Vorn exists: at start-up at
// most once a day when the user agreed to it, and on the user's command.
// The version list is a property list whose entry for Vorn holds
// productVersion, productPageURL, version and url; "version" is compared with
// the application's own version as plain text, so any difference means an
// update is available. Failures are shown only when the user asked for the
// check; a check at start-up logs them.
//
// The list is fetched by the network access manager off the GUI thread; the
// answer and every alert come back on the GUI thread.
class ZRUpdateChecker : public QObject
{
    Q_OBJECT
public:
    static const QString checkAtStartupKey;   // "ZRUpdateChecker:CheckAtStartup"
    static const QString lastCheckSecondsKey; // "ZRUpdateChecker:LastCheckDate"
    static const QString lastCheckDateKey;    // "LastCheckDate"
    static const QString firstUpdateCheckKey; // "firstUpdateCheck"
    static constexpr qint64 checkInterval = 86400;

    struct CheckResult
    {
        bool isError = false;
        bool isUpToDate = false;
        QString productVersion;
        QUrl productPageURL;
        QString errorText;
    };

    ZRUpdateChecker(Settings& settings, UserInterface& ui, const Clock& clock, QObject* parent = nullptr);

    // The version this program is (the default is the build's version).
    void setApplicationVersion(const QString& version) { m_version = version; }
    const QString& applicationVersion() const { return m_version; }
    void setTimeout(int milliseconds) { m_timeoutMs = milliseconds; }
    QNetworkAccessManager& network() { return m_network; }

    // Start-up: the first-run question, then the daily check.
    void awakeFromNib();
    // "Check for Updates…": reports an up-to-date result too.
    void checkForUpdates();
    // Starts a check; an up-to-date result is reported only when asked.
    void checkForUpdatesAndNotify(bool notifyUpToDate);
    // Opens the download address in the browser.
    bool download();
    // From the request for the list until the result was shown.
    bool isChecking() const { return m_checking; }

    // The preference (a checkbox bound to it).
    bool checkAtStartup() const;
    void setCheckAtStartup(bool enabled);
    // Stores the preference, counting the next check from now: switching
    // the check on does not start one at once.
    static void storeCheckAtStartup(Settings& settings, const QDateTime& now, bool enabled);
    void takeBoolFromObject(bool checked) { setCheckAtStartup(checked); }

    // The version list's entry for this application, judged against version.
    static CheckResult evaluate(const QByteArray& versionList, const QString& version);
    // Seconds since 1 January 2001, 00:00 UTC, as the check date is stored.
    static double referenceSeconds(const QDateTime& date);

Q_SIGNALS:
    void checkAtStartupChanged(bool enabled);
    // A newer version with its release notes (empty when they could not be
    // fetched). With a receiver, it takes the place of the offering alert.
    void updateAvailable(const vorn::ZRUpdateChecker::CheckResult& result, const QString& notes);
    // After the result was shown (or, for an up-to-date background check, not).
    void checkFinished(const vorn::ZRUpdateChecker::CheckResult& result);

private:
    void latestVersionsDictionary();
    void notifyAboutUpdateToNewVersion(const CheckResult& result);
    void offerUpdate(const CheckResult& result, const QString& notes);
    void recordCheckDates();
    void finish(const CheckResult& result);
    QDateTime lastCheck() const;

    Settings& m_settings;
    UserInterface& m_ui;
    const Clock& m_clock;
    QNetworkAccessManager m_network;
    QString m_version;
    int m_timeoutMs = 30000;
    bool m_checking = false;
    bool m_notifyUpToDate = false;
};

} // namespace vorn

Q_DECLARE_METATYPE(vorn::ZRUpdateChecker::CheckResult)
