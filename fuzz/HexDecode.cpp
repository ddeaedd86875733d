// Hex text, with any whitespace rule, into binary data: either a CVxException or bytes
// that print as the upper-case form of the text.

#include <cctype>
#include <cstdlib>

#include "BinaryData.h"
#include "FuzzInput.h"

using namespace VxXmlLib16;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    return RunOnText(data, size, [](std::uint8_t selector, const std::string &text) {
        const auto rule = RuleOf(selector);
        const CBinaryData decoded = CConversions::hexBinaryFromString(text, rule);
        std::string expected = CWhitespaceUtils::ApplyRule(rule, text).c_str();
        for (char &c : expected)
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        if (CConversions::hexBinaryToString(decoded) != expected)
            std::abort();
    });
}
