#include "XmlObjectBase.h"

#include "XmlCollectionBase.h"
#include "XmlDocument.h"
#include "binding/EntryAccess.h"

namespace VxXmlLib16 {

bool CXmlObjectBase::DoesElementNameMatch(const CSerializationContext &context, const CXmlElement *element,
                                          const char *name, const char *namespaceUri) const
{
    return IsNodeNamed(context, element, name ? name : "", namespaceUri ? namespaceUri : "");
}

void CXmlObjectBase::Choice_Read_Collection(CXmlCollectionBase *collection, CXmlElement *parent,
                                            CXmlElement *&cursor, std::int32_t &count,
                                            const CSerializationContext &context)
{
    if (count >= 1)
        return;
    CXmlElement *next = FromXml_Int(collection, parent, cursor, context);
    if (next != cursor) {
        cursor = next;
        collection->ValidateCount(context);
        ++count;
    }
}

} // namespace VxXmlLib16
