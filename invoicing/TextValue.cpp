#include "invoicing/TextValue.h"

#include <charconv>
#include <cmath>
#include <string>

namespace vorn {

namespace {

// The power of ten of the first significant digit of a plain decimal number
// ("-0.00123e4" is 1, "1234" is 3).
long long decimalExponent(const std::string& number)
{
    const size_t e = number.find('e');
    const std::string mantissa = number.substr(0, e);
    long long exponent = 0;
    if (e != std::string::npos) {
        // Saturates: only the sign of a huge exponent matters here.
        const std::string digits = number.substr(e + 1);
        const bool minus = !digits.empty() && digits.front() == '-';
        for (char c : digits) {
            if (c >= '0' && c <= '9' && exponent < 1000000000LL)
                exponent = exponent * 10 + (c - '0');
        }
        if (minus)
            exponent = -exponent;
    }
    const size_t point = mantissa.find('.');
    const std::string whole = mantissa.substr(0, point);
    long long position = 0;
    bool seen = false;
    for (char c : whole) {
        if (c >= '1' && c <= '9')
            seen = true;
        if (seen && c >= '0' && c <= '9')
            ++position;
    }
    if (seen)
        return exponent + position - 1;
    if (point != std::string::npos) {
        long long zeros = 0;
        for (size_t i = point + 1; i < mantissa.size() && mantissa[i] == '0'; ++i)
            ++zeros;
        return exponent - zeros - 1;
    }
    return exponent;
}

} // namespace

float floatValueOfText(const QString& text)
{
    const std::string s = text.toStdString();
    size_t i = 0;
    while (i < s.size() && (s[i] == ' ' || s[i] == '\t' || s[i] == '\n' || s[i] == '\r'))
        ++i;
    std::string number;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) {
        if (s[i] == '-')
            number += '-';
        ++i;
    }
    bool digits = false;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9') {
        number += s[i++];
        digits = true;
    }
    if (i < s.size() && s[i] == '.') {
        size_t j = i + 1;
        std::string fraction;
        while (j < s.size() && s[j] >= '0' && s[j] <= '9')
            fraction += s[j++];
        if (digits || !fraction.empty()) {
            number += '.';
            number += fraction.empty() ? std::string("0") : fraction;
            digits = true;
            i = j;
        }
    }
    if (!digits)
        return 0.0f;
    // An exponent counts only when digits follow it.
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        size_t j = i + 1;
        std::string exponent = "e";
        if (j < s.size() && (s[j] == '+' || s[j] == '-'))
            exponent += s[j++];
        bool expDigits = false;
        while (j < s.size() && s[j] >= '0' && s[j] <= '9') {
            exponent += s[j++];
            expDigits = true;
        }
        if (expDigits)
            number += exponent;
    }
    float value = 0.0f;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // Beyond the float range: a magnitude too large reads as infinity,
        // one too small as zero, keeping the sign.
        const bool negative = number.front() == '-';
        const bool huge = decimalExponent(number) > 0;
        return huge ? (negative ? -HUGE_VALF : HUGE_VALF) : (negative ? -0.0f : 0.0f);
    }
    return value;
}

QString textOfFloat(float value)
{
    if (!std::isfinite(value))
        return QStringLiteral("0");
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return QString::fromLatin1(buffer, int(result.ptr - buffer));
}

} // namespace vorn
