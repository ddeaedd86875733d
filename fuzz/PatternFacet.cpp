// Arbitrary patterns and values through the pattern facet: the selector byte says where
// the text splits into pattern and value.

#include "FuzzInput.h"
#include "PrimitiveRestrictions.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    return RunOnText(data, size, [](std::uint8_t selector, const std::string &text) {
        const std::size_t split = text.empty() ? 0 : selector % (text.size() + 1);
        const std::string pattern = text.substr(0, split);
        const std::string value = text.substr(split);
        VxXmlLib16::CheckRestrictionValue(
            "e", value, VxXmlLib16::ItemType_string,
            VxXmlLib16::CPrimitiveRestrictions(pattern.c_str(), -1, -1, "", "", "", "", -1, -1, -1));
    });
}
