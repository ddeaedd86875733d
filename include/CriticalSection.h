#pragma once
// A lock that its owner may enter again. Meets BasicLockable (lock/unlock), so
// std::lock_guard works on it.

#include <memory>

namespace VxPlatform {
class RecursiveLock;
}

class CVXCriticalSection
{
public:
    CVXCriticalSection();
    // A copy is a lock of its own: copying a lock never shares or duplicates its state,
    // so a copy can be entered safely whatever its source is doing.
    CVXCriticalSection(const CVXCriticalSection &other);
    // Keeps this object's own lock; there is nothing else to copy.
    CVXCriticalSection &operator=(const CVXCriticalSection &other);
    virtual ~CVXCriticalSection();

    void Enter();
    void Leave();

    void lock() { Enter(); }
    void unlock() { Leave(); }

private:
    std::unique_ptr<VxPlatform::RecursiveLock> m_lock;
};
