// The services generated code leans on: the type attribute for a factory, the rule of
// one member of a choice at a time, and the name and namespace tests.

#include <gtest/gtest.h>

#include <string>

#include "ClassFactory.h"
#include "ExceptionAssert.h"
#include "PlainObject.h"
#include "TypeCollections.h"
#include "XmlDocument.h"

using namespace VxXmlLib16;
using VxTest::Throws;

namespace {

// Opens the protected helpers, as generated code sees them.
class Helpers : public VxTest::CPlainObject
{
public:
    explicit Helpers(const char *name) { SetElementName(name); }
    using CXmlObjectBase::Choice_CollectionChanged;
    using CXmlObjectBase::Choice_Read_Collection;
    using CXmlObjectBase::Choice_SelectElement;
    using CXmlObjectBase::Choice_SetElementValid;
    using CXmlObjectBase::DoesElementNameMatch;
    using CXmlObjectBase::Throw_IfElementNameDiffers;
    using CXmlObjectBase::Throw_IfPropertyIsNull;
};

} // namespace

TEST(ClassFactory, TypeNameAndItsNamespace)
{
    CXmlDocument document;
    document.LoadXml("<r xmlns='urn:r' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xmlns:a='urn:a'>"
                     "<e xsi:type='a:b:c'/><e xsi:type='plain'/><e xsi:type='zz:t'/><e type='t'/></r>");
    // An alias the document does not know gives the element's own namespace, and a type
    // attribute outside the instance namespace is no xsi:type.
    const char *const expected[][2] = {{"b:c", "urn:a"}, {"plain", "urn:r"}, {"t", "urn:r"}, {"", "urn:r"}};
    CXmlElement *element = document.GetDocumentElement()->GetFirstElement();
    for (const auto &[type, uri] : expected) {
        EXPECT_EQ(CClassfactoryBase::GetElementType(element), type);
        EXPECT_EQ(CClassfactoryBase::GetElementTypeNamespaceUri(element), uri);
        element = element->GetNextSiblingElement();
    }
}

TEST(TreeHelpers, ElementNameMatchFollowsTheNamespaceOptions)
{
    CXmlDocument document;
    document.LoadXml("<r xmlns='urn:r'><e/></r>");
    CXmlElement *element = document.GetDocumentElement()->GetFirstElement();
    CSmartPtr<Helpers> helpers = new Helpers("helpers");

    CSerializationContext context;
    EXPECT_TRUE(helpers->DoesElementNameMatch(context, element, "e", "urn:r"));
    EXPECT_FALSE(helpers->DoesElementNameMatch(context, element, "e", "urn:x"));
    context.SetIgnoreNamespaces(true);
    EXPECT_TRUE(helpers->DoesElementNameMatch(context, element, "e", "urn:x"));
    EXPECT_FALSE(helpers->DoesElementNameMatch(context, element, "f", "urn:r"));

    CSerializationContext noNamespaces;
    noNamespaces.SetSchemaType(SchemaType_NoNamespaces);
    EXPECT_TRUE(helpers->DoesElementNameMatch(noNamespaces, element, "e", ""));
    EXPECT_FALSE(helpers->DoesElementNameMatch(noNamespaces, nullptr, "e", ""));
}

TEST(TreeHelpers, ChoiceReadCollectionReadsOnceAndCountsProgress)
{
    CXmlDocument document;
    document.LoadXml("<r><a/><a/></r>");
    CXmlElement *root = document.GetDocumentElement();
    // Two elements are below the minimum, which matters only where the count is checked.
    CSmartPtr<CstringCol> collection = new CstringCol("a", "", 3, -1, nullptr, -1, -1, nullptr, nullptr, nullptr,
                                                      nullptr, -1, -1, -1, CWhitespaceUtils::WhitespaceRule_None,
                                                      nullptr);
    CXmlElement *cursor = root->GetFirstElement();
    std::int32_t count = 1;
    Helpers::Choice_Read_Collection(collection, root, cursor, count, CSerializationContext());
    EXPECT_EQ(cursor, root->GetFirstElement());

    // After progress the count of the collection is validated, before the count goes up.
    count = 0;
    EXPECT_TRUE(Throws<CVxValidationException>(
        [&] { Helpers::Choice_Read_Collection(collection, root, cursor, count, CSerializationContext()); },
        "The Minimum number of [a] elements allowed in this collection is 3"));
    EXPECT_EQ(cursor, nullptr);
    EXPECT_EQ(count, 0);

    CSerializationContext lenient;
    lenient.SetIgnoreInvalidCollectionCounts(true);
    // No progress, no count.
    Helpers::Choice_Read_Collection(collection, root, cursor, count, lenient);
    EXPECT_EQ(count, 0);
    collection->Clear();
    cursor = root->GetFirstElement();
    Helpers::Choice_Read_Collection(collection, root, cursor, count, lenient);
    EXPECT_EQ(count, 1);
}

TEST(NamespaceRule, TokensAndTheFirstTokenRule)
{
    const struct { const char *uri, *rule, *target; bool valid; } cases[] = {
        {"urn:x", "##any", "urn:a", true}, {"urn:a", "##other", "urn:a", false}, {"urn:b", "##other", "urn:a", true},
        {"", "##local", "x", true}, {"urn:a", "##local", "x", false}, {"urn:a", "##targetNamespace", "urn:a", true},
        {"urn:b", "##targetNamespace", "urn:a", false},
        {"", "urn:a", "x", true}, // a plain URI lets the empty namespace through
        {"urn:a", "urn:a", "x", true},
        {"urn:b", "urn:a", "x", false},
        // Only the first token of a list counts; an empty namespace passes the second round.
        {"", "##targetNamespace ##local", "urn:a", true}, {"urn:b", "urn:a urn:b", "x", false},
        {"urn:a urn:b", "urn:a urn:b", "x", true}, {"urn:a", "##targetNamespace ##other", "urn:a", true},
    };
    for (const auto &c : cases)
        EXPECT_EQ(c.valid, CXmlObjectBase::IsNamespaceValid(c.uri, c.rule, c.target)) << c.uri << " / " << c.rule;

    // No path is given, so the message ends with the target namespace.
    EXPECT_TRUE(Throws<CVxInvalidNamespaceException>(
        [] { CXmlObjectBase::TestNamespace("urn:a", "##other", "urn:a"); },
        "Invalid namespace [urn:a]. The namespace must be one of [##other] where the target namespace is [urn:a]."));
}

TEST(ChoiceHelpers, OneMemberAtATime)
{
    CSmartPtr<Helpers> x(new Helpers("x"));
    std::string selected;
    Helpers::Choice_SelectElement("a", x, selected);
    EXPECT_EQ("a", selected);
    EXPECT_TRUE(Throws<CVxInvalidStateException>(
        [&] { Helpers::Choice_SelectElement("b", x, selected); },
        "The Property [a] is already set. Only one element within this class bay be set at a time"));
    Helpers::Choice_SelectElement("b", nullptr, selected);
    EXPECT_EQ("a", selected);
    Helpers::Choice_SelectElement("a", nullptr, selected);
    EXPECT_EQ("", selected);
    Helpers::Choice_SelectElement("b", nullptr, selected); // the first selection may be null
    EXPECT_EQ("b", selected);

    selected.clear();
    Helpers::Choice_CollectionChanged("a", 0, selected);
    EXPECT_EQ("", selected);
    Helpers::Choice_CollectionChanged("a", 2, selected);
    EXPECT_EQ("a", selected);
    Helpers::Choice_CollectionChanged("b", 0, selected);
    EXPECT_EQ("a", selected);
    EXPECT_TRUE(Throws<CVxInvalidStateException>(
        [&] { Helpers::Choice_CollectionChanged("b", 1, selected); },
        "The Property [a] is already set. Only one element within this class bay be set at a time"));
    Helpers::Choice_CollectionChanged("a", 0, selected);
    EXPECT_EQ("", selected);

    EXPECT_TRUE(Throws<CVxInvalidStateException>(
        [&] { Helpers::Choice_SetElementValid(true, "a", selected); },
        "The Property  is already set. Only one element within this class bay be set at a time"));
    selected = "a";
    Helpers::Choice_SetElementValid(false, "b", selected);
    EXPECT_EQ("", selected);
}

TEST(ChoiceHelpers, PropertyChecks)
{
    CSmartPtr<Helpers> line(new Helpers("line"));
    EXPECT_NO_THROW(Helpers::Throw_IfElementNameDiffers(nullptr, "order"));
    EXPECT_TRUE(Throws<CVxInvalidParamException>(
        [&] { Helpers::Throw_IfElementNameDiffers(line, "order"); },
        "This property requires an element with the name order the element being set has the element name line"));
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { Helpers::Throw_IfPropertyIsNull(nullptr, "customer"); },
                                                 "The Property [customer] is mandatory, it may node be NULL"));
}
