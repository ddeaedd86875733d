#include "OutputFile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace VxPlatform {

OutputFile::~OutputFile() { Close(); }

std::uint32_t OutputFile::Create(const char *path, bool sequential)
{
    Close();
    m_fd = ::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (m_fd < 0)
        return static_cast<std::uint32_t>(errno);
    if (sequential)
        ::posix_fadvise(m_fd, 0, 0, POSIX_FADV_SEQUENTIAL); // a hint; its failure changes nothing
    m_position = 0;
    m_pendingCount = 0;
    m_gathered = 0;
    return 0;
}

std::uint32_t OutputFile::Close()
{
    if (m_fd < 0)
        return 0;
    const std::uint32_t error = WriteGathered();
    const int result = ::close(m_fd);
    m_fd = -1;
    // close() releases the descriptor even when it reports an error, so no retry.
    if (error != 0)
        return error;
    return result == 0 ? 0 : static_cast<std::uint32_t>(errno);
}

std::uint32_t OutputFile::WriteAt(const unsigned char *data, std::uint32_t length, std::uint64_t offset)
{
    if (m_fd < 0)
        return EBADF;
    std::uint32_t written = 0;
    while (written < length) {
        const ssize_t result = ::pwrite(m_fd, data + written, length - written, static_cast<off_t>(offset + written));
        if (result < 0) {
            if (errno == EINTR)
                continue;
            return static_cast<std::uint32_t>(errno);
        }
        if (result == 0)
            return EIO; // no progress on a regular file: the device gave up
        written += static_cast<std::uint32_t>(result);
    }
    return 0;
}

std::uint32_t OutputFile::Write(const unsigned char *data, std::uint32_t length)
{
    const std::uint32_t error = WriteAt(data, length, m_position);
    if (error == 0)
        m_position += length;
    return error;
}

std::uint32_t OutputFile::WriteGathered()
{
    const std::uint32_t count = m_gathered;
    m_gathered = 0;
    return count == 0 ? 0 : WriteAt(m_gather.get(), count, m_gatherOffset);
}

std::uint32_t OutputFile::StartWrite(const unsigned char *data, std::uint32_t length, std::uint64_t offset)
{
    m_pendingCount = 0;
    // A write that does not continue the gathered bytes, or does not fit behind them,
    // sends them first.
    if (m_gathered != 0 && (offset != m_gatherOffset + m_gathered || length > GatherSize - m_gathered)) {
        if (const std::uint32_t error = WriteGathered())
            return error;
    }
    if (length >= GatherSize) {
        if (const std::uint32_t error = WriteAt(data, length, offset))
            return error;
    } else {
        if (!m_gather)
            m_gather.reset(new unsigned char[GatherSize]);
        if (m_gathered == 0)
            m_gatherOffset = offset;
        std::memcpy(m_gather.get() + m_gathered, data, length);
        m_gathered += length;
    }
    m_pendingCount = length;
    return 0;
}

std::uint32_t OutputFile::WaitWrite(std::uint32_t &count)
{
    // StartWrite finished the copy, and reported its error.
    count = m_pendingCount;
    m_pendingCount = 0;
    return 0;
}

} // namespace VxPlatform
