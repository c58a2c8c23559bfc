#pragma once

#include "foundation/CCountedObject.h"

#include <mutex>

namespace Tessitor::Threading {

/// The lock of the library. A thread that holds it may take it again, and gives it back as often.
/// Everything here is for [any thread], except construction and destruction.
class CCriticalSection : public Basics::CCountedObject {
public:
    CCriticalSection();
    CCriticalSection(const CCriticalSection &) = delete;
    CCriticalSection &operator=(const CCriticalSection &) = delete;
    ~CCriticalSection() override { s_class.decrementInstanceCount(); }
    Basics::CClass &getClass() const override { return s_class; }

    void lock();
    void unlock();  ///< for the thread that holds the lock
    /// @param milliseconds  below 1 waits without end; else tries every 5 ms until it is used up.
    /// @return whether the lock was taken.
    bool tryLock(long milliseconds);

private:
    static Basics::TClassRecord<CCriticalSection> s_class;

    std::recursive_mutex m_section;
};

}  // namespace Tessitor::Threading
