#include "GeneratedTestClasses.h"

#include <cstring>

namespace VxTest {

using namespace VxXmlLib16;
using namespace VxXmlLib16Data;

CParentElementInfo *ParentInfo(XmlElementGroupType group, XmlElementType type, const char *name,
                               bool failIfAttributeUnknown)
{
    return new CParentElementInfo(group, type, name, TestNs, failIfAttributeUnknown, false, -1, ItemType_Invalid,
                                  nullptr, false);
}

namespace {

const char *const ColorNames[] = {"red", "green"};

template <class T>
CSmartPtr<CXmlObjectBase> Make(int, const char *)
{
    return new T();
}

const CTestTables &ItemTables()
{
    static const CTestTables tables{
        ParentInfo(XmlElementGroupType_Sequence, XmlElementType_Element, "item"),
        Table<CElementInfo>({new CElementInfoSeqPrimMnd("qty", TestNs, CItem::Qty, false, ItemType_i4, nullptr, Keep,
                                                        CPrimitiveRestrictions("", -1, -1, "1", "", "", "", -1, -1, -1),
                                                        nullptr),
                             new CElementInfoSeqPrimOpt("note", TestNs, CItem::Note, true, ItemType_string, nullptr,
                                                        Keep, NoFacets, "none"),
                             new CElementInfoSeqEnumOpt("color", TestNs, CItem::ColorProperty, false, ColorToString,
                                                        ColorFromString, nullptr)}),
        Table<CAttributeInfo>(
            {new CAttributeInfoPrimitive("id", "", CItem::Id, false, ItemType_i4, nullptr, Keep, NoFacets, nullptr),
             new CAttributeInfoPrimitive("unit", "", CItem::Unit, true, ItemType_string, nullptr, Keep,
                                         CPrimitiveRestrictions("", 3, -1, "", "", "", "", -1, -1, -1), "cm"),
             new CAttributeInfoEnum("kind", TestNs, CItem::Kind, true, ColorToString, ColorFromString, nullptr)})};
    return tables;
}

const CTestTables &PersonTables()
{
    static const CTestTables tables{
        ParentInfo(XmlElementGroupType_All, XmlElementType_Element, "person"),
        Table<CElementInfo>({new CElementInfoAllPrimMnd("name", TestNs, CPerson::Name, false, ItemType_string,
                                                        nullptr, Keep, NoFacets, nullptr),
                             new CElementInfoAllPrimOpt("age", TestNs, CPerson::Age, false, ItemType_i4, nullptr,
                                                        Keep, NoFacets, nullptr)}),
        Table<CAttributeInfo>({new CAttributeInfoAny("", "", CPerson::Extra, true, "##other", TestNs, nullptr)})};
    return tables;
}

const CTestTables &PaymentTables()
{
    static const CTestTables tables{
        ParentInfo(XmlElementGroupType_Choice, XmlElementType_Pseudo, "payment", false),
        Table<CElementInfo>({new CElementInfoChoicePrimOpt("card", TestNs, 0, false, ItemType_string, nullptr, Keep,
                                                           NoFacets, nullptr),
                             new CElementInfoChoicePrimOpt("cash", TestNs, 1, false, ItemType_decimal, nullptr, Keep,
                                                           NoFacets, nullptr)}),
        Table<CAttributeInfo>({})};
    return tables;
}

CSmartPtr<CXmlObjectBase> MakePayment(int, const char *) { return new CTestObject(PaymentTables(), 2); }

const CTestTables &NoteTables()
{
    static const CTestTables tables{
        ParentInfo(XmlElementGroupType_Sequence, XmlElementType_Element, "memo"),
        Table<CElementInfo>({new CElementInfoSeqPrimOpt("text", TestNs, CNote::Text, false, ItemType_string, nullptr,
                                                        Keep, NoFacets, nullptr)}),
        Table<CAttributeInfo>({})};
    return tables;
}

const CTestTables &BasketTables()
{
    static const CTestTables tables{
        ParentInfo(XmlElementGroupType_Sequence, XmlElementType_Element, "basket", false),
        Table<CElementInfo>(
            {new CElementInfoSeqClsMnd("person", TestNs, CBasket::Owner, XmlElementType_Element, Make<CPerson>, 0,
                                       false),
             new CElementInfoSeqClsCol("item", TestNs, CBasket::Items, XmlElementType_Element),
             new CElementInfoSeqClsMnd("payment", TestNs, CBasket::Pay, XmlElementType_Pseudo, MakePayment, 0,
                                       true),
             new CElementInfoSeqClsOpt("memo", TestNs, CBasket::Memo, XmlElementType_Element, Make<CNote>, 0)}),
        Table<CAttributeInfo>({})};
    return tables;
}

const CTestTables &PickTables()
{
    static const CTestTables tables{
        ParentInfo(XmlElementGroupType_Choice, XmlElementType_Element, "pick"),
        Table<CElementInfo>({new CElementInfoChoiceClsCol("item", TestNs, CPick::Items, XmlElementType_Element),
                             new CElementInfoChoiceClsCol("person", TestNs, CPick::People, XmlElementType_Element)}),
        Table<CAttributeInfo>({})};
    return tables;
}

} // namespace

const char *ColorToString(int value)
{
    if (value < 0 || value > 1)
        throw CVxInvalidValueException(FormatString("Invalid Color [%d]", value));
    return ColorNames[value];
}

int ColorFromString(const char *text)
{
    for (int value = 0; value < 2; ++value)
        if (std::strcmp(text, ColorNames[value]) == 0)
            return value;
    throw CVxInvalidValueException(FormatString("Invalid Color [%s]", text));
}

CTestObject::CTestObject(const CTestTables &tables, int propertyCount)
    : m_tables(tables), m_properties(propertyCount)
{
    SetElementName(tables.info->GetElementName().c_str());
}

void CTestObject::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    if (read)
        value = m_properties.at(propertyIndex);
    else
        m_properties.at(propertyIndex) = value;
}

void CTestObject::Init()
{
    for (VxVariant &property : m_properties)
        property.SetInvalid();
    CreateChildren();
}

CItem::CItem() : CTestObject(ItemTables(), Count) { Init(); }

CPerson::CPerson() : CTestObject(PersonTables(), Count) { Init(); }

void CPerson::CreateChildren() { Property(Extra).SetXmlCollection(new CAttributeCol("", "##other", TestNs)); }

CNote::CNote() : CTestObject(NoteTables(), Count) { Init(); }

CBasket::CBasket() : CTestObject(BasketTables(), Count) { Init(); }

void CBasket::CreateChildren()
{
    Property(Owner).SetXmlObject(new CPerson());
    Property(Items).SetXmlCollection(new VxGenerated::CGeneratedCol<CItem>("item", TestNs, 1, 3));
    Property(Pay).SetXmlObject(new CTestObject(PaymentTables(), 2));
}

CPick::CPick() : CTestObject(PickTables(), Count) { Init(); }

void CPick::CreateChildren()
{
    Property(Items).SetXmlCollection(new VxGenerated::CGeneratedCol<CItem>("item", TestNs, 1, -1));
    Property(People).SetXmlCollection(new VxGenerated::CGeneratedCol<CPerson>("person", TestNs, 1, -1));
}

} // namespace VxTest
