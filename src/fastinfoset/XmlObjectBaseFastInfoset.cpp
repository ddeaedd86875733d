#include "XmlObjectBase.h"

#include "BinaryData.h"
#include "binding/UnavailableRoute.h"

namespace VxXmlLib16 {

void CXmlObjectBase::ToFastInfosetFile(const char *, FInfoDecl, const CSerializationContext &, CompressionType) const
{
    ThrowUnavailableRoute("ToFastInfosetFile");
}

CBinaryData CXmlObjectBase::ToFastInfosetStream(FInfoDecl, const CSerializationContext &, CompressionType) const
{
    ThrowUnavailableRoute("ToFastInfosetStream");
}

} // namespace VxXmlLib16
