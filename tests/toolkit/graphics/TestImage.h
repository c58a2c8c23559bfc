#pragma once

#include "platform/INativeSurface.h"
#include "toolkit/graphics/CBaseImage.h"

#include <algorithm>
#include <cstdint>
#include <vector>

/// An image without a file. With alpha it shows discs, one below the other, that fade out towards
/// their edge; without, every pixel has a colour of its own.
class CTestImage : public Tessitor::GUI::Graphics::CBaseImage {
public:
    CTestImage(std::int32_t width, std::int32_t height, bool hasAlpha) : CBaseImage(hasAlpha) {
        setSize(width, height);
        std::vector<std::uint8_t> pixels;
        for (std::int32_t y = height - 1; y >= 0; --y)
            for (std::int32_t x = 0; x < width; ++x) {
                const SNativeColour pixel = premultipliedColourAt(x, y);
                pixels.insert(pixels.end(), {pixel.blue, pixel.green, pixel.red, pixel.alpha});
            }
        setBitmap(createNativeBitmap(width, height, pixels));
    }
    Tessitor::GUI::Graphics::EImageFormat getImageFormat() const override {
        return Tessitor::GUI::Graphics::EImageFormat::RGBA;
    }

    SNativeColour premultipliedColourAt(std::int32_t x, std::int32_t y) const {
        const SNativeColour colour =
            hasAlpha() ? discColourAt(x, y, getImageSize().getWidth()) : opaqueColourAt(x, y);
        const auto times = [&](int channel) {
            return static_cast<std::uint8_t>((channel * colour.alpha + 127) / 255);
        };
        return {times(colour.red), times(colour.green), times(colour.blue), colour.alpha};
    }
    static SNativeColour opaqueColourAt(std::int32_t x, std::int32_t y) {
        return {static_cast<std::uint8_t>(11 * x + 40), static_cast<std::uint8_t>(9 * y + 20),
                static_cast<std::uint8_t>(5 * (x + y))};
    }

private:
    static SNativeColour discColourAt(std::int32_t x, std::int32_t y, std::int32_t size) {
        const std::int32_t frame = y / size, dx = 2 * x + 1 - size, dy = 2 * (y % size) + 1 - size;
        const std::int32_t alpha = 255 - 255 * (dx * dx + dy * dy) / (size * size);
        const auto channel = [&](int phase) {
            return static_cast<std::uint8_t>((frame + phase) % 3 * 120);
        };
        return {channel(0), channel(1), channel(2), static_cast<std::uint8_t>(std::max(alpha, 0))};
    }
};
