// Reading and writing repeating primitive items through a generated class whose one
// sequence entry is a typed collection: a million i4 items and a hundred thousand
// decimals. Reading covers parsing into the tree and the walk; writing covers the text
// writer and the copy into the result string. A third case reads from a tree loaded
// once, to show the collection's own share. Throughput is in bytes of the document.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "ElementInfo.h"
#include "TypeCollections.h"
#include "Variant.h"
#include "XmlDocument.h"
#include "XmlGeneratedClass.h"

using namespace VxXmlLib16;
using namespace VxXmlLib16Data;

namespace {

constexpr const char *Ns = "urn:bench";

// <r xmlns="urn:bench"><v>..</v>...</r>, as a code generator would write it.
template <class Col>
class CItems final : public CXmlGeneratedClass
{
public:
    CItems()
    {
        SetElementName("r");
        Init();
    }
    CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return Ns; }
    std::string GetNamespace() const override { return Ns; }
    void AccessProperty(int, bool read, VxVariant &value) override
    {
        if (read)
            value = m_items;
        else
            m_items = value;
    }
    CParentElementInfo *GetClassInfo() const override { return Tables().info; }
    CElementInfo **GetClassElementInfo() const override { return Tables().elements; }
    CAttributeInfo **GetClassAttributeInfo() const override { return Tables().attributes; }
    void Init() override
    {
        m_items.SetXmlCollection(new Col("v", Ns, 0, -1, "", -1, -1, "", "", "", "", -1, -1, -1,
                                         CWhitespaceUtils::WhitespaceRule_Collapse, nullptr));
    }
    Col &Items() { return static_cast<Col &>(*m_items.GetXmlCollection()); }

    // FromXml_Int of the collection alone.
    CXmlElement *ReadItems(CXmlElement *root)
    {
        return CXmlObjectBase::FromXml_Int(&Items(), root, root->GetFirstElement(),
                                           CSerializationContext::GetDefaultContext());
    }

private:
    struct Metadata
    {
        CParentElementInfo *info;
        CElementInfo **elements;
        CAttributeInfo **attributes;
        ~Metadata() { CleanMetaData(info, elements, attributes); }
    };
    static const Metadata &Tables()
    {
        static const Metadata tables{new CParentElementInfo(XmlElementGroupType_Sequence, XmlElementType_Element, "r",
                                                            Ns, true, false, -1, ItemType_Invalid, nullptr, false),
                                     new CElementInfo *[2] { new CElementInfoSeqPrimCol("v", Ns, 0), nullptr },
                                     new CAttributeInfo *[1] { nullptr }};
        return tables;
    }

    VxVariant m_items;
};

std::int32_t MakeI4(std::uint32_t random) { return static_cast<std::int32_t>(random); }

CDecimal MakeDecimal(std::uint32_t random)
{
    return CConversions::decimalFromString(std::to_string(static_cast<std::int32_t>(random)) + "." +
                                               std::to_string(random % 10000),
                                           CWhitespaceUtils::WhitespaceRule_Collapse);
}

template <class Col, int Count, auto Make>
CSmartPtr<CItems<Col>> Filled()
{
    CSmartPtr<CItems<Col>> object(new CItems<Col>);
    std::uint32_t random = 12345;
    for (int i = 0; i < Count; ++i) {
        random = random * 1103515245u + 12345u;
        object->Items().Add(Make(random));
    }
    return object;
}

template <class Col, int Count, auto Make>
void BM_Write(benchmark::State &state)
{
    const auto object = Filled<Col, Count, Make>();
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes += object->ToXml(false, true).size();
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

template <class Col, int Count, auto Make>
void BM_Read(benchmark::State &state)
{
    const std::string document = Filled<Col, Count, Make>()->ToXml(false, true);
    CSmartPtr<CItems<Col>> object(new CItems<Col>);
    for (auto _ : state) {
        object->FromXml(document.c_str());
        if (object->Items().GetCount() != Count)
            state.SkipWithError("items lost");
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * document.size()));
}

template <class Col, int Count, auto Make>
void BM_ReadLoadedTree(benchmark::State &state)
{
    const std::string document = Filled<Col, Count, Make>()->ToXml(false, true);
    CXmlDocument tree;
    tree.LoadXml(document.c_str());
    for (auto _ : state) {
        CSmartPtr<CItems<Col>> object(new CItems<Col>);
        benchmark::DoNotOptimize(object->ReadItems(tree.GetDocumentElement()));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * document.size()));
}

BENCHMARK_TEMPLATE(BM_Write, Ci4Col, 1000000, MakeI4)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_Read, Ci4Col, 1000000, MakeI4)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_ReadLoadedTree, Ci4Col, 1000000, MakeI4)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_Write, CdecimalCol, 100000, MakeDecimal)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_Read, CdecimalCol, 100000, MakeDecimal)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_ReadLoadedTree, CdecimalCol, 100000, MakeDecimal)->Unit(benchmark::kMillisecond);

} // namespace
