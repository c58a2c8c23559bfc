#pragma once

#include "platform/SNativePoint.h"
#include "platform/linux/drawing/SPixels.h"
#include "platform/linux/drawing/Spans.h"

/// A picture to copy from. What would come from outside it is not drawn.
struct SSource {
    const std::uint32_t *data;
    std::int32_t width, height;

    const std::uint32_t *row(std::int64_t y) const {
        return data + static_cast<std::ptrdiff_t>(y) * width;
    }
};

/// Copies a part of the same size. The result is opaque.
void copyPixels(const SPixels &pixels, const SSource &source, const SArea &to, SNativePoint from);

/// Copies and scales: repeats pixels, or combines by AND those that fall on one. Negative sizes
/// mirror. The result is opaque.
void stretchPixels(const SPixels &pixels, const SSource &source, const SArea &to,
                   const SArea &from);

/// Draws a part of a premultiplied picture over the pixels. Nothing happens if it does not lie
/// inside the source or if a size is negative. Different sizes repeat or leave out pixels.
/// @param alpha          0 to 255, multiplies the source.
/// @param isTranslucent  whether the alpha of the source's pixels counts.
void blendPixels(const SPixels &pixels, const SSource &source, const SArea &to, const SArea &from,
                 std::uint8_t alpha, bool isTranslucent);
