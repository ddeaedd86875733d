#include "platform/RecursiveLock.h"

#include "CriticalSection.h"

namespace VxPlatform {

RecursiveLock::RecursiveLock()
{
    pthread_mutexattr_t attributes;
    pthread_mutexattr_init(&attributes);
    pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
    pthread_mutex_init(&m_mutex, &attributes);
    pthread_mutexattr_destroy(&attributes);
}

RecursiveLock::~RecursiveLock() { pthread_mutex_destroy(&m_mutex); }

void RecursiveLock::Enter() { pthread_mutex_lock(&m_mutex); }

void RecursiveLock::Leave() { pthread_mutex_unlock(&m_mutex); }

} // namespace VxPlatform

CVXCriticalSection::CVXCriticalSection() : m_lock(std::make_unique<VxPlatform::RecursiveLock>()) {}

CVXCriticalSection::CVXCriticalSection(const CVXCriticalSection &)
    : m_lock(std::make_unique<VxPlatform::RecursiveLock>())
{
}

CVXCriticalSection &CVXCriticalSection::operator=(const CVXCriticalSection &) { return *this; }

CVXCriticalSection::~CVXCriticalSection() = default;

void CVXCriticalSection::Enter() { m_lock->Enter(); }

void CVXCriticalSection::Leave() { m_lock->Leave(); }
