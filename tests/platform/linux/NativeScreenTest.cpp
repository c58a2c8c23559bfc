#include "platform/NativeScreen.h"

#include "platform/linux/CVirtualDisplay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

/// left, top, right, bottom
testing::Matcher<SNativeRect> isRect(int left, int top, int right, int bottom) {
    using testing::Field;
    return testing::AllOf(Field(&SNativeRect::left, left), Field(&SNativeRect::top, top),
                          Field(&SNativeRect::right, right), Field(&SNativeRect::bottom, bottom));
}

TEST(NativeScreen, IsTheRootWindowOfTheDisplay) {
    const CVirtualDisplay display("1234x567x24");
    EXPECT_THAT(nativeVirtualScreen(), isRect(0, 0, 1234, 567));
}

TEST(NativeScreen, IsEmptyWithoutADisplay) {
    unsetenv("DISPLAY");
    EXPECT_THAT(nativeVirtualScreen(), isRect(0, 0, 0, 0));
    setenv("DISPLAY", ":4095", 1);
    EXPECT_THAT(nativeVirtualScreen(), isRect(0, 0, 0, 0));
    unsetenv("DISPLAY");
}

}  // namespace
