// Reading and writing a 20 MB orders document through the generated classes, beside the
// bare tree load of the same bytes.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "OrdersContext.h"
#include "XmlDocument.h"

namespace {

const std::string &Document20MB()
{
    static const std::string text = [] {
        const std::filesystem::path path = std::filesystem::temp_directory_path() / "vx_bench_orders_binding_20mb.xml";
        if (!std::filesystem::exists(path)) {
            const std::string command =
                "python3 " VX_SHARED_DIR "/tools/gen_orders.py --formatted --megabytes 20 > " + path.string();
            if (std::system(command.c_str()) != 0)
                std::abort();
        }
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }();
    return text;
}

void SetBytes(benchmark::State &state, std::size_t bytes)
{
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
}

void TreeLoad(benchmark::State &state)
{
    const std::string &text = Document20MB();
    for (auto _ : state) {
        VxXmlLib16::CXmlDocument document;
        document.LoadXml(text.c_str());
        benchmark::DoNotOptimize(document.GetDocumentElement());
    }
    SetBytes(state, text.size());
}
BENCHMARK(TreeLoad)->Unit(benchmark::kMillisecond);

void FromXml(benchmark::State &state)
{
    const std::string &text = Document20MB();
    const VxXmlLib16::CSerializationContext context = Orders::DocumentContext();
    for (auto _ : state) {
        CSmartPtr<Orders::COrdersType> orders = Orders::COrdersType::CreateInstance();
        orders->FromXml(text.c_str(), context);
        benchmark::DoNotOptimize(orders->GetOrder()->GetCount());
    }
    SetBytes(state, text.size());
}
BENCHMARK(FromXml)->Unit(benchmark::kMillisecond);

void ToXml(benchmark::State &state)
{
    const VxXmlLib16::CSerializationContext context = Orders::DocumentContext();
    CSmartPtr<Orders::COrdersType> orders = Orders::COrdersType::CreateInstance();
    orders->FromXml(Document20MB().c_str(), context);
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::string text = orders->ToXml(true, true, VxXmlLib16::EOLType_LF, context);
        bytes = text.size();
        benchmark::DoNotOptimize(text.data());
    }
    SetBytes(state, bytes);
}
BENCHMARK(ToXml)->Unit(benchmark::kMillisecond);

} // namespace
