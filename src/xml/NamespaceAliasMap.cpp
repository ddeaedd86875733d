#include "NamespaceAliasMap.h"

#include <iterator>

#include "Exceptions.h"

namespace VxXmlLib16 {

void CNamespaceAliasMap::Add(const char *alias, const char *namespaceUri)
{
    m_aliases[namespaceUri] = alias;
}

void CNamespaceAliasMap::RemoveNamespace(const char *namespaceUri) { m_aliases.erase(namespaceUri); }

int CNamespaceAliasMap::GetNamespaceCount() const { return static_cast<int>(m_aliases.size()); }

std::string CNamespaceAliasMap::GetNamespaceAt(int index) const
{
    return std::next(m_aliases.begin(), index)->first;
}

bool CNamespaceAliasMap::DoesNamespaceExist(const char *namespaceUri) const
{
    return m_aliases.count(namespaceUri) != 0;
}

bool CNamespaceAliasMap::DoesAliasExist(const char *alias) const
{
    for (const auto &entry : m_aliases)
        if (entry.second == alias)
            return true;
    return false;
}

std::string CNamespaceAliasMap::GetAliasFromNamespace(const char *namespaceUri)
{
    return m_aliases[namespaceUri];
}

std::string CNamespaceAliasMap::FindAlias(const char *namespaceUri) const
{
    const auto found = m_aliases.find(namespaceUri);
    return found == m_aliases.end() ? std::string() : found->second;
}

std::string CNamespaceAliasMap::GetNamespaceFromAlias(const char *alias) const
{
    for (const auto &entry : m_aliases)
        if (entry.second == alias)
            return entry.first;
    throw CVxException(FormatString("Namespace alias [%s] not found", alias));
}

} // namespace VxXmlLib16
