#pragma once
// Forward declarations of the library's classes, so that headers name each other
// without pulling each other in.

#include <cstdint>

class CInstanceMonitor;
class CVXCriticalSection;
template <class T> class CSmartPtr;

namespace VxXmlLib16 {
class CVxException;
class CXmlObjectBase;
class CXmlGeneratedClass;
class IEventSink;
class CSerializationContext;
class CNamespaceAliasMap;
class CXmlWriter;
class CXmlTextWriter;
class CStringBuffer;
class CTextStream;
class CFileTextStream;
class CBinaryStream;
class CFileBinaryStream;
class CXmlDocument;
class CXmlElement;
class CXmlAttribute;
class CElement;
class CAttribute;
class CElementCol;
class CAttributeCol;
class CXmlCollectionBase;
class CXmlTypeCollection;
class CdatetimeBaseCol;
class ChexBinaryCol;
class Cbase64BinaryCol;
class Ci1Col;
class Ci2Col;
class Ci4Col;
class Ci8Col;
class Cui1Col;
class Cui2Col;
class Cui4Col;
class Cui8Col;
class Cr4Col;
class Cr8Col;
class CdurationCol;
class CyearMonthCol;
class CmonthDayCol;
class CyearCol;
class CmonthCol;
class CdayCol;
class CdateCol;
class CdatetimeCol;
class CtimeCol;
class CstringCol;
class CbooleanCol;
class CdecimalCol;
class CintegerCol;
class CBinaryData;
class CBigInteger;
class CDecimal;
class CDateTime;
class CDateTimeSpan;
class CJsonContext;
class CFastInfosetContext;
class CPrimitiveRestrictions;
struct VxVariant;
} // namespace VxXmlLib16

namespace VxXmlLib16Data {
class CParentElementInfo;
class CElementInfo;
class CAttributeInfo;
class CCollectionElementInfo;
enum XmlElementGroupType : std::int32_t;
enum XmlElementType : std::int32_t;
} // namespace VxXmlLib16Data
