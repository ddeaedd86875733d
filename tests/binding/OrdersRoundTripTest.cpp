// The generated classes of the reference schema against documents of the generator.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <regex>
#include <string>

#include "ExceptionAssert.h"
#include "OrdersContext.h"
#include "OrdersDocument.h"

using namespace VxXmlLib16;
using VxTest::Chain;
using VxTest::Levels;

namespace {

// Equal texts, or the first place where they part.
::testing::AssertionResult SameText(const std::string &expected, const std::string &actual)
{
    if (expected == actual)
        return ::testing::AssertionSuccess();
    const std::size_t at = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end()).first -
                           expected.begin();
    const std::size_t from = at < 80 ? 0 : at - 80;
    return ::testing::AssertionFailure() << "texts part at byte " << at << ":\n" << expected.substr(from, 160)
                                         << "\n----\n" << actual.substr(from, 160);
}

// Each match of the pattern replaced by what the function makes of it.
std::string ReplaceEach(const std::string &text, const std::regex &pattern,
                        const std::function<std::string(const std::smatch &)> &replace)
{
    std::string result;
    auto from = text.cbegin();
    for (std::sregex_iterator it(text.cbegin(), text.cend(), pattern), end; it != end; ++it) {
        result.append(from, (*it)[0].first);
        result += replace(*it);
        from = (*it)[0].second;
    }
    return result.append(from, text.cend());
}

CSmartPtr<Orders::COrdersType> ReadOrders(const std::string &text)
{
    CSmartPtr<Orders::COrdersType> orders = Orders::COrdersType::CreateInstance();
    orders->FromXml(text.c_str(), Orders::DocumentContext());
    return orders;
}

// A generator document with the library's normalisations applied by hand: the
// declaration, no line end after the last tag when unformatted, canonical numbers and
// booleans, the all group in schema order, no nil primitive, and an element equal to its
// default written empty.
std::string Normalised(std::string text, bool formatted)
{
    text.replace(0, text.find("?>") + 2, "<?xml version=\"1.0\"?>");
    if (!formatted && !text.empty() && text.back() == '\n')
        text.pop_back();
    // Formatted, a wildcard's children stand on lines of their own.
    text = std::regex_replace(text, std::regex("(\n(\t*))<(ext:\\w+)([^>]*)>(<ext:[^<]*>[^<]*</ext:\\w+>)</ext:\\w+>"),
                              "$1<$3$4>$1\t$5$1</$3>");
    const std::regex zeros("(<(unitPrice|weight)[^>]*>[0-9]+)(\\.[0-9]*[1-9])?\\.?0*<");
    text = std::regex_replace(text, zeros, "$1$3<");
    text = std::regex_replace(text, std::regex("<vip>1</vip>"), "<vip>true</vip>");
    text = std::regex_replace(text, std::regex("<vip>0</vip>"), "<vip>false</vip>");
    text = std::regex_replace(text, std::regex("\n?\t*<note xsi:nil=\"true\"/>"), "");
    text = std::regex_replace(text, std::regex("<priority>3</priority>"), "<priority/>");
    // Doubles come back in the one form of the conversions ("5E-1" is "0.5").
    text = ReplaceEach(text, std::regex("<discount>([^<]*)</discount>"), [](const std::smatch &match) {
        return "<discount>" + CConversions::r8ToString(std::stod(match[1])) + "</discount>";
    });
    const std::regex customer("(<customer [^>]*>)([\\s\\S]*?)(\n?\t*)</customer>");
    return ReplaceEach(text, customer, [](const std::smatch &match) {
        std::string result = match[1];
        const std::string children = match[2];
        for (const std::string name : {"name", "email", "vip", "address"}) {
            std::smatch child;
            if (std::regex_search(children, child, std::regex("\n?\t*<" + name + ">[\\s\\S]*?</" + name + ">")))
                result += child[0];
        }
        return result + std::string(match[3]) + "</customer>";
    });
}

} // namespace

TEST(OrdersRoundTrip, DocumentsComeBackByteForByteApartFromTheNormalisations)
{
    for (const bool formatted : {false, true}) {
        SCOPED_TRACE(formatted ? "formatted" : "unformatted");
        const std::string text = VxTest::OrdersDocument(60, formatted ? 12 : 11, formatted);
        const std::string written = ReadOrders(text)->ToXml(true, formatted, EOLType_LF, Orders::DocumentContext());
        EXPECT_TRUE(SameText(Normalised(text, formatted), written));
        // What the library wrote, it reads back to the same text; formatted, a wildcard would
        // keep the indentation it read as its text.
        if (!formatted) {
            const std::string again = ReadOrders(written)->ToXml(true, false, EOLType_LF, Orders::DocumentContext());
            EXPECT_TRUE(SameText(written, again));
        }
    }
}

TEST(OrdersRoundTrip, SubstitutionFollowsTheTypeAttribute)
{
    const std::string text = VxTest::OrdersDocument(2, 5, false);
    const std::string type = " xsi:type=\"CourierShipmentType\"";
    ASSERT_NE(std::string::npos, text.find(type));
    CSerializationContext context = Orders::DocumentContext();
    context.SetWriteTypeAttribute(false);
    std::string expected = Normalised(text, false);
    expected.erase(expected.find(type), type.size());
    EXPECT_TRUE(SameText(expected, ReadOrders(text)->ToXml(true, false, EOLType_LF, context)));

    // A type that no class fits leaves the element where it stands, for the wildcard behind.
    std::string drone = text;
    drone.replace(drone.find("CourierShipmentType"), 19, "drone");
    const CSmartPtr<Orders::COrdersType> orders = ReadOrders(drone);
    EXPECT_EQ(nullptr, static_cast<Orders::CShipmentType *>(orders->GetOrder()->Item(1)->GetShipment()));
    const std::string written = orders->ToXml(false, false, EOLType_LF, context);
    EXPECT_NE(std::string::npos, written.find("<shipment xsi:type=\"drone\">"));
}

TEST(OrdersRoundTrip, FailuresNameTheirPlace)
{
    std::string text = VxTest::OrdersDocument(2, 5, false);
    const std::size_t quantity = text.find("<quantity>") + 10;
    text.replace(quantity, text.find('<', quantity) - quantity, "0");
    // On reading the path is named once, by the element or attribute whose setter refused
    // the value.
    EXPECT_EQ((Levels{"Exception: Failed to set the property value.\nPath: /orders/order[1]/line[1]/quantity",
                      "InvalidValue: The quantity [0] must lie between 1 and 10000"}),
              Chain([&] { ReadOrders(text); }));
    text.replace(text.find(" id=\"") + 5, 9, "bad");
    EXPECT_EQ((Levels{"Exception: Failed to set the property value [bad].\nPath: /orders/order[1]/@id",
                      "InvalidValue: Invalid Value for id [bad]."}),
              Chain([&] { ReadOrders(text); }));
}
