#include "values/Base64.h"

#include <cstring>

namespace {
constexpr char Alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::int32_t Invalid = -2;
constexpr std::int32_t Skip = -1;
} // namespace

unsigned char *CBase64::AppendBits(unsigned char *out, std::uint32_t value, std::int32_t bits)
{
    m_accumulator = (m_accumulator << bits) | value;
    m_bitsWaiting += bits;
    while (m_bitsWaiting > 7) {
        m_bitsWaiting -= 8;
        *out++ = static_cast<unsigned char>(m_accumulator >> m_bitsWaiting);
    }
    return out;
}

std::int32_t CBase64::ReadBits(std::int32_t count, std::uint32_t &value)
{
    while (m_bitsWaiting < count && m_sourceLength > 0) {
        m_accumulator = (m_accumulator << 8) | *m_source++;
        --m_sourceLength;
        m_bitsWaiting += 8;
    }
    const std::uint32_t mask = (1u << count) - 1;
    if (m_bitsWaiting >= count) {
        m_bitsWaiting -= count;
        value = (m_accumulator >> m_bitsWaiting) & mask;
        return count;
    }
    const std::int32_t delivered = m_bitsWaiting;
    value = (m_accumulator << (count - delivered)) & mask;
    m_bitsWaiting = 0;
    return delivered;
}

std::string CBase64::Encode(const void *data, std::uint32_t length)
{
    if (!data)
        return std::string();
    // Sized in 64 bits so that no length can overflow the arithmetic.
    std::int64_t outLength = static_cast<std::int64_t>(length) * 8 / 6;
    if ((static_cast<std::int64_t>(length) * 8) % 6 != 0)
        ++outLength;
    outLength = (outLength + 3) / 4 * 4;
    std::string text(static_cast<std::size_t>(outLength), '=');

    m_source = static_cast<const unsigned char *>(data);
    m_sourceLength = length;
    m_bitsWaiting = 0;
    m_accumulator = 0;
    std::size_t position = 0;
    std::uint32_t value = 0;
    while (ReadBits(6, value) > 0)
        text[position++] = Alphabet[value];
    return text;
}

std::int32_t CBase64::Decode(const char *text, unsigned char *out)
{
    if (!text || !out || !*text)
        return 0;
    // Indexed by the low 7 bits, so a byte with bit 7 set reads like its ASCII twin.
    std::int32_t table[128];
    for (std::int32_t &entry : table)
        entry = Invalid;
    for (std::int32_t i = 0; i < 64; ++i)
        table[static_cast<unsigned char>(Alphabet[i])] = i;
    for (const char c : {'=', ' ', '\t', '\r', '\n'})
        table[static_cast<unsigned char>(c)] = Skip;

    const std::size_t textLength = std::strlen(text);
    std::memset(out, 0, textLength + 1);
    m_bitsWaiting = 0;
    m_accumulator = 0;
    unsigned char *next = out;
    for (std::size_t i = 0; i < textLength; ++i) {
        const std::int32_t entry = table[static_cast<unsigned char>(text[i]) & 0x7F];
        if (entry < Skip)
            return 0;
        if (entry == Skip)
            continue;
        next = AppendBits(next, static_cast<std::uint32_t>(entry), 6);
    }
    return static_cast<std::int32_t>(next - out);
}
