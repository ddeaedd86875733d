#pragma once
// The root of every serialisable object: reference count, element name, event sink, and
// all public entry points. An entry point picks a writer and a stream (or builds a
// document) and hands over to ToXml_Int or FromXml_Int; it knows nothing of the object.

#include <atomic>
#include <cstdint>
#include <string>

#include "Enums.h"
#include "EventSink.h"
#include "SerializationContext.h"
#include "SmartPtr.h"
#include "VxXmlLib16Fwd.h"

namespace VxXmlLib16 {

// Process-wide switches, false at start; set them at program start. The first streams
// ToXmlFile and ToJsonFile through overlapped writes, the second reads files with
// overlapped reads.
void AsyncToXmlFile(bool enable);
void AsyncFromXmlFile(bool enable);
bool IsAsyncToXmlFile();
bool IsAsyncFromXmlFile();

class CXmlObjectBase : public IEventSink
{
    // The metadata entries drive the protected operations of the objects they describe.
    friend class VxXmlLib16Data::CElementInfo;
    friend class VxXmlLib16Data::CAttributeInfo;

public:
    CXmlObjectBase() = default;
    // Both copy the reference count too: a copy of a live object starts with its
    // source's count, and assignment overwrites the target's count.
    CXmlObjectBase(const CXmlObjectBase &other);
    CXmlObjectBase &operator=(const CXmlObjectBase &other);

    void OnEvent(CXmlObjectBase *source, MsgType type, void *data) override;
    virtual CXmlObjectBase *GetBase() = 0;

    virtual void ToXmlFile(const char *path, bool docHeader = true, bool formatted = true,
                           XmlEncoding encoding = XmlEncoding_UTF8, EOLType eol = EOLType_LF,
                           const CSerializationContext &context = CSerializationContext::GetDefaultContext(),
                           CompressionType compression = CompressionType_None) const;
    virtual void ToFastInfosetFile(const char *path, FInfoDecl declaration = FInfoDecl_None,
                                   const CSerializationContext &context = CSerializationContext::GetDefaultContext(),
                                   CompressionType compression = CompressionType_None) const;
    virtual void ToJsonFile(const char *path, bool formatted = true, XmlEncoding encoding = XmlEncoding_UTF8,
                            EOLType eol = EOLType_LF,
                            const CSerializationContext &context = CSerializationContext::GetDefaultContext(),
                            CompressionType compression = CompressionType_None) const;
    virtual std::string ToXml(bool docHeader = true, bool formatted = true, EOLType eol = EOLType_LF,
                              const CSerializationContext &context = CSerializationContext::GetDefaultContext()) const;
    virtual std::string ToJson(bool formatted = true, EOLType eol = EOLType_LF,
                               const CSerializationContext &context = CSerializationContext::GetDefaultContext()) const;
    virtual CBinaryData ToXmlStream(bool docHeader = true, bool formatted = true,
                                    XmlEncoding encoding = XmlEncoding_UTF8, EOLType eol = EOLType_LF,
                                    const CSerializationContext &context = CSerializationContext::GetDefaultContext(),
                                    CompressionType compression = CompressionType_None) const;
    virtual CBinaryData ToFastInfosetStream(FInfoDecl declaration = FInfoDecl_None,
                                            const CSerializationContext &context = CSerializationContext::GetDefaultContext(),
                                            CompressionType compression = CompressionType_None) const;
    virtual CBinaryData ToJsonStream(bool formatted = true, XmlEncoding encoding = XmlEncoding_UTF8,
                                     EOLType eol = EOLType_LF,
                                     const CSerializationContext &context = CSerializationContext::GetDefaultContext(),
                                     CompressionType compression = CompressionType_None) const;
    virtual void FromXmlFile(const char *path,
                             const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromJsonFile(const char *path,
                              const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromXml(const wchar_t *text,
                         const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromXml(const char *text,
                         const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromJson(const wchar_t *text,
                          const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromJson(const char *text,
                          const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromXmlStream(const CBinaryData &data,
                               const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromXmlStream(unsigned char *const data, std::uint32_t length,
                               const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromJsonStream(const CBinaryData &data,
                                const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromJsonStream(unsigned char *const data, std::uint32_t length,
                                const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromXmlElement(const CElement *element,
                                const CSerializationContext &context = CSerializationContext::GetDefaultContext());
    virtual void FromXmlElement(const CXmlElement *element,
                                const CSerializationContext &context = CSerializationContext::GetDefaultContext());

protected:
    // Objects die through Release.
    virtual ~CXmlObjectBase();

public:
    // The namespace the object is written in at top level.
    virtual std::string GetTargetNamespace() const = 0;
    // The namespace handed to child metadata.
    virtual std::string GetNamespace() const = 0;

protected:
    virtual void AttributesToXml_Int(CXmlWriter *writer, const CSerializationContext &context) const;
    virtual void ToXml_Int(CXmlWriter *writer, bool isRoot, const char *namespaceUri,
                           const CSerializationContext &context, bool isChoiceMember) const = 0;
    // Returns the next element not consumed.
    virtual CXmlElement *FromXml_Int(CXmlElement *element, CXmlElement *firstChild,
                                     const CSerializationContext &context, bool isChoiceMember) = 0;

public:
    std::int32_t AddRef();
    // Deletes the object when the count reaches 0, and returns 0 then.
    std::int32_t Release();
    const CXmlObjectBase *GetBase() const;

protected:
    void SetElementName(const char *name);
    const std::string &GetElementName() const { return m_elementName; }
    static void SetElementName(CXmlObjectBase *object, const char *name);

    // The way in for derived classes that call these protected operations on another object.
    static void ToXml_Int(const CXmlObjectBase *object, CXmlWriter *writer, bool isRoot,
                          const char *namespaceUri, const CSerializationContext &context,
                          bool isChoiceMember);
    static CXmlElement *FromXml_Int(CXmlObjectBase *object, CXmlElement *element,
                                    CXmlElement *firstChild, const CSerializationContext &context);
    static void AttributesToXml_Int(const CXmlObjectBase *object, CXmlWriter *writer,
                                    const CSerializationContext &context);

    static void FireOnCollectionChangeEvent(IEventSink *sink, CXmlCollectionBase *source);
    static void FireOnCollectionAddEvent(IEventSink *sink, CXmlCollectionBase *source, void *item);
    static void FireOnCollectionAddCompleteEvent(IEventSink *sink, CXmlCollectionBase *source, void *item);
    static void FireOnCollectionRemoveEvent(IEventSink *sink, CXmlCollectionBase *source, int index);
    static void FireOnCollectionRemoveCompleteEvent(IEventSink *sink, CXmlCollectionBase *source, int index);

    // Choice helpers: generated code tracks a choice in one string, the name of the
    // selected member, empty when none.
    static void Choice_Read_Collection(CXmlCollectionBase *collection, CXmlElement *parent, CXmlElement *&cursor,
                                       std::int32_t &count, const CSerializationContext &context);
    static void Choice_CollectionChanged(const char *name, std::int32_t count, std::string &selected);
    static void Choice_SelectElement(const char *name, CXmlObjectBase *value, std::string &selected);
    static void Choice_SetElementValid(bool valid, const char *name, std::string &selected);

    static void Throw_IfElementNameDiffers(CXmlObjectBase *value, const char *name);
    static void Throw_IfPropertyIsNull(CXmlObjectBase *value, const char *name);

    bool DoesElementNameMatch(const CSerializationContext &context, const CXmlElement *element, const char *name,
                              const char *namespaceUri) const;

public:
    // The namespace rule of a wildcard or anyAttribute: "##any", "##other", "##local",
    // "##targetNamespace" or a URI. Only the first token of a list decides (an empty
    // namespace may still pass a list); TestNamespace throws where IsNamespaceValid says false.
    static bool IsNamespaceValid(const char *namespaceUri, const char *rule, const char *targetNamespace);
    static void TestNamespace(const char *namespaceUri, const char *rule, const char *targetNamespace);

private:
    std::string m_elementName;
    std::atomic<std::int32_t> m_refCount{0};
};

} // namespace VxXmlLib16
