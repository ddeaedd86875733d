// Hand-written serialisable classes for a small order document: what generated classes
// do through their metadata tables, done here by hand through the writer interface.
// Prints the document, formatted, on standard output.

#include <iostream>
#include <string>
#include <vector>

#include "VxXmlLib16.h"

using namespace VxXmlLib16;

namespace {

const char *const OrdersNamespace = "urn:example:orders";

struct OrderLine
{
    unsigned number;
    std::string sku;
    std::string description;
    int quantity;
    std::string unitPrice;
};

class COrder final : public CXmlObjectBase
{
public:
    std::string id;
    std::string currency;
    unsigned customerNumber = 0;
    std::string customerName;
    std::string placed;
    std::string status;
    std::vector<OrderLine> lines;
    std::string cardHolder;
    std::string cardLast4;
    std::string cardExpires;

    CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return OrdersNamespace; }
    std::string GetNamespace() const override { return OrdersNamespace; }

protected:
    void ToXml_Int(CXmlWriter *writer, bool, const char *namespaceUri, const CSerializationContext &,
                   bool) const override
    {
        writer->StartElement("order", namespaceUri);
        writer->WriteAttribute("id", "", id, ItemType_string);
        writer->WriteAttribute("currency", "", currency, ItemType_string);

        writer->StartElement("customer", namespaceUri);
        writer->WriteAttribute("number", "", std::to_string(customerNumber), ItemType_ui4);
        Leaf(writer, "name", customerName, ItemType_string);
        writer->EndElement();

        Leaf(writer, "placed", placed, ItemType_datetime);
        Leaf(writer, "status", status, ItemType_string);
        for (const OrderLine &line : lines) {
            writer->StartElement("line", namespaceUri);
            writer->WriteAttribute("number", "", std::to_string(line.number), ItemType_ui2);
            Leaf(writer, "sku", line.sku, ItemType_string);
            Leaf(writer, "description", line.description, ItemType_string);
            Leaf(writer, "quantity", std::to_string(line.quantity), ItemType_i4);
            Leaf(writer, "unitPrice", line.unitPrice, ItemType_decimal);
            writer->EndElement();
        }

        writer->StartElement("card", namespaceUri);
        Leaf(writer, "holder", cardHolder, ItemType_string);
        Leaf(writer, "last4", cardLast4, ItemType_string);
        Leaf(writer, "expires", cardExpires, ItemType_yearMonth);
        writer->EndElement();

        writer->EndElement();
    }

    CXmlElement *FromXml_Int(CXmlElement *, CXmlElement *, const CSerializationContext &, bool) override
    {
        throw CVxException("COrder is only written in this example");
    }

private:
    ~COrder() override = default;

    static void Leaf(CXmlWriter *writer, const char *name, const std::string &value, ItemType type)
    {
        writer->StartElement(name, OrdersNamespace);
        writer->WriteElementValue(value, type, false);
        writer->EndElement();
    }
};

// The document element: the orders of one export, each written by its own object.
class COrders final : public CXmlObjectBase
{
public:
    std::string generated;
    std::vector<CSmartPtr<COrder>> orders;

    CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return OrdersNamespace; }
    std::string GetNamespace() const override { return OrdersNamespace; }

protected:
    void ToXml_Int(CXmlWriter *writer, bool isRoot, const char *namespaceUri, const CSerializationContext &context,
                   bool) const override
    {
        if (isRoot)
            writer->SetDefaultNamespace(namespaceUri);
        writer->StartElement("orders", namespaceUri);
        writer->WriteAttribute("generated", "", generated, ItemType_datetime);
        for (const CSmartPtr<COrder> &order : orders)
            CXmlObjectBase::ToXml_Int(order, writer, false, namespaceUri, context, false);
        writer->EndElement();
    }

    CXmlElement *FromXml_Int(CXmlElement *, CXmlElement *, const CSerializationContext &, bool) override
    {
        throw CVxException("COrders is only written in this example");
    }

private:
    ~COrders() override = default;
};

} // namespace

int main()
{
    CSmartPtr<COrders> document = new COrders;
    document->generated = "2026-11-23T10:30:00Z";
    CSmartPtr<COrder> order = new COrder;
    document->orders.push_back(order);
    order->id = "AB-123456";
    order->currency = "EUR";
    order->customerNumber = 4711;
    order->customerName = "Smith & Sons <Trading>";
    order->placed = "2026-11-23T10:15:00Z";
    order->status = "paid";
    order->lines.push_back({1, "A-0001", "Tea, \"Assam\"", 2, "4.50"});
    order->lines.push_back({2, "B-0042", "Mug", 1, "12.00"});
    order->cardHolder = "J. Smith";
    order->cardLast4 = "4242";
    order->cardExpires = "2028-04";

    try {
        std::cout << document->ToXml(true, true, EOLType_LF, CSerializationContext::GetDefaultContext());
    } catch (const CVxException &e) {
        std::cerr << e.GetFullMessage() << '\n';
        return 1;
    }
    return 0;
}
