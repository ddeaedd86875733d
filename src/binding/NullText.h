#pragma once
// Text arguments of the public interface may be null; a null stands for the empty text.

#include <string>

namespace VxXmlLib16 {

inline std::string TextOrEmpty(const char *text) { return text ? std::string(text) : std::string(); }

} // namespace VxXmlLib16
