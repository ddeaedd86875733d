#include "BigInteger.h"
#include "Decimal.h"
#include "ExceptionAssert.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

using VxXmlLib16::CBigInteger;
using VxXmlLib16::CVxInvalidValueException;
using VxXmlLib16::CVxOverFlowException;
using VxTest::Throws;

namespace {

bool IsNegativeZero(const CBigInteger &value) { return value == CBigInteger(0) && value < CBigInteger(0); }

TEST(BigIntegerParse, ReadsBackwardsFromTheEnd)
{
    const std::pair<const char *, const char *> cases[] = {
        {"12345678901234567890123", "12345678901234567890123"}, {"  -7  ", "-7"}, {"+5", "5"},
        {"12-34", "34"}, {"1 2", "2"}, {"", "0"}, {"1e3", "1000"},
        {"\t-5", "5"}, // only blanks are trimmed, so the minus is not first
        {"1.5", "1"},   // the decimal route rounds halves toward zero
        {"1.6", "2"}, {"-1.6", "-2"}};
    for (const auto &c : cases)
        EXPECT_EQ(CBigInteger(c.first).ToString(), c.second) << '"' << c.first << '"';

    const CBigInteger minusZero("-0");
    EXPECT_EQ(minusZero.ToString(), "0");
    EXPECT_TRUE(IsNegativeZero(minusZero));

    // No digits at all: prints as 0 but is not equal to the one-digit 0.
    const CBigInteger trailingSign("5-");
    EXPECT_EQ(trailingSign.ToString(), "0");
    EXPECT_NE(trailingSign, CBigInteger(0));
    EXPECT_EQ(static_cast<int>(trailingSign), 0);
    EXPECT_EQ((trailingSign + CBigInteger(3)).ToString(), "3");
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { (void)(CBigInteger(3) / trailingSign); },
                                                 "ERROR: Overflow in operator/."));

    EXPECT_TRUE(Throws<CVxInvalidValueException>(
        [] { CBigInteger("abc"); },
        "The string representing a Decimal, contained an invalid char at position 0 [abc]."));
}

TEST(BigIntegerConstruct, FromMachineNumbers)
{
    EXPECT_EQ(CBigInteger(std::numeric_limits<std::int32_t>::min()).ToString(), "-2147483648");
    EXPECT_EQ(CBigInteger(std::numeric_limits<long long>::min()).ToString(), "-9223372036854775808");
    EXPECT_EQ(CBigInteger(std::numeric_limits<unsigned long long>::max()).ToString(), "18446744073709551615");

    const std::pair<double, const char *> reals[] = {{2.5, "2"}, {-2.5, "-2"}, {2.6, "3"}, {0.4, "0"},
                                                     {1e20, "100000000000000000000"}, {std::nan(""), "0"}};
    for (const auto &c : reals)
        EXPECT_EQ(CBigInteger(c.first).ToString(), c.second) << c.first;
    EXPECT_TRUE(Throws<CVxOverFlowException>([] { CBigInteger(-HUGE_VAL); },
                                             "ERROR: Infinite value out of bound of BigInteger."));

    // A rounded bound, not the largest double.
    EXPECT_EQ(CBigInteger::MAX_DOUBLE.ToString(), "17" + std::string(307, '0'));
}

TEST(BigIntegerArithmetic, AgreesWithMachineIntegers)
{
    // Every sign pairing, with carries and borrows at a digit boundary and long quotients.
    const long long values[] = {-3037000499LL, -100000LL, -1LL, 0LL, 7LL, 99999LL, 3037000499LL};
    for (const long long a : values) {
        for (const long long b : values) {
            SCOPED_TRACE(std::to_string(a) + " op " + std::to_string(b));
            const CBigInteger x(a);
            const CBigInteger y(b);
            EXPECT_EQ((x + y).ToString(), std::to_string(a + b));
            EXPECT_EQ((x - y).ToString(), std::to_string(a - b));
            EXPECT_EQ((x * y).ToString(), std::to_string(a * b));
            if (b != 0) {
                EXPECT_EQ((x / y).ToString(), std::to_string(a / b));
            }
            if (b > 0) {
                EXPECT_EQ((x % y).ToString(), std::to_string(a % b));
            }
        }
    }
    CBigInteger z("99999999999999999999");
    z += z;
    EXPECT_EQ(z.ToString(), "199999999999999999998");
    z -= z;
    EXPECT_EQ(z.ToString(), "0");
    EXPECT_FALSE(IsNegativeZero(CBigInteger(-5) + CBigInteger(5)));
    EXPECT_TRUE(IsNegativeZero(CBigInteger(-5) * CBigInteger(0)));
    const CBigInteger left("123456789012345678901234567890");
    EXPECT_EQ((left * CBigInteger("987654321098765432109876543210")).ToString(),
              "121932631137021795226185032733622923332237463801111263526900");
}

// Each operator checks its divisor in its own way and with its own message.
TEST(BigIntegerArithmetic, DivisionAndRemainderSigns)
{
    // a / b, a % b, a /= b, a %= b: the result or the message it raises.
    struct Case { int a, b; const char *quotient, *remainder, *divideAssign, *remainderAssign; };
    const char *const overflowDivide = "ERROR: Overflow in operator/.";
    const char *const overflowRemainder = "ERROR: Overflow in operator%.";
    const char *const overflowDivideAssign = "ERROR: Overflow in operator /=.";
    const char *const overflowRemainderAssign = "ERROR: Overflow in operator%=.";
    const Case cases[] = {
        {7, 2, "3", "1", "3", "1"}, {-7, 2, "-3", "-1", "-3", "-1"}, {6, 3, "2", "0", "2", "0"},
        {0, 5, "0", "0", "0", "0"}, {0, 0, overflowDivide, "0", overflowDivide, "0"},
        {7, -2, "-3", overflowRemainder, overflowDivideAssign, overflowRemainderAssign},
        {-7, -2, "3", overflowRemainder, overflowDivideAssign, overflowRemainderAssign},
        {7, 0, overflowDivide, overflowRemainder, overflowDivide, overflowRemainder}};
    const auto check = [](const char *expected, auto operation) {
        if (expected[0] == 'E') {
            EXPECT_TRUE(Throws<CVxInvalidValueException>(operation, expected));
        } else {
            EXPECT_EQ(operation().ToString(), expected);
        }
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::to_string(c.a) + " op " + std::to_string(c.b));
        const CBigInteger a(c.a);
        const CBigInteger b(c.b);
        check(c.quotient, [&] { return a / b; });
        check(c.remainder, [&] { return a % b; });
        check(c.divideAssign, [&] { return CBigInteger(a) /= b; });
        check(c.remainderAssign, [&] { return CBigInteger(a) %= b; });
    }
    // A zero quotient of a negative operand stays negative; so does a zero remainder.
    EXPECT_TRUE(IsNegativeZero(CBigInteger(-1) / CBigInteger(3)));
    EXPECT_TRUE(IsNegativeZero(CBigInteger(-6) % CBigInteger(3)));
    // A negative zero is a divisor below 0, and that check comes before the zero dividend.
    EXPECT_TRUE(
        Throws<CVxInvalidValueException>([] { (void)(CBigInteger(0) % CBigInteger("-0")); }, overflowRemainder));
}

TEST(BigIntegerCompare, NegativeZeroIsSmallerAndUnaryMinusMutates)
{
    EXPECT_FALSE(CBigInteger(0) <= CBigInteger("-0"));
    EXPECT_TRUE(CBigInteger(-10) < CBigInteger(-9));
    EXPECT_TRUE(CBigInteger(-10) < CBigInteger(9));

    // Unary minus changes its operand; GetNegative does not.
    CBigInteger x(5);
    EXPECT_EQ((-x).ToString(), "-5");
    EXPECT_EQ(x.GetNegative().ToString(), "5");
    EXPECT_EQ(x.ToString(), "-5");
}

// int is exact over its range; long long wraps its 32-bit multiplier.
TEST(BigIntegerNarrowing, IntIsExactAndLongLongWraps)
{
    EXPECT_EQ(static_cast<int>(CBigInteger::MIN_LONG), std::numeric_limits<int>::min());
    EXPECT_EQ(static_cast<int>(CBigInteger(-123456)), -123456);
    for (const char *text : {"2147483648", "-2147483649"})
        EXPECT_TRUE(Throws<CVxInvalidValueException>([text] { (void)static_cast<int>(CBigInteger(text)); },
                                                     "ERROR: Value out of bound of int."));
    const std::pair<const char *, long long> cases[] = {
        {"4294967295", 4294967295LL}, {"-4294967295", -4294967295LL},        {"5000000000", 705032704LL},
        {"12345678901", 3755744309LL}, {"9223372036854775807", 25769803775LL}, {"-5000000000", -705032704LL}};
    for (const auto &c : cases)
        EXPECT_EQ(static_cast<long long>(CBigInteger(c.first)), c.second) << c.first;
    for (const char *text : {"9223372036854775808", "-9223372036854775809"})
        EXPECT_TRUE(Throws<CVxInvalidValueException>([text] { (void)static_cast<long long>(CBigInteger(text)); },
                                                     "ERROR: Value out of bound of LONGLONG."));
}

TEST(BigIntegerSquareRoot, FloorOfTheRoot)
{
    EXPECT_EQ(CBigInteger(99).SquareRoot().ToString(), "9");
    EXPECT_EQ(CBigInteger(100).SquareRoot().ToString(), "10");
    const CBigInteger root("31622776601683793319988935");
    EXPECT_EQ((root * root).SquareRoot().ToString(), root.ToString());
    EXPECT_EQ((root * root - CBigInteger(1)).SquareRoot().ToString(), (root - CBigInteger(1)).ToString());
    EXPECT_TRUE(Throws<CVxInvalidValueException>([] { CBigInteger(0).SquareRoot(); }, "ERROR: Overflow in operator/."));
    EXPECT_TRUE(Throws<CVxInvalidValueException>([] { CBigInteger(-4).SquareRoot(); },
                                                 "ERROR: Negative Number in function SquareRoot()."));
}

} // namespace
