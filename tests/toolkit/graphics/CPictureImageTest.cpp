#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "foundation/Description.h"
#include "toolkit/graphics/CJPEGImage.h"
#include "toolkit/graphics/CPNGImage.h"

#include <gtest/gtest.h>

namespace {

using Tessitor::GUI::Graphics::CBaseImage;
using Tessitor::GUI::Graphics::CJPEGImage;
using Tessitor::GUI::Graphics::CPNGImage;
using Tessitor::GUI::Graphics::EImageFormat;

std::string pngFile() {
    return pngBytes(200, 100, "\x10\x20\x30\x40");
}

std::string jpegFile() {
    SJpeg jpeg;
    jpeg.width = 200;
    jpeg.height = 100;
    return jpeg.bytes();
}

class PictureImages : public testing::Test {
protected:
    std::string write(const char *name, const std::string &bytes) {
        const std::string path = (folder / name).string();
        writeBytes(path, bytes);
        return path;
    }
    void expectRefused(CBaseImage &image, const std::string &path, const char *error) {
        EXPECT_FALSE(image.loadFromFile(path.c_str())) << path;
        EXPECT_STREQ(image.getLastError().getString(), error);
        EXPECT_STREQ(image.getFilename().getString(), path.c_str());
        EXPECT_FALSE(image.hasImageLoaded());
        EXPECT_EQ(image.getImageHandle(), nullptr);
        EXPECT_EQ(image.getImageSize().getWidth(), 0);
        EXPECT_EQ(descriptionOf(image), "No Image loaded");
    }

    CTemporaryFolder folder;
};

using CPNGImageFile = PictureImages;
using CJPEGImageFile = PictureImages;

TEST_F(CPNGImageFile, IsLoaded) {
    CPNGImage image;
    const std::string path = write("picture.png", pngFile());
    ASSERT_TRUE(image.loadFromFile(path.c_str()));
    EXPECT_TRUE(image.hasImageLoaded());
    EXPECT_TRUE(image.hasAlpha());
    EXPECT_EQ(image.getImageFormat(), EImageFormat::PNG);
    EXPECT_EQ(image.getImageSize().getWidth(), 200);
    EXPECT_EQ(image.getImageSize().getHeight(), 100);
    EXPECT_STREQ(image.getNormalisedImageArea().toString().getString(), "0,0,200,100");
    EXPECT_EQ(image.getImageHandle()->getHeight(), 100);
    EXPECT_EQ(descriptionOf(image), "File loaded is = " + path);
}

TEST_F(CPNGImageFile, NeedsItsExtensionInLowerCase) {
    CPNGImage image;
    for (const char *name : {"picture.PNG", "picture.jpg", "picture"})
        expectRefused(image, write(name, pngFile()), "Filename is not of PNG type");
}

TEST_F(CPNGImageFile, NeedsAWholePicture) {
    CPNGImage image;
    const char *error = "Failed to aquire HBITMAP from Bitmap image";
    expectRefused(image, (folder / "none.png").string(), error);
    expectRefused(image, write("empty.png", ""), error);
    std::string part = pngFile();
    part.pop_back();
    expectRefused(image, write("part.png", part), error);
}

TEST_F(CPNGImageFile, AFailureFreesTheOldPicture) {
    CPNGImage image;
    ASSERT_TRUE(image.loadFromFile(write("picture.png", pngFile()).c_str()));
    expectRefused(image, write("empty.png", ""), "Failed to aquire HBITMAP from Bitmap image");
    ASSERT_TRUE(image.loadFromFile(write("picture.png", pngFile()).c_str()));
    expectRefused(image, "other", "Filename is not of PNG type");
}

TEST_F(CJPEGImageFile, IsTakenToBeSquare) {
    CJPEGImage image;
    ASSERT_TRUE(image.loadFromFile(write("picture.jpg", jpegFile()).c_str()));
    EXPECT_TRUE(image.hasImageLoaded());
    EXPECT_FALSE(image.hasAlpha());
    EXPECT_EQ(image.getImageFormat(), EImageFormat::JPEG);
    EXPECT_EQ(image.getImageSize().getWidth(), 200);
    EXPECT_EQ(image.getImageSize().getHeight(), 200);
    EXPECT_STREQ(image.getNormalisedImageArea().toString().getString(), "0,0,200,200");
    EXPECT_EQ(image.getImageHandle()->getHeight(), 100) << "of the picture itself";
}

TEST_F(CJPEGImageFile, MayHaveEitherExtensionInLowerCase) {
    CJPEGImage image;
    EXPECT_TRUE(image.loadFromFile(write("picture.jpeg", jpegFile()).c_str()));
    for (const char *name : {"picture.JPG", "picture.JPEG", "picture.png"})
        expectRefused(image, write(name, jpegFile()), "Filename is not of JPEG type");
}

TEST_F(CJPEGImageFile, NeedsAWholePicture) {
    CJPEGImage image;
    std::string part = jpegFile();
    part.pop_back();
    expectRefused(image, write("part.jpg", part), "Failed to aquire HBITMAP from Bitmap image");
}

}  // namespace
