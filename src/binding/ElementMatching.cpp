#include "XmlObjectBase.h"

#include "XmlDocument.h"

namespace VxXmlLib16 {

bool CXmlObjectBase::DoesElementNameMatch(const CSerializationContext &context, const CXmlElement *element,
                                          const char *name, const char *namespaceUri) const
{
    if (!element || element->GetLocalName() != (name ? name : ""))
        return false;
    // Without namespaces in the document model, or told to ignore them, the name decides.
    if (context.GetIgnoreNamespaces())
        return true;
    return element->GetNamespaceURI() == (namespaceUri ? namespaceUri : "");
}

} // namespace VxXmlLib16
