#include "Wildcards.h"

#include "XmlDocument.h"
#include "binding/NullText.h"

namespace VxXmlLib16 {

namespace {

// New elements go into the given namespace; with none, a "##" rule stands in for it.
std::string DefaultNamespace(const std::string &namespaceUri, const std::string &rule)
{
    if (namespaceUri.empty() && rule.size() >= 2 && rule.compare(0, 2, "##") == 0)
        return rule;
    return namespaceUri;
}

} // namespace

CElementCol::CElementCol(const char *namespaceUri, const char *rule, const char *targetNamespace, int, int)
    : CWildcardCol(namespaceUri, "##any", TextOrEmpty(targetNamespace)), CInstanceMonitor("CElementCol"),
      m_defaultNamespace(DefaultNamespace(TextOrEmpty(namespaceUri), TextOrEmpty(rule)))
{
    CXmlObjectBase::TestNamespace(TextOrEmpty(namespaceUri).c_str(), TextOrEmpty(rule).c_str(),
                                  GetTarget().c_str());
}

CElementCol::CElementCol(CloneTag, const CElementCol &source)
    : CWildcardCol(source.GetNamespace().c_str(), source.GetRule(), source.GetTarget()),
      CInstanceMonitor("CElementCol"), m_defaultNamespace(source.m_defaultNamespace)
{
}

CElementCol::~CElementCol() = default;

CSmartPtr<CElement> CElementCol::Add(CElement *element) { return Append(Tested(element)); }

CSmartPtr<CElement> CElementCol::Add(const char *name)
{
    if (m_defaultNamespace.empty())
        throw CVxInvalidStateException("A Namespace has not been set for this Collection");
    return Append(new CElement(name, m_defaultNamespace.c_str(), GetRule().c_str(), GetTarget().c_str()));
}

CSmartPtr<CElement> CElementCol::Add(const char *name, const char *namespaceUri)
{
    TestNamespace(TextOrEmpty(namespaceUri));
    return Append(new CElement(name, namespaceUri, GetRule().c_str(), GetTarget().c_str()));
}

void CElementCol::AddBefore(const CElement *next, CElement *element) { AddBeforeItem(next, Tested(element)); }

void CElementCol::AddAfter(const CElement *previous, CElement *element) { AddAfterItem(previous, Tested(element)); }

CSmartPtr<CElementCol> CElementCol::Clone() const
{
    CSmartPtr<CElementCol> copy = new CElementCol(CloneTag{}, *this);
    for (const CElement *element : *this)
        copy->AppendItem(element->Clone());
    return copy;
}

void CElementCol::ToXml_Int(CXmlWriter *writer, bool, const char *namespaceUri, const CSerializationContext &context,
                            bool) const
{
    ValidateCount(context);
    for (const CElement *element : *this)
        CXmlObjectBase::ToXml_Int(element, writer, false, namespaceUri, context, false);
}

template <class Accepts>
CXmlElement *CElementCol::ReadElements(CXmlElement *parent, CXmlElement *cursor, const CSerializationContext &context,
                                       const char *rule, Accepts accepts)
{
    while (cursor && accepts(*cursor)) {
        CSmartPtr<CElement> element = new CElement(cursor->GetLocalName().c_str(),
                                                   cursor->GetNamespaceURI().c_str(), rule, GetTarget().c_str());
        CXmlElement *next = CXmlObjectBase::FromXml_Int(element, parent, cursor, context);
        if (next == cursor)
            break;
        Add(element);
        cursor = next;
    }
    return cursor;
}

CXmlElement *CElementCol::FromXml_Int(CXmlElement *parent, CXmlElement *cursor, const CSerializationContext &context,
                                      bool)
{
    return ReadElements(parent, cursor, context, GetRule().c_str(), [this](const CXmlElement &element) {
        return IsNamespaceValid(element.GetNamespaceURI().c_str(), GetRule().c_str(), GetTarget().c_str());
    });
}

CXmlElement *CElementCol::FromXmlLockElementName_Int(std::string name, std::string namespaceUri, CXmlElement *parent,
                                                     CXmlElement *cursor, const CSerializationContext &context)
{
    return ReadElements(parent, cursor, context, "##any", [&](const CXmlElement &element) {
        return element.GetLocalName() == name && element.GetNamespaceURI() == namespaceUri;
    });
}

} // namespace VxXmlLib16
