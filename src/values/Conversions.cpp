// The text forms of the primitives that are not numbers: boolean, char, string, the
// partial dates held as plain integers, and binary data.

#include "Conversions.h"

#include <cstdio>
#include <strings.h>

#include "BinaryData.h"
#include "DateTime.h"
#include "Exceptions.h"

namespace VxXmlLib16 {

namespace {

bool EqualsIgnoringCase(const std::string &text, const char *word)
{
    return text.size() == std::char_traits<char>::length(word) && strcasecmp(text.c_str(), word) == 0;
}

template <class... Args>
std::string SmallFormat(const char *format, Args... args)
{
    char buffer[16];
    const int length = std::snprintf(buffer, sizeof buffer, format, args...);
    return std::string(buffer, static_cast<std::size_t>(length));
}

// The partial dates held as plain integers read through the date type of their form,
// which checks the text and the range.
CDateTime ReadPartialDate(CDateTime::DTType type, const std::string &text, CWhitespaceUtils::WhitespaceRule rule)
{
    CDateTime value(type);
    value.ParseXSDDate(CWhitespaceUtils::ApplyRule(rule, text).c_str());
    return value;
}

} // namespace

std::string CConversions::booleanToString(bool value) { return value ? "true" : "false"; }

std::string CConversions::stringToString(const std::string &value) { return value; }

std::string CConversions::charToString(char value)
{
    return value == '\0' ? std::string() : std::string(1, value);
}

std::string CConversions::dayToString(unsigned char value) { return SmallFormat("---%02u", unsigned{value}); }

std::string CConversions::monthToString(unsigned char value) { return SmallFormat("--%02u", unsigned{value}); }

std::string CConversions::yearToString(std::uint16_t value) { return SmallFormat("%u", unsigned{value}); }

std::string CConversions::hexBinaryToString(const CBinaryData &value) { return value.GetAsHexString(); }

std::string CConversions::base64BinaryToString(const CBinaryData &value) { return value.GetAsBase64(); }

std::string CConversions::stringFromString(const std::string &text, WhitespaceRule rule)
{
    return CWhitespaceUtils::ApplyRule(rule, text);
}

bool CConversions::booleanFromString(const std::string &text, WhitespaceRule rule)
{
    const std::string value = CWhitespaceUtils::ApplyRule(rule, text);
    // Upper and mixed case are accepted on purpose, although the schema has no such form.
    if (EqualsIgnoringCase(value, "true"))
        return true;
    if (EqualsIgnoringCase(value, "false"))
        return false;
    if (value == "1")
        return true;
    if (value == "0")
        return false;
    throw CVxInvalidValueException(FormatString(
        "A Boolean Value read from an XML document was invalid [%s]. Valid values are 'true', 'false', '1', or '0'",
        text.c_str()));
}

char CConversions::charFromString(const std::string &text, WhitespaceRule rule)
{
    const std::string value = CWhitespaceUtils::ApplyRule(rule, text);
    if (value.size() != 1)
        throw CVxInvalidValueException(FormatString(
            "The value [%s] can not be a char as it is either empty of greater than 1 char long", value.c_str()));
    return value[0];
}

std::uint16_t CConversions::yearFromString(const std::string &text, WhitespaceRule rule)
{
    return static_cast<std::uint16_t>(ReadPartialDate(CDateTime::dt_gYear, text, rule).GetYear());
}

unsigned char CConversions::dayFromString(const std::string &text, WhitespaceRule rule)
{
    return ReadPartialDate(CDateTime::dt_gDay, text, rule).GetDay();
}

unsigned char CConversions::monthFromString(const std::string &text, WhitespaceRule rule)
{
    return ReadPartialDate(CDateTime::dt_gMonth, text, rule).GetMonth();
}

CBinaryData CConversions::base64BinaryFromString(const std::string &text, WhitespaceRule rule)
{
    CBinaryData value;
    value.SetAsBase64(CWhitespaceUtils::ApplyRule(rule, text).c_str());
    return value;
}

CBinaryData CConversions::hexBinaryFromString(const std::string &text, WhitespaceRule rule)
{
    CBinaryData value;
    value.SetAsHexString(CWhitespaceUtils::ApplyRule(rule, text).c_str());
    return value;
}

} // namespace VxXmlLib16
