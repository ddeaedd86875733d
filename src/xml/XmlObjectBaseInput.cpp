#include "XmlObjectBase.h"

#include "binding/UnavailableRoute.h"

namespace VxXmlLib16 {

void CXmlObjectBase::FromXmlFile(const char *, const CSerializationContext &) { ThrowUnavailableRoute("FromXmlFile"); }

void CXmlObjectBase::FromXml(const wchar_t *, const CSerializationContext &) { ThrowUnavailableRoute("FromXml"); }

void CXmlObjectBase::FromXml(const char *, const CSerializationContext &) { ThrowUnavailableRoute("FromXml"); }

void CXmlObjectBase::FromXmlStream(const CBinaryData &, const CSerializationContext &)
{
    ThrowUnavailableRoute("FromXmlStream");
}

void CXmlObjectBase::FromXmlStream(unsigned char *const, std::uint32_t, const CSerializationContext &)
{
    ThrowUnavailableRoute("FromXmlStream");
}

void CXmlObjectBase::FromXmlElement(const CElement *, const CSerializationContext &)
{
    ThrowUnavailableRoute("FromXmlElement");
}

void CXmlObjectBase::FromXmlElement(const CXmlElement *, const CSerializationContext &)
{
    ThrowUnavailableRoute("FromXmlElement");
}

} // namespace VxXmlLib16
