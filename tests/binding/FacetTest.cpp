#include <gtest/gtest.h>

#include <string>

#include "Exceptions.h"
#include "PrimitiveRestrictions.h"
#include "Variant.h"

using namespace VxXmlLib16;

namespace {

constexpr auto Collapse = CWhitespaceUtils::WhitespaceRule_Collapse;

// Facets by name; everything else unset.
struct Facets
{
    const char *pattern = "";
    int minLength = -1, maxLength = -1;
    const char *minInclusive = "", *maxInclusive = "", *minExclusive = "", *maxExclusive = "";
    int length = -1, totalDigits = -1, fractionDigits = -1;

    CPrimitiveRestrictions Make() const
    {
        return CPrimitiveRestrictions(pattern, minLength, maxLength, minInclusive, maxInclusive, minExclusive,
                                      maxExclusive, length, totalDigits, fractionDigits);
    }
};

// "" when the value passes, else the failure's message, marked "other: " if no invalid value.
std::string Check(const char *text, ItemType type, const Facets &facets)
{
    VxVariant value;
    value.FromString(text, type, Collapse);
    try {
        CheckPrimitiveRestriction("e", value, type, facets.Make());
    } catch (const CVxInvalidValueException &e) {
        return e.GetMessage();
    } catch (const CVxException &e) {
        return "other: " + e.GetMessage();
    }
    return "";
}

Facets Min(const char *bound) { Facets f; f.minInclusive = bound; return f; }
Facets Max(const char *bound) { Facets f; f.maxInclusive = bound; return f; }
Facets MinEx(const char *bound) { Facets f; f.minExclusive = bound; return f; }
Facets MaxEx(const char *bound) { Facets f; f.maxExclusive = bound; return f; }
Facets Digits(int total, int fraction = -1) { Facets f; f.totalDigits = total; f.fractionDigits = fraction; return f; }
Facets Pattern(const char *pattern) { Facets f; f.pattern = pattern; return f; }
Facets Lengths(int lo, int hi, int exact) { Facets f; f.minLength = lo; f.maxLength = hi; f.length = exact; return f; }

} // namespace

TEST(Facets, EachTypeAppliesTheFacetsOfItsRow)
{
    const struct {
        const char *value;
        ItemType type;
        Facets facets;
        const char *failure; // null when the value passes
    } cases[] = {
        {"5", ItemType_i4, Min("5"), nullptr}, {"4", ItemType_i4, Min("5"), "Invalid Value for e [4]"},
        {"5", ItemType_i4, MinEx("5"), "Invalid Value for e [5]"}, {"5", ItemType_i4, Max("5"), nullptr},
        {"5", ItemType_i4, MaxEx("5"), "Invalid Value for e [5]"},
        {"4294967295", ItemType_ui4, Max("10"), "Invalid Value for e [-1]"}, // printed through a signed int
        {"18446744073709551615", ItemType_ui8, Max("10"), "Invalid Value for e [18446744073709551615]."},
        {"-9", ItemType_i8, Min("-8"), "Invalid Value for e [-9]."},
        {"2.5", ItemType_r8, MaxEx("2.5"), "Invalid Value for e [2.500000]"},
        {"INF", ItemType_r8, Max("INF"), nullptr}, {"-INF", ItemType_r4, Min("-1"), "Invalid Value for e [-inf]"},
        {"NaN", ItemType_r8, Min("0"), "Invalid Value for e [nan]"}, {"NaN", ItemType_r8, Facets(), nullptr},
        {"1.10", ItemType_decimal, Min("1.1"), nullptr},
        {"1.09", ItemType_decimal, Min("1.1"), "Invalid Value for e [1.09]."},
        {"123456789012345678901", ItemType_integer, MaxEx("123456789012345678901"),
         "Invalid Value for e [123456789012345678901]."},
        {"---05", ItemType_day, Min("---06"), "Invalid Value for e [5]"},
        {"--07", ItemType_month, Max("--06"), "Invalid Value for e [7]"},
        {"1999", ItemType_year, MinEx("1999"), "Invalid Value for e [1999]"},
        {"2001-02-03", ItemType_date, Max("2001-02-02"), "Invalid Value for e [2001-02-03]."},
        {"10:00:00", ItemType_time, MinEx("10:00:00"), "Invalid Value for e [10:00:00]."},
        {"P1Y", ItemType_duration, MaxEx("P12M"), "Invalid Value for e [P1Y]."},
        {"true", ItemType_boolean, Max("false"), nullptr},
        // A zoned bound within 14 hours of an unzoned value is indeterminate: it passes every bound.
        {"2001-01-01T12:00:00", ItemType_datetime, Min("2001-01-01T12:00:00Z"), nullptr},
        {"2001-01-01T12:00:00", ItemType_datetime, Max("2001-01-01T12:00:00Z"), nullptr},
        {"2001-01-01T12:00:00", ItemType_datetime, MinEx("2001-01-01T12:00:00Z"), nullptr},
        {"2001-01-01T12:00:00", ItemType_datetime, MaxEx("2001-01-01T12:00:00Z"), nullptr},
        // Total digits count the sign; a decimal counts integer and fraction digits, and 0 has none.
        {"-100", ItemType_i4, Digits(3), "Invalid Value for e [-100]"},
        {"999", ItemType_i4, Digits(3), nullptr},
        {"0", ItemType_ui1, Digits(0), "Invalid Value for e [0]"},
        {"0", ItemType_decimal, Digits(0), nullptr},
        {"0.5", ItemType_decimal, Digits(1, 1), nullptr},
        {"12.5", ItemType_decimal, Digits(2), "Invalid Value for e [12.5]."},
        {"1.25", ItemType_decimal, Digits(5, 1), "Invalid Value for e [1.25]."},
        {"-12345", ItemType_integer, Digits(6), nullptr},
        {"-12345", ItemType_integer, Digits(5), "Invalid Value for e [-12345]."},
        // Lengths count bytes: one character, two bytes.
        {"\xC3\xA9", ItemType_string, Lengths(2, 2, 2), nullptr},
        {"abc", ItemType_string, Lengths(-1, 2, -1), "Invalid Value for e [abc]."},
        {"0aff", ItemType_hexBinary, Lengths(3, -1, -1), "Invalid Value for e [0AFF]."},
        {"QUJD", ItemType_base64Binary, Lengths(-1, -1, 2), "Invalid Value for e [QUJD]."},
        {"QUJD", ItemType_base64Binary, Lengths(3, 3, 3), nullptr},
        // A facet outside a type's row is ignored.
        {"5", ItemType_i4, Pattern("x"), nullptr},
        // char has no row: it always fails.
        {"x", ItemType_char, Facets(), "Unknown type [char]."},
        // A bad bound is the conversion's fault, not a facet failure.
        {"5", ItemType_i4, Min("five"), "The value [five] can not be converted to a i4"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(c.failure ? c.failure : "", Check(c.value, c.type, c.facets)) << c.value;

    EXPECT_THROW(CheckRestrictionValue("e", 'x', ItemType_char, CPrimitiveRestrictions()), CVxInvalidValueException);
}

TEST(Facets, PatternsAreTranslatedAndAnchored)
{
    const struct { const char *pattern, *value; bool matches; } cases[] = {
        {"\\d{5}", "12345", true},
        {"\\d{5}", "123456", false}, // anchored at the end
        {"\\d{5}", "a12345", false}, {"\\i\\c*", "xs:name-1.a", true}, {"\\i\\c*", "1abc", false},
        {"\\\\i", "\\i", true}, // an escaped backslash stays literal
        {"\\\\i", "a", false}, {"\\I+", "12", true}, {"\\C", "a", false},
        {"a|b", "ab", false}, // alternatives sit inside the anchors
        {"\\p{IsBasicLatin}+", "abc", true}, {"\\p{IsLatin-1Supplement}", "\xC3\xA9", true},
        {"\\p{IsLatinExtended-A}", "\xC5\x81", true}, {"\\p{IsLatinExtended-B}", "\xC6\x80", true},
        {"\\p{IsLatinExtended-B}", "\xC9\x8F", true}, {"\\p{IsLatinExtended-B}", "\xC9\x90", false},
        {"(a*)*b", "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa", false}, // gives up instead of hanging
    };
    for (const auto &c : cases)
        EXPECT_EQ(c.matches, MatchXsdPattern(c.pattern, c.value)) << c.pattern << " ~ " << c.value;

    EXPECT_EQ("Invalid Value for e [ab].", Check("ab", ItemType_string, Pattern("[a-z]")));
    // A pattern that does not compile is no facet failure.
    const std::string broken = Check("v", ItemType_string, Pattern("("));
    EXPECT_EQ(0u, broken.find("other: Invalid Regular Expression: v Error: '"));
    EXPECT_NE(std::string::npos, broken.find("'\nInvalid Value for e [v]."));
}
