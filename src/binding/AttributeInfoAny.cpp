// anyAttribute: a CAttributeCol that takes every attribute whose namespace the rule allows.

#include "AttributeInfo.h"

#include "Exceptions.h"
#include "Variant.h"
#include "Wildcards.h"
#include "XmlDocument.h"
#include "XmlGeneratedClass.h"

namespace VxXmlLib16Data {

using namespace VxXmlLib16;

CAttributeInfoAny::CAttributeInfoAny(const char *name, const char *namespaceUri, int propertyIndex, bool optional,
                                     const char *namespaceRule, const char *targetNamespace,
                                     const char *defaultValue)
    : CAttributeInfo(name, namespaceUri, propertyIndex, optional, defaultValue), m_namespaceRule(namespaceRule),
      m_targetNamespace(targetNamespace)
{
}

void CAttributeInfoAny::AttributeToXml(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                       CXmlWriter *writer) const
{
    VxVariant value;
    ReadProperty(object, value);
    const std::string targetNamespace = GetTargetNamespace(object);
    const CSmartPtr<CXmlCollectionBase> collection = value.GetXmlCollection();
    // The collection writes its members as attributes.
    if (collection)
        ToXml_Int(collection->GetBase(), writer, false, targetNamespace.c_str(), context);
}

bool CAttributeInfoAny::AttributeFromXml(const CSerializationContext &, CXmlGeneratedClass *object,
                                         CXmlAttribute *attribute)
{
    if (!IsNamespaceValid(attribute->GetNamespaceURI(), m_namespaceRule, m_targetNamespace))
        return false;
    VxVariant value;
    InvokePropertyGet(object, value);
    const CSmartPtr<CXmlCollectionBase> collection = value.GetXmlCollection();
    CAttributeCol *const attributes = dynamic_cast<CAttributeCol *>(static_cast<CXmlCollectionBase *>(collection));
    if (!attributes)
        throw CVxException("Serialization Data Error : The collection should be a CAttributeCol, it was not!");
    attributes->Add(attribute->GetLocalName().c_str(), attribute->GetValue().c_str(),
                    attribute->GetNamespaceURI().c_str());
    return true;
}

void CAttributeInfoAny::Validate(const CSerializationContext &, bool) const {}

} // namespace VxXmlLib16Data
