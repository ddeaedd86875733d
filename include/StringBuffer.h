#pragma once
// Append-only text made of fixed blocks: appending never moves text already written,
// and the usual single-block case is reused without copy or allocation.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace VxXmlLib16 {

class CStringBuffer
{
public:
    static constexpr std::uint32_t DefaultBlockSize = 4095;

    CStringBuffer() = default;
    CStringBuffer(const CStringBuffer &) = delete;
    CStringBuffer &operator=(const CStringBuffer &) = delete;

    void Append(char c)
    {
        if (m_used == m_capacity)
            NewBlock();
        m_current[m_used++] = c;
        ++m_length;
    }
    void Append(const char *text);
    void Append(const std::string &text) { Append(text.data(), text.size()); }
    // Bytes of a known length; used by the writers' escaping on runs of plain text.
    void Append(const char *text, std::size_t count);

    std::size_t GetLength() const { return m_length; }
    // The whole text, zero-terminated, valid until the next change. Several blocks are
    // merged into one first.
    const char *GetText();
    // Keeps a single block for reuse; frees more than one.
    void Reset();

private:
    void NewBlock();

    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::vector<std::size_t> m_blockSizes;
    std::size_t m_blockSize = DefaultBlockSize;
    std::size_t m_used = 0;
    std::size_t m_capacity = 0;
    char *m_current = nullptr;
    std::size_t m_length = 0;
};

} // namespace VxXmlLib16
