#pragma once
// The option set of one serialisation or deserialisation. It travels as a constant
// reference through every entry point and metadata call and holds no progress.

#include <string>
#include <vector>

#include "Enums.h"
#include "NamespaceAliasMap.h"
#include "SmartPtr.h"
#include "VxXmlLib16Fwd.h"

namespace VxXmlLib16 {

class CSerializationContext
{
public:
    CSerializationContext();
    CSerializationContext(const CSerializationContext &other);
    CSerializationContext &operator=(const CSerializationContext &other);
    virtual ~CSerializationContext();

    // The one process-wide default instance; changing it changes the default for all.
    static CSerializationContext &GetDefaultContext();

    std::string GetDefaultNamespaceURI() const { return m_defaultNamespaceUri; }
    void SetDefaultNamespaceURI(const char *uri) { m_defaultNamespaceUri = uri ? uri : ""; }
    bool GetWriteTypeAttribute() const { return m_writeTypeAttribute; }
    void SetWriteTypeAttribute(bool value) { m_writeTypeAttribute = value; }
    const CNamespaceAliasMap &GetNamespaceAliases() const { return m_namespaceAliases; }
    CNamespaceAliasMap &GetNamespaceAliases() { return m_namespaceAliases; }
    const std::vector<std::string> &GetProcessingInstructions() const { return m_processingInstructions; }
    std::vector<std::string> &GetProcessingInstructions() { return m_processingInstructions; }
    // Written on the root before its own attributes. Created on first use (empty
    // namespace, rule "##any") and shared by the copies made after that.
    CSmartPtr<CAttributeCol> GetAdditionalRootAttributes() const;
    // The same collection, or null while nobody asked for it: the writers' way to it,
    // so that writing through a shared context never creates anything.
    const CAttributeCol *FindAdditionalRootAttributes() const { return m_additionalRootAttributes; }
    std::string GetInLineSchema() const { return m_inlineSchema; }
    void SetInLineSchema(const char *schema) { m_inlineSchema = schema ? schema : ""; }
    bool GetIgnoreInvalidCollectionCounts() const { return m_ignoreInvalidCollectionCounts; }
    void SetIgnoreInvalidCollectionCounts(bool value) { m_ignoreInvalidCollectionCounts = value; }
    bool GetIgnoreMissingChoice() const { return m_ignoreMissingChoice; }
    void SetIgnoreMissingChoice(bool value) { m_ignoreMissingChoice = value; }
    bool GetIgnoreMissingMandatoryElements() const { return m_ignoreMissingMandatoryElements; }
    // Refuses true while unknown elements are ignored: the reader can't ignore both.
    void SetIgnoreMissingMandatoryElements(bool value);
    bool GetIgnoreUnknownElements() const { return m_ignoreUnknownElements; }
    // Refuses true while missing mandatory elements are ignored.
    void SetIgnoreUnknownElements(bool value);
    bool GetIgnoreUnknownAttributes() const { return m_ignoreUnknownAttributes; }
    void SetIgnoreUnknownAttributes(bool value) { m_ignoreUnknownAttributes = value; }
    // True when the flag is set or the document model has no namespaces.
    bool GetIgnoreNamespaces() const;
    void SetIgnoreNamespaces(bool value) { m_ignoreNamespaces = value; }
    SchemaType GetSchemaType() const { return m_schemaType; }
    void SetSchemaType(SchemaType value) { m_schemaType = value; }
    bool GetNoOptionalAttributeDefaultOutput() const { return m_noOptionalAttributeDefaultOutput; }
    void SetNoOptionalAttributeDefaultOutput(bool value) { m_noOptionalAttributeDefaultOutput = value; }
    bool GetWriteDefaultElementValues() const { return m_writeDefaultElementValues; }
    void SetWriteDefaultElementValues(bool value) { m_writeDefaultElementValues = value; }
    bool GetStripCDATA() const { return m_stripCDATA; }
    void SetStripCDATA(bool value) { m_stripCDATA = value; }
    std::string GetIndentChars() const { return m_indentChars; }
    // Blanks and tabs only; null sets the empty string.
    void SetIndentChars(const char *text);

private:
    std::string m_defaultNamespaceUri;
    bool m_writeTypeAttribute = true;
    CNamespaceAliasMap m_namespaceAliases;
    mutable CSmartPtr<CAttributeCol> m_additionalRootAttributes;
    std::vector<std::string> m_processingInstructions;
    std::string m_inlineSchema;
    bool m_ignoreInvalidCollectionCounts = false;
    bool m_ignoreMissingChoice = false;
    bool m_ignoreMissingMandatoryElements = false;
    bool m_ignoreUnknownElements = false;
    bool m_ignoreUnknownAttributes = false;
    bool m_ignoreNamespaces = false;
    SchemaType m_schemaType = SchemaType_Namespaced;
    bool m_noOptionalAttributeDefaultOutput = false;
    bool m_writeDefaultElementValues = false;
    bool m_stripCDATA = true;
    std::string m_indentChars = "\t";
};

} // namespace VxXmlLib16
