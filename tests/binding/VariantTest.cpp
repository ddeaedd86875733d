#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "Decimal.h"
#include "ExceptionAssert.h"
#include "PlainObject.h"
#include "Variant.h"

using namespace VxXmlLib16;
using VxTest::Throws;

TEST(Variant, StatesInvalidValidNil)
{
    VxVariant v;
    EXPECT_FALSE(v.IsValid());
    v.SetNil(); // nil without a type
    EXPECT_TRUE(v.IsValid());
    EXPECT_EQ(ItemType_Invalid, v.GetTypeAsEnum());
    v.SetI4(5); // Clear on an invalid variant leaves the nil flag: kept as it is
    EXPECT_TRUE(v.IsNil());

    VxVariant s;
    s.SetString("text");
    s.SetNil();
    EXPECT_EQ("", s.GetString()); // the string is gone, the type stays
    const VxVariant nilCopy(s);
    EXPECT_TRUE(nilCopy.IsNil());
    EXPECT_EQ(ItemType_string, nilCopy.GetTypeAsEnum());
    s.Clear();
    EXPECT_FALSE(s.IsNil());
    EXPECT_FALSE(s.IsValid());
}

TEST(Variant, CopiesAreDeepOrCountedAndSelfAssignmentClears)
{
    VxVariant s;
    s.SetString("abc");
    VxVariant copy(s);
    s.SetString("changed");
    EXPECT_EQ("abc", copy.GetString());
    VxVariant &alias = copy;
    copy = alias;
    EXPECT_FALSE(copy.IsValid());

    int destroyed = 0;
    {
        auto *object = new VxTest::CPlainObject(&destroyed);
        VxVariant v;
        v.SetXmlObject(object);
        VxVariant other(v);
        v.Clear();
        EXPECT_EQ(0, destroyed);
        EXPECT_EQ(object, other.GetXmlObject());
    }
    EXPECT_EQ(1, destroyed);
}

TEST(Variant, TypeNamesAndTextConversions)
{
    VxVariant v;
    v.SetUI2(3);
    EXPECT_EQ("ui2", v.GetType());
    v.SetXmlObject(nullptr);
    EXPECT_TRUE(Throws<CVxException>([&] { v.GetType(); }, "Invalid Type 27"));
    EXPECT_TRUE(Throws<CVxException>([&] { v.ToString(nullptr); }, "Invalid Type 27 to convert to string"));
    // The message names the variant's own type, not the one asked for.
    v.SetI4(1);
    EXPECT_TRUE(Throws<CVxException>(
        [&] { v.FromString("1", ItemType_XmlObject, CWhitespaceUtils::WhitespaceRule_Collapse); },
        "Invalid Type 5 to convert to string"));

    v.FromString(" 42 ", ItemType_i4, CWhitespaceUtils::WhitespaceRule_Collapse);
    EXPECT_EQ("42", v.ToString("%5.2f")); // the format is ignored for integers

    // A failing conversion leaves the old value.
    EXPECT_THROW(v.FromString("x", ItemType_i4, CWhitespaceUtils::WhitespaceRule_Collapse), CVxInvalidValueException);
    EXPECT_EQ(42, v.GetI4());

    v.SetR8(1.0 / 3);
    EXPECT_EQ("0.33", v.ToString("%.2f"));
    v.SetR8(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ("NaN", v.ToString("%.2f"));
    const CDecimal third = CDecimal(1) / CDecimal(3);
    v.SetDecimal(third);
    EXPECT_EQ(third.ToString(2), v.ToString("2")); // a digit count for decimals
    EXPECT_EQ(third.ToString(), v.ToString(nullptr));

    const struct { ItemType type; const char *text; } roundTrips[] = {
        {ItemType_hexBinary, "0AFF"}, {ItemType_base64Binary, "QUJD"}, {ItemType_i1, "-128"},
        {ItemType_ui8, "18446744073709551615"}, {ItemType_boolean, "true"}, {ItemType_string, "a b"},
        {ItemType_date, "2001-02-03"}, {ItemType_duration, "P1Y2M"}, {ItemType_integer, "-12345678901234567890"},
        {ItemType_year, "1999"}, {ItemType_month, "--07"}, {ItemType_day, "---09"}, {ItemType_time, "10:11:12"},
        {ItemType_monthDay, "--02-29"}};
    for (const auto &c : roundTrips) {
        VxVariant value;
        value.FromString(c.text, c.type, CWhitespaceUtils::WhitespaceRule_Preserve);
        EXPECT_EQ(c.text, value.ToString(nullptr)) << c.type;
    }
}
