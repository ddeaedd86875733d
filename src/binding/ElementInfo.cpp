// What every element entry shares: property access, the single-child writers and
// readers, and the kinds' writing.

#include "ElementInfo.h"

#include <strings.h>

#include <cstring>

#include "Exceptions.h"
#include "SerializationContext.h"
#include "Variant.h"
#include "XmlCollectionBase.h"
#include "XmlDocument.h"
#include "XmlGeneratedClass.h"
#include "XmlWriter.h"
#include "binding/EntryAccess.h"

namespace VxXmlLib16Data {

using namespace VxXmlLib16;

CParentElementInfo::CParentElementInfo(XmlElementGroupType groupType, XmlElementType elementType,
                                       const char *elementName, const char *elementNamespace,
                                       bool failIfAttributeUnknown, bool hasBaseClasses,
                                       int primitiveValuePropertyIndex, ItemType primitiveDataType,
                                       const char *primitiveFormatOverride, bool outputPrimitiveClassAsTextProperty)
    : m_groupType(groupType), m_elementType(elementType), m_elementName(elementName),
      m_elementNamespace(elementNamespace), m_failIfAttributeUnknown(failIfAttributeUnknown),
      m_hasBaseClasses(hasBaseClasses), m_primitiveValuePropertyIndex(primitiveValuePropertyIndex),
      m_primitiveDataType(primitiveDataType),
      m_primitiveFormatOverride(primitiveFormatOverride ? primitiveFormatOverride : ""),
      m_outputPrimitiveClassAsTextProperty(outputPrimitiveClassAsTextProperty)
{
}

CParentElementInfo::~CParentElementInfo() = default;

CElementInfo::CElementInfo(const char *name, const char *namespaceUri, int propertyIndex, bool nillable,
                           ItemType type, const char *formatOverride, CWhitespaceUtils::WhitespaceRule rule,
                           const CPrimitiveRestrictions &restrictions, const char *defaultValue)
    : m_name(name), m_namespaceUri(namespaceUri), m_propertyIndex(propertyIndex), m_restrictions(restrictions),
      m_type(type), m_formatOverride(formatOverride ? formatOverride : ""), m_rule(rule),
      m_defaultValue(defaultValue ? defaultValue : ""), m_nillable(nillable), m_isPrimitive(true)
{
}

CElementInfo::CElementInfo(const char *name, const char *namespaceUri, int propertyIndex, bool nillable,
                           EnumToString toString, EnumFromString fromString, const char *defaultValue)
    : m_name(name), m_namespaceUri(namespaceUri), m_propertyIndex(propertyIndex),
      m_defaultValue(defaultValue ? defaultValue : ""), m_nillable(nillable), m_toString(toString),
      m_fromString(fromString)
{
}

CElementInfo::CElementInfo(const char *name, const char *namespaceUri, int propertyIndex)
    : m_name(name), m_namespaceUri(namespaceUri), m_propertyIndex(propertyIndex)
{
}

CElementInfo::~CElementInfo() = default;

void CElementInfo::CheckRestriction(const VxVariant &value) const
{
    if (!m_isPrimitive)
        throw CVxException("Cannot CheckRestriction for type: " + value.GetType());
    CheckPrimitiveRestriction(m_name.c_str(), value, m_type, m_restrictions);
}

bool CElementInfo::Validate(const CSerializationContext &, const CXmlGeneratedClass *, bool, bool) const
{
    throw CVxException("Not implemented, should never be called");
}

void CElementInfo::PseudoChildAttributeToXml(const CSerializationContext &, const CXmlGeneratedClass *,
                                             CXmlWriter *) const
{
}

bool CElementInfo::IsThisElement(const CSerializationContext &context, const CXmlElement *element) const
{
    return IsNodeNamed(context, element, m_name, m_namespaceUri);
}

void CElementInfo::ReadProperty(const CXmlGeneratedClass *object, VxVariant &value) const
{
    // The generated accessor serves both directions and is therefore not const; a read
    // leaves the object as it is.
    InvokePropertyGet(const_cast<CXmlGeneratedClass *>(object), value);
}

void CElementInfo::InvokePropertyGet(CXmlGeneratedClass *object, VxVariant &value) const
{
    GetPropertyValue(object, m_propertyIndex, m_name, value);
}

void CElementInfo::InvokePropertySet(CXmlGeneratedClass *object, VxVariant &value, const CXmlElement &element) const
{
    try {
        object->AccessProperty(m_propertyIndex, false, value);
    } catch (const CVxException &e) {
        throw CVxValidationException("Failed to set the property value.", element.GetXPath(), e);
    }
}

CSmartPtr<CXmlObjectBase> CElementInfo::GetChild(CXmlGeneratedClass *object) const
{
    VxVariant value;
    InvokePropertyGet(object, value);
    return value.GetXmlObject();
}

CSmartPtr<CXmlCollectionBase> CElementInfo::GetCollection(CXmlGeneratedClass *object) const
{
    VxVariant value;
    InvokePropertyGet(object, value);
    CSmartPtr<CXmlCollectionBase> collection = value.GetXmlCollection();
    if (!collection)
        ThrowMandatoryNull();
    return collection;
}

void CElementInfo::SetChild(CXmlGeneratedClass *object, CXmlObjectBase *child, const CXmlElement &element) const
{
    VxVariant value;
    value.SetXmlObject(child);
    InvokePropertySet(object, value, element);
}

template <class TextOf>
bool CElementInfo::WriteValueElement(const CXmlGeneratedClass *object, CXmlWriter *writer, TextOf textOf) const
{
    VxVariant value;
    ReadProperty(object, value);
    // Nil before validity: a nil variant of any type is an empty nil element.
    if (value.IsNil()) {
        writer->StartElement(m_name, m_namespaceUri);
        writer->WriteNilAttribute();
        writer->EndElement();
        return true;
    }
    if (!value.IsValid())
        return false;
    const std::string text = textOf(value);
    // A value equal to the default passes no facet; the writer decides whether it shows.
    const bool isDefault = !m_defaultValue.empty() && text == m_defaultValue;
    if (!isDefault && m_isPrimitive)
        CheckRestriction(value);
    writer->StartElement(m_name, m_namespaceUri);
    writer->WriteElementValue(text, m_isPrimitive ? value.GetTypeAsEnum() : ItemType_string, isDefault);
    writer->EndElement();
    return true;
}

bool CElementInfo::ElementToXmlPrim(const CSerializationContext &, const CXmlGeneratedClass *object,
                                    CXmlWriter *writer) const
{
    return WriteValueElement(object, writer,
                             [this](const VxVariant &value) { return value.ToString(m_formatOverride.c_str()); });
}

bool CElementInfo::ElementToXmlEnum(const CSerializationContext &, const CXmlGeneratedClass *object,
                                    CXmlWriter *writer, EnumToString toString) const
{
    return WriteValueElement(object, writer,
                             [toString](const VxVariant &value) { return std::string(toString(value.GetI4())); });
}

bool CElementInfo::ElementToXmlCls(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                   CXmlWriter *writer, bool isChoiceMember) const
{
    VxVariant value;
    ReadProperty(object, value);
    const CSmartPtr<CXmlObjectBase> child = value.GetXmlObject();
    if (!child)
        return false;
    // The child writes under its own element name, not the entry's.
    static_cast<const CXmlObjectBase *>(child)->ToXml_Int(writer, false, m_namespaceUri.c_str(), context,
                                                         isChoiceMember);
    return true;
}

bool CElementInfo::ElementToXmlCol(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                   CXmlWriter *writer) const
{
    VxVariant value;
    ReadProperty(object, value);
    const CSmartPtr<CXmlCollectionBase> collection = value.GetXmlCollection();
    if (!collection || collection->GetCount() < 1)
        return false;
    writer->SetArrayState(1);
    const CXmlObjectBase *items = collection->GetBase();
    items->ToXml_Int(writer, false, m_namespaceUri.c_str(), context, false);
    writer->SetArrayState(3);
    return true;
}

bool CElementInfo::ElementToXmlValue(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                     CXmlWriter *writer) const
{
    return m_isPrimitive ? ElementToXmlPrim(context, object, writer)
                         : ElementToXmlEnum(context, object, writer, m_toString);
}

bool CElementInfo::ReadNilAttribute(const CSerializationContext &context, const CXmlElement &element,
                                    VxVariant &value) const
{
    bool nil = false;
    for (CXmlAttribute *attribute : element.GetAttributes()) {
        if (!attribute->IsNilAttribute()) {
            if (context.GetIgnoreUnknownAttributes())
                continue;
            throw CVxValidationException("Unexpected Attribute found.", attribute->GetXPath());
        }
        const char *text = attribute->GetValue().c_str();
        if (strcasecmp(text, "false") == 0 || strcmp(text, "0") == 0) {
            nil = false;
            continue;
        }
        nil = true;
        if (!m_nillable)
            throw CVxValidationException("Invalid use of 'nil' attribute in non-nillable element.",
                                         element.GetXPath());
        if (strcasecmp(text, "true") != 0 && strcmp(text, "1") != 0)
            throw CVxValidationException(FormatString("Unexpected Value [%s] for 'nil' Attribute found.", text),
                                         attribute->GetXPath());
        value.SetNil();
    }
    return nil;
}

template <class Convert>
void CElementInfo::ReadValueElement(const CSerializationContext &context, CXmlGeneratedClass *object,
                                    CXmlElement **cursor, Convert convert) const
{
    CXmlElement &element = **cursor;
    VxVariant value;
    // A nil element leaves the property as it was.
    if (!ReadNilAttribute(context, element, value)) {
        const std::string &text =
            element.GetText().empty() && !m_defaultValue.empty() ? m_defaultValue : element.GetText();
        convert(text, value);
        InvokePropertySet(object, value, element);
    }
    *cursor = element.GetNextSiblingElement();
}

void CElementInfo::ElementFromXmlPrim(const CSerializationContext &context, CXmlGeneratedClass *object,
                                      CXmlElement **cursor) const
{
    ReadValueElement(context, object, cursor,
                     [this](const std::string &text, VxVariant &value) { value.FromString(text, m_type, m_rule); });
}

void CElementInfo::ElementFromXmlEnum(const CSerializationContext &context, CXmlGeneratedClass *object,
                                      CXmlElement **cursor) const
{
    // The text reaches the generated function as it stands.
    ReadValueElement(context, object, cursor,
                     [this](const std::string &text, VxVariant &value) { value.SetI4(m_fromString(text.c_str())); });
}

void CElementInfo::ElementFromXmlValue(const CSerializationContext &context, CXmlGeneratedClass *object,
                                       CXmlElement **cursor) const
{
    if (m_isPrimitive)
        ElementFromXmlPrim(context, object, cursor);
    else
        ElementFromXmlEnum(context, object, cursor);
}

void CElementInfo::AttributesToXml_Int(const CXmlObjectBase *object, CXmlWriter *writer,
                                       const CSerializationContext &context) const
{
    if (object)
        object->AttributesToXml_Int(writer, context);
}

CXmlElement *CElementInfo::FromXml_Int(CXmlObjectBase *object, CXmlElement *parent, CXmlElement *cursor,
                                       const CSerializationContext &context, bool isChoiceMember) const
{
    return object->FromXml_Int(parent, cursor, context, isChoiceMember);
}

void CElementInfo::Descend(const CSerializationContext &context, CXmlObjectBase *child, CXmlElement **cursor,
                           bool isChoiceMember) const
{
    CXmlElement *element = *cursor;
    FromXml_Int(child, element, element->GetFirstElement(), context, isChoiceMember);
    *cursor = element->GetNextSiblingElement();
}

CXmlElement *CElementInfo::ReadInline(const CSerializationContext &context, CXmlObjectBase *child,
                                      CXmlElement *parent, CXmlElement *cursor) const
{
    return FromXml_Int(child, parent, cursor, context, false);
}

void CElementInfo::ThrowMandatoryNull() const
{
    throw CVxInvalidParamException(FormatString("The Property [%s] is mandatory, it may not be NULL", m_name.c_str()));
}

void CElementInfo::ThrowRequiredChild(const CXmlElement *parent) const
{
    throw CVxValidationException(FormatString("Failed to find the required child element [%s].", m_name.c_str()),
                                 parent->GetXPath());
}

bool CElementInfo::ValidateMandatory(bool found, bool ownerIsElement) const
{
    if (!found && ownerIsElement)
        throw CVxValidationException(FormatString("Failed to find the mandatory element [%s].", m_name.c_str()), "");
    return found;
}

std::string CElementInfo::GetAnyDefaultNamespace(const char *rule, const char *ownerNamespace,
                                                 const char *declaredNamespace)
{
    const std::string text = rule;
    if (text == "##any")
        return ownerNamespace;
    if (text == "##other")
        return *ownerNamespace ? std::string() : std::string("DefaultNamespace");
    if (text == "##local")
        return std::string();
    if (text == "##targetNamespace")
        return declaredNamespace;
    const std::size_t blank = text.find(' ');
    if (blank != std::string::npos && text.size() >= 3 && text.compare(0, 2, "##") == 0)
        return GetAnyDefaultNamespace(text.substr(0, blank).c_str(), ownerNamespace, declaredNamespace);
    return std::string();
}

bool CValueElementInfo::ElementToXml(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                     CXmlWriter *writer) const
{
    return ElementToXmlValue(context, object, writer);
}

CObjectElementInfo::CObjectElementInfo(const char *name, const char *namespaceUri, int propertyIndex,
                                       XmlElementType elementType)
    : CElementInfo(name, namespaceUri, propertyIndex), m_elementType(elementType)
{
}

bool CObjectElementInfo::ElementToXml(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                      CXmlWriter *writer) const
{
    return ElementToXmlCls(context, object, writer, false);
}

void CObjectElementInfo::PseudoChildAttributeToXml(const CSerializationContext &context,
                                                   const CXmlGeneratedClass *object, CXmlWriter *writer) const
{
    if (IsPseudo())
        AttributesToXml_Int(GetChild(const_cast<CXmlGeneratedClass *>(object)), writer, context);
}

bool CObjectElementInfo::ReadNewChild(const CSerializationContext &context, CXmlGeneratedClass *object,
                                      CXmlElement *parent, CXmlElement **cursor, CXmlObjectBase *child) const
{
    CXmlElement *const element = *cursor;
    if (IsPseudo()) {
        CXmlElement *const next = ReadInline(context, child, parent, element);
        if (next == element)
            return false;
        *cursor = next;
    } else {
        Descend(context, child, cursor);
    }
    SetChild(object, child, *element);
    return true;
}

CClsElementInfo::CClsElementInfo(const char *name, const char *namespaceUri, int propertyIndex,
                                 XmlElementType elementType, ClassCreateFunction create, int classId)
    : CObjectElementInfo(name, namespaceUri, propertyIndex, elementType), m_create(create), m_classId(classId)
{
}

CSmartPtr<CXmlObjectBase> CClsElementInfo::Create() const { return m_create(m_classId, GetElementName().c_str()); }

CClsMndElementInfo::CClsMndElementInfo(const char *name, const char *namespaceUri, int propertyIndex,
                                       XmlElementType elementType, ClassCreateFunction create, int classId,
                                       bool hasMandatoryContent)
    : TMandatory<CClsElementInfo>(name, namespaceUri, propertyIndex, elementType, create, classId),
      m_hasMandatoryContent(hasMandatoryContent)
{
}

CAbsClsElementInfo::CAbsClsElementInfo(const char *name, const char *namespaceUri, int propertyIndex,
                                       XmlElementType elementType, SubstitutionCreateFunction create)
    : CObjectElementInfo(name, namespaceUri, propertyIndex, elementType), m_create(create)
{
}

CSmartPtr<CXmlObjectBase> CAbsClsElementInfo::Create(CXmlElement *element) const { return m_create(element); }

bool CCollectionElementInfo::ElementToXml(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                          CXmlWriter *writer) const
{
    if (!context.GetIgnoreInvalidCollectionCounts()) {
        GetCollection(const_cast<CXmlGeneratedClass *>(object))->ValidateCount(context);
    }
    return ElementToXmlCol(context, object, writer);
}

CXmlElement *CCollectionElementInfo::ReadItems(const CSerializationContext &context, CXmlCollectionBase *collection,
                                               CXmlElement *parent, CXmlElement *cursor) const
{
    return FromXml_Int(collection->GetBase(), parent, cursor, context, false);
}

CElementInfoAllEnumCol::CElementInfoAllEnumCol(const char *name, const char *namespaceUri, int propertyIndex)
    : CElementInfo(name, namespaceUri, propertyIndex)
{
}

} // namespace VxXmlLib16Data
