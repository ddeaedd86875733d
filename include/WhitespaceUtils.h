#pragma once
// The XML Schema whitespace facet applied to text. Whitespace is exactly space, tab,
// carriage return and line feed.

#include <cstdint>
#include <string>

namespace VxXmlLib16 {

class CWhitespaceUtils
{
public:
    // The numbers are stored in generated metadata tables and never change.
    enum WhitespaceRule : std::int32_t {
        WhitespaceRule_None = 0,     // text returned as it stands
        WhitespaceRule_Preserve = 1, // line ends normalised only
        WhitespaceRule_Replace = 2,
        WhitespaceRule_Collapse = 3
    };

    CWhitespaceUtils() = delete;

    static bool IsWhiteSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

    // Throws CVxException "Unknown WhitespaceRule" for a number outside the enumeration.
    static std::string ApplyRule(WhitespaceRule rule, const std::string &text);

    // CR and CR LF become one LF. Returns the input itself when it holds no CR.
    static std::string Preserve(const std::string &text);
    // Always copies.
    static std::string Preserve(const char *text, int length);
    // Tab, LF and CR become a space; a CR LF pair becomes a single space. When something
    // was replaced the result stops at the first NUL of the input.
    static std::string Replace(const std::string &text);
    // Leading and trailing whitespace removed, inner runs shrunk to one space. The result
    // stops at the first NUL of the input.
    static std::string Collapse(const std::string &text);
};

} // namespace VxXmlLib16
