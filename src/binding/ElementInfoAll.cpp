// Reading the children of an all group. The result is the entry's found mark; Validate
// then judges the marks once the driver's passes are over.

#include "ElementInfo.h"

#include "SerializationContext.h"
#include "XmlCollectionBase.h"
#include "XmlDocument.h"
#include "XmlGeneratedClass.h"

namespace VxXmlLib16Data {

using namespace VxXmlLib16;

bool CMatchValue::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object, CXmlElement *,
                                 CXmlElement **cursor, const char *, XmlElementType)
{
    if (!IsThisElement(context, *cursor))
        return false;
    ElementFromXmlValue(context, object, cursor);
    return true;
}

bool CAllValueOpt::Validate(const CSerializationContext &, const CXmlGeneratedClass *, bool, bool) const
{
    return true;
}

bool CAllValueMnd::Validate(const CSerializationContext &, const CXmlGeneratedClass *, bool found,
                            bool ownerIsElement) const
{
    return ValidateMandatory(found, ownerIsElement);
}

CElementInfoAllClsOpt::CElementInfoAllClsOpt(const char *name, const char *namespaceUri, int propertyIndex,
                                             XmlElementType elementType, ClassCreateFunction create, int classId)
    : CClsElementInfo(name, namespaceUri, propertyIndex, elementType, create, classId)
{
}

bool CElementInfoAllClsOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                           CXmlElement *parent, CXmlElement **cursor, const char *, XmlElementType)
{
    CXmlElement *const element = *cursor;
    if (!IsPseudo()) {
        if (!IsThisElement(context, element))
            return false;
        const CSmartPtr<CXmlObjectBase> child = Create();
        Descend(context, child, cursor);
        SetChild(object, child, *element);
        return true;
    }
    if (!element)
        return false;
    const CSmartPtr<CXmlObjectBase> child = Create();
    *cursor = ReadInline(context, child, parent, element);
    if (*cursor == element)
        return false;
    SetChild(object, child, *element);
    return true;
}

bool CElementInfoAllClsOpt::Validate(const CSerializationContext &, const CXmlGeneratedClass *, bool, bool) const
{
    return true;
}

CElementInfoAllClsMnd::CElementInfoAllClsMnd(const char *name, const char *namespaceUri, int propertyIndex,
                                             XmlElementType elementType, ClassCreateFunction create, int classId,
                                             bool hasMandatoryContent)
    : CClsMndElementInfo(name, namespaceUri, propertyIndex, elementType, create, classId, hasMandatoryContent)
{
}

bool CElementInfoAllClsMnd::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                           CXmlElement *parent, CXmlElement **cursor, const char *, XmlElementType)
{
    CXmlElement *const element = *cursor;
    if (!IsPseudo()) {
        if (!IsThisElement(context, element))
            return false;
        Descend(context, GetChild(object), cursor);
        return true;
    }
    *cursor = ReadInline(context, GetChild(object), parent, element);
    return *cursor != element;
}

bool CElementInfoAllClsMnd::Validate(const CSerializationContext &, const CXmlGeneratedClass *, bool found,
                                     bool ownerIsElement) const
{
    if (!IsPseudo() && !HasMandatoryContent())
        return true;
    return ValidateMandatory(found, ownerIsElement);
}

CElementInfoAllAbsClsOpt::CElementInfoAllAbsClsOpt(const char *name, const char *namespaceUri, int propertyIndex,
                                                   XmlElementType elementType, SubstitutionCreateFunction create)
    : CAbsClsElementInfo(name, namespaceUri, propertyIndex, elementType, create)
{
}

bool CElementInfoAllAbsClsOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                              CXmlElement *parent, CXmlElement **cursor, const char *,
                                              XmlElementType)
{
    CXmlElement *const element = *cursor;
    // An element no class fits counts as not found: it stays for the driver to judge.
    if (IsPseudo() ? !element : !IsThisElement(context, element))
        return false;
    const CSmartPtr<CXmlObjectBase> child = Create(element);
    if (!child)
        return false;
    if (!IsPseudo()) {
        Descend(context, child, cursor);
    } else {
        CXmlElement *const next = ReadInline(context, child, parent, element);
        if (next == element)
            return false;
        *cursor = next;
    }
    SetChild(object, child, *element);
    return true;
}

bool CElementInfoAllAbsClsOpt::Validate(const CSerializationContext &, const CXmlGeneratedClass *, bool, bool) const
{
    return true;
}

CElementInfoAllAbsClsMnd::CElementInfoAllAbsClsMnd(const char *name, const char *namespaceUri, int propertyIndex,
                                                   XmlElementType elementType, SubstitutionCreateFunction create,
                                                   int unused)
    : TMandatory<CElementInfoAllAbsClsOpt>(name, namespaceUri, propertyIndex, elementType, create), m_unused(unused)
{
}

bool CElementInfoAllAbsClsMnd::Validate(const CSerializationContext &, const CXmlGeneratedClass *, bool found,
                                        bool ownerIsElement) const
{
    return ValidateMandatory(found, ownerIsElement);
}

CElementInfoAllCol::CElementInfoAllCol(const char *name, const char *namespaceUri, int propertyIndex)
    : CCollectionElementInfo(name, namespaceUri, propertyIndex)
{
}

bool CElementInfoAllCol::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                        CXmlElement *parent, CXmlElement **cursor, const char *, XmlElementType)
{
    *cursor = ReadItems(context, GetCollection(object), parent, *cursor);
    return false;
}

} // namespace VxXmlLib16Data
