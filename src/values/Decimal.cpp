#include "Decimal.h"

#include "Exceptions.h"
#include "WhitespaceUtils.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <functional>

namespace VxXmlLib16 {

int CDecimal::m_maxDivider = 30;

namespace {

const char *const kInvalidChar = "The string representing a Decimal, contained an invalid char at position %d [%s].";

// The parser keeps its digits in fixed buffers; a text that does not fit fails at the
// first character that does not fit, like any other bad character.
constexpr std::size_t kDigitBufferSize = 512;
constexpr std::size_t kExponentBufferSize = 32;
// Far beyond the range of a double; a larger exponent would only build giant numbers.
constexpr int kMaxExponent = 999;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

template <std::size_t Size>
class DigitBuffer
{
public:
    // False when the buffer, with room for its terminating NUL, is full.
    bool Push(char c)
    {
        if (m_length + 1 >= Size)
            return false;
        m_text[m_length++] = c;
        return true;
    }
    const char *Text()
    {
        m_text[m_length] = '\0';
        return m_text;
    }
    std::size_t Length() const { return m_length; }

private:
    char m_text[Size];
    std::size_t m_length = 0;
};

} // namespace

CDecimal::CDecimal() : m_fractionDivider(1) {}

CDecimal::CDecimal(std::int32_t value) : m_integerPart(value), m_fractionDivider(1) {}

CDecimal::CDecimal(long long value) : m_integerPart(value), m_fractionDivider(1) {}

CDecimal::CDecimal(long value) : m_integerPart(value), m_fractionDivider(1) {}

CDecimal::CDecimal(const CBigInteger &value) : m_integerPart(value), m_fractionDivider(1) {}

// The text of "%.13f\n": the line feed is skipped as white space, and a NaN or an infinity
// fails in Parse like any other bad text.
CDecimal::CDecimal(double value) : m_fractionDivider(1)
{
    char buffer[1024];
    char *end = std::to_chars(buffer, buffer + sizeof buffer - 2, value, std::chars_format::fixed, 13).ptr;
    *end++ = '\n';
    *end = '\0';
    Parse(buffer);
}

CDecimal::CDecimal(const char *text) : m_fractionDivider(1) { Parse(text); }

CDecimal::CDecimal(const CBigInteger &integerPart, const CBigInteger &fractionPart, int divider)
    : m_integerPart(integerPart), m_fractionPart(fractionPart), m_fractionDivider(divider)
{
}

CDecimal::~CDecimal() = default;

// Signs may stand anywhere among the integer digits, the last one winning ("1-2" is -12),
// and white space is skipped everywhere but among the exponent digits. Nothing requires a
// digit: "", ".", "-" and "e5" are all zero.
void CDecimal::Parse(const char *text)
{
    if (text == nullptr)
        text = "";
    const auto fail = [text](std::size_t position) {
        throw CVxInvalidValueException(FormatString(kInvalidChar, static_cast<int>(position), text));
    };
    DigitBuffer<kDigitBufferSize> integerDigits;
    DigitBuffer<kDigitBufferSize> fractionDigits;
    DigitBuffer<kExponentBufferSize> exponentDigits;
    bool negative = false;
    bool negativeExponent = false;
    std::size_t pos = 0;

    for (; text[pos] != '\0'; ++pos) {
        const char c = text[pos];
        if (IsDigit(c)) {
            if (!integerDigits.Push(c))
                fail(pos);
        } else if (c == '-' || c == '+') {
            negative = c == '-';
        } else if (c == '.' || c == 'e' || c == 'E') {
            break;
        } else if (!CWhitespaceUtils::IsWhiteSpace(c)) {
            fail(pos);
        }
    }
    if (text[pos] == '.') {
        for (++pos; text[pos] != '\0'; ++pos) {
            const char c = text[pos];
            if (IsDigit(c)) {
                if (!fractionDigits.Push(c))
                    fail(pos);
            } else if (!CWhitespaceUtils::IsWhiteSpace(c)) {
                break;
            }
        }
    }
    int exponent = 0;
    if (text[pos] == 'e' || text[pos] == 'E') {
        for (++pos; text[pos] != '\0'; ++pos) {
            const char c = text[pos];
            if (c == '-' || c == '+')
                negativeExponent = c == '-';
            else if (!CWhitespaceUtils::IsWhiteSpace(c))
                break;
        }
        for (; IsDigit(text[pos]); ++pos) {
            exponent = exponent * 10 + (text[pos] - '0');
            if (!exponentDigits.Push(text[pos]) || exponent > kMaxExponent)
                fail(pos);
        }
    }
    if (text[pos] != '\0')
        fail(pos);

    m_integerPart.Parse(integerDigits.Text());
    m_fractionPart.Parse(fractionDigits.Text());
    m_fractionDivider = std::max(static_cast<int>(fractionDigits.Length()), 1);
    if (negative)
        Negate();
    if (exponentDigits.Length() > 0) {
        const CDecimal scale(CBigInteger::Pow10(static_cast<unsigned int>(exponent)));
        *this = negativeExponent ? *this / scale : *this * scale;
    }
    Rationalise();
    LimitDivider();
}

std::string CDecimal::ToString() const
{
    if (m_fractionPart == CBigInteger())
        return m_integerPart.ToString();
    std::string text;
    text.reserve(m_integerPart.m_digits.size() + static_cast<std::size_t>(std::max(m_fractionDivider, 0)) + 3);
    if (m_integerPart.m_sign == -1)
        text += '-';
    m_integerPart.AppendMagnitude(text);
    text += '.';
    AppendPadded(text, m_fractionPart, m_fractionDivider);
    if (text.size() > 1024)
        text.resize(1024);
    return text;
}

// Adds the half-unit of the last wanted place, with this value's sign, and cuts the
// fraction text of the sum: rounding half away from zero.
std::string CDecimal::ToString(int places) const
{
    places = std::max(places, 0);
    CBigInteger signedZero;
    signedZero.m_sign = m_integerPart.m_sign;
    // Read as text, a half-unit beyond m_maxDivider digits is cut to a signed zero.
    const CDecimal half = places < m_maxDivider
        ? CDecimal(signedZero, CBigInteger(5 * m_integerPart.m_sign), places + 1)
        : CDecimal(signedZero, signedZero, m_maxDivider);
    const CDecimal sum = half + *this;

    std::string fraction;
    AppendPadded(fraction, sum.m_fractionPart, sum.m_fractionDivider);
    if (fraction.size() > static_cast<std::size_t>(places))
        fraction.resize(static_cast<std::size_t>(places));
    std::string text;
    text.reserve(sum.m_integerPart.m_digits.size() + fraction.size() + 2);
    if (sum.m_integerPart.m_sign == -1)
        text += '-';
    sum.m_integerPart.AppendMagnitude(text);
    text += '.';
    text += fraction;
    return text;
}

CBigInteger CDecimal::ToBigInteger() const
{
    CDecimal copy(*this);
    copy.ChangeFractionalDivider(0);
    return copy.m_integerPart;
}

std::int32_t CDecimal::ToLong() const
{
    CDecimal copy(*this);
    copy.ChangeFractionalDivider(0);
    if (copy.m_integerPart > CBigInteger::MAX_LONG || copy.m_integerPart < CBigInteger::MIN_LONG)
        throw CVxOverFlowException("The Decimal value if to large to fit into a LONG");
    return std::atoi(copy.ToString().c_str());
}

std::int64_t CDecimal::ToLongLong() const
{
    CDecimal copy(*this);
    copy.ChangeFractionalDivider(1);
    if (copy.m_integerPart > CBigInteger::MAX_LONGLONG || copy.m_integerPart < CBigInteger::MIN_LONGLONG)
        throw CVxOverFlowException("The Decimal value if to large to fit into a LONGLONG");
    return std::strtoll(copy.ToString().c_str(), nullptr, 10);
}

double CDecimal::ToDouble() const
{
    if (m_integerPart > CBigInteger::MAX_DOUBLE || m_integerPart < CBigInteger::MIN_DOUBLE)
        throw CVxOverFlowException("The Decimal value if to large to fit into a Double");
    const std::string text = ToString();
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

void CDecimal::AppendPadded(std::string &text, const CBigInteger &magnitude, int width)
{
    const std::size_t start = text.size();
    magnitude.AppendMagnitude(text);
    const std::size_t length = text.size() - start;
    if (width > 0 && length < static_cast<std::size_t>(width))
        text.insert(start, static_cast<std::size_t>(width) - length, '0');
}

void CDecimal::Negate()
{
    m_integerPart.Negate();
    m_fractionPart.Negate();
}

CDecimal CDecimal::GetNegative() const
{
    CDecimal copy(*this);
    copy.Negate();
    return copy;
}

void CDecimal::BalanceSigns(CBigInteger &integerPart, CBigInteger &fractionPart, const CBigInteger &unit)
{
    const CBigInteger zero;
    const CBigInteger one(1);
    if (integerPart > zero && fractionPart < zero) {
        fractionPart += unit;
        integerPart -= one;
    }
    if (integerPart < zero && fractionPart > zero) {
        fractionPart -= unit;
        integerPart += one;
    }
    if (integerPart == zero)
        integerPart.m_sign = fractionPart.m_sign;
}

template <class Use>
auto CDecimal::Normalize(const CDecimal &a, const CDecimal &b, Use use)
{
    if (a.m_fractionDivider < b.m_fractionDivider) {
        CDecimal raised(a);
        raised.ChangeFractionalDivider(b.m_fractionDivider);
        return use(raised, b, b.m_fractionDivider);
    }
    if (b.m_fractionDivider < a.m_fractionDivider) {
        CDecimal raised(b);
        raised.ChangeFractionalDivider(a.m_fractionDivider);
        return use(a, raised, a.m_fractionDivider);
    }
    return use(a, b, a.m_fractionDivider);
}

// The sum is not cut to m_maxDivider: it keeps the larger divider of its operands.
CDecimal CDecimal::operator+(const CDecimal &other) const
{
    return Normalize(*this, other, [](const CDecimal &a, const CDecimal &b, int divider) {
        const CBigInteger unit = CBigInteger::Pow10(static_cast<unsigned int>(divider));
        const CBigInteger negativeUnit = unit.GetNegative();
        const CBigInteger one(1);
        CBigInteger fraction = a.m_fractionPart + b.m_fractionPart;
        CBigInteger integer = a.m_integerPart + b.m_integerPart;
        while (fraction >= unit) {
            fraction -= unit;
            integer += one;
        }
        while (fraction <= negativeUnit) {
            fraction += unit;
            integer -= one;
        }
        BalanceSigns(integer, fraction, unit);
        CDecimal sum(integer, fraction, divider);
        sum.Rationalise();
        return sum;
    });
}

CDecimal CDecimal::operator-(const CDecimal &other) const { return *this + other.GetNegative(); }

// All four cross products over the square of the common scale.
CDecimal CDecimal::operator*(const CDecimal &other) const
{
    return Normalize(*this, other, [](const CDecimal &a, const CDecimal &b, int divider) {
        const CBigInteger scale = CBigInteger::Pow10(static_cast<unsigned int>(divider));
        const CBigInteger scaleSquared = CBigInteger::Pow10(static_cast<unsigned int>(2 * divider));
        const CBigInteger sum = b.m_integerPart * a.m_integerPart * scaleSquared +
            b.m_integerPart * a.m_fractionPart * scale + b.m_fractionPart * a.m_integerPart * scale +
            b.m_fractionPart * a.m_fractionPart;
        CDecimal product(sum / scaleSquared, sum % scaleSquared, 2 * divider);
        product.Rationalise();
        product.LimitDivider();
        return product;
    });
}

// Two guard digits beyond m_maxDivider carry the rounding that LimitDivider does.
CDecimal CDecimal::operator/(const CDecimal &other) const
{
    return Normalize(*this, other, [](const CDecimal &a, const CDecimal &b, int divider) {
        const CBigInteger scale = CBigInteger::Pow10(static_cast<unsigned int>(divider));
        const int resultDivider = m_maxDivider + 2;
        const CBigInteger resultScale = CBigInteger::Pow10(static_cast<unsigned int>(resultDivider));
        const CBigInteger numerator = (scale * a.m_integerPart + a.m_fractionPart) * resultScale;
        const CBigInteger denominator = scale * b.m_integerPart + b.m_fractionPart;
        const CBigInteger quotient = numerator / denominator;
        CDecimal result(quotient / resultScale, quotient % resultScale, resultDivider);
        result.Rationalise();
        result.LimitDivider();
        return result;
    });
}

CDecimal &CDecimal::operator+=(const CDecimal &other) { return *this = *this + other; }

CDecimal &CDecimal::operator-=(const CDecimal &other) { return *this = *this - other; }

CDecimal &CDecimal::operator*=(const CDecimal &other) { return *this = *this * other; }

CDecimal &CDecimal::operator/=(const CDecimal &other) { return *this = *this / other; }

CDecimal &CDecimal::operator++() { return *this = *this + CDecimal(1); }

CDecimal &CDecimal::operator--() { return *this = *this - CDecimal(1); }

CDecimal CDecimal::operator++(int) const { return *this + CDecimal(1); }

CDecimal CDecimal::operator--(int) const { return *this - CDecimal(1); }

template <class IntegerOrder, class FractionOrder>
bool CDecimal::CompareWith(const CDecimal &other, IntegerOrder integerOrder, FractionOrder fractionOrder) const
{
    return Normalize(*this, other, [&](const CDecimal &a, const CDecimal &b, int) {
        if (integerOrder(a.m_integerPart, b.m_integerPart))
            return true;
        return a.m_integerPart == b.m_integerPart && fractionOrder(a.m_fractionPart, b.m_fractionPart);
    });
}

bool CDecimal::operator==(const CDecimal &other) const
{
    return Normalize(*this, other, [](const CDecimal &a, const CDecimal &b, int) {
        return a.m_fractionPart == b.m_fractionPart && a.m_integerPart == b.m_integerPart;
    });
}

bool CDecimal::operator!=(const CDecimal &other) const { return !(*this == other); }

bool CDecimal::operator<(const CDecimal &other) const { return CompareWith(other, std::less<>(), std::less<>()); }

bool CDecimal::operator<=(const CDecimal &other) const
{
    return CompareWith(other, std::less<>(), std::less_equal<>());
}

bool CDecimal::operator>(const CDecimal &other) const
{
    return CompareWith(other, std::greater<>(), std::greater<>());
}

bool CDecimal::operator>=(const CDecimal &other) const
{
    return CompareWith(other, std::greater<>(), std::greater_equal<>());
}

int CDecimal::GetMaxDecimalPlaces() { return m_maxDivider; }

void CDecimal::SetMaxDecimalPlaces(int places)
{
    if (places < 1)
        throw CVxInvalidParamException(
            FormatString("The maximum number of decimal places must be at least 1 [%d]", places));
    m_maxDivider = places;
}


// Rounds halves toward zero. The carry is never moved into the integer part: a fraction
// that reaches ten to the divider stays so (0.99 at one digit is fraction 10).
void CDecimal::ChangeFractionalDivider(int newDivider)
{
    if (m_fractionDivider <= newDivider) {
        // Ten to the difference times the fraction; a zero stays one digit and its sign.
        if (m_fractionPart.IsZero())
            m_fractionPart.m_digits.assign(1, 0);
        else
            CBigInteger::ShiftLeft(m_fractionPart.m_digits, newDivider - m_fractionDivider);
        m_fractionDivider = newDivider;
        return;
    }
    const CBigInteger unit = CBigInteger::Pow10(static_cast<unsigned int>(m_fractionDivider - newDivider));
    const CBigInteger rest = m_fractionPart % unit;
    m_fractionPart = m_fractionPart / unit;
    m_fractionDivider = newDivider;

    const CBigInteger half = unit / CBigInteger(2);
    const int carry = rest > half ? 1 : (rest < unit / CBigInteger(-2) ? -1 : 0);
    if (carry == 0)
        return;
    if (m_fractionDivider == 0) {
        m_integerPart += CBigInteger(carry);
        return;
    }
    m_fractionPart += CBigInteger(carry);
    BalanceSigns(m_integerPart, m_fractionPart, CBigInteger::Pow10(static_cast<unsigned int>(m_fractionDivider)));
}

// Works on the fraction's digits as text right-aligned in a field of `divider` zeros.
// The first character of the field is never inspected, so at least one digit stays. A
// fraction too long for its field (fraction 10 over one digit) is not copied, and the
// all-zero field then strips it like trailing zeros.
void CDecimal::Rationalise()
{
    std::vector<char> &digits = m_fractionPart.m_digits;
    const int width = m_fractionDivider;
    const bool zero = m_fractionPart.IsZero();
    const int textLength = zero ? 1 : static_cast<int>(digits.size());
    int strip = 0;
    if (textLength > width) {
        strip = std::max(width - 1, 0);
    } else {
        while (strip < width - 1 && (zero || strip >= textLength || digits[static_cast<std::size_t>(strip)] == 0))
            ++strip;
    }
    if (strip == 0)
        return;
    if (zero)
        m_fractionPart = CBigInteger(); // zero divided by ten is a plain zero
    else
        digits.erase(digits.begin(), digits.begin() + strip);
    m_fractionDivider -= strip;
}

void CDecimal::LimitDivider()
{
    if (m_fractionDivider > m_maxDivider)
        ChangeFractionalDivider(m_maxDivider);
}

} // namespace VxXmlLib16
