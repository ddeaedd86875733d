#include <gtest/gtest.h>

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

// A document loader expands up to a limit that the user can raise.
TEST(VxZip, ExpansionPastTheLimitIsRefusedUntilTheLimitIsRaised)
{
    const std::uint32_t saved = CVxZip::GetMaxDecompressedLength();
    const std::string text = "<r>" + std::string(3u << 20, 'z') + "</r>";
    std::string gzip = Bytes(Compressed(text, CompressionType_GZip));
    auto load = [&] { CXmlDocument().LoadXmlStream(reinterpret_cast<unsigned char *>(gzip.data()), gzip.size()); };
    CVxZip::SetMaxDecompressedLength(static_cast<std::uint32_t>(text.size()) - 1);
    EXPECT_TRUE(Throws<CVxException>(load, FormatString("Decompressed data exceeds the limit of [%zu] bytes "
                                                        "(CVxZip::SetMaxDecompressedLength)", text.size() - 1)));
    CVxZip::SetMaxDecompressedLength(static_cast<std::uint32_t>(text.size())); // exactly the expanded size
    EXPECT_NO_THROW(load());
    CVxZip::SetMaxDecompressedLength(saved);
}

// Only whole buffers are expanded: a string is parsed as it stands, and a broken
// stream reaches the parser as the raw bytes.
TEST(VxZip, DocumentLoadersExpandBuffersButNotStrings)
{
    // A stream without zero bytes, so that a string can hold all of it.
    std::string zlib;
    for (std::size_t lines = 20; zlib.empty() || zlib.find('\0') != std::string::npos; ++lines)
        zlib = Bytes(Compressed(VxTest::LinesOrder(lines).ToXml(), CompressionType_Zlib));
    std::string broken = Bytes(Compressed(VxTest::LinesOrder(300).ToXml(), CompressionType_GZip));
    broken.resize(broken.size() - 9);
    auto load = [](std::string &bytes) {
        CXmlDocument().LoadXmlStream(reinterpret_cast<unsigned char *>(bytes.data()), bytes.size());
    };
    EXPECT_NO_THROW(load(zlib));
    const std::string message = "not well-formed (invalid token) at line 1";
    EXPECT_TRUE(Throws<CVxException>([&] { CXmlDocument().LoadXml(zlib.c_str()); }, message));
    EXPECT_TRUE(Throws<CVxException>([&] { load(broken); }, message));
}
