#pragma once
// The text stream the writers write on: a CStringBuffer with a target encoding. This
// memory stream keeps everything; file streams flush their buffer to disk. Text stays in
// the local encoding until it leaves the stream as bytes.

#include <string>

#include "Enums.h"
#include "InstanceMonitor.h"
#include "StringBuffer.h"
#include "VxXmlLib16Fwd.h"

namespace VxXmlLib16 {

class CTextStream : private CInstanceMonitor
{
public:
    CTextStream();
    explicit CTextStream(XmlEncoding encoding);
    CTextStream(const CTextStream &) = delete;
    CTextStream &operator=(const CTextStream &) = delete;
    ~CTextStream() override;

    virtual void Open();
    virtual void Close();
    virtual void Flush();

    void Append(const char *text) { m_buffer.Append(text); }
    void Append(char c) { m_buffer.Append(c); }
    void Append(const std::string &text) { m_buffer.Append(text); }
    void Append(const char *text, std::size_t count) { m_buffer.Append(text, count); }

    // What the writers compare with their flush threshold.
    std::size_t GetLength() const { return m_buffer.GetLength(); }
    XmlEncoding GetEncoding() const { return m_encoding; }
    const char *GetText() { return m_buffer.GetText(); }
    // The text in the target encoding: UTF-8 (the bytes as they stand with ASCIIOnly), or
    // UTF-16 little-endian without byte order mark for both UTF-16 encodings. Any other
    // encoding, XmlEncoding_None included, fails with "Unknown Encoding, select UTF-8
    // (contact our support team)".
    CBinaryData GetBinaryData();

protected:
    CStringBuffer &GetBuffer() { return m_buffer; }

private:
    CStringBuffer m_buffer;
    XmlEncoding m_encoding;
};

} // namespace VxXmlLib16
