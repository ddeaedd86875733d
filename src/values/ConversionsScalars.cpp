// The text forms of the machine numbers: the integer family and the two floating-point
// types, reproducing the C run-time forms that documents already carry.

#include "Conversions.h"

#include <cfloat>
#include <charconv>
#include <cstring>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <locale.h>
#include <type_traits>

#include "Exceptions.h"

namespace VxXmlLib16 {

namespace {

CVxInvalidValueException NotConverted(const std::string &value, const char *type)
{
    return CVxInvalidValueException(
        FormatString("The value [%s] can not be converted to a %s", value.c_str(), type));
}

CVxInvalidValueException TooLarge(const std::string &value, const char *type)
{
    return CVxInvalidValueException(FormatString("The value [%s] is to large to fit in a %s", value.c_str(), type));
}

// The white space that the C conversions skip in the "C" locale.
bool IsCSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

template <class T>
std::string IntegerText(T value)
{
    char buffer[24];
    const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

// Reads an integer as the C run-time's base-10 conversions do for a type of T's width:
// leading white space, one sign, then digits, all of which are consumed. A magnitude
// beyond the type's range is a range error, for negative numbers too; a minus sign on
// an unsigned type wraps the result. Faults are reported with the text as given.
template <class T>
T ReadInteger(const std::string &value, const char *type)
{
    using Unsigned = std::make_unsigned_t<T>;
    constexpr std::uint64_t positiveLimit = std::numeric_limits<T>::max();
    constexpr std::uint64_t negativeLimit =
        std::is_signed_v<T> ? positiveLimit + 1 : std::numeric_limits<Unsigned>::max();
    if (value.empty())
        throw NotConverted(value, type);
    std::size_t i = 0;
    while (i < value.size() && IsCSpace(value[i]))
        ++i;
    bool negative = false;
    if (i < value.size() && (value[i] == '+' || value[i] == '-'))
        negative = value[i++] == '-';
    const std::uint64_t limit = negative ? negativeLimit : positiveLimit;
    const std::size_t firstDigit = i;
    std::uint64_t magnitude = 0;
    bool overflow = false;
    for (; i < value.size() && value[i] >= '0' && value[i] <= '9'; ++i) {
        const unsigned digit = static_cast<unsigned>(value[i] - '0');
        if (magnitude > (limit - digit) / 10)
            overflow = true;
        else
            magnitude = magnitude * 10 + digit;
    }
    if (i == firstDigit)
        throw NotConverted(value, type); // nothing converted: the end stays at the start
    if (overflow)
        throw TooLarge(value, type);
    if (i != value.size())
        throw NotConverted(value, type);
    const Unsigned bits = static_cast<Unsigned>(negative ? Unsigned(0) - static_cast<Unsigned>(magnitude)
                                                         : static_cast<Unsigned>(magnitude));
    return static_cast<T>(bits);
}

template <class T>
T ReadInteger(const std::string &text, CWhitespaceUtils::WhitespaceRule rule, const char *type)
{
    return ReadInteger<T>(CWhitespaceUtils::ApplyRule(rule, text), type);
}

// A narrow integer reads through the 32-bit conversion, whose faults pass unchanged, and
// then reports its own range fault with the text as it was before the rule.
template <class Narrow, class Wide>
Narrow NarrowInteger(Wide value, const std::string &text, const char *type)
{
    if (value < static_cast<Wide>(std::numeric_limits<Narrow>::min()) ||
        value > static_cast<Wide>(std::numeric_limits<Narrow>::max()))
        throw TooLarge(text, type);
    return static_cast<Narrow>(value);
}

locale_t CLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

// Decimal text in the "C" locale's form, with the C run-time's leading white space and
// sign. Hexadecimal text and names such as "inf" are not decimal text here.
bool ReadDecimal(const std::string &value, double &result)
{
    const char *begin = value.c_str();
    const char *p = begin;
    while (IsCSpace(*p))
        ++p;
    if (*p == '+' || *p == '-')
        ++p;
    const bool digitFirst = *p >= '0' && *p <= '9';
    if (!digitFirst && *p != '.')
        return false;
    if (p[0] == '0' && (p[1] == 'x' || p[1] == 'X'))
        return false;
    char *end = nullptr;
    result = strtod_l(begin, &end, CLocale());
    return end == begin + value.size();
}

double ReadReal(const std::string &text, CWhitespaceUtils::WhitespaceRule rule, const char *type)
{
    const std::string value = CWhitespaceUtils::ApplyRule(rule, text);
    if (value == "NaN" || value == "1.#QNAN" || value == "-NAN")
        return std::numeric_limits<double>::quiet_NaN();
    if (value == "-INF")
        return -std::numeric_limits<double>::infinity();
    if (value == "INF")
        return std::numeric_limits<double>::infinity();
    double result = 0;
    if (value.empty() || !ReadDecimal(value, result))
        throw NotConverted(value, type);
    return result;
}

// Rounds to single precision; beyond the range of a single that gives an infinity.
float NarrowToFloat(double value)
{
    if (std::isfinite(value) && std::fabs(value) > FLT_MAX) {
        // Halfway between FLT_MAX and 2^128 rounds to even, which is the overflow.
        const double overflow = std::ldexp(2.0 - std::ldexp(1.0, -24), 127);
        const float limit = std::fabs(value) >= overflow ? std::numeric_limits<float>::infinity() : FLT_MAX;
        return std::copysign(limit, static_cast<float>(std::signbit(value) ? -1 : 1));
    }
    return static_cast<float>(value);
}

// A FormatOverride must be a printf format that reads at most one double; anything
// else would read arguments that are not there.
bool IsRealFormat(const char *format)
{
    int conversions = 0;
    for (const char *p = format; *p; ++p) {
        if (*p != '%')
            continue;
        if (*++p == '%')
            continue;
        while (*p == '-' || *p == '+' || *p == ' ' || *p == '#' || *p == '0')
            ++p;
        while (*p >= '0' && *p <= '9')
            ++p;
        if (*p == '.') {
            ++p;
            while (*p >= '0' && *p <= '9')
                ++p;
        }
        if (*p == 'l')
            ++p;
        if (*p == '\0' || !std::strchr("eEfFgGaA", *p) || ++conversions > 1)
            return false;
    }
    return true;
}

// Exponents get at least three digits, the form documents carry: 1e+20 becomes 1e+020.
void WidenExponents(std::string &text)
{
    auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    for (std::size_t i = 1; i + 2 < text.size(); ++i) {
        const bool exponent = (text[i] == 'e' || text[i] == 'E') && (isDigit(text[i - 1]) || text[i - 1] == '.') &&
                              (text[i + 1] == '+' || text[i + 1] == '-') && isDigit(text[i + 2]);
        if (!exponent)
            continue;
        const std::size_t start = i + 2;
        std::size_t end = start;
        while (end < text.size() && isDigit(text[end]))
            ++end;
        if (end - start < 3)
            text.insert(start, 3 - (end - start), '0');
        i = start;
    }
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
std::string RealText(double value, const std::string &format, const char *defaultFormat)
{
    if (std::isnan(value))
        return "NaN";
    if (std::isinf(value))
        return value < 0 ? "-INF" : "INF";
    const char *printfFormat = format.empty() ? defaultFormat : format.c_str();
    if (!format.empty() && !IsRealFormat(printfFormat))
        throw CVxInvalidParamException(FormatString(
            "The format override [%s] is not a printf format of one floating-point value", printfFormat));
    char buffer[48];
    const int length = std::snprintf(buffer, sizeof buffer, printfFormat, value);
    if (length < 0)
        return std::string();
    std::string text;
    if (static_cast<std::size_t>(length) < sizeof buffer) {
        text.assign(buffer, static_cast<std::size_t>(length));
    } else {
        // An override may ask for more digits than the buffer holds; it gets them all.
        text.resize(static_cast<std::size_t>(length));
        std::snprintf(text.data(), text.size() + 1, printfFormat, value);
    }
    WidenExponents(text);
    return text;
}
#pragma GCC diagnostic pop

} // namespace

std::string CConversions::i1ToString(char value) { return IntegerText(int{static_cast<signed char>(value)}); }
std::string CConversions::i2ToString(std::int16_t value) { return IntegerText(value); }
std::string CConversions::i4ToString(std::int32_t value) { return IntegerText(value); }
std::string CConversions::i8ToString(std::int64_t value) { return IntegerText(value); }
std::string CConversions::ui1ToString(unsigned char value) { return IntegerText(unsigned{value}); }
std::string CConversions::ui2ToString(std::uint16_t value) { return IntegerText(value); }
std::string CConversions::ui4ToString(std::uint32_t value) { return IntegerText(value); }
std::string CConversions::ui8ToString(std::uint64_t value) { return IntegerText(value); }

std::string CConversions::r4ToString(float value) { return RealText(value, std::string(), "%.7g"); }

std::string CConversions::r4ToString(float value, const std::string &format)
{
    return RealText(value, format, "%.7g");
}

std::string CConversions::r8ToString(double value) { return RealText(value, std::string(), "%.16g"); }

std::string CConversions::r8ToString(double value, const std::string &format)
{
    return RealText(value, format, "%.16g");
}

std::uint64_t CConversions::ui8FromString(const std::string &text, WhitespaceRule rule)
{
    return ReadInteger<std::uint64_t>(text, rule, "ui8");
}

std::uint32_t CConversions::ui4FromString(const std::string &text, WhitespaceRule rule)
{
    return ReadInteger<std::uint32_t>(text, rule, "ui4");
}

std::int64_t CConversions::i8FromString(const std::string &text, WhitespaceRule rule)
{
    return ReadInteger<std::int64_t>(text, rule, "i8");
}

std::int32_t CConversions::i4FromString(const std::string &text, WhitespaceRule rule)
{
    return ReadInteger<std::int32_t>(text, rule, "i4");
}

std::uint16_t CConversions::ui2FromString(const std::string &text, WhitespaceRule rule)
{
    return NarrowInteger<std::uint16_t>(ui4FromString(text, rule), text, "ui2");
}

unsigned char CConversions::ui1FromString(const std::string &text, WhitespaceRule rule)
{
    return NarrowInteger<unsigned char>(ui4FromString(text, rule), text, "ui1");
}

std::int16_t CConversions::i2FromString(const std::string &text, WhitespaceRule rule)
{
    return NarrowInteger<std::int16_t>(i4FromString(text, rule), text, "i2");
}

char CConversions::i1FromString(const std::string &text, WhitespaceRule rule)
{
    return static_cast<char>(NarrowInteger<signed char>(i4FromString(text, rule), text, "i1"));
}

double CConversions::r8FromString(const std::string &text, WhitespaceRule rule)
{
    return ReadReal(text, rule, "r8");
}

float CConversions::r4FromString(const std::string &text, WhitespaceRule rule)
{
    return NarrowToFloat(ReadReal(text, rule, "r4"));
}

} // namespace VxXmlLib16
