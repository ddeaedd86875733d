#include "platform/InputFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VxPlatform {

// Linux has no end-of-file error number; "no data available" says what happened.
const std::uint32_t kEndOfFileStatus = ENODATA;

namespace {
std::uint32_t LastError() { return static_cast<std::uint32_t>(errno); }
} // namespace

InputFile::~InputFile() { Close(); }

std::uint32_t InputFile::Open(const char *path)
{
    Close();
    m_fd = ::open(path, O_RDONLY | O_CLOEXEC);
    if (m_fd < 0)
        return LastError();
    // Only a hint: a file that can't take it is still read.
    ::posix_fadvise(m_fd, 0, 0, POSIX_FADV_SEQUENTIAL);
    return 0;
}

void InputFile::Close()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
    m_pendingBuffer = nullptr;
}

std::uint32_t InputFile::GetSize(std::uint64_t &size) const
{
    struct stat info {};
    if (::fstat(m_fd, &info) != 0)
        return LastError();
    size = static_cast<std::uint64_t>(info.st_size);
    return 0;
}

std::uint32_t InputFile::Read(unsigned char *buffer, std::uint32_t length, std::uint32_t &count) const
{
    return ReadAt(buffer, length, -1, count);
}

std::uint32_t InputFile::ReadAt(unsigned char *buffer, std::uint32_t length, std::int64_t offset,
                                std::uint32_t &count) const
{
    count = 0;
    while (count < length) {
        const ssize_t got = offset < 0 ? ::read(m_fd, buffer + count, length - count)
                                       : ::pread(m_fd, buffer + count, length - count, offset + count);
        if (got < 0) {
            if (errno == EINTR)
                continue;
            return LastError();
        }
        if (got == 0)
            break;
        count += static_cast<std::uint32_t>(got);
    }
    return 0;
}

std::uint32_t InputFile::StartChunk(unsigned char *buffer, std::uint32_t length, std::uint64_t offset)
{
    std::uint64_t size = 0;
    if (const std::uint32_t error = GetSize(size))
        return error;
    m_pendingBuffer = buffer;
    m_pendingLength = length;
    m_pendingOffset = offset;
    if (offset >= size)
        return kEndOfFileStatus;
    // The kernel fetches the chunk into the page cache while the caller parses the
    // previous one; WaitChunk then copies it from memory. A file that refuses the
    // hint is read by the wait all the same.
    ::readahead(m_fd, static_cast<off64_t>(offset), length);
    return 0;
}

std::uint32_t InputFile::WaitChunk(std::uint32_t &count)
{
    count = 0;
    if (!m_pendingBuffer)
        return kEndOfFileStatus;
    unsigned char *const buffer = m_pendingBuffer;
    m_pendingBuffer = nullptr;
    if (const std::uint32_t error =
            ReadAt(buffer, m_pendingLength, static_cast<std::int64_t>(m_pendingOffset), count))
        return error;
    return count == 0 ? kEndOfFileStatus : 0;
}

} // namespace VxPlatform
