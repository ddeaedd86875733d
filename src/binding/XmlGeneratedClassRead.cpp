// The reading half of the driver: attributes, then a cursor over the child elements that
// the entries move; what is left over fails as the context says.

#include <strings.h>

#include <cstring>

#include <memory>

#include "AttributeInfo.h"
#include "ElementInfo.h"
#include "Exceptions.h"
#include "Variant.h"
#include "XmlDocument.h"
#include "XmlGeneratedClass.h"

namespace VxXmlLib16 {

using namespace VxXmlLib16Data;

namespace {

// One found mark per table entry; tables of ordinary size need no allocation.
class FoundMarks
{
public:
    explicit FoundMarks(int count)
        : m_heap(count > InlineCount ? std::make_unique<bool[]>(count) : nullptr),
          m_marks(m_heap ? m_heap.get() : m_inline)
    {
    }
    bool &operator[](int index) { return m_marks[index]; }

private:
    static constexpr int InlineCount = 64;
    bool m_inline[InlineCount] = {};
    std::unique_ptr<bool[]> m_heap;
    bool *m_marks;
};

[[noreturn]] void ThrowLeftover(const CXmlElement *parent, const CXmlElement *cursor)
{
    throw CVxValidationException(FormatString("Failed read all the elements held within the element [%s]. The "
                                              "unexpected element [%s] remains un processed",
                                              parent->GetLocalName().c_str(), cursor->GetLocalName().c_str()),
                                 parent->GetXPath());
}

} // namespace

CXmlElement *CXmlGeneratedClass::FromXml_Int(CXmlElement *element, CXmlElement *firstChild,
                                             const CSerializationContext &context, bool isChoiceMember)
{
    try {
        return ReadContent(element, firstChild, context, isChoiceMember);
    } catch (const CVxException &e) {
        // The innermost element names the place once; outer levels pass it on unchanged.
        if (e.GetPath().empty())
            throw CVxValidationException("Failed to process the element.", element->GetXPath(), e);
        throw CVxException(e);
    }
}

CXmlElement *CXmlGeneratedClass::ReadContent(CXmlElement *element, CXmlElement *firstChild,
                                             const CSerializationContext &context, bool isChoiceMember)
{
    Init();
    const CParentElementInfo &info = *GetClassInfo();
    if (info.GetElementType() == XmlElementType_Element)
        SetElementName(element->GetLocalName().c_str());
    ProcessAttributesFromXml(context, element, info.GetFromXmlFailIfAttributeUnknown());
    const INillable *nillable = dynamic_cast<const INillable *>(this);
    if (nillable && nillable->IsNil())
        return firstChild;

    CXmlElement *cursor = firstChild;
    const XmlElementType ownerType = info.GetElementType();
    switch (info.GetElementGroupType()) {
    case XmlElementGroupType_Sequence:
        cursor = ProcessElementSeqFromXml(context, element, cursor, ownerType);
        break;
    case XmlElementGroupType_Choice:
        cursor = ProcessElementChoiceFromXml(context, element, cursor, ownerType, isChoiceMember);
        break;
    case XmlElementGroupType_All:
        cursor = ProcessElementAllFromXml(context, element, cursor, ownerType);
        break;
    default:
        throw CVxException("Unknown Group Type");
    }

    const int valueIndex = info.GetPrimitiveValuePropertyIndex();
    if (valueIndex != -1 && info.GetPrimitiveDataType() != ItemType_Invalid) {
        VxVariant value;
        if (info.GetOutputPrimitiveClassAsTextProperty())
            value.SetString(element->GetText());
        else
            value.FromString(element->GetText(), info.GetPrimitiveDataType(), CWhitespaceUtils::WhitespaceRule_None);
        AccessProperty(valueIndex, false, value);
    }
    return cursor;
}

void CXmlGeneratedClass::ReadNil(CXmlElement *element, CXmlAttribute *attribute)
{
    INillable *nillable = dynamic_cast<INillable *>(this);
    if (!nillable)
        throw CVxValidationException("Invalid use of 'nil' attribute in non-nillable element.", element->GetXPath());
    const char *text = attribute->GetValue().c_str();
    if (strcasecmp(text, "true") == 0 || strcmp(text, "1") == 0)
        nillable->SetNil(true);
    else if (strcasecmp(text, "false") == 0 || strcmp(text, "0") == 0)
        nillable->SetNil(false);
    else
        throw CVxValidationException(FormatString("Unexpected Value [%s] for 'nil' Attribute found.", text),
                                     attribute->GetXPath());
}

void CXmlGeneratedClass::ProcessAttributesFromXml(const CSerializationContext &context, CXmlElement *element,
                                                  bool failIfUnknown)
{
    CAttributeInfo **entries = GetClassAttributeInfo();
    int count = 0;
    while (entries[count])
        ++count;
    FoundMarks found(count);
    const bool dropUnknown = !failIfUnknown || context.GetIgnoreUnknownAttributes();
    for (CXmlAttribute *attribute : element->GetAttributes()) {
        // xsi:type and the schema locations are read over here.
        if (attribute->IsNamespaceAttribute())
            continue;
        if (attribute->IsNilAttribute()) {
            ReadNil(element, attribute);
            continue;
        }
        bool taken = false;
        for (int i = 0; i < count && !taken; ++i) {
            taken = entries[i]->AttributeFromXml(context, this, attribute);
            found[i] = found[i] || taken;
        }
        if (!taken && !dropUnknown)
            throw CVxValidationException("Unexpected Attribute found.", attribute->GetXPath());
    }
    // A required attribute that never came is reported here.
    for (int i = 0; i < count; ++i)
        entries[i]->Validate(context, found[i]);
}

CXmlElement *CXmlGeneratedClass::ProcessElementSeqFromXml(const CSerializationContext &context, CXmlElement *parent,
                                                          CXmlElement *cursor, XmlElementType ownerType)
{
    CXmlElement *const start = cursor;
    const int count = GetClassElementInfoCount();
    CElementInfo **entries = GetClassElementInfo();
    const std::string targetNamespace = GetNamespace();
    const bool skipUnknown = context.GetIgnoreUnknownElements();
    int resume = 0;
    for (;;) {
        for (int i = resume; i < count; ++i) {
            while (!entries[i]->ElementFromXml(context, this, parent, &cursor, targetNamespace.c_str(), ownerType)) {
                // Nothing consumed: the caller sees the start again.
                if (!skipUnknown || !cursor)
                    return start;
                cursor = cursor->GetNextSiblingElement();
            }
            resume = i;
        }
        // A pseudo group leaves the rest to its parent.
        if (ownerType != XmlElementType_Element || !cursor)
            return cursor;
        if (!skipUnknown)
            ThrowLeftover(parent, cursor);
        // Behind an unknown element the last entry that succeeded may take more.
        cursor = cursor->GetNextSiblingElement();
        if (!cursor)
            return cursor;
    }
}

CXmlElement *CXmlGeneratedClass::ProcessElementAllFromXml(const CSerializationContext &context, CXmlElement *parent,
                                                          CXmlElement *cursor, XmlElementType ownerType)
{
    CXmlElement *const start = cursor;
    const int count = GetClassElementInfoCount();
    CElementInfo **entries = GetClassElementInfo();
    const std::string targetNamespace = GetNamespace();
    FoundMarks found(count);
    // Passes over the entries not yet found, until a pass makes no progress.
    CXmlElement *previous = nullptr;
    while (cursor && cursor != previous) {
        previous = cursor;
        for (int i = 0; i < count; ++i)
            if (!found[i])
                found[i] = entries[i]->ElementFromXml(context, this, parent, &cursor, targetNamespace.c_str(),
                                                      ownerType);
    }
    const bool ownerIsElement = ownerType == XmlElementType_Element;
    for (int i = 0; i < count; ++i)
        if (!entries[i]->Validate(context, this, found[i], ownerIsElement))
            return start;
    if (ownerIsElement && cursor && !context.GetIgnoreUnknownElements())
        ThrowLeftover(parent, cursor);
    return cursor;
}

CXmlElement *CXmlGeneratedClass::ProcessElementChoiceFromXml(const CSerializationContext &context,
                                                             CXmlElement *parent, CXmlElement *cursor,
                                                             XmlElementType ownerType, bool isChoiceMember)
{
    CXmlElement *const start = cursor;
    CElementInfo **entries = GetClassElementInfo();
    const std::string targetNamespace = GetNamespace();
    const bool skipUnknown = context.GetIgnoreUnknownElements();
    const bool ownerIsElement = ownerType == XmlElementType_Element;
    bool found = false;
    for (;;) {
        for (CElementInfo **entry = entries; *entry && !found; ++entry)
            found = (*entry)->ElementFromXml(context, this, parent, &cursor, targetNamespace.c_str(), ownerType);
        if (cursor && skipUnknown && !found && ownerIsElement)
            cursor = cursor->GetNextSiblingElement();
        if (!skipUnknown || found || !cursor || !ownerIsElement)
            break;
    }
    if (!(found || isChoiceMember)) {
        if (!ownerIsElement && skipUnknown)
            cursor = start;
        if (ownerIsElement && !DoesElementContainOptionalElements() && !context.GetIgnoreMissingChoice())
            throw CVxValidationException(
                FormatString("No child elements within the element [%s] were populated. The element represents a "
                             "choice, so one and only one element should be populated. The element contained no "
                             "sutable child elements",
                             parent->GetLocalName().c_str()),
                parent->GetXPath());
    }
    if (ownerIsElement && cursor && !skipUnknown)
        ThrowLeftover(parent, cursor);
    return cursor;
}

} // namespace VxXmlLib16
