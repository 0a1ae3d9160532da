#pragma once

#include "ui/Popover.h"

class QCheckBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTabWidget;

namespace vorn {

class AppState;
class ItemController;

// The item popover: a new line typed in (title, subtitle, unit, SKU, note,
// unit price, quantity, taxes) or taken from the recent items.
class ItemPopover : public Popover
{
    Q_OBJECT
public:
    ItemPopover(AppState& state, ItemController& controller, QWidget* parent = nullptr);

    QTabWidget* tabs() const { return m_tabs; }
    QListWidget* recentList() const { return m_recent; }
    QLineEdit* titleField() const { return m_title; }
    QLineEdit* priceField() const { return m_price; }
    QLineEdit* quantityField() const { return m_quantity; }
    QPushButton* addButton() const { return m_add; }
    void sync();

private:
    void fillRecent();
    void useRecent();

    AppState& m_state;
    ItemController& m_controller;
    QTabWidget* m_tabs;
    QLineEdit* m_title;
    QLineEdit* m_subtitle;
    QLineEdit* m_unit;
    QLineEdit* m_sku;
    QLineEdit* m_note;
    QLineEdit* m_price;
    QLineEdit* m_quantity;
    QCheckBox* m_tax[3];
    QPushButton* m_add;
    QListWidget* m_recent;
};

} // namespace vorn
