#pragma once

#include "platform/linux/drawing/SPixels.h"
#include "platform/linux/drawing/Spans.h"

#include <functional>

/// Rectangles whose corners are quarters of an ellipse. With an ellipse as large as the rectangle
/// they are ellipses; with one below 3 pixels, plain rectangles. The sizes of the ellipse are at
/// least 0, larger ones than the rectangle count as its size.

void fillRounded(const SPixels &pixels, const SArea &area, std::int64_t width, std::int64_t height,
                 std::uint32_t pixel);

/// The outline one pixel wide; it covers the pixels just inside the area.
void outlineRounded(const SPixels &pixels, const SArea &area, std::int64_t width,
                    std::int64_t height, std::uint32_t pixel);

/// Calls draw(y, left, right) for the runs of pixels in the outline of a wide pen, whose middle
/// runs along the outline one pixel wide. The runs may leave the clip to the left and right.
/// @param right  lies outside the run, which may be empty.
void visitRing(
    const SNativeRect &clip, const SArea &area, std::int64_t width, std::int64_t height,
    std::int64_t penWidth,
    const std::function<void(std::int32_t y, std::int64_t left, std::int64_t right)> &draw);
