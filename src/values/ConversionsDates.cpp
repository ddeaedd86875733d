// The text forms of dates, times and durations in the conversion table.

#include "Conversions.h"

#include "DateTime.h"
#include "DateTimeSpan.h"

namespace VxXmlLib16 {

namespace {

// Every date reader clears the value first and takes the type from the form of the text,
// so that a date field given "2001-10" holds a gYearMonth.
template <void (CDateTime::*Parse)(const char *)>
CDateTime ReadDate(const std::string &text, CWhitespaceUtils::WhitespaceRule rule)
{
    const std::string value = CWhitespaceUtils::ApplyRule(rule, text);
    CDateTime result;
    (result.*Parse)(value.c_str());
    return result;
}

} // namespace

// All five print the form of the value's own type.
std::string CConversions::timeToString(const CDateTime &value) { return value.ToString("s"); }

std::string CConversions::datetimeToString(const CDateTime &value) { return value.ToString("s"); }

std::string CConversions::dateToString(const CDateTime &value) { return value.ToString("s"); }

std::string CConversions::monthDayToString(const CDateTime &value) { return value.ToString("s"); }

std::string CConversions::yearMonthToString(const CDateTime &value) { return value.ToString("s"); }

std::string CConversions::durationToString(const CDateTimeSpan &value) { return value.ToString(); }

CDateTimeSpan CConversions::durationFromString(const std::string &text, WhitespaceRule rule)
{
    const std::string value = CWhitespaceUtils::ApplyRule(rule, text);
    CDateTimeSpan result;
    result.ParseXSDDuration(value.c_str());
    return result;
}

CDateTime CConversions::datetimeFromString(const std::string &text, WhitespaceRule rule)
{
    return ReadDate<&CDateTime::ParseXSDDateTime>(text, rule);
}

CDateTime CConversions::dateFromString(const std::string &text, WhitespaceRule rule)
{
    return ReadDate<&CDateTime::ParseXSDDate>(text, rule);
}

CDateTime CConversions::yearMonthFromString(const std::string &text, WhitespaceRule rule)
{
    return ReadDate<&CDateTime::ParseXSDDate>(text, rule);
}

CDateTime CConversions::timeFromString(const std::string &text, WhitespaceRule rule)
{
    return ReadDate<&CDateTime::ParseXSDTime>(text, rule);
}

CDateTime CConversions::monthDayFromString(const std::string &text, WhitespaceRule rule)
{
    return ReadDate<&CDateTime::ParseXSDDate>(text, rule);
}

} // namespace VxXmlLib16
