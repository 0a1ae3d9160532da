#pragma once

#include <QObject>

namespace vorn {

class AppState;
class EntityDescription;
class ManagedObject;

// The arithmetic of documents and of the list under the window.
//
// Every amount is a single-precision float computed step by step in a fixed
// order and never rounded: the results must agree to the last bit with any
// other evaluation in that order (the build forbids fused multiply-adds).
// Rates are fractions (0.19 for 19 %).
class Calculator : public QObject
{
    Q_OBJECT
public:
    explicit Calculator(AppState& state, QObject* parent = nullptr);

    // Recomputes the document's items and totals, writes them back, then the
    // list totals. A null document only recomputes the list totals.
    void calculateInvoice(ManagedObject* invoice);
    // The document part of calculateInvoice, without the list totals.
    void calculateInvoiceAmounts(ManagedObject* invoice);
    // Item arithmetic lives in calculateInvoice; this only logs the item.
    void calculateItem(const ManagedObject* item);

    // The totals and counters of the documents the list currently arranges;
    // also moves invoices between sent and overdue by their due date and
    // stamps the payment date of paid invoices once.
    void calculateDatabase();
    // All six totals to zero, without looking at any document (empty list).
    void clearTotals();

    // Holds back the list totals while one action rearranges the list several
    // times: asked for inside the batch, they are computed once when it ends.
    class TotalsBatch
    {
    public:
        explicit TotalsBatch(Calculator& calculator) : m_calculator(calculator)
        {
            ++m_calculator.m_batchDepth;
        }
        ~TotalsBatch();
        TotalsBatch(const TotalsBatch&) = delete;
        TotalsBatch& operator=(const TotalsBatch&) = delete;

    private:
        Calculator& m_calculator;
    };

private:
    // Attribute indexes, resolved once per entity description: the list
    // totals run over every listed document after each edit.
    struct InvoiceKeys
    {
        int kind, status, due, paid, isPaid, amount, subAmount, paidAmount, dueAmount;
        int tax1Amount, tax2Amount, tax3Amount, tax1Percent, tax2Percent, tax3Percent;
        int isShippingEnabled, shippingAmount, isShippingTax1Enabled, isShippingTax2Enabled,
            isShippingTax3Enabled;
        int isDiscountEnabled, discountKind, discountPercent, discountAmount;
    };
    struct ItemKeys
    {
        int tax1Percent, tax2Percent, tax3Percent, baseAmount, unitCount, subAmount, amount;
        int isTax1Applied, isTax2Applied, isTax3Applied, isTax2Compound, isTax3Compound;
        int tax1Amount, tax2Amount, tax3Amount;
    };
    const InvoiceKeys& invoiceKeys(const EntityDescription& entity);
    const ItemKeys& itemKeys(const EntityDescription& entity);

    AppState& m_state;
    const EntityDescription* m_invoiceEntity = nullptr;
    const EntityDescription* m_itemEntity = nullptr;
    InvoiceKeys m_invoiceKeys{};
    ItemKeys m_itemKeys{};
    int m_batchDepth = 0;
    bool m_totalsPending = false;
};

} // namespace vorn
