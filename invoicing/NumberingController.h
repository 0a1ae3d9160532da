#pragma once

#include <QDate>
#include <QObject>
#include <QString>

namespace vorn {

class AppState;

// Document and client numbers from the user's patterns. Nothing is counted
// in the store: the count is the pattern's start offset plus the documents
// (or remembered addresses) the lists show right now, so deleting a document
// or filtering the list changes the next number.
class NumberingController : public QObject
{
    Q_OBJECT
public:
    explicit NumberingController(AppState& state, QObject* parent = nullptr);

    // The next invoice number: invCount + invoices listed + 1.
    QString invoiceNumberString() const;
    // For a quote just turned into an invoice, which is already counted
    // among the listed invoices: invCount + invoices listed.
    QString convertedInvoiceNumberString() const;
    // The next quote number: quotCount + quotes listed + 1.
    QString quoteNumberString() const;
    // The next client number: clientCount + remembered addresses listed + 1.
    QString clientNumberString() const;

    // Replaces every %COUNT%, then %YEAR%, %MONTH%, %DAY% (in that order,
    // case-sensitive, no leading zeros). Other text is kept as it stands.
    static QString expandPattern(const QString& pattern, qint64 count, const QDate& date);

private:
    QString expand(const QString& patternKey, qint64 count) const;

    AppState& m_state;
};

} // namespace vorn
