#pragma once
// The value of xs:duration: the components as they were written, unnormalised, with one
// sign for the whole. Arithmetic with it happens in CDateTime.

#include <cstdint>
#include <string>

#include "DateTime.h"

namespace VxXmlLib16 {

class CDateTimeSpan
{
public:
    CDateTimeSpan();
    CDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days, std::uint32_t hours,
                  std::uint64_t minutes, std::uint64_t seconds, std::uint16_t milli, std::uint16_t micro,
                  std::uint16_t nano);
    CDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days, std::uint32_t hours,
                  std::uint64_t minutes, std::uint64_t seconds);
    CDateTimeSpan(std::uint32_t hours, std::uint64_t minutes, std::uint64_t seconds);
    CDateTimeSpan(const CDateTimeSpan &other) = default;
    CDateTimeSpan &operator=(const CDateTimeSpan &other) = default;
    virtual ~CDateTimeSpan();

    // Each setter of a whole value clears the span, the sign included, first.
    void SetDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days, std::uint32_t hours,
                         std::uint64_t minutes, std::uint64_t seconds, std::uint16_t milli, std::uint16_t micro,
                         std::uint16_t nano);
    void SetDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days, std::uint32_t hours,
                         std::uint64_t minutes, std::uint64_t seconds);
    void SetDateTimeSpan(std::uint32_t hours, std::uint64_t minutes, std::uint64_t seconds);

    std::uint16_t GetYears() const { return m_years; }
    std::uint32_t GetMonths() const { return m_months; }
    std::uint32_t GetDays() const { return m_days; }
    std::uint32_t GetHours() const { return m_hours; }
    std::uint64_t GetMinutes() const { return m_minutes; }
    std::uint64_t GetSeconds() const { return m_seconds; }
    std::uint16_t GetMilliSeconds() const { return m_milli; }
    std::uint16_t GetMicroSeconds() const { return m_micro; }
    std::uint16_t GetNanoSeconds() const { return m_nano; }
    void SetYears(std::uint16_t years) { m_years = years; }
    void SetMonths(std::uint32_t months) { m_months = months; }
    void SetDays(std::uint32_t days) { m_days = days; }
    void SetHours(std::uint32_t hours) { m_hours = hours; }
    void SetMinutes(std::uint64_t minutes) { m_minutes = minutes; }
    void SetSeconds(std::uint64_t seconds) { m_seconds = seconds; }
    void SetMilliSeconds(std::uint16_t milli) { m_milli = milli; }
    void SetMicroSeconds(std::uint16_t micro) { m_micro = micro; }
    void SetNanoSeconds(std::uint16_t nano) { m_nano = nano; }

    bool IsNegative() const { return m_negative; }
    void Negate() { m_negative = !m_negative; }
    // A copy marked negative; a negative span stays negative.
    CDateTimeSpan GetAsNegative() const;

    void ParseXSDDuration(const char *text);
    std::string ToString() const;

    // The order of durations by four reference dates; only whole days count.
    CDateTime::DTCompareResult CompareTo(const CDateTimeSpan &other) const;
    bool operator==(const CDateTimeSpan &other) const;
    bool operator!=(const CDateTimeSpan &other) const;
    bool operator<(const CDateTimeSpan &other) const;
    bool operator>(const CDateTimeSpan &other) const;

private:
    void Clear();

    std::uint16_t m_years = 0;
    std::uint32_t m_months = 0;
    std::uint32_t m_days = 0;
    std::uint32_t m_hours = 0;
    std::uint64_t m_minutes = 0;
    std::uint64_t m_seconds = 0;
    std::uint16_t m_milli = 0;
    std::uint16_t m_micro = 0;
    std::uint16_t m_nano = 0;
    bool m_negative = false;
};

} // namespace VxXmlLib16
