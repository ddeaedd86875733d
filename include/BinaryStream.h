#pragma once
// Finished binary output: CBinaryStream collects bytes in a CBinaryData, and
// CFileBinaryStream writes such bytes to a file in one go.

#include <cstdint>
#include <string>

#include "BinaryData.h"
#include "Enums.h"
#include "InstanceMonitor.h"

namespace VxXmlLib16 {

class CBinaryStream : private CInstanceMonitor
{
public:
    CBinaryStream();
    CBinaryStream(const char *className, const CBinaryData &data);
    ~CBinaryStream() override;

    void Append(unsigned char *const data, std::uint32_t length) { m_data.Append(data, length); }
    void Append(const CBinaryData &data) { m_data.Append(data); }
    void Append(unsigned char byte) { m_data.Append(byte); }
    // A copy that shares the bytes until one side changes.
    CBinaryData GetData() const { return m_data; }

protected:
    const CBinaryData &Data() const { return m_data; }

private:
    CBinaryData m_data;
};

class CFileBinaryStream : public CBinaryStream
{
public:
    CFileBinaryStream(const char *fileName, XmlEncoding encoding, const CBinaryData &data);

    // Creates (or truncates) the file and writes the bytes; with either UTF-16 encoding
    // the mark FF FE goes first, whatever the bytes are, compressed ones included. Fails
    // with "Failed to write data to the file [name] error [0x........]".
    void Save();

private:
    std::string m_fileName;
    XmlEncoding m_encoding;
};

} // namespace VxXmlLib16
