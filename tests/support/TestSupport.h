#pragma once

#include <string>

#include "BinaryData.h"

namespace VxTest {

// Parses the text with Expat in namespace mode; returns the error text, or empty when
// the text is well-formed.
std::string ExpatCheck(const std::string &text);

// The bytes of a buffer; an empty buffer may have no data at all.
inline std::string Bytes(const VxXmlLib16::CBinaryData &data)
{
    return data.GetLength() ? std::string(reinterpret_cast<const char *>(data.GetData()), data.GetLength())
                            : std::string();
}

} // namespace VxTest
