#pragma once

#include <QWidget>

class QLabel;
class QTableView;
class QToolButton;

namespace vorn {

class AppDelegate;
class DiscountPopover;
class ItemPopover;
class ItemTableModel;
class SelectionSync;
class Settings;
class ShippingPopover;

// The lines of the current document with their buttons (add, delete,
// shipping, discount) and the document's totals under the table.
class ItemsPage : public QWidget
{
    Q_OBJECT
public:
    ItemsPage(AppDelegate& app, QWidget* parent = nullptr);

    QTableView* table() const { return m_table; }
    ItemTableModel* model() const { return m_model; }
    ItemPopover* itemPopover() const { return m_itemPopover; }
    ShippingPopover* shippingPopover() const { return m_shippingPopover; }
    DiscountPopover* discountPopover() const { return m_discountPopover; }
    QToolButton* addButton() const { return m_add; }
    QToolButton* deleteButton() const { return m_delete; }
    QToolButton* shippingButton() const { return m_shipping; }
    QToolButton* discountButton() const { return m_discount; }
    QLabel* totalsLabel() const { return m_totals; }
    void updateTotals();

    // The name of tax 1, 2 or 3 as the settings give it, else "Tax n".
    static QString taxTitle(const Settings& settings, int tax);

private:
    void updateButtons();
    void updateTaxColumns();

    AppDelegate& m_app;
    QTableView* m_table;
    ItemTableModel* m_model;
    SelectionSync* m_selectionSync;
    QToolButton* m_add;
    QToolButton* m_delete;
    QToolButton* m_shipping;
    QToolButton* m_discount;
    QLabel* m_totals;
    ItemPopover* m_itemPopover;
    ShippingPopover* m_shippingPopover;
    DiscountPopover* m_discountPopover;
};

} // namespace vorn
