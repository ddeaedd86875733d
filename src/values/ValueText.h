#pragma once
// A fixed stack buffer for the printed forms of dates and durations: no formatting calls
// and one allocation for the result.

#include <cstddef>
#include <cstdint>
#include <string>

namespace VxXmlLib16::ValueText {

class CTextBuilder final
{
public:
    void Char(char c) { m_buffer[m_length++] = c; }
    // Decimal, padded with zeros to at least minDigits.
    void Unsigned(std::uint64_t value, int minDigits = 1);
    // The fraction of a second from its three groups: nothing when all are zero,
    // otherwise "." and the groups up to the last non-zero one, each three digits wide,
    // with the trailing zeros of that last group removed except its first digit.
    void Fraction(std::uint16_t milli, std::uint16_t micro, std::uint16_t nano);
    std::string Str() const { return std::string(m_buffer, m_length); }

private:
    // The longest duration text is about 100 characters.
    char m_buffer[160];
    std::size_t m_length = 0;
};

} // namespace VxXmlLib16::ValueText
