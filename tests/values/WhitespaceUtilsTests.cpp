#include <gtest/gtest.h>

#include <string>

#include "ExceptionAssert.h"
#include "WhitespaceUtils.h"

using VxXmlLib16::CWhitespaceUtils;
using Rule = CWhitespaceUtils::WhitespaceRule;

namespace {

TEST(WhitespaceUtils, ApplyRuleByRuleAndUnknownRules)
{
    const std::string mixed = "  a \t\r\n b  ";
    constexpr Rule None = CWhitespaceUtils::WhitespaceRule_None;
    constexpr Rule Preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
    constexpr Rule Replace = CWhitespaceUtils::WhitespaceRule_Replace;
    constexpr Rule Collapse = CWhitespaceUtils::WhitespaceRule_Collapse;
    const struct { Rule rule; std::string text, expected; } cases[] = {
        {None, mixed, mixed}, {Preserve, "a\rb\nc\r\nd", "a\nb\nc\nd"}, {Preserve, "a\r\r\nb", "a\n\nb"},
        {Preserve, std::string("a\0\rb", 4), std::string("a\0\nb", 4)},
        {Replace, "a\tb\nc\rd", "a b c d"}, {Replace, "a\r\nb", "a b"},
        {Replace, std::string("a\0\tb", 4), "a"}, {Replace, std::string("a\0 b", 4), std::string("a\0 b", 4)},
        {Collapse, mixed, "a b"}, {Collapse, " \t\r\n ", ""}, {Collapse, "\va\f", "\va\f"},
        // The NUL was the last byte written, so the space before it stays.
        {Collapse, std::string("a \0", 3), "a "},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << "rule " << c.rule << " [" << c.text << "]");
        EXPECT_EQ(CWhitespaceUtils::ApplyRule(c.rule, c.text), c.expected);
    }

    for (int rule : {-1, 4, 1000}) {
        EXPECT_TRUE(VxTest::Throws<VxXmlLib16::CVxException>(
            [rule] { CWhitespaceUtils::ApplyRule(static_cast<Rule>(rule), "x"); }, "Unknown WhitespaceRule"));
    }
}

TEST(WhitespaceUtils, PreserveOfCharactersAlwaysCopiesTheGivenLength)
{
    EXPECT_EQ(CWhitespaceUtils::Preserve("a\r\nb\rc", 6), "a\nb\nc");
    EXPECT_EQ(CWhitespaceUtils::Preserve("a\r\n", 2), "a\n");
    EXPECT_EQ(CWhitespaceUtils::Preserve(nullptr, 3), "");
    EXPECT_EQ(CWhitespaceUtils::Preserve("abc", -1), "");
}

} // namespace
