#include "XmlDocument.h"

#include <cstring>
#include <unordered_set>

#include "Exceptions.h"
#include "SerializationContext.h"
#include "xml/NodePool.h"

namespace VxXmlLib16 {

struct CXmlDocument::TreeStorage
{
    CNodePool elements{sizeof(CXmlElement), alignof(CXmlElement)};
    CNodePool attributes{sizeof(CXmlAttribute), alignof(CXmlAttribute)};
    std::unordered_set<std::string> names;
};

CXmlDocument::CXmlDocument() : CXmlDocument(nullptr, CSerializationContext::GetDefaultContext()) {}

CXmlDocument::CXmlDocument(const CSerializationContext &context) : CXmlDocument(nullptr, context) {}

CXmlDocument::CXmlDocument(XmlElementCallback callback)
    : CXmlDocument(callback, CSerializationContext::GetDefaultContext())
{
}

CXmlDocument::CXmlDocument(XmlElementCallback callback, const CSerializationContext &context)
    : CInstanceMonitor("CXmlDocument"), m_callback(callback), m_context(&context)
{
    Init();
}

CXmlDocument::~CXmlDocument() { CXmlDocument::Cleanup(); }

void CXmlDocument::Init()
{
    m_data = nullptr;
    m_dataLength = 0;
    m_documentElement = nullptr;
    m_fileOffset = 0;
    m_schemaType = m_context->GetSchemaType();
    m_storage = std::make_shared<TreeStorage>();
}

void CXmlDocument::Cleanup()
{
    if (m_documentElement)
        DestroyElement(m_documentElement);
    m_documentElement = nullptr;
    FreeData();
    m_openElements.clear();
    m_aliases.clear();
    // Fresh storage, so that a copy of this document keeps what it points to.
    m_storage = std::make_shared<TreeStorage>();
}

std::string CXmlDocument::LookupAliasFromNamespace(const char *uri) const
{
    if (uri)
        for (const auto &[alias, namespaceUri] : m_aliases)
            if (namespaceUri == uri)
                return alias;
    return std::string();
}

std::string CXmlDocument::LookupNamespaceFromAlias(const char *alias) const
{
    const auto found = m_aliases.find(alias ? alias : "");
    return found == m_aliases.end() ? std::string() : found->second;
}

const std::string *CXmlDocument::Intern(const char *text) { return Intern(std::string(text ? text : "")); }

const std::string *CXmlDocument::Intern(std::string &&text)
{
    return &*m_storage->names.insert(std::move(text)).first;
}

CXmlElement *CXmlDocument::NewElement(CXmlElement *parent)
{
    return new (m_storage->elements.Allocate()) CXmlElement(this, parent);
}

CXmlAttribute *CXmlDocument::NewAttribute(CXmlElement *element, const std::string *localName, std::string value,
                                          const std::string *namespaceUri)
{
    return new (m_storage->attributes.Allocate()) CXmlAttribute(element, localName, std::move(value), namespaceUri);
}

void CXmlDocument::DestroyElement(CXmlElement *element)
{
    TreeStorage &storage = *element->m_document->m_storage;
    element->~CXmlElement();
    storage.elements.Deallocate(element);
}

void CXmlDocument::DestroyAttribute(CXmlAttribute *attribute)
{
    TreeStorage &storage = *attribute->m_element->m_document->m_storage;
    attribute->~CXmlAttribute();
    storage.attributes.Deallocate(attribute);
}

CXmlElement *CXmlDocument::AddDocElement(const char *uri, const char *localName)
{
    // A new document element replaces any earlier tree.
    if (m_documentElement)
        DestroyElement(m_documentElement);
    m_documentElement = nullptr;
    m_openElements.clear();
    return OpenElement(Intern(uri), Intern(localName));
}

CXmlElement *CXmlDocument::AddChildElement(const char *uri, const char *localName)
{
    return OpenElement(Intern(uri), Intern(localName));
}

CXmlElement *CXmlDocument::OpenElement(const std::string *uri, const std::string *localName)
{
    CXmlElement *element;
    if (!m_documentElement) {
        element = m_documentElement = NewElement(nullptr);
    } else if (m_openElements.empty()) {
        // Only a reader that lets a second root through gets here.
        throw CVxException("An element follows the document element");
    } else {
        element = m_openElements.back()->CreateNewChildElement();
    }
    element->SetNamespace(uri);
    element->SetElementName(localName);
    m_openElements.push_back(element);
    return element;
}

CXmlAttribute *CXmlDocument::AddElementAttribute(CXmlElement *element, const char *localName, const char *value,
                                                 const char *uri)
{
    CXmlDocument *document = element->GetDocument();
    return element->AddAttribute(document->Intern(localName), value ? value : "", document->Intern(uri));
}

CXmlAttribute *CXmlDocument::AddElementAttribute(CXmlElement *element, const std::string *localName,
                                                 std::string value, const std::string *uri)
{
    return element->AddAttribute(localName, std::move(value), uri);
}

void CXmlDocument::AppendTextExcludingCR(CXmlElement *element, const char *text)
{
    AppendTextExcludingCR(element, text, static_cast<std::size_t>(-1));
}

void CXmlDocument::AppendTextExcludingCR(CXmlElement *element, const char *text, std::size_t length)
{
    // A zero byte ends the piece; carriage returns are left out, the runs between them
    // are appended as they stand.
    const char *end = text + strnlen(text, length);
    while (text < end) {
        const auto *cr = static_cast<const char *>(std::memchr(text, '\r', static_cast<std::size_t>(end - text)));
        const char *runEnd = cr ? cr : end;
        element->AppendText(text, static_cast<std::size_t>(runEnd - text));
        text = cr ? cr + 1 : end;
    }
}

void CXmlDocument::EndElement()
{
    if (m_openElements.empty())
        return;
    CXmlElement *finished = m_openElements.back();
    m_openElements.pop_back();
    // Streaming mode: a consumed element leaves the tree at once. The root stays, as no
    // parent is left to detach it from.
    if (m_callback && m_callback(finished) && !m_openElements.empty())
        if (CXmlElement *consumed = m_openElements.back()->RemoveLastChildElement())
            DestroyElement(consumed);
}

} // namespace VxXmlLib16
