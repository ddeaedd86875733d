#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

#include "CriticalSection.h"

namespace {

// True when another thread manages to enter the lock within a short wait.
bool OtherThreadGetsIn(CVXCriticalSection &lock)
{
    std::atomic<bool> entered{false};
    std::thread other([&] {
        lock.Enter();
        entered = true;
        lock.Leave();
    });
    for (int i = 0; i < 200 && !entered; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    const bool result = entered;
    // A waiting thread is let in, so that it ends, and the caller takes the lock back.
    if (!result)
        lock.Leave();
    other.join();
    if (!result)
        lock.Enter();
    return result;
}

} // namespace

TEST(CriticalSection, OwnerMayEnterAgainOthersWaitAndACopyIsItsOwnLock)
{
    CVXCriticalSection lock;
    lock.Enter();
    lock.Enter();
    lock.Leave();
    EXPECT_FALSE(OtherThreadGetsIn(lock)); // still held once
    lock.Leave();
    EXPECT_TRUE(OtherThreadGetsIn(lock));

    // A copy is a lock of its own.
    std::lock_guard<CVXCriticalSection> held(lock);
    CVXCriticalSection copy(lock);
    EXPECT_TRUE(OtherThreadGetsIn(copy));
}
