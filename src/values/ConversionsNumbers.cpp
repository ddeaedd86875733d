// The text forms of the exact numbers: both come from the value classes themselves.

#include "Conversions.h"

#include <cstdlib>

#include "BigInteger.h"
#include "Decimal.h"

namespace VxXmlLib16 {

std::string CConversions::decimalToString(const CDecimal &value) { return value.ToString(); }

// The FormatOverride of a decimal is a count of fraction digits in text, not a printf
// format; text that is no number counts as 0 digits.
std::string CConversions::decimalToString(const CDecimal &value, const std::string &format)
{
    return format.empty() ? value.ToString() : value.ToString(std::atoi(format.c_str()));
}

std::string CConversions::integerToString(const CBigInteger &value) { return value.ToString(); }

CDecimal CConversions::decimalFromString(const std::string &text, WhitespaceRule rule)
{
    return CDecimal(CWhitespaceUtils::ApplyRule(rule, text).c_str());
}

CBigInteger CConversions::integerFromString(const std::string &text, WhitespaceRule rule)
{
    return CBigInteger(CWhitespaceUtils::ApplyRule(rule, text).c_str());
}

} // namespace VxXmlLib16
