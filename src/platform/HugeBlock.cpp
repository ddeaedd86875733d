#include "platform/HugeBlock.h"

#include <cstring>
#include <new>
#include <sys/mman.h>

namespace VxPlatform {

namespace {

// Keeps the size of the mapping, or 0 for a heap buffer, in front of the buffer; its
// size keeps the buffer aligned for anything.
constexpr std::size_t kHeaderSize = alignof(std::max_align_t);

void *Map(std::size_t size)
{
    void *block = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (block == MAP_FAILED)
        throw std::bad_alloc();
    // Only advice: without huge pages the block works all the same.
    ::madvise(block, size, MADV_HUGEPAGE);
    return block;
}

} // namespace

void *AllocateHugeBlock() { return Map(kHugeBlockSize); }

void FreeHugeBlock(void *block) { ::munmap(block, kHugeBlockSize); }

unsigned char *AllocateBuffer(std::size_t size)
{
    const std::size_t total = size + kHeaderSize;
    const std::size_t mapped = size >= kHugeBlockSize ? total : 0;
    auto *base = static_cast<unsigned char *>(mapped ? Map(mapped) : ::operator new(total));
    std::memcpy(base, &mapped, sizeof mapped);
    return base + kHeaderSize;
}

void FreeBuffer(unsigned char *buffer)
{
    if (!buffer)
        return;
    unsigned char *base = buffer - kHeaderSize;
    std::size_t mapped = 0;
    std::memcpy(&mapped, base, sizeof mapped);
    if (mapped)
        ::munmap(base, mapped);
    else
        ::operator delete(base);
}

} // namespace VxPlatform
