#include "BigInteger.h"
#include "Conversions.h"
#include "Decimal.h"
#include "ExceptionAssert.h"

#include <gtest/gtest.h>

using VxXmlLib16::CBigInteger;
using VxXmlLib16::CConversions;
using VxXmlLib16::CDecimal;
using VxXmlLib16::CVxInvalidValueException;
using VxXmlLib16::CWhitespaceUtils;
using VxTest::Throws;

namespace {

TEST(ConversionsNumbers, DecimalFormatOverrideIsADigitCount)
{
    const CDecimal value("1.5");
    struct Case { const char *format; const char *expected; };
    const Case cases[] = {
        {"", "1.5"}, {"2", "1.50"}, {"0", "2."}, {"3 digits", "1.500"}, {"%.2f", "2."},
    };
    for (const Case &c : cases)
        EXPECT_EQ(CConversions::decimalToString(value, c.format), c.expected) << '"' << c.format << '"';
    EXPECT_EQ(CConversions::decimalToString(CDecimal("-0.25")), "-0.25");
}

TEST(ConversionsNumbers, DecimalFromTextAppliesTheRuleFirst)
{
    EXPECT_EQ(CConversions::decimalFromString(" 12.50\n", CWhitespaceUtils::WhitespaceRule_None).ToString(), "12.5");
    EXPECT_TRUE(Throws<CVxInvalidValueException>(
        [] { CConversions::decimalFromString("  1,5 ", CWhitespaceUtils::WhitespaceRule_Collapse); },
        "The string representing a Decimal, contained an invalid char at position 1 [1,5]."));
}

TEST(ConversionsNumbers, IntegerText)
{
    EXPECT_EQ(CConversions::integerToString(CBigInteger("-0")), "0");
    EXPECT_EQ(CConversions::integerToString(CBigInteger("-98765432109876543210")), "-98765432109876543210");
    // Collapsing removes the tab that would otherwise hide the sign from the parser.
    EXPECT_EQ(CConversions::integerFromString("\t-5", CWhitespaceUtils::WhitespaceRule_None).ToString(), "5");
    EXPECT_EQ(CConversions::integerFromString("\t-5", CWhitespaceUtils::WhitespaceRule_Collapse).ToString(), "-5");
    EXPECT_EQ(CConversions::integerFromString("2.5", CWhitespaceUtils::WhitespaceRule_Collapse).ToString(), "2");
    EXPECT_TRUE(Throws<CVxInvalidValueException>(
        [] { CConversions::integerFromString("12a", CWhitespaceUtils::WhitespaceRule_Collapse); },
        "The string representing a Decimal, contained an invalid char at position 2 [12a]."));
}

} // namespace
