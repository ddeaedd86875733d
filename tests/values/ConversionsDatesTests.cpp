#include <gtest/gtest.h>

#include "Conversions.h"
#include "DateTimeSpan.h"
#include "DateTestSupport.h"

using VxXmlLib16::CConversions;
using VxXmlLib16::CDateTime;
using VxXmlLib16::CDateTimeSpan;
using VxXmlLib16::CVxInvalidValueException;
using VxXmlLib16::CWhitespaceUtils;
using VxTest::Throws;

TEST(ConversionsDates, ReadAfterTheWhitespaceRuleAndPrintBack)
{
    const auto collapse = CWhitespaceUtils::WhitespaceRule_Collapse;
    const struct
    {
        CDateTime (*read)(const std::string &, CWhitespaceUtils::WhitespaceRule);
        std::string (*print)(const CDateTime &);
        const char *text;
        CDateTime::DTType type;
        const char *printed;
    } cases[] = {
        {&CConversions::datetimeFromString, &CConversions::datetimeToString, "\t2001-10-26T21:32:52.5Z \n",
         CDateTime::dt_dateTime, "2001-10-26T21:32:52.5Z"},
        {&CConversions::dateFromString, &CConversions::dateToString, " 2001-10-26+02:00", CDateTime::dt_date,
         "2001-10-26+02:00"},
        {&CConversions::timeFromString, &CConversions::timeToString, "12:00:00.000000001 ", CDateTime::dt_time,
         "12:00:00.000000001"},
        // The type comes from the form of the text, not from the reader.
        {&CConversions::dateFromString, &CConversions::dateToString, "2001-10", CDateTime::dt_gYearMonth,
         "2001-10"},
        {&CConversions::yearMonthFromString, &CConversions::yearMonthToString, "---05", CDateTime::dt_gDay,
         "---05"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        const CDateTime value = c.read(c.text, collapse);
        EXPECT_EQ(c.type, value.GetType());
        EXPECT_EQ(c.printed, c.print(value));
    }
}

TEST(ConversionsDates, FailuresAndDurationsComeFromTheValueReaders)
{
    const auto none = CWhitespaceUtils::WhitespaceRule_None;
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { CConversions::dateFromString(" 2001-10-26", none); },
                                                 "Invalid XSD Date [ 2001-10-26] expected CCYY-MM-DD[Z|[+|-]hh:mm]"));
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { CConversions::datetimeFromString("", none); },
                                                 "Invalid XSD DateTime []."));
    const CDateTimeSpan span =
        CConversions::durationFromString(" -P1Y2M3DT4H5M6.123456789S\r\n", CWhitespaceUtils::WhitespaceRule_Collapse);
    EXPECT_EQ("-P1Y2M3DT4H5M6.123456009S", CConversions::durationToString(span));
}
