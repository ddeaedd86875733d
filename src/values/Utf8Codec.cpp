#include "values/Utf8Codec.h"

#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace VxXmlLib16::Utf8Codec {

void Encode(char32_t cp, char *out)
{
    auto *o = reinterpret_cast<unsigned char *>(out);
    if (cp < 0x80) {
        o[0] = static_cast<unsigned char>(cp);
    } else if (cp < 0x800) {
        o[0] = static_cast<unsigned char>(0xC0 | (cp >> 6));
        o[1] = static_cast<unsigned char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        o[0] = static_cast<unsigned char>(0xE0 | (cp >> 12));
        o[1] = static_cast<unsigned char>(0x80 | ((cp >> 6) & 0x3F));
        o[2] = static_cast<unsigned char>(0x80 | (cp & 0x3F));
    } else {
        o[0] = static_cast<unsigned char>(0xF0 | (cp >> 18));
        o[1] = static_cast<unsigned char>(0x80 | ((cp >> 12) & 0x3F));
        o[2] = static_cast<unsigned char>(0x80 | ((cp >> 6) & 0x3F));
        o[3] = static_cast<unsigned char>(0x80 | (cp & 0x3F));
    }
}

std::size_t DecodeOne(const unsigned char *p, std::size_t n, char32_t &cp, bool &valid)
{
    const unsigned char lead = p[0];
    if (lead < 0x80) {
        cp = lead;
        valid = true;
        return 1;
    }
    // Trail count and the allowed range of the second byte, which excludes overlong
    // forms, surrogates and values above U+10FFFF.
    std::size_t trail;
    unsigned char low = 0x80, high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        trail = 1;
        cp = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        trail = 2;
        cp = lead & 0x0F;
        if (lead == 0xE0)
            low = 0xA0;
        else if (lead == 0xED)
            high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        trail = 3;
        cp = lead & 0x07;
        if (lead == 0xF0)
            low = 0x90;
        else if (lead == 0xF4)
            high = 0x8F;
    } else {
        cp = kReplacement;
        valid = false;
        return 1;
    }
    std::size_t i = 1;
    for (; i <= trail; ++i) {
        if (i >= n || p[i] < low || p[i] > high) {
            cp = kReplacement;
            valid = false;
            return i;
        }
        cp = (cp << 6) | (p[i] & 0x3F);
        low = 0x80;
        high = 0xBF;
    }
    valid = true;
    return i;
}

namespace {

// The length of the leading run of bytes that are ASCII and not NUL, looked at sixteen
// bytes at a time; it may stop short of the run's end by less than sixteen bytes.
std::size_t PlainAsciiRun(const unsigned char *p, std::size_t n)
{
    std::size_t i = 0;
#if defined(__SSE2__)
    const __m128i zero = _mm_setzero_si128();
    for (; i + 16 <= n; i += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i *>(p + i));
        if (_mm_movemask_epi8(_mm_or_si128(bytes, _mm_cmpeq_epi8(bytes, zero))) != 0)
            break;
    }
#else
    constexpr std::uint64_t kOnes = 0x0101010101010101ULL;
    constexpr std::uint64_t kHighs = 0x8080808080808080ULL;
    for (; i + 8 <= n; i += 8) {
        std::uint64_t word;
        std::memcpy(&word, p + i, sizeof word);
        if ((word & kHighs) != 0 || ((word - kOnes) & ~word & kHighs) != 0)
            break;
    }
#endif
    return i;
}

} // namespace

Utf8Scan ScanUtf8(const char *p, std::size_t n)
{
    const auto *u = reinterpret_cast<const unsigned char *>(p);
    Utf8Scan scan{n, true, true};
    std::size_t i = 0;
    while (i < n) {
        i += PlainAsciiRun(u + i, n - i);
        if (i >= n)
            break;
        if (u[i] == 0) {
            scan.length = i;
            return scan;
        }
        if (u[i] < 0x80) {
            ++i;
            continue;
        }
        scan.ascii = false;
        // The two-byte sequences are the most common ones in Latin text.
        if (u[i] >= 0xC2 && u[i] <= 0xDF && i + 1 < n && (u[i + 1] & 0xC0) == 0x80) {
            i += 2;
            continue;
        }
        char32_t cp;
        bool ok;
        i += DecodeOne(u + i, n - i, cp, ok);
        if (!ok) {
            scan.valid = false;
            const void *nul = std::memchr(u + i, 0, n - i);
            if (nul)
                scan.length = static_cast<std::size_t>(static_cast<const unsigned char *>(nul) - u);
            return scan;
        }
    }
    return scan;
}

} // namespace VxXmlLib16::Utf8Codec
