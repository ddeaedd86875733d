#include <gtest/gtest.h>

#include <string>

#include "platform/CodePageConverter.h"

using namespace VxPlatform;

namespace {

TEST(CodePageConverter, EveryListedCodePageHasAConverterThatKeepsAscii)
{
    const std::uint32_t listed[] = {437,   850,   852,   866,   874,   932,   936,   949,   950,
                                    1250,  1251,  1252,  1253,  1254,  1255,  1256,  1257,  1258,
                                    10000, 20127, 20866, 21866, 28591, 28592, 28593, 28594, 28595,
                                    28596, 28597, 28598, 28599, 28603, 28605, 51932, 51949, 54936};
    // The transcoders copy plain ASCII instead of converting it, for every code page.
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
