#include "ui/ItemPopover.h"

#include "invoicing/ItemController.h"
#include "store/AppState.h"
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

ItemPopover::ItemPopover(AppState& state, ItemController& controller, QWidget* parent)
    : Popover(parent), m_state(state), m_controller(controller)
{
    setObjectName(QStringLiteral("itemPopover"));
    setAccessibleName(tr("New Item"));
    auto* layout = new QVBoxLayout(this);
    m_tabs = new QTabWidget;
    m_tabs->setAccessibleName(tr("Item source"));

    auto* entry = new QWidget;
    auto* form = newForm();
    entry->setLayout(form);
    const auto field = [](const char* name) {
        auto* e = new QLineEdit;
        e->setObjectName(QLatin1String(name));
        return e;
    };
    m_title = field("itemPopoverTitleView");
    m_subtitle = field("itemPopoverSubtitleView");
    m_unit = field("itemPopoverUnitView");
    m_sku = field("itemPopoverSKUView");
    m_note = field("itemPopoverNoteView");
    m_price = field("itemPopoverBaseAmountView");
    m_quantity = field("itemPopoverQuantityView");
    m_price->setAlignment(Qt::AlignRight);
    m_quantity->setAlignment(Qt::AlignRight);
    addFormRow(form, tr("&Title:"), m_title);
    addFormRow(form, tr("&Subtitle:"), m_subtitle);
    addFormRow(form, tr("&Quantity:"), m_quantity);
    addFormRow(form, tr("U&nit:"), m_unit);
    addFormRow(form, tr("Unit &price:"), m_price);
    addFormRow(form, tr("S&KU:"), m_sku);
    addFormRow(form, tr("N&ote:"), m_note);
    auto* taxes = new QHBoxLayout;
    for (int i = 0; i < 3; ++i) {
        m_tax[i] = new QCheckBox(tr("Tax %1").arg(i + 1));
        m_tax[i]->setObjectName(QStringLiteral("itemPopoverTax%1Button").arg(i + 1));
        taxes->addWidget(m_tax[i]);
    }
    taxes->addStretch(1);
    form->addRow(tr("Taxes:"), taxes);
    m_tabs->addTab(entry, tr("New Item"));

    m_recent = new QListWidget;
    m_recent->setObjectName(QStringLiteral("recentItemList"));
    m_recent->setAccessibleName(tr("Recent Items"));
    m_tabs->addTab(m_recent, tr("Recent Items"));
    layout->addWidget(m_tabs, 1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_add = buttons->addButton(tr("&Add Item"), QDialogButtonBox::AcceptRole);
    m_add->setObjectName(QStringLiteral("addItemButton"));
    m_add->setDefault(true);
    layout->addWidget(buttons);
    setMinimumWidth(420);

    ItemController::Popover& p = m_controller.popover();
    connect(m_title, &QLineEdit::textEdited, this, [&p](const QString& t) { p.title = t; });
    connect(m_subtitle, &QLineEdit::textEdited, this, [&p](const QString& t) { p.subtitle = t; });
    connect(m_unit, &QLineEdit::textEdited, this, [&p](const QString& t) { p.unit = t; });
    connect(m_sku, &QLineEdit::textEdited, this, [&p](const QString& t) { p.sku = t; });
    connect(m_note, &QLineEdit::textEdited, this, [&p](const QString& t) { p.note = t; });
    // The core reads the price text its own way; the user types it in their locale.
    connect(m_price, &QLineEdit::textEdited, this, [&p](const QString& t) {
        p.baseAmount = QString::number(double(DocumentFields::readNumber(t)), 'g', 9);
    });
    connect(m_quantity, &QLineEdit::textEdited, this,
            [this](const QString& t) { m_state.itemPopoverQuantity = DocumentFields::readNumber(t); });
    connect(m_tax[0], &QCheckBox::toggled, this, [&p](bool on) { p.tax1 = on; });
    connect(m_tax[1], &QCheckBox::toggled, this, [&p](bool on) { p.tax2 = on; });
    connect(m_tax[2], &QCheckBox::toggled, this, [&p](bool on) { p.tax3 = on; });
    connect(m_recent, &QListWidget::itemActivated, this, &ItemPopover::useRecent);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        if (m_tabs->currentIndex() == 1)
            useRecent();
        else
            m_controller.addItem();
    });
    connect(buttons, &QDialogButtonBox::rejected, &m_controller, &ItemController::closeItemPopover);
    connect(&m_controller, &ItemController::popoverChanged, this, &ItemPopover::sync);
    connect(m_tabs, &QTabWidget::currentChanged, this,
            [this](int index) { m_add->setText(index == 1 ? tr("&Use Item") : tr("&Add Item")); });
    connect(this, &Popover::dismissed, this, [this] {
        if (m_controller.popover().shown)
            m_controller.closeItemPopover();
    });
    setTabOrder(m_title, m_subtitle);
    setTabOrder(m_subtitle, m_quantity);
    setTabOrder(m_quantity, m_unit);
    setTabOrder(m_unit, m_price);
    setTabOrder(m_price, m_sku);
    setTabOrder(m_sku, m_note);
    setTabOrder(m_note, m_tax[0]);
    setTabOrder(m_tax[0], m_tax[1]);
    setTabOrder(m_tax[1], m_tax[2]);
}

void ItemPopover::fillRecent()
{
    m_recent->clear();
    for (const ManagedObject* r : m_state.recentItemsController().arrangedObjects()) {
        QString text = r->stringValue(key::title);
        if (!r->stringValue(key::subtitle).isEmpty())
            text += QStringLiteral(" — ") + r->stringValue(key::subtitle);
        text += QStringLiteral("\t") + DocumentFields::formatNumber(r->floatValue(key::baseAmount));
        new QListWidgetItem(text, m_recent);
    }
}

void ItemPopover::useRecent()
{
    const int row = m_recent->currentRow();
    const auto& recent = m_state.recentItemsController().arrangedObjects();
    if (row < 0 || row >= recent.size())
        return;
    m_state.recentItemsController().setSelectedObjects({recent[row]});
    m_controller.addItemRecent();
    m_tabs->setCurrentIndex(int(m_state.settings().intValue(key::itemTabViewIndex)));
    m_quantity->setFocus();
    m_quantity->selectAll();
}

void ItemPopover::sync()
{
    const ItemController::Popover& p = m_controller.popover();
    const Settings& s = m_state.settings();
    const QString enabled[3] = {key::tax1Enabled, key::tax2Enabled, key::tax3Enabled};
    const bool values[3] = {p.tax1, p.tax2, p.tax3};
    for (int i = 0; i < 3; ++i) {
        const QSignalBlocker block(m_tax[i]);
        m_tax[i]->setText(ItemsPage::taxTitle(s, i + 1));
        m_tax[i]->setVisible(s.boolValue(enabled[i]));
        m_tax[i]->setChecked(values[i]);
    }
    const auto set = [](QLineEdit* e, const QString& text) {
        if (e->text() != text)
            e->setText(text);
    };
    set(m_title, p.title);
    set(m_subtitle, p.subtitle);
    set(m_unit, p.unit);
    set(m_sku, p.sku);
    set(m_note, p.note);
    set(m_price, p.baseAmount.isEmpty() ? QString() : DocumentFields::formatNumber(p.baseAmount.toFloat()));
    if (DocumentFields::readNumber(m_quantity->text()) != m_state.itemPopoverQuantity ||
        m_quantity->text().isEmpty())
        m_quantity->setText(QLocale().toString(double(m_state.itemPopoverQuantity)));
    if (p.shown && !isVisible()) {
        fillRecent();
        m_tabs->setCurrentIndex(s.intValue(key::itemTabViewIndex) == 1 ? 1 : 0);
        showBelow();
        (m_tabs->currentIndex() == 1 ? static_cast<QWidget*>(m_recent) : m_title)->setFocus();
    } else if (!p.shown && isVisible()) {
        close();
    }
}

} // namespace vorn
