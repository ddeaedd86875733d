#pragma once

#include <string>

namespace VxTest {

// A canonical form of a document for comparisons that must not depend on prefixes,
// declarations, attribute order or layout: one line per element with its depth, its
// expanded name, its attributes sorted by expanded name, and its text. Whitespace-only
// text of an element with children is layout and left out. Namespace declarations are
// not attributes here. Ill-formed input gives "error: " and Expat's complaint with its line.
std::string CanonicalXml(const std::string &text);

} // namespace VxTest
