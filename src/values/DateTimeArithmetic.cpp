// CDateTime with durations, zones, ordering and system time.

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "DateTime.h"
#include "DateTimeSpan.h"
#include "Exceptions.h"
#include "platform/SystemClock.h"
#include "values/DateTimeFields.h"

namespace VxXmlLib16 {

using namespace DateFields;

namespace {

struct Division
{
    std::int32_t quotient;
    std::int64_t remainder;
};

// Floor division in single precision, as the carries of date arithmetic have always been
// computed: beyond 2^24 the quotient rounds and the remainder can leave the unit's range.
// A quotient beyond 32 bits becomes the smallest 32-bit number, as the processor's
// conversion gives it.
Division FloorDivide(std::int64_t x, std::int32_t y)
{
    const float quotient = std::floor(static_cast<float>(x) / static_cast<float>(y));
    std::int32_t q = std::numeric_limits<std::int32_t>::min();
    if (quotient >= -2147483648.0f && quotient < 2147483648.0f)
        q = static_cast<std::int32_t>(quotient);
    const auto product = static_cast<std::int32_t>(static_cast<std::uint32_t>(q) * static_cast<std::uint32_t>(y));
    return {q, static_cast<std::int64_t>(static_cast<std::uint64_t>(x) - static_cast<std::uint64_t>(product))};
}

// Sums that wrap in 64 bits, since span components are unsigned 64-bit.
std::int64_t WrappingSum(std::int64_t a, std::int64_t b, std::int64_t c = 0)
{
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b) +
                                     static_cast<std::uint64_t>(c));
}

// Days of month m in the given year. Months 0 and -1 stand for a December, and a month
// outside the calendar (from an unchecked setter) counts 31 as well.
int LastDay(long long month, short year)
{
    if (month == 2)
        return IsLeapYear(year) ? 29 : 28;
    if (month < 1 || month > 12)
        return 31;
    return DaysInMonth[month - 1];
}

// Whole calendar cycles skipped at once, which lands on the same month and day as walking
// month by month would. 400 years hold 146097 days wherever the year field does not wrap;
// 65536 years, one full turn of the 16-bit year field, hold every leap year of the field
// once, so such a turn returns to the same year.
std::int64_t SkipWholeCycles(std::int64_t days, short &year)
{
    static const std::int64_t daysPerFieldTurn = [] {
        std::int64_t total = 0;
        for (int y = std::numeric_limits<short>::min(); y <= std::numeric_limits<short>::max(); ++y)
            total += IsLeapYear(y) ? 366 : 365;
        return total;
    }();
    constexpr std::int64_t daysPer400Years = 146097;
    days %= daysPerFieldTurn;
    std::int64_t cycles = (days < 0 ? -days : days) / daysPer400Years;
    const int room = days < 0 ? year - std::numeric_limits<short>::min() : std::numeric_limits<short>::max() - year;
    if (cycles > room / 400)
        cycles = room / 400;
    const std::int64_t direction = days < 0 ? -1 : 1;
    year = static_cast<short>(year + direction * 400 * cycles);
    return days - direction * daysPer400Years * cycles;
}

struct FieldValues
{
    long long year, month, day, hour, minute;
    double second;
};

// A field the type lacks counts -1.
FieldValues ComparedFields(const CDateTime &value)
{
    const CDateTime::DTType type = value.GetType();
    FieldValues fields{-1, -1, -1, -1, -1, -1.0};
    if (HasYear(type))
        fields.year = value.GetYear();
    if (HasMonth(type))
        fields.month = value.GetMonth();
    if (HasDay(type))
        fields.day = value.GetDay();
    if (HasTime(type)) {
        fields.hour = value.GetHour();
        fields.minute = value.GetMinute();
        fields.second = value.GetRealSecond();
    }
    return fields;
}

template <class T> int CompareOne(T left, T right)
{
    if (left * right < 0)
        return CDateTime::dt_indeterminate;
    if (left < right)
        return CDateTime::dt_less;
    if (left > right)
        return CDateTime::dt_greater;
    return CDateTime::dt_equal;
}

// Year, month, day, hour, minute and real second in turn. A negative product means one
// side lacks the field, or the years have opposite signs: not ordered.
CDateTime::DTCompareResult CompareFields(const CDateTime &a, const CDateTime &b)
{
    const FieldValues left = ComparedFields(a);
    const FieldValues right = ComparedFields(b);
    const int results[] = {CompareOne(left.year, right.year),     CompareOne(left.month, right.month),
                           CompareOne(left.day, right.day),       CompareOne(left.hour, right.hour),
                           CompareOne(left.minute, right.minute), CompareOne(left.second, right.second)};
    for (const int result : results)
        if (result != CDateTime::dt_equal)
            return static_cast<CDateTime::DTCompareResult>(result);
    return CDateTime::dt_equal;
}

CDateTime NormalizedIfZoned(const CDateTime &value)
{
    return value.HasTimeZone() ? value.GetNormalized() : value;
}

// The value read at the farthest zones, +14:00 and then -14:00. The second reading starts
// from the first one's result and so lands on the value's own fields read as UTC.
CDateTime::DTCompareResult CompareZonedWithLocal(const CDateTime &zoned, CDateTime local)
{
    local.SetTimeZone(14, 0);
    local = local.GetNormalized();
    if (CompareFields(zoned, local) == CDateTime::dt_less)
        return CDateTime::dt_less;
    local.SetTimeZone(-14, 0);
    local = local.GetNormalized();
    if (CompareFields(zoned, local) == CDateTime::dt_greater)
        return CDateTime::dt_greater;
    return CDateTime::dt_indeterminate;
}

CDateTime::DTCompareResult Mirrored(CDateTime::DTCompareResult result)
{
    if (result == CDateTime::dt_less)
        return CDateTime::dt_greater;
    if (result == CDateTime::dt_greater)
        return CDateTime::dt_less;
    return result;
}

[[noreturn]] void FailTime(long long time)
{
    throw CVxInvalidValueException(FormatString("Invalid Time [%lld]", time));
}

std::tm UtcFields(long long time)
{
    std::tm fields{};
    if (!VxPlatform::GmTime64(time, fields))
        FailTime(time);
    return fields;
}

std::tm LocalFields(long long time)
{
    std::tm fields{};
    if (!VxPlatform::LocalTime64(time, fields))
        FailTime(time);
    return fields;
}

// A system value that does not fit its field is held at the field's limit, so that
// validation refuses it instead of a wrapped value slipping into range.
template <class T> T Saturated(long long value)
{
    if (value < std::numeric_limits<T>::min())
        return std::numeric_limits<T>::min();
    if (value > std::numeric_limits<T>::max())
        return std::numeric_limits<T>::max();
    return static_cast<T>(value);
}

} // namespace

void CDateTime::AddDateTimeSpan(const CDateTimeSpan &span)
{
    const bool negative = span.IsNegative();
    const auto signedValue = [negative](std::uint64_t value) {
        return static_cast<std::int64_t>(negative ? 0 - value : value);
    };

    const std::int64_t months = WrappingSum(m_month, signedValue(span.GetMonths()), -1);
    const Division yearCarry = FloorDivide(months, 12);
    m_year = static_cast<short>(WrappingSum(m_year, yearCarry.quotient, signedValue(span.GetYears())));
    m_month = static_cast<unsigned char>(yearCarry.remainder + 1);

    std::int64_t carry = 0;
    const auto carryInto = [&](auto &field, std::uint64_t amount, std::int32_t unit) {
        const Division division = FloorDivide(WrappingSum(field, carry, signedValue(amount)), unit);
        field = static_cast<std::remove_reference_t<decltype(field)>>(division.remainder);
        carry = division.quotient;
    };
    carryInto(m_nano, span.GetNanoSeconds(), 1000);
    carryInto(m_micro, span.GetMicroSeconds(), 1000);
    carryInto(m_milli, span.GetMilliSeconds(), 1000);
    carryInto(m_second, span.GetSeconds(), 60);
    carryInto(m_minute, span.GetMinutes(), 60);
    carryInto(m_hour, span.GetHours(), 24);

    // Whole days month by month. The day is not clamped after the month step, so
    // 31 January plus one month stays 31 February.
    std::int64_t days = WrappingSum(carry, signedValue(span.GetDays()));
    long long month = m_month;
    std::int64_t day = m_day;
    while (days != 0) {
        const bool regular = month >= 1 && month <= 12 && day >= 1 && day <= LastDay(month, m_year);
        if (regular && (days >= 146097 || days <= -146097)) {
            days = SkipWholeCycles(days, m_year);
            if (days == 0)
                break;
        }
        // Above December (a month field out of its range) the months climb forever at 31
        // days each and the year stays; take all those steps at once.
        if (days >= 31 && month >= 14 && day == 1) {
            month += days / 31;
            days %= 31;
            continue;
        }
        if (days < 0) {
            if (day - 1 < -days) {
                days += day;
                --month;
                day = LastDay(month, m_year);
            } else {
                day += days;
                days = 0;
            }
        } else {
            const int last = LastDay(month, m_year);
            if (day + days <= last) {
                day += days;
                days = 0;
            } else {
                days -= last + 1 - day;
                day = 1;
                ++month;
            }
        }
        if (month == 0) {
            m_year = static_cast<short>(m_year - 1);
            month = 12;
        } else if (month == 13) {
            m_year = static_cast<short>(m_year + 1);
            month = 1;
        }
    }
    m_day = static_cast<unsigned char>(day);
    m_month = static_cast<unsigned char>(month);
}

CDateTime CDateTime::operator+(const CDateTimeSpan &span) const
{
    CDateTime result(*this);
    result.AddDateTimeSpan(span);
    return result;
}

CDateTime &CDateTime::operator+=(const CDateTimeSpan &span)
{
    AddDateTimeSpan(span);
    return *this;
}

CDateTime CDateTime::operator-(const CDateTimeSpan &span) const { return *this + span.GetAsNegative(); }

CDateTime &CDateTime::operator-=(const CDateTimeSpan &span) { return *this += span.GetAsNegative(); }

CDateTimeSpan CDateTime::operator-(const CDateTime &) const { return CDateTimeSpan(); }

CDateTime CDateTime::GetNormalized() const
{
    CDateTime copy(*this);
    if (!m_hasTimeZone)
        return copy;
    try {
        const CDateTimeSpan zone(static_cast<std::uint32_t>(m_zoneHour < 0 ? -m_zoneHour : m_zoneHour),
                                 m_zoneMinute, 0);
        if (m_zoneHour >= 0)
            copy -= zone;
        else
            copy += zone;
        copy.SetTimeZone(0, 0);
    } catch (const CVxInvalidValueException &) {
    }
    return copy;
}

CDateTime::DTCompareResult CDateTime::CompareTo(const CDateTime &other) const
{
    const CDateTime a = NormalizedIfZoned(*this);
    const CDateTime b = NormalizedIfZoned(other);
    if (a.IsUTC() == b.IsUTC())
        return CompareFields(a, b);
    try {
        return a.IsUTC() ? CompareZonedWithLocal(a, b) : Mirrored(CompareZonedWithLocal(b, a));
    } catch (const CVxInvalidValueException &) {
        return dt_indeterminate;
    }
}

bool CDateTime::operator==(const CDateTime &other) const { return CompareTo(other) == dt_equal; }

bool CDateTime::operator!=(const CDateTime &other) const { return CompareTo(other) != dt_equal; }

bool CDateTime::operator<(const CDateTime &other) const { return CompareTo(other) == dt_less; }

bool CDateTime::operator<=(const CDateTime &other) const
{
    const DTCompareResult result = CompareTo(other);
    return result == dt_equal || result == dt_less;
}

bool CDateTime::operator>(const CDateTime &other) const { return CompareTo(other) == dt_greater; }

bool CDateTime::operator>=(const CDateTime &other) const
{
    const DTCompareResult result = CompareTo(other);
    return result == dt_equal || result == dt_greater;
}

long long CDateTime::GetTime() const
{
    const CDateTime n = GetNormalized();
    if (n.m_type != dt_dateTime && n.m_type != dt_date)
        throw CVxInvalidValueException(
            FormatString("Failed to GetTime, Date Status must be dateTime or date. Invalid Date Type: %s.",
                         TypeName(n.m_type)));
    std::tm fields{};
    fields.tm_year = n.m_year - 1900;
    fields.tm_mon = n.m_month - 1;
    fields.tm_mday = n.m_day;
    if (n.m_type == dt_dateTime) {
        fields.tm_hour = n.m_hour;
        fields.tm_min = n.m_minute;
        fields.tm_sec = n.m_second;
    }
    // mktime reads the fields as local time; the difference between the local and the
    // UTC reading of the result undoes that, so the fields count as UTC.
    const std::int64_t t = VxPlatform::MkTime64(fields);
    std::tm utc = UtcFields(t);
    std::tm local = LocalFields(t);
    const std::int64_t g = VxPlatform::MkTime64(utc);
    const std::int64_t l = VxPlatform::MkTime64(local);
    return t + static_cast<long long>(VxPlatform::DiffTime64(l, g));
}

int CDateTime::GetDayOfWeek() const
{
    if (m_type != dt_dateTime && m_type != dt_date)
        throw CVxInvalidStateException(
            FormatString("Failed to GetDayOfWeek. Invalid Date Type: %s.", TypeName(m_type)));
    // The weekday of the value's own (normalised) date, whatever the machine's zone.
    return UtcFields(GetTime()).tm_wday + 1;
}

int CDateTime::GetDayOfYear() const
{
    if (m_type != dt_dateTime && m_type != dt_date)
        throw CVxInvalidStateException(
            FormatString("Failed to GetDayOfYear. Invalid Date Type: %s.", TypeName(m_type)));
    if (m_month < 1 || m_month > 12)
        throw CVxInvalidValueException(FormatString("Invalid Month [%d] (1 <= month <= 12)", m_month));
    static const int daysBefore[12] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    // The leap day counts in January and February and not behind them.
    return daysBefore[m_month - 1] + m_day + (IsLeapYear(m_year) && m_month < 3 ? 1 : 0);
}

SYSTEMTIME CDateTime::GetAsSystemTime() const
{
    if (m_type != dt_dateTime)
        throw CVxInvalidValueException(FormatString(
            "Failed to GetAsSystemTime, Date Status must be dateTime. Invalid Date Type: %s.", TypeName(m_type)));
    SYSTEMTIME time{};
    time.wYear = static_cast<std::uint16_t>(m_year);
    time.wMonth = m_month;
    time.wDayOfWeek = static_cast<std::uint16_t>(GetDayOfWeek() - 1);
    time.wDay = m_day;
    time.wHour = m_hour;
    time.wMinute = m_minute;
    time.wSecond = m_second;
    time.wMilliseconds = m_milli;
    return time;
}

CDateTime &CDateTime::operator=(const SYSTEMTIME &time)
{
    SetDateTime(Saturated<short>(time.wYear), Saturated<unsigned char>(time.wMonth),
                Saturated<unsigned char>(time.wDay), Saturated<unsigned char>(time.wHour),
                Saturated<unsigned char>(time.wMinute), Saturated<unsigned char>(time.wSecond), time.wMilliseconds,
                0, 0);
    return *this;
}

CDateTime &CDateTime::operator=(const FILETIME &time)
{
    SYSTEMTIME systemTime{};
    if (!VxPlatform::FileTimeToSystemTime(time, systemTime))
        throw CVxInvalidValueException("Failed to convert FILETIME to SYSTEMTIME");
    return *this = systemTime;
}

CDateTime &CDateTime::operator=(const long long &secondsSince1970)
{
    const std::tm fields = UtcFields(secondsSince1970);
    SetDateTime(Saturated<short>(fields.tm_year + 1900LL), static_cast<unsigned char>(fields.tm_mon + 1),
                static_cast<unsigned char>(fields.tm_mday), static_cast<unsigned char>(fields.tm_hour),
                static_cast<unsigned char>(fields.tm_min), static_cast<unsigned char>(fields.tm_sec));
    return *this;
}

CDateTime CDateTime::GetTickCount()
{
    SYSTEMTIME now{};
    VxPlatform::GetLocalTime(now);
    return CDateTime(now);
}

} // namespace VxXmlLib16
