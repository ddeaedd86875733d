#pragma once
// The small read-only tree that every input passes through: elements with namespace
// URIs, attributes, and one text string per element. Comments, processing instructions
// and the order between text and child elements are not kept.

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Enums.h"
#include "InstanceMonitor.h"
#include "VxXmlLib16Fwd.h"

namespace VxPlatform {
class InputFile;
}

namespace VxXmlLib16 {

class CExpatReader;

// Called with each completed element; returning true drops the element at once.
using XmlElementCallback = bool (*)(CXmlElement *element);

// Copies of the three tree classes are member-wise: a copy shares children, attributes
// and buffer with its source, so it must not outlive it and must not be destroyed
// while the source lives. The library itself never copies a tree.
class CXmlAttribute : private CInstanceMonitor
{
    friend class CXmlDocument;

public:
    CXmlAttribute(const CXmlAttribute &) = default;
    CXmlAttribute &operator=(const CXmlAttribute &) = default;
    ~CXmlAttribute() override;

    const std::string &GetLocalName() const { return *m_localName; }
    const std::string &GetValue() const { return m_value; }
    const std::string &GetNamespaceURI() const { return *m_namespaceUri; }
    // The element's path, then the alias (if any) before "@": /a/b/p:@x.
    std::string GetXPath() const;
    bool IsNilAttribute() const;
    bool IsNamespaceAttribute() const;

private:
    // Names and URIs are interned by the document and live as long as it does.
    CXmlAttribute(CXmlElement *element, const std::string *localName, std::string value,
                  const std::string *namespaceUri);

    CXmlElement *m_element;
    const std::string *m_localName;
    std::string m_value;
    const std::string *m_namespaceUri;
};

class CXmlElement : private CInstanceMonitor
{
public:
    CXmlElement(const CXmlElement &) = default;
    CXmlElement &operator=(const CXmlElement &) = default;
    // Tears the subtree down without recursion, so that depth costs no stack.
    ~CXmlElement() override;

    const std::vector<CXmlAttribute *> &GetAttributes() const { return m_attributes; }
    const std::string &GetText() const { return m_text; }
    const std::string &GetLocalName() const { return *m_localName; }
    const std::string &GetNamespaceURI() const { return *m_namespaceUri; }
    CXmlElement *GetNextSiblingElement() const { return m_nextSibling; }
    CXmlElement *GetFirstElement() const { return m_firstChild; }
    CXmlElement *GetParentElm() const { return m_parent; }
    CXmlDocument *GetDocument() const { return m_document; }
    // The value of the attribute, or an empty string when there is none.
    const std::string &GetAttribute(const char *localName, const char *namespaceUri) const;
    // "/", QName and "[n]" per level; the predicate only where siblings share the QName.
    std::string GetXPath() const;

protected:
    CXmlElement(CXmlDocument *document, CXmlElement *parent);

    void SetNamespace(const std::string *namespaceUri) { m_namespaceUri = namespaceUri; }
    void SetElementName(const std::string *localName) { m_localName = localName; }
    void AppendText(const char *text);
    void AppendText(const char *text, std::size_t length);
    CXmlElement *CreateNewChildElement();
    CXmlAttribute *AddAttribute(const std::string *localName, std::string value, const std::string *namespaceUri);
    // Unlinks and returns the last child (null if none); the caller owns it then.
    CXmlElement *RemoveLastChildElement();

private:
    friend class CXmlDocument;
    friend class CXmlAttribute;

    std::string GetQName() const;
    std::string GetNameWithPredicate() const;

    CXmlDocument *m_document;
    CXmlElement *m_parent;
    CXmlElement *m_nextSibling = nullptr;
    CXmlElement *m_firstChild = nullptr;
    CXmlElement *m_lastChild = nullptr;
    std::vector<CXmlAttribute *> m_attributes;
    std::string m_text;
    const std::string *m_localName;
    const std::string *m_namespaceUri;
};

class CXmlDocument : private CInstanceMonitor
{
public:
    CXmlDocument();
    explicit CXmlDocument(const CSerializationContext &context);
    explicit CXmlDocument(XmlElementCallback callback);
    CXmlDocument(XmlElementCallback callback, const CSerializationContext &context);
    CXmlDocument(const CXmlDocument &) = default;
    CXmlDocument &operator=(const CXmlDocument &) = default;
    ~CXmlDocument() override;

    // Destroys the tree, frees the input and clears stack and alias table; the context
    // and the callback stay. Every Load starts with it, so a document can be reloaded.
    virtual void Cleanup();

    void Load(const char *fileName);
    void LoadXml(const char *text);
    // Read as UTF-16 little-endian after a byte order mark.
    void LoadXml(const wchar_t *text);
    void LoadXmlStream(unsigned char *const data, std::uint32_t length);

    CXmlElement *GetDocumentElement() const { return m_documentElement; }
    // The first alias, in ascending alias order, bound to the URI; else "".
    std::string LookupAliasFromNamespace(const char *uri) const;
    std::string LookupNamespaceFromAlias(const char *alias) const;

private:
    friend class CExpatReader;
    friend class CXmlElement;
    // The nodes and the interned names of the tree; shared by member-wise copies.
    struct TreeStorage;

    void Init();
    void Parse();
    void ParseText();
    void LoadFileWhole(const char *fileName);
    void LoadFileInChunks(const char *fileName);
    void AsyncParse(VxPlatform::InputFile &file, bool lastChunk);
    // Starts a chunk read at the current offset. Failures name the file when one is
    // given and read as mid-file failures otherwise.
    void ReadChunkFromFile(VxPlatform::InputFile &file, unsigned char *buffer, const char *fileName);
    // Waits for the chunk, stores its byte count as data length and moves the offset
    // on; true for the last chunk. Reaching the end of the file fails.
    bool FinishChunk(VxPlatform::InputFile &file, const char *fileName);
    [[noreturn]] static void FailChunkRead(const char *fileName, std::uint32_t status);
    void AllocateData(std::uint32_t length);
    void FreeData();

    // Nodes live in the document's storage and die through these.
    CXmlElement *NewElement(CXmlElement *parent);
    CXmlAttribute *NewAttribute(CXmlElement *element, const std::string *localName, std::string value,
                                const std::string *namespaceUri);
    static void DestroyElement(CXmlElement *element);
    static void DestroyAttribute(CXmlAttribute *attribute);

    // Names and URIs of the tree are kept once per document.
    const std::string *Intern(const char *text);
    const std::string *Intern(std::string &&text);

    // Building operations of the readers.
    CXmlElement *AddDocElement(const char *uri, const char *localName);
    CXmlElement *AddChildElement(const char *uri, const char *localName);
    CXmlElement *OpenElement(const std::string *uri, const std::string *localName);
    static CXmlAttribute *AddElementAttribute(CXmlElement *element, const char *localName, const char *value,
                                              const char *uri);
    static CXmlAttribute *AddElementAttribute(CXmlElement *element, const std::string *localName, std::string value,
                                              const std::string *uri);
    static void AppendTextExcludingCR(CXmlElement *element, const char *text);
    static void AppendTextExcludingCR(CXmlElement *element, const char *text, std::size_t length);
    void EndElement();
    CXmlElement *GetOpenElement() const { return m_openElements.empty() ? nullptr : m_openElements.back(); }
    void SetAlias(std::string alias, std::string uri) { m_aliases[std::move(alias)] = std::move(uri); }

    std::uint64_t m_fileOffset = 0;
    CXmlElement *m_documentElement = nullptr;
    std::vector<CXmlElement *> m_openElements;
    std::map<std::string, std::string> m_aliases;
    unsigned char *m_data = nullptr;
    std::uint32_t m_dataLength = 0;
    SchemaType m_schemaType = SchemaType_Namespaced;
    XmlElementCallback m_callback = nullptr;
    const CSerializationContext *m_context;
    std::shared_ptr<TreeStorage> m_storage;
};

} // namespace VxXmlLib16
