// Any text given to CDecimal either parses or fails with a CVxException; the value then
// prints, reads back and computes without touching memory outside its own.

#include "BigInteger.h"
#include "Decimal.h"
#include "Exceptions.h"

#include <cstdint>
#include <string>

using namespace VxXmlLib16;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    try {
        const CDecimal value(text.c_str());
        const std::string printed = value.ToString();
        // A fraction that overflowed its digits prints differently on purpose, and a long
        // text is cut at 1024 characters.
        const bool regular = value.GetFractionPart().GetAbs() < CBigInteger::Pow10(value.GetFractionDivider());
        if (regular && printed.size() < 1024 && CDecimal(printed.c_str()) != value)
            __builtin_trap();
        (void)value.ToString(3);
        (void)(value + CDecimal("0.5"));
        (void)(value * value);
        (void)(value < CDecimal(1));
        try {
            (void)(CDecimal(1) / value);
        } catch (const CVxException &) {
        }
        try {
            (void)value.ToLong();
            (void)value.ToLongLong();
            (void)value.ToDouble();
        } catch (const CVxException &) {
        }
    } catch (const CVxException &) {
    }
    return 0;
}
