#include "NamespaceAliasMap.h"

#include <iterator>

#include "Exceptions.h"

namespace VxXmlLib16 {

namespace {
// A null name is taken as the empty string rather than read.
const char *Text(const char *text) { return text ? text : ""; }
} // namespace

void CNamespaceAliasMap::Add(const char *alias, const char *namespaceUri)
{
    m_aliases[Text(namespaceUri)] = Text(alias);
}

void CNamespaceAliasMap::RemoveNamespace(const char *namespaceUri) { m_aliases.erase(Text(namespaceUri)); }

int CNamespaceAliasMap::GetNamespaceCount() const { return static_cast<int>(m_aliases.size()); }

std::string CNamespaceAliasMap::GetNamespaceAt(int index) const
{
    if (index < 0 || index >= GetNamespaceCount())
        throw CVxInvalidParamException(FormatString("Namespace index [%d] out of range", index));
    return std::next(m_aliases.begin(), index)->first;
}

bool CNamespaceAliasMap::DoesNamespaceExist(const char *namespaceUri) const
{
    return m_aliases.count(Text(namespaceUri)) != 0;
}

bool CNamespaceAliasMap::DoesAliasExist(const char *alias) const
{
    for (const auto &entry : m_aliases)
        if (entry.second == Text(alias))
            return true;
    return false;
}

std::string CNamespaceAliasMap::GetAliasFromNamespace(const char *namespaceUri)
{
    return m_aliases[Text(namespaceUri)];
}

std::string CNamespaceAliasMap::FindAlias(const char *namespaceUri) const
{
    const auto found = m_aliases.find(Text(namespaceUri));
    return found == m_aliases.end() ? std::string() : found->second;
}

std::string CNamespaceAliasMap::GetNamespaceFromAlias(const char *alias) const
{
    for (const auto &entry : m_aliases)
        if (entry.second == Text(alias))
            return entry.first;
    throw CVxException(FormatString("Namespace alias [%s] not found", Text(alias)));
}

} // namespace VxXmlLib16
