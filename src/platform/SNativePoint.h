#pragma once

#include <cstdint>

/// A position in native pixels, laid out like POINT on Windows.
struct SNativePoint {
    std::int32_t x = 0, y = 0;

    bool operator==(const SNativePoint &) const = default;
};
