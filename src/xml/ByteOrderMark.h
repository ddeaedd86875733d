#pragma once
// UTF-16 output is little-endian and, in files, starts with this mark.

#include "Enums.h"

namespace VxXmlLib16 {

inline constexpr unsigned char Utf16ByteOrderMark[2] = {0xFF, 0xFE};

inline bool IsUtf16Encoding(XmlEncoding encoding)
{
    return encoding == XmlEncoding_UTF16 || encoding == XmlEncoding_UTF16NoDecl;
}

} // namespace VxXmlLib16
