#pragma once

#include "store/Result.h"

#include <QByteArray>
#include <QMap>
#include <QString>

namespace vorn {

// Reads back what an e-invoice says it is worth: the invoice number, the
// currency, the number of lines and the totals of the monetary summation
// (by element name, in cents). Enough to check that a file says what the
// invoice says, not a general reader.
struct CiiSummary
{
    QString number;
    QString currency;
    QString guideline;
    int lineCount = 0;
    QMap<QString, qint64> totals; // "GrandTotalAmount" -> cents

    static Result<CiiSummary> read(const QByteArray& xml);
};

} // namespace vorn
