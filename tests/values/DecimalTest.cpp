#include "Decimal.h"
#include "ExceptionAssert.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

using VxXmlLib16::CBigInteger;
using VxXmlLib16::CDecimal;
using VxXmlLib16::CVxInvalidParamException;
using VxXmlLib16::CVxInvalidValueException;
using VxXmlLib16::CVxOverFlowException;
using VxTest::Throws;

namespace {

std::string InvalidChar(int position, const std::string &text)
{
    return "The string representing a Decimal, contained an invalid char at position " + std::to_string(position) +
        " [" + text + "].";
}

TEST(Decimal, ParseForms)
{
    struct Case { const char *text, *expected; int divider; };
    const Case cases[] = {
        {"1.50", "1.5", 1},  {"1.0", "1", 1},          {"-0", "0", 1},        {"1-2", "-12", 1},
        {"1 000.5", "1000.5", 1}, {"1e 3", "1000", 1}, {"1e+3", "1000", 1}, {"1.5E2", "150", 1},
        {"15E-1", "1.5", 1}, {"2.5e-3", "0.0025", 4}, {" 7 \n", "7", 1},     {"12.340500", "12.3405", 4},
        {"", "0", 1},        {".", "0", 1},           {"-", "0", 1},         {"e5", "0", 1},
    };
    for (const Case &c : cases) {
        const CDecimal value(c.text);
        EXPECT_EQ(value.ToString(), c.expected) << '"' << c.text << '"';
        EXPECT_EQ(value.GetFractionDivider(), c.divider) << '"' << c.text << '"';
    }
    EXPECT_EQ(CDecimal("1.50").GetFractionPart().ToString(), "5");
    // The sign of a value between -1 and 0 lives in the negative zero of its integer part.
    EXPECT_TRUE(CDecimal("-0.5").GetIntegerPart() < CBigInteger(0));
    // A double is printed with 13 fraction digits and read back.
    EXPECT_EQ(CDecimal(0.1).ToString(), "0.1");
    EXPECT_EQ(CDecimal(1e300).GetIntegerPart().ToString().size(), 301u);
}

TEST(Decimal, ParseFailuresNameThePosition)
{
    const std::string longDigits(600, '1');
    const std::pair<std::string, int> cases[] = {
        {"1e3 ", 3}, // white space among exponent digits
        {"1.2.3", 3}, {"abc", 0}, {"12x", 2}, {"1.5 x", 4}, {"1e-3-", 4},
        {longDigits, 511},                       // integer digits beyond their buffer
        {"0." + longDigits, 513},                // fraction digits beyond theirs
        {"1e" + std::string(40, '0') + "1", 33}, // exponent digits beyond theirs
        {"1e1000", 5},                           // an exponent beyond any use
    };
    for (const auto &c : cases)
        EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { CDecimal value(c.first.c_str()); },
                                                     InvalidChar(c.second, c.first)));
    EXPECT_EQ(CDecimal(("1e-" + std::string(20, '0') + "999").c_str()).ToString(), "0");
    EXPECT_EQ(CDecimal("1e999").ToString(), "1" + std::string(999, '0'));
    EXPECT_TRUE(Throws<CVxInvalidValueException>([] { CDecimal value(std::nan("")); }, InvalidChar(0, "nan\n")));
    EXPECT_TRUE(Throws<CVxInvalidValueException>([] { CDecimal value(-HUGE_VAL); }, InvalidChar(1, "-inf\n")));
}

TEST(Decimal, DivisionKeepsThirtyDigits)
{
    EXPECT_EQ((CDecimal(1) / CDecimal(3)).ToString(), "0.333333333333333333333333333333");
    EXPECT_EQ((CDecimal(2) / CDecimal(3)).ToString(), "0.666666666666666666666666666667");
    EXPECT_EQ((CDecimal(-2) / CDecimal(3)).ToString(), "-0.666666666666666666666666666667");
    EXPECT_EQ((CDecimal("0.001") / CDecimal("-0.5")).ToString(), "-0.002");
    EXPECT_TRUE(
        Throws<CVxInvalidValueException>([] { CDecimal(1) / CDecimal("0.0"); }, "ERROR: Overflow in operator/."));
}

// Cutting to the digit limit rounds halves toward zero, and a carry out of all-nine digits
// stays in the fraction.
TEST(Decimal, RoundingAtTheDividerLimit)
{
    const std::string zeros29(29, '0');
    struct Case { int maxPlaces; std::string text, expected; };
    const Case cases[] = {
        {30, "0." + zeros29 + "15", "0." + zeros29 + "1"},   {30, "0." + zeros29 + "16", "0." + zeros29 + "2"},
        {30, "0." + std::string(31, '9'), "0.1" + std::string(30, '0')},
        {1, "0.99", "0.10"}, {1, "-0.99", "-0.10"}, {1, "0.95", "0.9"}, {2, "0.125", "0.12"}, {2, "0.1251", "0.13"}};
    for (const Case &c : cases) {
        CDecimal::SetMaxDecimalPlaces(c.maxPlaces);
        EXPECT_EQ(CDecimal(c.text.c_str()).ToString(), c.expected) << c.text << " at " << c.maxPlaces;
    }
    CDecimal::SetMaxDecimalPlaces(2);
    EXPECT_EQ((CDecimal("0.25") * CDecimal("0.5")).ToString(), "0.12");
    EXPECT_TRUE(Throws<CVxInvalidParamException>([] { CDecimal::SetMaxDecimalPlaces(0); },
                                                 "The maximum number of decimal places must be at least 1 [0]"));
    CDecimal::SetMaxDecimalPlaces(30); // the limit is process-wide
}

// Fractions carry into and borrow from the integer part across signs.
TEST(Decimal, ArithmeticCarriesAcrossThePoint)
{
    EXPECT_EQ((CDecimal("1.75") + CDecimal("0.25")).ToString(), "2");
    EXPECT_EQ((CDecimal("1.25") - CDecimal("0.5")).ToString(), "0.75");
    EXPECT_EQ((CDecimal("-1.25") + CDecimal("0.5")).ToString(), "-0.75");
    EXPECT_EQ((CDecimal("-0.75") - CDecimal("0.5")).ToString(), "-1.25");
    EXPECT_EQ((CDecimal("1.5") * CDecimal("-1.5")).ToString(), "-2.25");
    const CDecimal sum = CDecimal("1.5") + CDecimal("-1.5");
    EXPECT_EQ(sum.ToString(), "0");
    EXPECT_EQ(sum.GetFractionDivider(), 1);

    CDecimal value("0.5");
    EXPECT_EQ(value++.ToString(), "1.5");
    EXPECT_EQ(value.ToString(), "0.5"); // postfix leaves its operand as it was
    EXPECT_EQ((--value).ToString(), "-0.5");
    EXPECT_EQ(value--.ToString(), "-1.5");
}

// Integer parts decide strictly; only equal integer parts let the fractions decide.
TEST(Decimal, Comparisons)
{
    struct Case { const char *a, *b; bool less, lessEqual, greater, greaterEqual, equal; };
    const Case cases[] = {
        {"1.9", "1.1", false, false, true, true, false}, {"1.9", "2.1", true, true, false, false, false},
        {"1.50", "1.5", false, true, false, true, true}, {"-1.5", "-1.2", true, true, false, false, false},
        {"-0.5", "0", true, true, false, false, false},
        {"-0", "0", true, true, false, false, true}, // >= is the negation of < on the fractions
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(c.a) + " vs " + c.b);
        const CDecimal a(c.a);
        const CDecimal b(c.b);
        EXPECT_EQ(a < b, c.less);
        EXPECT_EQ(a <= b, c.lessEqual);
        EXPECT_EQ(a > b, c.greater);
        EXPECT_EQ(a >= b, c.greaterEqual);
        EXPECT_EQ(a == b, c.equal);
    }
}

TEST(Decimal, ToStringWithPlacesRoundsHalfAwayFromZero)
{
    struct Case { const char *text; int places; const char *expected; };
    const Case cases[] = {
        {"1.5", 0, "2."},      {"1.5", 2, "1.50"},     {"0.9995", 3, "1.0"}, {"-1.25", 1, "-1.3"},
        {"-0.04", 1, "-0.0"},  {"1.24", -1, "1."},     {"-2.5", 40, "-2.5"},
        {"0.123456789012345678901234567891", 30, "0.123456789012345678901234567891"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(CDecimal(c.text).ToString(c.places), c.expected) << c.text << " at " << c.places;

    // The text is limited to 1024 characters.
    const CDecimal big = CDecimal("1e999") * CDecimal("1e30") + CDecimal("0.5");
    EXPECT_EQ(big.ToString(), "1" + std::string(1023, '0'));
}

TEST(Decimal, CheckedConversions)
{
    EXPECT_EQ(CDecimal("0.5").ToLong(), 0);
    EXPECT_EQ(CDecimal("0.6").ToLong(), 1);
    EXPECT_EQ(CDecimal("-0.6").ToLong(), -1);
    EXPECT_EQ(CDecimal("-2147483648.4").ToLong(), -2147483647 - 1);
    EXPECT_EQ(CDecimal("1.96").ToLongLong(), 1);
    EXPECT_EQ(CDecimal("-9223372036854775808").ToLongLong(), INT64_MIN);
    EXPECT_EQ(CDecimal("-1.6").ToBigInteger().ToString(), "-2");

    const std::string tooLarge = "The Decimal value if to large to fit into a ";
    EXPECT_TRUE(Throws<CVxOverFlowException>([] { CDecimal("2147483647.6").ToLong(); }, tooLarge + "LONG"));
    EXPECT_TRUE(Throws<CVxOverFlowException>([] { CDecimal("-9223372036854775809").ToLongLong(); },
                                             tooLarge + "LONGLONG"));
    EXPECT_TRUE(Throws<CVxOverFlowException>([] { CDecimal("1.8e308").ToDouble(); }, tooLarge + "Double"));
}

} // namespace
