#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "ExceptionAssert.h"
#include "BinaryData.h"
#include "Exceptions.h"
#include "VxZip.h"
#include "XmlDocument.h"
#include "LinesOrder.h"
#include "TestSupport.h"

using namespace VxXmlLib16;
using VxTest::Throws;
using VxTest::Bytes;

namespace {

CBinaryData Compressed(const std::string &text, CompressionType type)
{
    CBinaryData data(text.c_str());
    CVxZip::Compress(data, type);
    return data;
}

// The raw interface on a new[] copy of the bytes; returns what the buffer holds after.
std::string Expanded(const std::string &bytes)
{
    std::unique_ptr<unsigned char[]> buffer(new unsigned char[bytes.size() + 1]);
    bytes.copy(reinterpret_cast<char *>(buffer.get()), bytes.size());
    void *data = buffer.get();
    auto length = static_cast<std::uint32_t>(bytes.size());
    CVxZip::Decompress(&data, &length); // on success the copy is freed and replaced
    if (data != buffer.get()) {
        buffer.release();
        buffer.reset(static_cast<unsigned char *>(data));
    }
    return std::string(reinterpret_cast<const char *>(buffer.get()), length);
}

} // namespace

TEST(VxZip, BothFormatsCompressAtLevelOneAndOthersLeaveTheData)
{
    const std::string text = VxTest::LinesOrder(2000).ToXml();
    const CBinaryData gzip = Compressed(text, CompressionType_GZip);
    const CBinaryData zlib = Compressed(text, CompressionType_Zlib);
    EXPECT_EQ(Bytes(gzip).substr(0, 2), "\x1F\x8B");
    EXPECT_EQ(Bytes(zlib).substr(0, 2), "\x78\x01"); // level 1 announces the fastest setting
    for (auto type : {CompressionType_None, static_cast<CompressionType>(7)})
        EXPECT_EQ(Bytes(Compressed(text, type)), text);
    EXPECT_EQ(Compressed("", CompressionType_GZip).GetLength(), 0u);

    // Data that does not shrink fails and stays with the caller.
    CBinaryData tiny("<a/>");
    EXPECT_TRUE(Throws<CVxException>([&] { CVxZip::Compress(tiny, CompressionType_GZip); },
                                     "Failed to compress data. [Error Code: -5]"));
    EXPECT_EQ(Bytes(tiny), "<a/>");
}

TEST(VxZip, ExpansionPastTheLimitIsRefusedUntilTheLimitIsRaised)
{
    const std::uint32_t saved = CVxZip::GetMaxDecompressedLength();
    const std::string gzip = Bytes(Compressed(std::string(3u << 20, 'z'), CompressionType_GZip));
    CVxZip::SetMaxDecompressedLength(1u << 20);
    const ::testing::AssertionResult refused = Throws<CVxException>(
        [&] { Expanded(gzip); },
        "Decompressed data exceeds the limit of [1048576] bytes (CVxZip::SetMaxDecompressedLength)");
    CVxZip::SetMaxDecompressedLength(3u << 20); // exactly the expanded size is allowed
    const std::size_t expandedSize = Expanded(gzip).size();
    CVxZip::SetMaxDecompressedLength(saved);
    EXPECT_TRUE(refused);
    EXPECT_EQ(expandedSize, 3u << 20);
}

// Only whole buffers are expanded: a string is parsed as it stands, and a broken
// stream reaches the parser as the raw bytes.
TEST(VxZip, DocumentLoadersExpandBuffersButNotStrings)
{
    const CBinaryData zlib = Compressed(VxTest::LinesOrder(300).ToXml(), CompressionType_Zlib);
    EXPECT_THROW(CXmlDocument().LoadXml(Bytes(zlib).c_str()), CVxException);
    const CBinaryData gzip = Compressed(VxTest::LinesOrder(300).ToXml(), CompressionType_GZip);
    std::string broken = Bytes(gzip);
    broken.resize(broken.size() - 9);
    auto load = [&] { CXmlDocument().LoadXmlStream(reinterpret_cast<unsigned char *>(broken.data()), broken.size()); };
    EXPECT_TRUE(Throws<CVxException>(load, "not well-formed (invalid token) at line 1"));
}
