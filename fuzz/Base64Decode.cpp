// Base64 text, with any whitespace rule, into binary data: must never crash, and what
// decodes must encode and decode back to the same bytes.

#include <cstdlib>

#include "BinaryData.h"
#include "FuzzInput.h"

using namespace VxXmlLib16;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    return RunOnText(data, size, [](std::uint8_t selector, const std::string &text) {
        const CBinaryData decoded = CConversions::base64BinaryFromString(text, RuleOf(selector));
        if (decoded.GetLength() > text.size())
            std::abort();
        const std::string encoded = CConversions::base64BinaryToString(decoded);
        if (encoded.size() % 4 != 0)
            std::abort();
        const CBinaryData again = CConversions::base64BinaryFromString(encoded, CWhitespaceUtils::WhitespaceRule_None);
        if (decoded.GetLength() != 0 && again != decoded)
            std::abort();
    });
}
