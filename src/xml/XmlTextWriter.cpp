#include "XmlTextWriter.h"

#include <cstring>

#include "Exceptions.h"
#include "TextStream.h"

namespace VxXmlLib16 {

namespace {

// The writers hand text to disk once the stream holds this much.
constexpr std::size_t FlushThreshold = 4096;

constexpr char CDataStart[] = "<![CDATA[";

// Bytes that escaping may change; everything else is copied in runs.
bool NeedsEscape(unsigned char c)
{
    return c == '\n' || c == '\r' || c == '"' || c == '&' || c == '<' || c == '>';
}

} // namespace

CXmlTextWriter::CXmlTextWriter(CTextStream *stream) : m_stream(stream) {}

CXmlTextWriter::~CXmlTextWriter() = default;

void CXmlTextWriter::StartDocument()
{
    CXmlWriter::StartDocument();
    m_stream->Open();
}

void CXmlTextWriter::EndDocument()
{
    m_stream->Close();
    CXmlWriter::EndDocument();
}

void CXmlTextWriter::SetEOLType(EOLType type)
{
    switch (type) {
    case EOLType_CRLF:
        m_endOfLine = "\r\n";
        break;
    case EOLType_LF:
        m_endOfLine = "\n";
        break;
    default:
        throw CVxException("Invalid EOL type.");
    }
    m_eolType = type;
}

void CXmlTextWriter::FlushIfFull()
{
    if (m_stream->GetLength() >= FlushThreshold)
        m_stream->Flush();
}

void CXmlTextWriter::WriteIndent(std::uint32_t depth)
{
    for (std::uint32_t i = 0; i < depth; ++i)
        m_stream->Append(m_indentChars);
}

void CXmlTextWriter::WriteNamespaceDeclaration(const std::string &alias, const std::string &namespaceUri)
{
    m_stream->Append("xmlns:", 6);
    m_stream->Append(alias);
    m_stream->Append("=\"", 2);
    m_stream->Append(namespaceUri);
    m_stream->Append('"');
}

void CXmlTextWriter::WriteEscaped(const std::string &text, bool attribute)
{
    // Up to the first zero byte, as for a C string.
    const char *p = text.c_str();
    const char *run = p;
    for (;; ++p) {
        const unsigned char c = static_cast<unsigned char>(*p);
        if (c != 0 && !NeedsEscape(c))
            continue;
        m_stream->Append(run, static_cast<std::size_t>(p - run));
        run = p + 1;
        switch (c) {
        case 0:
            return;
        case '\n':
            if (attribute)
                m_stream->Append("&#xA;", 5);
            else
                m_stream->Append(m_endOfLine);
            break;
        case '\r':
            break;
        case '"':
            if (attribute)
                m_stream->Append("&quot;", 6);
            else
                m_stream->Append('"');
            break;
        case '&':
            m_stream->Append("&amp;", 5);
            break;
        case '<':
            m_stream->Append("&lt;", 4);
            break;
        case '>':
            m_stream->Append("&gt;", 4);
            break;
        }
    }
}

void CXmlTextWriter::WriteDeclaration()
{
    m_stream->Append("<?xml version=\"1.0\"");
    switch (m_stream->GetEncoding()) {
    case XmlEncoding_UTF8:
        m_stream->Append(" encoding=\"UTF-8\"");
        break;
    case XmlEncoding_UTF16:
        m_stream->Append(" encoding=\"UTF-16\"");
        break;
    default:
        break;
    }
    m_stream->Append("?>", 2);
    m_stream->Append(m_endOfLine);
    FlushIfFull();
}

void CXmlTextWriter::WriteComment(const std::string &text)
{
    m_stream->Append("<!--", 4);
    WriteEscaped(text, false);
    m_stream->Append("-->", 3);
    m_stream->Append(m_endOfLine);
    FlushIfFull();
}

void CXmlTextWriter::WriteProcessingInstruction(const std::string &text)
{
    m_stream->Append(text);
    m_stream->Append(m_endOfLine);
    m_stream->Append(m_endOfLine);
    FlushIfFull();
}

void CXmlTextWriter::WriteInlineSchema(const std::string &text)
{
    m_stream->Append(' ');
    m_stream->Append(m_endOfLine);
    m_stream->Append(text);
    m_stream->Append(m_endOfLine);
    FlushIfFull();
}

void CXmlTextWriter::CloseStartTag()
{
    CXmlWriterContext *current = GetCurrentContext();
    if (!current)
        return;
    current->IncrementChildCount();
    if (current->IsStartTagOpen()) {
        current->SetStartTagOpen(false);
        m_stream->Append('>');
        if (m_formatted)
            m_stream->Append(m_endOfLine);
    }
}

void CXmlTextWriter::StartElement(const std::string &localName, const std::string &namespaceUri)
{
    CloseStartTag();
    const bool isRoot = GetCurrentContext() == nullptr;
    CXmlWriterContext &context = PushContext(localName, namespaceUri);
    if (m_formatted)
        WriteIndent(context.GetDepth());
    m_stream->Append('<');

    if (!namespaceUri.empty() && namespaceUri != context.GetDefaultNamespace()) {
        const bool declare = !context.HasAlias(namespaceUri);
        if (declare)
            context.AddAlias(namespaceUri, MakeUniqueAlias(context.GetAliasTable()));
        const std::string alias = context.LookupAlias(namespaceUri);
        m_stream->Append(alias);
        m_stream->Append(':');
        m_stream->Append(localName);
        if (declare) {
            m_stream->Append(' ');
            WriteNamespaceDeclaration(alias, namespaceUri);
        }
    } else {
        m_stream->Append(localName);
    }

    if (isRoot) {
        if (!GetDefaultNamespaceURI().empty()) {
            m_stream->Append(" xmlns=\"", 8);
            m_stream->Append(GetDefaultNamespaceURI());
            m_stream->Append('"');
        }
        // The XML namespace is always known as "xml" and never declared; an empty alias
        // left by a lookup is no alias at all.
        const std::size_t xmlLength = std::strlen(XmlNamespaceUri);
        for (const auto &entry : GetAliasTable()) {
            if (entry.second.empty() || entry.first.compare(0, xmlLength, XmlNamespaceUri) == 0)
                continue;
            m_stream->Append(' ');
            WriteNamespaceDeclaration(entry.second, entry.first);
        }
    }
    FlushIfFull();
}

void CXmlTextWriter::WriteElementValue(const std::string &text, ItemType, bool isDefault)
{
    if (text.empty() || (isDefault && !m_writeDefaultValues))
        return;
    CXmlWriterContext *current = GetCurrentContext();
    if (current && current->IsStartTagOpen()) {
        m_stream->Append('>');
        current->SetStartTagOpen(false);
    }
    if (text.compare(0, sizeof CDataStart - 1, CDataStart) == 0)
        m_stream->Append(text);
    else
        WriteEscaped(text, false);
    FlushIfFull();
}

void CXmlTextWriter::EndElement()
{
    CXmlWriterContext &context = RequireOpenElement();
    if (context.IsStartTagOpen()) {
        m_stream->Append("/>", 2);
    } else {
        if (m_formatted && context.GetChildCount() != 0)
            WriteIndent(context.GetDepth());
        m_stream->Append("</", 2);
        const std::string &namespaceUri = context.GetNamespaceUri();
        if (!namespaceUri.empty() && namespaceUri != context.GetDefaultNamespace()) {
            m_stream->Append(context.LookupAlias(namespaceUri));
            m_stream->Append(':');
        }
        m_stream->Append(context.GetLocalName());
        m_stream->Append('>');
    }
    if (m_formatted)
        m_stream->Append(m_endOfLine);
    FlushIfFull();
    PopContext();
}

void CXmlTextWriter::WriteAttribute(const std::string &localName, const std::string &namespaceUri,
                                    const std::string &value, ItemType)
{
    CXmlWriterContext &context = RequireOpenStartTag();
    m_stream->Append(' ');
    if (!namespaceUri.empty()) {
        if (!context.HasAlias(namespaceUri)) {
            const std::string alias = MakeUniqueAlias(context.GetAliasTable());
            context.AddAlias(namespaceUri, alias);
            WriteNamespaceDeclaration(alias, namespaceUri);
            m_stream->Append(' ');
        }
        m_stream->Append(context.LookupAlias(namespaceUri));
        m_stream->Append(':');
    }
    m_stream->Append(localName);
    m_stream->Append("=\"", 2);
    WriteEscaped(value, true);
    m_stream->Append('"');
    FlushIfFull();
}

void CXmlTextWriter::WriteTypeAttribute(const std::string &namespaceUri, const std::string &typeName,
                                        ItemType type)
{
    CXmlWriterContext &context = RequireOpenStartTag();
    std::string value;
    if (namespaceUri.empty() || namespaceUri == context.GetDefaultNamespace()) {
        value = typeName;
    } else {
        if (!context.HasAlias(namespaceUri)) {
            const std::string alias = MakeUniqueAlias(context.GetAliasTable());
            context.AddAlias(namespaceUri, alias);
            // Together with the blank WriteAttribute puts first, this gives two blanks.
            m_stream->Append(' ');
            WriteNamespaceDeclaration(alias, namespaceUri);
            m_stream->Append(' ');
        }
        value = context.LookupAlias(namespaceUri) + ':' + typeName;
    }
    WriteAttribute("type", XsiNamespaceUri, value, type);
}

void CXmlTextWriter::WriteNilAttribute()
{
    RequireOpenStartTag();
    WriteAttribute("nil", XsiNamespaceUri, "true", ItemType_boolean);
}

void CXmlTextWriter::WriteRawText(const std::string &text)
{
    m_stream->Append(text);
    if (m_formatted)
        m_stream->Append(m_endOfLine);
}

} // namespace VxXmlLib16
