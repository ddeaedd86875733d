#include <gtest/gtest.h>

#include "DateTime.h"
#include "ExceptionAssert.h"

using VxXmlLib16::CDateTime;
using VxXmlLib16::CVxInvalidStateException;
using VxXmlLib16::CVxInvalidValueException;
using VxTest::Throws;

TEST(DateTime, TextFormsUnsetValuesAndTypeNames)
{
    EXPECT_EQ("Error: Date Not Set", CDateTime().ToString());
    // The unset test comes before the format.
    EXPECT_EQ("Error: Date Not Set", CDateTime(CDateTime::dt_date).ToString("G"));
    EXPECT_EQ("00:00:00", CDateTime(CDateTime::dt_time).ToString());
    const CDateTime value("2001-10-26T21:32:52");
    EXPECT_EQ("", value.ToString("G"));
    EXPECT_EQ("", value.ToString(nullptr));
    EXPECT_EQ("Unknown Format: x", value.ToString("x"));

    // The field constructors leave a value unset instead of failing.
    EXPECT_EQ(CDateTime::dt_yearZero, CDateTime(2001, 2, 30).GetType());
    EXPECT_EQ("2001-02-28T01:02:03.004005006", CDateTime(2001, 2, 28, 1, 2, 3, 4, 5, 6).ToString());

    const char *const names[] = {"yearZero", "dateTime", "date", "gYearMonth", "gYear",
                                 "time",     "gDay",     "gMonth", "gMonthDay"};
    for (int type = 0; type <= 8; ++type)
        EXPECT_EQ(names[type], CDateTime(static_cast<CDateTime::DTType>(type)).GetTypeAsString());
    EXPECT_EQ("", CDateTime(static_cast<CDateTime::DTType>(9)).GetTypeAsString());
}

TEST(DateTime, WholeValueSetters)
{
    const struct { void (*set)(CDateTime &); CDateTime::DTType type; const char *text; } cases[] = {
        {[](CDateTime &v) { v.SetDate(10, 3, 4); }, CDateTime::dt_date, "0010-03-04"},
        {[](CDateTime &v) { v.SetFracTime(5, 0, 0); }, CDateTime::dt_time, "00:00:00.005"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        CDateTime value;
        c.set(value);
        EXPECT_EQ(c.type, value.GetType());
        EXPECT_EQ(c.text, value.ToString());
        // The same type may be set again; the zone is dropped on the way.
        value.SetUTC();
        c.set(value);
        EXPECT_FALSE(value.IsUTC());
    }
}

TEST(DateTime, SettersRefuseAnotherTypeAndInvalidFields)
{
    CDateTime time(CDateTime::dt_time);
    EXPECT_TRUE(Throws<CVxInvalidStateException>(
        [&] { time.SetDate(2001, 1, 1); }, "Failed to copy CDateTime. Invalid Date Type: date, expected: time."));

    EXPECT_TRUE(Throws<CVxInvalidValueException>([] { CDateTime().SetGYear(10000); },
                                                 "Invalid Year [10000] (9999 <= year <= -9999 && year != 0)"));
    const struct { unsigned char h, m, s; unsigned short milli, micro, nano; const char *message; } times[] = {
        {24, 0, 0, 0, 0, 0, "Invalid Hour [24] (0 <= hour <= 23)"},
        {0, 60, 0, 0, 0, 0, "Invalid Minute [60] (0 <= minute <= 59)"},
        {0, 0, 60, 0, 0, 0, "Invalid Second [60] (0 <= second <= 59)"},
        {0, 0, 0, 1000, 0, 0, "Invalid Milli-Second [1000] (0 <= milli <= 999)"},
        {0, 0, 0, 0, 1000, 0, "Invalid Micro-Second [1000] (0 <= micro <= 999)"},
        {0, 0, 0, 0, 0, 1000, "Invalid Nano-Second [1000] (0 <= nano <= 999)"},
    };
    for (const auto &t : times)
        EXPECT_TRUE(Throws<CVxInvalidValueException>(
            [&] { CDateTime().SetTime(t.h, t.m, t.s, t.milli, t.micro, t.nano); }, t.message));
}

TEST(DateTime, FieldAccessorsFollowTheType)
{
    CDateTime year;
    year.SetGYear(2001);
    const struct { void (*call)(CDateTime &); const char *message; } refused[] = {
        {[](CDateTime &v) { v.GetMonth(); }, "Failed to GetMonth. Invalid Date Type: gYear."},
        {[](CDateTime &v) { v.GetDay(); }, "Failed to GetDay. Invalid Date Type: gYear."},
        {[](CDateTime &v) { v.GetHour(); }, "Failed to GetHour. Invalid Date Type: gYear."},
        {[](CDateTime &v) { v.GetMinute(); }, "Failed to GetMinute. Invalid Date Type: gYear."},
        {[](CDateTime &v) { v.GetSecond(); }, "Failed to GetSecond. Invalid Date Type: gYear."},
        {[](CDateTime &v) { v.GetRealSecond(); }, "Failed to GetRealSecond. Invalid Date Type: gYear."},
        {[](CDateTime &v) { v.GetMilliSecond(); }, "Failed to GetMilliSecond. Invalid Date Type: gYear."},
        {[](CDateTime &v) { v.GetMicroSecond(); }, "Failed to GetMicroSecond. Invalid Date Type: gYear."},
        {[](CDateTime &v) { v.GetNanoSecond(); }, "Failed to GetNanoSecond. Invalid Date Type: gYear."},
        {[](CDateTime &v) { v.SetNanoSecond(1); }, "Failed to GetNanoSecond. Invalid Date Type: gYear."},
    };
    for (const auto &r : refused)
        EXPECT_TRUE(Throws<CVxInvalidStateException>([&] { r.call(year); }, r.message));

    CDateTime day;
    day.SetGDay(5);
    EXPECT_TRUE(Throws<CVxInvalidStateException>([&] { day.GetYear(); },
                                                 "Failed to GetYear. Invalid Date Type: gDay."));

    // Field setters check no range.
    CDateTime time("2001-01-01T12:00:01.50025");
    EXPECT_DOUBLE_EQ(1.50025, time.GetRealSecond());
    time.SetMonth(14);
    EXPECT_EQ("2001-14-01T12:00:01.50025", time.ToString());
}

TEST(DateTime, ZoneSettersAndAccessors)
{
    CDateTime value("2001-01-01T00:00:00");
    EXPECT_TRUE(Throws<CVxInvalidStateException>([&] { value.GetZoneHour(); }, "TimeZone is not been used"));
    value.SetUTC();
    EXPECT_TRUE(value.IsUTC());
    EXPECT_FALSE(value.HasTimeZone());
    EXPECT_TRUE(Throws<CVxInvalidStateException>([&] { value.GetZoneMinute(); }, "TimeZone is not been used"));
    EXPECT_EQ("2001-01-01T00:00:00Z", value.ToString());

    value.SetTimeZone(0, 0);
    EXPECT_EQ("2001-01-01T00:00:00+00:00", value.ToString());
    value.SetTimeZone(-23, 59);
    EXPECT_EQ("2001-01-01T00:00:00-23:59", value.ToString());

    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { value.SetTimeZone(1, 60); }, "Invalid TimeZone [1:60]"));
    EXPECT_EQ(-23, value.GetZoneHour()); // a refused zone leaves the old one
}

TEST(DateTime, ConversionBetweenTypes)
{
    const CDateTime source("2001-10-26T21:32:52.5+01:00");
    const struct { CDateTime::DTType wanted; const char *text; } allowed[] = {
        {CDateTime::dt_date, "2001-10-26+01:00"}, {CDateTime::dt_time, "21:32:52.5+01:00"},
        {CDateTime::dt_gDay, "---26+01:00"},
    };
    for (const auto &a : allowed) {
        CDateTime target;
        target.SetDateTime(source, a.wanted);
        EXPECT_EQ(a.wanted, target.GetType());
        EXPECT_EQ(a.text, target.ToString());
    }

    CDateTime target;
    EXPECT_TRUE(Throws<CVxInvalidValueException>(
        [&] { target.SetDateTime(CDateTime(2001, 10, 26), CDateTime::dt_time); },
        "Attempting to set a CDateTime of type time using an XmlDateTime of type date. The source CDateTime does "
        "not contian enough data to allow the conversion."));
    EXPECT_NO_THROW(target.SetDateTime(source, CDateTime::dt_yearZero));
    EXPECT_EQ(CDateTime::dt_yearZero, target.GetType());
    EXPECT_TRUE(Throws<CVxInvalidValueException>(
        [&] { target.SetDateTime(source, static_cast<CDateTime::DTType>(42)); }, "Unknown date type 42."));
}

namespace {

using Reader = void (CDateTime::*)(const char *);
const Reader Date = &CDateTime::ParseXSDDate;
const Reader Time = &CDateTime::ParseXSDTime;
const Reader DateTime = &CDateTime::ParseXSDDateTime;

// The printed value, or with the type dt_yearZero the failure message.
struct ParseCase { Reader reader; const char *text; CDateTime::DTType type; const char *result; };

const ParseCase parseCases[] = {
    // Every date-shaped type, the type taken from the form.
    {Date, "2001-10-26", CDateTime::dt_date, "2001-10-26"}, {Date, "2001-10", CDateTime::dt_gYearMonth, "2001-10"},
    {Date, "--05--", CDateTime::dt_gMonth, "--05"}, {Date, "---99", CDateTime::dt_gDay, "---99"},
    {Date, "--02-29", CDateTime::dt_gMonthDay, "--02-29"}, {Date, "-0004-02-29", CDateTime::dt_date, "-0004-02-29"},
    // Zones.
    {Date, "2001-10-26+24:00", CDateTime::dt_date, "2001-10-26+00:00"},
    {Date, "2001-10-26-00:30", CDateTime::dt_date, "2001-10-26+00:30"},
    // Date failures.
    {Date, nullptr, CDateTime::dt_yearZero, "Invalid Date (Null String)"},
    {Date, "", CDateTime::dt_yearZero, "Invalid Date (Empty String)"},
    {Date, "2001-10-26T", CDateTime::dt_yearZero, "Invalid Date ('T' not allowed)"},
    {Date, "2001-10-26Z+02:00", CDateTime::dt_yearZero, "Invalid Date (Bad Zone value)"},
    {Date, "12345-01-01", CDateTime::dt_yearZero, "Invalid XSD Date [12345-01-01] expected CCYY-MM-DD[Z|[+|-]hh:mm]"},
    {Date, "0000-01-01", CDateTime::dt_yearZero, "Invalid Year [0] (9999 <= year <= -9999 && year != 0)"},
    {Date, "1900-02-29", CDateTime::dt_yearZero, "Invalid Day [29] (1 <= day <= days in month"},
    {Date, "--04-31", CDateTime::dt_yearZero, "Invalid Day [31] (1 <= day <= days in month)"},
    {Date, "---00", CDateTime::dt_yearZero, "Invalid Day [0] (1 <= day <= 31)"},
    {Date, "2001-13", CDateTime::dt_yearZero, "Invalid Month [13] (1 <= month <= 12)"},
    {Date, "2001-10-26+02:0x", CDateTime::dt_yearZero, "Invalid XSD Time Zone [+02:0x]."},
    {Date, "2001-10-26+25:00", CDateTime::dt_yearZero, "Invalid TimeZone [25:0]"},
    // Times; whatever follows them that is no zone is ignored.
    {Time, "12:00:00.000000001", CDateTime::dt_time, "12:00:00.000000001"},
    {Time, "12:00:00.25-11:30", CDateTime::dt_time, "12:00:00.25-11:30"},
    {Time, "12:00:00X", CDateTime::dt_time, "12:00:00"},
    // Time failures.
    {Time, nullptr, CDateTime::dt_yearZero, "Invalid Time (Null String)"},
    {Time, "12:00:00.1234567890", CDateTime::dt_yearZero,
     "Invalid XSD Time [12:00:00.1234567890] Fraction part too long"},
    {Time, "24:00:00", CDateTime::dt_yearZero, "Invalid XSD Time [24:00:00] expected hh:mm:ss[.ff]"},
    {Time, "23:59:60", CDateTime::dt_yearZero, "Invalid XSD Time [23:59:60] expected hh:mm:ss[.ff]"},
    {Time, "12:00:00+02:00Z", CDateTime::dt_yearZero, "Invalid XSD Time Zone [+02:00Z]."},
    // Date and time.
    {DateTime, "2001-10-26T21:32:52.12679-05:00", CDateTime::dt_dateTime, "2001-10-26T21:32:52.12679-05:00"},
    {DateTime, "-2001-10-26T00:00:00Z", CDateTime::dt_dateTime, "-2001-10-26T00:00:00Z"},
    {DateTime, nullptr, CDateTime::dt_yearZero, "Invalid DateTime (Null String)"},
    {DateTime, "2001-10-26", CDateTime::dt_yearZero, "Invalid XSD DateTime [2001-10-26]."},
    {DateTime, "2001-10T00:00:00", CDateTime::dt_yearZero,
     "Invalid XSD DateTime [2001-10T00:00:00] expected CCYY-MM-DDThh:mm:ss[.ff]"},
    {DateTime, "2001-10-26T", CDateTime::dt_yearZero, "Invalid XSD Time (Empty String)"},
};

} // namespace

TEST(DateTimeParse, FormsAndFailures)
{
    for (const ParseCase &c : parseCases) {
        SCOPED_TRACE(c.text);
        CDateTime value;
        if (c.type == CDateTime::dt_yearZero) {
            EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { (value.*c.reader)(c.text); }, c.result));
            continue;
        }
        ASSERT_NO_THROW((value.*c.reader)(c.text));
        EXPECT_EQ(c.type, value.GetType());
        EXPECT_EQ(c.result, value.ToString());
    }
}

TEST(DateTimeParse, ParsedFieldsAndUnvalidatedReaders)
{
    // A reparse starts from a cleared value: no zone or fraction survives.
    CDateTime value("2001-10-26T21:32:52.123456789-05:30");
    value.ParseXSDTime("01:02:03");
    EXPECT_FALSE(value.IsUTC());
    EXPECT_EQ("01:02:03", value.ToString());

    CDateTime unchecked;
    unchecked.SetXSDDate("2001-02-30");
    EXPECT_EQ("2001-02-30", unchecked.ToString());
    CDateTime zoned(CDateTime::dt_time);
    zoned.SetZone("Z");
    zoned.SetZone("whatever"); // anything but a zone is silently ignored
    EXPECT_EQ("00:00:00Z", zoned.ToString());
}
