#include <gtest/gtest.h>

#include <string>

#include "BinaryData.h"
#include "Exceptions.h"
#include "VxZip.h"
#include "XmlDocument.h"

using namespace VxXmlLib16;

namespace {

std::string Document()
{
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<orders>\n";
    for (int i = 0; i < 300; ++i)
        text += "  <order id=\"" + std::to_string(i) + "\">caf\xC3\xA9</order>\n";
    return text + "</orders>\n";
}

CBinaryData Compressed(const std::string &text, CompressionType type)
{
    CBinaryData data(text.c_str());
    CVxZip::Compress(data, type);
    return data;
}

std::string LoadStreamMessage(const CBinaryData &data)
{
    CXmlDocument document;
    try {
        document.LoadXmlStream(const_cast<unsigned char *>(data.GetData()), data.GetLength());
    } catch (const CVxException &e) {
        return e.GetMessage();
    }
    return "(loaded)";
}

} // namespace

TEST(CompressedInput, GzipAndZlibLoadThroughLoadXmlStreamWithoutAFlag)
{
    for (auto type : {CompressionType_GZip, CompressionType_Zlib}) {
        const CBinaryData data = Compressed(Document(), type);
        CXmlDocument document;
        document.LoadXmlStream(const_cast<unsigned char *>(data.GetData()), data.GetLength());
        CXmlElement *root = document.GetDocumentElement();
        ASSERT_NE(root, nullptr);
        EXPECT_EQ(root->GetLocalName(), "orders");
        int count = 0;
        for (CXmlElement *order = root->GetFirstElement(); order; order = order->GetNextSiblingElement())
            ++count;
        EXPECT_EQ(count, 300);
        EXPECT_EQ(root->GetFirstElement()->GetText(), "caf\xC3\xA9");
    }
}

TEST(CompressedInput, StringLoaderDoesNotExpand)
{
    const CBinaryData data = Compressed(Document(), CompressionType_Zlib);
    std::string text(reinterpret_cast<const char *>(data.GetData()), data.GetLength());
    text = text.c_str(); // what a C string of these bytes holds
    CXmlDocument document;
    try {
        document.LoadXml(text.c_str());
        FAIL() << "zlib bytes parsed as text";
    } catch (const CVxException &e) {
        EXPECT_NE(e.GetMessage().find(" at line 1"), std::string::npos) << e.GetMessage();
    }
}

TEST(CompressedInput, TruncatedStreamFailsInTheParser)
{
    const CBinaryData data = Compressed(Document(), CompressionType_GZip);
    EXPECT_EQ(LoadStreamMessage(CBinaryData(const_cast<unsigned char *>(data.GetData()), data.GetLength() - 9, false)),
              "not well-formed (invalid token) at line 1");
}

TEST(CompressedInput, UnicodeMarkBeforeCompressedBytesStaysInFront)
{
    // A file as ToXmlFile writes UTF-16 with gzip: the mark, then the compressed units.
    std::string utf16("\xFF\xFE", 2);
    const std::string text = "<?xml version=\"1.0\" encoding=\"UTF-16\"?><a>" + std::string(400, 'x') + "</a>";
    for (char c : text) {
        utf16 += c;
        utf16 += '\0';
    }
    CBinaryData data(reinterpret_cast<unsigned char *>(utf16.data() + 2), static_cast<std::uint32_t>(utf16.size() - 2), false);
    CVxZip::Compress(data, CompressionType_GZip);
    CBinaryData marked(reinterpret_cast<unsigned char *>(utf16.data()), 2, false);
    marked.Append(data);
    EXPECT_EQ(LoadStreamMessage(marked), "(loaded)");
}

TEST(CompressedInput, ExpansionPastTheLimitIsRefusedWithItsOwnMessage)
{
    const std::uint32_t saved = CVxZip::GetMaxDecompressedLength();
    CVxZip::SetMaxDecompressedLength(4096);
    const std::string message = LoadStreamMessage(Compressed(Document(), CompressionType_GZip));
    CVxZip::SetMaxDecompressedLength(saved);
    EXPECT_EQ(message, "Decompressed data exceeds the limit of [4096] bytes (CVxZip::SetMaxDecompressedLength)");
}
