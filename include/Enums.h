#pragma once
// The small enums of the entry points. Their numbers are part of the interface, and each
// has a fixed 32-bit type so that a number outside the list is a defined value that
// reaches the failure or the fallback its user states.

#include <cstdint>

namespace VxXmlLib16 {

// Any number other than 2 behaves like 0.
enum SchemaType : std::int32_t {
    SchemaType_Namespaced = 0,
    SchemaType_NoNamespaces = 2
};

enum XmlEncoding : std::int32_t {
    XmlEncoding_None = 0,        // text stays in the local encoding; no bytes
    XmlEncoding_UTF8 = 1,
    XmlEncoding_UTF16 = 2,       // little-endian units, encoding named in the declaration
    XmlEncoding_UTF16NoDecl = 3  // little-endian units, no encoding in the declaration
};

// Any other number fails in the writer with "Invalid EOL type.".
enum EOLType : std::int32_t {
    EOLType_CRLF = 0,
    EOLType_LF = 1
};

// zlib framing is refused by the file entry points; any other number means no compression.
enum CompressionType : std::int32_t {
    CompressionType_None = 0,
    CompressionType_GZip = 1,
    CompressionType_Zlib = 2
};

// The XML declaration a Fast Infoset document carries in front of its header.
enum FInfoDecl : std::int32_t {
    FInfoDecl_None = 0,
    FInfoDecl_Encoding = 1,
    FInfoDecl_EncodingStandaloneYes = 2,
    FInfoDecl_EncodingStandaloneNo = 3,
    FInfoDecl_Version10 = 4,
    FInfoDecl_Version10StandaloneYes = 5,
    FInfoDecl_Version10StandaloneNo = 6,
    FInfoDecl_Version11 = 7,
    FInfoDecl_Version11StandaloneYes = 8,
    FInfoDecl_Version11StandaloneNo = 9
};

} // namespace VxXmlLib16
