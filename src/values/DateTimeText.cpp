// The text forms of CDateTime: the three readers and ToString.

#include <cstring>

#include "DateTime.h"
#include "Exceptions.h"
#include "values/DateTimeFields.h"
#include "values/ValueText.h"

namespace VxXmlLib16 {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Compares the text from start against a pattern in which 'd' stands for a digit, '?' for
// any character and every other character for itself. The text must be long enough.
bool Matches(std::string_view text, std::size_t start, const char *pattern)
{
    const std::size_t length = std::strlen(pattern);
    if (text.size() < start + length)
        return false;
    for (std::size_t i = 0; i < length; ++i) {
        const char c = text[start + i];
        if (pattern[i] == 'd' ? !IsDigit(c) : pattern[i] != '?' && pattern[i] != c)
            return false;
    }
    return true;
}

int Digits(std::string_view text, std::size_t start, std::size_t count)
{
    int value = 0;
    for (std::size_t i = 0; i < count; ++i)
        value = value * 10 + (text[start + i] - '0');
    return value;
}

[[noreturn]] void FailDate(std::string_view text)
{
    throw CVxInvalidValueException(FormatString("Invalid XSD Date [%s] expected CCYY-MM-DD[Z|[+|-]hh:mm]",
                                                std::string(text).c_str()));
}

[[noreturn]] void FailTime(std::string_view text)
{
    throw CVxInvalidValueException(
        FormatString("Invalid XSD Time [%s] expected hh:mm:ss[.ff]", std::string(text).c_str()));
}

[[noreturn]] void FailZone(std::string_view text)
{
    throw CVxInvalidValueException(FormatString("Invalid XSD Time Zone [%s].", std::string(text).c_str()));
}

} // namespace

void CDateTime::SetXSDDate(const char *text)
{
    if (text == nullptr)
        throw CVxInvalidValueException("Invalid Date (Null String)");
    SetXSDDate(std::string_view(text));
}

void CDateTime::SetXSDDate(std::string_view text)
{
    const bool zoneZ = !text.empty() && text.back() == 'Z';
    const bool zoneOffset = text.find(':') != std::string_view::npos;
    if (text.empty())
        throw CVxInvalidValueException("Invalid Date (Empty String)");
    if (text.find('T') != std::string_view::npos)
        throw CVxInvalidValueException("Invalid Date ('T' not allowed)");
    // A "Z" and an offset together are refused wherever the "Z" stands.
    if (zoneOffset && text.find('Z') != std::string_view::npos)
        throw CVxInvalidValueException("Invalid Date (Bad Zone value)");

    const std::size_t zoneLength = zoneZ ? 1 : zoneOffset ? 6 : 0;
    if (text.size() < zoneLength)
        FailDate(text);
    std::size_t working = text.size() - zoneLength;
    std::size_t start = 0;
    DTType type = dt_yearZero;
    int year = 0;
    int month = 0;
    int day = 0;

    if (Matches(text, 0, "--")) {
        if (working == 4 && Matches(text, 0, "--dd")) {
            type = dt_gMonth;
            month = Digits(text, 2, 2);
        } else if (working == 5 && Matches(text, 0, "---dd")) {
            type = dt_gDay;
            day = Digits(text, 3, 2);
        } else if (working == 6 && Matches(text, 0, "--dd??")) {
            type = dt_gMonth;
            month = Digits(text, 2, 2);
        } else if (working == 7 && Matches(text, 0, "--dd-dd")) {
            type = dt_gMonthDay;
            month = Digits(text, 2, 2);
            day = Digits(text, 5, 2);
        }
    } else {
        if (working > 0 && text[0] == '-') {
            start = 1;
            --working;
        }
        if (working == 4 && Matches(text, start, "dddd")) {
            type = dt_gYear;
        } else if (working == 7 && Matches(text, start, "dddd-dd")) {
            type = dt_gYearMonth;
            month = Digits(text, start + 5, 2);
        } else if (working == 10 && Matches(text, start, "dddd-dd-dd")) {
            type = dt_date;
            month = Digits(text, start + 5, 2);
            day = Digits(text, start + 8, 2);
        }
        if (type != dt_yearZero)
            year = Digits(text, start, 4) * (start == 1 ? -1 : 1);
    }
    if (type == dt_yearZero)
        FailDate(text);

    m_type = type;
    m_year = static_cast<short>(year);
    m_month = static_cast<unsigned char>(month);
    m_day = static_cast<unsigned char>(day);
    if (zoneLength != 0)
        SetZone(text.substr(start + working));
}

void CDateTime::SetZone(const char *text)
{
    if (text == nullptr)
        throw CVxInvalidValueException("Invalid XSD Time Zone [].");
    SetZone(std::string_view(text));
}

void CDateTime::SetZone(std::string_view text)
{
    if (text.empty())
        return;
    if (text[0] == 'Z') {
        // What follows a "Z" is not read, except that an offset behind it is refused.
        if (text.find_first_of("+-", 1) != std::string_view::npos)
            FailZone(text);
        SetUTC();
        return;
    }
    if (text[0] != '+' && text[0] != '-')
        return; // anything else behind a value is ignored
    if (text.size() != 6 || !Matches(text, 1, "dd:dd"))
        FailZone(text);
    int hour = Digits(text, 1, 2);
    if (hour == 24)
        hour = 0;
    if (text[0] == '-')
        hour = -hour;
    SetTimeZone(static_cast<short>(hour), static_cast<unsigned char>(Digits(text, 4, 2)));
}

void CDateTime::SetXSDTime(const char *text)
{
    if (text == nullptr)
        throw CVxInvalidValueException("Invalid Time (Null String)");
    SetXSDTime(std::string_view(text));
}

void CDateTime::SetXSDTime(std::string_view text)
{
    if (text.empty())
        throw CVxInvalidValueException("Invalid XSD Time (Empty String)");
    if (!Matches(text, 0, "dd:dd:dd"))
        FailTime(text);
    const int hour = Digits(text, 0, 2);
    const int minute = Digits(text, 3, 2);
    const int second = Digits(text, 6, 2);
    if (hour >= 24 || minute >= 60 || second >= 60)
        FailTime(text);
    m_hour = static_cast<unsigned char>(hour);
    m_minute = static_cast<unsigned char>(minute);
    m_second = static_cast<unsigned char>(second);

    std::size_t pos = 8;
    if (pos < text.size() && text[pos] == '.') {
        static const unsigned short weights[3] = {100, 10, 1};
        unsigned short *const groups[3] = {&m_milli, &m_micro, &m_nano};
        for (++pos; pos < text.size() && IsDigit(text[pos]); ++pos) {
            const std::size_t index = pos - 9;
            if (index >= 9)
                throw CVxInvalidValueException(
                    FormatString("Invalid XSD Time [%s] Fraction part too long", std::string(text).c_str()));
            *groups[index / 3] = static_cast<unsigned short>(*groups[index / 3] +
                                                             (text[pos] - '0') * weights[index % 3]);
        }
    }
    if (pos < text.size())
        SetZone(text.substr(pos));
    m_type = dt_time;
}

void CDateTime::ParseXSDDate(const char *text)
{
    Clear();
    SetXSDDate(text);
    Validate();
}

void CDateTime::ParseXSDTime(const char *text)
{
    Clear();
    SetXSDTime(text);
    Validate();
}

void CDateTime::ParseXSDDateTime(const char *text)
{
    if (text == nullptr)
        throw CVxInvalidValueException("Invalid DateTime (Null String)");
    const std::string_view whole(text);
    const std::size_t separator = whole.find('T');
    if (separator == std::string_view::npos)
        throw CVxInvalidValueException(FormatString("Invalid XSD DateTime [%s].", text));
    Clear();
    SetXSDDate(whole.substr(0, separator));
    if (m_type != dt_date)
        throw CVxInvalidValueException(
            FormatString("Invalid XSD DateTime [%s] expected CCYY-MM-DDThh:mm:ss[.ff]", text));
    SetXSDTime(whole.substr(separator + 1));
    m_type = dt_dateTime;
    Validate();
}

std::string CDateTime::ToString() const { return ToString("s"); }

std::string CDateTime::ToString(const char *format) const
{
    const bool allZero = m_year == 0 && m_month == 0 && m_day == 0 && m_hour == 0 && m_minute == 0 &&
                         m_second == 0 && m_milli == 0 && m_micro == 0 && m_nano == 0;
    if (m_type == dt_yearZero || (m_type != dt_time && allZero))
        return "Error: Date Not Set";
    if (format == nullptr || std::strcmp(format, "G") == 0)
        return "";
    if (std::strcmp(format, "s") != 0)
        return std::string("Unknown Format: ") + format;

    ValueText::CTextBuilder text;
    const auto year = [&] {
        if (m_year < 0)
            text.Char('-');
        text.Unsigned(static_cast<unsigned>(m_year < 0 ? -m_year : m_year), 4);
    };
    const auto dashAndTwo = [&](unsigned value) {
        text.Char('-');
        text.Unsigned(value, 2);
    };
    const auto time = [&] {
        text.Unsigned(m_hour, 2);
        text.Char(':');
        text.Unsigned(m_minute, 2);
        text.Char(':');
        text.Unsigned(m_second, 2);
        text.Fraction(m_milli, m_micro, m_nano);
    };
    switch (m_type) {
    case dt_dateTime:
        year();
        dashAndTwo(m_month);
        dashAndTwo(m_day);
        text.Char('T');
        time();
        break;
    case dt_date:
        year();
        dashAndTwo(m_month);
        dashAndTwo(m_day);
        break;
    case dt_gYearMonth:
        year();
        dashAndTwo(m_month);
        break;
    case dt_gYear:
        year();
        break;
    case dt_time:
        time();
        break;
    case dt_gDay:
        text.Char('-');
        text.Char('-');
        dashAndTwo(m_day);
        break;
    case dt_gMonth:
        text.Char('-');
        dashAndTwo(m_month);
        break;
    case dt_gMonthDay:
        text.Char('-');
        dashAndTwo(m_month);
        dashAndTwo(m_day);
        break;
    default:
        break;
    }
    if (m_utc && !m_hasTimeZone) {
        text.Char('Z');
    } else if (m_utc) {
        text.Char(m_zoneHour < 0 ? '-' : '+');
        text.Unsigned(static_cast<unsigned>(m_zoneHour < 0 ? -m_zoneHour : m_zoneHour), 2);
        text.Char(':');
        text.Unsigned(m_zoneMinute, 2);
    }
    return text.Str();
}

} // namespace VxXmlLib16
