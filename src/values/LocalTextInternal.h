#pragma once
// What the transcoders of LocalText.cpp share with the ones that return byte buffers.

#include <cstddef>

namespace VxXmlLib16::LocalTextDetail {

// Whether the local code page is UTF-8.
bool LocalIsUtf8();

// Local text to UTF-16 units (host order). Writes as far as out reaches (out may be null)
// and returns the number of units the whole text needs; 0 when the local code page has
// no converter.
std::size_t LocalToWide(const char *text, std::size_t count, char16_t *out, std::size_t capacity);

} // namespace VxXmlLib16::LocalTextDetail
