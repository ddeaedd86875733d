#include "XmlWriter.h"

#include "Exceptions.h"

namespace VxXmlLib16 {

using Context = CXmlWriter::CXmlWriterContext;

Context::CXmlWriterContext(const std::string &localName, const std::string &namespaceUri,
                           const std::string &defaultNamespace, const AliasTable &table)
    : CInstanceMonitor("CXmlWriterContext"), m_namespaceUri(namespaceUri), m_localName(localName),
      m_defaultNamespace(defaultNamespace), m_ownTable(std::make_unique<AliasTable>(table)), m_scope(this)
{
}

Context::CXmlWriterContext(const std::string &localName, const std::string &namespaceUri,
                           std::unique_ptr<CXmlWriterContext> parent)
    : CInstanceMonitor("CXmlWriterContext"), m_depth(parent->m_depth + 1), m_namespaceUri(namespaceUri),
      m_localName(localName), m_parent(std::move(parent)), m_scope(m_parent->m_scope)
{
}

Context::~CXmlWriterContext() = default;

std::string Context::LookupAlias(const std::string &namespaceUri)
{
    return (*m_scope->m_ownTable)[namespaceUri];
}

bool Context::HasAlias(const std::string &namespaceUri) const
{
    const AliasTable &table = GetAliasTable();
    const auto found = table.find(namespaceUri);
    return found != table.end() && !found->second.empty();
}

void Context::MakeOwnScope(const std::string &defaultNamespace)
{
    if (m_ownTable)
        return;
    m_ownTable = std::make_unique<AliasTable>(GetAliasTable());
    m_defaultNamespace = defaultNamespace;
    m_scope = this;
}

void Context::AddAlias(const std::string &namespaceUri, const std::string &alias)
{
    MakeOwnScope(GetDefaultNamespace());
    (*m_ownTable)[namespaceUri] = alias;
}

void Context::SetDefaultNamespace(const std::string &namespaceUri)
{
    MakeOwnScope(namespaceUri);
    m_defaultNamespace = namespaceUri;
}

CXmlWriter::CXmlWriter() : CInstanceMonitor("CXmlWriter") { AddNamespace("xml", XmlNamespaceUri); }

CXmlWriter::~CXmlWriter() = default;

void CXmlWriter::StartDocument() {}

void CXmlWriter::EndDocument()
{
    if (m_current)
        throw CVxException("An Element has not been closed.");
}

void CXmlWriter::SetDefaultNamespace(const std::string &namespaceUri)
{
    if (m_current)
        m_current->SetDefaultNamespace(namespaceUri);
    else
        m_defaultNamespaceUri = namespaceUri;
}

void CXmlWriter::AddNamespace(const std::string &alias, const std::string &namespaceUri)
{
    if (m_current)
        m_current->AddAlias(namespaceUri, alias);
    else
        m_aliases[namespaceUri] = alias;
}

void CXmlWriter::SetArrayState(std::uint32_t state)
{
    if (m_current)
        m_current->SetArrayState(state);
}

std::string CXmlWriter::MakeUniqueAlias(const AliasTable &table)
{
    for (unsigned n = 0;; ++n) {
        const char candidate[3] = {static_cast<char>('A' + n / 26), static_cast<char>('A' + n % 26), '\0'};
        bool taken = false;
        for (const auto &entry : table)
            if (entry.second == candidate) {
                taken = true;
                break;
            }
        if (!taken)
            return candidate;
    }
}

Context &CXmlWriter::PushContext(const std::string &localName, const std::string &namespaceUri)
{
    if (m_current)
        m_current = std::make_unique<Context>(localName, namespaceUri, std::move(m_current));
    else
        m_current = std::make_unique<Context>(localName, namespaceUri, m_defaultNamespaceUri, m_aliases);
    return *m_current;
}

void CXmlWriter::PopContext()
{
    // Detach the parent first: a context destroys the chain it owns.
    std::unique_ptr<Context> parent = m_current->DetachParent();
    m_current = std::move(parent);
}

Context &CXmlWriter::RequireOpenElement() const
{
    if (!m_current)
        throw CVxException("No element is open.");
    return *m_current;
}

Context &CXmlWriter::RequireOpenStartTag() const
{
    if (!m_current || !m_current->IsStartTagOpen())
        throw CVxException("Attributes must be added before elements");
    return *m_current;
}

} // namespace VxXmlLib16
