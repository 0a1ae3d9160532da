#include "ui/ShippingPopover.h"

#include "app/AppDelegate.h"
#include "invoicing/InvoicingControllers.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "ui/DocumentFields.h"
#include "ui/FormRow.h"
#include "ui/ItemsPage.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace vorn {

ShippingPopover::ShippingPopover(AppDelegate& app, QWidget* parent) : Popover(parent), m_app(app)
{
    setObjectName(QStringLiteral("shippingPopover"));
    setAccessibleName(tr("Shipping"));
    InvoicingControllers& invoicing = app.invoicing();
    m_fields = new DocumentFields(app.state(), invoicing.editor(), this);
    auto* layout = new QVBoxLayout(this);
    m_tabs = new QTabWidget;
    m_tabs->setAccessibleName(tr("Shipping source"));

    auto* entry = new QWidget;
    auto* form = newForm();
    entry->setLayout(form);
    m_title = new QLineEdit;
    m_title->setObjectName(QStringLiteral("shippingPopoverTitleView"));
    auto* subtitle = new QLineEdit;
    subtitle->setObjectName(QStringLiteral("shippingPopoverSubtitleView"));
    auto* hasSubtitle = new QCheckBox(tr("Show s&ubtitle"));
    hasSubtitle->setObjectName(QStringLiteral("shippingPopoverHasSubtitleButton"));
    m_amount = new QLineEdit;
    m_amount->setObjectName(QStringLiteral("shippingPopoverAmountView"));
    m_note = new QLineEdit;
    m_note->setObjectName(QStringLiteral("shippingPopoverNoteView"));
    addFormRow(form, tr("&Title:"), m_title);
    addFormRow(form, tr("&Subtitle:"), subtitle);
    form->addRow(QString(), hasSubtitle);
    addFormRow(form, tr("A&mount:"), m_amount);
    addFormRow(form, tr("N&ote:"), m_note);
    auto* taxes = new QHBoxLayout;
    const QString keys[3] = {key::isShippingTax1Enabled, key::isShippingTax2Enabled,
                             key::isShippingTax3Enabled};
    for (int i = 0; i < 3; ++i) {
        m_tax[i] = new QCheckBox(tr("Tax %1").arg(i + 1));
        m_tax[i]->setObjectName(QStringLiteral("shippingPopoverTax%1Button").arg(i + 1));
        taxes->addWidget(m_tax[i]);
        m_fields->bindCheck(m_tax[i], keys[i]);
    }
    taxes->addStretch(1);
    form->addRow(tr("Taxes:"), taxes);
    m_tabs->addTab(entry, tr("Shipping"));

    m_recent = new QListWidget;
    m_recent->setObjectName(QStringLiteral("recentShippingList"));
    m_recent->setAccessibleName(tr("Recent Shipping"));
    m_tabs->addTab(m_recent, tr("Recent Shipping"));
    layout->addWidget(m_tabs, 1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* remove = buttons->addButton(tr("&No Shipping"), QDialogButtonBox::DestructiveRole);
    QPushButton* ok = buttons->addButton(tr("&Charge Shipping"), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("acceptShippingButton"));
    ok->setDefault(true);
    layout->addWidget(buttons);
    setMinimumWidth(420);

    m_fields->bindText(m_title, key::shippingTitle);
    m_fields->bindText(subtitle, key::shippingSubtitle);
    m_fields->bindCheck(hasSubtitle, key::hasShippingSubtitle);
    m_fields->bindNumber(m_amount, key::shippingAmount);
    connect(m_note, &QLineEdit::textEdited, this,
            [&invoicing](const QString& t) { invoicing.shipping().note() = t; });
    // Return in the title leads on to the amount.
    connect(m_title, &QLineEdit::returnPressed, &invoicing.shipping(),
            &ShippingController::makeShippingTitleResponder);
    connect(m_recent, &QListWidget::itemActivated, this, &ShippingPopover::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &ShippingPopover::accept);
    connect(buttons, &QDialogButtonBox::rejected, &invoicing.shipping(),
            &ShippingController::cancelShippingPopover);
    connect(remove, &QPushButton::clicked, this, [&invoicing] {
        if (invoicing.shipping().switchShippingOff())
            invoicing.shipping().cancelShippingPopover();
    });
    connect(&invoicing.shipping(), &ShippingController::popoverChanged, this, &ShippingPopover::sync);
    connect(this, &Popover::dismissed, this, [&invoicing] {
        if (invoicing.shipping().isShippingPopoverShown())
            invoicing.shipping().cancelShippingPopover();
    });
    setTabOrder(m_title, subtitle);
    setTabOrder(subtitle, hasSubtitle);
    setTabOrder(hasSubtitle, m_amount);
    setTabOrder(m_amount, m_note);
}

void ShippingPopover::fillRecent()
{
    m_recent->clear();
    for (const ManagedObject* r : m_app.state().recentShippingArrayController().arrangedObjects())
        new QListWidgetItem(r->stringValue(key::title) + QStringLiteral("\t") +
                                DocumentFields::formatNumber(r->floatValue(key::amount)),
                            m_recent);
}

void ShippingPopover::accept()
{
    InvoicingControllers& invoicing = m_app.invoicing();
    const auto& recent = m_app.state().recentShippingArrayController().arrangedObjects();
    if (m_tabs->currentIndex() == 1) {
        const int row = m_recent->currentRow();
        if (row < 0 || row >= recent.size())
            return;
        m_app.state().recentShippingArrayController().setSelectedObjects({recent[row]});
        invoicing.shipping().selectRecentShipping();
        return;
    }
    m_fields->commitFocused();
    // Accepting the entry page is what switches the charge on.
    invoicing.editor().setDocumentValue(key::isShippingEnabled, true);
    invoicing.shipping().closeShippingPopover();
}

void ShippingPopover::sync()
{
    const bool shown = m_app.invoicing().shipping().isShippingPopoverShown();
    if (shown && !isVisible()) {
        // The taxes as the settings name and switch them now.
        const Settings& s = m_app.settings();
        const QString enabled[3] = {key::tax1Enabled, key::tax2Enabled, key::tax3Enabled};
        for (int i = 0; i < 3; ++i) {
            m_tax[i]->setText(ItemsPage::taxTitle(s, i + 1));
            m_tax[i]->setVisible(s.boolValue(enabled[i]));
        }
        m_fields->refresh();
        fillRecent();
        m_note->setText(m_app.invoicing().shipping().note());
        m_tabs->setCurrentIndex(m_app.settings().intValue(key::shippingTabViewIndex) == 1 ? 1 : 0);
        showBelow();
        (m_tabs->currentIndex() == 1 ? static_cast<QWidget*>(m_recent) : m_title)->setFocus();
    } else if (!shown && isVisible()) {
        close();
    }
}

} // namespace vorn
