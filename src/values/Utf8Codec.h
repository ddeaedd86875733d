#pragma once
// UTF-8 and UTF-16 walking shared by the transcoders. Invalid UTF-8 is replaced by
// U+FFFD once per maximal ill-formed subpart, the practice Unicode recommends.

#include <cstddef>
#include <cstdint>

namespace VxXmlLib16::Utf8Codec {

constexpr char32_t kReplacement = 0xFFFD;

constexpr bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// Number of UTF-8 bytes of a code point.
constexpr std::size_t EncodedLength(char32_t cp)
{
    return cp < 0x80 ? 1 : cp < 0x800 ? 2 : cp < 0x10000 ? 3 : 4;
}

// Writes the UTF-8 bytes of cp (EncodedLength(cp) of them) at out.
void Encode(char32_t cp, char *out);

// Decodes one character at the start of [p, p + n), n > 0. Returns the bytes consumed;
// valid is false (and cp U+FFFD) for an ill-formed subpart.
std::size_t DecodeOne(const unsigned char *p, std::size_t n, char32_t &cp, bool &valid);

struct Utf8Scan
{
    std::size_t length; // up to the first NUL, or all
    bool valid;         // that part is well-formed UTF-8
    bool ascii;         // that part is plain ASCII
};

// Looks at the text up to its first NUL; ASCII runs sixteen bytes at a time.
Utf8Scan ScanUtf8(const char *p, std::size_t n);

// Walks UTF-16 units. A valid surrogate pair gives one code point; a lone surrogate
// is handed over as such (a value from 0xD800 to 0xDFFF). emit returns false to stop.
template <class Emit>
void ForEachCodePoint(const char16_t *begin, const char16_t *end, Emit emit)
{
    for (const char16_t *p = begin; p < end; ++p) {
        char32_t cp = *p;
        if (IsHighSurrogate(cp) && p + 1 < end && IsLowSurrogate(p[1])) {
            cp = 0x10000 + ((cp - 0xD800) << 10) + (char32_t(p[1]) - 0xDC00);
            ++p;
        }
        if (!emit(cp))
            return;
    }
}

} // namespace VxXmlLib16::Utf8Codec
