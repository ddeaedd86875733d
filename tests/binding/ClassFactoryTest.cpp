#include <gtest/gtest.h>

#include <string>

#include "ClassFactory.h"
#include "ExceptionAssert.h"
#include "SerializationContext.h"
#include "TypeCollections.h"
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
    CSerializationContext lenient;
    lenient.SetIgnoreInvalidCollectionCounts(true);
    // Two elements are below the minimum, which matters only where the count is checked.
    CSmartPtr<CstringCol> collection = new CstringCol("a", "", 3, -1, nullptr, -1, -1, nullptr, nullptr, nullptr,
                                                      nullptr, -1, -1, -1, CWhitespaceUtils::WhitespaceRule_None,
                                                      nullptr);

    CXmlElement *cursor = root->GetFirstElement();
    std::int32_t count = 1;
    Helpers::Choice_Read_Collection(collection, root, cursor, count, lenient);
    EXPECT_EQ(cursor, root->GetFirstElement());
    EXPECT_EQ(collection->GetCount(), 0);

    count = 0;
    Helpers::Choice_Read_Collection(collection, root, cursor, count, lenient);
    EXPECT_EQ(cursor, nullptr);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(collection->GetCount(), 2);

    // No progress, no count.
    count = 0;
    Helpers::Choice_Read_Collection(collection, root, cursor, count, lenient);
    EXPECT_EQ(count, 0);

    // After progress the count of the collection is validated, before the count goes up.
    collection->Clear();
    cursor = root->GetFirstElement();
    EXPECT_TRUE(VxTest::Throws<CVxValidationException>(
        [&] { Helpers::Choice_Read_Collection(collection, root, cursor, count, CSerializationContext()); },
        "The Minimum number of [a] elements allowed in this collection is 3"));
    EXPECT_EQ(cursor, nullptr);
    EXPECT_EQ(count, 0);
}
