#include "XmlTypeCollection.h"

#include "TypeCollections.h"
#include "XmlDocument.h"
#include "XmlWriter.h"

namespace VxXmlLib16 {

namespace {

const char *OrEmpty(const char *text) { return text ? text : ""; }

} // namespace

CXmlTypeCollection::CXmlTypeCollection(ItemType type, const char *itemName, const char *itemNamespace,
                                       int minOccurs, int maxOccurs, const char *pattern, std::int32_t minLength,
                                       std::int32_t maxLength, const char *minInclusive, const char *maxInclusive,
                                       const char *minExclusive, const char *maxExclusive, std::int32_t length,
                                       std::int32_t totalDigits, std::int32_t fractionDigits,
                                       WhitespaceRule whitespaceRule, const char *formatOverride)
    : CXmlCollectionBase(itemName, itemNamespace, minOccurs, maxOccurs),
      m_restrictions(OrEmpty(pattern), minLength, maxLength, OrEmpty(minInclusive), OrEmpty(maxInclusive),
                     OrEmpty(minExclusive), OrEmpty(maxExclusive), length, totalDigits, fractionDigits),
      m_itemType(type), m_formatOverride(OrEmpty(formatOverride)), m_whitespaceRule(whitespaceRule)
{
}

CXmlElement *CXmlTypeCollection::FromXml_Int(CXmlElement *, CXmlElement *cursor,
                                             const CSerializationContext &context, bool)
{
    const std::string itemNamespace = GetNamespace();
    const char *const name = GetElementName().c_str();
    while (cursor && DoesElementNameMatch(context, cursor, name, itemNamespace.c_str())) {
        AddFromString(cursor->GetText());
        cursor = cursor->GetNextSiblingElement();
    }
    return cursor;
}

void CXmlTypeCollection::CheckIndex(int index) const
{
    if (index < 0 || index >= GetCount())
        throw CVxInvalidParamException(FormatString("Index %d is out of range, use 0 - %d", index, GetCount()));
}

void CXmlTypeCollection::ThrowAddIndexOutOfRange() { throw CVxInvalidParamException("Index out of range"); }

void CXmlTypeCollection::WriteItem(CXmlWriter *writer, const std::string &itemNamespace,
                                   const std::string &text) const
{
    writer->StartElement(GetElementName(), itemNamespace);
    writer->WriteElementValue(text, m_itemType, false);
    writer->EndElement();
}

void CdatetimeBaseCol::TestDateType(const CDateTime &value) const
{
    struct DateRule
    {
        ItemType item;
        CDateTime::DTType type;
        const char *message;
    };
    static constexpr DateRule rules[] = {
        {ItemType_datetime, CDateTime::dt_dateTime, "Dates added to this collection must be of type dt_dateTime"},
        {ItemType_date, CDateTime::dt_date, "Dates added to this collection must be of type dt_date"},
        {ItemType_yearMonth, CDateTime::dt_gYearMonth, "Dates added to this collection must be of type dt_gYearMonth"},
        {ItemType_time, CDateTime::dt_time, "Dates added to this collection must be of type dt_time"},
        {ItemType_monthDay, CDateTime::dt_gMonthDay, "Dates added to this collection must be of type dt_gMonthDay"},
    };
    for (const DateRule &rule : rules)
        if (rule.item == GetItemType() && rule.type != value.GetType())
            throw CVxInvalidParamException(rule.message);
}

} // namespace VxXmlLib16
