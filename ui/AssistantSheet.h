#pragma once

#include "ui/QVBottomBarWindow.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace vorn {

class AssiController;
class QVRoundedTextField;
class QVShadowTextField;

// The setup assistant's sheet on the main window: the language page, the
// company page with the consent to the update check, the newsletter page
// and the last page. It follows the controller: shown while the controller
// says so, on the controller's page; every button calls the controller.
class AssistantSheet : public QVBottomBarWindow
{
    Q_OBJECT
public:
    AssistantSheet(AssiController& assi, QWidget* mainWindow);

    QStackedWidget* pages() const { return m_pages; }
    QComboBox* languageChoice() const { return m_language; }
    QPushButton* continueButton() const { return m_continue; }
    // The language the language page starts on when the sheet opens next
    // (on a first run, the desktop's).
    void setSuggestedLanguage(int language) { m_suggestedLanguage = language; }

Q_SIGNALS:
    // The language page wrote its defaults: the windows follow its language.
    void languageChosen(int language);
    // The last page's button ended the assistant.
    void completed();

public Q_SLOTS:
    // Escape does not end the assistant: its pages must be gone through.
    void reject() override {}

protected:
    void changeEvent(QEvent* event) override;

private:
    void buildPages();
    void retranslate();
    void showPage(int index);
    void continueAction();
    void setVisibleBySheet(bool visible);

    AssiController& m_assi;
    int m_suggestedLanguage = -1;
    QVShadowTextField* m_title = nullptr;
    QStackedWidget* m_pages = nullptr;
    QLabel* m_languageText = nullptr;
    QLabel* m_languageLabel = nullptr;
    QComboBox* m_language = nullptr;
    QLabel* m_companyText = nullptr;
    QLabel* m_companyLabel = nullptr;
    QVRoundedTextField* m_company = nullptr;
    QLabel* m_contactLabel = nullptr;
    QPlainTextEdit* m_contact = nullptr;
    QCheckBox* m_updates = nullptr;
    QLabel* m_newsletterText = nullptr;
    QLabel* m_emailLabel = nullptr;
    QVRoundedTextField* m_email = nullptr;
    QPushButton* m_subscribe = nullptr;
    QProgressBar* m_busy = nullptr;
    QLabel* m_finishText = nullptr;
    QLabel* m_step = nullptr;
    QPushButton* m_quit = nullptr;
    QPushButton* m_continue = nullptr;
};

} // namespace vorn
