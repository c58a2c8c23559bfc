#pragma once

#include "platform/SNativeRect.h"
#include "platform/linux/drawing/SOutline.h"

#include <cstdint>
#include <vector>

/// How much of each pixel a shape covers: the exact area.
///
/// Each pixel first collects the signed height of the edges that pass it, weighted by the part of
/// the pixel that lies to their right; its right neighbour collects the rest. The sum along a row,
/// from the left, is then the area that the shape covers in each pixel.
///
///     an edge of height 1 that goes down in the middle of the third pixel:
///     collected   0    0    0.5   0.5   0
///     covered     0    0    0.5   1     1
class CCoverage {
public:
    /// @param area  not empty; what lies outside is left out.
    CCoverage(const SNativeRect &area, const SOutline &outline);

    /// From 0 to 255, for a pixel in the area.
    std::uint32_t at(std::int32_t x, std::int32_t y) const {
        return m_covered[static_cast<std::size_t>(y - m_area.top) * m_width +
                         static_cast<std::size_t>(x - m_area.left)];
    }

private:
    void addEdge(SOutline::SPoint from, SOutline::SPoint to);
    void addInRow(float *row, double from, double to, double height);
    void sumRows();

    SNativeRect m_area;
    std::size_t m_width, m_height;
    std::vector<float> m_collected;  // one more per row, for what lies right of the area
    std::vector<std::uint8_t> m_covered;
};
