#include <gtest/gtest.h>

#include <string>

#include "ClassFactory.h"
#include "ExceptionAssert.h"
#include "SerializationContext.h"
#include "Wildcards.h"
#include "XmlDocument.h"

using namespace VxXmlLib16;

namespace {

// Opens the protected tree helpers, as generated code sees them.
class Helpers : public CElement
{
public:
    Helpers() : CElement("helpers") {}
    using CXmlObjectBase::Choice_Read_Collection;
    using CXmlObjectBase::DoesElementNameMatch;
};

// Steps over one element and keeps nothing, so that it is always below its minimum.
class SkippingCollection : public CXmlCollection
{
public:
    SkippingCollection() : CXmlCollection("a", "", 2, -1) {}

protected:
    void ToXml_Int(CXmlWriter *, bool, const char *, const CSerializationContext &, bool) const override {}
    CXmlElement *FromXml_Int(CXmlElement *, CXmlElement *cursor, const CSerializationContext &, bool) override
    {
        return cursor ? cursor->GetNextSiblingElement() : nullptr;
    }
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
    CSmartPtr<Helpers> helpers = new Helpers;

    CSerializationContext context;
    EXPECT_TRUE(helpers->DoesElementNameMatch(context, element, "e", "urn:r"));
    EXPECT_FALSE(helpers->DoesElementNameMatch(context, element, "e", "urn:x"));
    EXPECT_FALSE(helpers->DoesElementNameMatch(context, element, "f", "urn:r"));
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
    const CSerializationContext &context = CSerializationContext::GetDefaultContext();
    CSmartPtr<CElementCol> collection = new CElementCol("", "##any", "", 0, -1);

    CXmlElement *cursor = root->GetFirstElement();
    std::int32_t count = 1;
    Helpers::Choice_Read_Collection(collection, root, cursor, count, context);
    EXPECT_EQ(cursor, root->GetFirstElement());
    EXPECT_EQ(count, 1);
    EXPECT_EQ(collection->GetCount(), 0);

    count = 0;
    Helpers::Choice_Read_Collection(collection, root, cursor, count, context);
    EXPECT_EQ(cursor, nullptr);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(collection->GetCount(), 2);

    // No progress, no count.
    count = 0;
    Helpers::Choice_Read_Collection(collection, root, cursor, count, context);
    EXPECT_EQ(count, 0);

    // After progress the count of the collection is validated.
    CSmartPtr<SkippingCollection> skipping = new SkippingCollection;
    cursor = root->GetFirstElement();
    EXPECT_TRUE(VxTest::Throws<CVxValidationException>(
        [&] { Helpers::Choice_Read_Collection(skipping, root, cursor, count, context); },
        "The Minimum number of [a] elements allowed in this collection is 2"));
    EXPECT_EQ(cursor, root->GetFirstElement()->GetNextSiblingElement());
    EXPECT_EQ(count, 0);
}
