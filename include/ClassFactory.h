#pragma once
// The base of generated factories: reads xsi:type from an element, so that a factory
// can build the derived class the document asks for.

#include <string>

#include "VxXmlLib16Fwd.h"

namespace VxXmlLib16 {

class CClassfactoryBase
{
public:
    virtual ~CClassfactoryBase() = default;

    // The local part of xsi:type: everything behind the first colon, else the whole
    // value; "" when the attribute is absent.
    static std::string GetElementType(CXmlElement *element);
    // The namespace of xsi:type's alias in the element's document; without an alias, or
    // for an alias the document does not know, the element's own namespace.
    static std::string GetElementTypeNamespaceUri(CXmlElement *element);
};

} // namespace VxXmlLib16
