// Integer text, with any whitespace rule, either fails with a CVxException or gives a value
// that prints, reads back and computes without touching memory outside its own.

#include <cstdlib>

#include "BigInteger.h"
#include "FuzzInput.h"

using namespace VxXmlLib16;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    return RunOnText(data, size, [size](std::uint8_t selector, const std::string &text) {
        const CBigInteger value = CConversions::integerFromString(text, RuleOf(selector));
        const std::string printed = CConversions::integerToString(value);
        // "0" also stands for a negative zero and for a value with no digits ("5-").
        if (printed == "0")
            return;
        if (CBigInteger(printed.c_str()) != value)
            std::abort();
        if (size > 600)
            return; // the schoolroom arithmetic is quadratic; long texts only parse
        const CBigInteger seven(7);
        if ((value + seven) - seven != value || (value * value) / value != value)
            std::abort();
        (void)(value % seven);
        try {
            (void)value.SquareRoot();
        } catch (const CVxException &) {
        }
        (void)static_cast<int>(value);
        (void)static_cast<long long>(value);
    });
}
