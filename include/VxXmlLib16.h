#pragma once
// The whole public interface of VxXmlLib16.

#include "VxXmlLib16Fwd.h"
#include "Exceptions.h"
#include "CriticalSection.h"
#include "InstanceMonitor.h"
#include "SmartPtr.h"
#include "ItemType.h"
#include "Enums.h"
#include "EventSink.h"
#include "NamespaceAliasMap.h"
#include "SerializationContext.h"
#include "XmlObjectBase.h"
#include "XmlCollectionBase.h"
#include "StringBuffer.h"
#include "TextStream.h"
#include "XmlWriter.h"
#include "XmlTextWriter.h"
