#pragma once
// Content of xs:any and xs:anyAttribute, which has no generated class: a free-form
// element with attributes, children and text, a free-form attribute, and their
// collections. Each carries a namespace rule ("##any", "##other", "##local",
// "##targetNamespace" or a URI) and the target namespace the rule is judged against.

#include <string>

#include "Exceptions.h"
#include "InstanceMonitor.h"
#include "SmartPtr.h"
#include "XmlCollection.h"

namespace VxXmlLib16 {

// The typed face of a wildcard collection over the protected list operations, with the
// namespace rule its items are judged by. The item namespace is both namespaces of the
// collection.
template <class T>
class CWildcardCol : public CXmlCollection
{
public:
    CWildcardCol(const char *namespaceUri, std::string rule, std::string targetNamespace)
        : CXmlCollection("", namespaceUri, 0, -1), m_rule(std::move(rule)),
          m_targetNamespace(std::move(targetNamespace))
    {
    }

    std::string GetTargetNamespace() const override { return GetNamespace(); }

    CSmartPtr<T> Item(int index) const
    {
        return static_cast<T *>(static_cast<CXmlObjectBase *>(GetNodeAtIndex(index)->item));
    }
    CVxIterator<T> begin() const { return CXmlCollection::begin<T>(); }
    CVxIterator<T> end() const { return CXmlCollection::end<T>(); }

protected:
    const std::string &GetRule() const { return m_rule; }
    const std::string &GetTarget() const { return m_targetNamespace; }
    void TestNamespace(const std::string &namespaceUri) const
    {
        CXmlObjectBase::TestNamespace(namespaceUri.c_str(), m_rule.c_str(), m_targetNamespace.c_str());
    }
    // An item handed in for insertion, held from here on, so that an item nobody else
    // holds dies when it is refused. Null and a namespace the rule refuses fail.
    CSmartPtr<T> Tested(T *item) const
    {
        CSmartPtr<T> held = item;
        if (!item)
            throw CVxInvalidParamException("A NULL item can not be added to the collection");
        TestNamespace(item->GetNamespace());
        return held;
    }
    CSmartPtr<T> Append(CSmartPtr<T> item)
    {
        AppendItem(item);
        return item;
    }

private:
    std::string m_rule;
    std::string m_targetNamespace;
};

class CAttribute : public CXmlObjectBase, private CInstanceMonitor
{
public:
    CAttribute(const char *name, const char *value, const char *namespaceUri);
    CAttribute(const CAttribute &other) = default;

    CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return m_namespace; }
    std::string GetNamespace() const override { return m_namespace; }

    std::string GetName() const { return m_name; }
    void SetName(const char *name);
    std::string GetValue() const { return m_value; }
    void SetValue(const char *value);
    void SetNamespace(const char *namespaceUri);

    CSmartPtr<CAttribute> Clone() const;

protected:
    ~CAttribute() override;

    void ToXml_Int(CXmlWriter *writer, bool isRoot, const char *namespaceUri,
                   const CSerializationContext &context, bool isChoiceMember) const override;
    // Attributes are read by their collection, never one by one.
    CXmlElement *FromXml_Int(CXmlElement *element, CXmlElement *cursor, const CSerializationContext &context,
                             bool isChoiceMember) override;

private:
    std::string m_name;
    std::string m_value;
    std::string m_namespace;
};

class CAttributeCol : public CWildcardCol<CAttribute>, private CInstanceMonitor
{
public:
    // With an empty namespace, a rule whose first token is a URI gives the collection
    // that URI as its namespace.
    CAttributeCol(const char *namespaceUri, const char *rule, const char *targetNamespace);

    // Every Add tests the namespace against the rule first; the forms without a
    // namespace give the attribute the collection's own.
    CSmartPtr<CAttribute> Add(CAttribute *attribute);
    CSmartPtr<CAttribute> Add(const char *name);
    CSmartPtr<CAttribute> Add(const char *name, const char *value);
    CSmartPtr<CAttribute> Add(const char *name, const char *value, const char *namespaceUri);

    CSmartPtr<CAttributeCol> Clone() const;

protected:
    ~CAttributeCol() override;

    void ToXml_Int(CXmlWriter *writer, bool isRoot, const char *namespaceUri,
                   const CSerializationContext &context, bool isChoiceMember) const override;
    // Takes every attribute of the element, xmlns and xsi ones included; returns the
    // cursor unchanged.
    CXmlElement *FromXml_Int(CXmlElement *element, CXmlElement *cursor, const CSerializationContext &context,
                             bool isChoiceMember) override;
};

class CElement : public CXmlObjectBase, private CInstanceMonitor
{
public:
    // No namespace, any rule.
    explicit CElement(const char *name);
    // The namespace is its own rule; the rule keywords are refused as a namespace.
    CElement(const char *name, const char *namespaceUri);
    CElement(const char *name, const char *namespaceUri, const char *rule, const char *targetNamespace);
    // The object rendered and read back; with a default namespace the element is later
    // written as a pasted subtree that declares that namespace itself.
    CElement(CXmlObjectBase *object, const char *defaultNamespace);
    // Shares the attribute and child collections with the source; Clone copies them.
    CElement(const CElement &other) = default;

    CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return m_namespace; }
    std::string GetNamespace() const override { return m_namespace; }

    std::string GetName() const { return GetElementName(); }
    void SetName(const char *name);
    std::string GetText() const { return m_text; }
    void SetText(const char *text);
    void SetNamespace(const char *namespaceUri);
    CSmartPtr<CAttributeCol> GetAttributes() const { return m_attributes; }
    CSmartPtr<CElementCol> GetChildElements() const { return m_children; }

    // Checks this element and its whole subtree against a rule without storing it. A
    // refused namespace of the element itself is thrown as a pointer to a
    // CVxInvalidNamespaceException on the heap, which the caller must catch and delete.
    void SetNamespaceRestrictions(const char *rule, const char *targetNamespace);
    CSmartPtr<CElement> Clone() const;

    using CXmlObjectBase::FromXml;
    // The document element is this element itself, not its first child.
    void FromXml(const char *text,
                 const CSerializationContext &context = CSerializationContext::GetDefaultContext()) override;

protected:
    ~CElement() override;

    void Init(const char *name, const char *namespaceUri, const char *rule, const char *targetNamespace);
    void CopyXmlElement(const CXmlElement *element);

    // Notification hooks of the setters; nothing by default.
    virtual void FireOnChangeName() {}
    virtual void FireOnChangeText() {}
    virtual void FireOnChangeNamespace() {}

    void ToXml_Int(CXmlWriter *writer, bool isRoot, const char *namespaceUri,
                   const CSerializationContext &context, bool isChoiceMember) const override;
    // Reading replaces attributes, children, text, name and namespace. An element whose
    // namespace the rule refuses is not taken: the cursor comes back unchanged.
    CXmlElement *FromXml_Int(CXmlElement *parent, CXmlElement *cursor, const CSerializationContext &context,
                             bool isChoiceMember) override;

private:
    struct CloneTag {};
    CElement(CloneTag, const CElement &source);

    void WriteSubtree(CXmlWriter *writer, const char *namespaceUri, const CSerializationContext &context,
                      bool isChoiceMember) const;

    std::string m_text;
    std::string m_namespace;
    std::string m_rule;
    std::string m_targetNamespace;
    CSmartPtr<CAttributeCol> m_attributes;
    CSmartPtr<CElementCol> m_children;
    std::string m_defaultNamespace;
};

class CElementCol : public CWildcardCol<CElement>, private CInstanceMonitor
{
    // Named wildcard entries of the metadata walk the siblings through the locked read.
    friend class VxXmlLib16Data::CCollectionElementInfo;

public:
    // The rule is tested against the namespace and then stored as "##any", and the
    // occurrence limits stay 0 and -1, whatever is given. An empty namespace with a
    // "##" rule makes the rule the default namespace of new elements.
    CElementCol(const char *namespaceUri, const char *rule, const char *targetNamespace, int minOccurs,
                int maxOccurs);

    CSmartPtr<CElement> Add(CElement *element);
    // A new element in the collection's default namespace.
    CSmartPtr<CElement> Add(const char *name);
    CSmartPtr<CElement> Add(const char *name, const char *namespaceUri);
    void AddBefore(const CElement *next, CElement *element);
    void AddAfter(const CElement *previous, CElement *element);

    CSmartPtr<CElementCol> Clone() const;

protected:
    ~CElementCol() override;

    void ToXml_Int(CXmlWriter *writer, bool isRoot, const char *namespaceUri,
                   const CSerializationContext &context, bool isChoiceMember) const override;
    // Takes elements from the cursor on while the rule accepts their namespace.
    CXmlElement *FromXml_Int(CXmlElement *parent, CXmlElement *cursor, const CSerializationContext &context,
                             bool isChoiceMember) override;
    // The same for a named wildcard: takes elements while name and namespace match.
    virtual CXmlElement *FromXmlLockElementName_Int(std::string name, std::string namespaceUri,
                                                    CXmlElement *parent, CXmlElement *cursor,
                                                    const CSerializationContext &context);

private:
    struct CloneTag {};
    CElementCol(CloneTag, const CElementCol &source);

    // Reads elements from the cursor on while accepts(cursor) holds, each as a new
    // element under the given rule; stops at the first that is not taken.
    template <class Accepts>
    CXmlElement *ReadElements(CXmlElement *parent, CXmlElement *cursor, const CSerializationContext &context,
                              const char *rule, Accepts accepts);

    std::string m_defaultNamespace;
};

} // namespace VxXmlLib16
