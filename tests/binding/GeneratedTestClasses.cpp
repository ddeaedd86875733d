#include "GeneratedTestClasses.h"

#include <cstring>

namespace VxTest {

using namespace VxXmlLib16;
using namespace VxXmlLib16Data;

namespace {

const CPrimitiveRestrictions NoFacets;
constexpr auto Keep = CWhitespaceUtils::WhitespaceRule_Preserve;

CParentElementInfo *Info(XmlElementGroupType group, XmlElementType type, const char *name,
                         bool failIfAttributeUnknown = true, bool hasBaseClasses = false)
{
    return new CParentElementInfo(group, type, name, TestNs, failIfAttributeUnknown, hasBaseClasses, -1,
                                  ItemType_Invalid, nullptr, false);
}

template <class T>
CSmartPtr<CXmlObjectBase> Make(int, const char *)
{
    return new T();
}

CSmartPtr<CXmlObjectBase> MakeShipment(CXmlElement *element)
{
    const std::string type = CClassfactoryBase::GetElementType(element);
    if (type == "courier")
        return new CCourier();
    if (type.empty() || type == "shipment")
        return new CShipment();
    return nullptr;
}

const CTestTables &ItemTables()
{
    static const CTestTables tables{
        Info(XmlElementGroupType_Sequence, XmlElementType_Element, "item"),
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
        Info(XmlElementGroupType_All, XmlElementType_Element, "person"),
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
        Info(XmlElementGroupType_Choice, XmlElementType_Pseudo, "payment", false),
        Table<CElementInfo>({new CElementInfoChoicePrimOpt("card", TestNs, CPayment::Card, false, ItemType_string,
                                                           nullptr, Keep, NoFacets, nullptr),
                             new CElementInfoChoicePrimOpt("cash", TestNs, CPayment::Cash, false, ItemType_decimal,
                                                           nullptr, Keep, NoFacets, nullptr)}),
        Table<CAttributeInfo>({})};
    return tables;
}

const CTestTables &NoteTables()
{
    static const CTestTables tables{
        Info(XmlElementGroupType_Sequence, XmlElementType_Element, "memo"),
        Table<CElementInfo>({new CElementInfoSeqPrimOpt("text", TestNs, CNote::Text, false, ItemType_string, nullptr,
                                                        Keep, NoFacets, nullptr)}),
        Table<CAttributeInfo>({})};
    return tables;
}

const CTestTables &ShipmentTables()
{
    static const CTestTables tables{
        Info(XmlElementGroupType_Sequence, XmlElementType_Element, "shipment", true, true),
        Table<CElementInfo>({new CElementInfoSeqPrimMnd("date", TestNs, CShipment::Date, false, ItemType_string,
                                                        nullptr, Keep, NoFacets, nullptr)}),
        Table<CAttributeInfo>({})};
    return tables;
}

const CTestTables &CourierTables()
{
    // A derived class lists the inherited entries in its own table.
    static const CTestTables tables{
        Info(XmlElementGroupType_Sequence, XmlElementType_Element, "courier", true, true),
        Table<CElementInfo>({new CElementInfoSeqPrimMnd("date", TestNs, CShipment::Date, false, ItemType_string,
                                                        nullptr, Keep, NoFacets, nullptr),
                             new CElementInfoSeqPrimMnd("carrier", TestNs, CShipment::Carrier, false,
                                                        ItemType_string, nullptr, Keep, NoFacets, nullptr)}),
        Table<CAttributeInfo>({})};
    return tables;
}

const CTestTables &PriceTables()
{
    static const CTestTables tables{
        new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, "price", TestNs, true, false,
                               CPrice::Value, ItemType_decimal, nullptr, false),
        Table<CElementInfo>({}),
        Table<CAttributeInfo>({new CAttributeInfoPrimitive("cur", "", CPrice::Currency, true, ItemType_string, nullptr,
                                                           Keep, NoFacets, nullptr)})};
    return tables;
}

const CTestTables &BasketTables()
{
    static const CTestTables tables{
        Info(XmlElementGroupType_Sequence, XmlElementType_Element, "basket", false),
        Table<CElementInfo>(
            {new CElementInfoSeqClsMnd("person", TestNs, CBasket::Owner, XmlElementType_Element, Make<CPerson>, 0,
                                       false),
             new CElementInfoSeqClsCol("item", TestNs, CBasket::Items, XmlElementType_Element),
             new CElementInfoSeqClsMnd("payment", TestNs, CBasket::Pay, XmlElementType_Pseudo, Make<CPayment>, 0,
                                       true),
             new CElementInfoSeqClsOpt("memo", TestNs, CBasket::Memo, XmlElementType_Element, Make<CNote>, 0),
             new CElementInfoSeqAbsClsOpt("shipment", TestNs, CBasket::ShipmentProperty, XmlElementType_Element,
                                          MakeShipment),
             new CElementInfoSeqClsOpt("price", TestNs, CBasket::PriceProperty, XmlElementType_Element, Make<CPrice>,
                                       0),
             new CElementInfoSeqUntpdOpt("AnyElement", TestNs, CBasket::Any, "##other", TestNs)}),
        Table<CAttributeInfo>({})};
    return tables;
}

const CTestTables &PickTables()
{
    static const CTestTables tables{
        Info(XmlElementGroupType_Choice, XmlElementType_Element, "pick"),
        Table<CElementInfo>({new CElementInfoChoiceClsCol("item", TestNs, CPick::Items, XmlElementType_Element),
                             new CElementInfoChoiceClsCol("person", TestNs, CPick::People, XmlElementType_Element)}),
        Table<CAttributeInfo>({})};
    return tables;
}

const CTestTables &BadAllTables()
{
    static const CTestTables tables{
        Info(XmlElementGroupType_All, XmlElementType_Element, "bad"),
        Table<CElementInfo>({new CElementInfoAllClsCol("item", TestNs, CBadAll::Items, XmlElementType_Element)}),
        Table<CAttributeInfo>({})};
    return tables;
}

} // namespace

const char *ColorToString(int value)
{
    switch (value) {
    case Color_red:
        return "red";
    case Color_green:
        return "green";
    default:
        throw CVxInvalidValueException(FormatString("Invalid Color [%d]", value));
    }
}

int ColorFromString(const char *text)
{
    if (std::strcmp(text, "red") == 0)
        return Color_red;
    if (std::strcmp(text, "green") == 0)
        return Color_green;
    throw CVxInvalidValueException(FormatString("Invalid Color [%s]", text));
}

CTestObject::CTestObject(const CTestTables &tables, int propertyCount)
    : m_tables(tables), m_properties(propertyCount)
{
    SetElementName(tables.info->GetElementName().c_str());
}

void CTestObject::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    if (read) {
        value = m_properties.at(propertyIndex);
        return;
    }
    if (propertyIndex == m_failingSetter)
        throw CVxInvalidValueException("Refused by the setter");
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

CPayment::CPayment() : CTestObject(PaymentTables(), Count) { Init(); }

CNote::CNote() : CTestObject(NoteTables(), Count) { Init(); }

void CNote::Init()
{
    CTestObject::Init();
    m_nil = false;
}

CShipment::CShipment() : CTestObject(ShipmentTables(), 1) { Init(); }

CCourier::CCourier() : CShipment(CourierTables(), 2) { Init(); }

CPrice::CPrice() : CTestObject(PriceTables(), Count) { Init(); }

CBasket::CBasket() : CTestObject(BasketTables(), Count) { Init(); }

void CBasket::CreateChildren()
{
    Property(Owner).SetXmlObject(new CPerson());
    Property(Items).SetXmlCollection(new CTestObjectCol<CItem>("item", 1, 3));
    Property(Pay).SetXmlObject(new CPayment());
}

CTestObjectCol<CItem> *CBasket::Lines() const
{
    VxVariant value;
    const_cast<CBasket *>(this)->AccessProperty(Items, true, value);
    return static_cast<CTestObjectCol<CItem> *>(static_cast<CXmlCollectionBase *>(value.GetXmlCollection()));
}

CPick::CPick() : CTestObject(PickTables(), Count) { Init(); }

void CPick::CreateChildren()
{
    Property(Items).SetXmlCollection(new CTestObjectCol<CItem>("item", 1, -1));
    Property(People).SetXmlCollection(new CTestObjectCol<CPerson>("person", 1, -1));
}

CBadAll::CBadAll() : CTestObject(BadAllTables(), Count) { Init(); }

void CBadAll::CreateChildren() { Property(Items).SetXmlCollection(new CTestObjectCol<CItem>("item", 0, -1)); }

} // namespace VxTest
