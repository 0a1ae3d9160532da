#include "ui/NewsletterWindow.h"

#include "services/NewsletterSubscription.h"
#include "ui/QVRoundedFields.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace vorn {

NewsletterWindow::NewsletterWindow(NewsletterSubscription& newsletter, QWidget* parent)
    : QVBottomBarWindow(Regular, parent), m_newsletter(newsletter)
{
    setObjectName(QStringLiteral("newsletterWindow"));
    setWindowTitle(tr("Vorn Newsletter"));
    setAccessibleName(windowTitle());
    auto* text = new QLabel(tr("Hear about new versions and tips. We write rarely, and you can leave at any "
                               "time."),
                            this);
    text->setWordWrap(true);
    contentLayout()->addWidget(text);
    auto* form = new QFormLayout;
    m_name = new QVRoundedTextField(this);
    m_name->setAccessibleName(tr("Name"));
    m_email = new QVRoundedTextField(this);
    m_email->setObjectName(QStringLiteral("newsletterEmail"));
    m_email->setAccessibleName(tr("E-mail address"));
    m_email->setPlaceholderText(tr("name@example.com"));
    form->addRow(tr("&Name:"), m_name);
    form->addRow(tr("&E-mail:"), m_email);
    contentLayout()->addLayout(form);
    contentLayout()->addStretch();

    m_busy = new QProgressBar(this);
    m_busy->setRange(0, 0);
    m_busy->setFixedWidth(60);
    m_busy->setTextVisible(false);
    m_busy->setAccessibleName(tr("Subscribing"));
    m_busy->hide();
    auto* cancel = new QPushButton(tr("Cancel"), this);
    cancel->setAccessibleName(tr("Cancel"));
    cancel->setAutoDefault(false);
    m_subscribe = new QPushButton(tr("&Subscribe"), this);
    m_subscribe->setAccessibleName(tr("Subscribe"));
    m_subscribe->setDefault(true);
    QHBoxLayout* bar = barLayout();
    bar->addWidget(m_busy);
    bar->addStretch();
    bar->addWidget(cancel);
    bar->addWidget(m_subscribe);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_subscribe, &QPushButton::clicked, this,
            [this] { m_newsletter.subscribeAction(m_email->text().trimmed(), m_name->text().trimmed()); });
    connect(&m_newsletter, &NewsletterSubscription::busyChanged, this, [this](bool busy) {
        m_busy->setVisible(busy);
        m_subscribe->setEnabled(!busy);
    });
    connect(&m_newsletter, &NewsletterSubscription::finished, this, [this](bool subscribed) {
        if (subscribed && isVisible())
            accept();
    });
    resize(440, 220);
}

} // namespace vorn
