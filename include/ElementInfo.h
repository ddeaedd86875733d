#pragma once
// Element metadata. A generated class describes itself with a CParentElementInfo and a
// null-terminated table of CElementInfo entries, its children in schema order. The name
// of each entry class spells out its model group (Seq, All, Choice), what the child holds
// (Prim, Enum, Cls, AbsCls, Untpd) and its cardinality (Mnd, Opt, Col). The driver holds
// the loops; skipping, failing, creating children and writing nil live in the entries.

#include <cstdint>
#include <string>

#include "ItemType.h"
#include "PrimitiveRestrictions.h"
#include "SmartPtr.h"
#include "VxXmlLib16Fwd.h"
#include "WhitespaceUtils.h"

namespace VxXmlLib16Data {

enum XmlElementGroupType : std::int32_t {
    XmlElementGroupType_Sequence = 0,
    XmlElementGroupType_Choice = 1,
    XmlElementGroupType_All = 2
};

enum XmlElementType : std::int32_t {
    // The class has an element of its own and its children are read from inside it.
    XmlElementType_Element = 0,
    // The class stands for a model group: its children are the parent's children and its
    // attributes stand on the parent's element.
    XmlElementType_Pseudo = 1
};

// What a generated class is: its group, whether it has an element, its names, and for a
// class with simple content the property, type and format of that content.
class CParentElementInfo
{
public:
    // The names must not be null; a null format override is empty.
    CParentElementInfo(XmlElementGroupType groupType, XmlElementType elementType, const char *elementName,
                       const char *elementNamespace, bool failIfAttributeUnknown, bool hasBaseClasses,
                       int primitiveValuePropertyIndex, VxXmlLib16::ItemType primitiveDataType,
                       const char *primitiveFormatOverride, bool outputPrimitiveClassAsTextProperty);
    CParentElementInfo(const CParentElementInfo &) = default;
    CParentElementInfo &operator=(const CParentElementInfo &) = default;
    virtual ~CParentElementInfo();

    XmlElementGroupType GetElementGroupType() const { return m_groupType; }
    XmlElementType GetElementType() const { return m_elementType; }
    const std::string &GetElementName() const { return m_elementName; }
    const std::string &GetElementNamespace() const { return m_elementNamespace; }
    bool GetFromXmlFailIfAttributeUnknown() const { return m_failIfAttributeUnknown; }
    bool GetHasBaseClasses() const { return m_hasBaseClasses; }
    int GetPrimitiveValuePropertyIndex() const { return m_primitiveValuePropertyIndex; }
    VxXmlLib16::ItemType GetPrimitiveDataType() const { return m_primitiveDataType; }
    const std::string &GetPrimitiveFormatOverride() const { return m_primitiveFormatOverride; }
    bool GetOutputPrimitiveClassAsTextProperty() const { return m_outputPrimitiveClassAsTextProperty; }

private:
    XmlElementGroupType m_groupType;
    XmlElementType m_elementType;
    std::string m_elementName;
    std::string m_elementNamespace;
    bool m_failIfAttributeUnknown;
    bool m_hasBaseClasses;
    std::int32_t m_primitiveValuePropertyIndex;
    VxXmlLib16::ItemType m_primitiveDataType;
    std::string m_primitiveFormatOverride;
    bool m_outputPrimitiveClassAsTextProperty;
};

using ClassCreateFunction = CSmartPtr<VxXmlLib16::CXmlObjectBase> (*)(int classId, const char *elementName);
// Chooses the concrete class from the element being read (its xsi:type); null when none fits.
using SubstitutionCreateFunction = CSmartPtr<VxXmlLib16::CXmlObjectBase> (*)(VxXmlLib16::CXmlElement *element);
using EnumToString = const char *(*)(int);
using EnumFromString = int (*)(const char *);

class CElementInfo
{
    friend class VxXmlLib16::CXmlGeneratedClass;

public:
    CElementInfo(const CElementInfo &) = default;
    CElementInfo &operator=(const CElementInfo &) = default;
    virtual ~CElementInfo();

    // Only a primitive entry has facets; any other fails.
    void CheckRestriction(const VxXmlLib16::VxVariant &value) const;

protected:
    // A primitive entry; null format and default are empty.
    CElementInfo(const char *name, const char *namespaceUri, int propertyIndex, bool nillable,
                 VxXmlLib16::ItemType type, const char *formatOverride,
                 VxXmlLib16::CWhitespaceUtils::WhitespaceRule rule,
                 const VxXmlLib16::CPrimitiveRestrictions &restrictions, const char *defaultValue);
    // An enumeration entry.
    CElementInfo(const char *name, const char *namespaceUri, int propertyIndex, bool nillable, EnumToString toString,
                 EnumFromString fromString, const char *defaultValue);
    // An object, wildcard or collection entry.
    CElementInfo(const char *name, const char *namespaceUri, int propertyIndex);

    // True when something was written.
    virtual bool ElementToXml(const VxXmlLib16::CSerializationContext &context,
                              const VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::CXmlWriter *writer) const = 0;
    // Moves the cursor past what it consumed. A pseudo owner gets false where an element
    // owner gets a fault, so that the driver can rewind.
    virtual bool ElementFromXml(const VxXmlLib16::CSerializationContext &context,
                                VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::CXmlElement *parent,
                                VxXmlLib16::CXmlElement **cursor, const char *targetNamespace,
                                XmlElementType ownerType) = 0;
    // Asked by the all-group driver only; this base fails.
    virtual bool Validate(const VxXmlLib16::CSerializationContext &context,
                          const VxXmlLib16::CXmlGeneratedClass *object, bool found, bool ownerIsElement) const;
    // Lifts the attributes of a pseudo child onto the owner's element; nothing here.
    virtual void PseudoChildAttributeToXml(const VxXmlLib16::CSerializationContext &context,
                                           const VxXmlLib16::CXmlGeneratedClass *object,
                                           VxXmlLib16::CXmlWriter *writer) const;

    int GetPropertyIndex() const { return m_propertyIndex; }
    const std::string &GetElementName() const { return m_name; }
    const std::string &GetElementNamespace() const { return m_namespaceUri; }
    bool IsThisElement(const VxXmlLib16::CSerializationContext &context,
                       const VxXmlLib16::CXmlElement *element) const;

    void ReadProperty(const VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::VxVariant &value) const;
    // A CVxException of the generated property is wrapped: with the entry's name on
    // get, with the element's path on set.
    void InvokePropertyGet(VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::VxVariant &value) const;
    void InvokePropertySet(VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::VxVariant &value,
                           const VxXmlLib16::CXmlElement &element) const;
    // The child object or collection behind the property.
    CSmartPtr<VxXmlLib16::CXmlObjectBase> GetChild(VxXmlLib16::CXmlGeneratedClass *object) const;
    // Never null: a missing collection is the mandatory-property fault.
    CSmartPtr<VxXmlLib16::CXmlCollectionBase> GetCollection(VxXmlLib16::CXmlGeneratedClass *object) const;
    void SetChild(VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::CXmlObjectBase *child,
                  const VxXmlLib16::CXmlElement &element) const;

    bool ElementToXmlPrim(const VxXmlLib16::CSerializationContext &context,
                          const VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::CXmlWriter *writer) const;
    bool ElementToXmlEnum(const VxXmlLib16::CSerializationContext &context,
                          const VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::CXmlWriter *writer,
                          EnumToString toString) const;
    bool ElementToXmlCls(const VxXmlLib16::CSerializationContext &context,
                         const VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::CXmlWriter *writer,
                         bool isChoiceMember) const;
    bool ElementToXmlCol(const VxXmlLib16::CSerializationContext &context,
                         const VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::CXmlWriter *writer) const;
    void ElementFromXmlPrim(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                            VxXmlLib16::CXmlElement **cursor) const;
    void ElementFromXmlEnum(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                            VxXmlLib16::CXmlElement **cursor) const;
    // The primitive or the enumeration form, by the constructor that made the entry.
    bool ElementToXmlValue(const VxXmlLib16::CSerializationContext &context,
                           const VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::CXmlWriter *writer) const;
    void ElementFromXmlValue(const VxXmlLib16::CSerializationContext &context,
                             VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::CXmlElement **cursor) const;
    bool IsPrimitive() const { return m_isPrimitive; }

    void AttributesToXml_Int(const VxXmlLib16::CXmlObjectBase *object, VxXmlLib16::CXmlWriter *writer,
                             const VxXmlLib16::CSerializationContext &context) const;
    // Returns where the object stopped.
    VxXmlLib16::CXmlElement *FromXml_Int(VxXmlLib16::CXmlObjectBase *object, VxXmlLib16::CXmlElement *parent,
                                         VxXmlLib16::CXmlElement *cursor,
                                         const VxXmlLib16::CSerializationContext &context, bool isChoiceMember) const;
    // Reads the child from inside the element at the cursor, then steps past it.
    void Descend(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlObjectBase *child,
                 VxXmlLib16::CXmlElement **cursor, bool isChoiceMember = false) const;
    // Lets the child walk the owner's sibling list from the cursor; returns where it stopped.
    VxXmlLib16::CXmlElement *ReadInline(const VxXmlLib16::CSerializationContext &context,
                                        VxXmlLib16::CXmlObjectBase *child, VxXmlLib16::CXmlElement *parent,
                                        VxXmlLib16::CXmlElement *cursor) const;

    [[noreturn]] void ThrowMandatoryNull() const;
    [[noreturn]] void ThrowRequiredChild(const VxXmlLib16::CXmlElement *parent) const;
    // The search of a mandatory sequence child: a hit, or skipping strangers where the
    // context allows, or the fault (false for a pseudo owner). Defined where it is used.
    template <class Hit>
    bool MandatorySearch(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlElement *parent,
                         VxXmlLib16::CXmlElement **cursor, XmlElementType ownerType, bool skipInPseudo,
                         Hit hit) const;
    // The all-group test of a mandatory entry.
    bool ValidateMandatory(bool found, bool ownerIsElement) const;

    static std::string GetAnyDefaultNamespace(const char *rule, const char *ownerNamespace,
                                              const char *declaredNamespace);

private:
    // The single-value writing both kinds share; textOf renders a present value.
    template <class TextOf>
    bool WriteValueElement(const VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::CXmlWriter *writer,
                           TextOf textOf) const;
    // The attributes of a primitive element: only xsi:nil belongs there. True when nil.
    bool ReadNilAttribute(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlElement &element,
                          VxXmlLib16::VxVariant &value) const;
    // The single-value reading both kinds share; convert turns the text into the variant.
    template <class Convert>
    void ReadValueElement(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                          VxXmlLib16::CXmlElement **cursor, Convert convert) const;

    std::string m_name;
    std::string m_namespaceUri;
    std::int32_t m_propertyIndex;
    VxXmlLib16::CPrimitiveRestrictions m_restrictions;
    VxXmlLib16::ItemType m_type = VxXmlLib16::ItemType_Invalid;
    std::string m_formatOverride;
    VxXmlLib16::CWhitespaceUtils::WhitespaceRule m_rule = VxXmlLib16::CWhitespaceUtils::WhitespaceRule_None;
    std::string m_defaultValue;
    bool m_nillable = false;
    EnumToString m_toString = nullptr;
    EnumFromString m_fromString = nullptr;
    bool m_isPrimitive = false;
};

// A mandatory entry writes like its optional form and fails when that wrote nothing.
template <class Base>
class TMandatory : public Base
{
public:
    using Base::Base;

protected:
    bool ElementToXml(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                      VxXmlLib16::CXmlWriter *writer) const override
    {
        if (!Base::ElementToXml(context, object, writer))
            this->ThrowMandatoryNull();
        return true;
    }
};

// An optional member of an all group is satisfied whether it was found or not.
template <class Base>
class TAllOpt : public Base
{
public:
    using Base::Base;

protected:
    bool Validate(const VxXmlLib16::CSerializationContext &, const VxXmlLib16::CXmlGeneratedClass *, bool,
                  bool) const override
    {
        return true;
    }
};

// A mandatory member of an all group must have been found when the owner has an element.
template <class Base>
class TAllMnd : public TMandatory<Base>
{
public:
    using TMandatory<Base>::TMandatory;

protected:
    bool Validate(const VxXmlLib16::CSerializationContext &, const VxXmlLib16::CXmlGeneratedClass *, bool found,
                  bool ownerIsElement) const override
    {
        return this->ValidateMandatory(found, ownerIsElement);
    }
};

// ---- Primitive and enumeration entries --------------------------------------------

// A single primitive or enumeration child; the public constructors come from TPrim and TEnum.
class CValueElementInfo : public CElementInfo
{
protected:
    using CElementInfo::CElementInfo;
    bool ElementToXml(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                      VxXmlLib16::CXmlWriter *writer) const override;
};

template <class Base>
class TPrim : public Base
{
public:
    TPrim(const char *name, const char *namespaceUri, int propertyIndex, bool nillable, VxXmlLib16::ItemType type,
          const char *format, VxXmlLib16::CWhitespaceUtils::WhitespaceRule rule,
          const VxXmlLib16::CPrimitiveRestrictions &restrictions, const char *defaultValue)
        : Base(name, namespaceUri, propertyIndex, nillable, type, format, rule, restrictions, defaultValue)
    {
    }
};

template <class Base>
class TEnum : public Base
{
public:
    TEnum(const char *name, const char *namespaceUri, int propertyIndex, bool nillable, EnumToString toString,
          EnumFromString fromString, const char *defaultValue)
        : Base(name, namespaceUri, propertyIndex, nillable, toString, fromString, defaultValue)
    {
    }
};

// Sequence, optional: reads a match and always goes on.
class CSeqValueOpt : public CValueElementInfo
{
protected:
    using CValueElementInfo::CValueElementInfo;
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

// Sequence, mandatory: the mandatory search. A primitive skips strangers under a pseudo
// owner too; an enumeration makes one test there.
class CSeqValueMnd : public TMandatory<CValueElementInfo>
{
protected:
    using TMandatory<CValueElementInfo>::TMandatory;
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

// Choice and all: reads a match and says whether it did.
class CMatchValue : public CValueElementInfo
{
protected:
    using CValueElementInfo::CValueElementInfo;
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

using CAllValueOpt = TAllOpt<CMatchValue>;
using CAllValueMnd = TAllMnd<CMatchValue>;

class CElementInfoSeqPrimOpt final : public TPrim<CSeqValueOpt>
{
public:
    using TPrim<CSeqValueOpt>::TPrim;
};
class CElementInfoSeqPrimMnd final : public TPrim<CSeqValueMnd>
{
public:
    using TPrim<CSeqValueMnd>::TPrim;
};
class CElementInfoSeqEnumOpt final : public TEnum<CSeqValueOpt>
{
public:
    using TEnum<CSeqValueOpt>::TEnum;
};
class CElementInfoSeqEnumMnd final : public TEnum<CSeqValueMnd>
{
public:
    using TEnum<CSeqValueMnd>::TEnum;
};
class CElementInfoAllPrimOpt final : public TPrim<CAllValueOpt>
{
public:
    using TPrim<CAllValueOpt>::TPrim;
};
class CElementInfoAllPrimMnd final : public TPrim<CAllValueMnd>
{
public:
    using TPrim<CAllValueMnd>::TPrim;
};
class CElementInfoAllEnumOpt final : public TEnum<CAllValueOpt>
{
public:
    using TEnum<CAllValueOpt>::TEnum;
};
class CElementInfoAllEnumMnd final : public TEnum<CAllValueMnd>
{
public:
    using TEnum<CAllValueMnd>::TEnum;
};
class CElementInfoChoicePrimOpt final : public TPrim<CMatchValue>
{
public:
    using TPrim<CMatchValue>::TPrim;
};
class CElementInfoChoiceEnumOpt final : public TEnum<CMatchValue>
{
public:
    using TEnum<CMatchValue>::TEnum;
};

// ---- Object entries ----------------------------------------------------------------

// A child object, read from its own element or, for a pseudo child, inline.
class CObjectElementInfo : public CElementInfo
{
protected:
    CObjectElementInfo(const char *name, const char *namespaceUri, int propertyIndex, XmlElementType elementType);
    bool ElementToXml(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                      VxXmlLib16::CXmlWriter *writer) const override;
    void PseudoChildAttributeToXml(const VxXmlLib16::CSerializationContext &context,
                                   const VxXmlLib16::CXmlGeneratedClass *object,
                                   VxXmlLib16::CXmlWriter *writer) const override;
    bool IsPseudo() const { return m_elementType == XmlElementType_Pseudo; }
    // A pseudo child may start wherever the cursor stands; a real one only at its own element.
    bool MayStartAt(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlElement *element) const
    {
        return IsPseudo() ? element != nullptr : IsThisElement(context, element);
    }
    // Reads a new child at the cursor, from inside its element or, for a pseudo child,
    // inline; when something was consumed the property takes the child. True then.
    bool ReadNewChild(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                      VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                      VxXmlLib16::CXmlObjectBase *child) const;

private:
    XmlElementType m_elementType;
};

// A generated class made by the class factory from a class id. Still abstract: the
// entries inherit the public constructor.
class CClsElementInfo : public CObjectElementInfo
{
public:
    CClsElementInfo(const char *name, const char *namespaceUri, int propertyIndex, XmlElementType elementType,
                    ClassCreateFunction create, int classId);

protected:
    CSmartPtr<VxXmlLib16::CXmlObjectBase> Create() const;

private:
    ClassCreateFunction m_create;
    std::int32_t m_classId;
};

class CClsMndElementInfo : public TMandatory<CClsElementInfo>
{
public:
    CClsMndElementInfo(const char *name, const char *namespaceUri, int propertyIndex, XmlElementType elementType,
                       ClassCreateFunction create, int classId, bool hasMandatoryContent);

protected:
    bool HasMandatoryContent() const { return m_hasMandatoryContent; }

private:
    bool m_hasMandatoryContent;
};

// A class chosen by substitution from the element being read. Still abstract, like
// CClsElementInfo.
class CAbsClsElementInfo : public CObjectElementInfo
{
public:
    CAbsClsElementInfo(const char *name, const char *namespaceUri, int propertyIndex, XmlElementType elementType,
                       SubstitutionCreateFunction create);

protected:
    CSmartPtr<VxXmlLib16::CXmlObjectBase> Create(VxXmlLib16::CXmlElement *element) const;

private:
    SubstitutionCreateFunction m_create;
};

class CElementInfoSeqClsOpt final : public CClsElementInfo
{
public:
    using CClsElementInfo::CClsElementInfo;

protected:
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

class CElementInfoSeqClsMnd final : public CClsMndElementInfo
{
public:
    using CClsMndElementInfo::CClsMndElementInfo;

protected:
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;

private:
    bool ReadPseudo(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                    VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor, XmlElementType ownerType);
};

class CElementInfoSeqAbsClsOpt : public CAbsClsElementInfo
{
public:
    using CAbsClsElementInfo::CAbsClsElementInfo;

protected:
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
    // True when a substitution was found and read.
    bool ReadSubstitution(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                          VxXmlLib16::CXmlElement **cursor) const;
};

class CElementInfoSeqAbsClsMnd final : public TMandatory<CElementInfoSeqAbsClsOpt>
{
public:
    using TMandatory<CElementInfoSeqAbsClsOpt>::TMandatory;

protected:
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

class CElementInfoAllClsOpt final : public TAllOpt<CClsElementInfo>
{
public:
    using TAllOpt<CClsElementInfo>::TAllOpt;

protected:
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

class CElementInfoAllClsMnd final : public CClsMndElementInfo
{
public:
    using CClsMndElementInfo::CClsMndElementInfo;

protected:
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
    // A child of element type without mandatory content may be absent.
    bool Validate(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                  bool found, bool ownerIsElement) const override;
};

class CElementInfoAllAbsClsOpt : public TAllOpt<CAbsClsElementInfo>
{
public:
    using TAllOpt<CAbsClsElementInfo>::TAllOpt;

protected:
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

class CElementInfoAllAbsClsMnd final : public TAllMnd<CElementInfoAllAbsClsOpt>
{
public:
    // The last number is kept for the generated tables and not used.
    CElementInfoAllAbsClsMnd(const char *name, const char *namespaceUri, int propertyIndex,
                             XmlElementType elementType, SubstitutionCreateFunction create, int unused);

private:
    std::int32_t m_unused;
};

class CElementInfoChoiceClsOpt final : public CClsElementInfo
{
public:
    using CClsElementInfo::CClsElementInfo;

protected:
    // Writes the child as a choice member.
    bool ElementToXml(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                      VxXmlLib16::CXmlWriter *writer) const override;
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

class CElementInfoChoiceAbsClsOpt final : public CAbsClsElementInfo
{
public:
    using CAbsClsElementInfo::CAbsClsElementInfo;

protected:
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

// ---- Wildcard entries -------------------------------------------------------------

// An xs:any child held as a CElement; the name "AnyElement" matches any local name.
// Still abstract: the entries inherit the public constructor.
class CUntpdElementInfo : public CElementInfo
{
public:
    CUntpdElementInfo(const char *name, const char *namespaceUri, int propertyIndex, const char *namespaceRule,
                      const char *targetNamespace);

protected:
    bool ElementToXml(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                      VxXmlLib16::CXmlWriter *writer) const override;
    // A fresh wildcard element for the owner's target namespace.
    CSmartPtr<VxXmlLib16::CXmlObjectBase> CreateWildcard(const char *targetNamespace) const;
    // Reads the element at the cursor into the wildcard when the name fits; returns
    // where it stopped, the cursor itself when nothing was taken.
    VxXmlLib16::CXmlElement *ReadWildcard(const VxXmlLib16::CSerializationContext &context,
                                          VxXmlLib16::CXmlObjectBase *child, VxXmlLib16::CXmlElement *parent,
                                          VxXmlLib16::CXmlElement *cursor) const;
    // Reads a fresh wildcard; on success the property takes it and the cursor moves on.
    bool ReadNewWildcard(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                         VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                         const char *targetNamespace) const;

private:
    std::string m_namespaceRule;
    std::string m_targetNamespace;
};

class CSeqUntpdOpt : public CUntpdElementInfo
{
protected:
    using CUntpdElementInfo::CUntpdElementInfo;
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

class CSeqUntpdMnd : public TMandatory<CUntpdElementInfo>
{
protected:
    using TMandatory<CUntpdElementInfo>::TMandatory;
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

// All and choice: a fresh wildcard that says whether it took the element.
class CMatchUntpdOpt : public CUntpdElementInfo
{
protected:
    using CUntpdElementInfo::CUntpdElementInfo;
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

using CAllUntpdOpt = TAllOpt<CMatchUntpdOpt>;

class CAllUntpdMnd : public TAllMnd<CUntpdElementInfo>
{
protected:
    using TAllMnd<CUntpdElementInfo>::TAllMnd;
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

// A choice alternative that takes nothing sets its property back to null.
class CChoiceUntpdOpt : public CMatchUntpdOpt
{
protected:
    using CMatchUntpdOpt::CMatchUntpdOpt;
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

class CElementInfoSeqUntpdOpt final : public CSeqUntpdOpt
{
public:
    using CSeqUntpdOpt::CSeqUntpdOpt;
};
class CElementInfoSeqUntpdMnd final : public CSeqUntpdMnd
{
public:
    using CSeqUntpdMnd::CSeqUntpdMnd;
};
class CElementInfoAllUntpdOpt final : public CAllUntpdOpt
{
public:
    using CAllUntpdOpt::CAllUntpdOpt;
};
class CElementInfoAllUntpdMnd final : public CAllUntpdMnd
{
public:
    using CAllUntpdMnd::CAllUntpdMnd;
};
class CElementInfoChoiceUntpdOpt final : public CChoiceUntpdOpt
{
public:
    using CChoiceUntpdOpt::CChoiceUntpdOpt;
};

// ---- Collection entries ------------------------------------------------------------

// Repeating content behind a collection property.
class CCollectionElementInfo : public CElementInfo
{
public:
    CCollectionElementInfo(const char *name, const char *namespaceUri, int propertyIndex)
        : CElementInfo(name, namespaceUri, propertyIndex)
    {
    }

protected:
    // Validates the count first unless the context ignores invalid counts.
    bool ElementToXml(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                      VxXmlLib16::CXmlWriter *writer) const override;
    // The walk over the siblings; returns where the collection stopped.
    virtual VxXmlLib16::CXmlElement *ReadItems(const VxXmlLib16::CSerializationContext &context,
                                               VxXmlLib16::CXmlCollectionBase *collection,
                                               VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement *cursor) const;
    // The walk of a wildcard collection: any element for "AnyElement", else only
    // elements of the entry's name.
    VxXmlLib16::CXmlElement *ReadWildcardItems(const VxXmlLib16::CSerializationContext &context,
                                               VxXmlLib16::CXmlCollectionBase *collection,
                                               VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement *cursor) const;
};

class CElementInfoSeqCol : public CCollectionElementInfo
{
public:
    using CCollectionElementInfo::CCollectionElementInfo;

protected:
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

// Always false: a collection in an all group is never found.
class CElementInfoAllCol : public CCollectionElementInfo
{
public:
    using CCollectionElementInfo::CCollectionElementInfo;

protected:
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

class CElementInfoChoiceCol : public CCollectionElementInfo
{
public:
    using CCollectionElementInfo::CCollectionElementInfo;

protected:
    // No count test: the choice decides whether this member is there at all.
    bool ElementToXml(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                      VxXmlLib16::CXmlWriter *writer) const override;
    bool ElementFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlElement *parent, VxXmlLib16::CXmlElement **cursor,
                        const char *targetNamespace, XmlElementType ownerType) override;
};

// A collection of objects: the items of a pseudo collection put their attributes on the
// owner's element.
template <class GroupCol>
class TObjectCol : public GroupCol
{
public:
    TObjectCol(const char *name, const char *namespaceUri, int propertyIndex, XmlElementType elementType)
        : GroupCol(name, namespaceUri, propertyIndex), m_elementType(elementType)
    {
    }

protected:
    void PseudoChildAttributeToXml(const VxXmlLib16::CSerializationContext &context,
                                   const VxXmlLib16::CXmlGeneratedClass *object,
                                   VxXmlLib16::CXmlWriter *writer) const override
    {
        if (m_elementType == XmlElementType_Pseudo)
            this->AttributesToXml_Int(this->GetCollection(const_cast<VxXmlLib16::CXmlGeneratedClass *>(object)),
                                      writer, context);
    }

private:
    XmlElementType m_elementType;
};

template <class GroupCol>
class TValueCol : public GroupCol
{
public:
    using GroupCol::GroupCol;
};

class CElementInfoSeqPrimCol final : public TValueCol<CElementInfoSeqCol>
{
public:
    using TValueCol<CElementInfoSeqCol>::TValueCol;
};
class CElementInfoSeqEnumCol final : public TValueCol<CElementInfoSeqCol>
{
public:
    using TValueCol<CElementInfoSeqCol>::TValueCol;
};
class CElementInfoSeqClsCol final : public TObjectCol<CElementInfoSeqCol>
{
public:
    using TObjectCol<CElementInfoSeqCol>::TObjectCol;
};
class CElementInfoSeqAbsClsCol final : public TObjectCol<CElementInfoSeqCol>
{
public:
    using TObjectCol<CElementInfoSeqCol>::TObjectCol;
};
class CElementInfoAllPrimCol final : public TValueCol<CElementInfoAllCol>
{
public:
    using TValueCol<CElementInfoAllCol>::TValueCol;
};
class CElementInfoAllClsCol final : public TObjectCol<CElementInfoAllCol>
{
public:
    using TObjectCol<CElementInfoAllCol>::TObjectCol;
};
class CElementInfoAllAbsClsCol final : public TObjectCol<CElementInfoAllCol>
{
public:
    using TObjectCol<CElementInfoAllCol>::TObjectCol;
};
// A named wildcard collection takes only elements of its own name.
template <class GroupCol>
class TUntpdCol : public GroupCol
{
public:
    using GroupCol::GroupCol;

protected:
    VxXmlLib16::CXmlElement *ReadItems(const VxXmlLib16::CSerializationContext &context,
                                       VxXmlLib16::CXmlCollectionBase *collection, VxXmlLib16::CXmlElement *parent,
                                       VxXmlLib16::CXmlElement *cursor) const override
    {
        return this->ReadWildcardItems(context, collection, parent, cursor);
    }
};

class CElementInfoSeqUntpdCol final : public TUntpdCol<CElementInfoSeqCol>
{
public:
    using TUntpdCol<CElementInfoSeqCol>::TUntpdCol;
};
class CElementInfoAllUntpdCol final : public TValueCol<CElementInfoAllCol>
{
public:
    using TValueCol<CElementInfoAllCol>::TValueCol;
};
class CElementInfoChoiceUntpdCol final : public TUntpdCol<CElementInfoChoiceCol>
{
public:
    using TUntpdCol<CElementInfoChoiceCol>::TUntpdCol;
};
class CElementInfoChoicePrimCol final : public TValueCol<CElementInfoChoiceCol>
{
public:
    using TValueCol<CElementInfoChoiceCol>::TValueCol;
};
class CElementInfoChoiceEnumCol final : public TValueCol<CElementInfoChoiceCol>
{
public:
    using TValueCol<CElementInfoChoiceCol>::TValueCol;
};
class CElementInfoChoiceClsCol final : public TObjectCol<CElementInfoChoiceCol>
{
public:
    using TObjectCol<CElementInfoChoiceCol>::TObjectCol;
};
class CElementInfoChoiceAbsClsCol final : public TObjectCol<CElementInfoChoiceCol>
{
public:
    using TObjectCol<CElementInfoChoiceCol>::TObjectCol;
};

// Enumerations repeating inside an all group have no reading or writing: the class
// can't be instantiated.
class CElementInfoAllEnumCol : public CElementInfo
{
public:
    CElementInfoAllEnumCol(const char *name, const char *namespaceUri, int propertyIndex);
};

} // namespace VxXmlLib16Data
