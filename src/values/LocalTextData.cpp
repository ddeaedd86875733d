// The transcoders whose result is a byte buffer.

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "BinaryData.h"
#include "LocalText.h"
#include "values/LocalTextInternal.h"
#include "values/Utf8Codec.h"

namespace VxXmlLib16 {

namespace {

// Hands a filled buffer to a value that owns it from then on.
CBinaryData Adopt(std::unique_ptr<unsigned char[]> buffer, std::uint32_t length)
{
    if (length == 0)
        return CBinaryData();
    CBinaryData data(buffer.get(), length, true);
    buffer.release();
    return data;
}

// Local text widened to UTF-16 units, NUL-terminated.
std::vector<char16_t> WidenLocal(const char *text)
{
    const std::size_t length = std::strlen(text);
    std::vector<char16_t> wide(length + 1);
    std::size_t units = LocalTextDetail::LocalToWide(text, length, wide.data(), wide.size());
    if (units >= wide.size()) {
        wide.assign(units + 1, u'\0');
        units = LocalTextDetail::LocalToWide(text, length, wide.data(), wide.size());
    }
    wide[units] = u'\0';
    return wide;
}

} // namespace

CBinaryData LocalToUtf16Data(const char *text)
{
    if (!text)
        return CBinaryData();
    const std::vector<char16_t> wide = WidenLocal(text);
    const std::size_t units = std::char_traits<char16_t>::length(wide.data());
    std::unique_ptr<unsigned char[]> bytes(new unsigned char[units * 2]);
    for (std::size_t i = 0; i < units; ++i) {
        bytes[2 * i] = static_cast<unsigned char>(wide[i] & 0xFF);
        bytes[2 * i + 1] = static_cast<unsigned char>(wide[i] >> 8);
    }
    return Adopt(std::move(bytes), static_cast<std::uint32_t>(units * 2));
}

CBinaryData Utf16ToUtf8Data(const char16_t *text)
{
    if (!text || *text == u'\0')
        return CBinaryData();
    const char16_t *end = text + std::char_traits<char16_t>::length(text);
    const bool ascii = std::all_of(text, end, [](char16_t unit) { return unit < 128; });
    const int size = ascii ? static_cast<int>(end - text) : Utf16ToUtf8(text, end, nullptr, nullptr);
    if (size <= 0)
        return CBinaryData();
    std::unique_ptr<unsigned char[]> bytes(new unsigned char[static_cast<std::size_t>(size)]);
    char *out = reinterpret_cast<char *>(bytes.get());
    Utf16ToUtf8(text, end, out, out + size);
    return Adopt(std::move(bytes), static_cast<std::uint32_t>(size));
}

CBinaryData LocalToUtf8Data(const char *text)
{
    if (!text)
        return CBinaryData();
    if (IsASCIIOnly())
        return CBinaryData(text);
    if (LocalTextDetail::SameAsUtf8(Utf8Codec::ScanUtf8(text, std::strlen(text))))
        return CBinaryData(text);
    return Utf16ToUtf8Data(WidenLocal(text).data());
}

} // namespace VxXmlLib16
