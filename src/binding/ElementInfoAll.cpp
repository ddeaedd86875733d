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

bool CElementInfoAllClsOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                           CXmlElement *parent, CXmlElement **cursor, const char *, XmlElementType)
{
    if (!MayStartAt(context, *cursor))
        return false;
    return ReadNewChild(context, object, parent, cursor, Create());
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

bool CElementInfoAllAbsClsOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                              CXmlElement *parent, CXmlElement **cursor, const char *,
                                              XmlElementType)
{
    if (!MayStartAt(context, *cursor))
        return false;
    // An element no class fits counts as not found: it stays for the driver to judge.
    const CSmartPtr<CXmlObjectBase> child = Create(*cursor);
    return child && ReadNewChild(context, object, parent, cursor, child);
}

CElementInfoAllAbsClsMnd::CElementInfoAllAbsClsMnd(const char *name, const char *namespaceUri, int propertyIndex,
                                                   XmlElementType elementType, SubstitutionCreateFunction create,
                                                   int unused)
    : TAllMnd<CElementInfoAllAbsClsOpt>(name, namespaceUri, propertyIndex, elementType, create), m_unused(unused)
{
}

bool CElementInfoAllCol::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                        CXmlElement *parent, CXmlElement **cursor, const char *, XmlElementType)
{
    *cursor = ReadItems(context, GetCollection(object), parent, *cursor);
    return false;
}

} // namespace VxXmlLib16Data
