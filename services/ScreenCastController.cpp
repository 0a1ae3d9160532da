#include "services/ScreenCastController.h"

#include "services/HttpRequest.h"
#include "services/ServiceUrls.h"

namespace vorn {

ScreenCastController::ScreenCastController(Settings& settings, QObject* parent)
    : QObject(parent), m_settings(settings)
{
}

QUrl ScreenCastController::videoPageUrl() const
{
    return ServiceUrls::url(m_settings, ServiceUrls::introductionVideo);
}

QString ScreenCastController::offlineHtml()
{
    return QStringLiteral("<br /><br /><br /><br /><br /><center>%1</center>")
        .arg(tr("Please check your internet connection!"));
}

void ScreenCastController::awakeFromNib()
{
    const QUrl url = videoPageUrl();
    HttpRequest::get(m_network, HttpRequest::request(url, m_timeoutMs), this,
                     [this, url](const HttpRequest::Answer& answer) {
                         if (answer.isSuccess())
                             Q_EMIT loadUrl(url);
                         else
                             Q_EMIT loadHtml(offlineHtml());
                     });
}

} // namespace vorn
