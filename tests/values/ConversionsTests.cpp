#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <string>

#include "BinaryData.h"
#include "Conversions.h"
#include "DateTimeSpan.h"
#include "Decimal.h"
#include "ExceptionAssert.h"
#include "TestSupport.h"

using VxXmlLib16::CBinaryData;
using VxXmlLib16::CConversions;
using VxXmlLib16::CDateTime;
using VxXmlLib16::CDateTimeSpan;
using VxXmlLib16::CDecimal;
using VxXmlLib16::CVxException;
using VxXmlLib16::CVxInvalidParamException;
using VxXmlLib16::CVxInvalidValueException;
using Rule = VxXmlLib16::CWhitespaceUtils::WhitespaceRule;
using VxTest::Bytes;
using VxTest::Throws;

namespace {

constexpr Rule kNone = VxXmlLib16::CWhitespaceUtils::WhitespaceRule_None;
constexpr Rule kCollapse = VxXmlLib16::CWhitespaceUtils::WhitespaceRule_Collapse;

TEST(ConversionsToString, ScalarsRealsAndFormatOverrides)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const std::pair<std::string, std::string> cases[] = {
        {CConversions::i1ToString(static_cast<char>(200)), "-56"},
        {CConversions::i8ToString(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808"},
        {CConversions::ui8ToString(18446744073709551615ull), "18446744073709551615"},
        {CConversions::dayToString(5), "---05"}, {CConversions::monthToString(12), "--12"},
        {CConversions::yearToString(98), "98"}, {CConversions::charToString('\0'), ""},
        // Reals in the form of the C run-time.
        {CConversions::r8ToString(1.0), "1"}, {CConversions::r8ToString(0.1), "0.1"},
        {CConversions::r8ToString(1e20), "1e+020"}, {CConversions::r8ToString(-0.0), "-0"},
        {CConversions::r8ToString(123456789012345678.0), "1.234567890123457e+017"},
        {CConversions::r8ToString(nan), "NaN"}, {CConversions::r8ToString(inf), "INF"},
        {CConversions::r8ToString(-inf), "-INF"}, {CConversions::r4ToString(0.1f), "0.1"},
        {CConversions::r4ToString(1e-7f), "1e-007"}, {CConversions::r4ToString(16777216.0f), "1.677722e+007"},
        // FormatOverride; it never applies to the special values.
        {CConversions::r8ToString(2.5, "%.3f"), "2.500"}, {CConversions::r8ToString(1e20, "%E"), "1.000000E+020"},
        {CConversions::r8ToString(3.0, "%08.2lf%%"), "00003.00%"},
        {CConversions::r8ToString(0.5, "%.60f"), "0.5" + std::string(59, '0')},
        {CConversions::r8ToString(nan, "%.3f"), "NaN"}, {CConversions::r4ToString(0.25f, "%.1e"), "2.5e-001"},
        {CConversions::r4ToString(-inf, "%.1e"), "-INF"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(c.first, c.second);

    // An override that is not a printf format of one real is refused.
    for (const char *format : {"%s", "%n", "%f %f", "%*f", "%Lf", "%.2"}) {
        const std::string message =
            std::string("The format override [") + format + "] is not a printf format of one floating-point value";
        EXPECT_TRUE(Throws<CVxInvalidParamException>([format] { CConversions::r8ToString(1.0, format); }, message))
            << format;
    }
    EXPECT_THROW(CConversions::r4ToString(1.0f, "%d"), CVxInvalidParamException);
}

TEST(ConversionsFromString, RealsReadDecimalTextAndTheListedNamesOnly)
{
    const double inf = std::numeric_limits<double>::infinity();
    const std::pair<double, double> cases[] = {
        {CConversions::r8FromString(" \t-2e3", kNone), -2000}, {CConversions::r8FromString("INF", kNone), inf},
        {CConversions::r8FromString("  1E+020 ", kCollapse), 1e20}, {CConversions::r8FromString("-INF", kNone), -inf},
        {CConversions::r8FromString("-1e999", kNone), -inf}, {CConversions::r8FromString("1e-999", kNone), 0},
        {CConversions::r4FromString("3.40282356e38", kNone), FLT_MAX},
        {CConversions::r4FromString("3.40282357e38", kNone), inf},
    };
    for (const auto &c : cases)
        EXPECT_EQ(c.first, c.second);
    for (const char *name : {"NaN", "1.#QNAN", "-NAN"}) {
        EXPECT_TRUE(std::isnan(CConversions::r8FromString(name, kNone))) << name;
        EXPECT_TRUE(std::isnan(CConversions::r4FromString(name, kNone))) << name;
    }
    // Nothing but decimal text and the names above.
    const std::string refused[] = {"",    "inf", "Inf",  "+INF", "nan",  "NAN",        "infinity", "0x10",
                                   "1,5", "1e",  "1.5 ", "abc",  ".",    "-", std::string("1\0", 2), " "};
    for (const std::string &text : refused) {
        EXPECT_TRUE(Throws<CVxInvalidValueException>(
            [&text] { CConversions::r8FromString(text, kNone); },
            "The value [" + std::string(text.c_str()) + "] can not be converted to a r8"))
            << text;
    }
    // The message shows the text after the rule.
    EXPECT_TRUE(Throws<CVxInvalidValueException>([] { CConversions::r4FromString("  inf\t ", kCollapse); },
                                                 "The value [inf] can not be converted to a r4"));
}

// Each reader gives the value it read as decimal text.
using IntegerReader = std::function<std::string(const std::string &, Rule)>;

const std::map<std::string, IntegerReader> kIntegerReaders = {
    {"i1", [](const std::string &t, Rule r) {
         return std::to_string(static_cast<signed char>(CConversions::i1FromString(t, r)));
     }},
    {"i2", [](const std::string &t, Rule r) { return std::to_string(CConversions::i2FromString(t, r)); }},
    {"i4", [](const std::string &t, Rule r) { return std::to_string(CConversions::i4FromString(t, r)); }},
    {"i8", [](const std::string &t, Rule r) { return std::to_string(CConversions::i8FromString(t, r)); }},
    {"ui1", [](const std::string &t, Rule r) { return std::to_string(CConversions::ui1FromString(t, r)); }},
    {"ui2", [](const std::string &t, Rule r) { return std::to_string(CConversions::ui2FromString(t, r)); }},
    {"ui4", [](const std::string &t, Rule r) { return std::to_string(CConversions::ui4FromString(t, r)); }},
    {"ui8", [](const std::string &t, Rule r) { return std::to_string(CConversions::ui8FromString(t, r)); }},
};

TEST(ConversionsFromString, IntegersAcceptAndRefuse)
{
    // The value read, or the failure message.
    const struct { const char *type; std::string text; Rule rule; std::string expected; } cases[] = {
        {"i4", "-2147483648", kNone, "-2147483648"}, {"i4", " 7", kNone, "7"}, {"i4", "\t\v\f+007", kNone, "7"},
        {"i4", "2147483648", kNone, "The value [2147483648] is to large to fit in a i4"},
        {"i4", "-2147483649", kNone, "The value [-2147483649] is to large to fit in a i4"},
        {"i4", "99999999999x", kNone, "The value [99999999999x] is to large to fit in a i4"},
        {"i4", "7 ", kNone, "The value [7 ] can not be converted to a i4"},
        {"i4", "   ", kCollapse, "The value [] can not be converted to a i4"},
        {"i8", "-9223372036854775808", kNone, "-9223372036854775808"},
        {"i8", "9223372036854775808", kNone, "The value [9223372036854775808] is to large to fit in a i8"},
        {"i8", "abc", kNone, "The value [abc] can not be converted to a i8"},
        // A minus sign is read for the unsigned types too, and wraps.
        {"ui4", "4294967295", kNone, "4294967295"}, {"ui4", "-1", kNone, "4294967295"},
        {"ui4", "-4294967295", kNone, "1"}, {"ui8", "-1", kNone, "18446744073709551615"},
        {"ui4", "4294967296", kNone, "The value [4294967296] is to large to fit in a ui4"},
        {"ui4", "-4294967296", kNone, "The value [-4294967296] is to large to fit in a ui4"},
        {"ui8", "-18446744073709551616", kNone, "The value [-18446744073709551616] is to large to fit in a ui8"},
        {"ui8", "", kNone, "The value [] can not be converted to a ui8"},
        // The narrow types report their own range with the text before the rule, and the
        // faults of the 32-bit conversion unchanged.
        {"i1", "-128", kNone, "-128"}, {"i1", "127", kNone, "127"}, {"i2", " 32767 ", kCollapse, "32767"},
        {"i1", " 128 ", kCollapse, "The value [ 128 ] is to large to fit in a i1"},
        {"i1", "-129", kNone, "The value [-129] is to large to fit in a i1"},
        {"i1", "99999999999", kNone, "The value [99999999999] is to large to fit in a i4"},
        {"i2", "32768", kNone, "The value [32768] is to large to fit in a i2"},
        {"i2", " x ", kCollapse, "The value [x] can not be converted to a i4"},
        {"ui1", "255", kNone, "255"}, {"ui2", "65535", kNone, "65535"},
        {"ui1", "-1", kNone, "The value [-1] is to large to fit in a ui1"},
        {"ui2", "65536", kNone, "The value [65536] is to large to fit in a ui2"},
        {"ui2", "", kNone, "The value [] can not be converted to a ui4"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(testing::Message() << c.type << " [" << c.text << "]");
        const IntegerReader &read = kIntegerReaders.at(c.type);
        if (c.expected.rfind("The value [", 0) == 0) {
            EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { read(c.text, c.rule); }, c.expected));
        } else {
            EXPECT_EQ(read(c.text, c.rule), c.expected);
        }
    }
}

TEST(ConversionsFromString, BooleanAndChar)
{
    const std::pair<const char *, bool> accepted[] = {{"TRUE", true}, {"False", false}, {"1", true}, {"0", false}};
    for (const auto &c : accepted)
        EXPECT_EQ(CConversions::booleanFromString(c.first, kNone), c.second) << c.first;
    EXPECT_TRUE(CConversions::booleanFromString("\n true \t", kCollapse));
    const std::pair<std::string, Rule> refused[] = {
        {" true", kNone}, {"", kNone}, {"01", kNone}, {std::string("true\0", 5), kNone}, {" 2 ", kCollapse}};
    for (const auto &c : refused) {
        // The message shows the text as given, before the rule.
        const std::string message = "A Boolean Value read from an XML document was invalid [" +
                                    std::string(c.first.c_str()) + "]. Valid values are 'true', 'false', '1', or '0'";
        EXPECT_TRUE(Throws<CVxInvalidValueException>([&c] { CConversions::booleanFromString(c.first, c.second); },
                                                     message))
            << c.first;
    }

    EXPECT_EQ(CConversions::charFromString(" a\t", kCollapse), 'a');
    EXPECT_EQ(CConversions::charFromString(" ", kNone), ' ');
    // The message shows the text after the rule.
    const std::pair<const char *, const char *> refusedChars[] = {{"", ""}, {"\xC3\xA9", "\xC3\xA9"}, {" a b ", "a b"}};
    for (const auto &c : refusedChars) {
        EXPECT_TRUE(Throws<CVxInvalidValueException>(
            [&c] { CConversions::charFromString(c.first, kCollapse); },
            std::string("The value [") + c.second +
                "] can not be a char as it is either empty of greater than 1 char long"))
            << c.first;
    }
}

TEST(ConversionsFromString, DecimalAndIntegerThroughTheirParsers)
{
    const CDecimal value("1.5");
    // The FormatOverride of a decimal is a digit count read with atoi, not a printf format.
    const std::pair<const char *, const char *> formats[] = {{"", "1.5"}, {"2", "1.50"}, {"3 digits", "1.500"},
                                                             {"%.2f", "2."}};
    for (const auto &c : formats)
        EXPECT_EQ(CConversions::decimalToString(value, c.first), c.second) << '"' << c.first << '"';
    EXPECT_EQ(CConversions::decimalFromString(" 12.50\n", kNone).ToString(), "12.5");
    // Collapsing removes the tab that would otherwise hide the sign from the parser.
    EXPECT_EQ(CConversions::integerFromString("\t-5", kCollapse).ToString(), "-5");
    EXPECT_TRUE(Throws<CVxInvalidValueException>(
        [] { CConversions::decimalFromString("  1,5 ", kCollapse); },
        "The string representing a Decimal, contained an invalid char at position 1 [1,5]."));
}

TEST(ConversionsBinary, HexAndBase64ReadWithTheirRules)
{
    const std::string bytes("\x00\x0A\xFF\x41", 4);
    EXPECT_EQ(Bytes(CConversions::hexBinaryFromString("\t000aff41\r\n", kCollapse)), bytes);
    EXPECT_EQ(Bytes(CConversions::base64BinaryFromString(" AAr/\r\n QQ== ", kNone)), bytes);
    EXPECT_EQ(CConversions::base64BinaryFromString("  ", kCollapse), CBinaryData());
}

TEST(ConversionsDates, ReadAfterTheWhitespaceRuleAndPrintBack)
{
    using Read = CDateTime (*)(const std::string &, Rule);
    const struct { Read read; const char *text; CDateTime::DTType type; const char *printed; } cases[] = {
        {&CConversions::datetimeFromString, "\t2001-10-26T21:32:52.5Z \n", CDateTime::dt_dateTime,
         "2001-10-26T21:32:52.5Z"},
        {&CConversions::dateFromString, " 2001-10-26+02:00", CDateTime::dt_date, "2001-10-26+02:00"},
        {&CConversions::timeFromString, "12:00:00.000000001 ", CDateTime::dt_time, "12:00:00.000000001"},
        // The type comes from the form of the text, not from the reader.
        {&CConversions::dateFromString, "2001-10", CDateTime::dt_gYearMonth, "2001-10"},
        {&CConversions::yearMonthFromString, "---05", CDateTime::dt_gDay, "---05"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        const CDateTime value = c.read(c.text, kCollapse);
        EXPECT_EQ(c.type, value.GetType());
        // Every one of the five writers prints the form of the value's own type.
        EXPECT_EQ(c.printed, CConversions::monthDayToString(value));
        EXPECT_EQ(c.printed, CConversions::timeToString(value));
    }
}

// Partial dates, failures and durations all come from the value types' own readers.
TEST(ConversionsDates, PartialDatesFailuresAndDurations)
{
    EXPECT_EQ(CConversions::dayFromString(" ---31\n", kCollapse), 31);
    EXPECT_EQ(CConversions::monthFromString("--12", kNone), 12);
    EXPECT_EQ(CConversions::yearFromString("\t0098 ", kCollapse), 98);
    // Text of another date type holds no such field.
    EXPECT_THROW(CConversions::dayFromString("--12", kNone), CVxException);
    EXPECT_TRUE(Throws<CVxInvalidValueException>([&] { CConversions::dateFromString(" 2001-10-26", kNone); },
                                                 "Invalid XSD Date [ 2001-10-26] expected CCYY-MM-DD[Z|[+|-]hh:mm]"));
    const CDateTimeSpan span = CConversions::durationFromString(" -P1Y2M3DT4H5M6.123456789S\r\n", kCollapse);
    EXPECT_EQ("-P1Y2M3DT4H5M6.123456009S", CConversions::durationToString(span));
}

} // namespace
