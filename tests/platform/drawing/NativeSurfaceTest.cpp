#include "platform/INativeSurface.h"

#include <gtest/gtest.h>

namespace {

constexpr SNativeColour black{0, 0, 0}, white{255, 255, 255}, red{255, 0, 0}, blue{0, 0, 255};

TEST(NativeSurface, HasTheSizeAndBackgroundThatItIsCreatedWith) {
    const auto surface = createNativeSurface(nullptr, 5, 3, red);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->getWidth(), 5);
    EXPECT_EQ(surface->getHeight(), 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x)
            EXPECT_EQ(surface->getPixel({x, y}), red) << x << ", " << y;
}

}  // namespace
