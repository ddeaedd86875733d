#include "TreeObject.h"

#include "Exceptions.h"
#include "SerializationContext.h"
#include "XmlWriter.h"

namespace VxTest {

using namespace VxXmlLib16;

CTreeObject::CTreeObject(std::string localName, std::string namespaceUri)
    : m_localName(std::move(localName)), m_namespaceUri(std::move(namespaceUri))
{
    SetElementName(m_localName.c_str());
}

CTreeObject::~CTreeObject()
{
    if (m_destroyed)
        *m_destroyed = true;
}

CTreeObject &CTreeObject::AddAttribute(std::string localName, std::string value, std::string namespaceUri)
{
    m_attributes.push_back({std::move(localName), std::move(namespaceUri), std::move(value)});
    return *this;
}

CTreeObject &CTreeObject::SetText(std::string text)
{
    m_text = std::move(text);
    return *this;
}

CTreeObject &CTreeObject::AddChild(CTreeObject *child)
{
    m_children.emplace_back(child);
    return *child;
}

void CTreeObject::ToXml_Int(CXmlWriter *writer, bool isRoot, const char *namespaceUri,
                            const CSerializationContext &context, bool) const
{
    if (isRoot) {
        for (const std::string &instruction : context.GetProcessingInstructions())
            writer->WriteProcessingInstruction(instruction);
        const CNamespaceAliasMap &aliases = context.GetNamespaceAliases();
        for (int i = 0; i < aliases.GetNamespaceCount(); ++i) {
            const std::string uri = aliases.GetNamespaceAt(i);
            writer->AddNamespace(aliases.FindAlias(uri.c_str()), uri);
        }
        writer->SetDefaultNamespace(context.GetDefaultNamespaceURI());
    }
    writer->StartElement(m_localName, namespaceUri);
    for (const Attribute &attribute : m_attributes)
        writer->WriteAttribute(attribute.localName, attribute.namespaceUri, attribute.value, ItemType_string);
    if (isRoot && !context.GetInLineSchema().empty())
        writer->WriteInlineSchema(context.GetInLineSchema());
    writer->WriteElementValue(m_text, ItemType_string, false);
    for (const CSmartPtr<CTreeObject> &child : m_children)
        CXmlObjectBase::ToXml_Int(child, writer, false, child->m_namespaceUri.c_str(), context, false);
    writer->EndElement();
}

CXmlElement *CTreeObject::FromXml_Int(CXmlElement *, CXmlElement *, const CSerializationContext &, bool)
{
    throw CVxException("CTreeObject is written only");
}

} // namespace VxTest
