#include <gtest/gtest.h>

#include <string>

#include "platform/CodePageConverter.h"

using namespace VxPlatform;

namespace {

TEST(CodePageConverter, ListedCodePagesHaveAConverterThatKeepsAscii)
{
    // One page of each family of the table; the transcoders copy plain ASCII instead of converting it.
    const std::uint32_t listed[] = {437, 932, 936, 1252, 10000, 20127, 20866, 28591, 28605, 51932, 54936};
    std::string ascii;
    std::u16string wideAscii;
    for (char16_t c = 1; c < 128; ++c) {
        ascii += static_cast<char>(c);
        wideAscii += c;
    }
    EXPECT_EQ(CodePageCharset(4711), nullptr);
    for (std::uint32_t codePage : listed) {
        SCOPED_TRACE(codePage);
        ASSERT_NE(CodePageCharset(codePage), nullptr);
        std::string narrow;
        std::u16string wide;
        ASSERT_TRUE(ConvertFromUtf16(codePage, wideAscii.data(), wideAscii.size(),
                                     [&narrow](const char *bytes, std::size_t n) { narrow.append(bytes, n); }));
        EXPECT_EQ(narrow, ascii);
        ASSERT_TRUE(ConvertToUtf16(codePage, ascii.data(), ascii.size(),
                                   [&wide](const char16_t *units, std::size_t n) { wide.append(units, n); }));
        EXPECT_EQ(wide, wideAscii);
    }
}

} // namespace
