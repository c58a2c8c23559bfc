#pragma once

#include "platform/linux/drawing/SPixels.h"

#include <algorithm>
#include <vector>

/// A picture to draw on, the same colour all over at first.
class CCanvas {
public:
    CCanvas(std::int32_t width, std::int32_t height, std::uint32_t colour = 0)
        : m_background(colour), m_memory(static_cast<std::size_t>(width * height), colour),
          m_pixels{m_memory.data(), width, height, {0, 0, width, height}} {}
    CCanvas(const CCanvas &) = delete;
    CCanvas &operator=(const CCanvas &) = delete;

    const SPixels &getPixels() const { return m_pixels; }
    void setClip(const SNativeRect &clip) { m_pixels.clip = clip; }
    std::uint32_t at(std::int32_t x, std::int32_t y) const { return m_pixels.row(y)[x]; }
    const std::vector<std::uint32_t> &getMemory() const { return m_memory; }

    /// The pixels that differ from the background.
    std::size_t countInk() const {
        return m_memory.size() -
               static_cast<std::size_t>(std::count(m_memory.begin(), m_memory.end(), m_background));
    }
    /// The smallest rectangle with all the ink; all zero without ink.
    SNativeRect getInkArea() const {
        SNativeRect area = {m_pixels.width, m_pixels.height, 0, 0};
        for (std::int32_t y = 0; y < m_pixels.height; ++y)
            for (std::int32_t x = 0; x < m_pixels.width; ++x)
                if (at(x, y) != m_background)
                    area = {std::min(area.left, x), std::min(area.top, y),
                            std::max(area.right, x + 1), std::max(area.bottom, y + 1)};
        return area.right > 0 ? area : SNativeRect();
    }

private:
    std::uint32_t m_background;
    std::vector<std::uint32_t> m_memory;
    SPixels m_pixels;
};
