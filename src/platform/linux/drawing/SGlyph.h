#pragma once

#include <cstdint>
#include <vector>

class CFontFace;

/// The picture of a character, and how far the next one is away.
struct SGlyph {
    const CFontFace *face = nullptr;  // not owned; null without a font, and for control characters
    unsigned index = 0;               // in the face
    float advance = 0.0f;             // pixels; a whole number if there is a face
    std::int32_t left = 0, top = 0;   // of the picture, seen from the start of the base line
    std::int32_t width = 0, height = 0;
    std::vector<std::uint8_t> coverage;  // width * height; the first row is the top
};
