#include "BigInteger.h"

#include "Decimal.h"
#include "Exceptions.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace VxXmlLib16 {

// Built through CDecimal, as every text with a point or an exponent is.
const CBigInteger CBigInteger::MAX_LONG(CDecimal("2147483647"));
const CBigInteger CBigInteger::MIN_LONG(CDecimal("-2147483648"));
const CBigInteger CBigInteger::MAX_LONGLONG(CDecimal("9223372036854775807"));
const CBigInteger CBigInteger::MIN_LONGLONG(CDecimal("-9223372036854775808"));
const CBigInteger CBigInteger::MAX_DOUBLE(CDecimal("1.7E+308"));
const CBigInteger CBigInteger::MIN_DOUBLE(CDecimal("-1.7E+308"));

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// An empty digit vector counts as zero too.
bool AllZero(const std::vector<char> &digits)
{
    return std::all_of(digits.rbegin(), digits.rend(), [](char digit) { return digit == 0; });
}

// The characters a text may hold without being handed to the decimal parser.
bool IsIntegerTextChar(char c)
{
    return IsDigit(c) || c == '-' || c == '+' || c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

} // namespace

CBigInteger::CBigInteger() : m_sign(1), m_digits(1, 0) {}

CBigInteger::CBigInteger(std::int32_t value) : m_sign(value < 0 ? -1 : 1)
{
    // Negated as unsigned so that the most negative value works.
    const auto magnitude = static_cast<std::uint32_t>(value);
    Build(value < 0 ? 0u - magnitude : magnitude, m_digits);
}

CBigInteger::CBigInteger(std::uint32_t value) : m_sign(1) { Build(value, m_digits); }

CBigInteger::CBigInteger(long long value) : m_sign(value < 0 ? -1 : 1)
{
    const auto magnitude = static_cast<unsigned long long>(value);
    BuildDWORDLONG(value < 0 ? 0ull - magnitude : magnitude, m_digits);
}

CBigInteger::CBigInteger(unsigned long long value) : m_sign(1) { BuildDWORDLONG(value, m_digits); }

CBigInteger::CBigInteger(long value) : CBigInteger(static_cast<long long>(value)) {}

CBigInteger::CBigInteger(unsigned long value) : CBigInteger(static_cast<unsigned long long>(value)) {}

CBigInteger::CBigInteger(double value) : m_sign(value < 0.0 ? -1 : 1)
{
    BuildDouble(value < 0.0 ? -value : value, m_digits);
}

CBigInteger::CBigInteger(const char *text) : m_sign(1) { Parse(text); }

CBigInteger::CBigInteger(const CDecimal &value) : CBigInteger(value.ToBigInteger()) {}

CBigInteger::CBigInteger(int sign, const Digits &digits) : m_sign(sign), m_digits(digits) {}

CBigInteger::CBigInteger(int sign, Digits &&digits) : m_sign(sign), m_digits(std::move(digits)) {}

CBigInteger::~CBigInteger() = default;

// The scan below is the only check a text gets: Build reads backwards and stops at the
// first character that is not a digit, so "+5" is 5, "12-34" is 34, "\t-5" is 5 and "5-"
// leaves no digits at all. Texts with other characters go through CDecimal.
void CBigInteger::Parse(const char *text)
{
    if (text == nullptr)
        text = "";
    const char *begin = text;
    const char *end = text + std::strlen(text);
    if (!std::all_of(begin, end, IsIntegerTextChar)) {
        *this = CBigInteger(CDecimal(text));
        return;
    }
    // Only blanks are trimmed, no other white space.
    while (begin != end && *begin == ' ')
        ++begin;
    while (end != begin && end[-1] == ' ')
        --end;
    m_sign = 1;
    if (begin == end) {
        m_digits.assign(1, 0);
        return;
    }
    if (*begin == '-') {
        m_sign = -1;
        ++begin;
    }
    Build(std::string_view(begin, static_cast<std::size_t>(end - begin)), m_digits);
}

void CBigInteger::AppendMagnitude(std::string &text) const
{
    if (IsZero()) {
        text += '0';
        return;
    }
    for (auto it = m_digits.rbegin(); it != m_digits.rend(); ++it)
        text += static_cast<char>(*it + '0');
}

std::string CBigInteger::ToString() const
{
    std::string text;
    text.reserve(m_digits.size() + 1);
    if (m_sign == -1 && !IsZero())
        text += '-';
    AppendMagnitude(text);
    return text;
}

CBigInteger::operator int() const
{
    if (*this < MIN_LONG || *this > MAX_LONG)
        throw CVxInvalidValueException("ERROR: Value out of bound of int.");
    long long sum = 0;
    long long multiplier = 1;
    for (char digit : m_digits) {
        sum += digit * multiplier;
        multiplier *= 10;
    }
    return static_cast<int>(m_sign * sum);
}

CBigInteger::operator long long() const
{
    if (*this < MIN_LONGLONG || *this > MAX_LONGLONG)
        throw CVxInvalidValueException("ERROR: Value out of bound of LONGLONG.");
    // The multiplier and each product are 32 bits wide and wrap; the sum is 64 bits.
    long long sum = 0;
    std::uint32_t multiplier = 1;
    for (char digit : m_digits) {
        const std::uint32_t product = static_cast<std::uint32_t>(digit) * multiplier;
        sum += m_sign == 1 ? static_cast<long long>(product) : -static_cast<long long>(product);
        multiplier *= 10;
    }
    return sum;
}

bool CBigInteger::IsZero() const { return AllZero(m_digits); }

void CBigInteger::AddSigned(const Digits &digits, int sign)
{
    if (m_sign == sign) {
        Add(m_digits, digits, m_digits);
        return;
    }
    const int order = Compare(m_digits, digits);
    if (order == 0) {
        *this = CBigInteger(0);
    } else if (order > 0) {
        Subtract(m_digits, digits, m_digits);
    } else {
        Subtract(digits, m_digits, m_digits);
        m_sign = sign;
    }
}

CBigInteger CBigInteger::operator+(const CBigInteger &other) const { return CBigInteger(*this) += other; }

CBigInteger CBigInteger::operator-(const CBigInteger &other) const { return CBigInteger(*this) -= other; }

CBigInteger CBigInteger::operator*(const CBigInteger &other) const { return CBigInteger(*this) *= other; }

CBigInteger &CBigInteger::operator+=(const CBigInteger &other)
{
    AddSigned(other.m_digits, other.m_sign);
    return *this;
}

CBigInteger &CBigInteger::operator-=(const CBigInteger &other)
{
    AddSigned(other.m_digits, -other.m_sign);
    return *this;
}

// The sign is the product of the signs, regardless of zero: -5 * 0 is a negative zero.
CBigInteger &CBigInteger::operator*=(const CBigInteger &other)
{
    m_sign *= other.m_sign;
    Multiply(m_digits, other.m_digits, m_digits);
    return *this;
}

// Truncates toward zero; a zero quotient of a negative operand stays a negative zero.
CBigInteger CBigInteger::operator/(const CBigInteger &other) const
{
    if (other.IsZero())
        throw CVxInvalidValueException("ERROR: Overflow in operator/.");
    if (IsZero())
        return CBigInteger();
    Digits quotient;
    Digits remainder;
    Divide(m_digits, other.m_digits, quotient, remainder);
    return CBigInteger(m_sign == other.m_sign ? 1 : -1, std::move(quotient));
}

// The divisor checks of /, %, /= and %= differ on purpose, and so do their messages. A
// divisor "below 0" is one with the sign -1, a negative zero included.
CBigInteger CBigInteger::operator%(const CBigInteger &other) const
{
    if (other.m_sign == -1)
        throw CVxInvalidValueException("ERROR: Overflow in operator%.");
    return Remainder(other);
}

CBigInteger &CBigInteger::operator/=(const CBigInteger &other)
{
    if (other.m_sign == -1)
        throw CVxInvalidValueException("ERROR: Overflow in operator /=.");
    return *this = *this / other;
}

CBigInteger &CBigInteger::operator%=(const CBigInteger &other)
{
    if (other.m_sign == -1)
        throw CVxInvalidValueException("ERROR: Overflow in operator%=.");
    return *this = Remainder(other);
}

// The remainder takes the sign of the dividend. A zero dividend gives 0 before the
// divisor is looked at; a zero divisor would otherwise never end the division.
CBigInteger CBigInteger::Remainder(const CBigInteger &divisor) const
{
    if (IsZero())
        return CBigInteger();
    if (divisor.IsZero())
        throw CVxInvalidValueException("ERROR: Overflow in operator%.");
    Digits quotient;
    Digits remainder;
    Divide(m_digits, divisor.m_digits, quotient, remainder);
    return CBigInteger(m_sign, std::move(remainder));
}

CBigInteger &CBigInteger::operator-()
{
    Negate();
    return *this;
}

void CBigInteger::Negate() { m_sign = -m_sign; }

void CBigInteger::Abs() { m_sign = 1; }

CBigInteger CBigInteger::GetNegative() const { return CBigInteger(-m_sign, m_digits); }

CBigInteger CBigInteger::GetAbs() const { return CBigInteger(1, m_digits); }

bool CBigInteger::operator==(const CBigInteger &other) const
{
    if (m_digits != other.m_digits)
        return false;
    return (m_digits.size() == 1 && m_digits[0] == 0) || m_sign == other.m_sign;
}

bool CBigInteger::operator!=(const CBigInteger &other) const { return !(*this == other); }

// The signs decide first, so a negative zero is below a plain zero.
bool CBigInteger::operator<(const CBigInteger &other) const
{
    if (m_sign != other.m_sign)
        return m_sign < other.m_sign;
    const int order = Compare(m_digits, other.m_digits);
    return m_sign == 1 ? order < 0 : order > 0;
}

bool CBigInteger::operator>(const CBigInteger &other) const
{
    if (m_sign != other.m_sign)
        return m_sign > other.m_sign;
    const int order = Compare(m_digits, other.m_digits);
    return m_sign == 1 ? order > 0 : order < 0;
}

bool CBigInteger::operator<=(const CBigInteger &other) const { return !(*this > other); }

bool CBigInteger::operator>=(const CBigInteger &other) const { return !(*this < other); }

// Newton's iteration from a power of ten above the root; 0 fails in the division, as the
// guess walks down to 0.
CBigInteger CBigInteger::SquareRoot() const
{
    if (*this < CBigInteger())
        throw CVxInvalidValueException("ERROR: Negative Number in function SquareRoot().");
    const CBigInteger hundred(100);
    const CBigInteger ten(10);
    const CBigInteger two(2);
    CBigInteger n(*this);
    CBigInteger guess(ten);
    for (;;) {
        n /= hundred;
        if (!(n > CBigInteger()))
            break;
        guess *= ten;
    }
    CBigInteger previous;
    do {
        previous = guess;
        guess = (guess + *this / previous) / two;
    } while (guess < previous);
    return previous;
}

CBigInteger CBigInteger::Pow10(unsigned int n)
{
    CBigInteger result;
    Pow10(n, result.m_digits);
    return result;
}

int CBigInteger::Position(const Digits &digits) { return digits.empty() ? 1 : static_cast<int>(digits.size()); }

int CBigInteger::Compare(const Digits &a, const Digits &b)
{
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    for (std::size_t i = a.size(); i-- > 0;) {
        if (a[i] != b[i])
            return a[i] < b[i] ? -1 : 1;
    }
    return 0;
}

void CBigInteger::Clean(Digits &digits)
{
    while (digits.size() > 1 && digits.back() == 0)
        digits.pop_back();
}

void CBigInteger::ShiftLeft(Digits &digits, int n)
{
    if (n > 0)
        digits.insert(digits.begin(), static_cast<std::size_t>(n), 0);
}

void CBigInteger::Pow10(unsigned int n, Digits &digits)
{
    digits.assign(static_cast<std::size_t>(n) + 1, 0);
    digits.back() = 1;
}

void CBigInteger::Multiply(const Digits &a, char digit, Digits &result)
{
    if (digit == 0) {
        result.assign(1, 0);
        return;
    }
    result.resize(a.size());
    int carry = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const int product = a[i] * digit + carry;
        result[i] = static_cast<char>(product % 10);
        carry = product / 10;
    }
    if (carry > 0)
        result.push_back(static_cast<char>(carry));
}

// One partial product per non-zero digit of b, added in at that digit's place.
void CBigInteger::Multiply(const Digits &a, const Digits &b, Digits &result)
{
    if (AllZero(a) || AllZero(b)) {
        result.assign(1, 0);
        return;
    }
    Digits product;
    Digits partial;
    for (std::size_t shift = 0; shift < b.size(); ++shift) {
        if (b[shift] == 0)
            continue;
        Multiply(a, b[shift], partial);
        if (product.size() < shift + partial.size())
            product.resize(shift + partial.size(), 0);
        int carry = 0;
        std::size_t i = 0;
        for (; i < partial.size(); ++i) {
            const int sum = product[shift + i] + partial[i] + carry;
            product[shift + i] = static_cast<char>(sum % 10);
            carry = sum / 10;
        }
        for (std::size_t j = shift + i; carry > 0; ++j) {
            if (j == product.size())
                product.push_back(0);
            const int sum = product[j] + carry;
            product[j] = static_cast<char>(sum % 10);
            carry = sum / 10;
        }
    }
    result.swap(product);
}

// Digit by digit with a carry of 0 or 1 over the common length; not cleaned.
void CBigInteger::Add(const Digits &a, const Digits &b, Digits &result)
{
    // Addition commutes, so the argument that is not the result is the one added in.
    const Digits &addend = &result == &b ? a : b;
    if (&result != &a && &result != &b)
        result = a;
    if (result.size() < addend.size())
        result.resize(addend.size(), 0);
    int carry = 0;
    for (std::size_t i = 0; i < result.size() && (carry > 0 || i < addend.size()); ++i) {
        const int sum = result[i] + (i < addend.size() ? addend[i] : 0) + carry;
        result[i] = static_cast<char>(sum % 10);
        carry = sum / 10;
    }
    if (carry > 0)
        result.push_back(1);
}

void CBigInteger::Subtract(const Digits &a, const Digits &b, Digits &result)
{
    if (&result == &b) {
        Digits difference;
        Subtract(a, b, difference);
        result.swap(difference);
        return;
    }
    if (&result != &a)
        result = a;
    int borrow = 0;
    for (std::size_t i = 0; i < result.size() && (borrow > 0 || i < b.size()); ++i) {
        int difference = result[i] - (i < b.size() ? b[i] : 0) - borrow;
        borrow = difference < 0 ? 1 : 0;
        result[i] = static_cast<char>(difference + 10 * borrow);
    }
    Clean(result);
}

// Long division: one remainder step per digit of a, each subtracting b at most nine times.
void CBigInteger::Divide(const Digits &a, const Digits &b, Digits &quotient, Digits &remainder)
{
    if (Compare(a, b) < 0) {
        remainder = a;
        quotient.assign(1, 0);
        return;
    }
    Digits result(a.size(), 0);
    Digits rest(1, 0);
    for (std::size_t i = a.size(); i-- > 0;) {
        if (rest.size() == 1 && rest[0] == 0)
            rest[0] = a[i];
        else
            rest.insert(rest.begin(), a[i]);
        char count = 0;
        while (Compare(rest, b) >= 0) {
            Subtract(rest, b, rest);
            ++count;
        }
        result[i] = count;
    }
    Clean(result);
    quotient.swap(result);
    remainder.swap(rest);
}

void CBigInteger::Build(std::string_view text, Digits &digits)
{
    digits.clear();
    for (auto it = text.rbegin(); it != text.rend() && IsDigit(*it); ++it)
        digits.push_back(static_cast<char>(*it - '0'));
    Clean(digits);
}

void CBigInteger::Build(unsigned int value, Digits &digits) { BuildDWORDLONG(value, digits); }

void CBigInteger::BuildDWORDLONG(unsigned long long value, Digits &digits)
{
    digits.clear();
    do {
        digits.push_back(static_cast<char>(value % 10));
        value /= 10;
    } while (value != 0);
}

// The digits come from a floating-point loop, so a large double does not give its exact
// decimal expansion. A NaN gives no digits.
void CBigInteger::BuildDouble(double value, Digits &digits)
{
    if (std::isinf(value))
        throw CVxOverFlowException("ERROR: Infinite value out of bound of BigInteger.");
    digits.clear();
    value = std::ceil(value - 0.5);
    if (value == 0.0) {
        digits.push_back(0);
        return;
    }
    while (value > 0.0) {
        digits.push_back(static_cast<char>(std::fmod(value, 10.0)));
        std::modf(value / 10.0, &value);
    }
}

} // namespace VxXmlLib16
