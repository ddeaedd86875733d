#pragma once
// An order of numbered lines, written as a generated class would write it and produced
// while it is written, so that documents of any size cost no object graph. Each line's
// text holds non-ASCII characters (UTF-8 is the default local encoding), so every output
// encoding changes the bytes. Reading keeps the texts of the lines.

#include <string>
#include <vector>

#include "XmlDocument.h"
#include "XmlObjectBase.h"
#include "XmlWriter.h"

namespace VxTest {

class LinesOrder : public VxXmlLib16::CXmlObjectBase
{
public:
    explicit LinesOrder(std::size_t lines) : m_lines(lines) {}

    static std::string LineText(std::size_t i) { return "Caf\xC3\xA9 cr\xC3\xA8me #" + std::to_string(i); }
    static std::vector<std::string> LinesOf(std::size_t count)
    {
        std::vector<std::string> lines;
        for (std::size_t i = 0; i < count; ++i)
            lines.push_back(LineText(i));
        return lines;
    }
    const std::vector<std::string> &ReadLines() const { return m_read; }

    VxXmlLib16::CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return "urn:orders"; }
    std::string GetNamespace() const override { return "urn:orders"; }

protected:
    void ToXml_Int(VxXmlLib16::CXmlWriter *writer, bool isRoot, const char *namespaceUri,
                   const VxXmlLib16::CSerializationContext &, bool) const override
    {
        if (isRoot)
            writer->SetDefaultNamespace(namespaceUri);
        writer->StartElement("order", namespaceUri);
        for (std::size_t i = 0; i < m_lines; ++i) {
            writer->StartElement("line", namespaceUri);
            writer->WriteElementValue(LineText(i), VxXmlLib16::ItemType_string, false);
            writer->EndElement();
        }
        writer->EndElement();
    }
    VxXmlLib16::CXmlElement *FromXml_Int(VxXmlLib16::CXmlElement *, VxXmlLib16::CXmlElement *firstChild,
                                         const VxXmlLib16::CSerializationContext &, bool) override
    {
        m_read.clear();
        for (VxXmlLib16::CXmlElement *line = firstChild; line; line = line->GetNextSiblingElement())
            m_read.push_back(line->GetText());
        return nullptr;
    }

private:
    std::size_t m_lines;
    std::vector<std::string> m_read;
};

} // namespace VxTest
