#include <gtest/gtest.h>

#include "Exceptions.h"
#include "NamespaceAliasMap.h"
#include "ExceptionAssert.h"

using namespace VxXmlLib16;
using VxTest::Throws;

TEST(NamespaceAliasMap, OneAliasPerUriInUriOrderAndASharedAliasResolvesToTheSmallestUri)
{
    CNamespaceAliasMap map;
    map.Add("x", "b");
    map.Add("y", "a");
    map.Add("z", "b"); // replaces
    map.RemoveNamespace("unknown");
    EXPECT_EQ(map.GetNamespaceCount(), 2);
    EXPECT_EQ(map.GetNamespaceAt(1), "b");
    EXPECT_EQ(map.GetAliasFromNamespace("b"), "z");
    EXPECT_FALSE(map.DoesAliasExist("x"));
    map.RemoveNamespace("a");
    EXPECT_FALSE(map.DoesNamespaceExist("a"));
    for (int index : {-1, 1}) {
        EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { map.GetNamespaceAt(index); },
                                                     FormatString("Namespace index [%d] out of range", index)));
    }
    // An alias given to two URIs resolves to the smaller one.
    map.Add("p", "urn:z");
    map.Add("p", "urn:m");
    EXPECT_EQ(map.GetNamespaceFromAlias("p"), "urn:m");
    EXPECT_TRUE(Throws<CVxException>([&] { map.GetNamespaceFromAlias("q"); }, "Namespace alias [q] not found"));
}

TEST(NamespaceAliasMap, OnlyTheIndexingLookupEntersUnknownUris)
{
    CNamespaceAliasMap map;
    EXPECT_EQ(map.FindAlias("urn:new"), "");
    EXPECT_EQ(map.GetNamespaceCount(), 0);
    EXPECT_EQ(map.GetAliasFromNamespace("urn:new"), "");
    EXPECT_TRUE(map.DoesNamespaceExist("urn:new"));
    EXPECT_TRUE(map.DoesAliasExist(""));
    // A null name reads as the empty string.
    map.Add(nullptr, nullptr);
    EXPECT_TRUE(map.DoesNamespaceExist(""));
    EXPECT_EQ(map.GetNamespaceFromAlias(nullptr), "");
}
