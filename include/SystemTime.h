#pragma once
// The two system time layouts that CDateTime exchanges with: calendar fields and a count
// of 100-nanosecond ticks since 1601-01-01 UTC. Plain data, the same on every platform.

#include <cstdint>

namespace VxXmlLib16 {

struct SYSTEMTIME
{
    std::uint16_t wYear;
    std::uint16_t wMonth;
    std::uint16_t wDayOfWeek; // 0 for Sunday
    std::uint16_t wDay;
    std::uint16_t wHour;
    std::uint16_t wMinute;
    std::uint16_t wSecond;
    std::uint16_t wMilliseconds;
};

struct FILETIME
{
    std::uint32_t dwLowDateTime;
    std::uint32_t dwHighDateTime;
};

} // namespace VxXmlLib16
