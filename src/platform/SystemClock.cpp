#include "platform/SystemClock.h"

#include <time.h>

namespace VxPlatform {

static_assert(sizeof(std::time_t) == 8, "the 64-bit time calls need a 64-bit time_t");

namespace {

constexpr std::uint64_t TicksPerMilli = 10000;
// Days from 1601-01-01 to 1970-01-01.
constexpr std::int64_t DaysFrom1601To1970 = 134774;

// Days since 1970-01-01 into a proleptic Gregorian date.
void CivilFromDays(std::int64_t days, std::int64_t &year, unsigned &month, unsigned &day)
{
    days += 719468;
    const std::int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const unsigned dayOfEra = static_cast<unsigned>(days - era * 146097);
    const unsigned yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const unsigned dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const unsigned shiftedMonth = (5 * dayOfYear + 2) / 153;
    day = dayOfYear - (153 * shiftedMonth + 2) / 5 + 1;
    month = shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9;
    year = static_cast<std::int64_t>(yearOfEra) + era * 400 + (month <= 2 ? 1 : 0);
}

} // namespace

bool FileTimeToSystemTime(const VxXmlLib16::FILETIME &fileTime, VxXmlLib16::SYSTEMTIME &systemTime)
{
    const std::uint64_t ticks =
        (static_cast<std::uint64_t>(fileTime.dwHighDateTime) << 32) | fileTime.dwLowDateTime;
    if (ticks >> 63 != 0)
        return false;
    const std::uint64_t millis = ticks / TicksPerMilli;
    const std::uint64_t seconds = millis / 1000;
    const auto days = static_cast<std::int64_t>(seconds / 86400);
    const std::uint64_t secondOfDay = seconds % 86400;
    std::int64_t year = 0;
    unsigned month = 0;
    unsigned day = 0;
    CivilFromDays(days - DaysFrom1601To1970, year, month, day);
    systemTime.wYear = static_cast<std::uint16_t>(year);
    systemTime.wMonth = static_cast<std::uint16_t>(month);
    systemTime.wDayOfWeek = static_cast<std::uint16_t>((days + 1) % 7); // 1601-01-01 was a Monday
    systemTime.wDay = static_cast<std::uint16_t>(day);
    systemTime.wHour = static_cast<std::uint16_t>(secondOfDay / 3600);
    systemTime.wMinute = static_cast<std::uint16_t>(secondOfDay / 60 % 60);
    systemTime.wSecond = static_cast<std::uint16_t>(secondOfDay % 60);
    systemTime.wMilliseconds = static_cast<std::uint16_t>(millis % 1000);
    return true;
}

void GetLocalTime(VxXmlLib16::SYSTEMTIME &systemTime)
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    std::tm fields{};
    localtime_r(&now.tv_sec, &fields);
    systemTime.wYear = static_cast<std::uint16_t>(fields.tm_year + 1900);
    systemTime.wMonth = static_cast<std::uint16_t>(fields.tm_mon + 1);
    systemTime.wDayOfWeek = static_cast<std::uint16_t>(fields.tm_wday);
    systemTime.wDay = static_cast<std::uint16_t>(fields.tm_mday);
    systemTime.wHour = static_cast<std::uint16_t>(fields.tm_hour);
    systemTime.wMinute = static_cast<std::uint16_t>(fields.tm_min);
    systemTime.wSecond = static_cast<std::uint16_t>(fields.tm_sec);
    systemTime.wMilliseconds = static_cast<std::uint16_t>(now.tv_nsec / 1000000);
}

std::int64_t MkTime64(std::tm &fields) { return mktime(&fields); }

bool GmTime64(std::int64_t time, std::tm &fields)
{
    const std::time_t value = time;
    return gmtime_r(&value, &fields) != nullptr;
}

bool LocalTime64(std::int64_t time, std::tm &fields)
{
    const std::time_t value = time;
    return localtime_r(&value, &fields) != nullptr;
}

double DiffTime64(std::int64_t end, std::int64_t start) { return difftime(end, start); }

} // namespace VxPlatform
