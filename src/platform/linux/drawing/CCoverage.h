#pragma once

#include "platform/SNativeRect.h"
#include "platform/linux/drawing/Spans.h"

#include <cairo.h>
#include <cstdint>
#include <functional>
#include <vector>

/// How much of each pixel a shape covers, as cairo sees it. It depends on the area alone. Cairo
/// draws the edges of a shape a little differently inside a small clip, so a clip is applied only
/// later.
class CCoverage {
public:
    using Paint = std::function<void(cairo_t *)>;

    /// @param area   not empty. Coordinates are those of the surface that the shape is meant for.
    /// @param paint  draws the shape.
    CCoverage(const SNativeRect &area, const Paint &paint);

    /// From 0 to 255.
    std::uint32_t at(std::int32_t x, std::int32_t y) const {
        return m_bytes[static_cast<std::size_t>(y - m_area.top) * m_stride +
                       static_cast<std::size_t>(x - m_area.left)];
    }

    /// @param path  adds to the path of the context.
    /// @return the pixels that the path touches.
    static SArea extents(const Paint &path);

private:
    SNativeRect m_area;
    std::size_t m_stride;  // bytes per row, a multiple of 4 for cairo
    std::vector<unsigned char> m_bytes;
};
