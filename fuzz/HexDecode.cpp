// Hex text, with any whitespace rule, into binary data: either a CVxException or bytes
// that print as the upper-case form of the text.

#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "BinaryData.h"
#include "Conversions.h"
#include "Exceptions.h"

using namespace VxXmlLib16;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const auto rule = static_cast<CWhitespaceUtils::WhitespaceRule>(data[0] % 4);
    const std::string text(reinterpret_cast<const char *>(data + 1), size - 1);
    try {
        const CBinaryData decoded = CConversions::hexBinaryFromString(text, rule);
        std::string expected = CWhitespaceUtils::ApplyRule(rule, text).c_str();
        for (char &c : expected)
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        if (CConversions::hexBinaryToString(decoded) != expected)
            std::abort();
    } catch (const CVxException &) {
    }
    return 0;
}
