#pragma once
// Entry points whose output or input form this build does not carry throw this.

#include "Exceptions.h"

namespace VxXmlLib16 {

[[noreturn]] inline void ThrowUnavailableRoute(const char *entryPoint)
{
    throw CVxException(FormatString("[%s] is not available in this build of VxXmlLib16", entryPoint));
}

} // namespace VxXmlLib16
