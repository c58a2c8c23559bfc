#include "platform/NativeMessageLoop.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <utility>

namespace {

std::mutex lock;
std::condition_variable posted;
std::optional<int> quit;

}  // namespace

int runNativeMessageLoop() {
    std::unique_lock held(lock);
    posted.wait(held, [] { return quit.has_value(); });
    return *std::exchange(quit, std::nullopt);
}

void quitNativeMessageLoop(int result) {
    const std::lock_guard held(lock);
    quit = result;
    posted.notify_one();
}
