// Construction, fields and checks of CDateTime.

#include "DateTime.h"

#include "Exceptions.h"
#include "values/DateTimeFields.h"

namespace VxXmlLib16 {

using namespace DateFields;

CDateTime::CDateTime() = default;

CDateTime::CDateTime(DTType type) : m_type(type) {}

CDateTime::~CDateTime() = default;

template <class Setter> void CDateTime::AssignOrClear(Setter setter)
{
    try {
        setter();
    } catch (const CVxInvalidValueException &) {
        Clear();
    }
}

CDateTime::CDateTime(short year, unsigned char month, unsigned char day)
{
    AssignOrClear([&] { SetDate(year, month, day); });
}

CDateTime::CDateTime(short year, unsigned char month, unsigned char day, unsigned char hour, unsigned char minute,
                     unsigned char second)
{
    AssignOrClear([&] { SetDateTime(year, month, day, hour, minute, second); });
}

CDateTime::CDateTime(short year, unsigned char month, unsigned char day, unsigned char hour, unsigned char minute,
                     unsigned char second, unsigned short milli, unsigned short micro, unsigned short nano)
{
    AssignOrClear([&] { SetDateTime(year, month, day, hour, minute, second, milli, micro, nano); });
}

CDateTime::CDateTime(const SYSTEMTIME &time)
{
    AssignOrClear([&] { *this = time; });
}

CDateTime::CDateTime(const FILETIME &time)
{
    AssignOrClear([&] { *this = time; });
}

CDateTime::CDateTime(const long long &secondsSince1970)
{
    AssignOrClear([&] { *this = secondsSince1970; });
}

CDateTime::CDateTime(const char *text) { ParseXSDDateTime(text); }

void CDateTime::Clear() { *this = CDateTime(); }

void CDateTime::SetDateTime(DTType type, short year, unsigned char month, unsigned char day, unsigned char hour,
                            unsigned char minute, unsigned char second, unsigned short milli, unsigned short micro,
                            unsigned short nano)
{
    if (m_type != dt_yearZero && m_type != type)
        throw CVxInvalidStateException(FormatString("Failed to copy CDateTime. Invalid Date Type: %s, expected: %s.",
                                                    TypeName(type), TypeName(m_type)));
    Clear();
    m_type = type;
    m_year = year;
    m_month = month;
    m_day = day;
    m_hour = hour;
    m_minute = minute;
    m_second = second;
    m_milli = milli;
    m_micro = micro;
    m_nano = nano;
    Validate();
}

void CDateTime::SetDateTime(short year, unsigned char month, unsigned char day, unsigned char hour,
                            unsigned char minute, unsigned char second)
{
    SetDateTime(dt_dateTime, year, month, day, hour, minute, second, 0, 0, 0);
}

void CDateTime::SetDateTime(short year, unsigned char month, unsigned char day, unsigned char hour,
                            unsigned char minute, unsigned char second, unsigned short milli, unsigned short micro,
                            unsigned short nano)
{
    SetDateTime(dt_dateTime, year, month, day, hour, minute, second, milli, micro, nano);
}

void CDateTime::SetDate(short year, unsigned char month, unsigned char day)
{
    SetDateTime(dt_date, year, month, day, 0, 0, 0, 0, 0, 0);
}

void CDateTime::SetTime(unsigned char hour, unsigned char minute, unsigned char second)
{
    SetDateTime(dt_time, 0, 0, 0, hour, minute, second, 0, 0, 0);
}

void CDateTime::SetTime(unsigned char hour, unsigned char minute, unsigned char second, unsigned short milli,
                        unsigned short micro, unsigned short nano)
{
    SetDateTime(dt_time, 0, 0, 0, hour, minute, second, milli, micro, nano);
}

void CDateTime::SetFracTime(unsigned short milli, unsigned short micro, unsigned short nano)
{
    SetDateTime(dt_time, 0, 0, 0, 0, 0, 0, milli, micro, nano);
}

void CDateTime::SetGYear(short year) { SetDateTime(dt_gYear, year, 0, 0, 0, 0, 0, 0, 0, 0); }

void CDateTime::SetGYearMonth(short year, unsigned char month)
{
    SetDateTime(dt_gYearMonth, year, month, 0, 0, 0, 0, 0, 0, 0);
}

void CDateTime::SetGMonth(unsigned char month) { SetDateTime(dt_gMonth, 0, month, 0, 0, 0, 0, 0, 0, 0); }

void CDateTime::SetGMonthDay(unsigned char month, unsigned char day)
{
    SetDateTime(dt_gMonthDay, 0, month, day, 0, 0, 0, 0, 0, 0);
}

void CDateTime::SetGDay(unsigned char day) { SetDateTime(dt_gDay, 0, 0, day, 0, 0, 0, 0, 0, 0); }

void CDateTime::CheckConversion(DTType source, DTType wanted)
{
    for (const DTType type : {source, wanted})
        if (!IsKnownType(type))
            throw CVxInvalidValueException(FormatString("Unknown date type %d.", static_cast<int>(type)));
    if (source == wanted || wanted == dt_yearZero)
        return;
    bool allowed = false;
    switch (source) {
    case dt_dateTime:
        allowed = true;
        break;
    case dt_date:
        allowed = wanted == dt_gDay || wanted == dt_gMonth || wanted == dt_gYear || wanted == dt_gMonthDay ||
                  wanted == dt_gYearMonth;
        break;
    case dt_gYearMonth:
        allowed = wanted == dt_gMonth || wanted == dt_gYear;
        break;
    case dt_gMonthDay:
        allowed = wanted == dt_gDay || wanted == dt_gMonth;
        break;
    default:
        break;
    }
    if (!allowed)
        throw CVxInvalidValueException(
            FormatString("Attempting to set a CDateTime of type %s using an XmlDateTime of type %s. The source "
                         "CDateTime does not contian enough data to allow the conversion.",
                         TypeName(wanted), TypeName(source)));
}

void CDateTime::SetDateTime(const CDateTime &source, DTType wanted)
{
    CheckConversion(source.m_type, wanted);
    *this = source;
    m_type = wanted;
}

void CDateTime::RequireField(bool has, const char *accessor) const
{
    if (!has)
        throw CVxInvalidStateException(
            FormatString("Failed to %s. Invalid Date Type: %s.", accessor, TypeName(m_type)));
}

short CDateTime::GetYear() const
{
    RequireField(HasYear(m_type), "GetYear");
    return m_year;
}

void CDateTime::SetYear(short year)
{
    RequireField(HasYear(m_type), "GetYear");
    m_year = year;
}

unsigned char CDateTime::GetMonth() const
{
    RequireField(HasMonth(m_type), "GetMonth");
    return m_month;
}

void CDateTime::SetMonth(unsigned char month)
{
    RequireField(HasMonth(m_type), "GetMonth");
    m_month = month;
}

unsigned char CDateTime::GetDay() const
{
    RequireField(HasDay(m_type), "GetDay");
    return m_day;
}

void CDateTime::SetDay(unsigned char day)
{
    RequireField(HasDay(m_type), "GetDay");
    m_day = day;
}

unsigned char CDateTime::GetHour() const
{
    RequireField(HasTime(m_type), "GetHour");
    return m_hour;
}

void CDateTime::SetHour(unsigned char hour)
{
    RequireField(HasTime(m_type), "GetHour");
    m_hour = hour;
}

unsigned char CDateTime::GetMinute() const
{
    RequireField(HasTime(m_type), "GetMinute");
    return m_minute;
}

void CDateTime::SetMinute(unsigned char minute)
{
    RequireField(HasTime(m_type), "GetMinute");
    m_minute = minute;
}

unsigned char CDateTime::GetSecond() const
{
    RequireField(HasTime(m_type), "GetSecond");
    return m_second;
}

void CDateTime::SetSecond(unsigned char second)
{
    RequireField(HasTime(m_type), "GetSecond");
    m_second = second;
}

double CDateTime::GetRealSecond() const
{
    RequireField(HasTime(m_type), "GetRealSecond");
    return m_second + m_milli / 1000.0 + m_micro / 1e6 + m_nano / 1e9;
}

unsigned short CDateTime::GetMilliSecond() const
{
    RequireField(HasTime(m_type), "GetMilliSecond");
    return m_milli;
}

void CDateTime::SetMilliSecond(unsigned short milli)
{
    RequireField(HasTime(m_type), "GetMilliSecond");
    m_milli = milli;
}

unsigned short CDateTime::GetMicroSecond() const
{
    RequireField(HasTime(m_type), "GetMicroSecond");
    return m_micro;
}

void CDateTime::SetMicroSecond(unsigned short micro)
{
    RequireField(HasTime(m_type), "GetMicroSecond");
    m_micro = micro;
}

unsigned short CDateTime::GetNanoSecond() const
{
    RequireField(HasTime(m_type), "GetNanoSecond");
    return m_nano;
}

void CDateTime::SetNanoSecond(unsigned short nano)
{
    RequireField(HasTime(m_type), "GetNanoSecond");
    m_nano = nano;
}

void CDateTime::SetTimeZone(short hour, unsigned char minute)
{
    if (hour < -23 || hour > 23 || minute >= 60)
        throw CVxInvalidValueException(FormatString("Invalid TimeZone [%d:%d]", hour, minute));
    m_utc = true;
    m_hasTimeZone = true;
    m_zoneHour = hour;
    m_zoneMinute = minute;
}

void CDateTime::SetUTC()
{
    m_utc = true;
    m_hasTimeZone = false;
    m_zoneHour = 0;
    m_zoneMinute = 0;
}

short CDateTime::GetZoneHour() const
{
    if (!m_hasTimeZone)
        throw CVxInvalidStateException("TimeZone is not been used");
    return m_zoneHour;
}

unsigned char CDateTime::GetZoneMinute() const
{
    if (!m_hasTimeZone)
        throw CVxInvalidStateException("TimeZone is not been used");
    return m_zoneMinute;
}

std::string CDateTime::GetTypeAsString() const { return GetTypeAsString(m_type); }

std::string CDateTime::GetTypeAsString(DTType type) { return TypeName(type); }

void CDateTime::Validate() const
{
    const char *const name = TypeName(m_type);
    if (m_type == dt_yearZero)
        throw CVxInvalidValueException("Invalid Year Zero");

    if (HasMonth(m_type)) {
        if (m_month < 1 || m_month > 12)
            throw CVxInvalidValueException(FormatString("Invalid Month [%d] (1 <= month <= 12)", m_month));
    } else if (m_month != 0) {
        throw CVxInvalidValueException(FormatString("Invalid Month [%d] for type %s", m_month, name));
    }

    if (HasYear(m_type)) {
        if (m_year == 0 || m_year < MinYear || m_year > MaxYear)
            throw CVxInvalidValueException(FormatString("Invalid Year [%d] (%d <= year <= %d && year != 0)", m_year,
                                                        MaxYear, MinYear));
    } else if (m_year != 0) {
        throw CVxInvalidValueException(FormatString("Invalid Year [%d] for type %s", m_year, name));
    }

    if (m_type == dt_dateTime || m_type == dt_date) {
        const bool leapDay = m_month == 2 && m_day == 29;
        if (m_day < 1 || m_day > DaysInMonth[m_month - 1] || (leapDay && !IsLeapYear(m_year)))
            throw CVxInvalidValueException(
                FormatString("Invalid Day [%d] (1 <= day <= days in month", m_day));
    } else if (m_type == dt_gMonthDay) {
        if (m_day < 1 || m_day > DaysInMonth[m_month - 1])
            throw CVxInvalidValueException(
                FormatString("Invalid Day [%d] (1 <= day <= days in month)", m_day));
    } else if (m_type == dt_gDay) {
        // The upper test looks at the month, which a gDay does not have, so no day is too
        // large; kept as the type has always behaved.
        if (m_day < 1 || m_month > 31)
            throw CVxInvalidValueException(FormatString("Invalid Day [%d] (1 <= day <= 31)", m_day));
    } else if (m_day != 0) {
        throw CVxInvalidValueException(FormatString("Invalid Day [%d] for type %s", m_day, name));
    }

    if (HasTime(m_type)) {
        if (m_hour > 23)
            throw CVxInvalidValueException(FormatString("Invalid Hour [%d] (0 <= hour <= 23)", m_hour));
        if (m_minute > 59)
            throw CVxInvalidValueException(FormatString("Invalid Minute [%d] (0 <= minute <= 59)", m_minute));
        if (m_second > 59)
            throw CVxInvalidValueException(FormatString("Invalid Second [%d] (0 <= second <= 59)", m_second));
        if (m_milli > 999)
            throw CVxInvalidValueException(FormatString("Invalid Milli-Second [%d] (0 <= milli <= 999)", m_milli));
        if (m_micro > 999)
            throw CVxInvalidValueException(FormatString("Invalid Micro-Second [%d] (0 <= micro <= 999)", m_micro));
        if (m_nano > 999)
            throw CVxInvalidValueException(FormatString("Invalid Nano-Second [%d] (0 <= nano <= 999)", m_nano));
        return;
    }
    const struct {
        int value;
        const char *format;
    } timeFields[] = {{m_hour, "Invalid Hour [%d] for type %s"},
                      {m_minute, "Invalid Minute [%d] for type %s"},
                      {m_second, "Invalid Second [%d] for type %s"},
                      {m_milli, "Invalid Milli-Second [%d] for type %s"},
                      {m_micro, "Invalid Micro-Second [%d] for type %s"},
                      {m_nano, "Invalid Nano-Second [%d] for type %s"}};
    for (const auto &field : timeFields)
        if (field.value != 0)
            throw CVxInvalidValueException(FormatString(field.format, field.value, name));
}

} // namespace VxXmlLib16
