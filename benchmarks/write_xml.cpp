// Writing speed of the XML text path: one object writes 100 000 elements with attributes
// and text through ToXml, the way a generated class with a collection of lines does.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "VxXmlLib16.h"

using namespace VxXmlLib16;

namespace {

const char *const OrdersNamespace = "urn:example:orders";

class CLines final : public CXmlObjectBase
{
public:
    explicit CLines(int count)
    {
        m_lines.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i)
            m_lines.push_back({std::to_string(i + 1), "SKU-" + std::to_string(1000 + i % 9000),
                               std::to_string(i % 7 + 1), i % 10 == 0 ? "Tea & \"Biscuits\"" : "Plain item"});
    }

    CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return OrdersNamespace; }
    std::string GetNamespace() const override { return OrdersNamespace; }

protected:
    void ToXml_Int(CXmlWriter *writer, bool, const char *namespaceUri, const CSerializationContext &,
                   bool) const override
    {
        writer->SetDefaultNamespace(namespaceUri);
        writer->StartElement("order", namespaceUri);
        writer->WriteAttribute("id", "", "AB-123456", ItemType_string);
        for (const Line &line : m_lines) {
            writer->StartElement("line", namespaceUri);
            writer->WriteAttribute("number", "", line.number, ItemType_ui2);
            writer->WriteAttribute("sku", "", line.sku, ItemType_string);
            writer->WriteAttribute("quantity", "", line.quantity, ItemType_i4);
            writer->WriteElementValue(line.description, ItemType_string, false);
            writer->EndElement();
        }
        writer->EndElement();
    }

    CXmlElement *FromXml_Int(CXmlElement *, CXmlElement *, const CSerializationContext &, bool) override
    {
        throw CVxException("CLines is only written in this benchmark");
    }

private:
    ~CLines() override = default;

    struct Line
    {
        std::string number;
        std::string sku;
        std::string quantity;
        std::string description;
    };
    std::vector<Line> m_lines;
};

void WriteXml(benchmark::State &state, bool formatted)
{
    CSmartPtr<CLines> document = new CLines(100000);
    const CSerializationContext &context = CSerializationContext::GetDefaultContext();
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::string text = document->ToXml(true, formatted, EOLType_LF, context);
        bytes += text.size();
        benchmark::DoNotOptimize(text.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
    state.counters["elements"] = 100001;
}

void BM_WriteXmlFormatted(benchmark::State &state) { WriteXml(state, true); }
void BM_WriteXmlUnformatted(benchmark::State &state) { WriteXml(state, false); }

} // namespace

BENCHMARK(BM_WriteXmlFormatted)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WriteXmlUnformatted)->Unit(benchmark::kMillisecond);
