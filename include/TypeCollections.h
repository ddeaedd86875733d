#pragma once
// The twenty-five typed collections, one per XSD primitive. They share one
// implementation and differ only in value type, item type and text conversions; the
// five date collections also test the date type of each value they take.

#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>

#include "BigInteger.h"
#include "BinaryData.h"
#include "Conversions.h"
#include "DateTime.h"
#include "DateTimeSpan.h"
#include "Decimal.h"
#include "InstanceMonitor.h"
#include "XmlTypeCollection.h"

namespace VxXmlLib16 {

class CdatetimeBaseCol : public CXmlValueCollection<CDateTime>
{
protected:
    using CXmlValueCollection::CXmlValueCollection;

    // A collection takes values of its own date type only.
    void TestDateType(const CDateTime &value) const;
};

template <class Value>
using CTypedCollectionBase =
    std::conditional_t<std::is_same_v<Value, CDateTime>, CdatetimeBaseCol, CXmlValueCollection<Value>>;

// One member of the family: Member supplies the class name, the rest is its row of
// the table. ToText takes the format override where the type has one (r4, r8, decimal).
template <class Member, class Value, ItemType Type, auto ToText, auto FromText>
class CTypedCollection : public CTypedCollectionBase<Value>, private CInstanceMonitor
{
    using Base = CTypedCollectionBase<Value>;

public:
    CTypedCollection(const char *itemName, const char *itemNamespace, int minOccurs, int maxOccurs, const char *pattern,
                     std::int32_t minLength, std::int32_t maxLength, const char *minInclusive, const char *maxInclusive,
                     const char *minExclusive, const char *maxExclusive, std::int32_t length, std::int32_t totalDigits,
                     std::int32_t fractionDigits, CWhitespaceUtils::WhitespaceRule whitespaceRule,
                     const char *formatOverride)
        : Base(Type, itemName, itemNamespace, minOccurs, maxOccurs, pattern, minLength, maxLength, minInclusive,
               maxInclusive, minExclusive, maxExclusive, length, totalDigits, fractionDigits, whitespaceRule,
               formatOverride),
          CInstanceMonitor(Member::ClassName)
    {
    }

    using Base::Add;
    // A converted value moves into the list.
    void Add(Value &&value) { InsertChecked(this->GetCount(), std::move(value)); }
    void AddAt(int index, const Value &value) override { InsertChecked(index, value); }

protected:
    void AddFromString(const std::string &text) override { Add(FromText(text, this->GetWhitespaceRule())); }

    std::string ItemToString(const Value &value) const override
    {
        if constexpr (std::is_invocable_v<decltype(ToText), const Value &, const std::string &>)
            return ToText(value, this->GetFormatOverride());
        else
            return ToText(value);
    }

private:
    // A value that fails its type test or its facets leaves the list as it was and
    // fires no event.
    template <class V>
    void InsertChecked(int index, V &&value)
    {
        if constexpr (std::is_same_v<Value, CDateTime>)
            this->TestDateType(value);
        CheckRestrictionValue(this->GetElementName().c_str(), value, Type, this->GetRestrictions());
        this->BaseAddAt(index, std::forward<V>(value));
    }
};

class ChexBinaryCol : public CTypedCollection<ChexBinaryCol, CBinaryData, ItemType_hexBinary,
                                              &CConversions::hexBinaryToString, &CConversions::hexBinaryFromString>
{
public:
    static constexpr const char *ClassName = "ChexBinaryCol";
    using CTypedCollection::CTypedCollection;
};

class Cbase64BinaryCol
    : public CTypedCollection<Cbase64BinaryCol, CBinaryData, ItemType_base64Binary, &CConversions::base64BinaryToString,
                              &CConversions::base64BinaryFromString>
{
public:
    static constexpr const char *ClassName = "Cbase64BinaryCol";
    using CTypedCollection::CTypedCollection;
};

class Ci1Col
    : public CTypedCollection<Ci1Col, char, ItemType_i1, &CConversions::i1ToString, &CConversions::i1FromString>
{
public:
    static constexpr const char *ClassName = "Ci1Col";
    using CTypedCollection::CTypedCollection;
};

class Ci2Col
    : public CTypedCollection<Ci2Col, std::int16_t, ItemType_i2, &CConversions::i2ToString, &CConversions::i2FromString>
{
public:
    static constexpr const char *ClassName = "Ci2Col";
    using CTypedCollection::CTypedCollection;
};

class Ci4Col
    : public CTypedCollection<Ci4Col, std::int32_t, ItemType_i4, &CConversions::i4ToString, &CConversions::i4FromString>
{
public:
    static constexpr const char *ClassName = "Ci4Col";
    using CTypedCollection::CTypedCollection;
};

class Ci8Col
    : public CTypedCollection<Ci8Col, std::int64_t, ItemType_i8, &CConversions::i8ToString, &CConversions::i8FromString>
{
public:
    static constexpr const char *ClassName = "Ci8Col";
    using CTypedCollection::CTypedCollection;
};

class Cui1Col : public CTypedCollection<Cui1Col, unsigned char, ItemType_ui1, &CConversions::ui1ToString,
                                        &CConversions::ui1FromString>
{
public:
    static constexpr const char *ClassName = "Cui1Col";
    using CTypedCollection::CTypedCollection;
};

class Cui2Col : public CTypedCollection<Cui2Col, std::uint16_t, ItemType_ui2, &CConversions::ui2ToString,
                                        &CConversions::ui2FromString>
{
public:
    static constexpr const char *ClassName = "Cui2Col";
    using CTypedCollection::CTypedCollection;
};

class Cui4Col : public CTypedCollection<Cui4Col, std::uint32_t, ItemType_ui4, &CConversions::ui4ToString,
                                        &CConversions::ui4FromString>
{
public:
    static constexpr const char *ClassName = "Cui4Col";
    using CTypedCollection::CTypedCollection;
};

class Cui8Col : public CTypedCollection<Cui8Col, std::uint64_t, ItemType_ui8, &CConversions::ui8ToString,
                                        &CConversions::ui8FromString>
{
public:
    static constexpr const char *ClassName = "Cui8Col";
    using CTypedCollection::CTypedCollection;
};

class Cr4Col
    : public CTypedCollection<Cr4Col, float, ItemType_r4,
                              static_cast<std::string (*)(float, const std::string &)>(&CConversions::r4ToString),
                              &CConversions::r4FromString>
{
public:
    static constexpr const char *ClassName = "Cr4Col";
    using CTypedCollection::CTypedCollection;
};

class Cr8Col
    : public CTypedCollection<Cr8Col, double, ItemType_r8,
                              static_cast<std::string (*)(double, const std::string &)>(&CConversions::r8ToString),
                              &CConversions::r8FromString>
{
public:
    static constexpr const char *ClassName = "Cr8Col";
    using CTypedCollection::CTypedCollection;
};

class CdurationCol : public CTypedCollection<CdurationCol, CDateTimeSpan, ItemType_duration,
                                             &CConversions::durationToString, &CConversions::durationFromString>
{
public:
    static constexpr const char *ClassName = "CdurationCol";
    using CTypedCollection::CTypedCollection;
};

class CyearMonthCol : public CTypedCollection<CyearMonthCol, CDateTime, ItemType_yearMonth,
                                              &CConversions::yearMonthToString, &CConversions::yearMonthFromString>
{
public:
    static constexpr const char *ClassName = "CyearMonthCol";
    using CTypedCollection::CTypedCollection;
};

class CmonthDayCol : public CTypedCollection<CmonthDayCol, CDateTime, ItemType_monthDay,
                                             &CConversions::monthDayToString, &CConversions::monthDayFromString>
{
public:
    static constexpr const char *ClassName = "CmonthDayCol";
    using CTypedCollection::CTypedCollection;
};

class CyearCol : public CTypedCollection<CyearCol, std::uint16_t, ItemType_year, &CConversions::yearToString,
                                         &CConversions::yearFromString>
{
public:
    static constexpr const char *ClassName = "CyearCol";
    using CTypedCollection::CTypedCollection;
};

class CmonthCol : public CTypedCollection<CmonthCol, unsigned char, ItemType_month, &CConversions::monthToString,
                                          &CConversions::monthFromString>
{
public:
    static constexpr const char *ClassName = "CmonthCol";
    using CTypedCollection::CTypedCollection;
};

class CdayCol : public CTypedCollection<CdayCol, unsigned char, ItemType_day, &CConversions::dayToString,
                                        &CConversions::dayFromString>
{
public:
    static constexpr const char *ClassName = "CdayCol";
    using CTypedCollection::CTypedCollection;
};

class CdateCol : public CTypedCollection<CdateCol, CDateTime, ItemType_date, &CConversions::dateToString,
                                         &CConversions::dateFromString>
{
public:
    static constexpr const char *ClassName = "CdateCol";
    using CTypedCollection::CTypedCollection;
};

class CdatetimeCol : public CTypedCollection<CdatetimeCol, CDateTime, ItemType_datetime,
                                             &CConversions::datetimeToString, &CConversions::datetimeFromString>
{
public:
    static constexpr const char *ClassName = "CdatetimeCol";
    using CTypedCollection::CTypedCollection;
};

class CtimeCol : public CTypedCollection<CtimeCol, CDateTime, ItemType_time, &CConversions::timeToString,
                                         &CConversions::timeFromString>
{
public:
    static constexpr const char *ClassName = "CtimeCol";
    using CTypedCollection::CTypedCollection;
};

class CstringCol : public CTypedCollection<CstringCol, std::string, ItemType_string, &CConversions::stringToString,
                                           &CConversions::stringFromString>
{
public:
    static constexpr const char *ClassName = "CstringCol";
    using CTypedCollection::CTypedCollection;
};

class CbooleanCol : public CTypedCollection<CbooleanCol, bool, ItemType_boolean, &CConversions::booleanToString,
                                            &CConversions::booleanFromString>
{
public:
    static constexpr const char *ClassName = "CbooleanCol";
    using CTypedCollection::CTypedCollection;
};

class CdecimalCol : public CTypedCollection<CdecimalCol, CDecimal, ItemType_decimal,
                                            static_cast<std::string (*)(const CDecimal &, const std::string &)>(
                                                &CConversions::decimalToString),
                                            &CConversions::decimalFromString>
{
public:
    static constexpr const char *ClassName = "CdecimalCol";
    using CTypedCollection::CTypedCollection;
};

class CintegerCol : public CTypedCollection<CintegerCol, CBigInteger, ItemType_integer, &CConversions::integerToString,
                                            &CConversions::integerFromString>
{
public:
    static constexpr const char *ClassName = "CintegerCol";
    using CTypedCollection::CTypedCollection;
};

} // namespace VxXmlLib16
