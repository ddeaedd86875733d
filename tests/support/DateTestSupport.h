#pragma once
// Date and duration values from text, for the date and duration tests.

#include <gtest/gtest.h>

#include <string>

#include "DateTimeSpan.h"
#include "ExceptionAssert.h"

namespace VxTest {

// A dateTime, time or date-shaped text, each through its own reader.
inline VxXmlLib16::CDateTime DateValue(const char *text)
{
    const std::string form(text);
    VxXmlLib16::CDateTime value;
    if (form.find('T') != std::string::npos)
        value.ParseXSDDateTime(text);
    else if (form.size() > 2 && form[2] == ':')
        value.ParseXSDTime(text);
    else
        value.ParseXSDDate(text);
    return value;
}

inline VxXmlLib16::CDateTimeSpan SpanValue(const char *text)
{
    VxXmlLib16::CDateTimeSpan span;
    span.ParseXSDDuration(text);
    return span;
}

// The comparison operators of dates and spans agree with CompareTo.
template <class Value>
void ExpectOperatorsAgree(VxXmlLib16::CDateTime::DTCompareResult result, const Value &left, const Value &right)
{
    using VxXmlLib16::CDateTime;
    EXPECT_EQ(result, left.CompareTo(right));
    EXPECT_EQ(result == CDateTime::dt_equal, left == right);
    EXPECT_EQ(result != CDateTime::dt_equal, left != right);
    EXPECT_EQ(result == CDateTime::dt_less, left < right);
    EXPECT_EQ(result == CDateTime::dt_greater, left > right);
}

} // namespace VxTest
