#include "ClassFactory.h"

#include "XmlDocument.h"
#include "XmlWriter.h"

namespace VxXmlLib16 {

namespace {

// The value of xsi:type; "" for no attribute and for no element.
std::string TypeAttribute(const CXmlElement *element)
{
    return element ? element->GetAttribute("type", CXmlWriter::XsiNamespaceUri) : std::string();
}

} // namespace

std::string CClassfactoryBase::GetElementType(CXmlElement *element)
{
    const std::string type = TypeAttribute(element);
    const std::size_t colon = type.find(':');
    return colon == std::string::npos ? type : type.substr(colon + 1);
}

std::string CClassfactoryBase::GetElementTypeNamespaceUri(CXmlElement *element)
{
    if (!element)
        return std::string();
    const std::string type = TypeAttribute(element);
    const std::size_t colon = type.find(':');
    if (colon != std::string::npos) {
        std::string uri = element->GetDocument()->LookupNamespaceFromAlias(type.substr(0, colon).c_str());
        if (!uri.empty())
            return uri;
    }
    return element->GetNamespaceURI();
}

} // namespace VxXmlLib16
