#include "values/ValueText.h"

namespace VxXmlLib16::ValueText {

void CTextBuilder::Unsigned(std::uint64_t value, int minDigits)
{
    char digits[20];
    int count = 0;
    do {
        digits[count++] = static_cast<char>('0' + value % 10);
        value /= 10;
    } while (value != 0);
    for (int pad = count; pad < minDigits; ++pad)
        Char('0');
    while (count > 0)
        Char(digits[--count]);
}

void CTextBuilder::Fraction(std::uint16_t milli, std::uint16_t micro, std::uint16_t nano)
{
    const std::uint16_t groups[3] = {milli, micro, nano};
    int last = 2;
    while (last >= 0 && groups[last] == 0)
        --last;
    if (last < 0)
        return;
    Char('.');
    for (int i = 0; i < last; ++i)
        Unsigned(groups[i], 3);
    const std::size_t first = m_length;
    Unsigned(groups[last], 3);
    while (m_length > first + 1 && m_buffer[m_length - 1] == '0')
        --m_length;
}

} // namespace VxXmlLib16::ValueText
