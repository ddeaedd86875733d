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

TEST(CodePageConverter, EveryListedCodePageHasAWorkingConverter)
{
    const std::uint32_t listed[] = {437,   850,   852,   866,   874,   932,   936,   949,   950,
                                    1250,  1251,  1252,  1253,  1254,  1255,  1256,  1257,  1258,
                                    10000, 20127, 20866, 21866, 28591, 28592, 28593, 28594, 28595,
                                    28596, 28597, 28598, 28599, 28603, 28605, 51932, 51949, 54936};
    for (std::uint32_t codePage : listed) {
        SCOPED_TRACE(codePage);
        ASSERT_NE(CodePageCharset(codePage), nullptr);
        std::string narrow;
        std::u16string wide;
        ASSERT_TRUE(ToCodePage(codePage, u"Abc 123", narrow));
        EXPECT_EQ(narrow, "Abc 123");
        ASSERT_TRUE(FromCodePage(codePage, narrow, wide));
        EXPECT_EQ(wide, u"Abc 123");
    }
}

TEST(CodePageConverter, UnlistedCodePageDeliversNothing)
{
    for (std::uint32_t codePage : {0u, 3u, 65001u, 1200u, 99999u}) {
        SCOPED_TRACE(codePage);
        EXPECT_EQ(CodePageCharset(codePage), nullptr);
        bool called = false;
        EXPECT_FALSE(ConvertFromUtf16(codePage, u"a", 1, [&called](const char *, std::size_t) { called = true; }));
        EXPECT_FALSE(ConvertToUtf16(codePage, "a", 1, [&called](const char16_t *, std::size_t) { called = true; }));
        EXPECT_FALSE(called);
    }
}

TEST(CodePageConverter, UnmappableAndInvalidInputIsReplaced)
{
    std::string narrow;
    std::u16string wide;
    ASSERT_TRUE(ToCodePage(1252, u"x\u4E2Dy\U0001F600z", narrow));
    EXPECT_EQ(narrow, "x?y?z");
    ASSERT_TRUE(ToCodePage(1252, u"x\xDC00y", narrow));
    EXPECT_EQ(narrow, "x?y");
    ASSERT_TRUE(ToCodePage(1252, u"x\xD800", narrow));
    EXPECT_EQ(narrow, "x?");
    // A lead byte of Shift-JIS without its trail byte, inside and at the end.
    ASSERT_TRUE(FromCodePage(932, "a\x93", wide));
    EXPECT_EQ(wide, u"a\uFFFD");
    ASSERT_TRUE(FromCodePage(20127, "a\xE9z", wide));
    EXPECT_EQ(wide, u"a\uFFFDz");
}

TEST(CodePageConverter, SwitchingCodePagesOnOneThreadUsesTheRightConverter)
{
    std::string narrow;
    ASSERT_TRUE(ToCodePage(1252, u"\u20AC", narrow));
    EXPECT_EQ(narrow, "\x80");
    ASSERT_TRUE(ToCodePage(28605, u"\u20AC", narrow));
    EXPECT_EQ(narrow, "\xA4");
    ASSERT_TRUE(ToCodePage(1251, u"\u0416", narrow));
    EXPECT_EQ(narrow, "\xC6");
}

} // namespace
