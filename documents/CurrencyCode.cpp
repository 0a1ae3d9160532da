#include "documents/CurrencyCode.h"

#include <QHash>
#include <QSet>

namespace vorn::CurrencyCode {

namespace {

// The active codes of ISO 4217.
const QSet<QString>& isoCodes()
{
    static const QSet<QString> codes = [] {
        const char* list =
            "AED AFN ALL AMD ANG AOA ARS AUD AWG AZN BAM BBD BDT BGN BHD BIF BMD BND BOB BRL BSD BTN BWP "
            "BYN BZD CAD CDF CHF CLP CNY COP CRC CUP CVE CZK DJF DKK DOP DZD EGP ERN ETB EUR FJD FKP GBP "
            "GEL GHS GIP GMD GNF GTQ GYD HKD HNL HTG HUF IDR ILS INR IQD IRR ISK JMD JOD JPY KES KGS KHR "
            "KMF KPW KRW KWD KYD KZT LAK LBP LKR LRD LSL LYD MAD MDL MGA MKD MMK MNT MOP MRU MUR MVR MWK "
            "MXN MYR MZN NAD NGN NIO NOK NPR NZD OMR PAB PEN PGK PHP PKR PLN PYG QAR RON RSD RUB RWF SAR "
            "SBD SCR SDG SEK SGD SHP SLE SOS SRD SSP STN SVC SYP SZL THB TJS TMT TND TOP TRY TTD TWD TZS "
            "UAH UGX USD UYU UZS VES VND VUV WST XAF XCD XOF XPF YER ZAR ZMW ZWL";
        QSet<QString> set;
        for (const QString& code : QString::fromLatin1(list).split(QLatin1Char(' ')))
            set.insert(code);
        return set;
    }();
    return codes;
}

// Symbols and names that stand for one currency only.
const QHash<QString, QString>& names()
{
    static const QHash<QString, QString> map = {
        {QStringLiteral("€"), QStringLiteral("EUR")},     {QStringLiteral("EURO"), QStringLiteral("EUR")},
        {QStringLiteral("EUROS"), QStringLiteral("EUR")}, {QStringLiteral("£"), QStringLiteral("GBP")},
        {QStringLiteral("US$"), QStringLiteral("USD")},   {QStringLiteral("FR."), QStringLiteral("CHF")},
        {QStringLiteral("SFR."), QStringLiteral("CHF")},  {QStringLiteral("ZŁ"), QStringLiteral("PLN")},
        {QStringLiteral("KČ"), QStringLiteral("CZK")},    {QStringLiteral("FT"), QStringLiteral("HUF")},
        {QStringLiteral("₺"), QStringLiteral("TRY")},     {QStringLiteral("₹"), QStringLiteral("INR")},
        {QStringLiteral("₩"), QStringLiteral("KRW")},     {QStringLiteral("₴"), QStringLiteral("UAH")},
        {QStringLiteral("CA$"), QStringLiteral("CAD")},   {QStringLiteral("A$"), QStringLiteral("AUD")},
    };
    return map;
}

} // namespace

QString isoCode(const QString& text)
{
    const QString key = text.trimmed().toUpper();
    if (isoCodes().contains(key))
        return key;
    return names().value(key);
}

} // namespace vorn::CurrencyCode
