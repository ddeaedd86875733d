#pragma once
// What every generated file of a schema shares: the storage of a class's metadata
// tables, and the collection of generated objects of one element name.

#include <atomic>
#include <initializer_list>
#include <mutex>
#include <string>

#include "VxXmlLib16.h"

namespace VxGenerated {

// The three tables of one generated class: built on first use under m_csInit, read-only
// afterwards, freed with CleanMetaData when the program ends.
class CClassTables
{
public:
    using Builder = void (*)(CClassTables &tables);
    explicit CClassTables(Builder builder) : m_builder(builder) {}
    CClassTables(const CClassTables &) = delete;
    CClassTables &operator=(const CClassTables &) = delete;
    ~CClassTables() { VxXmlLib16::CXmlGeneratedClass::CleanMetaData(m_info, m_elements, m_attributes); }

    VxXmlLib16Data::CParentElementInfo *Info() { return Built().m_info; }
    VxXmlLib16Data::CElementInfo **Elements() { return Built().m_elements; }
    VxXmlLib16Data::CAttributeInfo **Attributes() { return Built().m_attributes; }

    // Called by the builder.
    void Set(VxXmlLib16Data::CParentElementInfo *info, std::initializer_list<VxXmlLib16Data::CElementInfo *> elements,
             std::initializer_list<VxXmlLib16Data::CAttributeInfo *> attributes)
    {
        m_info = info;
        m_elements = Table(elements);
        m_attributes = Table(attributes);
    }

private:
    CClassTables &Built()
    {
        if (!m_built.load(std::memory_order_acquire)) {
            std::lock_guard<CVXCriticalSection> guard(VxXmlLib16::CXmlGeneratedClass::m_csInit);
            if (!m_built.load(std::memory_order_relaxed)) {
                m_builder(*this);
                m_built.store(true, std::memory_order_release);
            }
        }
        return *this;
    }
    template <class Entry>
    static Entry **Table(std::initializer_list<Entry *> entries)
    {
        Entry **table = new Entry *[entries.size() + 1];
        Entry **slot = table;
        for (Entry *entry : entries)
            *slot++ = entry;
        *slot = nullptr;
        return table;
    }

    Builder m_builder;
    std::atomic<bool> m_built{false};
    VxXmlLib16Data::CParentElementInfo *m_info = nullptr;
    VxXmlLib16Data::CElementInfo **m_elements = nullptr;
    VxXmlLib16Data::CAttributeInfo **m_attributes = nullptr;
};

// The collection of a repeating child of a generated class; T::CreateInstance makes
// an item for an element of the collection's name.
template <class T>
class CGeneratedCol : public VxXmlLib16::CXmlCollection
{
public:
    CGeneratedCol(const char *itemName, const char *itemNamespace, int minOccurs, int maxOccurs)
        : VxXmlLib16::CXmlCollection(itemName, itemNamespace, minOccurs, maxOccurs)
    {
    }
    VxXmlLib16::CXmlObjectBase *GetBase() override { return this; }
    // The item takes the collection's element name.
    CSmartPtr<T> Add(T *item)
    {
        Throw_IfPropertyIsNull(item, GetElementName().c_str());
        SetElementName(item, GetElementName().c_str());
        AppendItem(item);
        return item;
    }
    CSmartPtr<T> AddNew() { return Add(T::CreateInstance()); }
    CSmartPtr<T> Item(int index) const
    {
        return static_cast<T *>(static_cast<VxXmlLib16::CXmlObjectBase *>(GetNodeAtIndex(index)->item));
    }
    VxXmlLib16::CVxIterator<T> begin() const { return VxXmlLib16::CXmlCollection::begin<T>(); }
    VxXmlLib16::CVxIterator<T> end() const { return VxXmlLib16::CXmlCollection::end<T>(); }

protected:
    void ToXml_Int(VxXmlLib16::CXmlWriter *writer, bool, const char *namespaceUri,
                   const VxXmlLib16::CSerializationContext &context, bool) const override
    {
        for (T *item : *this)
            VxXmlLib16::CXmlObjectBase::ToXml_Int(item, writer, false, namespaceUri, context, false);
    }
    VxXmlLib16::CXmlElement *FromXml_Int(VxXmlLib16::CXmlElement *, VxXmlLib16::CXmlElement *cursor,
                                         const VxXmlLib16::CSerializationContext &context, bool) override
    {
        const std::string name = GetElementName();
        const std::string itemNamespace = GetNamespace();
        while (DoesElementNameMatch(context, cursor, name.c_str(), itemNamespace.c_str())) {
            const CSmartPtr<T> item = T::CreateInstance();
            VxXmlLib16::CXmlObjectBase::FromXml_Int(item, cursor, cursor->GetFirstElement(), context);
            AppendItem(item);
            cursor = cursor->GetNextSiblingElement();
        }
        return cursor;
    }
};

} // namespace VxGenerated
