#include "documents/Iban.h"

#include <QHash>

namespace vorn::Iban {

namespace {

// Lengths of the countries that issue IBANs (SWIFT registry); a country not
// listed is checked by form and checksum only.
int expectedLength(QStringView country)
{
    static const QHash<QString, int> lengths = {
        {QStringLiteral("AD"), 24}, {QStringLiteral("AT"), 20}, {QStringLiteral("BE"), 16},
        {QStringLiteral("BG"), 22}, {QStringLiteral("CH"), 21}, {QStringLiteral("CY"), 28},
        {QStringLiteral("CZ"), 24}, {QStringLiteral("DE"), 22}, {QStringLiteral("DK"), 18},
        {QStringLiteral("EE"), 20}, {QStringLiteral("ES"), 24}, {QStringLiteral("FI"), 18},
        {QStringLiteral("FR"), 27}, {QStringLiteral("GB"), 22}, {QStringLiteral("GR"), 27},
        {QStringLiteral("HR"), 21}, {QStringLiteral("HU"), 28}, {QStringLiteral("IE"), 22},
        {QStringLiteral("IS"), 26}, {QStringLiteral("IT"), 27}, {QStringLiteral("LI"), 21},
        {QStringLiteral("LT"), 20}, {QStringLiteral("LU"), 20}, {QStringLiteral("LV"), 21},
        {QStringLiteral("MC"), 27}, {QStringLiteral("MT"), 31}, {QStringLiteral("NL"), 18},
        {QStringLiteral("NO"), 15}, {QStringLiteral("PL"), 28}, {QStringLiteral("PT"), 25},
        {QStringLiteral("RO"), 24}, {QStringLiteral("SE"), 24}, {QStringLiteral("SI"), 19},
        {QStringLiteral("SK"), 24}, {QStringLiteral("SM"), 27}, {QStringLiteral("VA"), 22},
    };
    return lengths.value(country.toString(), 0);
}

bool isAsciiAlnum(QChar c)
{
    return (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
           (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
}

} // namespace

QString normalized(const QString& text)
{
    QString out;
    out.reserve(text.size());
    for (QChar c : text)
        if (!c.isSpace())
            out.append(c.toUpper());
    return out;
}

bool isValid(const QString& text)
{
    const QString iban = normalized(text);
    if (iban.size() < 15 || iban.size() > 34)
        return false;
    for (int i = 0; i < iban.size(); ++i) {
        const QChar c = iban[i];
        if (!isAsciiAlnum(c) || (i < 2 && !c.isLetter()) || (i >= 2 && i < 4 && !c.isDigit()))
            return false;
    }
    const int length = expectedLength(QStringView(iban).left(2));
    if (length != 0 && iban.size() != length)
        return false;
    // The country and check digits move to the end; letters count as 10..35.
    const QString moved = iban.mid(4) + iban.left(4);
    int remainder = 0;
    for (QChar c : moved) {
        const int value = c.isDigit() ? c.unicode() - '0' : c.unicode() - 'A' + 10;
        remainder = value >= 10 ? (remainder * 100 + value) % 97 : (remainder * 10 + value) % 97;
    }
    return remainder == 1;
}

bool isValidBic(const QString& text)
{
    const QString bic = normalized(text);
    if (bic.size() != 8 && bic.size() != 11)
        return false;
    for (int i = 0; i < bic.size(); ++i) {
        if (!isAsciiAlnum(bic[i]) || (i < 6 && !bic[i].isLetter()))
            return false;
    }
    return true;
}

} // namespace vorn::Iban
