#pragma once
// Date and duration values from text, for the date and duration tests.

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

} // namespace VxTest
