#pragma once
// A file created for writing, written either in one go or as a chain of positioned
// writes with one in flight while the caller produces the next batch. No thread is
// started: a write hands its bytes to the kernel's page cache and the disk work runs
// behind it, so the wait finds the write complete.
//
// Chained writes of a few kilobytes are gathered into 64 KB before they reach the
// kernel: one system call per 4 KB costs about as much as producing the 4 KB, one per
// 64 KB a sixteenth of that. Gathered bytes go out in order, at the latest on Close, and
// a failure shows at the next StartWrite or at Close.

#include <cstdint>
#include <memory>

namespace VxPlatform {

class OutputFile final
{
public:
    OutputFile() = default;
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    // Creates or truncates the file for writing. sequential adds the sequential-access
    // hint. Returns 0 or the system error.
    std::uint32_t Create(const char *path, bool sequential);
    bool IsOpen() const { return m_fd >= 0; }
    // Writes what is gathered and closes. Returns 0 or the system error of either; a
    // closed file stays closed.
    std::uint32_t Close();

    // Writes all bytes after those of the previous Write calls. Returns 0 or the system error.
    std::uint32_t Write(const unsigned char *data, std::uint32_t length);

    // Starts writing length bytes at offset; the bytes must stay unchanged until
    // WaitWrite. Returns 0 when the write is under way, else the system error (possibly
    // of an earlier write).
    std::uint32_t StartWrite(const unsigned char *data, std::uint32_t length, std::uint64_t offset);
    // Completes the write started last and gives its byte count; with none in flight it
    // returns at once with 0 bytes. Returns 0 or the system error of the write.
    std::uint32_t WaitWrite(std::uint32_t &count);

private:
    static constexpr std::uint32_t GatherSize = 65536;

    std::uint32_t WriteAt(const unsigned char *data, std::uint32_t length, std::uint64_t offset);
    std::uint32_t WriteGathered();

    int m_fd = -1;
    std::uint64_t m_position = 0; // where the next Write goes
    std::uint32_t m_pendingCount = 0;
    std::unique_ptr<unsigned char[]> m_gather;
    std::uint32_t m_gathered = 0;
    std::uint64_t m_gatherOffset = 0;
};

} // namespace VxPlatform
