#include "ui/ItemsPage.h"

#include "app/AppDelegate.h"
#include "invoicing/InvoicingControllers.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"
#include "ui/DiscountPopover.h"
#include "ui/DocumentFields.h"
#include "ui/ItemCellView.h"
#include "ui/ItemPopover.h"
#include "ui/ItemTableModel.h"
#include "ui/LockBanner.h"
#include "ui/SelectionSync.h"
#include "ui/ShippingPopover.h"

#include <QHeaderView>
#include <QLabel>
#include <QStyle>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace vorn {

namespace {

QToolButton* toolButton(const QString& name, const char* theme, QStyle::StandardPixmap fallback,
                        const QString& text, QWidget* parent)
{
    auto* b = new QToolButton(parent);
    b->setObjectName(name);
    b->setIcon(QIcon::fromTheme(QLatin1String(theme), parent->style()->standardIcon(fallback)));
    b->setText(text);
    b->setAccessibleName(QString(text).remove(QLatin1Char('&')).remove(QStringLiteral("…")));
    b->setToolTip(b->accessibleName());
    b->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    b->setFocusPolicy(Qt::StrongFocus);
    return b;
}

} // namespace

ItemsPage::ItemsPage(AppDelegate& app, QWidget* parent) : QWidget(parent), m_app(app)
{
    setObjectName(QStringLiteral("itemsPage"));
    setAccessibleName(tr("Items"));
    InvoicingControllers& invoicing = app.invoicing();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new LockBanner(app.state(), this));

    auto* buttons = new QHBoxLayout;
    m_add = toolButton(QStringLiteral("addItemToolButton"), "list-add", QStyle::SP_FileDialogNewFolder,
                       tr("Add Item…"), this);
    m_delete = toolButton(QStringLiteral("deleteItemToolButton"), "list-remove", QStyle::SP_TrashIcon,
                          tr("Delete Item"), this);
    m_shipping = toolButton(QStringLiteral("shippingButton"), "mail-send", QStyle::SP_ArrowRight,
                            tr("Shipping…"), this);
    m_discount = toolButton(QStringLiteral("discountButton"), "view-financial-account-savings",
                            QStyle::SP_ArrowDown, tr("Discount…"), this);
    buttons->addWidget(m_add);
    buttons->addWidget(m_delete);
    buttons->addStretch(1);
    buttons->addWidget(m_shipping);
    buttons->addWidget(m_discount);
    layout->addLayout(buttons);

    m_model = new ItemTableModel(app, this);
    m_table = new QTableView(this);
    m_table->setObjectName(QStringLiteral("itemsTableView"));
    m_table->setAccessibleName(tr("Items"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setDragEnabled(true);
    m_table->setAcceptDrops(true);
    m_table->setDropIndicatorShown(true);
    m_table->setDragDropOverwriteMode(false);
    m_table->setDragDropMode(QAbstractItemView::DragDrop);
    m_table->setDefaultDropAction(Qt::MoveAction);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                             QAbstractItemView::AnyKeyPressed);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->setWordWrap(false);
    QHeaderView* header = m_table->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setSectionResizeMode(ItemTableModel::TitleColumn, QHeaderView::Stretch);
    // The title cell shows and edits the subtitle beneath the title.
    m_table->setItemDelegateForColumn(ItemTableModel::TitleColumn, new ItemCellView(m_table));
    m_table->setColumnHidden(ItemTableModel::SubtitleColumn, true);
    m_table->verticalHeader()->setDefaultSectionSize(ItemCellView::rowHeight(m_table->font()));
    // Wide enough for the header in every language ("Precio unitario").
    for (int c : {ItemTableModel::QuantityColumn, ItemTableModel::UnitColumn, ItemTableModel::PriceColumn,
                  ItemTableModel::NetColumn})
        header->resizeSection(c, qMax(90, header->sectionSizeHint(c)));
    for (int c : {ItemTableModel::Tax1Column, ItemTableModel::Tax2Column, ItemTableModel::Tax3Column})
        header->resizeSection(c, qMax(70, header->sectionSizeHint(c)));
    layout->addWidget(m_table, 1);
    m_selectionSync = new SelectionSync(*m_model, *m_table, this);

    m_totals = new QLabel(this);
    m_totals->setObjectName(QStringLiteral("documentAmounts"));
    m_totals->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_totals->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_totals->setWordWrap(true);
    layout->addWidget(m_totals);

    m_itemPopover = new ItemPopover(app.state(), invoicing.items(), this);
    m_shippingPopover = new ShippingPopover(app, this);
    m_discountPopover = new DiscountPopover(app, this);
    m_itemPopover->setAnchor(m_add);
    m_shippingPopover->setAnchor(m_shipping);
    m_discountPopover->setAnchor(m_discount);

    connect(m_add, &QToolButton::clicked, &invoicing.items(), &ItemController::showItemPopover);
    connect(m_delete, &QToolButton::clicked, &invoicing.items(), &ItemController::deleteItem);
    connect(m_shipping, &QToolButton::clicked, &invoicing.shipping(),
            &ShippingController::showShippingPopover);
    connect(m_discount, &QToolButton::clicked, &invoicing.discount(),
            &DiscountController::showDiscountPopover);
    connect(&invoicing.items(), &ItemController::scrollToRow, this, [this](int row) {
        if (row >= 0)
            m_table->scrollTo(m_model->index(row, 0));
    });
    AppState& state = app.state();
    connect(&state, &AppState::currentInvoiceChanged, this, &ItemsPage::updateTotals);
    connect(&state, &AppState::currentInvoiceChanged, this, &ItemsPage::updateButtons);
    connect(&state.itemsController(), &ArrayController::selectionChanged, this, &ItemsPage::updateButtons);
    connect(&state, &AppState::contextChanged, this, &ItemsPage::updateTotals);
    connect(&state, &AppState::currentInvoiceValueChanged, this, [this](const QString& k) {
        updateTotals();
        if (k == key::status)
            updateButtons();
    });
    connect(&app.settings(), &Settings::valueChanged, this, [this](const QString& k) {
        if (k.startsWith(QLatin1String("tax")))
            updateTaxColumns();
    });
    updateTaxColumns();
    updateTotals();
    updateButtons();
    setTabOrder(m_add, m_delete);
    setTabOrder(m_delete, m_shipping);
    setTabOrder(m_shipping, m_discount);
    setTabOrder(m_discount, m_table);
}

QString ItemsPage::taxTitle(const Settings& settings, int tax)
{
    static const QString* const titles[3] = {&key::tax1Title, &key::tax2Title, &key::tax3Title};
    const QString title = tax >= 1 && tax <= 3 ? settings.stringValue(*titles[tax - 1]) : QString();
    return title.isEmpty() ? tr("Tax %1").arg(tax) : title;
}

void ItemsPage::updateTaxColumns()
{
    const Settings& s = m_app.settings();
    m_table->setColumnHidden(ItemTableModel::Tax1Column, !s.boolValue(key::tax1Enabled));
    m_table->setColumnHidden(ItemTableModel::Tax2Column, !s.boolValue(key::tax2Enabled));
    m_table->setColumnHidden(ItemTableModel::Tax3Column, !s.boolValue(key::tax3Enabled));
}

void ItemsPage::updateButtons()
{
    const GUIController& gui = m_app.invoicing().gui();
    m_add->setEnabled(gui.hasPrerequisites(QStringLiteral("showItemPopover")));
    m_delete->setEnabled(gui.hasPrerequisites(QStringLiteral("deleteItem")));
    m_shipping->setEnabled(gui.hasPrerequisites(QStringLiteral("showShippingPopover")));
    m_discount->setEnabled(gui.hasPrerequisites(QStringLiteral("showDiscountPopover")));
}

void ItemsPage::updateTotals()
{
    const ManagedObject* doc = m_app.state().currentInvoice();
    if (!doc) {
        m_totals->clear();
        return;
    }
    const Settings& s = m_app.settings();
    const auto amount = [doc](const QString& k) { return DocumentFields::formatNumber(doc->floatValue(k)); };
    QStringList parts{tr("Subtotal %1").arg(amount(key::subAmount))};
    const QString taxEnabled[3] = {key::tax1Enabled, key::tax2Enabled, key::tax3Enabled};
    const QString taxAmounts[3] = {key::tax1Amount, key::tax2Amount, key::tax3Amount};
    for (int i = 0; i < 3; ++i)
        if (s.boolValue(taxEnabled[i]) || doc->floatValue(taxAmounts[i]) != 0.0f)
            parts << tr("%1 %2").arg(taxTitle(s, i + 1), amount(taxAmounts[i]));
    if (doc->boolValue(key::isShippingEnabled))
        parts << tr("Shipping %1").arg(amount(key::shippingAmount));
    if (doc->boolValue(key::isDiscountEnabled))
        parts << (doc->intValue(key::discountKind) != 0
                      ? tr("Discount %1 %")
                            .arg(DocumentFields::formatNumber(doc->floatValue(key::discountPercent) * 100))
                      : tr("Discount %1").arg(amount(key::discountAmount)));
    const QString currency = doc->stringValue(key::currency);
    parts << QStringLiteral("<b>%1</b>").arg(tr("Total %1 %2").arg(amount(key::amount), currency).trimmed());
    m_totals->setText(parts.join(QStringLiteral(" &nbsp;·&nbsp; ")));
    m_totals->setAccessibleName(m_totals->text()
                                    .remove(QStringLiteral("<b>"))
                                    .remove(QStringLiteral("</b>"))
                                    .replace(QStringLiteral(" &nbsp;·&nbsp; "), QStringLiteral(", ")));
    m_shipping->setChecked(doc->boolValue(key::isShippingEnabled));
    m_discount->setChecked(doc->boolValue(key::isDiscountEnabled));
}

} // namespace vorn
