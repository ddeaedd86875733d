// Reading the alternatives of a choice. True means this alternative was taken. The
// object alternatives set the property before the child is read, so that the generated
// class records its selection; an alternative that takes nothing sets it back to null.

#include "ElementInfo.h"

#include "SerializationContext.h"
#include "XmlCollectionBase.h"
#include "XmlDocument.h"
#include "XmlGeneratedClass.h"

namespace VxXmlLib16Data {

using namespace VxXmlLib16;

bool CElementInfoChoiceClsOpt::ElementToXml(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                            CXmlWriter *writer) const
{
    return ElementToXmlCls(context, object, writer, true);
}

bool CElementInfoChoiceClsOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                              CXmlElement *parent, CXmlElement **cursor, const char *,
                                              XmlElementType)
{
    CXmlElement *const element = *cursor;
    if (!IsPseudo()) {
        if (!IsThisElement(context, element))
            return false;
        const CSmartPtr<CXmlObjectBase> child = Create();
        SetChild(object, child, *element);
        Descend(context, child, cursor, true);
        return true;
    }
    if (!element)
        return false;
    const CSmartPtr<CXmlObjectBase> child = Create();
    SetChild(object, child, *element);
    CXmlElement *const next = ReadInline(context, child, parent, element);
    if (next == element) {
        SetChild(object, nullptr, *element);
        return false;
    }
    *cursor = next;
    return true;
}

bool CElementInfoChoiceAbsClsOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                                 CXmlElement *, CXmlElement **cursor, const char *, XmlElementType)
{
    // The element type is not consulted: a substituted alternative always has an element.
    CXmlElement *const element = *cursor;
    if (!IsThisElement(context, element))
        return false;
    const CSmartPtr<CXmlObjectBase> child = Create(element);
    SetChild(object, child, *element);
    if (!child)
        return false;
    Descend(context, child, cursor);
    return true;
}

bool CElementInfoChoiceCol::ElementToXml(const CSerializationContext &context, const CXmlGeneratedClass *object,
                                         CXmlWriter *writer) const
{
    return ElementToXmlCol(context, object, writer);
}

bool CElementInfoChoiceCol::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                           CXmlElement *parent, CXmlElement **cursor, const char *,
                                           XmlElementType ownerType)
{
    const CSmartPtr<CXmlCollectionBase> collection = GetCollection(object);
    CXmlElement *const next = ReadItems(context, collection, parent, *cursor);
    if (next == *cursor)
        return false;
    if (ownerType == XmlElementType_Element) {
        *cursor = next;
        collection->ValidateCount(context);
        return true;
    }
    if (!collection->IsValidCount(context))
        return false;
    *cursor = next;
    return true;
}

} // namespace VxXmlLib16Data
