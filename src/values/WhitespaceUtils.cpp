#include "WhitespaceUtils.h"

#include <cstring>

#include "Exceptions.h"

namespace VxXmlLib16 {

namespace {

// Text built through a C string: it ends at the first NUL.
std::string AsCString(const std::string &buffer)
{
    return std::string(buffer.c_str());
}

} // namespace

std::string CWhitespaceUtils::ApplyRule(WhitespaceRule rule, const std::string &text)
{
    switch (rule) {
    case WhitespaceRule_None:
        return text;
    case WhitespaceRule_Preserve:
        return Preserve(text);
    case WhitespaceRule_Replace:
        return Replace(text);
    case WhitespaceRule_Collapse:
        return Collapse(text);
    }
    throw CVxException("Unknown WhitespaceRule");
}

std::string CWhitespaceUtils::Preserve(const std::string &text)
{
    if (text.find('\r') == std::string::npos)
        return text;
    return Preserve(text.data(), static_cast<int>(text.size()));
}

std::string CWhitespaceUtils::Preserve(const char *text, int length)
{
    std::string result;
    if (!text || length <= 0)
        return result;
    result.reserve(static_cast<std::size_t>(length));
    for (int i = 0; i < length; ++i) {
        if (text[i] != '\r') {
            result += text[i];
            continue;
        }
        result += '\n';
        if (i + 1 < length && text[i + 1] == '\n')
            ++i;
    }
    return result;
}

std::string CWhitespaceUtils::Replace(const std::string &text)
{
    std::string buffer;
    buffer.reserve(text.size() + 1);
    bool replaced = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\t' || c == '\n' || c == '\r') {
            replaced = true;
            buffer += ' ';
            // A CR LF pair gives one space.
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
        } else {
            buffer += c;
        }
    }
    return replaced ? AsCString(buffer) : text;
}

std::string CWhitespaceUtils::Collapse(const std::string &text)
{
    std::string buffer;
    buffer.reserve(text.size() + 1);
    bool afterGap = true;
    for (const char c : text) {
        if (IsWhiteSpace(c)) {
            if (!afterGap)
                buffer += ' ';
            afterGap = true;
        } else {
            buffer += c;
            afterGap = false;
        }
    }
    if (!buffer.empty() && buffer.back() == ' ')
        buffer.pop_back();
    return AsCString(buffer);
}

} // namespace VxXmlLib16
