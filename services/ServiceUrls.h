#pragma once

#include <QString>
#include <QUrl>

namespace vorn {

class Settings;

// The web addresses Vorn talks to, each a setting with a default on our own
// site, so that a mirror (or a test server) can stand in for it.
namespace ServiceUrls {

inline const QString versionList = QStringLiteral("urlVersionList");
inline const QString releaseNotes = QStringLiteral("urlReleaseNotes");
inline const QString download = QStringLiteral("urlDownload");
inline const QString newsletter = QStringLiteral("urlNewsletter");
inline const QString introductionVideo = QStringLiteral("urlIntroductionVideo");
inline const QString blog = QStringLiteral("urlBlog");
inline const QString manual = QStringLiteral("urlManual");
inline const QString twitter = QStringLiteral("urlTwitter");
inline const QString adn = QStringLiteral("urlADN");
inline const QString kelvo = QStringLiteral("urlKelvo");
inline const QString support = QStringLiteral("urlSupport");
inline const QString feedback = QStringLiteral("urlFeedback");
inline const QString appWebsite = QStringLiteral("urlAppWebsite");
inline const QString acknowledgements = QStringLiteral("urlAcknowledgements");
// Not an address: the list the newsletter form subscribes to.
inline const QString newsletterRecipient = QStringLiteral("newsletterRecipient");

// The address set under key, or its default when none is set or the value is
// not an http(s) address.
QUrl url(const Settings& settings, const QString& key);
QUrl defaultUrl(const QString& key);
// The newsletter list's address.
QString recipient(const Settings& settings);

} // namespace ServiceUrls

} // namespace vorn
