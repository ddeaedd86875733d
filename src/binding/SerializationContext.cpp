#include "SerializationContext.h"

#include "Exceptions.h"
#include "Wildcards.h"

namespace VxXmlLib16 {

CSerializationContext::CSerializationContext() = default;

CSerializationContext::CSerializationContext(const CSerializationContext &other) { *this = other; }

CSerializationContext &CSerializationContext::operator=(const CSerializationContext &other) = default;

CSerializationContext::~CSerializationContext() = default;

CSmartPtr<CAttributeCol> CSerializationContext::GetAdditionalRootAttributes() const
{
    if (!m_additionalRootAttributes)
        m_additionalRootAttributes = new CAttributeCol("", "##any", "");
    return m_additionalRootAttributes;
}

CSerializationContext &CSerializationContext::GetDefaultContext()
{
    static CSerializationContext m_defaultContext;
    return m_defaultContext;
}

void CSerializationContext::SetIgnoreMissingMandatoryElements(bool value)
{
    if (value && m_ignoreUnknownElements)
        throw CVxInvalidStateException(
            "The parser can only ignore additional elements, or ignore the fact that some required "
            "ones are missing, you can not ignore both\nSet IgnoreUnknownElements to false before "
            "setting IgnoreMissingMandatoryElements to true");
    m_ignoreMissingMandatoryElements = value;
}

void CSerializationContext::SetIgnoreUnknownElements(bool value)
{
    if (value && m_ignoreMissingMandatoryElements)
        throw CVxInvalidStateException(
            "The parser can only ignore additional elements, or ignore the fact that some required "
            "ones are missing, you can not ignore both\nSet IgnoreMissingMandatoryElements to false "
            "before setting IgnoreUnknownElements to true");
    m_ignoreUnknownElements = value;
}

bool CSerializationContext::GetIgnoreNamespaces() const
{
    return m_ignoreNamespaces || m_schemaType == SchemaType_NoNamespaces;
}

void CSerializationContext::SetIndentChars(const char *text)
{
    if (!text) {
        m_indentChars.clear();
        return;
    }
    for (const char *p = text; *p; ++p)
        if (*p != ' ' && *p != '\t')
            throw CVxInvalidParamException(
                "IndentChars can only contain Whitespace characters, i.e. \\t or spaces");
    m_indentChars = text;
}

} // namespace VxXmlLib16
