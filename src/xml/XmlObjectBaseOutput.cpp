#include "XmlObjectBase.h"

#include "BinaryData.h"
#include "BinaryStream.h"
#include "Exceptions.h"
#include "FileTextStream.h"
#include "TextStream.h"
#include "VxZip.h"

namespace VxXmlLib16 {

void CXmlObjectBase::ToXmlFile(const char *path, bool docHeader, bool formatted, XmlEncoding encoding, EOLType eol,
                               const CSerializationContext &context, CompressionType compression) const
{
    // Refused before any file exists, whatever the switch says.
    if (compression == CompressionType_Zlib)
        throw CVxException("ZLIB Compression only available for To Stream methods.");

    if (IsAsyncToXmlFile() && compression == CompressionType_None) {
        CFileTextStream stream(path, encoding);
        WriteXml(stream, docHeader, formatted, eol, context);
        return;
    }
    const CBinaryData data = ToXmlStream(docHeader, formatted, encoding, eol, context, compression);
    CFileBinaryStream(path, encoding, data).Save();
}

CBinaryData CXmlObjectBase::ToXmlStream(bool docHeader, bool formatted, XmlEncoding encoding, EOLType eol,
                                        const CSerializationContext &context, CompressionType compression) const
{
    CTextStream stream(encoding);
    WriteXml(stream, docHeader, formatted, eol, context);
    CBinaryData data = stream.GetBinaryData();
    CVxZip::Compress(data, compression);
    return data;
}

} // namespace VxXmlLib16
