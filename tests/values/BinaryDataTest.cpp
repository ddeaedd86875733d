#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "BinaryData.h"
#include "ExceptionAssert.h"
#include "TestSupport.h"

using VxXmlLib16::CBinaryData;
using VxXmlLib16::CVxException;
using VxTest::Throws;
using VxTest::Bytes;

TEST(BinaryData, CopiesShareUntilOneChangesAndCompareByBytes)
{
    CBinaryData a("abc");
    CBinaryData b(a);
    EXPECT_EQ(a.GetData(), b.GetData());
    b.Append('d');
    EXPECT_NE(a.GetData(), b.GetData());
    EXPECT_EQ("abcd", Bytes(b));

    CBinaryData c(a);
    c[0] = 'X'; // non-const indexing detaches
    EXPECT_EQ("abc", Bytes(a));
    EXPECT_EQ("Xbc", Bytes(c));

    // Assignment to itself empties a value; appending it to itself doubles it.
    CBinaryData &alias = c;
    c = alias;
    EXPECT_EQ(CBinaryData(), c);
    b.Append(b);
    EXPECT_EQ("abcdabcd", Bytes(b));

    EXPECT_EQ(CBinaryData(), CBinaryData(""));
    EXPECT_NE(CBinaryData("ab"), CBinaryData("abc"));
    EXPECT_NE(CBinaryData("ab"), CBinaryData("ac"));
}

TEST(BinaryData, AppendForms)
{
    CBinaryData data;
    data.Append(std::string("ab\0cd", 5)); // stops at the NUL
    unsigned char raw[] = {'1', 0, '2'};
    data.Append(raw, 3); // keeps it
    data.Append(static_cast<unsigned char>('z'));
    data.Append(raw, 0);
    EXPECT_EQ(std::string("ab1\0002z", 6), Bytes(data));

    // Growth across many small appends keeps every byte.
    std::string expected;
    for (int i = 0; i < 20000; ++i)
        expected += static_cast<char>('a' + i % 26);
    CBinaryData big;
    for (char c : expected)
        big.Append(c);
    EXPECT_EQ(expected, Bytes(big));
}

TEST(BinaryData, IndexBoundsAdoptedBufferAndReleaseData)
{
    unsigned char *owned = new unsigned char[3]{'p', 'q', 'r'};
    CBinaryData adopted(owned, 3, true);
    EXPECT_EQ(owned, adopted.GetData());
    // The position just past the bytes is valid, even for an adopted buffer; one beyond is not.
    EXPECT_EQ(0, static_cast<const CBinaryData &>(adopted)[3]);
    EXPECT_TRUE(Throws<CVxException>([&] { (void)adopted[4]; }, "Index Out of range [4]"));
    adopted[3] = 's';
    adopted.Append('t');
    EXPECT_EQ("pqrt", Bytes(adopted));

    CBinaryData shared(adopted);
    unsigned char *released = adopted.ReleaseData();
    EXPECT_EQ(0, std::memcmp(released, "pqrt", 4));
    EXPECT_EQ(nullptr, adopted.GetData());
    EXPECT_EQ("pqrt", Bytes(shared)); // the other handle kept its own copy
    delete[] released;

    CBinaryData empty;
    EXPECT_TRUE(Throws<CVxException>([&] { (void)empty[0]; }, "Index Out of range [0]"));
    EXPECT_EQ(nullptr, empty.ReleaseData());
    CBinaryData zero(owned, 0, true); // length 0 never makes a block, adopt or not
    EXPECT_EQ(nullptr, zero.GetData());
}

TEST(BinaryData, HexForms)
{
    CBinaryData data;
    data.SetAsHexString("0a0AfF10");
    EXPECT_EQ("0A0AFF10", data.GetAsHexString());
    EXPECT_EQ(std::string("\x0a\x0a\xff\x10", 4), Bytes(data));

    data.SetAsHexString("");
    EXPECT_EQ(nullptr, data.GetData());
    EXPECT_EQ("", CBinaryData::GetAsHexString(nullptr, 4));

    EXPECT_TRUE(Throws<CVxException>([&] { data.SetAsHexString("abc"); }, "Invalid length in hex string"));
    // The high and the low nibble are checked apart; white space is not skipped.
    EXPECT_TRUE(Throws<CVxException>([&] { data.SetAsHexString(" 0"); }, "Invalid char in hex string [ ]"));
    EXPECT_TRUE(Throws<CVxException>([&] { data.SetAsHexString("0g"); }, "Invalid char in hex string [g]"));
}

TEST(BinaryData, Base64PaddingAndLenientDecoding)
{
    const struct { const char *bytes, *text; } cases[] = {
        {"", ""}, {"A", "QQ=="}, {"AB", "QUI="}, {"ABC", "QUJD"}};
    for (const auto &c : cases) {
        CBinaryData data(c.bytes);
        EXPECT_EQ(c.text, data.GetAsBase64()) << c.bytes;
    }
    unsigned char high[] = {0xFB, 0xFF};
    EXPECT_EQ("+/8=", CBinaryData(high, 2, false).GetAsBase64());

    // Padding and white space are skipped wherever they stand; bit 7 is ignored.
    for (const char *text : {"QQ==", "QQ", "Q=Q", " Q\tQ\r\n= =", "\xD1Q"}) {
        CBinaryData data;
        data.SetAsBase64(text);
        EXPECT_EQ("A", Bytes(data)) << text;
    }
    CBinaryData data;
    data.SetAsBase64("Q");
    EXPECT_EQ(0u, data.GetLength());
    data.SetAsBase64("ab!d"); // a block of length 0 is not the plain empty value
    EXPECT_EQ(0u, data.GetLength());
    EXPECT_NE(nullptr, data.GetData());
    EXPECT_NE(CBinaryData(), data);
    data.SetAsBase64("");
    EXPECT_EQ(nullptr, data.GetData());

    std::vector<unsigned char> bytes(1000);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>(i * 7 + i / 256);
    const CBinaryData source(bytes.data(), static_cast<std::uint32_t>(bytes.size()), false);
    CBinaryData decoded;
    decoded.SetAsBase64(source.GetAsBase64().c_str());
    EXPECT_EQ(source, decoded);
}
