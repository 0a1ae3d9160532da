#pragma once

#include "ui/Popover.h"

class QCheckBox;
class QLineEdit;
class QListWidget;
class QTabWidget;

namespace vorn {

class AppDelegate;
class DocumentFields;

// The shipping popover: its fields edit the current document's shipping
// directly; "OK" charges it and remembers the charge, the recent page
// takes a remembered one.
class ShippingPopover : public Popover
{
    Q_OBJECT
public:
    explicit ShippingPopover(AppDelegate& app, QWidget* parent = nullptr);

    QTabWidget* tabs() const { return m_tabs; }
    QLineEdit* amountField() const { return m_amount; }
    QListWidget* recentList() const { return m_recent; }
    DocumentFields* fields() const { return m_fields; }
    void accept();
    void sync();

private:
    void fillRecent();

    AppDelegate& m_app;
    DocumentFields* m_fields;
    QTabWidget* m_tabs;
    QLineEdit* m_title;
    QLineEdit* m_amount;
    QLineEdit* m_note;
    QListWidget* m_recent;
    QCheckBox* m_tax[3];
};

} // namespace vorn
