#include "ui/DiscountPopover.h"

#include "app/AppDelegate.h"
#include "invoicing/InvoicingControllers.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "ui/DocumentFields.h"
#include "ui/FormRow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vorn {

DiscountPopover::DiscountPopover(AppDelegate& app, QWidget* parent) : Popover(parent), m_app(app)
{
    setObjectName(QStringLiteral("discountPopover"));
    setAccessibleName(tr("Discount"));
    InvoicingControllers& invoicing = app.invoicing();
    m_fields = new DocumentFields(app.state(), invoicing.editor(), this);
    auto* layout = new QVBoxLayout(this);
    auto* form = newForm();
    m_title = new QLineEdit;
    m_title->setObjectName(QStringLiteral("discountPopoverTitleView"));
    auto* subtitle = new QLineEdit;
    subtitle->setObjectName(QStringLiteral("discountPopoverSubtitleView"));
    auto* hasSubtitle = new QCheckBox(tr("Show s&ubtitle"));
    m_kind = new QComboBox;
    m_kind->addItems({tr("Fixed amount"), tr("Percentage of the total")});
    m_percent = new QLineEdit;
    m_percent->setObjectName(QStringLiteral("discountPopoverPercentView"));
    m_amount = new QLineEdit;
    m_amount->setObjectName(QStringLiteral("discountPopoverAmountView"));
    addFormRow(form, tr("&Title:"), m_title);
    addFormRow(form, tr("&Subtitle:"), subtitle);
    form->addRow(QString(), hasSubtitle);
    addFormRow(form, tr("&Kind:"), m_kind);
    addFormRow(form, tr("&Percent:"), m_percent);
    addFormRow(form, tr("A&mount:"), m_amount);
    layout->addLayout(form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* remove = buttons->addButton(tr("&No Discount"), QDialogButtonBox::DestructiveRole);
    QPushButton* ok = buttons->addButton(tr("&Give Discount"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("acceptDiscountButton"));
    ok->setDefault(true);
    layout->addWidget(buttons);
    setMinimumWidth(400);

    m_fields->bindText(m_title, key::discountTitle);
    m_fields->bindText(subtitle, key::discountSubtitle);
    m_fields->bindCheck(hasSubtitle, key::hasDiscountSubtitle);
    m_fields->bindIndex(m_kind, key::discountKind);
    m_fields->bindNumber(m_percent, key::discountPercent, 100.0f);
    m_fields->bindNumber(m_amount, key::discountAmount);
    connect(m_fields, &DocumentFields::documentChanged, this, &DiscountPopover::showKind);
    connect(m_title, &QLineEdit::returnPressed, &invoicing.discount(),
            &DiscountController::makeDiscountSubtitleTitleResponder);
    connect(buttons, &QDialogButtonBox::accepted, this, &DiscountPopover::accept);
    connect(buttons, &QDialogButtonBox::rejected, &invoicing.discount(),
            &DiscountController::closeDiscountPopover);
    connect(remove, &QPushButton::clicked, this, [&invoicing] {
        if (invoicing.discount().switchDiscountOff())
            invoicing.discount().closeDiscountPopover();
    });
    connect(&invoicing.discount(), &DiscountController::popoverChanged, this, &DiscountPopover::sync);
    connect(this, &Popover::dismissed, this, [&invoicing] {
        if (invoicing.discount().isDiscountPopoverShown())
            invoicing.discount().closeDiscountPopover();
    });
    setTabOrder(m_title, subtitle);
    setTabOrder(subtitle, hasSubtitle);
    setTabOrder(hasSubtitle, m_kind);
    setTabOrder(m_kind, m_percent);
    setTabOrder(m_percent, m_amount);
}

void DiscountPopover::showKind()
{
    const ManagedObject* doc = m_app.state().currentInvoice();
    const bool percent = doc && doc->intValue(key::discountKind) != 0;
    m_percent->setEnabled(percent && !m_percent->isReadOnly());
    m_amount->setEnabled(!percent && !m_amount->isReadOnly());
}

void DiscountPopover::accept()
{
    m_fields->commitFocused();
    m_app.invoicing().editor().setDocumentValue(key::isDiscountEnabled, true);
    m_app.invoicing().discount().closeDiscountPopover();
}

void DiscountPopover::sync()
{
    const bool shown = m_app.invoicing().discount().isDiscountPopoverShown();
    if (shown && !isVisible()) {
        m_fields->refresh();
        showKind();
        showBelow();
        m_title->setFocus();
    } else if (!shown && isVisible()) {
        close();
    }
}

} // namespace vorn
