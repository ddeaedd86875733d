#pragma once
// What element and attribute entries share: the name test of a node and the reading of
// the generated property behind an entry.

#include <string>
#include <string_view>

#include "Exceptions.h"
#include "SerializationContext.h"
#include "Variant.h"
#include "XmlGeneratedClass.h"

namespace VxXmlLib16 {

// A node of this local name and, unless the context ignores namespaces, of this namespace.
template <class Node>
bool IsNodeNamed(const CSerializationContext &context, const Node *node, std::string_view name,
                 std::string_view namespaceUri)
{
    if (!node || node->GetLocalName() != name)
        return false;
    return context.GetIgnoreNamespaces() || node->GetNamespaceURI() == namespaceUri;
}

// A fault of the generated accessor is wrapped with the property's name.
inline void GetPropertyValue(CXmlGeneratedClass *object, int propertyIndex, const std::string &name, VxVariant &value)
{
    try {
        object->AccessProperty(propertyIndex, true, value);
    } catch (const CVxException &e) {
        throw CVxValidationException(FormatString("Failed to get the property value for [%s].", name.c_str()), "", e);
    }
}

} // namespace VxXmlLib16
