#include <gtest/gtest.h>

#include "Exceptions.h"
#include "SerializationContext.h"
#include "ExceptionAssert.h"

using namespace VxXmlLib16;
using VxTest::Throws;

namespace {

const char *const IgnoreBoth =
    "The parser can only ignore additional elements, or ignore the fact that some required ones "
    "are missing, you can not ignore both\n";

} // namespace

TEST(SerializationContext, Defaults)
{
    const CSerializationContext context;
    EXPECT_EQ(context.GetDefaultNamespaceURI(), "");
    EXPECT_TRUE(context.GetWriteTypeAttribute());
    EXPECT_EQ(context.GetNamespaceAliases().GetNamespaceCount(), 0);
    EXPECT_TRUE(context.GetProcessingInstructions().empty());
    EXPECT_EQ(context.GetInLineSchema(), "");
    EXPECT_FALSE(context.GetIgnoreInvalidCollectionCounts());
    EXPECT_FALSE(context.GetIgnoreMissingChoice());
    EXPECT_FALSE(context.GetIgnoreMissingMandatoryElements());
    EXPECT_FALSE(context.GetIgnoreUnknownElements());
    EXPECT_FALSE(context.GetIgnoreUnknownAttributes());
    EXPECT_FALSE(context.GetIgnoreNamespaces());
    EXPECT_EQ(context.GetSchemaType(), SchemaType_Namespaced);
    EXPECT_FALSE(context.GetNoOptionalAttributeDefaultOutput());
    EXPECT_FALSE(context.GetWriteDefaultElementValues());
    EXPECT_TRUE(context.GetStripCDATA());
    EXPECT_EQ(context.GetIndentChars(), "\t");
}

TEST(SerializationContext, SchemaTypeTwoIgnoresNamespacesWithoutTouchingTheFlag)
{
    CSerializationContext context;
    context.SetSchemaType(SchemaType_NoNamespaces);
    EXPECT_TRUE(context.GetIgnoreNamespaces());
    context.SetSchemaType(static_cast<SchemaType>(1)); // any other number behaves like 0
    EXPECT_FALSE(context.GetIgnoreNamespaces());
    context.SetIgnoreNamespaces(true);
    EXPECT_TRUE(context.GetIgnoreNamespaces());
    context.SetIgnoreNamespaces(false);
    context.SetSchemaType(SchemaType_NoNamespaces);
    context.SetSchemaType(SchemaType_Namespaced);
    EXPECT_FALSE(context.GetIgnoreNamespaces());
}

TEST(SerializationContext, IgnoringUnknownAndMissingElementsExcludeEachOther)
{
    CSerializationContext context;
    context.SetIgnoreUnknownElements(true);
    context.SetIgnoreMissingMandatoryElements(false);
    EXPECT_TRUE(Throws<CVxInvalidStateException>([&] { context.SetIgnoreMissingMandatoryElements(true); },
                                                 std::string(IgnoreBoth) +
                                                "Set IgnoreUnknownElements to false before setting "
                                                "IgnoreMissingMandatoryElements to true"));
    EXPECT_FALSE(context.GetIgnoreMissingMandatoryElements());
    EXPECT_TRUE(context.GetIgnoreUnknownElements());

    context.SetIgnoreUnknownElements(false);
    context.SetIgnoreMissingMandatoryElements(true);
    EXPECT_TRUE(Throws<CVxInvalidStateException>([&] { context.SetIgnoreUnknownElements(true); },
                                                 std::string(IgnoreBoth) +
                                                "Set IgnoreMissingMandatoryElements to false before setting "
                                                "IgnoreUnknownElements to true"));
    EXPECT_FALSE(context.GetIgnoreUnknownElements());
    context.SetIgnoreUnknownElements(false);
    context.SetIgnoreMissingMandatoryElements(false);
    EXPECT_FALSE(context.GetIgnoreMissingMandatoryElements());
}

TEST(SerializationContext, IndentCharsTakeOnlyBlanksAndTabs)
{
    CSerializationContext context;
    context.SetIndentChars("  \t");
    EXPECT_EQ(context.GetIndentChars(), "  \t");
    for (const char *refused : {" x", "\n", "\t\r", " \v"}) {
        EXPECT_TRUE(Throws<CVxInvalidParamException>(
            [&] { context.SetIndentChars(refused); },
            "IndentChars can only contain Whitespace characters, i.e. \\t or spaces"));
        EXPECT_EQ(context.GetIndentChars(), "  \t");
    }
    context.SetIndentChars(nullptr);
    EXPECT_EQ(context.GetIndentChars(), "");
}

TEST(SerializationContext, CopiesAreIndependentValues)
{
    CSerializationContext source;
    source.GetNamespaceAliases().Add("a", "urn:a");
    source.GetProcessingInstructions().push_back("<?pi?>");
    source.SetIgnoreMissingMandatoryElements(true);

    CSerializationContext copy(source);
    copy.GetNamespaceAliases().Add("b", "urn:b");
    copy.GetProcessingInstructions().clear();
    EXPECT_EQ(source.GetNamespaceAliases().GetNamespaceCount(), 1);
    EXPECT_EQ(source.GetProcessingInstructions().size(), 1u);

    CSerializationContext assigned;
    assigned.SetIgnoreUnknownElements(true);
    assigned = source; // takes every field, the checked ones included, without checking
    EXPECT_TRUE(assigned.GetIgnoreMissingMandatoryElements());
    EXPECT_FALSE(assigned.GetIgnoreUnknownElements());
    EXPECT_EQ(assigned.GetNamespaceAliases().GetAliasFromNamespace("urn:a"), "a");
}
