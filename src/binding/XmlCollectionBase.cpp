#include "XmlCollectionBase.h"

#include "Exceptions.h"

namespace VxXmlLib16 {

CXmlCollectionBase::CXmlCollectionBase(const char *itemName, const char *itemNamespace, int minOccurs,
                                       int maxOccurs)
    : m_itemNamespace(itemNamespace ? itemNamespace : ""), m_minOccurs(minOccurs), m_maxOccurs(maxOccurs)
{
    SetElementName(itemName);
}

std::string CXmlCollectionBase::GetTargetNamespace() const
{
    throw CVxException("CXmlCollectionBase::GetTargetNamespace Should not be used from within a "
                       "Collection (program logic error)");
}

bool CXmlCollectionBase::IsValidCount(const CSerializationContext &context) const
{
    if (context.GetIgnoreInvalidCollectionCounts())
        return true;
    if (m_maxOccurs != -1 && GetCount() > m_maxOccurs)
        return false;
    return GetCount() >= m_minOccurs;
}

void CXmlCollectionBase::ValidateCount(const CSerializationContext &context) const
{
    if (context.GetIgnoreInvalidCollectionCounts())
        return;
    if (m_maxOccurs != -1 && GetCount() > m_maxOccurs)
        throw CVxValidationException(
            FormatString("The Maximum number of [%s] elements allowed in this collection is %d",
                         GetElementName().c_str(), m_maxOccurs),
            "");
    if (GetCount() < m_minOccurs)
        throw CVxValidationException(
            FormatString("The Minimum number of [%s] elements allowed in this collection is %d",
                         GetElementName().c_str(), m_minOccurs),
            "");
}

void CXmlCollectionBase::AddEventListener(IEventSink *listener) { m_listeners.push_back(listener); }

void CXmlCollectionBase::RemoveEventListener(IEventSink *listener) { m_listeners.remove(listener); }

void CXmlCollectionBase::FireOnCollectionChange()
{
    for (IEventSink *listener : m_listeners)
        FireOnCollectionChangeEvent(listener, this);
}

void CXmlCollectionBase::FireOnCollectionAdd(void *item)
{
    for (IEventSink *listener : m_listeners)
        FireOnCollectionAddEvent(listener, this, item);
}

void CXmlCollectionBase::FireOnCollectionAddComplete(void *item)
{
    for (IEventSink *listener : m_listeners)
        FireOnCollectionAddCompleteEvent(listener, this, item);
}

void CXmlCollectionBase::FireOnCollectionRemove(int index)
{
    for (IEventSink *listener : m_listeners)
        FireOnCollectionRemoveEvent(listener, this, index);
}

void CXmlCollectionBase::FireOnCollectionRemoveComplete(int index)
{
    for (IEventSink *listener : m_listeners)
        FireOnCollectionRemoveCompleteEvent(listener, this, index);
}

} // namespace VxXmlLib16
