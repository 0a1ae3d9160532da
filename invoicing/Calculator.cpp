#include "invoicing/Calculator.h"

#include "invoicing/InvoicingLog.h"
#include "store/AppState.h"
#include "store/Clock.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"

#include <bit>
#include <optional>

namespace vorn {

namespace {

// Typed reads that take the stored value directly when it has the model's
// type (it always does once written through setValue), and convert otherwise.
float floatAt(const ManagedObject& o, int index)
{
    const QVariant v = o.value(index);
    return v.typeId() == QMetaType::Float ? *static_cast<const float*>(v.constData()) : v.toFloat();
}

bool boolAt(const ManagedObject& o, int index)
{
    const QVariant v = o.value(index);
    return v.typeId() == QMetaType::Bool ? *static_cast<const bool*>(v.constData()) : v.toBool();
}

qint64 intAt(const ManagedObject& o, int index)
{
    const QVariant v = o.value(index);
    return v.typeId() == QMetaType::LongLong ? *static_cast<const qint64*>(v.constData()) : v.toLongLong();
}

// Writes only what differs (bit for bit): an unchanged amount is no edit,
// and the list totals touch every listed document after each edit.
void setFloat(ManagedObject& o, int index, float value)
{
    const QVariant v = o.value(index);
    if (v.typeId() == QMetaType::Float &&
        std::bit_cast<quint32>(*static_cast<const float*>(v.constData())) == std::bit_cast<quint32>(value))
        return;
    o.setValue(index, QVariant(value));
}

// Milliseconds since the epoch, or nothing for an absent date.
std::optional<qint64> msecsAt(const ManagedObject& o, int index)
{
    const QVariant v = o.value(index);
    if (v.typeId() == QMetaType::QDateTime)
        return static_cast<const QDateTime*>(v.constData())->toMSecsSinceEpoch();
    if (!v.isValid())
        return std::nullopt;
    return v.toDateTime().toMSecsSinceEpoch();
}

} // namespace

Calculator::Calculator(AppState& state, QObject* parent) : QObject(parent), m_state(state) {}

const Calculator::InvoiceKeys& Calculator::invoiceKeys(const EntityDescription& e)
{
    if (m_invoiceEntity != &e) {
        m_invoiceEntity = &e;
        auto i = [&e](const QString& k) { return e.attributeIndex(k); };
        m_invoiceKeys = {i(key::kind),
                         i(key::status),
                         i(key::due),
                         i(key::paid),
                         i(key::isPaid),
                         i(key::amount),
                         i(key::subAmount),
                         i(key::paidAmount),
                         i(key::dueAmount),
                         i(key::tax1Amount),
                         i(key::tax2Amount),
                         i(key::tax3Amount),
                         i(key::tax1Percent),
                         i(key::tax2Percent),
                         i(key::tax3Percent),
                         i(key::isShippingEnabled),
                         i(key::shippingAmount),
                         i(key::isShippingTax1Enabled),
                         i(key::isShippingTax2Enabled),
                         i(key::isShippingTax3Enabled),
                         i(key::isDiscountEnabled),
                         i(key::discountKind),
                         i(key::discountPercent),
                         i(key::discountAmount)};
    }
    return m_invoiceKeys;
}

const Calculator::ItemKeys& Calculator::itemKeys(const EntityDescription& e)
{
    if (m_itemEntity != &e) {
        m_itemEntity = &e;
        auto i = [&e](const QString& k) { return e.attributeIndex(k); };
        m_itemKeys = {i(key::tax1Percent),   i(key::tax2Percent),    i(key::tax3Percent),
                      i(key::baseAmount),    i(key::unitCount),      i(key::subAmount),
                      i(key::amount),        i(key::isTax1Applied),  i(key::isTax2Applied),
                      i(key::isTax3Applied), i(key::isTax2Compound), i(key::isTax3Compound),
                      i(key::tax1Amount),    i(key::tax2Amount),     i(key::tax3Amount)};
    }
    return m_itemKeys;
}

void Calculator::calculateInvoice(ManagedObject* invoice)
{
    calculateInvoiceAmounts(invoice);
    calculateDatabase();
}

void Calculator::calculateInvoiceAmounts(ManagedObject* invoice)
{
    if (!invoice || invoice->entityName() != Entity::Invoice)
        return;
    const InvoiceKeys& d = invoiceKeys(invoice->entity());

    float S = 0.0f, T1 = 0.0f, T2 = 0.0f, T3 = 0.0f;
    for (ManagedObject* item : invoice->items()) {
        const ItemKeys& k = itemKeys(item->entity());
        const float p1 = floatAt(*item, k.tax1Percent);
        const float p2 = floatAt(*item, k.tax2Percent);
        const float p3 = floatAt(*item, k.tax3Percent);
        const float b = floatAt(*item, k.baseAmount);
        const float n = floatAt(*item, k.unitCount);
        float t1 = 0.0f, t2 = 0.0f, t3 = 0.0f;

        const float net = b * n;
        setFloat(*item, k.subAmount, net);
        S = S + net;

        if (boolAt(*item, k.isTax1Applied)) {
            t1 = net * p1;
            setFloat(*item, k.tax1Amount, t1);
            T1 = T1 + t1;
        }
        // The compound forms always build on the item's own earlier rates,
        // whether or not those taxes are charged on the item.
        if (boolAt(*item, k.isTax2Applied)) {
            if (boolAt(*item, k.isTax2Compound))
                t2 = (net + net * p1) * p2;
            else
                t2 = net * p2;
            setFloat(*item, k.tax2Amount, t2);
            T2 = T2 + t2;
        }
        if (boolAt(*item, k.isTax3Applied)) {
            if (boolAt(*item, k.isTax3Compound)) {
                const float x = net + net * p1;
                const float y = x + x * p2;
                t3 = y * p3;
            } else {
                t3 = net * p3;
            }
            setFloat(*item, k.tax3Amount, t3);
            T3 = T3 + t3;
        }
        setFloat(*item, k.amount, net + t1 + t2 + t3);
    }

    // Shipping is taxed at the document's rates and compounds by the
    // settings, not by the items' own compound flags.
    float SH = 0.0f;
    if (boolAt(*invoice, d.isShippingEnabled)) {
        SH = floatAt(*invoice, d.shippingAmount);
        const bool tax1 = boolAt(*invoice, d.isShippingTax1Enabled);
        const bool tax2 = boolAt(*invoice, d.isShippingTax2Enabled);
        const bool tax3 = boolAt(*invoice, d.isShippingTax3Enabled);
        if (tax1 || tax2 || tax3) {
            const float q1 = floatAt(*invoice, d.tax1Percent);
            const float q2 = floatAt(*invoice, d.tax2Percent);
            const float q3 = floatAt(*invoice, d.tax3Percent);
            if (tax1)
                T1 = T1 + SH * q1;
            if (tax2) {
                if (m_state.settings().boolValue(key::tax2IsCompound))
                    T2 = T2 + (SH + SH * q1) * q2;
                else
                    T2 = T2 + SH * q2;
            }
            if (tax3) {
                if (m_state.settings().boolValue(key::tax3IsCompound)) {
                    const float x = SH + SH * q1;
                    const float y = x + x * q2;
                    T3 = T3 + y * q3;
                } else {
                    T3 = T3 + SH * q3;
                }
            }
        }
    }

    // The discount comes off the gross total; taxes keep their full amounts
    // and the total may go below zero.
    float total = S + T1 + T2 + T3 + SH;
    if (boolAt(*invoice, d.isDiscountEnabled)) {
        if (intAt(*invoice, d.discountKind) != qint64(DiscountKind::Amount))
            total = total - total * floatAt(*invoice, d.discountPercent);
        else
            total = total - floatAt(*invoice, d.discountAmount);
    }

    setFloat(*invoice, d.amount, total);
    setFloat(*invoice, d.subAmount, S);
    setFloat(*invoice, d.tax1Amount, T1);
    setFloat(*invoice, d.tax2Amount, T2);
    setFloat(*invoice, d.tax3Amount, T3);
}

void Calculator::calculateItem(const ManagedObject* item)
{
    qCInfo(lcInvoicing).noquote()
        << QStringLiteral("item: %1").arg(item ? item->stringValue(key::uniqueID) : QStringLiteral("(null)"));
}

Calculator::TotalsBatch::~TotalsBatch()
{
    if (--m_calculator.m_batchDepth == 0 && m_calculator.m_totalsPending)
        m_calculator.calculateDatabase();
}

void Calculator::calculateDatabase()
{
    if (m_batchDepth > 0) {
        m_totalsPending = true;
        return;
    }
    m_totalsPending = false;
    float totalAmount = 0.0f, paidAmount = 0.0f, dueAmount = 0.0f;
    quint64 invoiceCount = 0, invoiceCountForNumber = 0, quoteCount = 0;

    const QList<ManagedObject*>& documents = m_state.invoicesController().arrangedObjects();
    const QDateTime now = m_state.clock().now();
    const qint64 nowMs = now.toMSecsSinceEpoch();
    for (ManagedObject* doc : documents) {
        const InvoiceKeys& d = invoiceKeys(doc->entity());
        if (intAt(*doc, d.kind) != qint64(DocumentKind::Invoice)) {
            ++quoteCount;
            continue;
        }
        ++invoiceCountForNumber;
        auto status = DocumentStatus(intAt(*doc, d.status));
        if (status <= DocumentStatus::Created)
            continue;

        // Each value is read once and the steps run on local copies; only
        // what the steps set, and what then differs, is written back.
        const float amount = floatAt(*doc, d.amount);
        const QVariant paidBefore = doc->value(d.paidAmount);
        const QVariant dueBefore = doc->value(d.dueAmount);
        float paidValue = paidBefore.typeId() == QMetaType::Float
                              ? *static_cast<const float*>(paidBefore.constData())
                              : paidBefore.toFloat();
        float dueValue = dueBefore.typeId() == QMetaType::Float
                             ? *static_cast<const float*>(dueBefore.constData())
                             : dueBefore.toFloat();
        bool paidSet = false, dueSet = false, stampPaid = false;
        const DocumentStatus storedStatus = status;

        if (status < DocumentStatus::Paid) {
            // An invoice without a due date is never overdue.
            const std::optional<qint64> due = msecsAt(*doc, d.due);
            if (due && nowMs > *due) {
                status = DocumentStatus::Overdue;
                dueValue = amount;
            } else {
                status = DocumentStatus::Sent;
                dueValue = 0.0f;
            }
            dueSet = true;
        }
        if (status >= DocumentStatus::Paid && !boolAt(*doc, d.isPaid)) {
            // The payment date is stamped once, at the first run that sees
            // the invoice paid or partly paid.
            if (status == DocumentStatus::Paid) {
                paidValue = amount;
                paidSet = true;
            }
            stampPaid = true;
        }
        if (status == DocumentStatus::Overdue) {
            dueValue = amount;
            paidValue = 0.0f;
            dueSet = paidSet = true;
        }
        if (status == DocumentStatus::Paid) {
            paidValue = amount;
            dueValue = 0.0f;
            dueSet = paidSet = true;
        }
        if (status == DocumentStatus::PartlyPaid) {
            dueValue = amount - paidValue;
            dueSet = true;
        }

        if (status != storedStatus)
            doc->setValue(d.status, QVariant(qint64(status)));
        auto changed = [](const QVariant& before, float value) {
            return before.typeId() != QMetaType::Float ||
                   std::bit_cast<quint32>(*static_cast<const float*>(before.constData())) !=
                       std::bit_cast<quint32>(value);
        };
        if (dueSet && changed(dueBefore, dueValue))
            doc->setValue(d.dueAmount, QVariant(dueValue));
        if (paidSet && changed(paidBefore, paidValue))
            doc->setValue(d.paidAmount, QVariant(paidValue));
        if (stampPaid) {
            doc->setValue(d.paid, now);
            doc->setValue(d.isPaid, true);
        }

        totalAmount += amount;
        paidAmount += paidValue;
        dueAmount += dueValue;
        ++invoiceCount;
    }

    m_state.totalAmount = totalAmount;
    m_state.paidAmount = paidAmount;
    m_state.dueAmount = dueAmount;
    m_state.invoiceCount = invoiceCount;
    m_state.invoiceCountForNumber = invoiceCountForNumber;
    m_state.quoteCount = quoteCount;
    m_state.notifyTotalsChanged();
}

void Calculator::clearTotals()
{
    m_totalsPending = false;
    m_state.totalAmount = 0.0f;
    m_state.paidAmount = 0.0f;
    m_state.dueAmount = 0.0f;
    m_state.invoiceCount = 0;
    m_state.quoteCount = 0;
    m_state.invoiceCountForNumber = 0;
    m_state.notifyTotalsChanged();
}

} // namespace vorn
