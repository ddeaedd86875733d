// Loads arbitrary bytes into a document and walks the tree. The first byte chooses the
// options: bit 0 the model without namespaces, bit 1 CDATA markers, bit 2 streaming
// with a callback that drops the elements whose names have an odd length.

#include <cstdint>
#include <cstring>
#include <vector>

#include "Exceptions.h"
#include "SerializationContext.h"
#include "XmlDocument.h"

namespace {

bool DropOddNames(VxXmlLib16::CXmlElement *element) { return element->GetLocalName().size() % 2 == 1; }

void Walk(const VxXmlLib16::CXmlElement *root)
{
    // Paths cost time in proportion to the siblings, so only the first elements get one.
    std::size_t paths = 64;
    std::vector<const VxXmlLib16::CXmlElement *> pending{root};
    while (!pending.empty()) {
        const VxXmlLib16::CXmlElement *element = pending.back();
        pending.pop_back();
        if (paths > 0) {
            --paths;
            element->GetXPath();
            for (const VxXmlLib16::CXmlAttribute *attribute : element->GetAttributes())
                attribute->GetXPath();
        }
        for (auto *child = element->GetFirstElement(); child; child = child->GetNextSiblingElement())
            pending.push_back(child);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::uint8_t options = data[0];
    VxXmlLib16::CSerializationContext context;
    context.SetSchemaType((options & 1) ? VxXmlLib16::SchemaType_NoNamespaces : VxXmlLib16::SchemaType_Namespaced);
    context.SetStripCDATA((options & 2) == 0);
    VxXmlLib16::CXmlDocument document((options & 4) ? &DropOddNames : nullptr, context);
    std::vector<unsigned char> bytes(data + 1, data + size);
    try {
        document.LoadXmlStream(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
        Walk(document.GetDocumentElement());
    } catch (const VxXmlLib16::CVxException &) {
    }
    return 0;
}
