#include "LocalText.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "platform/CodePageConverter.h"
#include "values/LocalTextInternal.h"
#include "values/Utf8Codec.h"

namespace VxXmlLib16 {

namespace {

// 0 and 3 name the system and thread defaults elsewhere; here the default is UTF-8.
bool IsUtf8CodePage(unsigned int codePage)
{
    return codePage == 65001 || codePage == 0 || codePage == 3;
}

enum class LocalKind { Utf8, AsciiCompatible, Unmapped };

LocalKind KindOf(unsigned int codePage)
{
    if (IsUtf8CodePage(codePage))
        return LocalKind::Utf8;
    return VxPlatform::CodePageCharset(codePage) ? LocalKind::AsciiCompatible : LocalKind::Unmapped;
}

unsigned int g_localCodePage = 65001;
LocalKind g_localKind = LocalKind::Utf8;
bool g_asciiOnly = false;

// Writes into a caller's buffer as far as it reaches while counting the whole output,
// so one call both converts and, when the buffer was too small, tells the size needed.
template <class Unit>
class BoundedOutput
{
public:
    BoundedOutput(Unit *out, std::size_t capacity) : m_out(out), m_capacity(out ? capacity : 0) {}

    void Put(const Unit *units, std::size_t count)
    {
        if (m_total + count <= m_capacity)
            std::memcpy(m_out + m_total, units, count * sizeof(Unit));
        m_total += count;
    }
    std::size_t Total() const { return m_total; }

private:
    Unit *m_out;
    std::size_t m_capacity;
    std::size_t m_total = 0;
};

std::size_t WideToLocal(const char16_t *text, std::size_t count, char *out, std::size_t capacity)
{
    BoundedOutput<char> output(out, capacity);
    if (g_localKind == LocalKind::Utf8) {
        Utf8Codec::ForEachCodePoint(text, text + count, [&output](char32_t cp) {
            if (Utf8Codec::IsHighSurrogate(cp) || Utf8Codec::IsLowSurrogate(cp))
                cp = Utf8Codec::kReplacement;
            char bytes[4];
            Utf8Codec::Encode(cp, bytes);
            output.Put(bytes, Utf8Codec::EncodedLength(cp));
            return true;
        });
        return output.Total();
    }
    const bool mapped = VxPlatform::ConvertFromUtf16(
        g_localCodePage, text, count,
        [&output](const char *bytes, std::size_t n) { output.Put(bytes, n); });
    return mapped ? output.Total() : 0;
}

// Local text in a string of its own, cut at the first NUL. The narrow scratch takes the
// text when it has room for it and a terminator; otherwise the string is converted into.
std::string WideToLocalString(const char16_t *text, std::size_t count, char *narrowScratch,
                              std::size_t narrowScratchCount)
{
    const std::size_t needed = WideToLocal(text, count, narrowScratch, narrowScratchCount);
    if (needed == 0)
        return {};
    if (needed < narrowScratchCount)
        return std::string(narrowScratch, strnlen(narrowScratch, needed));
    std::string result(needed, '\0');
    WideToLocal(text, count, result.data(), needed);
    result.resize(strnlen(result.data(), needed));
    return result;
}

void DecodeUtf8(const char *bytes, std::size_t count, BoundedOutput<char16_t> &output)
{
    const auto *p = reinterpret_cast<const unsigned char *>(bytes);
    for (std::size_t i = 0; i < count;) {
        char32_t cp;
        bool valid;
        i += Utf8Codec::DecodeOne(p + i, count - i, cp, valid);
        if (cp < 0x10000) {
            const char16_t unit = static_cast<char16_t>(cp);
            output.Put(&unit, 1);
        } else {
            const char16_t pair[2] = {static_cast<char16_t>(0xD800 + ((cp - 0x10000) >> 10)),
                                      static_cast<char16_t>(0xDC00 + ((cp - 0x10000) & 0x3FF))};
            output.Put(pair, 2);
        }
    }
}

} // namespace

namespace LocalTextDetail {

std::size_t LocalToWide(const char *text, std::size_t count, char16_t *out, std::size_t capacity)
{
    BoundedOutput<char16_t> output(out, capacity);
    if (g_localKind == LocalKind::Utf8) {
        DecodeUtf8(text, count, output);
        return output.Total();
    }
    const bool mapped = VxPlatform::ConvertToUtf16(
        g_localCodePage, text, count,
        [&output](const char16_t *units, std::size_t n) { output.Put(units, n); });
    return mapped ? output.Total() : 0;
}

bool SameAsUtf8(const Utf8Codec::Utf8Scan &scan)
{
    return scan.valid && (g_localKind == LocalKind::Utf8 || (scan.ascii && g_localKind == LocalKind::AsciiCompatible));
}

} // namespace LocalTextDetail

void SetLocalCharEncoding(unsigned int codePage)
{
    g_localCodePage = codePage;
    g_localKind = KindOf(codePage);
}
unsigned int GetLocalCharEncoding() { return g_localCodePage; }
void ASCIIOnly(bool asciiOnly) { g_asciiOnly = asciiOnly; }
bool IsASCIIOnly() { return g_asciiOnly; }

std::string Utf16ToLocal(const char16_t *text, unsigned int count)
{
    if (count == 0)
        return {};
    return WideToLocalString(text, count, nullptr, 0);
}

std::string Utf8ToLocal(const char *bytes, unsigned int count, char16_t *wideScratch,
                        unsigned int wideScratchCount, char *narrowScratch,
                        unsigned int narrowScratchCount)
{
    if (count == 0)
        return {};
    if (g_asciiOnly)
        return std::string(bytes, count);
    // The parser delivers valid UTF-8, mostly ASCII, which usually comes out unchanged:
    // then it is copied. The result ends at the first NUL either way.
    const Utf8Codec::Utf8Scan scan = Utf8Codec::ScanUtf8(bytes, count);
    if (LocalTextDetail::SameAsUtf8(scan))
        return std::string(bytes, scan.length);
    const std::size_t length = scan.length;
    std::vector<char16_t> wideHeap;
    char16_t *wide = wideScratch;
    if (!wide || wideScratchCount < length + 1) {
        wideHeap.resize(length + 1);
        wide = wideHeap.data();
    }
    std::size_t units = 0;
    if (!scan.ascii) {
        BoundedOutput<char16_t> output(wide, length + 1);
        DecodeUtf8(bytes, length, output);
        units = output.Total();
    } else {
        const auto *begin = reinterpret_cast<const unsigned char *>(bytes);
        units = std::copy(begin, begin + length, wide) - wide;
    }
    return WideToLocalString(wide, units, narrowScratch, narrowScratch ? narrowScratchCount : 0);
}

std::string Utf8ToLocal(const char *bytes, unsigned int count)
{
    return Utf8ToLocal(bytes, count, nullptr, 0, nullptr, 0);
}

std::string Utf8ToLocal(const char *text, char16_t *wideScratch, unsigned int wideScratchCount,
                        char *narrowScratch, unsigned int narrowScratchCount)
{
    if (!text)
        return {};
    return Utf8ToLocal(text, static_cast<unsigned int>(std::strlen(text)), wideScratch,
                       wideScratchCount, narrowScratch, narrowScratchCount);
}

std::string Utf8ToLocal(const char *text) { return Utf8ToLocal(text, nullptr, 0, nullptr, 0); }

int Utf16ToUtf8(const char16_t *begin, const char16_t *end, char *out, char *outEnd)
{
    auto isSurrogate = [](char32_t cp) {
        return Utf8Codec::IsHighSurrogate(cp) || Utf8Codec::IsLowSurrogate(cp);
    };
    if (!out) {
        std::size_t needed = 0;
        bool lone = false;
        Utf8Codec::ForEachCodePoint(begin, end, [&](char32_t cp) {
            lone = isSurrogate(cp);
            needed += Utf8Codec::EncodedLength(cp);
            return !lone;
        });
        return lone ? 0 : static_cast<int>(needed);
    }
    char *next = out;
    Utf8Codec::ForEachCodePoint(begin, end, [&](char32_t cp) {
        const std::size_t length = Utf8Codec::EncodedLength(cp);
        const std::size_t room = outEnd > next ? static_cast<std::size_t>(outEnd - next) : 0;
        if (isSurrogate(cp) || room < length)
            return false;
        Utf8Codec::Encode(cp, next);
        next += length;
        return true;
    });
    return static_cast<int>(next - out);
}

} // namespace VxXmlLib16
