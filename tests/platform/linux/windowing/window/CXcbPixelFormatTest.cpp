#include "platform/linux/windowing/window/CXcbPixelFormat.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace {

using testing::ElementsAre;

constexpr std::uint32_t pixels[] = {0xFF010280, 0x00FF00FF};

std::vector<int> converted(const SXcbPixelLayout &layout) {
    const CXcbPixelFormat format(layout);
    std::vector<std::uint8_t> row(format.bytesOfRow(2), 0xEE);
    format.convertRow(pixels, 2, row.data());
    return {row.begin(), row.end()};
}

TEST(CXcbPixelFormat, CopiesPixelsOfItsOwnKind) {
    EXPECT_THAT(converted({}), ElementsAre(0x80, 2, 1, 0xFF, 0xFF, 0, 0xFF, 0));
}

TEST(CXcbPixelFormat, OrdersTheBytes) {
    SXcbPixelLayout layout;
    layout.isLowByteFirst = false;
    EXPECT_THAT(converted(layout), ElementsAre(0xFF, 1, 2, 0x80, 0xFF, 0xFF, 0, 0xFF));
}

TEST(CXcbPixelFormat, OrdersTheChannels) {
    SXcbPixelLayout layout;
    layout.redMask = 0x0000FF;
    layout.blueMask = 0xFF0000;
    EXPECT_THAT(converted(layout), ElementsAre(1, 2, 0x80, 0xFF, 0xFF, 0, 0xFF, 0xFF));
}

TEST(CXcbPixelFormat, PacksThreeBytesAndFillsTheRow) {
    SXcbPixelLayout layout;
    layout.bitsPerPixel = 24;
    EXPECT_THAT(converted(layout), ElementsAre(0x80, 2, 1, 0xFF, 0, 0xFF, 0xEE, 0xEE));
}

TEST(CXcbPixelFormat, ScalesTheChannelsTo16Bits) {
    SXcbPixelLayout layout;
    layout.bitsPerPixel = 16;
    layout.redMask = 0xF800;
    layout.greenMask = 0x07E0;
    layout.blueMask = 0x001F;
    EXPECT_THAT(converted(layout), ElementsAre(16, 0, 0x1F, 0xF8));
    layout.isLowByteFirst = false;
    EXPECT_THAT(converted(layout), ElementsAre(0, 16, 0xF8, 0x1F));
}

TEST(CXcbPixelFormat, ScalesTheChannelsTo8Bits) {
    SXcbPixelLayout layout;
    layout.bitsPerPixel = 8;
    layout.redMask = 0x07;
    layout.greenMask = 0x38;
    layout.blueMask = 0xC0;
    EXPECT_THAT(converted(layout), ElementsAre(2 << 6, 7 | 3 << 6, 0xEE, 0xEE));
}

TEST(CXcbPixelFormat, ScalesTheChannelsToTenBits) {
    SXcbPixelLayout layout;
    layout.redMask = 0x3FF00000;
    layout.greenMask = 0x000FFC00;
    layout.blueMask = 0x000003FF;
    const CXcbPixelFormat format(layout);
    std::uint32_t row[2] = {};
    format.convertRow(pixels, 2, reinterpret_cast<std::uint8_t *>(row));
    EXPECT_EQ(row[0], 0xC0000000 | 4 << 20 | 8 << 10 | 514);
    EXPECT_EQ(row[1], 0xFFF003FF);
}

}  // namespace
