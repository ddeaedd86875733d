#pragma once
// Helpers for the date and duration tests: values from text, and a check that a call fails
// with exactly one exception kind and message.

#include <gtest/gtest.h>

#include <string>

#include "DateTimeSpan.h"
#include "Exceptions.h"

namespace VxTest {

template <class Expected, class Call>
::testing::AssertionResult FailsWith(Call call, const std::string &message)
{
    try {
        call();
    } catch (const Expected &e) {
        if (e.GetMessage() == message)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "message \"" << e.GetMessage() << "\", expected \"" << message
                                             << "\"";
    } catch (const VxXmlLib16::CVxException &e) {
        return ::testing::AssertionFailure() << "other exception kind: " << e.GetMessage();
    }
    return ::testing::AssertionFailure() << "no exception, expected \"" << message << "\"";
}

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
