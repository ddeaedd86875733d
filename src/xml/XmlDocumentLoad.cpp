// The load drivers of CXmlDocument: whole buffers, whole files, and files read in
// chunks with one read in flight while the parser works.

#include <cstring>
#include <memory>

#include "Exceptions.h"
#include "XmlDocument.h"
#include "XmlObjectBase.h"
#include "platform/HugeBlock.h"
#include "platform/InputFile.h"
#include "xml/ExpatReader.h"

namespace VxXmlLib16 {

namespace {

constexpr std::uint32_t kChunkSize = 131072;

const char *NameForMessage(const char *fileName) { return fileName ? fileName : ""; }

} // namespace

void CXmlDocument::AllocateData(std::uint32_t length)
{
    FreeData();
    m_data = VxPlatform::AllocateBuffer(length);
    m_dataLength = length;
}

void CXmlDocument::FreeData()
{
    VxPlatform::FreeBuffer(m_data);
    m_data = nullptr;
    m_dataLength = 0;
}

void CXmlDocument::LoadXml(const char *text)
{
    Cleanup();
    if (!text || !*text)
        throw CVxException("XML String is empty!");
    const std::size_t length = std::strlen(text);
    AllocateData(static_cast<std::uint32_t>(length));
    std::memcpy(m_data, text, m_dataLength);
    ParseText();
}

void CXmlDocument::LoadXml(const wchar_t *text)
{
    Cleanup();
    // A byte order mark, then the text as little-endian UTF-16, so that the parser's
    // own detection reads it.
    // Beyond the basic plane a character takes a surrogate pair; past the last plane
    // it has no UTF-16 form and becomes one replacement character.
    const auto isPair = [](wchar_t c) {
        const auto codePoint = static_cast<std::uint32_t>(c);
        return codePoint > 0xFFFF && codePoint <= 0x10FFFF;
    };
    std::size_t units = 0;
    for (const wchar_t *c = text; c && *c; ++c)
        units += isPair(*c) ? 2 : 1;
    AllocateData(static_cast<std::uint32_t>(2 + 2 * units));
    unsigned char *out = m_data;
    const auto put = [&out](std::uint32_t unit) {
        *out++ = static_cast<unsigned char>(unit & 0xFF);
        *out++ = static_cast<unsigned char>(unit >> 8);
    };
    put(0xFEFF);
    for (const wchar_t *c = text; c && *c; ++c) {
        const auto codePoint = static_cast<std::uint32_t>(*c);
        if (isPair(*c)) {
            put(0xD800 + ((codePoint - 0x10000) >> 10));
            put(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
        } else {
            put(codePoint <= 0xFFFF ? codePoint : 0xFFFD);
        }
    }
    ParseText();
}

void CXmlDocument::LoadXmlStream(unsigned char *const data, std::uint32_t length)
{
    Cleanup();
    if (!data || length == 0)
        throw CVxException("XML Stream is empty!");
    AllocateData(length);
    std::memcpy(m_data, data, length);
    Parse();
}

void CXmlDocument::Load(const char *fileName)
{
    Cleanup();
    if (IsAsyncFromXmlFile())
        LoadFileInChunks(fileName);
    else
        LoadFileWhole(fileName);
}

void CXmlDocument::Parse()
{
    // Whole buffers are where compressed input is unpacked and Fast Infoset is told
    // from text; what reaches this point is XML text.
    ParseText();
}

void CXmlDocument::ParseText()
{
    CExpatReader reader(this);
    reader.Initialise();
    reader.ParseBuffer(true);
}

void CXmlDocument::LoadFileWhole(const char *fileName)
{
    VxPlatform::InputFile file;
    if (const std::uint32_t error = file.Open(NameForMessage(fileName)))
        throw CVxException(
            FormatString("Failed to open the file [%s] Error [0x%08x]", NameForMessage(fileName), error));
    std::uint64_t size = 0;
    if (const std::uint32_t error = file.GetSize(size))
        throw CVxException(
            FormatString("Failed to get the size of the file [%s] Error [0x%08x]", NameForMessage(fileName), error));
    // Only the low 32 bits of the size count.
    AllocateData(static_cast<std::uint32_t>(size));
    std::uint32_t count = 0;
    std::uint32_t error = file.Read(m_data, m_dataLength, count);
    if (error == 0 && count != m_dataLength)
        error = VxPlatform::kEndOfFileStatus;
    if (error)
        throw CVxException(
            FormatString("Failed to read the contents of the file [%s] Error [0x%08x]", NameForMessage(fileName), error));
    file.Close();
    Parse();
}

void CXmlDocument::LoadFileInChunks(const char *fileName)
{
    VxPlatform::InputFile file;
    if (const std::uint32_t error = file.Open(NameForMessage(fileName)))
        throw CVxException(
            FormatString("Failed to open the file [%s] Error [0x%08x]", NameForMessage(fileName), error));
    // This path cleans up after itself: a failed load leaves an empty document.
    try {
        m_fileOffset = 0;
        AllocateData(kChunkSize);
        ReadChunkFromFile(file, m_data, NameForMessage(fileName));
        AsyncParse(file, FinishChunk(file, NameForMessage(fileName)));
    } catch (...) {
        Cleanup();
        throw;
    }
}

void CXmlDocument::AsyncParse(VxPlatform::InputFile &file, bool lastChunk)
{
    CExpatReader reader(this);
    reader.Initialise();
    std::unique_ptr<unsigned char, void (*)(unsigned char *)> next(VxPlatform::AllocateBuffer(kChunkSize),
                                                                  &VxPlatform::FreeBuffer);
    while (!lastChunk) {
        ReadChunkFromFile(file, next.get(), nullptr);
        reader.ParseBuffer(false);
        lastChunk = FinishChunk(file, nullptr);
        // The chunk just read becomes the document's data; the parsed one takes the next read.
        unsigned char *parsed = m_data;
        m_data = next.release();
        next.reset(parsed);
    }
    reader.ParseBuffer(true);
    if (!m_documentElement)
        throw CVxException("Invalid or empty XML document");
    FreeData();
}

void CXmlDocument::FailChunkRead(const char *fileName, std::uint32_t status)
{
    if (fileName)
        throw CVxException(FormatString("Failed to read the contents of the file [%s] Error [0x%08x]", fileName, status));
    throw CVxException(FormatString("Failed to read the contents of the file. Error [0x%08x]", status));
}

void CXmlDocument::ReadChunkFromFile(VxPlatform::InputFile &file, unsigned char *buffer, const char *fileName)
{
    const std::uint32_t status = file.StartChunk(buffer, kChunkSize, m_fileOffset);
    // The end of the file shows in the wait that follows.
    if (status != 0 && status != VxPlatform::kEndOfFileStatus)
        FailChunkRead(fileName, status);
}

bool CXmlDocument::FinishChunk(VxPlatform::InputFile &file, const char *fileName)
{
    std::uint32_t count = 0;
    const std::uint32_t status = file.WaitChunk(count);
    // Reaching the end is a failure, so a file whose length is a multiple of the chunk
    // size fails; any other failing status counts as a read of nothing.
    if (status == VxPlatform::kEndOfFileStatus)
        FailChunkRead(fileName, status);
    if (status != 0)
        count = 0;
    m_fileOffset += count;
    m_dataLength = count;
    return count < kChunkSize;
}

} // namespace VxXmlLib16
