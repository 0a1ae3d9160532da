#include "invoicing/AddressController.h"

#include "invoicing/InvoicingLog.h"
#include "invoicing/NumberingController.h"
#include "invoicing/SaveLog.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/Settings.h"
#include "store/UniqueId.h"
#include "store/UserInterface.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace vorn {

AddressController::AddressController(AppState& state, NumberingController& numbering, QObject* parent)
    : QObject(parent), m_state(state), m_numbering(numbering)
{
}

QString AddressController::missingPatternText()
{
    return tr("You need to provide an address pattern in the Preferences.");
}

QString AddressController::addressFromPattern(const Contact& contact, const QString& pattern)
{
    const ContactAddress* primary = contact.primaryAddress();
    const ContactAddress none;
    const ContactAddress& a = primary ? *primary : none;
    // Further street lines (the extended address) stay with the street.
    QString street = a.street;
    if (!a.extended.isEmpty())
        street = street.isEmpty() ? a.extended : street + QLatin1Char('\n') + a.extended;
    if (street.isEmpty())
        street = a.poBox;

    const std::pair<QString, QString> replacements[] = {
        {QStringLiteral("%FIRSTNAME%"), contact.firstName},
        {QStringLiteral("%LASTNAME%"), contact.lastName},
        {QStringLiteral("%COMPANY%"), contact.organization},
        {QStringLiteral("%STREET%"), street},
        {QStringLiteral("%CITY%"), a.city},
        {QStringLiteral("%ZIP%"), a.postalCode},
        {QStringLiteral("%STATE%"), a.region},
        {QStringLiteral("%COUNTRY%"), a.country},
    };
    // Empty values keep their line breaks and separators: the pattern decides.
    QString text = pattern;
    for (const auto& [placeholder, value] : replacements) {
        if (text.contains(placeholder))
            text.replace(placeholder, value);
    }
    return text;
}

QString AddressController::chooseEmail(const Contact& contact)
{
    const QList<ContactEmail>& emails = contact.emails;
    if (emails.isEmpty())
        return {};
    if (emails.size() < 2)
        return emails.first().address;
    QString home;
    for (const ContactEmail& e : emails)
        if (e.types.contains(QStringLiteral("home"), Qt::CaseInsensitive))
            home = e.address;
    return home;
}

QStringList AddressController::defaultContactsFolders()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString home = QDir::homePath();
    const QStringList candidates{data + QStringLiteral("/contacts"), home + QStringLiteral("/.contacts"),
                                 home + QStringLiteral("/Contacts")};
    for (const QString& folder : candidates)
        if (QFileInfo(folder).isDir())
            return {folder};
    return {};
}

QStringList AddressController::contactsFolders() const
{
    const QVariant value = m_state.settings().value(key::prefsContactsFolders);
    QStringList folders;
    if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList) {
        for (const QVariant& v : value.toList())
            folders << v.toString();
    } else if (value.isValid()) {
        folders = value.toString().split(QDir::listSeparator());
    } else {
        return defaultContactsFolders();
    }
    folders.removeIf([](const QString& f) { return f.trimmed().isEmpty(); });
    for (QString& f : folders) {
        f = f.trimmed();
        if (f.startsWith(QLatin1String("~/")))
            f = QDir::homePath() + f.mid(1);
    }
    return folders;
}

void AddressController::reloadContacts()
{
    VCardReadResult result = VCardReader::readPaths(contactsFolders());
    std::stable_sort(result.contacts.begin(), result.contacts.end(), [](const Contact& a, const Contact& b) {
        const QString x =
            a.lastName.isEmpty() ? a.displayName() : a.lastName + QLatin1Char(' ') + a.firstName;
        const QString y =
            b.lastName.isEmpty() ? b.displayName() : b.lastName + QLatin1Char(' ') + b.firstName;
        return QString::localeAwareCompare(x, y) < 0;
    });
    m_contacts = std::move(result.contacts);
    m_notes = std::move(result.notes);
    for (const QString& note : std::as_const(m_notes))
        qCInfo(lcInvoicing).noquote() << note;
    m_pickerSelection.clear();
    Q_EMIT contactsChanged();
}

void AddressController::showAddressPopover()
{
    if (m_popover.shown) {
        closeAddressPopover();
        return;
    }
    const ManagedObject* doc = m_state.currentInvoice();
    if (!doc) {
        m_state.ui().beep();
        return;
    }
    reloadContacts();
    m_popover = Popover{true, doc->stringValue(key::address), doc->stringValue(key::emailAddress),
                        doc->stringValue(key::clientNumber)};
    m_state.settings().setValue(key::addressTabViewIndex,
                                m_state.settings().intValue(key::alwaysShowRecentAddresses));
    Q_EMIT popoverChanged();
}

void AddressController::closeAddressPopover()
{
    m_popover.shown = false;
    Q_EMIT popoverChanged();
}

void AddressController::setPickerSelection(const QList<int>& indexes)
{
    m_pickerSelection = indexes;
}

void AddressController::selectAddressRecord()
{
    m_popover.emailAddress.clear();
    QList<const Contact*> selected;
    for (int i : std::as_const(m_pickerSelection))
        if (i >= 0 && i < m_contacts.size())
            selected << &m_contacts[i];
    if (selected.size() != 1) {
        // The picker allows one selection only; anything else is a fault of the caller.
        qCCritical(lcInvoicing) << "Picker returned multiple selected records";
        Q_EMIT popoverChanged();
        return;
    }
    fillFromContact(*selected.first());
}

void AddressController::fillFromContact(const Contact& contact)
{
    const QVariant pattern = m_state.settings().value(key::prefsAddressPattern);
    m_popover.address = addressFromPattern(
        contact,
        pattern.isValid() ? m_state.settings().stringValue(key::prefsAddressPattern) : missingPatternText());
    m_popover.emailAddress = chooseEmail(contact);
    Q_EMIT popoverChanged();
}

void AddressController::selectAddress()
{
    ManagedObject* doc = m_state.currentInvoice();
    if (!doc)
        return;
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, tr("Address"));
    doc->setValue(key::address, m_popover.address);
    // Empty fields leave the document's values as they are.
    if (!m_popover.clientNumber.isEmpty())
        doc->setValue(key::clientNumber, m_popover.clientNumber);
    if (!m_popover.emailAddress.isEmpty())
        doc->setValue(key::emailAddress, m_popover.emailAddress);
    closeAddressPopover();
    m_state.ui().focus(QStringLiteral("subjectView"));

    // Remembered once per address text; a second acceptance changes nothing.
    ArrayController& addresses = m_state.addressesController();
    for (const ManagedObject* a : addresses.arrangedObjects())
        if (a->stringValue(key::address) == m_popover.address)
            return;
    if (!context)
        return;
    const QDateTime now = m_state.clock().now();
    ManagedObject* a = context->insertNewObject(Entity::Address);
    a->setValue(key::uniqueID, globallyUniqueString());
    a->setValue(key::address, m_popover.address);
    a->setValue(key::emailAddress, m_popover.emailAddress);
    a->setValue(key::clientNumber, m_popover.clientNumber);
    a->setValue(key::date, now);
    a->setValue(key::misc1, QString());
    a->setValue(key::misc2, qint64(0));
    a->setValue(key::misc3, 0.0f);
    a->setValue(key::misc4, false);
    a->setValue(key::misc5, now);
    addresses.addObject(a);
    addresses.rearrangeObjects();
    saveLoggingFailure(context);
}

void AddressController::selectRecentAdress()
{
    ManagedObject* doc = m_state.currentInvoice();
    const ManagedObject* a = m_state.addressesController().selectedObject();
    if (!doc || !a)
        return;
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, tr("Address"));
    doc->setValue(key::address, a->stringValue(key::address));
    if (const QString number = a->stringValue(key::clientNumber); !number.isEmpty())
        doc->setValue(key::clientNumber, number);
    if (const QString email = a->stringValue(key::emailAddress); !email.isEmpty())
        doc->setValue(key::emailAddress, email);
    closeAddressPopover();
    m_state.ui().focus(QStringLiteral("subjectView"));
}

void AddressController::generateClientNumber()
{
    m_popover.clientNumber = m_numbering.clientNumberString();
    Q_EMIT popoverChanged();
}

void AddressController::contactsButtonAction()
{
    m_state.ui().openApplication(QStringLiteral("contacts"));
}

} // namespace vorn
