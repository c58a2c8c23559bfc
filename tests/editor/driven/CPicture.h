#pragma once

#include "platform/SNativePoint.h"
#include "platform/SNativeRect.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>
#include <vector>

/// What a part of the screen shows.
class CPicture {
public:
    CPicture(int width, int height)
        : m_width(width),
          m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

    int getWidth() const { return m_width; }
    int getHeight() const { return static_cast<int>(m_pixels.size()) / m_width; }
    std::uint32_t &at(int x, int y) { return m_pixels[indexOf(x, y)]; }  ///< 0xRRGGBB
    std::uint32_t at(int x, int y) const { return m_pixels[indexOf(x, y)]; }

    bool operator==(const CPicture &) const = default;

private:
    std::size_t indexOf(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
               static_cast<std::size_t>(x);
    }

    int m_width;
    std::vector<std::uint32_t> m_pixels;
};

inline void PrintTo(const CPicture &picture, std::ostream *out) {
    *out << "a picture of " << picture.getWidth() << " by " << picture.getHeight();
}

inline bool contains(const SNativeRect &area, int x, int y) {
    return x >= area.left && x < area.right && y >= area.top && y < area.bottom;
}

/// @return whether two pictures of the same size differ in an area.
inline bool differWithin(const CPicture &one, const CPicture &other, const SNativeRect &area) {
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            if (one.at(x, y) != other.at(x, y))
                return true;
    return false;
}

/// @return the smallest rectangle with all the pixels outside the areas in which two pictures of
///         the same size differ; empty if there are none.
inline SNativeRect differenceOutside(const CPicture &one, const CPicture &other,
                                     std::span<const SNativeRect> areas) {
    SNativeRect found = {one.getWidth(), one.getHeight(), 0, 0};
    for (int y = 0; y < one.getHeight(); ++y) {
        for (int x = 0; x < one.getWidth(); ++x) {
            const auto holds = [=](const SNativeRect &area) { return contains(area, x, y); };
            if (one.at(x, y) == other.at(x, y) || std::ranges::any_of(areas, holds))
                continue;
            found = {std::min(found.left, x), std::min(found.top, y), std::max(found.right, x + 1),
                     std::max(found.bottom, y + 1)};
        }
    }
    return found.right == 0 ? SNativeRect() : found;
}
