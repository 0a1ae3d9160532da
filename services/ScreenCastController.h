#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QString>
#include <QUrl>

namespace vorn {

class Settings;

// What the introduction video window shows: the video page when the site
// can be reached, otherwise a short offline note. The window itself (its
// place, its web view) belongs to the shell, which follows the two signals.
class ScreenCastController : public QObject
{
    Q_OBJECT
public:
    explicit ScreenCastController(Settings& settings, QObject* parent = nullptr);

    void setTimeout(int milliseconds) { m_timeoutMs = milliseconds; }
    QNetworkAccessManager& network() { return m_network; }

    // Fetches the video page; emits loadUrl or loadHtml.
    void awakeFromNib();
    QUrl videoPageUrl() const;
    static QString offlineHtml();

Q_SIGNALS:
    void loadUrl(const QUrl& url);
    void loadHtml(const QString& html);

private:
    Settings& m_settings;
    QNetworkAccessManager m_network;
    int m_timeoutMs = 30000;
};

} // namespace vorn
