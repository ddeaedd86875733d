#pragma once
// A file opened for reading, either whole or in chunks with one read in flight while
// the caller works. No thread is started: the kernel reads ahead into the page cache
// while the parser runs, and the wait copies what is there.

#include <cstdint>

namespace VxPlatform {

// The status a chunk read reports when it starts or ends at the end of the file.
extern const std::uint32_t kEndOfFileStatus;

class InputFile final
{
public:
    InputFile() = default;
    ~InputFile();
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;

    // Opens an existing file for shared reading with a sequential-scan hint.
    // Returns 0 or the system error.
    std::uint32_t Open(const char *path);
    void Close();
    // Returns 0 or the system error.
    std::uint32_t GetSize(std::uint64_t &size) const;
    // Reads until the buffer is full or the file ends. Returns 0 or the system error.
    std::uint32_t Read(unsigned char *buffer, std::uint32_t length, std::uint32_t &count) const;

    // Starts reading length bytes at offset into buffer. Returns 0 when the read is under
    // way, kEndOfFileStatus when the offset lies at or past the end, else the system error.
    std::uint32_t StartChunk(unsigned char *buffer, std::uint32_t length, std::uint64_t offset);
    // Completes the read started last. Returns 0 and the byte count, or kEndOfFileStatus
    // when nothing was left to read, or another system error.
    std::uint32_t WaitChunk(std::uint32_t &count);

private:
    // A negative offset reads on from the current position.
    std::uint32_t ReadAt(unsigned char *buffer, std::uint32_t length, std::int64_t offset,
                         std::uint32_t &count) const;

    int m_fd = -1;
    unsigned char *m_pendingBuffer = nullptr;
    std::uint32_t m_pendingLength = 0;
    std::uint64_t m_pendingOffset = 0;
};

} // namespace VxPlatform
