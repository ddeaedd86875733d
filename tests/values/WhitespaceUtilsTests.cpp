#include <gtest/gtest.h>

#include <string>

#include "ExceptionAssert.h"
#include "WhitespaceUtils.h"

using VxXmlLib16::CWhitespaceUtils;
using Rule = CWhitespaceUtils::WhitespaceRule;

namespace {

struct RuleCase
{
    Rule rule;
    std::string text;
    std::string expected;
};

TEST(WhitespaceUtils, ApplyRuleByRule)
{
    const std::string mixed = "  a \t\r\n b  ";
    const RuleCase cases[] = {
        {CWhitespaceUtils::WhitespaceRule_None, mixed, mixed},
        {CWhitespaceUtils::WhitespaceRule_None, std::string("a\0b", 3), std::string("a\0b", 3)},
        {CWhitespaceUtils::WhitespaceRule_Preserve, "a\rb\nc\r\nd", "a\nb\nc\nd"},
        {CWhitespaceUtils::WhitespaceRule_Preserve, "a\r\r\nb", "a\n\nb"},
        {CWhitespaceUtils::WhitespaceRule_Preserve, std::string("a\0\rb", 4), std::string("a\0\nb", 4)},
        {CWhitespaceUtils::WhitespaceRule_Preserve, std::string("x\0 ", 3), std::string("x\0 ", 3)},
        {CWhitespaceUtils::WhitespaceRule_Replace, "a\tb\nc\rd", "a b c d"},
        {CWhitespaceUtils::WhitespaceRule_Replace, "a\r\nb", "a b"},
        {CWhitespaceUtils::WhitespaceRule_Replace, "\r\n\r\n", "  "},
        {CWhitespaceUtils::WhitespaceRule_Replace, std::string("a\0\tb", 4), "a"},
        {CWhitespaceUtils::WhitespaceRule_Replace, std::string("a\0 b", 4), std::string("a\0 b", 4)},
        {CWhitespaceUtils::WhitespaceRule_Collapse, mixed, "a b"},
        {CWhitespaceUtils::WhitespaceRule_Collapse, " \t\r\n ", ""},
        {CWhitespaceUtils::WhitespaceRule_Collapse, "", ""},
        {CWhitespaceUtils::WhitespaceRule_Collapse, "\va\f", "\va\f"},
        {CWhitespaceUtils::WhitespaceRule_Collapse, std::string("a\0b ", 4), "a"},
        // The NUL was the last byte written, so the space before it stays.
        {CWhitespaceUtils::WhitespaceRule_Collapse, std::string("a \0", 3), "a "},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << "rule " << c.rule << " [" << c.text << "]");
        EXPECT_EQ(CWhitespaceUtils::ApplyRule(c.rule, c.text), c.expected);
    }
}

TEST(WhitespaceUtils, PreserveOfCharactersAlwaysCopiesTheGivenLength)
{
    EXPECT_EQ(CWhitespaceUtils::Preserve("a\r\nb\rc", 6), "a\nb\nc");
    EXPECT_EQ(CWhitespaceUtils::Preserve("ab\r", 2), "ab");
    EXPECT_EQ(CWhitespaceUtils::Preserve("a\r\n", 2), "a\n");
    EXPECT_EQ(CWhitespaceUtils::Preserve(nullptr, 3), "");
    EXPECT_EQ(CWhitespaceUtils::Preserve("abc", -1), "");
}

TEST(WhitespaceUtils, UnknownRuleIsAProgrammingError)
{
    for (int rule : {-1, 4, 1000}) {
        EXPECT_TRUE(VxTest::Throws<VxXmlLib16::CVxException>(
            [rule] { CWhitespaceUtils::ApplyRule(static_cast<Rule>(rule), "x"); }, "Unknown WhitespaceRule"));
    }
}

} // namespace
