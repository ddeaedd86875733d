#include <gtest/gtest.h>

#include <string>

#include "ExceptionAssert.h"
#include "Exceptions.h"
#include "XmlObjectBase.h"
#include "PlainObject.h"

using namespace VxXmlLib16;
using VxTest::Throws;

namespace {

// Opens the protected helpers, as generated code sees them.
class Helpers : public VxTest::CPlainObject
{
public:
    explicit Helpers(const char *name) { SetElementName(name); }
    using CXmlObjectBase::Choice_CollectionChanged;
    using CXmlObjectBase::Choice_SelectElement;
    using CXmlObjectBase::Choice_SetElementValid;
    using CXmlObjectBase::Throw_IfElementNameDiffers;
    using CXmlObjectBase::Throw_IfPropertyIsNull;
};

} // namespace

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

    EXPECT_NO_THROW(CXmlObjectBase::TestNamespace("urn:b", "##other", "urn:a"));
    // No path is given, so the message ends with the target namespace.
    EXPECT_TRUE(Throws<CVxInvalidNamespaceException>(
        [] { CXmlObjectBase::TestNamespace("urn:a", "##other", "urn:a"); },
        "Invalid namespace [urn:a]. The namespace must be one of [##other] where the target namespace is [urn:a]."));
}

TEST(ChoiceHelpers, SelectElement)
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
}

TEST(ChoiceHelpers, CollectionChangedAndSetElementValid)
{
    std::string selected;
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
    Helpers::Choice_SetElementValid(true, "a", selected);
    EXPECT_EQ("a", selected);
    Helpers::Choice_SetElementValid(false, "b", selected);
    EXPECT_EQ("", selected);
}

TEST(ChoiceHelpers, PropertyChecks)
{
    CSmartPtr<Helpers> line(new Helpers("line"));
    EXPECT_NO_THROW(Helpers::Throw_IfElementNameDiffers(nullptr, "order"));
    EXPECT_NO_THROW(Helpers::Throw_IfElementNameDiffers(line, "line"));
    EXPECT_TRUE(Throws<CVxInvalidParamException>(
        [&] { Helpers::Throw_IfElementNameDiffers(line, "order"); },
        "This property requires an element with the name order the element being set has the element name line"));
    EXPECT_NO_THROW(Helpers::Throw_IfPropertyIsNull(line, "customer"));
    EXPECT_TRUE(Throws<CVxInvalidParamException>([&] { Helpers::Throw_IfPropertyIsNull(nullptr, "customer"); },
                                                 "The Property [customer] is mandatory, it may node be NULL"));
}
