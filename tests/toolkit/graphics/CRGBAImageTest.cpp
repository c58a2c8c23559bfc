#include "toolkit/graphics/CRGBAImage.h"

#include "foundation/CException.h"
#include "foundation/Description.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::Exceptions::CException;
using Tessitor::GUI::Basics::CAlphaColour;
using Tessitor::GUI::Graphics::CRGBAImage;
using Tessitor::GUI::Graphics::EImageFormat;
using Tessitor::MathTools::CRect;

TEST(CRGBAImage, HasNoPictureAtFirst) {
    CRGBAImage image;
    EXPECT_EQ(image.getImageFormat(), EImageFormat::RGBA);
    EXPECT_FALSE(image.hasImageLoaded());
    EXPECT_FALSE(image.hasAlpha());
    EXPECT_EQ(image.getGraphics(), nullptr);
    EXPECT_FALSE(image.loadFromFile("picture.png"));
}

TEST(CRGBAImage, CanBeDrawnOnAndIsLoadedAfterThat) {
    CRGBAImage image;
    ASSERT_TRUE(image.initialise(20, 10));
    EXPECT_TRUE(image.hasAlpha());
    EXPECT_FALSE(image.hasImageLoaded());
    EXPECT_EQ(image.getImageSize().getWidth(), 20);
    EXPECT_STREQ(image.getNormalisedImageArea().toString().getString(), "0,0,20,10");
    ASSERT_NE(image.getGraphics(), nullptr);
    image.uninitialise();
    EXPECT_TRUE(image.hasImageLoaded());
    EXPECT_TRUE(image.hasAlpha());
    EXPECT_EQ(image.getGraphics(), nullptr);
    EXPECT_EQ(image.getImageHandle()->getWidth(), 20);
    EXPECT_EQ(image.getImageHandle()->getHeight(), 10);
    EXPECT_EQ(descriptionOf(image), "File loaded is = ");
}

TEST(CRGBAImage, KeepsWhatIsDrawn) {
    CRGBAImage image;
    ASSERT_TRUE(image.initialise(20, 10));
    image.getGraphics()->getBrush().setColour(CAlphaColour(255, 0, 0, 255));
    image.getGraphics()->fillRectangle(CRect(0, 0, 10, 10));
    image.getGraphics()->getBrush().setColour(CAlphaColour(255, 255, 255, 102));
    image.getGraphics()->fillRectangle(CRect(10, 0, 5, 10));
    image.uninitialise();

    const auto surface = createNativeSurface(nullptr, 20, 10, {0, 0, 255});
    surface->blendBitmap(*image.getImageHandle(), {0, 0, 20, 10}, {0, 0, 20, 10}, 255);
    EXPECT_EQ(surface->getPixel({5, 5}), (SNativeColour{255, 0, 0}));
    EXPECT_EQ(surface->getPixel({12, 5}), (SNativeColour{102, 102, 255}));
    EXPECT_EQ(surface->getPixel({17, 5}), (SNativeColour{0, 0, 255}));
}

TEST(CRGBAImage, CannotEndWithoutAStart) {
    CRGBAImage image;
    try {
        image.uninitialise();
        FAIL();
    } catch (const CException &exception) {
        EXPECT_STREQ(exception.getErrorReason().getString(), "GDI+ Bitmap or context are NULL");
        EXPECT_STREQ(exception.getFunctionName().getString(), "CRGBAImage::unintialise()");
    }
    ASSERT_TRUE(image.initialise(1, 1));
    image.uninitialise();
    EXPECT_THROW(image.uninitialise(), CException);
    EXPECT_TRUE(image.hasImageLoaded());
}

TEST(CRGBAImage, WithoutPixelsIsRefused) {
    CRGBAImage image;
    EXPECT_FALSE(image.initialise(0, 10));
    EXPECT_FALSE(image.initialise(10, -1));
    EXPECT_EQ(image.getGraphics(), nullptr);
    EXPECT_THROW(image.uninitialise(), CException);
}

TEST(CRGBAImage, CanBeDrawnAnew) {
    CRGBAImage image;
    ASSERT_TRUE(image.initialise(20, 10));
    ASSERT_TRUE(image.initialise(5, 5)) << "while it is being drawn on";
    image.uninitialise();
    ASSERT_TRUE(image.initialise(7, 8));
    EXPECT_FALSE(image.hasImageLoaded());
    image.uninitialise();
    EXPECT_EQ(image.getImageHandle()->getHeight(), 8);
}

TEST(CRGBAImage, CanBeUnloaded) {
    CRGBAImage image;
    ASSERT_TRUE(image.initialise(20, 10));
    image.unloadImage();
    EXPECT_EQ(image.getGraphics(), nullptr);
    EXPECT_FALSE(image.hasAlpha());
    ASSERT_TRUE(image.initialise(20, 10));
    image.uninitialise();
    image.unloadImage();
    EXPECT_FALSE(image.hasImageLoaded());
    EXPECT_EQ(image.getImageSize().getWidth(), 0);
}

}  // namespace
