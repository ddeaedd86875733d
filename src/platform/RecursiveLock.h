#pragma once
// The platform's recursive mutex behind CVXCriticalSection.

#include <pthread.h>

namespace VxPlatform {

class RecursiveLock final
{
public:
    RecursiveLock();
    ~RecursiveLock();
    RecursiveLock(const RecursiveLock &) = delete;
    RecursiveLock &operator=(const RecursiveLock &) = delete;

    void Enter();
    void Leave();

private:
    pthread_mutex_t m_mutex;
};

} // namespace VxPlatform
