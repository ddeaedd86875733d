#pragma once
// Classes for the schema urn:example:orders (orders.xsd), in the form the code generator
// emits: one class per complex type, one per model group and choice that needs one, a
// class factory, and the text functions of the enumerations.

#include <cstdint>
#include <optional>
#include <string>

#include "GeneratedSupport.h"
#include "TypeCollections.h"
#include "VxXmlLib16.h"
#include "Wildcards.h"

namespace Orders {

constexpr const char *Namespace = "urn:example:orders";

enum StatusType : std::int32_t { StatusType_new, StatusType_paid, StatusType_shipped, StatusType_cancelled };
enum CurrencyType : std::int32_t { CurrencyType_EUR, CurrencyType_USD, CurrencyType_GBP, CurrencyType_JPY };
enum WeightUnitType : std::int32_t { WeightUnitType_kg, WeightUnitType_lb };

const char *StatusTypeToString(int value);
int StatusTypeFromString(const char *text);
const char *CurrencyTypeToString(int value);
int CurrencyTypeFromString(const char *text);
const char *WeightUnitTypeToString(int value);
int WeightUnitTypeFromString(const char *text);

// What all classes of this schema share.
class COrdersBase : public VxXmlLib16::CXmlGeneratedClass
{
public:
    VxXmlLib16::CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return Namespace; }
    std::string GetNamespace() const override { return Namespace; }
    // The element name under which the object is written.
    using VxXmlLib16::CXmlObjectBase::SetElementName;

protected:
    explicit COrdersBase(VxGenerated::CClassTables &tables) : m_tables(tables) {}
    ~COrdersBase() override = default;
    VxXmlLib16Data::CParentElementInfo *GetClassInfo() const override { return m_tables.Info(); }
    VxXmlLib16Data::CElementInfo **GetClassElementInfo() const override { return m_tables.Elements(); }
    VxXmlLib16Data::CAttributeInfo **GetClassAttributeInfo() const override { return m_tables.Attributes(); }

private:
    VxGenerated::CClassTables &m_tables;
};

class CAddressType final : public COrdersBase
{
public:
    static CSmartPtr<CAddressType> CreateInstance();
    CAddressType();
    VxXmlLib16::CstringCol *GetStreet() const { return m_street; }
    std::string GetCity() const { return m_city; }
    void SetCity(const std::string &value) { m_city = value; }
    std::string GetPostcode() const { return m_postcode; }
    void SetPostcode(const std::string &value) { m_postcode = value; }
    std::string GetCountry() const { return m_country; }
    void SetCountry(const std::string &value);
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    CSmartPtr<VxXmlLib16::CstringCol> m_street;
    std::string m_city;
    std::string m_postcode;
    std::string m_country;
};

class CCustomerType final : public COrdersBase
{
public:
    static CSmartPtr<CCustomerType> CreateInstance();
    CCustomerType();
    std::uint32_t GetNumber() const { return m_number; }
    void SetNumber(std::uint32_t value) { m_number = value; }
    std::string GetName() const { return m_name; }
    void SetName(const std::string &value) { m_name = value; }
    const std::optional<std::string> &GetEmail() const { return m_email; }
    void SetEmail(const std::optional<std::string> &value) { m_email = value; }
    const std::optional<bool> &GetVip() const { return m_vip; }
    void SetVip(const std::optional<bool> &value) { m_vip = value; }
    CSmartPtr<CAddressType> GetAddress() const { return m_address; }
    void SetAddress(CAddressType *value);
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    std::uint32_t m_number = 0;
    std::string m_name;
    std::optional<std::string> m_email;
    std::optional<bool> m_vip;
    CSmartPtr<CAddressType> m_address;
};

// The model group Dates: its elements stand among the order's own.
class CDates final : public COrdersBase
{
public:
    static CSmartPtr<CDates> CreateInstance();
    CDates();
    VxXmlLib16::CDateTime GetPlaced() const { return m_placed; }
    void SetPlaced(const VxXmlLib16::CDateTime &value) { m_placed = value; }
    const std::optional<VxXmlLib16::CDateTime> &GetDue() const { return m_due; }
    void SetDue(const std::optional<VxXmlLib16::CDateTime> &value) { m_due = value; }
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    VxXmlLib16::CDateTime m_placed;
    std::optional<VxXmlLib16::CDateTime> m_due;
};

class CWeightType final : public COrdersBase
{
public:
    static CSmartPtr<CWeightType> CreateInstance();
    CWeightType();
    VxXmlLib16::CDecimal GetValue() const { return m_value; }
    void SetValue(const VxXmlLib16::CDecimal &value) { m_value = value; }
    const std::optional<WeightUnitType> &GetUnit() const { return m_unit; }
    void SetUnit(const std::optional<WeightUnitType> &value) { m_unit = value; }
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    VxXmlLib16::CDecimal m_value;
    std::optional<WeightUnitType> m_unit;
};

class CLineType final : public COrdersBase
{
public:
    static CSmartPtr<CLineType> CreateInstance();
    CLineType();
    std::uint16_t GetNumber() const { return m_number; }
    void SetNumber(std::uint16_t value) { m_number = value; }
    std::string GetSku() const { return m_sku; }
    void SetSku(const std::string &value) { m_sku = value; }
    const std::optional<std::string> &GetDescription() const { return m_description; }
    void SetDescription(const std::optional<std::string> &value) { m_description = value; }
    std::int32_t GetQuantity() const { return m_quantity; }
    // Refuses quantities outside 1 to 10000.
    void SetQuantity(std::int32_t value);
    VxXmlLib16::CDecimal GetUnitPrice() const { return m_unitPrice; }
    void SetUnitPrice(const VxXmlLib16::CDecimal &value) { m_unitPrice = value; }
    CSmartPtr<CWeightType> GetWeight() const { return m_weight; }
    void SetWeight(CWeightType *value);
    const std::optional<double> &GetDiscount() const { return m_discount; }
    void SetDiscount(const std::optional<double> &value) { m_discount = value; }
    VxXmlLib16::Ci8Col *GetSerial() const { return m_serial; }
    const std::optional<VxXmlLib16::CBinaryData> &GetGiftWrap() const { return m_giftWrap; }
    void SetGiftWrap(const std::optional<VxXmlLib16::CBinaryData> &value) { m_giftWrap = value; }
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    std::uint16_t m_number = 0;
    std::string m_sku;
    std::optional<std::string> m_description;
    std::int32_t m_quantity = 1;
    VxXmlLib16::CDecimal m_unitPrice;
    CSmartPtr<CWeightType> m_weight;
    std::optional<double> m_discount;
    CSmartPtr<VxXmlLib16::Ci8Col> m_serial;
    std::optional<VxXmlLib16::CBinaryData> m_giftWrap;
};

class CCardType final : public COrdersBase
{
public:
    static CSmartPtr<CCardType> CreateInstance();
    CCardType();
    std::string GetHolder() const { return m_holder; }
    void SetHolder(const std::string &value) { m_holder = value; }
    std::string GetLast4() const { return m_last4; }
    void SetLast4(const std::string &value) { m_last4 = value; }
    VxXmlLib16::CDateTime GetExpires() const { return m_expires; }
    void SetExpires(const VxXmlLib16::CDateTime &value) { m_expires = value; }
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    std::string m_holder;
    std::string m_last4;
    VxXmlLib16::CDateTime m_expires;
};

class CInvoiceType final : public COrdersBase
{
public:
    static CSmartPtr<CInvoiceType> CreateInstance();
    CInvoiceType();
    VxXmlLib16::CDateTimeSpan GetTerms() const { return m_terms; }
    void SetTerms(const VxXmlLib16::CDateTimeSpan &value) { m_terms = value; }
    const std::optional<std::string> &GetReference() const { return m_reference; }
    void SetReference(const std::optional<std::string> &value) { m_reference = value; }
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    VxXmlLib16::CDateTimeSpan m_terms;
    std::optional<std::string> m_reference;
};

// The order's choice of payment: one of card, invoice and voucher.
class COrderPayment final : public COrdersBase
{
public:
    static CSmartPtr<COrderPayment> CreateInstance();
    COrderPayment();
    // The name of the chosen member, empty while none is.
    const std::string &GetSelected() const { return m_selected; }
    CSmartPtr<CCardType> GetCard() const { return m_card; }
    void SetCard(CCardType *value);
    CSmartPtr<CInvoiceType> GetInvoice() const { return m_invoice; }
    void SetInvoice(CInvoiceType *value);
    const std::optional<std::string> &GetVoucher() const { return m_voucher; }
    void SetVoucher(const std::optional<std::string> &value);
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    std::string m_selected;
    CSmartPtr<CCardType> m_card;
    CSmartPtr<CInvoiceType> m_invoice;
    std::optional<std::string> m_voucher;
};

class CMessageType final : public COrdersBase, public VxXmlLib16::INillable
{
public:
    static CSmartPtr<CMessageType> CreateInstance();
    CMessageType();
    bool IsNil() const override { return m_nil; }
    void SetNil(bool nil) override { m_nil = nil; }
    std::string GetText() const { return m_text; }
    void SetText(const std::string &value) { m_text = value; }
    const std::optional<std::string> &GetFrom() const { return m_from; }
    void SetFrom(const std::optional<std::string> &value) { m_from = value; }
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    bool m_nil = false;
    std::string m_text;
    std::optional<std::string> m_from;
};

// The abstract shipment; documents name the concrete type with xsi:type.
class CShipmentType : public COrdersBase
{
public:
    VxXmlLib16::CDateTime GetDate() const { return m_date; }
    void SetDate(const VxXmlLib16::CDateTime &value) { m_date = value; }

protected:
    explicit CShipmentType(VxGenerated::CClassTables &tables) : COrdersBase(tables) {}
    void AccessDate(bool read, VxXmlLib16::VxVariant &value);
    void Init() override;

private:
    VxXmlLib16::CDateTime m_date;
};

class CCourierShipmentType final : public CShipmentType
{
public:
    static CSmartPtr<CCourierShipmentType> CreateInstance();
    CCourierShipmentType();
    std::string GetCarrier() const { return m_carrier; }
    void SetCarrier(const std::string &value) { m_carrier = value; }
    const std::optional<VxXmlLib16::CBinaryData> &GetTracking() const { return m_tracking; }
    void SetTracking(const std::optional<VxXmlLib16::CBinaryData> &value) { m_tracking = value; }
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    std::string m_carrier;
    std::optional<VxXmlLib16::CBinaryData> m_tracking;
};

class CPickupShipmentType final : public CShipmentType
{
public:
    static CSmartPtr<CPickupShipmentType> CreateInstance();
    CPickupShipmentType();
    std::string GetStore() const { return m_store; }
    void SetStore(const std::string &value) { m_store = value; }
    const std::optional<VxXmlLib16::CDateTime> &GetWindow() const { return m_window; }
    void SetWindow(const std::optional<VxXmlLib16::CDateTime> &value) { m_window = value; }
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    std::string m_store;
    std::optional<VxXmlLib16::CDateTime> m_window;
};

using CLineTypeCol = VxGenerated::CGeneratedCol<CLineType>;

class COrderType final : public COrdersBase
{
public:
    static CSmartPtr<COrderType> CreateInstance();
    COrderType();
    std::string GetId() const { return m_id; }
    // Refuses an identifier that is not two capitals, a hyphen and six digits.
    void SetId(const std::string &value);
    const std::optional<CurrencyType> &GetCurrency() const { return m_currency; }
    void SetCurrency(const std::optional<CurrencyType> &value) { m_currency = value; }
    const std::optional<bool> &GetExpress() const { return m_express; }
    void SetExpress(const std::optional<bool> &value) { m_express = value; }
    VxXmlLib16::CAttributeCol *GetAnyAttributes() const { return m_anyAttributes; }
    CSmartPtr<CCustomerType> GetCustomer() const { return m_customer; }
    void SetCustomer(CCustomerType *value);
    CSmartPtr<CDates> GetDates() const { return m_dates; }
    StatusType GetStatus() const { return m_status; }
    void SetStatus(StatusType value) { m_status = value; }
    const std::optional<std::int32_t> &GetPriority() const { return m_priority; }
    void SetPriority(const std::optional<std::int32_t> &value) { m_priority = value; }
    CLineTypeCol *GetLine() const { return m_line; }
    VxXmlLib16::CstringCol *GetTag() const { return m_tag; }
    CSmartPtr<COrderPayment> GetPayment() const { return m_payment; }
    CSmartPtr<CShipmentType> GetShipment() const { return m_shipment; }
    void SetShipment(CShipmentType *value);
    CSmartPtr<CMessageType> GetGiftMessage() const { return m_giftMessage; }
    void SetGiftMessage(CMessageType *value);
    const std::optional<std::string> &GetNote() const { return m_note; }
    void SetNote(const std::optional<std::string> &value) { m_note = value; }
    VxXmlLib16::CElementCol *GetAny() const { return m_any; }
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    std::string m_id;
    std::optional<CurrencyType> m_currency;
    std::optional<bool> m_express;
    CSmartPtr<VxXmlLib16::CAttributeCol> m_anyAttributes;
    CSmartPtr<CCustomerType> m_customer;
    CSmartPtr<CDates> m_dates;
    StatusType m_status = StatusType_new;
    std::optional<std::int32_t> m_priority;
    CSmartPtr<CLineTypeCol> m_line;
    CSmartPtr<VxXmlLib16::CstringCol> m_tag;
    CSmartPtr<COrderPayment> m_payment;
    CSmartPtr<CShipmentType> m_shipment;
    CSmartPtr<CMessageType> m_giftMessage;
    std::optional<std::string> m_note;
    CSmartPtr<VxXmlLib16::CElementCol> m_any;
};

using COrderTypeCol = VxGenerated::CGeneratedCol<COrderType>;

// The document element.
class COrdersType final : public COrdersBase
{
public:
    static CSmartPtr<COrdersType> CreateInstance();
    COrdersType();
    VxXmlLib16::CDateTime GetGenerated() const { return m_generated; }
    void SetGenerated(const VxXmlLib16::CDateTime &value) { m_generated = value; }
    const std::optional<std::string> &GetSource() const { return m_source; }
    void SetSource(const std::optional<std::string> &value) { m_source = value; }
    COrderTypeCol *GetOrder() const { return m_order; }
    void AccessProperty(int propertyIndex, bool read, VxXmlLib16::VxVariant &value) override;
    void Init() override;

private:
    VxXmlLib16::CDateTime m_generated;
    std::optional<std::string> m_source;
    CSmartPtr<COrderTypeCol> m_order;
};

// Makes the objects the metadata asks for: by class number, or for a shipment by the
// xsi:type of the element being read.
class CClassFactory : public VxXmlLib16::CClassfactoryBase
{
public:
    enum ClassId : std::int32_t {
        ClassId_CustomerType,
        ClassId_AddressType,
        ClassId_Dates,
        ClassId_WeightType,
        ClassId_CardType,
        ClassId_InvoiceType,
        ClassId_OrderPayment,
        ClassId_MessageType
    };
    static CSmartPtr<VxXmlLib16::CXmlObjectBase> CreateClass(int classId, const char *elementName);
    // Null for an element whose xsi:type names no shipment this schema knows.
    static CSmartPtr<VxXmlLib16::CXmlObjectBase> CreateShipment(VxXmlLib16::CXmlElement *element);
};

} // namespace Orders
