#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "ExceptionAssert.h"
#include "Orders.h"
#include "TestSupport.h"
#include "TreeObject.h"

using namespace VxXmlLib16;
using VxTest::CTreeObject;
using VxTest::Throws;

namespace {

const std::string XmlNs = "http://www.w3.org/XML/1998/namespace";

// A document that uses every part of the text form at once: nested elements, attributes
// with and without namespaces, a default namespace, aliases from the context's map (the
// XML namespace among them, never declared), generated aliases with their scope, a
// processing instruction and text that needs escaping.
class SampleDocument : public ::testing::Test
{
protected:
    SampleDocument()
    {
        context.SetDefaultNamespaceURI("urn:d");
        context.GetNamespaceAliases().Add("zz", "urn:zz");
        context.GetNamespaceAliases().Add("ex", "urn:ex");
        context.GetNamespaceAliases().Add("xml", XmlNs.c_str());
        context.GetProcessingInstructions().push_back("<?xml-stylesheet href=\"s.xsl\"?>");

        root->AddAttribute("id", "7").AddAttribute("lang", "a<b&\"c\"", "urn:ex").AddAttribute("lang", "en", XmlNs);
        root->AddChild(new CTreeObject("title", "urn:d")).SetText("Fish & Chips > \"x\"\r\nline2");
        CTreeObject &item = root->AddChild(new CTreeObject("item", "urn:ex"));
        item.AddAttribute("flag", "yes", "urn:other");
        item.AddChild(new CTreeObject("note", "urn:d"));
        item.AddChild(new CTreeObject("sub", "urn:other")).SetText("1");
        root->AddChild(new CTreeObject("local"));
        root->AddChild(new CTreeObject("other", "urn:new"));
    }

    // Writes the document with both line ends: the text must be the expected one, with
    // its line feeds turned into CR LF for the second, and must parse.
    void ExpectWrittenAs(bool formatted, const std::string &expectedWithLf)
    {
        const std::string expectedWithCrLf = std::regex_replace(expectedWithLf, std::regex("\n"), "\r\n");
        const std::pair<EOLType, std::string> cases[] = {{EOLType_LF, expectedWithLf},
                                                         {EOLType_CRLF, expectedWithCrLf}};
        for (const auto &[eol, expected] : cases) {
            const std::string text = root->ToXml(true, formatted, eol, context);
            EXPECT_EQ(text, expected);
            EXPECT_EQ(VxTest::ExpatCheck(text), "");
        }
    }

    CSerializationContext context;
    CSmartPtr<CTreeObject> root = new CTreeObject("doc", "urn:d");
};

const char *const Prolog = "<?xml version=\"1.0\"?>\n"
                           "<?xml-stylesheet href=\"s.xsl\"?>\n\n";
const char *const RootTag = "<doc xmlns=\"urn:d\" xmlns:ex=\"urn:ex\" xmlns:zz=\"urn:zz\" id=\"7\" "
                            "ex:lang=\"a&lt;b&amp;&quot;c&quot;\" xml:lang=\"en\">";

// Records each event as "type:payload", the payload being "item" for the added item,
// "null", or "other" for anything else.
class Recorder : public IEventSink
{
public:
    void OnEvent(CXmlObjectBase *eventSource, MsgType type, void *data) override
    {
        source = eventSource;
        events.push_back(std::to_string(type) + (data == item ? ":item" : data ? ":other" : ":null"));
    }
    CXmlObjectBase *source = nullptr;
    const void *item = nullptr;
    std::vector<std::string> events;
};

} // namespace

TEST_F(SampleDocument, FormattedAndUnformatted)
{
    ExpectWrittenAs(true, std::string(Prolog) + RootTag +
                              "\n\t<title>Fish &amp; Chips &gt; \"x\"\nline2</title>\n"
                              "\t<ex:item xmlns:AA=\"urn:other\" AA:flag=\"yes\">\n"
                              "\t\t<note/>\n"
                              "\t\t<AA:sub>1</AA:sub>\n"
                              "\t</ex:item>\n"
                              "\t<local/>\n"
                              "\t<AA:other xmlns:AA=\"urn:new\"/>\n"
                              "</doc>\n");
    // Unformatted, only the prolog keeps its line ends.
    ExpectWrittenAs(false, std::string(Prolog) + RootTag +
                               "<title>Fish &amp; Chips &gt; \"x\"\nline2</title>"
                               "<ex:item xmlns:AA=\"urn:other\" AA:flag=\"yes\"><note/><AA:sub>1</AA:sub></ex:item>"
                               "<local/><AA:other xmlns:AA=\"urn:new\"/></doc>");
}

TEST_F(SampleDocument, ContextIndentCharsAndNoHeader)
{
    context.SetIndentChars("  ");
    context.GetProcessingInstructions().clear();
    const std::string text = root->ToXml(false, true, EOLType_LF, context);
    const std::string start = std::string(RootTag) + "\n  <title>";
    EXPECT_EQ(text.substr(0, start.size()), start);
    EXPECT_NE(text.find("\n    <AA:sub>1</AA:sub>\n"), std::string::npos) << text;
}

TEST(CollectionAsObject, IsNoDocumentAndFiresEventsWithTheirPayloads)
{
    Recorder recorder; // outlives the collection, which fires events as it dies
    CSmartPtr<Orders::CLineTypeCol> collection = new Orders::CLineTypeCol("line", Orders::Namespace, 0, -1);
    // A collection is never the top-level object of a document.
    EXPECT_TRUE(Throws<CVxException>([&] { collection->ToXml(); },
                                     "CXmlCollectionBase::GetTargetNamespace Should not be used from within a "
                                     "Collection (program logic error)"));
    CSmartPtr<Orders::CLineType> line = Orders::CLineType::CreateInstance();
    recorder.item = static_cast<CXmlObjectBase *>(line);
    collection->AddEventListener(&recorder);
    collection->Add(line);
    collection->Remove(0);
    // The change event carries nothing; a removal by node knows no index.
    EXPECT_EQ(recorder.events, (std::vector<std::string>{"1:item", "2:item", "0:null", "3:null", "4:null", "0:null"}));
    EXPECT_EQ(recorder.source, static_cast<CXmlObjectBase *>(collection));
}
