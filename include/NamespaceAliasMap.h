#pragma once
// The application's preferred aliases: which prefix a namespace URI gets in the output.
// Ordered by URI, so iteration and root declarations run in ascending byte order. A null
// alias or URI stands for the empty string.

#include <map>
#include <string>

namespace VxXmlLib16 {

class CNamespaceAliasMap
{
public:
    CNamespaceAliasMap() = default;
    CNamespaceAliasMap(const CNamespaceAliasMap &) = default;
    CNamespaceAliasMap &operator=(const CNamespaceAliasMap &) = default;
    virtual ~CNamespaceAliasMap() = default;

    // Sets the alias of the URI, replacing an earlier one.
    void Add(const char *alias, const char *namespaceUri);
    void RemoveNamespace(const char *namespaceUri);
    int GetNamespaceCount() const;
    // The URI at that position in key order; an index outside 0 to count - 1 fails.
    std::string GetNamespaceAt(int index) const;
    bool DoesNamespaceExist(const char *namespaceUri) const;
    bool DoesAliasExist(const char *alias) const;
    // An indexing lookup: an unknown URI gets an entry with an empty alias, which stays.
    std::string GetAliasFromNamespace(const char *namespaceUri);
    // The same lookup for constant paths: never inserts, and an unknown URI gives "".
    std::string FindAlias(const char *namespaceUri) const;
    // The entry with the smallest URI that has this alias; throws when none has it.
    std::string GetNamespaceFromAlias(const char *alias) const;

private:
    std::map<std::string, std::string> m_aliases;
};

} // namespace VxXmlLib16
