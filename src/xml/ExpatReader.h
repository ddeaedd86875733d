#pragma once
// Connects the Expat parser to a CXmlDocument: Expat's events become the document's
// building operations, and all text leaves here in the local encoding.

#include <deque>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

// The system Expat is built with DTD support; its header declares the entity expansion
// limits only when told so.
#ifndef XML_DTD
#define XML_DTD
#endif
#include <expat.h>

#include "InstanceMonitor.h"
#include "VxXmlLib16Fwd.h"

namespace VxXmlLib16 {

class CExpatReader final : private CInstanceMonitor
{
public:
    explicit CExpatReader(CXmlDocument *document);
    ~CExpatReader() override;
    CExpatReader(const CExpatReader &) = delete;
    CExpatReader &operator=(const CExpatReader &) = delete;

    // Creates the scratch buffer and the parser and registers the handlers.
    void Initialise();
    // Feeds the document's current data; the final call frees the parser.
    void ParseBuffer(bool final);
    void ReleaseScratch();

private:
    // Working space of the conversion of short text pieces.
    struct Scratch
    {
        char16_t wide[256];
        char narrow[512];
    };
    // A name as the tree holds it, split at the namespace separator and interned.
    struct QualifiedName
    {
        const std::string *uri;
        const std::string *localName;
    };

    const QualifiedName &LookupName(const XML_Char *rawName);
    // The one place where parser text becomes local text.
    std::string ToLocal(const char *bytes, std::size_t count, bool useScratch);
    void AppendText(const char *bytes, std::size_t count);
    void AppendMarker(std::string_view marker);
    void FreeParser();
    // A failure inside a handler stops the parser and is rethrown after XML_Parse.
    void Fail();
    template <class Action>
    static void Guarded(void *userData, Action &&action);

    static void XMLCALL OnStartElement(void *userData, const XML_Char *name, const XML_Char **attributes);
    static void XMLCALL OnEndElement(void *userData, const XML_Char *name);
    static void XMLCALL OnCharacterData(void *userData, const XML_Char *text, int length);
    static void XMLCALL OnStartNamespace(void *userData, const XML_Char *prefix, const XML_Char *uri);
    static void XMLCALL OnEndNamespace(void *userData, const XML_Char *prefix);
    static void XMLCALL OnStartCdata(void *userData);
    static void XMLCALL OnEndCdata(void *userData);

    CXmlDocument *m_document;
    std::unique_ptr<Scratch> m_scratch;
    XML_Parser m_parser = nullptr;
    // Local text equals UTF-8 as Expat delivers it, so no conversion is needed.
    bool m_passThrough = false;
    // Each distinct raw name is converted and split once per parse.
    std::deque<std::string> m_rawNames;
    std::unordered_map<std::string_view, QualifiedName> m_names;
    std::exception_ptr m_failure;
};

} // namespace VxXmlLib16
