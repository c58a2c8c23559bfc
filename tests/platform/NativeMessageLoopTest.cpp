#include "platform/NativeMessageLoop.h"

#include <gtest/gtest.h>

namespace {

TEST(NativeMessageLoop, ReturnsTheResultOfTheQuit) {
    quitNativeMessageLoop(7);
    EXPECT_EQ(runNativeMessageLoop(), 7);
}

TEST(NativeMessageLoop, AQuitEndsOneLoopOnly) {
    quitNativeMessageLoop(1);
    EXPECT_EQ(runNativeMessageLoop(), 1);
    quitNativeMessageLoop(2);
    EXPECT_EQ(runNativeMessageLoop(), 2);
}

}  // namespace
