#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "BinaryData.h"
#include "Exceptions.h"
#include "VxZip.h"

using namespace VxXmlLib16;

namespace {

// A new[] buffer holding the text, as the raw interface expects.
void *NewBuffer(const std::string &text, std::uint32_t *length)
{
    auto *buffer = new unsigned char[text.size()];
    std::memcpy(buffer, text.data(), text.size());
    *length = static_cast<std::uint32_t>(text.size());
    return buffer;
}

std::string Take(void *buffer, std::uint32_t length)
{
    std::string text(static_cast<const char *>(buffer), length);
    delete[] static_cast<unsigned char *>(buffer);
    return text;
}

std::string Repetitive(std::size_t count)
{
    std::string text = "<?xml version=\"1.0\"?>\n<orders>";
    for (std::size_t i = 0; i < count; ++i)
        text += "<order id=\"" + std::to_string(i) + "\"><qty>3</qty></order>";
    return text + "</orders>";
}

class MaxLengthScope
{
public:
    explicit MaxLengthScope(std::uint32_t limit) : m_saved(CVxZip::GetMaxDecompressedLength())
    {
        CVxZip::SetMaxDecompressedLength(limit);
    }
    ~MaxLengthScope() { CVxZip::SetMaxDecompressedLength(m_saved); }

private:
    std::uint32_t m_saved;
};

} // namespace

TEST(VxZip, BothFormatsCompressAndExpandByContent)
{
    const std::string text = Repetitive(2000);
    for (CompressionType type : {CompressionType_GZip, CompressionType_Zlib}) {
        std::uint32_t length = 0;
        void *buffer = NewBuffer(text, &length);
        CVxZip::Compress(&buffer, &length, type);
        ASSERT_LT(length, text.size());
        const auto *bytes = static_cast<const unsigned char *>(buffer);
        if (type == CompressionType_GZip) {
            EXPECT_EQ(bytes[0], 0x1F);
            EXPECT_EQ(bytes[1], 0x8B);
        } else {
            EXPECT_EQ(bytes[0], 0x78); // deflate, 32K window
            EXPECT_EQ(bytes[1], 0x01); // level 1 announces the fastest compression
        }
        CVxZip::Decompress(&buffer, &length);
        EXPECT_EQ(Take(buffer, length), text);
    }
}

TEST(VxZip, BinaryDataFormReplacesTheBytes)
{
    const std::string text = Repetitive(100);
    CBinaryData data(text.c_str());
    CBinaryData shared(data);
    CVxZip::Compress(data, CompressionType_GZip);
    EXPECT_LT(data.GetLength(), text.size());
    EXPECT_EQ(data[0], 0x1F);
    // A copy taken before keeps the plain bytes.
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(shared.GetData()), shared.GetLength()), text);

    CBinaryData empty;
    CVxZip::Compress(empty, CompressionType_GZip);
    EXPECT_EQ(empty.GetLength(), 0u);
}

TEST(VxZip, DataThatDoesNotShrinkFailsAndStaysWithTheCaller)
{
    std::uint32_t length = 0;
    void *buffer = NewBuffer("<a/>", &length);
    void *const original = buffer;
    try {
        CVxZip::Compress(&buffer, &length, CompressionType_GZip);
        FAIL() << "a gzip wrapper does not fit in four bytes";
    } catch (const CVxException &e) {
        EXPECT_EQ(e.GetMessage(), "Failed to compress data. [Error Code: -5]");
    }
    EXPECT_EQ(buffer, original);
    EXPECT_EQ(Take(buffer, length), "<a/>");

    CBinaryData data("<a>x</a>");
    EXPECT_THROW(CVxZip::Compress(data, CompressionType_Zlib), CVxException);
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(data.GetData()), data.GetLength()), "<a>x</a>");
}

TEST(VxZip, NoneAndUnknownTypesLeaveTheBuffer)
{
    const std::string text = Repetitive(50);
    for (auto type : {CompressionType_None, static_cast<CompressionType>(7), static_cast<CompressionType>(-1)}) {
        CBinaryData data(text.c_str());
        CVxZip::Compress(data, type);
        EXPECT_EQ(data.GetLength(), text.size());
    }
}

TEST(VxZip, AnythingButACompleteStreamPassesThroughUntouched)
{
    std::uint32_t length = 0;
    void *gzip = NewBuffer(Repetitive(500), &length);
    CVxZip::Compress(&gzip, &length, CompressionType_GZip);
    const std::string compressed = Take(gzip, length);

    const std::string inputs[] = {
        "<?xml version=\"1.0\"?><a/>",
        std::string("\xFF\xFE<\0a\0/\0>\0", 10),
        compressed.substr(0, compressed.size() / 2), // truncated
        compressed.substr(0, 10),                    // header only
        std::string(compressed).replace(40, 8, "garbage!"),
        std::string(),
    };
    for (const std::string &input : inputs) {
        void *buffer = NewBuffer(input, &length);
        void *const original = buffer;
        CVxZip::Decompress(&buffer, &length);
        EXPECT_EQ(buffer, original);
        EXPECT_EQ(Take(buffer, length), input);
    }
}

TEST(VxZip, ExpansionPastTheLimitIsRefusedUntilTheLimitIsRaised)
{
    const std::string zeros(3u << 20, '\0');
    std::uint32_t length = 0;
    void *buffer = NewBuffer(zeros, &length);
    CVxZip::Compress(&buffer, &length, CompressionType_GZip);
    {
        MaxLengthScope limit(1u << 20);
        try {
            CVxZip::Decompress(&buffer, &length);
            FAIL() << "3 MB expanded under a 1 MB limit";
        } catch (const CVxException &e) {
            EXPECT_EQ(e.GetMessage(),
                      "Decompressed data exceeds the limit of [1048576] bytes (CVxZip::SetMaxDecompressedLength)");
        }
    }
    {
        MaxLengthScope limit(3u << 20); // exactly the expanded size is allowed
        CVxZip::Decompress(&buffer, &length);
    }
    EXPECT_EQ(Take(buffer, length), zeros);
}
