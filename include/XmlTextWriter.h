#pragma once
// The XML text form: the writer that owns exactly how elements, attributes, escaping,
// indentation and line ends look.

#include <string>

#include "Enums.h"
#include "XmlWriter.h"

namespace VxXmlLib16 {

class CTextStream;

class CXmlTextWriter : public CXmlWriter
{
public:
    // Borrows the stream for the writer's whole life.
    explicit CXmlTextWriter(CTextStream *stream);
    ~CXmlTextWriter() override;

    void StartDocument() override;
    // Closes the stream first, so output is complete even when the check fails.
    void EndDocument() override;
    void WriteComment(const std::string &text) override;
    void WriteProcessingInstruction(const std::string &text) override;
    // Lands inside the root's still open start tag.
    void WriteInlineSchema(const std::string &text) override;
    void StartElement(const std::string &localName, const std::string &namespaceUri) override;
    // Empty text, or a default value while defaults are not written, leaves the element
    // empty. Text that starts with "<![CDATA[" is written as it stands.
    void WriteElementValue(const std::string &text, ItemType type, bool isDefault) override;
    void EndElement() override;
    // An attribute in a namespace always gets a prefix; the default namespace is no shortcut.
    void WriteAttribute(const std::string &localName, const std::string &namespaceUri,
                        const std::string &value, ItemType type) override;
    void WriteTypeAttribute(const std::string &namespaceUri, const std::string &typeName,
                            ItemType type) override;
    void WriteNilAttribute() override;

    void SetFormatted(bool formatted) { m_formatted = formatted; }
    bool GetFormatted() const { return m_formatted; }
    void SetIndentChars(const std::string &text) { m_indentChars = text; }
    void SetEOLType(EOLType type);
    EOLType GetEOLType() const { return m_eolType; }
    void SetWriteDefaultValues(bool value) { m_writeDefaultValues = value; }
    bool GetWriteDefaultValues() const { return m_writeDefaultValues; }

    void WriteDeclaration();
    // What every child start does first: count the child and close the parent's start tag.
    void CloseStartTag();
    // Pastes text another text writer rendered, unescaped.
    void WriteRawText(const std::string &text);

private:
    void WriteEscaped(const std::string &text, bool attribute);
    void WriteIndent(std::uint32_t depth);
    void WriteNamespaceDeclaration(const std::string &alias, const std::string &namespaceUri);
    void FlushIfFull();

    bool m_writeDefaultValues = false;
    std::string m_indentChars = "\t";
    std::string m_endOfLine = "\n";
    EOLType m_eolType = EOLType_LF;
    bool m_formatted = true;
    CTextStream *m_stream;
};

} // namespace VxXmlLib16
