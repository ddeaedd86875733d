#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

#include "DateTestSupport.h"
#include "platform/SystemClock.h"

using VxXmlLib16::CDateTime;
using VxXmlLib16::FILETIME;
using VxXmlLib16::SYSTEMTIME;

namespace {

FILETIME Ticks(std::uint64_t ticks)
{
    return {static_cast<std::uint32_t>(ticks), static_cast<std::uint32_t>(ticks >> 32)};
}

// Sets the process's zone; null restores the zone the process started with.
void UseZone(const char *zone)
{
    const char *const current = std::getenv("TZ");
    static const bool hadZone = current != nullptr;
    static const std::string saved = hadZone ? current : "";
    if (zone)
        setenv("TZ", zone, 1);
    else if (hadZone)
        setenv("TZ", saved.c_str(), 1);
    else
        unsetenv("TZ");
    tzset();
}

} // namespace

TEST(SystemClock, FileTimeTicksIntoCalendarFields)
{
    // Year, month, day of the week (0 for Sunday), day, hour, minute, second, milli.
    const struct { std::uint64_t ticks; std::vector<int> expected; } cases[] = {
        {0, {1601, 1, 1, 1, 0, 0, 0, 0}}, {116444736000000000ULL, {1970, 1, 4, 1, 0, 0, 0, 0}},
        {125963012967890000ULL, {2000, 2, 2, 29, 12, 34, 56, 789}},
        {125963012967899999ULL, {2000, 2, 2, 29, 12, 34, 56, 789}},
        {0x7FFFFFFFFFFFFFFFULL, {30828, 9, 4, 14, 2, 48, 5, 477}},
    };
    for (const auto &c : cases) {
        SYSTEMTIME t{};
        ASSERT_TRUE(VxPlatform::FileTimeToSystemTime(Ticks(c.ticks), t));
        EXPECT_EQ(c.expected, (std::vector<int>{t.wYear, t.wMonth, t.wDayOfWeek, t.wDay, t.wHour, t.wMinute,
                                                t.wSecond, t.wMilliseconds}))
            << c.ticks;
    }
    SYSTEMTIME time{};
    EXPECT_FALSE(VxPlatform::FileTimeToSystemTime(Ticks(0x8000000000000000ULL), time));
}

// Seconds since 1970 and the day of the week (1 for Sunday) are read in UTC whatever the
// process's zone: around the daylight-saving changes of New York, across historic offsets.
TEST(SystemClock, ValuesDoNotDependOnTheMachineZone)
{
    const struct { const char *text; long long seconds; int day; } cases[] = {
        {"2021-03-14T02:30:00", 1615689000, 1}, {"2021-11-07T01:30:00", 1636248600, 1},
        {"1942-09-01T00:00:00", -862617600, 3}, {"1883-11-18T12:00:00", -2717668800, 1},
        {"1500-06-15", -14817513600, 6}, {"-0044-03-15T12:00:00", -63549316800, 5}, {"1969-12-31", -86400, 4},
        {"2001-01-01T12:34:56.999", 978352496, 2}, // fractions are dropped
        {"2001-01-01T00:30:00+01:00", 978305400, 1}, {"9999-12-31T23:59:59", 253402300799, 6},
    };
    for (const char *zone : {"UTC", "America/New_York", "Asia/Kolkata", "Australia/Lord_Howe", "Pacific/Kiritimati"}) {
        UseZone(zone);
        for (const auto &c : cases) {
            SCOPED_TRACE(std::string(zone) + " " + c.text);
            const CDateTime value = VxTest::DateValue(c.text);
            EXPECT_EQ(c.seconds, value.GetTime());
            EXPECT_EQ(c.day, value.GetDayOfWeek());
            EXPECT_EQ(c.seconds, CDateTime(c.seconds).GetTime());
        }
    }
    UseZone(nullptr);
}
