#include <gtest/gtest.h>

#include "Exceptions.h"
#include "SerializationContext.h"
#include "ExceptionAssert.h"
#include "Wildcards.h"

using namespace VxXmlLib16;
using VxTest::Throws;

TEST(SerializationContext, SchemaTypeTwoIgnoresNamespacesWithoutTouchingTheFlag)
{
    CSerializationContext context;
    context.SetSchemaType(SchemaType_NoNamespaces);
    EXPECT_TRUE(context.GetIgnoreNamespaces());
    context.SetSchemaType(static_cast<SchemaType>(1)); // any other number behaves like 0
    EXPECT_FALSE(context.GetIgnoreNamespaces());
}

TEST(SerializationContext, IgnoringUnknownAndMissingElementsExcludeEachOther)
{
    const std::string ignoreBoth = "The parser can only ignore additional elements, or ignore the fact that some "
                                   "required ones are missing, you can not ignore both\n";
    CSerializationContext context;
    context.SetIgnoreUnknownElements(true);
    context.SetIgnoreMissingMandatoryElements(false);
    EXPECT_TRUE(Throws<CVxInvalidStateException>(
        [&] { context.SetIgnoreMissingMandatoryElements(true); },
        ignoreBoth + "Set IgnoreUnknownElements to false before setting IgnoreMissingMandatoryElements to true"));
    EXPECT_FALSE(context.GetIgnoreMissingMandatoryElements());

    context.SetIgnoreUnknownElements(false);
    context.SetIgnoreMissingMandatoryElements(true);
    EXPECT_TRUE(Throws<CVxInvalidStateException>(
        [&] { context.SetIgnoreUnknownElements(true); },
        ignoreBoth + "Set IgnoreMissingMandatoryElements to false before setting IgnoreUnknownElements to true"));
    EXPECT_FALSE(context.GetIgnoreUnknownElements());
}

TEST(SerializationContext, IndentCharsTakeOnlyBlanksAndTabs)
{
    CSerializationContext context;
    context.SetIndentChars("  \t");
    for (const char *refused : {" x", "\n", "\t\r", " \v"}) {
        EXPECT_TRUE(Throws<CVxInvalidParamException>(
            [&] { context.SetIndentChars(refused); },
            "IndentChars can only contain Whitespace characters, i.e. \\t or spaces"));
        EXPECT_EQ(context.GetIndentChars(), "  \t");
    }
    context.SetIndentChars(nullptr);
    EXPECT_EQ(context.GetIndentChars(), "");
}

TEST(SerializationContext, CopiesTakeValuesButShareTheRootAttributes)
{
    CSerializationContext source;
    EXPECT_EQ(source.FindAdditionalRootAttributes(), nullptr);
    CSmartPtr<CAttributeCol> attributes = source.GetAdditionalRootAttributes();
    source.GetNamespaceAliases().Add("a", "urn:a");
    source.SetIgnoreMissingMandatoryElements(true);

    CSerializationContext copy(source);
    copy.GetNamespaceAliases().Add("b", "urn:b");
    EXPECT_EQ(copy.GetNamespaceAliases().GetNamespaceCount(), 2);
    EXPECT_EQ(source.GetNamespaceAliases().GetNamespaceCount(), 1);
    attributes->Add("schemaLocation", "urn:x x.xsd", "http://www.w3.org/2001/XMLSchema-instance");
    EXPECT_EQ(copy.GetAdditionalRootAttributes()->GetCount(), 1);

    CSerializationContext assigned;
    assigned.SetIgnoreUnknownElements(true);
    assigned = copy; // takes every field, the checked ones included, without checking
    EXPECT_TRUE(assigned.GetIgnoreMissingMandatoryElements());
    EXPECT_FALSE(assigned.GetIgnoreUnknownElements());
    EXPECT_EQ(assigned.FindAdditionalRootAttributes(), attributes);
}
