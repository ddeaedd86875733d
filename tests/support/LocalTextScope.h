#pragma once
// Sets the process-wide local text switches for one test and restores them afterwards.

#include "LocalText.h"

class LocalTextScope
{
public:
    explicit LocalTextScope(unsigned int codePage, bool asciiOnly = false)
        : m_codePage(VxXmlLib16::GetLocalCharEncoding()), m_asciiOnly(VxXmlLib16::IsASCIIOnly())
    {
        VxXmlLib16::SetLocalCharEncoding(codePage);
        VxXmlLib16::ASCIIOnly(asciiOnly);
    }
    ~LocalTextScope()
    {
        VxXmlLib16::SetLocalCharEncoding(m_codePage);
        VxXmlLib16::ASCIIOnly(m_asciiOnly);
    }
    LocalTextScope(const LocalTextScope &) = delete;
    LocalTextScope &operator=(const LocalTextScope &) = delete;

private:
    unsigned int m_codePage;
    bool m_asciiOnly;
};
