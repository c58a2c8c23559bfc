#include "platform/NativeScreen.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

static_assert(sizeof(SNativeRect) == sizeof(RECT));
static_assert(offsetof(SNativeRect, left) == offsetof(RECT, left));
static_assert(offsetof(SNativeRect, top) == offsetof(RECT, top));
static_assert(offsetof(SNativeRect, right) == offsetof(RECT, right));
static_assert(offsetof(SNativeRect, bottom) == offsetof(RECT, bottom));

TEST(NativeScreen, IncludesTheMainScreen) {
    const SNativeRect screen = nativeVirtualScreen();
    EXPECT_LE(screen.left, 0);
    EXPECT_LE(screen.top, 0);
    EXPECT_GE(screen.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_GE(screen.bottom, GetSystemMetrics(SM_CYSCREEN));
    EXPECT_EQ(screen.right - screen.left, GetSystemMetrics(SM_CXVIRTUALSCREEN));
}

}  // namespace
