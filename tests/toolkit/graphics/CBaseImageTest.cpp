#include "toolkit/graphics/CBaseImage.h"

#include "foundation/Description.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Graphics::CBaseImage;
using Tessitor::GUI::Graphics::EImageFormat;

class CPlainImage : public CBaseImage {
public:
    explicit CPlainImage(bool *destroyed = nullptr) : CBaseImage(false), m_destroyed(destroyed) {}
    ~CPlainImage() override {
        if (m_destroyed != nullptr)
            *m_destroyed = true;
    }
    EImageFormat getImageFormat() const override { return EImageFormat::RGBA; }

private:
    bool *m_destroyed;
};

TEST(CBaseImage, HasNoPictureAtFirst) {
    CPlainImage image;
    EXPECT_FALSE(image.hasImageLoaded());
    EXPECT_EQ(image.getImageHandle(), nullptr);
    EXPECT_EQ(image.getImageSize().getWidth(), 0);
    EXPECT_STREQ(image.getFilename().getString(), "");
    EXPECT_EQ(descriptionOf(image), "No Image loaded");
}

TEST(CBaseImage, FormatsHaveFixedNumbers) {
    EXPECT_EQ(static_cast<int>(EImageFormat::RGBA), 0);
    EXPECT_EQ(static_cast<int>(EImageFormat::TGA), 1);
    EXPECT_EQ(static_cast<int>(EImageFormat::PNG), 2);
    EXPECT_EQ(static_cast<int>(EImageFormat::JPEG), 3);
}

TEST(CBaseImage, LoadsNoFile) {
    CPlainImage image;
    EXPECT_FALSE(image.loadFromFile("picture.png"));
}

TEST(CBaseImage, LivesUntilItsLastReferenceIsReleased) {
    bool destroyed = false;
    auto *image = new CPlainImage(&destroyed);
    EXPECT_EQ(image->getReferenceCount(), 0);
    image->reference();
    image->reference();
    EXPECT_EQ(image->getReferenceCount(), 2);
    image->dereference();
    EXPECT_FALSE(destroyed);
    image->dereference();
    EXPECT_TRUE(destroyed);
}

TEST(CBaseImage, CountsItsInstances) {
    const CPlainImage first;
    EXPECT_STREQ(first.getClass().getClassName(), "CBaseImage");
    const auto before = first.getClass().getInstanceCount();
    {
        const CPlainImage second;
        EXPECT_EQ(first.getClass().getInstanceCount(), before + 1);
    }
    EXPECT_EQ(first.getClass().getInstanceCount(), before);
}

}  // namespace
