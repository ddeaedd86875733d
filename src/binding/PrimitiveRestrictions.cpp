#include "PrimitiveRestrictions.h"

#include "BigInteger.h"
#include "BinaryData.h"
#include "Conversions.h"
#include "DateTime.h"
#include "DateTimeSpan.h"
#include "Decimal.h"
#include "Exceptions.h"
#include "LocalText.h"
#include "Variant.h"

namespace VxXmlLib16 {

CPrimitiveRestrictions::CPrimitiveRestrictions() = default;

CPrimitiveRestrictions::CPrimitiveRestrictions(const char *pattern, std::int32_t minLength, std::int32_t maxLength,
                                               const char *minInclusive, const char *maxInclusive,
                                               const char *minExclusive, const char *maxExclusive,
                                               std::int32_t length, std::int32_t totalDigits,
                                               std::int32_t fractionDigits)
    : m_pattern(pattern), m_minLength(minLength), m_maxLength(maxLength), m_minInclusive(minInclusive),
      m_maxInclusive(maxInclusive), m_minExclusive(minExclusive), m_maxExclusive(maxExclusive), m_length(length),
      m_totalDigits(totalDigits), m_fractionDigits(fractionDigits)
{
}

CPrimitiveRestrictions::~CPrimitiveRestrictions() = default;

namespace {

using Rule = CWhitespaceUtils::WhitespaceRule;
constexpr Rule Collapse = CWhitespaceUtils::WhitespaceRule_Collapse;

[[noreturn]] void Fail(std::string message) { throw CVxInvalidValueException(std::move(message)); }

[[noreturn]] void FailUnknownType(const std::string &typeName)
{
    throw CVxInvalidValueException("Unknown type [" + typeName + "].");
}

// The four bounds with the value's own operators, each parsed afresh. Written as
// "value >= bound" and so on, so that a NaN fails every bound that is set.
template <class T, class Parse>
bool PassesBounds(const T &value, const CPrimitiveRestrictions &r, Parse parse)
{
    bool valid = true;
    if (valid && !r.GetMinInclusive().empty())
        valid = value >= parse(r.GetMinInclusive());
    if (valid && !r.GetMaxInclusive().empty())
        valid = value <= parse(r.GetMaxInclusive());
    if (valid && !r.GetMinExclusive().empty())
        valid = value > parse(r.GetMinExclusive());
    if (valid && !r.GetMaxExclusive().empty())
        valid = value < parse(r.GetMaxExclusive());
    return valid;
}

// The four bounds for dates and durations, through CompareTo: an indeterminate order
// passes every bound.
template <class T, class Parse>
bool PassesOrderedBounds(const T &value, const CPrimitiveRestrictions &r, Parse parse)
{
    const auto order = [&](const std::string &bound) { return value.CompareTo(parse(bound)); };
    bool valid = true;
    if (valid && !r.GetMinInclusive().empty())
        valid = order(r.GetMinInclusive()) != CDateTime::dt_less;
    if (valid && !r.GetMaxInclusive().empty())
        valid = order(r.GetMaxInclusive()) != CDateTime::dt_greater;
    if (valid && !r.GetMinExclusive().empty()) {
        const auto result = order(r.GetMinExclusive());
        valid = result == CDateTime::dt_greater || result == CDateTime::dt_indeterminate;
    }
    if (valid && !r.GetMaxExclusive().empty()) {
        const auto result = order(r.GetMaxExclusive());
        valid = result == CDateTime::dt_less || result == CDateTime::dt_indeterminate;
    }
    return valid;
}

bool PassesLength(std::size_t length, const CPrimitiveRestrictions &r)
{
    bool valid = true;
    if (valid && r.GetMinLength() != -1)
        valid = length >= static_cast<std::size_t>(r.GetMinLength());
    if (valid && r.GetMaxLength() != -1)
        valid = length <= static_cast<std::size_t>(r.GetMaxLength());
    if (valid && r.GetLength() != -1)
        valid = length == static_cast<std::size_t>(r.GetLength());
    return valid;
}

// A minus sign counts as a digit.
bool PassesTotalDigits(const std::string &text, const CPrimitiveRestrictions &r)
{
    return r.GetTotalDigits() == -1 || text.size() <= static_cast<std::size_t>(r.GetTotalDigits());
}

// How an integer type reads its bounds and writes its value.
template <class T>
using IntegerFromString = T (*)(const std::string &, Rule);
template <class T>
using IntegerToString = std::string (*)(T);

template <class T>
bool PassesIntegerBounds(T value, const CPrimitiveRestrictions &r, IntegerFromString<T> fromString)
{
    return PassesBounds(value, r, [fromString](const std::string &text) { return fromString(text, Collapse); });
}

// The integer types up to 32 bits: their bounds, their totalDigits, and the "%d"
// message, which shows a ui4 above 2147483647 as negative.
template <class T>
void CheckInteger(const char *name, T value, const CPrimitiveRestrictions &r, IntegerFromString<T> fromString,
                  IntegerToString<T> toString, bool withTotalDigits)
{
    bool valid = PassesIntegerBounds(value, r, fromString);
    // The text is made only when the facet is set: typed collections check every item.
    if (valid && withTotalDigits && r.GetTotalDigits() != -1)
        valid = PassesTotalDigits(toString(value), r);
    if (!valid)
        Fail(FormatString("Invalid Value for %s [%d]", name, static_cast<int>(value)));
}

// The 64-bit integers: the message shows the value's full text.
template <class T>
void CheckWideInteger(const char *name, T value, const CPrimitiveRestrictions &r, IntegerFromString<T> fromString,
                      IntegerToString<T> toString)
{
    if (!PassesIntegerBounds(value, r, fromString) || !PassesTotalDigits(toString(value), r))
        Fail(FormatString("Invalid Value for %s [%s].", name, toString(value).c_str()));
}

// Date bounds are read as the value's own date type.
auto BoundReader(ItemType type)
{
    return [type](const std::string &text) {
        switch (type) {
        case ItemType_date: return CConversions::dateFromString(text, Collapse);
        case ItemType_time: return CConversions::timeFromString(text, Collapse);
        case ItemType_yearMonth: return CConversions::yearMonthFromString(text, Collapse);
        case ItemType_monthDay: return CConversions::monthDayFromString(text, Collapse);
        default: return CConversions::datetimeFromString(text, Collapse);
        }
    };
}

} // namespace

void CheckRestrictionValue(const char *name, const CBinaryData &value, ItemType type,
                           const CPrimitiveRestrictions &restrictions)
{
    if (!PassesLength(value.GetLength(), restrictions))
        Fail(FormatString("Invalid Value for %s [%s].", name,
                          (type == ItemType_base64Binary ? value.GetAsBase64() : value.GetAsHexString()).c_str()));
}

void CheckRestrictionValue(const char *, bool, ItemType, const CPrimitiveRestrictions &) {}

void CheckRestrictionValue(const char *name, double value, ItemType, const CPrimitiveRestrictions &restrictions)
{
    if (!PassesBounds(value, restrictions, [](const std::string &t) { return CConversions::r8FromString(t, Collapse); }))
        Fail(FormatString("Invalid Value for %s [%f]", name, value));
}

void CheckRestrictionValue(const char *name, float value, ItemType, const CPrimitiveRestrictions &restrictions)
{
    if (!PassesBounds(value, restrictions, [](const std::string &t) { return CConversions::r4FromString(t, Collapse); }))
        Fail(FormatString("Invalid Value for %s [%f]", name, static_cast<double>(value)));
}

void CheckRestrictionValue(const char *name, std::uint64_t value, ItemType,
                           const CPrimitiveRestrictions &restrictions)
{
    CheckWideInteger(name, value, restrictions, &CConversions::ui8FromString, &CConversions::ui8ToString);
}

void CheckRestrictionValue(const char *name, std::int64_t value, ItemType, const CPrimitiveRestrictions &restrictions)
{
    CheckWideInteger(name, value, restrictions, &CConversions::i8FromString, &CConversions::i8ToString);
}

void CheckRestrictionValue(const char *name, std::uint32_t value, ItemType, const CPrimitiveRestrictions &restrictions)
{
    CheckInteger(name, value, restrictions, &CConversions::ui4FromString, &CConversions::ui4ToString, true);
}

void CheckRestrictionValue(const char *name, std::int32_t value, ItemType, const CPrimitiveRestrictions &restrictions)
{
    CheckInteger(name, value, restrictions, &CConversions::i4FromString, &CConversions::i4ToString, true);
}

void CheckRestrictionValue(const char *name, std::uint16_t value, ItemType type,
                           const CPrimitiveRestrictions &restrictions)
{
    // A year is read by its own conversion and has no totalDigits.
    const bool isYear = type == ItemType_year;
    CheckInteger(name, value, restrictions, isYear ? &CConversions::yearFromString : &CConversions::ui2FromString,
                 &CConversions::ui2ToString, !isYear);
}

void CheckRestrictionValue(const char *name, std::int16_t value, ItemType, const CPrimitiveRestrictions &restrictions)
{
    CheckInteger(name, value, restrictions, &CConversions::i2FromString, &CConversions::i2ToString, true);
}

void CheckRestrictionValue(const char *name, unsigned char value, ItemType type,
                           const CPrimitiveRestrictions &restrictions)
{
    // A day or a month is read by its own conversion and has no totalDigits.
    IntegerFromString<unsigned char> fromString = &CConversions::ui1FromString;
    if (type == ItemType_day)
        fromString = &CConversions::dayFromString;
    else if (type == ItemType_month)
        fromString = &CConversions::monthFromString;
    CheckInteger(name, value, restrictions, fromString, &CConversions::ui1ToString,
                 type != ItemType_day && type != ItemType_month);
}

void CheckRestrictionValue(const char *name, char value, ItemType type, const CPrimitiveRestrictions &restrictions)
{
    // char has no checker: every char value that reaches a check fails.
    if (type == ItemType_char)
        FailUnknownType("char");
    CheckInteger(name, value, restrictions, &CConversions::i1FromString, &CConversions::i1ToString, true);
}

void CheckRestrictionValue(const char *name, const std::string &value, ItemType,
                           const CPrimitiveRestrictions &restrictions)
{
    // Lengths count bytes of the local text, not characters.
    bool valid = PassesLength(value.size(), restrictions);
    if (valid && !restrictions.GetPattern().empty()) {
        const CBinaryData pattern = LocalToUtf8Data(restrictions.GetPattern().c_str());
        try {
            valid = MatchXsdPattern(std::string(reinterpret_cast<const char *>(pattern.GetData()), pattern.GetLength()),
                                    value);
        } catch (const CVxException &e) {
            throw CVxException(
                FormatString("%s\nInvalid Value for %s [%s].", e.GetFullMessage().c_str(), name, value.c_str()));
        }
    }
    if (!valid)
        Fail(FormatString("Invalid Value for %s [%s].", name, value.c_str()));
}

void CheckRestrictionValue(const char *name, const CDateTime &value, ItemType type,
                           const CPrimitiveRestrictions &restrictions)
{
    if (!PassesOrderedBounds(value, restrictions, BoundReader(type)))
        Fail(FormatString("Invalid Value for %s [%s].", name, value.ToString().c_str()));
}

void CheckRestrictionValue(const char *name, const CDateTimeSpan &value, ItemType,
                           const CPrimitiveRestrictions &restrictions)
{
    if (!PassesOrderedBounds(value, restrictions,
                             [](const std::string &t) { return CConversions::durationFromString(t, Collapse); }))
        Fail(FormatString("Invalid Value for %s [%s].", name, value.ToString().c_str()));
}

void CheckRestrictionValue(const char *name, const CBigInteger &value, ItemType,
                           const CPrimitiveRestrictions &restrictions)
{
    const std::string text = value.ToString();
    if (!PassesBounds(value, restrictions, [](const std::string &t) { return CConversions::integerFromString(t, Collapse); }) ||
        !PassesTotalDigits(text, restrictions))
        Fail(FormatString("Invalid Value for %s [%s].", name, text.c_str()));
}

void CheckRestrictionValue(const char *name, const CDecimal &value, ItemType,
                           const CPrimitiveRestrictions &restrictions)
{
    bool valid = PassesBounds(value, restrictions,
                              [](const std::string &t) { return CConversions::decimalFromString(t, Collapse); });
    if (valid && (restrictions.GetTotalDigits() > -1 || restrictions.GetFractionDigits() > -1)) {
        // A zero integer part has no digits, so 0.5 has none; a zero fraction likewise.
        const std::string integerText = value.GetIntegerPart().GetAbs().ToString();
        const std::int32_t integerDigits = integerText == "0" ? 0 : static_cast<std::int32_t>(integerText.size());
        const bool zeroFraction = value.GetFractionPart().GetAbs().ToString() == "0";
        const std::int32_t fractionDigits = zeroFraction ? 0 : value.GetFractionDivider();
        if (restrictions.GetTotalDigits() > -1)
            valid = integerDigits + fractionDigits <= restrictions.GetTotalDigits();
        if (valid && restrictions.GetFractionDigits() > -1)
            valid = fractionDigits <= restrictions.GetFractionDigits();
    }
    if (!valid)
        Fail(FormatString("Invalid Value for %s [%s].", name, value.ToString().c_str()));
}

void CheckPrimitiveRestriction(const char *name, const VxVariant &value, ItemType type,
                               const CPrimitiveRestrictions &r)
{
    switch (type) {
    case ItemType_hexBinary: return CheckRestrictionValue(name, value.GetHexBinary(), type, r);
    case ItemType_base64Binary: return CheckRestrictionValue(name, value.GetBase64Binary(), type, r);
    case ItemType_i1: return CheckRestrictionValue(name, value.GetI1(), type, r);
    case ItemType_i2: return CheckRestrictionValue(name, value.GetI2(), type, r);
    case ItemType_i4: return CheckRestrictionValue(name, value.GetI4(), type, r);
    case ItemType_i8: return CheckRestrictionValue(name, value.GetI8(), type, r);
    case ItemType_ui1: return CheckRestrictionValue(name, value.GetUI1(), type, r);
    case ItemType_ui2: return CheckRestrictionValue(name, value.GetUI2(), type, r);
    case ItemType_ui4: return CheckRestrictionValue(name, value.GetUI4(), type, r);
    case ItemType_ui8: return CheckRestrictionValue(name, value.GetUI8(), type, r);
    case ItemType_r4: return CheckRestrictionValue(name, value.GetR4(), type, r);
    case ItemType_r8: return CheckRestrictionValue(name, value.GetR8(), type, r);
    case ItemType_duration: return CheckRestrictionValue(name, value.GetDuration(), type, r);
    case ItemType_yearMonth:
    case ItemType_monthDay:
    case ItemType_date:
    case ItemType_datetime:
    case ItemType_time: return CheckRestrictionValue(name, value.GetDateTime(), type, r);
    case ItemType_year: return CheckRestrictionValue(name, value.GetYear(), type, r);
    case ItemType_month: return CheckRestrictionValue(name, value.GetMonth(), type, r);
    case ItemType_day: return CheckRestrictionValue(name, value.GetDay(), type, r);
    case ItemType_string: return CheckRestrictionValue(name, value.GetString(), type, r);
    case ItemType_boolean: return CheckRestrictionValue(name, value.GetBoolean(), type, r);
    case ItemType_decimal: return CheckRestrictionValue(name, value.GetDecimal(), type, r);
    case ItemType_integer: return CheckRestrictionValue(name, value.GetInteger(), type, r);
    default: FailUnknownType(value.GetType());
    }
}

} // namespace VxXmlLib16
