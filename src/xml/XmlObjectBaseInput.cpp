#include "XmlObjectBase.h"

#include "BinaryData.h"
#include "XmlDocument.h"
#include "Exceptions.h"
#include "Wildcards.h"

namespace VxXmlLib16 {

// Each reading entry point builds a document for the call and hands its root to
// FromXml_Int; parse failures leave before the object is touched.

void CXmlObjectBase::FromXmlFile(const char *path, const CSerializationContext &context)
{
    CXmlDocument document(context);
    document.Load(path);
    CXmlElement *root = document.GetDocumentElement();
    FromXml_Int(root, root->GetFirstElement(), context, false);
}

void CXmlObjectBase::FromXml(const wchar_t *text, const CSerializationContext &context)
{
    CXmlDocument document(context);
    document.LoadXml(text);
    CXmlElement *root = document.GetDocumentElement();
    FromXml_Int(root, root->GetFirstElement(), context, false);
}

void CXmlObjectBase::FromXml(const char *text, const CSerializationContext &context)
{
    CXmlDocument document(context);
    document.LoadXml(text);
    CXmlElement *root = document.GetDocumentElement();
    FromXml_Int(root, root->GetFirstElement(), context, false);
}

void CXmlObjectBase::FromXmlStream(const CBinaryData &data, const CSerializationContext &context)
{
    // The buffer is only read: LoadXmlStream copies it before parsing.
    FromXmlStream(const_cast<unsigned char *>(data.GetData()), data.GetLength(), context);
}

void CXmlObjectBase::FromXmlStream(unsigned char *const data, std::uint32_t length,
                                   const CSerializationContext &context)
{
    CXmlDocument document(context);
    document.LoadXmlStream(data, length);
    CXmlElement *root = document.GetDocumentElement();
    FromXml_Int(root, root->GetFirstElement(), context, false);
}

// A wildcard element goes through its text on purpose, always rendered with the
// default options, so that the object reads it like any document.
void CXmlObjectBase::FromXmlElement(const CElement *element, const CSerializationContext &context)
{
    if (!element)
        throw CVxInvalidParamException("The element to read from is NULL");
    const std::string text = element->ToXml(false, false, EOLType_LF, CSerializationContext::GetDefaultContext());
    FromXml(text.c_str(), context);
}

void CXmlObjectBase::FromXmlElement(const CXmlElement *element, const CSerializationContext &context)
{
    // The tree is read, never changed; FromXml_Int takes it without const for its cursor.
    auto *root = const_cast<CXmlElement *>(element);
    FromXml_Int(root, root->GetFirstElement(), context, false);
}

} // namespace VxXmlLib16
