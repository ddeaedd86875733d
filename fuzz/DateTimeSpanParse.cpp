// Duration text. A text either fails with a CVxException or gives a span whose printed
// form reads back to the same print (the all-zero span prints "P", which is refused), and
// which compares equal to itself and can be added to a date.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "DateTimeSpan.h"
#include "Exceptions.h"

using namespace VxXmlLib16;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char *>(data), size);
    CDateTimeSpan span;
    try {
        span.ParseXSDDuration(text.c_str());
    } catch (const CVxException &) {
        return 0;
    }
    const std::string printed = span.ToString();
    if (printed.back() != 'P') {
        CDateTimeSpan again;
        again.ParseXSDDuration(printed.c_str());
        if (again.ToString() != printed)
            std::abort();
    }
    if (span.CompareTo(span) == CDateTime::dt_less || span.CompareTo(span) == CDateTime::dt_greater)
        std::abort();
    CDateTime date;
    date.ParseXSDDateTime("2001-01-31T12:00:00+05:00");
    (date + span).ToString();
    (date - span).GetNormalized().ToString();
    return 0;
}
