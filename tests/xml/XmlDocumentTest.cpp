// The document tree as the Expat reader builds it: names, namespaces, text, paths.

#include <gtest/gtest.h>

#include <string>

#include "ExceptionAssert.h"
#include "LocalTextScope.h"
#include "Exceptions.h"
#include "SerializationContext.h"
#include "XmlDocument.h"

using namespace VxXmlLib16;
using VxTest::Throws;

TEST(XmlDocumentTest, NamesAttributesAndPathsCarryTheirNamespaces)
{
    CXmlDocument document;
    document.LoadXml("<o:orders xmlns:o='urn:o' xmlns='urn:d' xmlns:x='urn:x' xmlns:xsi="
                     "'http://www.w3.org/2001/XMLSchema-instance'>\n"
                     "  <order o:id='1' plain='p'><item/><item/></order>\n"
                     "  <order xsi:nil='true' xsi:type='t'/>\n"
                     "  <x:order/>\n"
                     "</o:orders>");
    const CXmlElement *root = document.GetDocumentElement();
    // Declarations are not attributes in namespace mode.
    EXPECT_TRUE(root->GetAttributes().empty());

    const CXmlElement *order = root->GetFirstElement();
    const CXmlAttribute *id = order->GetAttributes()[0];
    EXPECT_EQ(order->GetNamespaceURI(), "urn:d");
    EXPECT_EQ(order->GetAttribute("plain", ""), "p");
    EXPECT_EQ(order->GetAttribute("plain", "urn:o"), "");

    const CXmlElement *nilOrder = order->GetNextSiblingElement();
    ASSERT_EQ(nilOrder->GetAttributes().size(), 2u);
    EXPECT_TRUE(nilOrder->GetAttributes()[0]->IsNilAttribute());
    EXPECT_FALSE(nilOrder->GetAttributes()[0]->IsNamespaceAttribute());
    EXPECT_TRUE(nilOrder->GetAttributes()[1]->IsNamespaceAttribute());
    EXPECT_FALSE(id->IsNilAttribute() || id->IsNamespaceAttribute());

    // Predicates only for repeated names; the empty alias of the default namespace gives no
    // prefix; an attribute's prefix stands before the "@".
    EXPECT_EQ(root->GetXPath(), "/o:orders");
    EXPECT_EQ(order->GetXPath(), "/o:orders/order[1]");
    EXPECT_EQ(nilOrder->GetNextSiblingElement()->GetXPath(), "/o:orders/x:order");
    EXPECT_EQ(order->GetFirstElement()->GetNextSiblingElement()->GetXPath(), "/o:orders/order[1]/item[2]");
    EXPECT_EQ(id->GetXPath(), "/o:orders/order[1]/o:@id");
    EXPECT_EQ(order->GetAttributes()[1]->GetXPath(), "/o:orders/order[1]/@plain");
}

TEST(XmlDocumentTest, AliasTableIsFlatAndKeepsTheLastDeclaration)
{
    CXmlDocument document;
    document.LoadXml("<r xmlns:a='urn:1' xmlns:b='urn:1'><c xmlns:a='urn:2'/></r>");
    EXPECT_EQ(document.LookupNamespaceFromAlias("a"), "urn:2");
    EXPECT_EQ(document.LookupAliasFromNamespace("urn:1"), "b");
    EXPECT_EQ(document.LookupAliasFromNamespace("urn:none"), "");
    EXPECT_EQ(document.LookupNamespaceFromAlias("none"), "");
    // A reload starts a new table.
    unsigned char second[] = "<e/>";
    document.LoadXmlStream(second, sizeof second - 1);
    EXPECT_EQ(document.LookupNamespaceFromAlias("a"), "");
}

TEST(XmlDocumentTest, WithoutNamespacesNamesStayWholeAndDeclarationsAreAttributes)
{
    CSerializationContext context;
    context.SetSchemaType(SchemaType_NoNamespaces);
    CXmlDocument document(context);
    document.LoadXml("<a:b xmlns:a='urn:a' a:c='1'/>");
    const CXmlElement *root = document.GetDocumentElement();
    EXPECT_EQ(root->GetLocalName(), "a:b");
    EXPECT_EQ(root->GetNamespaceURI(), "");
    ASSERT_EQ(root->GetAttributes().size(), 2u);
    EXPECT_EQ(root->GetAttributes()[0]->GetLocalName(), "xmlns:a");
    EXPECT_EQ(root->GetAttribute("a:c", ""), "1");
}

TEST(XmlDocumentTest, TextIsJoinedAroundChildrenAndArrivesInTheLocalEncoding)
{
    const char text[] = "<r>one<c>in</c>two&#13;three\r\nfour&#233;&#x4E2D;&amp;<![CDATA[x\r\n<y>]]></r>";
    CXmlDocument document;
    document.LoadXml(text);
    EXPECT_EQ(document.GetDocumentElement()->GetText(), "onetwothree\nfour\xC3\xA9\xE4\xB8\xAD&x\n<y>");
    EXPECT_EQ(document.GetDocumentElement()->GetFirstElement()->GetText(), "in");
    // CDATA keeps its markers only when the context does not strip them.
    CSerializationContext context;
    context.SetStripCDATA(false);
    CXmlDocument marked(context);
    marked.LoadXml(text);
    EXPECT_EQ(marked.GetDocumentElement()->GetText(), "onetwothree\nfour\xC3\xA9\xE4\xB8\xAD&<![CDATA[x\n<y>]]>");
    document.LoadXml(L"<r>\U0001F600x</r>"); // wide text is read as UTF-16
    EXPECT_EQ(document.GetDocumentElement()->GetText(), "\xF0\x9F\x98\x80x");
    LocalTextScope latin1(28591);
    document.LoadXml("<caf\xC3\xA9 n='\xC3\xBC'>\xC3\xA9t\xC3\xA9</caf\xC3\xA9>");
    const CXmlElement *root = document.GetDocumentElement();
    EXPECT_EQ(root->GetLocalName(), "caf\xE9");
    EXPECT_EQ(root->GetText(), "\xE9t\xE9");
    EXPECT_EQ(root->GetAttribute("n", ""), "\xFC");
}

TEST(XmlDocumentTest, FailuresKeepTheirTextsAndWhatWasBuilt)
{
    CXmlDocument document;
    EXPECT_TRUE(Throws<CVxException>([&] { document.LoadXml(""); }, "XML String is empty!"));
    EXPECT_TRUE(Throws<CVxException>([&] { document.LoadXml(static_cast<const char *>(nullptr)); },
                                     "XML String is empty!"));
    // The byte order mark of a wide text alone is no document.
    EXPECT_TRUE(Throws<CVxException>([&] { document.LoadXml(L""); }, "no element found at line 1"));
    unsigned char byte = '<';
    EXPECT_TRUE(Throws<CVxException>([&] { document.LoadXmlStream(&byte, 0); }, "XML Stream is empty!"));
    // A failed load leaves what was built until the next cleanup.
    EXPECT_THROW(document.LoadXml("<d><e></d>"), CVxException);
    ASSERT_NE(document.GetDocumentElement(), nullptr);
    EXPECT_EQ(document.GetDocumentElement()->GetLocalName(), "d");
    document.Cleanup();
    EXPECT_EQ(document.GetDocumentElement(), nullptr);
}

TEST(XmlDocumentTest, CallbackDropsConsumedElementsAndKeepsTheRest)
{
    static int seen = 0;
    CXmlDocument document(+[](CXmlElement *element) {
        ++seen;
        return element->GetLocalName() == "item";
    });
    document.LoadXml("<r>x<item>1</item><keep/>y<item>2</item><item><item/></item></r>");
    EXPECT_EQ(seen, 6);
    const CXmlElement *root = document.GetDocumentElement();
    EXPECT_EQ(root->GetText(), "xy");
    ASSERT_NE(root->GetFirstElement(), nullptr);
    EXPECT_EQ(root->GetFirstElement()->GetNextSiblingElement(), nullptr);
    EXPECT_EQ(root->GetFirstElement()->GetXPath(), "/r/keep");
}

// The reader remembers only so many distinct names; the rest are split afresh.
TEST(XmlDocumentTest, NamesBeyondTheReadersMemoryStillArriveWhole)
{
    std::string text = "<r xmlns:p='urn:p'>";
    for (int i = 0; i < 6000; ++i)
        text += "<p:n" + std::to_string(i) + " a" + std::to_string(i) + "='v'/>";
    text += "<p:n0/></r>";
    CXmlDocument document;
    document.LoadXml(text.c_str());
    const CXmlElement *child = document.GetDocumentElement()->GetFirstElement();
    for (int i = 0; i < 5999; ++i)
        child = child->GetNextSiblingElement();
    EXPECT_EQ(child->GetNamespaceURI(), "urn:p");
    EXPECT_EQ(child->GetAttribute("a5999", ""), "v");
    EXPECT_EQ(child->GetNextSiblingElement()->GetXPath(), "/r/p:n0[2]");
}
