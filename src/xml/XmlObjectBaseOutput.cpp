#include "XmlObjectBase.h"

#include "BinaryData.h"
#include "binding/UnavailableRoute.h"

namespace VxXmlLib16 {

void CXmlObjectBase::ToXmlFile(const char *, bool, bool, XmlEncoding, EOLType, const CSerializationContext &,
                               CompressionType) const
{
    ThrowUnavailableRoute("ToXmlFile");
}

CBinaryData CXmlObjectBase::ToXmlStream(bool, bool, XmlEncoding, EOLType, const CSerializationContext &,
                                        CompressionType) const
{
    ThrowUnavailableRoute("ToXmlStream");
}

} // namespace VxXmlLib16
