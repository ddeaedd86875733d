// xs:any children, single and repeating, held as CElement objects.

#include "ElementInfo.h"

#include "Exceptions.h"
#include "SerializationContext.h"
#include "Wildcards.h"
#include "XmlDocument.h"
#include "XmlGeneratedClass.h"

namespace VxXmlLib16Data {

using namespace VxXmlLib16;

namespace {
constexpr const char *AnyElementName = "AnyElement";
}

CUntpdElementInfo::CUntpdElementInfo(const char *name, const char *namespaceUri, int propertyIndex,
                                     const char *namespaceRule, const char *targetNamespace)
    : CElementInfo(name, namespaceUri, propertyIndex), m_namespaceRule(namespaceRule),
      m_targetNamespace(targetNamespace)
{
}

bool CUntpdElementInfo::ElementToXml(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                     CXmlWriter *writer) const
{
    return ElementToXmlCls(context, object, writer, false);
}

CSmartPtr<CXmlObjectBase> CUntpdElementInfo::CreateWildcard(const char *targetNamespace) const
{
    const std::string start =
        GetAnyDefaultNamespace(m_namespaceRule.c_str(), targetNamespace, m_targetNamespace.c_str());
    return new CElement(GetElementName().c_str(), start.c_str(), m_namespaceRule.c_str(), m_targetNamespace.c_str());
}

CXmlElement *CUntpdElementInfo::ReadWildcard(const CSerializationContext &context, CXmlObjectBase *child,
                                             CXmlElement *parent, CXmlElement *cursor) const
{
    // The CElement itself judges the namespace.
    if (GetElementName() != AnyElementName && GetElementName() != cursor->GetLocalName())
        return cursor;
    return ReadInline(context, child, parent, cursor);
}

bool CUntpdElementInfo::ReadNewWildcard(const CSerializationContext &context, CXmlGeneratedClass *object,
                                        CXmlElement *parent, CXmlElement **cursor, const char *targetNamespace) const
{
    CXmlElement *const element = *cursor;
    const CSmartPtr<CXmlObjectBase> child = CreateWildcard(targetNamespace);
    CXmlElement *const next = ReadWildcard(context, child, parent, element);
    if (next == element)
        return false;
    SetChild(object, child, *element);
    *cursor = next;
    return true;
}

bool CSeqUntpdOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                  CXmlElement *parent, CXmlElement **cursor, const char *targetNamespace,
                                  XmlElementType)
{
    if (*cursor)
        ReadNewWildcard(context, object, parent, cursor, targetNamespace);
    return true;
}

bool CSeqUntpdMnd::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                  CXmlElement *parent, CXmlElement **cursor, const char *, XmlElementType ownerType)
{
    if (!*cursor)
        ThrowRequiredChild(parent);
    // The generated class made the wildcard; it is read in place.
    CXmlElement *const next = ReadWildcard(context, GetChild(object), parent, *cursor);
    if (next == *cursor) {
        if (ownerType != XmlElementType_Element)
            return false;
        throw CVxValidationException(
            FormatString("Failed to find the required element from namespace [%s].", GetElementNamespace().c_str()),
            parent->GetXPath());
    }
    *cursor = next;
    return true;
}

bool CMatchUntpdOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                    CXmlElement *parent, CXmlElement **cursor, const char *targetNamespace,
                                    XmlElementType)
{
    return *cursor && ReadNewWildcard(context, object, parent, cursor, targetNamespace);
}

bool CAllUntpdMnd::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                  CXmlElement *parent, CXmlElement **cursor, const char *, XmlElementType)
{
    if (!*cursor)
        return false;
    CXmlElement *const next = ReadWildcard(context, GetChild(object), parent, *cursor);
    if (next == *cursor)
        return false;
    *cursor = next;
    return true;
}

bool CChoiceUntpdOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                     CXmlElement *parent, CXmlElement **cursor, const char *targetNamespace,
                                     XmlElementType ownerType)
{
    CXmlElement *const element = *cursor;
    if (!element)
        return false;
    if (CMatchUntpdOpt::ElementFromXml(context, object, parent, cursor, targetNamespace, ownerType))
        return true;
    SetChild(object, nullptr, *element);
    return false;
}

CXmlElement *CCollectionElementInfo::ReadWildcardItems(const CSerializationContext &context,
                                                       CXmlCollectionBase *collection, CXmlElement *parent,
                                                       CXmlElement *cursor) const
{
    if (GetElementName() == AnyElementName)
        return CCollectionElementInfo::ReadItems(context, collection, parent, cursor);
    CElementCol *const elements = dynamic_cast<CElementCol *>(collection);
    if (!elements)
        throw CVxException("Serialization Data Error : The collection should be a CElementCol, it was not!");
    const std::string namespaceUri = cursor ? cursor->GetNamespaceURI() : std::string();
    return elements->FromXmlLockElementName_Int(GetElementName(), namespaceUri, parent, cursor, context);
}

} // namespace VxXmlLib16Data
