#pragma once

#include <QObject>
#include <QString>

namespace vorn {

class Settings;
class UserInterface;

// The menu commands that open pages of our site in the user's browser, and
// the requests for the About and welcome windows (shown by the shell). The
// About window's own buttons use the same commands.
class KelvoGeneralController : public QObject
{
    Q_OBJECT
public:
    KelvoGeneralController(Settings& settings, UserInterface& ui, QObject* parent = nullptr);

    bool openBlog();
    bool openManual();
    bool openTwitter();
    bool openADN();
    bool openKelvo();
    bool openSupport();
    bool openFeedback();
    bool openAppWebsite();
    // The About window's buttons.
    bool openManuals() { return openManual(); }
    bool openACK();

    void showAbout() { Q_EMIT aboutRequested(); }
    void showWelcome() { Q_EMIT welcomeRequested(); }

Q_SIGNALS:
    void aboutRequested();
    void welcomeRequested();

private:
    bool open(const QString& key);

    Settings& m_settings;
    UserInterface& m_ui;
};

} // namespace vorn
