#pragma once
// Attribute metadata: one entry per attribute of a generated class, published in a
// null-terminated table. An entry decides whether and what to write, whether an incoming
// attribute is its own, and whether its absence is a fault; the driver owns the loops.

#include <cstdint>
#include <string>

#include "ItemType.h"
#include "PrimitiveRestrictions.h"
#include "VxXmlLib16Fwd.h"
#include "WhitespaceUtils.h"

namespace VxXmlLib16Data {

class CAttributeInfo
{
    friend class VxXmlLib16::CXmlGeneratedClass;

public:
    // A null default value is the empty string: no default.
    CAttributeInfo(const char *name, const char *namespaceUri, int propertyIndex, bool optional,
                   const char *defaultValue);
    CAttributeInfo(const CAttributeInfo &) = default;
    CAttributeInfo &operator=(const CAttributeInfo &) = default;
    virtual ~CAttributeInfo();

    const std::string &GetName() const { return m_name; }
    const std::string &GetNamespace() const { return m_namespaceUri; }
    int GetPropertyIndex() const { return m_propertyIndex; }
    bool IsOptional() const { return m_optional; }
    const std::string &GetDefaultValue() const { return m_defaultValue; }

    // The one namespace test of the runtime, shared with the wildcards and the object base.
    static bool IsNamespaceValid(const std::string &ns, const std::string &rule, const std::string &targetNamespace);
    static void TestNamespace(const std::string &ns, const std::string &rule, const std::string &targetNamespace);

protected:
    virtual void AttributeToXml(const VxXmlLib16::CSerializationContext &context,
                                const VxXmlLib16::CXmlGeneratedClass *object,
                                VxXmlLib16::CXmlWriter *writer) const = 0;
    virtual bool AttributeFromXml(const VxXmlLib16::CSerializationContext &context,
                                  VxXmlLib16::CXmlGeneratedClass *object,
                                  VxXmlLib16::CXmlAttribute *attribute) = 0;
    virtual void Validate(const VxXmlLib16::CSerializationContext &context, bool found) const = 0;

    void ReadProperty(const VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::VxVariant &value) const;
    // A CVxException of the generated property is wrapped with this attribute's name
    // (get) or its text and path (set).
    void InvokePropertyGet(VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::VxVariant &value) const;
    void InvokePropertySet(VxXmlLib16::CXmlGeneratedClass *object, VxXmlLib16::VxVariant &value,
                           const VxXmlLib16::CXmlAttribute &attribute) const;
    bool IsThisAttribute(const VxXmlLib16::CSerializationContext &context,
                         VxXmlLib16::CXmlAttribute *attribute) const;
    // An optional attribute whose text equals its default stays out when the context
    // asks for it; the comparison is on the text, byte for byte.
    bool IsSuppressedDefault(const VxXmlLib16::CSerializationContext &context, const std::string &text) const;
    // The fault of a required attribute that never came.
    void ValidateRequired(bool found) const;

    static std::string GetTargetNamespace(const VxXmlLib16::CXmlObjectBase *object);
    static void ToXml_Int(const VxXmlLib16::CXmlObjectBase *object, VxXmlLib16::CXmlWriter *writer, bool isRoot,
                          const char *targetNamespace, const VxXmlLib16::CSerializationContext &context);

private:
    std::string m_name;
    std::string m_namespaceUri;
    std::int32_t m_propertyIndex;
    bool m_optional;
    std::string m_defaultValue;
};

class CAttributeInfoPrimitive : public CAttributeInfo
{
public:
    // A null format override is empty.
    CAttributeInfoPrimitive(const char *name, const char *namespaceUri, int propertyIndex, bool optional,
                            VxXmlLib16::ItemType type, const char *formatOverride,
                            VxXmlLib16::CWhitespaceUtils::WhitespaceRule rule,
                            const VxXmlLib16::CPrimitiveRestrictions &restrictions, const char *defaultValue);

    void CheckRestriction(VxXmlLib16::VxVariant value) const;

protected:
    void AttributeToXml(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlWriter *writer) const override;
    // The namespace test is exact even when the context ignores namespaces.
    bool AttributeFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                          VxXmlLib16::CXmlAttribute *attribute) override;
    void Validate(const VxXmlLib16::CSerializationContext &context, bool found) const override;

private:
    VxXmlLib16::CPrimitiveRestrictions m_restrictions;
    VxXmlLib16::ItemType m_type;
    std::string m_formatOverride;
    VxXmlLib16::CWhitespaceUtils::WhitespaceRule m_rule;
};

class CAttributeInfoEnum : public CAttributeInfo
{
public:
    CAttributeInfoEnum(const char *name, const char *namespaceUri, int propertyIndex, bool optional,
                       const char *(*toString)(int), int (*fromString)(const char *), const char *defaultValue);

protected:
    void AttributeToXml(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlWriter *writer) const override;
    // Unlike a primitive, an enumeration honours ignore-namespaces; its text reaches the
    // generated function untrimmed.
    bool AttributeFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                          VxXmlLib16::CXmlAttribute *attribute) override;
    void Validate(const VxXmlLib16::CSerializationContext &context, bool found) const override;

private:
    int (*m_fromString)(const char *);
    const char *(*m_toString)(int);
};

// An anyAttribute: its property is a CAttributeCol that takes every attribute whose
// namespace passes the rule.
class CAttributeInfoAny : public CAttributeInfo
{
public:
    CAttributeInfoAny(const char *name, const char *namespaceUri, int propertyIndex, bool optional,
                      const char *namespaceRule, const char *targetNamespace, const char *defaultValue);

protected:
    void AttributeToXml(const VxXmlLib16::CSerializationContext &context, const VxXmlLib16::CXmlGeneratedClass *object,
                        VxXmlLib16::CXmlWriter *writer) const override;
    bool AttributeFromXml(const VxXmlLib16::CSerializationContext &context, VxXmlLib16::CXmlGeneratedClass *object,
                          VxXmlLib16::CXmlAttribute *attribute) override;
    // A wildcard is never missing.
    void Validate(const VxXmlLib16::CSerializationContext &context, bool found) const override;

private:
    std::string m_namespaceRule;
    std::string m_targetNamespace;
};

} // namespace VxXmlLib16Data
