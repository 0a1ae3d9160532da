#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class QAction;
class QMainWindow;
class QMenu;

namespace vorn {

class AboutDialog;
class AppDelegate;
class AssistantSheet;
class KelvoGeneralController;
class NewsletterWindow;
class ScreenCastController;
class UpdateWindow;
class ZRUpdateChecker;

// The Help menu and what hangs off it: the manual and the other pages of
// our site, the introduction video, the newsletter form, the update check
// with its window, the setup assistant's sheet and the About window. It is
// a child of the main window, which installs it with one call.
class HelpMenu : public QObject
{
    Q_OBJECT
public:
    HelpMenu(QMainWindow& window, AppDelegate& app);
    ~HelpMenu() override;

    static HelpMenu* install(QMainWindow& window, AppDelegate& app);
    static HelpMenu* of(const QObject* window);

    QMenu* menu() const { return m_menu; }
    // Commands by name: "openManual", "showScreenCast", "checkForUpdates", "openAssi", "showAbout" ...
    QAction* command(const QString& name) const;
    ZRUpdateChecker& updateChecker() { return *m_updates; }
    KelvoGeneralController& links() { return *m_links; }
    AssistantSheet* assistant() const { return m_assistant; }
    UpdateWindow* updateWindow() const;

    // At launch, once the window is up: the update check's question and the
    // daily check, after the assistant's first run when that is open.
    void startUpdateChecks();
    // Opens the introduction video in the browser, or says it cannot be reached.
    void showScreenCast();
    void showAbout();
    void showNewsletter();
    // Whether the user asked to start again in the language just chosen.
    static bool restartRequested();

private:
    void build();
    void retranslate();
    void languageChosen(int language);
    bool eventFilter(QObject* watched, QEvent* event) override;

    QMainWindow& m_window;
    AppDelegate& m_app;
    QMenu* m_menu = nullptr;
    std::unique_ptr<KelvoGeneralController> m_links;
    std::unique_ptr<ZRUpdateChecker> m_updates;
    std::unique_ptr<ScreenCastController> m_screenCast;
    AssistantSheet* m_assistant = nullptr;
    QPointer<UpdateWindow> m_updateWindow;
    QPointer<AboutDialog> m_about;
    QPointer<NewsletterWindow> m_newsletter;
    int m_windowLanguage = 0;
    bool m_updateChecksWaiting = false;
};

} // namespace vorn
