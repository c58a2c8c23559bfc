#include "toolkit/graphics/CTGAImage.h"

#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "foundation/Description.h"
#include "toolkit/graphics/TargaBytes.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Graphics::CTGAImage;
using Tessitor::GUI::Graphics::EImageFormat;

class CTGAImageFile : public testing::Test {
protected:
    bool load(const std::string &bytes, const char *name = "picture.tga") {
        path = (folder / name).string();
        writeBytes(path, bytes);
        return image.loadFromFile(path.c_str());
    }
    void expectRefused(const std::string &bytes, const char *error) {
        EXPECT_FALSE(load(bytes));
        EXPECT_STREQ(image.getLastError().getString(), error);
        EXPECT_FALSE(image.hasImageLoaded());
        EXPECT_EQ(image.getImageHandle(), nullptr);
    }

    CTemporaryFolder folder;
    std::string path;
    STarga targa;
    CTGAImage image;
};

constexpr const char *headerError = "Header information did not match\n"
                                    "File must be 32 bit Targa, colour map of 0, bpp = 8";
constexpr const char *bodyError = "Failed to create window DIB section from targa data";

TEST_F(CTGAImageFile, IsLoaded) {
    ASSERT_TRUE(load(targa.bytes()));
    EXPECT_TRUE(image.hasImageLoaded());
    EXPECT_TRUE(image.hasAlpha());
    EXPECT_EQ(image.getImageFormat(), EImageFormat::TGA);
    EXPECT_EQ(image.getImageSize().getWidth(), 2);
    EXPECT_EQ(image.getImageSize().getHeight(), 3);
    EXPECT_STREQ(image.getNormalisedImageArea().toString().getString(), "0,0,2,3");
    EXPECT_EQ(image.getImageHandle()->getWidth(), 2);
    EXPECT_EQ(image.getImageHandle()->getHeight(), 3);
    EXPECT_EQ(descriptionOf(image), "File loaded is = " + path);
    EXPECT_STREQ(image.getFilename().getString(), path.c_str());
    EXPECT_STREQ(image.getLastError().getString(), "");
}

TEST_F(CTGAImageFile, NeedsItsExtension) {
    EXPECT_FALSE(load(targa.bytes(), "picture.TGA"));
    EXPECT_STREQ(image.getLastError().getString(), "Filename is not of TARGA type");
    EXPECT_STREQ(image.getFilename().getString(), path.c_str());
}

TEST_F(CTGAImageFile, NeedsAFile) {
    EXPECT_FALSE(image.loadFromFile((folder / "none.tga").string().c_str()));
    EXPECT_STREQ(image.getLastError().getString(), "Could not find file with matching details");
    std::filesystem::create_directory(folder / "folder.tga");
    EXPECT_FALSE(image.loadFromFile((folder / "folder.tga").string().c_str()));
    EXPECT_STREQ(image.getLastError().getString(), "Could not find file with matching details");
}

TEST_F(CTGAImageFile, AnotherHeaderIsRefusedAndClearsTheFileName) {
    for (const std::size_t place : {0, 1, 2, 16, 17}) {
        std::string wrong = targa.bytes();
        wrong[place] = static_cast<char>(wrong[place] ^ 1);
        expectRefused(wrong, headerError);
        EXPECT_STREQ(image.getFilename().getString(), "");
    }
    targa.depths[0] = 24;
    expectRefused(targa.bytes(), headerError);
    EXPECT_STREQ(image.getFilename().getString(), "");
}

TEST_F(CTGAImageFile, AnUnfinishedHeaderIsRefused) {
    for (std::size_t length = 0; length < 18; ++length)
        expectRefused(targa.bytes().substr(0, length), headerError);
}

TEST_F(CTGAImageFile, AnUnfinishedPictureIsRefused) {
    targa.pixels.pop_back();
    expectRefused(targa.bytes(), bodyError);
    EXPECT_STREQ(image.getFilename().getString(), path.c_str());
    targa.width = targa.height = 65535;  // 17 GB
    expectRefused(targa.bytes(), bodyError);
}

TEST_F(CTGAImageFile, APictureWithoutPixelsIsRefused) {
    targa.height = 0;
    expectRefused(targa.bytes(), bodyError);
}

TEST_F(CTGAImageFile, MayBeFollowedByOtherBytes) {
    EXPECT_TRUE(load(targa.bytes() + "TRUEVISION-XFILE."));
}

TEST_F(CTGAImageFile, AFailureFreesTheOldPicture) {
    ASSERT_TRUE(load(targa.bytes()));
    EXPECT_FALSE(image.loadFromFile("picture.png"));
    EXPECT_FALSE(image.hasImageLoaded());
    EXPECT_EQ(image.getImageSize().getWidth(), 0);
    EXPECT_EQ(descriptionOf(image), "No Image loaded");
    EXPECT_TRUE(load(targa.bytes()));
}

TEST_F(CTGAImageFile, CanBeUnloaded) {
    ASSERT_TRUE(load(targa.bytes()));
    image.unloadImage();
    EXPECT_FALSE(image.hasImageLoaded());
    EXPECT_EQ(image.getImageHandle(), nullptr);
    EXPECT_EQ(image.getNormalisedImageArea().getHeight(), 0);
}

}  // namespace
