#include <gtest/gtest.h>

#include "DateTime.h"
#include "ExceptionAssert.h"

using VxXmlLib16::CDateTime;
using VxXmlLib16::CVxInvalidValueException;
using VxTest::Throws;

namespace {

using Reader = void (CDateTime::*)(const char *);
const Reader Date = &CDateTime::ParseXSDDate;
const Reader Time = &CDateTime::ParseXSDTime;
const Reader DateTime = &CDateTime::ParseXSDDateTime;

struct ParseCase
{
    Reader reader;
    const char *text;
    CDateTime::DTType type; // dt_yearZero: the text fails
    const char *result;     // the printed value, or the failure message
};

const ParseCase parseCases[] = {
    // Every date-shaped type, the type taken from the form.
    {Date, "2001-10-26", CDateTime::dt_date, "2001-10-26"}, {Date, "2001-10", CDateTime::dt_gYearMonth, "2001-10"},
    {Date, "2001", CDateTime::dt_gYear, "2001"}, {Date, "--05", CDateTime::dt_gMonth, "--05"},
    {Date, "--05--", CDateTime::dt_gMonth, "--05"}, {Date, "---99", CDateTime::dt_gDay, "---99"},
    {Date, "--02-29", CDateTime::dt_gMonthDay, "--02-29"}, {Date, "-0004-02-29", CDateTime::dt_date, "-0004-02-29"},
    // Zones.
    {Date, "2001-10-26Z", CDateTime::dt_date, "2001-10-26Z"},
    {Date, "2001-10-26-05:30", CDateTime::dt_date, "2001-10-26-05:30"},
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
    {Time, "12:00:00.120", CDateTime::dt_time, "12:00:00.12"},
    {Time, "12:00:00.000000001", CDateTime::dt_time, "12:00:00.000000001"},
    {Time, "12:00:00.25-11:30", CDateTime::dt_time, "12:00:00.25-11:30"},
    {Time, "12:00:00X", CDateTime::dt_time, "12:00:00"},
    // Time failures.
    {Time, nullptr, CDateTime::dt_yearZero, "Invalid Time (Null String)"},
    {Time, "12:00:00.1234567890", CDateTime::dt_yearZero,
     "Invalid XSD Time [12:00:00.1234567890] Fraction part too long"},
    {Time, "24:00:00", CDateTime::dt_yearZero, "Invalid XSD Time [24:00:00] expected hh:mm:ss[.ff]"},
    {Time, "23:59:60", CDateTime::dt_yearZero, "Invalid XSD Time [23:59:60] expected hh:mm:ss[.ff]"},
    {Time, "1:00:00", CDateTime::dt_yearZero, "Invalid XSD Time [1:00:00] expected hh:mm:ss[.ff]"},
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
    CDateTime value("2001-10-26T21:32:52.123456789-05:30");
    EXPECT_EQ(456, value.GetMicroSecond());
    EXPECT_EQ(-5, value.GetZoneHour());
    EXPECT_EQ(30, value.GetZoneMinute());
    // A reparse starts from a cleared value: no zone or fraction survives.
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
