#include "XmlCollection.h"

#include <memory>

#include "Exceptions.h"

namespace VxXmlLib16 {

CXmlCollection::CXmlCollection(const char *itemName, const char *itemNamespace, int minOccurs, int maxOccurs)
    : CXmlCollectionBase(itemName, itemNamespace, minOccurs, maxOccurs)
{
}

CXmlCollection::CXmlCollection(const CXmlCollection &other) : CXmlCollectionBase(other) {}

CXmlCollection &CXmlCollection::operator=(const CXmlCollection &other)
{
    CXmlCollectionBase::operator=(other);
    return *this;
}

CXmlCollection::~CXmlCollection() { CXmlCollection::Clear(); }

void CXmlCollection::Clear()
{
    while (m_count >= 1)
        Remove(0);
}

void CXmlCollection::Remove(int index) { RemoveNode(GetNodeAtIndex(index)); }

void CXmlCollection::AttributesToXml_Int(CXmlWriter *writer, const CSerializationContext &context) const
{
    for (CNode *node = m_head; node; node = node->next)
        CXmlObjectBase::AttributesToXml_Int(node->item, writer, context);
}

void CXmlCollection::LinkBefore(CNode *next, CNode *node)
{
    node->next = next;
    node->previous = next ? next->previous : m_tail;
    (node->previous ? node->previous->next : m_head) = node;
    (next ? next->previous : m_tail) = node;
}

template <class FindPlace>
void CXmlCollection::Insert(CXmlObjectBase *item, FindPlace findPlace)
{
    FireOnCollectionAdd(item);
    CNode *next = findPlace();
    LinkBefore(next, new CNode(item));
    ++m_count;
    FireOnCollectionAddComplete(item);
    FireOnCollectionChange();
}

void CXmlCollection::AppendItem(CXmlObjectBase *item)
{
    Insert(item, [] { return static_cast<CNode *>(nullptr); });
}

void CXmlCollection::PrependItem(CXmlObjectBase *item)
{
    Insert(item, [this] { return m_head; });
}

void CXmlCollection::AddItemAt(int index, CXmlObjectBase *item)
{
    if (index < 0 || index > m_count)
        throw CVxInvalidParamException("Index out of range");
    if (index == m_count)
        AppendItem(item);
    else
        Insert(item, [this, index] { return GetNodeAtIndex(index); });
}

void CXmlCollection::AddBeforeItem(const CXmlObjectBase *next, CXmlObjectBase *item)
{
    if (!next)
        AppendItem(item);
    else
        Insert(item, [this, next] { return GetNodeForItem(next); });
}

void CXmlCollection::AddAfterItem(const CXmlObjectBase *previous, CXmlObjectBase *item)
{
    if (!previous)
        PrependItem(item);
    else
        Insert(item, [this, previous] { return GetNodeForItem(previous)->next; });
}

CNode *CXmlCollection::GetNodeAtIndex(int index) const
{
    if (index < 0 || index >= m_count)
        throw CVxInvalidParamException(FormatString("Index %d is out of range, use 0 - %d", index, m_count));
    CNode *node = m_head;
    for (int i = 0; i < index; ++i)
        node = node->next;
    return node;
}

CNode *CXmlCollection::GetNodeForItem(const CXmlObjectBase *item) const
{
    const CXmlObjectBase *wanted = item->GetBase();
    for (CNode *node = m_head; node; node = node->next)
        if (static_cast<const CXmlObjectBase *>(node->item)->GetBase() == wanted)
            return node;
    throw CVxInvalidParamException("The object was not found in the collection");
}

void CXmlCollection::RemoveNode(CNode *node)
{
    FireOnCollectionRemove(-1);
    (node->previous ? node->previous->next : m_head) = node->next;
    (node->next ? node->next->previous : m_tail) = node->previous;
    delete node; // releases the item
    --m_count;
    FireOnCollectionRemoveComplete(-1);
    FireOnCollectionChange();
}

} // namespace VxXmlLib16
