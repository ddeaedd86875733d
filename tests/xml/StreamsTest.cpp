#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "ExceptionAssert.h"
#include "LocalTextScope.h"
#include "BinaryData.h"
#include "Exceptions.h"
#include "LinesOrder.h"
#include "LocalText.h"
#include "TestSupport.h"
#include "TextStream.h"

using namespace VxXmlLib16;

namespace {

using Order = VxTest::LinesOrder;
using VxTest::Throws;
using VxTest::Bytes;
using VxTest::TempPath;
using AsyncScope = VxTest::SwitchScope<AsyncToXmlFile, IsAsyncToXmlFile>;

std::string ReadFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

} // namespace

// UTF-8 and UTF-16 without a byte order mark, compressed bytes read back, and an encoding
// without bytes fails.
TEST(Streams, ToXmlStreamBytesByEncodingAndCompression)
{
    Order order(20);
    EXPECT_EQ(Bytes(order.ToXmlStream(false, true, XmlEncoding_UTF8)), order.ToXml(false));
    // UTF-16 is little-endian on any host.
    const std::string utf16 = Bytes(order.ToXmlStream(true, true, XmlEncoding_UTF16NoDecl));
    EXPECT_EQ(utf16.substr(0, 4), std::string("<\0?\0", 4));
    EXPECT_EQ(utf16, Bytes(LocalToUtf16Data(order.ToXml(true).c_str())));
    for (auto compression : {CompressionType_GZip, CompressionType_Zlib}) {
        Order back(0);
        back.FromXmlStream(order.ToXmlStream(true, true, XmlEncoding_UTF16, EOLType_LF,
                                             CSerializationContext::GetDefaultContext(), compression));
        EXPECT_EQ(back.ReadLines(), Order::LinesOf(20));
    }
    const std::string unknown = "Unknown Encoding, select UTF-8 (contact our support team)";
    for (auto encoding : {XmlEncoding_None, static_cast<XmlEncoding>(-3)})
        EXPECT_TRUE(Throws<CVxException>([&] { order.ToXmlStream(true, true, encoding); }, unknown));
}

// ASCIIOnly passes narrow bytes to UTF-8 as they stand, but not to UTF-16.
TEST(Streams, ASCIIOnlyPassesNarrowBytesOnlyToUtf8)
{
    LocalTextScope latin1(28591);
    CTextStream utf8(XmlEncoding_UTF8), utf16(XmlEncoding_UTF16);
    utf8.Append("\xE9");
    utf16.Append("\xE9");
    EXPECT_EQ(Bytes(utf8.GetBinaryData()), "\xC3\xA9");
    ASCIIOnly(true);
    EXPECT_EQ(Bytes(utf8.GetBinaryData()), "\xE9");
    EXPECT_EQ(Bytes(utf16.GetBinaryData()), std::string("\xE9\0", 2));
}

// Every route to a file gives the mark for UTF-16 (before gzip data too) and the bytes
// of ToXmlStream after it; the text is long enough for many flushes of the file stream.
// zlib is refused for files before anything is created.
TEST(Streams, ToXmlFileBytesForEveryEncodingCompressionAndSwitch)
{
    Order order(3000);
    const auto &context = CSerializationContext::GetDefaultContext();
    const std::string path = TempPath("order.xml");
    for (bool async : {false, true}) {
        AsyncScope scope(async);
        for (auto encoding : {XmlEncoding_UTF8, XmlEncoding_UTF16, XmlEncoding_UTF16NoDecl})
            for (auto compression : {CompressionType_None, CompressionType_GZip, static_cast<CompressionType>(9)}) {
                SCOPED_TRACE(testing::Message() << async << " " << encoding << " " << compression);
                order.ToXmlFile(path.c_str(), true, true, encoding, EOLType_CRLF, context, compression);
                const std::string mark = encoding == XmlEncoding_UTF8 ? std::string() : std::string("\xFF\xFE", 2);
                const CBinaryData bytes = order.ToXmlStream(true, true, encoding, EOLType_CRLF, context, compression);
                const std::string file = ReadFile(path);
                EXPECT_TRUE(file == mark + Bytes(bytes));
                EXPECT_EQ(file[mark.size()], compression == CompressionType_GZip ? '\x1F' : '<');
                Order back(0);
                back.FromXmlFile(path.c_str());
                EXPECT_TRUE(back.ReadLines() == Order::LinesOf(3000));
            }
        std::filesystem::remove(path);
        auto zlibFile = [&] {
            order.ToXmlFile(path.c_str(), true, true, XmlEncoding_UTF8, EOLType_LF, context, CompressionType_Zlib);
        };
        EXPECT_TRUE(Throws<CVxException>(zlibFile, "ZLIB Compression only available for To Stream methods."));
        EXPECT_FALSE(std::filesystem::exists(path));
    }
}

TEST(Streams, FileErrorsCarryTheSystemErrorNumber)
{
    Order order(2000);
    const std::string missing = TempPath("no-such-dir/order.xml");
    for (bool async : {false, true}) {
        AsyncScope scope(async);
        EXPECT_TRUE(Throws<CVxException>([&] { order.ToXmlFile(missing.c_str()); },
                                         "Failed to write data to the file [" + missing + "] error [0x00000002]"));
    }
    // A device that is always full fails the writes themselves (ENOSPC, 28).
    AsyncScope off(false);
    EXPECT_TRUE(Throws<CVxException>([&] { order.ToXmlFile("/dev/full"); },
                                     "Failed to write data to the file [/dev/full] error [0x0000001C]"));
    AsyncScope on(true);
    EXPECT_TRUE(Throws<CVxException>([&] { order.ToXmlFile("/dev/full", true, true, XmlEncoding_UTF16); },
                                     "Failed to write data to the file. Error [0x0000001C]"));
}
