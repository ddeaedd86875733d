#pragma once

#include <string>

namespace VxTest {

// Parses the text with Expat in namespace mode; returns the error text, or empty when
// the text is well-formed.
std::string ExpatCheck(const std::string &text);

} // namespace VxTest
