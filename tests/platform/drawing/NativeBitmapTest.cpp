#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "platform/INativeBitmap.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

class NativeBitmap : public testing::Test {
protected:
    std::unique_ptr<INativeBitmap> decode(const std::string &bytes) {
        writeBytes(path, bytes);
        return decodeNativeBitmap(path);
    }

    CTemporaryFolder folder;
    std::string path = (folder / "picture").string();
};

TEST_F(NativeBitmap, IsDecodedFromAPng) {
    const auto bitmap = decode(pngBytes(5, 3, "\x10\x20\x30\x40"));
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->getWidth(), 5);
    EXPECT_EQ(bitmap->getHeight(), 3);
}

TEST_F(NativeBitmap, IsDecodedFromAJpeg) {
    SJpeg jpeg;
    jpeg.width = 20;
    jpeg.height = 9;
    const auto bitmap = decode(jpeg.bytes());
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->getWidth(), 20);
    EXPECT_EQ(bitmap->getHeight(), 9);
}

TEST_F(NativeBitmap, IsNotDecodedFromAnythingElse) {
    EXPECT_EQ(decode(""), nullptr);
    EXPECT_EQ(decode("text"), nullptr);
    EXPECT_EQ(decodeNativeBitmap((folder / "none").string()), nullptr);
    EXPECT_EQ(decodeNativeBitmap(folder.path().string()), nullptr);
}

TEST_F(NativeBitmap, IsNotDecodedFromPartOfAPicture) {
    std::string png = pngBytes(5, 3, "abcd"), jpeg = SJpeg().bytes();
    png.pop_back();
    jpeg.pop_back();
    EXPECT_EQ(decode(png), nullptr);
    EXPECT_EQ(decode(jpeg), nullptr);
}

TEST_F(NativeBitmap, AHeaderThatPromisesTooMuchTakesNoMemory) {
    SPng png;
    png.width = png.height = 32767;
    EXPECT_EQ(decode(png.bytes()), nullptr);
    SJpeg jpeg;
    jpeg.width = jpeg.height = 32767;
    EXPECT_EQ(decode(jpeg.head() + "\xff\xd9"), nullptr);
}

TEST_F(NativeBitmap, IsCreatedFromPixels) {
    const std::vector<std::uint8_t> pixels(5 * 3 * 4, 7);
    const auto bitmap = createNativeBitmap(5, 3, pixels);
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->getWidth(), 5);
    EXPECT_EQ(bitmap->getHeight(), 3);
}

TEST_F(NativeBitmap, HasAtLeastOnePixel) {
    EXPECT_EQ(createNativeBitmap(0, 3, {}), nullptr);
    EXPECT_EQ(createNativeBitmap(3, 0, {}), nullptr);
    EXPECT_EQ(createNativeBitmap(-1, -1, {}), nullptr);
}

}  // namespace
