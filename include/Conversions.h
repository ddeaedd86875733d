#pragma once
// The single place where a primitive value becomes text and text becomes a primitive.
// Every FromString applies the whitespace rule first. Text that does not convert throws
// CVxInvalidValueException, except bad hex text, which the byte buffer reports as a
// plain CVxException.
//
// The integer widths are fixed: i4/ui4 are exactly 32 bits on every platform, so their
// range errors are those of a 32-bit long. A minus sign is accepted by the unsigned
// conversions and wraps ("-1" as ui4 is 4294967295). Floating-point text keeps the C
// run-time form of %g with an exponent of at least three digits ("1e+020").

#include <cstdint>
#include <string>

#include "VxXmlLib16Fwd.h"
#include "WhitespaceUtils.h"

namespace VxXmlLib16 {

class CConversions
{
public:
    using WhitespaceRule = CWhitespaceUtils::WhitespaceRule;

    CConversions() = delete;

    // To text.
    static std::string booleanToString(bool value);
    static std::string stringToString(const std::string &value);
    static std::string charToString(char value); // byte 0 gives ""
    static std::string dayToString(unsigned char value);   // "---%02u"
    static std::string monthToString(unsigned char value); // "--%02u"
    static std::string yearToString(std::uint16_t value);  // "%u"
    static std::string i1ToString(char value);
    static std::string i2ToString(std::int16_t value);
    static std::string i4ToString(std::int32_t value);
    static std::string i8ToString(std::int64_t value);
    static std::string ui1ToString(unsigned char value);
    static std::string ui2ToString(std::uint16_t value);
    static std::string ui4ToString(std::uint32_t value);
    static std::string ui8ToString(std::uint64_t value);
    // NaN gives "NaN", the infinities "INF" and "-INF"; otherwise a non-empty format is a
    // printf format for the value (the FormatOverride of the metadata), else %.7g / %.16g.
    // A format that does not take exactly one floating-point value (or none) throws
    // CVxInvalidParamException. The text is never truncated.
    static std::string r4ToString(float value);
    static std::string r4ToString(float value, const std::string &format);
    static std::string r8ToString(double value);
    static std::string r8ToString(double value, const std::string &format);
    // A non-empty format is a number of fraction digits in text, not a printf format.
    static std::string decimalToString(const CDecimal &value);
    static std::string decimalToString(const CDecimal &value, const std::string &format);
    static std::string integerToString(const CBigInteger &value);
    // All five print the value in the form of its own date type.
    static std::string timeToString(const CDateTime &value);
    static std::string datetimeToString(const CDateTime &value);
    static std::string dateToString(const CDateTime &value);
    static std::string monthDayToString(const CDateTime &value);
    static std::string yearMonthToString(const CDateTime &value);
    static std::string durationToString(const CDateTimeSpan &value);
    static std::string hexBinaryToString(const CBinaryData &value);
    static std::string base64BinaryToString(const CBinaryData &value);

    // From text.
    static std::string stringFromString(const std::string &text, WhitespaceRule rule);
    // "true", "false", "1", "0", compared ignoring case.
    static bool booleanFromString(const std::string &text, WhitespaceRule rule);
    static char charFromString(const std::string &text, WhitespaceRule rule);
    // Besides decimal text only "NaN", "1.#QNAN", "-NAN", "INF" and "-INF" are accepted,
    // case-sensitively. Overflow reads as an infinity, underflow as 0.
    static double r8FromString(const std::string &text, WhitespaceRule rule);
    static float r4FromString(const std::string &text, WhitespaceRule rule);
    static std::uint64_t ui8FromString(const std::string &text, WhitespaceRule rule);
    static std::uint32_t ui4FromString(const std::string &text, WhitespaceRule rule);
    static std::int64_t i8FromString(const std::string &text, WhitespaceRule rule);
    static std::int32_t i4FromString(const std::string &text, WhitespaceRule rule);
    // The narrow integers read through the 32-bit conversion, whose faults pass through
    // unchanged, and then test their own range.
    static std::uint16_t ui2FromString(const std::string &text, WhitespaceRule rule);
    static unsigned char ui1FromString(const std::string &text, WhitespaceRule rule);
    static std::int16_t i2FromString(const std::string &text, WhitespaceRule rule);
    static char i1FromString(const std::string &text, WhitespaceRule rule);
    static CDecimal decimalFromString(const std::string &text, WhitespaceRule rule);
    static CBigInteger integerFromString(const std::string &text, WhitespaceRule rule);
    static CDateTimeSpan durationFromString(const std::string &text, WhitespaceRule rule);
    static CBinaryData base64BinaryFromString(const std::string &text, WhitespaceRule rule);
    static CBinaryData hexBinaryFromString(const std::string &text, WhitespaceRule rule);
    static CDateTime datetimeFromString(const std::string &text, WhitespaceRule rule);
    static CDateTime dateFromString(const std::string &text, WhitespaceRule rule);
    static CDateTime yearMonthFromString(const std::string &text, WhitespaceRule rule);
    static std::uint16_t yearFromString(const std::string &text, WhitespaceRule rule);
    static CDateTime timeFromString(const std::string &text, WhitespaceRule rule);
    static unsigned char dayFromString(const std::string &text, WhitespaceRule rule);
    static unsigned char monthFromString(const std::string &text, WhitespaceRule rule);
    static CDateTime monthDayFromString(const std::string &text, WhitespaceRule rule);
};

} // namespace VxXmlLib16
