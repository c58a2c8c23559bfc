#include "CTemporaryFolder.h"
#include "PictureBytes.h"
#include "platform/INativeSurface.h"
#include "toolkit/graphics/CTGAImage.h"
#include "toolkit/graphics/TargaBytes.h"

#include <gmock/gmock.h>

namespace {

using Tessitor::GUI::Graphics::CTGAImage;

// The colours of an image as they are stored, row by row from the top: 0xRRGGBB.
std::vector<std::uint32_t> colours(const CTGAImage &image) {
    const std::int32_t width = image.getImageSize().getWidth();
    const std::int32_t height = image.getImageSize().getHeight();
    const auto surface = createNativeSurface(nullptr, width, height, {});
    surface->copyBitmap(*image.getImageHandle(), {0, 0, width, height}, {});
    std::vector<std::uint32_t> found;
    for (std::int32_t y = 0; y < height; ++y)
        for (std::int32_t x = 0; x < width; ++x) {
            const SNativeColour pixel = surface->getPixel({x, y});
            found.push_back(
                static_cast<std::uint32_t>(pixel.red << 16 | pixel.green << 8 | pixel.blue));
        }
    return found;
}

TEST(CTGAImagePixels, ArePremultipliedAndCutFromTheBottomUp) {
    STarga targa;
    targa.height = 2;
    targa.pixels = "\x10\x20\x30\xff"
                   "\xff\xff\xff" +
                   std::string(1, '\0') +
                   "\xff\x80\x01\x80"
                   "\xfe\x02\xff\x7f";
    const CTemporaryFolder folder;
    const std::string path = (folder / "picture.tga").string();
    writeBytes(path, targa.bytes());
    CTGAImage image;
    ASSERT_TRUE(image.loadFromFile(path.c_str()));
    // 128 * 128 / 255 is 64.25, 254 * 127 / 255 is 126.5, and 2 * 127 / 255 is 0.996.
    EXPECT_THAT(colours(image), testing::ElementsAre(0x004080, 0x7f007e, 0x302010, 0));
}

}  // namespace
