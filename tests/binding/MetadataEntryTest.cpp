// Single metadata entries in the places where their rules differ: pseudo groups that
// rewind, choices that give an alternative back, mandatory searches, wildcards, defaults.

#include <gtest/gtest.h>

#include "ExceptionAssert.h"
#include "GeneratedTestClasses.h"

using namespace VxXmlLib16;
using namespace VxXmlLib16Data;
using namespace VxTest;

namespace {

CElementInfo *Mandatory(const char *name, int property)
{
    return new CElementInfoSeqPrimMnd(name, TestNs, property, false, ItemType_string, nullptr, Keep, NoFacets, nullptr);
}

CElementInfo **Entries(std::initializer_list<CElementInfo *> entries) { return Table(entries); }
CAttributeInfo **Attributes(std::initializer_list<CAttributeInfo *> entries) { return Table(entries); }

// The group (a, b), both mandatory, with no element of its own.
const CTestTables &GroupTables()
{
    static const CTestTables tables{ParentInfo(XmlElementGroupType_Sequence, XmlElementType_Pseudo, "G", false),
                                    Entries({Mandatory("a", 0), Mandatory("b", 1)}), Attributes({})};
    return tables;
}

CSmartPtr<CXmlObjectBase> MakeGroup(int, const char *) { return new CTestObject(GroupTables(), 2); }

CSmartPtr<CTestObject> Read(const CTestTables &tables, int properties, const std::string &text,
                            const CSerializationContext &context = CSerializationContext())
{
    CSmartPtr<CTestObject> object = new CTestObject(tables, properties);
    object->FromXml(text.c_str(), context);
    return object;
}

class CExposedEntry : public CElementInfo
{
public:
    using CElementInfo::GetAnyDefaultNamespace;
};

} // namespace

TEST(MetadataEntry, PseudoGroupThatFailsRewinds)
{
    // outer: an optional pseudo group G, then an optional c.
    static const CTestTables outer{
        ParentInfo(XmlElementGroupType_Sequence, XmlElementType_Element, "outer"),
        Entries({new CElementInfoSeqClsOpt("G", TestNs, 0, XmlElementType_Pseudo, MakeGroup, 0),
                 new CElementInfoSeqPrimOpt("c", TestNs, 1, false, ItemType_string, nullptr, Keep, NoFacets, nullptr)}),
        Attributes({})};
    CSmartPtr<CTestObject> whole = Read(outer, 2, "<outer xmlns=\"urn:t\"><a>1</a><b>2</b><c>3</c></outer>");
    EXPECT_EQ("2", whole->Child<CTestObject>(0)->Property(1).GetString());
    EXPECT_EQ("3", whole->Property(1).GetString());
    // b is missing: the group counts as absent, no fault escapes it, and a is left over.
    EXPECT_TRUE(Throws<CVxException>(
        [] { Read(outer, 2, "<outer xmlns=\"urn:t\"><a>1</a><c>3</c></outer>"); },
        "Failed read all the elements held within the element [outer]. The unexpected element [a] remains un "
        "processed\nPath: /outer"));
}

TEST(MetadataEntry, ChoiceGivesAnUnusedPseudoAlternativeBack)
{
    // ch: a choice between the pseudo group G and c.
    static const CTestTables tables{
        ParentInfo(XmlElementGroupType_Choice, XmlElementType_Element, "ch"),
        Entries({new CElementInfoChoiceClsOpt("G", TestNs, 0, XmlElementType_Pseudo, MakeGroup, 0),
                 new CElementInfoChoicePrimOpt("c", TestNs, 1, false, ItemType_string, nullptr, Keep, NoFacets,
                                               nullptr)}),
        Attributes({})};
    CSmartPtr<CTestObject> choice = Read(tables, 2, "<ch xmlns=\"urn:t\"><c>1</c></ch>");
    EXPECT_EQ(ItemType_XmlObject, choice->Property(0).GetTypeAsEnum());
    EXPECT_EQ(nullptr, static_cast<CXmlObjectBase *>(choice->Property(0).GetXmlObject()));
    EXPECT_EQ("1", choice->Property(1).GetString());
    choice = Read(tables, 2, "<ch xmlns=\"urn:t\"><a>1</a><b>2</b></ch>");
    EXPECT_NE(nullptr, static_cast<CXmlObjectBase *>(choice->Property(0).GetXmlObject()));
}

TEST(MetadataEntry, MandatoryEntriesNameWhatIsMissing)
{
    static const CTestTables strict{
        ParentInfo(XmlElementGroupType_Sequence, XmlElementType_Element, "strict"),
        Entries({new CElementInfoSeqAbsClsMnd("s", TestNs, 0, XmlElementType_Element,
                                              [](CXmlElement *) { return CSmartPtr<CXmlObjectBase>(); })}),
        Attributes({})};
    EXPECT_TRUE(Throws<CVxException>([] { Read(strict, 1, "<strict xmlns=\"urn:t\"><s/></strict>"); },
                                     "Failed to find a suitable substitution element for [s].\nPath: /strict"));

    static const CTestTables wildcard{ParentInfo(XmlElementGroupType_Sequence, XmlElementType_Element, "wild"),
                                      Entries({new CElementInfoSeqUntpdMnd("w", TestNs, 0, "##any", TestNs)}),
                                      Attributes({})};
    const auto readWild = [](const char *text) {
        CSmartPtr<CTestObject> object = new CTestObject(wildcard, 1);
        object->Property(0).SetXmlObject(new CElement("w", "", "##any", TestNs));
        object->FromXml(text);
    };
    EXPECT_TRUE(Throws<CVxException>([&] { readWild("<wild xmlns=\"urn:t\"><v/></wild>"); },
                                     "Failed to find the required element from namespace [urn:t].\nPath: /wild"));
    EXPECT_TRUE(Throws<CVxException>([&] { readWild("<wild xmlns=\"urn:t\"/>"); },
                                     "Failed to find the required child element [w].\nPath: /wild"));
}

TEST(MetadataEntry, DefaultsAreComparedAsText)
{
    // An optional r8 attribute defaulting to "1.0", a required one defaulting to "x", and
    // a nillable element n.
    static const CTestTables defaults{
        ParentInfo(XmlElementGroupType_Sequence, XmlElementType_Element, "defaults"),
        Entries({new CElementInfoSeqPrimOpt("n", TestNs, 2, true, ItemType_i4, nullptr, Keep, NoFacets, nullptr)}),
        Attributes({new CAttributeInfoPrimitive("r", "", 0, true, ItemType_r8, nullptr, Keep, NoFacets, "1.0"),
                    new CAttributeInfoPrimitive("q", "", 1, false, ItemType_string, nullptr, Keep, NoFacets, "x")})};
    CSmartPtr<CTestObject> object = new CTestObject(defaults, 3);
    object->Property(0).SetR8(1.0);
    object->Property(1).SetString("x");
    object->Property(2).SetNil();
    CSerializationContext context;
    context.SetDefaultNamespaceURI(TestNs);
    context.GetNamespaceAliases().Add("xsi", "http://www.w3.org/2001/XMLSchema-instance");
    context.SetNoOptionalAttributeDefaultOutput(true);
    const std::string open = "<defaults xmlns=\"urn:t\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"";
    // 1 is not the text "1.0", and a required attribute is written whatever its value.
    EXPECT_EQ(open + " r=\"1\" q=\"x\"><n xsi:nil=\"true\"/></defaults>",
              object->ToXml(false, false, EOLType_LF, context));
    // A nil primitive element leaves its property alone; "false" reads the text.
    EXPECT_FALSE(Read(defaults, 3, open + " q=\"x\"><n xsi:nil=\"1\">7</n></defaults>")->Property(2).IsValid());
    EXPECT_EQ(7, Read(defaults, 3, open + " q=\"x\"><n xsi:nil=\"false\">7</n></defaults>")->Property(2).GetI4());
    // Without a default, an empty i4 fails in its conversion.
    EXPECT_THROW(Read(defaults, 3, "<defaults xmlns=\"urn:t\" q=\"x\"><n/></defaults>"), CVxException);
}

TEST(MetadataEntry, SettledOddities)
{
    // A collection in an all group is never found, and its Validate is the base's.
    static const CTestTables bad{ParentInfo(XmlElementGroupType_All, XmlElementType_Element, "bad"),
                                 Entries({new CElementInfoAllClsCol("item", TestNs, 0, XmlElementType_Element)}),
                                 Attributes({})};
    EXPECT_EQ((Levels{"Validation: Failed to process the element.\nPath: /bad",
                      "Exception: Not implemented, should never be called"}),
              Chain([] { Read(bad, 1, "<bad xmlns=\"urn:t\"/>"); }));
    // Only a primitive entry checks facets.
    const CElementInfoSeqEnumOpt entry("e", TestNs, 0, false, ColorToString, ColorFromString, nullptr);
    VxVariant value;
    value.SetI4(1);
    EXPECT_TRUE(Throws<CVxException>([&] { entry.CheckRestriction(value); }, "Cannot CheckRestriction for type: i4"));
}

TEST(MetadataEntry, WildcardDefaultNamespace)
{
    EXPECT_EQ("urn:o", CExposedEntry::GetAnyDefaultNamespace("##any", "urn:o", "urn:d"));
    EXPECT_EQ("", CExposedEntry::GetAnyDefaultNamespace("##other", "urn:o", "urn:d"));
    EXPECT_EQ("DefaultNamespace", CExposedEntry::GetAnyDefaultNamespace("##other", "", "urn:d"));
    EXPECT_EQ("urn:d", CExposedEntry::GetAnyDefaultNamespace("##targetNamespace ##local", "urn:o", "urn:d"));
    EXPECT_EQ("", CExposedEntry::GetAnyDefaultNamespace("urn:x urn:y", "urn:o", "urn:d"));
}
