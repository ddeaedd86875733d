#include "xml/ExpatReader.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "Exceptions.h"
#include "LocalText.h"
#include "SerializationContext.h"
#include "XmlDocument.h"

namespace VxXmlLib16 {

namespace {

constexpr std::uint32_t kScratchSize = 1024;
constexpr XML_Char kNamespaceSeparator = '|';
// Entity expansion may produce at most this many bytes per byte of input once the
// output passes the threshold, which bounds "billion laughs" documents.
constexpr float kMaximumAmplification = 100.0f;
constexpr unsigned long long kAmplificationThreshold = 8ull * 1024 * 1024;
// Distinct names remembered per parse; real vocabularies stay far below.
constexpr std::size_t kMostCachedNames = 4096;
// Expat copies what XML_Parse gives it into a buffer of its own; slices of this size keep
// that copy small and warm instead of doubling a whole document in fresh memory.
constexpr std::uint32_t kLargestSlice = 1u << 18;

constexpr std::string_view kCdataStart = "<![CDATA[";
constexpr std::string_view kCdataEnd = "]]>";

// Code pages 0, 3 and 65001 all mean UTF-8 as local text.
bool LocalTextIsUtf8()
{
    const unsigned int codePage = GetLocalCharEncoding();
    return IsASCIIOnly() || codePage == 65001 || codePage == 0 || codePage == 3;
}

} // namespace

CExpatReader::CExpatReader(CXmlDocument *document) : CInstanceMonitor("CExpatReader"), m_document(document) {}

CExpatReader::~CExpatReader()
{
    ReleaseScratch();
    FreeParser();
}

void CExpatReader::Initialise()
{
    m_scratch = std::make_unique<Scratch>();
    static_assert(sizeof(Scratch) == kScratchSize, "the scratch halves fill the buffer");
    m_passThrough = LocalTextIsUtf8();

    FreeParser();
    m_parser = m_document->m_schemaType == SchemaType_NoNamespaces
                   ? XML_ParserCreate(nullptr)
                   : XML_ParserCreateNS(nullptr, kNamespaceSeparator);
    if (!m_parser)
        throw std::bad_alloc();
    // Stated here rather than trusted to the build of Expat: entity expansion is bounded.
    XML_SetBillionLaughsAttackProtectionMaximumAmplification(m_parser, kMaximumAmplification);
    XML_SetBillionLaughsAttackProtectionActivationThreshold(m_parser, kAmplificationThreshold);

    XML_SetUserData(m_parser, this);
    XML_SetElementHandler(m_parser, &OnStartElement, &OnEndElement);
    XML_SetNamespaceDeclHandler(m_parser, &OnStartNamespace, &OnEndNamespace);
    XML_SetCharacterDataHandler(m_parser, &OnCharacterData);
    if (!m_document->m_context->GetStripCDATA())
        XML_SetCdataSectionHandler(m_parser, &OnStartCdata, &OnEndCdata);
}

void CExpatReader::ParseBuffer(bool final)
{
    const char *data = reinterpret_cast<const char *>(m_document->m_data);
    std::uint32_t remaining = m_document->m_dataLength;
    bool parsed = true;
    do {
        const std::uint32_t slice = std::min(remaining, kLargestSlice);
        remaining -= slice;
        parsed = XML_Parse(m_parser, data, static_cast<int>(slice), final && remaining == 0) != XML_STATUS_ERROR;
        data += slice;
    } while (parsed && remaining > 0);

    if (m_failure) {
        FreeParser();
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    }
    if (parsed) {
        if (final)
            FreeParser();
        return;
    }
    std::string message = FormatString("%s at line %d", XML_ErrorString(XML_GetErrorCode(m_parser)),
                                       static_cast<int>(XML_GetCurrentLineNumber(m_parser)));
    ReleaseScratch();
    FreeParser();
    throw CVxException(std::move(message));
}

void CExpatReader::ReleaseScratch()
{
    m_scratch.reset();
}

void CExpatReader::FreeParser()
{
    if (m_parser)
        XML_ParserFree(m_parser);
    m_parser = nullptr;
}

void CExpatReader::Fail()
{
    m_failure = std::current_exception();
    XML_StopParser(m_parser, XML_FALSE);
}

std::string CExpatReader::ToLocal(const char *bytes, std::size_t count, bool useScratch)
{
    if (m_passThrough)
        return std::string(bytes, count);
    const auto length = static_cast<unsigned int>(count);
    if (useScratch && m_scratch)
        return Utf8ToLocal(bytes, length, m_scratch->wide, std::size(m_scratch->wide), m_scratch->narrow,
                           std::size(m_scratch->narrow));
    return Utf8ToLocal(bytes, length);
}

void CExpatReader::AppendText(const char *bytes, std::size_t count)
{
    CXmlElement *element = m_document->GetOpenElement();
    if (!element)
        return;
    if (m_passThrough) {
        CXmlDocument::AppendTextExcludingCR(element, bytes, count);
        return;
    }
    const std::string local = ToLocal(bytes, count, true);
    CXmlDocument::AppendTextExcludingCR(element, local.data(), local.size());
}

CExpatReader::QualifiedName CExpatReader::LookupName(const XML_Char *rawName)
{
    const std::string_view raw(rawName);
    if (const auto found = m_names.find(raw); found != m_names.end())
        return found->second;

    std::string local = ToLocal(raw.data(), raw.size(), true);
    const std::size_t separator = local.find(kNamespaceSeparator);
    QualifiedName name{};
    if (separator == std::string::npos) {
        name.uri = m_document->StoreName(std::string());
        name.localName = m_document->StoreName(std::move(local));
    } else {
        name.uri = m_document->StoreName(local.substr(0, separator));
        name.localName = m_document->StoreName(local.substr(separator + 1));
    }
    if (m_names.size() < kMostCachedNames)
        m_names.emplace(std::string_view(m_rawNames.emplace_back(raw)), name);
    return name;
}

template <class Action>
void CExpatReader::Guarded(void *userData, Action &&action)
{
    CExpatReader &reader = *static_cast<CExpatReader *>(userData);
    try {
        action(reader);
    } catch (...) {
        reader.Fail();
    }
}

void CExpatReader::AppendMarker(std::string_view marker)
{
    if (CXmlElement *element = m_document->GetOpenElement())
        CXmlDocument::AppendTextExcludingCR(element, marker.data(), marker.size());
}

void XMLCALL CExpatReader::OnStartElement(void *userData, const XML_Char *rawName, const XML_Char **attributes)
{
    Guarded(userData, [&](CExpatReader &reader) {
        const QualifiedName name = reader.LookupName(rawName);
        CXmlElement *element = reader.m_document->OpenElement(name.uri, name.localName);
        for (; *attributes; attributes += 2) {
            const QualifiedName attributeName = reader.LookupName(attributes[0]);
            CXmlDocument::AddElementAttribute(element, attributeName.localName,
                                              reader.ToLocal(attributes[1], std::strlen(attributes[1]), false),
                                              attributeName.uri);
        }
    });
}

void XMLCALL CExpatReader::OnEndElement(void *userData, const XML_Char *)
{
    Guarded(userData, [](CExpatReader &reader) { reader.m_document->EndElement(); });
}

void XMLCALL CExpatReader::OnCharacterData(void *userData, const XML_Char *text, int length)
{
    if (length > 0)
        Guarded(userData, [&](CExpatReader &reader) { reader.AppendText(text, static_cast<std::size_t>(length)); });
}

void XMLCALL CExpatReader::OnStartNamespace(void *userData, const XML_Char *prefix, const XML_Char *uri)
{
    Guarded(userData, [&](CExpatReader &reader) {
        std::string alias = prefix ? reader.ToLocal(prefix, std::strlen(prefix), false) : std::string();
        std::string value = uri ? reader.ToLocal(uri, std::strlen(uri), false) : std::string();
        reader.m_document->SetAlias(std::move(alias), std::move(value));
    });
}

// The alias table is document-wide: an alias stays after its element ends.
void XMLCALL CExpatReader::OnEndNamespace(void *, const XML_Char *) {}

void XMLCALL CExpatReader::OnStartCdata(void *userData)
{
    Guarded(userData, [](CExpatReader &reader) { reader.AppendMarker(kCdataStart); });
}

void XMLCALL CExpatReader::OnEndCdata(void *userData)
{
    Guarded(userData, [](CExpatReader &reader) { reader.AppendMarker(kCdataEnd); });
}

} // namespace VxXmlLib16
