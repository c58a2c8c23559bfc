#pragma once

#include <cstdint>

/// A rectangle of native pixels, laid out as Windows' RECT: right and bottom are the first
/// positions outside it.
struct SNativeRect {
    std::int32_t left = 0, top = 0, right = 0, bottom = 0;
};
