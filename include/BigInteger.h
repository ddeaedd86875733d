#pragma once
// An unbounded integer kept as a list of decimal digits, least significant first. Plain
// rather than fast: text conversion is trivial and the arithmetic is the schoolroom's.
//
// Zero may carry the sign -1. CDecimal relies on this negative zero to keep the sign of
// values between -1 and 0: operator== calls it equal to 0, operator< calls it smaller.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace VxXmlLib16 {

class CDecimal;

class CBigInteger
{
public:
    static const CBigInteger MAX_LONG;
    static const CBigInteger MIN_LONG;
    static const CBigInteger MAX_LONGLONG;
    static const CBigInteger MIN_LONGLONG;
    // 17 followed by 307 zeros: a rounded bound, not the largest double.
    static const CBigInteger MAX_DOUBLE;
    static const CBigInteger MIN_DOUBLE;

    CBigInteger();
    CBigInteger(std::int32_t value);
    CBigInteger(std::uint32_t value);
    CBigInteger(long long value);
    CBigInteger(unsigned long long value);
    // The platform's own long (64 bits here), so that std::int64_t arguments find a match.
    CBigInteger(long value);
    CBigInteger(unsigned long value);
    // Nearest whole number, a half going down; the digits come from a floating-point loop.
    CBigInteger(double value);
    CBigInteger(const char *text);
    // Rounds to zero fractional digits, halves toward zero. Explicit because it loses the
    // fraction.
    explicit CBigInteger(const CDecimal &value);
    CBigInteger(const CBigInteger &other) = default;
    CBigInteger(CBigInteger &&other) noexcept = default;
    CBigInteger &operator=(const CBigInteger &other) = default;
    CBigInteger &operator=(CBigInteger &&other) noexcept = default;
    virtual ~CBigInteger();

    // Reads the text backwards from its end; see the class notes in BigInteger.cpp.
    void Parse(const char *text);
    std::string ToString() const;

    // Checked narrowings. The 64-bit one keeps a 32-bit running multiplier that wraps, so
    // it is exact only up to 4294967295; that result is part of the interface.
    explicit operator int() const;
    explicit operator long long() const;

    CBigInteger operator+(const CBigInteger &other) const;
    CBigInteger operator-(const CBigInteger &other) const;
    CBigInteger operator*(const CBigInteger &other) const;
    CBigInteger operator/(const CBigInteger &other) const;
    CBigInteger operator%(const CBigInteger &other) const;
    CBigInteger &operator+=(const CBigInteger &other);
    CBigInteger &operator-=(const CBigInteger &other);
    CBigInteger &operator*=(const CBigInteger &other);
    CBigInteger &operator/=(const CBigInteger &other);
    CBigInteger &operator%=(const CBigInteger &other);
    // Flips the sign of this object and returns it: unary minus mutates here.
    CBigInteger &operator-();

    void Negate();
    void Abs();
    CBigInteger GetNegative() const;
    CBigInteger GetAbs() const;

    bool operator==(const CBigInteger &other) const;
    bool operator!=(const CBigInteger &other) const;
    bool operator<(const CBigInteger &other) const;
    bool operator<=(const CBigInteger &other) const;
    bool operator>(const CBigInteger &other) const;
    bool operator>=(const CBigInteger &other) const;

    // Floor of the square root.
    CBigInteger SquareRoot() const;
    static CBigInteger Pow10(unsigned int n);

protected:
    using Digits = std::vector<char>;

    CBigInteger(int sign, const Digits &digits);
    CBigInteger(int sign, Digits &&digits);

    // Digit vectors: magnitudes, least significant digit first. A result may be one of
    // the arguments.
    static int Position(const Digits &digits);
    static int Compare(const Digits &a, const Digits &b);
    static void Clean(Digits &digits);
    static void ShiftLeft(Digits &digits, int n);
    static void Pow10(unsigned int n, Digits &digits);
    static void Multiply(const Digits &a, char digit, Digits &result);
    static void Multiply(const Digits &a, const Digits &b, Digits &result);
    static void Add(const Digits &a, const Digits &b, Digits &result);
    // Requires a >= b.
    static void Subtract(const Digits &a, const Digits &b, Digits &result);
    // Requires b != 0.
    static void Divide(const Digits &a, const Digits &b, Digits &quotient, Digits &remainder);
    static void Build(std::string_view text, Digits &digits);
    static void Build(unsigned int value, Digits &digits);
    static void BuildDWORDLONG(unsigned long long value, Digits &digits);
    static void BuildDouble(double value, Digits &digits);

    // The magnitude as text; "0" for zero and for an empty digit vector.
    void AppendMagnitude(std::string &text) const;

private:
    friend class CDecimal;

    bool IsZero() const;
    // Adds the magnitude `digits` carrying `sign`; shared by += and -=.
    void AddSigned(const Digits &digits, int sign);
    // operator% after its sign check, also the body of operator%=.
    CBigInteger Remainder(const CBigInteger &divisor) const;

    int m_sign;
    Digits m_digits;
};

} // namespace VxXmlLib16
