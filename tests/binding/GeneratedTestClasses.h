#pragma once
// Small generated classes for the driver and metadata tests, in namespace "urn:t". Their
// properties live in variants; their tables are built once and freed by CleanMetaData.
//
//   basket  (sequence)  owner: person (Cls Mnd), item: item* (Cls Col 1..3),
//                       pay: payment (pseudo choice, Cls Mnd), memo: note (Cls Opt)
//   item    (sequence)  @id i4 required, @unit string of 3+ letters = "cm", @t:kind enum;
//                       qty i4 >= 1 (Mnd), note string nillable = "none" (Opt), color enum (Opt)
//   person  (all)       name (Mnd), age i4 (Opt), ##other anyAttribute
//   payment (pseudo choice) card string | cash decimal
//   memo    (sequence, nillable class) text
//   pick    (choice of two collections with a minimum of 1)

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

#include "GeneratedSupport.h"
#include "VxXmlLib16.h"

namespace VxTest {

namespace vx = VxXmlLib16;
namespace vd = VxXmlLib16Data;

constexpr const char *TestNs = "urn:t";
inline const vx::CPrimitiveRestrictions NoFacets;
constexpr auto Keep = vx::CWhitespaceUtils::WhitespaceRule_Preserve;

// The class entry of a table, in the test namespace.
vd::CParentElementInfo *ParentInfo(vd::XmlElementGroupType group, vd::XmlElementType type, const char *name,
                                   bool failIfAttributeUnknown = true);

// The three tables of one class, freed at exit the way generated code frees them.
struct CTestTables
{
    vd::CParentElementInfo *info;
    vd::CElementInfo **elements;
    vd::CAttributeInfo **attributes;
    ~CTestTables() { vx::CXmlGeneratedClass::CleanMetaData(info, elements, attributes); }
};

// A null-terminated table on the heap, as generated code builds it.
template <class Entry>
Entry **Table(std::initializer_list<Entry *> entries)
{
    Entry **table = new Entry *[entries.size() + 1];
    std::copy(entries.begin(), entries.end(), table);
    table[entries.size()] = nullptr;
    return table;
}

class CTestObject : public vx::CXmlGeneratedClass
{
public:
    CTestObject(const CTestTables &tables, int propertyCount);
    vx::CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return TestNs; }
    std::string GetNamespace() const override { return TestNs; }
    void AccessProperty(int propertyIndex, bool read, vx::VxVariant &value) override;
    vd::CParentElementInfo *GetClassInfo() const override { return m_tables.info; }
    vd::CElementInfo **GetClassElementInfo() const override { return m_tables.elements; }
    vd::CAttributeInfo **GetClassAttributeInfo() const override { return m_tables.attributes; }
    void Init() override;

    vx::VxVariant &Property(int index) { return m_properties[index]; }
    template <class T>
    T *Child(int index) const
    {
        return static_cast<T *>(static_cast<vx::CXmlObjectBase *>(m_properties[index].GetXmlObject()));
    }

protected:
    // Mandatory children and collections that the generated constructor makes.
    virtual void CreateChildren() {}

private:
    const CTestTables &m_tables;
    std::vector<vx::VxVariant> m_properties;
};

const char *ColorToString(int value);
int ColorFromString(const char *text);

class CItem final : public CTestObject
{
public:
    enum { Id, Unit, Kind, Qty, Note, ColorProperty, Count };
    CItem();
    static CSmartPtr<CItem> CreateInstance() { return new CItem(); }
};

class CPerson final : public CTestObject
{
public:
    enum { Name, Age, Extra, Count };
    CPerson();
    static CSmartPtr<CPerson> CreateInstance() { return new CPerson(); }

protected:
    void CreateChildren() override;
};

class CNote final : public CTestObject, public vx::INillable
{
public:
    enum { Text, Count };
    CNote();
    bool IsNil() const override { return m_nil; }
    void SetNil(bool nil) override { m_nil = nil; }

private:
    bool m_nil = false;
};

class CBasket final : public CTestObject
{
public:
    enum { Owner, Items, Pay, Memo, Count };
    CBasket();
    VxGenerated::CGeneratedCol<CItem> *Lines()
    {
        vx::CXmlCollectionBase *lines = Property(Items).GetXmlCollection();
        return static_cast<VxGenerated::CGeneratedCol<CItem> *>(lines);
    }

protected:
    void CreateChildren() override;
};

class CPick final : public CTestObject
{
public:
    enum { Items, People, Count };
    CPick();

protected:
    void CreateChildren() override;
};

} // namespace VxTest
