#pragma once
// The facets of one simple type, and the checkers that apply them to typed values.
// Bounds stay lexical text, exactly as the schema gave them, and are parsed by the
// value's own conversion at the moment of the check. A value that breaks a facet gives
// CVxInvalidValueException naming the element or attribute and the value; no wording
// says which facet failed.

#include <cstdint>
#include <string>

#include "ItemType.h"
#include "VxXmlLib16Fwd.h"

namespace VxXmlLib16 {

class CPrimitiveRestrictions
{
public:
    // No facet set.
    CPrimitiveRestrictions();
    // An unset number is -1, an unset text empty; no text may be null.
    CPrimitiveRestrictions(const char *pattern, std::int32_t minLength, std::int32_t maxLength,
                           const char *minInclusive, const char *maxInclusive, const char *minExclusive,
                           const char *maxExclusive, std::int32_t length, std::int32_t totalDigits,
                           std::int32_t fractionDigits);
    CPrimitiveRestrictions(const CPrimitiveRestrictions &) = default;
    CPrimitiveRestrictions &operator=(const CPrimitiveRestrictions &) = default;
    virtual ~CPrimitiveRestrictions();

    const std::string &GetPattern() const { return m_pattern; }
    std::int32_t GetMinLength() const { return m_minLength; }
    std::int32_t GetMaxLength() const { return m_maxLength; }
    const std::string &GetMinInclusive() const { return m_minInclusive; }
    const std::string &GetMaxInclusive() const { return m_maxInclusive; }
    const std::string &GetMinExclusive() const { return m_minExclusive; }
    const std::string &GetMaxExclusive() const { return m_maxExclusive; }
    std::int32_t GetLength() const { return m_length; }
    std::int32_t GetTotalDigits() const { return m_totalDigits; }
    std::int32_t GetFractionDigits() const { return m_fractionDigits; }

private:
    std::string m_pattern;
    std::int32_t m_minLength = -1;
    std::int32_t m_maxLength = -1;
    std::string m_minInclusive;
    std::string m_maxInclusive;
    std::string m_minExclusive;
    std::string m_maxExclusive;
    std::int32_t m_length = -1;
    std::int32_t m_totalDigits = -1;
    std::int32_t m_fractionDigits = -1;
};

// Chooses the checker by type (not by the variant's own type). char and the types
// outside 1 to 26 have no checker and always fail.
void CheckPrimitiveRestriction(const char *name, const VxVariant &value, ItemType type,
                               const CPrimitiveRestrictions &restrictions);

// One checker per value type. The type tells apart the items that share a C++ type:
// hexBinary and base64Binary, the date types, and day, month and year among the
// small integers, whose bounds are read by their own conversions.
void CheckRestrictionValue(const char *name, const CBinaryData &value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, bool value, ItemType type, const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, double value, ItemType type, const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, float value, ItemType type, const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, std::uint64_t value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, std::int64_t value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, std::uint32_t value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, std::int32_t value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, std::uint16_t value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, std::int16_t value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, unsigned char value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, char value, ItemType type, const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, const std::string &value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, const CDateTime &value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, const CDateTimeSpan &value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, const CBigInteger &value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);
void CheckRestrictionValue(const char *name, const CDecimal &value, ItemType type,
                           const CPrimitiveRestrictions &restrictions);

// An XML Schema pattern, translated to a regular expression, anchored at both ends and
// matched against the whole value. Both texts are in the local encoding.
bool MatchXsdPattern(std::string pattern, std::string value);

// Replaces the first occurrence and searches again from the start, until none is left.
void ReplaceAll(std::string &text, const std::string &find, const std::string &replacement);

} // namespace VxXmlLib16
