#include "platform/INativeSurface.h"

#include <gtest/gtest.h>

namespace {

// Linux needs no session.
TEST(NativeSmoothSession, IsNeededForSmoothDrawing) {
    const auto surface = createNativeSurface(nullptr, 4, 4, {255, 255, 255});
    const auto font = createNativeFont({.height = -11, .faceName = "Arial"});
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(surface->startSmoothDrawing(), nullptr);
        EXPECT_EQ(createNativeAlphaSurface(4, 4), nullptr);
        EXPECT_FALSE(nativeSmoothTextSize("text", *font).has_value());
        const CNativeSmoothSession session;
        EXPECT_NE(surface->startSmoothDrawing(), nullptr);
        EXPECT_NE(createNativeAlphaSurface(4, 4), nullptr);
        EXPECT_TRUE(nativeSmoothTextSize("text", *font).has_value());
    }
}

}  // namespace
