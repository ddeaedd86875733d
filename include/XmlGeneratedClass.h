#pragma once
// The base of every generated class. A generated class holds members and metadata
// tables and no serialisation logic; this class walks the tables. Every rule that
// concerns more than one child (sequence order, all, choice, unknown content) lives here;
// what concerns one child lives in the entries.

#include <string>

#include "CriticalSection.h"
#include "XmlObjectBase.h"

namespace VxXmlLib16 {

class CXmlGeneratedClass : public CXmlObjectBase
{
public:
    CXmlGeneratedClass() = default;
    CXmlGeneratedClass(const CXmlGeneratedClass &) = default;
    CXmlGeneratedClass &operator=(const CXmlGeneratedClass &) = default;

    // Written by each generated class.
    virtual void AccessProperty(int propertyIndex, bool read, VxVariant &value) = 0;
    virtual VxXmlLib16Data::CParentElementInfo *GetClassInfo() const = 0;
    // Both tables end with a null pointer.
    virtual VxXmlLib16Data::CElementInfo **GetClassElementInfo() const = 0;
    virtual VxXmlLib16Data::CAttributeInfo **GetClassAttributeInfo() const = 0;
    // Back to the freshly constructed content.
    virtual void Init() = 0;

    void ReadProperty(int propertyIndex, VxVariant &value) const;
    int GetClassElementInfoCount() const;
    bool IsElementInList(const CSerializationContext &context, CXmlElement *element) const;
    // Frees tables built by generated code and nulls the pointers.
    static void CleanMetaData(VxXmlLib16Data::CParentElementInfo *&classInfo,
                              VxXmlLib16Data::CElementInfo **&elements, VxXmlLib16Data::CAttributeInfo **&attributes);
    bool DoesElementContainOptionalElements() const;

    // Offered to generated code to build its tables once; the library never takes it.
    static CVXCriticalSection m_csInit;

protected:
    ~CXmlGeneratedClass() override = default;

    void AttributesToXml_Int(CXmlWriter *writer, const CSerializationContext &context) const override;
    void ToXml_Int(CXmlWriter *writer, bool isRoot, const char *namespaceUri, const CSerializationContext &context,
                   bool isChoiceMember) const override;
    CXmlElement *FromXml_Int(CXmlElement *element, CXmlElement *firstChild, const CSerializationContext &context,
                             bool isChoiceMember) override;

private:
    void WriteContent(CXmlWriter *writer, const CSerializationContext &context, bool isChoiceMember) const;
    void WriteRootPrologue(CXmlWriter *writer, const CSerializationContext &context) const;
    void ProcessElementSeqToXml(const CSerializationContext &context, VxXmlLib16Data::CElementInfo **entries,
                                CXmlWriter *writer) const;
    void ProcessElementChoiceToXml(const CSerializationContext &context, VxXmlLib16Data::CElementInfo **entries,
                                   CXmlWriter *writer, bool isChoiceMember) const;
    void ProcessAttributesToXml(const CSerializationContext &context, VxXmlLib16Data::CElementInfo **elements,
                                VxXmlLib16Data::CAttributeInfo **attributes, CXmlWriter *writer) const;

    CXmlElement *ReadContent(CXmlElement *element, CXmlElement *firstChild, const CSerializationContext &context,
                             bool isChoiceMember);
    void ProcessAttributesFromXml(const CSerializationContext &context, CXmlElement *element, bool failIfUnknown);
    void ReadNil(CXmlElement *element, CXmlAttribute *attribute);
    CXmlElement *ProcessElementSeqFromXml(const CSerializationContext &context, CXmlElement *parent,
                                          CXmlElement *cursor, VxXmlLib16Data::XmlElementType ownerType);
    CXmlElement *ProcessElementAllFromXml(const CSerializationContext &context, CXmlElement *parent,
                                          CXmlElement *cursor, VxXmlLib16Data::XmlElementType ownerType);
    CXmlElement *ProcessElementChoiceFromXml(const CSerializationContext &context, CXmlElement *parent,
                                             CXmlElement *cursor, VxXmlLib16Data::XmlElementType ownerType,
                                             bool isChoiceMember);
};

} // namespace VxXmlLib16
