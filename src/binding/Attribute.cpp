#include "Wildcards.h"

#include "XmlDocument.h"
#include "XmlWriter.h"
#include "binding/NullText.h"

namespace VxXmlLib16 {

namespace {

// The collection's own namespace: the given one, or with none the first token of a rule
// that starts with a URI (at least two characters, no '#' among the first two).
std::string CollectionNamespace(const char *namespaceUri, const std::string &rule)
{
    std::string own = TextOrEmpty(namespaceUri);
    if (!own.empty())
        return own;
    const std::string first = rule.substr(0, rule.find(' '));
    if (first.size() >= 2 && first[0] != '#' && first[1] != '#')
        return first;
    return own;
}

} // namespace

CAttribute::CAttribute(const char *name, const char *value, const char *namespaceUri)
    : CInstanceMonitor("CAttribute"), m_name(TextOrEmpty(name)), m_value(TextOrEmpty(value)),
      m_namespace(TextOrEmpty(namespaceUri))
{
}

CAttribute::~CAttribute() = default;

void CAttribute::SetName(const char *name) { m_name = TextOrEmpty(name); }
void CAttribute::SetValue(const char *value) { m_value = TextOrEmpty(value); }
void CAttribute::SetNamespace(const char *namespaceUri) { m_namespace = TextOrEmpty(namespaceUri); }

CSmartPtr<CAttribute> CAttribute::Clone() const
{
    return new CAttribute(m_name.c_str(), m_value.c_str(), m_namespace.c_str());
}

void CAttribute::ToXml_Int(CXmlWriter *writer, bool, const char *, const CSerializationContext &, bool) const
{
    writer->WriteAttribute(m_name, m_namespace, m_value, ItemType_string);
}

CXmlElement *CAttribute::FromXml_Int(CXmlElement *, CXmlElement *, const CSerializationContext &, bool)
{
    throw CVxException("This should be done by the collection");
}

CAttributeCol::CAttributeCol(const char *namespaceUri, const char *rule, const char *targetNamespace)
    : CWildcardCol(CollectionNamespace(namespaceUri, TextOrEmpty(rule)).c_str(), TextOrEmpty(rule),
                   TextOrEmpty(targetNamespace)),
      CInstanceMonitor("CAttributeCol")
{
}

CAttributeCol::~CAttributeCol() = default;

CSmartPtr<CAttribute> CAttributeCol::Add(CAttribute *attribute) { return Append(Tested(attribute)); }

CSmartPtr<CAttribute> CAttributeCol::Add(const char *name) { return Add(name, ""); }

CSmartPtr<CAttribute> CAttributeCol::Add(const char *name, const char *value)
{
    return Add(name, value, GetNamespace().c_str());
}

CSmartPtr<CAttribute> CAttributeCol::Add(const char *name, const char *value, const char *namespaceUri)
{
    TestNamespace(TextOrEmpty(namespaceUri));
    return Append(new CAttribute(name, value, namespaceUri));
}

CSmartPtr<CAttributeCol> CAttributeCol::Clone() const
{
    CSmartPtr<CAttributeCol> copy = new CAttributeCol(GetNamespace().c_str(), GetRule().c_str(), GetTarget().c_str());
    for (CAttribute *attribute : *this)
        copy->AppendItem(attribute->Clone());
    return copy;
}

void CAttributeCol::ToXml_Int(CXmlWriter *writer, bool, const char *namespaceUri,
                              const CSerializationContext &context, bool) const
{
    for (const CAttribute *attribute : *this)
        CXmlObjectBase::ToXml_Int(attribute, writer, false, namespaceUri, context, false);
}

CXmlElement *CAttributeCol::FromXml_Int(CXmlElement *element, CXmlElement *cursor, const CSerializationContext &,
                                        bool)
{
    if (!element)
        return cursor;
    for (const CXmlAttribute *attribute : element->GetAttributes()) {
        if (!IsNamespaceValid(attribute->GetNamespaceURI().c_str(), GetRule().c_str(), GetTarget().c_str()))
            throw CVxInvalidNamespaceException(
                FormatString("Invalid Attribute [%s]. The attributes namespace is Inappropriate.",
                             attribute->GetLocalName().c_str()),
                element->GetXPath());
        Add(attribute->GetLocalName().c_str(), attribute->GetValue().c_str(), attribute->GetNamespaceURI().c_str());
    }
    return cursor;
}

} // namespace VxXmlLib16
