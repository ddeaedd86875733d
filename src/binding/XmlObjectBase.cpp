#include "XmlObjectBase.h"

#include <atomic>

#include "TextStream.h"
#include "XmlCollectionBase.h"
#include "XmlTextWriter.h"

namespace VxXmlLib16 {

namespace {
std::atomic<bool> g_asyncToXmlFile{false};
std::atomic<bool> g_asyncFromXmlFile{false};
} // namespace

void AsyncToXmlFile(bool enable) { g_asyncToXmlFile.store(enable, std::memory_order_relaxed); }
void AsyncFromXmlFile(bool enable) { g_asyncFromXmlFile.store(enable, std::memory_order_relaxed); }
bool IsAsyncToXmlFile() { return g_asyncToXmlFile.load(std::memory_order_relaxed); }
bool IsAsyncFromXmlFile() { return g_asyncFromXmlFile.load(std::memory_order_relaxed); }

CXmlObjectBase::CXmlObjectBase(const CXmlObjectBase &other)
    : IEventSink(), m_elementName(other.m_elementName), m_refCount(other.m_refCount.load())
{
}

CXmlObjectBase &CXmlObjectBase::operator=(const CXmlObjectBase &other)
{
    m_elementName = other.m_elementName;
    m_refCount.store(other.m_refCount.load());
    return *this;
}

CXmlObjectBase::~CXmlObjectBase() = default;

void CXmlObjectBase::OnEvent(CXmlObjectBase *, MsgType, void *) {}

std::int32_t CXmlObjectBase::AddRef() { return m_refCount.fetch_add(1) + 1; }

std::int32_t CXmlObjectBase::Release()
{
    const std::int32_t count = m_refCount.fetch_sub(1) - 1;
    if (count == 0)
        delete this;
    return count;
}

const CXmlObjectBase *CXmlObjectBase::GetBase() const
{
    return const_cast<CXmlObjectBase *>(this)->GetBase();
}

void CXmlObjectBase::SetElementName(const char *name) { m_elementName = name ? name : ""; }

void CXmlObjectBase::SetElementName(CXmlObjectBase *object, const char *name) { object->SetElementName(name); }

void CXmlObjectBase::AttributesToXml_Int(CXmlWriter *, const CSerializationContext &) const {}

void CXmlObjectBase::ToXml_Int(const CXmlObjectBase *object, CXmlWriter *writer, bool isRoot,
                               const char *namespaceUri, const CSerializationContext &context,
                               bool isChoiceMember)
{
    object->ToXml_Int(writer, isRoot, namespaceUri, context, isChoiceMember);
}

CXmlElement *CXmlObjectBase::FromXml_Int(CXmlObjectBase *object, CXmlElement *element,
                                         CXmlElement *firstChild, const CSerializationContext &context)
{
    return object->FromXml_Int(element, firstChild, context, false);
}

void CXmlObjectBase::AttributesToXml_Int(const CXmlObjectBase *object, CXmlWriter *writer,
                                         const CSerializationContext &context)
{
    object->AttributesToXml_Int(writer, context);
}

void CXmlObjectBase::FireOnCollectionChangeEvent(IEventSink *sink, CXmlCollectionBase *source)
{
    sink->OnEvent(source->GetBase(), MsgType_CollectionChange, nullptr);
}

void CXmlObjectBase::FireOnCollectionAddEvent(IEventSink *sink, CXmlCollectionBase *source, void *item)
{
    sink->OnEvent(source->GetBase(), MsgType_CollectionAdd, item);
}

void CXmlObjectBase::FireOnCollectionAddCompleteEvent(IEventSink *sink, CXmlCollectionBase *source, void *item)
{
    sink->OnEvent(source->GetBase(), MsgType_CollectionAddComplete, item);
}

void CXmlObjectBase::FireOnCollectionRemoveEvent(IEventSink *sink, CXmlCollectionBase *source, int index)
{
    sink->OnEvent(source->GetBase(), MsgType_CollectionRemove, index == -1 ? nullptr : &index);
}

void CXmlObjectBase::FireOnCollectionRemoveCompleteEvent(IEventSink *sink, CXmlCollectionBase *source,
                                                         int index)
{
    sink->OnEvent(source->GetBase(), MsgType_CollectionRemoveComplete, index == -1 ? nullptr : &index);
}

void CXmlObjectBase::WriteXml(CTextStream &stream, bool docHeader, bool formatted, EOLType eol,
                              const CSerializationContext &context) const
{
    CXmlTextWriter writer(&stream);
    writer.StartDocument();
    writer.SetFormatted(formatted);
    writer.SetIndentChars(context.GetIndentChars());
    writer.SetEOLType(eol);
    writer.SetWriteDefaultValues(context.GetWriteDefaultElementValues());
    if (docHeader)
        writer.WriteDeclaration();
    const std::string targetNamespace = GetTargetNamespace();
    ToXml_Int(&writer, true, targetNamespace.c_str(), context, false);
    writer.EndDocument();
}

std::string CXmlObjectBase::ToXml(bool docHeader, bool formatted, EOLType eol,
                                  const CSerializationContext &context) const
{
    CTextStream stream(XmlEncoding_None);
    WriteXml(stream, docHeader, formatted, eol, context);
    const std::size_t length = stream.GetLength();
    return std::string(stream.GetText(), length);
}

} // namespace VxXmlLib16
