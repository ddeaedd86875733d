#pragma once
// The base of all repeating content: the items' element name and namespace, the
// occurrence limits, and the listeners of the collection events.

#include <list>
#include <string>

#include "XmlObjectBase.h"

namespace VxXmlLib16 {

class CXmlCollectionBase : public CXmlObjectBase
{
public:
    CXmlCollectionBase() = default;
    CXmlCollectionBase(const char *itemName, const char *itemNamespace, int minOccurs, int maxOccurs);

    CXmlObjectBase *GetBase() override { return this; }
    // A collection is never a top-level object.
    std::string GetTargetNamespace() const override;
    std::string GetNamespace() const override { return m_itemNamespace; }

    virtual int GetCount() const = 0;
    virtual void Clear() = 0;
    virtual void Remove(int index) = 0;
    virtual void ValidateCount(const CSerializationContext &context) const;
    virtual bool IsValidCount(const CSerializationContext &context) const;

    int GetMinOccurs() const { return m_minOccurs; }
    int GetMaxOccurs() const { return m_maxOccurs; }
    // A listener may be registered more than once; removal drops every entry of it.
    void AddEventListener(IEventSink *listener);
    void RemoveEventListener(IEventSink *listener);

protected:
    void FireOnCollectionChange();
    void FireOnCollectionAdd(void *item);
    void FireOnCollectionAddComplete(void *item);
    void FireOnCollectionRemove(int index);
    void FireOnCollectionRemoveComplete(int index);

private:
    std::string m_itemNamespace;
    std::list<IEventSink *> m_listeners;
    int m_minOccurs = 0;
    int m_maxOccurs = -1; // no limit
};

} // namespace VxXmlLib16
