#pragma once
// What the transcoders of LocalText.cpp share with the ones that return byte buffers.

#include <cstddef>

#include "values/Utf8Codec.h"

namespace VxXmlLib16::LocalTextDetail {

// Whether text of this scan has the same bytes in the local encoding as in UTF-8: valid
// UTF-8 when the local encoding is UTF-8, plain ASCII in any other code page that has a
// converter, since every one of them keeps the ASCII bytes.
bool SameAsUtf8(const Utf8Codec::Utf8Scan &scan);

// Local text to UTF-16 units (host order). Writes as far as out reaches (out may be null)
// and returns the number of units the whole text needs; 0 when the local code page has
// no converter.
std::size_t LocalToWide(const char *text, std::size_t count, char16_t *out, std::size_t capacity);

} // namespace VxXmlLib16::LocalTextDetail
