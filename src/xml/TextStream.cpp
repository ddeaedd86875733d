#include "TextStream.h"

namespace VxXmlLib16 {

CTextStream::CTextStream() : CTextStream(XmlEncoding_None) {}

CTextStream::CTextStream(XmlEncoding encoding) : CInstanceMonitor("CTextStream"), m_encoding(encoding) {}

CTextStream::~CTextStream() = default;

void CTextStream::Open() { m_buffer.Reset(); }

void CTextStream::Close() {}

void CTextStream::Flush() {}

} // namespace VxXmlLib16
