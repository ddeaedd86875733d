#pragma once
// Empty private base of the runtime classes that own resources. It takes the class name
// and keeps nothing: a hook for instance counting that costs nothing in this build.

class CInstanceMonitor
{
public:
    explicit CInstanceMonitor(const char * /*className*/) {}
    CInstanceMonitor(const CInstanceMonitor &) {}
    CInstanceMonitor &operator=(const CInstanceMonitor &) { return *this; }
    virtual ~CInstanceMonitor() = default;
};
