#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "CanonicalXml.h"
#include "ExceptionAssert.h"
#include "OrdersDocument.h"
#include "SerializationContext.h"
#include "Wildcards.h"
#include "XmlDocument.h"

using namespace VxXmlLib16;
using VxTest::CanonicalXml;
using VxTest::Throws;

namespace {

// Opens the protected reading operations, as the metadata of generated classes uses them.
template <class Base>
class Open : public Base
{
public:
    using Base::Base;
    using Base::FromXml_Int;
};

class OpenElement : public Open<CElement>
{
public:
    using Open::Open;
    using CElement::CopyXmlElement;
};

class OpenElementCol : public Open<CElementCol>
{
public:
    using Open::Open;
    using CElementCol::FromXmlLockElementName_Int;
};

// SetNamespaceRestrictions throws a pointer; this takes it over and gives its full message.
template <class Action>
std::string PointerThrown(Action &&action)
{
    try {
        action();
    } catch (CVxInvalidNamespaceException *thrown) {
        const std::unique_ptr<CVxInvalidNamespaceException> owned(thrown);
        return owned->GetFullMessage();
    }
    return "nothing thrown by pointer";
}

// Elements "e", each inside the one before.
std::string Nested(int depth)
{
    return depth ? "<e>" + Nested(depth - 1) + "</e>" : std::string();
}

const char *const kNamespaceHeavy =
    "<p:root xmlns:p='urn:p' xmlns='urn:d' xmlns:q='urn:q' q:a='1' b='2' xml:lang='en' nl='x&#10;y'>"
    "<child q:c='3'><p:x>t</p:x><y xmlns=''>local</y><same/></child>"
    "<q:z xmlns:q='urn:q2' q:w='4' xmlns:r='urn:q'><r:z r:w='5'/></q:z>"
    "<e xmlns:p='urn:p3'><p:deep p:at='v' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'"
    " xsi:type='p:T'>&lt;&amp;&gt;\"' \xC3\xA9</p:deep><p:deep/></e>"
    "<empty></empty>"
    "</p:root>";

} // namespace

TEST(Wildcards, ConstructionRefusesWhatTheRulesRefuse)
{
    const auto element = [](const char *name, const char *uri, const char *rule, const char *target) {
        return [=] { CSmartPtr<CElement> e = new CElement(name, uri, rule, target); };
    };
    const struct {
        std::function<void()> action;
        const char *message;
    } cases[] = {
        {[] { CSmartPtr<CElement> e = new CElement("a", "##local"); }, "Invalid Namespace [##local]."},
        {element(nullptr, "", "##any", ""), "Element Name must have a value"},
        {element("a", nullptr, "##any", ""), "Element Namespace must have a value"},
        {element("a", "", nullptr, ""), "Namespace Restriction must have a value"},
        {element("a", "", "##any", nullptr), "Target Namespace must have a value"},
        {element("a", "urn:b", "##other", "urn:b"),
         "Invalid namespace [urn:b]. The namespace must be one of [##other] where the target namespace is [urn:b]."},
        {[] { CSmartPtr<CElementCol> c = new CElementCol("urn:a", "##local", "urn:t", 0, -1); },
         "Invalid namespace [urn:a]. The namespace must be one of [##local] where the target namespace is [urn:t]."},
    };
    for (const auto &refusal : cases)
        EXPECT_TRUE(Throws<CVxInvalidNamespaceException>(refusal.action, refusal.message));
}

TEST(Wildcards, CollectionsTakeTheirNamespaceFromTheRule)
{
    CSmartPtr<CElementCol> other = new CElementCol("", "##other", "urn:t", 1, 1);
    EXPECT_EQ(other->Add("x")->GetNamespace(), "##other");
    // The stored rule is "##any": the target namespace itself passes.
    EXPECT_EQ(other->Add("y", "urn:t")->GetNamespace(), "urn:t");
    // And the limits given were not kept: two items write without complaint.
    EXPECT_NO_THROW(other->ValidateCount(CSerializationContext()));

    CSmartPtr<CElementCol> plain = new CElementCol("", "urn:x", "", 0, -1);
    EXPECT_TRUE(Throws<CVxInvalidStateException>([&] { plain->Add("x"); },
                                                 "A Namespace has not been set for this Collection"));
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { plain->Add(static_cast<CElement *>(nullptr)); },
                                                 "A NULL item can not be added to the collection"));

    // An attribute collection takes its namespace from a URI rule.
    CSmartPtr<CAttributeCol> uri = new CAttributeCol("", "urn:a", "");
    EXPECT_EQ(uri->Add("x")->GetNamespace(), "urn:a");
    EXPECT_THROW(uri->Add("y", "v", "urn:c"), CVxInvalidNamespaceException);
    CSmartPtr<CAttribute> refused = new CAttribute("z", "v", "urn:c");
    EXPECT_THROW(uri->Add(refused), CVxInvalidNamespaceException);
    EXPECT_EQ(uri->GetCount(), 1);

    // A list takes its first URI and then refuses it: a URI compares with the whole rule.
    CSmartPtr<CAttributeCol> list = new CAttributeCol("", "urn:a urn:b", "");
    EXPECT_EQ(list->GetNamespace(), "urn:a");
    EXPECT_THROW(list->Add("x"), CVxInvalidNamespaceException);
    EXPECT_EQ(CSmartPtr<CAttributeCol>(new CAttributeCol("", "##other", ""))->GetNamespace(), "");
}

TEST(Wildcards, ReadingRefusals)
{
    CXmlDocument document;
    document.LoadXml("<r xmlns:n='urn:n'><a n:x='1' y='2'/><a/><b/></r>");
    CXmlElement *root = document.GetDocumentElement();
    CXmlElement *first = root->GetFirstElement();
    const CSerializationContext &context = CSerializationContext::GetDefaultContext();

    // An attribute the rule refuses fails the element with its path.
    CSmartPtr<Open<CAttributeCol>> attributes = new Open<CAttributeCol>("", "##local", "");
    EXPECT_TRUE(Throws<CVxInvalidNamespaceException>(
        [&] { attributes->FromXml_Int(first, nullptr, context, false); },
        "Invalid Attribute [x]. The attributes namespace is Inappropriate.\nPath: /r/a[1]"));
    CSmartPtr<Open<CAttribute>> attribute = new Open<CAttribute>("x", "", "");
    EXPECT_TRUE(Throws<CVxException>([&] { attribute->FromXml_Int(first, nullptr, context, false); },
                                     "This should be done by the collection"));

    // An element whose namespace its rule refuses is not taken and stays as it was.
    CSmartPtr<OpenElement> local = new OpenElement("kept", "urn:k", "##other", "");
    EXPECT_EQ(local->FromXml_Int(root, first, context, false), first);
    EXPECT_EQ(local->GetName(), "kept");

    // A named wildcard takes its name only.
    CSmartPtr<OpenElementCol> named = new OpenElementCol("", "##any", "", 0, -1);
    CXmlElement *rest = named->FromXmlLockElementName_Int("a", "", root, first, context);
    EXPECT_EQ(named->GetCount(), 2);
    EXPECT_EQ(rest, first->GetNextSiblingElement()->GetNextSiblingElement());
}

TEST(Wildcards, RoundTripAndCloneKeepElementsAttributesNamespacesAndText)
{
    const std::string documents[] = {kNamespaceHeavy, VxTest::OrdersDocument(40, 7, false),
                                     VxTest::OrdersDocument(15, 11, true)};
    for (const std::string &document : documents) {
        const std::string expected = CanonicalXml(document);
        ASSERT_EQ(expected.find("error"), std::string::npos) << expected;
        CSmartPtr<CElement> element = new CElement("placeholder");
        element->FromXml(document.c_str());
        EXPECT_EQ(CanonicalXml(element->ToXml(false, false)), expected);
        EXPECT_EQ(CanonicalXml(element->ToXml(false, true)), expected);
        // The entry point that reads another object's rendering.
        CSmartPtr<CElement> target = new CElement("t");
        target->FromXmlElement(element.operator->());
        EXPECT_EQ(CanonicalXml(target->ToXml(false, false)), expected);

        // A clone is equal and shares nothing.
        CSmartPtr<CElement> copy = element->Clone();
        EXPECT_EQ(copy->ToXml(false, false), element->ToXml(false, false));
        copy->GetChildElements()->Item(0)->SetText("changed");
        copy->GetAttributes()->Add("added", "1");
        copy->GetChildElements()->Remove(1);
        EXPECT_EQ(CanonicalXml(element->ToXml(false, false)), expected);
    }
}

TEST(Wildcards, NamespaceRestrictionsThrowAPointerForTheElementsOwnNamespace)
{
    CSmartPtr<CElement> element = new CElement("a", "urn:a", "##any", "");
    element->GetAttributes()->Add("x", "1", "urn:x");
    element->GetChildElements()->Add("b", "urn:b");

    EXPECT_EQ(PointerThrown([&] { element->SetNamespaceRestrictions("##other", "urn:a"); }),
              "The namespace a in the class urn:a is invalid against restriction ##other\n"
              "Invalid namespace [urn:a]. The namespace must be one of [##other] where the target namespace is "
              "[urn:a].");

    // An attribute's namespace is thrown by value, a child's as the child's own pointer.
    EXPECT_THROW(element->SetNamespaceRestrictions("##other", "urn:x"), CVxInvalidNamespaceException);
    EXPECT_EQ(PointerThrown([&] { element->SetNamespaceRestrictions("##other", "urn:b"); }).find(
                  "The namespace b in the class urn:b is invalid against restriction ##other\n"),
              0u);

    // The rule is only checked: the element still reads a namespace the rule refuses afterwards.
    EXPECT_NO_THROW(element->SetNamespaceRestrictions("##other", "urn:q"));
    element->FromXml("<z xmlns='urn:q'/>");
    EXPECT_EQ(element->GetNamespace(), "urn:q");
}

TEST(Wildcards, ElementFromAnObjectIsWrittenPlainOrPastedWithItsDefaultNamespace)
{
    CSmartPtr<CElement> object = new CElement("r", "urn:d");
    object->GetAttributes()->Add("u", "1", "");
    object->GetAttributes()->Add("k", "v");
    object->GetChildElements()->Add("c")->SetText("t");
    CSmartPtr<CElement> built = new CElement(object.operator->(), "urn:d");
    EXPECT_EQ(built->GetAttributes()->GetCount(), 2);
    CSmartPtr<CElement> parent = new CElement("p", "urn:p");
    parent->GetChildElements()->Add(built.operator->());
    parent->GetChildElements()->Add("after", "urn:p");
    // The pasted subtree leaves its attributes out.
    EXPECT_EQ(parent->ToXml(false, false),
              "<AA:p xmlns:AA=\"urn:p\"><r xmlns=\"urn:d\"><c>t</c></r><AA:after/></AA:p>");

    // Without a default namespace the element is an ordinary one: name, attributes, children, then text.
    CSmartPtr<CElement> plain = new CElement(object.operator->(), nullptr);
    plain->SetText("x&y");
    EXPECT_EQ(plain->ToXml(false, false),
              "<AA:r xmlns:AA=\"urn:d\" u=\"1\" AA:k=\"v\"><AA:c>t</AA:c>x&amp;y</AA:r>");
    EXPECT_TRUE(Throws<CVxInvalidParamException>(
        [] { CSmartPtr<CElement> e = new CElement(static_cast<CXmlObjectBase *>(nullptr), "urn:d"); },
        "The object to build the element from is NULL"));

    // Read without namespaces, the declaration is an attribute; it becomes the default namespace.
    CSerializationContext noNamespaces;
    noNamespaces.SetSchemaType(SchemaType_NoNamespaces);
    CXmlDocument document(noNamespaces);
    document.LoadXml("<r xmlns='urn:d'><c>t</c></r>");
    CSmartPtr<OpenElement> copied = new OpenElement("x");
    copied->CopyXmlElement(document.GetDocumentElement());
    EXPECT_EQ(copied->Clone()->ToXml(false, false), "<r xmlns=\"urn:d\"><c>t</c></r>");
}

TEST(Wildcards, DepthOfReadingIsBounded)
{
    CSmartPtr<CElement> element = new CElement("e");
    element->GetAttributes()->Add("stale", "1");
    element->FromXml(Nested(2000).c_str());
    EXPECT_EQ(CanonicalXml(element->ToXml(false, false)), CanonicalXml(Nested(2000)));
    EXPECT_THROW(element->FromXml(Nested(2001).c_str()), CVxValidationException);
    // A failed read does not block the next, and a read replaces all earlier content.
    element->FromXml("<e><e/></e>");
    EXPECT_EQ(element->ToXml(false, false), "<e><e/></e>");
}
