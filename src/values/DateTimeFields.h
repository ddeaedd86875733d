#pragma once
// Calendar facts shared by the parts of CDateTime: which type has which field, the days
// of the months and the leap rule.

#include "DateTime.h"

namespace VxXmlLib16::DateFields {

inline bool HasYear(CDateTime::DTType t)
{
    return t == CDateTime::dt_dateTime || t == CDateTime::dt_date || t == CDateTime::dt_gYearMonth ||
           t == CDateTime::dt_gYear;
}

inline bool HasMonth(CDateTime::DTType t)
{
    return t == CDateTime::dt_dateTime || t == CDateTime::dt_date || t == CDateTime::dt_gYearMonth ||
           t == CDateTime::dt_gMonthDay || t == CDateTime::dt_gMonth;
}

inline bool HasDay(CDateTime::DTType t)
{
    return t == CDateTime::dt_dateTime || t == CDateTime::dt_date || t == CDateTime::dt_gDay ||
           t == CDateTime::dt_gMonthDay;
}

inline bool HasTime(CDateTime::DTType t) { return t == CDateTime::dt_dateTime || t == CDateTime::dt_time; }

inline bool IsKnownType(long long t) { return t >= CDateTime::dt_yearZero && t <= CDateTime::dt_gMonthDay; }

// The name of a type as GetTypeAsString gives it; "" for a number outside the enumeration.
inline const char *TypeName(CDateTime::DTType t)
{
    static const char *const names[] = {"yearZero", "dateTime", "date",   "gYearMonth", "gYear",
                                        "time",     "gDay",     "gMonth", "gMonthDay"};
    return IsKnownType(t) ? names[t] : "";
}

constexpr short MinYear = -9999;
constexpr short MaxYear = 9999;

// February at 29.
constexpr unsigned char DaysInMonth[12] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

// Divisible by 4 on the low two bits of the signed value, so negative years follow the
// same rule without a shift.
inline bool IsLeapYear(long long year)
{
    return (year & 3) == 0 && (year % 100 != 0 || year % 400 == 0);
}

} // namespace VxXmlLib16::DateFields
