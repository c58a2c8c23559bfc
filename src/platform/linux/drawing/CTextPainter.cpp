#include "platform/linux/drawing/CTextPainter.h"

#include "platform/linux/drawing/Blend.h"

#include <algorithm>

CTextPainter::SArea CTextPainter::SArea::cutAt(const SArea &other) const {
    return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
            std::min(bottom, other.bottom)};
}

CTextPainter::CTextPainter(const SPixels &pixels, const SNativeRect &area, SNativeColour colour)
    : m_pixels(pixels),
      m_area(SArea{area.left, area.top, area.right, area.bottom}.cutAt(
          {pixels.clip.left, pixels.clip.top, pixels.clip.right, pixels.clip.bottom})),
      m_colour(0xff000000u |
               static_cast<std::uint32_t>(colour.red << 16 | colour.green << 8 | colour.blue)),
      m_alpha(colour.alpha) {}

bool CTextPainter::canDraw() const {
    return m_area.left < m_area.right && m_area.top < m_area.bottom && m_alpha > 0;
}

void CTextPainter::drawGlyph(const SGlyph &glyph, std::int64_t x, std::int64_t y) const {
    const std::int64_t left = x + glyph.left, top = y + glyph.top;
    const SArea part = m_area.cutAt({left, top, left + glyph.width, top + glyph.height});
    // In locals: the loop writes values of the same type, so it would read the members each time.
    const std::uint32_t colour = m_colour, opacity = m_alpha;
    for (std::int64_t row = part.top; row < part.bottom; ++row) {
        const std::uint8_t *coverage = glyph.coverage.data() + (row - top) * glyph.width;
        std::uint32_t *pixels = m_pixels.row(static_cast<std::int32_t>(row));
        for (std::int64_t column = part.left; column < part.right; ++column) {
            const std::uint32_t alpha = (coverage[column - left] * opacity + 127) / 255;
            if (alpha != 0)
                pixels[column] = mixedPixel(colour, pixels[column], alpha);
        }
    }
}

void CTextPainter::drawBar(std::int64_t left, std::int64_t top, std::int64_t right,
                           std::int64_t bottom) const {
    const SArea part = m_area.cutAt({left, top, right, bottom});
    for (std::int64_t row = part.top; row < part.bottom; ++row) {
        std::uint32_t *pixels = m_pixels.row(static_cast<std::int32_t>(row));
        for (std::int64_t column = part.left; column < part.right; ++column)
            pixels[column] = mixedPixel(m_colour, pixels[column], m_alpha);
    }
}
