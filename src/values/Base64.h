#pragma once
// The base64 codec behind CBinaryData's text form. Decoding is lenient in the ways
// the library has always been: padding and white space are skipped wherever they stand,
// a byte with bit 7 set reads like its ASCII twin, and any other character ends the
// decoding with no bytes.

#include <cstdint>
#include <string>

class CBase64
{
public:
    CBase64() = default;
    virtual ~CBase64() = default;

    // Writes into out, which must hold strlen(text) + 1 bytes; returns the bytes decoded.
    std::int32_t Decode(const char *text, unsigned char *out);
    std::string Encode(const void *data, std::uint32_t length);

private:
    unsigned char *AppendBits(unsigned char *out, std::uint32_t value, std::int32_t bits);
    // Returns the number of bits delivered into value.
    std::int32_t ReadBits(std::int32_t count, std::uint32_t &value);

    std::int64_t m_sourceLength = 0;
    std::int32_t m_bitsWaiting = 0;
    std::uint32_t m_accumulator = 0;
    const unsigned char *m_source = nullptr;
};
