#pragma once
// A hand-written serialisable object: one element with attributes, text and child
// objects, written through the writer interface the way generated code does. Tests
// build documents of any shape from it without metadata tables.

#include <string>
#include <vector>

#include "SmartPtr.h"
#include "XmlObjectBase.h"

namespace VxTest {

class CTreeObject final : public VxXmlLib16::CXmlObjectBase
{
public:
    CTreeObject(std::string localName, std::string namespaceUri = std::string());

    CTreeObject &AddAttribute(std::string localName, std::string value, std::string namespaceUri = std::string());
    // Written before the children.
    CTreeObject &SetText(std::string text);
    // Takes a reference on the child and returns it, for building subtrees in place.
    CTreeObject &AddChild(CTreeObject *child);
    // Set to true when the object is destroyed.
    void WatchDestruction(bool *destroyed) { m_destroyed = destroyed; }

    CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return m_namespaceUri; }
    std::string GetNamespace() const override { return m_namespaceUri; }

protected:
    // As root it first issues what the context asks for at the top of a document:
    // processing instructions, the alias map, the default namespace and, inside the
    // root's start tag, the inline schema.
    void ToXml_Int(VxXmlLib16::CXmlWriter *writer, bool isRoot, const char *namespaceUri,
                   const VxXmlLib16::CSerializationContext &context, bool isChoiceMember) const override;
    // These objects are written only.
    VxXmlLib16::CXmlElement *FromXml_Int(VxXmlLib16::CXmlElement *element, VxXmlLib16::CXmlElement *firstChild,
                                         const VxXmlLib16::CSerializationContext &context,
                                         bool isChoiceMember) override;

private:
    ~CTreeObject() override;

    struct Attribute { std::string localName; std::string namespaceUri; std::string value; };

    std::string m_localName;
    std::string m_namespaceUri;
    std::vector<Attribute> m_attributes;
    std::string m_text;
    std::vector<CSmartPtr<CTreeObject>> m_children;
    bool *m_destroyed = nullptr;
};

} // namespace VxTest
