#include "platform/linux/drawing/CTextPainter.h"

#include <algorithm>

namespace {

// A pixel with 16 bits for each channel, so that one multiplication does all four.
using WidePixel = std::uint64_t;
constexpr WidePixel lowBytes = 0x00ff00ff00ff00ff;

WidePixel widen(std::uint32_t pixel) {
    return (pixel & 0x00ff00ff) | WidePixel{pixel & 0xff00ff00} << 24;
}

std::uint32_t narrow(WidePixel pixel) {
    return static_cast<std::uint32_t>(pixel | pixel >> 24);
}

// Divides each channel by 255 and rounds.
WidePixel dividedBy255(WidePixel products) {
    products += 0x0080008000800080;
    return (products + (products >> 8 & lowBytes)) >> 8 & lowBytes;
}

// Both pixels are premultiplied.
std::uint32_t blend(std::uint32_t over, std::uint32_t under, std::uint32_t alpha) {
    return narrow(dividedBy255(widen(over) * alpha + widen(under) * (255 - alpha)));
}

}  // namespace

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
                pixels[column] = blend(colour, pixels[column], alpha);
        }
    }
}

void CTextPainter::drawBar(std::int64_t left, std::int64_t top, std::int64_t right,
                           std::int64_t bottom) const {
    const SArea part = m_area.cutAt({left, top, right, bottom});
    for (std::int64_t row = part.top; row < part.bottom; ++row) {
        std::uint32_t *pixels = m_pixels.row(static_cast<std::int32_t>(row));
        for (std::int64_t column = part.left; column < part.right; ++column)
            pixels[column] = blend(m_colour, pixels[column], m_alpha);
    }
}
