#include "invoicing/DataController.h"

#include "invoicing/Calculator.h"
#include "invoicing/FilterController.h"
#include "invoicing/GUIController.h"
#include "invoicing/NumberingController.h"
#include "invoicing/SaveLog.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Clone.h"
#include "store/Keys.h"
#include "store/Settings.h"
#include "store/UniqueId.h"
#include "store/UserInterface.h"

namespace vorn {

DataController::DataController(AppState& state, Calculator& calculator, NumberingController& numbering,
                               FilterController& filter, GUIController& gui, QObject* parent)
    : QObject(parent), m_state(state), m_calculator(calculator), m_numbering(numbering), m_filter(filter),
      m_gui(gui)
{
    connect(&m_state.invoicesController(), &ArrayController::arrangedObjectsChanged, this,
            &DataController::invoicesArrangementChanged);
}

int DataController::daysForTermIndex(qint64 index)
{
    switch (index) {
    case 1:
        return 14;
    case 2:
        return 21;
    case 3:
        return 28;
    default:
        return 7;
    }
}

QDateTime DataController::futureDateFromTodayWithDays(qint64 index) const
{
    // Calendar days on the user's wall clock: across a change to or from
    // summer time the time of day stays the same.
    return m_state.clock().now().toLocalTime().addDays(daysForTermIndex(index)).toUTC();
}

ManagedObject* DataController::addInvoice()
{
    return addDocument(DocumentKind::Invoice);
}

ManagedObject* DataController::addQuote()
{
    return addDocument(DocumentKind::Quote);
}

ManagedObject* DataController::addDocument(DocumentKind kind)
{
    ObjectContext* context = m_state.context();
    if (!context)
        return nullptr;
    const bool invoice = kind == DocumentKind::Invoice;
    UndoGroup group(context->undoManager(), invoice ? tr("New Invoice") : tr("New Quote"));

    // The new document must be visible, so the list shows everything again.
    m_filter.showAllDocuments();

    const Settings& s = m_state.settings();
    const QDateTime now = m_state.clock().now();
    ManagedObject* doc = context->insertNewObject(Entity::Invoice);
    doc->setValue(key::uniqueID, globallyUniqueString());
    if (invoice)
        doc->setValue(key::number,
                      s.boolValue(key::invHaveNumber) ? m_numbering.invoiceNumberString() : QString());
    else
        doc->setValue(key::number,
                      s.boolValue(key::quotHaveNumber) ? m_numbering.quoteNumberString() : QString());
    doc->setValue(key::address, QString());
    doc->setValue(key::title, s.stringValue(invoice ? key::locInvoice : key::locQuote));
    doc->setValue(key::subject, QString());
    doc->setValue(key::conditions, s.stringValue(invoice ? key::tempInvConditions : key::tempQuotConditions));
    doc->setValue(key::footer, s.stringValue(invoice ? key::tempInvFooter : key::tempQuotFooter));
    for (const QString& k : {key::discountSubtitle, key::discountTitle, key::shippingSubtitle,
                             key::shippingTitle, key::clientNumber, key::dispatchNumber, key::notes})
        doc->setValue(k, QString());
    doc->setValue(key::currency, s.stringValue(key::prefsCurrency));
    if (invoice) {
        doc->setValue(key::due, s.boolValue(key::invHaveDueDate)
                                    ? futureDateFromTodayWithDays(s.intValue(key::invDefaultDueDate))
                                    : now);
        doc->setValue(key::date, now);
    } else {
        // A quote's validity ends at its due date.
        doc->setValue(key::date, now);
        doc->setValue(key::due, s.boolValue(key::quotHaveValidity)
                                    ? futureDateFromTodayWithDays(s.intValue(key::quotDefaultValidity))
                                    : now);
    }
    doc->setValue(key::paid, now);
    doc->setValue(key::sent, now);
    doc->setValue(key::dispatched, now);
    doc->setKind(kind);
    doc->setStatus(DocumentStatus::Created);
    doc->setDiscountKind(DiscountKind::Amount);
    doc->setValue(key::tax1Kind, qint64(0));
    doc->setValue(key::tax2Kind, qint64(0));
    doc->setValue(key::tax3Kind, qint64(0));
    doc->setValue(key::isDispatched, false);
    for (const QString& k :
         {key::amount, key::subAmount, key::paidAmount, key::dueAmount, key::shippingAmount,
          key::discountAmount, key::tax1Amount, key::tax2Amount, key::tax3Amount})
        doc->setValue(k, 0.0f);
    doc->setValue(key::tax1Percent, s.floatValue(key::tax1Rate));
    doc->setValue(key::tax2Percent, s.floatValue(key::tax2Rate));
    doc->setValue(key::tax3Percent, s.floatValue(key::tax3Rate));
    doc->setValue(key::misc1, QString());
    doc->setValue(key::misc2, qint64(0));
    doc->setValue(key::misc3, 0.0f);
    doc->setValue(key::misc4, false);
    doc->setValue(key::misc5, now);

    showNewDocument(doc);
    return doc;
}

void DataController::showNewDocument(ManagedObject* doc)
{
    ArrayController& list = m_state.invoicesController();
    {
        Calculator::TotalsBatch batch(m_calculator);
        list.addObject(doc);
        list.rearrangeObjects();
        list.setSelectedObjects({doc});
    }
    // The user starts with the client's address.
    m_gui.selectMainTabIndex(0);
    m_state.ui().focus(QStringLiteral("addressView"));
    saveLoggingFailure();
}

ManagedObject* DataController::duplicateInvoice()
{
    ObjectContext* context = m_state.context();
    ManagedObject* source = m_state.currentInvoice();
    if (!context || !source)
        return nullptr;
    UndoGroup group(context->undoManager(), tr("Duplicate"));
    // What is left out takes the model's defaults, as on any new object.
    static const QStringList identityAndState{
        key::number, key::dispatchNumber, key::uniqueID, key::status,     key::isDispatched, key::date,
        key::due,    key::paid,           key::sent,     key::dispatched, key::paidAmount,   key::dueAmount};
    ManagedObject* copy = cloneInContext(*source, *context, {}, identityAndState);
    if (!copy)
        return nullptr;
    showNewDocument(copy);
    return copy;
}

void DataController::convertQuoteToInvoice()
{
    ManagedObject* doc = m_state.currentInvoice();
    if (!doc)
        return;
    UserInterface& ui = m_state.ui();
    if (doc->isInvoice()) {
        ui.runAlert({tr("Sorry!"),
                     tr("You can't convert an invoice into a quote."),
                     {tr("OK")},
                     UserInterface::AlertStyle::Warning,
                     false});
        return;
    }
    const int answer = ui.runAlert(
        {tr("Convert Into Invoice"),
         tr("Do you really want to convert the selected quote into an invoice? This will also change the "
            "title, the counter for your invoice numbering and you can't undo this action."),
         {tr("Convert"), tr("Cancel")},
         UserInterface::AlertStyle::Warning,
         false});
    if (answer != 0)
        return;

    UndoGroup group(m_state.context() ? m_state.context()->undoManager() : nullptr,
                    tr("Convert Into Invoice"));
    m_filter.showAllDocuments();
    doc->setKind(DocumentKind::Invoice);
    // Counted among the invoices before it takes its number.
    m_calculator.calculateDatabase();
    const Settings& s = m_state.settings();
    doc->setValue(key::due, s.boolValue(key::invHaveDueDate)
                                ? futureDateFromTodayWithDays(s.intValue(key::invDefaultDueDate))
                                : m_state.clock().now());
    doc->setValue(key::number,
                  s.boolValue(key::invHaveNumber) ? m_numbering.convertedInvoiceNumberString() : QString());
    doc->setValue(key::title, s.stringValue(key::locInvoice));
    m_state.invoicesController().rearrangeObjects();
}

void DataController::deleteInvoice()
{
    const ManagedObject* doc = m_state.currentInvoice();
    if (!doc)
        return;
    UserInterface& ui = m_state.ui();
    const bool invoice = doc->isInvoice();
    if (invoice && doc->isSent()) {
        ui.runAlert(
            {tr("Error!"),
             tr("The selected invoice is marked as already sent. If you really need to delete it, please set "
                "its status back to 'Created' first."),
             {tr("OK")},
             UserInterface::AlertStyle::Warning,
             false});
        return;
    }
    // Quotes are never protected by their status.
    const UserInterface::Alert sheet =
        invoice ? UserInterface::
                      Alert{tr("Delete Invoice"),
                            tr("Deleting invoices is permanent and cannot be undone. Do you really want "
                               "to delete the selected invoice?"),
                            {tr("Delete"), tr("Cancel")},
                            UserInterface::AlertStyle::Warning,
                            true}
                : UserInterface::Alert{
                      tr("Delete Quote"),
                      tr("Deleting quotes is permanent and cannot be undone. Do you really want to "
                         "delete the selected quote?"),
                      {tr("Delete"), tr("Cancel")},
                      UserInterface::AlertStyle::Warning,
                      true};
    invoiceDeleteWarningSheetDidEnd(ui.runAlert(sheet) == 0 ? 1 : 0);
}

void DataController::invoiceDeleteWarningSheetDidEnd(int returnCode)
{
    ObjectContext* context = m_state.context();
    if (returnCode != 1 || !context)
        return;
    ManagedObject* doc = m_state.currentInvoice();
    UndoGroup group(context->undoManager(),
                    doc && doc->isQuote() ? tr("Delete Quote") : tr("Delete Invoice"));
    m_filter.showAllDocuments();
    ArrayController& list = m_state.invoicesController();
    const int index = list.selectionIndex();
    if (index < 0 || index >= list.count())
        return;
    context->deleteObject(list.arrangedObjects().at(index));
    saveLoggingFailure();
}

void DataController::setDispatched()
{
    ManagedObject* doc = m_state.currentInvoice();
    if (!doc)
        return;
    UndoGroup group(m_state.context() ? m_state.context()->undoManager() : nullptr, tr("Dispatched"));
    doc->setValue(key::dispatched, m_state.clock().now());
    m_state.ui().focus(QStringLiteral("dispatchedNumberView"));
}

void DataController::changedInvoiceCriteria()
{
    m_state.invoicesController().rearrangeObjects();
    m_calculator.calculateInvoice(m_state.currentInvoice());
    m_calculator.calculateDatabase();
}

void DataController::invoicesArrangementChanged()
{
    Q_EMIT previewShouldClose();
    if (m_state.invoicesController().arrangedObjects().isEmpty()) {
        m_gui.setDeleteToolbarLabel(tr("Delete Invoice"));
        m_calculator.clearTotals();
        return;
    }
    m_calculator.calculateDatabase();
    m_gui.scheduleToolbarLabel();
}

void DataController::saveLoggingFailure()
{
    vorn::saveLoggingFailure(m_state.context());
}

} // namespace vorn
