#pragma once

#include "platform/INativeSurface.h"

#include <functional>
#include <memory>
#include <string>

inline constexpr SNativeColour white{255, 255, 255, 255};
inline constexpr SNativeColour black{0, 0, 0, 255};
inline constexpr SNativeColour red{255, 0, 0, 255};

/// One row of text for each row of pixels: '.' is white, '#' black, 'o' red, '?' anything else.
inline std::string pictureOf(const INativeSurface &surface) {
    std::string text;
    for (std::int32_t y = 0; y < surface.getHeight(); ++y) {
        for (std::int32_t x = 0; x < surface.getWidth(); ++x) {
            const SNativeColour pixel = surface.getPixel({x, y});
            text += pixel == white ? '.' : pixel == black ? '#' : pixel == red ? 'o' : '?';
        }
        text += '\n';
    }
    return text;
}

/// @return what a white surface shows after drawing with a black pen and a red brush.
inline std::string drawn(std::int32_t width, std::int32_t height,
                         const std::function<void(INativeSurface &)> &draw) {
    const std::unique_ptr<INativeSurface> surface =
        createNativeSurface(nullptr, width, height, white);
    surface->setPen(black, 1);
    surface->setBrush(red);
    draw(*surface);
    return pictureOf(*surface);
}
