#include "foundation/CCriticalSection.h"

#include "foundation/Polling.h"

#include <chrono>
#include <thread>

namespace Tessitor::Threading {

Basics::TClassRecord<CCriticalSection> CCriticalSection::s_class("CCriticalSection",
                                                                 "CCountedObject");

CCriticalSection::CCriticalSection() {
    s_class.incrementInstanceCount();
}

void CCriticalSection::lock() {
    m_section.lock();
}

void CCriticalSection::unlock() {
    m_section.unlock();
}

bool CCriticalSection::tryLock(long milliseconds) {
    if (milliseconds < 1) {
        m_section.lock();
        return true;
    }
    return pollUntil(
        milliseconds, [this] { return m_section.try_lock(); },
        [] { std::this_thread::sleep_for(std::chrono::milliseconds(pollingStepMs)); });
}

}  // namespace Tessitor::Threading
