#pragma once
// An exact decimal with a bounded number of fractional digits: an integer part, a
// fraction part read as a whole number (1.05 has fraction 5) and the count of fractional
// digits that fraction stands for (2 for 1.05). A negative value has both parts negative;
// between -1 and 0 the integer part is a negative zero, which keeps the sign.
//
// Results are cut to GetMaxDecimalPlaces() digits, halves rounding toward zero. A carry
// out of the fraction is not moved into the integer part: 0.99 cut to one digit is stored
// as fraction 10 over one digit and prints "0.10". That loss belongs to the type.

#include "BigInteger.h"

#include <cstdint>
#include <string>

namespace VxXmlLib16 {

class CDecimal
{
public:
    CDecimal();
    CDecimal(std::int32_t value);
    CDecimal(long long value);
    // The platform's own long (64 bits here), so that std::int64_t arguments find a match.
    CDecimal(long value);
    CDecimal(const CBigInteger &value);
    // Thirteen fractional digits are all that ever come from a double.
    CDecimal(double value);
    CDecimal(const char *text);
    CDecimal(const CDecimal &other) = default;
    CDecimal(CDecimal &&other) noexcept = default;
    CDecimal &operator=(const CDecimal &other) = default;
    CDecimal &operator=(CDecimal &&other) noexcept = default;
    virtual ~CDecimal();

    // The stored value without trailing zeros; at most 1024 characters.
    std::string ToString() const;
    // Rounded half away from zero to `places` decimals; the point is always written, and
    // trailing zeros of the rounded sum are dropped ("1.0" for 0.9995 at three places).
    std::string ToString(int places) const;

    CBigInteger ToBigInteger() const;
    // Rounds (halves toward zero).
    std::int32_t ToLong() const;
    // Truncates: it rounds to one digit first and then reads up to the point.
    std::int64_t ToLongLong() const;
    double ToDouble() const;

    const CBigInteger &GetIntegerPart() const { return m_integerPart; }
    const CBigInteger &GetFractionPart() const { return m_fractionPart; }
    int GetFractionDivider() const { return m_fractionDivider; }

    void Negate();
    CDecimal GetNegative() const;

    CDecimal operator+(const CDecimal &other) const;
    CDecimal operator-(const CDecimal &other) const;
    CDecimal operator*(const CDecimal &other) const;
    CDecimal operator/(const CDecimal &other) const;
    CDecimal &operator+=(const CDecimal &other);
    CDecimal &operator-=(const CDecimal &other);
    CDecimal &operator*=(const CDecimal &other);
    CDecimal &operator/=(const CDecimal &other);
    CDecimal &operator++();
    CDecimal &operator--();
    // Postfix forms return the changed copy and leave this object as it was.
    CDecimal operator++(int) const;
    CDecimal operator--(int) const;

    // The integer parts decide strictly; only when they are equal does the operator apply
    // to the fractions. So 1.9 <= 1.1 is false, and -0.5 < 0.5 by the negative zero.
    bool operator==(const CDecimal &other) const;
    bool operator!=(const CDecimal &other) const;
    bool operator<(const CDecimal &other) const;
    bool operator<=(const CDecimal &other) const;
    bool operator>(const CDecimal &other) const;
    bool operator>=(const CDecimal &other) const;

    // Process-wide and unguarded: set it at program start. At least 1.
    static int GetMaxDecimalPlaces();
    static void SetMaxDecimalPlaces(int places);

private:
    CDecimal(const CBigInteger &integerPart, const CBigInteger &fractionPart, int divider);

    void Parse(const char *text);
    // Calls use(a, b, divider) with both values raised to the larger divider; only the
    // value that must change is copied.
    template <class Use>
    static auto Normalize(const CDecimal &a, const CDecimal &b, Use use);
    void ChangeFractionalDivider(int newDivider);
    // Strips trailing zeros of the fraction digits, keeping at least one.
    void Rationalise();
    // Cuts the fraction to m_maxDivider digits when it has more.
    void LimitDivider();
    // Borrows across the point until both parts have one sign; a zero integer part takes
    // the sign of the fraction. `unit` is ten to the divider.
    static void BalanceSigns(CBigInteger &integerPart, CBigInteger &fractionPart, const CBigInteger &unit);
    // The magnitude's digits, left-padded with "0" to `width`; a longer text stays whole.
    static void AppendPadded(std::string &text, const CBigInteger &magnitude, int width);
    template <class IntegerOrder, class FractionOrder>
    bool CompareWith(const CDecimal &other, IntegerOrder integerOrder, FractionOrder fractionOrder) const;

    CBigInteger m_integerPart;
    CBigInteger m_fractionPart;
    int m_fractionDivider;

    static int m_maxDivider;
};

} // namespace VxXmlLib16
