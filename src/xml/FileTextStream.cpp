#include "FileTextStream.h"

#include "Exceptions.h"
#include "xml/ByteOrderMark.h"
#include "platform/OutputFile.h"

namespace VxXmlLib16 {

namespace {
const char *const WriteFailedFormat = "Failed to write data to the file. Error [0x%08X]";
} // namespace

CFileTextStream::CFileTextStream(const char *fileName, XmlEncoding encoding)
    : CTextStream(encoding), m_fileName(fileName ? fileName : ""), m_file(new VxPlatform::OutputFile)
{
}

CFileTextStream::~CFileTextStream() = default;

void CFileTextStream::Fail(const std::string &message)
{
    m_file->Close();
    throw CVxException(message);
}

void CFileTextStream::Open()
{
    CTextStream::Open();
    std::uint32_t error = m_file->Create(m_fileName.c_str(), false);
    if (error != 0)
        throw CVxException(
            FormatString("Failed to write data to the file [%s] error [0x%08X]", m_fileName.c_str(), error));
    m_fileOffset = 0;
    m_pendingData.Clear();
    if (IsUtf16Encoding(GetEncoding())) {
        m_pendingData.SetBuffer(const_cast<unsigned char *>(Utf16ByteOrderMark), sizeof Utf16ByteOrderMark);
        error = m_file->StartWrite(m_pendingData.GetData(), m_pendingData.GetLength(), 0);
        if (error != 0)
            Fail(FormatString("Failed to write data to the file [%s] error [0x%08X]", m_fileName.c_str(), error));
    }
}

void CFileTextStream::WaitForWrite()
{
    std::uint32_t count = 0;
    const std::uint32_t error = m_file->WaitWrite(count);
    if (error != 0)
        Fail(FormatString(WriteFailedFormat, error));
    m_fileOffset += count;
}

void CFileTextStream::Flush()
{
    if (GetLength() == 0)
        return;
    WaitForWrite();
    // The conversion of this batch overlaps nothing now, but the next batch of text
    // is produced while the kernel writes this one.
    m_pendingData = GetBinaryData();
    const std::uint32_t error = m_file->StartWrite(m_pendingData.GetData(), m_pendingData.GetLength(), m_fileOffset);
    if (error != 0)
        Fail(FormatString(WriteFailedFormat, error));
    GetBuffer().Reset();
}

void CFileTextStream::Close()
{
    Flush();
    WaitForWrite();
    m_pendingData.Clear();
    const std::uint32_t error = m_file->Close();
    // A failure the kernel kept back until the file was closed is a failed write too.
    if (error != 0)
        throw CVxException(FormatString(WriteFailedFormat, error));
    CTextStream::Close();
}

} // namespace VxXmlLib16
