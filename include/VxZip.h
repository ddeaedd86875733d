#pragma once
// gzip and zlib framing around finished output, and transparent expansion of compressed
// input. Compression always runs at level 1 into a buffer no larger than its input:
// data that does not shrink (any very short input among it) fails rather than grow.
//
// Expansion recognises gzip and zlib by their headers and leaves anything else as it
// is. Its result is bounded: a stream that expands past GetMaxDecompressedLength()
// (256 MiB unless raised) is refused with a CVxException naming the limit, so that a
// small "zip bomb" cannot take the process's memory. Raise the limit at program start
// with SetMaxDecompressedLength when larger documents arrive compressed; the length of
// a byte buffer caps it at 4 GiB - 1.

#include <cstdint>

#include "Enums.h"
#include "InstanceMonitor.h"
#include "VxXmlLib16Fwd.h"

namespace VxXmlLib16 {

class CVxZip : private CInstanceMonitor
{
public:
    static constexpr std::uint32_t DefaultMaxDecompressedLength = 256u << 20;

    CVxZip() : CInstanceMonitor("CVxZip") {}
    ~CVxZip() override = default;

    // Replaces the new[] buffer by its compressed form, also new[]; on failure the
    // buffer stays with the caller. CompressionType_None and numbers outside the list
    // leave it as it is.
    static void Compress(void **data, std::uint32_t *length, CompressionType type);
    // A value of length 0 is left alone.
    static void Compress(CBinaryData &data, CompressionType type);
    // Replaces the new[] buffer by its expansion if it holds a complete gzip or zlib
    // stream; anything else, a truncated or corrupt stream included, stays untouched.
    static void Decompress(void **data, std::uint32_t *length);
    // The same test and expansion on borrowed bytes: true with the expansion in
    // expanded, false (expanded empty) for anything that is not a complete stream.
    static bool Decompress(const unsigned char *data, std::uint32_t length, CBinaryData &expanded);

    // Process-wide and unguarded, like the library's other switches.
    static void SetMaxDecompressedLength(std::uint32_t maxLength);
    static std::uint32_t GetMaxDecompressedLength();
};

} // namespace VxXmlLib16
