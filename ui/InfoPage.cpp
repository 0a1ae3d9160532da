#include "ui/InfoPage.h"

#include "app/AppDelegate.h"
#include "invoicing/InvoicingControllers.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "ui/DocumentFields.h"
#include "ui/DocumentListModel.h"
#include "ui/FormRow.h"
#include "ui/LockBanner.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>

namespace vorn {

namespace {

QWidget* row(std::initializer_list<QWidget*> widgets)
{
    auto* box = new QWidget;
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* w : widgets)
        layout->addWidget(w);
    layout->addStretch(1);
    return box;
}

QPlainTextEdit* multiLine(const char* name, int lines)
{
    auto* e = new QPlainTextEdit;
    e->setObjectName(QLatin1String(name));
    e->setFixedHeight(e->fontMetrics().lineSpacing() * lines + 12);
    return e;
}

} // namespace

InfoPage::InfoPage(AppDelegate& app, QWidget* parent) : QWidget(parent), m_app(app)
{
    setObjectName(QStringLiteral("infoPage"));
    setAccessibleName(tr("Info"));
    InvoicingControllers& invoicing = app.invoicing();
    m_fields = new DocumentFields(app.state(), invoicing.editor(), this);

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* banner = new LockBanner(app.state(), this);
    outer->addWidget(banner);
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* content = new QWidget;
    auto* form = newForm();
    auto* contentLayout = new QVBoxLayout(content);
    contentLayout->addLayout(form);
    contentLayout->addStretch(1);
    scroll->setWidget(content);
    outer->addWidget(scroll, 1);

    auto* number = new QLineEdit;
    number->setObjectName(QStringLiteral("numberView"));
    auto* nextNumber = new QPushButton(tr("Ne&xt Number"));
    nextNumber->setAccessibleName(tr("Next number"));
    nextNumber->setToolTip(tr("Number this document from the numbering pattern"));
    addFormRow(form, tr("&Number:"), row({number, nextNumber}));
    number->setAccessibleName(tr("Number"));
    number->setMinimumWidth(180);

    auto* title = new QLineEdit;
    title->setObjectName(QStringLiteral("titleView"));
    addFormRow(form, tr("&Title:"), title);

    auto* date = new QDateEdit;
    date->setObjectName(QStringLiteral("dateView"));
    addFormRow(form, tr("&Date:"), row({date}));
    date->setAccessibleName(tr("Date"));

    auto* due = new QDateEdit;
    due->setObjectName(QStringLiteral("dueView"));
    m_dueDays = new QSpinBox;
    m_dueDays->setObjectName(QStringLiteral("dueDaysView"));
    m_dueDays->setRange(-9999, 9999);
    m_dueDays->setSuffix(tr(" days from today"));
    m_dueDays->setAccessibleName(tr("Due in days from today"));
    m_dueDays->setKeyboardTracking(false);
    addFormRow(form, tr("D&ue date:"), row({due, m_dueDays}));
    due->setAccessibleName(tr("Due date"));

    m_status = new QComboBox;
    m_status->setObjectName(QStringLiteral("statusView"));
    for (int s = 0; s <= 4; ++s)
        m_status->addItem(DocumentListModel::statusText(s));
    addFormRow(form, tr("&Status:"), row({m_status}));
    m_status->setAccessibleName(tr("Status"));

    auto* paid = new QDateEdit;
    paid->setObjectName(QStringLiteral("paidView"));
    auto* paidAmount = new QLineEdit;
    paidAmount->setObjectName(QStringLiteral("paidAmountView"));
    paidAmount->setAccessibleName(tr("Paid amount"));
    paidAmount->setMaximumWidth(140);
    auto* paidAmountLabel = new QLabel(tr("Paid &amount:"));
    paidAmountLabel->setBuddy(paidAmount);
    m_paidLabel = addFormRow(form, tr("&Paid on:"), row({paid, paidAmountLabel, paidAmount}));
    paid->setAccessibleName(tr("Paid on"));

    auto* dispatched = new QCheckBox(tr("D&ispatched"));
    dispatched->setObjectName(QStringLiteral("isDispatchedView"));
    auto* dispatchNumber = new QLineEdit;
    dispatchNumber->setObjectName(QStringLiteral("dispatchedNumberView"));
    dispatchNumber->setAccessibleName(tr("Dispatch number"));
    dispatchNumber->setPlaceholderText(tr("Dispatch number"));
    auto* dispatchNow = new QPushButton(tr("Stamp &Now"));
    dispatchNow->setAccessibleName(tr("Mark as dispatched now"));
    auto* dispatchedDate = new QLabel;
    dispatchedDate->setObjectName(QStringLiteral("dispatchedDate"));
    addFormRow(form, tr("Dispatch:"), row({dispatched, dispatchNumber, dispatchNow, dispatchedDate}));
    dispatched->setAccessibleName(tr("Dispatched"));

    auto* currency = new QLineEdit;
    currency->setObjectName(QStringLiteral("currencyView"));
    currency->setMaximumWidth(120);
    addFormRow(form, tr("&Currency:"), row({currency}));
    currency->setAccessibleName(tr("Currency"));

    auto* notes = multiLine("notesView", 3);
    auto* conditions = multiLine("conditionsView", 4);
    auto* footer = multiLine("footerView", 3);
    addFormRow(form, tr("N&otes:"), notes);
    addFormRow(form, tr("Con&ditions:"), conditions);
    addFormRow(form, tr("&Footer:"), footer);

    // What an e-invoice needs to know about the buyer and the order; empty
    // unless the buyer asks for it.
    auto* eInvoice = new QLabel(tr("E-Invoice"));
    eInvoice->setObjectName(QStringLiteral("eInvoiceHeading"));
    QFont headingFont = eInvoice->font();
    headingFont.setBold(true);
    eInvoice->setFont(headingFont);
    eInvoice->setContentsMargins(0, 8, 0, 0);
    form->addRow(eInvoice);
    auto* buyerCountry = new QLineEdit;
    buyerCountry->setObjectName(QStringLiteral("buyerCountryCodeView"));
    buyerCountry->setMaximumWidth(120);
    buyerCountry->setPlaceholderText(tr("e.g. DE"));
    buyerCountry->setToolTip(tr("The buyer's country as a two-letter code"));
    addFormRow(form, tr("Buyer countr&y:"), row({buyerCountry}));
    buyerCountry->setAccessibleName(tr("Buyer country"));
    auto* buyerVat = new QLineEdit;
    buyerVat->setObjectName(QStringLiteral("buyerVatIDView"));
    buyerVat->setMaximumWidth(260);
    addFormRow(form, tr("&Buyer VAT ID:"), row({buyerVat}));
    buyerVat->setAccessibleName(tr("Buyer VAT ID"));
    auto* buyerReference = new QLineEdit;
    buyerReference->setObjectName(QStringLiteral("buyerReferenceView"));
    buyerReference->setToolTip(tr("The reference the buyer gave, for public bodies their Leitweg-ID"));
    addFormRow(form, tr("Buyer reference (&Leitweg-ID):"), buyerReference);
    auto* orderReference = new QLineEdit;
    orderReference->setObjectName(QStringLiteral("orderReferenceView"));
    addFormRow(form, tr("Order &reference:"), orderReference);

    m_fields->bindText(number, key::number);
    m_fields->bindText(title, key::title);
    m_fields->bindDate(date, key::date);
    m_fields->bindDate(due, key::due);
    m_fields->bindIndex(m_status, key::status);
    m_fields->bindDate(paid, key::paid);
    m_fields->bindNumber(paidAmount, key::paidAmount);
    m_fields->bindCheck(dispatched, key::isDispatched);
    m_fields->bindText(dispatchNumber, key::dispatchNumber);
    m_fields->bindText(currency, key::currency);
    m_fields->bindMultiLine(notes, key::notes);
    m_fields->bindMultiLine(conditions, key::conditions);
    m_fields->bindMultiLine(footer, key::footer);
    m_fields->bindText(buyerCountry, key::buyerCountryCode);
    m_fields->bindText(buyerVat, key::buyerVatID);
    m_fields->bindText(buyerReference, key::buyerReference);
    m_fields->bindText(orderReference, key::orderReference);

    connect(nextNumber, &QPushButton::clicked, this, [this, &invoicing] {
        const ManagedObject* doc = m_app.state().currentInvoice();
        if (!doc)
            return;
        invoicing.editor().setDocumentValue(key::number, doc->isQuote()
                                                             ? invoicing.numbering().quoteNumberString()
                                                             : invoicing.numbering().invoiceNumberString());
    });
    connect(m_dueDays, &QSpinBox::valueChanged, this, [this, &invoicing](int days) {
        invoicing.editor().setDocumentValue(key::due, invoicing.editor().dateDaysFromToday(days));
    });
    connect(dispatchNow, &QPushButton::clicked, &invoicing.data(), &DataController::setDispatched);
    const auto showDispatched = [this, dispatchedDate] {
        const ManagedObject* doc = m_app.state().currentInvoice();
        const QDateTime when = doc ? doc->dateValue(key::dispatched) : QDateTime();
        dispatchedDate->setText(when.isValid() ? QLocale().toString(when.toLocalTime(), QLocale::ShortFormat)
                                               : QString());
    };
    // What the page shows beside the bound fields.
    const auto showDerived = [this, showDispatched] {
        showDueDays();
        showRelevance();
        showDispatched();
    };
    connect(m_fields, &DocumentFields::documentChanged, this, showDerived);
    connect(&app.state(), &AppState::currentInvoiceChanged, this, showDerived);
    connect(&app.state(), &AppState::currentInvoiceValueChanged, this, [showDispatched](const QString& k) {
        if (k == key::dispatched)
            showDispatched();
    });
    showDueDays();
    showRelevance();
    setTabOrder(number, nextNumber);
    setTabOrder(nextNumber, title);
    setTabOrder(title, date);
    setTabOrder(date, due);
    setTabOrder(due, m_dueDays);
    setTabOrder(m_dueDays, m_status);
    setTabOrder(m_status, paid);
    setTabOrder(paid, paidAmount);
    setTabOrder(paidAmount, dispatched);
    setTabOrder(dispatched, dispatchNumber);
    setTabOrder(dispatchNumber, dispatchNow);
    setTabOrder(dispatchNow, currency);
    setTabOrder(currency, notes);
    setTabOrder(notes, conditions);
    setTabOrder(conditions, footer);
    setTabOrder(footer, buyerCountry);
    setTabOrder(buyerCountry, buyerVat);
    setTabOrder(buyerVat, buyerReference);
    setTabOrder(buyerReference, orderReference);
}

void InfoPage::showDueDays()
{
    const ManagedObject* doc = m_app.state().currentInvoice();
    const QSignalBlocker block(m_dueDays);
    const QDateTime due = doc ? doc->dateValue(key::due) : QDateTime();
    m_dueDays->setValue(due.isValid() ? int(m_app.invoicing().editor().daysFromToday(due)) : 0);
    m_dueDays->setEnabled(doc && m_app.invoicing().editor().isEditable(key::due));
}

void InfoPage::showRelevance()
{
    const ManagedObject* doc = m_app.state().currentInvoice();
    // Quotes are not paid; their status is only "Created" or "Sent".
    const bool invoice = doc && !doc->isQuote();
    m_status->setToolTip(invoice ? QString()
                                 : tr("Quotes are not paid; convert the quote into an invoice first."));
}

} // namespace vorn
