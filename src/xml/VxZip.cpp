#include "VxZip.h"

#include <zlib.h>

#include <atomic>
#include <memory>

#include "BinaryData.h"
#include "Exceptions.h"

namespace VxXmlLib16 {

namespace {

constexpr std::uint32_t InflateStep = 65536;
// 15 bits of window plus 32: the header decides between gzip and zlib.
constexpr int InflateAutoDetectWindowBits = 47;
constexpr int GZipWindowBits = 31;
constexpr int CompressionLevel = 1;

std::atomic<std::uint32_t> g_maxDecompressedLength{CVxZip::DefaultMaxDecompressedLength};

// Ends the stream on every way out of the function that started it.
template <int (*End)(z_streamp)>
struct ZStream
{
    z_stream stream{};
    bool started = false;
    ~ZStream()
    {
        if (started)
            End(&stream);
    }
};
using DeflateStream = ZStream<deflateEnd>;
using InflateStream = ZStream<inflateEnd>;

} // namespace

void CVxZip::SetMaxDecompressedLength(std::uint32_t maxLength)
{
    g_maxDecompressedLength.store(maxLength, std::memory_order_relaxed);
}

std::uint32_t CVxZip::GetMaxDecompressedLength() { return g_maxDecompressedLength.load(std::memory_order_relaxed); }

void CVxZip::Compress(void **data, std::uint32_t *length, CompressionType type)
{
    if (type != CompressionType_GZip && type != CompressionType_Zlib)
        return;

    DeflateStream deflater;
    const int init = type == CompressionType_GZip
                         ? deflateInit2(&deflater.stream, CompressionLevel, Z_DEFLATED, GZipWindowBits, 8,
                                        Z_DEFAULT_STRATEGY)
                         : deflateInit(&deflater.stream, CompressionLevel);
    if (init != Z_OK)
        throw CVxException(FormatString("Failed to compress data. [Error Code: %d]", init));
    deflater.started = true;

    // The output never grows past the input: what does not shrink fails.
    std::unique_ptr<unsigned char[]> output(new unsigned char[*length]);
    deflater.stream.next_in = static_cast<Bytef *>(*data);
    deflater.stream.avail_in = *length;
    deflater.stream.next_out = output.get();
    deflater.stream.avail_out = *length;
    deflate(&deflater.stream, Z_NO_FLUSH);
    const int result = deflate(&deflater.stream, Z_FINISH);
    const auto compressedLength = static_cast<std::uint32_t>(deflater.stream.total_out);
    if (result != Z_STREAM_END)
        throw CVxException(FormatString("Failed to compress data. [Error Code: %d]", result));

    delete[] static_cast<unsigned char *>(*data);
    *data = output.release();
    *length = compressedLength;
}

void CVxZip::Compress(CBinaryData &data, CompressionType type)
{
    std::uint32_t length = data.GetLength();
    if (length == 0 || (type != CompressionType_GZip && type != CompressionType_Zlib))
        return;
    unsigned char *bytes = data.ReleaseData();
    void *buffer = bytes;
    try {
        Compress(&buffer, &length, type);
    } catch (...) {
        // The bytes go back where they came from.
        data = CBinaryData(bytes, length, true);
        throw;
    }
    data = CBinaryData(static_cast<unsigned char *>(buffer), length, true);
}

bool CVxZip::Decompress(const unsigned char *data, std::uint32_t length, CBinaryData &expanded)
{
    expanded.Clear();
    InflateStream inflater;
    // zlib reads the input without changing it.
    inflater.stream.next_in = const_cast<Bytef *>(data);
    inflater.stream.avail_in = length;
    if (inflateInit2(&inflater.stream, InflateAutoDetectWindowBits) != Z_OK)
        return false;
    inflater.started = true;

    const std::uint32_t maxLength = GetMaxDecompressedLength();
    std::unique_ptr<unsigned char[]> step(new unsigned char[InflateStep]);
    int result = Z_OK;
    while (result == Z_OK) {
        inflater.stream.next_out = step.get();
        inflater.stream.avail_out = InflateStep;
        result = inflate(&inflater.stream, Z_NO_FLUSH);
        if (result != Z_OK && result != Z_STREAM_END)
            break;
        const std::uint32_t produced = InflateStep - inflater.stream.avail_out;
        if (produced > maxLength - expanded.GetLength()) {
            expanded.Clear();
            throw CVxException(FormatString(
                "Decompressed data exceeds the limit of [%u] bytes (CVxZip::SetMaxDecompressedLength)", maxLength));
        }
        expanded.Append(step.get(), produced);
    }
    if (result != Z_STREAM_END) {
        expanded.Clear();
        return false;
    }
    return true;
}

void CVxZip::Decompress(void **data, std::uint32_t *length)
{
    CBinaryData expanded;
    if (!Decompress(static_cast<const unsigned char *>(*data), *length, expanded))
        return;
    const std::uint32_t expandedLength = expanded.GetLength();
    unsigned char *bytes = expanded.ReleaseData();
    if (!bytes)
        bytes = new unsigned char[1]; // an empty stream still gives the caller a buffer
    delete[] static_cast<unsigned char *>(*data);
    *data = bytes;
    *length = expandedLength;
}

} // namespace VxXmlLib16
