#include <gtest/gtest.h>

#include "DateTimeSpan.h"
#include "DateTestSupport.h"

using VxXmlLib16::CDateTime;
using VxXmlLib16::CDateTimeSpan;
using VxXmlLib16::CVxInvalidStateException;
using VxXmlLib16::CVxInvalidValueException;
using VxXmlLib16::FILETIME;
using VxXmlLib16::SYSTEMTIME;
using VxTest::DateValue;
using VxTest::SpanValue;
using VxTest::Throws;

TEST(DateTimeArithmetic, AddingAndSubtractingSpans)
{
    const struct { const char *start; char op; const char *span; const char *result; } cases[] = {
        {"2001-03-01", '-', "P1D", "2001-02-28"}, {"2000-03-01", '-', "P1D", "2000-02-29"},
        {"2001-12-31", '+', "P1D", "2002-01-01"}, {"2001-01-01", '-', "P1D", "2000-12-31"},
        {"2001-01-31", '+', "P1M", "2001-02-31"}, // the day is not clamped
        {"2001-03-31", '-', "-P1M", "2001-02-31"}, // a negative span still moves back
        {"-0001-12-31", '+', "P1D", "0000-01-01"},  // year 0 is reached without complaint
        // Long spans, checked against the month-by-month walk; the 16-bit year wraps.
        {"2001-01-01", '+', "P4294967295D", "30278-04-16"}, {"2001-01-01", '-', "P4294967295D", "-26277-09-19"},
        // The month step rounds to a month outside the calendar; the days then run through
        // months beyond December, or below month 0 going back.
        {"1697-02-01", '+', "P52127277M1401626297D", "20261-54-17"},
        {"2001-01-31T12:00:00+05:00", '-', "P52127377M4111626297D", "-16571-238-20T12:00:00+05:00"},
        {"2001-01-31T23:59:59", '+', "PT1S", "2001-02-01T00:00:00"},
        {"2001-01-01T00:00:00", '-', "PT0.000000001S", "2000-12-31T23:59:59.999999999"},
        // Single-precision carries: beyond 2^24 the remainder leaves the unit.
        {"2001-01-01T00:00:00", '+', "PT1000000000S", "2032-09-09T01:47:236"},
        {"12:00:00", '+', "PT13H", "01:00:00"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.start) + c.op + c.span);
        const CDateTime start = DateValue(c.start);
        const CDateTimeSpan span = SpanValue(c.span);
        const CDateTime result = c.op == '+' ? start + span : start - span;
        EXPECT_EQ(c.result, result.ToString());
    }
    CDateTime value = DateValue("2001-01-31");
    value += SpanValue("P1M");
    value -= SpanValue("P1M");
    EXPECT_EQ("2001-01-31", value.ToString());
}

TEST(DateTimeArithmetic, NormalisationAndDifference)
{
    EXPECT_EQ("2000-12-31T23:00:00+00:00", DateValue("2001-01-01T00:00:00+01:00").GetNormalized().ToString());
    // -00:30 keeps its sign in the zero hour, so it is lost: the value moves as for +00:30.
    EXPECT_EQ("2001-01-01T11:30:00+00:00", DateValue("2001-01-01T12:00:00-00:30").GetNormalized().ToString());
    EXPECT_EQ("2001-01-01T12:00:00Z", DateValue("2001-01-01T12:00:00Z").GetNormalized().ToString());
    EXPECT_EQ("2000-12-31+00:00", DateValue("2001-01-01+01:00").GetNormalized().ToString());
    // The difference of two values is not computed.
    EXPECT_EQ("P", (DateValue("2001-01-01") - DateValue("1999-05-06")).ToString());
}

TEST(DateTimeArithmetic, Comparison)
{
    const struct { const char *left; const char *right; CDateTime::DTCompareResult result; } cases[] = {
        {"2001-01-01T12:00:00Z", "2001-01-01T13:00:00+01:00", CDateTime::dt_equal},
        {"2001-01-01T12:00:00Z", "2001-01-01T12:00:00", CDateTime::dt_indeterminate},
        {"2001-01-01T12:00:01Z", "2001-01-01T12:00:00", CDateTime::dt_greater},
        {"2001-01-01T00:00:00Z", "2001-01-01T14:00:01", CDateTime::dt_less},
        {"2001-01-01T00:00:00Z", "2001-01-01T14:00:00", CDateTime::dt_indeterminate},
        {"2001-01-01T14:00:01", "2001-01-01T00:00:00Z", CDateTime::dt_greater},
        {"2001-01-01", "2001-01-01T05:00:00", CDateTime::dt_indeterminate},
        {"2001-01-01", "2001-01-01T00:00:00", CDateTime::dt_less}, {"--05", "--05-01", CDateTime::dt_indeterminate},
        {"--05", "--06", CDateTime::dt_less}, {"-0001", "0001", CDateTime::dt_indeterminate},
        {"2001-01-01T12:00:00.5", "2001-01-01T12:00:00.25", CDateTime::dt_greater},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.left) + " " + c.right);
        const CDateTime left = DateValue(c.left);
        const CDateTime right = DateValue(c.right);
        VxTest::ExpectOperatorsAgree(c.result, left, right);
        EXPECT_EQ(c.result == CDateTime::dt_equal || c.result == CDateTime::dt_less, left <= right);
        EXPECT_EQ(c.result == CDateTime::dt_equal || c.result == CDateTime::dt_greater, left >= right);
    }
}

// The values themselves are checked in every zone with the system clock.
TEST(DateTimeArithmetic, SecondsSince1970AndDaysOfTheWeekAndYear)
{
    EXPECT_TRUE(Throws<CVxInvalidValueException>(
        [] { DateValue("2001-01").GetTime(); },
        "Failed to GetTime, Date Status must be dateTime or date. Invalid Date Type: gYearMonth."));

    EXPECT_EQ("1969-12-31T23:59:59", CDateTime(-1LL).ToString());
    EXPECT_EQ(CDateTime::dt_yearZero, CDateTime(253402300800LL).GetType());
    CDateTime value;
    // A year beyond the field is held at its limit rather than wrapped into range.
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { value = 10000000000000LL; },
                                                 "Invalid Year [32767] (9999 <= year <= -9999 && year != 0)"));
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { value = 1LL << 62; }, "Invalid Time [4611686018427387904]"));
    EXPECT_TRUE(Throws<CVxInvalidStateException>([] { DateValue("2001").GetDayOfWeek(); },
                                                 "Failed to GetDayOfWeek. Invalid Date Type: gYear."));

    // The leap day counts only in January and February.
    EXPECT_EQ(2, DateValue("2000-01-01").GetDayOfYear());
    EXPECT_EQ(61, DateValue("2000-02-29").GetDayOfYear());
    EXPECT_EQ(365, DateValue("2000-12-31").GetDayOfYear());
    EXPECT_TRUE(Throws<CVxInvalidStateException>([] { DateValue("---05").GetDayOfYear(); },
                                                 "Failed to GetDayOfYear. Invalid Date Type: gDay."));
}

TEST(DateTimeArithmetic, SystemTimeInterchangeAndThePresentTime)
{
    const SYSTEMTIME time = DateValue("2001-01-01T10:20:30.456").GetAsSystemTime();
    EXPECT_EQ(1, time.wDayOfWeek); // Monday
    EXPECT_EQ("2001-01-01T10:20:30.456", CDateTime(time).ToString());
    EXPECT_TRUE(Throws<CVxInvalidValueException>(
        [] { DateValue("2001-01-01").GetAsSystemTime(); },
        "Failed to GetAsSystemTime, Date Status must be dateTime. Invalid Date Type: date."));

    SYSTEMTIME bad = time;
    bad.wMonth = 257; // does not wrap into range
    CDateTime value;
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { value = bad; }, "Invalid Month [255] (1 <= month <= 12)"));

    const FILETIME epoch{0xD53E8000u, 0x019DB1DEu}; // 116444736000000000 ticks since 1601
    EXPECT_EQ("1970-01-01T00:00:00", CDateTime(epoch).ToString());
    const FILETIME beyond63Bits{0, 0x80000000u};
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { value = beyond63Bits; },
                                                 "Failed to convert FILETIME to SYSTEMTIME"));

    const CDateTime now = CDateTime::GetTickCount();
    EXPECT_EQ(CDateTime::dt_dateTime, now.GetType());
    EXPECT_GE(now.GetYear(), 2024);
}
