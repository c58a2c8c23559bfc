#pragma once

#include "foundation/CCountedObject.h"

#include <mutex>

namespace Tessitor::Threading {

/// The library's recursive lock: a thread that holds it may lock it again, and must unlock it as
/// often. [any thread], except construction and destruction.
class CCriticalSection : public Basics::CCountedObject {
public:
    CCriticalSection();
    CCriticalSection(const CCriticalSection &) = delete;
    CCriticalSection &operator=(const CCriticalSection &) = delete;
    ~CCriticalSection() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void lock();
    void unlock();  ///< for the thread that holds the lock
    /// @param milliseconds  tries every 5 ms until this time is up; below 1 it waits forever.
    /// @return true if the lock was taken.
    bool tryLock(long milliseconds);

private:
    static Basics::TClassRecord<CCriticalSection> s_class;

    std::recursive_mutex m_section;
};

}  // namespace Tessitor::Threading
