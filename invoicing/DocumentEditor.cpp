#include "invoicing/DocumentEditor.h"

#include "invoicing/Calculator.h"
#include "invoicing/SentLock.h"
#include "invoicing/TextValue.h"
#include "invoicing/ValueTransformers.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"

#include <QHash>
#include <QTimer>

namespace vorn {

namespace {

// What stays open on a sent invoice: recording the payment and the dispatch,
// and setting the status back to "Created".
bool openWhenSent(const QString& key)
{
    static const QStringList keys{key::status,       key::paid,           key::paidAmount,
                                  key::isDispatched, key::dispatchNumber, key::dispatched};
    return keys.contains(key);
}

QVariant typed(const ManagedObject& object, const QString& key, const QVariant& value)
{
    // Numbers come from text fields as text and read as the core reads them.
    const int index = object.entity().attributeIndex(key);
    if (index >= 0 && object.entity().attributes()[size_t(index)].type == AttributeType::Float &&
        value.typeId() == QMetaType::QString)
        return floatValueOfText(value.toString());
    return value;
}

bool sameValue(const ManagedObject& object, const QString& key, const QVariant& value)
{
    const QVariant before = object.value(key);
    if (!before.isValid() || !value.isValid())
        return before.isValid() == value.isValid() &&
               (before.isValid() || value.typeId() != QMetaType::QString || value.toString().isEmpty());
    if (before.typeId() == QMetaType::Float)
        return before.toFloat() == value.toFloat();
    if (before.typeId() == QMetaType::QDateTime)
        return before.toDateTime() == value.toDateTime();
    return before == value || before.toString() == value.toString();
}

} // namespace

DocumentEditor::DocumentEditor(AppState& state, Calculator& calculator, QObject* parent)
    : QObject(parent), m_state(state), m_calculator(calculator)
{
}

QString DocumentEditor::lockReason(const QString& key) const
{
    const ManagedObject* doc = m_state.currentInvoice();
    if (!doc)
        return tr("No document is selected.");
    if (!ValueTransformers::invoiceSentToBool(doc) && !openWhenSent(key))
        return tr("This invoice is marked as sent, so it cannot be changed. Set its status back to "
                  "\"Created\" to change it.");
    return {};
}

bool DocumentEditor::isRelevant(const QString& key) const
{
    const ManagedObject* doc = m_state.currentInvoice();
    if (!doc)
        return false;
    const qint64 status = doc->intValue(key::status);
    if (key == key::paid)
        return doc->isInvoice() && !ValueTransformers::intToDateBool(status);
    if (key == key::paidAmount)
        return doc->isInvoice() && !ValueTransformers::intToAmountBool(status);
    return true;
}

bool DocumentEditor::setDocumentValue(const QString& key, const QVariant& value)
{
    ManagedObject* doc = m_state.currentInvoice();
    if (!doc || !isEditable(key))
        return false;
    const QVariant v = typed(*doc, key, value);
    if (sameValue(*doc, key, v))
        return false;
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, actionName(key));
    doc->setValue(key, v);
    if (affectsAmounts(key)) {
        // A status set by hand starts the payment bookkeeping afresh: the
        // totals stamp the payment date once the invoice reads as paid.
        if (key == key::status && DocumentStatus(v.toLongLong()) < DocumentStatus::Paid)
            doc->setValue(key::isPaid, false);
        Calculator::TotalsBatch batch(m_calculator);
        m_state.invoicesController().rearrangeObjects();
        m_calculator.calculateInvoice(doc);
    } else {
        m_state.invoicesController().rearrangeObjects();
    }
    return true;
}

bool DocumentEditor::setDocumentDay(const QString& key, const QDate& day)
{
    const ManagedObject* doc = m_state.currentInvoice();
    if (!doc)
        return false;
    if (!day.isValid())
        return setDocumentValue(key, QVariant());
    const QDateTime before = doc->dateValue(key);
    const QTime time = before.isValid() ? before.toLocalTime().time() : QTime(12, 0);
    return setDocumentValue(key, QDateTime(day, time).toUTC());
}

bool DocumentEditor::setItemValue(ManagedObject* item, const QString& key, const QVariant& value)
{
    return setItemValues(item, {{key, value}});
}

bool DocumentEditor::setItemValues(ManagedObject* item, const QList<std::pair<QString, QVariant>>& values)
{
    ManagedObject* doc = m_state.currentInvoice();
    if (!doc || !item || !doc->items().contains(item))
        return false;
    if (SentLock::refuse(m_state))
        return false;
    QList<std::pair<QString, QVariant>> changes;
    for (const auto& [key, value] : values)
        if (QVariant v = typed(*item, key, value); !sameValue(*item, key, v))
            changes.append({key, std::move(v)});
    if (changes.isEmpty())
        return false;
    ObjectContext* context = m_state.context();
    UndoGroup group(context ? context->undoManager() : nullptr, actionName(changes.first().first));
    for (const auto& [key, value] : std::as_const(changes))
        item->setValue(key, value);
    // The line and its document at once; the list totals over every listed
    // document follow when the event loop next turns, once for a burst of edits.
    m_calculator.calculateInvoiceAmounts(doc);
    scheduleListTotals();
    return true;
}

void DocumentEditor::scheduleListTotals()
{
    if (m_totalsScheduled)
        return;
    m_totalsScheduled = true;
    QTimer::singleShot(0, this, [this] {
        m_totalsScheduled = false;
        m_calculator.calculateDatabase();
    });
}

QString DocumentEditor::actionName(const QString& key)
{
    static const QHash<QString, const char*> names{
        {key::title, QT_TR_NOOP("Change Title")},
        {key::subtitle, QT_TR_NOOP("Change Subtitle")},
        {key::subject, QT_TR_NOOP("Change Subject")},
        {key::address, QT_TR_NOOP("Change Address")},
        {key::emailAddress, QT_TR_NOOP("Change E-mail Address")},
        {key::clientNumber, QT_TR_NOOP("Change Client Number")},
        {key::number, QT_TR_NOOP("Change Number")},
        {key::date, QT_TR_NOOP("Change Date")},
        {key::due, QT_TR_NOOP("Change Due Date")},
        {key::status, QT_TR_NOOP("Change Status")},
        {key::paid, QT_TR_NOOP("Change Paid Date")},
        {key::paidAmount, QT_TR_NOOP("Change Paid Amount")},
        {key::isDispatched, QT_TR_NOOP("Change Dispatched")},
        {key::dispatchNumber, QT_TR_NOOP("Change Dispatch Number")},
        {key::currency, QT_TR_NOOP("Change Currency")},
        {key::notes, QT_TR_NOOP("Change Notes")},
        {key::conditions, QT_TR_NOOP("Change Conditions")},
        {key::footer, QT_TR_NOOP("Change Footer")},
        {key::buyerCountryCode, QT_TR_NOOP("Change Buyer Country")},
        {key::buyerVatID, QT_TR_NOOP("Change Buyer VAT ID")},
        {key::buyerReference, QT_TR_NOOP("Change Buyer Reference")},
        {key::orderReference, QT_TR_NOOP("Change Order Reference")},
        {key::unitCount, QT_TR_NOOP("Change Quantity")},
        {key::unit, QT_TR_NOOP("Change Unit")},
        {key::baseAmount, QT_TR_NOOP("Change Price")},
        {key::sku, QT_TR_NOOP("Change SKU")},
        {key::note, QT_TR_NOOP("Change Note")},
        {key::isTax1Applied, QT_TR_NOOP("Change Tax")},
        {key::isTax2Applied, QT_TR_NOOP("Change Tax")},
        {key::isTax3Applied, QT_TR_NOOP("Change Tax")},
        {key::shippingTitle, QT_TR_NOOP("Shipping")},
        {key::shippingSubtitle, QT_TR_NOOP("Shipping")},
        {key::shippingAmount, QT_TR_NOOP("Shipping")},
        {key::hasShippingSubtitle, QT_TR_NOOP("Shipping")},
        {key::isShippingEnabled, QT_TR_NOOP("Shipping")},
        {key::isShippingTax1Enabled, QT_TR_NOOP("Shipping")},
        {key::isShippingTax2Enabled, QT_TR_NOOP("Shipping")},
        {key::isShippingTax3Enabled, QT_TR_NOOP("Shipping")},
        {key::discountTitle, QT_TR_NOOP("Discount")},
        {key::discountSubtitle, QT_TR_NOOP("Discount")},
        {key::hasDiscountSubtitle, QT_TR_NOOP("Discount")},
        {key::isDiscountEnabled, QT_TR_NOOP("Discount")},
        {key::discountKind, QT_TR_NOOP("Discount")},
        {key::discountPercent, QT_TR_NOOP("Discount")},
        {key::discountAmount, QT_TR_NOOP("Discount")},
    };
    const char* name = names.value(key);
    return name ? tr(name) : tr("Change");
}

bool DocumentEditor::affectsAmounts(const QString& key)
{
    static const QStringList keys{key::status,
                                  key::paidAmount,
                                  key::due,
                                  key::kind,
                                  key::shippingAmount,
                                  key::isShippingEnabled,
                                  key::isShippingTax1Enabled,
                                  key::isShippingTax2Enabled,
                                  key::isShippingTax3Enabled,
                                  key::isDiscountEnabled,
                                  key::discountKind,
                                  key::discountPercent,
                                  key::discountAmount,
                                  key::tax1Percent,
                                  key::tax2Percent,
                                  key::tax3Percent,
                                  key::currency};
    return keys.contains(key);
}

qint64 DocumentEditor::daysFromToday(const QDateTime& date) const
{
    if (!date.isValid())
        return 0;
    return m_state.clock().now().toLocalTime().date().daysTo(date.toLocalTime().date());
}

QDateTime DocumentEditor::dateDaysFromToday(qint64 days) const
{
    // Calendar days on the wall clock, as new documents get their due date.
    return m_state.clock().now().toLocalTime().addDays(days).toUTC();
}

} // namespace vorn
