#include "BinaryData.h"
#include "Exceptions.h"
#include "LocalText.h"
#include "TextStream.h"

namespace VxXmlLib16 {

CBinaryData CTextStream::GetBinaryData()
{
    switch (m_encoding) {
    case XmlEncoding_UTF8:
        return LocalToUtf8Data(m_buffer.GetText());
    case XmlEncoding_UTF16:
    case XmlEncoding_UTF16NoDecl:
        return LocalToUtf16Data(m_buffer.GetText());
    default:
        throw CVxException("Unknown Encoding, select UTF-8 (contact our support team)");
    }
}

} // namespace VxXmlLib16
