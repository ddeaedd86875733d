#include "XmlDocument.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace VxXmlLib16 {

namespace {

const char kXsiNamespace[] = "http://www.w3.org/2001/XMLSchema-instance";
const char kXmlnsNamespace[] = "http://www.w3.org/2000/xmlns/";

// What an element is called before its name is set.
const std::string *NoName()
{
    static const std::string empty;
    return &empty;
}

bool IsInstanceNamespace(const std::string &uri) { return uri == kXsiNamespace || uri == kXmlnsNamespace; }

// The alias of a namespace URI followed by ":", or nothing when there is none to show.
std::string PrefixOf(const CXmlDocument *document, const std::string &uri)
{
    if (!document || uri.empty())
        return std::string();
    std::string alias = document->LookupAliasFromNamespace(uri.c_str());
    if (!alias.empty())
        alias += ':';
    return alias;
}

} // namespace

CXmlAttribute::CXmlAttribute(CXmlElement *element, const std::string *localName, std::string value,
                             const std::string *namespaceUri)
    : CInstanceMonitor("CXmlAttribute"), m_element(element), m_localName(localName), m_value(std::move(value)),
      m_namespaceUri(namespaceUri)
{
}

CXmlAttribute::~CXmlAttribute() = default;

std::string CXmlAttribute::GetXPath() const
{
    std::string path = m_element->GetXPath();
    path += '/';
    path += PrefixOf(m_element->GetDocument(), *m_namespaceUri);
    path += '@';
    path += *m_localName;
    return path;
}

bool CXmlAttribute::IsNilAttribute() const { return IsInstanceNamespace(*m_namespaceUri) && *m_localName == "nil"; }

bool CXmlAttribute::IsNamespaceAttribute() const
{
    if (!IsInstanceNamespace(*m_namespaceUri))
        return false;
    const std::string &name = *m_localName;
    return name == "xmlns" || name == "type" || name == "schemaLocation" || name == "noNamespaceSchemaLocation";
}

CXmlElement::CXmlElement(CXmlDocument *document, CXmlElement *parent)
    : CInstanceMonitor("CXmlElement"), m_document(document), m_parent(parent),
      m_localName(NoName()), m_namespaceUri(NoName())
{
}

CXmlElement::~CXmlElement()
{
    // Descendants are taken off one by one: an element whose children have been
    // spliced into the pending chain ahead of its siblings is childless when deleted.
    CXmlElement *pending = m_firstChild;
    while (pending) {
        CXmlElement *element = pending;
        if (element->m_firstChild) {
            element->m_lastChild->m_nextSibling = element->m_nextSibling;
            pending = element->m_firstChild;
            element->m_firstChild = element->m_lastChild = nullptr;
        } else {
            pending = element->m_nextSibling;
        }
        CXmlDocument::DestroyElement(element);
    }
    for (CXmlAttribute *attribute : m_attributes)
        CXmlDocument::DestroyAttribute(attribute);
}

const std::string &CXmlElement::GetAttribute(const char *localName, const char *namespaceUri) const
{
    if (!localName)
        return *NoName();
    const char *uri = namespaceUri ? namespaceUri : "";
    for (const CXmlAttribute *attribute : m_attributes)
        if (attribute->GetLocalName() == localName && attribute->GetNamespaceURI() == uri)
            return attribute->GetValue();
    return *NoName();
}

std::string CXmlElement::GetQName() const { return PrefixOf(m_document, *m_namespaceUri) + *m_localName; }

std::string CXmlElement::GetNameWithPredicate() const
{
    std::string name = GetQName();
    if (!m_parent)
        return name;
    std::size_t position = 0;
    std::size_t count = 0;
    for (const CXmlElement *sibling = m_parent->m_firstChild; sibling; sibling = sibling->m_nextSibling) {
        if (sibling == this || sibling->GetQName() == name)
            ++count;
        if (sibling == this)
            position = count;
    }
    if (count > 1)
        name += '[' + std::to_string(position) + ']';
    return name;
}

std::string CXmlElement::GetXPath() const
{
    // Built from the root down without recursion, so that any depth is fine.
    std::vector<const CXmlElement *> chain;
    for (const CXmlElement *element = this; element; element = element->m_parent)
        chain.push_back(element);
    std::string path;
    for (auto element = chain.rbegin(); element != chain.rend(); ++element) {
        path += '/';
        path += (*element)->GetNameWithPredicate();
    }
    return path;
}

void CXmlElement::AppendText(const char *text) { AppendText(text, std::strlen(text)); }

void CXmlElement::AppendText(const char *text, std::size_t length)
{
    if (length == 0)
        return;
    // Doubling keeps many small pieces linear in time.
    const std::size_t size = m_text.size() + length;
    if (size > m_text.capacity())
        m_text.reserve(std::max(2 * m_text.capacity(), size));
    m_text.append(text, length);
}

CXmlElement *CXmlElement::CreateNewChildElement()
{
    CXmlElement *child = m_document->NewElement(this);
    if (m_lastChild)
        m_lastChild->m_nextSibling = child;
    else
        m_firstChild = child;
    m_lastChild = child;
    return child;
}

CXmlAttribute *CXmlElement::AddAttribute(const std::string *localName, std::string value,
                                         const std::string *namespaceUri)
{
    CXmlAttribute *attribute = m_document->NewAttribute(this, localName, std::move(value), namespaceUri);
    try {
        m_attributes.push_back(attribute);
    } catch (...) {
        CXmlDocument::DestroyAttribute(attribute);
        throw;
    }
    return attribute;
}

CXmlElement *CXmlElement::RemoveLastChildElement()
{
    CXmlElement *last = m_lastChild;
    if (!last)
        return nullptr;
    if (m_firstChild == last) {
        m_firstChild = m_lastChild = nullptr;
    } else {
        CXmlElement *previous = m_firstChild;
        while (previous->m_nextSibling != last)
            previous = previous->m_nextSibling;
        previous->m_nextSibling = nullptr;
        m_lastChild = previous;
    }
    last->m_parent = nullptr;
    return last;
}

} // namespace VxXmlLib16
