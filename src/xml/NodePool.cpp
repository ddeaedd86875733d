#include "xml/NodePool.h"

#include <algorithm>

#include "platform/HugeBlock.h"

namespace VxXmlLib16 {

namespace {
constexpr std::size_t kFirstBlockSlots = 32;
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
    if (m_usedSlots == m_blockSlots)
        AddBlock();
    return m_blocks.back().get() + m_slotSize * m_usedSlots++;
}

void CNodePool::Deallocate(void *slot)
{
    auto *freed = static_cast<FreeSlot *>(slot);
    freed->next = m_free;
    m_free = freed;
}

void CNodePool::AddBlock()
{
    // Blocks double, so that small documents stay small, up to the size of a huge page,
    // which large documents then take whole.
    const std::size_t hugeSlots = VxPlatform::kHugeBlockSize / m_slotSize;
    const std::size_t slots = m_blocks.empty() ? kFirstBlockSlots : std::min(2 * m_blockSlots, hugeSlots);
    if (slots == hugeSlots)
        m_blocks.emplace_back(static_cast<std::byte *>(VxPlatform::AllocateHugeBlock()),
                              [](std::byte *block) { VxPlatform::FreeHugeBlock(block); });
    else
        m_blocks.emplace_back(new std::byte[slots * m_slotSize], [](std::byte *block) { delete[] block; });
    m_blockSlots = slots;
    m_usedSlots = 0;
}

} // namespace VxXmlLib16
