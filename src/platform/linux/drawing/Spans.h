#pragma once

#include "platform/SNativeColour.h"
#include "platform/SNativeRect.h"
#include "platform/linux/drawing/SPixels.h"

#include <cstdint>

/// A rectangle whose sizes and moved edges cannot overflow. Right and bottom lie outside.
struct SArea {
    std::int64_t left = 0, top = 0, right = 0, bottom = 0;

    constexpr SArea() = default;
    constexpr SArea(std::int64_t l, std::int64_t t, std::int64_t r, std::int64_t b)
        : left(l), top(t), right(r), bottom(b) {}
    constexpr SArea(const SNativeRect &rect)
        : left(rect.left), top(rect.top), right(rect.right), bottom(rect.bottom) {}

    constexpr std::int64_t width() const { return right - left; }
    constexpr std::int64_t height() const { return bottom - top; }
    constexpr bool isEmpty() const { return right <= left || bottom <= top; }
};

/// @return the common part, with neither size below 0. It fits 32 bits, as the first does.
SNativeRect intersection(const SNativeRect &first, const SArea &second);

/// The area with its edges in order.
SArea inOrder(const SArea &area);

/// @return an opaque pixel; the alpha of the colour is ignored.
constexpr std::uint32_t opaquePixel(SNativeColour colour) {
    return 0xff000000u | static_cast<std::uint32_t>(colour.red) << 16 |
           static_cast<std::uint32_t>(colour.green) << 8 | colour.blue;
}

/// @return a premultiplied pixel.
std::uint32_t translucentPixel(SNativeColour colour);

/// Draws a premultiplied pixel over those from left to right - 1 of a row, inside the clip.
void fillSpan(const SPixels &pixels, std::int64_t y, std::int64_t left, std::int64_t right,
              std::uint32_t pixel);

/// Draws a premultiplied pixel over those of an area, inside the clip.
void fillArea(const SPixels &pixels, const SArea &area, std::uint32_t pixel);
