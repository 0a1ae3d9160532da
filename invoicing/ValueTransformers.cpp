#include "invoicing/ValueTransformers.h"

#include "invoicing/Keys.h"
#include "documents/Formatter.h"
#include "store/ManagedObject.h"
#include "store/Settings.h"

namespace vorn::ValueTransformers {

namespace {

bool isQuote(const ManagedObject& document)
{
    return document.intValue(key::kind) == 0;
}

} // namespace

QString entityToImage(const QList<ManagedObject*>& selection)
{
    const ManagedObject* doc = selection.isEmpty() ? nullptr : selection.first();
    if (!doc)
        return {};
    if (isQuote(*doc))
        return QStringLiteral("Stamp5");
    const qint64 status = doc->intValue(key::status);
    return QStringLiteral("Stamp%1").arg(status >= 1 && status <= 4 ? status : 0);
}

QString entityToImageTable(const ManagedObject* document)
{
    if (!document)
        return {};
    if (isQuote(*document))
        return QStringLiteral("StampM5");
    const qint64 status = document->intValue(key::status);
    return QStringLiteral("StampM%1").arg(status >= 0 && status <= 4 ? status : 0);
}

bool intToDateBool(qint64 status)
{
    return status < 3;
}

bool intToAmountBool(qint64 status)
{
    return status < 4;
}

bool invoiceSentToBool(const ManagedObject* document)
{
    if (!document)
        return false;
    return isQuote(*document) || document->intValue(key::status) == 0;
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
