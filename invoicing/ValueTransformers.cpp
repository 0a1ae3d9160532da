#include "invoicing/ValueTransformers.h"

#include "documents/Formatter.h"
#include "store/Keys.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"

namespace vorn::ValueTransformers {

QString entityToImage(const QList<ManagedObject*>& selection)
{
    const ManagedObject* doc = selection.isEmpty() ? nullptr : selection.first();
    if (!doc)
        return {};
    if (doc->isQuote())
        return QStringLiteral("Stamp5");
    const DocumentStatus status = doc->status();
    const bool stamped = status >= DocumentStatus::Sent && status <= DocumentStatus::PartlyPaid;
    return QStringLiteral("Stamp%1").arg(stamped ? qint64(status) : 0);
}

QString entityToImageTable(const ManagedObject* document)
{
    if (!document)
        return {};
    if (document->isQuote())
        return QStringLiteral("StampM5");
    const DocumentStatus status = document->status();
    const bool stamped = status >= DocumentStatus::Created && status <= DocumentStatus::PartlyPaid;
    return QStringLiteral("StampM%1").arg(stamped ? qint64(status) : 0);
}

bool intToDateBool(qint64 status)
{
    return DocumentStatus(status) < DocumentStatus::Paid;
}

bool intToAmountBool(qint64 status)
{
    return DocumentStatus(status) < DocumentStatus::PartlyPaid;
}

bool invoiceSentToBool(const ManagedObject* document)
{
    if (!document)
        return false;
    return document->isQuote() || document->status() == DocumentStatus::Created;
}

QString numberToSubAmountString(float amount, const Settings& settings, const Formatter& formatter)
{
    if (!settings.boolValue(key::showItemSubAmount))
        return {};
    return QStringLiteral("(%1)").arg(formatter.stringFromNumber(double(amount)));
}

QString numberToSubAmountString(float amount, const Settings& settings)
{
    if (!settings.boolValue(key::showItemSubAmount))
        return {};
    return numberToSubAmountString(amount, settings, Formatter(settings));
}

} // namespace vorn::ValueTransformers
