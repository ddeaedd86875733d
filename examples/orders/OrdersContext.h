#pragma once
// The options the orders samples are read and written with: the schema's namespace as
// the default, and the aliases the documents use for xsi and the extension namespace.

#include "Orders.h"

namespace Orders {

inline VxXmlLib16::CSerializationContext DocumentContext()
{
    VxXmlLib16::CSerializationContext context;
    context.SetDefaultNamespaceURI(Namespace);
    context.GetNamespaceAliases().Add("xsi", "http://www.w3.org/2001/XMLSchema-instance");
    context.GetNamespaceAliases().Add("ext", "urn:example:extension");
    return context;
}

} // namespace Orders
