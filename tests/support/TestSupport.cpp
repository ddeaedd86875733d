#include "TestSupport.h"

#include <expat.h>

namespace VxTest {

std::string ExpatCheck(const std::string &text)
{
    XML_Parser parser = XML_ParserCreateNS(nullptr, '|');
    std::string error;
    if (XML_Parse(parser, text.data(), static_cast<int>(text.size()), 1) == XML_STATUS_ERROR)
        error = std::string(XML_ErrorString(XML_GetErrorCode(parser))) + " at line " +
                std::to_string(XML_GetCurrentLineNumber(parser));
    XML_ParserFree(parser);
    return error;
}

} // namespace VxTest
