#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "../values/LocalTextScope.h"
#include "BinaryData.h"
#include "BinaryStream.h"
#include "Exceptions.h"
#include "FileTextStream.h"
#include "LinesOrder.h"
#include "LocalText.h"
#include "VxZip.h"

using namespace VxXmlLib16;

namespace {

using Order = VxTest::LinesOrder;

class AsyncScope
{
public:
    explicit AsyncScope(bool on) : m_saved(IsAsyncToXmlFile()) { AsyncToXmlFile(on); }
    ~AsyncScope() { AsyncToXmlFile(m_saved); }

private:
    bool m_saved;
};

std::string Bytes(const CBinaryData &data)
{
    return std::string(reinterpret_cast<const char *>(data.GetData()), data.GetLength());
}

std::string ReadFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

std::string TempPath(const char *name) { return std::string(VX_TEST_TMP_DIR) + "/" + name; }

std::string MessageOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const CVxException &e) {
        return e.GetMessage();
    }
    return "(no exception)";
}

const char *const UnknownEncoding = "Unknown Encoding, select UTF-8 (contact our support team)";
const std::string Bom("\xFF\xFE", 2);

} // namespace

TEST(Streams, ToXmlStreamEncodesWithoutByteOrderMark)
{
    Order order(3);
    const std::string text = order.ToXml(false);
    EXPECT_EQ(Bytes(order.ToXmlStream(false, true, XmlEncoding_UTF8)), text);

    const std::string utf16 = Bytes(order.ToXmlStream(false, true, XmlEncoding_UTF16));
    EXPECT_EQ(utf16, Bytes(LocalToUtf16Data(text.c_str())));
    EXPECT_EQ(utf16.substr(0, 4), std::string("<\0o\0", 4));
    EXPECT_NE(utf16.find(std::string("\xE9\0", 2)), std::string::npos); // é, little-endian

    // The declaration names UTF-16 only for the encoding that asks for it.
    EXPECT_EQ(Bytes(order.ToXmlStream(true, true, XmlEncoding_UTF16NoDecl)), Bytes(LocalToUtf16Data(order.ToXml().c_str())));
    EXPECT_NE(Bytes(order.ToXmlStream(true, true, XmlEncoding_UTF16)).find(Bytes(LocalToUtf16Data("encoding=\"UTF-16\"?>"))),
              std::string::npos);
}

TEST(Streams, EncodingsWithoutBytesFailOnlyWhenBytesAreAsked)
{
    Order order(1);
    EXPECT_NO_THROW(order.ToXml());
    for (auto encoding : {XmlEncoding_None, static_cast<XmlEncoding>(4), static_cast<XmlEncoding>(-3)})
        EXPECT_EQ(MessageOf([&] { order.ToXmlStream(true, true, encoding); }), UnknownEncoding);

    CTextStream stream(XmlEncoding_None);
    stream.Append("<a/>");
    EXPECT_STREQ(stream.GetText(), "<a/>");
    EXPECT_EQ(MessageOf([&] { stream.GetBinaryData(); }), UnknownEncoding);
}

TEST(Streams, AsciiOnlyPassesNarrowBytesToUtf8ButNotToUtf16)
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

TEST(Streams, ToXmlStreamCompressesTheEncodedBytes)
{
    Order order(200);
    for (auto encoding : {XmlEncoding_UTF8, XmlEncoding_UTF16}) {
        const std::string plain = Bytes(order.ToXmlStream(true, true, encoding));
        for (auto compression : {CompressionType_GZip, CompressionType_Zlib}) {
            CBinaryData data = order.ToXmlStream(true, true, encoding, EOLType_LF,
                                                 CSerializationContext::GetDefaultContext(), compression);
            EXPECT_EQ(data[0], compression == CompressionType_GZip ? 0x1F : 0x78);
            std::uint32_t length = data.GetLength();
            void *buffer = data.ReleaseData();
            CVxZip::Decompress(&buffer, &length);
            EXPECT_EQ(std::string(static_cast<char *>(buffer), length), plain);
            delete[] static_cast<unsigned char *>(buffer);

            Order back(0);
            back.FromXmlStream(order.ToXmlStream(true, true, encoding, EOLType_LF,
                                                 CSerializationContext::GetDefaultContext(), compression));
            EXPECT_TRUE(back.ReadLines() == Order::LinesOf(200));
        }
    }
    // Too short to shrink under a gzip wrapper: zlib's code for "out of room" follows.
    EXPECT_EQ(MessageOf([] {
                  Order(0).ToXmlStream(false, false, XmlEncoding_UTF8, EOLType_LF,
                                       CSerializationContext::GetDefaultContext(), CompressionType_GZip);
              }).rfind("Failed to compress data. [Error Code: ", 0),
              0u);
}

// Every route to a file gives the mark for UTF-16 (before gzip data too) and the bytes
// of ToXmlStream after it; the text is long enough for many flushes of the file stream.
TEST(Streams, ToXmlFileBytesForEveryEncodingCompressionAndSwitch)
{
    Order order(3000);
    const std::vector<std::string> expectedLines = Order::LinesOf(3000);
    const std::string path = TempPath("order.xml");
    for (bool async : {false, true}) {
        AsyncScope scope(async);
        for (auto encoding : {XmlEncoding_UTF8, XmlEncoding_UTF16, XmlEncoding_UTF16NoDecl}) {
            for (auto compression : {CompressionType_None, CompressionType_GZip, static_cast<CompressionType>(9)}) {
                SCOPED_TRACE(testing::Message() << "async " << async << " encoding " << encoding << " compression "
                                                << compression);
                const auto &context = CSerializationContext::GetDefaultContext();
                order.ToXmlFile(path.c_str(), true, true, encoding, EOLType_CRLF, context, compression);
                const std::string expected = (encoding == XmlEncoding_UTF8 ? "" : Bom) +
                    Bytes(order.ToXmlStream(true, true, encoding, EOLType_CRLF, context, compression));
                const std::string file = ReadFile(path);
                EXPECT_EQ(file.size(), expected.size());
                EXPECT_TRUE(file == expected);
                EXPECT_EQ(file.substr(file[0] == '\xFF' ? 2 : 0, 2),
                          compression == CompressionType_GZip ? "\x1F\x8B" : encoding == XmlEncoding_UTF8 ? "<?" : std::string("<\0", 2));
                Order back(0);
                back.FromXmlFile(path.c_str());
                EXPECT_TRUE(back.ReadLines() == expectedLines);
            }
        }
    }
    std::filesystem::remove(path);
}

TEST(Streams, ZlibIsRefusedForFilesBeforeAnythingIsCreated)
{
    Order order(10);
    const std::string path = TempPath("never.xml");
    std::filesystem::remove(path);
    for (bool async : {false, true}) {
        AsyncScope scope(async);
        const CVxException *inner = nullptr;
        try {
            order.ToXmlFile(path.c_str(), true, true, XmlEncoding_UTF8, EOLType_LF,
                            CSerializationContext::GetDefaultContext(), CompressionType_Zlib);
            ADD_FAILURE() << "zlib written to a file";
        } catch (const CVxValidationException &) {
            ADD_FAILURE() << "a plain CVxException is expected";
        } catch (const CVxException &e) {
            EXPECT_EQ(e.GetMessage(), "ZLIB Compression only available for To Stream methods.");
            inner = e.GetInnerException();
        }
        EXPECT_EQ(inner, nullptr);
        EXPECT_FALSE(std::filesystem::exists(path));
    }
}

TEST(Streams, FileStreamWritesTheMarkEvenForAnEmptyDocument)
{
    const std::string path = TempPath("empty.xml");
    for (auto encoding : {XmlEncoding_UTF8, XmlEncoding_UTF16, XmlEncoding_UTF16NoDecl}) {
        CFileTextStream stream(path.c_str(), encoding);
        stream.Open();
        stream.Flush(); // nothing to send
        stream.Close();
        EXPECT_EQ(ReadFile(path), encoding == XmlEncoding_UTF8 ? "" : Bom);
    }
    // Text of several flushes arrives in order behind the mark.
    {
        CFileTextStream stream(path.c_str(), XmlEncoding_UTF16);
        stream.Open();
        std::string expected;
        for (int i = 0; i < 50; ++i) {
            const std::string piece = "<p n=\"" + std::to_string(i) + "\">\xC3\xA9</p>";
            stream.Append(piece);
            stream.Flush();
            expected += piece;
        }
        stream.Append("<end/>");
        expected += "<end/>";
        stream.Close();
        EXPECT_EQ(ReadFile(path), Bom + Bytes(LocalToUtf16Data(expected.c_str())));
    }
    std::filesystem::remove(path);
}

TEST(Streams, FileErrorsCarryTheSystemErrorNumber)
{
    Order order(2000);
    const std::string missing = TempPath("no-such-dir/order.xml");
    for (bool async : {false, true}) {
        AsyncScope scope(async);
        EXPECT_EQ(MessageOf([&] { order.ToXmlFile(missing.c_str()); }),
                  "Failed to write data to the file [" + missing + "] error [0x00000002]");
    }
    // A device that is always full fails the writes themselves (ENOSPC, 28).
    if (std::filesystem::exists("/dev/full")) {
        AsyncScope off(false);
        EXPECT_EQ(MessageOf([&] { order.ToXmlFile("/dev/full"); }),
                  "Failed to write data to the file [/dev/full] error [0x0000001C]");
        AsyncScope on(true);
        EXPECT_EQ(MessageOf([&] { order.ToXmlFile("/dev/full"); }),
                  "Failed to write data to the file. Error [0x0000001C]");
        // The mark travels with the first block, so its failure is that of a block.
        EXPECT_EQ(MessageOf([&] { order.ToXmlFile("/dev/full", true, true, XmlEncoding_UTF16); }),
                  "Failed to write data to the file. Error [0x0000001C]");
        // Bytes still gathered fail when the stream closes.
        EXPECT_EQ(MessageOf([] {
                      CFileTextStream stream("/dev/full", XmlEncoding_UTF16);
                      stream.Open();
                      stream.Close();
                  }),
                  "Failed to write data to the file. Error [0x0000001C]");
    }
    // Without bytes to write the file stream fails as the memory stream does.
    AsyncScope on(true);
    const std::string path = TempPath("none.xml");
    EXPECT_EQ(MessageOf([&] { order.ToXmlFile(path.c_str(), true, true, XmlEncoding_None); }), UnknownEncoding);
    std::filesystem::remove(path);
}

TEST(Streams, BinaryStreamCollectsAndSavesWithTheMarkRule)
{
    CBinaryStream stream;
    unsigned char bytes[] = {0x1F, 0x8B, 0x08};
    stream.Append(bytes, 3);
    stream.Append(static_cast<unsigned char>(0));
    stream.Append(CBinaryData("xy"));
    EXPECT_EQ(Bytes(stream.GetData()), std::string("\x1F\x8B\x08\0xy", 6));

    const std::string path = TempPath("binary.bin");
    CFileBinaryStream(path.c_str(), XmlEncoding_UTF16, stream.GetData()).Save();
    EXPECT_EQ(ReadFile(path), Bom + Bytes(stream.GetData()));
    CFileBinaryStream(path.c_str(), XmlEncoding_None, CBinaryData()).Save();
    EXPECT_EQ(ReadFile(path), "");
    std::filesystem::remove(path);
}
