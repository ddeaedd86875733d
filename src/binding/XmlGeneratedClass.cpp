// The writing half of the driver, and the table helpers.

#include "XmlGeneratedClass.h"

#include "AttributeInfo.h"
#include "ElementInfo.h"
#include "Exceptions.h"
#include "Variant.h"
#include "Wildcards.h"
#include "XmlCollectionBase.h"
#include "XmlWriter.h"

namespace VxXmlLib16 {

using namespace VxXmlLib16Data;

CVXCriticalSection CXmlGeneratedClass::m_csInit;

void CXmlGeneratedClass::ReadProperty(int propertyIndex, VxVariant &value) const
{
    // The generated accessor serves both directions; a read leaves the object as it is.
    const_cast<CXmlGeneratedClass *>(this)->AccessProperty(propertyIndex, true, value);
}

int CXmlGeneratedClass::GetClassElementInfoCount() const
{
    int count = 0;
    for (CElementInfo **entry = GetClassElementInfo(); *entry; ++entry)
        ++count;
    return count;
}

bool CXmlGeneratedClass::IsElementInList(const CSerializationContext &context, CXmlElement *element) const
{
    for (CElementInfo **entry = GetClassElementInfo(); *entry; ++entry)
        if ((*entry)->IsThisElement(context, element))
            return true;
    return false;
}

namespace {

template <class Entry>
void DeleteTable(Entry **&table)
{
    if (!table)
        return;
    for (Entry **slot = table; *slot; ++slot) {
        delete *slot;
        *slot = nullptr;
    }
    delete[] table;
    table = nullptr;
}

} // namespace

void CXmlGeneratedClass::CleanMetaData(CParentElementInfo *&classInfo, CElementInfo **&elements,
                                       CAttributeInfo **&attributes)
{
    delete classInfo;
    classInfo = nullptr;
    DeleteTable(elements);
    DeleteTable(attributes);
}

bool CXmlGeneratedClass::DoesElementContainOptionalElements() const
{
    for (CElementInfo **slot = GetClassElementInfo(); *slot; ++slot) {
        CElementInfo *const entry = *slot;
        if (dynamic_cast<CElementInfoChoiceCol *>(entry)) {
            VxVariant value;
            ReadProperty(entry->GetPropertyIndex(), value);
            const CSmartPtr<CXmlCollectionBase> collection = value.GetXmlCollection();
            if (collection && collection->GetMinOccurs() == 0)
                return true;
            continue;
        }
        if (dynamic_cast<CElementInfoChoicePrimOpt *>(entry) || dynamic_cast<CElementInfoChoiceClsOpt *>(entry) ||
            dynamic_cast<CElementInfoChoiceAbsClsOpt *>(entry) || dynamic_cast<CElementInfoChoiceEnumOpt *>(entry) ||
            dynamic_cast<CElementInfoChoiceUntpdOpt *>(entry))
            return true;
    }
    return false;
}

void CXmlGeneratedClass::WriteRootPrologue(CXmlWriter *writer, const CSerializationContext &context) const
{
    for (const std::string &instruction : context.GetProcessingInstructions())
        writer->WriteProcessingInstruction(instruction);
    // The context is constant here: its map must not grow, and an empty alias is no alias.
    const CNamespaceAliasMap &aliases = context.GetNamespaceAliases();
    const int count = aliases.GetNamespaceCount();
    for (int i = 0; i < count; ++i) {
        const std::string uri = aliases.GetNamespaceAt(i);
        const std::string alias = aliases.FindAlias(uri.c_str());
        if (!alias.empty())
            writer->AddNamespace(alias, uri);
    }
    const std::string defaultNamespace = context.GetDefaultNamespaceURI();
    if (!defaultNamespace.empty())
        writer->SetDefaultNamespace(defaultNamespace);
}

void CXmlGeneratedClass::ToXml_Int(CXmlWriter *writer, bool isRoot, const char *namespaceUri,
                                   const CSerializationContext &context, bool isChoiceMember) const
{
    try {
        const CParentElementInfo &info = *GetClassInfo();
        const bool isElement = info.GetElementType() == XmlElementType_Element;
        if (isElement) {
            if (isRoot)
                WriteRootPrologue(writer, context);
            // The object's own name, so that a substituted or renamed object keeps it.
            writer->StartElement(GetElementName(), namespaceUri);
            const CAttributeCol *rootAttributes = isRoot ? context.FindAdditionalRootAttributes() : nullptr;
            if (rootAttributes)
                CXmlObjectBase::ToXml_Int(rootAttributes, writer, false, namespaceUri, context, isChoiceMember);
            AttributesToXml_Int(writer, context);
            if (isRoot && !context.GetInLineSchema().empty())
                writer->WriteInlineSchema(context.GetInLineSchema());
        }
        const INillable *nillable = dynamic_cast<const INillable *>(this);
        if (nillable && nillable->IsNil())
            writer->WriteNilAttribute();
        else
            WriteContent(writer, context, isChoiceMember);
        if (isElement)
            writer->EndElement();
    } catch (const CVxException &e) {
        throw CVxValidationException(
            FormatString("Failed to convert the element [%s] to XML", GetElementName().c_str()), "", e);
    }
}

void CXmlGeneratedClass::WriteContent(CXmlWriter *writer, const CSerializationContext &context,
                                      bool isChoiceMember) const
{
    const CParentElementInfo &info = *GetClassInfo();
    CElementInfo **entries = GetClassElementInfo();
    switch (info.GetElementGroupType()) {
    case XmlElementGroupType_Sequence:
    case XmlElementGroupType_All:
        // An all group is written in table order.
        ProcessElementSeqToXml(context, entries, writer);
        break;
    case XmlElementGroupType_Choice:
        ProcessElementChoiceToXml(context, entries, writer, isChoiceMember);
        break;
    default:
        throw CVxException("Unknown XML Group Type");
    }
    if (info.GetPrimitiveValuePropertyIndex() == -1 || info.GetPrimitiveDataType() == ItemType_Invalid)
        return;
    VxVariant value;
    ReadProperty(info.GetPrimitiveValuePropertyIndex(), value);
    if (value.IsNil()) {
        writer->WriteNilAttribute();
        return;
    }
    writer->WriteElementValue(value.ToString(info.GetPrimitiveFormatOverride().c_str()), value.GetTypeAsEnum(),
                              false);
}

void CXmlGeneratedClass::ProcessElementSeqToXml(const CSerializationContext &context, CElementInfo **entries,
                                                CXmlWriter *writer) const
{
    for (; *entries; ++entries)
        (*entries)->ElementToXml(context, this, writer);
}

void CXmlGeneratedClass::ProcessElementChoiceToXml(const CSerializationContext &context, CElementInfo **entries,
                                                   CXmlWriter *writer, bool isChoiceMember) const
{
    for (; *entries; ++entries)
        if ((*entries)->ElementToXml(context, this, writer))
            return;
    if (DoesElementContainOptionalElements() || isChoiceMember || context.GetIgnoreMissingChoice())
        return;
    throw CVxValidationException("This element is a choice, and as such must have at one (and only one) valid item, "
                                 "currently there are none set",
                                 "");
}

void CXmlGeneratedClass::AttributesToXml_Int(CXmlWriter *writer, const CSerializationContext &context) const
{
    try {
        if (context.GetWriteTypeAttribute()) {
            const CParentElementInfo &info = *GetClassInfo();
            // A derived type standing under another element's name says which type it is.
            if (info.GetHasBaseClasses() && GetElementName() != info.GetElementName())
                writer->WriteTypeAttribute(info.GetElementNamespace(), info.GetElementName(), ItemType_string);
        }
        ProcessAttributesToXml(context, GetClassElementInfo(), GetClassAttributeInfo(), writer);
    } catch (const CVxException &e) {
        throw CVxException("Failed to convert attributes to XML", e);
    }
}

void CXmlGeneratedClass::ProcessAttributesToXml(const CSerializationContext &context, CElementInfo **elements,
                                                CAttributeInfo **attributes, CXmlWriter *writer) const
{
    for (; *attributes; ++attributes)
        (*attributes)->AttributeToXml(context, this, writer);
    // The attributes of pseudo children stand on this element.
    for (; *elements; ++elements)
        (*elements)->PseudoChildAttributeToXml(context, this, writer);
}

} // namespace VxXmlLib16
