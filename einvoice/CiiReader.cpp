#include "einvoice/CiiReader.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <cmath>

namespace vorn {

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(CiiSummary)
};

} // namespace

Result<CiiSummary> CiiSummary::read(const QByteArray& xml)
{
    CiiSummary summary;
    QXmlStreamReader reader(xml);
    QStringList path;
    bool inSummation = false;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            const QString name = reader.name().toString();
            const QString parent = path.isEmpty() ? QString() : path.last();
            path << name;
            if (name == QLatin1String("SpecifiedTradeSettlementHeaderMonetarySummation"))
                inSummation = true;
            else if (name == QLatin1String("IncludedSupplyChainTradeLineItem"))
                ++summary.lineCount;
            else if (inSummation) {
                bool ok = false;
                const double value = reader.readElementText().toDouble(&ok);
                path.removeLast();
                if (!ok)
                    return Error::make(
                        ErrorCode::FileReadCorrupt,
                        Texts::tr("The amount %1 of the e-invoice is not a number.").arg(name));
                summary.totals.insert(name, std::llround(value * 100.0));
            } else if (name == QLatin1String("ID") && parent == QLatin1String("ExchangedDocument")) {
                summary.number = reader.readElementText();
                path.removeLast();
            } else if (name == QLatin1String("ID") &&
                       parent == QLatin1String("GuidelineSpecifiedDocumentContextParameter")) {
                summary.guideline = reader.readElementText();
                path.removeLast();
            } else if (name == QLatin1String("InvoiceCurrencyCode")) {
                summary.currency = reader.readElementText();
                path.removeLast();
            }
        } else if (token == QXmlStreamReader::EndElement) {
            if (!path.isEmpty())
                path.removeLast();
            if (reader.name() == QLatin1String("SpecifiedTradeSettlementHeaderMonetarySummation"))
                inSummation = false;
        }
    }
    if (reader.hasError())
        return Error::make(ErrorCode::FileReadCorrupt,
                           Texts::tr("The e-invoice could not be read: %1").arg(reader.errorString()));
    return summary;
}

} // namespace vorn
