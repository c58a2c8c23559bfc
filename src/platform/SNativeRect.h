#pragma once

#include <cstdint>

/// A rectangle in native pixels, laid out like RECT on Windows: right and bottom lie outside.
struct SNativeRect {
    std::int32_t left = 0, top = 0, right = 0, bottom = 0;
};
