#include "documents/StringFormat.h"

namespace vorn {

QString StringFormat::apply(const QString& format, const QStringList& arguments)
{
    QString out;
    out.reserve(format.size() + 16);
    int next = 0;
    const qsizetype n = format.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = format.at(i);
        if (c != QLatin1Char('%') || i + 1 >= n) {
            out += c;
            continue;
        }
        qsizetype j = i + 1;
        if (format.at(j) == QLatin1Char('%')) {
            out += QLatin1Char('%');
            i = j;
            continue;
        }
        // An optional position ("2$"), then length modifiers, then the conversion.
        int position = -1;
        qsizetype k = j;
        while (k < n && format.at(k).isDigit())
            ++k;
        if (k > j && k < n && format.at(k) == QLatin1Char('$')) {
            position = format.mid(j, k - j).toInt() - 1;
            j = k + 1;
        }
        while (j < n && (format.at(j) == QLatin1Char('l') || format.at(j) == QLatin1Char('q') ||
                         format.at(j) == QLatin1Char('h') || format.at(j) == QLatin1Char('z')))
            ++j;
        if (j >= n || !QStringLiteral("@diuxXs").contains(format.at(j))) {
            out += c;
            continue;
        }
        const int index = position >= 0 ? position : next++;
        out += arguments.value(index);
        i = j;
    }
    return out;
}

} // namespace vorn
