#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "BinaryData.h"
#include "LocalText.h"
#include "LocalTextScope.h"
#include "TestSupport.h"

using namespace VxXmlLib16;
using VxTest::Bytes;

namespace {

const std::string kReplacement = "\xEF\xBF\xBD";

std::string Utf16ToUtf8String(const std::u16string &text, std::size_t room)
{
    std::string out(room, '\0');
    const int written = Utf16ToUtf8(text.data(), text.data() + text.size(), out.data(), out.data() + room);
    out.resize(static_cast<std::size_t>(written));
    return out;
}

TEST(Utf16ToUtf8, WritesAndCountsAndStopsAtLoneSurrogatesOrTheEnd)
{
    // Written with ample room, and counted with no output.
    const struct { const char *name; std::u16string text; std::string written; int counted; } cases[] = {
        {"ascii", u"Ab", "Ab", 2}, {"two byte", u"\u00E9", "\xC3\xA9", 2},
        {"three byte", u"\u20AC", "\xE2\x82\xAC", 3}, {"surrogate pair", u"\U0001F600", "\xF0\x9F\x98\x80", 4},
        {"nul unit", std::u16string(u"a\0b", 3), std::string("a\0b", 3), 3}, {"lone low", u"a\xDC00z", "a", 0},
        {"high at end", u"ab\xD800", "ab", 0}, {"high before non-low", u"a\xD800z", "a", 0},
        {"high before high", u"\xD800\xD801\xDC00", "", 0}, {"empty", u"", "", 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Utf16ToUtf8String(c.text, 16), c.written);
        EXPECT_EQ(Utf16ToUtf8(c.text.data(), c.text.data() + c.text.size(), nullptr, nullptr), c.counted);
    }
    // Writing stops before a sequence that does not fit.
    EXPECT_EQ(Utf16ToUtf8String(u"a\u20ACb", 3), "a");
    EXPECT_EQ(Utf16ToUtf8String(u"a\U0001F600", 4), "a");
    EXPECT_EQ(Utf16ToUtf8String(u"a\U0001F600", 5), "a\xF0\x9F\x98\x80");
}

struct Utf8Case { const char *name; std::string utf8; std::string local; };

// Scratch sizes: none, too small for the text, and ample.
const unsigned int kScratchSizes[] = {0, 3, 256};

std::string Utf8ToLocalWithScratch(const std::string &text, unsigned int size)
{
    std::vector<char16_t> wide(size + 1, u'#');
    std::vector<char> narrow(size + 1, '#');
    return Utf8ToLocal(text.data(), static_cast<unsigned int>(text.size()), size ? wide.data() : nullptr,
                       size, size ? narrow.data() : nullptr, size);
}

TEST(Utf8ToLocal, Utf8LocalKeepsValidTextAndReplacesIllFormedSequences)
{
    const Utf8Case cases[] = {
        {"long ascii", std::string(100, 'x'), std::string(100, 'x')}, {"empty", "", ""},
        {"non-ascii", "gr\xC3\xBC\xC3\x9F \xE2\x82\xAC \xF0\x9F\x98\x80",
         "gr\xC3\xBC\xC3\x9F \xE2\x82\xAC \xF0\x9F\x98\x80"},
        {"ends at nul", std::string("abc\0def", 7), "abc"}, {"truncated two byte", "a\xC3", "a" + kReplacement},
        {"bad trail byte", "a\xE2\x82z", "a" + kReplacement + "z"}, {"stray continuation", "\x80z", kReplacement + "z"},
        {"overlong", "\xC0\x80", kReplacement + kReplacement},
        {"encoded surrogate", "\xED\xA0\x80", kReplacement + kReplacement + kReplacement},
        {"above U+10FFFF", "\xF4\x90\x80\x80", kReplacement + kReplacement + kReplacement + kReplacement},
        {"invalid byte then nul", std::string("\xFF\0x", 3), kReplacement},
    };
    const unsigned int utf8Pages[] = {65001, 0, 3};
    for (unsigned int page : utf8Pages) {
        LocalTextScope scope(page);
        for (const auto &c : cases) {
            for (unsigned int size : kScratchSizes) {
                SCOPED_TRACE(testing::Message() << c.name << ", code page " << page << ", scratch " << size);
                EXPECT_EQ(Utf8ToLocalWithScratch(c.utf8, size), c.local);
            }
        }
    }
    // The form for NUL-terminated text.
    EXPECT_EQ(Utf8ToLocal("caf\xC3\xA9"), "caf\xC3\xA9");
    EXPECT_EQ(Utf8ToLocal(nullptr), "");
}

TEST(Utf8ToLocal, Windows1252LocalTranscodes)
{
    LocalTextScope scope(1252);
    const Utf8Case cases[] = {
        {"ascii", "name", "name"}, {"latin and euro", "\xC3\xA9\xE2\x82\xAC", "\xE9\x80"},
        {"unmappable", "a\xE4\xB8\xAD" "b", "a?b"}, {"unmappable pair", "\xF0\x9F\x98\x80", "?"},
        {"ill-formed utf-8", "a\xC3", "a?"}, {"ends at nul", std::string("\xC3\xA9\0\xC3\xA9", 5), "\xE9"},
    };
    for (const auto &c : cases) {
        for (unsigned int size : kScratchSizes) {
            SCOPED_TRACE(testing::Message() << c.name << ", scratch " << size);
            EXPECT_EQ(Utf8ToLocalWithScratch(c.utf8, size), c.local);
        }
    }
    // Longer than the converter's internal chunk, with multi-byte input throughout.
    std::string utf8;
    std::string local;
    for (int i = 0; i < 3000; ++i) {
        utf8 += "a\xC3\xA9";
        local += "a\xE9";
    }
    EXPECT_EQ(Utf8ToLocal(utf8.data(), static_cast<unsigned int>(utf8.size())), local);
}

TEST(Utf8ToLocal, AsciiOnlyCopiesTheBytesAsTheyStand)
{
    const std::string bytes("\xC3\xA9\0\xFF", 4);
    for (unsigned int page : {65001u, 1252u, 12345u}) {
        LocalTextScope scope(page, true);
        SCOPED_TRACE(page);
        EXPECT_EQ(Utf8ToLocal(bytes.data(), 4), bytes);
        EXPECT_EQ(Utf8ToLocal(bytes.data(), 0), "");
    }
}

TEST(Utf16ToLocal, ConvertsCountedUnitsIntoTheLocalEncoding)
{
    struct Case { unsigned int codePage; std::u16string text; std::string local; };
    const Case cases[] = {
        {65001, u"caf\u00E9 \U0001F600", "caf\xC3\xA9 \xF0\x9F\x98\x80"},
        {65001, u"a\xDC00" "b", "a" + kReplacement + "b"}, {65001, u"a\xD800", "a" + kReplacement},
        {65001, std::u16string(u"ab\0c", 4), "ab"}, {1252, u"caf\u00E9 \u20AC", "caf\xE9 \x80"},
        {1252, u"\u4E2D", "?"}, {1252, u"x\xDC00y\xD800", "x?y?"}, {932, u"\u65E5\u672C", "\x93\xFA\x96\x7B"},
    };
    for (const auto &c : cases) {
        LocalTextScope scope(c.codePage, true); // the ASCII-only flag does not apply here
        SCOPED_TRACE(c.codePage);
        EXPECT_EQ(Utf16ToLocal(c.text.data(), static_cast<unsigned int>(c.text.size())), c.local);
        EXPECT_EQ(Utf16ToLocal(c.text.data(), 0), "");
    }
}

TEST(LocalText, DefaultsAndUnmappedCodePage)
{
    EXPECT_EQ(GetLocalCharEncoding(), 65001u);
    EXPECT_FALSE(IsASCIIOnly());
    // A code page with no converter gives empty results.
    LocalTextScope scope(4711);
    EXPECT_EQ(GetLocalCharEncoding(), 4711u);
    EXPECT_EQ(Utf8ToLocal("abc"), "");
    EXPECT_EQ(Utf16ToLocal(u"abc", 3), "");
}

TEST(LocalToUtf16Data, GivesLittleEndianUnitsWithoutTerminatorOrMark)
{
    struct Case { unsigned int codePage; const char *local; std::string utf16; };
    const Case cases[] = {
        {65001, "A\xC3\xA9\xE2\x82\xAC", std::string("A\0\xE9\0\xAC\x20", 6)},
        {65001, "\xF0\x9F\x98\x80", std::string("\x3D\xD8\x00\xDE", 4)}, {65001, "\xC3", "\xFD\xFF"},
        {1252, "A\xE9\x80", std::string("A\0\xE9\0\xAC\x20", 6)}, {1252, "", ""}, {4711, "abc", ""},
        // A Shift-JIS lead byte without its trail byte, and a byte beyond ASCII.
        {932, "a\x93", std::string("a\0\xFD\xFF", 4)}, {20127, "a\xE9z", std::string("a\0\xFD\xFFz\0", 6)},
    };
    for (const auto &c : cases) {
        LocalTextScope scope(c.codePage, true); // the ASCII-only flag does not apply here
        SCOPED_TRACE(c.local);
        const CBinaryData data = LocalToUtf16Data(c.local);
        EXPECT_EQ(Bytes(data), c.utf16);
        if (c.utf16.empty()) {
            EXPECT_EQ(data, CBinaryData());
        }
    }
}

TEST(Utf8Data, FromLocalTextAndFromUtf16)
{
    struct Case { unsigned int codePage; bool asciiOnly; const char *local; std::string utf8; };
    const Case cases[] = {
        {65001, false, "caf\xC3\xA9", "caf\xC3\xA9"}, {65001, false, "a\xFF" "b", "a\xEF\xBF\xBD" "b"},
        {1252, false, "caf\xE9 \x80", "caf\xC3\xA9 \xE2\x82\xAC"}, {1252, true, "caf\xE9", "caf\xE9"},
        {65001, true, "a\xFF", "a\xFF"}, {4711, false, "abc", ""},
    };
    for (const auto &c : cases) {
        LocalTextScope scope(c.codePage, c.asciiOnly);
        SCOPED_TRACE(testing::Message() << c.codePage << " " << c.asciiOnly << " " << c.local);
        EXPECT_EQ(Bytes(LocalToUtf8Data(c.local)), c.utf8);
    }

    // From UTF-16, up to the terminator.
    EXPECT_EQ(Bytes(Utf16ToUtf8Data(u"plain")), "plain");
    EXPECT_EQ(Bytes(Utf16ToUtf8Data(u"\u00E9\U0001F600")), "\xC3\xA9\xF0\x9F\x98\x80");
    // The sizing call reports 0 for a lone surrogate, which leaves nothing to write.
    EXPECT_EQ(Utf16ToUtf8Data(u"ab\u00E9\xDC00"), CBinaryData());
    EXPECT_EQ(Utf16ToUtf8Data(nullptr), CBinaryData());
}

TEST(LocalText, RoundTripsThroughEveryForm)
{
    const std::u16string unicode = u"Gr\u00FC\u00DFe \u20AC 100";
    for (unsigned int page : {65001u, 1252u}) {
        LocalTextScope scope(page);
        SCOPED_TRACE(page);
        const std::string local = Utf16ToLocal(unicode.data(), static_cast<unsigned int>(unicode.size()));
        const std::string utf8 = Bytes(LocalToUtf8Data(local.c_str()));
        EXPECT_EQ(utf8, "Gr\xC3\xBC\xC3\x9F" "e \xE2\x82\xAC 100");
        EXPECT_EQ(Utf8ToLocal(utf8.c_str()), local);
        const std::string utf16 = Bytes(LocalToUtf16Data(local.c_str()));
        ASSERT_EQ(utf16.size(), unicode.size() * 2);
        std::u16string units;
        for (std::size_t i = 0; i < utf16.size(); i += 2)
            units += static_cast<char16_t>(static_cast<unsigned char>(utf16[i]) |
                                           static_cast<unsigned char>(utf16[i + 1]) << 8);
        EXPECT_EQ(units, unicode);
    }
}

} // namespace
