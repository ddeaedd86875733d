#pragma once
// Large memory straight from the system, backed by huge pages where the kernel offers
// them. A big tree touches its memory once, and with small pages the page faults cost
// more than building the nodes.

#include <cstddef>

namespace VxPlatform {

constexpr std::size_t kHugeBlockSize = 2 * 1024 * 1024;

// kHugeBlockSize bytes, zero-filled; throws std::bad_alloc.
void *AllocateHugeBlock();
void FreeHugeBlock(void *block);

// A buffer of any size that remembers how it was made: large ones are mapped like the
// blocks above, small ones come from the heap. Throws std::bad_alloc.
unsigned char *AllocateBuffer(std::size_t size);
// Null is allowed.
void FreeBuffer(unsigned char *buffer);

} // namespace VxPlatform
