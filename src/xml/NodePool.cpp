#include "xml/NodePool.h"

#include <algorithm>

namespace VxXmlLib16 {

namespace {
constexpr std::size_t kFirstBlockSlots = 32;
constexpr std::size_t kLargestBlockSlots = 8192;
} // namespace

CNodePool::CNodePool(std::size_t slotSize, std::size_t alignment)
    : m_slotSize((std::max(slotSize, sizeof(FreeSlot)) + alignment - 1) / alignment * alignment)
{
}

void *CNodePool::Allocate()
{
    if (m_free) {
        FreeSlot *slot = m_free;
        m_free = slot->next;
        return slot;
    }
    if (m_usedSlots == m_blockSlots) {
        // Blocks double, so that small documents stay small and large ones need few blocks.
        const std::size_t slots = m_blocks.empty() ? kFirstBlockSlots : std::min(2 * m_blockSlots, kLargestBlockSlots);
        m_blocks.emplace_back(new std::byte[slots * m_slotSize]);
        m_blockSlots = slots;
        m_usedSlots = 0;
    }
    return m_blocks.back().get() + m_slotSize * m_usedSlots++;
}

void CNodePool::Deallocate(void *slot)
{
    auto *freed = static_cast<FreeSlot *>(slot);
    freed->next = m_free;
    m_free = freed;
}

} // namespace VxXmlLib16
