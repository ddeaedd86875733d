#pragma once
// The value carrier between the metadata and the properties of generated classes, and
// the nil interface of nillable generated classes.

#include <cstdint>
#include <string>

#include "ItemType.h"
#include "SmartPtr.h"
#include "VxXmlLib16Fwd.h"
#include "WhitespaceUtils.h"

namespace VxXmlLib16 {

// Implemented by a generated class whose element is nillable; a class without it is
// not nillable.
class INillable
{
public:
    virtual bool IsNil() const = 0;
    virtual void SetNil(bool nil) = 0;

protected:
    ~INillable() = default;
};

// Scalars live in the value union and cost no allocation; strings and the value classes
// are owned on the heap; objects and collections are counted references. A variant is
// invalid, valid, or nil; a nil variant keeps its type and holds no value.
struct VxVariant
{
    VxVariant() = default;
    VxVariant(const VxVariant &other);
    // Clears the target first and has no self test, so v = v leaves v invalid.
    VxVariant &operator=(const VxVariant &other);
    virtual ~VxVariant();

    // Does nothing at all on an invalid variant, not even to the nil flag.
    void Clear();
    void SetInvalid();
    void SetNil();
    bool IsNil() const { return m_nil; }
    bool IsValid() const { return m_type != ItemType_Invalid || m_nil; }
    ItemType GetTypeAsEnum() const { return m_type; }
    // The text name of types 1 to 26; throws for the others.
    std::string GetType() const;

    // The getters make no type or nil test: asking for another type than the variant
    // holds is the caller's error. A heap getter on a nil or foreign value gives the
    // type's default value.
    void SetHexBinary(const CBinaryData &value);
    CBinaryData GetHexBinary() const;
    void SetBase64Binary(const CBinaryData &value);
    CBinaryData GetBase64Binary() const;
    void SetI1(char value) { SetScalar(ItemType_i1, &Value::i1, value); }
    char GetI1() const { return m_value.i1; }
    void SetI2(std::int16_t value) { SetScalar(ItemType_i2, &Value::i2, value); }
    std::int16_t GetI2() const { return m_value.i2; }
    void SetI4(std::int32_t value) { SetScalar(ItemType_i4, &Value::i4, value); }
    std::int32_t GetI4() const { return m_value.i4; }
    void SetI8(std::int64_t value) { SetScalar(ItemType_i8, &Value::i8, value); }
    std::int64_t GetI8() const { return m_value.i8; }
    void SetUI1(unsigned char value) { SetScalar(ItemType_ui1, &Value::ui1, value); }
    unsigned char GetUI1() const { return m_value.ui1; }
    void SetUI2(std::uint16_t value) { SetScalar(ItemType_ui2, &Value::ui2, value); }
    std::uint16_t GetUI2() const { return m_value.ui2; }
    void SetUI4(std::uint32_t value) { SetScalar(ItemType_ui4, &Value::ui4, value); }
    std::uint32_t GetUI4() const { return m_value.ui4; }
    void SetUI8(std::uint64_t value) { SetScalar(ItemType_ui8, &Value::ui8, value); }
    std::uint64_t GetUI8() const { return m_value.ui8; }
    void SetR4(float value) { SetScalar(ItemType_r4, &Value::r4, value); }
    float GetR4() const { return m_value.r4; }
    void SetR8(double value) { SetScalar(ItemType_r8, &Value::r8, value); }
    double GetR8() const { return m_value.r8; }
    void SetDuration(const CDateTimeSpan &value);
    CDateTimeSpan GetDuration() const;
    void SetYearMonth(const CDateTime &value);
    CDateTime GetYearMonth() const;
    void SetMonthDay(const CDateTime &value);
    CDateTime GetMonthDay() const;
    void SetYear(std::uint16_t value) { SetScalar(ItemType_year, &Value::ui2, value); }
    std::uint16_t GetYear() const { return m_value.ui2; }
    void SetMonth(unsigned char value) { SetScalar(ItemType_month, &Value::ui1, value); }
    unsigned char GetMonth() const { return m_value.ui1; }
    void SetDay(unsigned char value) { SetScalar(ItemType_day, &Value::ui1, value); }
    unsigned char GetDay() const { return m_value.ui1; }
    void SetDate(const CDateTime &value);
    CDateTime GetDate() const;
    void SetDateTime(const CDateTime &value);
    CDateTime GetDateTime() const;
    void SetTime(const CDateTime &value);
    CDateTime GetTime() const;
    void SetChar(char value) { SetScalar(ItemType_char, &Value::i1, value); }
    char GetChar() const { return m_value.i1; }
    void SetString(const std::string &value);
    std::string GetString() const;
    void SetBoolean(bool value) { SetScalar(ItemType_boolean, &Value::boolean, value); }
    bool GetBoolean() const { return m_value.boolean; }
    void SetDecimal(const CDecimal &value);
    CDecimal GetDecimal() const;
    void SetInteger(const CBigInteger &value);
    CBigInteger GetInteger() const;
    // Null is stored as it is; otherwise the variant holds a reference.
    void SetXmlObject(CXmlObjectBase *value);
    CSmartPtr<CXmlObjectBase> GetXmlObject() const;
    void SetXmlCollection(CXmlCollectionBase *value);
    CSmartPtr<CXmlCollectionBase> GetXmlCollection() const;

    // Converts first, so a text that fails leaves the variant as it was.
    void FromString(const std::string &text, ItemType type, CWhitespaceUtils::WhitespaceRule rule);
    // The format (the metadata's FormatOverride) reaches r4, r8 and decimal only.
    std::string ToString(const char *format) const;

private:
    union Value {
        char i1;
        std::int16_t i2;
        std::int32_t i4;
        std::int64_t i8;
        unsigned char ui1;
        std::uint16_t ui2;
        std::uint32_t ui4;
        std::uint64_t ui8;
        float r4;
        double r8;
        bool boolean;
        CBinaryData *binary;
        CDateTimeSpan *duration;
        CDateTime *dateTime;
        std::string *string;
        CDecimal *decimal;
        CBigInteger *integer;
        CXmlObjectBase *object;
    };

    template <class T>
    void SetScalar(ItemType type, T Value::*member, T value)
    {
        Clear();
        m_type = type;
        m_value.*member = value;
    }
    template <class T>
    void SetHeap(ItemType type, T *Value::*member, const T &value);
    // A copy of the heap value when the variant's type stores it there, else T().
    template <class T>
    T GetHeap(T *Value::*member, bool stored) const;
    void SetCounted(ItemType type, CXmlObjectBase *value);
    template <class Action>
    static bool WithHeapMember(ItemType type, Action action);

    bool m_nil = false;
    ItemType m_type = ItemType_Invalid;
    Value m_value{};
};

} // namespace VxXmlLib16
