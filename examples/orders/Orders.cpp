#include "Orders.h"

#include <cstring>

namespace Orders {

using namespace VxXmlLib16;
using namespace VxXmlLib16Data;

namespace {

constexpr auto Preserve = CWhitespaceUtils::WhitespaceRule_Preserve;
constexpr auto Collapse = CWhitespaceUtils::WhitespaceRule_Collapse;
const CPrimitiveRestrictions None;

CPrimitiveRestrictions Pattern(const char *pattern)
{
    return CPrimitiveRestrictions(pattern, -1, -1, "", "", "", "", -1, -1, -1);
}

CPrimitiveRestrictions Lengths(int minLength, int maxLength, int length)
{
    return CPrimitiveRestrictions("", minLength, maxLength, "", "", "", "", length, -1, -1);
}

CParentElementInfo *Element(XmlElementGroupType group, const char *name, bool failIfAttributeUnknown = true,
                            bool hasBaseClasses = false)
{
    return new CParentElementInfo(group, XmlElementType_Element, name, Namespace, failIfAttributeUnknown,
                                  hasBaseClasses, -1, ItemType_Invalid, nullptr, false);
}

// A model group has no element; the order's attributes stand where it reads.
CParentElementInfo *Group(XmlElementGroupType group, const char *name)
{
    return new CParentElementInfo(group, XmlElementType_Pseudo, name, Namespace, false, false, -1, ItemType_Invalid,
                                  nullptr, false);
}

CElementInfo *Prim(const char *name, int property, ItemType type, bool optional,
                   const CPrimitiveRestrictions &facets = None, const char *defaultValue = nullptr)
{
    const auto rule = type == ItemType_string ? Preserve : Collapse;
    if (optional)
        return new CElementInfoSeqPrimOpt(name, Namespace, property, false, type, nullptr, rule, facets, defaultValue);
    return new CElementInfoSeqPrimMnd(name, Namespace, property, false, type, nullptr, rule, facets, defaultValue);
}

template <class T>
T *As(const VxVariant &value)
{
    return dynamic_cast<T *>(static_cast<CXmlObjectBase *>(value.GetXmlObject()));
}

// The variant forms of optional members: absent is an invalid variant.
template <class T, class Setter>
void Put(const std::optional<T> &member, VxVariant &value, Setter setter)
{
    if (member)
        (value.*setter)(*member);
    else
        value.SetInvalid();
}

template <class T>
void Take(std::optional<T> &member, const VxVariant &value, T (VxVariant::*getter)() const)
{
    if (value.IsValid())
        member = (value.*getter)();
    else
        member.reset();
}

const char *EnumText(const char *const *texts, int count, int value)
{
    if (value < 0 || value >= count)
        throw CVxInvalidValueException(FormatString("Invalid enumeration value [%d]", value));
    return texts[value];
}

int EnumValue(const char *const *texts, int count, const char *text)
{
    for (int i = 0; i < count; ++i)
        if (std::strcmp(texts[i], text) == 0)
            return i;
    throw CVxInvalidValueException(FormatString("Invalid enumeration text [%s]", text));
}

const char *const StatusTexts[] = {"new", "paid", "shipped", "cancelled"};
const char *const CurrencyTexts[] = {"EUR", "USD", "GBP", "JPY"};
const char *const WeightUnitTexts[] = {"kg", "lb"};

// ---- Tables ----------------------------------------------------------------------

enum AddressProperty { Address_Street, Address_City, Address_Postcode, Address_Country };
VxGenerated::CClassTables AddressTables([](VxGenerated::CClassTables &tables) {
    tables.Set(Element(XmlElementGroupType_Sequence, "address"),
               {new CElementInfoSeqPrimCol("street", Namespace, Address_Street),
                Prim("city", Address_City, ItemType_string, false),
                Prim("postcode", Address_Postcode, ItemType_string, false, Pattern("[0-9A-Z \\-]{3,10}")),
                Prim("country", Address_Country, ItemType_string, false, Lengths(-1, -1, 2))},
               {});
});

enum CustomerProperty { Customer_Number, Customer_Name, Customer_Email, Customer_Vip, Customer_Address };
VxGenerated::CClassTables CustomerTables([](VxGenerated::CClassTables &tables) {
    tables.Set(Element(XmlElementGroupType_All, "customer"),
               {new CElementInfoAllPrimMnd("name", Namespace, Customer_Name, false, ItemType_string, nullptr, Preserve,
                                           None, nullptr),
                new CElementInfoAllPrimOpt("email", Namespace, Customer_Email, false, ItemType_string, nullptr,
                                           Preserve, Pattern("[^@\\s]+@[^@\\s]+\\.[A-Za-z]{2,}"), nullptr),
                new CElementInfoAllPrimOpt("vip", Namespace, Customer_Vip, false, ItemType_boolean, nullptr, Collapse,
                                           None, nullptr),
                new CElementInfoAllClsOpt("address", Namespace, Customer_Address, XmlElementType_Element,
                                          CClassFactory::CreateClass, CClassFactory::ClassId_AddressType)},
               {new CAttributeInfoPrimitive("number", "", Customer_Number, false, ItemType_ui4, nullptr, Collapse, None,
                                            nullptr)});
});

enum DatesProperty { Dates_Placed, Dates_Due };
VxGenerated::CClassTables DatesTables([](VxGenerated::CClassTables &tables) {
    tables.Set(Group(XmlElementGroupType_Sequence, "Dates"),
               {Prim("placed", Dates_Placed, ItemType_datetime, false), Prim("due", Dates_Due, ItemType_date, true)},
               {});
});

enum WeightProperty { Weight_Value, Weight_Unit };
VxGenerated::CClassTables WeightTables([](VxGenerated::CClassTables &tables) {
    tables.Set(new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, "weight", Namespace, true,
                                      false, Weight_Value, ItemType_decimal, nullptr, false),
               {},
               {new CAttributeInfoEnum("unit", "", Weight_Unit, true, WeightUnitTypeToString, WeightUnitTypeFromString,
                                       "kg")});
});

enum LineProperty {
    Line_Number,
    Line_Sku,
    Line_Description,
    Line_Quantity,
    Line_UnitPrice,
    Line_Weight,
    Line_Discount,
    Line_Serial,
    Line_GiftWrap
};
VxGenerated::CClassTables LineTables([](VxGenerated::CClassTables &tables) {
    tables.Set(Element(XmlElementGroupType_Sequence, "line"),
               {Prim("sku", Line_Sku, ItemType_string, false, Pattern("\\i\\c*-[0-9]{4}")),
                Prim("description", Line_Description, ItemType_string, true),
                Prim("quantity", Line_Quantity, ItemType_i4, false,
                     CPrimitiveRestrictions("", -1, -1, "1", "10000", "", "", -1, -1, -1)),
                Prim("unitPrice", Line_UnitPrice, ItemType_decimal, false,
                     CPrimitiveRestrictions("", -1, -1, "0", "", "", "", -1, 12, 2)),
                new CElementInfoSeqClsOpt("weight", Namespace, Line_Weight, XmlElementType_Element,
                                          CClassFactory::CreateClass, CClassFactory::ClassId_WeightType),
                Prim("discount", Line_Discount, ItemType_r8, true),
                new CElementInfoSeqPrimCol("serial", Namespace, Line_Serial),
                Prim("giftWrap", Line_GiftWrap, ItemType_base64Binary, true)},
               {new CAttributeInfoPrimitive("number", "", Line_Number, false, ItemType_ui2, nullptr, Collapse, None,
                                            nullptr)});
});

enum CardProperty { Card_Holder, Card_Last4, Card_Expires };
VxGenerated::CClassTables CardTables([](VxGenerated::CClassTables &tables) {
    tables.Set(Element(XmlElementGroupType_Sequence, "card"),
               {Prim("holder", Card_Holder, ItemType_string, false),
                Prim("last4", Card_Last4, ItemType_string, false, Pattern("\\d{4}")),
                Prim("expires", Card_Expires, ItemType_yearMonth, false)},
               {});
});

enum InvoiceProperty { Invoice_Terms, Invoice_Reference };
VxGenerated::CClassTables InvoiceTables([](VxGenerated::CClassTables &tables) {
    tables.Set(Element(XmlElementGroupType_Sequence, "invoice"),
               {Prim("terms", Invoice_Terms, ItemType_duration, false),
                Prim("reference", Invoice_Reference, ItemType_string, true)},
               {});
});

enum PaymentProperty { Payment_Card, Payment_Invoice, Payment_Voucher };
VxGenerated::CClassTables PaymentTables([](VxGenerated::CClassTables &tables) {
    tables.Set(Group(XmlElementGroupType_Choice, "OrderPayment"),
               {new CElementInfoChoiceClsOpt("card", Namespace, Payment_Card, XmlElementType_Element,
                                             CClassFactory::CreateClass, CClassFactory::ClassId_CardType),
                new CElementInfoChoiceClsOpt("invoice", Namespace, Payment_Invoice, XmlElementType_Element,
                                             CClassFactory::CreateClass, CClassFactory::ClassId_InvoiceType),
                new CElementInfoChoicePrimOpt("voucher", Namespace, Payment_Voucher, false, ItemType_string, nullptr,
                                              Preserve, Lengths(8, -1, -1), nullptr)},
               {});
});

enum MessageProperty { Message_Text, Message_From };
VxGenerated::CClassTables MessageTables([](VxGenerated::CClassTables &tables) {
    tables.Set(Element(XmlElementGroupType_Sequence, "giftMessage"),
               {Prim("text", Message_Text, ItemType_string, false), Prim("from", Message_From, ItemType_string, true)},
               {});
});

enum ShipmentProperty { Shipment_Date, Shipment_Carrier, Shipment_Tracking = 2, Shipment_Store = 1, Shipment_Window };
VxGenerated::CClassTables CourierTables([](VxGenerated::CClassTables &tables) {
    // A derived type lists the inherited elements first in its own table.
    tables.Set(Element(XmlElementGroupType_Sequence, "CourierShipmentType", true, true),
               {Prim("date", Shipment_Date, ItemType_date, false),
                Prim("carrier", Shipment_Carrier, ItemType_string, false),
                Prim("tracking", Shipment_Tracking, ItemType_hexBinary, true)},
               {});
});
VxGenerated::CClassTables PickupTables([](VxGenerated::CClassTables &tables) {
    tables.Set(Element(XmlElementGroupType_Sequence, "PickupShipmentType", true, true),
               {Prim("date", Shipment_Date, ItemType_date, false), Prim("store", Shipment_Store, ItemType_string, false),
                Prim("window", Shipment_Window, ItemType_time, true)},
               {});
});

enum OrderProperty {
    Order_Id,
    Order_Currency,
    Order_Express,
    Order_AnyAttributes,
    Order_Customer,
    Order_Dates,
    Order_Status,
    Order_Priority,
    Order_Line,
    Order_Tag,
    Order_Payment,
    Order_Shipment,
    Order_GiftMessage,
    Order_Note,
    Order_Any
};
VxGenerated::CClassTables OrderTables([](VxGenerated::CClassTables &tables) {
    // The attributes of the groups would stand on this element: unknown ones are not refused here.
    tables.Set(
        Element(XmlElementGroupType_Sequence, "order", false),
        {new CElementInfoSeqClsMnd("customer", Namespace, Order_Customer, XmlElementType_Element,
                                   CClassFactory::CreateClass, CClassFactory::ClassId_CustomerType, true),
         new CElementInfoSeqClsMnd("Dates", Namespace, Order_Dates, XmlElementType_Pseudo, CClassFactory::CreateClass,
                                   CClassFactory::ClassId_Dates, true),
         new CElementInfoSeqEnumMnd("status", Namespace, Order_Status, false, StatusTypeToString, StatusTypeFromString,
                                    nullptr),
         Prim("priority", Order_Priority, ItemType_i4, true, None, "3"),
         new CElementInfoSeqClsCol("line", Namespace, Order_Line, XmlElementType_Element),
         new CElementInfoSeqPrimCol("tag", Namespace, Order_Tag),
         new CElementInfoSeqClsMnd("OrderPayment", Namespace, Order_Payment, XmlElementType_Pseudo,
                                   CClassFactory::CreateClass, CClassFactory::ClassId_OrderPayment, true),
         new CElementInfoSeqAbsClsOpt("shipment", Namespace, Order_Shipment, XmlElementType_Element,
                                      CClassFactory::CreateShipment),
         new CElementInfoSeqClsOpt("giftMessage", Namespace, Order_GiftMessage, XmlElementType_Element,
                                   CClassFactory::CreateClass, CClassFactory::ClassId_MessageType),
         new CElementInfoSeqPrimOpt("note", Namespace, Order_Note, true, ItemType_string, nullptr, Preserve, None,
                                    nullptr),
         new CElementInfoSeqUntpdCol("AnyElement", Namespace, Order_Any)},
        {new CAttributeInfoPrimitive("id", "", Order_Id, false, ItemType_string, nullptr, Preserve,
                                     Pattern("[A-Z]{2}-\\d{6}"), nullptr),
         new CAttributeInfoEnum("currency", "", Order_Currency, true, CurrencyTypeToString, CurrencyTypeFromString,
                                "EUR"),
         new CAttributeInfoPrimitive("express", "", Order_Express, true, ItemType_boolean, nullptr, Collapse, None,
                                     "false"),
         new CAttributeInfoAny("", "", Order_AnyAttributes, true, "##other", Namespace, nullptr)});
});

enum OrdersProperty { Orders_Generated, Orders_Source, Orders_Order };
VxGenerated::CClassTables OrdersTables([](VxGenerated::CClassTables &tables) {
    tables.Set(Element(XmlElementGroupType_Sequence, "orders"),
               {new CElementInfoSeqClsCol("order", Namespace, Orders_Order, XmlElementType_Element)},
               {new CAttributeInfoPrimitive("generated", "", Orders_Generated, false, ItemType_datetime, nullptr,
                                            Collapse, None, nullptr),
                new CAttributeInfoPrimitive("source", "", Orders_Source, true, ItemType_string, nullptr, Preserve, None,
                                            nullptr)});
});

} // namespace

const char *StatusTypeToString(int value) { return EnumText(StatusTexts, 4, value); }
int StatusTypeFromString(const char *text) { return EnumValue(StatusTexts, 4, text); }
const char *CurrencyTypeToString(int value) { return EnumText(CurrencyTexts, 4, value); }
int CurrencyTypeFromString(const char *text) { return EnumValue(CurrencyTexts, 4, text); }
const char *WeightUnitTypeToString(int value) { return EnumText(WeightUnitTexts, 2, value); }
int WeightUnitTypeFromString(const char *text) { return EnumValue(WeightUnitTexts, 2, text); }

// ---- CAddressType ------------------------------------------------------------------

CSmartPtr<CAddressType> CAddressType::CreateInstance() { return new CAddressType(); }

CAddressType::CAddressType() : COrdersBase(AddressTables)
{
    SetElementName("address");
    Init();
}

void CAddressType::Init()
{
    m_street = new CstringCol("street", Namespace, 1, 3, "", -1, -1, "", "", "", "", -1, -1, -1, Preserve, nullptr);
    m_city.clear();
    m_postcode.clear();
    m_country.clear();
}

void CAddressType::SetCountry(const std::string &value)
{
    CheckRestrictionValue("country", value, ItemType_string, Lengths(-1, -1, 2));
    m_country = value;
}

void CAddressType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Address_Street:
        if (read)
            value.SetXmlCollection(m_street);
        break;
    case Address_City:
        read ? value.SetString(m_city) : SetCity(value.GetString());
        break;
    case Address_Postcode:
        read ? value.SetString(m_postcode) : SetPostcode(value.GetString());
        break;
    case Address_Country:
        read ? value.SetString(m_country) : SetCountry(value.GetString());
        break;
    }
}

// ---- CCustomerType -----------------------------------------------------------------

CSmartPtr<CCustomerType> CCustomerType::CreateInstance() { return new CCustomerType(); }

CCustomerType::CCustomerType() : COrdersBase(CustomerTables)
{
    SetElementName("customer");
    Init();
}

void CCustomerType::Init()
{
    m_number = 0;
    m_name.clear();
    m_email.reset();
    m_vip.reset();
    m_address = nullptr;
}

void CCustomerType::SetAddress(CAddressType *value)
{
    Throw_IfElementNameDiffers(value, "address");
    m_address = value;
}

void CCustomerType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Customer_Number:
        read ? value.SetUI4(m_number) : SetNumber(value.GetUI4());
        break;
    case Customer_Name:
        read ? value.SetString(m_name) : SetName(value.GetString());
        break;
    case Customer_Email:
        read ? Put(m_email, value, &VxVariant::SetString) : Take(m_email, value, &VxVariant::GetString);
        break;
    case Customer_Vip:
        read ? Put(m_vip, value, &VxVariant::SetBoolean) : Take(m_vip, value, &VxVariant::GetBoolean);
        break;
    case Customer_Address:
        read ? value.SetXmlObject(m_address) : SetAddress(As<CAddressType>(value));
        break;
    }
}

// ---- CDates ------------------------------------------------------------------------

CSmartPtr<CDates> CDates::CreateInstance() { return new CDates(); }

CDates::CDates() : COrdersBase(DatesTables)
{
    // A group writes no element; the name appears in failure messages only.
    SetElementName("Dates");
    Init();
}

void CDates::Init()
{
    m_placed = CDateTime();
    m_due.reset();
}

void CDates::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Dates_Placed:
        read ? value.SetDateTime(m_placed) : SetPlaced(value.GetDateTime());
        break;
    case Dates_Due:
        read ? Put(m_due, value, &VxVariant::SetDate) : Take(m_due, value, &VxVariant::GetDate);
        break;
    }
}

// ---- CWeightType -------------------------------------------------------------------

CSmartPtr<CWeightType> CWeightType::CreateInstance() { return new CWeightType(); }

CWeightType::CWeightType() : COrdersBase(WeightTables)
{
    SetElementName("weight");
    Init();
}

void CWeightType::Init()
{
    m_value = CDecimal();
    m_unit.reset();
}

void CWeightType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Weight_Value:
        read ? value.SetDecimal(m_value) : SetValue(value.GetDecimal());
        break;
    case Weight_Unit:
        if (read) {
            if (m_unit)
                value.SetI4(*m_unit);
            else
                value.SetInvalid();
        } else {
            m_unit = static_cast<WeightUnitType>(value.GetI4());
        }
        break;
    }
}

// ---- CLineType ---------------------------------------------------------------------

CSmartPtr<CLineType> CLineType::CreateInstance() { return new CLineType(); }

CLineType::CLineType() : COrdersBase(LineTables)
{
    SetElementName("line");
    Init();
}

void CLineType::Init()
{
    m_number = 0;
    m_sku.clear();
    m_description.reset();
    m_quantity = 1;
    m_unitPrice = CDecimal();
    m_weight = nullptr;
    m_discount.reset();
    m_serial = new Ci8Col("serial", Namespace, 0, -1, "", -1, -1, "", "", "", "", -1, -1, -1, Collapse, nullptr);
    m_giftWrap.reset();
}

void CLineType::SetQuantity(std::int32_t value)
{
    if (value < 1 || value > 10000)
        throw CVxInvalidValueException(FormatString("The quantity [%d] must lie between 1 and 10000", value));
    m_quantity = value;
}

void CLineType::SetWeight(CWeightType *value)
{
    Throw_IfElementNameDiffers(value, "weight");
    m_weight = value;
}

void CLineType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Line_Number:
        read ? value.SetUI2(m_number) : SetNumber(value.GetUI2());
        break;
    case Line_Sku:
        read ? value.SetString(m_sku) : SetSku(value.GetString());
        break;
    case Line_Description:
        read ? Put(m_description, value, &VxVariant::SetString) : Take(m_description, value, &VxVariant::GetString);
        break;
    case Line_Quantity:
        read ? value.SetI4(m_quantity) : SetQuantity(value.GetI4());
        break;
    case Line_UnitPrice:
        read ? value.SetDecimal(m_unitPrice) : SetUnitPrice(value.GetDecimal());
        break;
    case Line_Weight:
        read ? value.SetXmlObject(m_weight) : SetWeight(As<CWeightType>(value));
        break;
    case Line_Discount:
        read ? Put(m_discount, value, &VxVariant::SetR8) : Take(m_discount, value, &VxVariant::GetR8);
        break;
    case Line_Serial:
        if (read)
            value.SetXmlCollection(m_serial);
        break;
    case Line_GiftWrap:
        read ? Put(m_giftWrap, value, &VxVariant::SetBase64Binary)
             : Take(m_giftWrap, value, &VxVariant::GetBase64Binary);
        break;
    }
}

// ---- CCardType, CInvoiceType -------------------------------------------------------

CSmartPtr<CCardType> CCardType::CreateInstance() { return new CCardType(); }

CCardType::CCardType() : COrdersBase(CardTables)
{
    SetElementName("card");
    Init();
}

void CCardType::Init()
{
    m_holder.clear();
    m_last4.clear();
    m_expires = CDateTime();
}

void CCardType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Card_Holder:
        read ? value.SetString(m_holder) : SetHolder(value.GetString());
        break;
    case Card_Last4:
        read ? value.SetString(m_last4) : SetLast4(value.GetString());
        break;
    case Card_Expires:
        read ? value.SetYearMonth(m_expires) : SetExpires(value.GetYearMonth());
        break;
    }
}

CSmartPtr<CInvoiceType> CInvoiceType::CreateInstance() { return new CInvoiceType(); }

CInvoiceType::CInvoiceType() : COrdersBase(InvoiceTables)
{
    SetElementName("invoice");
    Init();
}

void CInvoiceType::Init()
{
    m_terms = CDateTimeSpan();
    m_reference.reset();
}

void CInvoiceType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Invoice_Terms:
        read ? value.SetDuration(m_terms) : SetTerms(value.GetDuration());
        break;
    case Invoice_Reference:
        read ? Put(m_reference, value, &VxVariant::SetString) : Take(m_reference, value, &VxVariant::GetString);
        break;
    }
}

// ---- COrderPayment -----------------------------------------------------------------

CSmartPtr<COrderPayment> COrderPayment::CreateInstance() { return new COrderPayment(); }

COrderPayment::COrderPayment() : COrdersBase(PaymentTables)
{
    SetElementName("OrderPayment");
    Init();
}

void COrderPayment::Init()
{
    m_selected.clear();
    m_card = nullptr;
    m_invoice = nullptr;
    m_voucher.reset();
}

void COrderPayment::SetCard(CCardType *value)
{
    Choice_SelectElement("card", value, m_selected);
    Throw_IfElementNameDiffers(value, "card");
    m_card = value;
}

void COrderPayment::SetInvoice(CInvoiceType *value)
{
    Choice_SelectElement("invoice", value, m_selected);
    Throw_IfElementNameDiffers(value, "invoice");
    m_invoice = value;
}

void COrderPayment::SetVoucher(const std::optional<std::string> &value)
{
    // The object itself stands for a present voucher in the selection.
    Choice_SelectElement("voucher", value ? this : nullptr, m_selected);
    m_voucher = value;
}

void COrderPayment::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Payment_Card:
        read ? value.SetXmlObject(m_card) : SetCard(As<CCardType>(value));
        break;
    case Payment_Invoice:
        read ? value.SetXmlObject(m_invoice) : SetInvoice(As<CInvoiceType>(value));
        break;
    case Payment_Voucher:
        if (read)
            Put(m_voucher, value, &VxVariant::SetString);
        else
            SetVoucher(value.IsValid() ? std::optional<std::string>(value.GetString()) : std::nullopt);
        break;
    }
}

// ---- CMessageType ------------------------------------------------------------------

CSmartPtr<CMessageType> CMessageType::CreateInstance() { return new CMessageType(); }

CMessageType::CMessageType() : COrdersBase(MessageTables)
{
    SetElementName("giftMessage");
    Init();
}

void CMessageType::Init()
{
    m_nil = false;
    m_text.clear();
    m_from.reset();
}

void CMessageType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Message_Text:
        read ? value.SetString(m_text) : SetText(value.GetString());
        break;
    case Message_From:
        read ? Put(m_from, value, &VxVariant::SetString) : Take(m_from, value, &VxVariant::GetString);
        break;
    }
}

// ---- Shipments ---------------------------------------------------------------------

void CShipmentType::Init() { m_date = CDateTime(); }

void CShipmentType::AccessDate(bool read, VxVariant &value)
{
    read ? value.SetDate(m_date) : SetDate(value.GetDate());
}

CSmartPtr<CCourierShipmentType> CCourierShipmentType::CreateInstance() { return new CCourierShipmentType(); }

CCourierShipmentType::CCourierShipmentType() : CShipmentType(CourierTables)
{
    SetElementName("CourierShipmentType");
    Init();
}

void CCourierShipmentType::Init()
{
    CShipmentType::Init();
    m_carrier.clear();
    m_tracking.reset();
}

void CCourierShipmentType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Shipment_Date:
        AccessDate(read, value);
        break;
    case Shipment_Carrier:
        read ? value.SetString(m_carrier) : SetCarrier(value.GetString());
        break;
    case Shipment_Tracking:
        read ? Put(m_tracking, value, &VxVariant::SetHexBinary) : Take(m_tracking, value, &VxVariant::GetHexBinary);
        break;
    }
}

CSmartPtr<CPickupShipmentType> CPickupShipmentType::CreateInstance() { return new CPickupShipmentType(); }

CPickupShipmentType::CPickupShipmentType() : CShipmentType(PickupTables)
{
    SetElementName("PickupShipmentType");
    Init();
}

void CPickupShipmentType::Init()
{
    CShipmentType::Init();
    m_store.clear();
    m_window.reset();
}

void CPickupShipmentType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Shipment_Date:
        AccessDate(read, value);
        break;
    case Shipment_Store:
        read ? value.SetString(m_store) : SetStore(value.GetString());
        break;
    case Shipment_Window:
        read ? Put(m_window, value, &VxVariant::SetTime) : Take(m_window, value, &VxVariant::GetTime);
        break;
    }
}

// ---- COrderType --------------------------------------------------------------------

CSmartPtr<COrderType> COrderType::CreateInstance() { return new COrderType(); }

COrderType::COrderType() : COrdersBase(OrderTables)
{
    SetElementName("order");
    Init();
}

void COrderType::Init()
{
    m_id.clear();
    m_currency.reset();
    m_express.reset();
    m_anyAttributes = new CAttributeCol("", "##other", Namespace);
    m_customer = CCustomerType::CreateInstance();
    m_dates = CDates::CreateInstance();
    m_status = StatusType_new;
    m_priority.reset();
    m_line = new CLineTypeCol("line", Namespace, 1, -1);
    m_tag = new CstringCol("tag", Namespace, 0, 10, "", 1, 20, "", "", "", "", -1, -1, -1, Preserve, nullptr);
    m_payment = COrderPayment::CreateInstance();
    m_shipment = nullptr;
    m_giftMessage = nullptr;
    m_note.reset();
    m_any = new CElementCol("", "##other", Namespace, 0, -1);
}

void COrderType::SetId(const std::string &value)
{
    CheckRestrictionValue("id", value, ItemType_string, Pattern("[A-Z]{2}-\\d{6}"));
    m_id = value;
}

void COrderType::SetCustomer(CCustomerType *value)
{
    Throw_IfPropertyIsNull(value, "customer");
    Throw_IfElementNameDiffers(value, "customer");
    m_customer = value;
}

void COrderType::SetShipment(CShipmentType *value)
{
    // Any shipment type stands under the element name shipment.
    if (value)
        SetElementName(value, "shipment");
    m_shipment = value;
}

void COrderType::SetGiftMessage(CMessageType *value)
{
    Throw_IfElementNameDiffers(value, "giftMessage");
    m_giftMessage = value;
}

void COrderType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Order_Id:
        read ? value.SetString(m_id) : SetId(value.GetString());
        break;
    case Order_Currency:
        if (read) {
            if (m_currency)
                value.SetI4(*m_currency);
            else
                value.SetInvalid();
        } else {
            m_currency = static_cast<CurrencyType>(value.GetI4());
        }
        break;
    case Order_Express:
        read ? Put(m_express, value, &VxVariant::SetBoolean) : Take(m_express, value, &VxVariant::GetBoolean);
        break;
    case Order_AnyAttributes:
        if (read)
            value.SetXmlCollection(m_anyAttributes);
        break;
    case Order_Customer:
        read ? value.SetXmlObject(m_customer) : SetCustomer(As<CCustomerType>(value));
        break;
    case Order_Dates:
        if (read)
            value.SetXmlObject(m_dates);
        break;
    case Order_Status:
        read ? value.SetI4(m_status) : SetStatus(static_cast<StatusType>(value.GetI4()));
        break;
    case Order_Priority:
        read ? Put(m_priority, value, &VxVariant::SetI4) : Take(m_priority, value, &VxVariant::GetI4);
        break;
    case Order_Line:
        if (read)
            value.SetXmlCollection(m_line);
        break;
    case Order_Tag:
        if (read)
            value.SetXmlCollection(m_tag);
        break;
    case Order_Payment:
        if (read)
            value.SetXmlObject(m_payment);
        break;
    case Order_Shipment:
        read ? value.SetXmlObject(m_shipment) : SetShipment(As<CShipmentType>(value));
        break;
    case Order_GiftMessage:
        read ? value.SetXmlObject(m_giftMessage) : SetGiftMessage(As<CMessageType>(value));
        break;
    case Order_Note:
        read ? Put(m_note, value, &VxVariant::SetString) : Take(m_note, value, &VxVariant::GetString);
        break;
    case Order_Any:
        if (read)
            value.SetXmlCollection(m_any);
        break;
    }
}

// ---- COrdersType -------------------------------------------------------------------

CSmartPtr<COrdersType> COrdersType::CreateInstance() { return new COrdersType(); }

COrdersType::COrdersType() : COrdersBase(OrdersTables)
{
    SetElementName("orders");
    Init();
}

void COrdersType::Init()
{
    m_generated = CDateTime();
    m_source.reset();
    m_order = new COrderTypeCol("order", Namespace, 1, -1);
}

void COrdersType::AccessProperty(int propertyIndex, bool read, VxVariant &value)
{
    switch (propertyIndex) {
    case Orders_Generated:
        read ? value.SetDateTime(m_generated) : SetGenerated(value.GetDateTime());
        break;
    case Orders_Source:
        read ? Put(m_source, value, &VxVariant::SetString) : Take(m_source, value, &VxVariant::GetString);
        break;
    case Orders_Order:
        if (read)
            value.SetXmlCollection(m_order);
        break;
    }
}

// ---- CClassFactory -----------------------------------------------------------------

CSmartPtr<CXmlObjectBase> CClassFactory::CreateClass(int classId, const char *elementName)
{
    CSmartPtr<COrdersBase> object;
    switch (classId) {
    case ClassId_CustomerType:
        object = new CCustomerType();
        break;
    case ClassId_AddressType:
        object = new CAddressType();
        break;
    case ClassId_Dates:
        object = new CDates();
        break;
    case ClassId_WeightType:
        object = new CWeightType();
        break;
    case ClassId_CardType:
        object = new CCardType();
        break;
    case ClassId_InvoiceType:
        object = new CInvoiceType();
        break;
    case ClassId_OrderPayment:
        object = new COrderPayment();
        break;
    case ClassId_MessageType:
        object = new CMessageType();
        break;
    default:
        throw CVxInvalidParamException(FormatString("Unknown class id [%d]", classId));
    }
    object->SetElementName(elementName);
    return static_cast<COrdersBase *>(object);
}

CSmartPtr<CXmlObjectBase> CClassFactory::CreateShipment(CXmlElement *element)
{
    const std::string type = GetElementType(element);
    if (type == "CourierShipmentType")
        return new CCourierShipmentType();
    if (type == "PickupShipmentType")
        return new CPickupShipmentType();
    return nullptr;
}

} // namespace Orders
