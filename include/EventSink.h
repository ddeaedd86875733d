#pragma once
// The receiver of the five collection events.

#include <cstdint>

#include "VxXmlLib16Fwd.h"

namespace VxXmlLib16 {

class IEventSink
{
public:
    enum MsgType : std::int32_t {
        MsgType_CollectionChange = 0,         // data: null
        MsgType_CollectionAdd = 1,            // data: the item about to be added
        MsgType_CollectionAddComplete = 2,    // data: the item that was added
        MsgType_CollectionRemove = 3,         // data: int * index, or null for -1
        MsgType_CollectionRemoveComplete = 4  // data: int * index, or null for -1
    };

    virtual void OnEvent(CXmlObjectBase *source, MsgType type, void *data) = 0;

protected:
    ~IEventSink() = default;
};

} // namespace VxXmlLib16
