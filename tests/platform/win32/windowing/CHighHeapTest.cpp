#include "platform/win32/windowing/CHighHeap.h"

#include "platform/INativeWindow.h"
#include "platform/win32/windowing/CWin32Window.h"

#include <array>
#include <gtest/gtest.h>
#include <optional>

namespace {

class CCounter : public INativeWindowListener {
public:
    std::array<int, 0x10000> messages{};
    int timers = 0, ends = 0;

    std::optional<std::intptr_t> handleMessage(unsigned message, std::uintptr_t,
                                               std::intptr_t) override {
        ++messages[message % messages.size()];
        return message == WM_USER ? std::optional<std::intptr_t>(messages[WM_USER]) : std::nullopt;
    }
    void handleTimer(int) override { ++timers; }
    void handleNativeDestroyed() override { ++ends; }
};

bool isAboveFourGigabytes(const void *memory) {
    return reinterpret_cast<std::uintptr_t>(memory) >= 0x100000000;
}

TEST(CHighHeap, HasNoBlockBelowFourGigabytes) {
    const CHighHeap heap;
    for (const std::size_t size :
         {1u, 8u, 24u, 50u, 104u, 200u, 1000u, 5000u, 100'000u, 2'000'000u})
        EXPECT_TRUE(isAboveFourGigabytes(std::make_unique<char[]>(size).get())) << size;
    EXPECT_TRUE(
        isAboveFourGigabytes(std::make_unique<std::array<char, sizeof(CWin32Window)>>().get()));
}

TEST(CHighHeap, KeepsNoMessageFromAWindow) {
    const CHighHeap heap;
    const auto counter = std::make_unique<CCounter>();
    EXPECT_TRUE(isAboveFourGigabytes(counter.get()));
    SNativeWindowOptions options;
    options.className = "com.tessitor.Test.high";
    options.style = 0x80000000;
    options.bounds = {10, 20, 110, 70};
    std::string reason;
    const auto window = createNativeWindow(options, *counter, reason);
    ASSERT_NE(window, nullptr) << reason;
    EXPECT_LT(reinterpret_cast<std::uintptr_t>(window.get()), 0x80000000u);
    for (const unsigned message : {WM_NCCREATE, WM_NCCALCSIZE, WM_CREATE, WM_SIZE, WM_MOVE})
        EXPECT_EQ(counter->messages[message], 1) << message;

    const auto handle = static_cast<HWND>(window->getHandle());
    for (int i = 1; i <= 1000; ++i)
        EXPECT_EQ(SendMessageA(handle, WM_USER, 0, 0), i);
    window->startTimer(1, 1);
    MSG message;
    while (counter->timers == 0 && GetMessageA(&message, handle, 0, 0))
        DispatchMessageA(&message);
    EXPECT_EQ(counter->timers, 1);
    DestroyWindow(handle);
    EXPECT_EQ(counter->messages[WM_NCDESTROY], 1);
    EXPECT_EQ(counter->ends, 1);
}

}  // namespace
