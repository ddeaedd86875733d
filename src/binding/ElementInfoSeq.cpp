// Reading the children of a sequence. True means: go on to the next entry, whether or
// not something was consumed.

#include "ElementInfo.h"

#include "Exceptions.h"
#include "SerializationContext.h"
#include "Variant.h"
#include "XmlCollectionBase.h"
#include "XmlDocument.h"
#include "XmlGeneratedClass.h"

namespace VxXmlLib16Data {

using namespace VxXmlLib16;

template <class Hit>
bool CElementInfo::MandatorySearch(const CSerializationContext &context, CXmlElement *parent, CXmlElement **cursor,
                                   XmlElementType ownerType, bool skipInPseudo, Hit hit) const
{
    const bool ownerIsElement = ownerType == XmlElementType_Element;
    for (;;) {
        if (IsThisElement(context, *cursor)) {
            hit();
            return true;
        }
        if (ownerIsElement && context.GetIgnoreMissingMandatoryElements())
            return true;
        if ((ownerIsElement || skipInPseudo) && context.GetIgnoreUnknownElements() && *cursor) {
            *cursor = (*cursor)->GetNextSiblingElement();
            continue;
        }
        if (!ownerIsElement)
            return false;
        ThrowRequiredChild(parent);
    }
}

bool CSeqValueOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object, CXmlElement *,
                                  CXmlElement **cursor, const char *, XmlElementType)
{
    if (IsThisElement(context, *cursor))
        ElementFromXmlValue(context, object, cursor);
    return true;
}

bool CSeqValueMnd::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                  CXmlElement *parent, CXmlElement **cursor, const char *, XmlElementType ownerType)
{
    // Under a pseudo owner a primitive still skips strangers, an enumeration does not.
    return MandatorySearch(context, parent, cursor, ownerType, IsPrimitive(),
                           [&] { ElementFromXmlValue(context, object, cursor); });
}

bool CElementInfoSeqClsOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                           CXmlElement *parent, CXmlElement **cursor, const char *, XmlElementType)
{
    if (MayStartAt(context, *cursor))
        ReadNewChild(context, object, parent, cursor, Create());
    return true;
}

bool CElementInfoSeqClsMnd::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                           CXmlElement *parent, CXmlElement **cursor, const char *,
                                           XmlElementType ownerType)
{
    if (IsPseudo())
        return ReadPseudo(context, object, parent, cursor, ownerType);
    // The generated class made the child; it is read in place.
    return MandatorySearch(context, parent, cursor, ownerType, false,
                           [&] { Descend(context, GetChild(object), cursor); });
}

bool CElementInfoSeqClsMnd::ReadPseudo(const CSerializationContext &context, CXmlGeneratedClass *object,
                                       CXmlElement *parent, CXmlElement **cursor, XmlElementType ownerType)
{
    const bool ownerIsElement = ownerType == XmlElementType_Element;
    const CSmartPtr<CXmlObjectBase> child = GetChild(object);
    CXmlElement *const start = *cursor;
    if (HasMandatoryContent()) {
        CXmlElement *const next = start ? ReadInline(context, child, parent, start) : start;
        if (next == start) {
            if (ownerIsElement)
                ThrowRequiredChild(parent);
            return false;
        }
        *cursor = next;
        return true;
    }
    // A group without mandatory content is read even at the end of the siblings.
    CXmlElement *const next = ReadInline(context, child, parent, start);
    if (start && next == start && context.GetIgnoreUnknownElements() && ownerIsElement)
        return false;
    *cursor = next;
    return true;
}

bool CElementInfoSeqAbsClsOpt::ReadSubstitution(const CSerializationContext &context, CXmlGeneratedClass *object,
                                                CXmlElement **cursor) const
{
    CXmlElement *const element = *cursor;
    if (!IsThisElement(context, element))
        return false;
    // With no class for the element the cursor stays where it was.
    const CSmartPtr<CXmlObjectBase> child = Create(element);
    if (!child)
        return false;
    Descend(context, child, cursor);
    SetChild(object, child, *element);
    return true;
}

bool CElementInfoSeqAbsClsOpt::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                              CXmlElement *, CXmlElement **cursor, const char *, XmlElementType)
{
    ReadSubstitution(context, object, cursor);
    return true;
}

bool CElementInfoSeqAbsClsMnd::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                              CXmlElement *parent, CXmlElement **cursor, const char *,
                                              XmlElementType ownerType)
{
    if (ReadSubstitution(context, object, cursor))
        return true;
    if (ownerType != XmlElementType_Element)
        return false;
    throw CVxValidationException(
        FormatString("Failed to find a suitable substitution element for [%s].", GetElementName().c_str()),
        parent->GetXPath());
}

bool CElementInfoSeqCol::ElementFromXml(const CSerializationContext &context, CXmlGeneratedClass *object,
                                        CXmlElement *parent, CXmlElement **cursor, const char *,
                                        XmlElementType ownerType)
{
    const CSmartPtr<CXmlCollectionBase> collection = GetCollection(object);
    *cursor = ReadItems(context, collection, parent, *cursor);
    if (ownerType != XmlElementType_Element)
        return collection->IsValidCount(context);
    collection->ValidateCount(context);
    return true;
}

} // namespace VxXmlLib16Data
