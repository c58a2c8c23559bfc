#pragma once

#include <cstdint>

/// A colour, 0 to 255 per channel, not premultiplied. Alpha 255 is opaque.
struct SNativeColour {
    std::uint8_t red = 0, green = 0, blue = 0, alpha = 255;

    bool operator==(const SNativeColour &) const = default;
};
