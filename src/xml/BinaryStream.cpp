#include "BinaryStream.h"

#include "Exceptions.h"
#include "xml/ByteOrderMark.h"
#include "platform/OutputFile.h"

namespace VxXmlLib16 {

CBinaryStream::CBinaryStream() : CInstanceMonitor("CBinaryStream") {}

CBinaryStream::CBinaryStream(const char *className, const CBinaryData &data)
    : CInstanceMonitor(className), m_data(data)
{
}

CBinaryStream::~CBinaryStream() = default;

CFileBinaryStream::CFileBinaryStream(const char *fileName, XmlEncoding encoding, const CBinaryData &data)
    : CBinaryStream("CFileBinaryStream", data), m_fileName(fileName ? fileName : ""), m_encoding(encoding)
{
}

void CFileBinaryStream::Save()
{
    VxPlatform::OutputFile file;
    std::uint32_t error = file.Create(m_fileName.c_str(), true);
    if (error == 0 && IsUtf16Encoding(m_encoding))
        error = file.Write(Utf16ByteOrderMark, sizeof Utf16ByteOrderMark);
    if (error == 0)
        error = file.Write(Data().GetData(), Data().GetLength());
    if (error == 0)
        error = file.Close();
    if (error != 0)
        throw CVxException(
            FormatString("Failed to write data to the file [%s] error [0x%08X]", m_fileName.c_str(), error));
}

} // namespace VxXmlLib16
