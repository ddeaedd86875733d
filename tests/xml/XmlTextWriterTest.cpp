#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "Exceptions.h"
#include "ExceptionAssert.h"
#include "TextStream.h"
#include "XmlTextWriter.h"

using namespace VxXmlLib16;
using VxTest::Throws;

namespace {

const std::string Xsi = "http://www.w3.org/2001/XMLSchema-instance";
const std::string XmlNs = "http://www.w3.org/XML/1998/namespace";

// Counts the writer's flushes; the text stays in memory as in a plain stream.
class CountingStream : public CTextStream
{
public:
    void Flush() override { ++flushes; }
    int flushes = 0;
};

class XmlTextWriterTest : public ::testing::Test
{
protected:
    XmlTextWriterTest() { writer.StartDocument(); }

    std::string Text() { return std::string(stream.GetText(), stream.GetLength()); }

    void Leaf(const std::string &name, const std::string &uri = std::string())
    {
        writer.StartElement(name, uri);
        writer.EndElement();
    }

    CountingStream stream;
    CXmlTextWriter writer{&stream};
};

} // namespace

TEST_F(XmlTextWriterTest, EscapingDiffersBetweenElementAndAttributeText)
{
    const std::string raw = "a\r\nb\"c'd\te&f<g>h\xC3\xA9\ri";
    writer.StartElement("r", "");
    writer.WriteAttribute("v", "", raw, ItemType_string);
    writer.WriteElementValue(raw, ItemType_string, false);
    writer.WriteElementValue(std::string("|x\0y", 4), ItemType_string, false); // a zero byte ends the text
    writer.EndElement();
    EXPECT_EQ(Text(), "<r v=\"a&#xA;b&quot;c'd\te&amp;f&lt;g&gt;h\xC3\xA9i\">"
                      "a\nb\"c'd\te&amp;f&lt;g&gt;h\xC3\xA9i|x</r>\n");
}

TEST_F(XmlTextWriterTest, EmptyValuesDefaultsAndCDataPrefixes)
{
    writer.SetFormatted(false);
    writer.StartElement("r", "");
    writer.StartElement("a", "");
    writer.WriteElementValue("", ItemType_string, false);
    writer.WriteAttribute("still", "", "open", ItemType_string); // the start tag stayed open
    writer.EndElement();
    writer.StartElement("b", "");
    writer.WriteElementValue("3", ItemType_i4, true);
    writer.EndElement();
    writer.StartElement("c", "");
    writer.WriteElementValue("<![CDATA[x<y", ItemType_string, false); // no terminator: stays so
    writer.WriteElementValue("<![CDATA x<y", ItemType_string, false);
    writer.EndElement();
    writer.SetWriteDefaultValues(true);
    writer.StartElement("d", "");
    writer.WriteElementValue("3", ItemType_i4, true);
    writer.EndElement();
    writer.EndElement();
    EXPECT_EQ(Text(), "<r><a still=\"open\"/><b/><c><![CDATA[x<y&lt;![CDATA x&lt;y</c><d>3</d></r>");
}

// The root declares the alias table; an attribute in a namespace always gets a prefix,
// declared in front of the first attribute that needs it; a type in the default namespace
// needs none.
TEST_F(XmlTextWriterTest, RootDeclaresTheTableAndAttributesAndTypesGetPrefixes)
{
    writer.SetFormatted(false);
    writer.AddNamespace("d", "urn:d");
    writer.AddNamespace("z", "urn:b");
    writer.AddNamespace("t", "urn:t");
    writer.AddNamespace("x2", XmlNs + "-extra"); // a prefix match is enough to be skipped
    writer.AddNamespace("", "urn:empty");        // an empty alias is no alias
    writer.SetDefaultNamespace("urn:d");
    writer.StartElement("doc", "urn:d");
    writer.WriteAttribute("lang", XmlNs, "en", ItemType_string);
    writer.WriteAttribute("a", "urn:d", "1", ItemType_string);
    writer.WriteAttribute("b", "urn:u", "2", ItemType_string);
    writer.WriteAttribute("c", "urn:u", "3", ItemType_string);
    writer.WriteTypeAttribute("urn:d", "D", ItemType_XmlObject);
    Leaf("child", "urn:u");
    Leaf("e", "urn:empty");
    writer.StartElement("f", "urn:d");
    writer.WriteTypeAttribute("urn:t", "T", ItemType_XmlObject);
    writer.WriteNilAttribute();
    writer.EndElement();
    writer.StartElement("g", "");
    writer.WriteTypeAttribute("urn:n", "N", ItemType_XmlObject);
    writer.EndElement();
    writer.EndElement();
    // The declaration made for the type's namespace leaves a double blank behind it; the
    // alias AC is free again once the element that declared it is closed.
    EXPECT_EQ(Text(), "<doc xmlns=\"urn:d\" xmlns:z=\"urn:b\" xmlns:d=\"urn:d\" xmlns:t=\"urn:t\" xml:lang=\"en\" "
                      "d:a=\"1\" xmlns:AA=\"urn:u\" AA:b=\"2\" AA:c=\"3\" xmlns:AB=\"" + Xsi + "\" AB:type=\"D\">"
                      "<AA:child/><AC:e xmlns:AC=\"urn:empty\"/><f AB:type=\"t:T\" AB:nil=\"true\"/>"
                      "<g xmlns:AC=\"urn:n\"  AB:type=\"AC:N\"/></doc>");
}

// The writer refuses misuse and leaves what it wrote; attributes are written only while
// the start tag is open, and a refused line end leaves the old one in place.
TEST_F(XmlTextWriterTest, MisuseFailsAndKeepsWhatWasWritten)
{
    const std::string message = "Attributes must be added before elements";
    auto expectRefused = [&](const char *when) {
        SCOPED_TRACE(when);
        EXPECT_TRUE(Throws<CVxException>([&] { writer.WriteAttribute("a", "", "1", ItemType_string); }, message));
        EXPECT_TRUE(Throws<CVxException>([&] { writer.WriteTypeAttribute("", "T", ItemType_XmlObject); }, message));
        EXPECT_TRUE(Throws<CVxException>([&] { writer.WriteNilAttribute(); }, message));
    };
    writer.SetEOLType(EOLType_CRLF);
    EXPECT_TRUE(Throws<CVxException>([&] { writer.SetEOLType(static_cast<EOLType>(2)); }, "Invalid EOL type."));
    expectRefused("nothing open");
    writer.StartElement("r", "");
    Leaf("child");
    expectRefused("after a child");
    writer.WriteElementValue("partial", ItemType_string, false);
    EXPECT_TRUE(Throws<CVxException>([&] { writer.EndDocument(); }, "An Element has not been closed."));
    EXPECT_EQ(Text(), "<r>\r\n\t<child/>\r\npartial");
    writer.EndElement();
    EXPECT_TRUE(Throws<CVxException>([&] { writer.EndElement(); }, "No element is open."));
}

TEST_F(XmlTextWriterTest, DeclarationNamesTheStreamEncoding)
{
    const std::pair<XmlEncoding, const char *> cases[] = {
        {XmlEncoding_UTF8, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"},
        {XmlEncoding_UTF16, "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n"},
        {XmlEncoding_UTF16NoDecl, "<?xml version=\"1.0\"?>\r\n"},
    };
    for (const auto &[encoding, expected] : cases) {
        CTextStream encoded(encoding);
        CXmlTextWriter declaring(&encoded);
        declaring.SetFormatted(false); // the line end does not depend on the layout
        declaring.SetEOLType(EOLType_CRLF);
        declaring.WriteDeclaration();
        EXPECT_EQ(std::string(encoded.GetText()), expected);
    }
}

TEST_F(XmlTextWriterTest, CommentSchemaAndRawTextAreWrittenAsGiven)
{
    writer.WriteComment("x<y\n--");
    writer.StartElement("doc", "");
    writer.WriteInlineSchema("<s/>");
    writer.CloseStartTag();
    writer.WriteRawText("<x a=\"&amp;\"/>");
    writer.EndElement();
    EXPECT_EQ(Text(), "<!--x&lt;y\n---->\n<doc \n<s/>\n>\n<x a=\"&amp;\"/>\n</doc>\n");
}

TEST(MakeUniqueAlias, FirstTwoLetterAliasNotTakenAsAValue)
{
    CXmlWriter::AliasTable table{{"AB", "x"}, {"urn:1", "AA"}};
    EXPECT_EQ(CXmlWriter::MakeUniqueAlias(table), "AB"); // a key is no alias
    for (char c = 'A'; c <= 'Z'; ++c)
        table[std::string("urn:A") + c] = std::string("A") + c;
    EXPECT_EQ(CXmlWriter::MakeUniqueAlias(table), "BA");
}

TEST_F(XmlTextWriterTest, StreamIsFlushedOnceItHolds4096Bytes)
{
    writer.StartElement("r", "");
    writer.WriteElementValue(std::string(4088, 'x'), ItemType_string, false);
    EXPECT_EQ(stream.flushes, 0); // 4091 bytes
    writer.EndElement(); // "</r>\n" reaches 4096
    EXPECT_EQ(stream.flushes, 1);
}
