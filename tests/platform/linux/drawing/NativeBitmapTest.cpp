#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "platform/INativeBitmap.h"
#include "platform/linux/drawing/CMemoryBitmap.h"

#include <cstdio>
#include <cstdlib>
#include <gmock/gmock.h>
#include <jpeglib.h>

namespace {

using Pixels = std::vector<std::uint32_t>;

class NativeBitmapOnLinux : public testing::Test {
protected:
    /// @return no pixels if the file is refused.
    Pixels decode(const std::string &bytes) {
        const std::string path = (folder / "picture").string();
        writeBytes(path, bytes);
        const auto bitmap = decodeNativeBitmap(path);
        return bitmap == nullptr ? Pixels()
                                 : dynamic_cast<const CMemoryBitmap &>(*bitmap).getPixels();
    }
    Pixels decode(const SPng &file) { return decode(file.bytes()); }

    CTemporaryFolder folder;
    SPng png;
};

std::string zeros(std::size_t count) {
    return std::string(count, '\0');
}

// 16 by 16 pixels, all alike. The samples are stored as given.
std::string jpegBytes(J_COLOR_SPACE stored, const std::string &samples, bool isProgressive,
                      bool hasAdobeMarker) {
    jpeg_compress_struct jpeg;
    jpeg_error_mgr errors;
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char *memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &memory, &size);
    jpeg.image_width = 16;
    jpeg.image_height = 16;
    jpeg.input_components = static_cast<int>(samples.size());
    jpeg.in_color_space = stored;
    jpeg_set_defaults(&jpeg);
    jpeg_set_colorspace(&jpeg, stored);
    jpeg_set_quality(&jpeg, 100, TRUE);
    if (isProgressive)
        jpeg_simple_progression(&jpeg);
    jpeg.write_Adobe_marker = hasAdobeMarker ? TRUE : FALSE;
    jpeg_start_compress(&jpeg, TRUE);
    std::string row;
    for (int x = 0; x < 16; ++x)
        row += samples;
    auto *rows = reinterpret_cast<unsigned char *>(row.data());
    for (int y = 0; y < 16; ++y)
        jpeg_write_scanlines(&jpeg, &rows, 1);
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    std::string bytes(reinterpret_cast<char *>(memory), size);
    std::free(memory);
    return bytes;
}

Pixels square(std::uint32_t pixel) {
    return Pixels(16 * 16, pixel);
}

TEST_F(NativeBitmapOnLinux, KeepsAlpha) {
    png.width = 3;
    png.rows = std::string("\0\1\2\3\xff"
                           "\xff\xff\xff\x80"
                           "\1\1\1\0",
                           13);
    EXPECT_THAT(decode(png), testing::ElementsAre(0xff010203, 0x80808080, 0));
    png.kind = "\x8\2";
    png.rows = zeros(10);
    EXPECT_THAT(decode(png), testing::Each(0xff000000));
}

TEST_F(NativeBitmapOnLinux, ADamagedPngIsRefused) {
    png.rows = zeros(4);
    EXPECT_TRUE(decode(png).empty()) << "a byte of the row is missing";
    png.rows = "\5" + zeros(4);
    EXPECT_TRUE(decode(png).empty()) << "an unknown filter";
    png.rows = zeros(5);
    std::string bytes = png.bytes();
    bytes[30] = static_cast<char>(bytes[30] ^ 1);
    EXPECT_TRUE(decode(bytes).empty()) << "a wrong check sum";
    bytes = png.bytes();
    bytes.back() = static_cast<char>(bytes.back() ^ 1);
    EXPECT_TRUE(decode(bytes).empty()) << "a wrong check sum at the end";
    EXPECT_FALSE(decode(png).empty());
    png.kind = "\2\3";
    EXPECT_TRUE(decode(png).empty()) << "no palette";
}

TEST_F(NativeBitmapOnLinux, ReadsEveryKindOfJpeg) {
    for (const bool isProgressive : {false, true}) {
        const auto bytes = [&](J_COLOR_SPACE stored, const char *samples, bool hasAdobeMarker) {
            return jpegBytes(stored, samples, isProgressive, hasAdobeMarker);
        };
        EXPECT_EQ(decode(bytes(JCS_GRAYSCALE, "\x40", false)), square(0xff404040));
        EXPECT_EQ(decode(bytes(JCS_YCbCr, "\x40\x80\x80", false)), square(0xff404040));
        EXPECT_EQ(decode(bytes(JCS_RGB, "\x10\x20\x30", true)), square(0xff102030));
        EXPECT_EQ(decode(bytes(JCS_CMYK, "\x20\x40\x60\x80", true)), square(0xff102030));
        EXPECT_EQ(decode(bytes(JCS_CMYK, "\x20\x40\x60\x80", false)), square(0xff6f5f4f));
        EXPECT_EQ(decode(bytes(JCS_YCCK, "\x40\x80\x80\x80", true)), square(0xff606060));
    }
}

TEST_F(NativeBitmapOnLinux, AJpegWithMissingDataIsRefused) {
    testing::internal::CaptureStderr();
    for (const bool isProgressive : {false, true}) {
        const std::string bytes = jpegBytes(JCS_YCbCr, "\x41\x82\xa3", isProgressive, false);
        EXPECT_FALSE(decode(bytes).empty());
        EXPECT_TRUE(decode(bytes.substr(0, bytes.size() - 4) + "\xff\xd9").empty());
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(NativeBitmapOnLinux, AJpegWithWrongCodesIsRefused) {
    testing::internal::CaptureStderr();
    EXPECT_TRUE(decode(SJpeg().head() + std::string(8, '\xfe') + "\xff\xd9").empty());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(NativeBitmapOnLinux, AJpegRestartsInOrder) {
    testing::internal::CaptureStderr();
    SJpeg jpeg;
    jpeg.width = 16;
    jpeg.extra = jpegSegment(0xdd, std::string("\0\1", 2));  // a restart after each block
    const auto withRestart = [&](const char *marker) {
        return decode(jpeg.head() + "\x3f" + marker + "\x3f" + "\xff\xd9");
    };
    EXPECT_EQ(withRestart("\xff\xd0"), Pixels(16 * 8, 0xff808080));
    EXPECT_TRUE(withRestart("\xff\xd3").empty());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(NativeBitmapOnLinux, AJpegWithoutItsTablesIsRefused) {
    testing::internal::CaptureStderr();
    std::string bytes = SJpeg().bytes();
    for (const char table : {'\xdb', '\xc4'}) {
        std::string wrong = bytes;
        wrong[wrong.find(std::string("\xff") + table) + 1] = '\xfe';
        EXPECT_TRUE(decode(wrong).empty());
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(NativeBitmapOnLinux, PixelsAreGivenFromTheBottom) {
    const std::vector<std::uint8_t> pixels = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    const auto bitmap = createNativeBitmap(1, 3, pixels);
    EXPECT_THAT(dynamic_cast<const CMemoryBitmap &>(*bitmap).getPixels(),
                testing::ElementsAre(0x0c0b0a09, 0x08070605, 0x04030201));
}

}  // namespace
