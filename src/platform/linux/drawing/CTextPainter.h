#pragma once

#include "platform/SNativeColour.h"
#include "platform/linux/drawing/SGlyph.h"
#include "platform/linux/drawing/SPixels.h"

/// Draws glyphs and bars in one colour, inside one area. Positions may lie anywhere.
class CTextPainter {
public:
    /// @param area  cut at the clip of the pixels.
    CTextPainter(const SPixels &pixels, const SNativeRect &area, SNativeColour colour);

    /// False if there is nothing to draw on or if the colour is transparent.
    bool canDraw() const;
    /// @param x, y  the start of the glyph's base line.
    void drawGlyph(const SGlyph &glyph, std::int64_t x, std::int64_t y) const;
    void drawBar(std::int64_t left, std::int64_t top, std::int64_t right,
                 std::int64_t bottom) const;

private:
    // A rectangle that may lie far outside the picture
    struct SArea {
        std::int64_t left, top, right, bottom;

        SArea cutAt(const SArea &other) const;
    };

    const SPixels &m_pixels;
    SArea m_area;
    std::uint32_t m_colour;  // opaque
    std::uint32_t m_alpha;
};
