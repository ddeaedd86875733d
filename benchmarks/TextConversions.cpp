// Local text transcoding as the parser uses it, and base64 through the conversions.

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>
#include <vector>

#include "BinaryData.h"
#include "Conversions.h"
#include "LocalText.h"

using namespace VxXmlLib16;

namespace {

// 100 bytes of UTF-8 text: plain ASCII, or Latin text with umlauts and a euro sign.
const std::string kAscii = std::string("customer-name=\"Jane Doe\" street=\"12 Long Road\" city=\"Springfield\" ") +
                           std::string(32, 'x');
std::string NonAscii()
{
    std::string text;
    while (text.size() < 96)
        text += "Gr\xC3\xBC\xC3\x9F" "e \xE2\x82\xAC ";
    text.resize(96);
    return text + "abcd";
}
const std::string kNonAscii = NonAscii();

void Copy(benchmark::State &state, const std::string &text)
{
    for (auto _ : state) {
        std::string copy(text.data(), text.size());
        benchmark::DoNotOptimize(copy);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

void Transcode(benchmark::State &state, const std::string &text, unsigned int codePage)
{
    SetLocalCharEncoding(codePage);
    // The parser's scratch: 256 UTF-16 units and 512 bytes.
    char16_t wide[256];
    char narrow[512];
    for (auto _ : state) {
        std::string local = Utf8ToLocal(text.data(), static_cast<unsigned int>(text.size()), wide, 256, narrow, 512);
        benchmark::DoNotOptimize(local);
    }
    SetLocalCharEncoding(65001);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}

void BM_CopyAscii100(benchmark::State &state) { Copy(state, kAscii); }
void BM_Utf8ToLocalAscii100(benchmark::State &state) { Transcode(state, kAscii, 65001); }
void BM_Utf8ToLocalNonAscii100(benchmark::State &state) { Transcode(state, kNonAscii, 65001); }
void BM_Utf8ToLocalAscii100Windows1252(benchmark::State &state) { Transcode(state, kAscii, 1252); }
void BM_Utf8ToLocalNonAscii100Windows1252(benchmark::State &state) { Transcode(state, kNonAscii, 1252); }

CBinaryData Payload(std::size_t size)
{
    std::vector<unsigned char> bytes(size);
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<unsigned char>(i * 131 + 7);
    return CBinaryData(bytes.data(), static_cast<std::uint32_t>(size), false);
}

void BM_Base64Encode(benchmark::State &state)
{
    const CBinaryData data = Payload(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        std::string text = CConversions::base64BinaryToString(data);
        benchmark::DoNotOptimize(text);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * data.GetLength()));
}

void BM_Base64Decode(benchmark::State &state)
{
    const CBinaryData data = Payload(static_cast<std::size_t>(state.range(0)));
    const std::string text = CConversions::base64BinaryToString(data);
    for (auto _ : state) {
        CBinaryData decoded =
            CConversions::base64BinaryFromString(text, CWhitespaceUtils::WhitespaceRule_Collapse);
        benchmark::DoNotOptimize(decoded);
    }
    // Throughput in decoded bytes, as for encoding.
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * data.GetLength()));
}

} // namespace

BENCHMARK(BM_CopyAscii100);
BENCHMARK(BM_Utf8ToLocalAscii100);
BENCHMARK(BM_Utf8ToLocalNonAscii100);
BENCHMARK(BM_Utf8ToLocalAscii100Windows1252);
BENCHMARK(BM_Utf8ToLocalNonAscii100Windows1252);
BENCHMARK(BM_Base64Encode)->Arg(1 << 10)->Arg(1 << 20);
BENCHMARK(BM_Base64Decode)->Arg(1 << 10)->Arg(1 << 20);
