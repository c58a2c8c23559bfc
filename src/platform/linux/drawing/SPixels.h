#pragma once

#include "platform/SNativeRect.h"

#include <cstddef>
#include <cstdint>

/// The pixels of a surface or bitmap and the part of them that may be drawn on. A pixel is
/// 0xAARRGGBB, premultiplied; those of an opaque surface have alpha
/// 255. The first row is the top.
struct SPixels {
    std::uint32_t *data = nullptr;  // not owned
    std::int32_t width = 0, height = 0;
    SNativeRect clip;  // lies inside the picture

    std::uint32_t *row(std::int32_t y) const {
        return data + static_cast<std::ptrdiff_t>(y) * width;
    }
};
