#include "ui/AddressPage.h"

#include "app/AppDelegate.h"
#include "invoicing/InvoicingControllers.h"
#include "store/Keys.h"
#include "ui/AddressPopover.h"
#include "ui/DocumentFields.h"
#include "ui/FormRow.h"
#include "ui/LockBanner.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vorn {

AddressPage::AddressPage(AppDelegate& app, QWidget* parent) : QWidget(parent), m_app(app)
{
    setObjectName(QStringLiteral("addressPage"));
    setAccessibleName(tr("Address"));
    InvoicingControllers& invoicing = app.invoicing();
    m_fields = new DocumentFields(app.state(), invoicing.editor(), this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new LockBanner(app.state(), this));
    auto* form = newForm();

    m_address = new QPlainTextEdit;
    m_address->setObjectName(QStringLiteral("addressView"));
    m_address->setMinimumHeight(m_address->fontMetrics().lineSpacing() * 6 + 12);
    m_choose = new QPushButton(tr("&Choose Address…"));
    m_choose->setObjectName(QStringLiteral("chooseAddressButton"));
    auto* addressBox = new QWidget;
    auto* addressLayout = new QVBoxLayout(addressBox);
    addressLayout->setContentsMargins(0, 0, 0, 0);
    addressLayout->addWidget(m_address);
    addressLayout->addWidget(m_choose, 0, Qt::AlignLeft);
    addFormRow(form, tr("Client &address:"), addressBox);
    m_address->setAccessibleName(tr("Client address"));

    auto* email = new QLineEdit;
    email->setObjectName(QStringLiteral("emailAddressView"));
    addFormRow(form, tr("&E-mail:"), email);

    auto* clientNumber = new QLineEdit;
    clientNumber->setObjectName(QStringLiteral("clientNumberView"));
    auto* generate = new QPushButton(tr("&Generate"));
    generate->setAccessibleName(tr("Generate client number"));
    auto* numberBox = new QWidget;
    auto* numberLayout = new QHBoxLayout(numberBox);
    numberLayout->setContentsMargins(0, 0, 0, 0);
    numberLayout->addWidget(clientNumber, 1);
    numberLayout->addWidget(generate);
    addFormRow(form, tr("Client &number:"), numberBox);
    clientNumber->setAccessibleName(tr("Client number"));

    m_subject = new QLineEdit;
    m_subject->setObjectName(QStringLiteral("subjectView"));
    addFormRow(form, tr("&Subject:"), m_subject);
    layout->addLayout(form);
    layout->addStretch(1);

    m_fields->bindMultiLine(m_address, key::address);
    m_fields->bindText(email, key::emailAddress);
    m_fields->bindText(clientNumber, key::clientNumber);
    m_fields->bindText(m_subject, key::subject);

    m_popover = new AddressPopover(app.state(), invoicing.addresses(), this);
    m_popover->setAnchor(m_choose);
    connect(m_choose, &QPushButton::clicked, this, [this, &invoicing] {
        m_fields->commitFocused();
        invoicing.addresses().showAddressPopover();
    });
    connect(generate, &QPushButton::clicked, this, [this, &invoicing, clientNumber] {
        invoicing.editor().setDocumentValue(key::clientNumber, invoicing.numbering().clientNumberString());
        clientNumber->setFocus();
    });
    setTabOrder(m_address, m_choose);
    setTabOrder(m_choose, email);
    setTabOrder(email, clientNumber);
    setTabOrder(clientNumber, generate);
    setTabOrder(generate, m_subject);
}

} // namespace vorn
