#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "platform/INativeSurface.h"

#include <gmock/gmock.h>
#include <vector>

namespace {

using testing::ElementsAre;

class NativeBitmapPixels : public testing::Test {
protected:
    /// @return the colours of the bitmap as stored, row by row from the top: 0xRRGGBB.
    static std::vector<std::uint32_t> colours(const INativeBitmap &bitmap) {
        const std::int32_t width = bitmap.getWidth(), height = bitmap.getHeight();
        const auto surface = createNativeSurface(nullptr, width, height, {});
        surface->copyBitmap(bitmap, {0, 0, width, height}, {});
        std::vector<std::uint32_t> found;
        for (std::int32_t y = 0; y < height; ++y)
            for (std::int32_t x = 0; x < width; ++x) {
                const SNativeColour pixel = surface->getPixel({x, y});
                found.push_back(
                    static_cast<std::uint32_t>(pixel.red << 16 | pixel.green << 8 | pixel.blue));
            }
        return found;
    }
    std::vector<std::uint32_t> decode(const std::string &bytes) {
        const std::string path = (folder / "picture").string();
        writeBytes(path, bytes);
        const auto bitmap = decodeNativeBitmap(path);
        return bitmap == nullptr ? std::vector<std::uint32_t>() : colours(*bitmap);
    }

    CTemporaryFolder folder;
    SPng png;
};

TEST_F(NativeBitmapPixels, RunFromTheTop) {
    png.height = 2;
    png.rows = std::string("\0\1\2\3\xff\0\4\5\6\xff", 10);
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0x010203, 0x040506));
}

TEST_F(NativeBitmapPixels, ArePremultipliedAndRounded) {
    png.width = 5;
    png.rows = std::string("\0"
                           "\xff\x80\x01\xff"
                           "\xff\x80\x01\x80"
                           "\xff\x80\x01\x01"
                           "\xff\x80\x7f\x00"
                           "\xff\x7f\x02\x01",
                           21);
    // 128 * 128 / 255 is 64.25; 127 / 255 is 0.498; 128 / 255 is 0.502.
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0xff8001, 0x804001, 0x010100, 0, 0x010000));
}

TEST_F(NativeBitmapPixels, MayLackAlpha) {
    png.kind = "\x8\2";
    png.rows = std::string("\0\1\2\3", 4);
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0x010203));
}

TEST_F(NativeBitmapPixels, MayBeGreyOfAnyDepth) {
    png.kind = "\x8" + std::string(1, '\0');
    png.rows = std::string("\0\x12", 2);
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0x121212));
    png.kind[0] = '\1';
    png.width = 3;
    png.rows = std::string("\0\xa0", 2);
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0xffffff, 0, 0xffffff));
    png.kind[0] = '\2';
    png.rows = std::string("\0\x1b", 2);
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0, 0x555555, 0xaaaaaa));
    png.kind[0] = '\4';
    png.rows = std::string("\0\x1f\x20", 3);
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0x111111, 0xffffff, 0x222222));
}

TEST_F(NativeBitmapPixels, MayBeGreyWithAlpha) {
    png.kind = "\x8\4";
    png.rows = std::string("\0\xff\x33", 3);
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0x333333));
}

TEST_F(NativeBitmapPixels, OfSixteenBitsLoseTheLowerEight) {
    png.kind = "\x10\2";
    png.rows = std::string("\0\x12\x34\x12\xff\xff\xff", 7);
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0x1212ff));
    png.kind = "\x10\6";
    png.rows = std::string("\0\xff\xff\0\0\x12\xff\x80\xff", 9);
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0x800009));
    png.kind = "\x10" + std::string(1, '\0');
    png.rows = std::string("\0\x12\xff", 3);
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0x121212));
}

TEST_F(NativeBitmapPixels, MayComeFromAPaletteWithAlpha) {
    png.kind = "\2\3";
    png.width = 3;
    png.rows = std::string("\0\x18", 2);
    const std::string palette = pngChunk("PLTE", "abcdef\xff\xff\xff");
    png.extra = palette + pngChunk("tRNS", std::string("\0\xff\x33", 3));
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0, 0x646566, 0x333333));
    png.extra = palette;
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0x616263, 0x646566, 0xffffff));
}

TEST_F(NativeBitmapPixels, OfOneColourMayBeTransparent) {
    png.kind = "\x8\2";
    png.width = 2;
    png.rows = std::string("\0\1\2\3\1\2\4", 7);
    png.extra = pngChunk("tRNS", std::string("\0\1\0\2\0\3", 6));
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0, 0x010204));
}

TEST_F(NativeBitmapPixels, MayBeInterlaced) {
    png.isInterlaced = true;
    png.width = 3;
    png.height = 2;
    png.kind = "\x8" + std::string(1, '\0');
    // The four of the seven passes that have pixels in so small a picture.
    png.rows = std::string("\0\1"
                           "\0\3"
                           "\0\2"
                           "\0\4\5\6",
                           10);
    EXPECT_THAT(decode(png.bytes()),
                ElementsAre(0x010101, 0x020202, 0x030303, 0x040404, 0x050505, 0x060606));
}

TEST_F(NativeBitmapPixels, AreNotCorrectedForGamma) {
    png.rows = std::string("\0\x40\x80\xc0\xff", 5);
    png.extra = pngChunk("gAMA", bigEndian(100'000));
    EXPECT_THAT(decode(png.bytes()), ElementsAre(0x4080c0));
}

TEST_F(NativeBitmapPixels, MayComeFromAJpeg) {
    EXPECT_EQ(decode(SJpeg().bytes()), std::vector<std::uint32_t>(64, 0x808080));
}

TEST_F(NativeBitmapPixels, OfAJpegHaveItsColours) {
    const auto bitmap = decodeNativeBitmap(FIXTURES "/red-and-blue.jpg");
    ASSERT_NE(bitmap, nullptr);
    ASSERT_EQ(bitmap->getWidth(), 16);
    ASSERT_EQ(bitmap->getHeight(), 8);
    const std::vector<std::uint32_t> found = colours(*bitmap);
    EXPECT_EQ(found[4 * 16 + 2] & 0xf8f8f8, 0xc81808u);
    EXPECT_EQ(found[4 * 16 + 13] & 0xf8f8f8, 0x1038d8u);
}

TEST_F(NativeBitmapPixels, AreGivenFromTheBottom) {
    const std::vector<std::uint8_t> pixels = {1, 2, 3, 255, 5, 6, 7, 255, 9, 10, 11, 255};
    const auto bitmap = createNativeBitmap(1, 3, pixels);
    EXPECT_THAT(colours(*bitmap), ElementsAre(0x0b0a09, 0x070605, 0x030201));
}

}  // namespace
