#include "ui/HelpMenu.h"

#include "app/AppDelegate.h"
#include "app/AssiController.h"
#include "services/KelvoGeneralController.h"
#include "services/ScreenCastController.h"
#include "services/ZRUpdateChecker.h"
#include "store/Settings.h"
#include "store/UserInterface.h"
#include "ui/AboutDialog.h"
#include "ui/AssistantSheet.h"
#include "ui/NewsletterWindow.h"
#include "ui/Translations.h"
#include "ui/UiLog.h"
#include "ui/UpdateWindow.h"

#include <QAction>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTextDocumentFragment>

namespace vorn {

namespace {

bool g_restart = false;

struct Command
{
    const char* name;
    const char* text;
    const char* icon;
};

// The menu in its order; an empty name is a separator.
const Command commands[] = {
    {"openManual", QT_TRANSLATE_NOOP("vorn::HelpMenu", "Vorn &Manual"), "help-contents"},
    {"showScreenCast", QT_TRANSLATE_NOOP("vorn::HelpMenu", "&Introduction Video"), "media-playback-start"},
    {"", nullptr, nullptr},
    {"openSupport", QT_TRANSLATE_NOOP("vorn::HelpMenu", "Contact &Support…"), "help-faq"},
    {"openFeedback", QT_TRANSLATE_NOOP("vorn::HelpMenu", "Send &Feedback…"), "mail-send"},
    {"", nullptr, nullptr},
    {"openAppWebsite", QT_TRANSLATE_NOOP("vorn::HelpMenu", "Vorn &Website"), "applications-internet"},
    {"openBlog", QT_TRANSLATE_NOOP("vorn::HelpMenu", "&Blog"), nullptr},
    {"openTwitter", QT_TRANSLATE_NOOP("vorn::HelpMenu", "Vorn on &Twitter"), nullptr},
    {"openADN", QT_TRANSLATE_NOOP("vorn::HelpMenu", "Vorn on &App.net"), nullptr},
    {"openKelvo", QT_TRANSLATE_NOOP("vorn::HelpMenu", "Tandrelo &Apps"), nullptr},
    {"", nullptr, nullptr},
    {"showNewsletter", QT_TRANSLATE_NOOP("vorn::HelpMenu", "Subscribe to the &Newsletter…"), nullptr},
    {"checkForUpdates", QT_TRANSLATE_NOOP("vorn::HelpMenu", "Check for &Updates…"), "system-software-update"},
    {"openAssi", QT_TRANSLATE_NOOP("vorn::HelpMenu", "Setup Assis&tant…"), nullptr},
    {"", nullptr, nullptr},
    {"showAbout", QT_TRANSLATE_NOOP("vorn::HelpMenu", "&About Vorn"), "help-about"},
};

} // namespace

HelpMenu::HelpMenu(QMainWindow& window, AppDelegate& app)
    : QObject(&window), m_window(window), m_app(app),
      m_links(std::make_unique<KelvoGeneralController>(app.settings(), app.ui())),
      m_updates(std::make_unique<ZRUpdateChecker>(app.settings(), app.ui(), app.state().clock())),
      m_screenCast(std::make_unique<ScreenCastController>(app.settings()))
{
    setObjectName(QStringLiteral("helpMenu"));
    m_windowLanguage = Translations::installedLanguage();
    build();

    AssiController& assi = m_app.assiController();
    m_assistant = new AssistantSheet(assi, &m_window);
    connect(m_assistant, &AssistantSheet::languageChosen, this, &HelpMenu::languageChosen);
    connect(&assi, &AssiController::screenCastRequested, this, &HelpMenu::showScreenCast);
    connect(&assi, &AssiController::quitRequested, &m_window, &QWidget::close);
    // The first run starts on the desktop's language.
    if (!m_app.settings().boolValue(QStringLiteral("isAssiDone")))
        m_assistant->setSuggestedLanguage(AssiController::languageOfLocale(QLocale()));
    connect(m_assistant, &AssistantSheet::completed, this, [this] {
        // The launch's update check waits for the consent given in the assistant.
        if (std::exchange(m_updateChecksWaiting, false))
            m_updates->awakeFromNib();
        if (!m_app.assiController().offersRestart(m_windowLanguage))
            return;
        const int answer = m_app.ui().runAlert(
            {tr("Restart Vorn?"),
             tr("The main window shows the language you chose after Vorn starts again. Restart now?"),
             {tr("Restart"), tr("Later")},
             UserInterface::AlertStyle::Informational,
             false});
        if (answer == 0) {
            m_window.close();
            // The window may refuse to close; then Vorn goes on running.
            g_restart = !m_window.isVisible();
        }
    });

    connect(m_links.get(), &KelvoGeneralController::aboutRequested, this, &HelpMenu::showAbout);
    connect(m_screenCast.get(), &ScreenCastController::loadUrl, this,
            [this](const QUrl& url) { m_app.ui().openUrl(url); });
    connect(m_screenCast.get(), &ScreenCastController::loadHtml, this, [this](const QString& html) {
        m_app.ui().inform(tr("Introduction Video"),
                          QTextDocumentFragment::fromHtml(html).toPlainText().trimmed(),
                          UserInterface::AlertStyle::Informational);
    });
    connect(m_updates.get(), &ZRUpdateChecker::updateAvailable, this,
            [this](const ZRUpdateChecker::CheckResult& result, const QString& notes) {
                if (!m_updateWindow)
                    m_updateWindow = new UpdateWindow(*m_updates, &m_window);
                m_updateWindow->showUpdate(result, notes);
            });
    connect(m_updates.get(), &ZRUpdateChecker::checkFinished, this,
            [this] { command(QStringLiteral("checkForUpdates"))->setEnabled(true); });
}

HelpMenu::~HelpMenu() = default;

HelpMenu* HelpMenu::install(QMainWindow& window, AppDelegate& app)
{
    return new HelpMenu(window, app);
}

HelpMenu* HelpMenu::of(const QObject* window)
{
    return window ? window->findChild<HelpMenu*>(QStringLiteral("helpMenu"), Qt::FindDirectChildrenOnly)
                  : nullptr;
}

UpdateWindow* HelpMenu::updateWindow() const
{
    return m_updateWindow;
}

bool HelpMenu::restartRequested()
{
    return g_restart;
}

QAction* HelpMenu::command(const QString& name) const
{
    for (QAction* action : m_menu->actions())
        if (action->objectName() == name)
            return action;
    return nullptr;
}

void HelpMenu::build()
{
    m_menu = m_window.menuBar()->addMenu(QString());
    m_menu->setObjectName(QStringLiteral("helpMenu"));
    m_menu->installEventFilter(this);
    for (const Command& c : commands) {
        if (!*c.name) {
            m_menu->addSeparator();
            continue;
        }
        auto* action =
            m_menu->addAction(c.icon ? QIcon::fromTheme(QLatin1String(c.icon)) : QIcon(), QString());
        action->setObjectName(QLatin1String(c.name));
    }
    const auto on = [this](const char* name, auto run) {
        connect(command(QLatin1String(name)), &QAction::triggered, this, run);
    };
    on("openManual", [this] { m_links->openManual(); });
    on("openSupport", [this] { m_links->openSupport(); });
    on("openFeedback", [this] { m_links->openFeedback(); });
    on("openAppWebsite", [this] { m_links->openAppWebsite(); });
    on("openBlog", [this] { m_links->openBlog(); });
    on("openTwitter", [this] { m_links->openTwitter(); });
    on("openADN", [this] { m_links->openADN(); });
    on("openKelvo", [this] { m_links->openKelvo(); });
    on("showScreenCast", [this] { showScreenCast(); });
    on("showNewsletter", [this] { showNewsletter(); });
    on("checkForUpdates", [this] {
        command(QStringLiteral("checkForUpdates"))->setEnabled(false);
        m_updates->checkForUpdates();
    });
    on("openAssi", [this] { m_app.assiController().openAssi(); });
    on("showAbout", [this] { m_links->showAbout(); });
    command(QStringLiteral("openManual"))->setShortcut(QKeySequence::HelpContents);
    command(QStringLiteral("showAbout"))->setMenuRole(QAction::AboutRole);
    retranslate();
}

void HelpMenu::retranslate()
{
    m_menu->setTitle(tr("&Help"));
    for (const Command& c : commands)
        if (*c.name)
            command(QLatin1String(c.name))->setText(tr(c.text));
}

bool HelpMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_menu && event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}

void HelpMenu::languageChosen(int language)
{
    if (language != Translations::installedLanguage())
        Translations::install(language);
}

void HelpMenu::startUpdateChecks()
{
    if (m_app.assiController().isSheetVisible()) {
        m_updateChecksWaiting = true;
        return;
    }
    m_updates->awakeFromNib();
}

void HelpMenu::showScreenCast()
{
    m_screenCast->awakeFromNib();
}

void HelpMenu::showAbout()
{
    if (!m_about)
        m_about = new AboutDialog(*m_links, &m_window);
    m_about->show();
    m_about->raise();
    m_about->activateWindow();
}

void HelpMenu::showNewsletter()
{
    if (!m_newsletter)
        m_newsletter = new NewsletterWindow(m_app.assiController().newsletter(), &m_window);
    m_newsletter->show();
    m_newsletter->raise();
    m_newsletter->activateWindow();
}

} // namespace vorn
