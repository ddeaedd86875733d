// Loading a generated orders document into the tree, against Expat alone over the
// same bytes, and streaming a large file through the element callback.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <string>
#include <sys/resource.h>
#include <vector>

#include <expat.h>

#include "XmlDocument.h"
#include "XmlObjectBase.h"

namespace {

// Writes a formatted orders document of about the given size once per run.
std::string GeneratedFile(int megabytes)
{
    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("vx_bench_orders_" + std::to_string(megabytes) + "mb.xml");
    if (!std::filesystem::exists(path)) {
        const std::string command = std::string("python3 " VX_SHARED_DIR "/tools/gen_orders.py --formatted --megabytes ") +
                                    std::to_string(megabytes) + " > " + path.string();
        if (std::system(command.c_str()) != 0)
            std::abort();
    }
    return path.string();
}

const std::vector<unsigned char> &Document20MB()
{
    static const std::vector<unsigned char> bytes = [] {
        std::ifstream file(GeneratedFile(20), std::ios::binary);
        return std::vector<unsigned char>(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }();
    return bytes;
}

std::size_t CountElements(const VxXmlLib16::CXmlElement *root)
{
    std::size_t count = 0;
    std::vector<const VxXmlLib16::CXmlElement *> pending{root};
    while (!pending.empty()) {
        const VxXmlLib16::CXmlElement *element = pending.back();
        pending.pop_back();
        ++count;
        for (auto *child = element->GetFirstElement(); child; child = child->GetNextSiblingElement())
            pending.push_back(child);
    }
    return count;
}

std::size_t HeapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void BM_LoadXmlStream(benchmark::State &state)
{
    std::vector<unsigned char> bytes = Document20MB();
    std::size_t elements = 0;
    std::size_t treeBytes = 0;
    for (auto _ : state) {
        const std::size_t before = HeapInUse();
        VxXmlLib16::CXmlDocument document;
        document.LoadXmlStream(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        state.PauseTiming();
        // The document keeps its copy of the input; the rest is the tree.
        treeBytes = HeapInUse() - before - bytes.size();
        elements = CountElements(document.GetDocumentElement());
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
    state.counters["elements"] = static_cast<double>(elements);
    state.counters["tree_bytes_per_element"] = static_cast<double>(treeBytes) / static_cast<double>(elements);
}
BENCHMARK(BM_LoadXmlStream)->Unit(benchmark::kMillisecond);

void XMLCALL NoStart(void *, const XML_Char *, const XML_Char **) {}
void XMLCALL NoEnd(void *, const XML_Char *) {}
void XMLCALL NoText(void *, const XML_Char *, int) {}
void XMLCALL NoNamespace(void *, const XML_Char *, const XML_Char *) {}

void BM_ExpatEmptyHandlers(benchmark::State &state)
{
    const std::vector<unsigned char> &bytes = Document20MB();
    for (auto _ : state) {
        XML_Parser parser = XML_ParserCreateNS(nullptr, '|');
        XML_SetElementHandler(parser, &NoStart, &NoEnd);
        XML_SetCharacterDataHandler(parser, &NoText);
        XML_SetNamespaceDeclHandler(parser, &NoNamespace, nullptr);
        if (XML_Parse(parser, reinterpret_cast<const char *>(bytes.data()), static_cast<int>(bytes.size()), 1) !=
            XML_STATUS_OK)
            state.SkipWithError("Expat refused the document");
        XML_ParserFree(parser);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_ExpatEmptyHandlers)->Unit(benchmark::kMillisecond);

std::size_t g_streamed = 0;

bool Consume(VxXmlLib16::CXmlElement *)
{
    ++g_streamed;
    return true;
}

// A 200 MB file read in chunks with every completed element dropped; the peak resident
// size of the process shows that the document never exists whole.
void BM_StreamFile200MB(benchmark::State &state)
{
    const std::string path = GeneratedFile(200);
    VxXmlLib16::AsyncFromXmlFile(true);
    for (auto _ : state) {
        g_streamed = 0;
        VxXmlLib16::CXmlDocument document(&Consume);
        document.Load(path.c_str());
    }
    VxXmlLib16::AsyncFromXmlFile(false);
    struct rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * std::filesystem::file_size(path)));
    state.counters["elements"] = static_cast<double>(g_streamed);
    state.counters["peak_rss_mb"] = static_cast<double>(usage.ru_maxrss) / 1024.0;
}
BENCHMARK(BM_StreamFile200MB)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
