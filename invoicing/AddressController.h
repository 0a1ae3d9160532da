#pragma once

#include "invoicing/VCardReader.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

namespace vorn {

class AppState;
class ManagedObject;
class NumberingController;

// The client address of the current document. The address popover has a
// picker over the user's contacts (vCard files), the editable result
// fields, and the remembered addresses. A contact becomes an address block
// through the user's pattern with its eight placeholders.
class AddressController : public QObject
{
    Q_OBJECT
public:
    AddressController(AppState& state, NumberingController& numbering, QObject* parent = nullptr);

    // The popover's result fields.
    struct Popover
    {
        bool shown = false;
        QString address;
        QString emailAddress;
        QString clientNumber;
    };
    Popover& popover() { return m_popover; }

    // Toggles the popover. Opening reads the contacts anew, fills the result
    // fields from the current document and opens the page the settings ask for.
    void showAddressPopover();
    void closeAddressPopover();

    // The contacts of the picker, sorted by name, and what could not be read.
    const QList<Contact>& contacts() const { return m_contacts; }
    const QStringList& contactNotes() const { return m_notes; }
    void reloadContacts();
    // Folders (or files) the contacts come from: the setting, else the usual
    // contacts folder of the desktop if there is one.
    QStringList contactsFolders() const;
    static QStringList defaultContactsFolders();

    // The picker's selection (indexes into contacts()).
    void setPickerSelection(const QList<int>& indexes);
    // Fills the result fields from the one contact selected in the picker.
    void selectAddressRecord();
    // The picker reports a new selection or a changed record.
    void recordChanged() { selectAddressRecord(); }
    void changedAddressRecordsCriteria() { selectAddressRecord(); }
    // Fills the result fields from a contact directly.
    void fillFromContact(const Contact& contact);

    // Takes the result fields into the document and remembers the address.
    void selectAddress();
    // Takes the selected remembered address into the document.
    void selectRecentAdress();
    // Puts the next client number into the client-number field.
    void generateClientNumber();
    void contactsButtonAction();

    // The address block of a contact through a pattern; without a pattern
    // the block asks for one.
    static QString addressFromPattern(const Contact& contact, const QString& pattern);
    static QString missingPatternText();
    // One e-mail address: with one address that one; with two or more the
    // (last) one labelled home, else none.
    static QString chooseEmail(const Contact& contact);

Q_SIGNALS:
    void popoverChanged();
    void contactsChanged();

private:
    AppState& m_state;
    NumberingController& m_numbering;
    Popover m_popover;
    QList<Contact> m_contacts;
    QStringList m_notes;
    QList<int> m_pickerSelection;
};

} // namespace vorn
