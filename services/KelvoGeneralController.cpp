#include "services/KelvoGeneralController.h"

#include "services/ServiceUrls.h"
#include "store/UserInterface.h"

namespace vorn {

KelvoGeneralController::KelvoGeneralController(Settings& settings, UserInterface& ui, QObject* parent)
    : QObject(parent), m_settings(settings), m_ui(ui)
{
}

bool KelvoGeneralController::open(const QString& key)
{
    return m_ui.openUrl(ServiceUrls::url(m_settings, key));
}

bool KelvoGeneralController::openBlog()
{
    return open(ServiceUrls::blog);
}

bool KelvoGeneralController::openManual()
{
    return open(ServiceUrls::manual);
}

bool KelvoGeneralController::openTwitter()
{
    return open(ServiceUrls::twitter);
}

bool KelvoGeneralController::openADN()
{
    return open(ServiceUrls::adn);
}

bool KelvoGeneralController::openKelvo()
{
    return open(ServiceUrls::kelvo);
}

bool KelvoGeneralController::openSupport()
{
    return open(ServiceUrls::support);
}

bool KelvoGeneralController::openFeedback()
{
    return open(ServiceUrls::feedback);
}

bool KelvoGeneralController::openAppWebsite()
{
    return open(ServiceUrls::appWebsite);
}

bool KelvoGeneralController::openACK()
{
    return open(ServiceUrls::acknowledgements);
}

} // namespace vorn
