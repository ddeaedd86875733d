// Reading and writing repeating primitive items through a typed collection: a million
// i4 items and a hundred thousand decimals. Reading covers parsing into the tree and
// FromXml_Int; writing covers ToXml_Int through the text writer. Throughput is in bytes
// of the document.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "TextStream.h"
#include "TypeCollections.h"
#include "XmlDocument.h"
#include "XmlTextWriter.h"

using namespace VxXmlLib16;

namespace {

template <class Col>
class Open : public Col
{
public:
    Open()
        : Col("v", "urn:bench", 0, -1, "", -1, -1, "", "", "", "", -1, -1, -1,
              CWhitespaceUtils::WhitespaceRule_Collapse, nullptr)
    {
    }
    using Col::FromXml_Int;
    using Col::ToXml_Int;
};

// Writes the items inside <r> and hands the stream to `use`.
template <class Col, class Use>
auto Write(const Open<Col> &col, Use use)
{
    CTextStream stream(XmlEncoding_None);
    CXmlTextWriter writer(&stream);
    writer.StartDocument();
    writer.SetFormatted(true);
    writer.SetDefaultNamespace("urn:bench");
    writer.StartElement("r", "urn:bench");
    col.ToXml_Int(&writer, false, "urn:bench", CSerializationContext::GetDefaultContext(), false);
    writer.EndElement();
    writer.EndDocument();
    return use(stream);
}

template <class Col>
std::string Document(const Open<Col> &col)
{
    return Write(col, [](CTextStream &stream) { return std::string(stream.GetText(), stream.GetLength()); });
}

template <class Col>
std::size_t WrittenLength(const Open<Col> &col)
{
    return Write(col, [](CTextStream &stream) { return stream.GetLength(); });
}

CSmartPtr<Open<Ci4Col>> I4Items()
{
    CSmartPtr<Open<Ci4Col>> col(new Open<Ci4Col>);
    std::uint32_t state = 12345;
    for (int i = 0; i < 1000000; ++i) {
        state = state * 1103515245u + 12345u;
        col->Add(static_cast<std::int32_t>(state));
    }
    return col;
}

CSmartPtr<Open<CdecimalCol>> DecimalItems()
{
    CSmartPtr<Open<CdecimalCol>> col(new Open<CdecimalCol>);
    std::uint32_t state = 54321;
    for (int i = 0; i < 100000; ++i) {
        state = state * 1103515245u + 12345u;
        const std::string text = std::to_string(static_cast<std::int32_t>(state)) + "." + std::to_string(state % 10000);
        col->Add(CConversions::decimalFromString(text, CWhitespaceUtils::WhitespaceRule_Collapse));
    }
    return col;
}

template <class Col>
void Read(benchmark::State &state, const std::string &document)
{
    for (auto _ : state) {
        CXmlDocument tree;
        tree.LoadXml(document.c_str());
        CSmartPtr<Open<Col>> col(new Open<Col>);
        CXmlElement *root = tree.GetDocumentElement();
        benchmark::DoNotOptimize(col->FromXml_Int(root, root->GetFirstElement(),
                                                  CSerializationContext::GetDefaultContext(), false));
        if (col->GetCount() == 0)
            state.SkipWithError("nothing read");
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * document.size()));
}

void BM_WriteI4(benchmark::State &state)
{
    const auto col = I4Items();
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes += WrittenLength(*col);
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}
BENCHMARK(BM_WriteI4)->Unit(benchmark::kMillisecond);

void BM_ReadI4(benchmark::State &state)
{
    const auto col = I4Items();
    Read<Ci4Col>(state, Document(*col));
}
BENCHMARK(BM_ReadI4)->Unit(benchmark::kMillisecond);

// FromXml_Int alone, on a tree loaded once.
void BM_ReadI4FromTree(benchmark::State &state)
{
    const auto items = I4Items();
    const std::string document = Document(*items);
    CXmlDocument tree;
    tree.LoadXml(document.c_str());
    CXmlElement *root = tree.GetDocumentElement();
    for (auto _ : state) {
        CSmartPtr<Open<Ci4Col>> col(new Open<Ci4Col>);
        benchmark::DoNotOptimize(col->FromXml_Int(root, root->GetFirstElement(),
                                                  CSerializationContext::GetDefaultContext(), false));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * document.size()));
}
BENCHMARK(BM_ReadI4FromTree)->Unit(benchmark::kMillisecond);

void BM_WriteDecimal(benchmark::State &state)
{
    const auto col = DecimalItems();
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes += WrittenLength(*col);
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}
BENCHMARK(BM_WriteDecimal)->Unit(benchmark::kMillisecond);

void BM_ReadDecimal(benchmark::State &state)
{
    const auto col = DecimalItems();
    Read<CdecimalCol>(state, Document(*col));
}
BENCHMARK(BM_ReadDecimal)->Unit(benchmark::kMillisecond);

} // namespace
