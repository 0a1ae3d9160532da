#pragma once

#include <QLocale>
#include <QObject>
#include <QString>

#include <memory>

namespace vorn {

class AppDelegate;
class NewsletterSubscription;
class Settings;
class UserInterface;

// The setup assistant: a sheet of pages on the main window. The language
// page seeds the built-in designs (once) and writes the chosen language's
// default settings; later pages take the company and contact entries (kept
// in prefsName and prefsContact) and the newsletter address; the last page
// closes the assistant and offers the introduction video.
//
// The sheet follows this state: whether it is shown, the page (the assiIndex
// setting), and the fields.
class AssiController : public QObject
{
    Q_OBJECT
public:
    enum Page
    {
        LanguagePage = 0,
        CompanyPage = 1,
        SubscriptionPage = 2,
        FinishPage = 3
    };
    static constexpr int pageCount = 4;

    explicit AssiController(AppDelegate& app, QObject* parent = nullptr);
    ~AssiController() override;

    bool isSheetVisible() const { return m_sheetVisible; }
    int pageIndex() const;
    // The field a page puts the cursor in ("" for none).
    static QString firstField(int page);

    // 0 English, 1 German, 2 French, 3 Spanish (the languageDefaults setting).
    int language() const;
    void setLanguage(int language);
    // One of ours for a desktop locale; English for any other.
    static int languageOfLocale(const QLocale& locale);
    // The windows start in the language chosen in the assistant once it was
    // completed; before, in the desktop's.
    static int startupLanguage(const Settings& settings, const QLocale& desktop);
    // The windows were built in windowLanguage; they show a newly chosen one
    // everywhere only after a new start, so completing the assistant with
    // another language offers to restart.
    bool offersRestart(int windowLanguage) const;
    QString companyName() const;
    void setCompanyName(const QString& name);
    QString contact() const;
    void setContact(const QString& contact);
    // The consent to the daily update check, asked on the company page;
    // answering it there means the launch does not ask again.
    bool checkForUpdates() const;
    void setCheckForUpdates(bool enabled);
    const QString& subscriptionEmail() const { return m_subscriptionEmail; }
    void setSubscriptionEmail(const QString& email);
    NewsletterSubscription& newsletter() { return *m_newsletter; }

    // "Setup Assistant…": re-runs a completed assistant after a warning.
    void openAssi();
    // At launch: the first run opens without a warning while the assistant
    // was never completed.
    void openAssiAtFirstRun();
    // The language page's button. Answers false (the page stays) when the
    // default list could not be read.
    bool firstAssiTabAction();
    void subscribeAssiTabAction();
    // The subscription page's button.
    bool subscribeAction();
    void closeAssi();
    void quitAssi();
    void showScreenCast() { Q_EMIT screenCastRequested(); }

Q_SIGNALS:
    void sheetVisibleChanged(bool visible);
    void pageChanged(int index);
    void subscriptionEmailChanged(const QString& email);
    // The shell shows the introduction video window.
    void screenCastRequested();
    // The shell quits through the application's quit protocol.
    void quitRequested();

private:
    Settings& settings() const;
    UserInterface& ui() const;
    void beginSheet();
    void endSheet();
    void goToNextPage();

    AppDelegate& m_app;
    std::unique_ptr<NewsletterSubscription> m_newsletter;
    QString m_subscriptionEmail;
    bool m_sheetVisible = false;
};

} // namespace vorn
