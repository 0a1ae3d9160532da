#pragma once

#include "ui/QVBottomBarWindow.h"

class QLineEdit;
class QProgressBar;
class QPushButton;

namespace vorn {

class NewsletterSubscription;

// The newsletter form of the Help menu: a name, an address, Subscribe. The
// subscription says how it went; the form closes on success.
class NewsletterWindow : public QVBottomBarWindow
{
    Q_OBJECT
public:
    NewsletterWindow(NewsletterSubscription& newsletter, QWidget* parent = nullptr);

    QLineEdit* emailField() const { return m_email; }
    QPushButton* subscribeButton() const { return m_subscribe; }

private:
    NewsletterSubscription& m_newsletter;
    QLineEdit* m_name = nullptr;
    QLineEdit* m_email = nullptr;
    QProgressBar* m_busy = nullptr;
    QPushButton* m_subscribe = nullptr;
};

} // namespace vorn
