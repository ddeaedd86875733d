// The numeric, boolean and char FromString conversions on any text. The first byte picks
// the conversion and the whitespace rule. Integers that read must print and read back to
// the same value, and the 64-bit conversions must agree with the C library's.

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "FuzzInput.h"

using namespace VxXmlLib16;

namespace {

using Rule = CWhitespaceUtils::WhitespaceRule;

template <class T, class Read, class Print>
void RoundTrip(const std::string &text, Rule rule, Read read, Print print)
{
    const T value = read(text, rule);
    if (read(print(value), CWhitespaceUtils::WhitespaceRule_None) != value)
        std::abort();
}

// Without a rule and without NUL bytes the text goes to the C library unchanged.
template <class T, class Read, class Reference>
void AgreesWithCLibrary(const std::string &text, const char *type, Read read, Reference reference)
{
    if (text.empty() || std::memchr(text.data(), 0, text.size()))
        return;
    errno = 0;
    char *end = nullptr;
    const T expected = reference(text.c_str(), &end, 10);
    const bool rangeError = errno == ERANGE;
    const bool complete = end == text.c_str() + text.size() && end != text.c_str();
    try {
        const T value = read(text, CWhitespaceUtils::WhitespaceRule_None);
        if (rangeError || !complete || value != expected)
            std::abort();
    } catch (const CVxInvalidValueException &e) {
        const std::string expectedMessage = "The value [" + text +
                                            (rangeError ? "] is to large to fit in a " : "] can not be converted to a ") + type;
        if (e.GetMessage() != expectedMessage || (!rangeError && complete))
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    return RunOnText(data, size, [](std::uint8_t selector, const std::string &text) {
        const Rule rule = RuleOf(selector, 4);
        switch (selector % 12) {
        case 0:
            RoundTrip<char>(text, rule, CConversions::i1FromString, CConversions::i1ToString);
            break;
        case 1:
            RoundTrip<std::int16_t>(text, rule, CConversions::i2FromString, CConversions::i2ToString);
            break;
        case 2:
            RoundTrip<std::int32_t>(text, rule, CConversions::i4FromString, CConversions::i4ToString);
            break;
        case 3:
            RoundTrip<std::int64_t>(text, rule, CConversions::i8FromString, CConversions::i8ToString);
            break;
        case 4:
            RoundTrip<unsigned char>(text, rule, CConversions::ui1FromString, CConversions::ui1ToString);
            break;
        case 5:
            RoundTrip<std::uint16_t>(text, rule, CConversions::ui2FromString, CConversions::ui2ToString);
            break;
        case 6:
            RoundTrip<std::uint32_t>(text, rule, CConversions::ui4FromString, CConversions::ui4ToString);
            break;
        case 7:
            RoundTrip<std::uint64_t>(text, rule, CConversions::ui8FromString, CConversions::ui8ToString);
            break;
        case 8:
            CConversions::r4ToString(CConversions::r4FromString(text, rule));
            break;
        case 9:
            CConversions::r8ToString(CConversions::r8FromString(text, rule));
            break;
        case 10:
            CConversions::booleanFromString(text, rule);
            CConversions::charFromString(text, rule);
            break;
        default:
            AgreesWithCLibrary<long long>(text, "i8", CConversions::i8FromString, std::strtoll);
            AgreesWithCLibrary<unsigned long long>(text, "ui8", CConversions::ui8FromString, std::strtoull);
            break;
        }
    });
}
