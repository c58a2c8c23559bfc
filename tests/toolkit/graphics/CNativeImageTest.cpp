#include "toolkit/graphics/CNativeImage.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Graphics::CNativeImage;
using Tessitor::MathTools::CDimension;
using Tessitor::MathTools::CRect;

constexpr SNativeColour red{255, 0, 0}, white{255, 255, 255};

TEST(CNativeImage, IsFilledWithItsBackground) {
    CNativeImage image;
    image.initialise(nullptr, CDimension(5, 4));
    EXPECT_EQ(image.getSurface()->getPixel({4, 3}), white);
    image.uninitialise();
    image.setBackgroundColour({255, 0, 0});
    image.initialise(nullptr, CDimension(5, 4));
    EXPECT_EQ(image.getSurface()->getPixel({4, 3}), red);
}

TEST(CNativeImage, IsInitialisedOnlyOnce) {
    CNativeImage image;
    EXPECT_FALSE(image.isInitialised());
    image.initialise(nullptr, CDimension(5, 4));
    image.initialise(nullptr, CDimension(50, 40));
    EXPECT_TRUE(image.isInitialised());
    EXPECT_EQ(image.getSize().getWidth(), 5);
    EXPECT_EQ(image.getSurface()->getWidth(), 5);
    image.uninitialise();
    EXPECT_FALSE(image.isInitialised());
    EXPECT_EQ(image.getSurface(), nullptr);
}

TEST(CNativeImage, CopiesTheWholePictureBothWays) {
    CNativeImage first, second;
    first.setBackgroundColour({255, 0, 0});
    first.initialise(nullptr, CDimension(5, 4));
    second.copyFrom(first);  // not initialised: nothing happens
    second.initialise(nullptr, CDimension(5, 4));
    first.copyTo(second);
    EXPECT_EQ(second.getSurface()->getPixel({4, 3}), red);

    CNativeImage third;
    third.initialise(nullptr, CDimension(5, 4));
    third.copyFrom(first);
    EXPECT_EQ(third.getSurface()->getPixel({0, 0}), red);
    first.uninitialise();
    first.copyTo(third);
}

TEST(CNativeImage, BlendsAPart) {
    CNativeImage source, target;
    source.setBackgroundColour({255, 0, 0});
    source.initialise(nullptr, CDimension(5, 4));
    source.blendTo(target, CRect(0, 0, 1, 1), CRect(0, 0, 1, 1), 255);  // not initialised
    target.initialise(nullptr, CDimension(5, 4));
    source.blendTo(target, CRect(0, 0, 2, 2), CRect(3, 2, 2, 2), 51);
    EXPECT_EQ(target.getSurface()->getPixel({3, 2}), (SNativeColour{255, 204, 204}));
    EXPECT_EQ(target.getSurface()->getPixel({2, 2}), white);
}

}  // namespace
