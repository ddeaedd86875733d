#include <gtest/gtest.h>

#include <string>

#include "platform/CodePageConverter.h"

using namespace VxPlatform;

namespace {

bool ToCodePage(std::uint32_t codePage, const std::u16string &text, std::string &out)
{
    out.clear();
    return ConvertFromUtf16(codePage, text.data(), text.size(),
                            [&out](const char *bytes, std::size_t n) { out.append(bytes, n); });
}

bool FromCodePage(std::uint32_t codePage, const std::string &text, std::u16string &out)
{
    out.clear();
    return ConvertToUtf16(codePage, text.data(), text.size(),
                          [&out](const char16_t *units, std::size_t n) { out.append(units, n); });
}

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
        ASSERT_TRUE(ToCodePage(codePage, wideAscii, narrow));
        EXPECT_EQ(narrow, ascii);
        ASSERT_TRUE(FromCodePage(codePage, ascii, wide));
        EXPECT_EQ(wide, wideAscii);
    }
}

TEST(CodePageConverter, ConvertsAndReplacesWhatTheTargetCannotTake)
{
    // In table order, so that one thread switches between code pages.
    const struct { std::uint32_t codePage; std::u16string wide; std::string narrow; } fromUtf16[] = {
        {1252, u"\u20AC", "\x80"}, {28605, u"\u20AC", "\xA4"}, {1251, u"\u0416", "\xC6"},
        {1252, u"x\u4E2Dy\U0001F600z", "x?y?z"}, {1252, u"x\xDC00y", "x?y"}, {1252, u"x\xD800", "x?"},
    };
    for (const auto &c : fromUtf16) {
        std::string narrow;
        EXPECT_TRUE(ToCodePage(c.codePage, c.wide, narrow));
        EXPECT_EQ(narrow, c.narrow) << c.codePage;
    }
    const struct { std::uint32_t codePage; std::string narrow; std::u16string wide; } toUtf16[] = {
        {932, "a\x93", u"a\uFFFD"}, // a Shift-JIS lead byte without its trail byte
        {932, "\x93\xFA", u"\u65E5"},
        {20127, "a\xE9z", u"a\uFFFDz"},
    };
    for (const auto &c : toUtf16) {
        std::u16string wide;
        EXPECT_TRUE(FromCodePage(c.codePage, c.narrow, wide));
        EXPECT_EQ(wide, c.wide) << c.codePage;
    }
}

} // namespace
