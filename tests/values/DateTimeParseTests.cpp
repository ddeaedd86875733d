#include <gtest/gtest.h>

#include "DateTime.h"
#include "DateTestSupport.h"

using VxXmlLib16::CDateTime;
using VxXmlLib16::CVxInvalidValueException;
using VxTest::Throws;

namespace {

enum class Reader { Date, Time, DateTime };

struct ParseCase
{
    Reader reader;
    const char *text;
    CDateTime::DTType type; // dt_yearZero: the text fails
    const char *result;     // the printed value, or the failure message
};

void Read(CDateTime &value, Reader reader, const char *text)
{
    switch (reader) {
    case Reader::Date:
        value.ParseXSDDate(text);
        break;
    case Reader::Time:
        value.ParseXSDTime(text);
        break;
    case Reader::DateTime:
        value.ParseXSDDateTime(text);
        break;
    }
}

const ParseCase parseCases[] = {
    // Every date-shaped type, the type taken from the form.
    {Reader::Date, "2001-10-26", CDateTime::dt_date, "2001-10-26"},
    {Reader::Date, "2001-10", CDateTime::dt_gYearMonth, "2001-10"},
    {Reader::Date, "2001", CDateTime::dt_gYear, "2001"}, {Reader::Date, "--05", CDateTime::dt_gMonth, "--05"},
    {Reader::Date, "--05--", CDateTime::dt_gMonth, "--05"}, {Reader::Date, "---15", CDateTime::dt_gDay, "---15"},
    {Reader::Date, "---99", CDateTime::dt_gDay, "---99"},
    {Reader::Date, "--02-29", CDateTime::dt_gMonthDay, "--02-29"},
    {Reader::Date, "-0004-02-29", CDateTime::dt_date, "-0004-02-29"},
    // Zones.
    {Reader::Date, "2001-10-26Z", CDateTime::dt_date, "2001-10-26Z"},
    {Reader::Date, "2001-10-26-05:30", CDateTime::dt_date, "2001-10-26-05:30"},
    {Reader::Date, "2001-10-26+24:00", CDateTime::dt_date, "2001-10-26+00:00"},
    {Reader::Date, "2001-10-26-00:30", CDateTime::dt_date, "2001-10-26+00:30"},
    // Date failures.
    {Reader::Date, "", CDateTime::dt_yearZero, "Invalid Date (Empty String)"},
    {Reader::Date, "2001-10-26T", CDateTime::dt_yearZero, "Invalid Date ('T' not allowed)"},
    {Reader::Date, "2001-10-26Z+02:00", CDateTime::dt_yearZero, "Invalid Date (Bad Zone value)"},
    {Reader::Date, "12345-01-01", CDateTime::dt_yearZero,
     "Invalid XSD Date [12345-01-01] expected CCYY-MM-DD[Z|[+|-]hh:mm]"},
    {Reader::Date, "--5", CDateTime::dt_yearZero, "Invalid XSD Date [--5] expected CCYY-MM-DD[Z|[+|-]hh:mm]"},
    {Reader::Date, "0000-01-01", CDateTime::dt_yearZero, "Invalid Year [0] (9999 <= year <= -9999 && year != 0)"},
    {Reader::Date, "1900-02-29", CDateTime::dt_yearZero, "Invalid Day [29] (1 <= day <= days in month"},
    {Reader::Date, "--04-31", CDateTime::dt_yearZero, "Invalid Day [31] (1 <= day <= days in month)"},
    {Reader::Date, "---00", CDateTime::dt_yearZero, "Invalid Day [0] (1 <= day <= 31)"},
    {Reader::Date, "2001-13", CDateTime::dt_yearZero, "Invalid Month [13] (1 <= month <= 12)"},
    {Reader::Date, "2001-10-26+02:0x", CDateTime::dt_yearZero, "Invalid XSD Time Zone [+02:0x]."},
    {Reader::Date, "2001-10-26+25:00", CDateTime::dt_yearZero, "Invalid TimeZone [25:0]"},
    {Reader::Date, "2001-10-26-01:60", CDateTime::dt_yearZero, "Invalid TimeZone [-1:60]"},
    // Times.
    {Reader::Time, "12:00:00", CDateTime::dt_time, "12:00:00"},
    {Reader::Time, "12:00:00.120", CDateTime::dt_time, "12:00:00.12"},
    {Reader::Time, "12:00:00.000000001", CDateTime::dt_time, "12:00:00.000000001"},
    {Reader::Time, "12:00:00.", CDateTime::dt_time, "12:00:00"},
    {Reader::Time, "12:00:00.25-11:30", CDateTime::dt_time, "12:00:00.25-11:30"},
    {Reader::Time, "12:00:00Z", CDateTime::dt_time, "12:00:00Z"},
    {Reader::Time, "12:00:00X", CDateTime::dt_time, "12:00:00"},
    {Reader::Time, "12:00:00ZX", CDateTime::dt_time, "12:00:00Z"},
    // Time failures.
    {Reader::Time, "", CDateTime::dt_yearZero, "Invalid XSD Time (Empty String)"},
    {Reader::Time, "12:00:00.1234567890", CDateTime::dt_yearZero,
     "Invalid XSD Time [12:00:00.1234567890] Fraction part too long"},
    {Reader::Time, "24:00:00", CDateTime::dt_yearZero, "Invalid XSD Time [24:00:00] expected hh:mm:ss[.ff]"},
    {Reader::Time, "23:59:60", CDateTime::dt_yearZero, "Invalid XSD Time [23:59:60] expected hh:mm:ss[.ff]"},
    {Reader::Time, "1:00:00", CDateTime::dt_yearZero, "Invalid XSD Time [1:00:00] expected hh:mm:ss[.ff]"},
    {Reader::Time, "12:00:00+2:00", CDateTime::dt_yearZero, "Invalid XSD Time Zone [+2:00]."},
    {Reader::Time, "12:00:00+02:00Z", CDateTime::dt_yearZero, "Invalid XSD Time Zone [+02:00Z]."},
    // Date and time.
    {Reader::DateTime, "2001-10-26T21:32:52", CDateTime::dt_dateTime, "2001-10-26T21:32:52"},
    {Reader::DateTime, "2001-10-26T21:32:52.12679-05:00", CDateTime::dt_dateTime,
     "2001-10-26T21:32:52.12679-05:00"},
    {Reader::DateTime, "-2001-10-26T00:00:00Z", CDateTime::dt_dateTime, "-2001-10-26T00:00:00Z"},
    {Reader::DateTime, "2001-02-30T00:00:00", CDateTime::dt_yearZero, "Invalid Day [30] (1 <= day <= days in month"},
    {Reader::DateTime, "2001-10-26", CDateTime::dt_yearZero, "Invalid XSD DateTime [2001-10-26]."},
    {Reader::DateTime, "2001-10T00:00:00", CDateTime::dt_yearZero,
     "Invalid XSD DateTime [2001-10T00:00:00] expected CCYY-MM-DDThh:mm:ss[.ff]"},
    {Reader::DateTime, "2001-10-26T", CDateTime::dt_yearZero, "Invalid XSD Time (Empty String)"},
    {Reader::DateTime, "2001-10-26T25:00:00", CDateTime::dt_yearZero,
     "Invalid XSD Time [25:00:00] expected hh:mm:ss[.ff]"},
    {Reader::DateTime, "T12:00:00", CDateTime::dt_yearZero, "Invalid Date (Empty String)"},
};

} // namespace

TEST(DateTimeParse, FormsAndFailures)
{
    for (const ParseCase &c : parseCases) {
        SCOPED_TRACE(c.text);
        CDateTime value;
        if (c.type == CDateTime::dt_yearZero) {
            EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { Read(value, c.reader, c.text); }, c.result));
            continue;
        }
        ASSERT_NO_THROW(Read(value, c.reader, c.text));
        EXPECT_EQ(c.type, value.GetType());
        EXPECT_EQ(c.result, value.ToString());
    }
}

TEST(DateTimeParse, NullTextsHaveTheirOwnMessages)
{
    CDateTime value;
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { value.ParseXSDDate(nullptr); }, "Invalid Date (Null String)"));
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { value.ParseXSDTime(nullptr); }, "Invalid Time (Null String)"));
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { value.ParseXSDDateTime(nullptr); },
                                                 "Invalid DateTime (Null String)"));
    EXPECT_TRUE(Throws<CVxInvalidValueException>([] { CDateTime fromText(static_cast<const char *>(nullptr)); },
                                                 "Invalid DateTime (Null String)"));
}

TEST(DateTimeParse, FieldsAndZoneOfAParsedValue)
{
    CDateTime value("2001-10-26T21:32:52.123456789-05:30");
    EXPECT_EQ(2001, value.GetYear());
    EXPECT_EQ(52, value.GetSecond());
    EXPECT_EQ(456, value.GetMicroSecond());
    EXPECT_EQ(789, value.GetNanoSecond());
    EXPECT_TRUE(value.HasTimeZone());
    EXPECT_EQ(-5, value.GetZoneHour());
    EXPECT_EQ(30, value.GetZoneMinute());

    // A reparse starts from a cleared value: no zone or fraction survives.
    value.ParseXSDTime("01:02:03");
    EXPECT_FALSE(value.IsUTC());
    EXPECT_EQ("01:02:03", value.ToString());
}

TEST(DateTimeParse, ReadersWithoutValidation)
{
    CDateTime value;
    value.SetXSDDate("2001-02-30");
    EXPECT_EQ(CDateTime::dt_date, value.GetType());
    EXPECT_EQ("2001-02-30", value.ToString());

    CDateTime zoned(CDateTime::dt_time);
    zoned.SetZone("+05:45");
    EXPECT_EQ(5, zoned.GetZoneHour());
    zoned.SetZone("Z");
    EXPECT_FALSE(zoned.HasTimeZone());
    EXPECT_TRUE(zoned.IsUTC());
    zoned.SetZone("whatever"); // anything but a zone is silently ignored
    EXPECT_EQ("00:00:00Z", zoned.ToString());
}
