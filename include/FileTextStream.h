#pragma once
// A text stream that writes its file while the text grows: each flush converts the
// buffer to the target encoding and starts writing it behind the bytes already sent,
// with at most one write in flight. A UTF-16 file starts with the mark FF FE; UTF-8
// output has none.

#include <cstdint>
#include <memory>
#include <string>

#include "BinaryData.h"
#include "TextStream.h"

namespace VxPlatform {
class OutputFile;
}

namespace VxXmlLib16 {

class CFileTextStream : public CTextStream
{
public:
    CFileTextStream(const char *fileName, XmlEncoding encoding);
    // Closes a file that a failure left open, without flushing.
    ~CFileTextStream() override;

    // Clears the buffer, creates (or truncates) the file and starts the byte order mark.
    void Open() override;
    // Flushes, waits for the last write and closes the file.
    void Close() override;
    // Sends the buffer to the file as the next write, after the one in flight completes.
    void Flush() override;

private:
    // After a failure the file is closed; what was written stays.
    [[noreturn]] void Fail(const std::string &message);
    void WaitForWrite();

    std::string m_fileName;
    // The bytes of the write in flight; unchanged until that write completes.
    CBinaryData m_pendingData;
    // Position after all completed writes.
    std::uint64_t m_fileOffset = 0;
    std::unique_ptr<VxPlatform::OutputFile> m_file;
};

} // namespace VxXmlLib16
