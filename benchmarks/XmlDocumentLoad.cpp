// Loading a generated orders document into the tree, against Expat alone over the
// same bytes, and streaming a large file through the element callback.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
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

std::size_t ResidentBytes()
{
    long pages = 0;
    long resident = 0;
    if (std::FILE *statm = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(statm, "%ld %ld", &pages, &resident) != 2)
            resident = 0;
        std::fclose(statm);
    }
    return static_cast<std::size_t>(resident) * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

// Resident memory that one load adds, per element, in a process that has loaded no
// tree before (run it first or alone): the tree and its copy of the input.
void BM_TreeMemory(benchmark::State &state)
{
    std::vector<unsigned char> bytes = Document20MB();
    for (auto _ : state) {
        const std::size_t before = ResidentBytes();
        VxXmlLib16::CXmlDocument document;
        document.LoadXmlStream(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        const std::size_t added = ResidentBytes() - before;
        const auto elements = static_cast<double>(CountElements(document.GetDocumentElement()));
        state.counters["elements"] = elements;
        state.counters["bytes_per_element"] = static_cast<double>(added) / elements;
        state.counters["bytes_per_element_without_input"] = static_cast<double>(added - bytes.size()) / elements;
    }
}
BENCHMARK(BM_TreeMemory)->Unit(benchmark::kMillisecond)->Iterations(1);

void BM_LoadXmlStream(benchmark::State &state)
{
    std::vector<unsigned char> bytes = Document20MB();
    for (auto _ : state) {
        VxXmlLib16::CXmlDocument document;
        document.LoadXmlStream(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_LoadXmlStream)->Unit(benchmark::kMillisecond);

constexpr std::size_t kExpatSlice = 1u << 18;

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
        // Fed in the slices that the library's reader uses, so that both pay the same copy.
        const char *data = reinterpret_cast<const char *>(bytes.data());
        std::size_t remaining = bytes.size();
        bool parsed = true;
        while (parsed && remaining > 0) {
            const std::size_t slice = std::min<std::size_t>(remaining, kExpatSlice);
            remaining -= slice;
            parsed = XML_Parse(parser, data, static_cast<int>(slice), remaining == 0) == XML_STATUS_OK;
            data += slice;
        }
        if (!parsed)
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
