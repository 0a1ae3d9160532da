#pragma once

#include "store/DocumentState.h"

#include <QDateTime>
#include <QObject>
#include <QString>

namespace vorn {

class AppState;
class Calculator;
class FilterController;
class GUIController;
class ManagedObject;
class NumberingController;

// The life of a document: new invoices and quotes with their defaults,
// duplicates, converting a quote, deleting, the dispatch stamp, and keeping
// the list totals current when the list changes.
class DataController : public QObject
{
    Q_OBJECT
public:
    DataController(AppState& state, Calculator& calculator, NumberingController& numbering,
                   FilterController& filter, GUIController& gui, QObject* parent = nullptr);

    // New documents are selected, shown with the address page first and saved.
    ManagedObject* addInvoice();
    ManagedObject* addQuote();
    // A copy of the current document with its items, less its identity and
    // state (number, dates, status, payment amounts).
    ManagedObject* duplicateInvoice();
    // Turns the current quote into an invoice after asking.
    void convertQuoteToInvoice();
    // Asks, then deletes the current document; a sent invoice is refused.
    void deleteInvoice();
    // The end of the delete sheet: 1 is the first button ("Delete").
    void invoiceDeleteWarningSheetDidEnd(int returnCode);
    // Stamps the dispatch date with now.
    void setDispatched();
    // After an edit of the current document: rearrange and recompute.
    void changedInvoiceCriteria();

    // Today plus the term of a choice index (0..3 = 7, 14, 21, 28 days, any
    // other index 7), as calendar days in the user's time zone.
    QDateTime futureDateFromTodayWithDays(qint64 index) const;
    static int daysForTermIndex(qint64 index);

    // The reaction to a change of the list's arranged documents.
    void invoicesArrangementChanged();

    // Saves; a failure is only logged, the documents stay in memory.
    void saveLoggingFailure();

Q_SIGNALS:
    // The preview shows a document that may no longer be listed.
    void previewShouldClose();

private:
    ManagedObject* addDocument(DocumentKind kind);
    void showNewDocument(ManagedObject* document);

    AppState& m_state;
    Calculator& m_calculator;
    NumberingController& m_numbering;
    FilterController& m_filter;
    GUIController& m_gui;
};

} // namespace vorn
