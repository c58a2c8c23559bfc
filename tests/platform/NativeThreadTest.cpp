#include "platform/NativeThread.h"

#include <gtest/gtest.h>
#include <set>
#include <thread>

namespace {

TEST(NativeThread, KeepsItsNumber) {
    const std::uintptr_t number = numberNativeThread();
    EXPECT_NE(number, 0u);
    EXPECT_EQ(numberNativeThread(), number);
    EXPECT_EQ(nativeThreadNumber(), number);
}

TEST(NativeThread, HasNoNumberUntilItIsGivenOne) {
    numberNativeThread();
    std::uintptr_t number = 1;
    std::thread([&number] { number = nativeThreadNumber(); }).join();
    EXPECT_EQ(number, 0u);
}

// The system gives each of these threads the id of the one before.
TEST(NativeThread, NeverGetsTheNumberOfAThreadThatHasEnded) {
    std::set<std::uintptr_t> numbers = {numberNativeThread()};
    for (int i = 0; i < 50; ++i) {
        std::uintptr_t before = 1, number = 0;
        std::thread([&] {
            before = nativeThreadNumber();
            number = numberNativeThread();
        }).join();
        EXPECT_EQ(before, 0u);
        EXPECT_TRUE(numbers.insert(number).second);
    }
}

}  // namespace
