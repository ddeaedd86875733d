#include "xml/NodePool.h"

#include <algorithm>

#include <sanitizer/asan_interface.h>

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
    void *slot;
    if (m_free) {
        slot = m_free;
        m_free = m_free->next;
    } else {
        if (m_usedSlots == m_blockSlots)
            AddBlock();
        slot = m_blocks.back().get() + m_slotSize * m_usedSlots++;
    }
    ASAN_UNPOISON_MEMORY_REGION(slot, m_slotSize);
    return slot;
}

void CNodePool::Deallocate(void *slot)
{
    auto *freed = static_cast<FreeSlot *>(slot);
    freed->next = m_free;
    m_free = freed;
    // Under the address sanitizer a freed node stays unreadable past its link.
    ASAN_POISON_MEMORY_REGION(freed + 1, m_slotSize - sizeof(FreeSlot));
}

void CNodePool::AddBlock()
{
    // Blocks double, so that small documents stay small, up to the size of a huge page,
    // which large documents then take whole.
    const std::size_t hugeSlots = VxPlatform::kHugeBlockSize / m_slotSize;
    const std::size_t slots = m_blocks.empty() ? kFirstBlockSlots : std::min(2 * m_blockSlots, hugeSlots);
    if (slots == hugeSlots)
        m_blocks.emplace_back(static_cast<std::byte *>(VxPlatform::AllocateHugeBlock()),
                              [](std::byte *block) {
                                  // Mapped memory keeps its poison past the unmapping.
                                  ASAN_UNPOISON_MEMORY_REGION(block, VxPlatform::kHugeBlockSize);
                                  VxPlatform::FreeHugeBlock(block);
                              });
    else
        m_blocks.emplace_back(new std::byte[slots * m_slotSize], [](std::byte *block) { delete[] block; });
    ASAN_POISON_MEMORY_REGION(m_blocks.back().get(), slots * m_slotSize);
    m_blockSlots = slots;
    m_usedSlots = 0;
}

} // namespace VxXmlLib16
