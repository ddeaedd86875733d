#include "platform/CodePageConverter.h"

#include <cerrno>
#include <algorithm>
#include <cstring>
#include <iconv.h>
#include <utility>

namespace VxPlatform {

namespace {

constexpr const char *kUtf16Host =
    __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__ ? "UTF-16LE" : "UTF-16BE";

struct CodePageName
{
    std::uint32_t codePage;
    const char *charset;
};

constexpr CodePageName kCodePages[] = {
    {437, "IBM437"},         {850, "IBM850"},         {852, "IBM852"},
    {866, "IBM866"},         {874, "CP874"},          {932, "CP932"},
    {936, "GBK"},            {949, "CP949"},          {950, "CP950"},
    {1250, "CP1250"},        {1251, "CP1251"},        {1252, "CP1252"},
    {1253, "CP1253"},        {1254, "CP1254"},        {1255, "CP1255"},
    {1256, "CP1256"},        {1257, "CP1257"},        {1258, "CP1258"},
    {10000, "MACINTOSH"},    {20127, "ASCII"},        {20866, "KOI8-R"},
    {21866, "KOI8-U"},       {28591, "ISO-8859-1"},   {28592, "ISO-8859-2"},
    {28593, "ISO-8859-3"},   {28594, "ISO-8859-4"},   {28595, "ISO-8859-5"},
    {28596, "ISO-8859-6"},   {28597, "ISO-8859-7"},   {28598, "ISO-8859-8"},
    {28599, "ISO-8859-9"},   {28603, "ISO-8859-13"},  {28605, "ISO-8859-15"},
    {51932, "EUC-JP"},       {51949, "EUC-KR"},       {54936, "GB18030"},
};

class IconvDescriptor
{
public:
    IconvDescriptor() = default;
    IconvDescriptor(const char *to, const char *from) : m_cd(iconv_open(to, from)) {}
    IconvDescriptor(IconvDescriptor &&other) noexcept : m_cd(std::exchange(other.m_cd, Invalid())) {}
    IconvDescriptor &operator=(IconvDescriptor &&other) noexcept
    {
        std::swap(m_cd, other.m_cd);
        return *this;
    }
    ~IconvDescriptor()
    {
        if (IsValid())
            iconv_close(m_cd);
    }

    bool IsValid() const { return m_cd != Invalid(); }
    iconv_t Get() const { return m_cd; }

private:
    static iconv_t Invalid() { return reinterpret_cast<iconv_t>(-1); }
    iconv_t m_cd = Invalid();
};

// iconv descriptors carry conversion state, so each thread keeps its own pair for the
// code page it used last; opening one costs far more than a short conversion.
struct ThreadConverters
{
    bool loaded = false;
    std::uint32_t codePage = 0;
    IconvDescriptor fromUtf16;
    IconvDescriptor toUtf16;
};

ThreadConverters &ConvertersFor(std::uint32_t codePage)
{
    thread_local ThreadConverters converters;
    if (!converters.loaded || converters.codePage != codePage) {
        converters.loaded = true;
        converters.codePage = codePage;
        const char *charset = CodePageCharset(codePage);
        converters.fromUtf16 = charset ? IconvDescriptor(charset, kUtf16Host) : IconvDescriptor();
        converters.toUtf16 = charset ? IconvDescriptor(kUtf16Host, charset) : IconvDescriptor();
    }
    return converters;
}

// Runs one whole conversion through a stack chunk. Input that iconv refuses is replaced
// by one replacement unit; skipBad tells how many input bytes the refused piece holds.
template <class Out, class SkipBad>
void Run(iconv_t cd, const void *text, std::size_t bytes, Out replacement, SkipBad skipBad,
         const ConvertedSink<Out> &sink)
{
    iconv(cd, nullptr, nullptr, nullptr, nullptr);
    char *in = const_cast<char *>(static_cast<const char *>(text));
    std::size_t inLeft = bytes;
    Out chunk[512];
    for (;;) {
        const bool flushing = inLeft == 0;
        char *out = reinterpret_cast<char *>(chunk);
        std::size_t outLeft = sizeof chunk;
        const std::size_t result = flushing ? iconv(cd, nullptr, nullptr, &out, &outLeft)
                                            : iconv(cd, &in, &inLeft, &out, &outLeft);
        const int error = result == static_cast<std::size_t>(-1) ? errno : 0;
        const std::size_t produced = (sizeof chunk - outLeft) / sizeof(Out);
        if (produced != 0)
            sink(chunk, produced);
        if (error == 0 && flushing)
            return;
        if (error == EILSEQ) {
            sink(&replacement, 1);
            const std::size_t skip = std::min(skipBad(in, inLeft), inLeft);
            in += skip;
            inLeft -= skip;
        } else if (error == EINVAL) {
            // Incomplete input at the end.
            sink(&replacement, 1);
            inLeft = 0;
        } else if (error != 0 && error != E2BIG) {
            return;
        }
    }
}

} // namespace

const char *CodePageCharset(std::uint32_t codePage)
{
    for (const CodePageName &entry : kCodePages) {
        if (entry.codePage == codePage)
            return entry.charset;
    }
    return nullptr;
}

bool ConvertFromUtf16(std::uint32_t codePage, const char16_t *text, std::size_t count,
                      const ConvertedSink<char> &sink)
{
    const ThreadConverters &converters = ConvertersFor(codePage);
    if (!converters.fromUtf16.IsValid())
        return false;
    // An unmappable character is one unit, or two for a surrogate pair.
    auto skipCharacter = [](const char *at, std::size_t left) -> std::size_t {
        char16_t units[2] = {};
        std::memcpy(units, at, std::min(left, sizeof units));
        const bool pair = left >= 4 && units[0] >= 0xD800 && units[0] <= 0xDBFF &&
                          units[1] >= 0xDC00 && units[1] <= 0xDFFF;
        return pair ? 4 : 2;
    };
    Run<char>(converters.fromUtf16.Get(), text, count * sizeof(char16_t), '?', skipCharacter, sink);
    return true;
}

bool ConvertToUtf16(std::uint32_t codePage, const char *text, std::size_t count,
                    const ConvertedSink<char16_t> &sink)
{
    const ThreadConverters &converters = ConvertersFor(codePage);
    if (!converters.toUtf16.IsValid())
        return false;
    auto skipByte = [](const char *, std::size_t) -> std::size_t { return 1; };
    Run<char16_t>(converters.toUtf16.Get(), text, count, u'\xFFFD', skipByte, sink);
    return true;
}

} // namespace VxPlatform
