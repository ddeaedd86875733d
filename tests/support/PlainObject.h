#pragma once
// An object with nothing of its own to write or read, for tests of what the base class
// does; subclasses override only what they probe. It counts its destruction on request.

#include <string>

#include "XmlObjectBase.h"

namespace VxTest {

class CPlainObject : public VxXmlLib16::CXmlObjectBase
{
public:
    explicit CPlainObject(int *destroyed = nullptr) : m_destroyed(destroyed) {}
    VxXmlLib16::CXmlObjectBase *GetBase() override { return this; }
    std::string GetTargetNamespace() const override { return std::string(); }
    std::string GetNamespace() const override { return std::string(); }

protected:
    ~CPlainObject() override
    {
        if (m_destroyed)
            ++*m_destroyed;
    }
    void ToXml_Int(VxXmlLib16::CXmlWriter *, bool, const char *, const VxXmlLib16::CSerializationContext &,
                   bool) const override
    {
    }
    VxXmlLib16::CXmlElement *FromXml_Int(VxXmlLib16::CXmlElement *, VxXmlLib16::CXmlElement *firstChild,
                                         const VxXmlLib16::CSerializationContext &, bool) override
    {
        return firstChild;
    }

private:
    int *m_destroyed;
};

} // namespace VxTest
