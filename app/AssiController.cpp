#include "app/AssiController.h"

#include "app/AppDelegate.h"
#include "app/AppLog.h"
#include "services/NewsletterSubscription.h"
#include "services/ZRUpdateChecker.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/Settings.h"
#include "store/UserInterface.h"

#include <algorithm>

namespace vorn {

namespace {

const QString isAssiDone = QStringLiteral("isAssiDone");
const QString assiIndex = QStringLiteral("assiIndex");
const QString languageDefaults = QStringLiteral("languageDefaults");
const QString isFirstStoreLoadEverDone = QStringLiteral("isFirstStoreLoadEverDone");

} // namespace

AssiController::AssiController(AppDelegate& app, QObject* parent)
    : QObject(parent), m_app(app),
      m_newsletter(std::make_unique<NewsletterSubscription>(app.settings(), app.ui()))
{
}

AssiController::~AssiController() = default;

Settings& AssiController::settings() const
{
    return m_app.settings();
}

UserInterface& AssiController::ui() const
{
    return m_app.ui();
}

int AssiController::pageIndex() const
{
    return int(std::clamp<qint64>(settings().intValue(assiIndex), 0, pageCount - 1));
}

QString AssiController::firstField(int page)
{
    switch (page) {
    case CompanyPage:
        return QStringLiteral("assiCompanyField");
    case SubscriptionPage:
        return QStringLiteral("assiSubscriptionField");
    default:
        return {};
    }
}

int AssiController::language() const
{
    return int(settings().intValue(languageDefaults));
}

void AssiController::setLanguage(int language)
{
    settings().setValue(languageDefaults, qint64(language));
}

int AssiController::languageOfLocale(const QLocale& locale)
{
    switch (locale.language()) {
    case QLocale::German:
        return 1;
    case QLocale::French:
        return 2;
    case QLocale::Spanish:
        return 3;
    default:
        return 0;
    }
}

int AssiController::startupLanguage(const Settings& settings, const QLocale& desktop)
{
    if (settings.boolValue(isAssiDone))
        return int(std::clamp<qint64>(settings.intValue(languageDefaults), 0, 3));
    return languageOfLocale(desktop);
}

bool AssiController::offersRestart(int windowLanguage) const
{
    return std::clamp(language(), 0, 3) != windowLanguage;
}

QString AssiController::companyName() const
{
    return settings().stringValue(key::prefsName);
}

void AssiController::setCompanyName(const QString& name)
{
    settings().setValue(key::prefsName, name);
}

QString AssiController::contact() const
{
    return settings().stringValue(key::prefsContact);
}

void AssiController::setContact(const QString& contact)
{
    settings().setValue(key::prefsContact, contact);
}

bool AssiController::checkForUpdates() const
{
    return settings().boolValue(ZRUpdateChecker::checkAtStartupKey);
}

void AssiController::setCheckForUpdates(bool enabled)
{
    // Answered here, the launch does not ask again; the first check comes a
    // day later, not while the assistant is open.
    ZRUpdateChecker::storeCheckAtStartup(settings(), m_app.state().clock().now(), enabled);
    settings().setValue(ZRUpdateChecker::firstUpdateCheckKey, true);
}

void AssiController::setSubscriptionEmail(const QString& email)
{
    if (m_subscriptionEmail == email)
        return;
    m_subscriptionEmail = email;
    Q_EMIT subscriptionEmailChanged(email);
}

void AssiController::beginSheet()
{
    setSubscriptionEmail({});
    settings().setValue(assiIndex, qint64(0));
    Q_EMIT pageChanged(0);
    if (!m_sheetVisible) {
        m_sheetVisible = true;
        Q_EMIT sheetVisibleChanged(true);
    }
}

void AssiController::endSheet()
{
    if (!m_sheetVisible)
        return;
    m_sheetVisible = false;
    Q_EMIT sheetVisibleChanged(false);
}

void AssiController::goToNextPage()
{
    const int next = qMin(pageIndex() + 1, pageCount - 1);
    settings().setValue(assiIndex, qint64(next));
    Q_EMIT pageChanged(next);
    if (const QString field = firstField(next); !field.isEmpty())
        ui().focus(field);
}

void AssiController::openAssi()
{
    // The menu command only re-runs a completed assistant; the first run
    // opens by itself at launch.
    if (!settings().boolValue(isAssiDone))
        return;
    const int answer =
        ui().runAlert({tr("Warning!"),
                       tr("It seems that you've already setup Vorn and have run the setup assistant at "
                          "least once before. Doing this again will delete all your customizations "
                          "and replace them with the default values. Do you really want to continue?"),
                       {tr("Continue…"), tr("Cancel")},
                       UserInterface::AlertStyle::Warning,
                       false});
    if (answer != 0)
        return;
    beginSheet();
}

void AssiController::openAssiAtFirstRun()
{
    if (!settings().boolValue(isAssiDone))
        beginSheet();
}

bool AssiController::firstAssiTabAction()
{
    // Designs are seeded by the assistant once, and only into a store.
    if (!settings().boolValue(isFirstStoreLoadEverDone) && m_app.state().context()) {
        m_app.loadTemplates();
        settings().setValue(isFirstStoreLoadEverDone, true);
    }
    if (Status s = m_app.loadDefaults(language()); !s) {
        ui().presentError(s.error());
        return false;
    }
    qCDebug(lcApp).noquote() << "default settings written:" << AppDelegate::defaultListName(language());
    goToNextPage();
    return true;
}

void AssiController::subscribeAssiTabAction()
{
    goToNextPage();
}

bool AssiController::subscribeAction()
{
    return m_newsletter->subscribeAction(m_subscriptionEmail, contact());
}

void AssiController::closeAssi()
{
    settings().setValue(isAssiDone, true);
    if (Status s = settings().synchronize(); !s)
        qCWarning(lcApp).noquote() << s.error().fullText();
    endSheet();
    const int answer = ui().runAlert(
        {tr("30 Second Introduction"),
         tr("Do you want to see the 30 second introduction video before creating your first invoice?"),
         {tr("Yes, please!"), tr("No, I prefer to suffer in silence.")},
         UserInterface::AlertStyle::Informational,
         false});
    if (answer == 0)
        showScreenCast();
}

void AssiController::quitAssi()
{
    endSheet();
    Q_EMIT quitRequested();
}

} // namespace vorn
