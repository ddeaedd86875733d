// Decimal text, with any whitespace rule, either fails with a CVxException or gives a value
// that prints, reads back and computes without touching memory outside its own.

#include <cstdlib>

#include "BigInteger.h"
#include "Decimal.h"
#include "FuzzInput.h"

using namespace VxXmlLib16;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    return RunOnText(data, size, [](std::uint8_t selector, const std::string &text) {
        const CDecimal value = CConversions::decimalFromString(text, RuleOf(selector));
        const std::string printed = CConversions::decimalToString(value);
        // A fraction that overflowed its digits prints differently on purpose, and a long
        // text is cut at 1024 characters.
        const bool regular = value.GetFractionPart().GetAbs() < CBigInteger::Pow10(value.GetFractionDivider());
        if (regular && printed.size() < 1024 && CDecimal(printed.c_str()) != value)
            std::abort();
        (void)CConversions::decimalToString(value, std::to_string(selector >> 2));
        (void)(value + CDecimal("0.5"));
        (void)(value * value);
        (void)(value < CDecimal(1));
        try {
            (void)(CDecimal(1) / value);
        } catch (const CVxException &) {
        }
        (void)value.ToLong();
        (void)value.ToLongLong();
        (void)value.ToDouble();
    });
}
