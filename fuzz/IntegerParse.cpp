// Any text given to CBigInteger either parses or fails with a CVxException; the value then
// prints, reads back and computes without touching memory outside its own.

#include "BigInteger.h"
#include "Exceptions.h"

#include <cstdint>
#include <string>

using namespace VxXmlLib16;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    try {
        const CBigInteger value(text.c_str());
        const std::string printed = value.ToString();
        // "0" also stands for a negative zero and for a value with no digits ("5-").
        if (printed != "0" && CBigInteger(printed.c_str()) != value)
            __builtin_trap();
        if (size > 600)
            return 0; // the schoolroom arithmetic is quadratic; long texts only parse
        const CBigInteger seven(7);
        const CBigInteger sum = value + seven;
        if (sum - seven != value && printed != "0")
            __builtin_trap();
        const CBigInteger product = value * value;
        if (value != CBigInteger(0) && product / value != value)
            __builtin_trap();
        (void)(value % seven);
        try {
            (void)value.SquareRoot();
        } catch (const CVxException &) {
        }
        try {
            (void)static_cast<int>(value);
            (void)static_cast<long long>(value);
        } catch (const CVxException &) {
        }
    } catch (const CVxException &) {
    }
    return 0;
}
