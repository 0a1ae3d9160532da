#include "ui/AddressPopover.h"

#include "invoicing/AddressController.h"
#include "store/AppState.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "ui/FormRow.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace vorn {

AddressPopover::AddressPopover(AppState& state, AddressController& controller, QWidget* parent)
    : Popover(parent), m_state(state), m_controller(controller)
{
    setObjectName(QStringLiteral("addressPopover"));
    setAccessibleName(tr("Client Address"));
    auto* layout = new QVBoxLayout(this);

    m_tabs = new QTabWidget;
    m_tabs->setAccessibleName(tr("Address source"));
    auto* contactsPage = new QWidget;
    auto* contactsLayout = new QVBoxLayout(contactsPage);
    m_search = new QLineEdit;
    m_search->setPlaceholderText(tr("Search contacts"));
    m_search->setAccessibleName(tr("Search contacts"));
    m_search->setClearButtonEnabled(true);
    m_contacts = new QListWidget;
    m_contacts->setObjectName(QStringLiteral("contactList"));
    m_contacts->setAccessibleName(tr("Contacts"));
    m_notes = new QLabel;
    m_notes->setWordWrap(true);
    m_notes->setObjectName(QStringLiteral("contactNotes"));
    auto* openContacts = new QPushButton(tr("Open Contacts Application"));
    contactsLayout->addWidget(m_search);
    contactsLayout->addWidget(m_contacts, 1);
    contactsLayout->addWidget(m_notes);
    contactsLayout->addWidget(openContacts, 0, Qt::AlignLeft);
    m_tabs->addTab(contactsPage, tr("Contacts"));

    m_recent = new QListWidget;
    m_recent->setObjectName(QStringLiteral("recentAddressList"));
    m_recent->setAccessibleName(tr("Recent Addresses"));
    m_recent->setWordWrap(true);
    m_tabs->addTab(m_recent, tr("Recent Addresses"));
    layout->addWidget(m_tabs, 1);

    auto* form = newForm();
    m_address = new QPlainTextEdit;
    m_address->setObjectName(QStringLiteral("addressViewPopover"));
    m_address->setTabChangesFocus(true);
    m_address->setFixedHeight(m_address->fontMetrics().lineSpacing() * 5 + 12);
    m_email = new QLineEdit;
    m_email->setObjectName(QStringLiteral("emailAddressViewPopover"));
    m_clientNumber = new QLineEdit;
    m_clientNumber->setObjectName(QStringLiteral("clientNumberViewPopover"));
    auto* generate = new QPushButton(tr("&Generate"));
    generate->setAccessibleName(tr("Generate client number"));
    auto* numberRow = new QHBoxLayout;
    numberRow->addWidget(m_clientNumber, 1);
    numberRow->addWidget(generate);
    auto* numberBox = new QWidget;
    numberBox->setLayout(numberRow);
    numberRow->setContentsMargins(0, 0, 0, 0);
    addFormRow(form, tr("&Address:"), m_address);
    addFormRow(form, tr("&E-mail:"), m_email);
    addFormRow(form, tr("Client &number:"), numberBox);
    m_clientNumber->setAccessibleName(tr("Client number"));
    layout->addLayout(form);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* use = buttons->addButton(tr("&Use Address"), QDialogButtonBox::AcceptRole);
    use->setObjectName(QStringLiteral("useAddressButton"));
    use->setDefault(true);
    layout->addWidget(buttons);
    setMinimumSize(460, 520);

    connect(m_search, &QLineEdit::textChanged, this, &AddressPopover::filterContacts);
    connect(m_contacts, &QListWidget::currentRowChanged, this, [this] {
        QListWidgetItem* item = m_contacts->currentItem();
        if (!item)
            return;
        m_controller.setPickerSelection({item->data(Qt::UserRole).toInt()});
        m_controller.selectAddressRecord();
    });
    connect(m_contacts, &QListWidget::itemActivated, this, &AddressPopover::accept);
    connect(m_recent, &QListWidget::itemActivated, this, &AddressPopover::accept);
    connect(m_recent, &QListWidget::currentRowChanged, this, [this](int row) {
        const auto& list = m_state.addressesController().arrangedObjects();
        if (row >= 0 && row < list.size())
            m_state.addressesController().setSelectedObjects({list[row]});
    });
    connect(m_address, &QPlainTextEdit::textChanged, this,
            [this] { m_controller.popover().address = m_address->toPlainText(); });
    connect(m_email, &QLineEdit::textEdited, this,
            [this](const QString& t) { m_controller.popover().emailAddress = t; });
    connect(m_clientNumber, &QLineEdit::textEdited, this,
            [this](const QString& t) { m_controller.popover().clientNumber = t; });
    connect(generate, &QPushButton::clicked, &m_controller, &AddressController::generateClientNumber);
    connect(openContacts, &QPushButton::clicked, &m_controller, &AddressController::contactsButtonAction);
    connect(buttons, &QDialogButtonBox::accepted, this, &AddressPopover::accept);
    connect(buttons, &QDialogButtonBox::rejected, &m_controller, &AddressController::closeAddressPopover);
    connect(&m_controller, &AddressController::popoverChanged, this, &AddressPopover::sync);
    connect(&m_controller, &AddressController::contactsChanged, this, &AddressPopover::fillContacts);
    connect(this, &Popover::dismissed, this, [this] {
        if (m_controller.popover().shown)
            m_controller.closeAddressPopover();
    });
    setTabOrder(m_tabs, m_search);
    setTabOrder(m_search, m_contacts);
    setTabOrder(m_contacts, m_address);
    setTabOrder(m_address, m_email);
    setTabOrder(m_email, m_clientNumber);
    setTabOrder(m_clientNumber, generate);
}

void AddressPopover::fillContacts()
{
    m_contacts->clear();
    const QList<Contact>& contacts = m_controller.contacts();
    for (int i = 0; i < contacts.size(); ++i) {
        const Contact& c = contacts[i];
        QString text = c.displayName();
        if (!c.organization.isEmpty() && !text.contains(c.organization))
            text += QStringLiteral(" — ") + c.organization;
        auto* item = new QListWidgetItem(text, m_contacts);
        item->setData(Qt::UserRole, i);
    }
    QStringList notes = m_controller.contactNotes();
    if (contacts.isEmpty() && notes.isEmpty())
        notes << tr("No contacts found. Vorn reads vCard files from the contacts folder set in the "
                    "preferences.");
    m_notes->setText(notes.join(QLatin1Char('\n')));
    m_notes->setVisible(!notes.isEmpty());
    filterContacts(m_search->text());
}

void AddressPopover::filterContacts(const QString& text)
{
    for (int i = 0; i < m_contacts->count(); ++i)
        m_contacts->item(i)->setHidden(!text.isEmpty() &&
                                       !m_contacts->item(i)->text().contains(text, Qt::CaseInsensitive));
}

void AddressPopover::fillRecent()
{
    m_recent->clear();
    for (const ManagedObject* a : m_state.addressesController().arrangedObjects()) {
        auto* item = new QListWidgetItem(a->stringValue(key::address).trimmed(), m_recent);
        item->setToolTip(a->stringValue(key::emailAddress));
    }
}

void AddressPopover::sync()
{
    const AddressController::Popover& p = m_controller.popover();
    if (m_address->toPlainText() != p.address)
        m_address->setPlainText(p.address);
    if (m_email->text() != p.emailAddress)
        m_email->setText(p.emailAddress);
    if (m_clientNumber->text() != p.clientNumber)
        m_clientNumber->setText(p.clientNumber);
    if (p.shown && !isVisible()) {
        fillRecent();
        m_search->clear();
        m_tabs->setCurrentIndex(m_state.settings().intValue(key::addressTabViewIndex) == 1 ? 1 : 0);
        showBelow();
        (m_tabs->currentIndex() == 1 ? static_cast<QWidget*>(m_recent) : m_search)->setFocus();
    } else if (!p.shown && isVisible()) {
        close();
    }
}

void AddressPopover::accept()
{
    if (m_tabs->currentIndex() == 1 && m_recent->currentRow() >= 0)
        m_controller.selectRecentAdress();
    else
        m_controller.selectAddress();
}

} // namespace vorn
