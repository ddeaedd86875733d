#include "AttributeInfo.h"

#include "Exceptions.h"
#include "SerializationContext.h"
#include "Variant.h"
#include "XmlDocument.h"
#include "XmlGeneratedClass.h"
#include "XmlWriter.h"
#include "binding/EntryAccess.h"

namespace VxXmlLib16Data {

using namespace VxXmlLib16;

CAttributeInfo::CAttributeInfo(const char *name, const char *namespaceUri, int propertyIndex, bool optional,
                               const char *defaultValue)
    : m_name(name), m_namespaceUri(namespaceUri), m_propertyIndex(propertyIndex), m_optional(optional),
      m_defaultValue(defaultValue ? defaultValue : "")
{
}

CAttributeInfo::~CAttributeInfo() = default;

bool CAttributeInfo::IsNamespaceValid(const std::string &ns, const std::string &rule,
                                      const std::string &targetNamespace)
{
    return CXmlObjectBase::IsNamespaceValid(ns.c_str(), rule.c_str(), targetNamespace.c_str());
}

void CAttributeInfo::TestNamespace(const std::string &ns, const std::string &rule, const std::string &targetNamespace)
{
    CXmlObjectBase::TestNamespace(ns.c_str(), rule.c_str(), targetNamespace.c_str());
}

void CAttributeInfo::ReadProperty(const CXmlGeneratedClass *object, VxVariant &value) const
{
    // Reading a property does not change the object; the generated accessor is one
    // operation for both directions and therefore not const.
    InvokePropertyGet(const_cast<CXmlGeneratedClass *>(object), value);
}

void CAttributeInfo::InvokePropertyGet(CXmlGeneratedClass *object, VxVariant &value) const
{
    GetPropertyValue(object, m_propertyIndex, m_name, value);
}

void CAttributeInfo::InvokePropertySet(CXmlGeneratedClass *object, VxVariant &value,
                                       const CXmlAttribute &attribute) const
{
    try {
        object->AccessProperty(m_propertyIndex, false, value);
    } catch (const CVxException &e) {
        throw CVxValidationException(
            FormatString("Failed to set the property value [%s].", attribute.GetValue().c_str()), attribute.GetXPath(),
            e);
    }
}

bool CAttributeInfo::IsThisAttribute(const CSerializationContext &context, CXmlAttribute *attribute) const
{
    return IsNodeNamed(context, attribute, m_name, m_namespaceUri);
}

bool CAttributeInfo::ReadPresentValue(const CXmlGeneratedClass *object, VxVariant &value) const
{
    ReadProperty(object, value);
    return !m_optional || value.IsValid();
}

bool CAttributeInfo::IsSuppressedDefault(const CSerializationContext &context, const std::string &text) const
{
    return m_optional && !m_defaultValue.empty() && context.GetNoOptionalAttributeDefaultOutput() &&
           text == m_defaultValue;
}

void CAttributeInfo::ValidateRequired(bool found) const
{
    if (!m_optional && !found)
        throw CVxValidationException(FormatString("Failed to find the required Attribute [%s].", m_name.c_str()), "");
}

std::string CAttributeInfo::GetTargetNamespace(const CXmlObjectBase *object) { return object->GetTargetNamespace(); }

void CAttributeInfo::ToXml_Int(const CXmlObjectBase *object, CXmlWriter *writer, bool isRoot,
                               const char *targetNamespace, const CSerializationContext &context)
{
    object->ToXml_Int(writer, isRoot, targetNamespace, context, false);
}

CAttributeInfoPrimitive::CAttributeInfoPrimitive(const char *name, const char *namespaceUri, int propertyIndex,
                                                 bool optional, ItemType type, const char *formatOverride,
                                                 CWhitespaceUtils::WhitespaceRule rule,
                                                 const CPrimitiveRestrictions &restrictions, const char *defaultValue)
    : CAttributeInfo(name, namespaceUri, propertyIndex, optional, defaultValue), m_restrictions(restrictions),
      m_type(type), m_formatOverride(formatOverride ? formatOverride : ""), m_rule(rule)
{
}

void CAttributeInfoPrimitive::CheckRestriction(VxVariant value) const
{
    CheckPrimitiveRestriction(GetName().c_str(), value, m_type, m_restrictions);
}

void CAttributeInfoPrimitive::AttributeToXml(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                             CXmlWriter *writer) const
{
    VxVariant value;
    if (!ReadPresentValue(object, value))
        return;
    const std::string text = value.ToString(m_formatOverride.c_str());
    if (IsSuppressedDefault(context, text))
        return;
    // Facets run only for what is written, after the default test.
    CheckRestriction(value);
    writer->WriteAttribute(GetName(), GetNamespace(), text, value.GetTypeAsEnum());
}

bool CAttributeInfoPrimitive::AttributeFromXml(const CSerializationContext &, CXmlGeneratedClass *object,
                                               CXmlAttribute *attribute)
{
    if (attribute->GetLocalName() != GetName() || attribute->GetNamespaceURI() != GetNamespace())
        return false;
    VxVariant value;
    value.FromString(attribute->GetValue(), m_type, m_rule);
    InvokePropertySet(object, value, *attribute);
    return true;
}

void CAttributeInfoPrimitive::Validate(const CSerializationContext &, bool found) const { ValidateRequired(found); }

CAttributeInfoEnum::CAttributeInfoEnum(const char *name, const char *namespaceUri, int propertyIndex, bool optional,
                                       const char *(*toString)(int), int (*fromString)(const char *),
                                       const char *defaultValue)
    : CAttributeInfo(name, namespaceUri, propertyIndex, optional, defaultValue), m_fromString(fromString),
      m_toString(toString)
{
}

void CAttributeInfoEnum::AttributeToXml(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                        CXmlWriter *writer) const
{
    VxVariant value;
    if (!ReadPresentValue(object, value))
        return;
    const std::string text = m_toString(value.GetI4());
    if (IsSuppressedDefault(context, text))
        return;
    writer->WriteAttribute(GetName(), GetNamespace(), text, ItemType_string);
}

bool CAttributeInfoEnum::AttributeFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                          CXmlAttribute *attribute)
{
    if (!IsThisAttribute(context, attribute))
        return false;
    VxVariant value;
    value.SetI4(m_fromString(attribute->GetValue().c_str()));
    InvokePropertySet(object, value, *attribute);
    return true;
}

void CAttributeInfoEnum::Validate(const CSerializationContext &, bool found) const { ValidateRequired(found); }

} // namespace VxXmlLib16Data
