// Base64 text, with any whitespace rule, into binary data: must never crash, and what
// decodes must encode and decode back to the same bytes.

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
        const CBinaryData decoded = CConversions::base64BinaryFromString(text, rule);
        if (decoded.GetLength() > text.size())
            std::abort();
        const std::string encoded = CConversions::base64BinaryToString(decoded);
        if (encoded.size() % 4 != 0)
            std::abort();
        const CBinaryData again = CConversions::base64BinaryFromString(encoded, CWhitespaceUtils::WhitespaceRule_None);
        if (decoded.GetLength() != 0 && again != decoded)
            std::abort();
    } catch (const CVxException &) {
    }
    return 0;
}
