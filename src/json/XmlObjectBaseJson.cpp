#include "XmlObjectBase.h"

#include "BinaryData.h"
#include "binding/UnavailableRoute.h"

namespace VxXmlLib16 {

void CXmlObjectBase::ToJsonFile(const char *, bool, XmlEncoding, EOLType, const CSerializationContext &,
                                CompressionType) const
{
    ThrowUnavailableRoute("ToJsonFile");
}

std::string CXmlObjectBase::ToJson(bool, EOLType, const CSerializationContext &) const
{
    ThrowUnavailableRoute("ToJson");
}

CBinaryData CXmlObjectBase::ToJsonStream(bool, XmlEncoding, EOLType, const CSerializationContext &,
                                         CompressionType) const
{
    ThrowUnavailableRoute("ToJsonStream");
}

void CXmlObjectBase::FromJsonFile(const char *, const CSerializationContext &) { ThrowUnavailableRoute("FromJsonFile"); }

void CXmlObjectBase::FromJson(const wchar_t *, const CSerializationContext &) { ThrowUnavailableRoute("FromJson"); }

void CXmlObjectBase::FromJson(const char *, const CSerializationContext &) { ThrowUnavailableRoute("FromJson"); }

void CXmlObjectBase::FromJsonStream(const CBinaryData &, const CSerializationContext &)
{
    ThrowUnavailableRoute("FromJsonStream");
}

void CXmlObjectBase::FromJsonStream(unsigned char *const, std::uint32_t, const CSerializationContext &)
{
    ThrowUnavailableRoute("FromJsonStream");
}

} // namespace VxXmlLib16
