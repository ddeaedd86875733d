#pragma once
// Collections of primitive values: what a repeating primitive element of a generated
// class is. CXmlTypeCollection keeps what every member shares (facets, item type,
// format override, whitespace rule) and reads consecutive items from the tree;
// CXmlValueCollection<Value> adds the value list with its index rules and events.

#include <cstdint>
#include <iterator>
#include <list>
#include <string>
#include <utility>

#include "Exceptions.h"
#include "ItemType.h"
#include "PrimitiveRestrictions.h"
#include "WhitespaceUtils.h"
#include "XmlCollectionBase.h"

namespace VxXmlLib16 {

class CXmlTypeCollection : public CXmlCollectionBase
{
public:
    using WhitespaceRule = CWhitespaceUtils::WhitespaceRule;

    // The ten facet arguments are those of CPrimitiveRestrictions; a null text among them
    // counts as an unset facet, a null format override as none.
    CXmlTypeCollection(ItemType type, const char *itemName, const char *itemNamespace, int minOccurs, int maxOccurs,
                       const char *pattern, std::int32_t minLength, std::int32_t maxLength, const char *minInclusive,
                       const char *maxInclusive, const char *minExclusive, const char *maxExclusive,
                       std::int32_t length, std::int32_t totalDigits, std::int32_t fractionDigits,
                       WhitespaceRule whitespaceRule, const char *formatOverride);

    ItemType GetItemType() const { return m_itemType; }
    const CPrimitiveRestrictions &GetRestrictions() const { return m_restrictions; }
    const std::string &GetFormatOverride() const { return m_formatOverride; }
    WhitespaceRule GetWhitespaceRule() const { return m_whitespaceRule; }

protected:
    // Takes items while the cursor's name is the item name; the metadata checks the count.
    CXmlElement *FromXml_Int(CXmlElement *parent, CXmlElement *cursor, const CSerializationContext &context,
                             bool isChoiceMember) override;
    // Converts with the whitespace rule, then adds: a facet failure comes from Add.
    virtual void AddFromString(const std::string &text) = 0;

    // The range test of Remove and Item; the upper number in the message is the count.
    void CheckIndex(int index) const;
    static void ThrowAddIndexOutOfRange();
    void WriteItem(CXmlWriter *writer, const std::string &itemNamespace, const std::string &text) const;

private:
    CPrimitiveRestrictions m_restrictions;
    ItemType m_itemType;
    std::string m_formatOverride;
    WhitespaceRule m_whitespaceRule;
};

template <class Value>
class CXmlValueCollection : public CXmlTypeCollection
{
public:
    using ValueType = Value;
    using const_iterator = typename std::list<Value>::const_iterator;

    int GetCount() const override { return static_cast<int>(m_values.size()); }
    // Remove(0) until empty, with the events of each removal.
    void Clear() override
    {
        while (!m_values.empty())
            Remove(0);
    }
    // The Remove event goes out before the index test and carries the real index.
    void Remove(int index) override
    {
        FireOnCollectionRemove(index);
        CheckIndex(index);
        m_values.erase(At(index));
        FireOnCollectionRemoveComplete(index);
        FireOnCollectionChange();
    }

    void Add(const Value &value) { AddAt(GetCount(), value); }
    // Tests the value (type, facets) before any event, then inserts through BaseAddAt.
    virtual void AddAt(int index, const Value &value) = 0;
    const Value &Item(int index) const
    {
        CheckIndex(index);
        return *At(index);
    }

    const_iterator begin() const { return m_values.begin(); }
    const_iterator end() const { return m_values.end(); }

protected:
    using CXmlTypeCollection::CXmlTypeCollection;

    // The Add event (with the address of the given value) comes before the index test;
    // AddComplete carries the address of the stored value.
    template <class V>
    void BaseAddAt(int index, V &&value)
    {
        FireOnCollectionAdd(const_cast<Value *>(&value));
        if (index < 0 || index > GetCount())
            ThrowAddIndexOutOfRange();
        const auto place = index == GetCount() ? m_values.end() : At(index);
        Value &stored = *m_values.insert(place, std::forward<V>(value));
        FireOnCollectionAddComplete(&stored);
        FireOnCollectionChange();
    }

    virtual std::string ItemToString(const Value &value) const = 0;

    void ToXml_Int(CXmlWriter *writer, bool, const char *, const CSerializationContext &context,
                   bool) const override
    {
        ValidateCount(context);
        const std::string itemNamespace = GetNamespace();
        for (const Value &value : m_values)
            WriteItem(writer, itemNamespace, ItemToString(value));
    }

private:
    // The list is walked from the nearer end.
    const_iterator At(int index) const
    {
        const int count = GetCount();
        return index <= count / 2 ? std::next(m_values.cbegin(), index) : std::prev(m_values.cend(), count - index);
    }

    std::list<Value> m_values;
};

} // namespace VxXmlLib16
