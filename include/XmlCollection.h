#pragma once
// Repeating objects: a doubly linked list of counted items. The base of generated object
// collections and of the wildcard collections; a concrete collection lays a typed facade
// over the protected operations and writes ToXml_Int and FromXml_Int.

#include <iterator>

#include "XmlCollectionBase.h"

namespace VxXmlLib16 {

struct CNode
{
    explicit CNode(CXmlObjectBase *object) : item(object) {}

    CSmartPtr<CXmlObjectBase> item;
    CNode *next = nullptr;
    CNode *previous = nullptr;
};

// A forward iterator over the nodes; dereferencing gives the item as a T.
template <class T>
class CVxIterator
{
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T *;
    using difference_type = std::ptrdiff_t;
    using pointer = T **;
    using reference = T *;

    explicit CVxIterator(CNode *node = nullptr) : m_node(node) {}

    T *operator*() const { return static_cast<T *>(static_cast<CXmlObjectBase *>(m_node->item)); }
    CVxIterator &operator++()
    {
        m_node = m_node->next;
        return *this;
    }
    CVxIterator operator++(int)
    {
        CVxIterator before = *this;
        m_node = m_node->next;
        return before;
    }
    bool operator==(const CVxIterator &other) const { return m_node == other.m_node; }
    bool operator!=(const CVxIterator &other) const { return m_node != other.m_node; }

private:
    CNode *m_node;
};

class CXmlCollection : public CXmlCollectionBase
{
public:
    CXmlCollection() = default;
    CXmlCollection(const char *itemName, const char *itemNamespace, int minOccurs, int maxOccurs);
    // A copy takes the name, limits and listeners but starts without items: two lists
    // never share nodes. Concrete collections copy their items one by one.
    CXmlCollection(const CXmlCollection &other);
    CXmlCollection &operator=(const CXmlCollection &other);

    int GetCount() const override { return m_count; }
    void Clear() override;
    void Remove(int index) override;

    template <class T>
    CVxIterator<T> begin() const { return CVxIterator<T>(m_head); }
    template <class T>
    CVxIterator<T> end() const { return CVxIterator<T>(); }

protected:
    // Runs Clear, with all its events.
    ~CXmlCollection() override;

    // The attributes of pseudo items land on the parent element.
    void AttributesToXml_Int(CXmlWriter *writer, const CSerializationContext &context) const override;

    void AppendItem(CXmlObjectBase *item);
    void PrependItem(CXmlObjectBase *item);
    void AddItemAt(int index, CXmlObjectBase *item);
    void AddBeforeItem(const CXmlObjectBase *next, CXmlObjectBase *item);
    void AddAfterItem(const CXmlObjectBase *previous, CXmlObjectBase *item);
    CNode *GetNodeAtIndex(int index) const;
    CNode *GetNodeForItem(const CXmlObjectBase *item) const;
    void RemoveNode(CNode *node);

    CNode *GetHead() const { return m_head; }

private:
    // Every insertion: the Add event, the link, the count, AddComplete, Change. A
    // listener that throws from the first event stops the insertion before any change;
    // findPlace runs after that event and gives the node to insert in front of (null: at
    // the end).
    template <class FindPlace>
    void Insert(CXmlObjectBase *item, FindPlace findPlace);
    void LinkBefore(CNode *next, CNode *node);

    CNode *m_head = nullptr;
    CNode *m_tail = nullptr;
    int m_count = 0;
};

} // namespace VxXmlLib16
