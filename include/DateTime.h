#pragma once
// One value class for the eight XML Schema date and time types. A value carries its type,
// and only the fields of that type are meaningful; the others are kept but not printed.

#include <cstdint>
#include <string>
#include <string_view>

#include "SystemTime.h"
#include "VxXmlLib16Fwd.h"

namespace VxXmlLib16 {

class CDateTime
{
public:
    enum DTType : std::int32_t {
        dt_yearZero = 0, // no value yet
        dt_dateTime = 1,
        dt_date = 2,
        dt_gYearMonth = 3,
        dt_gYear = 4,
        dt_time = 5,
        dt_gDay = 6,
        dt_gMonth = 7,
        dt_gMonthDay = 8
    };

    enum DTCompareResult : std::int32_t {
        dt_equal = 0,
        dt_less = 1,
        dt_greater = 2,
        dt_indeterminate = 3
    };

    CDateTime();
    // Cleared with the type set; nothing is validated.
    explicit CDateTime(DTType type);
    CDateTime(const CDateTime &other) = default;
    CDateTime &operator=(const CDateTime &other) = default;
    virtual ~CDateTime();

    // The constructors from fields and system times leave the value cleared (type 0)
    // when the fields are invalid; the one from text throws.
    CDateTime(short year, unsigned char month, unsigned char day);
    CDateTime(short year, unsigned char month, unsigned char day, unsigned char hour, unsigned char minute,
              unsigned char second);
    CDateTime(short year, unsigned char month, unsigned char day, unsigned char hour, unsigned char minute,
              unsigned char second, unsigned short milli, unsigned short micro, unsigned short nano);
    explicit CDateTime(const SYSTEMTIME &time);
    explicit CDateTime(const FILETIME &time);
    explicit CDateTime(const long long &secondsSince1970);
    explicit CDateTime(const char *text);

    // Whole values. Each fails if the object already holds another type.
    void SetDateTime(short year, unsigned char month, unsigned char day, unsigned char hour, unsigned char minute,
                     unsigned char second);
    void SetDateTime(short year, unsigned char month, unsigned char day, unsigned char hour, unsigned char minute,
                     unsigned char second, unsigned short milli, unsigned short micro, unsigned short nano);
    void SetDate(short year, unsigned char month, unsigned char day);
    void SetTime(unsigned char hour, unsigned char minute, unsigned char second);
    void SetTime(unsigned char hour, unsigned char minute, unsigned char second, unsigned short milli,
                 unsigned short micro, unsigned short nano);
    void SetFracTime(unsigned short milli, unsigned short micro, unsigned short nano);
    void SetGYear(short year);
    void SetGYearMonth(short year, unsigned char month);
    void SetGMonth(unsigned char month);
    void SetGMonthDay(unsigned char month, unsigned char day);
    void SetGDay(unsigned char day);
    // Converts to a type that the source has enough fields for.
    void SetDateTime(const CDateTime &source, DTType wanted);

    // Single fields; each fails for a type without the field. The setters check no range.
    short GetYear() const;
    void SetYear(short year);
    unsigned char GetMonth() const;
    void SetMonth(unsigned char month);
    unsigned char GetDay() const;
    void SetDay(unsigned char day);
    unsigned char GetHour() const;
    void SetHour(unsigned char hour);
    unsigned char GetMinute() const;
    void SetMinute(unsigned char minute);
    unsigned char GetSecond() const;
    void SetSecond(unsigned char second);
    double GetRealSecond() const;
    unsigned short GetMilliSecond() const;
    void SetMilliSecond(unsigned short milli);
    unsigned short GetMicroSecond() const;
    void SetMicroSecond(unsigned short micro);
    unsigned short GetNanoSecond() const;
    void SetNanoSecond(unsigned short nano);

    // Zone. IsUTC() is true for any value with a zone, "Z" or an offset.
    void SetTimeZone(short hour, unsigned char minute);
    void SetUTC();
    bool HasTimeZone() const { return m_hasTimeZone; }
    bool IsUTC() const { return m_utc; }
    short GetZoneHour() const;
    unsigned char GetZoneMinute() const;

    DTType GetType() const { return m_type; }
    std::string GetTypeAsString() const;

    std::string ToString() const;
    std::string ToString(const char *format) const;

    // Clear, read, validate. ParseXSDDate reads every date-shaped type and takes the type
    // from the form of the text.
    void ParseXSDDate(const char *text);
    void ParseXSDTime(const char *text);
    void ParseXSDDateTime(const char *text);
    // Read fields and type without validating.
    void SetXSDDate(const char *text);
    void SetXSDTime(const char *text);
    void SetZone(const char *text);

    // Arithmetic with durations; nothing validates the result.
    CDateTime operator+(const CDateTimeSpan &span) const;
    CDateTime &operator+=(const CDateTimeSpan &span);
    CDateTime operator-(const CDateTimeSpan &span) const;
    CDateTime &operator-=(const CDateTimeSpan &span);
    // The difference of two values is not computed: the result is always a zero span.
    CDateTimeSpan operator-(const CDateTime &other) const;

    // A copy moved to zone +00:00; a value without an offset is returned as it is.
    CDateTime GetNormalized() const;
    DTCompareResult CompareTo(const CDateTime &other) const;
    bool operator==(const CDateTime &other) const;
    bool operator!=(const CDateTime &other) const;
    bool operator<(const CDateTime &other) const;
    bool operator<=(const CDateTime &other) const;
    bool operator>(const CDateTime &other) const;
    bool operator>=(const CDateTime &other) const;

    // Seconds since 1970, the fields read as UTC after normalisation; fractions dropped.
    long long GetTime() const;
    // 1 for Sunday to 7 for Saturday.
    int GetDayOfWeek() const;
    int GetDayOfYear() const;
    SYSTEMTIME GetAsSystemTime() const;
    CDateTime &operator=(const SYSTEMTIME &time);
    CDateTime &operator=(const FILETIME &time);
    CDateTime &operator=(const long long &secondsSince1970);
    // The present local time as a dateTime.
    static CDateTime GetTickCount();

private:
    static std::string GetTypeAsString(DTType type);
    static void CheckConversion(DTType source, DTType wanted);
    void Clear();
    void Validate() const;
    void SetDateTime(DTType type, short year, unsigned char month, unsigned char day, unsigned char hour,
                     unsigned char minute, unsigned char second, unsigned short milli, unsigned short micro,
                     unsigned short nano);
    // Runs the setter, turning an invalid value into a cleared object.
    template <class Setter> void AssignOrClear(Setter setter);
    void RequireField(bool has, const char *accessor) const;
    void SetXSDDate(std::string_view text);
    void SetXSDTime(std::string_view text);
    void SetZone(std::string_view text);
    void AddDateTimeSpan(const CDateTimeSpan &span);

    DTType m_type = dt_yearZero;
    short m_year = 0;
    unsigned char m_month = 0;
    unsigned char m_day = 0;
    unsigned char m_hour = 0;
    unsigned char m_minute = 0;
    unsigned char m_second = 0;
    unsigned short m_milli = 0;
    unsigned short m_micro = 0;
    unsigned short m_nano = 0;
    bool m_utc = false;
    bool m_hasTimeZone = false;
    short m_zoneHour = 0;
    unsigned char m_zoneMinute = 0;
};

} // namespace VxXmlLib16
