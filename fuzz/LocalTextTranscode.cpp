// Any bytes through the transcoders, in UTF-8 and in legacy local encodings: the scratch
// buffers never change a result, UTF-8 output is always well-formed, and the counting
// and writing modes of the UTF-16 encoder agree.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "BinaryData.h"
#include "FuzzInput.h"
#include "LocalText.h"

using namespace VxXmlLib16;

namespace {

const unsigned int kCodePages[] = {65001, 1252, 932, 54936};

bool IsWellFormedUtf8(const std::string &text)
{
    // Decoding back through UTF-16 and encoding again changes nothing in valid UTF-8.
    std::vector<char16_t> wide;
    const CBinaryData utf16 = LocalToUtf16Data(text.c_str());
    for (std::uint32_t i = 0; i + 1 < utf16.GetLength(); i += 2)
        wide.push_back(static_cast<char16_t>(utf16.GetData()[i] | utf16.GetData()[i + 1] << 8));
    std::string again(wide.size() * 3, '\0');
    const int written = Utf16ToUtf8(wide.data(), wide.data() + wide.size(), again.data(), again.data() + again.size());
    return again.substr(0, static_cast<std::size_t>(written)) == text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    return RunOnText(data, size, [](std::uint8_t selector, const std::string &text) {
        const unsigned int codePage = kCodePages[selector % 4];
        SetLocalCharEncoding(codePage);
        const unsigned int count = static_cast<unsigned int>(text.size());
        const unsigned int scratchSize = (selector >> 2) % 8 * 4;
        std::vector<char16_t> wide(scratchSize);
        std::vector<char> narrow(scratchSize);
        const std::string local = Utf8ToLocal(text.data(), count);
        if (Utf8ToLocal(text.data(), count, wide.data(), scratchSize, narrow.data(), scratchSize) != local)
            std::abort();
        if (codePage == 65001 && !IsWellFormedUtf8(local))
            std::abort();

        const std::size_t units = text.size() / 2;
        std::u16string utf16(units, u'\0');
        std::memcpy(utf16.data(), text.data(), units * 2);
        const int needed = Utf16ToUtf8(utf16.data(), utf16.data() + units, nullptr, nullptr);
        std::string out(units * 3, '\0');
        const int written = Utf16ToUtf8(utf16.data(), utf16.data() + units, out.data(), out.data() + out.size());
        if (needed != 0 && needed != written)
            std::abort();
        Utf16ToLocal(utf16.data(), static_cast<unsigned int>(units));
        SetLocalCharEncoding(65001);
    });
}
