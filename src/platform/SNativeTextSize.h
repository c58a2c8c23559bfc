#pragma once

/// The size of a text in pixels.
struct SNativeTextSize {
    float width = 0.0f, height = 0.0f;
};
