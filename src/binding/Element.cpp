#include "Wildcards.h"

#include "BinaryData.h"
#include "TextStream.h"
#include "XmlDocument.h"
#include "XmlTextWriter.h"
#include "binding/NullText.h"

namespace VxXmlLib16 {

namespace {

bool IsRuleKeyword(const char *namespaceUri)
{
    const std::string uri = namespaceUri;
    return uri == "##any" || uri == "##other" || uri == "##local" || uri == "##targetNamespace";
}

// A rule keyword is a namespace of nobody.
void RefuseKeyword(const char *namespaceUri)
{
    if (namespaceUri && IsRuleKeyword(namespaceUri))
        throw CVxInvalidNamespaceException(FormatString("Invalid Namespace [%s].", namespaceUri), "");
}

} // namespace

CElement::CElement(const char *name) : CInstanceMonitor("CElement") { Init(name, "", "##any", ""); }

CElement::CElement(const char *name, const char *namespaceUri) : CInstanceMonitor("CElement")
{
    RefuseKeyword(namespaceUri);
    Init(name, namespaceUri, namespaceUri, "");
}

CElement::CElement(const char *name, const char *namespaceUri, const char *rule, const char *targetNamespace)
    : CInstanceMonitor("CElement")
{
    Init(name, namespaceUri, rule, targetNamespace);
}

CElement::CElement(CXmlObjectBase *object, const char *defaultNamespace) : CInstanceMonitor("CElement")
{
    Init("", "", "##any", "");
    if (!object)
        throw CVxInvalidParamException("The object to build the element from is NULL");
    m_defaultNamespace = TextOrEmpty(defaultNamespace);
    CSerializationContext context;
    context.SetDefaultNamespaceURI(m_defaultNamespace.c_str());
    const CBinaryData data =
        object->ToXmlStream(false, false, XmlEncoding_UTF8, EOLType_LF, context, CompressionType_None);
    CXmlDocument document(context);
    // The document copies the bytes before it parses them.
    document.LoadXmlStream(const_cast<unsigned char *>(data.GetData()), data.GetLength());
    CopyXmlElement(document.GetDocumentElement());
}

CElement::CElement(CloneTag, const CElement &source)
    : CInstanceMonitor("CElement"), m_text(source.m_text), m_namespace(source.m_namespace), m_rule(source.m_rule),
      m_targetNamespace(source.m_targetNamespace), m_attributes(source.m_attributes->Clone()),
      m_children(source.m_children->Clone()), m_defaultNamespace(source.m_defaultNamespace)
{
    SetElementName(source.GetElementName().c_str());
}

CElement::~CElement() = default;

void CElement::Init(const char *name, const char *namespaceUri, const char *rule, const char *targetNamespace)
{
    if (!name)
        throw CVxInvalidNamespaceException("Element Name must have a value", "");
    if (!namespaceUri)
        throw CVxInvalidNamespaceException("Element Namespace must have a value", "");
    if (!rule)
        throw CVxInvalidNamespaceException("Namespace Restriction must have a value", "");
    if (!targetNamespace)
        throw CVxInvalidNamespaceException("Target Namespace must have a value", "");
    TestNamespace(namespaceUri, rule, targetNamespace);
    SetElementName(name);
    m_namespace = namespaceUri;
    m_rule = rule;
    m_targetNamespace = targetNamespace;
    m_attributes = new CAttributeCol(namespaceUri, "##any", targetNamespace);
    m_children = new CElementCol(namespaceUri, "##any", targetNamespace, 0, -1);
}

void CElement::SetName(const char *name)
{
    SetElementName(name);
    FireOnChangeName();
}

void CElement::SetText(const char *text)
{
    m_text = TextOrEmpty(text);
    FireOnChangeText();
}

void CElement::SetNamespace(const char *namespaceUri)
{
    m_namespace = TextOrEmpty(namespaceUri);
    FireOnChangeNamespace();
}

CSmartPtr<CElement> CElement::Clone() const { return new CElement(CloneTag{}, *this); }

void CElement::SetNamespaceRestrictions(const char *rule, const char *targetNamespace)
{
    const std::string ruleText = TextOrEmpty(rule);
    const std::string target = TextOrEmpty(targetNamespace);
    try {
        TestNamespace(m_namespace.c_str(), ruleText.c_str(), target.c_str());
    } catch (const CVxException &refusal) {
        throw new CVxInvalidNamespaceException(
            FormatString("The namespace %s in the class %s is invalid against restriction %s",
                         GetElementName().c_str(), m_namespace.c_str(), ruleText.c_str()),
            "", refusal);
    }
    for (const CAttribute *attribute : *m_attributes)
        TestNamespace(attribute->GetNamespace().c_str(), ruleText.c_str(), target.c_str());
    for (CElement *child : *m_children)
        child->SetNamespaceRestrictions(ruleText.c_str(), target.c_str());
}

void CElement::FromXml(const char *text, const CSerializationContext &context)
{
    CXmlDocument document(context);
    document.LoadXml(text);
    CXmlElement *root = document.GetDocumentElement();
    FromXml_Int(root, root, context, false);
}

void CElement::CopyXmlElement(const CXmlElement *element)
{
    SetElementName(element->GetLocalName().c_str());
    m_namespace = element->GetNamespaceURI();
    m_text = element->GetText();
    m_attributes->Clear();
    m_children->Clear();
    for (const CXmlAttribute *attribute : element->GetAttributes()) {
        m_attributes->Add(attribute->GetLocalName().c_str(), attribute->GetValue().c_str(),
                          attribute->GetNamespaceURI().c_str());
        // A document read without namespace processing keeps its declarations.
        if (attribute->GetLocalName() == "xmlns")
            m_defaultNamespace = attribute->GetValue();
    }
    for (const CXmlElement *child = element->GetFirstElement(); child; child = child->GetNextSiblingElement()) {
        CSmartPtr<CElement> copy = new CElement(child->GetLocalName().c_str());
        copy->CopyXmlElement(child);
        m_children->Add(copy);
    }
}

void CElement::ToXml_Int(CXmlWriter *writer, bool, const char *namespaceUri, const CSerializationContext &context,
                         bool isChoiceMember) const
{
    if (!m_defaultNamespace.empty()) {
        WriteSubtree(writer, namespaceUri, context, isChoiceMember);
        return;
    }
    writer->StartElement(GetElementName(), m_namespace);
    CXmlObjectBase::ToXml_Int(m_attributes, writer, false, namespaceUri, context, false);
    CXmlObjectBase::ToXml_Int(m_children, writer, false, namespaceUri, context, isChoiceMember);
    writer->WriteElementValue(m_text, ItemType_string, false);
    writer->EndElement();
}

// An element with a default namespace of its own is rendered by a private text writer
// that declares that namespace on it, and the text is pasted whole into the outer
// document, outside the outer writer's alias bookkeeping. Its attributes are not written.
void CElement::WriteSubtree(CXmlWriter *writer, const char *namespaceUri, const CSerializationContext &context,
                            bool isChoiceMember) const
{
    auto *outer = dynamic_cast<CXmlTextWriter *>(writer);
    if (!outer)
        throw CVxException(FormatString("The element [%s] has a default namespace and can only be written as XML text",
                                        GetElementName().c_str()));
    CTextStream stream(XmlEncoding_None);
    CXmlTextWriter subtree(&stream);
    subtree.SetEOLType(outer->GetEOLType());
    subtree.SetFormatted(outer->GetFormatted());
    subtree.SetIndentChars(context.GetIndentChars());
    subtree.SetDefaultNamespace(m_defaultNamespace);
    subtree.StartElement(GetElementName(), m_namespace);
    CSerializationContext subtreeContext(context);
    subtreeContext.SetDefaultNamespaceURI(m_defaultNamespace.c_str());
    CXmlObjectBase::ToXml_Int(m_children, &subtree, false, namespaceUri, subtreeContext, isChoiceMember);
    subtree.WriteElementValue(m_text, ItemType_string, false);
    subtree.EndElement();
    stream.Flush();
    const std::size_t length = stream.GetLength();
    outer->CloseStartTag();
    outer->WriteRawText(std::string(stream.GetText(), length));
}

CXmlElement *CElement::FromXml_Int(CXmlElement *, CXmlElement *cursor, const CSerializationContext &context, bool)
{
    if (!cursor || !IsNamespaceValid(cursor->GetNamespaceURI().c_str(), m_rule.c_str(), m_targetNamespace.c_str()))
        return cursor;
    m_attributes->Clear();
    m_children->Clear();
    CXmlObjectBase::FromXml_Int(m_attributes, cursor, nullptr, context);
    if (CXmlObjectBase::FromXml_Int(m_children, cursor, cursor->GetFirstElement(), context))
        throw CVxValidationException(FormatString("Invalid Element [%s] found.", cursor->GetLocalName().c_str()),
                                     cursor->GetXPath());
    m_text = cursor->GetText();
    SetElementName(cursor->GetLocalName().c_str());
    m_namespace = cursor->GetNamespaceURI();
    return cursor->GetNextSiblingElement();
}

} // namespace VxXmlLib16
