#include "platform/linux/drawing/Spans.h"

#include "platform/linux/drawing/Blend.h"

#include <algorithm>

SNativeRect intersection(const SNativeRect &first, const SArea &second) {
    const auto inside = [](std::int64_t value, std::int32_t low, std::int32_t high) {
        return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, low, std::max(low, high)));
    };
    const std::int32_t left = inside(second.left, first.left, first.right);
    const std::int32_t top = inside(second.top, first.top, first.bottom);
    return {left, top, inside(second.right, left, first.right),
            inside(second.bottom, top, first.bottom)};
}

SArea inOrder(const SArea &area) {
    return {std::min(area.left, area.right), std::min(area.top, area.bottom),
            std::max(area.left, area.right), std::max(area.top, area.bottom)};
}

std::uint32_t translucentPixel(SNativeColour colour) {
    // Truncated, as GDI+ does.
    const auto times = [&](std::uint32_t channel) { return channel * colour.alpha / 255; };
    return static_cast<std::uint32_t>(colour.alpha) << 24 | times(colour.red) << 16 |
           times(colour.green) << 8 | times(colour.blue);
}

void fillSpan(const SPixels &pixels, std::int64_t y, std::int64_t left, std::int64_t right,
              std::uint32_t pixel) {
    if (y < pixels.clip.top || y >= pixels.clip.bottom)
        return;
    left = std::max<std::int64_t>(left, pixels.clip.left);
    right = std::min<std::int64_t>(right, pixels.clip.right);
    if (left >= right)
        return;
    std::uint32_t *first = pixels.row(static_cast<std::int32_t>(y)) + left;
    if (pixel >> 24 == 255)
        std::fill_n(first, right - left, pixel);
    else
        std::transform(first, first + (right - left), first,
                       [pixel](std::uint32_t under) { return blendedPixel(pixel, under); });
}

void fillArea(const SPixels &pixels, const SArea &area, std::uint32_t pixel) {
    const SNativeRect visible = intersection(pixels.clip, area);
    for (std::int32_t y = visible.top; y < visible.bottom; ++y)
        fillSpan(pixels, y, visible.left, visible.right, pixel);
}
