#pragma once
// A fuzz input read as one selector byte followed by text. Runs a check on the text and
// lets only the library's own exceptions pass; anything else ends the run as a finding.

#include <cstdint>
#include <string>

#include "Conversions.h"
#include "Exceptions.h"

template <class Check>
int RunOnText(const std::uint8_t *data, std::size_t size, Check check)
{
    if (size == 0)
        return 0;
    const std::string text(reinterpret_cast<const char *>(data + 1), size - 1);
    try {
        check(data[0], text);
    } catch (const VxXmlLib16::CVxException &) {
    }
    return 0;
}

// The whitespace rule encoded in two bits of the selector.
inline VxXmlLib16::CWhitespaceUtils::WhitespaceRule RuleOf(std::uint8_t selector, int shift = 0)
{
    return static_cast<VxXmlLib16::CWhitespaceUtils::WhitespaceRule>((selector >> shift) % 4);
}
