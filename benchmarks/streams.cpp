// Text to bytes and files: ToXmlStream with and without gzip, and ToXmlFile with the
// asynchronous switch off (whole document in memory, one write) and on (block by block).
// Resident memory is best read per case: --benchmark_filter=<case> under /usr/bin/time -v.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <unistd.h>

#include "../tests/support/LinesOrder.h"
#include "BinaryData.h"
#include "Enums.h"

using namespace VxXmlLib16;

namespace {

constexpr std::size_t LineBytes = 54; // of formatted XML text per line, roughly

std::size_t LinesFor(std::int64_t megabytes) { return static_cast<std::size_t>(megabytes) * 1000000 / LineBytes; }

void ToXmlStream(benchmark::State &state, CompressionType compression)
{
    const VxTest::LinesOrder order(LinesFor(state.range(0)));
    const std::size_t textBytes = order.ToXml().size();
    std::size_t outBytes = 0;
    for (auto _ : state) {
        const CBinaryData data = order.ToXmlStream(true, true, XmlEncoding_UTF8, EOLType_LF,
                                                   CSerializationContext::GetDefaultContext(), compression);
        outBytes = data.GetLength();
        benchmark::DoNotOptimize(outBytes);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * textBytes));
    state.counters["ratio"] = static_cast<double>(outBytes) / static_cast<double>(textBytes);
}

void ToXmlFile(benchmark::State &state, bool async)
{
    const VxTest::LinesOrder order(LinesFor(state.range(0)));
    const std::string path = "/tmp/vx_bench_streams_" + std::to_string(::getpid()) + ".xml";
    AsyncToXmlFile(async);
    for (auto _ : state)
        order.ToXmlFile(path.c_str());
    AsyncToXmlFile(false);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(std::filesystem::file_size(path)));
    std::remove(path.c_str());
}

} // namespace

BENCHMARK_CAPTURE(ToXmlStream, plain, CompressionType_None)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ToXmlStream, gzip, CompressionType_GZip)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ToXmlFile, buffered, false)->Arg(100)->Iterations(2)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ToXmlFile, async, true)->Arg(100)->Iterations(2)->Unit(benchmark::kMillisecond);
// The 1 GB document that must stream through a few blocks of memory.
BENCHMARK_CAPTURE(ToXmlFile, async_1GB, true)->Arg(1000)->Iterations(1)->Unit(benchmark::kMillisecond);
