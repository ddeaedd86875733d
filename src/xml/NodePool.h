#pragma once
// Fixed-size slots for the nodes of one document tree. A tree has many small nodes that
// die together; slots come from growing blocks and go back to a free list, so that
// building and tearing down a tree costs no heap call per node, and a streamed
// document reuses the slots of the elements it has dropped.

#include <cstddef>
#include <memory>
#include <vector>

namespace VxXmlLib16 {

class CNodePool final
{
public:
    CNodePool(std::size_t slotSize, std::size_t alignment);
    CNodePool(const CNodePool &) = delete;
    CNodePool &operator=(const CNodePool &) = delete;

    void *Allocate();
    void Deallocate(void *slot);

private:
    struct FreeSlot
    {
        FreeSlot *next;
    };
    using Block = std::unique_ptr<std::byte, void (*)(std::byte *)>;

    void AddBlock();

    std::size_t m_slotSize;
    std::vector<Block> m_blocks;
    std::size_t m_blockSlots = 0;
    std::size_t m_usedSlots = 0;
    FreeSlot *m_free = nullptr;
};

} // namespace VxXmlLib16
