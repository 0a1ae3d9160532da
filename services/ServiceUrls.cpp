#include "services/ServiceUrls.h"

#include "services/ServicesLog.h"
#include "store/Settings.h"

#include <QHash>

Q_LOGGING_CATEGORY(lcServices, "vorn.services", QtInfoMsg)

namespace vorn::ServiceUrls {

namespace {

const QHash<QString, QString>& defaults()
{
    static const QHash<QString, QString> table{
        {versionList, QStringLiteral("https://vorn.tandrelo.com/macpad/com.tandrelo.Orvandel.plist")},
        {releaseNotes, QStringLiteral("https://vorn.tandrelo.com/macpad/Vorn.txt")},
        {download, QStringLiteral("https://vorn.tandrelo.com/downloads/Vorn.zip")},
        {newsletter, QStringLiteral("https://vorn.tandrelo.com/api/newsletter.php")},
        {introductionVideo, QStringLiteral("https://vorn.tandrelo.com/introduction/")},
        {blog, QStringLiteral("https://tandrelo.com/blog/")},
        {manual, QStringLiteral("https://vorn.tandrelo.com/manual/")},
        {twitter, QStringLiteral("https://tandrelo.com/twitter/")},
        {adn, QStringLiteral("https://tandrelo.com/adn/")},
        {kelvo, QStringLiteral("https://tandrelo.com/")},
        {support, QStringLiteral("https://vorn.tandrelo.com/support/")},
        {feedback, QStringLiteral("https://vorn.tandrelo.com/feedback/")},
        {appWebsite, QStringLiteral("https://vorn.tandrelo.com/")},
        {acknowledgements, QStringLiteral("https://vorn.tandrelo.com/acknowledgements/")},
    };
    return table;
}

bool isWebAddress(const QUrl& url)
{
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
}

} // namespace

QUrl defaultUrl(const QString& key)
{
    return QUrl(defaults().value(key));
}

QUrl url(const Settings& settings, const QString& key)
{
    const QString text = settings.stringValue(key).trimmed();
    if (text.isEmpty())
        return defaultUrl(key);
    const QUrl set(text, QUrl::StrictMode);
    if (isWebAddress(set))
        return set;
    qCWarning(lcServices).noquote() << "the setting" << key << "is not a web address:" << text
                                    << "- using the standard address";
    return defaultUrl(key);
}

QString recipient(const Settings& settings)
{
    const QString set = settings.stringValue(newsletterRecipient).trimmed();
    return set.isEmpty() ? QStringLiteral("newsletter@tandrelo.com") : set;
}

} // namespace vorn::ServiceUrls
