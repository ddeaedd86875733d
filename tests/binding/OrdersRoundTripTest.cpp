// The generated classes of the reference schema against documents of the generator.

#include <gtest/gtest.h>

#include <cstdio>
#include <regex>
#include <string>

#include "ExceptionAssert.h"
#include "OrdersContext.h"

using namespace VxXmlLib16;

namespace {

std::string Generate(const std::string &arguments)
{
    const std::string command = "python3 " VX_SHARED_DIR "/tools/gen_orders.py " + arguments;
    std::string text;
    FILE *pipe = popen(command.c_str(), "r");
    if (!pipe)
        return text;
    char buffer[65536];
    for (std::size_t read; (read = fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        text.append(buffer, read);
    pclose(pipe);
    return text;
}

} // namespace

// The sum of one element's integer texts, straight from the text, wrapping around.
unsigned long long SumOf(const std::string &text, const std::string &element)
{
    const std::string open = "<" + element + ">";
    unsigned long long sum = 0;
    for (std::size_t at = text.find(open); at != std::string::npos; at = text.find(open, at + 1))
        sum += static_cast<unsigned long long>(std::stoll(text.substr(at + open.size())));
    return sum;
}

std::size_t CountOf(const std::string &text, const std::string &what)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
        ++count;
    return count;
}

// Equal texts, or the first place where they part.
::testing::AssertionResult SameText(const std::string &expected, const std::string &actual)
{
    if (expected == actual)
        return ::testing::AssertionSuccess();
    std::size_t at = 0;
    while (at < expected.size() && at < actual.size() && expected[at] == actual[at])
        ++at;
    const std::size_t from = at < 80 ? 0 : at - 80;
    return ::testing::AssertionFailure() << "texts part at byte " << at << ":\n" << expected.substr(from, 160)
                                         << "\n----\n" << actual.substr(from, 160);
}

std::string WithoutIndentation(const std::string &text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        result += text[at];
        if (text[at] != '>')
            continue;
        std::size_t next = at + 1;
        while (next < text.size() && (text[next] == '\n' || text[next] == '\t'))
            ++next;
        if (next < text.size() && text[next] == '<')
            at = next - 1;
    }
    return result;
}

CSmartPtr<Orders::COrdersType> ReadOrders(const std::string &text)
{
    CSmartPtr<Orders::COrdersType> orders = Orders::COrdersType::CreateInstance();
    orders->FromXml(text.c_str(), Orders::DocumentContext());
    return orders;
}

TEST(OrdersRoundTrip, GeneratedDocumentsReadAndWriteBack)
{
    for (const char *options : {"--orders 40 --seed 1 --formatted", "--orders 40 --seed 2", "--orders 5 --seed 9"}) {
        SCOPED_TRACE(options);
        const bool formatted = std::string(options).find("formatted") != std::string::npos;
        const std::string text = Generate(options);
        ASSERT_FALSE(text.empty());
        CSmartPtr<Orders::COrdersType> orders = ReadOrders(text);
        const std::string written = orders->ToXml(true, formatted, EOLType_LF, Orders::DocumentContext());
        // Every order, line and extension survives, and the content with them.
        EXPECT_EQ(CountOf(text, "<order "), static_cast<std::size_t>(orders->GetOrder()->GetCount()));
        EXPECT_EQ(CountOf(text, "<line "), CountOf(written, "<line "));
        EXPECT_EQ(CountOf(text, "<ext:"), CountOf(written, "<ext:"));
        EXPECT_EQ(CountOf(text, "xsi:type="), CountOf(written, "xsi:type="));
        EXPECT_EQ(SumOf(text, "quantity"), SumOf(written, "quantity"));
        EXPECT_EQ(SumOf(text, "serial"), SumOf(written, "serial"));
        // What the library writes, it reads back to the same text. A wildcard element keeps
        // the indentation it was read with as its text, so formatted text is compared
        // without the white space between tags.
        const std::string again = ReadOrders(written)->ToXml(true, formatted, EOLType_LF, Orders::DocumentContext());
        EXPECT_TRUE(formatted ? SameText(WithoutIndentation(written), WithoutIndentation(again))
                              : SameText(written, again));
    }
}

// An unformatted generator document with the library's normalisations applied by hand:
// the declaration, no line end after the last tag, canonical numbers and booleans, the all group in schema order, no
// nil primitive, and an element equal to its default written empty.
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
    std::string doubles;
    auto rest = text.cbegin();
    const std::regex discount("<discount>([^<]*)</discount>");
    for (std::sregex_iterator it(text.cbegin(), text.cend(), discount), end; it != end; ++it) {
        doubles.append(rest, (*it)[0].first);
        doubles += "<discount>" + CConversions::r8ToString(std::stod((*it)[1])) + "</discount>";
        rest = (*it)[0].second;
    }
    doubles.append(rest, text.cend());
    text = doubles;
    const std::regex customer("(<customer [^>]*>)([\\s\\S]*?)(\n?\t*)</customer>");
    std::string result;
    auto from = text.cbegin();
    for (std::sregex_iterator it(text.cbegin(), text.cend(), customer), end; it != end; ++it) {
        result.append(from, (*it)[0].first);
        const std::string children = (*it)[2];
        result += (*it)[1];
        for (const char *name : {"name", "email", "vip", "address"}) {
            std::smatch child;
            const std::string open = std::string("\n?\t*<") + name + ">";
            if (std::regex_search(children, child, std::regex(open + "[\\s\\S]*?</" + name + ">")))
                result += child[0];
        }
        result += std::string((*it)[3]) + "</customer>";
        from = (*it)[0].second;
    }
    result.append(from, text.cend());
    return result;
}

TEST(OrdersRoundTrip, DocumentsComeBackByteForByteApartFromTheNormalisations)
{
    for (const char *options : {"--orders 60 --seed 11", "--orders 60 --seed 12 --formatted"}) {
        SCOPED_TRACE(options);
        const bool formatted = std::string(options).find("formatted") != std::string::npos;
        const std::string text = Generate(options);
        const std::string written = ReadOrders(text)->ToXml(true, formatted, EOLType_LF, Orders::DocumentContext());
        EXPECT_TRUE(SameText(Normalised(text, formatted), written));
    }
}

TEST(OrdersRoundTrip, ObjectsAreTheSchemaStructures)
{
    const CSmartPtr<Orders::COrdersType> orders = ReadOrders(Generate("--orders 20 --seed 3"));
    int courier = 0;
    int pickup = 0;
    for (Orders::COrderType *order : *orders->GetOrder()) {
        EXPECT_FALSE(order->GetPayment()->GetSelected().empty());
        EXPECT_GE(order->GetLine()->GetCount(), 1);
        const CSmartPtr<Orders::CShipmentType> shipment = order->GetShipment();
        courier += dynamic_cast<Orders::CCourierShipmentType *>(static_cast<Orders::CShipmentType *>(shipment)) != nullptr;
        pickup += dynamic_cast<Orders::CPickupShipmentType *>(static_cast<Orders::CShipmentType *>(shipment)) != nullptr;
    }
    EXPECT_GT(courier + pickup, 0);
}

TEST(OrdersRoundTrip, SchemaErrorsNameTheirPlace)
{
    std::string text = Generate("--orders 2 --seed 5");
    const std::size_t quantity = text.find("<quantity>") + 10;
    text.replace(quantity, text.find('<', quantity) - quantity, "0");
    try {
        ReadOrders(text);
        FAIL() << "no exception";
    } catch (const CVxException &e) {
        EXPECT_EQ("/orders/order[1]/line[1]/quantity", e.GetPath());
        ASSERT_NE(nullptr, e.GetInnerException());
        EXPECT_EQ("The quantity [0] must lie between 1 and 10000", e.GetInnerException()->GetMessage());
    }
    // On writing, one level per element.
    CSmartPtr<Orders::COrdersType> orders = ReadOrders(Generate("--orders 2 --seed 5"));
    orders->GetOrder()->Item(1)->GetLine()->Item(0)->SetSku("no sku");
    try {
        orders->ToXml();
        FAIL() << "no exception";
    } catch (const CVxException &e) {
        EXPECT_EQ("Failed to convert the element [orders] to XML", e.GetMessage());
        ASSERT_NE(nullptr, e.GetInnerException());
        EXPECT_EQ("Failed to convert the element [order] to XML", e.GetInnerException()->GetMessage());
        ASSERT_NE(nullptr, e.GetInnerException()->GetInnerException());
        EXPECT_EQ("Failed to convert the element [line] to XML",
                  e.GetInnerException()->GetInnerException()->GetMessage());
    }
}
