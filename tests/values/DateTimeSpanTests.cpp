#include <gtest/gtest.h>

#include "DateTimeSpan.h"
#include "DateTestSupport.h"

using VxXmlLib16::CDateTime;
using VxXmlLib16::CDateTimeSpan;
using VxXmlLib16::CVxInvalidValueException;
using VxTest::SpanValue;
using VxTest::Throws;

TEST(DateTimeSpan, ParseAndPrint)
{
    // A null print: the text fails with the general message.
    const struct { const char *text, *printed; } cases[] = {
        {"P1Y2M3DT4H5M6.5S", "P1Y2M3DT4H5M6.5S"}, {"-P1D", "-P1D"}, {"PT0S", "P"}, {"PY", "P"},
        {"P1M", "P1M"}, {"PT1M", "PT1M"}, {"PT1.S", "PT1S"}, {"PT.5S", "PT0.5S"}, {"PT1.", "PT1S"},
        {"PT1.123456789S", "PT1.123456009S"}, {"PT1.000000100S", "PT1S"},
        // "Y" is taken at any stage and lets the date fields follow again.
        {"PT1H1Y2M", "P1Y2MT1H"},
        // Numbers wrap in 32 bits; minutes and seconds are sign-extended, years cut to 16 bits.
        {"P4294967297D", "P1D"}, {"PT4294967295M", "PT18446744073709551615M"}, {"P65537Y", "P1Y"}, {"P", nullptr},
        {"PT", nullptr}, {"P1YT", nullptr}, {"P-1D", nullptr}, {"1D", nullptr}, {"P1", nullptr}, {"P1D1M", nullptr},
        {"PT1S1M", nullptr}, {"PT1.5", nullptr},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        if (c.printed == nullptr) {
            EXPECT_TRUE(Throws<CVxInvalidValueException>(
                [&] { SpanValue(c.text); },
                std::string("Invalid XSD Duration [") + c.text + "] expected [-]P[nY][nM][nD][T[nH][nM][nS.ff]]"));
            continue;
        }
        EXPECT_EQ(c.printed, SpanValue(c.text).ToString());
    }
}

TEST(DateTimeSpan, ParseFailuresConstructionAndSign)
{
    CDateTimeSpan span;
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { span.ParseXSDDuration(nullptr); },
                                                 "Invalid XSD Duration (Null String)"));
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { span.ParseXSDDuration(""); },
                                                 "Invalid XSD Duration (Empty String)"));
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { span.ParseXSDDuration("PT1.1234567890S"); },
                                                 "Invalid XSD Duration [PT1.1234567890S] Fraction part too long"));
    // A failed parse keeps what it read and starts from a cleared span.
    span.SetDateTimeSpan(9, 9, 9);
    span.Negate();
    EXPECT_ANY_THROW(span.ParseXSDDuration("P1Y2MT"));
    EXPECT_EQ("P1Y2M", span.ToString());

    span = CDateTimeSpan(1, 2, 3, 4, 5, 6, 7, 8, 9);
    EXPECT_EQ("P1Y2M3DT4H5M6.007008009S", span.ToString());
    EXPECT_TRUE(span.GetAsNegative().GetAsNegative().IsNegative());

    span.Negate();
    span.SetDateTimeSpan(0, 0, 10); // clears the sign too
    EXPECT_EQ("PT10S", span.ToString());

    span.SetMilliSeconds(1500); // fractions are not checked
    EXPECT_EQ("PT10.15S", span.ToString());
}

TEST(DateTimeSpan, OrderOverFourReferenceDates)
{
    const struct { const char *left; const char *right; CDateTime::DTCompareResult result; } cases[] = {
        {"P1M", "P30D", CDateTime::dt_indeterminate}, {"P1Y", "P365D", CDateTime::dt_indeterminate},
        {"P1Y", "P366D", CDateTime::dt_indeterminate}, {"P2D", "P1D", CDateTime::dt_greater},
        {"P1D", "PT24H", CDateTime::dt_equal},
        {"PT1H", "PT2H", CDateTime::dt_equal}, // only whole days count
        {"-P1D", "P1D", CDateTime::dt_less},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.left) + " " + c.right);
        VxTest::ExpectOperatorsAgree(c.result, SpanValue(c.left), SpanValue(c.right));
    }
}
