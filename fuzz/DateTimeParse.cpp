// Date and time text through the three readers. A text either fails with a CVxException
// or gives a value whose printed form reads back to the same print, compares equal to
// itself and survives normalisation and the calendar queries.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "DateTime.h"
#include "Exceptions.h"

using namespace VxXmlLib16;

namespace {

void Read(CDateTime &value, std::uint8_t reader, const char *text)
{
    switch (reader % 3) {
    case 0:
        value.ParseXSDDate(text);
        break;
    case 1:
        value.ParseXSDTime(text);
        break;
    default:
        value.ParseXSDDateTime(text);
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::string text(reinterpret_cast<const char *>(data + 1), size - 1);
    CDateTime value;
    try {
        Read(value, data[0], text.c_str());
    } catch (const CVxException &) {
        return 0;
    }
    const std::string printed = value.ToString();
    CDateTime again;
    Read(again, data[0], printed.c_str()); // a printed valid value always reads back
    if (again.ToString() != printed || value.CompareTo(value) != CDateTime::dt_equal)
        std::abort();
    const CDateTime normalized = value.GetNormalized();
    if (normalized.ToString().empty())
        std::abort();
    if (value.GetType() == CDateTime::dt_date || value.GetType() == CDateTime::dt_dateTime) {
        const int dayOfYear = value.GetDayOfYear();
        const int dayOfWeek = value.GetDayOfWeek();
        if (dayOfYear < 1 || dayOfYear > 366 || dayOfWeek < 1 || dayOfWeek > 7)
            std::abort();
    }
    return 0;
}
