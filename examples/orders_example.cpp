// The library's main job: a sample orders document is read into the generated classes,
// changed, validated by writing, and written back formatted; a second sample with a
// schema error shows the exception chain with its path.

#include <cstdio>
#include <string>

#include "OrdersContext.h"

using namespace VxXmlLib16;

namespace {

void Edit(Orders::COrdersType &orders)
{
    Orders::COrderType *first = orders.GetOrder()->Item(0);
    const CSmartPtr<Orders::CLineType> line = first->GetLine()->AddNew();
    line->SetNumber(static_cast<std::uint16_t>(first->GetLine()->GetCount()));
    line->SetSku("extra-0001");
    line->SetQuantity(2);
    line->SetUnitPrice(CConversions::decimalFromString("19.90", CWhitespaceUtils::WhitespaceRule_Collapse));
    std::printf("Added line %u (%s) to order %s\n", line->GetNumber(), line->GetSku().c_str(), first->GetId().c_str());

    Orders::COrderType *last = orders.GetOrder()->Item(orders.GetOrder()->GetCount() - 1);
    last->SetStatus(Orders::StatusType_cancelled);
    std::printf("Cancelled order %s\n", last->GetId().c_str());
}

} // namespace

int main(int argc, char **argv)
{
    const std::string samples = argc > 1 ? argv[1] : VX_ORDERS_SAMPLES;
    const CSerializationContext context = Orders::DocumentContext();
    const CSmartPtr<Orders::COrdersType> orders = Orders::COrdersType::CreateInstance();
    try {
        orders->FromXmlFile((samples + "/orders.xml").c_str(), context);
        std::printf("Read %d orders\n", orders->GetOrder()->GetCount());
        Edit(*orders);
        // Writing checks every facet, count and choice of the schema.
        const std::string text = orders->ToXml(true, true, EOLType_LF, context);
        std::printf("Validated and wrote %zu bytes:\n%s", text.size(), text.c_str());
    } catch (const CVxException &e) {
        std::printf("Unexpected failure:\n%s\n", e.GetFullMessage().c_str());
        return 1;
    }

    try {
        orders->FromXmlFile((samples + "/orders-error.xml").c_str(), context);
        std::printf("The faulty sample was read without complaint\n");
        return 1;
    } catch (const CVxException &e) {
        std::printf("\nThe second sample breaks the schema at %s:\n%s\n", e.GetPath().c_str(),
                    e.GetFullMessage().c_str());
    }
    return 0;
}
