#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "StringBuffer.h"

using namespace VxXmlLib16;

TEST(StringBuffer, OneFullBlockIsReturnedInPlaceAndOneMoreByteMerges)
{
    CStringBuffer buffer;
    EXPECT_STREQ(buffer.GetText(), ""); // before the first block
    const std::string head(4000, 'a');
    buffer.Append(head);
    const char *inPlace = buffer.GetText();

    // Fill the block exactly to 4095 bytes, single bytes and runs mixed.
    buffer.Append(std::string(94, 'b').c_str());
    buffer.Append('c');
    EXPECT_EQ(buffer.GetText(), inPlace);
    EXPECT_EQ(std::strlen(inPlace), 4095u);

    buffer.Append('d');
    const char *merged = buffer.GetText();
    EXPECT_NE(merged, inPlace);
    EXPECT_EQ(std::string(merged), head + std::string(94, 'b') + "cd");
    EXPECT_EQ(buffer.GetText(), merged);

    // The merged block is full: more text starts a new block and merges again.
    buffer.Append("ef");
    EXPECT_EQ(std::string(buffer.GetText()), head + std::string(94, 'b') + "cdef");
    EXPECT_EQ(buffer.GetLength(), 4098u);
}

TEST(StringBuffer, LongRunsSpanBlocksAndResetKeepsASingleBlockForReuse)
{
    CStringBuffer buffer;
    buffer.Append("some text");
    const char *block = buffer.GetText();
    buffer.Reset();
    EXPECT_EQ(buffer.GetLength(), 0u);
    buffer.Append("x");
    EXPECT_EQ(buffer.GetText(), block);
    EXPECT_STREQ(block, "x"); // the old text was zeroed, not just overwritten at the front

    // A long run fills blocks in turn; after it Reset frees them all.
    buffer.Append(std::string(9000, 'y'));
    EXPECT_EQ(std::string(buffer.GetText()), "x" + std::string(9000, 'y'));
    buffer.Reset();
    EXPECT_STREQ(buffer.GetText(), "");
    buffer.Append('z');
    EXPECT_STREQ(buffer.GetText(), "z");
}
