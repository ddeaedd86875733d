#pragma once
// System time for CDateTime: the clock, the conversion of file-time ticks into calendar
// fields, and 64-bit time arithmetic in the manner of the C run-time's time functions.

#include <cstdint>
#include <ctime>

#include "SystemTime.h"

namespace VxPlatform {

// Ticks of 100 ns since 1601-01-01 UTC into calendar fields; false for a count beyond
// 63 bits.
bool FileTimeToSystemTime(const VxXmlLib16::FILETIME &fileTime, VxXmlLib16::SYSTEMTIME &systemTime);
// The present local time, to the millisecond.
void GetLocalTime(VxXmlLib16::SYSTEMTIME &systemTime);

// The fields read as local time; the fields are normalised in place.
std::int64_t MkTime64(std::tm &fields);
// Seconds since 1970 into UTC or local fields; false if the year does not fit.
bool GmTime64(std::int64_t time, std::tm &fields);
bool LocalTime64(std::int64_t time, std::tm &fields);
double DiffTime64(std::int64_t end, std::int64_t start);

} // namespace VxPlatform
