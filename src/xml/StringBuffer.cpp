#include "StringBuffer.h"

#include <algorithm>
#include <cstring>

namespace VxXmlLib16 {

void CStringBuffer::NewBlock()
{
    // One byte more than the capacity, zero-filled, so a block always ends in a zero.
    m_blocks.emplace_back(new char[m_blockSize + 1]());
    m_blockSizes.push_back(m_blockSize);
    m_current = m_blocks.back().get();
    m_capacity = m_blockSize;
    m_used = 0;
}

void CStringBuffer::Append(const char *text) { Append(text, std::strlen(text)); }

void CStringBuffer::Append(const char *text, std::size_t count)
{
    m_length += count;
    while (count > 0) {
        if (m_used == m_capacity)
            NewBlock();
        const std::size_t run = std::min(count, m_capacity - m_used);
        std::memcpy(m_current + m_used, text, run);
        m_used += run;
        text += run;
        count -= run;
    }
}

const char *CStringBuffer::GetText()
{
    if (m_blocks.empty())
        return "";
    if (m_blocks.size() == 1)
        return m_blocks.front().get();

    std::unique_ptr<char[]> merged(new char[m_length + 1]);
    char *out = merged.get();
    for (std::size_t i = 0; i + 1 < m_blocks.size(); ++i) {
        std::memcpy(out, m_blocks[i].get(), m_blockSizes[i]);
        out += m_blockSizes[i];
    }
    std::memcpy(out, m_current, m_used);
    out[m_used] = '\0';

    m_blocks.clear();
    m_blockSizes.clear();
    m_current = merged.get();
    m_blocks.push_back(std::move(merged));
    m_blockSizes.push_back(m_length);
    // The merged block is full, so the next append starts a new block.
    m_capacity = m_used = m_length;
    return m_current;
}

void CStringBuffer::Reset()
{
    if (m_blocks.size() == 1) {
        std::memset(m_current, 0, m_capacity + 1);
        m_used = 0;
        m_length = 0;
        return;
    }
    m_blocks.clear();
    m_blockSizes.clear();
    m_used = m_capacity = m_length = 0;
    m_current = nullptr;
}

} // namespace VxXmlLib16
