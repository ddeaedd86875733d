#pragma once
// The process-wide local text encoding and the transcoders between local narrow text,
// UTF-8 and UTF-16. All text inside the library is narrow text in the local encoding;
// UTF-8 and UTF-16 exist only where documents come in and go out.
//
// The local encoding is named by a code page number. The default is 65001, UTF-8.
//
//   Code page            Encoding
//   0, 3, 65001          UTF-8 (0 and 3 are the "system/thread ANSI" defaults of other
//                        platforms and mean UTF-8 here)
//   437, 850, 852, 866   IBM PC code pages
//   874                  Thai (Windows-874)
//   932                  Japanese Shift-JIS (Windows-31J)
//   936                  Simplified Chinese GBK
//   949                  Korean Unified Hangul Code
//   950                  Traditional Chinese Big5
//   1250 to 1258         Windows-1250 to Windows-1258
//   10000                Mac OS Roman
//   20127                US-ASCII
//   20866, 21866         KOI8-R, KOI8-U
//   28591 to 28599       ISO-8859-1 to ISO-8859-9
//   28603, 28605         ISO-8859-13, ISO-8859-15
//   51932, 51949         EUC-JP, EUC-KR
//   54936                GB18030
//
// Every listed code page keeps the ASCII bytes as they are, so plain ASCII text (and any
// valid UTF-8 when the local encoding is UTF-8) is copied rather than converted.
//
// Any other number is accepted by SetLocalCharEncoding but every conversion into or out
// of it fails, which gives an empty result. A character that the local encoding cannot
// hold becomes '?'; a byte sequence that is not valid in its encoding (UTF-8 included)
// becomes U+FFFD on the way to Unicode.
//
// UTF-16 is held in char16_t units in host order; as bytes (LocalToUtf16Data) it is
// always little-endian, without byte order mark.
//
// The two setters write unguarded process-wide settings: call them at program start,
// before any thread reads or writes documents.

#include <string>

#include "VxXmlLib16Fwd.h"

namespace VxXmlLib16 {

// Overwrites the local code page; nothing is checked.
void SetLocalCharEncoding(unsigned int codePage);
unsigned int GetLocalCharEncoding();
// With the flag set, UTF-8 input and output pass the bytes through untranscoded.
void ASCIIOnly(bool asciiOnly);
bool IsASCIIOnly();

// count UTF-16 units to local text; the result ends at the first NUL. The ASCII-only
// flag is not consulted.
std::string Utf16ToLocal(const char16_t *text, unsigned int count);

// count bytes of UTF-8 to local text; the result ends at the first NUL. With the
// ASCII-only flag set the bytes are copied as they stand. The scratch buffers (counts in
// units; 0 means none) serve as working space so that short text needs no allocation.
std::string Utf8ToLocal(const char *bytes, unsigned int count, char16_t *wideScratch,
                        unsigned int wideScratchCount, char *narrowScratch,
                        unsigned int narrowScratchCount);
std::string Utf8ToLocal(const char *bytes, unsigned int count);
std::string Utf8ToLocal(const char *text, char16_t *wideScratch, unsigned int wideScratchCount,
                        char *narrowScratch, unsigned int narrowScratchCount);
std::string Utf8ToLocal(const char *text);

// Local text as UTF-16 bytes, little-endian, no terminator, no byte order mark.
CBinaryData LocalToUtf16Data(const char *text);
// NUL-terminated UTF-16 as UTF-8 bytes. A lone surrogate where any unit is 128 or above
// gives an empty result.
CBinaryData Utf16ToUtf8Data(const char16_t *text);
// Local text as UTF-8 bytes; with the ASCII-only flag set the bytes as they stand.
CBinaryData LocalToUtf8Data(const char *text);

// With out null: the number of UTF-8 bytes [begin, end) needs, or 0 if it holds a lone
// surrogate. Otherwise writes UTF-8 into [out, outEnd) and returns the bytes written;
// the conversion stops at a lone surrogate or where the next character does not fit.
int Utf16ToUtf8(const char16_t *begin, const char16_t *end, char *out, char *outEnd);

} // namespace VxXmlLib16
