// Writes a small object through ToXml and checks the text; exits non-zero on a mismatch.

#include <iostream>
#include <string>

#include "VxXmlLib16.h"

using namespace VxXmlLib16;

namespace {

class CNote final : public CXmlObjectBase
{
public:
    CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return "urn:note"; }
    std::string GetNamespace() const override { return "urn:note"; }

protected:
    void ToXml_Int(CXmlWriter *writer, bool, const char *namespaceUri, const CSerializationContext &,
                   bool) const override
    {
        writer->StartElement("note", namespaceUri);
        writer->WriteAttribute("to", "", "Ann & Bob", ItemType_string);
        writer->WriteElementValue("1 < 2", ItemType_string, false);
        writer->EndElement();
    }

    CXmlElement *FromXml_Int(CXmlElement *, CXmlElement *, const CSerializationContext &, bool) override
    {
        return nullptr;
    }
};

} // namespace

int main()
{
    CSmartPtr<CNote> note = new CNote;
    const std::string text = note->ToXml(false, false, EOLType_LF, CSerializationContext::GetDefaultContext());
    std::cout << text << '\n';
    return text == "<AA:note xmlns:AA=\"urn:note\" to=\"Ann &amp; Bob\">1 &lt; 2</AA:note>" ? 0 : 1;
}
