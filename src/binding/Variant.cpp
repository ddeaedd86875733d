#include "Variant.h"

#include "BigInteger.h"
#include "BinaryData.h"
#include "Conversions.h"
#include "DateTime.h"
#include "DateTimeSpan.h"
#include "Decimal.h"
#include "Exceptions.h"
#include "XmlCollectionBase.h"

namespace VxXmlLib16 {

namespace {

bool IsBinary(ItemType type) { return type == ItemType_hexBinary || type == ItemType_base64Binary; }

bool IsDateTime(ItemType type)
{
    return type == ItemType_yearMonth || type == ItemType_monthDay || type == ItemType_date ||
           type == ItemType_datetime || type == ItemType_time;
}

bool IsCounted(ItemType type) { return type == ItemType_XmlObject || type == ItemType_XmlCollection; }

const char *const TypeNames[] = {nullptr,     "hexBinary", "base64Binary", "i1",       "i2",      "i4",
                                 "i8",        "ui1",       "ui2",          "ui4",      "ui8",     "r4",
                                 "r8",        "duration",  "yearMonth",    "monthDay", "year",    "month",
                                 "day",       "date",      "datetime",     "time",     "char",    "string",
                                 "boolean",   "decimal",   "integer"};

template <class T>
T *CopyOf(const T *value)
{
    return value ? new T(*value) : nullptr;
}

// A nil heap form has no value behind it; it prints like the type's default value
// rather than reading through a null pointer.
template <class T>
const T &OrDefault(const T *value)
{
    static const T empty{};
    return value ? *value : empty;
}

} // namespace

VxVariant::VxVariant(const VxVariant &other) { *this = other; }

VxVariant::~VxVariant() { Clear(); }

// Calls action with the union member of a heap form; false for the other forms.
template <class Action>
bool VxVariant::WithHeapMember(ItemType type, Action action)
{
    switch (type) {
    case ItemType_hexBinary:
    case ItemType_base64Binary: action(&Value::binary); return true;
    case ItemType_duration: action(&Value::duration); return true;
    case ItemType_yearMonth:
    case ItemType_monthDay:
    case ItemType_date:
    case ItemType_datetime:
    case ItemType_time: action(&Value::dateTime); return true;
    case ItemType_string: action(&Value::string); return true;
    case ItemType_decimal: action(&Value::decimal); return true;
    case ItemType_integer: action(&Value::integer); return true;
    default: return false;
    }
}

void VxVariant::Clear()
{
    if (m_type == ItemType_Invalid)
        return;
    m_nil = false;
    const bool heap = WithHeapMember(m_type, [this](auto member) {
        delete (m_value.*member);
        m_value.*member = nullptr;
    });
    if (!heap && IsCounted(m_type)) {
        if (m_value.object)
            m_value.object->Release();
        m_value.object = nullptr;
    }
    // Scalar bytes stay behind.
    m_type = ItemType_Invalid;
}

void VxVariant::SetInvalid()
{
    Clear();
    m_type = ItemType_Invalid;
}

void VxVariant::SetNil()
{
    const ItemType type = m_type;
    Clear();
    m_type = type;
    m_nil = true;
}

std::string VxVariant::GetType() const
{
    if (m_type < ItemType_hexBinary || m_type > ItemType_integer)
        throw CVxException(FormatString("Invalid Type %d", static_cast<int>(m_type)));
    return TypeNames[m_type];
}

VxVariant &VxVariant::operator=(const VxVariant &other)
{
    // No self test: assigning a variant to itself clears it first.
    Clear();
    m_type = other.m_type;
    m_nil = other.m_nil;
    if (m_nil)
        return *this;
    if (m_type > ItemType_XmlCollection) {
        m_type = ItemType_Invalid;
        throw CVxException("Unknown Type");
    }
    const bool heap = WithHeapMember(m_type, [this, &other](auto member) {
        m_value.*member = CopyOf(other.m_value.*member);
    });
    if (heap)
        return *this;
    m_value = other.m_value; // the scalar forms and the counted pointer
    if (IsCounted(m_type) && m_value.object)
        m_value.object->AddRef();
    return *this;
}

template <class T>
void VxVariant::SetHeap(ItemType type, T *Value::*member, const T &value)
{
    T *copy = new T(value); // before Clear: the value may live in this variant
    Clear();
    m_type = type;
    m_value.*member = copy;
}

template <class T>
T VxVariant::GetHeap(T *Value::*member, bool stored) const
{
    const T *value = stored ? m_value.*member : nullptr;
    return value ? *value : T();
}

void VxVariant::SetCounted(ItemType type, CXmlObjectBase *value)
{
    if (value)
        value->AddRef();
    Clear();
    m_type = type;
    m_value.object = value;
}

void VxVariant::SetHexBinary(const CBinaryData &value) { SetHeap(ItemType_hexBinary, &Value::binary, value); }
CBinaryData VxVariant::GetHexBinary() const { return GetHeap(&Value::binary, IsBinary(m_type)); }
void VxVariant::SetBase64Binary(const CBinaryData &value) { SetHeap(ItemType_base64Binary, &Value::binary, value); }
CBinaryData VxVariant::GetBase64Binary() const { return GetHeap(&Value::binary, IsBinary(m_type)); }
void VxVariant::SetDuration(const CDateTimeSpan &value) { SetHeap(ItemType_duration, &Value::duration, value); }
CDateTimeSpan VxVariant::GetDuration() const { return GetHeap(&Value::duration, m_type == ItemType_duration); }
void VxVariant::SetYearMonth(const CDateTime &value) { SetHeap(ItemType_yearMonth, &Value::dateTime, value); }
CDateTime VxVariant::GetYearMonth() const { return GetHeap(&Value::dateTime, IsDateTime(m_type)); }
void VxVariant::SetMonthDay(const CDateTime &value) { SetHeap(ItemType_monthDay, &Value::dateTime, value); }
CDateTime VxVariant::GetMonthDay() const { return GetHeap(&Value::dateTime, IsDateTime(m_type)); }
void VxVariant::SetDate(const CDateTime &value) { SetHeap(ItemType_date, &Value::dateTime, value); }
CDateTime VxVariant::GetDate() const { return GetHeap(&Value::dateTime, IsDateTime(m_type)); }
void VxVariant::SetDateTime(const CDateTime &value) { SetHeap(ItemType_datetime, &Value::dateTime, value); }
CDateTime VxVariant::GetDateTime() const { return GetHeap(&Value::dateTime, IsDateTime(m_type)); }
void VxVariant::SetTime(const CDateTime &value) { SetHeap(ItemType_time, &Value::dateTime, value); }
CDateTime VxVariant::GetTime() const { return GetHeap(&Value::dateTime, IsDateTime(m_type)); }
void VxVariant::SetString(const std::string &value) { SetHeap(ItemType_string, &Value::string, value); }
std::string VxVariant::GetString() const { return GetHeap(&Value::string, m_type == ItemType_string); }
void VxVariant::SetDecimal(const CDecimal &value) { SetHeap(ItemType_decimal, &Value::decimal, value); }
CDecimal VxVariant::GetDecimal() const { return GetHeap(&Value::decimal, m_type == ItemType_decimal); }
void VxVariant::SetInteger(const CBigInteger &value) { SetHeap(ItemType_integer, &Value::integer, value); }
CBigInteger VxVariant::GetInteger() const { return GetHeap(&Value::integer, m_type == ItemType_integer); }

void VxVariant::SetXmlObject(CXmlObjectBase *value) { SetCounted(ItemType_XmlObject, value); }

CSmartPtr<CXmlObjectBase> VxVariant::GetXmlObject() const
{
    return IsCounted(m_type) ? m_value.object : nullptr;
}

void VxVariant::SetXmlCollection(CXmlCollectionBase *value) { SetCounted(ItemType_XmlCollection, value); }

CSmartPtr<CXmlCollectionBase> VxVariant::GetXmlCollection() const
{
    // Only a collection is ever stored under this type, so the cast back is exact.
    return m_type == ItemType_XmlCollection ? static_cast<CXmlCollectionBase *>(m_value.object) : nullptr;
}

void VxVariant::FromString(const std::string &text, ItemType type, CWhitespaceUtils::WhitespaceRule rule)
{
    using C = CConversions;
    switch (type) {
    case ItemType_hexBinary: SetHexBinary(C::hexBinaryFromString(text, rule)); break;
    case ItemType_base64Binary: SetBase64Binary(C::base64BinaryFromString(text, rule)); break;
    case ItemType_i1: SetI1(C::i1FromString(text, rule)); break;
    case ItemType_i2: SetI2(C::i2FromString(text, rule)); break;
    case ItemType_i4: SetI4(C::i4FromString(text, rule)); break;
    case ItemType_i8: SetI8(C::i8FromString(text, rule)); break;
    case ItemType_ui1: SetUI1(C::ui1FromString(text, rule)); break;
    case ItemType_ui2: SetUI2(C::ui2FromString(text, rule)); break;
    case ItemType_ui4: SetUI4(C::ui4FromString(text, rule)); break;
    case ItemType_ui8: SetUI8(C::ui8FromString(text, rule)); break;
    case ItemType_r4: SetR4(C::r4FromString(text, rule)); break;
    case ItemType_r8: SetR8(C::r8FromString(text, rule)); break;
    case ItemType_duration: SetDuration(C::durationFromString(text, rule)); break;
    case ItemType_yearMonth: SetYearMonth(C::yearMonthFromString(text, rule)); break;
    case ItemType_monthDay: SetMonthDay(C::monthDayFromString(text, rule)); break;
    case ItemType_year: SetYear(C::yearFromString(text, rule)); break;
    case ItemType_month: SetMonth(C::monthFromString(text, rule)); break;
    case ItemType_day: SetDay(C::dayFromString(text, rule)); break;
    case ItemType_date: SetDate(C::dateFromString(text, rule)); break;
    case ItemType_datetime: SetDateTime(C::datetimeFromString(text, rule)); break;
    case ItemType_time: SetTime(C::timeFromString(text, rule)); break;
    case ItemType_char: SetChar(C::charFromString(text, rule)); break;
    case ItemType_string: SetString(C::stringFromString(text, rule)); break;
    case ItemType_boolean: SetBoolean(C::booleanFromString(text, rule)); break;
    case ItemType_decimal: SetDecimal(C::decimalFromString(text, rule)); break;
    case ItemType_integer: SetInteger(C::integerFromString(text, rule)); break;
    default:
        // Names the type the variant already has, not the one asked for.
        throw CVxException(FormatString("Invalid Type %d to convert to string", static_cast<int>(m_type)));
    }
}

std::string VxVariant::ToString(const char *format) const
{
    using C = CConversions;
    const std::string formatText = format ? format : "";
    switch (m_type) {
    case ItemType_hexBinary: return C::hexBinaryToString(OrDefault(m_value.binary));
    case ItemType_base64Binary: return C::base64BinaryToString(OrDefault(m_value.binary));
    case ItemType_i1: return C::i1ToString(m_value.i1);
    case ItemType_i2: return C::i2ToString(m_value.i2);
    case ItemType_i4: return C::i4ToString(m_value.i4);
    case ItemType_i8: return C::i8ToString(m_value.i8);
    case ItemType_ui1: return C::ui1ToString(m_value.ui1);
    case ItemType_ui2: return C::ui2ToString(m_value.ui2);
    case ItemType_ui4: return C::ui4ToString(m_value.ui4);
    case ItemType_ui8: return C::ui8ToString(m_value.ui8);
    case ItemType_r4: return C::r4ToString(m_value.r4, formatText);
    case ItemType_r8: return C::r8ToString(m_value.r8, formatText);
    case ItemType_duration: return C::durationToString(OrDefault(m_value.duration));
    case ItemType_yearMonth: return C::yearMonthToString(OrDefault(m_value.dateTime));
    case ItemType_monthDay: return C::monthDayToString(OrDefault(m_value.dateTime));
    case ItemType_year: return C::yearToString(m_value.ui2);
    case ItemType_month: return C::monthToString(m_value.ui1);
    case ItemType_day: return C::dayToString(m_value.ui1);
    case ItemType_date: return C::dateToString(OrDefault(m_value.dateTime));
    case ItemType_datetime: return C::datetimeToString(OrDefault(m_value.dateTime));
    case ItemType_time: return C::timeToString(OrDefault(m_value.dateTime));
    case ItemType_char: return C::charToString(m_value.i1);
    case ItemType_string: return C::stringToString(OrDefault(m_value.string));
    case ItemType_boolean: return C::booleanToString(m_value.boolean);
    case ItemType_decimal: return C::decimalToString(OrDefault(m_value.decimal), formatText);
    case ItemType_integer: return C::integerToString(OrDefault(m_value.integer));
    default:
        throw CVxException(FormatString("Invalid Type %d to convert to string", static_cast<int>(m_type)));
    }
}

} // namespace VxXmlLib16
