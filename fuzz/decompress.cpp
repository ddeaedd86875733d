// Feeds arbitrary bytes to the expansion step that every parsed buffer passes through,
// and checks that compressing then expanding the same bytes gives them back.

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "Enums.h"
#include "Exceptions.h"
#include "VxZip.h"

using VxXmlLib16::CVxZip;

namespace {

unsigned char *Copy(const std::uint8_t *data, std::size_t size)
{
    auto *buffer = new unsigned char[size ? size : 1];
    if (size)
        std::memcpy(buffer, data, size);
    return buffer;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Small enough for the fuzzer's memory limit, large enough to reach the refusal.
    CVxZip::SetMaxDecompressedLength(64u << 20);

    void *buffer = Copy(data, size);
    auto length = static_cast<std::uint32_t>(size);
    try {
        CVxZip::Decompress(&buffer, &length);
    } catch (const VxXmlLib16::CVxException &) {
        // The refusal of an expansion past the limit; the buffer stays the caller's.
    }
    delete[] static_cast<unsigned char *>(buffer);

    for (auto type : {VxXmlLib16::CompressionType_GZip, VxXmlLib16::CompressionType_Zlib}) {
        buffer = Copy(data, size);
        length = static_cast<std::uint32_t>(size);
        try {
            CVxZip::Compress(&buffer, &length, type);
            CVxZip::Decompress(&buffer, &length);
            if (length != size || (size && std::memcmp(buffer, data, size) != 0))
                std::abort();
        } catch (const VxXmlLib16::CVxException &) {
            // Data that does not shrink is refused.
        }
        delete[] static_cast<unsigned char *>(buffer);
    }
    return 0;
}
