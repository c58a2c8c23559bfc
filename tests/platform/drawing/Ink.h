#pragma once

#include "platform/INativeSurface.h"

#include <algorithm>
#include <ostream>

/// @return the smallest rectangle around the pixels that differ from the background; all zero if
///         there are none.
inline SNativeRect inkOf(const INativeSurface &surface, SNativeColour background) {
    SNativeRect ink{surface.getWidth(), surface.getHeight(), 0, 0};
    for (std::int32_t y = 0; y < surface.getHeight(); ++y) {
        for (std::int32_t x = 0; x < surface.getWidth(); ++x) {
            if (surface.getPixel({x, y}) == background)
                continue;
            ink.left = std::min(ink.left, x);
            ink.top = std::min(ink.top, y);
            ink.right = std::max(ink.right, x + 1);
            ink.bottom = std::max(ink.bottom, y + 1);
        }
    }
    return ink.right > 0 ? ink : SNativeRect{};
}

inline bool isEmpty(const SNativeRect &rect) {
    return rect.right <= rect.left || rect.bottom <= rect.top;
}

inline bool isInside(const SNativeRect &rect, const SNativeRect &outer) {
    return rect.left >= outer.left && rect.top >= outer.top && rect.right <= outer.right &&
           rect.bottom <= outer.bottom;
}

inline bool operator==(const SNativeRect &a, const SNativeRect &b) {
    return isInside(a, b) && isInside(b, a);
}

inline std::ostream &operator<<(std::ostream &stream, const SNativeRect &rect) {
    return stream << rect.left << ", " << rect.top << " to " << rect.right << ", " << rect.bottom;
}

inline std::ostream &operator<<(std::ostream &stream, const SNativeColour &colour) {
    return stream << '[' << +colour.red << ' ' << +colour.green << ' ' << +colour.blue << ']';
}
