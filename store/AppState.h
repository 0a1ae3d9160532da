#pragma once

#include "store/ArrayController.h"
#include "store/FileLocations.h"

#include <QObject>

namespace vorn {

class Clock;
class ObjectContext;
class Settings;
class UserInterface;

// The state of the main window that every controller shares: the services
// (settings, the user interface seam, the clock, the file locations), the one
// object context, the lists, and the values the window shows. The
// application delegate owns it; controllers get a reference.
class AppState : public QObject
{
    Q_OBJECT
public:
    AppState(Settings& settings, UserInterface& ui, const Clock& clock, FileLocations locations,
             QObject* parent = nullptr);

    Settings& settings() const { return m_settings; }
    UserInterface& ui() const { return m_ui; }
    const Clock& clock() const { return m_clock; }
    const FileLocations& locations() const { return m_locations; }

    // The application's context; null when the store could not be opened.
    ObjectContext* context() const { return m_context; }
    void setContext(ObjectContext* context);

    ArrayController& invoicesController() { return m_invoices; }
    ArrayController& itemsController() { return m_items; }
    ArrayController& addressesController() { return m_addresses; }
    ArrayController& recentItemsController() { return m_recentItems; }
    ArrayController& recentShippingArrayController() { return m_recentShipping; }
    ArrayController& designsController() { return m_designs; }

    // The first selected document, or null.
    ManagedObject* currentInvoice() const { return m_invoices.selectedObject(); }
    // The current document's status is 1 (sent) or more; false with nothing selected.
    bool isCurrentInvoiceSent() const;

    // List totals (set by the database totals).
    quint64 invoiceCount = 0;
    quint64 quoteCount = 0;
    quint64 invoiceCountForNumber = 0;
    float totalAmount = 0;
    float paidAmount = 0;
    float dueAmount = 0;
    void notifyTotalsChanged() { Q_EMIT totalsChanged(); }

    quint64 filterTag = 0;
    quint64 exportKind = 0;
    QString exportString;
    QString pdfPath;
    QString backupPath;
    QString storeURL;
    bool isReminderAction = false;
    bool isAnimating = false;
    bool isReminderButtonHidden = false;
    float itemPopoverQuantity = 0;
    void notifyStateChanged() { Q_EMIT stateChanged(); }

Q_SIGNALS:
    void contextChanged();
    void totalsChanged();
    void stateChanged();
    void currentInvoiceChanged();
    // An attribute of the current document changed: an edit, an undo, the
    // arithmetic.
    void currentInvoiceValueChanged(const QString& key);

private:
    Settings& m_settings;
    UserInterface& m_ui;
    const Clock& m_clock;
    FileLocations m_locations;
    ObjectContext* m_context = nullptr;
    QMetaObject::Connection m_contextWatch;
    ArrayController m_invoices;
    ArrayController m_items;
    ArrayController m_addresses;
    ArrayController m_recentItems;
    ArrayController m_recentShipping;
    ArrayController m_designs;
};

} // namespace vorn
