#pragma once
// Text conversion between UTF-16 and a code page, through iconv. The code page numbers
// and their encodings are listed in include/LocalText.h; UTF-8 is not handled here.

#include <cstddef>
#include <cstdint>
#include <functional>

namespace VxPlatform {

// The iconv name of a code page, or null when the number has no mapping.
const char *CodePageCharset(std::uint32_t codePage);

// Receives converted output piece by piece.
template <class Unit>
using ConvertedSink = std::function<void(const Unit *units, std::size_t count)>;

// UTF-16 (host order) to the code page. A character the code page cannot hold becomes
// '?'. Returns false, having delivered nothing, when the code page has no converter.
bool ConvertFromUtf16(std::uint32_t codePage, const char16_t *text, std::size_t count,
                      const ConvertedSink<char> &sink);

// The code page to UTF-16 (host order). A byte sequence that is invalid in the code
// page becomes U+FFFD. Returns false, having delivered nothing, when the code page has
// no converter.
bool ConvertToUtf16(std::uint32_t codePage, const char *text, std::size_t count,
                    const ConvertedSink<char16_t> &sink);

} // namespace VxPlatform
