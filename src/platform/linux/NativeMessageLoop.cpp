#include "platform/NativeMessageLoop.h"

#include "platform/linux/windowing/connection/CXcbConnection.h"

#include <algorithm>
#include <mutex>
#include <optional>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

/// A quit that waits for a loop to take it. [any thread]
class CPendingQuit {
public:
    CPendingQuit() = default;
    CPendingQuit(const CPendingQuit &) = delete;
    CPendingQuit &operator=(const CPendingQuit &) = delete;
    ~CPendingQuit() { close(m_descriptor); }

    void post(int result) {
        const std::lock_guard held(m_lock);
        m_result = result;
        eventfd_write(m_descriptor, 1);
    }
    std::optional<int> take() {
        const std::lock_guard held(m_lock);
        eventfd_t count = 0;
        if (m_result.has_value())
            eventfd_read(m_descriptor, &count);
        return std::exchange(m_result, std::nullopt);
    }
    int getDescriptor() const { return m_descriptor; }  ///< readable while a quit is pending

private:
    std::mutex m_lock;
    std::optional<int> m_result;
    int m_descriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
};

CPendingQuit &pendingQuit() {
    static CPendingQuit quit;
    return quit;
}

/// Waits until a quit is posted or a connection has something to do.
void waitForWork() {
    std::vector<pollfd> descriptors = {{pendingQuit().getDescriptor(), POLLIN, 0}};
    int milliseconds = -1;
    for (const auto &connection : CXcbConnection::getAll()) {
        if (connection->isBroken())  // its descriptor is always readable
            continue;
        descriptors.push_back({connection->getDescriptor(), POLLIN, 0});
        const int work = connection->millisecondsToWork();
        if (work >= 0)
            milliseconds = milliseconds < 0 ? work : std::min(milliseconds, work);
    }
    poll(descriptors.data(), descriptors.size(), milliseconds);
}

}  // namespace

int runNativeMessageLoop() {
    for (;;) {
        for (const auto &connection : CXcbConnection::getAll())
            connection->pump();
        if (const std::optional<int> result = pendingQuit().take())
            return *result;
        waitForWork();
    }
}

void quitNativeMessageLoop(int result) {
    pendingQuit().post(result);
}
