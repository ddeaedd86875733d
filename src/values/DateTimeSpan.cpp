#include "DateTimeSpan.h"

#include <string_view>

#include "Exceptions.h"
#include "values/ValueText.h"

namespace VxXmlLib16 {

CDateTimeSpan::CDateTimeSpan() = default;

CDateTimeSpan::CDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days, std::uint32_t hours,
                             std::uint64_t minutes, std::uint64_t seconds, std::uint16_t milli,
                             std::uint16_t micro, std::uint16_t nano)
{
    SetDateTimeSpan(years, months, days, hours, minutes, seconds, milli, micro, nano);
}

CDateTimeSpan::CDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days, std::uint32_t hours,
                             std::uint64_t minutes, std::uint64_t seconds)
{
    SetDateTimeSpan(years, months, days, hours, minutes, seconds, 0, 0, 0);
}

CDateTimeSpan::CDateTimeSpan(std::uint32_t hours, std::uint64_t minutes, std::uint64_t seconds)
{
    SetDateTimeSpan(0, 0, 0, hours, minutes, seconds, 0, 0, 0);
}

CDateTimeSpan::~CDateTimeSpan() = default;

void CDateTimeSpan::Clear() { *this = CDateTimeSpan(); }

void CDateTimeSpan::SetDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days,
                                    std::uint32_t hours, std::uint64_t minutes, std::uint64_t seconds,
                                    std::uint16_t milli, std::uint16_t micro, std::uint16_t nano)
{
    Clear();
    m_years = years;
    m_months = months;
    m_days = days;
    m_hours = hours;
    m_minutes = minutes;
    m_seconds = seconds;
    m_milli = milli;
    m_micro = micro;
    m_nano = nano;
}

void CDateTimeSpan::SetDateTimeSpan(std::uint16_t years, std::uint32_t months, std::uint32_t days,
                                    std::uint32_t hours, std::uint64_t minutes, std::uint64_t seconds)
{
    SetDateTimeSpan(years, months, days, hours, minutes, seconds, 0, 0, 0);
}

void CDateTimeSpan::SetDateTimeSpan(std::uint32_t hours, std::uint64_t minutes, std::uint64_t seconds)
{
    SetDateTimeSpan(0, 0, 0, hours, minutes, seconds, 0, 0, 0);
}

CDateTimeSpan CDateTimeSpan::GetAsNegative() const
{
    CDateTimeSpan copy(*this);
    copy.m_negative = true;
    return copy;
}

namespace {

[[noreturn]] void FailDuration(const char *text)
{
    throw CVxInvalidValueException(
        FormatString("Invalid XSD Duration [%s] expected [-]P[nY][nM][nD][T[nH][nM][nS.ff]]", text));
}

} // namespace

void CDateTimeSpan::ParseXSDDuration(const char *text)
{
    Clear();
    if (text == nullptr)
        throw CVxInvalidValueException("Invalid XSD Duration (Null String)");
    if (*text == '\0')
        throw CVxInvalidValueException("Invalid XSD Duration (Empty String)");

    const char *p = text;
    if (*p == '-') {
        m_negative = true;
        ++p;
    }
    if (*p++ != 'P')
        FailDuration(text);

    // The stage orders the designators: Y(1) M(2) D(3) T(4) H(5) M(6) S or "."(7), and 8
    // after a fraction. "Y" is accepted at any stage and sets the stage back to 1.
    int stage = 0;
    while (*p != '\0') {
        // A number wraps in 32 bits; no digits read as 0.
        std::uint32_t number = 0;
        for (; *p >= '0' && *p <= '9'; ++p)
            number = number * 10 + static_cast<std::uint32_t>(*p - '0');
        const auto n = static_cast<std::int32_t>(number);
        const auto extended = static_cast<std::uint64_t>(static_cast<std::int64_t>(n));
        const char designator = *p;
        if (designator == '\0')
            FailDuration(text);
        ++p;
        if (designator == 'Y') {
            m_years = static_cast<std::uint16_t>(number);
            stage = 1;
        } else if (designator == 'M' && stage <= 1) {
            m_months = number;
            stage = 2;
        } else if (designator == 'D' && stage <= 2) {
            m_days = number;
            stage = 3;
        } else if (designator == 'T' && stage <= 3) {
            stage = 4;
        } else if (designator == 'H' && stage == 4) {
            m_hours = number;
            stage = 5;
        } else if (designator == 'M' && (stage == 4 || stage == 5)) {
            m_minutes = extended;
            stage = 6;
        } else if (designator == 'S' && stage >= 4 && stage <= 6) {
            m_seconds = extended;
            stage = 7;
        } else if (designator == '.' && stage >= 4 && stage <= 6) {
            m_seconds = extended;
            stage = 7;
            if (*p == '\0')
                break; // a point at the very end needs no "S"
            // Three digits each for milli and micro; each nano digit overwrites the last.
            static const std::uint16_t weights[3] = {100, 10, 1};
            for (int index = 0; *p >= '0' && *p <= '9'; ++p, ++index) {
                const auto digit = static_cast<std::uint16_t>(*p - '0');
                if (index >= 9)
                    throw CVxInvalidValueException(
                        FormatString("Invalid XSD Duration [%s] Fraction part too long", text));
                if (index < 3)
                    m_milli = static_cast<std::uint16_t>(m_milli + digit * weights[index]);
                else if (index < 6)
                    m_micro = static_cast<std::uint16_t>(m_micro + digit * weights[index - 3]);
                else
                    m_nano = digit;
            }
            if (*p++ != 'S')
                FailDuration(text);
            stage = 8;
        } else {
            FailDuration(text);
        }
    }
    if (stage == 0 || stage == 4)
        FailDuration(text);
}

std::string CDateTimeSpan::ToString() const
{
    ValueText::CTextBuilder text;
    if (m_negative)
        text.Char('-');
    text.Char('P');
    const auto component = [&text](std::uint64_t value, char designator) {
        if (value != 0) {
            text.Unsigned(value);
            text.Char(designator);
        }
    };
    component(m_years, 'Y');
    component(m_months, 'M');
    component(m_days, 'D');
    const bool hasSeconds = m_seconds != 0 || m_milli != 0 || m_micro != 0 || m_nano != 0;
    if (m_hours != 0 || m_minutes != 0 || hasSeconds) {
        text.Char('T');
        component(m_hours, 'H');
        component(m_minutes, 'M');
    }
    if (hasSeconds) {
        text.Unsigned(m_seconds);
        text.Fraction(m_milli, m_micro, m_nano);
        text.Char('S');
    }
    return text.Str();
}

CDateTime::DTCompareResult CDateTimeSpan::CompareTo(const CDateTimeSpan &other) const
{
    // The four dates at which the schema's order of durations is decided.
    static const short references[4][3] = {{1696, 9, 1}, {1697, 2, 1}, {1903, 3, 1}, {1903, 7, 1}};
    try {
        CDateTime::DTCompareResult first = CDateTime::dt_indeterminate;
        for (std::size_t i = 0; i < 4; ++i) {
            CDateTime point;
            point.SetDate(references[i][0], static_cast<unsigned char>(references[i][1]),
                          static_cast<unsigned char>(references[i][2]));
            point.SetUTC();
            const CDateTime::DTCompareResult result = (point + *this).CompareTo(point + other);
            if (result == CDateTime::dt_indeterminate || (i > 0 && result != first))
                return CDateTime::dt_indeterminate;
            first = result;
        }
        return first;
    } catch (const CVxInvalidValueException &) {
        return CDateTime::dt_indeterminate;
    }
}

bool CDateTimeSpan::operator==(const CDateTimeSpan &other) const { return CompareTo(other) == CDateTime::dt_equal; }

bool CDateTimeSpan::operator!=(const CDateTimeSpan &other) const { return CompareTo(other) != CDateTime::dt_equal; }

bool CDateTimeSpan::operator<(const CDateTimeSpan &other) const { return CompareTo(other) == CDateTime::dt_less; }

bool CDateTimeSpan::operator>(const CDateTimeSpan &other) const { return CompareTo(other) == CDateTime::dt_greater; }

} // namespace VxXmlLib16
