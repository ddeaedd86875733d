#pragma once
// The one output interface of the serialiser. The base owns what the XML, JSON and Fast
// Infoset writers share: the stack of open elements and the scoping of namespace aliases.

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "InstanceMonitor.h"
#include "ItemType.h"

namespace VxXmlLib16 {

class CXmlWriter : private CInstanceMonitor
{
public:
    using AliasTable = std::map<std::string, std::string>; // namespace URI to alias

    static constexpr const char *XmlNamespaceUri = "http://www.w3.org/XML/1998/namespace";
    static constexpr const char *XsiNamespaceUri = "http://www.w3.org/2001/XMLSchema-instance";

    // One open element. A context borrows the alias scope of the nearest enclosing
    // context that has one of its own, and makes its own copy only when it declares
    // something, so an alias lives exactly as long as the element that declared it.
    class CXmlWriterContext : private CInstanceMonitor
    {
    public:
        // A root: a scope of its own, copied from the writer.
        CXmlWriterContext(const std::string &localName, const std::string &namespaceUri,
                          const std::string &defaultNamespace, const AliasTable &table);
        // A child: takes ownership of the chain of its parents.
        CXmlWriterContext(const std::string &localName, const std::string &namespaceUri,
                          std::unique_ptr<CXmlWriterContext> parent);
        CXmlWriterContext(const CXmlWriterContext &) = delete;
        CXmlWriterContext &operator=(const CXmlWriterContext &) = delete;
        ~CXmlWriterContext() override;

        const AliasTable &GetAliasTable() const { return *m_scope->m_ownTable; }
        const std::string &GetDefaultNamespace() const { return m_scope->m_defaultNamespace; }
        // An indexing lookup in the effective table: an absent URI enters with an empty alias.
        std::string LookupAlias(const std::string &namespaceUri);
        // True when the effective table gives the URI a real alias; an empty one is absent.
        bool HasAlias(const std::string &namespaceUri) const;
        void AddAlias(const std::string &namespaceUri, const std::string &alias);
        void SetDefaultNamespace(const std::string &namespaceUri);

        std::uint32_t GetChildCount() const { return m_childCount; }
        void IncrementChildCount() { ++m_childCount; }
        bool IsStartTagOpen() const { return m_startTagOpen; }
        void SetStartTagOpen(bool open) { m_startTagOpen = open; }
        std::uint32_t GetDepth() const { return m_depth; }
        const std::string &GetNamespaceUri() const { return m_namespaceUri; }
        const std::string &GetLocalName() const { return m_localName; }
        CXmlWriterContext *GetParent() const { return m_parent.get(); }
        std::unique_ptr<CXmlWriterContext> DetachParent() { return std::move(m_parent); }
        std::uint32_t GetArrayState() const { return m_arrayState; }
        void SetArrayState(std::uint32_t state) { m_arrayState = state; }

    private:
        void MakeOwnScope(const std::string &defaultNamespace);

        std::uint32_t m_childCount = 0;
        bool m_startTagOpen = true;
        std::uint32_t m_depth = 0;
        std::string m_namespaceUri;
        std::string m_localName;
        std::unique_ptr<CXmlWriterContext> m_parent;
        std::uint32_t m_arrayState = 0;
        std::string m_defaultNamespace;        // meaningful only with a scope of its own
        std::unique_ptr<AliasTable> m_ownTable; // null while the scope is inherited
        CXmlWriterContext *m_scope;            // the context holding the effective scope
    };

    CXmlWriter();
    CXmlWriter(const CXmlWriter &) = delete;
    CXmlWriter &operator=(const CXmlWriter &) = delete;
    ~CXmlWriter() override;

    virtual void StartDocument();
    // Fails when an element is still open.
    virtual void EndDocument();
    // On the open element's scope, or on the writer (the root's) without one.
    virtual void SetDefaultNamespace(const std::string &namespaceUri);
    virtual void AddNamespace(const std::string &alias, const std::string &namespaceUri);
    virtual void WriteComment(const std::string &text) = 0;
    virtual void WriteProcessingInstruction(const std::string &text) = 0;
    virtual void WriteInlineSchema(const std::string &text) = 0;
    virtual void StartElement(const std::string &localName, const std::string &namespaceUri) = 0;
    virtual void WriteElementValue(const std::string &text, ItemType type, bool isDefault) = 0;
    virtual void EndElement() = 0;
    virtual void WriteAttribute(const std::string &localName, const std::string &namespaceUri,
                                const std::string &value, ItemType type) = 0;
    virtual void WriteTypeAttribute(const std::string &namespaceUri, const std::string &typeName,
                                    ItemType type) = 0;
    virtual void WriteNilAttribute() = 0;

    // Read by the JSON writer only: 1 before the items of a collection, 3 after them.
    void SetArrayState(std::uint32_t state);

    // The first of AA, AB, ..., AZ, BA, ... that is no alias in the table.
    static std::string MakeUniqueAlias(const AliasTable &table);

protected:
    CXmlWriterContext *GetCurrentContext() const { return m_current.get(); }
    const std::string &GetDefaultNamespaceURI() const { return m_defaultNamespaceUri; }
    const AliasTable &GetAliasTable() const { return m_aliases; }
    // Opens a context as child of the current one, or as root from the writer's scope.
    CXmlWriterContext &PushContext(const std::string &localName, const std::string &namespaceUri);
    // Closes the current context; its parent becomes current.
    void PopContext();
    // The innermost open element; ending an element when none is open is a fault of the
    // writer's user and fails instead of touching a missing context.
    CXmlWriterContext &RequireOpenElement() const;
    // The attribute operations' common check; returns the element whose tag is open.
    CXmlWriterContext &RequireOpenStartTag() const;

private:
    std::string m_defaultNamespaceUri;
    std::unique_ptr<CXmlWriterContext> m_current;
    AliasTable m_aliases;
};

} // namespace VxXmlLib16
