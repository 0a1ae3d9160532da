#pragma once

#include "ui/Popover.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QTabWidget;

namespace vorn {

class AppState;
class AddressController;

// The address popover: the user's contacts (searchable; picking one fills
// the address through the address pattern), the recent addresses, and the
// editable result (address, e-mail, client number) that "Use Address"
// takes into the document.
class AddressPopover : public Popover
{
    Q_OBJECT
public:
    AddressPopover(AppState& state, AddressController& controller, QWidget* parent = nullptr);

    QTabWidget* tabs() const { return m_tabs; }
    QListWidget* contactList() const { return m_contacts; }
    QListWidget* recentList() const { return m_recent; }
    QLineEdit* searchField() const { return m_search; }
    QPlainTextEdit* addressField() const { return m_address; }
    // "Use Address": the recent address chosen on that page, else the fields.
    void accept();
    // Shows the core's popover state.
    void sync();

private:
    void fillContacts();
    void fillRecent();
    void filterContacts(const QString& text);

    AppState& m_state;
    AddressController& m_controller;
    QTabWidget* m_tabs;
    QLineEdit* m_search;
    QListWidget* m_contacts;
    QLabel* m_notes;
    QListWidget* m_recent;
    QPlainTextEdit* m_address;
    QLineEdit* m_email;
    QLineEdit* m_clientNumber;
};

} // namespace vorn
