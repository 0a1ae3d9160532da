#include "ui/AssistantSheet.h"

#include "app/AssiController.h"
#include "services/NewsletterSubscription.h"
#include "ui/QVBox.h"
#include "ui/QVRoundedFields.h"
#include "ui/QVShadowTextField.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace vorn {

namespace {

QLabel* paragraph(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

AssistantSheet::AssistantSheet(AssiController& assi, QWidget* mainWindow)
    : QVBottomBarWindow(Regular, mainWindow), m_assi(assi)
{
    setObjectName(QStringLiteral("assistantSheet"));
    setWindowModality(Qt::WindowModal);
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    buildPages();
    retranslate();
    resize(600, 440);

    connect(&m_assi, &AssiController::sheetVisibleChanged, this, &AssistantSheet::setVisibleBySheet);
    connect(&m_assi, &AssiController::pageChanged, this, &AssistantSheet::showPage);
    connect(&m_assi, &AssiController::subscriptionEmailChanged, this, [this](const QString& email) {
        if (m_email->text() != email)
            m_email->setText(email);
    });
    connect(&m_assi.newsletter(), &NewsletterSubscription::busyChanged, this, [this](bool busy) {
        m_busy->setVisible(busy);
        m_subscribe->setEnabled(!busy);
    });
    if (m_assi.isSheetVisible())
        setVisibleBySheet(true);
}

void AssistantSheet::buildPages()
{
    auto* header = new QVBox(QVBox::Welcome, this);
    header->setFixedHeight(56);
    auto* headerLayout = new QHBoxLayout(header);
    headerLayout->setContentsMargins(20, 6, 20, 6);
    m_title = new QVShadowTextField({}, header);
    QFont titleFont = m_title->font();
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.5);
    titleFont.setBold(true);
    m_title->setFont(titleFont);
    headerLayout->addWidget(m_title);
    contentLayout()->setContentsMargins(0, 0, 0, 0);
    contentLayout()->addWidget(header);

    m_pages = new QStackedWidget(this);
    m_pages->setObjectName(QStringLiteral("assistantPages"));
    contentLayout()->addWidget(m_pages, 1);
    const auto page = [this] {
        auto* w = new QWidget(m_pages);
        auto* layout = new QVBoxLayout(w);
        layout->setContentsMargins(24, 18, 24, 12);
        layout->setSpacing(12);
        m_pages->addWidget(w);
        return layout;
    };

    // Language.
    QVBoxLayout* language = page();
    m_languageText = paragraph(this);
    language->addWidget(m_languageText);
    auto* languageRow = new QFormLayout;
    m_languageLabel = new QLabel(this);
    m_language = new QComboBox(this);
    m_language->setObjectName(QStringLiteral("assiLanguageChoice"));
    // Each language in its own name: it must be found by someone who does
    // not read the current one.
    m_language->addItems({QStringLiteral("English"), QStringLiteral("Deutsch"), QStringLiteral("Français"),
                          QStringLiteral("Español")});
    m_languageLabel->setBuddy(m_language);
    languageRow->addRow(m_languageLabel, m_language);
    language->addLayout(languageRow);
    language->addStretch();
    connect(m_language, &QComboBox::currentIndexChanged, this,
            [this](int index) { m_assi.setLanguage(index); });

    // Company, contact and the update check.
    QVBoxLayout* company = page();
    m_companyText = paragraph(this);
    company->addWidget(m_companyText);
    auto* form = new QFormLayout;
    m_companyLabel = new QLabel(this);
    m_company = new QVRoundedTextField(this);
    m_company->setObjectName(QStringLiteral("assiCompanyField"));
    m_companyLabel->setBuddy(m_company);
    form->addRow(m_companyLabel, m_company);
    m_contactLabel = new QLabel(this);
    m_contact = new QPlainTextEdit(this);
    m_contact->setObjectName(QStringLiteral("assiContactField"));
    m_contact->setTabChangesFocus(true);
    m_contact->setFixedHeight(90);
    m_contactLabel->setBuddy(m_contact);
    form->addRow(m_contactLabel, m_contact);
    company->addLayout(form);
    m_updates = new QCheckBox(this);
    m_updates->setObjectName(QStringLiteral("assiUpdateCheck"));
    company->addWidget(m_updates);
    company->addStretch();
    connect(m_company, &QLineEdit::textEdited, this, [this](const QString& t) { m_assi.setCompanyName(t); });
    connect(m_contact, &QPlainTextEdit::textChanged, this, [this] {
        if (m_contact->toPlainText() != m_assi.contact())
            m_assi.setContact(m_contact->toPlainText());
    });
    connect(m_updates, &QCheckBox::toggled, this, [this](bool on) { m_assi.setCheckForUpdates(on); });

    // Newsletter.
    QVBoxLayout* newsletter = page();
    m_newsletterText = paragraph(this);
    newsletter->addWidget(m_newsletterText);
    auto* emailRow = new QHBoxLayout;
    m_emailLabel = new QLabel(this);
    m_email = new QVRoundedTextField(this);
    m_email->setObjectName(QStringLiteral("assiSubscriptionField"));
    m_emailLabel->setBuddy(m_email);
    m_subscribe = new QPushButton(this);
    m_subscribe->setObjectName(QStringLiteral("assiSubscribeButton"));
    m_subscribe->setAutoDefault(false);
    m_busy = new QProgressBar(this);
    m_busy->setRange(0, 0);
    m_busy->setFixedWidth(60);
    m_busy->setTextVisible(false);
    m_busy->hide();
    emailRow->addWidget(m_emailLabel);
    emailRow->addWidget(m_email, 1);
    emailRow->addWidget(m_subscribe);
    emailRow->addWidget(m_busy);
    newsletter->addLayout(emailRow);
    newsletter->addStretch();
    connect(m_email, &QLineEdit::textEdited, &m_assi, &AssiController::setSubscriptionEmail);
    connect(m_email, &QLineEdit::returnPressed, m_subscribe, &QPushButton::click);
    connect(m_subscribe, &QPushButton::clicked, this, [this] { m_assi.subscribeAction(); });

    // The end.
    QVBoxLayout* finish = page();
    m_finishText = paragraph(this);
    finish->addWidget(m_finishText);
    finish->addStretch();

    m_step = new QLabel(this);
    m_quit = new QPushButton(this);
    m_quit->setObjectName(QStringLiteral("assiQuitButton"));
    m_quit->setAutoDefault(false);
    m_continue = new QPushButton(this);
    m_continue->setObjectName(QStringLiteral("assiContinueButton"));
    m_continue->setDefault(true);
    QHBoxLayout* bar = barLayout();
    bar->addWidget(m_quit);
    bar->addStretch();
    bar->addWidget(m_step);
    bar->addSpacing(12);
    bar->addWidget(m_continue);
    connect(m_quit, &QPushButton::clicked, this, [this] { m_assi.quitAssi(); });
    connect(m_continue, &QPushButton::clicked, this, &AssistantSheet::continueAction);

    setTabOrder(m_language, m_company);
    setTabOrder(m_company, m_contact);
    setTabOrder(m_contact, m_updates);
    setTabOrder(m_updates, m_email);
    setTabOrder(m_email, m_subscribe);
    setTabOrder(m_subscribe, m_quit);
    setTabOrder(m_quit, m_continue);
}

void AssistantSheet::retranslate()
{
    setWindowTitle(tr("Vorn Setup Assistant"));
    setAccessibleName(windowTitle());
    static const char* const titles[] = {QT_TR_NOOP("Welcome to Vorn"), QT_TR_NOOP("Your Business"),
                                         QT_TR_NOOP("Stay Informed"), QT_TR_NOOP("All Set")};
    m_title->setText(tr(titles[qBound(0, m_pages->currentIndex(), 3)]));
    m_languageText->setText(tr(
        "Choose your language. Vorn writes its default texts in it: the words printed on your invoices and "
        "quotes, the payment terms, the tax names and the number patterns. Its windows use it too.\n\n"
        "Running the assistant again replaces your own texts with these defaults."));
    m_languageLabel->setText(tr("&Language:"));
    m_language->setAccessibleName(tr("Language"));
    m_companyText->setText(
        tr("Who writes the invoices? Your company name and your contact details go into your documents; you "
           "can change them later in the preferences."));
    m_companyLabel->setText(tr("&Company name:"));
    m_company->setAccessibleName(tr("Company name"));
    m_contactLabel->setText(tr("C&ontact:"));
    m_contact->setAccessibleName(tr("Contact"));
    m_updates->setText(tr("Check for &updates once a day when Vorn starts"));
    m_updates->setAccessibleName(tr("Check for updates once a day when Vorn starts"));
    m_newsletterText->setText(tr("Subscribe to the Vorn newsletter to hear about new versions and tips. We "
                                 "write rarely, and you can leave at any time. This page is optional."));
    m_emailLabel->setText(tr("&E-mail:"));
    m_email->setAccessibleName(tr("E-mail address"));
    m_email->setPlaceholderText(tr("name@example.com"));
    m_subscribe->setText(tr("&Subscribe"));
    m_subscribe->setAccessibleName(tr("Subscribe"));
    m_busy->setAccessibleName(tr("Subscribing"));
    m_finishText->setText(tr("Vorn is ready. Create your first invoice with the New Invoice button.\n\nYou "
                             "find this assistant again in the Help menu."));
    m_quit->setText(tr("&Quit Vorn"));
    m_quit->setAccessibleName(tr("Quit Vorn"));
    const bool last = m_pages->currentIndex() == AssiController::pageCount - 1;
    m_continue->setText(last ? tr("&Start Using Vorn") : tr("&Continue"));
    m_continue->setAccessibleName(last ? tr("Start Using Vorn") : tr("Continue"));
    m_step->setText(tr("Step %1 of %2").arg(m_pages->currentIndex() + 1).arg(AssiController::pageCount));
}

void AssistantSheet::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QVBottomBarWindow::changeEvent(event);
}

void AssistantSheet::showPage(int index)
{
    m_pages->setCurrentIndex(index);
    switch (index) {
    case AssiController::LanguagePage:
        m_language->setCurrentIndex(qBound(0, m_assi.language(), 3));
        m_language->setFocus();
        break;
    case AssiController::CompanyPage:
        // The defaults just written may have filled these.
        m_company->setText(m_assi.companyName());
        m_contact->setPlainText(m_assi.contact());
        m_updates->setChecked(m_assi.checkForUpdates());
        m_company->setFocus();
        break;
    case AssiController::SubscriptionPage:
        m_email->setFocus();
        break;
    default:
        m_continue->setFocus();
        break;
    }
    retranslate();
}

void AssistantSheet::continueAction()
{
    switch (m_pages->currentIndex()) {
    case AssiController::LanguagePage:
        if (m_assi.firstAssiTabAction())
            Q_EMIT languageChosen(m_assi.language());
        break;
    case AssiController::CompanyPage:
        // The consent as the box shows it, ticked or not, is the answer.
        m_assi.setCheckForUpdates(m_updates->isChecked());
        m_assi.subscribeAssiTabAction();
        break;
    case AssiController::SubscriptionPage:
        m_assi.subscribeAssiTabAction();
        break;
    default:
        m_assi.closeAssi();
        Q_EMIT completed();
        break;
    }
}

void AssistantSheet::setVisibleBySheet(bool visible)
{
    if (!visible) {
        hide();
        return;
    }
    if (m_suggestedLanguage >= 0)
        m_assi.setLanguage(std::exchange(m_suggestedLanguage, -1));
    showPage(m_assi.pageIndex());
    if (parentWidget())
        move(parentWidget()->geometry().center() - rect().center());
    open();
}

} // namespace vorn
